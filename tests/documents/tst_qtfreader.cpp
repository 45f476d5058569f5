// The QTF reader against the format's reference vectors: paragraphs, runs, tables, errors.
#include "documents/QtfReader.h"

#include <QtTest>

using namespace Qtf;

namespace {

QStringList ParagraphTexts(const Document& d)
{
    QStringList out;
    for (const Block& b : d.blocks)
        out << (b.isTable() ? QStringLiteral("<table>") : b.paragraph.text());
    return out;
}

const Table& TableAt(const Document& d, int index)
{
    static const Table empty;
    int seen = 0;
    for (const Block& b : d.blocks) {
        if (b.isTable() && seen++ == index)
            return *b.table;
    }
    return empty;
}

QString CellText(const Table& t, int row, int col)
{
    return PlainText(t.rows.at(row).at(col).blocks);
}

} // namespace

class TestQtfReader : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void paragraphs_data();
    void paragraphs();
    void runFormats();
    void colours_data();
    void colours();
    void paragraphFormatIsTakenAtTheEnd_data();
    void paragraphFormatIsTakenAtTheEnd();
    void numbersAndSeparators();
    void tables();
    void tableFormats();
    void cellFormatsCarryOn();
    void spansCoverCells();
    void nestedTables();
    void headerRowsAndPageBreaks();
    void errors_data();
    void errors();
    void unknownCodesKeepText();
    void tabStops();
    void objectsAndFields();
    void stylesAndTopics();
    void plainText_data();
    void plainText();
    void escapedDataReadsBack_data();
    void escapedDataReadsBack();
};

void TestQtfReader::paragraphs_data()
{
    QTest::addColumn<QString>("qtf");
    QTest::addColumn<QStringList>("expected");
    const QString nbsp(QChar(0xA0));
    QTest::newRow("plain") << "Hello world" << QStringList{"Hello world"};
    QTest::newRow("two") << "One&Two" << QStringList{"One", "Two"};
    QTest::newRow("trailing &") << "One&" << QStringList{"One", ""};
    QTest::newRow("empty") << "" << QStringList{""};
    QTest::newRow("&&") << "&&" << QStringList{"", "", ""};
    QTest::newRow("spaces kept") << "x & y" << QStringList{"x ", " y"};
    QTest::newRow("backtick and underscore")
        << "A`_B_C" << QStringList{QStringLiteral("A_B") + nbsp + QStringLiteral("C")};
    QTest::newRow("escapes") << "a`[b`]c`&d``e" << QStringList{"a[b]c&d`e"};
    QTest::newRow("backslash") << "a\\[b\\\\c" << QStringList{"a[b\\c"};
    QTest::newRow("raw") << "\x01[x]&y\x01" << QStringList{"[x]&y"};
    QTest::newRow("raw line feed") << "\x01one\ntwo\x01" << QStringList{"one", "two"};
    QTest::newRow("raw unclosed") << "\x01[*" << QStringList{"[*"};
    QTest::newRow("line feed skipped") << "a\nb\r\tc" << QStringList{"abc"};
    QTest::newRow("code point") << "@$20AC;1" << QStringList{QStringLiteral("€1")};
    QTest::newRow("control code point dropped") << "@$9;x" << QStringList{"x"};
    QTest::newRow("tab") << "a-|b" << QStringList{"a\tb"};
    QTest::newRow("lone specials")
        << "a: b- c| d+ e^ f@ g$ h{ i}" << QStringList{"a: b- c| d+ e^ f@ g$ h{ i}"};
    QTest::newRow("NUL ends") << QStringLiteral("ab") + QChar(0) + QStringLiteral("&cd")
                              << QStringList{"ab"};
    QTest::newRow("accents") << QStringLiteral("[* Árvíztűrő] tükörfúrógép")
                             << QStringList{QStringLiteral("Árvíztűrő tükörfúrógép")};
    QTest::newRow("table in text")
        << "Before{{1 x}}&After" << QStringList{"Before", "<table>", "After"};
    QTest::newRow("text right after table") << "{{1 x}}After" << QStringList{"<table>", "After"};
    QTest::newRow("table at end") << "{{1 x}}" << QStringList{"<table>"};
    QTest::newRow("table then &") << "{{1 x}}&" << QStringList{"<table>", ""};
    QTest::newRow("legacy C++") << "C++" << QStringList{"C", "<table>", ""};
    QTest::newRow("page break") << "x^^y" << QStringList{"x", "y"};
    QTest::newRow("page break after &") << "x&^^y" << QStringList{"x", "", "y"};
}

