// The document verbs of tallynorth-cli as a template author or a script uses them.
#include "TestCompany.h"
#include "TestData.h"

#include "base/Database.h"
#include "base/Setup.h"
#include "base/SqlStatement.h"
#include "documents/InvoiceTemplate.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

ProcessRun Cli(const QStringList& args)
{
    return RunProcess(QStringLiteral(TN_CLI), args);
}

QString Data(const char* name)
{
    return QFINDTESTDATA(u"../data/report/"_s + QLatin1StringView(name));
}

} // namespace

class TestDocumentCommands : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void qtfText();
    void qtfPdf();
    void usage_data();
    void usage();
    void templateCheckAndInstall();

private:
    QTemporaryDir m_dir;
};

void TestDocumentCommands::qtfText()
{
    const QString qtf = m_dir.filePath(u"t.qtf"_s);
    QVERIFY(WriteFile(qtf, "[*4 Árvíztűrő&]{{1:1 a:: b}}&x`&y"));
    const ProcessRun r = Cli({u"qtf"_s, qtf, u"--text"_s});
    QCOMPARE(r.exitCode, 0);
    QCOMPARE(r.out, u"Árvíztűrő\na\nb\nx&y\n"_s);
}

void TestDocumentCommands::qtfPdf()
{
    const QString pdf = m_dir.filePath(u"sample.pdf"_s);
    const ProcessRun r = Cli({u"qtf"_s, Data("long_table.qtf"), u"--header"_s, Data("header.qtf"),
                              u"--footer"_s, Data("footer.qtf"), u"--pdf"_s, pdf});
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));
    const QStringList pages =
        RunProcess(u"pdftotext"_s, {pdf, u"-"_s}).out.split(u'\f', Qt::SkipEmptyParts);
    QVERIFY(pages.size() >= 4);
    for (int i = 0; i < pages.size(); ++i) {
        QVERIFY(pages[i].contains(u"%1. oldal / page %1"_s.arg(i + 1)));
        QVERIFY(pages[i].contains(u"Árvíztűrő utca 1., Győr"_s));
    }
}

void TestDocumentCommands::usage_data()
{
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<int>("exitCode");
    const auto row = [](const char* name, const QStringList& args, int exitCode) {
        QTest::newRow(name) << args << exitCode;
    };
    const QString pdf = m_dir.filePath(u"cheque.pdf"_s);
    row("cheque page moved by the shift",
        {"qtf", Data("footer.qtf"), "--page", "4724x2125", "--shift-mm", "5,-2.5", "--pdf", pdf},
        0);
    row("no output", {"qtf", "x.qtf"}, 2);
    row("both outputs", {"qtf", "x.qtf", "--text", "--pdf", "o.pdf"}, 2);
    row("bad page", {"qtf", "x.qtf", "--page", "10x", "--pdf", "o.pdf"}, 2);
    row("bad shift", {"qtf", "x.qtf", "--shift-mm", "a,b", "--text"}, 2);
    row("missing file", {"qtf", "/nonexistent/x.qtf", "--text"}, 1);
    row("template verb", {"template", "remove", "."}, 2);
    row("template dir", {"template", "check", "/nonexistent"}, 1);
    row("install without a database", {"template", "install", TN_TEMPLATE_DIR}, 2);
}

void TestDocumentCommands::usage()
{
    QFETCH(QStringList, args);
    QFETCH(int, exitCode);
    QCOMPARE(Cli(args).exitCode, exitCode);
}

void TestDocumentCommands::templateCheckAndInstall()
{
    const ProcessRun shipped = Cli({u"template"_s, u"check"_s, QStringLiteral(TN_TEMPLATE_DIR)});
    QCOMPARE(shipped.exitCode, 0);
    QVERIFY(shipped.out.contains(u"Certified: yes"_s));
    const QString digest = shipped.out.section(u'\n', 0, 0).section(u": "_s, 1);
    QCOMPARE(digest.size(), 32);
    QVERIFY(shipped.out.contains(u"Digest in invoice.cfg: "_s + digest));
    QTemporaryDir dir;
    QVERIFY(WriteFile(dir.filePath(u"invoice_body.qtf"_s), "!P.ITEMS!"));
    const ProcessRun changed = Cli({u"template"_s, u"check"_s, dir.path()});
    QCOMPARE(changed.exitCode, 1);
    QVERIFY(changed.out.contains(u"Certified: no"_s));
    QVERIFY(!shipped.out.contains(u"Warning"_s));
    // "[= ...]&" loses its centring: the check points at the file and line.
    QVERIFY(WriteFile(dir.filePath(u"invoice_header.qtf"_s), "x&\n[= Title]&y"));
    const ProcessRun warned = Cli({u"template"_s, u"check"_s, dir.path()});
    QVERIFY2(
        warned.out.contains(QRegularExpression(u"Warning: invoice_header.qtf, line 2: .*\"&\""_s)),
        qPrintable(warned.out));

    // Installing copies the certified set into the settings of the company given.
    TestCompany company;
    QVERIFY(company.isValid());
    Database::close();
    const ProcessRun r = Cli(
        {u"--db"_s, company.path(), u"template"_s, u"install"_s, QStringLiteral(TN_TEMPLATE_DIR)});
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));
    QVERIFY(Database::open(company.path()) && Setup::current().load());
    const InvoiceTemplate installed = LoadTemplateFromSetup();
    QVERIFY(installed.certified());
    QVERIFY(installed.text(InvoiceTemplate::Piece::Body).contains(u"!P.ITEMS!"_s));
    QVERIFY(SelectValue(u"select SETUP_INVOICE_CURR_TMPL_DIR from SETUP"_s)
                .toString()
                .endsWith(u"templates/invoice"_s));
}

QTEST_MAIN(TestDocumentCommands)
#include "tst_documentcommands.moc"
