// QTF laid out as rich text and printed in pages: units, spacing, tables, header and footer on
// every page, page numbers, page sizes. PDFs are read back with poppler's pdftotext/pdfinfo.
#include "documents/MessageText.h"
#include "documents/QtfReader.h"
#include "documents/QtfTextDocument.h"
#include "documents/Report.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextTable>
#include <QtTest>

namespace {

std::unique_ptr<QTextDocument> Dots(const QString& qtf, int width = 3968)
{
    QtfLayout layout;
    layout.units = QtfUnits::Dots;
    layout.width = width;
    auto doc = QtfToTextDocument(qtf, layout);
    doc->documentLayout()->documentSize(); // lays it out
    return doc;
}

QTextBlock BlockWithText(const QTextDocument& doc, const QString& text)
{
    for (QTextBlock b = doc.begin(); b.isValid(); b = b.next()) {
        if (b.text() == text)
            return b;
    }
    return QTextBlock();
}

QRectF BlockRect(const QTextDocument& doc, const QString& text)
{
    return doc.documentLayout()->blockBoundingRect(BlockWithText(doc, text));
}

QTextTable* FirstTable(const QTextDocument& doc)
{
    for (QTextFrame* f : doc.rootFrame()->childFrames()) {
        if (auto* t = qobject_cast<QTextTable*>(f))
            return t;
    }
    return nullptr;
}

// The text of each page of a PDF.
QStringList PdfPages(const QString& pdf)
{
    QProcess p;
    p.start(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), pdf, QStringLiteral("-")});
    if (!p.waitForFinished(60000) || p.exitCode() != 0)
        return {};
    QStringList pages = QString::fromUtf8(p.readAllStandardOutput()).split(u'\f');
    if (!pages.isEmpty() && pages.last().trimmed().isEmpty())
        pages.removeLast();
    return pages;
}

QString PdfInfo(const QString& pdf, const QString& key)
{
    QProcess p;
    p.start(QStringLiteral("pdfinfo"), {pdf});
    p.waitForFinished(60000);
    for (const QString& line : QString::fromUtf8(p.readAllStandardOutput()).split(u'\n')) {
        if (line.startsWith(key + u':'))
            return line.mid(key.size() + 1).trimmed();
    }
    return QString();
}

QString LongTable(int rows)
{
    QString qtf = QStringLiteral("[*4 Tételek&]{{1:3:1h1 [* Sor]:: [* Megnevezés]:: [*> Összeg]");
    for (int i = 1; i <= rows; ++i)
        qtf += QStringLiteral(":: %1.:: Árvíztűrő tükörfúrógép %1:: [> %2]").arg(i).arg(i * 100);
    return qtf + QStringLiteral("}}&[* Vége.]");
}

} // namespace

class TestReport : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void fontSizesFollowDots();
    void screenUnits();
    void paragraphSpacingAdds();
    void tableFormatsReachQt();
    void imagesKeepTheirSize();
    void emptyParagraphsAroundTablesHaveNoHeight();
    void leadersFillOnlyTheirTab();
    void tabStopsCountFromTheLeftMargin();
    void longTableBreaksWithHeaderOnEveryPage();
    void pageNumbersAndDateInHeaderAndFooter();
    void pageFieldsOfDocumentHeader();
    void pageBreaksAndKeep();
    void tableRowsAreNeverCut();
    void chequePageSize();
    void shiftMovesTheContent();
    void sectionsNumberTheirOwnPages();
    void oversizedHeaderIsDropped();
    void unwritablePdfFails();

private:
    QTemporaryDir m_dir;
};

void TestReport::initTestCase()
{
    QVERIFY(m_dir.isValid());
    if (QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty())
        QSKIP("poppler-utils (pdftotext) is needed");
}

