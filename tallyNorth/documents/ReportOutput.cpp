#include "ReportOutput.h"

#include "AmountFormat.h"
#include "QtfReader.h"

#include "base/DateText.h"
#include "base/MessageArgs.h"

#include <QFile>

#include <numeric>

namespace {

using Type = ReportColumn::Type;

// Cells of the rows (and totals) with a text function, the header first.
template <class F> QList<QStringList> Cells(const ReportTable& t, bool totals, F cell)
{
    QList<QStringList> lines;
    QStringList header;
    for (const ReportColumn& c : t.columns)
        header << c.title;
    lines << header;
    auto add = [&](const QVariantList& row) {
        QStringList cells;
        for (int c = 0; c < t.columns.size(); ++c)
            cells << cell(t.columns.at(c), row.value(c));
        lines << cells;
    };
    for (const QVariantList& row : t.rows)
        add(row);
    if (totals) {
        for (const QVariantList& row : t.totals)
            add(row);
    }
    return lines;
}

// One line of a cell for the clipboard: tabs and line breaks would split it.
QString OneLine(QString text)
{
    return text.replace(u'\t', u' ').replace(u'\r', u' ').replace(u'\n', u' ');
}

QString CsvCell(const QString& text)
{
    if (!text.contains(u';') && !text.contains(u'"') && !text.contains(u'\n') &&
        !text.contains(u'\r'))
        return text;
    return u'"' + QString(text).replace(QLatin1String("\""), QLatin1String("\"\"")) + u'"';
}

QString PrintedCell(const ReportColumn& c, const QVariant& v)
{
    if (!v.isValid())
        return {};
    if (c.type == Type::Number)
        return FormatAmount(v.toDouble(), c.decimals);
    if (c.type == Type::Date)
        return FormatDate(v.toDate());
    return v.toString();
}

// A column's share of the page: its longest cell, or the longest word of its title, so that
// dates and amounts stay on one line; measured over the first rows of a long list.
int Weight(const ReportTable& t, int column)
{
    const ReportColumn& c = t.columns.at(column);
    qsizetype chars = 3;
    for (const QString& word : c.title.split(u' '))
        chars = std::max(chars, word.size());
    const qsizetype sample = std::min<qsizetype>(t.rows.size(), 1000);
    for (qsizetype r = 0; r < sample; ++r)
        chars = std::max(chars, PrintedCell(c, t.rows.at(r).value(column)).size());
    for (const QVariantList& row : t.totals)
        chars = std::max(chars, PrintedCell(c, row.value(column)).size());
    return int(std::min<qsizetype>(chars, 40));
}

} // namespace

QString ReportOutput::cellText(const ReportColumn& column, const QVariant& value)
{
    if (!value.isValid() || value.isNull())
        return {};
    switch (column.type) {
    case Type::Number:
        return QString::number(value.toDouble(), 'f', column.decimals);
    case Type::Date:
        return FormatDate(value.toDate());
    case Type::Text:
        break;
    }
    return value.toString();
}

QString ReportOutput::spreadsheetText(const ReportColumn& column, const QVariant& value)
{
    if (column.type == Type::Number && value.isValid() && !value.isNull())
        return QString::number(value.toDouble(), 'f', 2).replace(u'.', u',');
    return cellText(column, value);
}

QString ReportOutput::text(const ReportTable& table)
{
    const QList<QStringList> lines = Cells(table, true, &ReportOutput::cellText);
    QList<int> widths(table.columns.size(), 0);
    for (const QStringList& line : lines) {
        for (int c = 0; c < line.size(); ++c)
            widths[c] = std::max(widths.at(c), int(line.at(c).size()));
    }
    QString out = table.title + u'\n';
    for (const QString& line : table.filterLines)
        out += line + u'\n';
    out += u'\n';
    for (int l = 0; l < lines.size(); ++l) {
        if (l == 1 + table.rows.size() && !table.totals.isEmpty())
            out += QString(std::accumulate(widths.begin(), widths.end(), 0) +
                               2 * (int(widths.size()) - 1),
                           u'-') +
                   u'\n';
        QStringList cells;
        for (int c = 0; c < lines.at(l).size(); ++c) {
            const QString& cell = lines.at(l).at(c);
            cells << (table.columns.at(c).type == Type::Number ? cell.rightJustified(widths.at(c))
                                                               : cell.leftJustified(widths.at(c)));
        }
        out += cells.join(QLatin1String("  ")).trimmed() + u'\n';
    }
    return out;
}

