// The QTF reader against the format's reference vectors: paragraphs, runs, tables, errors.
#include "DataTable.h"

#include "documents/QtfReader.h"

#include <QFile>
#include <QtTest>

using namespace Qtf;
using namespace Qt::StringLiterals;

namespace {

// Documents are compared as text, written as tests/data/qtf/reader_vectors.txt describes.
QString On(bool on, const QString& code)
{
    return on ? code : QString();
}

QString Num(const char* code, int n, int normal = 0)
{
    return On(n != normal, QLatin1StringView(code) + QString::number(n));
}

QString Rgb(const char* code, const QColor& c, const QColor& normal)
{
    return On(
        c != normal && c.alpha() != 0,
        u"%1(%2.%3.%4)"_s.arg(QLatin1StringView(code)).arg(c.red()).arg(c.green()).arg(c.blue()));
}

QString Letter(const char* letters, int index)
{
    return QString(QLatin1Char(letters[index])).remove(u' ');
}

QString Braced(const QString& codes)
{
    return On(!codes.isEmpty(), u'{' + codes + u'}');
}

QString CharCodes(const CharFormat& f)
{
    return On(f.bold, "*") + On(f.italic, "/") + On(f.underline, "_") + On(f.strikeout, "-") +
           On(f.superscript, "`") + On(f.subscript, ",") + On(f.capitals, "c") + On(f.dashed, "d") +
           On(f.noAntialias, "T") + On(f.guiHeight, "g") + Letter(" RCGS ", int(f.face)) +
           On(f.face == Face::Named, u'!' + f.faceName + u'!') + Num("h", f.height, 100) +
           Rgb("@", f.ink, Qt::black) + Rgb("$", f.paper, Qt::transparent) +
           On(!f.link.isEmpty(), u'^' + f.link + u'^') +
           On(!f.language.isEmpty(), u'%' + f.language);
}

QString ParaCodes(const ParaFormat& p)
{
    QString s = Letter(" =>#", int(p.align)) + Num("l", p.leftMargin) + Num("r", p.rightMargin) +
                Num("i", p.indent) + Num("b", p.before) + Num("a", p.after) + On(p.pageBreak, "P") +
                On(p.keep, "k") + On(p.keepNext, "K") + On(p.orphan, "Q") +
                On(p.spacing != LineSpacing::Single, u'p' + Letter("nwhd", int(p.spacing))) +
                Num("t", p.tabSize, 296);
    for (const TabStop& t : p.tabs) {
        s += u'~' + Letter("<>=", int(t.kind)) + On(t.fill, QString(QLatin1Char(t.fill))) +
             On(t.fromRight, ">") + QString::number(t.pos);
    }
    return s;
}

QString Dump(const QList<Block>& blocks);

QString CellDump(const Cell& c)
{
    const CellFormat& f = c.format;
    QString s = On(c.covered, "~") + Letter("^ v", int(f.valign));
    for (int i = 0; i < 4; ++i) {
        s += On(f.border[i] != 0 || f.margin[i] != CellFormat().margin[i],
                Letter("ltrb", i) + u"%1/%2"_s.arg(f.border[i]).arg(f.margin[i]));
    }
    s += Rgb("@", f.background, Qt::white) + Num("-", f.hspan) + Num("|", f.vspan);
    return Braced(s) + Dump(c.blocks);
}

QString TableDump(const Table& t)
{
    const TableFormat& f = t.format;
    QStringList widths;
    for (int w : f.widths)
        widths << QString::number(w);
    QString s =
        u"T["_s + widths.join(u' ') + u']' +
        Braced(Num("<", f.leftIndent) + Num(">", f.rightIndent) + Num("B", f.before) +
               Num("A", f.after) + Num("f", f.frame, 10) + Rgb("F", f.frameColor, Qt::black) +
               Num("g", f.grid, 4) + Rgb("G", f.gridColor, Qt::black) + Num("h", f.headerRows) +
               On(f.keep, "K") + On(f.pageBreak, "P") + On(f.legacy, "+"));
    for (const QList<Cell>& row : t.rows) {
        QStringList cells;
        for (const Cell& c : row)
            cells << CellDump(c);
        s += u'(' + cells.join(u'|') + u')';
    }
    return s;
}

QString RunDump(const Run& r)
{
    QString s = u'"' + r.text + u'"';
    if (r.kind == Run::Kind::Field)
        s = u"{:%1:%2:}"_s.arg(r.type, r.text);
    if (r.kind == Run::Kind::Object) {
        s = u"@@%1:%2%3%4%5(%6)"_s.arg(r.type, QString::number(r.cx), r.keepRatio ? "&" : "*",
                                       QString::number(r.cy), Num("/", r.lower),
                                       QString::fromLatin1(r.data.toPercentEncoding(":`")));
    }
    return s.replace(u'\t', u'⇥').replace(QChar(0xA0), u'·') + Braced(CharCodes(r.format));
}

QString Dump(const QList<Block>& blocks)
{
    QStringList out;
    for (const Block& b : blocks) {
        QStringList runs;
        for (const Run& r : b.paragraph.runs)
            runs << RunDump(r);
        out << (b.isTable()
                    ? QString(On(b.pageBreak, "^^") + TableDump(*b.table))
                    : u'P' + Braced(ParaCodes(b.paragraph.format)) + u'[' + runs.join(u' ') + u']');
    }
    return out.join(u' ');
}

} // namespace