void TestReport::fontSizesFollowDots()
{
    auto doc = Dots(QStringLiteral("[3 a][+150 b][0 c]"));
    const QTextBlock b = doc->begin();
    QList<int> sizes;
    for (auto it = b.begin(); !it.atEnd(); ++it)
        sizes << it.fragment().charFormat().font().pixelSize();
    // On the page a 100-dot font is 12 pt: 100 of the 600 units per inch.
    QCOMPARE(sizes, (QList<int>{100, 150, 50}));
    // Lines are about 1.15 times the font size.
    const double line = BlockRect(*doc, QStringLiteral("abc")).height();
    QVERIFY2(line > 150 && line < 200, qPrintable(QString::number(line)));
}

void TestReport::screenUnits()
{
    QtfLayout layout;
    layout.units = QtfUnits::Screen;
    auto doc = QtfToTextDocument(QStringLiteral("[l600 [3 x]]"), layout);
    const QTextBlock b = doc->begin();
    QCOMPARE(b.begin().fragment().charFormat().fontPointSize(), 12.0);
    QCOMPARE(b.blockFormat().leftMargin(), 600 * QtfUnitsPerDot(QtfUnits::Screen));
}

void TestReport::paragraphSpacingAdds()
{
    // Space after one paragraph and before the next add up; the first paragraph's space before
    // counts too.
    auto doc = Dots(QStringLiteral("[b300 one&][a100 two&][b50 three&]four"));
    const QRectF one = BlockRect(*doc, QStringLiteral("one"));
    const QRectF two = BlockRect(*doc, QStringLiteral("two"));
    const QRectF three = BlockRect(*doc, QStringLiteral("three"));
    QCOMPARE(qRound(one.top()), 300);
    QCOMPARE(qRound(two.top() - one.bottom()), 0);
    QCOMPARE(qRound(three.top() - two.bottom()), 150);
    // Margins and indent in dots.
    auto margins = Dots(QStringLiteral("[l200r100i50 x]"));
    const QTextBlockFormat bf = margins->begin().blockFormat();
    QCOMPARE(bf.leftMargin(), 200.0);
    QCOMPARE(bf.rightMargin(), 100.0);
    QCOMPARE(bf.textIndent(), 50.0);
    // Space before a paragraph that follows a table stays.
    auto afterTable = Dots(QStringLiteral("{{1 x}}[b200 after&]"));
    auto tight = Dots(QStringLiteral("{{1 x}}after"));
    QCOMPARE(qRound(BlockRect(*afterTable, QStringLiteral("after")).top() -
                    BlockRect(*tight, QStringLiteral("after")).top()),
             200);
}

void TestReport::tableFormatsReachQt()
{
    auto doc = Dots(QStringLiteral("{{1:3h1<100f20g8G6@7 a:: b:: c:: d:: e}}"));
    QTextTable* table = FirstTable(*doc);
    QVERIFY(table);
    QCOMPARE(table->rows(), 3);
    QCOMPARE(table->columns(), 2);
    const QTextTableFormat tf = table->format();
    QCOMPARE(tf.headerRowCount(), 1);
    QCOMPARE(tf.leftMargin(), 100.0);
    QCOMPARE(tf.columnWidthConstraints().at(1).rawValue(), 75.0);
    // Frame outside, grid inside, the cell's own colour and default margins.
    const QTextTableCellFormat a = table->cellAt(0, 0).format().toTableCellFormat();
    QCOMPARE(a.leftBorder(), 20.0);
    QCOMPARE(a.rightBorder(), 8.0);
    QCOMPARE(a.rightBorderBrush().color(), QColor(255, 0, 0));
    QCOMPARE(a.leftBorderBrush().color(), QColor(0, 0, 0));
    QCOMPARE(a.background().color(), QColor(224, 224, 224));
    QCOMPARE(a.leftPadding(), 25.0);
    QCOMPARE(a.topPadding(), 15.0);
    // "-1" spans the second cell over the second and third column.
    auto span = Dots(QStringLiteral("{{1:1:1 A::-1 B:: x:: C:: D:: E}}"));
    QCOMPARE(FirstTable(*span)->cellAt(0, 1).columnSpan(), 2);
    QCOMPARE(FirstTable(*span)->cellAt(0, 2).firstCursorPosition().block().text(),
             QStringLiteral("B"));
    QCOMPARE(FirstTable(*span)->cellAt(1, 2).firstCursorPosition().block().text(),
             QStringLiteral("E"));
}

