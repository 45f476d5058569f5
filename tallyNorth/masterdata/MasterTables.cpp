#include "MasterTables.h"

#include "Columns.h"
#include "base/FoldName.h"
#include "base/Setup.h"
#include "base/SqlStatement.h"
#include "base/SqlValue.h"

#include <QtGlobal>

#include <algorithm>

using namespace Col;

namespace {

const char* const kTranslationError =
    QT_TRANSLATE_NOOP("TableStore", "Unable to save translation data.");

} // namespace

void CapRoundingDecimals(Record& currency)
{
    const std::pair<const char*, const char*> pairs[] = {
        {CURRENCY_LINE_TOTAL_ROUNDING_DECIMALS, CURRENCY_LINE_TOTAL_PRINTING_DECIMALS},
        {CURRENCY_INVOICE_TOTAL_ROUNDING_DECIMALS, CURRENCY_INVOICE_TOTAL_PRINTING_DECIMALS},
    };
    for (const auto& [rounding, printing] : pairs) {
        const QVariant print = currency.value(ColumnName(printing));
        if (IsNullValue(print))
            continue;
        const qint64 round = ToInteger(currency.value(ColumnName(rounding)), ToInteger(print));
        currency.insert(ColumnName(rounding), std::min(round, ToInteger(print)));
    }
}

void UpperCaseCode(Record& lang)
{
    const QVariant code = lang.value(ColumnName(LANG_CODE));
    if (!IsNullValue(code))
        lang.insert(ColumnName(LANG_CODE), code.toString().trimmed().toUpper());
}

Result MatchPartners(const QString& text, QList<qint64>& ids)
{
    const QString folded = FoldName(text.trimmed());
    for (const bool exact : {true, false}) {
        SqlStatement st(
            QStringLiteral("select %1 from %2 where %3 %4 limit 2")
                .arg(QLatin1StringView(PARTNER_ID), QLatin1StringView(Tbl::PARTNER),
                     QLatin1StringView(PARTNER_NAME_ASCII),
                     exact ? QLatin1String("= ?") : QLatin1String("like ? escape '\\'")),
            {exact ? folded
                   : QString(folded)
                             .replace(u'\\', QLatin1String("\\\\"))
                             .replace(u'%', QLatin1String("\\%"))
                             .replace(u'_', QLatin1String("\\_")) +
                         u'%'});
        if (!st.exec())
            return st.failure(QString());
        ids.clear();
        while (st.next())
            ids << ToInteger(st.value(PARTNER_ID));
        if (!ids.isEmpty())
            return Result::success();
    }
    return Result::success();
}

int ListRecordLimit()
{
    // A list of every partner would take long to read and show on a large database.
    constexpr int kDefaultRecordLimit = 1000;
    const qint64 limit = Setup::current().integer(SETUP_RECORD_LIMIT);
    return limit > 0 ? static_cast<int>(limit) : kDefaultRecordLimit;
}

const QList<std::pair<const char*, const char*>>& MailAddressColumns()
{
    static const QList<std::pair<const char*, const char*>> pairs = {
        {PARTNER_NAME, PARTNER_MAIL_NAME},
        {PARTNER_ZIP, PARTNER_MAIL_ZIP},
        {PARTNER_CITY, PARTNER_MAIL_CITY},
        {PARTNER_ADDRESS, PARTNER_MAIL_ADDRESS},
        {PARTNER_COUNTRY_ID, PARTNER_MAIL_COUNTRY_ID},
    };
    return pairs;
}

void CopyMailAddress(Record& partner)
{
    if (!IsFlagSet(partner.value(ColumnName(PARTNER_MAIL_IS_SAME))))
        return;
    for (const auto& [billing, mail] : MailAddressColumns())
        partner.insert(ColumnName(mail), partner.value(ColumnName(billing)));
}

Record NewPartnerDefaults()
{
    const Setup& setup = Setup::current();
    return {
        {ColumnName(PARTNER_MAIL_IS_SAME), FlagText(true)},
        {ColumnName(PARTNER_COUNTRY_ID), setup.integer(SETUP_INVOICE_COUNTRY_ID)},
        {ColumnName(PARTNER_MAIL_COUNTRY_ID), setup.integer(SETUP_INVOICE_COUNTRY_ID)},
        {ColumnName(PARTNER_LANG_ID), setup.integer(SETUP_INVOICE_LANG_ID)},
        {ColumnName(PARTNER_CURRENCY_ID), setup.integer(SETUP_INVOICE_CURRENCY_ID)},
        {ColumnName(PARTNER_DISCOUNT_TYPE), setup.integer(SETUP_INVOICE_DEFAULT_DISCOUNT_TYPE)},
    };
}

