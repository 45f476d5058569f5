// Invoice templates: placeholder parsing and filling, the certification digest, template
// directories and the settings record, and how amounts are printed.
#include "TestCompany.h"

#include "app/Setup.h"
#include "app/SqlStatement.h"
#include "documents/AmountFormat.h"
#include "documents/InvoiceTemplate.h"
#include "documents/MessageText.h"
#include "documents/PlaceholderMap.h"
#include "documents/QtfReader.h"
#include "documents/Report.h"
#include "documents/TemplateText.h"

#include <QBuffer>
#include <QDate>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace {

using Piece = InvoiceTemplate::Piece;

void WriteFile(const QString& path, const QByteArray& bytes)
{
    QFile f(path);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write(bytes);
}

// One text per piece, each different; the expected digests below were computed with md5sum
// over the same bytes in the digest's order with the salt.
InvoiceTemplate KnownSet()
{
    InvoiceTemplate t;
    t.setText(Piece::Body, QStringLiteral("Számla [* !P.ITEMS!]"));
    t.setText(Piece::Footer, QStringLiteral("footer"));
    t.setText(Piece::Header, QStringLiteral("header !P.PAGE!"));
    t.setText(Piece::ItemHeader, QStringLiteral("ih"));
    t.setText(Piece::ItemHeaderDiscount, QStringLiteral("ihd"));
    t.setText(Piece::Item1, QStringLiteral("i1"));
    t.setText(Piece::Item1Discount, QStringLiteral("i1d"));
    t.setText(Piece::Item2, QStringLiteral("i2"));
    t.setText(Piece::VatDetail, QStringLiteral("vd"));
    t.setText(Piece::VatDetailHeader, QStringLiteral("vdh"));
    t.setText(Piece::Signings, QStringLiteral("sig"));
    t.setText(Piece::ConsolidatedHeader, QStringLiteral("ch"));
    t.setText(Piece::ConsolidatedFooter, QStringLiteral("cf"));
    t.setText(Piece::Rate, QStringLiteral("rate"));
    return t;
}

const QString kKnownDigest = QStringLiteral("F53E941ED4C6F0751EEC3EC16127346E");
const QString kEmptyDigest = QStringLiteral("6AB11B96B81AD4B1FA74FA50A6325883");

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
    void placeholderMapKeepsOrder();
    void digest();
    void loadDirectory();
    void setupRoundTrip();
    void amountFormat_data();
    void amountFormat();
    void formatAmount_data();
    void formatAmount();
    void messages();
    void shippedTemplatePrintsAnInvoice();
};

void TestTemplates::parse_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("literals"); // literals joined by "|", trailing last
    QTest::newRow("one") << "Net: !ORDERHEAD.TOTAL.NET! Ft" << QStringList{"ORDERHEAD.TOTAL.NET"}
                         << "Net: | Ft";
    QTest::newRow("two in a row") << "!A!!B!" << QStringList{"A", "B"} << "||";
    QTest::newRow("exclamation before space")
        << "Thank you! Come again!" << QStringList{} << "Thank you! Come again!";
    QTest::newRow("exclamation before punctuation") << "Hi!, !X!" << QStringList{"X"} << "Hi!, |";
    QTest::newRow("empty name is text") << "a !! b" << QStringList{} << "a !! b";
    QTest::newRow("empty name then name") << "!!X!" << QStringList{} << "!!X!";
    QTest::newRow("name split by line break")
        << "!ORDERHEAD.\r\nSUBJECT! x" << QStringList{"ORDERHEAD.SUBJECT"} << "| x";
    QTest::newRow("unclosed at end") << "total !P.TOTAL" << QStringList{} << "total !P.TOTAL";
    QTest::newRow("QTF around") << "[* !TR.INVOICE!]&[> !P.PAGE!]"
                                << QStringList{"TR.INVOICE", "P.PAGE"} << "[* |]&[> |]";
    QTest::newRow("accented letter ends a name") << "!ÁR! !OK!" << QStringList{"OK"} << "!ÁR! |";
    QTest::newRow("underscore and digits") << "!ITEM_1.X2!" << QStringList{"ITEM_1.X2"} << "|";
}

void TestTemplates::parse()
{
    QFETCH(QString, text);
    QFETCH(QStringList, names);
    QFETCH(QString, literals);
    const TemplateText t = TemplateText::parse(text);
    QCOMPARE(t.names(), names);
    QStringList parts;
    for (const TemplateText::Segment& s : t.segments())
        parts << s.literal;
    parts << t.trailing();
    QCOMPARE(parts.join(u'|'), literals);
}

