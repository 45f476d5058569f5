// The download commands against the local webshop over loopback: the request address, the
// authentication loop and what a misbehaving shop leaves behind (nothing, the timestamp where
// it was), and that each run picks up where the previous one stopped.
#include "CompanyTestCase.h"
#include "ScriptedInteraction.h"
#include "TestData.h"
#include "WebshopDocs.h"

#include "base/Setup.h"
#include "documents/MessageText.h"
#include "webshop/WebshopExchange.h"
#include "webshop/WebshopUrl.h"

#include <QProcess>
#include <QtTest>

namespace {

// The local webshop in a process of its own, on a free port.
class Shop
{
public:
    explicit Shop(const QStringList& args)
    {
        m_process.setProgram(QStringLiteral(TN_WEBSHOP));
        m_process.setArguments(QStringList{"--port", "0"} + args);
        m_process.start();
        if (!m_process.waitForStarted() || !m_process.waitForReadyRead(10000))
            return;
        const QString line = QString::fromUtf8(m_process.readLine());
        m_base = line.section(u' ', 2).trimmed();
    }
    ~Shop()
    {
        m_process.kill();
        m_process.waitForFinished();
    }
    // "http://127.0.0.1:PORT/" + endpoint, empty when the shop did not start.
    QString url(const QString& endpoint) const
    {
        return m_base.isEmpty() ? QString() : m_base + endpoint;
    }

private:
    QProcess m_process;
    QString m_base;
};

bool PointSettingsAt(const Shop& shop, bool savePassword, int maxOrders)
{
    return !shop.url("").isEmpty() &&
           Setup::write({{"SETUP_DOWNLOAD_INVOICE_URL", shop.url("order.php")},
                         {"SETUP_DOWNLOAD_PARTNER_URL", shop.url("partner.php?shop=1")},
                         {"SETUP_DOWNLOAD_PRODUCT_URL", shop.url("product.php")},
                         {"SETUP_DOWNLOAD_LOGIN", "bolt"},
                         {"SETUP_DOWNLOAD_PASSWORD", savePassword ? "titok" : ""},
                         {"SETUP_DOWNLOAD_SAVE_PASSWORD", savePassword ? "1" : "0"},
                         {"SETUP_DOWNLOAD_MAX_ORDERS", maxOrders},
                         {"SETUP_DOWNLOAD_LAST_ORDERHEAD_TIMESTAMP", ""},
                         {"SETUP_DOWNLOAD_UPDATE_BASIC_DATA", "1"}})
               .ok();
}

QString Downloaded()
{
    return QueryText(
        "select count(*) || ' ' || coalesce(max(SETUP_DOWNLOAD_LAST_ORDERHEAD_TIMESTAMP), '') "
        "from ORDERHEAD, SETUP where ORDERHEAD_CODE like 'G%'");
}

} // namespace

