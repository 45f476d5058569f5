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
#include "documents/Report.h"
#include "documents/TemplateText.h"

#include <QFile>
#include <QSettings>
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
    void parse_data();
    void parse();
    void fill();
    void placeholderValues_data();
    void placeholderValues();
    void certification();
    void setupRoundTrip();
    void formatAmount_data();
    void formatAmount();
    void messages();
    void shippedTemplatePrintsAnInvoice();
};

void TestTemplates::parse_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("parsed"); // each literal followed by <name>, then the trailing text
    const auto row = [](const char* name, const char* text, const char* parsed) {
        QTest::newRow(name) << QString::fromUtf8(text) << QString::fromUtf8(parsed);
    };
    row("one", "Net: !ORDERHEAD.TOTAL.NET! Ft", "Net: <ORDERHEAD.TOTAL.NET> Ft");
    row("two in a row", "!A!!B!", "<A><B>");
    row("exclamation before space", "Thank you! Come again!", "Thank you! Come again!");
    row("exclamation before punctuation", "Hi!, !X!", "Hi!, <X>");
    row("empty name is text", "a !! b", "a !! b");
    row("empty name then name", "!!X!", "!!X!");
    row("name split by line break", "!ORDERHEAD.\r\nSUBJECT! x", "<ORDERHEAD.SUBJECT> x");
    row("unclosed at end", "total !P.TOTAL", "total !P.TOTAL");
    row("QTF around", "[* !TR.INVOICE!]&[> !P.PAGE!]", "[* <TR.INVOICE>]&[> <P.PAGE>]");
    row("accented letter ends a name", "!ÁR! !OK!", "!ÁR! <OK>");
    row("underscore and digits", "!ITEM_1.X2!", "<ITEM_1.X2>");
}

void TestTemplates::parse()
{
    QFETCH(QString, text);
    QFETCH(QString, parsed);
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

void TestTemplates::fill()
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

void TestTemplates::placeholderValues_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("null");
    QTest::newRow("empty text") << QVariant(QString()) << "" << true;
    QTest::newRow("null") << QVariant() << "" << true;
    QTest::newRow("zero") << QVariant(0.0) << "0" << false;
    QTest::newRow("real") << QVariant(1234567.25) << "1234567.25" << false;
    QTest::newRow("big real has no exponent") << QVariant(1e15) << "1000000000000000" << false;
    QTest::newRow("null number") << QVariant(-1e308) << "" << true;
    QTest::newRow("date") << QVariant(QDate(2024, 3, 5)) << "2024.03.05." << false;
}

void TestTemplates::placeholderValues()
{
    QFETCH(QVariant, value);
    QFETCH(QString, text);
    QFETCH(bool, null);
    QCOMPARE(PlaceholderText(value), text);
    QCOMPARE(IsNullPlaceholder(value), null);
}

void TestTemplates::certification()
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
            QVERIFY(
                WriteFile(dir.filePath(QString::fromLatin1(InvoiceTemplate::fileName(Piece(i)))),
                          t.text(Piece(i)).toUtf8()));
    }
    QVERIFY(WriteFile(dir.filePath(u"invoice.cfg"_s), "# made by hand\r\nName=Test\r\nDigest = " +
                                                          kKnownDigest.toLatin1() + "\r\n"));
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

void TestTemplates::setupRoundTrip()
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

void TestTemplates::formatAmount_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<QString>("format"); // the stored format text for that count
    QTest::addColumn<QString>("text");   // "_" stands for the no-break space
    const auto row = [](const char* name, double value, int decimals, const char* format,
                        const char* text) {
        QTest::newRow(name) << value << decimals << format << text;
    };
    row("beyond 32 bits", 12345678901.0, 0, "%0nl", "12_345_678_901");
    row("trailing zeros kept", 1234.5, 2, "%2!nl", "1_234,50");
    row("three digits", 999.0, 2, "%2!nl", "999,00");
    row("four digits grouped", 1000.0, 0, "%0nl", "1_000");
    row("negative", -1234567.5, 2, "%2!nl", "-1_234_567,50");
    row("half up", 2.5, 0, "%0nl", "3");
    row("half away from zero", -2.5, 0, "%0nl", "-3");
    row("decimal half as written", 2.675, 2, "%2!nl", "2,68");
    row("carry through nines", 999.995, 2, "%2!nl", "1_000,00");
    row("binary noise", 0.1 + 0.2, 2, "%2!nl", "0,30");
    row("rounds to zero has no sign", -0.004, 2, "%2!nl", "0,00");
    row("ten decimals", 0.125, 10, "%10!nl", "0,1250000000");
    row("eleven count as none", 5.5, 11, "%0nl", "6");
    row("negative count as none", 5.5, -2, "%0nl", "6");
}

