#include "PartnerEdit.h"

#include "FieldBinding.h"
#include "MasterBrowses.h"
#include "ui_PartnerEditLayout.h"

#include "Columns.h"
#include "masterdata/DiscountType.h"
#include "masterdata/MasterTables.h"
#include "masterdata/TaxNumber.h"

using namespace Col;

PartnerEdit::PartnerEdit(std::optional<qint64> id, QWidget* parent)
    : RecordEditDlg(PartnerStore(), id, parent), m_ui(std::make_unique<Ui::PartnerEditLayout>())
{
    m_ui->setupUi(this);
    FillMasterCombo(m_ui->m_paymentmethod_id, MasterTable::PaymentMethod, true);
    FillMasterCombo(m_ui->m_country_id, MasterTable::Country, true);
    FillMasterCombo(m_ui->m_mail_country_id, MasterTable::Country, true);
    FillMasterCombo(m_ui->m_lang_id, MasterTable::Lang, true);
    FillMasterCombo(m_ui->m_currency_id, MasterTable::Currency, false);
    LinkChooser(m_ui->m_countries, m_ui->m_country_id, MasterTable::Country, true);
    LinkChooser(m_ui->m_languages, m_ui->m_lang_id, MasterTable::Lang, true);
    LinkChooser(m_ui->m_currencies, m_ui->m_currency_id, MasterTable::Currency, false);
    // The countries button refills the billing country only; the mailing list follows it.
    connect(m_ui->m_countries, &QPushButton::clicked, this, [this] {
        FillMasterCombo(m_ui->m_mail_country_id, MasterTable::Country, true);
        mirrorMailAddress();
    });
    m_ui->m_discount_type->addItem(QCoreApplication::translate("DiscountType", "No discount"),
                                   static_cast<int>(DiscountType::NoDiscount));
    m_ui->m_discount_type->addItem(
        QCoreApplication::translate("DiscountType", "Percent from List Price"),
        static_cast<int>(DiscountType::PercentFromListPrice));
    m_ui->m_discount_type->addItem(QCoreApplication::translate("DiscountType", "Special Price"),
                                   static_cast<int>(DiscountType::EnteredPrice));
    m_ui->m_payment_due_days->setWholeNumbers(true);

    connect(m_ui->m_mail_is_same, &QCheckBox::toggled, this, &PartnerEdit::mirrorMailAddress);
    for (QLineEdit* billing : {m_ui->m_name, m_ui->m_zip, m_ui->m_city, m_ui->m_address})
        connect(billing, &QLineEdit::textChanged, this, &PartnerEdit::mirrorMailAddress);
    connect(m_ui->m_country_id, &QComboBox::currentIndexChanged, this,
            &PartnerEdit::mirrorMailAddress);
    connect(m_ui->m_country_id, &QComboBox::activated, this, &PartnerEdit::takeCountryDefaults);
    bindFields({"PartnerTable", QT_TRANSLATE_NOOP("PartnerTable", "Add Partner")},
               {"PartnerTable", QT_TRANSLATE_NOOP("PartnerTable", "Partner szerkesztese:")}, true);
}

PartnerEdit::~PartnerEdit() = default;

void PartnerEdit::newRecord(Record& row)
{
    const Record defaults = NewPartnerDefaults();
    for (auto it = defaults.begin(); it != defaults.end(); ++it)
        row.insert(it.key(), it.value());
}

void PartnerEdit::showRecord(const Record& row)
{
    Q_UNUSED(row);
    mirrorMailAddress();
}

void PartnerEdit::accept()
{
    const std::optional<qint64> country = RowId(m_ui->m_country_id->currentData());
    const bool home = !country || *country == 0;
    const QString taxNo = m_ui->m_tax_no->text();
    const QString wrong = PartnerTaxNoMessage(taxNo, m_ui->m_eu_tax_no->text(), home);
    if (!wrong.isEmpty()) {
        interaction().exclamation(wrong);
        const bool taxNoWrong = home && !HungarianTaxNoMessage(taxNo).isEmpty();
        RevealField(taxNoWrong ? m_ui->m_tax_no : m_ui->m_eu_tax_no);
        return;
    }
    RecordEditDlg::accept();
}

void PartnerEdit::mirrorMailAddress()
{
    const bool same = m_ui->m_mail_is_same->isChecked();
    for (const auto& [billing, mail] : MailAddressColumns()) {
        QWidget* mailField = FindField(this, mail);
        mailField->setEnabled(!same);
        if (same)
            SetFieldValue(mailField, FieldValue(FindField(this, billing)));
    }
}

void PartnerEdit::takeCountryDefaults()
{
    const std::optional<qint64> country = RowId(m_ui->m_country_id->currentData());
    Record defaults;
    if (!country || !CountryDefaults(*country, defaults))
        return;
    for (auto it = defaults.begin(); it != defaults.end(); ++it)
        SetFieldValue(FindField(this, it.key().toLatin1().constData()), it.value());
}