void TestReport::imagesKeepTheirSize()
{
    QImage logo(30, 10, QImage::Format_RGB32);
    logo.fill(Qt::red);
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    logo.save(&buffer, "PNG");
    // 30 x 10 pixels at 96 per inch, printed at 400 %: 750 x 250 dots.
    const QString object = QtfImageObject(png, 400);
    QVERIFY(object.startsWith(QStringLiteral("@@PNG:750&250(")));
    QVERIFY(QtfImageObject("not an image").isEmpty());
    auto doc = Dots(QStringLiteral("@@PNG:1200&400(%1)@@unknown:300*300(AAAA)%2")
                        .arg(QString::fromLatin1(png.toBase64()), object));
    QList<QTextImageFormat> images;
    for (auto it = doc->begin().begin(); !it.atEnd(); ++it) {
        if (it.fragment().charFormat().isImageFormat())
            images << it.fragment().charFormat().toImageFormat();
    }
    QCOMPARE(images.size(), 3);
    QCOMPARE(images[2].width(), 750.0);
    QCOMPARE(images[0].width(), 1200.0);
    QCOMPARE(images[0].height(), 400.0);
    const QImage stored =
        doc->resource(QTextDocument::ImageResource, QUrl(images[0].name())).value<QImage>();
    QCOMPARE(stored.size(), QSize(30, 10));
    // An unknown object keeps its place as a box.
    QVERIFY(!doc->resource(QTextDocument::ImageResource, QUrl(images[1].name()))
                 .value<QImage>()
                 .isNull());
    QVERIFY(BlockRect(*doc, doc->begin().text()).height() >= 400);
}

void TestReport::emptyParagraphsAroundTablesHaveNoHeight()
{
    auto table = Dots(QStringLiteral("{{1~ x}}"));
    auto withText = Dots(QStringLiteral("x"));
    const double tableHeight = table->documentLayout()->documentSize().height();
    const double line = withText->documentLayout()->documentSize().height();
    // The table holds one line with its margins: Qt's own blocks around it add nothing.
    QVERIFY2(tableHeight < line + 30 + 2, qPrintable(QString::number(tableHeight)));
    auto trailing = Dots(QStringLiteral("{{1~ x}}&"));
    QVERIFY(trailing->documentLayout()->documentSize().height() > tableHeight + line / 2);
}