void TestQtfReader::paragraphs()
{
    QFETCH(QString, qtf);
    QFETCH(QStringList, expected);
    const Document d = ReadQtf(qtf);
    QCOMPARE(ParagraphTexts(d), expected);
    QVERIFY2(d.error.isEmpty(), qPrintable(d.error));
}

void TestQtfReader::runFormats()
{
    Document d = ReadQtf(QStringLiteral("[* Bold] plain"));
    QList<Run> runs = d.blocks.at(0).paragraph.runs;
    QCOMPARE(runs.size(), 2);
    QCOMPARE(runs[0].text, QStringLiteral("Bold"));
    QVERIFY(runs[0].format.bold);
    QCOMPARE(runs[1].text, QStringLiteral(" plain"));
    QVERIFY(!runs[1].format.bold);

    // Attributes toggle.
    runs = ReadQtf(QStringLiteral("[* a[* b]c]")).blocks.at(0).paragraph.runs;
    QCOMPARE(runs.size(), 3);
    QVERIFY(runs[0].format.bold && !runs[1].format.bold && runs[2].format.bold);
    QCOMPARE(runs[1].text, QStringLiteral("b"));

    // Exactly one space ends the codes.
    runs = ReadQtf(QStringLiteral("[*  x]")).blocks.at(0).paragraph.runs;
    QCOMPARE(runs.size(), 1);
    QCOMPARE(runs[0].text, QStringLiteral(" x"));

    runs = ReadQtf(QStringLiteral("[3 A][+150 B][0 C][9 D]")).blocks.at(0).paragraph.runs;
    QCOMPARE(runs.size(), 4);
    QCOMPARE(runs[0].format.height, 100);
    QCOMPARE(runs[1].format.height, 150);
    QCOMPARE(runs[2].format.height, 50);
    QCOMPARE(runs[3].format.height, 400);

    runs = ReadQtf(QStringLiteral("[/_-`,cdT x]")).blocks.at(0).paragraph.runs;
    const CharFormat& f = runs[0].format;
    QVERIFY(f.italic && f.underline && f.strikeout && f.superscript && f.subscript);
    QVERIFY(f.capitals && f.dashed && f.noAntialias && !f.bold);

    runs = ReadQtf(QStringLiteral("[R a][C b][G c][g d][!Courier New! e][!Frutiger! f][.1 g][A h]"))
               .blocks.at(0)
               .paragraph.runs;
    QCOMPARE(runs.size(), 8);
    QCOMPARE(runs[0].format.face, Face::Serif);
    QCOMPARE(runs[1].format.face, Face::Mono);
    QCOMPARE(runs[2].format.face, Face::Gui);
    QVERIFY(!runs[2].format.guiHeight);
    QVERIFY(runs[3].format.guiHeight);
    QCOMPARE(runs[4].format.face, Face::Mono);
    QCOMPARE(runs[5].format.face, Face::Named);
    QCOMPARE(runs[5].format.faceName, QStringLiteral("Frutiger"));
    QCOMPARE(runs[6].format.face, Face::Serif);
    QCOMPARE(runs[7].format.face, Face::Sans);

    runs =
        ReadQtf(QStringLiteral("[^http://x.hu^ link][%HU-HU h][%- n]")).blocks.at(0).paragraph.runs;
    QCOMPARE(runs[0].format.link, QStringLiteral("http://x.hu"));
    QCOMPARE(runs[1].format.language, QStringLiteral("HU-HU"));
    QCOMPARE(runs[2].text, QStringLiteral("n"));
    QVERIFY(runs[2].format.language.isEmpty());
}

