// Invoice templates: placeholder parsing and filling, the certification digest, template
// directories and the settings record, how amounts and messages are printed.
#include "TestCompany.h"
#include "TestData.h"

#include "base/Setup.h"
#include "base/SqlStatement.h"
#include "documents/AmountFormat.h"
#include "documents/InvoiceTemplate.h"
#include "documents/MessageText.h"
#include "documents/PlaceholderMap.h"
#include "documents/QtfReader.h"
#include "documents/TemplateText.h"

#include <QTemporaryDir>
#include <QTextDocument>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

using Piece = InvoiceTemplate::Piece;

// One text per piece, in the order of Piece, each different; the expected digests below were
// computed with md5sum over the same bytes in the digest's order with the salt.
InvoiceTemplate KnownSet()
{
    const QStringList texts = u"header !P.PAGE!|ih|ihd|footer|Számla [* !P.ITEMS!]|i1|i1d|i2|vd|"
                              "vdh|sig|ch|cf|rate"_s.split(u'|');
    InvoiceTemplate t;
    for (int i = 0; i < InvoiceTemplate::kPieces; ++i)
        t.setText(Piece(i), texts[i]);
    return t;
}

const QString kKnownDigest = u"F53E941ED4C6F0751EEC3EC16127346E"_s;
const QString kEmptyDigest = u"6AB11B96B81AD4B1FA74FA50A6325883"_s;

} // namespace