Result CountryDefaults(qint64 countryId, Record& partner)
{
    partner.clear();
    Record country;
    if (Result r = CountryStore().read(countryId, country); !r)
        return r;
    partner.insert(ColumnName(PARTNER_LANG_ID), country.value(ColumnName(COUNTRY_LANG_ID)));
    if (!IsNullValue(country.value(ColumnName(COUNTRY_CURRENCY_ID))))
        partner.insert(ColumnName(PARTNER_CURRENCY_ID),
                       country.value(ColumnName(COUNTRY_CURRENCY_ID)));
    return Result::success();
}

const TableStore& VatStore()
{
    static const TableStore store({
        .context = "VatTable",
        .table = Tbl::VAT,
        .idColumn = VAT_ID,
        .columns = {VAT_CODE, VAT_NAME, VAT_PERCENT},
        .nameColumn = VAT_NAME,
        .orderBy = QStringLiteral("VAT_PERCENT, VAT_ID"),
        .required = {{VAT_NAME, QT_TRANSLATE_NOOP("VatTable", "VAT Name field must have a value.")},
                     {VAT_PERCENT,
                      QT_TRANSLATE_NOOP("VatTable", "Percent field must have a value.")}},
        .codeColumns = {VAT_CODE},
        .usedBy =
            {
                {Tbl::PRODUCT, PRODUCT_VAT_ID,
                 QT_TRANSLATE_N_NOOP("VatTable", "This VAT key is used by %n product(s).")},
                {Tbl::ORDERITEM, ORDERITEM_VAT_ID,
                 QT_TRANSLATE_N_NOOP("VatTable", "This VAT key is used by %n order item(s).")},
            },
    });
    return store;
}

const TableStore& CurrencyStore()
{
    static const TableStore store({
        .context = "CurrencyTable",
        .table = Tbl::CURRENCYY,
        .idColumn = CURRENCY_ID,
        .columns = {CURRENCY_NAME, CURRENCY_ABBREVIATION, CURRENCY_RATE,
                    CURRENCY_CALCULATED_UNIT_PRICE_ROUNDING_DECIMALS,
                    CURRENCY_LINE_TOTAL_ROUNDING_DECIMALS, CURRENCY_LINE_TOTAL_PRINTING_DECIMALS,
                    CURRENCY_INVOICE_TOTAL_ROUNDING_DECIMALS,
                    CURRENCY_INVOICE_TOTAL_PRINTING_DECIMALS, CURRENCY_BANK_BY_SETUP,
                    CURRENCY_BANK_NAME, CURRENCY_BANK_ACCT_NO, CURRENCY_BANK_IBAN,
                    CURRENCY_BANK_SWIFT},
        .nameColumn = CURRENCY_NAME,
        .orderBy = QString::fromLatin1(CURRENCY_ID),
        .required = {{CURRENCY_NAME,
                      QT_TRANSLATE_NOOP("CurrencyTable", "Currency Name field must have a value.")},
                     {CURRENCY_ABBREVIATION,
                      QT_TRANSLATE_NOOP("CurrencyTable", "Abbreviation field must have a value.")},
                     {CURRENCY_RATE, QT_TRANSLATE_NOOP("CurrencyTable",
                                                       "Exchange Rate field must have a value.")}},
        .homeId = 0,
        .homeMessage = QT_TRANSLATE_NOOP("CurrencyTable", "This currency can not be deleted."),
        .usedBy =
            {
                {Tbl::PARTNER, PARTNER_CURRENCY_ID,
                 QT_TRANSLATE_N_NOOP("CurrencyTable", "This currency is used by %n partner(s).")},
                {Tbl::COUNTRY, COUNTRY_CURRENCY_ID,
                 QT_TRANSLATE_N_NOOP("CurrencyTable", "This currency is used by %n country(s).")},
                {Tbl::PRODUCTPRICE, PRODUCTPRICE_CURRENCY_ID,
                 QT_TRANSLATE_N_NOOP("CurrencyTable",
                                     "This currency is used by %n product price(s).")},
                {Tbl::ORDERHEAD, ORDERHEAD_CURRENCY_ID,
                 QT_TRANSLATE_N_NOOP("CurrencyTable", "This currency is used by %n order(s).")},
                {Tbl::SETUP, SETUP_INVOICE_CURRENCY_ID,
                 QT_TRANSLATE_N_NOOP("CurrencyTable",
                                     "This currency is the default of the settings.")},
            },
        .uniqueColumns = {CURRENCY_ABBREVIATION},
        .prepare = CapRoundingDecimals,
    });
    return store;
}

