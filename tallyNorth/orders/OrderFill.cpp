#include "OrderFill.h"

#include "Columns.h"
#include "base/Interaction.h"
#include "base/SqlStatement.h"
#include "base/SqlValue.h"

#include <cmath>

namespace {

// One row of a master-data table read for its snapshot, its columns by name.
class Row
{
public:
    // Without a key: the first row (SETUP has just one).
    Row(const char* table, const char* key, const QVariantList& keys,
        const char* secondKey = nullptr)
        : m_st(!key ? Sql("select * from %1 limit 1", {table})
               : secondKey
                   ? Sql("select * from %1 where %2 = ? and %3 = ?", {table, key, secondKey})
                   : Sql("select * from %1 where %2 = ?", {table, key}),
               keys)
    {
        m_ok = m_st.exec();
        m_found = m_ok && m_st.next();
    }

    bool ok() const { return m_ok; }
    bool found() const { return m_found; }
    Result failure() const
    {
        return m_st.failure(OrderFill::tr("Unable to load data from database."));
    }
    QVariant value(const char* column) const { return m_st.value(column); }
    QString text(const char* column) const
    {
        const QVariant v = value(column);
        return IsNullValue(v) ? QString() : v.toString();
    }
    std::optional<qint64> id(const char* column) const
    {
        const QVariant v = value(column);
        return IsNullValue(v) ? std::nullopt : std::optional(ToInteger(v));
    }

private:
    SqlStatement m_st;
    bool m_ok = false;
    bool m_found = false;
};

Result Gone()
{
    return Result::failure(
        OrderFill::tr("Unable to load data from database.&Maybe it is deleted by an other user."));
}

struct CountrySnapshot
{
    QString code, name, nameOnMails;
};

Result ReadCountry(std::optional<qint64> id, CountrySnapshot& c)
{
    c = {};
    if (!id)
        return Result::success();
    Row row(Tbl::COUNTRY, Col::COUNTRY_ID, {*id});
    if (!row.ok())
        return row.failure();
    if (row.found()) {
        c.code = row.text(Col::COUNTRY_INTERNATIONAL_CODE);
        c.name = row.text(Col::COUNTRY_NAME);
        c.nameOnMails = row.text(Col::COUNTRY_NAME_ON_MAILS);
    }
    return Result::success();
}

Result SetPartnerCountry(Order& order, std::optional<qint64> id)
{
    CountrySnapshot c;
    if (Result r = ReadCountry(id, c); !r)
        return r;
    order.partnerCountryId = id;
    order.partnerCountryCode = c.code;
    order.partnerCountryName = c.name;
    order.partnerCountryNameOnMails = c.nameOnMails;
    return Result::success();
}

Result SetMailCountry(Order& order, std::optional<qint64> id)
{
    CountrySnapshot c;
    if (Result r = ReadCountry(id, c); !r)
        return r;
    order.mailCountryId = id;
    order.mailCountryCode = c.code;
    order.mailCountryName = c.name;
    order.mailCountryNameOnMails = c.nameOnMails;
    return Result::success();
}

// The translations of the payment method and no-VAT reason in the order's language.
Result Translate(Order& order, QStringList* notes)
{
    order.paymentMethodNameTranslation.clear();
    order.noVatReasonTranslationText.clear();
    if (order.langId == 0)
        return Result::success();
    if (order.paymentMethodId) {
        Row t(Tbl::PAYMENTMETHODTRANSLATION, Col::PAYMENTMETHODTRANSLATION_PAYMENTMETHOD_ID,
              {*order.paymentMethodId, order.langId}, Col::PAYMENTMETHODTRANSLATION_LANG_ID);
        if (!t.ok())
            return t.failure();
        if (t.found())
            order.paymentMethodNameTranslation = t.text(Col::PAYMENTMETHODTRANSLATION_NAME);
        else if (notes)
            *notes << OrderFill::tr("Translation not found for payment method.");
    }
    if (order.noVatReasonId) {
        Row t(Tbl::NOVATREASONTRANSLATION, Col::NOVATREASONTRANSLATION_NOVATREASON_ID,
              {*order.noVatReasonId, order.langId}, Col::NOVATREASONTRANSLATION_LANG_ID);
        if (!t.ok())
            return t.failure();
        if (t.found())
            order.noVatReasonTranslationText = t.text(Col::NOVATREASONTRANSLATION_TEXT);
    }
    return Result::success();
}

Result ReadSetup(std::optional<Row>& setup)
{
    setup.emplace(Tbl::SETUP, nullptr, QVariantList());
    return setup->ok() ? Result::success() : setup->failure();
}

} // namespace