void TestQtfReader::colours_data()
{
    QTest::addColumn<QString>("qtf");
    QTest::addColumn<QColor>("ink");
    QTest::addColumn<QColor>("paper");
    const QColor none(Qt::transparent);
    QTest::newRow("dark red") << "[@3 x]" << QColor(128, 0, 0) << none;
    QTest::newRow("rgb") << "[@(0.128.255) x]" << QColor(0, 128, 255) << none;
    QTest::newRow("grey value") << "[@(100) x]" << QColor(100, 100, 100) << none;
    QTest::newRow("paper") << "[$7 x]" << QColor(0, 0, 0) << QColor(224, 224, 224);
    QTest::newRow("letters") << "[@m$Y x]" << QColor(128, 0, 255) << QColor(255, 255, 192);
    QTest::newRow("brown") << "[@O x]" << QColor(128, 128, 0) << none;
    QTest::newRow("other letter is white") << "[@z x]" << QColor(255, 255, 255) << none;
    QTest::newRow("other character is red") << "[@# x]" << QColor(255, 0, 0) << none;
    QTest::newRow("transparent paper") << "[$7$n x]" << QColor(0, 0, 0) << none;
}

void TestQtfReader::colours()
{
    QFETCH(QString, qtf);
    QFETCH(QColor, ink);
    QFETCH(QColor, paper);
    const Run run = ReadQtf(qtf).blocks.at(0).paragraph.runs.at(0);
    QCOMPARE(run.text, QStringLiteral("x"));
    QCOMPARE(run.format.ink, ink);
    QCOMPARE(run.format.paper.alpha() == 0, paper.alpha() == 0);
    if (paper.alpha() > 0)
        QCOMPARE(run.format.paper, paper);
}

void TestQtfReader::paragraphFormatIsTakenAtTheEnd_data()
{
    QTest::addColumn<QString>("qtf");
    QTest::addColumn<QList<int>>("aligns"); // Align per paragraph
    const int left = int(Align::Left);
    const int centre = int(Align::Center);
    const int right = int(Align::Right);
    QTest::newRow("& inside the block") << "[= Title&]Body" << QList<int>{centre, left};
    QTest::newRow("& after the block") << "[= Title]&Body" << QList<int>{left, left};
    QTest::newRow("block at the end") << "Body[= Title]" << QList<int>{centre};
    // "]" does not refresh the pending format, so the last (empty) paragraph stays right.
    QTest::newRow("justify then right")
        << "[# a&][> b&]" << QList<int>{int(Align::Justify), right, right};
    QTest::newRow("report heads") << "[4*< Invoice&][4*> No. 17]" << QList<int>{left, right};
}

void TestQtfReader::paragraphFormatIsTakenAtTheEnd()
{
    QFETCH(QString, qtf);
    QFETCH(QList<int>, aligns);
    const Document d = ReadQtf(qtf);
    QCOMPARE(d.blocks.size(), aligns.size());
    for (qsizetype i = 0; i < aligns.size(); ++i)
        QCOMPARE(int(d.blocks.at(i).paragraph.format.align), aligns.at(i));
}

