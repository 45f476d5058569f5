#include "InvoiceRender.h"

#include "AmountFormat.h"
#include "AmountInWords.h"
#include "InvoiceTemplate.h"
#include "LabelTranslations.h"
#include "PlaceholderMap.h"
#include "QtfReader.h"
#include "Report.h"

#include "Columns.h"
#include "base/DateText.h"
#include "base/MessageArgs.h"
#include "base/SqlStatement.h"
#include "base/SqlValue.h"
#include "orders/ConvertOrderType.h"
#include "orders/OrderCalc.h"

#include <QHash>
#include <QSqlField>

#include <cmath>

namespace {

using Piece = InvoiceTemplate::Piece;

// ORDERHEAD_PARTNER_NAME -> ORDERHEAD.PARTNER.NAME
QString PlaceholderName(QString column)
{
    return column.replace(u'_', u'.');
}

QString DatabaseError(const SqlStatement& st)
{
    return InvoiceRender::tr("Database error:&") + st.errorText();
}

// Values are data: escaped so that brackets, backticks or "!" never read as QTF or placeholders.
void SetText(PlaceholderMap& map, const QString& name, const QString& text)
{
    map.set(name, QtfEscape(text));
}

// Every column of a row under its placeholder name; the first (the key) is left out for the
// order, as the templates never print it.
void SetColumns(PlaceholderMap& map, const QSqlRecord& row, int first = 1)
{
    for (int i = first; i < row.count(); ++i)
        SetText(map, PlaceholderName(row.fieldName(i)), PlaceholderText(row.value(i)));
}

class Row
{
public:
    explicit Row(const QSqlRecord& record) : m_record(record) {}
    QVariant value(const char* column) const { return m_record.value(ColumnName(column)); }
    QString text(const char* column) const
    {
        const QVariant v = value(column);
        return IsNullValue(v) ? QString() : v.toString();
    }
    double number(const char* column) const { return ToNumber(value(column)); }
    qint64 integer(const char* column, qint64 fallback = 0) const
    {
        return ToInteger(value(column), fallback);
    }
    bool flag(const char* column) const { return IsFlagSet(value(column)); }

private:
    const QSqlRecord& m_record;
};

// "translation / Hungarian" when the invoice's second language has a translation of its own.
QString Bilingual(const QString& hungarian, const QString& translation, qint64 language)
{
    if (language == LabelTranslations::Hungarian || translation.isEmpty())
        return hungarian;
    return translation + QStringLiteral(" / ") + hungarian;
}

QString Percent(double percent)
{
    return FormatAmount(percent, std::min(DecimalCount(percent), 10)) + u'%';
}

// A unit price keeps the decimals it has: rounding it for print would misstate it.
QString Price(double price, int decimals)
{
    return FormatAmount(price, std::clamp(std::max(DecimalCount(price), decimals), 0, 10));
}

QStringList LabelLines(const LabelTranslations& labels, const QVariant& language,
                       const QList<std::pair<QString, QString>>& lines)
{
    QStringList out;
    for (const auto& [label, value] : lines) {
        if (value.isEmpty())
            continue;
        const QString caption =
            label.startsWith(QLatin1String("TR_")) ? labels.bilingual(label, language) : label;
        out << caption + QStringLiteral(": ") + value;
    }
    return out;
}

struct VatGroup
{
    QString name;
    double percent = 0.0;
    LineTotals totals;
};

void Add(LineTotals& sum, const LineTotals& item)
{
    sum.net += item.net;
    sum.vat += item.vat;
    sum.gross += item.gross;
}

class Renderer
{
public:
    Renderer(const InvoiceData& data, const InvoiceTemplate& t, const LabelTranslations& labels)
        : m_data(data), m_template(t), m_labels(labels), m_head(data.head), m_setup(data.setup)
    {
        m_language = m_head.value(Col::ORDERHEAD_PARTNER_LANG_ID);
        m_languageId = ToInteger(m_language);
        m_totalDecimals =
            int(m_head.integer(Col::ORDERHEAD_CURRENCY_INVOICE_TOTAL_PRINTING_DECIMALS));
        m_lineDecimals = int(m_head.integer(Col::ORDERHEAD_CURRENCY_LINE_TOTAL_PRINTING_DECIMALS));
        m_noVat = m_head.flag(Col::ORDERHEAD_NO_VAT);
        m_consolidated = m_head.flag(Col::ORDERHEAD_CONSOLIDATED_INVOICE);
        m_forint = m_head.integer(Col::ORDERHEAD_CURRENCY_ID) == 0;
    }

