// The command line downloading from the local webshop is killed (SIGKILL) in the middle of the
// orders: every stored order is whole, the timestamp stands at the last of them, and the next
// run fetches exactly the rest.
#include "TestCompany.h"
#include "TestData.h"

#include "base/Database.h"
#include "base/Setup.h"

#include <QProcess>
#include <QtTest>

namespace {

constexpr int kOrders = 400;

QString Check()
{
    return QueryText(
        "select count(*), coalesce(max(cast(substr(ORDERHEAD_CODE, 2) as integer)), 0), "
        "(select count(*) from ORDERHEAD h where ORDERHEAD_CODE like 'G%' and (select count(*) "
        "from ORDERITEM where ORDERITEM_ORDERHEAD_ID = h.ORDERHEAD_ID) <> 5), "
        "(select coalesce(SETUP_DOWNLOAD_LAST_ORDERHEAD_TIMESTAMP, '') from SETUP) "
        "from ORDERHEAD where ORDERHEAD_CODE like 'G%'");
}

} // namespace

class TestWebshopKill : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void killedRunResumes()
    {
        TestCompany company;
        QVERIFY(company.isValid());
        QProcess shop;
        shop.start(TN_WEBSHOP, {"--port", "0", "--generate", QString::number(kOrders)});
        QVERIFY(shop.waitForReadyRead(10000));
        const QString base = QString::fromUtf8(shop.readLine()).section(u' ', 2).trimmed();
        QVERIFY(Setup::write({{"SETUP_DOWNLOAD_INVOICE_URL", QString(base + "order.php")},
                              {"SETUP_DOWNLOAD_SAVE_PASSWORD", "1"},
                              {"SETUP_DOWNLOAD_MAX_ORDERS", 100000},
                              {"SETUP_DOWNLOAD_LAST_ORDERHEAD_TIMESTAMP", ""}}));
        Database::close();

        const QStringList args = {"--base", company.dir(), "--db", company.path(),
                                  "download-orders"};
        QProcess cli;
        cli.start(TN_CLI, args);
        QVERIFY(cli.waitForStarted());
        QTest::qWait(1500);
        const bool killed = cli.state() == QProcess::Running;
        cli.kill();
        cli.waitForFinished();

        QVERIFY(Database::open(company.path()));
        const QStringList first = Check().split(u'|');
        const int stored = first.value(0).toInt();
        qInfo() << "stored before the kill:" << stored;
        if (killed) {
            // Whole orders 1..n, none half, the timestamp at the last.
            QCOMPARE(first.value(1).toInt(), stored);
            QCOMPARE(first.value(2), QString("0"));
            QCOMPARE(first.value(3),
                     stored == 0 ? QString() : QString::number(stored).rightJustified(10, u'0'));
        }
        Database::close();

        QProcess again;
        again.start(TN_CLI, args);
        QVERIFY(again.waitForFinished(120000));
        QCOMPARE(again.exitCode(), 0);
        QVERIFY(Database::open(company.path()));
        QCOMPARE(Check(), QStringLiteral("%1|%1|0|%2")
                              .arg(kOrders)
                              .arg(QString::number(kOrders).rightJustified(10, u'0')));
        shop.kill();
        shop.waitForFinished();
        if (!killed)
            QSKIP("the first run ended before it could be killed");
    }
};

QTEST_GUILESS_MAIN(TestWebshopKill)
#include "tst_webshopkill.moc"