const TableStore& PaymentMethodStore()
{
    static const TableStore store({
        .context = "PaymentMethodTable",
        .table = Tbl::PAYMENTMETHOD,
        .idColumn = PAYMENTMETHOD_ID,
        .columns = {PAYMENTMETHOD_CODE, PAYMENTMETHOD_PAID, PAYMENTMETHOD_CHEQUE,
                    PAYMENTMETHOD_DUE_DAYS, PAYMENTMETHOD_NAME, PAYMENTMETHOD_COMMENT_TEXT,
                    PAYMENTMETHOD_ROUND_TO_5},
        .nameColumn = PAYMENTMETHOD_NAME,
        .orderBy = QStringLiteral("PAYMENTMETHOD_NAME, PAYMENTMETHOD_ID"),
        .foldedOrder = true,
        .required = {{PAYMENTMETHOD_NAME,
                      QT_TRANSLATE_NOOP("PaymentMethodTable", "Name field must have a value.")}},
        .codeColumns = {PAYMENTMETHOD_CODE},
        .children = {{Tbl::PAYMENTMETHODTRANSLATION,
                      PAYMENTMETHODTRANSLATION_PAYMENTMETHOD_ID,
                      PAYMENTMETHODTRANSLATION_LANG_ID,
                      {PAYMENTMETHODTRANSLATION_NAME, PAYMENTMETHODTRANSLATION_COMMENT},
                      kTranslationError}},
        .usedBy =
            {
                {Tbl::PARTNER, PARTNER_PAYMENTMETHOD_ID,
                 QT_TRANSLATE_N_NOOP("PaymentMethodTable",
                                     "This payment method is used by %n partner(s).")},
                {Tbl::ORDERHEAD, ORDERHEAD_PAYMENTMETHOD_ID,
                 QT_TRANSLATE_N_NOOP("PaymentMethodTable",
                                     "This payment method is used by %n order(s).")},
            },
    });
    return store;
}

const TableStore& NoVatReasonStore()
{
    static const TableStore store({
        .context = "NoVatReasonTable",
        .table = Tbl::NOVATREASON,
        .idColumn = NOVATREASON_ID,
        .columns = {NOVATREASON_CODE, NOVATREASON_NAME, NOVATREASON_TEXT},
        .nameColumn = NOVATREASON_NAME,
        .orderBy = QStringLiteral("NOVATREASON_NAME, NOVATREASON_ID"),
        .foldedOrder = true,
        .required = {{NOVATREASON_NAME,
                      QT_TRANSLATE_NOOP("NoVatReasonTable", "Name field must have a value.")}},
        .codeColumns = {NOVATREASON_CODE},
        .children = {{Tbl::NOVATREASONTRANSLATION,
                      NOVATREASONTRANSLATION_NOVATREASON_ID,
                      NOVATREASONTRANSLATION_LANG_ID,
                      {NOVATREASONTRANSLATION_TEXT},
                      kTranslationError}},
        .usedBy =
            {
                {Tbl::ORDERHEAD, ORDERHEAD_NOVATREASON_ID,
                 QT_TRANSLATE_N_NOOP("NoVatReasonTable",
                                     "This no-VAT reason is used by %n order(s).")},
            },
    });
    return store;
}

const TableStore& StatNoStore()
{
    static const TableStore store({
        .context = "StatNoTable",
        .table = Tbl::STATNO,
        .idColumn = STATNO_ID,
        .columns = {STATNO_STAT_NO, STATNO_NAME},
        .nameColumn = STATNO_NAME,
        .orderBy = QStringLiteral("STATNO_STAT_NO, STATNO_ID"),
        .required = {{STATNO_STAT_NO,
                      QT_TRANSLATE_NOOP("StatNoTable", "Stat No field must have a value.")},
                     {STATNO_NAME,
                      QT_TRANSLATE_NOOP("StatNoTable", "Name field must have a value.")}},
        .usedBy =
            {
                {Tbl::PRODUCT, PRODUCT_STAT_NO,
                 QT_TRANSLATE_N_NOOP("StatNoTable", "This stat number is used by %n product(s)."),
                 STATNO_STAT_NO},
            },
    });
    return store;
}

