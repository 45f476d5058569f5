#include "CurrencyEdit.h"

#include "ui_CurrencyEditLayout.h"

#include "Columns.h"
#include "base/MessageArgs.h"
#include "masterdata/MasterTables.h"

using namespace Col;

namespace {

constexpr int kNewCurrencyDecimals = 2;

} // namespace

CurrencyEdit::CurrencyEdit(std::optional<qint64> id, QWidget* parent)
    : RecordEditDlg(CurrencyStore(), id, parent), m_ui(std::make_unique<Ui::CurrencyEditLayout>())
{
    m_ui->setupUi(this);
    m_rateLabel = m_ui->m_rate_label->text();
    connect(m_ui->m_abbreviation, &QLineEdit::textChanged, this, &CurrencyEdit::updateRateLabel);
    connect(m_ui->m_bank_by_setup, &QCheckBox::toggled, this, &CurrencyEdit::updateBankFields);
    bindFields({"CurrencyTable", QT_TRANSLATE_NOOP("CurrencyTable", "Add Currency")},
               {"CurrencyTable", QT_TRANSLATE_NOOP("CurrencyTable", "Edit Currency:")}, true);
}

CurrencyEdit::~CurrencyEdit() = default;

void CurrencyEdit::newRecord(Record& row)
{
    for (const char* c :
         {CURRENCY_CALCULATED_UNIT_PRICE_ROUNDING_DECIMALS, CURRENCY_LINE_TOTAL_ROUNDING_DECIMALS,
          CURRENCY_LINE_TOTAL_PRINTING_DECIMALS, CURRENCY_INVOICE_TOTAL_ROUNDING_DECIMALS,
          CURRENCY_INVOICE_TOTAL_PRINTING_DECIMALS})
        row.insert(QString::fromLatin1(c), kNewCurrencyDecimals);
    row.insert(QString::fromLatin1(CURRENCY_BANK_BY_SETUP), QStringLiteral("1"));
}

void CurrencyEdit::showRecord(const Record& row)
{
    Q_UNUSED(row);
    // The forint is the unit of every rate.
    m_ui->m_rate->setReadOnly(id() == store().info().homeId);
    updateRateLabel();
    updateBankFields();
}

void CurrencyEdit::updateRateLabel()
{
    // Without an abbreviation yet the label reads "(1 ennyi HUF)", not with a gap.
    m_ui->m_rate_label->setText(
        FillArgs(m_rateLabel, {m_ui->m_abbreviation->text().trimmed()}).simplified());
}

void CurrencyEdit::updateBankFields()
{
    const bool own = !m_ui->m_bank_by_setup->isChecked();
    for (QWidget* w :
         {static_cast<QWidget*>(m_ui->m_bank_name), static_cast<QWidget*>(m_ui->m_bank_acct_no),
          static_cast<QWidget*>(m_ui->m_bank_swift), static_cast<QWidget*>(m_ui->m_bank_iban)})
        w->setEnabled(own);
}
