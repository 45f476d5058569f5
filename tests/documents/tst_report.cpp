// QTF laid out as rich text and printed in pages: units, spacing, tables, header and footer on
// every page, page numbers, page sizes. PDFs are read back with poppler's pdftotext/pdfinfo.
#include "TestData.h"

#include "documents/MessageText.h"
#include "documents/QtfReader.h"
#include "documents/QtfTextDocument.h"
#include "documents/Report.h"

#include <QAbstractTextDocumentLayout>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextTable>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

std::unique_ptr<QTextDocument> Dots(const QString& qtf, int width = 3968)
{
    auto doc = QtfToTextDocument(qtf, {QtfUnits::Dots, width});
    doc->documentLayout()->documentSize(); // lays it out
    return doc;
}

QRectF BlockRect(const QTextDocument& doc, const QString& text)
{
    QTextBlock b = doc.begin();
    while (b.isValid() && b.text() != text)
        b = b.next();
    return doc.documentLayout()->blockBoundingRect(b);
}

double Height(const QString& qtf)
{
    return Dots(qtf)->documentLayout()->documentSize().height();
}

QString Lines(int count)
{
    QString out;
    for (int i = 0; i < count; ++i)
        out += u"line %1&"_s.arg(i);
    return out;
}

} // namespace

class TestReport : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void unitsAndSpacing()
    {
        auto doc = Dots(u"[3 a][+150 b][0 c]"_s);
        QList<int> sizes;
        for (auto it = doc->begin().begin(); !it.atEnd(); ++it)
            sizes << it.fragment().charFormat().font().pixelSize();
        // On the page a 100-dot font is 12 pt: 100 of the 600 units per inch.
        QCOMPARE(sizes, (QList<int>{100, 150, 50}));
        // Lines are about 1.15 times the font size.
        const double line = BlockRect(*doc, u"abc"_s).height();
        QVERIFY2(line > 150 && line < 200, qPrintable(QString::number(line)));
        auto screen = QtfToTextDocument(u"[3 x]"_s, {QtfUnits::Screen});
        QCOMPARE(screen->begin().begin().fragment().charFormat().fontPointSize(), 12.0);

        // Space after one paragraph and before the next add up; the first one's space before
        // counts.
        doc = Dots(u"[b300 one&][a100 two&][b50 three&]four"_s);
        const QRectF one = BlockRect(*doc, u"one"_s);
        const QRectF two = BlockRect(*doc, u"two"_s);
        QCOMPARE(qRound(one.top()), 300);
        QCOMPARE(qRound(two.top() - one.bottom()), 0);
        QCOMPARE(qRound(BlockRect(*doc, u"three"_s).top() - two.bottom()), 150);
        const QTextBlockFormat f = Dots(u"[l200r100i50 x]"_s)->begin().blockFormat();
        QCOMPARE((QList<qreal>{f.leftMargin(), f.rightMargin(), f.textIndent()}),
                 (QList<qreal>{200, 100, 50}));
        // Space before a paragraph that follows a table stays.
        QCOMPARE(qRound(BlockRect(*Dots(u"{{1 x}}[b200 after&]"_s), u"after"_s).top() -
                        BlockRect(*Dots(u"{{1 x}}after"_s), u"after"_s).top()),
                 200);
        // A table holds one line with its margins: Qt's own blocks around it add nothing.
        const double table = Height(u"{{1~ x}}"_s);
        QVERIFY2(table < Height(u"x"_s) + 30 + 2, qPrintable(QString::number(table)));
        QVERIFY(Height(u"{{1~ x}}&"_s) > table + Height(u"x"_s) / 2);
    }

    void tableFormatsReachQt()
    {
        auto doc = Dots(u"{{1:3h1<100f20g8G6@7 a:: b:: c:: d:: e}}"_s);
        QTextTable* table = qobject_cast<QTextTable*>(doc->rootFrame()->childFrames().value(0));
        QVERIFY(table);
        const QTextTableFormat tf = table->format();
        QCOMPARE(
            (QList<qreal>{qreal(table->rows()), qreal(table->columns()), qreal(tf.headerRowCount()),
                          tf.leftMargin(), tf.columnWidthConstraints().at(1).rawValue()}),
            (QList<qreal>{3, 2, 1, 100, 75}));
        // Frame outside, grid inside, the cell's own colour and default margins.
        const QTextTableCellFormat a = table->cellAt(0, 0).format().toTableCellFormat();
        QCOMPARE((QList<qreal>{a.leftBorder(), a.rightBorder(), a.leftPadding(), a.topPadding()}),
                 (QList<qreal>{20, 8, 25, 15}));
        QCOMPARE((QList<QColor>{a.leftBorderBrush().color(), a.rightBorderBrush().color(),
                                a.background().color()}),
                 (QList<QColor>{QColor(0, 0, 0), QColor(255, 0, 0), QColor(224, 224, 224)}));
        // "-1" spans the second cell over the second and third column.
        auto span = Dots(u"{{1:1:1 A::-1 B:: x:: C:: D:: E}}"_s);
        table = qobject_cast<QTextTable*>(span->rootFrame()->childFrames().value(0));
        QCOMPARE(table->cellAt(0, 1).columnSpan(), 2);
        QCOMPARE(table->cellAt(0, 2).firstCursorPosition().block().text(), u"B"_s);
        QCOMPARE(table->cellAt(1, 2).firstCursorPosition().block().text(), u"E"_s);
    }

    void imagesKeepTheirSize()
    {
        QFile file(QFINDTESTDATA("../data/report/logo.png"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray png = file.readAll();
        // 600 x 200 pixels at 96 per inch, printed at 40 %: 1500 x 500 dots.
        const QString object = QtfImageObject(png, 40);
        QVERIFY(object.startsWith(u"@@PNG:1500&500("_s));
        QVERIFY(QtfImageObject("not an image").isEmpty());
        auto doc = Dots(u"@@PNG:1200&400(%1)@@unknown:300*300(AAAA)%2"_s.arg(
            QString::fromLatin1(png.toBase64()), object));
        QList<QTextImageFormat> images;
        for (auto it = doc->begin().begin(); !it.atEnd(); ++it) {
            if (it.fragment().charFormat().isImageFormat())
                images << it.fragment().charFormat().toImageFormat();
        }
        QCOMPARE(images.size(), 3);
        QCOMPARE((QList<qreal>{images[0].width(), images[0].height(), images[2].width()}),
                 (QList<qreal>{1200, 400, 1500}));
        const auto image = [&](int i) {
            return doc->resource(QTextDocument::ImageResource, QUrl(images[i].name()))
                .value<QImage>();
        };
        QCOMPARE(image(0).size(), QSize(600, 200));
        QVERIFY(!image(1).isNull()); // an unknown object keeps its place as a box
        QVERIFY(BlockRect(*doc, doc->begin().text()).height() >= 500);
    }

    void tabStopsAndLeaders()
    {
        auto doc = Dots(u"[l400~1000~>>100 a-|b-|c]"_s, 4000);
        const QTextLine line = doc->begin().layout()->lineAt(0);
        const double frameLeft = BlockRect(*doc, doc->begin().text()).left();
        // Stops count from the left margin; one measured from the right edge ends "c" 100 before
        // it.
        QCOMPARE(qRound(frameLeft + line.cursorToX(2)), 1400);
        QCOMPARE(qRound(frameLeft + line.cursorToX(5)), 3900);
        // A first-line indent moves the text, not the stops.
        auto indented = Dots(u"[l400i200~1000 a-|b]"_s, 4000);
        QCOMPARE(qRound(indented->begin().layout()->lineAt(0).cursorToX(2)), 1400);

        // Dots or dashes fill the space a tab jumps over only when its stop asks for them.
        doc = Dots(u"[~=2000~>-3500 a-|b-|c]"_s, 4000);
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

    void pages_data()
    {
        // parts: header, footer, body of each section; paper: as pdfinfo gives it; pages: per page:
        // patterns found, "!" those not found
        AddColumns<QStringList, QSize, QString, QStringList>({"parts", "size", "paper", "pages"});
        const auto row = [](const char* name, const QStringList& parts, QSize size,
                            const char* paper, const QStringList& pages) {
            QTest::newRow(name) << parts << size << paper << pages;
        };
        const QSize a4 = Report::kDefaultPage;
        const QSize small(2000, 3000);
        QString words;
        for (int i = 0; i < 60; ++i)
            words += u"kept%1 "_s.arg(i);
        const QString table = u"{{1:1h1 Head:: Other:: row1:: first line&second line&third line"
                              ":: row2:: x}}"_s;
        row("page numbers and date", {"[1 Kelt: $$D]", "[1> Page $$P`/$$P]", "one^^two^^three"}, a4,
            "595 x 842 pts (A4)",
            {"Kelt: 2024.03.05.|Page 1/1|one", "Kelt: 2024.03.05.|Page 2/2|two",
             "Kelt: 2024.03.05.|Page 3/3|three"});
        row("page fields of the document",
            {"", "", "^F[1> {:VALUE:PAGENUMBER:} / {:VALUE:PAGECOUNT:}]^^one^^two"}, a4,
            "595 x 842 pts (A4)", {"\\b1\\s*/\\s*2\\b|!two", "\\b2\\s*/\\s*2\\b"});
        row("page fields in the body",
            {"", "", "a {:VALUE:PAGENUMBER:}`/{:VALUE:PAGECOUNT:}^^b {:VALUE:PAGENUMBER:}"}, a4,
            "595 x 842 pts (A4)", {"a 1/2", "b ?2$"});
        // "k" moves a paragraph the page end would split to the next page whole.
        row("kept paragraph", {"", "", Lines(20) + "[k " + words + "&]"}, small, "240 x 360 pts",
            {"!kept", "kept0|kept59"});
        row("split paragraph", {"", "", Lines(20) + "[ " + words + "&]"}, small, "240 x 360 pts",
            {"kept0", "kept59"});
        row("kept with next", {"", "", Lines(26) + "[K* Heading&]body"}, small, "240 x 360 pts",
            {"!Heading", "Heading|body"});
        // A table whose first row a page end would cut moves whole, leaving no lonely header.
        row("table moves whole", {"", "", Lines(22) + table}, small, "240 x 360 pts",
            {"!Head", "Head|first line"});
        row("oversized header dropped", {"[+900 HUGE]", "", "body"}, QSize(2000, 1000),
            "240 x 120 pts", {"!HUGE|body"});
        // Each copy of an invoice is a section numbering its own pages.
        row("sections", {"", "[1> copy A page $$P]", "a1^^a2", "", "[1> copy B page $$P]", "b1"},
            a4, "595 x 842 pts (A4)", {"copy A page 1|a1", "copy A page 2|a2", "copy B page 1|b1"});
    }

    void pages()
    {
        auto [parts, size, paper, pages] =
            Fetch<QStringList, QSize, QString, QStringList>({"parts", "size", "paper", "pages"});
        Report report;
        report.setDate(QDate(2024, 3, 5));
        report.setPageSize(size);
        for (qsizetype i = 0; i < parts.size(); i += 3) {
            if (i > 0)
                report.newSection();
            report.setHeader(parts[i]);
            report.setFooter(parts[i + 1]);
            report.setBody(parts[i + 2]);
        }
        const QStringList printed = print(report);
        QCOMPARE(printed.size(), pages.size());
        QCOMPARE(report.pageCount(), pages.size());
        QCOMPARE(report.pageOf(pages.size() - 1).first, parts.size() / 3 - 1);
        for (qsizetype i = 0; i < pages.size(); ++i) {
            for (const QString& pattern : pages[i].split(u'|')) {
                const bool absent = pattern.startsWith(u'!');
                const bool found =
                    printed[i].contains(QRegularExpression(pattern.mid(absent ? 1 : 0)));
                QVERIFY2(found != absent,
                         qPrintable(u"page %1, %2:\n%3"_s.arg(i + 1).arg(pattern, printed[i])));
            }
        }
        const QString info = RunProcess(u"pdfinfo"_s, {m_pdf}).out;
        QVERIFY2(info.contains(QRegularExpression(u"Page size: +"_s +
                                                  QRegularExpression::escape(paper) + u'\n')),
                 qPrintable(info));
    }

    // Qt's layout coordinates end at 2^25 units (33.5 million dots): a longer document used to
    // print one blank page.
    void documentTallerThanQtLayout()
    {
        QString body;
        for (int i = 1; i <= 6000; ++i)
            body += u"[b5700 page %1&]"_s.arg(i);
        Report report;
        report.setBody(body.chopped(2));
        QCOMPARE(report.pageCount(), 6000);
        QVERIFY(report.exportPdf(m_pdf));
        QCOMPARE(RunProcess(u"pdftotext"_s, {u"-f"_s, u"6000"_s, m_pdf, u"-"_s}).out.trimmed(),
                 u"page 6000"_s);
    }

    void unwritablePdfFails()
    {
        Report report;
        report.setBody(u"x"_s);
        const Result r = report.exportPdf(m_dir.filePath(u"missing/dir/x.pdf"_s));
        QVERIFY(!r);
        QVERIFY(MessagePlainText(r.message()).contains(u"missing/dir/x.pdf"_s));
    }

private:
    // The text of each page of the report printed to a PDF; empty when printing failed.
    QStringList print(const Report& report)
    {
        if (!report.exportPdf(m_pdf))
            return {};
        QStringList pages =
            RunProcess(u"pdftotext"_s, {u"-layout"_s, m_pdf, u"-"_s}).out.split(u'\f');
        if (!pages.isEmpty() && pages.last().trimmed().isEmpty())
            pages.removeLast();
        return pages;
    }

    QTemporaryDir m_dir;
    QString m_pdf = m_dir.filePath(u"report.pdf"_s);
};

QTEST_MAIN(TestReport)
#include "tst_report.moc"