void TestTemplates::formatAmount()
{
    QFETCH(double, value);
    QFETCH(int, decimals);
    QFETCH(QString, format);
    QFETCH(QString, text);
    text.replace(u'_', QChar(0xA0));
    QCOMPARE(AmountFormat(decimals), format);
    QCOMPARE(AmountFormat(AmountFormatDecimals(format)), format);
    QCOMPARE(FormatAmount(value, decimals), text);
    QCOMPARE(FormatAmount(value, format), text);
}

void TestTemplates::messages()
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

namespace {

// One section of the sample invoice's placeholder values, escaped for QTF.
PlaceholderMap Sample(QAnyStringView section, int item = 0)
{
    QSettings ini(QFINDTESTDATA("../data/report/sample_invoice.ini"), QSettings::IniFormat);
    ini.beginGroup(section);
    PlaceholderMap m;
    for (const QString& key : ini.childKeys())
        m.set(key, QtfEscape(ini.value(key).toString().replace("%1"_L1, QString::number(item))));
    return m;
}

} // namespace

// The template set shipped with the program is certified and prints a complete invoice, its 70
// items over several pages.
void TestTemplates::shippedTemplatePrintsAnInvoice()
{
    const InvoiceTemplate t = LoadTemplateDir(QStringLiteral(TN_TEMPLATE_DIR));
    QVERIFY(t.certified());
    PlaceholderMap order = Sample(u"order");
    order.set(u"P.PAGE"_s, u"$$P"_s);
    QString items = t.parsed(Piece::ItemHeader).fill(order);
    for (int i = 1; i <= 70; ++i) {
        items += t.parsed(Piece::Item1).fill(Sample(u"item", i));
        if (i % 10 == 0)
            items += t.parsed(Piece::Item2).fill(Sample(u"item", i));
    }
    order.set(u"P.ITEMS"_s, items);
    order.set(u"P.VATDETAIL"_s, QString(t.parsed(Piece::VatDetailHeader).fill(order) +
                                        t.parsed(Piece::VatDetail).fill(Sample(u"vat"))));
    order.set(u"P.SIGNINGS"_s, t.parsed(Piece::Signings).fill(order));
    // Frozen at issue with the per-copy marks left in, then filled for the first copy.
    PlaceholderMap copy = Sample(u"copy");
    QFile logo(QFINDTESTDATA("../data/report/logo.png"));
    QVERIFY(logo.open(QIODevice::ReadOnly));
    copy.set(u"P.LOGO"_s,
             u"@@PNG:1200&400(%1)"_s.arg(QString::fromLatin1(logo.readAll().toBase64())));
    for (const QString& mark : copy.names())
        order.set(mark, QString(u'!' + mark + u'!'));
    const auto filled = [&](Piece piece) {
        return TemplateText::parse(t.parsed(piece).fill(order)).fill(copy);
    };
    Report report;
    report.setHeader(filled(Piece::Header));
    report.setBody(filled(Piece::Body));
    report.setFooter(filled(Piece::Footer));
    QTemporaryDir dir;
    const QString snapshots = qEnvironmentVariable("TALLYNORTH_SNAPSHOT_DIR");
    const QString pdf = (snapshots.isEmpty() ? dir.path() : snapshots) + u"/invoice.pdf"_s;
    QVERIFY(report.exportPdf(pdf));
    QVERIFY(report.pageCount() >= 2);
    const QStringList pages =
        RunProcess(u"pdftotext"_s, {u"-layout"_s, pdf, u"-"_s}).out.split(u'\f');
    QVERIFY2(!pages.join(u'\n').contains(u"ERROR"_s), qPrintable(pages.join(u'\n'))); // QTF errors
    for (const QString& expected :
         {u"Példa & Társa Kft."_s, u"Müller GmbH"_s, u"Közösségi adószám: HU12345678"_s,
          u"TN-2024/000017"_s, u"Zahnrad 30 / Fogaskerék 30"_s, u"228 925 Ft"_s,
          u"Lieferung in 2 Teilen"_s, u"kettőszázhuszonnyolcezer"_s})
        QVERIFY2(pages.join(u'\n').contains(expected), qPrintable(expected));
    for (int i = 0; i < report.pageCount(); ++i) {
        QVERIFY(pages.value(i).contains(u"Seite / oldal: %1"_s.arg(i + 1)));
        QVERIFY(pages.value(i).contains(u"Számla / Rechnung"_s));
    }
}

QTEST_MAIN(TestTemplates)
#include "tst_templates.moc"
