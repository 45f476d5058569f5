#include "InvoiceData.h"

#include "Columns.h"
#include "base/DateText.h"
#include "base/FoldName.h"
#include "base/MessageArgs.h"
#include "base/Setup.h"
#include "base/SqlStatement.h"
#include "base/SqlValue.h"

#include <QHash>
#include <QList>
#include <QRegularExpression>
#include <QXmlStreamWriter>

#include <cmath>

namespace {

const QString kData = QStringLiteral("http://schemas.nav.gov.hu/OSA/3.0/data");
const QString kBase = QStringLiteral("http://schemas.nav.gov.hu/OSA/3.0/base");
const QString kCommon = QStringLiteral("http://schemas.nav.gov.hu/NTCA/1.0/common");

QString Money(double value)
{
    const double rounded = std::round(value * 100.0) / 100.0;
    return QString::number(rounded == 0.0 ? 0.0 : rounded, 'f', 2);
}

// Up to the schema's ten decimals, without trailing zeros.
QString Decimal(double value, int decimals)
{
    QString text = QString::number(value, 'f', decimals);
    if (text.contains(u'.')) {
        while (text.endsWith(u'0'))
            text.chop(1);
        if (text.endsWith(u'.'))
            text.chop(1);
    }
    return text == QLatin1String("-0") ? QStringLiteral("0") : text;
}

bool NotBlank(const QString& text)
{
    return !text.trimmed().isEmpty();
}

// How a line's VAT is reported: a rate, or an exemption or out-of-scope case with its reason.
struct VatKind
{
    enum class Type { Percentage, Exemption, OutOfScope } type = Type::Percentage;
    double rate = 0.0;
    QString caseCode;
    QString reason;

    QString key() const
    {
        return type == Type::Percentage ? Decimal(rate, 4) : QString::number(int(type)) + caseCode;
    }
};

struct Line
{
    QString name;
    QString unit;
    QString statNo;
    double qty = 0.0;
    double price = 0.0;
    double net = 0.0, vat = 0.0, gross = 0.0;
    double localNet = 0.0, localVat = 0.0, localGross = 0.0;
    QDate shipped;
    VatKind vatKind;
};

struct Amounts
{
    double net = 0.0, vat = 0.0, gross = 0.0;
    double localNet = 0.0, localVat = 0.0, localGross = 0.0;
};

VatKind LineVat(const QString& vatCode, const QString& vatName, double percent, bool orderNoVat,
                const QString& reasonCode, const QString& reasonText)
{
    static const QStringList exemptions{"AAM", "TAM", "KBAET", "KBAUK", "EAM", "NAM"};
    static const QHash<QString, QString> outOfScope{{"ATK", "ATK"},         {"EUFAD", "EUFAD37"},
                                                    {"EUFAD37", "EUFAD37"}, {"EUFADE", "EUFADE"},
                                                    {"EUE", "EUE"},         {"HO", "HO"}};
    const QString code = vatCode.trimmed().toUpper();
    const QString reason = NotBlank(reasonText) ? reasonText.trimmed()
                           : NotBlank(vatName)  ? vatName.trimmed()
                                                : code;
    if (exemptions.contains(code))
        return {VatKind::Type::Exemption, 0.0, code, reason};
    if (outOfScope.contains(code))
        return {VatKind::Type::OutOfScope, 0.0, outOfScope.value(code), reason};
    if (orderNoVat) {
        const QString reasonCase = reasonCode.trimmed().toUpper();
        if (outOfScope.contains(reasonCase))
            return {VatKind::Type::OutOfScope, 0.0, outOfScope.value(reasonCase), reason};
        return {VatKind::Type::Exemption, 0.0,
                exemptions.contains(reasonCase) ? reasonCase : QStringLiteral("AAM"),
                NotBlank(reason) ? reason : QStringLiteral("AAM")};
    }
    return {VatKind::Type::Percentage, percent / 100.0, {}, {}};
}

class Writer
{
public:
    explicit Writer(QByteArray& out) : m_xml(&out) { m_xml.setAutoFormatting(true); }

