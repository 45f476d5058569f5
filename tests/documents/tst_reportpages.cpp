// Where the report's pages end: tables closed by their frame on every page with rows at their
// natural height, documents too tall for one Qt layout, minimum cell heights. The geometry is
// read from the painter's calls, recorded by a paint device of our own.
#include "TestData.h"

#include "documents/QtfTextDocument.h"
#include "documents/Report.h"

#include <QAbstractTextDocumentLayout>
#include <QPaintEngine>
#include <QPainter>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextFrame>
#include <QtTest>

#include <map>

using namespace Qt::StringLiterals;

namespace {

// What a page painted: filled rectangles with their colour and the text items.
class Recorder : public QPaintEngine
{
public:
    Recorder() : QPaintEngine(QPaintEngine::AllFeatures) {}

    struct Fill
    {
        QRectF rect;
        QColor color;
    };
    QList<Fill> fills;
    QList<std::pair<QPointF, QString>> texts;

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }
    void updateState(const QPaintEngineState& state) override
    {
        if (state.state() & DirtyTransform)
            m_transform = state.transform();
        if (state.state() & DirtyBrush)
            m_brush = state.brush();
        if (state.state() & DirtyPen)
            m_pen = state.pen();
    }
    void drawRects(const QRectF* rects, int count) override
    {
        for (int i = 0; i < count; ++i)
            fill(rects[i]);
    }
    void drawLines(const QLineF* lines, int count) override
    {
        for (int i = 0; i < count; ++i) {
            const double w = m_pen.widthF() / 2;
            const QLineF& l = lines[i];
            const QRectF r = QRectF(l.p1(), l.p2()).normalized().adjusted(-w, -w, w, w);
            fills.append({m_transform.mapRect(r), m_pen.color()});
        }
    }
    void drawTextItem(const QPointF& p, const QTextItem& item) override
    {
        texts.append({m_transform.map(p), item.text()});
    }
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}

private:
    void fill(const QRectF& r)
    {
        if (m_brush.style() != Qt::NoBrush)
            fills.append({m_transform.mapRect(r), m_brush.color()});
    }

    QTransform m_transform;
    QBrush m_brush;
    QPen m_pen;
};

class RecordingDevice : public QPaintDevice
{
public:
    QPaintEngine* paintEngine() const override { return &m_engine; }
    Recorder& recorder() { return m_engine; }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth:
        case PdmHeight:
            return 10000;
        case PdmWidthMM:
        case PdmHeightMM:
            return 423;
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return 600;
        case PdmDepth:
            return 32;
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return int(devicePixelRatioFScale());
        default:
            return QPaintDevice::metric(metric);
        }
    }

private:
    mutable Recorder m_engine;
};

// The horizontal rules a page painted: top edge to thickness, dark ones only.
std::map<int, int> Rules(const Recorder& r, double minWidth)
{
    std::map<int, int> rules;
    for (const Recorder::Fill& f : r.fills) {
        if (f.rect.width() < minWidth || f.rect.height() > 40 || qGray(f.color.rgb()) > 128)
            continue;
        int& thickness = rules[qRound(f.rect.top())];
        thickness = std::max(thickness, qRound(f.rect.height()));
    }
    return rules;
}

} // namespace