void TestTemplates::fill()
{
    PlaceholderMap map;
    map.set(QStringLiteral("A"), QStringLiteral("alpha"));
    map.set(QStringLiteral("EMPTY"), QString());
    map.set(QStringLiteral("N"), 12.5);
    const TemplateText t = TemplateText::parse(QStringLiteral("[!A!|!UNKNOWN!|!N!|!EMPTY!]"));
    bool any = false;
    QCOMPARE(t.fill(map, &any), QStringLiteral("[alpha||12.5|]"));
    QVERIFY(any);

    // Only null values: the report says so (sections with nothing to show are left out).
    const TemplateText onlyEmpty = TemplateText::parse(QStringLiteral("x !EMPTY! !UNKNOWN! y"));
    QCOMPARE(onlyEmpty.fill(map, &any), QStringLiteral("x   y"));
    QVERIFY(!any);
    // Per-copy marks survive a first filling when they stand for themselves.
    map.set(QStringLiteral("P.COPY"), QStringLiteral("!P.COPY!"));
    const QString first = TemplateText::parse(QStringLiteral("No. !P.COPY!")).fill(map);
    PlaceholderMap second;
    second.set(QStringLiteral("P.COPY"), QStringLiteral("2."));
    QCOMPARE(TemplateText::parse(first).fill(second), QStringLiteral("No. 2."));
}

void TestTemplates::placeholderValues_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("null");
    QTest::newRow("text") << QVariant(QStringLiteral("Kovács")) << "Kovács" << false;
    QTest::newRow("empty text") << QVariant(QString()) << "" << true;
    QTest::newRow("null") << QVariant() << "" << true;
    QTest::newRow("integer") << QVariant(42) << "42" << false;
    QTest::newRow("zero") << QVariant(0.0) << "0" << false;
    QTest::newRow("real") << QVariant(1234567.25) << "1234567.25" << false;
    QTest::newRow("big real has no exponent") << QVariant(1e15) << "1000000000000000" << false;
    QTest::newRow("null number") << QVariant(-1e308) << "" << true;
    QTest::newRow("date") << QVariant(QDate(2024, 3, 5)) << "2024.03.05." << false;
    QTest::newRow("stored date text")
        << QVariant(QStringLiteral("2024-03-05")) << "2024-03-05" << false;
}

void TestTemplates::placeholderValues()
{
    QFETCH(QVariant, value);
    QFETCH(QString, text);
    QFETCH(bool, null);
    QCOMPARE(PlaceholderText(value), text);
    QCOMPARE(IsNullPlaceholder(value), null);
}

void TestTemplates::placeholderMapKeepsOrder()
{
    PlaceholderMap map;
    map.set(QStringLiteral("B"), 1);
    map.set(QStringLiteral("A"), 2);
    map.set(QStringLiteral("B"), 3);
    QCOMPARE(map.names(), (QStringList{"B", "A"}));
    QCOMPARE(map.value(QStringLiteral("B")).toInt(), 3);
    QCOMPARE(map.text(QStringLiteral("missing")), QString());
}

void TestTemplates::digest()
{
    InvoiceTemplate t = KnownSet();
    QCOMPARE(t.computeDigest(), kKnownDigest);
    QCOMPARE(InvoiceTemplate().computeDigest(), kEmptyDigest);
    QVERIFY(!t.certified());
    t.setDigest(QStringLiteral(" %1\r").arg(kKnownDigest));
    QVERIFY(t.certified());
    // Any change of any piece breaks the certification.
    t.setText(Piece::Rate, QStringLiteral("rate "));
    QVERIFY(!t.certified());
    t.setText(Piece::Rate, QStringLiteral("rate"));
    QVERIFY(t.certified());
    t.setDigest(kKnownDigest.toLower());
    QVERIFY(!t.certified());
}