    void start(const char* name) { m_xml.writeStartElement(kData, QLatin1String(name)); }
    void startBase(const char* name) { m_xml.writeStartElement(kBase, QLatin1String(name)); }
    void end() { m_xml.writeEndElement(); }
    void text(const char* name, const QString& value)
    {
        m_xml.writeTextElement(kData, QLatin1String(name), value);
    }
    void baseText(const char* name, const QString& value)
    {
        m_xml.writeTextElement(kBase, QLatin1String(name), value);
    }
    QXmlStreamWriter& xml() { return m_xml; }

    void taxNumber(const char* element, const HungarianTaxNumber& number)
    {
        start(element);
        baseText("taxpayerId", number.taxpayerId);
        if (!number.vatCode.isEmpty())
            baseText("vatCode", number.vatCode);
        if (!number.countyCode.isEmpty())
            baseText("countyCode", number.countyCode);
        end();
    }

    void address(const char* element, const QString& country, const QString& zip,
                 const QString& city, const QString& street)
    {
        start(element);
        startBase("simpleAddress");
        baseText("countryCode", country);
        baseText("postalCode", zip.trimmed().toUpper());
        baseText("city", city.trimmed());
        baseText("additionalAddressDetail", street.trimmed());
        end();
        end();
    }

    void vatRate(const char* element, const VatKind& kind)
    {
        start(element);
        if (kind.type == VatKind::Type::Percentage) {
            text("vatPercentage", Decimal(kind.rate, 4));
        } else {
            start(kind.type == VatKind::Type::Exemption ? "vatExemption" : "vatOutOfScope");
            text("case", kind.caseCode);
            text("reason", kind.reason.left(200));
            end();
        }
        end();
    }

    void pair(const char* group, const char* name, const char* nameHuf, double value,
              double valueHuf)
    {
        start(group);
        text(name, Money(value));
        text(nameHuf, Money(valueHuf));
        end();
    }

private:
    QXmlStreamWriter m_xml;
};

bool AddressComplete(const QString& zip, const QString& city, const QString& street)
{
    static const QRegularExpression postal(QStringLiteral("^[A-Z0-9][A-Z0-9\\s\\-]{1,8}[A-Z0-9]$"));
    return postal.match(zip.trimmed().toUpper()).hasMatch() && NotBlank(city) && NotBlank(street);
}

bool BankAccountValid(const QString& account)
{
    static const QRegularExpression pattern(
        QStringLiteral("^([0-9]{8}-[0-9]{8}-[0-9]{8}|[0-9]{8}-[0-9]{8}|[A-Z]{2}[0-9]{2}[0-9A-Za-z]"
                       "{11,30})$"));
    return pattern.match(account).hasMatch();
}

QString CountryCode(const QVariant& countryId, const QString& international)
{
    if (IsNullValue(countryId) || ToInteger(countryId) == 0)
        return QStringLiteral("HU");
    return international.trimmed().toUpper();
}

} // namespace

bool HungarianTaxNumber::parse(const QString& text, HungarianTaxNumber& number)
{
    static const QRegularExpression dashed(
        QStringLiteral("^([0-9]{8})(?:-?([1-5])(?:-?([0-9]{2}))?)?$"));
    const QRegularExpressionMatch m = dashed.match(text.trimmed().remove(u' '));
    if (!m.hasMatch())
        return false;
    number = {m.captured(1), m.captured(2), m.captured(3)};
    return true;
}