void TestQtfReader::numbersAndSeparators()
{
    Document d = ReadQtf(QStringLiteral("[l200;4 x]"));
    QCOMPARE(d.blocks.at(0).paragraph.format.leftMargin, 200);
    QCOMPARE(d.blocks.at(0).paragraph.runs.at(0).format.height, 134);
    d = ReadQtf(QStringLiteral("[l2004 x]"));
    QCOMPARE(d.blocks.at(0).paragraph.format.leftMargin, 2004);
    QCOMPARE(d.blocks.at(0).paragraph.runs.at(0).format.height, 100);
    d = ReadQtf(QStringLiteral("[i-150r30b20a40PkKpd x&]"));
    const ParaFormat& p = d.blocks.at(0).paragraph.format;
    QCOMPARE(p.indent, -150);
    QCOMPARE(p.rightMargin, 30);
    QCOMPARE(p.before, 20);
    QCOMPARE(p.after, 40);
    QVERIFY(p.pageBreak && p.keep && p.keepNext);
    QCOMPARE(p.spacing, LineSpacing::Double);
    // Numbers past any sensible size are capped instead of overflowing.
    d = ReadQtf(QStringLiteral("[l99999999999999999999 x]"));
    QCOMPARE(d.blocks.at(0).paragraph.format.leftMargin, 100000);
}

void TestQtfReader::tables()
{
    Document d = ReadQtf(QStringLiteral("{{1:1 A:: B||C:: D}}"));
    QCOMPARE(d.blocks.size(), 1);
    const Table& t = TableAt(d, 0);
    QCOMPARE(t.format.widths, (QList<int>{5000, 5000}));
    QCOMPARE(t.format.frame, 10);
    QCOMPARE(t.format.grid, 4);
    QCOMPARE(t.rows.size(), 2);
    QCOMPARE(CellText(t, 0, 0), QStringLiteral("A"));
    QCOMPARE(CellText(t, 0, 1), QStringLiteral("B"));
    QCOMPARE(CellText(t, 1, 0), QStringLiteral("C"));
    QCOMPARE(CellText(t, 1, 1), QStringLiteral("D"));

    d = ReadQtf(QStringLiteral("{{1:2:1~^ x}}"));
    const Table& u = TableAt(d, 0);
    QCOMPARE(u.format.widths, (QList<int>{2500, 5000, 2500}));
    QCOMPARE(u.format.frame, 0);
    QCOMPARE(u.format.grid, 0);
    QCOMPARE(u.rows.size(), 1);
    QCOMPARE(u.rows[0].size(), 3);
    QCOMPARE(CellText(u, 0, 0), QStringLiteral("x"));
    for (const Cell& c : u.rows[0]) {
        QCOMPARE(c.format.valign, VAlign::Top);
        QCOMPARE(c.blocks.size(), 1); // every cell holds a paragraph
    }

    // Shares are scaled to 10000 with the rounding carried along.
    QCOMPARE(TableAt(ReadQtf(QStringLiteral("{{1:2 a}}")), 0).format.widths,
             (QList<int>{3333, 6667}));
    QCOMPARE(TableAt(ReadQtf(QStringLiteral("{{:1 a}}")), 0).format.widths,
             (QList<int>{5000, 5000}));

    // Alignment inside a cell is the cell paragraph's; "&" at the end leaves an empty one.
    d = ReadQtf(QStringLiteral("{{1:1 [> 12.00]:: [* Net]}}"));
    const Table& v = TableAt(d, 0);
    QCOMPARE(v.rows[0][0].blocks.at(0).paragraph.format.align, Align::Right);
    QVERIFY(v.rows[0][1].blocks.at(0).paragraph.runs.at(0).format.bold);
    d = ReadQtf(QStringLiteral("{{1:1 [> 5&]:: x}}"));
    const QList<Block>& cell = TableAt(d, 0).rows[0][0].blocks;
    QCOMPARE(cell.size(), 2);
    QCOMPARE(cell[0].paragraph.text(), QStringLiteral("5"));
    QCOMPARE(cell[1].paragraph.format.align, Align::Right);
}

