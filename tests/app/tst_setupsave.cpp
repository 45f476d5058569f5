// Saving the settings: the checks in the order the user is told, the year-in-prefix notice, the
// password rule, the logo and the forint's rounding, against a real company database.
#include "DataTable.h"
#include "ScriptedInteraction.h"
#include "TestCompany.h"

#include "app/SetupSave.h"
#include "base/Setup.h"
#include "base/SqlStatement.h"

#include <QBuffer>
#include <QImage>
#include <QtTest>

#include "Columns.h"

namespace {

// Settings that pass every check.
SetupValues ValidValues()
{
    return {
        {"SETUP_NAME", "Minta Kft."},       {"SETUP_ZIP", "1052"},
        {"SETUP_CITY", "Budapest"},         {"SETUP_ADDRESS", "Váci utca 10."},
        {"SETUP_INVOICE_CURRENCY_ID", 0},   {"SETUP_INVOICE_COPIES", 2},
        {"SETUP_RECORD_LIMIT", 500},        {"SETUP_INVOICE_LOGO_PRINT", "0"},
        {"SETUP_TAX_NO", "12345676-2-41"},  {"SETUP_EU_VAT_REG_NO", "HU12345676"},
        {"SETUP_INVOICE_NO_PREFIX", "SZ/"},
    };
}

QByteArray PngBytes()
{
    QImage image(8, 4, QImage::Format_RGB32);
    image.fill(Qt::red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

int SetupRows()
{
    return SelectValue(QStringLiteral("select count(*) from SETUP")).toInt();
}

} // namespace

class TestSetupSave : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    // Each row breaks one more rule than the valid set: the message is the first in order.
    void checkOrder_data()
    {
        AddColumns<QStringList, QString, QString>({"emptied", "message", "column"});
        const QStringList all = {"SETUP_NAME",
                                 "SETUP_ZIP",
                                 "SETUP_CITY",
                                 "SETUP_ADDRESS",
                                 "SETUP_INVOICE_CURRENCY_ID",
                                 "SETUP_INVOICE_COPIES",
                                 "SETUP_RECORD_LIMIT"};
        const char* messages[] = {"Company Name is required.", "ZIP is required.",
                                  "City is required.",         "Street Address is required.",
                                  "Currency is required.",     "Field is required.",
                                  "Field is required."};
        for (int i = 0; i < all.size(); ++i)
            QTest::newRow(qPrintable(all[i])) << all.mid(i) << messages[i] << all[i];
    }
    void checkOrder()
    {
        const auto [emptied, message, column] =
            Fetch<QStringList, QString, QString>({"emptied", "message", "column"});
        SetupValues values = ValidValues();
        for (const QString& c : emptied)
            values.insert(c, c == QLatin1String("SETUP_INVOICE_CURRENCY_ID") ? QVariant()
                                                                             : QVariant(u"  "_qs));
        const auto problem = CheckSetupValues(values);
        QVERIFY(problem);
        QCOMPARE(problem->message, message);
        QCOMPARE(problem->column, column);
    }

    void laterChecks_data()
    {
        AddColumns<QString, QVariant, QString>({"column", "value", "problemColumn"});
        QTest::newRow("logo without size")
            << "SETUP_INVOICE_LOGO_PRINT" << QVariant("1") << "SETUP_INVOICE_LOGO_SIZE_PERCENT";
        QTest::newRow("bad tax no")
            << "SETUP_TAX_NO" << QVariant("12345678-2-41") << "SETUP_TAX_NO";
        QTest::newRow("bad EU no")
            << "SETUP_EU_VAT_REG_NO" << QVariant("XX1234") << "SETUP_EU_VAT_REG_NO";
        QTest::newRow("forint 0 is a currency")
            << "SETUP_INVOICE_CURRENCY_ID" << QVariant(0) << QString();
        QTest::newRow("empty EU no") << "SETUP_EU_VAT_REG_NO" << QVariant("") << QString();
    }
    void laterChecks()
    {
        const auto [column, value, problemColumn] =
            Fetch<QString, QVariant, QString>({"column", "value", "problemColumn"});
        SetupValues values = ValidValues();
        values.insert(column, value);
        const auto problem = CheckSetupValues(values);
        QCOMPARE(problem ? problem->column : QString(), problemColumn);
        if (problemColumn == QLatin1String("SETUP_INVOICE_LOGO_SIZE_PERCENT"))
            QCOMPARE(problem->message, QStringLiteral("Set the logo size."));
    }

    void prefixYear_data()
    {
        AddColumns<QString, int, bool>({"prefix", "year", "hasYear"});
        QTest::newRow("four digits") << "SZ2026/" << 2026 << true;
        QTest::newRow("two digits") << "A26-" << 2026 << true;
        QTest::newRow("padded two digits") << "B-05-" << 2005 << true;
        QTest::newRow("last year") << "SZ2025/" << 2026 << false;
        QTest::newRow("none") << "SZ/" << 2026 << false;
    }
    void prefixYear()
    {
        const auto [prefix, year, hasYear] =
            Fetch<QString, int, bool>({"prefix", "year", "hasYear"});
        QCOMPARE(PrefixHasYear(prefix, year), hasYear);
    }

    // Before the first invoice the user is told; once invoices exist the prefix is what it is.
    void yearNotice()
    {
        TestCompany company;
        QVERIFY(company.isValid());
        SetupChanges changes;
        changes.values = ValidValues();
        changes.values.insert("SETUP_INVOICE_NO_PREFIX", "SZ2026/");
        ScriptedInteraction interaction;
        QVERIFY(SaveSetup(changes, interaction, nullptr, QDate(2026, 3, 5)).ok());
        QCOMPARE(interaction.messages.size(), 1);
        QVERIFY(interaction.lastMessage().startsWith(
            QStringLiteral("A számlaszám előtagjában szerepel az évszám.")));

        QVERIFY(ExecSql(QStringLiteral("insert into INVOICE (INVOICE_ORDERHEAD_ID) values (1)")));
        ScriptedInteraction again;
        QVERIFY(SaveSetup(changes, again, nullptr, QDate(2026, 3, 5)).ok());
        QVERIFY(again.messages.isEmpty());
    }

    void invoicesNotCountable()
    {
        TestCompany company;
        QVERIFY(company.isValid());
        QVERIFY(ExecSql(QStringLiteral("alter table INVOICE rename to INVOICE_AWAY")));
        SetupChanges changes;
        changes.values = ValidValues();
        changes.values.insert("SETUP_INVOICE_NO_PREFIX", "26/");
        changes.values.insert("SETUP_NAME", "Not saved");
        ScriptedInteraction interaction;
        QVERIFY(!SaveSetup(changes, interaction, nullptr, QDate(2026, 1, 1)).ok());
        QCOMPARE(interaction.lastMessage(), QStringLiteral("Can not count invoices"));
        Setup setup;
        QVERIFY(setup.load().ok());
        QVERIFY(setup.text(Col::SETUP_NAME) != QLatin1String("Not saved"));
    }

    void failedCheckSavesNothing()
    {
        TestCompany company;
        QVERIFY(company.isValid());
        SetupChanges changes;
        changes.values = ValidValues();
        changes.values.insert("SETUP_CITY", "");
        changes.values.insert("SETUP_NAME", "Not saved");
        ScriptedInteraction interaction;
        QString bad;
        QVERIFY(!SaveSetup(changes, interaction, &bad).ok());
        QCOMPARE(bad, QStringLiteral("SETUP_CITY"));
        QCOMPARE(interaction.lastMessage(), QStringLiteral("City is required."));
        Setup setup;
        QVERIFY(setup.load().ok());
        QVERIFY(setup.text(Col::SETUP_NAME) != QLatin1String("Not saved"));
    }

    void passwordOnlyWhenAsked_data()
    {
        AddColumns<QString, QVariant>({"save", "stored"});
        QTest::newRow("save") << "1" << QVariant("secret");
        QTest::newRow("do not save") << "0" << QVariant();
    }
    void passwordOnlyWhenAsked()
    {
        const auto [save, stored] = Fetch<QString, QVariant>({"save", "stored"});
        TestCompany company;
        QVERIFY(company.isValid());
        SetupChanges changes;
        changes.values = ValidValues();
        changes.values.insert("SETUP_DOWNLOAD_PASSWORD", "secret");
        changes.values.insert("SETUP_DOWNLOAD_SAVE_PASSWORD", save);
        ScriptedInteraction interaction;
        QVERIFY(SaveSetup(changes, interaction).ok());
        const QVariant v = SelectValue(QStringLiteral("select SETUP_DOWNLOAD_PASSWORD from SETUP"));
        QCOMPARE(v.isNull(), stored.isNull());
        if (!stored.isNull())
            QCOMPARE(v.toString(), stored.toString());
        QCOMPARE(SetupRows(), 1);
    }

    void logoAndRounding()
    {
        TestCompany company;
        QVERIFY(company.isValid());
        SetupChanges changes;
        changes.values = ValidValues();
        changes.newLogo = PngBytes();
        changes.homeCurrency.insert("CURRENCY_LINE_TOTAL_PRINTING_DECIMALS", 2);
        changes.homeCurrency.insert("CURRENCY_LINE_TOTAL_ROUNDING_DECIMALS", 1);
        ScriptedInteraction interaction;
        QVERIFY(SaveSetup(changes, interaction).ok());
        const QVariant logoId =
            SelectValue(QStringLiteral("select SETUP_INVOICE_LOGO_ID from SETUP"));
        QVERIFY(!logoId.isNull());
        const QVariant data =
            SelectValue(QStringLiteral("select LOGO_DATA from LOGO where LOGO_ID = ?"), {logoId});
        QCOMPARE(QByteArray::fromBase64(data.toString().toLatin1()), PngBytes());
        QCOMPARE(Setup::current().integer(Col::SETUP_INVOICE_LOGO_ID), logoId.toLongLong());
        QCOMPARE(SelectValue(QStringLiteral("select CURRENCY_LINE_TOTAL_ROUNDING_DECIMALS from "
                                            "CURRENCYY where CURRENCY_ID = 0"))
                     .toInt(),
                 1);
    }

    // A picture that is none leaves everything as it was, the settings too.
    void badLogoRollsBack()
    {
        TestCompany company;
        QVERIFY(company.isValid());
        SetupChanges changes;
        changes.values = ValidValues();
        changes.values.insert("SETUP_NAME", "Not saved");
        changes.newLogo = QByteArray("no picture");
        ScriptedInteraction interaction;
        QVERIFY(!SaveSetup(changes, interaction).ok());
        QCOMPARE(interaction.lastMessage(),
                 QStringLiteral("A logo adatbazisba mentese nem sikerult."));
        QCOMPARE(SelectValue(QStringLiteral("select count(*) from LOGO")).toInt(), 0);
        QVERIFY(SelectValue(QStringLiteral("select SETUP_NAME from SETUP")).toString() !=
                QLatin1String("Not saved"));
    }
};

QTEST_GUILESS_MAIN(TestSetupSave)
#include "tst_setupsave.moc"