// Dots or dashes fill the space a tab jumps over only when its stop asks for them.
void TestReport::leadersFillOnlyTheirTab()
{
    auto doc = Dots(QStringLiteral("[~=2000~>-3500 a-|b-|c]"), 4000);
    QImage image(400, 40, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(0.1, 0.1);
    doc->drawContents(&painter);
    PaintQtfExtras(painter, *doc, QRectF(0, 0, 4000, 400));
    painter.end();
    const auto inkBetween = [&](int from, int to) {
        int ink = 0;
        for (int x = from; x < to; ++x) {
            for (int y = 0; y < image.height(); ++y)
                ink += qGray(image.pixel(x, y)) < 160;
        }
        return ink;
    };
    QCOMPARE(inkBetween(30, 180), 0);   // "a" to the centred "b": no fill
    QVERIFY(inkBetween(230, 330) > 10); // "b" to the right-aligned "c": dashes
}

void TestReport::tabStopsCountFromTheLeftMargin()
{
    auto doc = Dots(QStringLiteral("[l400~1000~>>100 a-|b-|c]"), 4000);
    const QTextBlock block = doc->begin();
    const QTextLine line = block.layout()->lineAt(0);
    const double frameLeft = doc->documentLayout()->blockBoundingRect(block).left();
    QCOMPARE(qRound(frameLeft + line.cursorToX(2)), 1400);
    // Measured from the right edge: "c" ends 100 dots before it.
    QCOMPARE(qRound(frameLeft + line.cursorToX(5)), 3900);
    // A first-line indent moves the text, not the stops.
    auto indented = Dots(QStringLiteral("[l400i200~1000 a-|b]"), 4000);
    const QTextLine first = indented->begin().layout()->lineAt(0);
    QCOMPARE(qRound(first.cursorToX(2)), 1400);
}

void TestReport::longTableBreaksWithHeaderOnEveryPage()
{
    Report report;
    report.setHeader(QStringLiteral("[1 Fejléc – Árvíztűrő Kft.]"));
    report.setFooter(QStringLiteral("[1> $$P. oldal]"));
    report.setBody(LongTable(200));
    const QString pdf = m_dir.filePath(QStringLiteral("long.pdf"));
    QVERIFY(report.exportPdf(pdf));
    const QStringList pages = PdfPages(pdf);
    QVERIFY(pages.size() >= 4);
    QCOMPARE(pages.size(), report.pageCount());
    int rowsSeen = 0;
    for (int i = 0; i < pages.size(); ++i) {
        const QString& page = pages.at(i);
        QVERIFY2(page.contains(QStringLiteral("Fejléc – Árvíztűrő Kft.")), qPrintable(page));
        QVERIFY2(page.contains(QStringLiteral("%1. oldal").arg(i + 1)), qPrintable(page));
        // The table's header row is repeated on every page the table reaches.
        QVERIFY2(page.contains(QStringLiteral("Megnevezés")), qPrintable(page));
        rowsSeen += int(page.count(QStringLiteral("Árvíztűrő tükörfúrógép")));
    }
    // Every row printed once: none lost or doubled at a break.
    QCOMPARE(rowsSeen, 200);
    QVERIFY(pages.last().contains(QStringLiteral("Vége.")));
    QVERIFY(pages.first().contains(QStringLiteral("Tételek")));
    QCOMPARE(PdfInfo(pdf, QStringLiteral("Page size")), QStringLiteral("595 x 842 pts (A4)"));
}

void TestReport::pageNumbersAndDateInHeaderAndFooter()
{
    Report report;
    report.setDate(QDate(2024, 3, 5));
    report.setHeader(QStringLiteral("[1 Kelt: $$D]"));
    report.setFooter(QStringLiteral("[1> Page $$P`/$$P]"));
    report.setBody(QStringLiteral("first^^second^^third"));
    const QString pdf = m_dir.filePath(QStringLiteral("numbers.pdf"));
    QVERIFY(report.exportPdf(pdf));
    const QStringList pages = PdfPages(pdf);
    QCOMPARE(pages.size(), 3);
    const QStringList words = {QStringLiteral("first"), QStringLiteral("second"),
                               QStringLiteral("third")};
    for (int i = 0; i < 3; ++i) {
        QVERIFY(pages[i].contains(QStringLiteral("Kelt: 2024.03.05.")));
        QVERIFY2(pages[i].contains(QStringLiteral("Page %1/%1").arg(i + 1)), qPrintable(pages[i]));
        QVERIFY(pages[i].contains(words[i]));
    }
}

void TestReport::pageFieldsOfDocumentHeader()
{
    Report report;
    report.setBody(QStringLiteral("^F[1> {:VALUE:PAGENUMBER:} / {:VALUE:PAGECOUNT:}]^^one^^two"));
    const QString pdf = m_dir.filePath(QStringLiteral("fields.pdf"));
    QVERIFY(report.exportPdf(pdf));
    const QStringList pages = PdfPages(pdf);
    QCOMPARE(pages.size(), 2);
    static const QRegularExpression first(QStringLiteral("\\b1\\s*/\\s*2\\b"));
    static const QRegularExpression second(QStringLiteral("\\b2\\s*/\\s*2\\b"));
    QVERIFY2(pages[0].contains(first), qPrintable(pages[0]));
    QVERIFY(!pages[0].contains(QStringLiteral("two")));
    QVERIFY(pages[1].contains(second));
}

void TestReport::pageBreaksAndKeep()
{
    // A paragraph that would be split by the page end moves to the next page whole.
    QString filler;
    for (int i = 0; i < 20; ++i)
        filler += QStringLiteral("line %1&").arg(i);
    QString kept = QStringLiteral("[k ");
    for (int i = 0; i < 60; ++i)
        kept += QStringLiteral("kept%1 ").arg(i);
    kept += QStringLiteral("&]");
    Report report;
    report.setPageSize(QSize(2000, 3000));
    report.setBody(filler + kept);
    const QString pdf = m_dir.filePath(QStringLiteral("keep.pdf"));
    QVERIFY(report.exportPdf(pdf));
    const QStringList pages = PdfPages(pdf);
    QCOMPARE(pages.size(), 2);
    QVERIFY(!pages[0].contains(QStringLiteral("kept")));
    QVERIFY(pages[1].contains(QStringLiteral("kept0")) &&
            pages[1].contains(QStringLiteral("kept59")));

    // Without "k" it is split; "K" keeps a heading with what follows.
    Report split;
    split.setPageSize(QSize(2000, 3000));
    split.setBody(filler + QString(kept).replace(QStringLiteral("[k "), QStringLiteral("[ ")));
    QVERIFY(split.exportPdf(pdf));
    QVERIFY(PdfPages(pdf).value(0).contains(QStringLiteral("kept0")));
    Report heading;
    heading.setPageSize(QSize(2000, 3000));
    QString lines;
    for (int i = 0; i < 26; ++i)
        lines += QStringLiteral("line %1&").arg(i);
    heading.setBody(lines + QStringLiteral("[K* Heading&]body text"));
    QVERIFY(heading.exportPdf(pdf));
    const QStringList hp = PdfPages(pdf);
    QCOMPARE(hp.size(), 2);
    QVERIFY2(hp[1].contains(QStringLiteral("Heading")), qPrintable(hp[0]));
}

// A row that a page end would cut moves to the next page under its repeated header; a table
// whose first row would be cut moves whole, leaving no lonely header behind.
void TestReport::tableRowsAreNeverCut()
{
    const auto lines = [](int count) {
        QString out;
        for (int i = 0; i < count; ++i)
            out += QStringLiteral("line %1&").arg(i);
        return out;
    };
    // Left to Qt, the page end would fall inside the three-line row.
    const QString tall = QStringLiteral("first line&second line&third line");
    Report report;
    report.setPageSize(QSize(2000, 3000));
    report.setBody(lines(22) +
                   QStringLiteral("{{1:1h1 Head:: Other:: row1:: %1:: row2:: x}}").arg(tall));
    const QString pdf = m_dir.filePath(QStringLiteral("rows.pdf"));
    QVERIFY(report.exportPdf(pdf));
    QStringList pages = PdfPages(pdf);
    QCOMPARE(pages.size(), 2);
    QVERIFY(!pages[0].contains(QStringLiteral("Head")));
    QVERIFY(pages[1].contains(QStringLiteral("Head")) &&
            pages[1].contains(QStringLiteral("first line")));

    report.setBody(
        lines(21) +
        QStringLiteral("{{1:1h1 Head:: Other:: r0:: one:: row1:: %1:: row2:: x}}").arg(tall));
    QVERIFY(report.exportPdf(pdf));
    pages = PdfPages(pdf);
    QCOMPARE(pages.size(), 2);
    QVERIFY(pages[0].contains(QStringLiteral("Head")) && pages[0].contains(QStringLiteral("r0")));
    QVERIFY(!pages[0].contains(QStringLiteral("first line")));
    QVERIFY(pages[1].contains(QStringLiteral("Head")));
    QVERIFY(pages[1].contains(QStringLiteral("first line")) &&
            pages[1].contains(QStringLiteral("third line")));
}

void TestReport::chequePageSize()
{
    Report cheque;
    cheque.setPageSize(QSize(4724, 2125));
    cheque.setBody(QStringLiteral("{{1:1~ [*4 12_345 Ft]:: [> egyezer]}}"));
    const QString pdf = m_dir.filePath(QStringLiteral("cheque.pdf"));
    QVERIFY(cheque.exportPdf(pdf));
    QCOMPARE(cheque.pageCount(), 1);
    // 4724 x 2125 dots at 600 per inch: 200 x 90 mm, in whole points.
    QCOMPARE(PdfInfo(pdf, QStringLiteral("Page size")), QStringLiteral("567 x 255 pts"));
    QVERIFY(PdfPages(pdf).value(0).contains(QStringLiteral("12 345 Ft")));
}

void TestReport::shiftMovesTheContent()
{
    // Paint into an image at 60 dots per inch... of the page area: the first dark pixel moves.
    const auto firstInk = [](const Report& report) {
        QImage image(400, 600, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.scale(0.1, 0.1);
        painter.translate(report.shift() * 600 / 25.4);
        report.paintPage(painter, 0);
        painter.end();
        for (int x = 0; x < image.width(); ++x) {
            for (int y = 0; y < image.height(); ++y) {
                if (qGray(image.pixel(x, y)) < 128)
                    return QPoint(x, y);
            }
        }
        return QPoint(-1, -1);
    };
    Report report;
    report.setBody(QStringLiteral("[+400 ██]"));
    const QPoint plain = firstInk(report);
    report.setShift(QPointF(25.4, 12.7));
    const QPoint shifted = firstInk(report);
    QVERIFY(plain.x() >= 0);
    QVERIFY2(qAbs(shifted.x() - plain.x() - 60) <= 1, qPrintable(QString::number(shifted.x())));

    // And on paper: the PDF places the shifted text 25.4 mm (72 pt) further right.
    const auto wordX = [this](const Report& r) {
        const QString pdf = m_dir.filePath(QStringLiteral("shift.pdf"));
        r.exportPdf(pdf);
        QProcess p;
        p.start(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), pdf, QStringLiteral("-")});
        p.waitForFinished(60000);
        const QString out = QString::fromUtf8(p.readAllStandardOutput());
        static const QRegularExpression re(QStringLiteral("xMin=\"([0-9.]+)\""));
        return re.match(out).captured(1).toDouble();
    };
    Report text;
    text.setBody(QStringLiteral("Marker"));
    const double before = wordX(text);
    text.setShift(QPointF(25.4, 0));
    QCOMPARE(qRound(wordX(text) - before), 72);
}