class TestTemplates : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void parse_data()
    {
        // parsed: each literal followed by <name>, then the trailing text
        AddColumns<QString, QString>({"text", "parsed"});
        const auto row = [](const char* name, const char* text, const char* parsed) {
            QTest::newRow(name) << QString::fromUtf8(text) << QString::fromUtf8(parsed);
        };
        row("one", "Net: !ORDERHEAD.TOTAL.NET! Ft", "Net: <ORDERHEAD.TOTAL.NET> Ft");
        row("two in a row", "!A!!B!", "<A><B>");
        row("exclamation before space", "Thank you! Come again!", "Thank you! Come again!");
        row("empty name is text", "a !! b", "a !! b");
        row("empty name then name", "!!X!", "!!X!");
        row("name split by line break", "!ORDERHEAD.\r\nSUBJECT! x", "<ORDERHEAD.SUBJECT> x");
        row("unclosed at end", "total !P.TOTAL", "total !P.TOTAL");
        row("QTF around", "[* !TR.INVOICE!]&[> !P.PAGE!]", "[* <TR.INVOICE>]&[> <P.PAGE>]");
        row("accented letter ends a name", "!ÁR! !OK!", "!ÁR! <OK>");
    }

    void parse()
    {
        auto [text, parsed] = Fetch<QString, QString>({"text", "parsed"});
        const TemplateText t = TemplateText::parse(text);
        QString out;
        QStringList names;
        for (const TemplateText::Segment& s : t.segments()) {
            out += s.literal + u'<' + s.name + u'>';
            names << s.name;
        }
        QCOMPARE(out + t.trailing(), parsed);
        QCOMPARE(t.names(), names);
    }

    void fill()
    {
        PlaceholderMap map;
        map.set(u"A"_s, u"first"_s);
        map.set(u"EMPTY"_s, QString());
        map.set(u"N"_s, 12.5);
        map.set(u"A"_s, u"alpha"_s); // set again: replaced, the first place kept
        QCOMPARE(map.names(), (QStringList{"A", "EMPTY", "N"}));
        bool any = false;
        QCOMPARE(TemplateText::parse(u"[!A!|!UNKNOWN!|!N!|!EMPTY!]"_s).fill(map, &any),
                 u"[alpha||12.5|]"_s);
        QVERIFY(any);
        // Only null values: the report says so (sections with nothing to show are left out).
        QCOMPARE(TemplateText::parse(u"x !EMPTY! !UNKNOWN! y"_s).fill(map, &any), u"x   y"_s);
        QVERIFY(!any);
    }

    void placeholderValues_data()
    {
        AddColumns<QVariant, QString, bool>({"value", "text", "null"});
        QTest::newRow("empty text") << QVariant(QString()) << "" << true;
        QTest::newRow("null") << QVariant() << "" << true;
        QTest::newRow("zero") << QVariant(0.0) << "0" << false;
        QTest::newRow("real") << QVariant(1234567.25) << "1234567.25" << false;
        QTest::newRow("big real has no exponent") << QVariant(1e15) << "1000000000000000" << false;
        QTest::newRow("null number") << QVariant(-1e308) << "" << true;
        QTest::newRow("date") << QVariant(QDate(2024, 3, 5)) << "2024.03.05." << false;
    }

    void placeholderValues()
    {
        auto [value, text, null] = Fetch<QVariant, QString, bool>({"value", "text", "null"});
        QCOMPARE(PlaceholderText(value), text);
        QCOMPARE(IsNullPlaceholder(value), null);
    }

    void certification()
    {
        InvoiceTemplate t = KnownSet();
        QCOMPARE(t.computeDigest(), kKnownDigest);
        QCOMPARE(InvoiceTemplate().computeDigest(), kEmptyDigest);
        QVERIFY(!t.certified());
        t.setDigest(u" %1\r"_s.arg(kKnownDigest));
        QVERIFY(t.certified());
        // Any change of any piece breaks the certification.
        t.setText(Piece::Rate, u"rate "_s);
        QVERIFY(!t.certified());
        t.setText(Piece::Rate, u"rate"_s);
        QVERIFY(t.certified());
        t.setDigest(kKnownDigest.toLower());
        QVERIFY(!t.certified());

        // The same set from a template directory.
        QTemporaryDir dir;
        for (int i = 0; i < InvoiceTemplate::kPieces; ++i) {
            if (Piece(i) != Piece::Signings)
                QVERIFY(WriteFile(
                    dir.filePath(QString::fromLatin1(InvoiceTemplate::fileName(Piece(i)))),
                    t.text(Piece(i)).toUtf8()));
        }
        QVERIFY(WriteFile(dir.filePath(u"invoice.cfg"_s),
                          "# made by hand\r\nName=Test\r\nDigest = " + kKnownDigest.toLatin1() +
                              "\r\n"));
        InvoiceTemplate loaded = LoadTemplateDir(dir.path());
        QCOMPARE(loaded.text(Piece::Body), u"Számla [* !P.ITEMS!]"_s);
        QCOMPARE(loaded.text(Piece::Signings), QString()); // a missing file is an empty piece
        QCOMPARE(loaded.digest(), kKnownDigest);
        QVERIFY(!loaded.certified());

        QVERIFY(WriteFile(dir.filePath(u"invoice_signings.qtf"_s), "sig"));
        QVERIFY(LoadTemplateDir(dir.path()).certified());
        // Line ends of the files are part of what is certified.
        QVERIFY(WriteFile(dir.filePath(u"invoice_rate.qtf"_s), "rate\r\n"));
        loaded = LoadTemplateDir(dir.path());
        QVERIFY(!loaded.certified());
        QCOMPARE(loaded.text(Piece::Rate), u"rate\r\n"_s);
        QVERIFY(!LoadTemplateDir(dir.filePath(u"nothing"_s)).certified());
    }

    void setupRoundTrip()
    {
        TestCompany company;
        QVERIFY(company.isValid());
        InvoiceTemplate t = KnownSet();
        // Quotes, brackets and line breaks go through bound values untouched.
        t.setText(Piece::Footer, u"it's \"x\"; [* y]\r\n'); drop table SETUP; --"_s);
        t.setDigest(t.computeDigest());
        QVERIFY(SaveTemplateToSetup(t));
        Setup setup;
        QVERIFY(setup.load());
        const InvoiceTemplate back = LoadTemplateFromSetup(setup);
        for (int i = 0; i < InvoiceTemplate::kPieces; ++i)
            QCOMPARE(back.text(Piece(i)), t.text(Piece(i)));
        QCOMPARE(back.digest(), t.digest());
        QVERIFY(back.certified());
        QCOMPARE(SelectValue(u"select count(*) from SETUP"_s).toInt(), 1);
    }

    void formatAmount_data()
    {
        // format: the stored format text for that count; text: "_" stands for the no-break space
        AddColumns<double, int, QString, QString>({"value", "decimals", "format", "text"});
        const auto row = [](const char* name, double value, int decimals, const char* format,
                            const char* text) {
            QTest::newRow(name) << value << decimals << format << text;
        };
        row("beyond 32 bits", 12345678901.0, 0, "%0nl", "12_345_678_901");
        row("trailing zeros kept", 1234.5, 2, "%2!nl", "1_234,50");
        row("three digits", 999.0, 2, "%2!nl", "999,00");
        row("four digits grouped", 1000.0, 0, "%0nl", "1_000");
        row("negative", -1234567.5, 2, "%2!nl", "-1_234_567,50");
        row("half away from zero", -2.5, 0, "%0nl", "-3");
        row("decimal half as written", 2.675, 2, "%2!nl", "2,68");
        row("carry through nines", 999.995, 2, "%2!nl", "1_000,00");
        row("binary noise", 0.1 + 0.2, 2, "%2!nl", "0,30");
        row("rounds to zero has no sign", -0.004, 2, "%2!nl", "0,00");
        row("ten decimals", 0.125, 10, "%10!nl", "0,1250000000");
        row("eleven count as none", 5.5, 11, "%0nl", "6");
        row("negative count as none", 5.5, -2, "%0nl", "6");
    }

    void formatAmount()
    {
        auto [value, decimals, format, text] =
            Fetch<double, int, QString, QString>({"value", "decimals", "format", "text"});
        text.replace(u'_', QChar(0xA0));
        QCOMPARE(AmountFormat(decimals), format);
        QCOMPARE(AmountFormat(AmountFormatDecimals(format)), format);
        QCOMPARE(FormatAmount(value, decimals), text);
        QCOMPARE(FormatAmount(value, format), text);
    }

    void messages()
    {
        const QString message = u"Saved.&[* 3] rows&&Done `& ok"_s;
        QCOMPARE(MessagePlainText(message), u"Saved.\n3 rows\n\nDone & ok"_s);
        const QString html = MessageRichText(message);
        QVERIFY(Qt::mightBeRichText(html)); // message boxes must show it as rich text, not markup
        QVERIFY(html.contains(u"font-weight:700"_s) && html.contains(u"Done &amp; ok"_s));
        QCOMPARE(html.count(u"<p "_s), 4);
        // A message's own "[G1 ...]" block means the same as the box's font.
        const QString wrapped = MessageRichText(u"[G1 The partner`'s data has changed.&What?]"_s);
        QVERIFY(wrapped.contains(u"The partner's data has changed."_s));
        QVERIFY(!wrapped.contains(u"ERROR"_s));
        QCOMPARE(MessagePlainText(u"[G1 a&b]"_s), u"a\nb"_s);
        // Messages made by the program carry file names, options and line feeds as they are.
        const QString raw = u"Choose one:\n  kovacs_bt.db\nwith --db FILE (C:\\DB\\a::b || c])."_s;
        QCOMPARE(MessagePlainText(raw), raw);
        QVERIFY(!MessageRichText(u"a--b"_s).contains(u"ERROR"_s));
        // Escaped data reads back the same in a message.
        const QString data = u"x_y [z] & \\w"_s;
        QCOMPARE(MessagePlainText(u"[* "_s + QtfEscape(data) + u']'), data);
    }
};

QTEST_MAIN(TestTemplates)
#include "tst_templates.moc"
