// The ui side of reports: printing through QPrinter, here into a PDF file at the printer's
// resolution.
#include "TestData.h"

#include "documents/Report.h"
#include "documents/ui/ReportPrinter.h"

#include <QPrinter>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

Report TwoPages()
{
    Report report;
    report.setHeader(u"[1 Árvíztűrő fejléc]"_s);
    report.setFooter(u"[1> $$P. oldal]"_s);
    report.setBody(u"[*4 Első oldal]^^[*4 Második oldal]"_s);
    return report;
}

} // namespace

class TestReportPrinter : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void printsAtPrinterResolutionOnTheReportsPaper()
    {
        QTemporaryDir dir;
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFileName(dir.filePath(u"printed.pdf"_s));
        PreparePrinter(printer, TwoPages());
        QVERIFY(printer.resolution() != 600);
        QVERIFY(PrintReport(TwoPages(), printer));
        const QStringList pages =
            RunProcess(u"pdftotext"_s, {u"-layout"_s, printer.outputFileName(), u"-"_s})
                .out.split(u'\f');
        QVERIFY(pages.size() >= 2);
        QVERIFY(pages[0].contains(u"Első oldal"_s) && pages[0].contains(u"1. oldal"_s));
        QVERIFY(pages[1].contains(u"Második oldal"_s) && pages[1].contains(u"2. oldal"_s) &&
                pages[1].contains(u"Árvíztűrő fejléc"_s));

        // A cheque prints on its own paper size, the default area on A4.
        Report cheque;
        cheque.setPageSize(QSize(4724, 2125));
        PreparePrinter(printer, cheque);
        const QSizeF paper = printer.pageLayout().fullRect(QPageLayout::Inch).size() * 600;
        QVERIFY2(qAbs(paper.width() - 4724) < 10 && qAbs(paper.height() - 2125) < 10,
                 qPrintable(u"%1 x %2"_s.arg(paper.width()).arg(paper.height())));
        PreparePrinter(printer, Report());
        QCOMPARE(printer.pageLayout().pageSize().id(), QPageSize::A4);
    }
};

QTEST_MAIN(TestReportPrinter)
#include "tst_reportprinter.moc"