class TestReportPages : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void tableClosedOnEveryPage_data()
    {
        AddColumns<QString, int>({"body", "rows"});
        QString items = u"[*4 Items&]{{1:3:1h1f20g4 [* No.]:: [* Item]:: [*> Net]"_s;
        for (int i = 1; i <= 70; ++i)
            items += u":: %1:: Product %1:: [> %2.00]"_s.arg(i).arg(i * 3);
        QTest::newRow("70 items under a header") << items + u"}}&[* End]"_s << 70;
        // Two lines in every row: Qt used to stretch such a row to the page end.
        QString tall = u"{{1:1f20g4 "_s;
        for (int i = 1; i <= 40; ++i)
            tall += u"%1 Product:: first&second:: "_s.arg(i);
        tall.chop(3);
        QTest::newRow("two-line rows, no header") << tall + u"}}"_s << 40;
    }

    void tableClosedOnEveryPage()
    {
        auto [body, rows] = Fetch<QString, int>({"body", "rows"});
        Report report;
        report.setPageSize(QSize(2000, 2500));
        report.setHeader(u"[1 Header]"_s);
        report.setFooter(u"[1> $$P]"_s);
        report.setBody(body);
        QVERIFY(report.pageCount() >= 3);
        int seen = 0;
        QList<int> rowHeights;
        for (int page = 0; page < report.pageCount(); ++page) {
            RecordingDevice device;
            QPainter painter(&device);
            report.paintPage(painter, page);
            painter.end();
            const Recorder& r = device.recorder();
            for (const auto& [pos, text] : r.texts)
                seen += text.contains(u"Product"_s);
            const std::map<int, int> rules = Rules(r, 300);
            QVERIFY2(rules.size() >= 2, qPrintable(QString::number(page)));
            // The table's part ends in a frame line, at most 4 dots of rows below, and the rows
            // between the rules are as high as they are on any other page.
            QCOMPARE(rules.rbegin()->second, 20);
            QVERIFY(rules.begin()->second == 20);
            // The first row under the frame's top line is left out: it holds the thicker line.
            for (auto it = std::next(rules.begin(), 2); it != rules.end(); ++it)
                rowHeights << it->first - std::prev(it)->first;
            if (body.startsWith(u"[*4 Items"_s) && page > 0) {
                bool header = false;
                for (const auto& [pos, text] : r.texts)
                    header = header || text.contains(u"Item"_s);
                QVERIFY2(header, "the header row repeats");
            }
        }
        QCOMPARE(seen, rows);
        // Every rule a row apart: no row stretched to the page end.
        std::map<int, int> counts;
        for (int h : std::as_const(rowHeights))
            ++counts[h];
        int common = 0;
        for (const auto& [h, n] : counts)
            common = n > counts[common] ? h : common;
        for (int h : std::as_const(rowHeights))
            QVERIFY2(std::abs(h - common) <= 2, qPrintable(u"%1 vs %2"_s.arg(h).arg(common)));
    }

    void minimumCellHeight_data()
    {
        // where: top, centre or bottom of the row
        AddColumns<QString, int, QString>({"qtf", "height", "where"});
        QTest::newRow("top") << u"{{1~H600^ x}}"_s << 600 << u"top"_s;
        QTest::newRow("centre") << u"{{1~H600 x}}"_s << 600 << u"centre"_s;
        QTest::newRow("bottom") << u"{{1~H600v x}}"_s << 600 << u"bottom"_s;
        QTest::newRow("two paragraphs") << u"{{1~H800v a&x}}"_s << 800 << u"bottom"_s;
        QTest::newRow("taller content wins") << u"{{1~H100^ a&b&x}}"_s << -1 << u"bottom"_s;
    }

    void minimumCellHeight()
    {
        auto [qtf, height, where] = Fetch<QString, int, QString>({"qtf", "height", "where"});
        auto doc = QtfToTextDocument(qtf, {QtfUnits::Dots, 3968});
        QAbstractTextDocumentLayout* layout = doc->documentLayout();
        const QRectF table = layout->frameBoundingRect(doc->rootFrame()->childFrames().value(0));
        if (height > 0)
            QVERIFY2(std::abs(table.height() - height) <= 1,
                     qPrintable(QString::number(table.height())));
        QTextBlock x = doc->begin();
        while (x.isValid() && x.text() != u"x"_s)
            x = x.next();
        // A cell's blocks are placed in the table's frame; 15 dots of cell margin above and below.
        const QRectF r = layout->blockBoundingRect(x);
        const double above = r.top();
        const double below = table.height() - r.bottom();
        const QString got = u"%1 above, %2 below"_s.arg(above).arg(below);
        if (where == u"top")
            QVERIFY2(std::abs(above - 15) <= 1, qPrintable(got));
        else if (where == u"bottom")
            QVERIFY2(std::abs(below - 15) <= 1, qPrintable(got));
        else
            QVERIFY2(std::abs(above - below) <= 1, qPrintable(got));
    }

    // Qt's layout coordinates end at 2^25 units (33.5 million dots): a longer document used to
    // print one blank page.
    void documentTallerThanQtLayout()
    {
        QString body;
        const int pages = 6000;
        for (int i = 1; i <= pages; ++i)
            body += u"[b5700 page %1&]"_s.arg(i);
        body.chop(2);
        Report report;
        report.setBody(body);
        QCOMPARE(report.pageCount(), pages);
        QTemporaryDir dir;
        const QString pdf = dir.filePath(u"long.pdf"_s);
        QVERIFY(report.exportPdf(pdf));
        QCOMPARE(RunProcess(u"pdftotext"_s, {u"-f"_s, QString::number(pages), pdf, u"-"_s})
                     .out.trimmed(),
                 u"page %1"_s.arg(pages));
    }

    void ownLinesKeepCellPlaces_data()
    {
        QTest::addColumn<QString>("qtf");
        QTest::newRow("frame and grid") << u"[ Top&]{{1:1f20g4B30A40 a:: b:: c:: d}}&[ End]"_s;
        QTest::newRow("cell borders")
            << u"{{1:1:1f10g4 a::l30 b::! c:: d:: e::t40 f::! g:: h::b16 i}}"_s;
        QTest::newRow("spans") << u"{{1:1:1 A::-1 B:: x:: C::|1 D:: E:: F:: G:: H}}"_s;
        QTest::newRow("no lines, indented") << u"{{1:2<100>200~ a:: b&c:: d:: e}}"_s;
        QTest::newRow("table in a cell") << u"{{1:1 a:: {{1:1g10 x:: y}}:: c:: d}}"_s;
    }

    // The report draws table lines itself; the cells keep the room Qt's own lines took.
    void ownLinesKeepCellPlaces()
    {
        QFETCH(QString, qtf);
        QtfLayout qt{QtfUnits::Dots, 2000};
        QtfLayout own = qt;
        own.ownTableLines = true;
        auto a = QtfToTextDocument(qtf, qt);
        auto b = QtfToTextDocument(qtf, own);
        QCOMPARE(a->blockCount(), b->blockCount());
        for (QTextBlock x = a->begin(), y = b->begin(); x.isValid(); x = x.next(), y = y.next()) {
            const QRectF rx = a->documentLayout()->blockBoundingRect(x);
            const QRectF ry = b->documentLayout()->blockBoundingRect(y);
            // Within Qt's rounding.
            QVERIFY2(std::abs(rx.top() - ry.top()) <= 2 && std::abs(rx.left() - ry.left()) <= 2 &&
                         std::abs(rx.width() - ry.width()) <= 2,
                     qPrintable(x.text()));
        }
        QCOMPARE(b->documentLayout()->documentSize().height(),
                 a->documentLayout()->documentSize().height());
    }

    void linesAtRowEdges_data()
    {
        // thickness: of the horizontal rules, top to bottom
        AddColumns<QString, QList<int>>({"qtf", "thickness"});
        QTest::newRow("frame and grid")
            << u"{{1:1f20g4 a:: b:: c&two:: d}}"_s << QList<int>{20, 4, 20};
        QTest::newRow("cell border below")
            << u"{{1f10g4 a::b16 b::! c}}"_s << QList<int>{10, 4, 16, 10};
        QTest::newRow("space before and after")
            << u"[ x&]{{1f12B60A90 a:: b}}&[ y]"_s << QList<int>{12, 4, 12};
    }

    // The rules lie where Qt puts the rows: the frame's outer edges are the table's.
    void linesAtRowEdges()
    {
        auto [qtf, thickness] = Fetch<QString, QList<int>>({"qtf", "thickness"});
        Report report;
        report.setPageSize(QSize(2000, 2500));
        report.setBody(qtf);
        QCOMPARE(report.pageCount(), 1);
        RecordingDevice device;
        QPainter painter(&device);
        report.paintPage(painter, 0);
        painter.end();
        const std::map<int, int> rules = Rules(device.recorder(), 1000);
        QList<int> got;
        for (const auto& [top, height] : rules)
            got << height;
        QCOMPARE(got, thickness);
        // The same table laid out by Qt alone: its rows from the top rule to the bottom one.
        QtfLayout layout{QtfUnits::Dots, 2000};
        auto doc = QtfToTextDocument(qtf, layout);
        QTextFrame* table = doc->rootFrame()->childFrames().value(0);
        QVERIFY(table);
        const QTextFrameFormat tf = table->frameFormat();
        const double height = doc->documentLayout()->frameBoundingRect(table).height() -
                              tf.topMargin() - tf.bottomMargin();
        const int bottom = rules.rbegin()->first + rules.rbegin()->second;
        QVERIFY2(std::abs(bottom - rules.begin()->first - height) <= 1,
                 qPrintable(u"%1 vs %2"_s.arg(bottom - rules.begin()->first).arg(height)));
    }
};

QTEST_MAIN(TestReportPages)
#include "tst_reportpages.moc"
