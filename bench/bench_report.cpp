// Seconds per 1 000 table rows of a report printed to PDF, at 1 000, 10 000 and 100 000 rows,
// beside a bare Qt render of the same rows (one QTextDocument drawn to a QPdfWriter) measured in
// the same run: the ratio shows what the report's paging costs, the per-row times show growth.
// Each render runs in a process of its own, so that the peak memory shown is its own.
//
//   cmake -S . -B build -DTALLYNORTH_BENCH=ON && cmake --build build --target bench_report
//   QT_QPA_PLATFORM=offscreen ./build/bench/bench_report [rows...]
#include "documents/Report.h"

#include <QAbstractTextDocumentLayout>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QPainter>
#include <QPdfWriter>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>

#include <cstdio>
#include <sys/resource.h>

namespace {

QString Body(int rows)
{
    QString body = QStringLiteral("[*4 Sales&]{{1:4:2h1 [* No.]:: [* Item]:: [*> Amount]");
    for (int i = 1; i <= rows; ++i)
        body += QStringLiteral(":: %1:: Product number %1 of the month:: [> %2.00]")
                    .arg(i)
                    .arg(i * 7 % 10000);
    return body + QStringLiteral("}}&[* Total]");
}

double ReportSeconds(int rows, const QString& pdf)
{
    QElapsedTimer timer;
    timer.start();
    Report report;
    report.setHeader(QStringLiteral("[1 Sales report]"));
    report.setFooter(QStringLiteral("[1> $$P]"));
    report.setBody(Body(rows));
    if (!report.exportPdf(pdf)) {
        std::fprintf(stderr, "report failed at %d rows\n", rows);
        return -1;
    }
    return timer.nsecsElapsed() / 1e9;
}

// The same rows as one plain Qt table, laid out on A4 pages by Qt and drawn page by page.
double BareSeconds(int rows, const QString& pdf)
{
    QElapsedTimer timer;
    timer.start();
    QTextDocument doc;
    QTextCursor cursor(&doc);
    QTextTableFormat tf;
    tf.setHeaderRowCount(1);
    QTextTable* table = cursor.insertTable(rows + 1, 3, tf);
    for (int i = 1; i <= rows; ++i) {
        table->cellAt(i, 0).firstCursorPosition().insertText(QString::number(i));
        table->cellAt(i, 1).firstCursorPosition().insertText(
            QStringLiteral("Product number %1 of the month").arg(i));
        table->cellAt(i, 2).firstCursorPosition().insertText(
            QStringLiteral("%1.00").arg(i * 7 % 10000));
    }
    QPdfWriter writer(pdf);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setResolution(96); // the resolution the document lays out at
    QPainter painter(&writer);
    const QRectF page = writer.pageLayout().paintRectPixels(writer.resolution());
    doc.setPageSize(page.size());
    const int pages = doc.pageCount();
    for (int i = 0; i < pages; ++i) {
        if (i > 0)
            writer.newPage();
        painter.save();
        painter.translate(0, -i * page.height());
        QAbstractTextDocumentLayout::PaintContext context;
        context.clip = QRectF(0, i * page.height(), page.width(), page.height());
        painter.setClipRect(context.clip);
        doc.documentLayout()->draw(&painter, context);
        painter.restore();
    }
    return timer.nsecsElapsed() / 1e9;
}

double PeakMegabytes()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss / 1024.0;
}

// "--one report|bare ROWS": one render, printing its seconds and peak megabytes.
int RunOne(const QString& kind, int rows)
{
    QTemporaryDir dir;
    const QString pdf = dir.filePath(QStringLiteral("bench.pdf"));
    const double seconds =
        kind == QLatin1String("bare") ? BareSeconds(rows, pdf) : ReportSeconds(rows, pdf);
    std::printf("%f %f\n", seconds, PeakMegabytes());
    return seconds < 0 ? 1 : 0;
}

std::pair<double, double> Measure(const QString& kind, int rows)
{
    QProcess p;
    p.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    p.start(QCoreApplication::applicationFilePath(),
            {QStringLiteral("--one"), kind, QString::number(rows)});
    p.waitForFinished(-1);
    const QStringList out = QString::fromLatin1(p.readAllStandardOutput()).split(u' ');
    if (p.exitCode() != 0 || out.size() < 2)
        return {-1, -1};
    return {out[0].toDouble(), out[1].toDouble()};
}

} // namespace

int main(int argc, char** argv)
{
    QGuiApplication app(argc, argv);
    const QStringList args = app.arguments().mid(1);
    if (args.size() == 3 && args[0] == QLatin1String("--one"))
        return RunOne(args[1], args[2].toInt());
    QList<int> counts;
    for (const QString& a : args)
        counts << a.toInt();
    if (counts.isEmpty())
        counts = {1000, 10000, 100000};
    std::printf("%8s %12s %12s %8s %10s %10s\n", "rows", "report s/1k", "bare s/1k", "ratio",
                "report MB", "bare MB");
    for (int rows : counts) {
        const auto [bare, bareMb] = Measure(QStringLiteral("bare"), rows);
        const auto [report, reportMb] = Measure(QStringLiteral("report"), rows);
        std::printf("%8d %12.3f %12.3f %8.2f %10.0f %10.0f\n", rows, report * 1000 / rows,
                    bare * 1000 / rows, report / bare, reportMb, bareMb);
        std::fflush(stdout);
    }
    return 0;
}