void TestTemplates::loadDirectory()
{
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const InvoiceTemplate known = KnownSet();
    for (int i = 0; i < InvoiceTemplate::kPieces; ++i) {
        const Piece p = Piece(i);
        if (p != Piece::Signings)
            WriteFile(dir.filePath(QString::fromLatin1(InvoiceTemplate::fileName(p))),
                      known.text(p).toUtf8());
    }
    WriteFile(dir.filePath(QStringLiteral("invoice.cfg")),
              "# made by hand\r\nName=Test\r\nDigest = " + kKnownDigest.toLatin1() + "\r\n");
    InvoiceTemplate loaded = LoadTemplateDir(dir.path());
    QCOMPARE(loaded.text(Piece::Body), QStringLiteral("Számla [* !P.ITEMS!]"));
    QCOMPARE(loaded.text(Piece::Signings), QString()); // a missing file is an empty piece
    QCOMPARE(loaded.digest(), kKnownDigest);
    QVERIFY(!loaded.certified());
    QCOMPARE(loaded.parsed(Piece::Header).names(), QStringList{"P.PAGE"});

    WriteFile(dir.filePath(QStringLiteral("invoice_signings.qtf")), "sig");
    loaded = LoadTemplateDir(dir.path());
    QVERIFY(loaded.certified());
    // Line ends of the files are part of what is certified.
    WriteFile(dir.filePath(QStringLiteral("invoice_rate.qtf")), "rate\r\n");
    QVERIFY(!LoadTemplateDir(dir.path()).certified());
    QCOMPARE(LoadTemplateDir(dir.path()).text(Piece::Rate), QStringLiteral("rate\r\n"));
    QVERIFY(!LoadTemplateDir(dir.filePath(QStringLiteral("nothing"))).certified());
}

void TestTemplates::setupRoundTrip()
{
    TestCompany company;
    QVERIFY(company.isValid());
    InvoiceTemplate t = KnownSet();
    // Quotes, brackets and line breaks go through bound values untouched.
    t.setText(Piece::Footer, QStringLiteral("it's \"x\"; [* y]\r\n'); drop table SETUP; --"));
    t.setDigest(t.computeDigest());
    QVERIFY(SaveTemplateToSetup(t));
    Setup setup;
    QVERIFY(setup.load());
    const InvoiceTemplate back = LoadTemplateFromSetup(setup);
    for (int i = 0; i < InvoiceTemplate::kPieces; ++i)
        QCOMPARE(back.text(Piece(i)), t.text(Piece(i)));
    QCOMPARE(back.digest(), t.digest());
    QVERIFY(back.certified());
    QCOMPARE(back.parsed(Piece::Body).names(), QStringList{"P.ITEMS"});
    QCOMPARE(SelectValue(QStringLiteral("select count(*) from SETUP")).toInt(), 1);
}

void TestTemplates::amountFormat_data()
{
    QTest::addColumn<int>("decimals");
    QTest::addColumn<QString>("format");
    QTest::newRow("none") << 0 << "%0nl";
    QTest::newRow("one") << 1 << "%1!nl";
    QTest::newRow("two") << 2 << "%2!nl";
    QTest::newRow("ten") << 10 << "%10!nl";
    QTest::newRow("eleven counts as none") << 11 << "%0nl";
    QTest::newRow("negative counts as none") << -2 << "%0nl";
}

void TestTemplates::amountFormat()
{
    QFETCH(int, decimals);
    QFETCH(QString, format);
    QCOMPARE(AmountFormat(decimals), format);
    QCOMPARE(AmountFormatDecimals(format), std::clamp(decimals, 0, 10) == decimals ? decimals : 0);
}

void TestTemplates::formatAmount_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<QString>("text"); // "_" stands for the no-break space
    QTest::newRow("whole") << 1234567.0 << 0 << "1_234_567";
    QTest::newRow("trailing zeros kept") << 1234.5 << 2 << "1_234,50";
    QTest::newRow("three digits") << 999.0 << 2 << "999,00";
    QTest::newRow("four digits grouped") << 1000.0 << 0 << "1_000";
    QTest::newRow("negative") << -1234567.5 << 2 << "-1_234_567,50";
    QTest::newRow("half up") << 2.5 << 0 << "3";
    QTest::newRow("half away from zero") << -2.5 << 0 << "-3";
    QTest::newRow("decimal half as written") << 2.675 << 2 << "2,68";
    QTest::newRow("1.005") << 1.005 << 2 << "1,01";
    QTest::newRow("carry through nines") << 999.995 << 2 << "1_000,00";
    QTest::newRow("binary noise") << 0.1 + 0.2 << 2 << "0,30";
    QTest::newRow("rounds to zero has no sign") << -0.004 << 2 << "0,00";
    QTest::newRow("many decimals") << 0.125 << 4 << "0,1250";
    QTest::newRow("zero") << 0.0 << 1 << "0,0";
    QTest::newRow("large") << 12345678901.0 << 0 << "12_345_678_901";
    QTest::newRow("bad count") << 5.5 << 12 << "6";
}