void TestReport::sectionsNumberTheirOwnPages()
{
    Report report;
    report.setFooter(QStringLiteral("[1> copy A page $$P]"));
    report.setBody(QStringLiteral("a1^^a2"));
    report.newSection();
    report.setFooter(QStringLiteral("[1> copy B page $$P]"));
    report.setBody(QStringLiteral("b1"));
    const QString pdf = m_dir.filePath(QStringLiteral("sections.pdf"));
    QVERIFY(report.exportPdf(pdf));
    const QStringList pages = PdfPages(pdf);
    QCOMPARE(pages.size(), 3);
    QVERIFY(pages[1].contains(QStringLiteral("copy A page 2")));
    QVERIFY(pages[2].contains(QStringLiteral("copy B page 1")) &&
            pages[2].contains(QStringLiteral("b1")));
    QCOMPARE(report.pageOf(2), std::make_pair(1, 0));
}

void TestReport::oversizedHeaderIsDropped()
{
    Report report;
    report.setPageSize(QSize(2000, 1000));
    report.setHeader(QStringLiteral("[+900 HUGE]"));
    report.setBody(QStringLiteral("body"));
    const QString pdf = m_dir.filePath(QStringLiteral("huge.pdf"));
    QVERIFY(report.exportPdf(pdf));
    const QStringList pages = PdfPages(pdf);
    QCOMPARE(pages.size(), 1);
    QVERIFY(!pages[0].contains(QStringLiteral("HUGE")));
    QVERIFY(pages[0].contains(QStringLiteral("body")));
}

void TestReport::unwritablePdfFails()
{
    Report report;
    report.setBody(QStringLiteral("x"));
    const Result r = report.exportPdf(m_dir.filePath(QStringLiteral("missing/dir/x.pdf")));
    QVERIFY(!r);
    QVERIFY(MessagePlainText(r.message()).contains(QStringLiteral("missing/dir/x.pdf")));
}

QTEST_MAIN(TestReport)
#include "tst_report.moc"