Result OrderFill::newOrder(Order& order, const QDate& today)
{
    order = Order();
    order.dateShipped = today;
    order.dateCreated = today;
    order.type = 0;
    std::optional<Row> setup;
    if (Result r = ReadSetup(setup); !r)
        return r;
    const qint64 currencyId = ToInteger(setup->value(Col::SETUP_INVOICE_CURRENCY_ID));
    order.subject = setup->text(Col::SETUP_INVOICE_DEFAULT_SUBJECT);
    const std::optional<qint64> countryId = setup->id(Col::SETUP_INVOICE_COUNTRY_ID);
    const qint64 langId = ToInteger(setup->value(Col::SETUP_INVOICE_LANG_ID));
    setup.reset();

    if (Result r = currency(order, currencyId); !r) {
        return r.sqlError().isEmpty()
                   ? Result::failure(tr("Default currency not found in database.&The database "
                                        "needs to be repaired."))
                   : r;
    }
    if (Result r = SetPartnerCountry(order, countryId); !r)
        return r;
    if (Result r = SetMailCountry(order, countryId); !r)
        return r;
    return language(order, langId);
}

Result OrderFill::partner(Order& order, qint64 partnerId, QStringList* notes)
{
    std::optional<qint64> countryId, mailCountryId, methodId, currencyId;
    qint64 langId = 0;
    {
        Row p(Tbl::PARTNER, Col::PARTNER_ID, {partnerId});
        if (!p.ok())
            return p.failure();
        if (!p.found())
            return Gone();
        order.partnerId = partnerId;
        order.partnerCode = p.text(Col::PARTNER_CODE);
        order.partnerName = p.text(Col::PARTNER_NAME);
        order.partnerZip = p.text(Col::PARTNER_ZIP);
        order.partnerCity = p.text(Col::PARTNER_CITY);
        order.partnerAddress = p.text(Col::PARTNER_ADDRESS);
        order.partnerTaxNo = p.text(Col::PARTNER_TAX_NO);
        order.partnerEuTaxNo = p.text(Col::PARTNER_EU_TAX_NO);
        order.partnerOtherData = p.text(Col::PARTNER_OTHER_DATA);
        order.mailIsSame = IsFlagSet(p.value(Col::PARTNER_MAIL_IS_SAME));
        countryId = p.id(Col::PARTNER_COUNTRY_ID);
        if (order.mailIsSame) {
            // The printed mailing address is the billing address then, whatever the partner's
            // mailing fields still hold.
            order.mailName = order.partnerName;
            order.mailZip = order.partnerZip;
            order.mailCity = order.partnerCity;
            order.mailAddress = order.partnerAddress;
            mailCountryId = countryId;
        } else {
            order.mailName = p.text(Col::PARTNER_MAIL_NAME);
            order.mailZip = p.text(Col::PARTNER_MAIL_ZIP);
            order.mailCity = p.text(Col::PARTNER_MAIL_CITY);
            order.mailAddress = p.text(Col::PARTNER_MAIL_ADDRESS);
            mailCountryId = p.id(Col::PARTNER_MAIL_COUNTRY_ID);
        }
        langId = ToInteger(p.value(Col::PARTNER_LANG_ID));
        methodId = p.id(Col::PARTNER_PAYMENTMETHOD_ID);
        currencyId = p.id(Col::PARTNER_CURRENCY_ID);
    }
    if (Result r = SetPartnerCountry(order, countryId); !r)
        return r;
    if (Result r = SetMailCountry(order, mailCountryId); !r)
        return r;
    order.langId = langId;
    if (methodId) {
        if (Result r = paymentMethod(order, *methodId, notes); !r)
            return r;
    }
    if (currencyId) {
        if (Result r = currency(order, *currencyId); !r)
            return r;
    }
    return language(order, langId, notes);
}

Result OrderFill::paymentMethod(Order& order, qint64 methodId, QStringList* notes)
{
    {
        Row m(Tbl::PAYMENTMETHOD, Col::PAYMENTMETHOD_ID, {methodId});
        if (!m.ok())
            return m.failure();
        if (!m.found())
            return Gone();
        order.paymentMethodId = methodId;
        order.paymentMethodCode = m.text(Col::PAYMENTMETHOD_CODE);
        order.paymentMethodName = m.text(Col::PAYMENTMETHOD_NAME);
        order.paymentMethodPaid = IsFlagSet(m.value(Col::PAYMENTMETHOD_PAID));
        order.roundTo5 = IsFlagSet(m.value(Col::PAYMENTMETHOD_ROUND_TO_5));
    }
    return Translate(order, notes);
}

