// Saving the settings: the checks in the order the user is told, the year-in-prefix notice, the
// password rule, the logo and the forint's rounding, against a real company database.
#include "CompanyTestCase.h"
#include "ScriptedInteraction.h"
#include "TestData.h"

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

// The valid settings with the values given changed.
SetupChanges Changes(std::initializer_list<std::pair<QString, QVariant>> changed = {})
{
    SetupChanges changes;
    changes.values = ValidValues();
    for (const auto& [column, value] : changed)
        changes.values.insert(column, value);
    return changes;
}

} // namespace

class TestSetupSave : public CompanyTestCase
{
    Q_OBJECT
private Q_SLOTS:
    // Each row breaks one more rule than the valid set: the message is the first in order.
    void checkOrder_data()
    {
        AddColumns<QStringList, QString, QString>({"emptied", "message", "column"});
        const QStringList all = QString("SETUP_NAME SETUP_ZIP SETUP_CITY SETUP_ADDRESS "
                                        "SETUP_INVOICE_CURRENCY_ID SETUP_INVOICE_COPIES "
                                        "SETUP_RECORD_LIMIT")
                                    .split(u' ');
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
        const auto row = [](const char* tag, const char* column, const QVariant& value,
                            const char* problem) {
            QTest::newRow(tag) << column << value << problem;
        };
        row("logo without size", "SETUP_INVOICE_LOGO_PRINT", "1",
            "SETUP_INVOICE_LOGO_SIZE_PERCENT");
        row("bad tax no", "SETUP_TAX_NO", "12345678-2-41", "SETUP_TAX_NO");
        row("bad EU no", "SETUP_EU_VAT_REG_NO", "XX1234", "SETUP_EU_VAT_REG_NO");
        row("forint 0 is a currency", "SETUP_INVOICE_CURRENCY_ID", 0, "");
        row("empty EU no", "SETUP_EU_VAT_REG_NO", "", "");
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
        AddRow("four digits", QString("SZ2026/"), 2026, true);
        AddRow("two digits", QString("A26-"), 2026, true);
        AddRow("last year", QString("SZ2025/"), 2026, false);
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
        const SetupChanges changes = Changes({{"SETUP_INVOICE_NO_PREFIX", "SZ2026/"}});
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

    // A failed save leaves the settings and the logos as they were.
    void failureSavesNothing_data()
    {
        AddColumns<QString, QString, QByteArray, QString, QString>(
            {"prefix", "breakage", "logo", "message", "column"});
        AddRow("failed check", QString("SZ/"), QString("SETUP_CITY"), QByteArray(),
               QString("City is required."), QString("SETUP_CITY"));
        AddRow("invoices not countable", QString("26/"),
               QString("alter table INVOICE rename to INVOICE_AWAY"), QByteArray(),
               QString("Can not count invoices"), QString());
        AddRow("logo no picture", QString("SZ/"), QString(), QByteArray("no picture"),
               QString("A logo adatbazisba mentese nem sikerult."), QString());
    }
    void failureSavesNothing()
    {
        const auto [prefix, breakage, logo, message, column] =
            Fetch<QString, QString, QByteArray, QString, QString>(
                {"prefix", "breakage", "logo", "message", "column"});
        SetupChanges changes =
            Changes({{"SETUP_INVOICE_NO_PREFIX", prefix}, {"SETUP_NAME", "Not saved"}});
        if (breakage.startsWith(u"alter"))
            QVERIFY(ExecSql(breakage));
        else if (!breakage.isEmpty())
            changes.values.insert(breakage, "");
        changes.newLogo = logo;
        ScriptedInteraction interaction;
        QString bad;
        QVERIFY(!SaveSetup(changes, interaction, &bad, QDate(2026, 1, 1)).ok());
        QCOMPARE(interaction.lastMessage(), message);
        QCOMPARE(bad, column);
        QVERIFY(SelectValue(QStringLiteral("select SETUP_NAME from SETUP")).toString() !=
                QLatin1String("Not saved"));
        QCOMPARE(SelectValue(QStringLiteral("select count(*) from LOGO")).toInt(), 0);
    }

    // Not kept unless the user asks (tst_setupwindow keeps one that is asked for).
    void passwordOnlyWhenAsked()
    {
        ScriptedInteraction interaction;
        QVERIFY(SaveSetup(Changes({{"SETUP_DOWNLOAD_PASSWORD", "secret"},
                                   {"SETUP_DOWNLOAD_SAVE_PASSWORD", "0"}}),
                          interaction)
                    .ok());
        QCOMPARE(QueryText("select ifnull(SETUP_DOWNLOAD_PASSWORD, 'NULL') from SETUP"), "NULL");
    }

    // The forint's rounding is stored as tst_setupwindow's round trip shows.
    void logoStored()
    {
        SetupChanges changes = Changes();
        changes.newLogo = PngBytes();
        ScriptedInteraction interaction;
        QVERIFY(SaveSetup(changes, interaction).ok());
        const QVariant logoId =
            SelectValue(QStringLiteral("select SETUP_INVOICE_LOGO_ID from SETUP"));
        QVERIFY(!logoId.isNull());
        const QVariant data =
            SelectValue(QStringLiteral("select LOGO_DATA from LOGO where LOGO_ID = ?"), {logoId});
        QCOMPARE(QByteArray::fromBase64(data.toString().toLatin1()), PngBytes());
        QCOMPARE(Setup::current().integer(Col::SETUP_INVOICE_LOGO_ID), logoId.toLongLong());
    }
};

QTEST_GUILESS_MAIN(TestSetupSave)
#include "tst_setupsave.moc"