void TestQtfReader::tableFormats()
{
    const Document d =
        ReadQtf(QStringLiteral("{{1:1<100>50B20A30f20F3g8G4h1KPl20/40r5t6/7b8@K x:: y}}"));
    const Table& t = TableAt(d, 0);
    const TableFormat& f = t.format;
    QCOMPARE(f.leftIndent, 100);
    QCOMPARE(f.rightIndent, 50);
    QCOMPARE(f.before, 20);
    QCOMPARE(f.after, 30);
    QCOMPARE(f.frame, 20);
    QCOMPARE(f.frameColor, QColor(128, 0, 0));
    QCOMPARE(f.grid, 8);
    QCOMPARE(f.gridColor, QColor(0, 128, 0));
    QCOMPARE(f.headerRows, 1);
    QVERIFY(f.keep && f.pageBreak);
    const CellFormat& c = t.rows[0][0].format;
    QCOMPARE(c.border[0], 20);
    QCOMPARE(c.margin[0], 40);
    QCOMPARE(c.border[2], 5);
    QCOMPARE(c.margin[2], 25); // unchanged default
    QCOMPARE(c.border[1], 6);
    QCOMPARE(c.margin[1], 7);
    QCOMPARE(c.border[3], 8);
    QCOMPARE(c.background, QColor(128, 128, 128));

    const Document all = ReadQtf(QStringLiteral("{{1a2/3@2 x}}"));
    const CellFormat& a = TableAt(all, 0).rows[0][0].format;
    for (int s = 0; s < 4; ++s) {
        QCOMPARE(a.border[s], 2);
        QCOMPARE(a.margin[s], 3);
    }
    const Document star = ReadQtf(QStringLiteral("{{1* x}}"));
    const Table& st = TableAt(star, 0);
    QCOMPARE(st.format.frame, 0);
    QCOMPARE(st.format.grid, 0);
    QCOMPARE(st.rows[0][0].format.margin[0], 0);
}

void TestQtfReader::cellFormatsCarryOn()
{
    const Document d = ReadQtf(QStringLiteral("{{1:1:1 a::@7 b:: c::! d:: e:: f}}"));
    const Table& t = TableAt(d, 0);
    const QColor white(255, 255, 255);
    const QColor grey(224, 224, 224);
    QCOMPARE(t.rows[0][0].format.background, white);
    QCOMPARE(t.rows[0][1].format.background, grey);
    QCOMPARE(t.rows[0][2].format.background, grey);
    QCOMPARE(t.rows[1][0].format.background, white);
    QCOMPARE(t.rows[1][1].format.background, white);
    QCOMPARE(t.rows[1][2].format.background, white);

    // A short last row is padded with cells of the format in effect.
    const Document padded = ReadQtf(QStringLiteral("{{1:1:1 a::@7 b}}"));
    const Table& p = TableAt(padded, 0);
    QCOMPARE(p.rows[0].size(), 3);
    QCOMPARE(p.rows[0][2].format.background, grey);
}

void TestQtfReader::spansCoverCells()
{
    const Document d = ReadQtf(QStringLiteral("{{1:1:1 A::-1 B:: x:: C:: D:: E}}"));
    const Table& t = TableAt(d, 0);
    QCOMPARE(t.rows.size(), 2);
    QCOMPARE(t.rows[0][1].format.hspan, 1);
    QVERIFY(t.rows[0][2].covered);
    QCOMPARE(CellText(t, 0, 2), QString()); // content of a covered cell is dropped
    QCOMPARE(CellText(t, 1, 0), QStringLiteral("C"));
    QCOMPARE(t.rows[1][0].format.hspan, 0); // spans do not carry on
    QCOMPARE(CellText(t, 1, 2), QStringLiteral("E"));
    QCOMPARE(PlainText(d.blocks, true), QStringLiteral("A\tB\nC\tD\tE"));

    // Spans are cut at the table's edges.
    const Document cut = ReadQtf(QStringLiteral("{{1:1 a::-5|9 b:: c:: d}}"));
    const Table& v = TableAt(cut, 0);
    QCOMPARE(v.rows[0][1].format.hspan, 0);
    QCOMPARE(v.rows[0][1].format.vspan, 1);
    QVERIFY(v.rows[1][1].covered);
    QCOMPARE(CellText(v, 1, 0), QStringLiteral("c"));
}

