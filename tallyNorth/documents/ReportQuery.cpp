#include "ReportQuery.h"

#include "StatementProgress.h"

#include "orders/ConvertOrderType.h"

#include "Columns.h"
#include "base/DateText.h"
#include "base/FoldName.h"
#include "base/Interaction.h"
#include "base/SqlStatement.h"
#include "base/SqlValue.h"

#include <QHash>
#include <QMap>
#include <QSqlError>

namespace {

using Type = ReportColumn::Type;

ReportColumn Text(const QString& title)
{
    return {title, Type::Text, 0, false};
}
ReportColumn Date(const QString& title)
{
    return {title, Type::Date, 0, false};
}
ReportColumn Amount(const QString& title, int decimals)
{
    return {title, Type::Number, decimals, true};
}

// How each selected value becomes a cell; the order of the select list.
enum class Cell { Text, Date, Number, Kind, Id };

struct Query
{
    QStringList select; // expressions, one per Cell
    QList<Cell> cells;
    QList<ReportColumn> columns; // one per cell except Id; Kind takes five values
    QString from;
    QString group;
    QString order;
    int currencyColumn = -1; // the column naming the currency, when there is one
};

void Add(Query& q, const QString& expression, Cell cell, const ReportColumn& column)
{
    q.select << expression;
    q.cells << cell;
    q.columns << column;
}

QString SalesFrom()
{
    return Sql("%1 join %2 on %3 = %4",
               {Tbl::ORDERITEM, Tbl::ORDERHEAD, Col::ORDERHEAD_ID, Col::ORDERITEM_ORDERHEAD_ID});
}

// A column shown as it is stored.
void AddText(Query& q, const char* column, const char* title)
{
    Add(q, ColumnName(column), Cell::Text, Text(ReportQuery::tr(title)));
}

// The invoice's id, not shown, and its number: the first columns of a row per invoice.
void AddInvoiceNo(Query& q)
{
    q.select << ColumnName(Col::ORDERHEAD_ID);
    q.cells << Cell::Id;
    AddText(q, Col::ORDERHEAD_INVOICE_NO_STR, QT_TRANSLATE_NOOP("ReportQuery", "Invoice No"));
}

// The three dates of an invoice; shipped is the item's own on a row per item.
void AddDates(Query& q, const char* shipped)
{
    Add(q, ColumnName(shipped), Cell::Date, Date(ReportQuery::tr("Date Shipped")));
    Add(q, ColumnName(Col::ORDERHEAD_DATE_CREATED), Cell::Date,
        Date(ReportQuery::tr("Date Created")));
    Add(q, ColumnName(Col::ORDERHEAD_DATE_PAYMENT_DUE), Cell::Date,
        Date(ReportQuery::tr("Date Payment Due")));
}

// The items' net, VAT and gross amounts, summed by the report's groups or one item's own.
void AddAmounts(Query& q, bool local, int decimals, bool summed)
{
    const char* const columns[] = {
        local ? Col::ORDERITEM_TOTAL_LOCAL_CURRENCY_NET : Col::ORDERITEM_TOTAL_NET,
        local ? Col::ORDERITEM_TOTAL_LOCAL_CURRENCY_VAT : Col::ORDERITEM_TOTAL_VAT,
        local ? Col::ORDERITEM_TOTAL_LOCAL_CURRENCY_GROSS : Col::ORDERITEM_TOTAL_GROSS};
    const char* const titles[] = {QT_TRANSLATE_NOOP("ReportQuery", "Net"),
                                  QT_TRANSLATE_NOOP("ReportQuery", "VAT"),
                                  QT_TRANSLATE_NOOP("ReportQuery", "Gross")};
    for (int i = 0; i < 3; ++i)
        Add(q, summed ? Sql("sum(%1)", {columns[i]}) : ColumnName(columns[i]), Cell::Number,
            Amount(ReportQuery::tr(titles[i]), decimals));
}

void AddCurrency(Query& q)
{
    q.currencyColumn = int(q.columns.size());
    AddText(q, Col::ORDERHEAD_CURRENCY_ABBREVIATION, QT_TRANSLATE_NOOP("ReportQuery", "Currency"));
}

void AddKind(Query& q)
{
    // ConvertOrderType reads five columns; the report shows one text.
    q.select << ColumnName(Col::ORDERHEAD_TYPE) << ColumnName(Col::ORDERHEAD_VERIFIED)
             << ColumnName(Col::ORDERHEAD_INVOICE_NO)
             << ColumnName(Col::ORDERHEAD_CANCELLING_INVOICE_NO)
             << ColumnName(Col::ORDERHEAD_CONSOLIDATED_INVOICE);
    q.cells << Cell::Kind;
    q.columns << Text(ReportQuery::tr("Kind"));
}

Query Build(ReportKind kind, bool local)
{
    Query q;
    const QString currency = ColumnName(Col::ORDERHEAD_CURRENCY_ABBREVIATION);
    const ReportColumn quantity{ReportQuery::tr("Qty"), Type::Number, 2, false};
    switch (kind) {
    case ReportKind::ProductsSold:
        q.from = SalesFrom();
        AddText(q, Col::ORDERITEM_NAME, QT_TRANSLATE_NOOP("ReportQuery", "Product Name"));
        Add(q, Sql("sum(%1)", {Col::ORDERITEM_QTY}), Cell::Number, quantity);
        AddText(q, Col::ORDERITEM_UNIT, QT_TRANSLATE_NOOP("ReportQuery", "Unit"));
        if (!local)
            AddCurrency(q);
        AddAmounts(q, local, 2, true);
        q.group = q.order = Sql("%1, %2", {Col::ORDERITEM_NAME, Col::ORDERITEM_UNIT});
        break;
    case ReportKind::Customers:
        q.from = SalesFrom();
        AddText(q, Col::ORDERHEAD_PARTNER_NAME, QT_TRANSLATE_NOOP("ReportQuery", "Partner Name"));
        if (!local)
            AddCurrency(q);
        AddAmounts(q, local, 0, true);
        q.group = q.order = ColumnName(Col::ORDERHEAD_PARTNER_NAME);
        break;
    case ReportKind::Invoices:
        q.from = SalesFrom();
        AddInvoiceNo(q);
        AddText(q, Col::ORDERHEAD_PARTNER_NAME, QT_TRANSLATE_NOOP("ReportQuery", "Partner Name"));
        AddText(q, Col::ORDERHEAD_PARTNER_CITY, QT_TRANSLATE_NOOP("ReportQuery", "City"));
        AddText(q, Col::ORDERHEAD_PARTNER_ADDRESS, QT_TRANSLATE_NOOP("ReportQuery", "Address"));
        AddDates(q, Col::ORDERHEAD_DATE_SHIPPED);
        AddCurrency(q);
        AddAmounts(q, local, 0, true);
        AddText(q, Col::ORDERHEAD_PAYMENTMETHOD_NAME,
                QT_TRANSLATE_NOOP("ReportQuery", "Payment Method"));
        AddKind(q);
        q.group = ColumnName(Col::ORDERHEAD_ID);
        q.order = Sql("%1, %2", {Col::ORDERHEAD_INVOICE_NO_STR, Col::ORDERHEAD_ID});
        return q;
    case ReportKind::InvoiceItems:
        q.from = SalesFrom();
        AddInvoiceNo(q);
        AddText(q, Col::ORDERHEAD_PARTNER_NAME, QT_TRANSLATE_NOOP("ReportQuery", "Partner Name"));
        AddText(q, Col::ORDERHEAD_PARTNER_ZIP, QT_TRANSLATE_NOOP("ReportQuery", "ZIP"));
        AddText(q, Col::ORDERHEAD_PARTNER_CITY, QT_TRANSLATE_NOOP("ReportQuery", "City"));
        AddText(q, Col::ORDERHEAD_PARTNER_ADDRESS, QT_TRANSLATE_NOOP("ReportQuery", "Address"));
        AddDates(q, Col::ORDERITEM_DATE_SHIPPED);
        AddText(q, Col::ORDERHEAD_PAYMENTMETHOD_NAME,
                QT_TRANSLATE_NOOP("ReportQuery", "Payment Method"));
        AddKind(q);
        AddText(q, Col::ORDERITEM_STAT_NO, QT_TRANSLATE_NOOP("ReportQuery", "Stat No"));
        AddText(q, Col::ORDERITEM_NAME, QT_TRANSLATE_NOOP("ReportQuery", "Product Name"));
        Add(q, ColumnName(Col::ORDERITEM_QTY), Cell::Number, quantity);
        AddText(q, Col::ORDERITEM_UNIT, QT_TRANSLATE_NOOP("ReportQuery", "Unit"));
        AddCurrency(q);
        AddAmounts(q, local, 2, false);
        q.order = Sql("%1, %2", {Col::ORDERHEAD_INVOICE_NO_STR, Col::ORDERITEM_ID});
        return q;
    case ReportKind::ReceivablesByInvoices:
        q.from = ColumnName(Tbl::ORDERHEAD);
        AddInvoiceNo(q);
        AddText(q, Col::ORDERHEAD_PARTNER_NAME, QT_TRANSLATE_NOOP("ReportQuery", "Partner Name"));
        AddDates(q, Col::ORDERHEAD_DATE_SHIPPED);
        AddCurrency(q);
        Add(q,
            ColumnName(local ? Col::ORDERHEAD_TOTAL_LOCAL_CURRENCY_GROSS
                             : Col::ORDERHEAD_TOTAL_GROSS),
            Cell::Number, Amount(ReportQuery::tr("Gross"), 0));
        // A null unpaid total stays null in either currency.
        Add(q,
            local ? Sql("%1 * %2", {Col::ORDERHEAD_CURRENCY_RATE, Col::ORDERHEAD_UNPAID_TOTAL})
                  : ColumnName(Col::ORDERHEAD_UNPAID_TOTAL),
            Cell::Number, Amount(ReportQuery::tr("Unpaid Total"), 0));
        q.order = Sql("%1, %2", {Col::ORDERHEAD_INVOICE_NO_STR, Col::ORDERHEAD_ID});
        return q;
    case ReportKind::ReceivablesByPartners:
        q.from = ColumnName(Tbl::ORDERHEAD);
        AddText(q, Col::ORDERHEAD_PARTNER_NAME, QT_TRANSLATE_NOOP("ReportQuery", "Partner Name"));
        if (!local)
            AddCurrency(q);
        Add(q,
            local ? Sql("sum(%1 * %2)", {Col::ORDERHEAD_CURRENCY_RATE, Col::ORDERHEAD_UNPAID_TOTAL})
                  : Sql("sum(%1)", {Col::ORDERHEAD_UNPAID_TOTAL}),
            Cell::Number, Amount(ReportQuery::tr("Unpaid Total"), 0));
        q.group = q.order = ColumnName(Col::ORDERHEAD_PARTNER_NAME);
        break;
    }
    // The grouping reports: in original currency each currency is a group of its own.
    if (!local) {
        q.group += u", " + currency;
        q.order += u", " + currency;
    }
    return q;
}

QString DateColumn(ReportDate type)
{
    switch (type) {
    case ReportDate::Shipped:
        // The item's own date: a consolidated invoice is split by its items' days.
        return ColumnName(Col::ORDERITEM_DATE_SHIPPED);
    case ReportDate::Created:
        return ColumnName(Col::ORDERHEAD_DATE_CREATED);
    case ReportDate::PaymentDue:
        return ColumnName(Col::ORDERHEAD_DATE_PAYMENT_DUE);
    }
    return {};
}

// A stored ISO date read without the general parser: a long list reads one per row.
QDate SqlDate(const QVariant& v)
{
    if (v.typeId() == QMetaType::QString) {
        const QString& t = *static_cast<const QString*>(v.constData());
        const auto digit = [&t](int i) { return t.at(i).unicode() - u'0'; };
        if (t.size() >= 10 && t.at(4) == u'-' && t.at(7) == u'-') {
            const QDate d(digit(0) * 1000 + digit(1) * 100 + digit(2) * 10 + digit(3),
                          digit(5) * 10 + digit(6), digit(8) * 10 + digit(9));
            if (d.isValid())
                return d;
        }
    }
    return DateFromSql(v);
}

// A cell as read, moved rather than copied where it already has its type: a long list reads
// millions of them.
QVariant CellValue(QVariant&& v, Cell cell)
{
    if (v.isNull())
        return {};
    switch (cell) {
    case Cell::Date:
        return SqlDate(v);
    case Cell::Number:
        if (v.typeId() == QMetaType::Double)
            return std::move(v);
        return IsNullValue(v) ? QVariant() : QVariant(ToNumber(v));
    default:
        if (v.typeId() == QMetaType::QString)
            return std::move(v);
        return v.toString();
    }
}

// The status texts of the rows: few distinct states, each translated once per run.
class KindTexts
{
public:
    QString text(const QVariant& type, const QVariant& verified, const QVariant& invoiceNo,
                 const QVariant& cancellingNo, const QVariant& consolidated)
    {
        const qint64 t = IsNullValue(type) ? -1 : ToInteger(type, -2);
        const int key = int((t + 2) << 4) | (IsFlagSet(verified) ? 1 : 0) |
                        (IsNullValue(invoiceNo) ? 2 : 0) | (IsNullValue(cancellingNo) ? 4 : 0) |
                        (IsFlagSet(consolidated) ? 8 : 0);
        const auto it = m_texts.constFind(key);
        if (it != m_texts.cend())
            return *it;
        const QString text =
            ConvertOrderType(type, verified, invoiceNo, cancellingNo, consolidated).text;
        // Types beyond the two known ones all read as unknown; keep them out of the cache.
        if (t >= -1 && t <= 1)
            m_texts.insert(key, text);
        return text;
    }

private:
    QHash<int, QString> m_texts;
};

} // namespace