const TableStore& LangStore()
{
    static const TableStore store({
        .context = "LangTable",
        .table = Tbl::LANG,
        .idColumn = LANG_ID,
        .columns = {LANG_CODE, LANG_NAME},
        .nameColumn = LANG_NAME,
        .orderBy = QString::fromLatin1(LANG_ID),
        .required = {{LANG_CODE, QT_TRANSLATE_NOOP("LangTable", "Code field must have a value.")},
                     {LANG_NAME, QT_TRANSLATE_NOOP("LangTable", "Name field must have a value.")}},
        .usedBy =
            {
                {Tbl::PARTNER, PARTNER_LANG_ID,
                 QT_TRANSLATE_N_NOOP("LangTable", "This language is used by %n partner(s).")},
                {Tbl::COUNTRY, COUNTRY_LANG_ID,
                 QT_TRANSLATE_N_NOOP("LangTable", "This language is used by %n country(s).")},
                {Tbl::ORDERHEAD, ORDERHEAD_PARTNER_LANG_ID,
                 QT_TRANSLATE_N_NOOP("LangTable", "This language is used by %n order(s).")},
                {Tbl::PRODUCTTRANSLATION, PRODUCTTRANSLATION_LANG_ID,
                 QT_TRANSLATE_N_NOOP("LangTable",
                                     "This language is used by %n product translation(s).")},
                {Tbl::PAYMENTMETHODTRANSLATION, PAYMENTMETHODTRANSLATION_LANG_ID,
                 QT_TRANSLATE_N_NOOP("LangTable",
                                     "This language is used by %n payment method translation(s).")},
                {Tbl::NOVATREASONTRANSLATION, NOVATREASONTRANSLATION_LANG_ID,
                 QT_TRANSLATE_N_NOOP("LangTable",
                                     "This language is used by %n no-VAT reason translation(s).")},
                {Tbl::ORDERLABELTRANSLATION, ORDERLABELTRANSLATION_LANG_ID,
                 QT_TRANSLATE_N_NOOP("LangTable", "This language is used by %n invoice label(s).")},
                {Tbl::SETUP, SETUP_INVOICE_LANG_ID,
                 QT_TRANSLATE_N_NOOP("LangTable", "This language is the default of the settings.")},
            },
        .uniqueColumns = {LANG_CODE},
        .prepare = UpperCaseCode,
    });
    return store;
}

const TableStore& CountryStore()
{
    static const TableStore store({
        .context = "CountryTable",
        .table = Tbl::COUNTRY,
        .idColumn = COUNTRY_ID,
        .columns = {COUNTRY_INTERNATIONAL_CODE, COUNTRY_NAME, COUNTRY_NAME_ON_MAILS,
                    COUNTRY_LANG_ID, COUNTRY_CURRENCY_ID},
        .nameColumn = COUNTRY_NAME,
        .orderBy = QStringLiteral("COUNTRY_ID <> 0, COUNTRY_NAME, COUNTRY_ID"),
        .foldedOrder = true,
        .required = {{COUNTRY_NAME,
                      QT_TRANSLATE_NOOP("CountryTable", "Country Name field must have a value.")},
                     {COUNTRY_INTERNATIONAL_CODE,
                      QT_TRANSLATE_NOOP("CountryTable",
                                        "International Country Code field must have a value.")}},
        .homeId = 0,
        .homeMessage = QT_TRANSLATE_NOOP("CountryTable", "This country can not be deleted."),
        .usedBy =
            {
                {Tbl::PARTNER, PARTNER_COUNTRY_ID,
                 QT_TRANSLATE_N_NOOP("CountryTable", "This country is used by %n partner(s).")},
                {Tbl::PARTNER, PARTNER_MAIL_COUNTRY_ID,
                 QT_TRANSLATE_N_NOOP("CountryTable",
                                     "This country is the mailing country of %n partner(s).")},
                {Tbl::ORDERHEAD, ORDERHEAD_PARTNER_COUNTRY_ID,
                 QT_TRANSLATE_N_NOOP("CountryTable", "This country is used by %n order(s).")},
                {Tbl::SETUP, SETUP_INVOICE_COUNTRY_ID,
                 QT_TRANSLATE_N_NOOP("CountryTable",
                                     "This country is the default of the settings.")},
            },
        .uniqueColumns = {COUNTRY_INTERNATIONAL_CODE},
    });
    return store;
}