void TestTemplates::formatAmount()
{
    QFETCH(double, value);
    QFETCH(int, decimals);
    QFETCH(QString, text);
    text.replace(u'_', QChar(0xA0));
    QCOMPARE(FormatAmount(value, decimals), text);
    QCOMPARE(FormatAmount(value, AmountFormat(decimals)), text);
}

void TestTemplates::messages()
{
    const QString message = QStringLiteral("Saved.&[* 3] rows&&Done `& ok");
    QCOMPARE(MessagePlainText(message), QStringLiteral("Saved.\n3 rows\n\nDone & ok"));
    const QString html = MessageRichText(message);
    QVERIFY(html.contains(QStringLiteral("font-weight:700")));
    QVERIFY(html.contains(QStringLiteral("Done &amp; ok")));
    QCOMPARE(html.count(QStringLiteral("<p ")), 4);
    // A message's own "[G1 ...]" block means the same as the box's font.
    const QString wrapped =
        MessageRichText(QStringLiteral("[G1 The partner`'s data has changed.&What?]"));
    QVERIFY(wrapped.contains(QStringLiteral("The partner's data has changed.")));
    QVERIFY(!wrapped.contains(QStringLiteral("ERROR")));
    QCOMPARE(MessagePlainText(QStringLiteral("[G1 a&b]")), QStringLiteral("a\nb"));
    // Messages made by the program carry file names, options and line feeds as they are.
    QCOMPARE(MessagePlainText(QStringLiteral(
                 "Choose one:\n  kovacs_bt.db\nwith --db FILE (C:\\DB\\a::b || c]).")),
             QStringLiteral("Choose one:\n  kovacs_bt.db\nwith --db FILE (C:\\DB\\a::b || c])."));
    // Escaped data reads back the same in a message.
    const QString data = QStringLiteral("x_y [z] & \\w");
    QCOMPARE(MessagePlainText(QStringLiteral("[* ") + QtfEscape(data) + u']'), data);
    QVERIFY(!MessageRichText(QStringLiteral("a--b")).contains(QStringLiteral("ERROR")));
}