    Result run(FrozenInvoice& invoice);

private:
    QString label(const char* key) const { return m_labels.bilingual(ColumnName(key), m_language); }
    QString total(double v) const { return FormatAmount(v, m_totalDecimals); }
    QString line(double v) const { return FormatAmount(v, m_lineDecimals); }
    void orderValues();
    QString items();
    QString itemLine(const QSqlRecord& item, bool discountLayout) const;
    QString extraLine(const QString& name, const LineTotals& totals, bool discountLayout) const;
    QString vatDetail() const;

    const InvoiceData& m_data;
    const InvoiceTemplate& m_template;
    const LabelTranslations& m_labels;
    Row m_head;
    Row m_setup;
    QVariant m_language;
    qint64 m_languageId = 0;
    int m_totalDecimals = 0;
    int m_lineDecimals = 0;
    bool m_noVat = false;
    bool m_consolidated = false;
    bool m_forint = true;
    PlaceholderMap m_map;
};

void Renderer::orderValues()
{
    SetColumns(m_map, m_data.head);
    // The seller's data under SETUP.* names; template texts and the webshop login stay out.
    for (int i = 0; i < m_data.setup.count(); ++i) {
        const QString column = m_data.setup.fieldName(i);
        if (column.endsWith(QLatin1String("_QTF")) ||
            column.startsWith(QLatin1String("SETUP_DOWNLOAD_")) ||
            column == QLatin1String(Col::SETUP_INVOICE_DIGEST))
            continue;
        SetText(m_map, PlaceholderName(column), PlaceholderText(m_data.setup.value(i)));
    }

    SetText(
        m_map, QStringLiteral("X.PARNER.OTHER.DATA"),
        (LabelLines(
             m_labels, m_language,
             {{QStringLiteral("TR_LOCAL_TAX_NO"), m_head.text(Col::ORDERHEAD_PARTNER_TAX_NO)},
              {QStringLiteral("TR_EU_VAT_REG_NO"), m_head.text(Col::ORDERHEAD_PARTNER_EU_TAX_NO)}})
         << m_head.text(Col::ORDERHEAD_PARTNER_OTHER_DATA))
            .join(u'\n')
            .trimmed());

    SetText(m_map, QStringLiteral("ORDERHEAD.DATE.SHIPPED"),
            m_consolidated ? InvoiceRender::tr("By Items")
                           : FormatSqlDate(m_head.value(Col::ORDERHEAD_DATE_SHIPPED)));
    SetText(m_map, QStringLiteral("ORDERHEAD.DATE.CREATED"),
            FormatSqlDate(m_head.value(Col::ORDERHEAD_DATE_CREATED)));
    SetText(m_map, QStringLiteral("ORDERHEAD.DATE.PAYMENT.DUE"),
            FormatSqlDate(m_head.value(Col::ORDERHEAD_DATE_PAYMENT_DUE)));
    SetText(m_map, QStringLiteral("ORDERHEAD.SUBJECT"),
            m_data.sample
                ? InvoiceRender::tr("This is an invoice sample. You can not get VAT back on this.")
                : m_head.text(Col::ORDERHEAD_SUBJECT));

    for (const char* column :
         {Col::ORDERHEAD_TOTAL_NET, Col::ORDERHEAD_TOTAL_GROSS, Col::ORDERHEAD_TOTAL_CORRECTION_NET,
          Col::ORDERHEAD_TOTAL_CORRECTION_VAT, Col::ORDERHEAD_TOTAL_CORRECTION_GROSS,
          Col::ORDERHEAD_TOTAL_ROUNDING_DIFFERENCE, Col::ORDERHEAD_UNPAID_TOTAL})
        SetText(m_map, PlaceholderName(ColumnName(column)), total(m_head.number(column)));
    SetText(m_map, QStringLiteral("ORDERHEAD.TOTAL.VAT"),
            m_noVat ? QStringLiteral("---") : total(m_head.number(Col::ORDERHEAD_TOTAL_VAT)));
    for (const char* column :
         {Col::ORDERHEAD_TOTAL_LOCAL_CURRENCY_NET, Col::ORDERHEAD_TOTAL_LOCAL_CURRENCY_VAT,
          Col::ORDERHEAD_TOTAL_LOCAL_CURRENCY_GROSS})
        SetText(m_map, PlaceholderName(ColumnName(column)),
                FormatAmount(m_head.number(column), m_data.localPrintingDecimals));
    const double rate = m_head.number(Col::ORDERHEAD_CURRENCY_RATE);
    SetText(m_map, QStringLiteral("ORDERHEAD.CURRENCY.RATE"),
            FormatAmount(rate, std::min(DecimalCount(rate), 10)));

    SetText(m_map, QStringLiteral("TR.ORDERHEAD.PAYMENTMETHOD.NAME"),
            Bilingual(m_head.text(Col::ORDERHEAD_PAYMENTMETHOD_NAME),
                      m_head.text(Col::ORDERHEAD_PAYMENTMETHOD_NAME_TRANSLATION), m_languageId));
    SetText(m_map, QStringLiteral("TR.ORDERHEAD.NOVATREASON.TEXT"),
            Bilingual(m_head.text(Col::ORDERHEAD_NOVATREASON_TEXT),
                      m_head.text(Col::ORDERHEAD_NOVATREASON_TRANSLATION_TEXT), m_languageId));

    // The order's own bank account is the rule; an order without one prints the settings'.
    const bool ownBank = !(m_head.text(Col::ORDERHEAD_BANK_NAME).isEmpty() &&
                           m_head.text(Col::ORDERHEAD_BANK_ACCT_NO).isEmpty() &&
                           m_head.text(Col::ORDERHEAD_BANK_IBAN).isEmpty());
    const auto bank = [&](const char* own, const char* setup) {
        return ownBank ? m_head.text(own) : m_setup.text(setup);
    };
    SetText(
        m_map, QStringLiteral("X.BANK.DATA"),
        LabelLines(
            m_labels, m_language,
            {{QStringLiteral("TR_BANK_NAME"), bank(Col::ORDERHEAD_BANK_NAME, Col::SETUP_BANK_NAME)},
             {QStringLiteral("TR_BANK_ACCOUNT_NUMBER"),
              bank(Col::ORDERHEAD_BANK_ACCT_NO, Col::SETUP_BANK_ACCT_NO)},
             {QStringLiteral("IBAN"), bank(Col::ORDERHEAD_BANK_IBAN, Col::SETUP_BANK_IBAN)},
             {QStringLiteral("SWIFT"), bank(Col::ORDERHEAD_BANK_SWIFT, Col::SETUP_BANK_SWIFT)}})
            .join(u'\n'));
    SetText(
        m_map, QStringLiteral("X.TAX.DATA"),
        LabelLines(m_labels, m_language,
                   {{QStringLiteral("TR_LOCAL_TAX_NO"), m_setup.text(Col::SETUP_TAX_NO)},
                    {QStringLiteral("TR_EU_VAT_REG_NO"), m_setup.text(Col::SETUP_EU_VAT_REG_NO)}})
            .join(u'\n'));

    SetText(m_map, QStringLiteral("P.DEVELOPEER"), QStringLiteral("www.tallynorth.hu"));
    if (m_forint) {
        const QString hungarian = m_labels.get(QStringLiteral("TR_GROSS_TOTAL_IN_HUNGARIAN"),
                                               LabelTranslations::Hungarian);
        const double gross = std::trunc(m_head.number(Col::ORDERHEAD_TOTAL_GROSS));
        SetText(m_map, QStringLiteral("P.TOTAL.GROSS.TEXT.FULL"),
                hungarian + QStringLiteral(": ") + AmountInWords(qint64(gross)) + u' ' +
                    m_head.text(Col::ORDERHEAD_CURRENCY_ABBREVIATION));
    }
    SetText(
        m_map, QStringLiteral("P.APPLICATION"),
        FillArgs(QStringLiteral("Vantrell Invoicer %s %s"), {QStringLiteral("3.0.4"), QString()})
            .trimmed());
    m_map.set(QStringLiteral("P.PAGE"), QStringLiteral("$$P"));
    // Filled per copy by PrintCopy.
    for (const char* mark : {"P.LOGO", "P.TITLE", "P.INVOICE.NO.STR", "P.COPY"})
        m_map.set(QString::fromLatin1(mark), QString(u'!' + QString::fromLatin1(mark) + u'!'));
    SetText(m_map, QStringLiteral("ORDERHEAD.COMMENT.TEXT"),
            m_data.sample ? InvoiceRender::tr("The comment of the invoice is printed here: the "
                                              "payment terms, a word of thanks.")
                          : m_head.text(Col::ORDERHEAD_COMMENT_TEXT));
    for (const auto& [name, value] : m_labels.placeholders(m_language))
        SetText(m_map, name, value);
}

QString Renderer::itemLine(const QSqlRecord& record, bool discountLayout) const
{
    const Row item(record);
    PlaceholderMap map;
    SetColumns(map, record, 0);
    const double vatPercent = item.number(Col::ORDERITEM_VAT_PERCENT);
    const QString vatText = m_noVat ? item.text(Col::ORDERITEM_VAT_NAME) : Percent(vatPercent);
    SetText(map, QStringLiteral("ORDERITEM.VAT.PERCENT"), vatText);
    SetText(map, QStringLiteral("C.ORDERITEM.VAT.PERCENT"), vatText);
    SetText(map, QStringLiteral("ORDERITEM.PRICE"),
            Price(item.number(Col::ORDERITEM_PRICE), m_lineDecimals));
    SetText(map, QStringLiteral("ORDERITEM.LIST.PRICE"),
            Price(item.number(Col::ORDERITEM_LIST_PRICE), m_lineDecimals));
    const double qty = item.number(Col::ORDERITEM_QTY);
    SetText(map, QStringLiteral("ORDERITEM.QTY"),
            FormatAmount(qty, std::min(DecimalCount(qty), 10)));
    SetText(map, QStringLiteral("ORDERITEM.TOTAL.NET"),
            line(item.number(Col::ORDERITEM_TOTAL_NET)));
    SetText(map, QStringLiteral("ORDERITEM.TOTAL.VAT"),
            m_noVat ? QStringLiteral("---") : line(item.number(Col::ORDERITEM_TOTAL_VAT)));
    SetText(map, QStringLiteral("ORDERITEM.TOTAL.GROSS"),
            line(item.number(Col::ORDERITEM_TOTAL_GROSS)));
    SetText(map, QStringLiteral("TR.ORDERITEM.NAME"),
            Bilingual(item.text(Col::ORDERITEM_NAME), item.text(Col::ORDERITEM_NAME_TRANSLATION),
                      m_languageId));
    SetText(map, QStringLiteral("TR.ORDERITEM.UNIT"),
            Bilingual(item.text(Col::ORDERITEM_UNIT), item.text(Col::ORDERITEM_UNIT_TRANSLATION),
                      m_languageId));
    QString comment = Bilingual(item.text(Col::ORDERITEM_COMMENT),
                                item.text(Col::ORDERITEM_COMMENT_TRANSLATION), m_languageId);

    const qint64 discountType = item.integer(Col::ORDERITEM_DISCOUNT_TYPE);
    const double listPrice = item.number(Col::ORDERITEM_LIST_PRICE);
    const double discountPercent = item.number(Col::ORDERITEM_DISCOUNT_PERCENT);
    if (discountLayout) {
        SetText(map, QStringLiteral("C.ORDERITEM.DISCOUNT.PERCENT"),
                FormatAmount(discountPercent, std::min(DecimalCount(discountPercent), 10)));
        SetText(map, QStringLiteral("C.ORDERITEM.DISCOUNT.VALUE"),
                Price(listPrice - item.number(Col::ORDERITEM_PRICE), m_lineDecimals));
    } else if (m_setup.integer(Col::SETUP_INVOICE_PRINT_DISCOUNT_TO_INVOICE) == 1 &&
               discountType != int(DiscountType::NoDiscount)) {
        // "As item-comment": the discount or the list price told under the item.
        QString note;
        if (discountType == int(DiscountType::PercentFromListPrice))
            note = label("TR_DISCOUNT") + QStringLiteral(": ") + Percent(discountPercent);
        else
            note = label("TR_LISTPRICE") + QStringLiteral(": ") + Price(listPrice, m_lineDecimals) +
                   u' ' + m_head.text(Col::ORDERHEAD_CURRENCY_ABBREVIATION);
        comment = comment.isEmpty() ? note : comment + QStringLiteral("; ") + note;
    }
    SetText(map, QStringLiteral("TR.ORDERITEM.COMMENT"), comment);

    QString out = m_template.parsed(discountLayout ? Piece::Item1Discount : Piece::Item1).fill(map);
    if (!comment.isEmpty())
        out += m_template.parsed(Piece::Item2).fill(map);
    return out;
}

QString Renderer::extraLine(const QString& name, const LineTotals& totals,
                            bool discountLayout) const
{
    PlaceholderMap map;
    SetText(map, QStringLiteral("TR.ORDERITEM.NAME"), name);
    SetText(map, QStringLiteral("ORDERITEM.TOTAL.NET"), total(totals.net));
    SetText(map, QStringLiteral("ORDERITEM.TOTAL.VAT"), total(totals.vat));
    SetText(map, QStringLiteral("ORDERITEM.TOTAL.GROSS"), total(totals.gross));
    return m_template.parsed(discountLayout ? Piece::Item1Discount : Piece::Item1).fill(map);
}

QString Renderer::items()
{
    const qint64 printDiscount = m_setup.integer(Col::SETUP_INVOICE_PRINT_DISCOUNT_TO_INVOICE);
    bool anyDiscount = false;
    for (const QSqlRecord& item : m_data.items) {
        const QVariant type = item.value(ColumnName(Col::ORDERITEM_DISCOUNT_TYPE));
        anyDiscount = anyDiscount || (!IsNullValue(type) && ToInteger(type) != 0);
    }
    const bool discountLayout = printDiscount == 3 || (printDiscount == 2 && anyDiscount);

    // The header piece holds the column labels.
    QString out = m_template.parsed(discountLayout ? Piece::ItemHeaderDiscount : Piece::ItemHeader)
                      .fill(m_map);

    const auto groupText = [&](const QString& date, const QString& vatName, bool footer) {
        const QString vatPart =
            m_noVat ? QString()
                    : (footer ? QStringLiteral(", ") : QStringLiteral("; ÁFA: ")) + vatName;
        return footer ? QString(QStringLiteral("Összesen (") + date + vatPart + u')')
                      : QString(QStringLiteral("Teljesítés: ") + date + vatPart);
    };
    QString groupDate;
    QString groupVat;
    LineTotals groupSum;
    bool inGroup = false;
    const auto closeGroup = [&] {
        if (!inGroup)
            return;
        PlaceholderMap footer;
        SetText(footer, QStringLiteral("TEXT"), groupText(groupDate, groupVat, true));
        SetText(footer, QStringLiteral("NET"), line(groupSum.net));
        SetText(footer, QStringLiteral("VAT"),
                m_noVat ? QStringLiteral("---") : line(groupSum.vat));
        SetText(footer, QStringLiteral("GROSS"), line(groupSum.gross));
        out += m_template.parsed(Piece::ConsolidatedFooter).fill(footer);
    };

    for (const QSqlRecord& record : m_data.items) {
        const Row item(record);
        if (m_consolidated) {
            const QString date = FormatSqlDate(item.value(Col::ORDERITEM_DATE_SHIPPED));
            const QString vat = item.text(Col::ORDERITEM_VAT_NAME);
            if (!inGroup || date != groupDate || vat != groupVat) {
                closeGroup();
                groupDate = date;
                groupVat = vat;
                groupSum = {};
                inGroup = true;
                PlaceholderMap header;
                SetText(header, QStringLiteral("TEXT"), groupText(date, vat, false));
                out += m_template.parsed(Piece::ConsolidatedHeader).fill(header);
            }
            Add(groupSum, LineTotals::fromValues(item.value(Col::ORDERITEM_TOTAL_NET),
                                                 item.value(Col::ORDERITEM_TOTAL_VAT),
                                                 item.value(Col::ORDERITEM_TOTAL_GROSS)));
        }
        out += itemLine(record, discountLayout);
    }
    closeGroup();

    const LineTotals correction{m_head.number(Col::ORDERHEAD_TOTAL_CORRECTION_NET),
                                m_head.number(Col::ORDERHEAD_TOTAL_CORRECTION_VAT),
                                m_head.number(Col::ORDERHEAD_TOTAL_CORRECTION_GROSS)};
    if (correction.net != 0 || correction.vat != 0 || correction.gross != 0)
        out += extraLine(label("TR_ROUNDING_ERROR_CORRECTION"), correction, discountLayout);
    const double rounding = m_head.number(Col::ORDERHEAD_TOTAL_ROUNDING_DIFFERENCE);
    if (rounding != 0)
        out += extraLine(label("TR_ROUNDING"), {rounding, 0.0, rounding}, discountLayout);
    return out;
}

QString Renderer::vatDetail() const
{
    QList<VatGroup> groups;
    for (const QSqlRecord& record : m_data.items) {
        const Row item(record);
        const QString name = item.text(Col::ORDERITEM_VAT_NAME);
        const double percent = item.number(Col::ORDERITEM_VAT_PERCENT);
        auto it = std::find_if(groups.begin(), groups.end(), [&](const VatGroup& g) {
            return g.name == name && g.percent == percent;
        });
        if (it == groups.end())
            it = groups.insert(groups.end(), VatGroup{name, percent, {}});
        Add(it->totals, LineTotals::fromValues(item.value(Col::ORDERITEM_TOTAL_NET),
                                               item.value(Col::ORDERITEM_TOTAL_VAT),
                                               item.value(Col::ORDERITEM_TOTAL_GROSS)));
    }
    QString out = m_template.parsed(Piece::VatDetailHeader).fill(m_map);
    for (const VatGroup& g : std::as_const(groups)) {
        PlaceholderMap map;
        SetText(map, QStringLiteral("VATDETAIL.NAME"), g.name);
        SetText(map, QStringLiteral("VATDETAIL.PERCENT"), Percent(g.percent));
        SetText(map, QStringLiteral("VATDETAIL.NET"), total(g.totals.net));
        SetText(map, QStringLiteral("VATDETAIL.VAT"), total(g.totals.vat));
        SetText(map, QStringLiteral("VATDETAIL.GROSS"), total(g.totals.gross));
        out += m_template.parsed(Piece::VatDetail).fill(map);
    }
    return out;
}

Result Renderer::run(FrozenInvoice& invoice)
{
    if (m_consolidated && m_template.text(Piece::ConsolidatedHeader).isEmpty())
        return Result::failure(
            InvoiceRender::tr("Current invoice template in setup doesn't support consolidated "
                              "invoice.&Setup an other template."));
    if (m_data.items.isEmpty())
        return Result::failure(InvoiceRender::tr("Tetelek nelkuli szamla nem nyomtathato."));

    orderValues();
    m_map.set(QStringLiteral("P.ITEMS"), items());
    m_map.set(QStringLiteral("P.VATDETAIL"), vatDetail());
    m_map.set(QStringLiteral("P.SIGNINGS"), m_setup.flag(Col::SETUP_INVOICE_PRINT_SIGNINGS)
                                                ? m_template.parsed(Piece::Signings).fill(m_map)
                                                : QString());
    m_map.set(QStringLiteral("P.RATE"),
              m_forint ? QString() : m_template.parsed(Piece::Rate).fill(m_map));

    invoice.header = m_template.parsed(Piece::Header).fill(m_map);
    invoice.body = m_template.parsed(Piece::Body).fill(m_map);
    invoice.footer = m_template.parsed(Piece::Footer).fill(m_map);
    if (m_setup.flag(Col::SETUP_INVOICE_LOGO_PRINT) &&
        !IsNullValue(m_setup.value(Col::SETUP_INVOICE_LOGO_ID))) {
        invoice.logoId = m_setup.integer(Col::SETUP_INVOICE_LOGO_ID);
        invoice.logoSizePercent =
            ToNumber(m_setup.value(Col::SETUP_INVOICE_LOGO_SIZE_PERCENT), 100);
    } else {
        invoice.logoId.reset();
        invoice.logoSizePercent = -1e308;
    }
    return Result::success();
}

Result ReadRecord(SqlStatement& st, QSqlRecord& record)
{
    if (!st.exec())
        return Result::failure(DatabaseError(st), st.errorText(), st.text());
    if (!st.next())
        return Result::failure(InvoiceRender::tr(
            "Unable to load data from database.&Maybe it is deleted by an other user."));
    record = st.query().record();
    st.query().finish();
    return Result::success();
}

Result LoadSetup(InvoiceData& data)
{
    SqlStatement setup(Sql("select * from %1", {Tbl::SETUP}));
    if (Result r = ReadRecord(setup, data.setup); !r)
        return r;
    SqlStatement local(
        Sql("select %1 from %2 where %3 = 0",
            {Col::CURRENCY_INVOICE_TOTAL_PRINTING_DECIMALS, Tbl::CURRENCYY, Col::CURRENCY_ID}));
    if (!local.exec())
        return Result::failure(DatabaseError(local));
    data.localPrintingDecimals = local.next() ? int(ToInteger(local.value(0))) : 0;
    return Result::success();
}

// The logo as a QTF picture; empty for no logo, nothing when the row is no picture.
std::optional<QString> LogoObject(const FrozenInvoice& invoice)
{
    if (!invoice.logoId)
        return QString();
    SqlStatement st(
        Sql("select %1 from %2 where %3 = ?", {Col::LOGO_DATA, Tbl::LOGO, Col::LOGO_ID}),
        {*invoice.logoId});
    if (!st.exec() || !st.next())
        return std::nullopt;
    const QString object =
        QtfImageObject(QByteArray::fromBase64(st.value(0).toString().toLatin1()),
                       invoice.logoSizePercent > 0 ? invoice.logoSizePercent : 100);
    if (object.isEmpty())
        return std::nullopt;
    return object;
}

Result LogoFailure()
{
    return Result::failure(
        InvoiceRender::tr("The logo set up for invoices is not a picture.&Choose "
                          "another one in Setup or do not print a logo."));
}

} // namespace