Result OrderFill::currency(Order& order, qint64 currencyId)
{
    Row c(Tbl::CURRENCYY, Col::CURRENCY_ID, {currencyId});
    if (!c.ok())
        return c.failure();
    if (!c.found())
        return Gone();
    order.currencyId = currencyId;
    order.currencyAbbreviation = c.text(Col::CURRENCY_ABBREVIATION);
    // A currency without a rate leaves 0, which the checks before saving refuse.
    order.currencyRate = ToNumber(c.value(Col::CURRENCY_RATE));
    order.unitPriceDecimals =
        int(ToInteger(c.value(Col::CURRENCY_CALCULATED_UNIT_PRICE_ROUNDING_DECIMALS)));
    order.lineDecimals = int(ToInteger(c.value(Col::CURRENCY_LINE_TOTAL_ROUNDING_DECIMALS)));
    order.linePrintingDecimals =
        int(ToInteger(c.value(Col::CURRENCY_LINE_TOTAL_PRINTING_DECIMALS)));
    order.invoiceDecimals = int(ToInteger(c.value(Col::CURRENCY_INVOICE_TOTAL_ROUNDING_DECIMALS)));
    order.invoicePrintingDecimals =
        int(ToInteger(c.value(Col::CURRENCY_INVOICE_TOTAL_PRINTING_DECIMALS)));
    if (!IsFlagSet(c.value(Col::CURRENCY_BANK_BY_SETUP))) {
        order.bankName = c.text(Col::CURRENCY_BANK_NAME);
        order.bankAcctNo = c.text(Col::CURRENCY_BANK_ACCT_NO);
        order.bankIban = c.text(Col::CURRENCY_BANK_IBAN);
        order.bankSwift = c.text(Col::CURRENCY_BANK_SWIFT);
        return Result::success();
    }
    std::optional<Row> setup;
    if (Result r = ReadSetup(setup); !r)
        return r;
    order.bankName = setup->text(Col::SETUP_BANK_NAME);
    order.bankAcctNo = setup->text(Col::SETUP_BANK_ACCT_NO);
    order.bankIban = setup->text(Col::SETUP_BANK_IBAN);
    order.bankSwift = setup->text(Col::SETUP_BANK_SWIFT);
    return Result::success();
}

Result OrderFill::noVatReason(Order& order, std::optional<qint64> reasonId)
{
    order.noVatReasonId.reset();
    order.noVatReasonCode.clear();
    order.noVatReasonText.clear();
    order.noVatReasonTranslationText.clear();
    if (!reasonId)
        return Result::success();
    {
        Row n(Tbl::NOVATREASON, Col::NOVATREASON_ID, {*reasonId});
        if (!n.ok())
            return n.failure();
        if (!n.found())
            return Gone();
        order.noVatReasonId = reasonId;
        order.noVatReasonCode = n.text(Col::NOVATREASON_CODE);
        order.noVatReasonText = n.text(Col::NOVATREASON_TEXT);
    }
    return Translate(order, nullptr);
}

Result OrderFill::language(Order& order, qint64 langId, QStringList* notes)
{
    order.langId = langId;
    order.langCode.clear();
    if (langId != 0) {
        Row l(Tbl::LANG, Col::LANG_ID, {langId});
        if (!l.ok())
            return l.failure();
        if (!l.found())
            return Gone();
        order.langCode = l.text(Col::LANG_CODE);
    }
    return Translate(order, notes);
}

int OrderFill::dueDays(std::optional<qint64> partnerDays, std::optional<qint64> methodDays)
{
    // The partner's own agreement is the more specific one: it wins over the method's default.
    if (partnerDays && *partnerDays > 0)
        return int(*partnerDays);
    if (methodDays && *methodDays > 0)
        return int(*methodDays);
    return 0;
}

Result OrderFill::defaultDueDate(const Order& order, QDate& due, const QDate& today)
{
    std::optional<qint64> partnerDays, methodDays;
    if (order.partnerId) {
        Row p(Tbl::PARTNER, Col::PARTNER_ID, {*order.partnerId});
        if (!p.ok())
            return p.failure();
        if (p.found())
            partnerDays = p.id(Col::PARTNER_PAYMENT_DUE_DAYS);
    }
    if (order.paymentMethodId) {
        Row m(Tbl::PAYMENTMETHOD, Col::PAYMENTMETHOD_ID, {*order.paymentMethodId});
        if (!m.ok())
            return m.failure();
        if (m.found())
            methodDays = m.id(Col::PAYMENTMETHOD_DUE_DAYS);
    }
    const QDate from = order.dateCreated.isValid() ? order.dateCreated : today;
    due = from.addDays(dueDays(partnerDays, methodDays));
    return Result::success();
}

