// tallynorth-cli driven as a script drives it on a new company: an invoice paid by cheque gets
// its cheque at issue, printing all unprinted ones prints it once, the cheque template set is
// told from an invoice set, and bad usage is refused without printing anything.
#include "OrdersTestData.h"

#include <QtTest>

class TestCliCheques : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        QVERIFY(m_cli.emplace("minta.db").isValid());
        QCOMPARE(cli({"create", "Minta Kft", "--tax-no", "12345676-2-42", "--file", "minta.db"})
                     .exitCode,
                 0);
        QCOMPARE(stored("insert into PAYMENTMETHOD (PAYMENTMETHOD_CODE, PAYMENTMETHOD_PAID, "
                        "PAYMENTMETHOD_CHEQUE, PAYMENTMETHOD_DUE_DAYS, PAYMENTMETHOD_NAME) "
                        "values ('CS', '0', '1', 8, 'Csekk')"),
                 QString());
    }

    void issuedInvoiceChequePrintsOnce()
    {
        const QString order = m_cli->output({"order", "add", "--partner", "1", "--item",
                                             "1:3:1234.4", "--payment", "3", "--verified"});
        QCOMPARE(cli({"issue", order}).exitCode, 0);
        // 3 x 1234.4 x 1.27 = 4703.064 forints: 4703 on the cheque.
        const QString list = cli({"cheques", "--partner", "teszt"}).out;
        QVERIFY2(list.contains("\t000001\tTeszt Partner Kft\t4703\t\n"), qPrintable(list));
        QCOMPARE(m_cli->output({"cheque", "print", "--all-unprinted", "--pdf", file("all.pdf")}),
                 "Cheques printed: 1");

        const ProcessRun run =
            cli({"cheque", "print", "--all-unprinted", "--pdf", file("again.pdf")});
        QCOMPARE(run.exitCode, 1);
        QVERIFY2(run.err.endsWith("There are no cheques to print\n"), qPrintable(run.err));
        QVERIFY(!QFile::exists(file("again.pdf")));
    }

    void refusals_data()
    {
        AddColumns<QStringList, int, QString>({"args", "exit", "message"});
        AddRow("not an id", QStringList{"cheque", "print", "x1", "--pdf", "x.pdf"}, 2,
               QString("Not a cheque ID: x1"));
        AddRow("unknown id", QStringList{"cheque", "print", "99", "--pdf", "x.pdf"}, 1,
               QString("Unable to load the cheque's data from the database."));
    }
    void refusals()
    {
        auto [args, exit, message] = Fetch<QStringList, int, QString>({"args", "exit", "message"});
        const ProcessRun run = cli(args);
        QCOMPARE(run.exitCode, exit);
        QVERIFY2(run.err.contains(message), qPrintable(run.err));
        QVERIFY(!QFile::exists(file("x.pdf")));
    }

    void chequeTemplateSetInstalled()
    {
        QCOMPARE(cli({"template", "check", TN_CHEQUE_TEMPLATE_DIR}).exitCode, 0);
        // A changed copy: installed as a cheque template, reported as not certified.
        const QString copy = file("mycheque");
        QVERIFY(QDir().mkpath(copy));
        QVERIFY(QFile::copy(TN_CHEQUE_TEMPLATE_DIR "/cheque.cfg", copy + "/cheque.cfg"));
        QVERIFY(WriteFile(copy + "/cheque.qtf", "[* !NAME!] it's \"mine\"&!AMOUNT!"));
        ProcessRun run = cli({"template", "check", copy});
        QCOMPARE(run.exitCode, 1);
        QVERIFY(run.out.contains("Certified: no"));
        run = cli({"--db", db(), "template", "install", copy});
        QCOMPARE(run.exitCode, 0);
        QVERIFY2(run.err.contains("The cheque template is installed, but it is not certified."),
                 qPrintable(run.err));
        QCOMPARE(stored("select SETUP_CHEQUE_QTF from SETUP"),
                 QString("[* !NAME!] it's \"mine\"&!AMOUNT!"));
        // The invoice template was left alone.
        QVERIFY(!stored("select SETUP_INVOICE_DIGEST from SETUP").isEmpty());

        QVERIFY(QFile::remove(copy + "/cheque.qtf"));
        run = cli({"--db", db(), "template", "install", copy});
        QCOMPARE(run.exitCode, 1);
        QVERIFY2(run.err.contains("The cheque template cheque.qtf is missing from"),
                 qPrintable(run.err));
    }

private:
    ProcessRun cli(const QStringList& args) const { return m_cli->run(args); }
    QString stored(const QString& sql) const { return m_cli->stored(sql); }
    QString file(const QString& name) const { return m_cli->file(name); }
    QString db() const { return m_cli->db(); }

    std::optional<OrdersCli> m_cli;
};

QTEST_GUILESS_MAIN(TestCliCheques)
#include "tst_clicheques.moc"