QString InvoiceData::paymentMethod(const QString& code, const QString& name)
{
    const QString folded = FoldName(code + u' ' + name);
    const auto has = [&](const char* word) { return folded.contains(QLatin1String(word)); };
    if (code.trimmed().toUpper() == QLatin1String("KP") || has("KESZPENZ") || has("CASH"))
        return QStringLiteral("CASH");
    if (code.trimmed().toUpper() == QLatin1String("AT") || has("UTALAS") || has("TRANSFER"))
        return QStringLiteral("TRANSFER");
    if (has("KARTYA") || has("CARD"))
        return QStringLiteral("CARD");
    if (has("UTALVANY") || has("VOUCHER"))
        return QStringLiteral("VOUCHER");
    return QStringLiteral("OTHER");
}

QString InvoiceData::unitOfMeasure(const QString& unit)
{
    static const QHash<QString, QString> units{
        {"DB", "PIECE"},        {"DARAB", "PIECE"},   {"PCS", "PIECE"},      {"KG", "KILOGRAM"},
        {"T", "TON"},           {"TONNA", "TON"},     {"KWH", "KWH"},        {"NAP", "DAY"},
        {"ORA", "HOUR"},        {"PERC", "MINUTE"},   {"HO", "MONTH"},       {"L", "LITER"},
        {"LITER", "LITER"},     {"KM", "KILOMETER"},  {"M3", "CUBIC_METER"}, {"M", "METER"},
        {"FM", "LINEAR_METER"}, {"KARTON", "CARTON"}, {"CSOMAG", "PACK"}};
    return units.value(FoldName(unit.trimmed()).remove(u'.'), QStringLiteral("OWN"));
}

Result InvoiceData::buildByNumber(const QString& invoiceNo, Document& document)
{
    SqlStatement st(Sql("select %1 from %2 where %3 = ? and %4 is not null",
                        {Col::ORDERHEAD_ID, Tbl::ORDERHEAD, Col::ORDERHEAD_INVOICE_NO_STR,
                         Col::ORDERHEAD_INVOICE_NO}),
                    {invoiceNo});
    if (!st.exec())
        return st.failure(tr("Database error:&") + st.errorText());
    if (!st.next())
        return Result::failure(FillArgs(tr("There is no invoice with No. %s."), {invoiceNo}));
    return build(ToInteger(st.value(0)), document);
}

