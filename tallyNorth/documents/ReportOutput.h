// A report table as the list shows it, as text, as spreadsheet cells (CSV and the clipboard) and
// as its printed form.
#pragma once

#include "Report.h"
#include "ReportQuery.h"

#include <QByteArray>
#include <QDate>
#include <QString>

class ReportOutput
{
    Q_DECLARE_TR_FUNCTIONS(ReportOutput)

public:
    // A cell as the list shows it: numbers with the column's decimals and a point ("%1.2f"),
    // dates as 2024.03.05., null as empty.
    static QString cellText(const ReportColumn& column, const QVariant& value);
    // A cell for a Hungarian spreadsheet: numbers with two decimals and a decimal comma, no
    // grouping; dates as 2024.03.05.
    static QString spreadsheetText(const ReportColumn& column, const QVariant& value);

    // "Export TXT" and the command line: the title, the filter lines, the columns padded to
    // their widest cell (numbers right aligned) and the closing totals.
    static QString text(const ReportTable& table);
    // "Copy": the header and the rows, cells tab-separated, lines ended by a line feed.
    static QString tabText(const ReportTable& table);
    // "Export CSV": UTF-8 with a byte order mark, ";" between cells, CRLF line ends, cells quoted
    // when they hold a ";", a quote or a line break.
    static QByteArray csv(const ReportTable& table);

    // The printed form as QTF: the title, the filter lines, the seller's name, "Printing Date: "
    // and the list with its totals (receivables: the totals in a second table under it).
    static QString qtf(const ReportTable& table, const QString& seller, const QDate& today);
    // The paged report of qtf(), the date in each page's header; wide lists on landscape paper.
    static Report report(const ReportTable& table, const QString& seller,
                         const QDate& today = QDate::currentDate());
    // Writes an export beside the target first, so that a failed write leaves an older export
    // whole.
    static Result write(const QString& path, const QByteArray& bytes);
};