namespace {

// What the invoice renderer puts into the map, for a sample forint invoice of a German partner:
// texts escaped for QTF, amounts formatted, labels bilingual.
PlaceholderMap SampleOrder()
{
    PlaceholderMap m;
    const auto text = [&m](const char* name, const QString& value) {
        m.set(QString::fromLatin1(name), QtfEscape(value));
    };
    text("SETUP.NAME", QStringLiteral("Példa & Társa Kft."));
    text("SETUP.ZIP", QStringLiteral("9021"));
    text("SETUP.CITY", QStringLiteral("Győr"));
    text("SETUP.ADDRESS", QStringLiteral("Árpád út 1."));
    text("X.TAX.DATA", QStringLiteral("Adószám: 12345678-2-08\nKözösségi adószám: HU12345678"));
    text("X.BANK.DATA", QStringLiteral("Számlavezető: OTP Bank\nBankszámla: 11737007-20000000"));
    text("ORDERHEAD.PARTNER.NAME", QStringLiteral("Müller GmbH"));
    text("ORDERHEAD.PARTNER.ZIP", QStringLiteral("80331"));
    text("ORDERHEAD.PARTNER.CITY", QStringLiteral("München"));
    text("ORDERHEAD.PARTNER.ADDRESS", QStringLiteral("Hauptstraße 5."));
    text("ORDERHEAD.PARTNER.COUNTRY.NAME", QStringLiteral("Németország"));
    text("X.PARNER.OTHER.DATA", QStringLiteral("USt-IdNr / Közösségi adószám: DE123456789"));
    text("ORDERHEAD.DATE.SHIPPED", QStringLiteral("2024.03.05."));
    text("ORDERHEAD.DATE.CREATED", QStringLiteral("2024.03.05."));
    text("ORDERHEAD.DATE.PAYMENT.DUE", QStringLiteral("2024.03.13."));
    text("TR.ORDERHEAD.PAYMENTMETHOD.NAME", QStringLiteral("Überweisung / Átutalás"));
    text("ORDERHEAD.SUBJECT", QStringLiteral("Alkatrészek (2024/03)"));
    text("ORDERHEAD.CURRENCY.ABBREVIATION", QStringLiteral("Ft"));
    text("P.APPLICATION", QStringLiteral("tallyNorth 3.0.4"));
    text("P.DEVELOPEER", QStringLiteral("tallynorth.example"));
    text("P.TOTAL.GROSS.TEXT.FULL",
         QStringLiteral("Bruttó végösszeg: kettőszázhuszonnyolcezer-kilencszázhuszonöt Ft"));
    m.set(QStringLiteral("ORDERHEAD.TOTAL.NET"), FormatAmount(180256, 0));
    m.set(QStringLiteral("ORDERHEAD.TOTAL.VAT"), FormatAmount(48669, 0));
    m.set(QStringLiteral("ORDERHEAD.TOTAL.GROSS"), FormatAmount(228925, 0));
    m.set(QStringLiteral("P.PAGE"), QStringLiteral("$$P"));
    const QStringList labels = {"TR.ISSUED.BY=Lieferant / Szállító",
                                "TR.BILL.TO=Firma/Kundenname / Vevő",
                                "TR.CUSTOMER=Kunde / Vevő",
                                "TR.SHIPPING.DATE=Liefertermin / Teljesítés",
                                "TR.INVOICE.DATE=Datum / Kelt",
                                "TR.PAYMENT.DUE=Fälligkeitsdatum / Fizetési határidő",
                                "TR.PAYMENT.METHOD=Zahlungsart / Fizetési mód",
                                "TR.SUBJECT=Thema / Tárgy",
                                "TR.DESCRIPTION=Bezeichnung / Megnevezés",
                                "TR.STAT.CODE=VTSZ/SZJ",
                                "TR.QUANTITY=Menge / Mennyiség",
                                "TR.UNIT.PRICE=Einheitspreis / Egységár",
                                "TR.SUBTOTAL.NET=Netto / Nettó össz.",
                                "TR.VAT=MwSt / ÁFA",
                                "TR.VAT.TOTAL=MwStbetrag / ÁFA érték",
                                "TR.SUBTOTAL.GROSS=Brutto / Bruttó",
                                "TR.NET.TOTAL=Summe Netto / Nettó érték összesen",
                                "TR.VAT.TOTAL.IN.TOTALS=Summe MwSt / Áthárított ÁFA összesen",
                                "TR.GROSS.TOTAL=Gesamtbetrag / A számla bruttó végösszege",
                                "TR.VAT.PERCENT=MwStsatz / ÁFA kulcs",
                                "TR.VAT.BASE=Nettobetrag / ÁFA alap",
                                "TR.GROSS=Brutto / Bruttó",
                                "TR.INVOICE.NO=Zeilennummer / Sorszám",
                                "TR.COPY=Exemplar / példány",
                                "TR.PAGE=Seite / oldal"};
    for (const QString& l : labels)
        m.set(l.section(u'=', 0, 0), QtfEscape(l.section(u'=', 1)));
    return m;
}

QString LogoObject()
{
    QImage logo(120, 40, QImage::Format_RGB32);
    logo.fill(QColor(20, 70, 140));
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    logo.save(&buffer, "PNG");
    return QStringLiteral("@@PNG:1200&400(%1)").arg(QString::fromLatin1(png.toBase64()));
}

} // namespace

