// The ui side of reports: printing through QPrinter (here into a PDF file at the printer's
// resolution) and the print preview window.
#include "documents/Report.h"
#include "documents/ui/ReportPrinter.h"

#include "documents/MessageText.h"

#include <QLabel>
#include <QMessageBox>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace {

QString PdfText(const QString& pdf)
{
    QProcess p;
    p.start(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), pdf, QStringLiteral("-")});
    p.waitForFinished(60000);
    return QString::fromUtf8(p.readAllStandardOutput());
}

Report TwoPages()
{
    Report report;
    report.setHeader(QStringLiteral("[1 Árvíztűrő fejléc]"));
    report.setFooter(QStringLiteral("[1> $$P. oldal]"));
    report.setBody(QStringLiteral("[*4 Első oldal]^^[*4 Második oldal]"));
    return report;
}

} // namespace

class TestReportPrinter : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void printsAtPrinterResolution();
    void paperFollowsTheReport();
    void previewShowsEveryPage();
    void messageBoxShowsRichText();
};

void TestReportPrinter::printsAtPrinterResolution()
{
    if (QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty())
        QSKIP("poppler-utils (pdftotext) is needed");
    QTemporaryDir dir;
    const Report report = TwoPages();
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(dir.filePath(QStringLiteral("printed.pdf")));
    PreparePrinter(printer, report);
    QVERIFY(printer.resolution() != 600);
    QVERIFY(PrintReport(report, printer));
    const QStringList pages = PdfText(printer.outputFileName()).split(u'\f');
    QVERIFY(pages.size() >= 2);
    QVERIFY(pages[0].contains(QStringLiteral("Első oldal")) &&
            pages[0].contains(QStringLiteral("1. oldal")));
    QVERIFY(pages[1].contains(QStringLiteral("Második oldal")) &&
            pages[1].contains(QStringLiteral("2. oldal")));
    QVERIFY(pages[1].contains(QStringLiteral("Árvíztűrő fejléc")));
}

void TestReportPrinter::paperFollowsTheReport()
{
    Report cheque;
    cheque.setPageSize(QSize(4724, 2125));
    QPrinter printer(QPrinter::HighResolution);
    PreparePrinter(printer, cheque);
    const QSizeF paper = printer.pageLayout().fullRect(QPageLayout::Inch).size() * 600;
    QVERIFY2(qAbs(paper.width() - 4724) < 10 && qAbs(paper.height() - 2125) < 10,
             qPrintable(QStringLiteral("%1 x %2").arg(paper.width()).arg(paper.height())));
    PreparePrinter(printer, Report());
    QCOMPARE(printer.pageLayout().pageSize().id(), QPageSize::A4);
}

void TestReportPrinter::previewShowsEveryPage()
{
    const Report report = TwoPages();
    QPrinter printer(QPrinter::HighResolution);
    const auto dialog = MakeReportPreview(report, printer, nullptr, QStringLiteral("Preview"));
    dialog->resize(700, 900);
    dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(dialog.get()));
    auto* view = dialog->findChild<QPrintPreviewWidget*>();
    QVERIFY(view);
    QTRY_COMPARE(view->pageCount(), 2);
    const QString shot = qEnvironmentVariable("TALLYNORTH_SNAPSHOT_DIR");
    if (!shot.isEmpty())
        dialog->grab().save(shot + QStringLiteral("/report-preview.png"));
}

// Message boxes must take the message as rich text, never show its markup.
void TestReportPrinter::messageBoxShowsRichText()
{
    const QString html =
        MessageRichText(QStringLiteral("Unable to save data.&[* Kovács `& Társa] is in use."));
    QVERIFY(Qt::mightBeRichText(html));
    QMessageBox box(QMessageBox::Warning, QStringLiteral("tallyNorth"), html);
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    bool found = false;
    for (QLabel* label : box.findChildren<QLabel*>()) {
        if (label->text() == html)
            found = label->textFormat() == Qt::RichText || Qt::mightBeRichText(label->text());
    }
    QVERIFY(found);
    const QString shot = qEnvironmentVariable("TALLYNORTH_SNAPSHOT_DIR");
    if (!shot.isEmpty())
        box.grab().save(shot + QStringLiteral("/message-box.png"));
}

QTEST_MAIN(TestReportPrinter)
#include "tst_reportprinter.moc"
