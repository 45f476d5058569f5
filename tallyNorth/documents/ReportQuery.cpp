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

// The three amount sums of the sales reports.
void AddSums(Query& q, bool local, int decimals)
{
    const char* net = local ? Col::ORDERITEM_TOTAL_LOCAL_CURRENCY_NET : Col::ORDERITEM_TOTAL_NET;
    const char* vat = local ? Col::ORDERITEM_TOTAL_LOCAL_CURRENCY_VAT : Col::ORDERITEM_TOTAL_VAT;
    const char* gross =
        local ? Col::ORDERITEM_TOTAL_LOCAL_CURRENCY_GROSS : Col::ORDERITEM_TOTAL_GROSS;
    Add(q, Sql("sum(%1)", {net}), Cell::Number, Amount(ReportQuery::tr("Net"), decimals));
    Add(q, Sql("sum(%1)", {vat}), Cell::Number, Amount(ReportQuery::tr("VAT"), decimals));
    Add(q, Sql("sum(%1)", {gross}), Cell::Number, Amount(ReportQuery::tr("Gross"), decimals));
}

void AddCurrency(Query& q)
{
    q.currencyColumn = int(q.columns.size());
    Add(q, ColumnName(Col::ORDERHEAD_CURRENCY_ABBREVIATION), Cell::Text,
        Text(ReportQuery::tr("Currency")));
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
    switch (kind) {
    case ReportKind::ProductsSold:
        q.from = SalesFrom();
        Add(q, ColumnName(Col::ORDERITEM_NAME), Cell::Text, Text(ReportQuery::tr("Product Name")));
        Add(q, Sql("sum(%1)", {Col::ORDERITEM_QTY}), Cell::Number,
            {ReportQuery::tr("Qty"), Type::Number, 2, false});
        Add(q, ColumnName(Col::ORDERITEM_UNIT), Cell::Text, Text(ReportQuery::tr("Unit")));
        if (!local)
            AddCurrency(q);
        AddSums(q, local, 2);
        q.group = Sql("%1, %2", {Col::ORDERITEM_NAME, Col::ORDERITEM_UNIT});
        q.order = Sql("%1, %2", {Col::ORDERITEM_NAME, Col::ORDERITEM_UNIT});
        break;
    case ReportKind::Customers:
        q.from = SalesFrom();
        Add(q, ColumnName(Col::ORDERHEAD_PARTNER_NAME), Cell::Text,
            Text(ReportQuery::tr("Partner Name")));
        if (!local)
            AddCurrency(q);
        AddSums(q, local, 0);
        q.group = q.order = ColumnName(Col::ORDERHEAD_PARTNER_NAME);
        break;
    case ReportKind::Invoices:
        q.from = SalesFrom();
        q.select << ColumnName(Col::ORDERHEAD_ID);
        q.cells << Cell::Id;
        Add(q, ColumnName(Col::ORDERHEAD_INVOICE_NO_STR), Cell::Text,
            Text(ReportQuery::tr("Invoice No")));
        Add(q, ColumnName(Col::ORDERHEAD_PARTNER_NAME), Cell::Text,
            Text(ReportQuery::tr("Partner Name")));
        Add(q, ColumnName(Col::ORDERHEAD_PARTNER_CITY), Cell::Text, Text(ReportQuery::tr("City")));
        Add(q, ColumnName(Col::ORDERHEAD_PARTNER_ADDRESS), Cell::Text,
            Text(ReportQuery::tr("Address")));
        Add(q, ColumnName(Col::ORDERHEAD_DATE_SHIPPED), Cell::Date,
            Date(ReportQuery::tr("Date Shipped")));
        Add(q, ColumnName(Col::ORDERHEAD_DATE_CREATED), Cell::Date,
            Date(ReportQuery::tr("Date Created")));
        Add(q, ColumnName(Col::ORDERHEAD_DATE_PAYMENT_DUE), Cell::Date,
            Date(ReportQuery::tr("Date Payment Due")));
        AddCurrency(q);
        AddSums(q, local, 0);
        Add(q, ColumnName(Col::ORDERHEAD_PAYMENTMETHOD_NAME), Cell::Text,
            Text(ReportQuery::tr("Payment Method")));
        AddKind(q);
        q.group = ColumnName(Col::ORDERHEAD_ID);
        q.order = Sql("%1, %2", {Col::ORDERHEAD_INVOICE_NO_STR, Col::ORDERHEAD_ID});
        return q;
    case ReportKind::InvoiceItems:
        q.from = SalesFrom();
        q.select << ColumnName(Col::ORDERHEAD_ID);
        q.cells << Cell::Id;
        Add(q, ColumnName(Col::ORDERHEAD_INVOICE_NO_STR), Cell::Text,
            Text(ReportQuery::tr("Invoice No")));
        Add(q, ColumnName(Col::ORDERHEAD_PARTNER_NAME), Cell::Text,
            Text(ReportQuery::tr("Partner Name")));
        Add(q, ColumnName(Col::ORDERHEAD_PARTNER_ZIP), Cell::Text, Text(ReportQuery::tr("ZIP")));
        Add(q, ColumnName(Col::ORDERHEAD_PARTNER_CITY), Cell::Text, Text(ReportQuery::tr("City")));
        Add(q, ColumnName(Col::ORDERHEAD_PARTNER_ADDRESS), Cell::Text,
            Text(ReportQuery::tr("Address")));
        Add(q, ColumnName(Col::ORDERITEM_DATE_SHIPPED), Cell::Date,
            Date(ReportQuery::tr("Date Shipped")));
        Add(q, ColumnName(Col::ORDERHEAD_DATE_CREATED), Cell::Date,
            Date(ReportQuery::tr("Date Created")));
        Add(q, ColumnName(Col::ORDERHEAD_DATE_PAYMENT_DUE), Cell::Date,
            Date(ReportQuery::tr("Date Payment Due")));
        Add(q, ColumnName(Col::ORDERHEAD_PAYMENTMETHOD_NAME), Cell::Text,
            Text(ReportQuery::tr("Payment Method")));
        AddKind(q);
        Add(q, ColumnName(Col::ORDERITEM_STAT_NO), Cell::Text, Text(ReportQuery::tr("Stat No")));
        Add(q, ColumnName(Col::ORDERITEM_NAME), Cell::Text, Text(ReportQuery::tr("Product Name")));
        Add(q, ColumnName(Col::ORDERITEM_QTY), Cell::Number,
            {ReportQuery::tr("Qty"), Type::Number, 2, false});
        Add(q, ColumnName(Col::ORDERITEM_UNIT), Cell::Text, Text(ReportQuery::tr("Unit")));
        AddCurrency(q);
        Add(q,
            ColumnName(local ? Col::ORDERITEM_TOTAL_LOCAL_CURRENCY_NET : Col::ORDERITEM_TOTAL_NET),
            Cell::Number, Amount(ReportQuery::tr("Net"), 2));
        Add(q,
            ColumnName(local ? Col::ORDERITEM_TOTAL_LOCAL_CURRENCY_VAT : Col::ORDERITEM_TOTAL_VAT),
            Cell::Number, Amount(ReportQuery::tr("VAT"), 2));
        Add(q,
            ColumnName(local ? Col::ORDERITEM_TOTAL_LOCAL_CURRENCY_GROSS
                             : Col::ORDERITEM_TOTAL_GROSS),
            Cell::Number, Amount(ReportQuery::tr("Gross"), 2));
        q.order = Sql("%1, %2", {Col::ORDERHEAD_INVOICE_NO_STR, Col::ORDERITEM_ID});
        return q;
    case ReportKind::ReceivablesByInvoices:
        q.from = ColumnName(Tbl::ORDERHEAD);
        q.select << ColumnName(Col::ORDERHEAD_ID);
        q.cells << Cell::Id;
        Add(q, ColumnName(Col::ORDERHEAD_INVOICE_NO_STR), Cell::Text,
            Text(ReportQuery::tr("Invoice No")));
        Add(q, ColumnName(Col::ORDERHEAD_PARTNER_NAME), Cell::Text,
            Text(ReportQuery::tr("Partner Name")));
        Add(q, ColumnName(Col::ORDERHEAD_DATE_SHIPPED), Cell::Date,
            Date(ReportQuery::tr("Date Shipped")));
        Add(q, ColumnName(Col::ORDERHEAD_DATE_CREATED), Cell::Date,
            Date(ReportQuery::tr("Date Created")));
        Add(q, ColumnName(Col::ORDERHEAD_DATE_PAYMENT_DUE), Cell::Date,
            Date(ReportQuery::tr("Date Payment Due")));
        AddCurrency(q);
        Add(q,
            local ? ColumnName(Col::ORDERHEAD_TOTAL_LOCAL_CURRENCY_GROSS)
                  : ColumnName(Col::ORDERHEAD_TOTAL_GROSS),
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
        Add(q, ColumnName(Col::ORDERHEAD_PARTNER_NAME), Cell::Text,
            Text(ReportQuery::tr("Partner Name")));
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