// The template set shipped with the program is certified and prints a complete invoice.
void TestTemplates::shippedTemplatePrintsAnInvoice()
{
    const InvoiceTemplate t = LoadTemplateDir(QStringLiteral(TN_TEMPLATE_DIR));
    QVERIFY(t.certified());
    PlaceholderMap order = SampleOrder();
    QString items = t.parsed(Piece::ItemHeader).fill(order);
    for (int i = 1; i <= 30; ++i) {
        PlaceholderMap item;
        item.set(QStringLiteral("TR.ORDERITEM.NAME"),
                 QtfEscape(QStringLiteral("Zahnrad %1 / Fogaskerék %1").arg(i)));
        item.set(QStringLiteral("ORDERITEM.STAT.NO"), QStringLiteral("8483"));
        item.set(QStringLiteral("ORDERITEM.QTY"), FormatAmount(i, 0));
        item.set(QStringLiteral("TR.ORDERITEM.UNIT"), QStringLiteral("Stk / db"));
        item.set(QStringLiteral("ORDERITEM.PRICE"), FormatAmount(1250.5, 2));
        item.set(QStringLiteral("ORDERITEM.TOTAL.NET"), FormatAmount(1250.5 * i, 2));
        item.set(QStringLiteral("C.ORDERITEM.VAT.PERCENT"), QStringLiteral("27%"));
        item.set(QStringLiteral("ORDERITEM.TOTAL.VAT"), FormatAmount(1250.5 * i * 0.27, 2));
        item.set(QStringLiteral("ORDERITEM.TOTAL.GROSS"), FormatAmount(1250.5 * i * 1.27, 2));
        item.set(QStringLiteral("TR.ORDERITEM.COMMENT"),
                 QtfEscape(QStringLiteral("Lieferung in 2 Teilen")));
        items += t.parsed(Piece::Item1).fill(item);
        if (i % 10 == 0)
            items += t.parsed(Piece::Item2).fill(item);
    }
    order.set(QStringLiteral("P.ITEMS"), items);
    PlaceholderMap vat;
    vat.set(QStringLiteral("VATDETAIL.NAME"), QStringLiteral("27%"));
    vat.set(QStringLiteral("VATDETAIL.NET"), FormatAmount(180256, 0));
    vat.set(QStringLiteral("VATDETAIL.VAT"), FormatAmount(48669, 0));
    vat.set(QStringLiteral("VATDETAIL.GROSS"), FormatAmount(228925, 0));
    order.set(QStringLiteral("P.VATDETAIL"), QString(t.parsed(Piece::VatDetailHeader).fill(order) +
                                                     t.parsed(Piece::VatDetail).fill(vat)));
    order.set(QStringLiteral("P.SIGNINGS"), t.parsed(Piece::Signings).fill(order));
    for (const char* mark : {"P.LOGO", "P.TITLE", "P.INVOICE.NO.STR", "P.COPY"})
        order.set(QString::fromLatin1(mark), QStringLiteral("!%1!").arg(QString::fromLatin1(mark)));

    // Frozen at issue, then the per-copy marks of the first copy.
    PlaceholderMap copy;
    copy.set(QStringLiteral("P.LOGO"), LogoObject());
    copy.set(QStringLiteral("P.TITLE"), QStringLiteral("Számla / Rechnung"));
    copy.set(QStringLiteral("P.INVOICE.NO.STR"), QStringLiteral("TN-2024/000017"));
    copy.set(QStringLiteral("P.COPY"), QStringLiteral("1. (Original/eredeti)"));
    const auto twice = [&](Piece piece) {
        return TemplateText::parse(t.parsed(piece).fill(order)).fill(copy);
    };
    const QString header = twice(Piece::Header);
    const QString body = twice(Piece::Body);
    const QString footer = twice(Piece::Footer);
    for (const QString& qtf : {header, body, footer}) {
        const QString error =
            ReadQtf(QString(qtf).replace(QStringLiteral("$$P"), QStringLiteral("1"))).error;
        QVERIFY2(error.isEmpty(), qPrintable(error));
    }

    Report report;
    report.setHeader(header);
    report.setBody(body);
    report.setFooter(footer);
    QTemporaryDir dir;
    const QString snapshots = qEnvironmentVariable("TALLYNORTH_SNAPSHOT_DIR");
    const QString pdf =
        (snapshots.isEmpty() ? dir.path() : snapshots) + QStringLiteral("/invoice.pdf");
    QVERIFY(report.exportPdf(pdf));
    QVERIFY(report.pageCount() >= 2);
    QProcess p;
    p.start(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), pdf, QStringLiteral("-")});
    p.waitForFinished(60000);
    const QStringList pages = QString::fromUtf8(p.readAllStandardOutput()).split(u'\f');
    const QString all = pages.join(u'\n');
    for (const QString& expected :
         {QStringLiteral("Példa & Társa Kft."), QStringLiteral("Müller GmbH"),
          QStringLiteral("Közösségi adószám: HU12345678"), QStringLiteral("TN-2024/000017"),
          QStringLiteral("Zahnrad 30 / Fogaskerék 30"), QStringLiteral("228 925 Ft"),
          QStringLiteral("Lieferung in 2 Teilen"), QStringLiteral("kettőszázhuszonnyolcezer")})
        QVERIFY2(all.contains(expected), qPrintable(expected));
    for (int i = 0; i < report.pageCount(); ++i) {
        QVERIFY(pages.value(i).contains(QStringLiteral("Seite / oldal: %1").arg(i + 1)));
        QVERIFY(pages.value(i).contains(QStringLiteral("Számla / Rechnung")));
    }
}

QTEST_MAIN(TestTemplates)
#include "tst_templates.moc"