int ReportTable::columnIndex(const QString& title) const
{
    for (int i = 0; i < columns.size(); ++i) {
        if (columns.at(i).title == title)
            return i;
    }
    return -1;
}

bool ReportQuery::isReceivables(ReportKind kind)
{
    return kind == ReportKind::ReceivablesByInvoices || kind == ReportKind::ReceivablesByPartners;
}

QString ReportQuery::title(ReportKind kind, ReportCurrency currency)
{
    const bool local = currency == ReportCurrency::Local;
    switch (kind) {
    case ReportKind::ProductsSold:
        return local ? tr("Products Sold Report In Local Currency (HUF)")
                     : tr("Products Sold Report In Original Currency");
    case ReportKind::Customers:
        return local ? tr("Customers Report In Local Currency (HUF)")
                     : tr("Customers Report In Original Currency");
    case ReportKind::Invoices:
        return local ? tr("Outgoing Invoices In Local Currency (HUF)")
                     : tr("Outgoing Invoices In Original Currency");
    case ReportKind::InvoiceItems:
        return local ? tr("Outgoing Invoice Items In Local Currency (HUF)")
                     : tr("Outgoing Invoice Items In Original Currency");
    case ReportKind::ReceivablesByInvoices:
        return local ? tr("Kifizetetlen szamlak In Local Currency (HUF)")
                     : tr("Kifizetetlen szamlak In Original Currency");
    case ReportKind::ReceivablesByPartners:
        return local ? tr("Tartozo partnerek In Local Currency (HUF)")
                     : tr("Tartozo partnerek In Original Currency");
    }
    return {};
}