class TestQtfReader : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    // The vectors: name, QTF with "\xNN" for control bytes, the document, the error if any.
    void read_data()
    {
        AddColumns<QString, QString, QString>({"qtf", "dump", "error"});
        QFile file(QFINDTESTDATA("../data/qtf/reader_vectors.txt"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n')) {
            const QStringList f = line.split(u'\t');
            if (line.startsWith(u'#') || f.size() < 3)
                continue;
            QString qtf = f[1];
            for (qsizetype i = qtf.indexOf("\\x"_L1); i >= 0; i = qtf.indexOf("\\x"_L1, i + 1))
                qtf.replace(i, 4, QChar(qtf.mid(i + 2, 2).toUShort(nullptr, 16)));
            QTest::newRow(f[0].toUtf8().constData()) << qtf << f[2] << f.value(3);
        }
    }

    void read()
    {
        auto [qtf, dump, error] = Fetch<QString, QString, QString>({"qtf", "dump", "error"});
        const Document d = ReadQtf(qtf.startsWith("topic "_L1) ? QtfTopicBody(qtf) : qtf);
        QCOMPARE(On(!d.header.isEmpty(), "^H" + d.header + "^^ ") +
                     On(!d.footer.isEmpty(), "^F" + d.footer + "^^ ") + Dump(d.blocks),
                 dump);
        QCOMPARE(d.error, error);
    }

    void plainText_data()
    {
        AddColumns<QString, bool, QString>({"qtf", "tabs", "text"});
        QTest::newRow("paragraphs") << "a&[* b]&" << false << "a\nb\n";
        QTest::newRow("table with tabs") << "{{1:1 a:: b:: c:: d}}" << true << "a\tb\nc\td";
        QTest::newRow("covered cells skipped")
            << "{{1:1:1 A::-1 B:: x:: C:: D:: E}}" << true << "A\tB\nC\tD\tE";
        QTest::newRow("no tabs when a cell has lines") << "{{1:1 a&b:: c}}" << true << "a\nb\nc";
        QTest::newRow("nested") << "{{1:1 {{1:1 a:: b}}:: c}}&after" << false << "a\nb\nc\nafter";
        QTest::newRow("unknown field and object")
            << "a{:NOPE:x:}b@@zzz:10*10(AAAA)c" << false << "abc";
        QTest::newRow("no-break space kept") << "1_000 Ft" << false << u"1\u00a0000 Ft"_s;
        // Data escaped for QTF reads back as it was.
        const auto escaped = [](const char* name, const QString& data) {
            QTest::newRow(name) << u"[* "_s + QtfEscape(data) + u']' << false << data;
        };
        escaped("escaped punctuation", u"C++ [x] & y :: z || -- ^^ @@ $$ {{ }} `_\\ !#%,"_s);
        escaped("escaped lines and tabs", u"Kovács Kft.\nFő utca 1.\ta\tb"_s);
    }

    void plainText()
    {
        auto [qtf, tabs, text] = Fetch<QString, bool, QString>({"qtf", "tabs", "text"});
        QCOMPARE(QtfToPlainText(qtf, tabs), text);
    }

    // Where "&" follows a "]" that took paragraph codes with it: the trap "template check" warns
    // of.
    void lostParagraphFormats_data()
    {
        AddColumns<QString, QList<qsizetype>>({"qtf", "offsets"});
        QTest::newRow("alignment lost") << u"[= Title]&Body"_s << QList<qsizetype>{9};
        QTest::newRow("page break lost") << u"x&[P y]&"_s << QList<qsizetype>{7};
        QTest::newRow("& inside the block") << u"[= Title&]Body"_s << QList<qsizetype>{};
        QTest::newRow("character codes only") << u"[* Bold]&x"_s << QList<qsizetype>{};
        QTest::newRow("two blocks closed") << u"[= [* a]]&"_s << QList<qsizetype>{9};
        QTest::newRow("same codes outside") << u"[= [= a]&]"_s << QList<qsizetype>{};
    }

    void lostParagraphFormats()
    {
        auto [qtf, offsets] = Fetch<QString, QList<qsizetype>>({"qtf", "offsets"});
        QCOMPARE(ReadQtf(qtf).lostParagraphFormats, offsets);
    }
};

QTEST_MAIN(TestQtfReader)
#include "tst_qtfreader.moc"
