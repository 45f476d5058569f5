#include "BankitemEdit.h"

#include "BankItemListDlg.h"

#include "base/Interaction.h"
#include "base/ui/DateEdit.h"
#include "base/ui/GuiInteraction.h"
#include "base/ui/HelpLink.h"
#include "masterdata/ui/NumberEdit.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

BankitemEdit::BankitemEdit(const BankItemInvoice& invoice, QWidget* parent, const QDate& today)
    : QDialog(parent), m_invoice(invoice), m_invoiceNo(new QLineEdit(this)),
      m_recordNo(new QLineEdit(this)), m_transferDate(new DateEdit(this)),
      m_paidTotal(new QLineEdit(this)), m_currency(new QLabel(this)),
      m_comment(new QLineEdit(this)),
      m_pastPayments(new QPushButton(tr("List past payments"), this))
{
    setWindowTitle(tr("Add Bank Item"));
    m_invoiceNo->setObjectName(QStringLiteral("invoiceNo"));
    m_recordNo->setObjectName(QStringLiteral("recordNo"));
    m_transferDate->setObjectName(QStringLiteral("transferDate"));
    m_paidTotal->setObjectName(QStringLiteral("paidTotal"));
    m_currency->setObjectName(QStringLiteral("currency"));
    m_comment->setObjectName(QStringLiteral("comment"));
    m_pastPayments->setObjectName(QStringLiteral("pastPayments"));

    m_invoiceNo->setReadOnly(true);
    m_invoiceNo->setFocusPolicy(Qt::NoFocus);
    m_invoiceNo->setText(invoice.invoiceNoStr);
    m_transferDate->setDate(today);
    m_paidTotal->setAlignment(Qt::AlignRight);
    // Most payments settle what is still owed; an overpaid invoice proposes nothing.
    if (invoice.unpaidTotal > 0.0)
        m_paidTotal->setText(NumberEdit::format(invoice.unpaidTotal));
    m_currency->setText(invoice.currency);

    auto* amount = new QHBoxLayout;
    amount->addWidget(m_paidTotal, 1);
    amount->addWidget(m_currency);
    auto* form = new QFormLayout;
    form->addRow(tr("Invoice Number"), m_invoiceNo);
    form->addRow(tr("Bankitem Record No"), m_recordNo);
    form->addRow(tr("Bank Transfer Date"), m_transferDate);
    form->addRow(tr("Bank Paid Total"), amount);
    form->addRow(tr("Comment"), m_comment);

    auto* buttons = new QDialogButtonBox(
        QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Help, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &BankitemEdit::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &BankitemEdit::reject);
    LinkHelp(buttons, QStringLiteral("Befizetesek"));
    connect(m_pastPayments, &QPushButton::clicked, this, &BankitemEdit::listPastPayments);

    auto* column = new QVBoxLayout(this);
    column->addLayout(form);
    column->addWidget(m_pastPayments, 0, Qt::AlignLeft);
    column->addWidget(buttons);
    m_recordNo->setFocus();
    resize(420, sizeHint().height());
}

BankitemEdit::~BankitemEdit() = default;

void BankitemEdit::accept()
{
    if (!m_transferDate->isValidInput()) {
        interaction().exclamation(tr("The transfer date is not a date."));
        m_transferDate->setFocus();
        return;
    }
    BankItem item;
    item.recordNo = m_recordNo->text().trimmed();
    item.transferDate = m_transferDate->date();
    item.comment = m_comment->text().trimmed();
    if (!item.transferDate.isValid()) {
        interaction().exclamation(tr("Bankitem Transfer Date mustn't not be empty."));
        m_transferDate->setFocus();
        return;
    }
    if (Result r = BankItemStore::parseAmount(m_paidTotal->text(), item.paidTotal); !r) {
        interaction().exclamation(r.message());
        m_paidTotal->setFocus();
        return;
    }
    if (Result r = BankItemStore::add(m_invoice, item); !r) {
        interaction().error(r.message());
        return;
    }
    QDialog::accept();
}

void BankitemEdit::listPastPayments()
{
    QList<BankItem> items;
    if (Result r = BankItemStore::list(m_invoice.orderId, items); !r) {
        interaction().error(r.message());
        return;
    }
    if (items.isEmpty()) {
        interaction().info(tr("There are no bank items to this invoice."));
        return;
    }
    BankItemListDlg dialog(items, m_invoice.currency, m_invoice.decimals, this);
    dialog.exec();
}

bool BankitemEdit::addTo(qint64 orderId, QWidget* parent, Interaction& interaction)
{
    BankItemInvoice invoice;
    if (Result r = BankItemStore::loadInvoice(orderId, invoice); !r) {
        interaction.exclamation(r.message());
        return false;
    }
    BankitemEdit dialog(invoice, parent);
    return dialog.exec() == QDialog::Accepted;
}
