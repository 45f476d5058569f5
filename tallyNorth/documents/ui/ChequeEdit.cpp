#include "ChequeEdit.h"

#include "ChequePrinter.h"
#include "ui_ChequeEditLayout.h"

#include "base/ui/GuiInteraction.h"
#include "documents/AmountInWords.h"
#include "documents/ChequePrinting.h"
#include "documents/ChequeTemplate.h"
#include "documents/Report.h"
#include "masterdata/ui/RecordFinder.h"
#include "orders/OrderBasicData.h"
#include "orders/OrderFill.h"

#include <QLineEdit>
#include <QPushButton>

ChequeEdit::ChequeEdit(QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::ChequeEditLayout>())
{
    m_ui->setupUi(this);
    connect(m_ui->m_find_partner, &QPushButton::clicked, this, [this] {
        m_ui->m_partner_name->setFocus();
        m_ui->m_partner_name->search();
    });
    connect(m_ui->m_partner_name, &PartnerFinder::picked, this, &ChequeEdit::partnerPicked);
    connect(m_ui->m_amount, &QLineEdit::textChanged, this, &ChequeEdit::amountChanged);
    connect(m_ui->m_later, &QPushButton::clicked, this, &ChequeEdit::saveLater);
    connect(m_ui->m_print, &QPushButton::clicked, this, &ChequeEdit::print);
    connect(m_ui->m_preview, &QPushButton::clicked, this, &ChequeEdit::preview);
    connect(m_ui->m_cancel, &QPushButton::clicked, this, &QDialog::reject);
    setValues(Cheque());
}

ChequeEdit::~ChequeEdit() = default;

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
    m_ui->m_partner_name->setPicked(cheque.partnerId, cheque.partnerName);
    m_ui->m_partner_zip->setText(cheque.partnerZip);
    m_ui->m_partner_city->setText(cheque.partnerCity);
    m_ui->m_partner_address->setText(cheque.partnerAddress);
    m_ui->m_invoice_no->setText(cheque.invoiceNoText);
    m_ui->m_amount->setText(
        cheque.amount == 0.0 && cheque.id == 0
            ? QString()
            : QString::number(qint64(ChequeStore::wholeForints(cheque.amount))));
    m_ui->m_pretence->setPlainText(cheque.pretence);
    m_ui->m_notice->setPlainText(cheque.notice);
    amountChanged();
}

Cheque ChequeEdit::values() const
{
    Cheque c = m_cheque;
    c.partnerId = m_ui->m_partner_name->pickedId();
    if (c.partnerId != m_cheque.partnerId)
        c.partnerCode = c.partnerId == m_pickedId ? m_pickedCode : QString();
    c.partnerName = m_ui->m_partner_name->text().trimmed();
    c.partnerZip = m_ui->m_partner_zip->text().trimmed();
    c.partnerCity = m_ui->m_partner_city->text().trimmed();
    c.partnerAddress = m_ui->m_partner_address->text().trimmed();
    c.invoiceNoText = m_ui->m_invoice_no->text().trimmed();
    if (c.invoiceNoText != m_cheque.invoiceNoText)
        c.invoiceNo.reset(); // typed by hand: no longer the number it was copied from
    double amount = 0.0;
    c.amount = ChequeStore::parseAmount(m_ui->m_amount->text(), amount) ? amount : 0.0;
    c.pretence = m_ui->m_pretence->toPlainText();
    c.notice = m_ui->m_notice->toPlainText();
    return c;
}

void ChequeEdit::partnerPicked(qint64 id)
{
    Order order;
    if (!OrderFill::partner(order, id))
        return;
    m_pickedId = id;
    m_pickedCode = order.partnerCode;
    m_ui->m_partner_zip->setText(order.partnerZip);
    m_ui->m_partner_city->setText(order.partnerCity);
    m_ui->m_partner_address->setText(order.partnerAddress);
}

void ChequeEdit::amountChanged()
{
    double amount = 0.0;
    const bool ok = ChequeStore::parseAmount(m_ui->m_amount->text(), amount).ok();
    m_ui->m_amount_text->setText(ok ? AmountInWords(qint64(amount)) : QString());
}

bool ChequeEdit::save()
{
    Cheque cheque = values();
    double amount = 0.0;
    if (Result r = ChequeStore::parseAmount(m_ui->m_amount->text(), amount); !r) {
        interaction().exclamation(r.message());
        m_ui->m_amount->setFocus();
        return false;
    }
    if (Result r = ChequeStore::check(cheque); !r) {
        interaction().exclamation(r.message());
        m_ui->m_amount->setFocus();
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
        cheque.partnerCode = order.partnerCode;
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