class TestWebshopExchange : public CompanyTestCase
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        CompanyTestCase::init();
        m_ui = {};
        m_ask.emplace();
    }
    void cleanup()
    {
        m_exchange.reset();
        m_shop.reset();
        CompanyTestCase::cleanup();
    }

    void urlEncoding_data()
    {
        AddColumns<QString, QString, QString>({"base", "timestamp", "query"});
        AddRow("plain", QString("o.php"), QString(), QString("?last_orderhead_timestamp="));
        AddRow("query already", QString("o.php?shop=1"), QString("2024-03-05"),
               QString("?shop=1&last_orderhead_timestamp=2024-03-05"));
        AddRow("blank, colon, plus", QString("o.php"), QString("2024-03-05 10:00:01+01"),
               QString("?last_orderhead_timestamp=2024-03-05%2010%3A00%3A01%2B01"));
        AddRow("kept and escaped", QString("o.php"), QString("a,b.c-d_e~f/g"),
               QString("?last_orderhead_timestamp=a,b.c-d%5Fe%7Ef%2Fg"));
        AddRow("utf-8 bytes", QString("o.php"), QString("é&"),
               QString("?last_orderhead_timestamp=%C3%A9%26"));
    }
    void urlEncoding()
    {
        auto [base, timestamp, query] =
            Fetch<QString, QString, QString>({"base", "timestamp", "query"});
        QCOMPARE(WebshopRequestUrl(base, "last_orderhead_timestamp", timestamp, "max_orders", 20),
                 "o.php" + query + "&max_orders=20");
    }

    // Three runs: a full answer, the rest, nothing; then partners and products.
    void eachRunPicksUpWhereTheLastStopped()
    {
        QVERIFY(start({"--generate", "30", "--login", "bolt", "--password", "titok"}));
        QVERIFY(m_exchange->download(WebshopDocument::Orders));
        QCOMPARE(
            m_ui.lastMessage(),
            QString("20 orders downloaded. There can be downloadable orders on the server yet."));
        QCOMPARE(Downloaded(), QString("20 0000000020"));
        QVERIFY(m_exchange->download(WebshopDocument::Orders));
        QCOMPARE(m_ui.lastMessage(), QString("10 orders downloaded."));
        QVERIFY(m_exchange->download(WebshopDocument::Orders));
        QCOMPARE(m_ui.lastMessage(), QString("No new orders to download."));
        QCOMPARE(Downloaded(), QString("30 0000000030"));
        // Totals computed here: 100x1 + 200x2 + ... + 500x5 = 5500 net, 27% VAT.
        QCOMPARE(QueryText("select ORDERHEAD_TOTAL_NET, ORDERHEAD_TOTAL_GROSS from ORDERHEAD "
                           "where ORDERHEAD_CODE = 'G7'"),
                 QString("5500|6985"));
        QVERIFY(m_exchange->download(WebshopDocument::Partners));
        QCOMPARE(m_ui.lastMessage(), QString("30 partners saved."));
        QVERIFY(
            WebshopExchange::requestUrl(WebshopDocument::Partners)
                .contains("partner.php?shop=1&last_partner_timestamp=0000000030&max_partners="));
        QVERIFY(m_exchange->download(WebshopDocument::Products));
        QCOMPARE(m_ui.lastMessage(), QString("30 products saved."));
        QCOMPARE(QueryText("select SETUP_DOWNLOAD_LAST_PARTNER_TIMESTAMP, "
                           "SETUP_DOWNLOAD_LAST_PRODUCT_TIMESTAMP from SETUP"),
                 QString("0000000030|0000000030"));
        QCOMPARE(m_ask->asked, QStringList());
    }

    void authenticationLoop_data()
    {
        AddColumns<bool, QString>({"save", "storedPassword"});
        AddRow("password saved", true, QString("titok"));
        AddRow("password not saved", false, QString());
    }
    void authenticationLoop()
    {
        auto [save, storedPassword] = Fetch<bool, QString>({"save", "storedPassword"});
        QVERIFY(start({"--generate", "3", "--login", "bolt", "--password", "titok"}, false));
        const QString url = m_shop->url("order.php");
        m_ask->logins << Login{url, "bolt", "rossz", save} << Login{url, "bolt", "titok", save};
        QVERIFY(m_exchange->download(WebshopDocument::Orders));
        QCOMPARE(m_ask->asked, QStringList({"Authenticate yourself to download orders from server.",
                                            "Wrong login name or password. Try again."}));
        QCOMPARE(Downloaded(), QString("3 0000000003"));
        // The dialog shows the saved password only while saving is on.
        QCOMPARE(m_ask->proposals.value(1).password, save ? QString("rossz") : QString());
        QCOMPARE(
            QueryText("select SETUP_DOWNLOAD_PASSWORD, SETUP_DOWNLOAD_SAVE_PASSWORD from SETUP"),
            storedPassword + "|" + (save ? "1" : "0"));
    }

    void refusedLoginUntilCancelled()
    {
        QVERIFY(start({"--generate", "3", "--fail", "401"}));
        const QString url = m_shop->url("order.php");
        m_ask->logins << Login{url, "bolt", "a", true} << Login{url, "bolt", "b", true};
        QVERIFY(!m_exchange->download(WebshopDocument::Orders));
        QCOMPARE(m_ask->asked, QStringList(3, "Wrong login name or password. Try again."));
        QCOMPARE(m_ui.lastMessage(), QString("Orders not downloaded"));
        QCOMPARE(Downloaded(), QString("0 "));
    }

    void faults_data()
    {
        AddColumns<QString, QString>({"mode", "message"});
        AddRow("server error", QString("500"),
               QString("Communication error with web server.\nCode: 500\nError message: Internal "
                       "Server Error"));
        // Random bytes: the parser says what it found first.
        AddRow("garbage", QString("garbage"), QString());
        AddRow("silence", QString("slow"),
               QString("Communication error with web server.\nCode: 0\nError message: The server "
                       "did not answer in time."));
        AddRow("cut half way", QString("cut"),
               QString("Communication error with web server.\nCode: 200\nError message: "));
    }
    void faults()
    {
        auto [mode, message] = Fetch<QString, QString>({"mode", "message"});
        QVERIFY(start({"--generate", "200", "--fail", mode}, true, 100));
        m_exchange->setIdleTimeout(1000);
        QVERIFY(!m_exchange->download(WebshopDocument::Orders));
        QCOMPARE(m_ui.lastMessage(), QString("Orders not downloaded"));
        const QString shown = MessagePlainText(m_ui.messages.value(m_ui.messages.size() - 2).text);
        QVERIFY2(shown.startsWith(message), qPrintable(shown));
        QCOMPARE(Downloaded(), QString("0 "));
        QCOMPARE(m_exchange->storedCount(), 0);
    }

    void hugeElementIsStreamed()
    {
        QVERIFY(start({"--generate", "5", "--fail", "huge"}));
        QVERIFY(m_exchange->download(WebshopDocument::Orders));
        QCOMPARE(Downloaded(), QString("5 0000000005"));
    }

    // The shop serving files: an empty answer, then the orders after the timestamp, two at most.
    void folderShop()
    {
        const QString dir = m_company->dir();
        QVERIFY(WriteFile(dir + "/partners.xml", "<PARTNERS/>"));
        QVERIFY(WriteFile(dir + "/orders.xml",
                          OrdersDoc({OrderXml("W1"), OrderXml("W2"), OrderXml("W3")})));
        QVERIFY(start({"--folder", dir}, true, 2));
        QVERIFY(m_exchange->download(WebshopDocument::Partners));
        QCOMPARE(m_ui.lastMessage(), QString("0 partners saved."));
        QVERIFY(Setup::write({{"SETUP_DOWNLOAD_LAST_ORDERHEAD_TIMESTAMP", "T-W1"}}));
        QVERIFY(m_exchange->download(WebshopDocument::Orders));
        QCOMPARE(QueryText("select ORDERHEAD_CODE from ORDERHEAD where ORDERHEAD_CODE like 'W%'"),
                 QString("W2; W3"));
        QCOMPARE(
            m_ui.lastMessage(),
            QString("2 orders downloaded. There can be downloadable orders on the server yet."));
    }

private:
    using Login = WebshopInteraction::Login;

    // The shop started with args, the settings pointing at it, and an exchange to download with.
    bool start(const QStringList& args, bool savePassword = true, int maxOrders = 20)
    {
        const bool pointed = PointSettingsAt(m_shop.emplace(args), savePassword, maxOrders);
        m_exchange.emplace(m_ui, *m_ask);
        return pointed;
    }

    ScriptedInteraction m_ui;
    std::optional<ScriptedWebshop> m_ask;
    std::optional<Shop> m_shop;
    std::optional<WebshopExchange> m_exchange;
};

QTEST_GUILESS_MAIN(TestWebshopExchange)
#include "tst_webshopexchange.moc"
