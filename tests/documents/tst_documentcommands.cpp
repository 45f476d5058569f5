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
    void usage_data()
    {
        AddColumns<QStringList, int>({"args", "exitCode"});
        const auto row = [](const char* name, const QStringList& args, int exitCode) {
            QTest::newRow(name) << args << exitCode;
        };
        const QString pdf = m_dir.filePath(u"cheque.pdf"_s);
        row("cheque page moved by the shift",
            {"qtf", Data("footer.qtf"), "--page", "4724x2125", "--shift-mm", "5,-2.5", "--pdf",
             pdf},
            0);
        row("no output", {"qtf", "x.qtf"}, 2);
        row("bad page", {"qtf", "x.qtf", "--page", "10x", "--pdf", "o.pdf"}, 2);
        row("missing file", {"qtf", "/nonexistent/x.qtf", "--text"}, 1);
        row("template dir", {"template", "check", "/nonexistent"}, 1);
        row("install without a database", {"template", "install", TN_TEMPLATE_DIR}, 2);
    }

    void usage()
    {
        auto [args, exitCode] = Fetch<QStringList, int>({"args", "exitCode"});
        QCOMPARE(Cli(args).exitCode, exitCode);
    }

    void templateCheckAndInstall()
    {
        const ProcessRun shipped =
            Cli({u"template"_s, u"check"_s, QStringLiteral(TN_TEMPLATE_DIR)});
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

        // Installing copies the certified set into the settings of the company given.
        TestCompany company;
        QVERIFY(company.isValid());
        Database::close();
        const ProcessRun r = Cli({u"--db"_s, company.path(), u"template"_s, u"install"_s,
                                  QStringLiteral(TN_TEMPLATE_DIR)});
        QVERIFY2(r.exitCode == 0, qPrintable(r.err));
        QVERIFY(Database::open(company.path()) && Setup::current().load());
        const InvoiceTemplate installed = LoadTemplateFromSetup();
        QVERIFY(installed.certified());
        QVERIFY(installed.text(InvoiceTemplate::Piece::Body).contains(u"!P.ITEMS!"_s));
        QVERIFY(SelectValue(u"select SETUP_INVOICE_CURR_TMPL_DIR from SETUP"_s)
                    .toString()
                    .endsWith(u"templates/invoice"_s));
    }

private:
    QTemporaryDir m_dir;
};

QTEST_MAIN(TestDocumentCommands)
#include "tst_documentcommands.moc"
