// Reporting against the local test double over loopback: every invoice issued reaches the
// authority and gets its verdict, the double's fault modes end in the right states, a network
// fault leaves the invoices waiting for their back-off, and a refused user or signature is told.
#include "CompanyTestCase.h"
#include "NavDouble.h"
#include "NavTestOrders.h"
#include "ScriptedInteraction.h"
#include "TestData.h"

#include "nav/NavQueue.h"
#include "nav/NavReporter.h"
#include "orders/OrderListQuery.h"

namespace {

QString States()
{
    return QueryText("select TN_NAV_QUEUE_INVOICE_NO, TN_NAV_QUEUE_STATE from TN_NAV_QUEUE "
                     "order by 1");
}

} // namespace

class TestNavReporting : public CompanyTestCase
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        CompanyTestCase::init();
        QVERIFY(PrepareNavSeller());
        m_double.emplace();
        QVERIFY(m_double->listen());
        const NavDoubleUser user;
        m_settings = {user.login,      NavSettings::passwordHashOf(user.password),
                      user.signingKey, user.exchangeKey,
                      user.taxNo,      false,
                      m_double->url()};
        QVERIFY(NavSettingsStore::save(m_settings));
    }
    void cleanup()
    {
        m_double.reset();
        CompanyTestCase::cleanup();
    }

    // Five different invoices and a cancelling one go out in one request and are accepted.
    void everyIssuedInvoiceAccepted()
    {
        const qint64 first = IssueNavTestOrder(NavTestKind::Forint);
        for (NavTestKind kind : {NavTestKind::Euro, NavTestKind::Consolidated,
                                 NavTestKind::ExemptLine, NavTestKind::PrivatePerson})
            QVERIFY(IssueNavTestOrder(kind));
        QVERIFY(IssueNavCancel(first));
        QCOMPARE(States(), QString("1|0; 2|0; 3|0; 4|0; 5|0; 6|0"));

        NavReportOutcome outcome;
        const Result r = NavReporter::run(Options(), outcome);
        QVERIFY2(r, qPrintable(r.message()));
        QVERIFY2(outcome.problems.isEmpty(), qPrintable(outcome.problems.join('\n')));
        QCOMPARE(outcome.sent, 6);
        QCOMPARE(outcome.accepted, 6);
        QCOMPARE(States(), QString("1|2; 2|2; 3|2; 4|2; 5|2; 6|2"));
        QCOMPARE(m_double->requestCount("manageInvoice"), 1);
        QCOMPARE(QueryText("select count(distinct TN_NAV_QUEUE_TRANSACTION_ID), "
                           "group_concat(TN_NAV_QUEUE_INDEX) from TN_NAV_QUEUE"),
                 QString("1|1,2,3,4,5,6"));

        // Nothing is sent twice.
        NavReportOutcome again;
        QVERIFY(NavReporter::run(Options(), again));
        QCOMPARE(again.sent, 0);
        QCOMPARE(m_double->requestCount("manageInvoice"), 1);
    }

    // Cancel in the progress window stops between requests; what was not sent waits.
    void stoppedByTheUser()
    {
        QVERIFY(IssueNavTestOrder(NavTestKind::Forint));
        ScriptedInteraction ui;
        ui.cancelAfterChecks = 0;
        NavReportOutcome outcome;
        QVERIFY(NavReporter::run(Options(), outcome, ui.progress(QString()).get()));
        QVERIFY(outcome.stopped);
        QCOMPARE(m_double->requestCount("manageInvoice"), 0);
        QCOMPARE(States(), QString("1|0"));
        NavReportOutcome later;
        QVERIFY(NavReporter::run(Options(), later));
        QCOMPARE(later.sent, 1);
    }

    void faultModes_data()
    {
        AddColumns<QString, int, int, QString, int>(
            {"fault", "count", "state", "message", "tokenRequests"});
        const auto row = [](const char* name, const char* fault, int count, NavState state,
                            const char* message, int tokens) {
            AddRow(name, QString(fault), count, int(state), QString(message), tokens);
        };
        row("schema error", "schema", -1, NavState::Rejected, "SCHEMA_VIOLATION", 1);
        row("business error", "reject", -1, NavState::Rejected,
            "INCORRECT_VAT_CODE: Hibás ÁFA kód.", 1);
        row("warning", "warn", -1, NavState::AcceptedWithWarnings, "INCORRECT_COUNTY_CODE", 1);
        // One failed try is made good by the client's own retry; a lasting fault leaves the
        // invoice waiting with the reason.
        row("one 500", "500", 1, NavState::Accepted, "", 2);
        row("one timeout", "timeout", 1, NavState::Accepted, "", 2);
        row("lasting 500", "500", -1, NavState::Waiting, "OPERATION_FAILED", 2);
        row("lasting timeout", "timeout", -1, NavState::Waiting, "", 2);
    }

    void faultModes()
    {
        auto [fault, count, state, message, tokenRequests] = Fetch<QString, int, int, QString, int>(
            {"fault", "count", "state", "message", "tokenRequests"});
        QVERIFY(IssueNavTestOrder(NavTestKind::Forint));
        NavDouble::Fault f;
        QVERIFY(NavDouble::parseFault(fault, f));
        m_double->setFault(f, count);
        NavReportOutcome outcome;
        QVERIFY(NavReporter::run(Options(), outcome));
        QCOMPARE(m_double->requestCount("tokenExchange"), tokenRequests);
        QCOMPARE(QueryText("select TN_NAV_QUEUE_STATE from TN_NAV_QUEUE"), QString::number(state));
        const QString stored = QueryText("select TN_NAV_QUEUE_MESSAGES from TN_NAV_QUEUE");
        QVERIFY2(stored.contains(message), qPrintable(stored));
        if (NavState(state) == NavState::Rejected) {
            QCOMPARE(outcome.rejected, 1);
            QVERIFY(outcome.problems.join(' ').contains(message));
        }
    }

    // After a lasting fault the invoice waits for its back-off, then goes out.
    void backOffThenSent()
    {
        QVERIFY(IssueNavTestOrder(NavTestKind::Forint));
        m_double->setFault(NavDouble::Fault::ServerError);
        const QDateTime now = QDateTime::currentDateTimeUtc();
        NavClient client(m_settings, Options());
        NavReportOutcome outcome;
        QVERIFY(NavReporter::send(client, now, outcome));
        QCOMPARE(outcome.stillWaiting, 1);
        QVERIFY(NavReporter::send(client, now, outcome)); // not yet due
        QCOMPARE(m_double->requestCount("tokenExchange"), 2);
        QCOMPARE(QueryText("select TN_NAV_QUEUE_ATTEMPTS from TN_NAV_QUEUE"), QString("1"));

        m_double->setFault(NavDouble::Fault::None);
        NavReportOutcome later;
        QVERIFY(NavReporter::send(client, now.addSecs(NavQueue::backOffSeconds(1)), later));
        QCOMPARE(later.sent, 1);
        QVERIFY(NavReporter::poll(client, later));
        QCOMPARE(States(), QString("1|2"));
    }

    void backOffGrowsToItsCap()
    {
        QCOMPARE((QList<qint64>{NavQueue::backOffSeconds(0), NavQueue::backOffSeconds(1),
                                NavQueue::backOffSeconds(3), NavQueue::backOffSeconds(12),
                                NavQueue::backOffSeconds(500)}),
                 (QList<qint64>{0, 60, 240, 6 * 3600, 6 * 3600}));
    }

    // What the double refuses: the authority's error code reaches the user; nothing is lost.
    void refusedCredentials_data()
    {
        AddColumns<QString, QString, QString>({"field", "value", "code"});
        AddRow("password", QString("password"), QString("WrongPassword"),
               QString("INVALID_SECURITY_USER"));
        AddRow("signing key", QString("signing"), QString("another-signing-key"),
               QString("INVALID_REQUEST_SIGNATURE"));
        AddRow("exchange key", QString("exchange"), QString("FEDCBA0987654321"),
               QString("exchange"));
    }

    void refusedCredentials()
    {
        auto [field, value, code] = Fetch<QString, QString, QString>({"field", "value", "code"});
        QVERIFY(IssueNavTestOrder(NavTestKind::Forint));
        NavSettings settings = m_settings;
        if (field == "password")
            settings.passwordHash = NavSettings::passwordHashOf(value);
        else if (field == "signing")
            settings.signingKey = value;
        else
            settings.exchangeKey = value;
        QVERIFY(NavSettingsStore::save(settings));
        NavReportOutcome outcome;
        QVERIFY(NavReporter::run(Options(), outcome));
        QCOMPARE(outcome.stillWaiting, 1);
        QVERIFY2(outcome.problems.join(' ').contains(code), qPrintable(outcome.problems.join(' ')));
        QCOMPARE(States(), QString("1|0"));
        // A refusal is not retried at once.
        QCOMPARE(m_double->requestCount("tokenExchange"), 1);
    }

    // A run killed between the request and storing its answer leaves the invoice sent without
    // a transaction: the next run asks the authority instead of sending it twice.
    void sendCutShort_data()
    {
        QTest::addColumn<bool>("reached");
        AddRow("the authority has it", true);
        AddRow("it never arrived", false);
    }

    void sendCutShort()
    {
        QFETCH(bool, reached);
        QVERIFY(IssueNavTestOrder(NavTestKind::Forint));
        NavReportOutcome outcome;
        if (reached)
            QVERIFY(NavReporter::run(Options(), outcome));
        QVERIFY(NavQueue::markInFlight({1}));
        NavReportOutcome next;
        QVERIFY(NavReporter::run(Options(), next));
        QVERIFY2(next.problems.isEmpty(), qPrintable(next.problems.join('\n')));
        QCOMPARE(States(), QString("1|2"));
        QCOMPARE(m_double->requestCount("manageInvoice"), 1);
        QCOMPARE(m_double->requestCount("queryInvoiceCheck"), 1);
        QCOMPARE(m_double->reportedNumbers().size(), 1);
    }

    // A rejected invoice, once the cause is put right, is sent again.
    void requeueRejected()
    {
        QVERIFY(IssueNavTestOrder(NavTestKind::Forint));
        m_double->setFault(NavDouble::Fault::Reject, 1);
        NavReportOutcome outcome;
        QVERIFY(NavReporter::run(Options(), outcome));
        QCOMPARE(States(), QString("1|4"));
        // The list shows it under "not yet accepted", with the authority's message.
        OrderListFilter filter;
        filter.kind = int(OrderListFilter::Kind::NotAccepted);
        QList<OrderListRow> rows;
        bool more = false;
        QVERIFY(OrderListQuery::load(filter, rows, more));
        QCOMPARE(rows.size(), 1);
        QCOMPARE(rows.first().reportState, std::optional<int>(int(NavState::Rejected)));
        QVERIFY(rows.first().reportMessages.contains("INCORRECT_VAT_CODE"));
        QVERIFY(NavQueue::requeue(1));
        QVERIFY(NavReporter::run(Options(), outcome));
        QCOMPARE(States(), QString("1|2"));
        QVERIFY(OrderListQuery::load(filter, rows, more));
        QVERIFY(rows.isEmpty());
    }

private:
    static NavClientOptions Options() { return {1500, 2, 0}; }

    std::optional<NavDouble> m_double;
    NavSettings m_settings;
};

QTEST_GUILESS_MAIN(TestNavReporting)
#include "tst_navreporting.moc"
