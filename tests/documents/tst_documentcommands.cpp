// The document verbs of tallynorth-cli as a template author or a script uses them.
#include "TestCompany.h"

#include "app/Database.h"
#include "app/SqlStatement.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace {

struct Run
{
    int exitCode = -1;
    QString out;
    QString err;
};

Run Cli(const QStringList& args)
{
    QProcess p;
    p.start(QStringLiteral(TN_CLI), args);
    Run r;
    if (!p.waitForFinished(120000))
        return r;
    r.exitCode = p.exitCode();
    r.out = QString::fromUtf8(p.readAllStandardOutput());
    r.err = QString::fromUtf8(p.readAllStandardError());
    return r;
}

} // namespace

class TestDocumentCommands : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void qtfText();
    void qtfPdf();
    void qtfUsage_data();
    void qtfUsage();
    void templateCheck();
    void templateInstall();
};

void TestDocumentCommands::qtfText()
{
    QTemporaryDir dir;
    QFile file(dir.filePath(QStringLiteral("t.qtf")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(QStringLiteral("[*4 Árvíztűrő&]{{1:1 a:: b}}&x`&y").toUtf8());
    file.close();
    const Run r = Cli({QStringLiteral("qtf"), file.fileName(), QStringLiteral("--text")});
    QCOMPARE(r.exitCode, 0);
    QCOMPARE(r.out, QStringLiteral("Árvíztűrő\na\nb\nx&y\n"));
}

void TestDocumentCommands::qtfPdf()
{
    if (QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty())
        QSKIP("poppler-utils (pdftotext) is needed");
    QTemporaryDir dir;
    const QString pdf = dir.filePath(QStringLiteral("sample.pdf"));
    const Run r = Cli({QStringLiteral("qtf"), QFINDTESTDATA("../data/report/long_table.qtf"),
                       QStringLiteral("--header"), QFINDTESTDATA("../data/report/header.qtf"),
                       QStringLiteral("--footer"), QFINDTESTDATA("../data/report/footer.qtf"),
                       QStringLiteral("--pdf"), pdf});
    QVERIFY2(r.exitCode == 0, qPrintable(r.err));
    QProcess p;
    p.start(QStringLiteral("pdftotext"), {pdf, QStringLiteral("-")});
    p.waitForFinished(60000);
    const QStringList pages =
        QString::fromUtf8(p.readAllStandardOutput()).split(u'\f', Qt::SkipEmptyParts);
    QVERIFY(pages.size() >= 4);
    for (int i = 0; i < pages.size(); ++i) {
        QVERIFY(pages[i].contains(QStringLiteral("%1. oldal / page %1").arg(i + 1)));
        QVERIFY(pages[i].contains(QStringLiteral("Árvíztűrő utca 1., Győr")));
    }
    // A cheque-sized page moved by the printer's shift.
    const Run cheque =
        Cli({QStringLiteral("qtf"), QFINDTESTDATA("../data/report/footer.qtf"),
             QStringLiteral("--page"), QStringLiteral("4724x2125"), QStringLiteral("--shift-mm"),
             QStringLiteral("5,-2.5"), QStringLiteral("--pdf"), pdf});
    QCOMPARE(cheque.exitCode, 0);
}

void TestDocumentCommands::qtfUsage_data()
{
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<int>("exitCode");
    QTest::newRow("no output") << QStringList{"qtf", "x.qtf"} << 2;
    QTest::newRow("both outputs") << QStringList{"qtf", "x.qtf", "--text", "--pdf", "o.pdf"} << 2;
    QTest::newRow("bad page") << QStringList{"qtf", "x.qtf", "--page", "10x", "--pdf", "o.pdf"}
                              << 2;
    QTest::newRow("bad shift") << QStringList{"qtf", "x.qtf", "--shift-mm", "a,b", "--text"} << 2;
    QTest::newRow("missing file") << QStringList{"qtf", "/nonexistent/x.qtf", "--text"} << 1;
    QTest::newRow("template verb") << QStringList{"template", "remove", "."} << 2;
    QTest::newRow("template dir") << QStringList{"template", "check", "/nonexistent"} << 1;
}

void TestDocumentCommands::qtfUsage()
{
    QFETCH(QStringList, args);
    QFETCH(int, exitCode);
    QCOMPARE(Cli(args).exitCode, exitCode);
}

void TestDocumentCommands::templateCheck()
{
    const Run shipped =
        Cli({QStringLiteral("template"), QStringLiteral("check"), QStringLiteral(TN_TEMPLATE_DIR)});
    QCOMPARE(shipped.exitCode, 0);
    QVERIFY(shipped.out.contains(QStringLiteral("Certified: yes")));
    const QString digest = shipped.out.section(u'\n', 0, 0).section(QStringLiteral(": "), 1);
    QCOMPARE(digest.size(), 32);
    QVERIFY(shipped.out.contains(QStringLiteral("Digest in invoice.cfg: ") + digest));

    QTemporaryDir dir;
    QFile body(dir.filePath(QStringLiteral("invoice_body.qtf")));
    QVERIFY(body.open(QIODevice::WriteOnly));
    body.write("!P.ITEMS!");
    body.close();
    const Run changed = Cli({QStringLiteral("template"), QStringLiteral("check"), dir.path()});
    QCOMPARE(changed.exitCode, 1);
    QVERIFY(changed.out.contains(QStringLiteral("Certified: no")));
}

void TestDocumentCommands::templateInstall()
{
    QString path;
    {
        TestCompany company;
        QVERIFY(company.isValid());
        path = company.path();
        Database::close();
        const Run r = Cli({QStringLiteral("--db"), path, QStringLiteral("template"),
                           QStringLiteral("install"), QStringLiteral(TN_TEMPLATE_DIR)});
        QVERIFY2(r.exitCode == 0, qPrintable(r.err));
        QVERIFY(Database::open(path));
        QVERIFY(SelectValue(QStringLiteral("select SETUP_INVOICE_BODY_QTF from SETUP"))
                    .toString()
                    .contains(QStringLiteral("!P.ITEMS!")));
        QCOMPARE(
            SelectValue(QStringLiteral("select SETUP_INVOICE_DIGEST from SETUP")).toString().size(),
            32);
        QVERIFY(SelectValue(QStringLiteral("select SETUP_INVOICE_CURR_TMPL_DIR from SETUP"))
                    .toString()
                    .endsWith(QStringLiteral("templates/invoice")));
    }
    const Run noDb = Cli(
        {QStringLiteral("template"), QStringLiteral("install"), QStringLiteral(TN_TEMPLATE_DIR)});
    QCOMPARE(noDb.exitCode, 2);
}

QTEST_MAIN(TestDocumentCommands)
#include "tst_documentcommands.moc"
