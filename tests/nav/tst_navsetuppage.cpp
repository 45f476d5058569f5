// The NAV settings page: what it stores, what it refuses, and that the secrets never come back
// into view (the password is kept only as its hash; an empty field keeps it).
#include "TestCompany.h"
#include "TestData.h"

#include "nav/ui/NavSetupPage.h"

#include <QComboBox>
#include <QLineEdit>
#include <QtTest>

class TestNavSetupPage : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { QVERIFY(m_company.emplace().isValid()); }
    void cleanup() { m_company.reset(); }

    void savesAndKeepsPassword()
    {
        NavSetupPage page;
        QVERIFY(page.load());
        fill(page, {"tallyuser1", "Jelszo123", "signing-key", "1234567890ABCDEF", "12345676"});
        page.findChild<QComboBox*>("m_environment")->setCurrentIndex(1);
        QVERIFY(page.save());
        QCOMPARE(QueryText("select TN_NAV_SETUP_LOGIN, TN_NAV_SETUP_PASSWORD_HASH, "
                           "TN_NAV_SETUP_TAX_NO, TN_NAV_SETUP_PRODUCTION from TN_NAV_SETUP"),
                 "tallyuser1|" + NavSettings::passwordHashOf("Jelszo123") + "|12345676|1");
        QVERIFY(!QueryText("select * from TN_NAV_SETUP").contains("Jelszo123"));

        NavSetupPage again;
        QVERIFY(again.load());
        QVERIFY(again.findChild<QLineEdit*>("m_password")->text().isEmpty());
        for (const char* secret : {"m_password", "m_signing_key", "m_exchange_key"})
            QCOMPARE(again.findChild<QLineEdit*>(secret)->echoMode(), QLineEdit::Password);
        QVERIFY(again.save()); // an empty password field keeps the stored one
        QCOMPARE(QueryText("select TN_NAV_SETUP_PASSWORD_HASH from TN_NAV_SETUP"),
                 NavSettings::passwordHashOf("Jelszo123"));
        NavSettings stored;
        QVERIFY(NavSettingsStore::load(stored));
        QCOMPARE(stored.serviceUrl(),
                 QString("https://api.onlineszamla.nav.gov.hu/invoiceService/v3"));
    }

    void refusals_data()
    {
        // fields: login|password|signing key|exchange key|tax id[|url]
        AddColumns<QStringList, QString>({"fields", "message"});
        const auto row = [](const char* name, const char* fields, const char* message) {
            AddRow(name, QString(fields).split('|'), QString(message));
        };
        row("short login", "abc|pw|key|1234567890ABCDEF|12345676", "6 to 15");
        row("no password", "tallyuser1||key|1234567890ABCDEF|12345676", "Password");
        row("exchange key length", "tallyuser1|pw|key|1234567890|12345676", "16 characters");
        row("tax id not digits", "tallyuser1|pw|key|1234567890ABCDEF|1234-567", "8 digits");
        row("plain http elsewhere",
            "tallyuser1|pw|key|1234567890ABCDEF|12345676|http://example.com/invoiceService/v3",
            "https://");
    }

    void refusals()
    {
        auto [fields, message] = Fetch<QStringList, QString>({"fields", "message"});
        NavSetupPage page;
        QVERIFY(page.load());
        fill(page, fields);
        const Result r = page.save();
        QVERIFY(!r);
        QVERIFY2(r.message().contains(message), qPrintable(r.message()));
        QCOMPARE(QueryText("select coalesce(TN_NAV_SETUP_LOGIN, '') from TN_NAV_SETUP"), QString());
    }

private:
    static void fill(NavSetupPage& page, const QStringList& values)
    {
        const char* names[] = {"m_login",        "m_password", "m_signing_key",
                               "m_exchange_key", "m_tax_no",   "m_url"};
        for (int i = 0; i < values.size(); ++i)
            page.findChild<QLineEdit*>(names[i])->setText(values.at(i));
    }

    std::optional<TestCompany> m_company;
};

QTEST_MAIN(TestNavSetupPage)
#include "tst_navsetuppage.moc"