Result InvoiceRender::load(qint64 orderId, InvoiceData& data)
{
    data = {};
    SqlStatement head(Sql("select * from %1 where %2 = ?", {Tbl::ORDERHEAD, Col::ORDERHEAD_ID}),
                      {orderId});
    if (Result r = ReadRecord(head, data.head); !r)
        return r;
    const bool consolidated =
        IsFlagSet(data.head.value(ColumnName(Col::ORDERHEAD_CONSOLIDATED_INVOICE)));
    SqlStatement items(
        consolidated
            ? Sql("select * from %1 where %2 = ? order by %3, %4, %5",
                  {Tbl::ORDERITEM, Col::ORDERITEM_ORDERHEAD_ID, Col::ORDERITEM_DATE_SHIPPED,
                   Col::ORDERITEM_VAT_NAME, Col::ORDERITEM_ID})
            : Sql("select * from %1 where %2 = ? order by %3",
                  {Tbl::ORDERITEM, Col::ORDERITEM_ORDERHEAD_ID, Col::ORDERITEM_ID}),
        {orderId});
    if (!items.exec())
        return Result::failure(DatabaseError(items));
    while (items.next())
        data.items << items.query().record();
    return LoadSetup(data);
}

Result InvoiceRender::loadSample(InvoiceData& data)
{
    data = {};
    data.sample = true;
    // Empty rows with every column, then the values of a made-up forint order.
    SqlStatement head(Sql("select * from %1 where 0", {Tbl::ORDERHEAD}));
    SqlStatement item(Sql("select * from %1 where 0", {Tbl::ORDERITEM}));
    if (!head.exec() || !item.exec())
        return Result::failure(DatabaseError(head.errorText().isEmpty() ? item : head));
    data.head = head.query().record();
    const QSqlRecord emptyItem = item.query().record();
    if (Result r = LoadSetup(data); !r)
        return r;

    const QDate today = QDate::currentDate();
    const auto set = [](QSqlRecord& r, const char* column, const QVariant& v) {
        r.setValue(ColumnName(column), v);
    };
    struct SampleItem
    {
        const char* name;
        const char* statNo;
        const char* unit;
        double qty;
        double price;
    };
    const SampleItem samples[] = {{"Minta termék", "8471", "db", 2, 12500},
                                  {"Szállítás és telepítés", "", "óra", 1.5, 8000},
                                  {"Karbantartási csomag [1 év]", "", "db", 1, 24990}};
    QList<LineTotals> totals;
    for (const SampleItem& s : samples) {
        QSqlRecord r = emptyItem;
        const LineTotals line = CalcLineTotals(s.price, s.qty, 27, 0);
        set(r, Col::ORDERITEM_NAME, QString::fromUtf8(s.name));
        set(r, Col::ORDERITEM_STAT_NO, QString::fromUtf8(s.statNo));
        set(r, Col::ORDERITEM_UNIT, QString::fromUtf8(s.unit));
        set(r, Col::ORDERITEM_QTY, s.qty);
        set(r, Col::ORDERITEM_PRICE, s.price);
        set(r, Col::ORDERITEM_LIST_PRICE, s.price);
        set(r, Col::ORDERITEM_DISCOUNT_TYPE, 0);
        set(r, Col::ORDERITEM_VAT_NAME, QStringLiteral("27%"));
        set(r, Col::ORDERITEM_VAT_PERCENT, 27.0);
        set(r, Col::ORDERITEM_TOTAL_NET, line.net);
        set(r, Col::ORDERITEM_TOTAL_VAT, line.vat);
        set(r, Col::ORDERITEM_TOTAL_GROSS, line.gross);
        set(r, Col::ORDERITEM_DATE_SHIPPED, DateToSql(today));
        data.items << r;
        totals << line;
    }
    const OrderTotals sum = CalcOrderTotals(totals, false, false, 0);
    QSqlRecord& h = data.head;
    set(h, Col::ORDERHEAD_PARTNER_NAME, QStringLiteral("Minta Partner Kft."));
    set(h, Col::ORDERHEAD_PARTNER_ZIP, QStringLiteral("1011"));
    set(h, Col::ORDERHEAD_PARTNER_CITY, QStringLiteral("Budapest"));
    set(h, Col::ORDERHEAD_PARTNER_ADDRESS, QStringLiteral("Fő utca 1."));
    set(h, Col::ORDERHEAD_PARTNER_TAX_NO, QStringLiteral("12345676-2-41"));
    set(h, Col::ORDERHEAD_PARTNER_COUNTRY_NAME, QStringLiteral("Magyarország"));
    set(h, Col::ORDERHEAD_PARTNER_LANG_ID, 0);
    set(h, Col::ORDERHEAD_PAYMENTMETHOD_NAME, QStringLiteral("Átutalás"));
    set(h, Col::ORDERHEAD_DATE_SHIPPED, DateToSql(today));
    set(h, Col::ORDERHEAD_DATE_CREATED, DateToSql(today));
    set(h, Col::ORDERHEAD_DATE_PAYMENT_DUE, DateToSql(today.addDays(8)));
    set(h, Col::ORDERHEAD_CONSOLIDATED_INVOICE, FlagText(false));
    set(h, Col::ORDERHEAD_NO_VAT, FlagText(false));
    set(h, Col::ORDERHEAD_CURRENCY_ID, 0);
    set(h, Col::ORDERHEAD_CURRENCY_ABBREVIATION, QStringLiteral("Ft"));
    set(h, Col::ORDERHEAD_CURRENCY_RATE, 1.0);
    set(h, Col::ORDERHEAD_TYPE, int(OrderType::Invoice));
    const auto& columns = OrderTotals::columns();
    const auto values = sum.values();
    for (int i = 0; i < OrderTotals::Count; ++i)
        set(h, columns[i], values[i]);
    set(h, Col::ORDERHEAD_TOTAL_LOCAL_CURRENCY_NET, sum.net);
    set(h, Col::ORDERHEAD_TOTAL_LOCAL_CURRENCY_VAT, sum.vat);
    set(h, Col::ORDERHEAD_TOTAL_LOCAL_CURRENCY_GROSS, sum.gross);
    return Result::success();
}