void TestQtfReader::nestedTables()
{
    const Document d = ReadQtf(QStringLiteral("{{1:1 {{1:1 a:: b}}:: c}}&after"));
    QCOMPARE(ParagraphTexts(d), (QStringList{"<table>", "after"}));
    const Table& outer = TableAt(d, 0);
    QCOMPARE(outer.rows.size(), 1);
    const QList<Block>& first = outer.rows[0][0].blocks;
    QCOMPARE(first.size(), 1);
    QVERIFY(first[0].isTable());
    QCOMPARE(CellText(*first[0].table, 0, 1), QStringLiteral("b"));
    QCOMPARE(CellText(outer, 0, 1), QStringLiteral("c"));
    QCOMPARE(PlainText(d.blocks), QStringLiteral("a\nb\nc\nafter"));

    // Deep nesting stops with an error instead of exhausting the stack.
    QString deep;
    for (int i = 0; i < 5000; ++i)
        deep += QStringLiteral("{{1 ");
    const Document stopped = ReadQtf(deep + QStringLiteral("x"));
    QVERIFY(stopped.error.startsWith(QStringLiteral("ERROR: ")));
}

void TestQtfReader::headerRowsAndPageBreaks()
{
    const Document h = ReadQtf(QStringLiteral("{{1:1h1 Qty:: Price:: 1:: 9.99}}"));
    const Table& t = TableAt(h, 0);
    QCOMPARE(t.format.headerRows, 1);
    QCOMPARE(CellText(t, 0, 0), QStringLiteral("Qty"));
    QCOMPARE(CellText(t, 1, 1), QStringLiteral("9.99"));
    QCOMPARE(TableAt(ReadQtf(QStringLiteral("{{1h5 x}}")), 0).format.headerRows, 1);

    Document d = ReadQtf(QStringLiteral("x^^y"));
    QVERIFY(!d.blocks[0].paragraph.format.pageBreak);
    QVERIFY(d.blocks[1].paragraph.format.pageBreak);
    d = ReadQtf(QStringLiteral("x^^{{1 t}}"));
    QVERIFY(d.blocks[1].pageBreak);
    d = ReadQtf(QStringLiteral("^Hhead `^ [* $$P]^^^Ffoot^^body"));
    QCOMPARE(d.header, QStringLiteral("head `^ [* $$P]"));
    QCOMPARE(d.footer, QStringLiteral("foot"));
    QCOMPARE(ParagraphTexts(d), QStringList{"body"});
}

void TestQtfReader::errors_data()
{
    QTest::addColumn<QString>("qtf");
    QTest::addColumn<QString>("error");
    QTest::addColumn<QString>("kept");
    QTest::newRow("-- outside a table") << "a--b"
                                        << "ERROR: Not in table: --b"
                                        << "a";
    QTest::newRow(":: outside a table") << "a::b"
                                        << "ERROR: Not in table: ::b"
                                        << "a";
    QTest::newRow("|| outside a table") << "a||b"
                                        << "ERROR: Not in table: ||b"
                                        << "a";
    QTest::newRow("unmatched ]") << "ok]rest"
                                 << "ERROR: Unmatched ']': ]rest"
                                 << "ok";
    QTest::newRow("code after ::") << "{{1:1 A::B}}"
                                   << "ERROR: Expected number: }}"
                                   << "A";
    QTest::newRow("bad cell code") << "{{1 x::Z y}}"
                                   << "ERROR: Invalid cell format: Z y}}"
                                   << "x";
    QTest::newRow("missing number") << "[l x]"
                                    << "ERROR: Expected number:  x]"
                                    << "";
    QTest::newRow("unclosed face name") << "[!Arial x]"
                                        << "ERROR: Unexpected end of text: Arial x]"
                                        << "";
    QTest::newRow("long rest cut to 20") << "x]0123456789abcdefghijKLMN"
                                         << "ERROR: Unmatched ']': ]0123456789abcdefghi"
                                         << "x";
}