Result OrderFill::product(OrderItem& item, const Order& order, qint64 productId)
{
    std::optional<qint64> vatId;
    QVariant productPrice;
    {
        Row p(Tbl::PRODUCT, Col::PRODUCT_ID, {productId});
        if (!p.ok() || !p.found())
            return Result::failure(tr("Error in loading product from database."),
                                   p.ok() ? QString() : p.failure().sqlError());
        item.productId = productId;
        item.productCode = p.text(Col::PRODUCT_CODE);
        item.name = p.text(Col::PRODUCT_NAME);
        item.comment = p.text(Col::PRODUCT_COMMENT);
        item.statNo = p.text(Col::PRODUCT_STAT_NO);
        item.unit = p.text(Col::PRODUCT_UNIT);
        vatId = p.id(Col::PRODUCT_VAT_ID);
        productPrice = p.value(Col::PRODUCT_PRICE);
    }
    item.nameTranslation.clear();
    item.commentTranslation.clear();
    item.unitTranslation.clear();
    if (order.langId != 0) {
        Row t(Tbl::PRODUCTTRANSLATION, Col::PRODUCTTRANSLATION_PRODUCT_ID,
              {productId, order.langId}, Col::PRODUCTTRANSLATION_LANG_ID);
        if (!t.ok())
            return t.failure();
        if (t.found()) {
            item.nameTranslation = t.text(Col::PRODUCTTRANSLATION_NAME);
            item.commentTranslation = t.text(Col::PRODUCTTRANSLATION_COMMENT);
            item.unitTranslation = t.text(Col::PRODUCTTRANSLATION_UNIT);
        }
    }
    if (Result r = vat(item, vatId); !r)
        return r;

    // The price in the order's currency as it stands; else the forint price converted.
    Row price(Tbl::PRODUCTPRICE, Col::PRODUCTPRICE_PRODUCT_ID,
              {productId, order.currencyId.value_or(0)}, Col::PRODUCTPRICE_CURRENCY_ID);
    if (!price.ok())
        return price.failure();
    if (price.found() && !IsNullValue(price.value(Col::PRODUCTPRICE_PRICE)))
        item.listPrice = ToNumber(price.value(Col::PRODUCTPRICE_PRICE));
    else if (IsNullValue(productPrice) || order.currencyRate <= 0.0)
        item.listPrice = 0.0;
    else
        item.listPrice =
            RoundDecimals(ToNumber(productPrice) / order.currencyRate, order.unitPriceDecimals);

    // The partner's discount, else the settings' default type without a percent.
    item.discountType.reset();
    item.discountPercent = 0.0;
    if (order.partnerId) {
        Row p(Tbl::PARTNER, Col::PARTNER_ID, {*order.partnerId});
        if (!p.ok())
            return p.failure();
        if (p.found() && !IsNullValue(p.value(Col::PARTNER_DISCOUNT_TYPE))) {
            item.discountType = int(ToInteger(p.value(Col::PARTNER_DISCOUNT_TYPE)));
            item.discountPercent = ToNumber(p.value(Col::PARTNER_DISCOUNT_PERCENT));
        }
    }
    if (!item.discountType) {
        std::optional<Row> setup;
        if (Result r = ReadSetup(setup); !r)
            return r;
        item.discountType = int(ToInteger(setup->value(Col::SETUP_INVOICE_DEFAULT_DISCOUNT_TYPE)));
    }
    // A special price starts from the list price; the user changes it afterwards.
    if (item.discountType == int(DiscountType::EnteredPrice))
        item.price = item.listPrice;
    if (!item.dateShipped.isValid())
        item.dateShipped = order.dateShipped;
    recalcItem(item, order);
    return Result::success();
}