Result InvoiceRender::render(const InvoiceData& data, const InvoiceTemplate& invoiceTemplate,
                             const LabelTranslations& labels, FrozenInvoice& invoice)
{
    return Renderer(data, invoiceTemplate, labels).run(invoice);
}

Result RenderInvoice(qint64 orderId, const InvoiceTemplate& invoiceTemplate,
                     const LabelTranslations& labels, FrozenInvoice& invoice)
{
    InvoiceData data;
    if (Result r = InvoiceRender::load(orderId, data); !r)
        return r;
    if (Result r = InvoiceRender::render(data, invoiceTemplate, labels, invoice); !r)
        return r;
    // A logo that can not print would only fail at the first copy, after the number is given.
    if (!LogoObject(invoice))
        return LogoFailure();
    return Result::success();
}

QString InvoiceTitle(int type, int copyIndex, bool consolidated, const QVariant& language,
                     const LabelTranslations& labels)
{
    QString hungarian;
    QString key;
    if (type == int(OrderType::CancellingInvoice)) {
        hungarian = QStringLiteral("Sztornó számla");
        key = QStringLiteral("TR_CANCELLING_INVOICE");
    } else if (type == int(OrderType::Invoice)) {
        hungarian = consolidated ? QStringLiteral("Gyűjtőszámla") : QStringLiteral("Számla");
        key =
            consolidated ? QStringLiteral("TR_CONSOLIDATED_INVOICE") : QStringLiteral("TR_INVOICE");
    } else {
        return QStringLiteral("Error: invalid ORDERHEAD_TYPE");
    }
    const int lang = int(ToInteger(language));
    QString translated = labels.get(key, lang);
    if (copyIndex >= 1) {
        hungarian += QStringLiteral(" (másolat)");
        translated += u' ' + labels.get(QStringLiteral("TR_COPY_IN_PAR"), lang);
    }
    if (!labels.get(key, lang).isEmpty() && lang != LabelTranslations::Hungarian)
        return hungarian + QStringLiteral(" / ") + translated;
    return hungarian;
}