void TestQtfReader::errors()
{
    QFETCH(QString, qtf);
    QFETCH(QString, error);
    QFETCH(QString, kept);
    const Document d = ReadQtf(qtf);
    QCOMPARE(d.error, error);
    // What was read stays; the message is added in bold red underline.
    const QString text = PlainText(d.blocks);
    QVERIFY2(text.startsWith(kept), qPrintable(text));
    QVERIFY2(text.endsWith(error), qPrintable(text));
    bool marked = false;
    for (const Block& b : d.blocks) {
        for (const Run& r : b.paragraph.runs) {
            if (r.text == error)
                marked = r.format.bold && r.format.underline && r.format.ink == QColor(255, 0, 0);
        }
    }
    if (!d.blocks.last().isTable())
        QVERIFY(marked);
}

void TestQtfReader::unknownCodesKeepText()
{
    // Unknown code characters inside brackets are skipped, "]" included.
    QCOMPARE(QtfToPlainText(QStringLiteral("a[ZqXw7 b]c")), QStringLiteral("abc"));
    const Document d = ReadQtf(QStringLiteral("[*]x] y"));
    QCOMPARE(PlainText(d.blocks), QStringLiteral("y"));
    QVERIFY(d.blocks[0].paragraph.runs[0].format.bold);
    QVERIFY(d.error.isEmpty());
    // Unknown fields and objects keep the text around them.
    QCOMPARE(QtfToPlainText(QStringLiteral("a{:NOPE:x:}b@@zzz:10*10(AAAA)c")),
             QStringLiteral("abc"));
    // Blocks left open are closed at the end.
    QCOMPARE(QtfToPlainText(QStringLiteral("[* [/ [_ deep")), QStringLiteral("deep"));
    // "}}" outside a table is text.
    QCOMPARE(QtfToPlainText(QStringLiteral("a}}b")), QStringLiteral("a}}b"));
}

void TestQtfReader::tabStops()
{
    const Document d = ReadQtf(QStringLiteral("[~>.>0~=200~300~<-500 Total-|12.00]"));
    const ParaFormat& p = d.blocks[0].paragraph.format;
    QCOMPARE(d.blocks[0].paragraph.text(), QStringLiteral("Total\t12.00"));
    QCOMPARE(p.tabs.size(), 4);
    QCOMPARE(p.tabs[0], (TabStop{0, TabStop::Kind::Right, '.', true}));
    QCOMPARE(p.tabs[1], (TabStop{200, TabStop::Kind::Center, 0, false}));
    QCOMPARE(p.tabs[2], (TabStop{300, TabStop::Kind::Left, 0, false}));
    QCOMPARE(p.tabs[3], (TabStop{500, TabStop::Kind::Left, '-', false}));
    QVERIFY(ReadQtf(QStringLiteral("[~300~~ x]")).blocks[0].paragraph.format.tabs.isEmpty());
    QCOMPARE(ReadQtf(QStringLiteral("[t100 x]")).blocks[0].paragraph.format.tabSize, 100);
}

void TestQtfReader::objectsAndFields()
{
    Document d = ReadQtf(QStringLiteral("@@PNG:600&300(AAAA)"));
    Run r = d.blocks[0].paragraph.runs.at(0);
    QCOMPARE(r.kind, Run::Kind::Object);
    QCOMPARE(r.type, QStringLiteral("PNG"));
    QCOMPARE(r.cx, 600);
    QCOMPARE(r.cy, 300);
    QVERIFY(r.keepRatio);
    QCOMPARE(r.data, QByteArray(3, '\0'));

    d = ReadQtf(QStringLiteral("a@@iml:100*50/20\n`Icons:logo``x`b"));
    QCOMPARE(d.blocks[0].paragraph.text(), QStringLiteral("ab"));
    r = d.blocks[0].paragraph.runs.at(1);
    QCOMPARE(r.type, QStringLiteral("iml"));
    QVERIFY(!r.keepRatio);
    QCOMPARE(r.lower, 20);
    QCOMPARE(r.data, QByteArray("Icons:logo`x"));

    d = ReadQtf(QStringLiteral("[1> {:VALUE:PAGENUMBER:}/{:VALUE:PAGECOUNT:}]"));
    const QList<Run>& runs = d.blocks[0].paragraph.runs;
    QCOMPARE(runs.size(), 3);
    QCOMPARE(runs[0].kind, Run::Kind::Field);
    QCOMPARE(runs[0].type, QStringLiteral("VALUE"));
    QCOMPARE(runs[0].text, QStringLiteral("PAGENUMBER"));
    QCOMPARE(runs[2].text, QStringLiteral("PAGECOUNT"));
}