Result OrderFill::vat(OrderItem& item, std::optional<qint64> vatId)
{
    item.vatId.reset();
    item.vatCode.clear();
    item.vatName.clear();
    item.vatPercent = 0.0;
    if (!vatId)
        return Result::success();
    Row v(Tbl::VAT, Col::VAT_ID, {*vatId});
    if (!v.ok())
        return v.failure();
    if (!v.found())
        return Gone();
    item.vatId = vatId;
    item.vatCode = v.text(Col::VAT_CODE);
    item.vatName = v.text(Col::VAT_NAME);
    item.vatPercent = ToNumber(v.value(Col::VAT_PERCENT));
    return Result::success();
}

void OrderFill::recalcItem(OrderItem& item, const Order& order)
{
    if (const std::optional<double> price = CalcDiscountedPrice(
            item.listPrice, item.discountPercent,
            item.discountType.value_or(int(DiscountType::NoDiscount)), order.unitPriceDecimals))
        item.price = *price;
    item.totals = CalcLineTotals(item.price, item.qty, item.vatPercent, order.lineDecimals);
}

void OrderFill::recalcTotals(Order& order)
{
    QList<LineTotals> lines;
    lines.reserve(order.items.size());
    for (const OrderItem& item : std::as_const(order.items))
        lines << item.totals;
    order.totals = CalcOrderTotals(lines, order.roundTo5, order.noVat, order.invoiceDecimals);
}

namespace {

// Amounts from here on no longer fit the columns' precision of whole money.
constexpr double kLargestAmount = 1e12;

} // namespace

Result OrderFill::checkItem(const OrderItem& item)
{
    if (item.name.trimmed().isEmpty())
        return Result::failure(tr("Order item name field must have a value."));
    // Returns have negative quantities; nothing is sold in a quantity of 0.
    if (item.qty == 0.0 || !std::isfinite(item.qty))
        return Result::failure(tr("Quantity field must have a value."));
    // A price of 0 must be entered on purpose, as a special price.
    if (!std::isfinite(item.price) ||
        (item.price == 0.0 && item.discountType != int(DiscountType::EnteredPrice)))
        return Result::failure(tr("Price field must have a value."));
    if (!item.dateShipped.isValid())
        return Result::failure(tr("Date Shipped field must have a value."));
    if (std::abs(item.price) >= kLargestAmount || std::abs(item.qty) >= kLargestAmount ||
        std::abs(item.totals.gross) >= kLargestAmount)
        return Result::failure(tr("The amount of the order item is too large."));
    return Result::success();
}

Result OrderFill::checkOrder(Order& order, Interaction& interaction, const QDate& today)
{
    const auto empty = [](const QString& s) { return s.trimmed().isEmpty(); };
    if (empty(order.partnerName))
        return Result::failure(tr("Partner Name field is required."));
    if (empty(order.partnerCity))
        return Result::failure(tr("Partner City field is required."));
    if (empty(order.partnerAddress))
        return Result::failure(tr("Partner Address field is required."));
    if (!order.mailIsSame) {
        if (empty(order.mailName))
            return Result::failure(tr("A partner levelezesi cimehez tartozo nevet meg kell adni."));
        if (empty(order.mailCity))
            return Result::failure(
                tr("A partner levelezesi cimehez tartozo telepulest meg kell adni."));
        if (empty(order.mailAddress))
            return Result::failure(tr("A partner levelezesi cimehez tartozo cimet meg kell adni."));
    }
    if (!order.paymentMethodId)
        return Result::failure(tr("Payment Method field is required."));
    if (!order.currencyId)
        return Result::failure(tr("Currency field is required."));
    if (!(order.currencyRate > 0.0) || !std::isfinite(order.currencyRate))
        return Result::failure(tr("Currency Rate field is required."));
    if (!order.dateShipped.isValid())
        return Result::failure(tr("Date Shipped field must have a value."));
    for (const OrderItem& item : std::as_const(order.items)) {
        if (Result r = checkItem(item); !r)
            return r;
    }
    if (!order.datePaymentDue.isValid()) {
        if (Result r = defaultDueDate(order, order.datePaymentDue, today); !r)
            return r;
    }
    // The statutory limit for invoicing after delivery; fixed by law, not a setting.
    if (!order.consolidated && order.dateShipped < today.addDays(-15) &&
        !interaction.askYesNo(
            tr("A teljesítés 15 napnál régebbi.&Előfordulhat, hogy ez nem felel meg az ÁFA törvény "
               "(2007. évi CXXVII. tv. 163. §) előírásainak.&&Biztos benne, hogy folytatja?")))
        return Result::failure(QString());
    if (order.datePaymentDue < today &&
        !interaction.askYesNo(tr("The payment due is in the past.\nDo you want to continue?")))
        return Result::failure(QString());
    return Result::success();
}
