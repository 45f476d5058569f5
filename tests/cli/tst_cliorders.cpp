// tallynorth-cli driven as a script drives it on the demonstration company: orders added, shown,
// listed, cloned and deleted; invoices issued, printed and cancelled with numbers 1 and 2; 40 % of
// an invoice paid and then the rest; a webshop orders file imported. Bad usage exits 2, refusals
// 1, and nothing is written.
#include "../webshop/WebshopDocs.h"
#include "OrdersTestData.h"

#include <QtTest>

class TestCliOrders : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        QVERIFY(m_cli.emplace().isValid());
        QCOMPARE(cli({"check"}).exitCode, 0);
        QCOMPARE(cli({"--db", db(), "template", "install", TN_TEMPLATE_DIR}).exitCode, 0);
        // A euro price for the demo product, and a second product without any price.
        QCOMPARE(stored("insert into PRODUCTPRICE values (1, 1, 4.5)"), QString());
        QCOMPARE(stored("insert into PRODUCT (PRODUCT_NAME, PRODUCT_NAME_ASCII, PRODUCT_VAT_ID) "
                        "values ('Árvíztűrő tükörfúrógép', 'ARVIZTURO TUKORFUROGEP', 1)"),
                 QString());
    }

    void addShowListCloneDelete()
    {
        const QString id =
            out({"order", "add", "--partner", "teszt partner", "--currency", "1", "--item", "1:2",
                 "--item", "2:1:10.5", "--item", "1:-1", "--subject", "Próba"});
        // 2 x 4.5 + 10.5 - 4.5 = 15 EUR net, 27% VAT.
        QCOMPARE(
            stored("select ORDERHEAD_CURRENCY_ABBREVIATION, ORDERHEAD_TOTAL_NET, "
                   "ORDERHEAD_TOTAL_VAT, ORDERHEAD_TOTAL_GROSS, ORDERHEAD_SUBJECT from ORDERHEAD "
                   "where ORDERHEAD_ID = " +
                   id),
            QString("EUR|15|4.05|19.05|Próba"));
        const QString shown = out({"order", "show", id});
        QVERIFY2(shown.contains("Teszt termék\t-1\tdb\t4.50\t-4.50\n") &&
                     QString(shown + "\n").contains("Total Gross\t19.05\n"),
                 qPrintable(shown));

        const QStringList lines =
            out({"orders", "--partner", "TESZT", "--format", "csv"}).split('\n');
        QCOMPARE(lines.size(), 3); // header, the new order, the sample order
        QVERIFY2(lines[1].endsWith(",EUR,15.00,4.05,19.05,0.00,Átutalás,Unverified"),
                 qPrintable(lines[1]));

        const QString copy = out({"order", "clone", id});
        stored("update ORDERHEAD set ORDERHEAD_PRINTED_COPIES = 1 where ORDERHEAD_ID = " + id);
        const ProcessRun run = cli({"order", "delete", id, copy});
        QCOMPARE(run.exitCode, 1);
        QCOMPARE(run.out.trimmed(), "1");
        QCOMPARE(run.err.trimmed(),
                 "1 orders/invoices can not be deleted,\nbecause they are printed yet.");
        QCOMPARE(stored("select count(*) from ORDERHEAD where ORDERHEAD_ID = " + copy), "0");
    }

    void issuePrintCancel()
    {
        QCOMPARE(out({"issue", "1", "--pdf", pdf("1.pdf"), "--copies", "2"}), "000001");
        QVERIFY(QFileInfo(pdf("1.pdf")).size() > 1000);
        QCOMPARE(cli({"print", "000001", "--pdf", pdf("1b.pdf")}).exitCode, 0);
        QCOMPARE(out({"cancel", "000001", "--pdf", pdf("2.pdf"), "--shipped", "2024.03.05."}),
                 "000002");
        const QString list = out({"orders"});
        QVERIFY(list.contains("Cancelled Invoice") && list.contains("Cancel Invoice"));
        QCOMPARE(cli({"sample", "--pdf", pdf("sample.pdf")}).exitCode, 0);
    }

    void payFortyPercentThenTheRest()
    {
        // The demonstration order: 3175 Ft by transfer, unpaid once issued.
        QCOMPARE(cli({"issue", "1", "--pdf", pdf("1.pdf")}).exitCode, 0);
        QCOMPARE(cli({"payments", "000001"}).err.trimmed(),
                 QString("There are no bank items to this invoice."));
        QCOMPARE(out({"pay", "000001", "1270", "--date", "2024-05-02", "--record-no", "K/12"}),
                 "000001: unpaid 1905 Ft");
        QCOMPARE(
            out({"pay", "000001", "1905,00", "--date", "2024.05.09.", "--comment", "a maradék"}),
            "000001: paid");
        QVERIFY(!out({"orders", "--kind", "6"}).contains("000001"));
        QCOMPARE(out({"payments", "000001"}).split('\n', Qt::SkipEmptyParts),
                 (QStringList{"Record No\tTransfer Date\tPaid\tComment", "K/12\t2024-05-02\t1270\t",
                              "\t2024-05-09\t1905\ta maradék", "000001: paid"}));
    }

    // Nobody is there to choose a row for an unknown code: the run stops and stores nothing.
    void importOrders()
    {
        const QString file = m_cli->base() + "/orders.xml";
        const auto write = [&file](const QByteArray& xml) {
            QFile f(file);
            return f.open(QIODevice::WriteOnly) && f.write(xml) == xml.size();
        };
        const QString count = "select count(*) from ORDERHEAD where ORDERHEAD_CODE = 'W1'";
        QVERIFY(write(OrdersDoc({OrderXml("W1", {"ORDERHEAD_PAYMENTMETHOD_CODE=PP"})})));
        QCOMPARE(cli({"import-orders", file}).exitCode, 1);
        QCOMPARE(stored(count), "0");
        QVERIFY(write(OrdersDoc({OrderXml("W1")})));
        QCOMPARE(out({"import-orders", file}).trimmed(), "stored: 1");
        QCOMPARE(stored(count), "1");
    }

    void badInput_data()
    {
        AddColumns<QStringList, int, QString>({"args", "exitCode", "message"});
        const QStringList order{"order", "add", "--partner"};
        AddRow("letters in the quantity", order + QStringList{"1", "--item", "1:x"}, 2,
               QString("Invalid order item \"1:x\""));
        AddRow("unknown partner", order + QStringList{"Senki", "--item", "1:1"}, 1,
               QString("Partner not found: Senki"));
        AddRow("old shipping refused",
               order + QStringList{"1", "--item", "1:1", "--shipped", "2020-01-01", "--no"}, 1,
               QString("-> no"));
        AddRow("print of no invoice", QStringList{"print", "X", "--pdf", "x.pdf"}, 1,
               QString("There is no invoice with No. X."));
        AddRow("pdf in a missing folder", QStringList{"issue", "1", "--pdf", "/nonexistent/x.pdf"},
               1, QString("Can't print invoice"));
        AddRow("payment date not a date", QStringList{"pay", "000001", "10", "--date", "soon"}, 2,
               QString("Not a date: soon"));
    }

    void badInput()
    {
        auto [args, exitCode, message] =
            Fetch<QStringList, int, QString>({"args", "exitCode", "message"});
        const QString written =
            "select (select count(*) from ORDERHEAD) || '/' || (select count(*) "
            "from ORDERITEM) || '/' || (select count(*) from BANKITEM)";
        const QString before = stored(written);
        const ProcessRun run = cli(args);
        QCOMPARE(run.exitCode, exitCode);
        QVERIFY2(run.err.contains(message), qPrintable(run.err));
        QCOMPARE(stored(written), before);
    }

private:
    ProcessRun cli(const QStringList& args) const { return m_cli->run(args); }
    QString out(const QStringList& args) const { return m_cli->output(args); }
    QString stored(const QString& sql) const { return QueryTextIn(db(), sql); }
    QString pdf(const QString& name) const { return m_cli->file(name); }
    QString db() const { return m_cli->db("demo.db"); }

    std::optional<OrdersCli> m_cli;
};

QTEST_GUILESS_MAIN(TestCliOrders)
#include "tst_cliorders.moc"
