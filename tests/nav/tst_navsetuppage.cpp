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
        auto* password = again.findChild<QLineEdit*>("m_password");
        QVERIFY(password->text().isEmpty());
        for (const char* secret : {"m_password", "m_signing_key", "m_exchange_key"})
            QCOMPARE(again.findChild<QLineEdit*>(secret)->echoMode(), QLineEdit::Password);
        QVERIFY(again.save()); // an empty password field keeps the stored one
        QCOMPARE(QueryText("select TN_NAV_SETUP_PASSWORD_HASH from TN_NAV_SETUP"),
                 NavSettings::passwordHashOf("Jelszo123"));
        NavSettings stored;
        QVERIFY(NavSettingsStore::load(stored));
        QVERIFY(stored.production);
        QCOMPARE(stored.serviceUrl(),
                 QString("https://api.onlineszamla.nav.gov.hu/invoiceService/v3"));
    }

    void refusals_data()
    {
        AddColumns<QStringList, QString>({"fields", "message"});
        AddRow("short login", QStringList{"abc", "pw", "key", "1234567890ABCDEF", "12345676"},
               QString("6 to 15"));
        AddRow("no password", QStringList{"tallyuser1", "", "key", "1234567890ABCDEF", "12345676"},
               QString("Password"));
        AddRow("exchange key length",
               QStringList{"tallyuser1", "pw", "key", "1234567890", "12345676"},
               QString("16 characters"));
        AddRow("tax id not digits",
               QStringList{"tallyuser1", "pw", "key", "1234567890ABCDEF", "1234-567"},
               QString("8 digits"));
        AddRow("plain http elsewhere",
               QStringList{"tallyuser1", "pw", "key", "1234567890ABCDEF", "12345676",
                           "http://example.com/invoiceService/v3"},
               QString("https://"));
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