const TableStore& PartnerStore()
{
    static const TableStore store({
        .context = "PartnerTable",
        .table = Tbl::PARTNER,
        .idColumn = PARTNER_ID,
        .columns = {PARTNER_CODE,
                    PARTNER_NAME,
                    PARTNER_NAME_ASCII,
                    PARTNER_ZIP,
                    PARTNER_CITY,
                    PARTNER_ADDRESS,
                    PARTNER_OTHER_DATA,
                    PARTNER_TAX_NO,
                    PARTNER_EU_TAX_NO,
                    PARTNER_COUNTRY_ID,
                    PARTNER_LANG_ID,
                    PARTNER_PAYMENTMETHOD_ID,
                    PARTNER_PAYMENT_DUE_DAYS,
                    PARTNER_DISCOUNT_TYPE,
                    PARTNER_DISCOUNT_PERCENT,
                    PARTNER_CURRENCY_ID,
                    PARTNER_MAIL_IS_SAME,
                    PARTNER_MAIL_NAME,
                    PARTNER_MAIL_ZIP,
                    PARTNER_MAIL_CITY,
                    PARTNER_MAIL_ADDRESS,
                    PARTNER_MAIL_COUNTRY_ID,
                    PARTNER_COMMENT,
                    PARTNER_CONTACT_NAME,
                    PARTNER_CONTACT_PHONE,
                    PARTNER_CONTACT_MOBILE_PHONE,
                    PARTNER_CONTACT_EMAIL,
                    PARTNER_CONTACT_COMMENT},
        .nameColumn = PARTNER_NAME,
        .orderBy = QStringLiteral("PARTNER_NAME_ASCII, PARTNER_ID"),
        .required = {{PARTNER_NAME,
                      QT_TRANSLATE_NOOP("PartnerTable", "Partner Name field must have a value.")},
                     {PARTNER_MAIL_NAME,
                      QT_TRANSLATE_NOOP(
                          "PartnerTable",
                          "A partner levelezesi cimehez tartozo nevet meg kell adni.")}},
        .codeColumns = {PARTNER_CODE},
        .foldColumn = PARTNER_NAME_ASCII,
        .prepare = CopyMailAddress,
    });
    return store;
}

const TableStore& ProductStore()
{
    static const TableStore store({
        .context = "ProductTable",
        .table = Tbl::PRODUCT,
        .idColumn = PRODUCT_ID,
        .columns = {PRODUCT_CODE, PRODUCT_NAME, PRODUCT_NAME_ASCII, PRODUCT_COMMENT,
                    PRODUCT_STAT_NO, PRODUCT_UNIT, PRODUCT_VAT_ID, PRODUCT_PRICE},
        .nameColumn = PRODUCT_NAME,
        .orderBy = QStringLiteral("PRODUCT_NAME_ASCII, PRODUCT_ID"),
        .required = {{PRODUCT_NAME,
                      QT_TRANSLATE_NOOP("ProductTable", "Product Name field must have a value.")}},
        .codeColumns = {PRODUCT_CODE},
        .foldColumn = PRODUCT_NAME_ASCII,
        .children = {{Tbl::PRODUCTTRANSLATION,
                      PRODUCTTRANSLATION_PRODUCT_ID,
                      PRODUCTTRANSLATION_LANG_ID,
                      {PRODUCTTRANSLATION_NAME, PRODUCTTRANSLATION_COMMENT,
                       PRODUCTTRANSLATION_UNIT},
                      kTranslationError},
                     {Tbl::PRODUCTPRICE,
                      PRODUCTPRICE_PRODUCT_ID,
                      PRODUCTPRICE_CURRENCY_ID,
                      {PRODUCTPRICE_PRICE},
                      QT_TRANSLATE_NOOP("TableStore", "Unable to save currency data.")}},
        .removeError = QT_TRANSLATE_NOOP("ProductTable", "Error in deleting product."),
    });
    return store;
}