void TestQtfReader::stylesAndTopics()
{
    const QString topic =
        QStringLiteral("topic \"Help\";\n[ $$0,0#00000000000000000000000000000000:Default]\n"
                       "[*4@5 $$1,0#12345678901234567890123456789012:heading]\n"
                       "[{_}%EN-US [s1; Title&][s0; Body&][s\"heading\";/ Again]]");
    const Document d = ReadQtf(QtfTopicBody(topic));
    QCOMPARE(ParagraphTexts(d).mid(0, 3), (QStringList{"Title", "Body", "Again"}));
    const CharFormat& title = d.blocks[0].paragraph.runs[0].format;
    QVERIFY(title.bold);
    QCOMPARE(title.height, 134);
    QCOMPARE(title.ink, QColor(0, 0, 128));
    QCOMPARE(title.language, QStringLiteral("EN-US")); // kept when a style is applied
    QVERIFY(!d.blocks[1].paragraph.runs[0].format.bold);
    const CharFormat& again = d.blocks[2].paragraph.runs[0].format;
    QVERIFY(again.bold && again.italic);
}

void TestQtfReader::plainText_data()
{
    QTest::addColumn<QString>("qtf");
    QTest::addColumn<bool>("tabs");
    QTest::addColumn<QString>("text");
    QTest::newRow("paragraphs") << "a&[* b]&" << false << "a\nb\n";
    QTest::newRow("table rows") << "x{{1:1 a:: b:: c:: d}}y" << false << "x\na\nb\nc\nd\ny";
    QTest::newRow("table with tabs") << "{{1:1 a:: b:: c:: d}}" << true << "a\tb\nc\td";
    QTest::newRow("no tabs when a cell has lines") << "{{1:1 a&b:: c}}" << true << "a\nb\nc";
    QTest::newRow("message") << "Saved.&[* 3] rows" << false << "Saved.\n3 rows";
    QTest::newRow("no-break space kept") << "1_000 Ft" << false << QStringLiteral("1\u00a0000 Ft");
}

void TestQtfReader::plainText()
{
    QFETCH(QString, qtf);
    QFETCH(bool, tabs);
    QFETCH(QString, text);
    QCOMPARE(QtfToPlainText(qtf, tabs), text);
}

void TestQtfReader::escapedDataReadsBack_data()
{
    QTest::addColumn<QString>("data");
    QTest::newRow("punctuation") << QStringLiteral(
        "C++ [x] & y :: z || -- ^^ @@ $$ {{ }} `_\\ !#%");
    QTest::newRow("lines") << QStringLiteral("Kovács Kft.\nFő utca 1.");
    QTest::newRow("tab") << QStringLiteral("a\tb");
    QTest::newRow("accents") << QStringLiteral("Árvíztűrő tükörfúrógép 100 %");
}

void TestQtfReader::escapedDataReadsBack()
{
    QFETCH(QString, data);
    const Document d = ReadQtf(QStringLiteral("[* ") + QtfEscape(data) + QStringLiteral("]"));
    QVERIFY(d.error.isEmpty());
    QCOMPARE(PlainText(d.blocks), data);
    QCOMPARE(QtfEscape(QStringLiteral("a,b")), QStringLiteral("a`,b"));
}

QTEST_MAIN(TestQtfReader)
#include "tst_qtfreader.moc"
