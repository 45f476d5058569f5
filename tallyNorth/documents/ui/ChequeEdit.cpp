#include "ChequeEdit.h"

#include "ChequePrinter.h"

#include "base/ui/GuiInteraction.h"
#include "documents/AmountInWords.h"
#include "documents/ChequePrinting.h"
#include "documents/ChequeTemplate.h"
#include "documents/Report.h"
#include "masterdata/ui/RecordFinder.h"
#include "orders/OrderBasicData.h"
#include "orders/OrderFill.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

ChequeEdit::ChequeEdit(QWidget* parent)
    : QDialog(parent), m_partner_name(new PartnerFinder(this)), m_partner_zip(new QLineEdit(this)),
      m_partner_city(new QLineEdit(this)), m_partner_address(new QLineEdit(this)),
      m_invoice_no(new QLineEdit(this)), m_amount(new QLineEdit(this)),
      m_amount_text(new QLabel(this)), m_pretence(new QPlainTextEdit(this)),
      m_notice(new QPlainTextEdit(this))
{
    setObjectName(QStringLiteral("ChequeEditLayout"));
    m_partner_name->setObjectName(QStringLiteral("m_partner_name"));
    m_partner_zip->setObjectName(QStringLiteral("m_partner_zip"));
    m_partner_city->setObjectName(QStringLiteral("m_partner_city"));
    m_partner_address->setObjectName(QStringLiteral("m_partner_address"));
    m_invoice_no->setObjectName(QStringLiteral("m_invoice_no"));
    m_amount->setObjectName(QStringLiteral("m_amount"));
    m_amount_text->setObjectName(QStringLiteral("m_amount_text"));
    m_pretence->setObjectName(QStringLiteral("m_pretence"));
    m_notice->setObjectName(QStringLiteral("m_notice"));
    m_amount->setAlignment(Qt::AlignRight);
    m_amount_text->setWordWrap(true);
    m_pretence->setTabChangesFocus(true);
    m_notice->setTabChangesFocus(true);
    m_pretence->setMaximumHeight(fontMetrics().height() * 6);
    m_notice->setMaximumHeight(fontMetrics().height() * 6);

    auto* find = new QPushButton(tr("&Find Partner"), this);
    find->setObjectName(QStringLiteral("m_find_partner"));
    find->setToolTip(tr("Partner keresese vagy uj partner letrehozasa"));
    auto* partnerRow = new QHBoxLayout;
    partnerRow->addWidget(m_partner_name, 1);
    partnerRow->addWidget(find);

    auto* amountRow = new QHBoxLayout;
    amountRow->addWidget(m_amount);
    amountRow->addWidget(new QLabel(QStringLiteral("Ft"), this));

    auto* form = new QFormLayout;
    form->addRow(tr("Partner Name"), partnerRow);
    form->addRow(tr("ZIP"), m_partner_zip);
    form->addRow(tr("City"), m_partner_city);
    form->addRow(tr("Street Address"), m_partner_address);
    form->addRow(tr("Szamlaszam"), m_invoice_no);
    form->addRow(tr("Osszeg"), amountRow);
    form->addRow(QString(), m_amount_text);
    form->addRow(tr("Jogcim (bal oldalon)"), m_pretence);
    form->addRow(tr("Kozlemeny (jobb oldalon)"), m_notice);

    auto* buttons = new QDialogButtonBox(this);
    QPushButton* previewButton =
        buttons->addButton(tr("Print Preview"), QDialogButtonBox::ActionRole);
    QPushButton* printButton = buttons->addButton(tr("Print"), QDialogButtonBox::ActionRole);
    QPushButton* laterButton = buttons->addButton(tr("Later"), QDialogButtonBox::AcceptRole);
    buttons->addButton(QDialogButtonBox::Cancel);
    laterButton->setObjectName(QStringLiteral("m_later"));
    printButton->setObjectName(QStringLiteral("m_print"));
    previewButton->setObjectName(QStringLiteral("m_preview"));
    laterButton->setDefault(true);

    auto* group = new QWidget(this);
    group->setLayout(form);
    auto* column = new QVBoxLayout(this);
    column->addWidget(new QLabel(
        QStringLiteral("<b>%1</b>").arg(tr("Csekk letrehozasa/szerkesztese").toHtmlEscaped()),
        this));
    column->addWidget(group);
    column->addWidget(buttons);

    connect(find, &QPushButton::clicked, this, [this] {
        m_partner_name->setFocus();
        m_partner_name->search();
    });
    connect(m_partner_name, &PartnerFinder::picked, this, &ChequeEdit::partnerPicked);
    connect(m_amount, &QLineEdit::textChanged, this, &ChequeEdit::amountChanged);
    connect(laterButton, &QPushButton::clicked, this, &ChequeEdit::saveLater);
    connect(printButton, &QPushButton::clicked, this, &ChequeEdit::print);
    connect(previewButton, &QPushButton::clicked, this, &ChequeEdit::preview);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    setValues(Cheque());
    resize(560, sizeHint().height());
}

ChequeEdit::~ChequeEdit() = default;

void ChequeEdit::setInteraction(Interaction* interaction)
{
    m_interaction = interaction;
}