QString ReportOutput::tabText(const ReportTable& table)
{
    QString out;
    for (const QStringList& line : Cells(table, false, &ReportOutput::spreadsheetText)) {
        QStringList cells;
        for (const QString& cell : line)
            cells << OneLine(cell);
        out += cells.join(u'\t') + u'\n';
    }
    return out;
}

QByteArray ReportOutput::csv(const ReportTable& table)
{
    QString out;
    for (const QStringList& line : Cells(table, false, &ReportOutput::spreadsheetText)) {
        QStringList cells;
        for (const QString& cell : line)
            cells << CsvCell(cell);
        out += cells.join(u';') + QLatin1String("\r\n");
    }
    // The mark tells a spreadsheet that the file is UTF-8 (accented names).
    return QByteArray("\xEF\xBB\xBF") + out.toUtf8();
}

QString ReportOutput::qtf(const ReportTable& table, const QString& seller, const QDate& today)
{
    // Wide lists get a smaller type.
    const qsizetype columns = table.columns.size();
    const QString size = columns > 14  ? QStringLiteral("0")
                         : columns > 8 ? QStringLiteral("1")
                                       : QStringLiteral("2");
    QString out = QStringLiteral("[*4 ") + QtfEscape(table.title) + QStringLiteral("&]");
    for (const QString& line : table.filterLines)
        out += QStringLiteral("[2 ") + QtfEscape(line) + QStringLiteral("&]");
    out += QStringLiteral("[2 ") + QtfEscape(seller) + QStringLiteral("&]");
    out += QStringLiteral("[2 ") + QtfEscape(tr("Printing Date: ") + FormatDate(today)) +
           QStringLiteral("&]");
    out += QStringLiteral("[2 &]");

    QStringList widths;
    for (int c = 0; c < table.columns.size(); ++c)
        widths << QString::number(Weight(table, c));
    QStringList cells;
    for (const ReportColumn& c : table.columns) {
        const QChar align = c.type == Type::Number ? u'>' : u'<';
        cells << u'[' + size + u'*' + align + u' ' + QtfEscape(c.title) + u']';
    }
    auto addRow = [&](const QVariantList& row, bool bold) {
        for (int c = 0; c < table.columns.size(); ++c) {
            const ReportColumn& column = table.columns.at(c);
            const QChar align = column.type == Type::Number ? u'>' : u'<';
            cells << u'[' + size + (bold ? QStringLiteral("*") : QString()) + align + u' ' +
                         QtfEscape(PrintedCell(column, row.value(c))) + u']';
        }
    };
    for (const QVariantList& row : table.rows)
        addRow(row, false);
    const bool receivables = ReportQuery::isReceivables(table.kind);
    if (!receivables) {
        for (const QVariantList& row : table.totals)
            addRow(row, true);
    }
    out += QStringLiteral("{{") + widths.join(u':') + QStringLiteral("~^h1 ") +
           cells.join(QLatin1String(":: ")) + QStringLiteral("}}");
    if (receivables && !table.totals.isEmpty()) {
        // The grand total of the unpaid column, per currency.
        const int unpaid = int(table.columns.size()) - 1;
        QStringList totals;
        for (const QVariantList& row : table.totals)
            totals << QtfEscape(row.value(0).toString() + u": " +
                                PrintedCell(table.columns.at(unpaid), row.value(unpaid)));
        // Each line ends inside its block, so that every one of them is right aligned.
        out += QStringLiteral("&{{1~^ [2*> ") + totals.join(QLatin1String("&][2*> ")) +
               QStringLiteral("]}}");
    }
    return out;
}

Report ReportOutput::report(const ReportTable& table, const QString& seller, const QDate& today)
{
    Report r;
    if (table.columns.size() > 8) {
        const QSize page = Report::kDefaultPage;
        r.setPageSize(page.transposed());
        r.setPaperSize(QSizeF(297 * 600 / 25.4, 210 * 600 / 25.4));
    }
    r.setDate(today);
    r.setHeader(QStringLiteral("[1> $$D]"));
    r.setFooter(QStringLiteral("[1> $$P]"));
    r.setBody(qtf(table, seller, today));
    return r;
}

Result ReportOutput::write(const QString& path, const QByteArray& bytes)
{
    const QString temp = path + QStringLiteral(".part");
    QFile file(temp);
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush()) {
        file.close();
        QFile::remove(path);
        if (QFile::rename(temp, path))
            return Result::success();
    }
    QFile::remove(temp);
    return Result::failure(FillArgs(tr("Unable to write file %s."), {QtfEscape(path)}));
}