QString ReportQuery::dateTypeText(ReportDate type)
{
    switch (type) {
    case ReportDate::Shipped:
        return tr("Filter by date shipped");
    case ReportDate::Created:
        return tr("Filter by date created");
    case ReportDate::PaymentDue:
        return tr("Filter by payment due");
    }
    return {};
}

std::pair<QDate, QDate> ReportQuery::daysAgoRange(int days1, int days2, const QDate& today)
{
    const QDate a = today.addDays(-days1);
    const QDate b = today.addDays(-days2);
    return a <= b ? std::pair{a, b} : std::pair{b, a};
}

Result ReportQuery::run(ReportKind kind, const ReportFilter& filter, ReportTable& table,
                        Progress* progress)
{
    const bool local = filter.currency == ReportCurrency::Local;
    const bool receivables = isReceivables(kind);
    const Query q = Build(kind, local);

    QStringList where;
    QVariantList binds;
    QStringList lines;
    if (filter.byPartner) {
        lines << tr("Partner: ") + filter.partnerText;
        if (filter.partnerId > 0) {
            // By id: a partner renamed since keeps its invoices.
            where << Sql("%1 = ?", {Col::ORDERHEAD_PARTNER_ID});
            binds << filter.partnerId;
        } else {
            // A range on the folded name: its index serves it, and the typed text has no
            // wildcards of its own as it would under "like".
            const QString prefix = FoldName(filter.partnerText.trimmed());
            where << Sql("%1 >= ? and %1 < ?", {Col::ORDERHEAD_PARTNER_NAME_ASCII});
            binds << prefix << QString(prefix + QChar(0xFFFF));
        }
    }
    if (filter.byDate) {
        const ReportDate type = receivables ? ReportDate::PaymentDue : filter.dateType;
        if (!filter.from.isValid() || !filter.to.isValid())
            return Result::failure(tr("Error"));
        where << DateColumn(type) + QStringLiteral(" between ? and ?");
        binds << DateToSql(filter.from) << DateToSql(filter.to);
        lines << (receivables ? tr("Filter by payment due") : dateTypeText(type)) + u": " +
                     FormatDate(filter.from) + u" - " + FormatDate(filter.to);
    }
    if (receivables) {
        where << Sql("%1 is not null", {Col::ORDERHEAD_INVOICE_NO})
              << Sql("coalesce(%1, '0') <> '1'", {Col::ORDERHEAD_PAID});
    } else {
        // Every issued invoice counts, cancelling invoices included.
        where << Sql("%1 is not null", {Col::ORDERHEAD_INVOICE_NO_STR});
    }
    QString text = u"select " + q.select.join(u", ") + u" from " + q.from + u" where " +
                   where.join(QLatin1String(" and "));
    if (!q.group.isEmpty())
        text += u" group by " + q.group;
    text += u" order by " + q.order;

    SqlStatement st(text, binds);
    st.query().setForwardOnly(true);
    // Grouping a million rows happens before the first row comes: the window is kept alive and
    // can stop the statement meanwhile.
    StatementProgress watch(progress, Database::session());
    if (progress)
        progress->setTotal(0);
    if (!st.exec())
        return watch.cancelled() ? Result::failure(QString()) : st.failure(st.errorText());

    ReportTable out;
    out.kind = kind;
    out.title = title(kind, filter.currency);
    out.columns = q.columns;
    out.filterLines = lines;
    KindTexts kinds;
    int read = 0;
    while (st.next()) {
        if (progress && ++read % 1000 == 0 && progress->canceled())
            return Result::failure(QString());
        if (watch.cancelled())
            return Result::failure(QString());
        QVariantList row;
        row.reserve(q.columns.size());
        int i = 0;
        for (const Cell cell : q.cells) {
            if (cell == Cell::Id) {
                out.orderIds << ToInteger(st.value(i++));
            } else if (cell == Cell::Kind) {
                row << kinds.text(st.value(i), st.value(i + 1), st.value(i + 2), st.value(i + 3),
                                  st.value(i + 4));
                i += 5;
            } else {
                row << CellValue(st.value(i++), cell);
            }
        }
        out.rows << std::move(row);
    }
    if (watch.cancelled())
        return Result::failure(QString());
    if (st.query().lastError().isValid())
        return st.failure(st.errorText());

    // Totals: one row per currency in original currency, else one. Plain sums while the rows
    // stream past, the currency of the previous row tried first.
    QList<int> summed;
    for (int c = 0; c < out.columns.size(); ++c) {
        if (out.columns.at(c).sum)
            summed << c;
    }
    QMap<QString, std::vector<double>> sums;
    std::vector<double>* current = nullptr;
    QString currentKey;
    for (const QVariantList& row : std::as_const(out.rows)) {
        const QString key =
            local || q.currencyColumn < 0 ? QString() : row.at(q.currencyColumn).toString();
        if (!current || key != currentKey) {
            auto it = sums.find(key);
            if (it == sums.end())
                it = sums.insert(key, std::vector<double>(summed.size(), 0.0));
            current = &*it;
            currentKey = key;
        }
        for (qsizetype k = 0; k < summed.size(); ++k)
            (*current)[k] += row.at(summed.at(k)).toDouble(); // null counts as 0
    }
    for (auto it = sums.cbegin(); it != sums.cend(); ++it) {
        QVariantList total(out.columns.size());
        total[0] = local ? tr("Total") : tr("Total (%1)").arg(it.key());
        if (q.currencyColumn >= 0 && !local)
            total[q.currencyColumn] = it.key();
        for (qsizetype k = 0; k < summed.size(); ++k)
            total[summed.at(k)] = it.value().at(k);
        out.totals << total;
    }
    table = std::move(out);
    return Result::success();
}