Interaction& ChequeEdit::interaction()
{
    if (m_interaction)
        return *m_interaction;
    if (!m_gui)
        m_gui = std::make_unique<GuiInteraction>(this);
    return *m_gui;
}

bool ChequeEdit::load(qint64 id)
{
    Cheque cheque;
    if (id != 0) {
        if (Result r = ChequeStore::load(id, cheque); !r) {
            interaction().error(r.message());
            return false;
        }
    }
    setValues(cheque);
    return true;
}

void ChequeEdit::setValues(const Cheque& cheque)
{
    m_cheque = cheque;
    setWindowTitle(cheque.id == 0 ? tr("Create Cheque") : tr("Edit Cheque"));
    m_partner_name->setPicked(cheque.partnerId, cheque.partnerName);
    m_partner_zip->setText(cheque.partnerZip);
    m_partner_city->setText(cheque.partnerCity);
    m_partner_address->setText(cheque.partnerAddress);
    m_invoice_no->setText(cheque.invoiceNoText);
    m_amount->setText(cheque.amount == 0.0 && cheque.id == 0
                          ? QString()
                          : QString::number(qint64(ChequeStore::wholeForints(cheque.amount))));
    m_pretence->setPlainText(cheque.pretence);
    m_notice->setPlainText(cheque.notice);
    amountChanged();
}

Cheque ChequeEdit::values() const
{
    Cheque c = m_cheque;
    c.partnerId = m_partner_name->pickedId();
    if (c.partnerId != m_cheque.partnerId)
        c.partnerCode.clear();
    c.partnerName = m_partner_name->text().trimmed();
    c.partnerZip = m_partner_zip->text().trimmed();
    c.partnerCity = m_partner_city->text().trimmed();
    c.partnerAddress = m_partner_address->text().trimmed();
    c.invoiceNoText = m_invoice_no->text().trimmed();
    if (c.invoiceNoText != m_cheque.invoiceNoText)
        c.invoiceNo.reset(); // typed by hand: no longer the number it was copied from
    double amount = 0.0;
    c.amount = ChequeStore::parseAmount(m_amount->text(), amount) ? amount : 0.0;
    c.pretence = m_pretence->toPlainText();
    c.notice = m_notice->toPlainText();
    return c;
}

void ChequeEdit::partnerPicked(qint64 id)
{
    Order order;
    if (!OrderFill::partner(order, id))
        return;
    m_partner_zip->setText(order.partnerZip);
    m_partner_city->setText(order.partnerCity);
    m_partner_address->setText(order.partnerAddress);
}

void ChequeEdit::amountChanged()
{
    double amount = 0.0;
    const bool ok = ChequeStore::parseAmount(m_amount->text(), amount).ok();
    m_amount_text->setText(ok ? AmountInWords(qint64(amount)) : QString());
}

bool ChequeEdit::save()
{
    Cheque cheque = values();
    double amount = 0.0;
    if (Result r = ChequeStore::parseAmount(m_amount->text(), amount); !r) {
        interaction().exclamation(r.message());
        m_amount->setFocus();
        return false;
    }
    if (Result r = ChequeStore::check(cheque); !r) {
        interaction().exclamation(r.message());
        m_amount->setFocus();
        return false;
    }
    // The same question as for an order's partner; the cheque keeps its own copy anyway.
    Order order;
    if (cheque.partnerId && !OrderFill::partner(order, *cheque.partnerId))
        cheque.partnerId.reset();
    order.partnerId = cheque.partnerId;
    order.partnerName = cheque.partnerName;
    order.partnerZip = cheque.partnerZip;
    order.partnerCity = cheque.partnerCity;
    order.partnerAddress = cheque.partnerAddress;
    if (!cheque.partnerName.isEmpty()) {
        if (Result r = OrderBasicData::partner(order, interaction()); !r) {
            interaction().error(r.message());
            return false;
        }
        cheque.partnerId = order.partnerId;
    }
    if (Result r = ChequeStore::save(cheque); !r) {
        interaction().error(r.message());
        return false;
    }
    m_saved = true;
    setValues(cheque);
    return true;
}

void ChequeEdit::saveLater()
{
    if (save())
        accept();
}

void ChequeEdit::print()
{
    if (!save())
        return;
    ChequePrinterOutput output(false, this);
    int printed = 0;
    const Result r = ChequePrinting::print(ChequePrintMode::SelectedOnly, {m_cheque.id}, output,
                                           interaction(), QDate::currentDate(), printed);
    if (!r) {
        if (!r.message().isEmpty())
            interaction().error(r.message());
        return;
    }
    accept();
}

void ChequeEdit::preview()
{
    // A look only: nothing is saved or marked printed.
    Report report;
    const Result r = ChequePrinting::build({values()}, ChequeTemplates::current(),
                                           ChequePrinting::settingsShift(), report);
    if (!r) {
        interaction().error(r.message());
        return;
    }
    ChequePrinterOutput output(true, this);
    (void)output.output(report, tr("Print Preview"));
}

bool ChequeEdit::edit(qint64 id, QWidget* parent)
{
    ChequeEdit dialog(parent);
    if (!dialog.load(id))
        return false;
    const int result = dialog.exec();
    return result == QDialog::Accepted || dialog.m_saved;
}