Result InvoiceData::build(qint64 orderId, Document& document)
{
    SqlStatement head(Sql("select * from %1 where %2 = ? and %3 is not null",
                          {Tbl::ORDERHEAD, Col::ORDERHEAD_ID, Col::ORDERHEAD_INVOICE_NO}),
                      {orderId});
    if (!head.exec())
        return head.failure(tr("Database error:&") + head.errorText());
    if (!head.next())
        return Result::failure(tr("The order has no invoice number yet."));
    const auto v = [&](const char* column) { return head.value(column); };
    const auto s = [&](const char* column) { return head.value(column).toString(); };

    const Setup& setup = Setup::current();
    HungarianTaxNumber seller;
    if (!HungarianTaxNumber::parse(setup.text(Col::SETUP_TAX_NO), seller) ||
        seller.vatCode.isEmpty())
        return Result::failure(
            tr("The company's tax number is not a Hungarian tax number (12345678-1-12)."));
    if (!NotBlank(setup.text(Col::SETUP_NAME)) ||
        !AddressComplete(setup.text(Col::SETUP_ZIP), setup.text(Col::SETUP_CITY),
                         setup.text(Col::SETUP_ADDRESS)))
        return Result::failure(
            tr("The company's name, postal code, city and address must be filled in."));

    const bool cancelling = ToInteger(v(Col::ORDERHEAD_TYPE)) == 1;
    const bool consolidated = IsFlagSet(v(Col::ORDERHEAD_CONSOLIDATED_INVOICE));
    const bool forint =
        IsNullValue(v(Col::ORDERHEAD_CURRENCY_ID)) || ToInteger(v(Col::ORDERHEAD_CURRENCY_ID)) == 0;
    const double rate = forint ? 1.0 : ToNumber(v(Col::ORDERHEAD_CURRENCY_RATE));
    QString currency = forint ? QStringLiteral("HUF") : s(Col::ORDERHEAD_CURRENCY_ABBREVIATION);
    currency = currency.trimmed().toUpper();
    if (!QRegularExpression(QStringLiteral("^[A-Z]{3}$")).match(currency).hasMatch() || rate <= 0.0)
        return Result::failure(FillArgs(
            tr("The currency %s of the invoice has no ISO code or exchange rate."), {currency}));
    const QDate issued = DateFromSql(v(Col::ORDERHEAD_DATE_CREATED));
    QDate delivery = DateFromSql(v(Col::ORDERHEAD_DATE_SHIPPED));

    // The lines as stored at issue.
    QList<Line> lines;
    SqlStatement items(
        Sql("select %1, %2, %3, %4, %5, %6, %7, %8, %9, %10, %11, %12, %13, %14, %15, %16 from %17 "
            "where %18 = ? order by %19",
            {Col::ORDERITEM_NAME, Col::ORDERITEM_UNIT, Col::ORDERITEM_STAT_NO, Col::ORDERITEM_QTY,
             Col::ORDERITEM_PRICE, Col::ORDERITEM_TOTAL_NET, Col::ORDERITEM_TOTAL_VAT,
             Col::ORDERITEM_TOTAL_GROSS, Col::ORDERITEM_TOTAL_LOCAL_CURRENCY_NET,
             Col::ORDERITEM_TOTAL_LOCAL_CURRENCY_VAT, Col::ORDERITEM_TOTAL_LOCAL_CURRENCY_GROSS,
             Col::ORDERITEM_DATE_SHIPPED, Col::ORDERITEM_VAT_CODE, Col::ORDERITEM_VAT_NAME,
             Col::ORDERITEM_VAT_PERCENT, Col::ORDERITEM_COMMENT, Tbl::ORDERITEM,
             Col::ORDERITEM_ORDERHEAD_ID, Col::ORDERITEM_ID}),
        {orderId});
    if (!items.exec())
        return items.failure(tr("Database error:&") + items.errorText());
    const bool noVat = IsFlagSet(v(Col::ORDERHEAD_NO_VAT));
    while (items.next()) {
        Line line;
        line.name = items.value(Col::ORDERITEM_NAME).toString().simplified();
        if (NotBlank(items.value(Col::ORDERITEM_COMMENT).toString()))
            line.name += u' ' + items.value(Col::ORDERITEM_COMMENT).toString().simplified();
        line.unit = items.value(Col::ORDERITEM_UNIT).toString().trimmed();
        line.statNo =
            items.value(Col::ORDERITEM_STAT_NO).toString().remove(u' ').remove(u'.').toUpper();
        line.qty = ToNumber(items.value(Col::ORDERITEM_QTY));
        line.price = ToNumber(items.value(Col::ORDERITEM_PRICE));
        line.net = ToNumber(items.value(Col::ORDERITEM_TOTAL_NET));
        line.vat = ToNumber(items.value(Col::ORDERITEM_TOTAL_VAT));
        line.gross = ToNumber(items.value(Col::ORDERITEM_TOTAL_GROSS));
        line.localNet = ToNumber(items.value(Col::ORDERITEM_TOTAL_LOCAL_CURRENCY_NET));
        line.localVat = ToNumber(items.value(Col::ORDERITEM_TOTAL_LOCAL_CURRENCY_VAT));
        line.localGross = ToNumber(items.value(Col::ORDERITEM_TOTAL_LOCAL_CURRENCY_GROSS));
        line.shipped = DateFromSql(items.value(Col::ORDERITEM_DATE_SHIPPED));
        if (!line.shipped.isValid())
            line.shipped = delivery;
        line.vatKind =
            LineVat(items.value(Col::ORDERITEM_VAT_CODE).toString(),
                    items.value(Col::ORDERITEM_VAT_NAME).toString(),
                    ToNumber(items.value(Col::ORDERITEM_VAT_PERCENT)), noVat,
                    s(Col::ORDERHEAD_NOVATREASON_CODE), s(Col::ORDERHEAD_NOVATREASON_TEXT));
        lines << line;
    }
    if (lines.isEmpty())
        return Result::failure(tr("The invoice has no items."));
    if (consolidated) {
        // The invoice's delivery date is the last of its lines'.
        for (const Line& line : lines)
            if (line.shipped.isValid() && (!delivery.isValid() || line.shipped > delivery))
                delivery = line.shipped;
    }
    if (!issued.isValid() || !delivery.isValid())
        return Result::failure(tr("The invoice has no printing or delivery date."));

    // A cancelling invoice continues the line numbers of the one it cancels.
    int originalLines = 0;
    if (cancelling) {
        SqlStatement count(Sql("select count(*) from %1 join %2 on %3 = %4 where %5 = ?",
                               {Tbl::ORDERITEM, Tbl::ORDERHEAD, Col::ORDERITEM_ORDERHEAD_ID,
                                Col::ORDERHEAD_ID, Col::ORDERHEAD_INVOICE_NO}),
                           {v(Col::ORDERHEAD_CANCELLED_INVOICE_NO)});
        if (!count.exec() || !count.next())
            return count.failure(tr("Database error:&") + count.errorText());
        originalLines = int(ToInteger(count.value(0)));
        if (!NotBlank(s(Col::ORDERHEAD_CANCELLED_INVOICE_NO_STR)))
            return Result::failure(tr("The cancelling invoice does not name the invoice it "
                                      "cancels."));
    }

    document.invoiceNo = s(Col::ORDERHEAD_INVOICE_NO_STR);
    document.operation = cancelling ? NavOperation::Storno : NavOperation::Create;
    document.xml.clear();
    Writer w(document.xml);
    QXmlStreamWriter& xml = w.xml();
    xml.writeStartDocument();
    xml.writeDefaultNamespace(kData);
    xml.writeNamespace(kCommon, QStringLiteral("common"));
    xml.writeNamespace(kBase, QStringLiteral("base"));
    w.start("InvoiceData");
    w.text("invoiceNumber", document.invoiceNo);
    w.text("invoiceIssueDate", DateToSql(issued));
    w.text("completenessIndicator", QStringLiteral("false"));
    w.start("invoiceMain");
    w.start("invoice");
    if (cancelling) {
        w.start("invoiceReference");
        w.text("originalInvoiceNumber", s(Col::ORDERHEAD_CANCELLED_INVOICE_NO_STR));
        w.text("modifyWithoutMaster", QStringLiteral("false"));
        // An invoice is cancelled once and modified in no other way.
        w.text("modificationIndex", QStringLiteral("1"));
        w.end();
    }
    w.start("invoiceHead");

    w.start("supplierInfo");
    w.taxNumber("supplierTaxNumber", seller);
    w.text("supplierName", setup.text(Col::SETUP_NAME).trimmed());
    w.address("supplierAddress", QStringLiteral("HU"), setup.text(Col::SETUP_ZIP),
              setup.text(Col::SETUP_CITY), setup.text(Col::SETUP_ADDRESS));
    QString bank = s(Col::ORDERHEAD_BANK_ACCT_NO).trimmed();
    if (bank.isEmpty())
        bank = setup.text(Col::SETUP_BANK_ACCT_NO).trimmed();
    if (!BankAccountValid(bank))
        bank = s(Col::ORDERHEAD_BANK_IBAN).remove(u' ').toUpper();
    if (BankAccountValid(bank))
        w.text("supplierBankAccountNumber", bank);
    w.end();

    // The customer by kind: a domestic taxpayer, a foreign one, or a private person of whom
    // nothing is reported.
    const QString country = CountryCode(v(Col::ORDERHEAD_PARTNER_COUNTRY_ID),
                                        s(Col::ORDERHEAD_PARTNER_COUNTRY_INTERNATIONAL_CODE));
    HungarianTaxNumber customerTax;
    const QString partnerTax = s(Col::ORDERHEAD_PARTNER_TAX_NO);
    const QString euTax = s(Col::ORDERHEAD_PARTNER_EU_TAX_NO).remove(u' ').toUpper();
    w.start("customerInfo");
    if (country == QLatin1String("HU") && !NotBlank(partnerTax)) {
        w.text("customerVatStatus", QStringLiteral("PRIVATE_PERSON"));
    } else {
        const bool domestic = country == QLatin1String("HU") &&
                              HungarianTaxNumber::parse(partnerTax, customerTax) &&
                              !customerTax.vatCode.isEmpty();
        w.text("customerVatStatus",
               domestic ? QStringLiteral("DOMESTIC") : QStringLiteral("OTHER"));
        static const QRegularExpression community(QStringLiteral("^[A-Z]{2}[0-9A-Z]{2,13}$"));
        if (domestic) {
            w.start("customerVatData");
            w.taxNumber("customerTaxNumber", customerTax);
            w.end();
        } else if (country != QLatin1String("HU") && community.match(euTax).hasMatch()) {
            w.start("customerVatData");
            w.text("communityVatNumber", euTax);
            w.end();
        } else if (country != QLatin1String("HU") && NotBlank(partnerTax)) {
            w.start("customerVatData");
            w.text("thirdStateTaxId", partnerTax.trimmed().left(50));
            w.end();
        }
        if (NotBlank(s(Col::ORDERHEAD_PARTNER_NAME)))
            w.text("customerName", s(Col::ORDERHEAD_PARTNER_NAME).trimmed().left(512));
        if (QRegularExpression(QStringLiteral("^[A-Z]{2}$")).match(country).hasMatch() &&
            AddressComplete(s(Col::ORDERHEAD_PARTNER_ZIP), s(Col::ORDERHEAD_PARTNER_CITY),
                            s(Col::ORDERHEAD_PARTNER_ADDRESS)))
            w.address("customerAddress", country, s(Col::ORDERHEAD_PARTNER_ZIP),
                      s(Col::ORDERHEAD_PARTNER_CITY), s(Col::ORDERHEAD_PARTNER_ADDRESS));
    }
    w.end();

    w.start("invoiceDetail");
    w.text("invoiceCategory",
           consolidated ? QStringLiteral("AGGREGATE") : QStringLiteral("NORMAL"));
    w.text("invoiceDeliveryDate", DateToSql(delivery));
    w.text("currencyCode", currency);
    w.text("exchangeRate", Decimal(rate, 6));
    w.text("paymentMethod", paymentMethod(s(Col::ORDERHEAD_PAYMENTMETHOD_CODE),
                                          s(Col::ORDERHEAD_PAYMENTMETHOD_NAME)));
    const QDate due = DateFromSql(v(Col::ORDERHEAD_DATE_PAYMENT_DUE));
    if (due.isValid())
        w.text("paymentDate", DateToSql(due));
    w.text("invoiceAppearance", QStringLiteral("PAPER"));
    w.end();
    w.end(); // invoiceHead

    w.start("invoiceLines");
    w.text("mergedItemIndicator", QStringLiteral("false"));
    QList<QString> rateOrder;
    QHash<QString, std::pair<VatKind, Amounts>> byRate;
    static const QRegularExpression productCode(QStringLiteral("^[0-9]{2,8}$"));
    for (int i = 0; i < lines.size(); ++i) {
        const Line& line = lines.at(i);
        w.start("line");
        w.text("lineNumber", QString::number(i + 1));
        if (cancelling) {
            w.start("lineModificationReference");
            w.text("lineNumberReference", QString::number(originalLines + i + 1));
            w.text("lineOperation", QStringLiteral("CREATE"));
            w.end();
        }
        if (productCode.match(line.statNo).hasMatch()) {
            w.start("productCodes");
            w.start("productCode");
            w.text("productCodeCategory", QStringLiteral("VTSZ"));
            w.text("productCodeValue", line.statNo);
            w.end();
            w.end();
        }
        const bool expressed = NotBlank(line.unit);
        w.text("lineExpressionIndicator",
               expressed ? QStringLiteral("true") : QStringLiteral("false"));
        if (NotBlank(line.name))
            w.text("lineDescription", line.name.left(512));
        if (expressed) {
            w.text("quantity", Decimal(line.qty, 10));
            const QString unit = unitOfMeasure(line.unit);
            w.text("unitOfMeasure", unit);
            if (unit == QLatin1String("OWN"))
                w.text("unitOfMeasureOwn", line.unit.left(50));
            w.text("unitPrice", Decimal(line.price, 10));
            w.text("unitPriceHUF", Decimal(line.price * rate, 10));
        }
        w.start("lineAmountsNormal");
        w.pair("lineNetAmountData", "lineNetAmount", "lineNetAmountHUF", line.net, line.localNet);
        w.vatRate("lineVatRate", line.vatKind);
        w.pair("lineVatData", "lineVatAmount", "lineVatAmountHUF", line.vat, line.localVat);
        w.pair("lineGrossAmountData", "lineGrossAmountNormal", "lineGrossAmountNormalHUF",
               line.gross, line.localGross);
        w.end();
        if (consolidated) {
            w.start("aggregateInvoiceLineData");
            w.text("lineExchangeRate", Decimal(rate, 6));
            w.text("lineDeliveryDate", DateToSql(line.shipped));
            w.end();
        }
        w.end();

        const QString key = line.vatKind.key();
        if (!byRate.contains(key)) {
            rateOrder << key;
            byRate.insert(key, {line.vatKind, Amounts{}});
        }
        Amounts& sum = byRate[key].second;
        sum.net += line.net;
        sum.vat += line.vat;
        sum.gross += line.gross;
        sum.localNet += line.localNet;
        sum.localVat += line.localVat;
        sum.localGross += line.localGross;
    }
    w.end(); // invoiceLines

    w.start("invoiceSummary");
    w.start("summaryNormal");
    for (const QString& key : std::as_const(rateOrder)) {
        const auto& [kind, sum] = byRate.value(key);
        w.start("summaryByVatRate");
        w.vatRate("vatRate", kind);
        w.pair("vatRateNetData", "vatRateNetAmount", "vatRateNetAmountHUF", sum.net, sum.localNet);
        w.pair("vatRateVatData", "vatRateVatAmount", "vatRateVatAmountHUF", sum.vat, sum.localVat);
        w.pair("vatRateGrossData", "vatRateGrossAmount", "vatRateGrossAmountHUF", sum.gross,
               sum.localGross);
        w.end();
    }
    // The invoice's totals as stored at issue (with its rounding), not the lines' sums.
    w.text("invoiceNetAmount", Money(ToNumber(v(Col::ORDERHEAD_TOTAL_NET))));
    w.text("invoiceNetAmountHUF", Money(ToNumber(v(Col::ORDERHEAD_TOTAL_LOCAL_CURRENCY_NET))));
    w.text("invoiceVatAmount", Money(ToNumber(v(Col::ORDERHEAD_TOTAL_VAT))));
    w.text("invoiceVatAmountHUF", Money(ToNumber(v(Col::ORDERHEAD_TOTAL_LOCAL_CURRENCY_VAT))));
    w.end();
    w.pair("summaryGrossData", "invoiceGrossAmount", "invoiceGrossAmountHUF",
           ToNumber(v(Col::ORDERHEAD_TOTAL_GROSS)),
           ToNumber(v(Col::ORDERHEAD_TOTAL_LOCAL_CURRENCY_GROSS)));
    w.end(); // invoiceSummary

    w.end(); // invoice
    w.end(); // invoiceMain
    w.end(); // InvoiceData
    xml.writeEndDocument();
    return Result::success();
}