QString InvoiceCopyMark(int copyNumber, const QVariant& language, const LabelTranslations& labels)
{
    QString mark = QString::number(copyNumber) + u'.';
    if (copyNumber != 1)
        return mark;
    const QString key = QStringLiteral("TR_ORIGINAL_COPY");
    QString hungarian = labels.get(key, LabelTranslations::Hungarian);
    if (hungarian.isEmpty())
        hungarian = InvoiceRender::tr("Original copy");
    const int lang = int(ToInteger(language));
    const QString translated =
        lang == LabelTranslations::Hungarian ? QString() : labels.get(key, lang);
    return mark + QStringLiteral(" (") +
           (translated.isEmpty() ? hungarian : translated + u'/' + hungarian) + u')';
}

Result PrintCopy(Report& report, const FrozenInvoice& invoice, const InvoiceCopy& copy,
                 const LabelTranslations& labels)
{
    const std::optional<QString> logo = LogoObject(invoice);
    if (!logo)
        return LogoFailure();
    PlaceholderMap marks;
    SetText(marks, QStringLiteral("P.TITLE"),
            copy.sample ? InvoiceRender::tr("Invoice Sample")
                        : InvoiceTitle(copy.type, copy.copyIndex, copy.consolidated, copy.language,
                                       labels));
    marks.set(QStringLiteral("P.LOGO"), *logo);
    SetText(marks, QStringLiteral("P.COPY"),
            InvoiceCopyMark(copy.copyIndex + 1, copy.language, labels));
    SetText(marks, QStringLiteral("P.INVOICE.NO.STR"), copy.numberText);
    report.setHeader(TemplateText::parse(invoice.header).fill(marks));
    report.setBody(TemplateText::parse(invoice.body).fill(marks));
    report.setFooter(TemplateText::parse(invoice.footer).fill(marks));
    return Result::success();
}
