// A company file: a new one gets every table, column and index with its exact name and the basic
// data; older ones are carried to the current version with their data intact, and any failure
// puts the original file back byte for byte.
#include "AppTestData.h"
#include "OldCompanyFile.h"
#include "ScriptedInteraction.h"
#include "TestCompany.h"
#include "TestData.h"

#include "app/DatabasePrepare.h"
#include "app/SchemaExtensions.h"
#include "base/Database.h"
#include "base/Setup.h"
#include "base/SqlStatement.h"

#include <QSqlQuery>
#include <QtTest>

namespace {

const char kErrorUpgrading[] =
    "Error upgrading database.&You can uninstall current version of the software&and reinstall "
    "the previously used version to continue your work.&&Please report this problem to the "
    "developers.";

QStringList Sorted(QStringList list)
{
    list.sort();
    return list;
}

// Every table of a newly created company file with its columns, in declaration order.
QList<QPair<QString, QStringList>> FreshTables()
{
    TestCompany company;
    QList<QPair<QString, QStringList>> tables;
    QStringList names = Database::session().tables();
    names.removeAll("sqlite_sequence");
    for (const QString& table : std::as_const(names))
        tables.append({table, TableColumns(table)});
    return tables;
}

// "NAME [unique ]TABLE(COLUMN)" for every index of the open company, sorted. The names are
// truncated on purpose: upgrades drop and create them by these names.
QStringList Indexes()
{
    QStringList indexes;
    // The company schema's own; the program's TN_ extensions are not part of it.
    QSqlQuery q("select name, tbl_name, sql from sqlite_master where type = 'index' and "
                "name not like 'TN\\_%' escape '\\'",
                Database::session());
    while (q.next()) {
        const QString sql = q.value(2).toString();
        const bool unique = sql.startsWith("create unique", Qt::CaseInsensitive);
        indexes << q.value(0).toString() + (unique ? " unique " : " ") + q.value(1).toString() +
                       sql.mid(sql.indexOf(u'('));
    }
    return Sorted(indexes);
}

QStringList Texts(const ScriptedInteraction& interaction)
{
    QStringList texts;
    for (const ScriptedInteraction::Shown& shown : interaction.messages)
        texts << shown.text;
    return texts;
}

} // namespace

class TestSchemaUpgrade : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { QVERIFY(m_dir.emplace().isValid()); }
    void cleanup() { Database::close(); }
    // An empty file gets every index by its exact name, and the ids and rules other parts take
    // for granted (the label texts are checked with their reader).
    void newFile()
    {
        QVERIFY(Database::open(m_dir->filePath("new.db")));
        ScriptedInteraction interaction;
        QVERIFY(PrepareDatabase(interaction).ok());
        QVERIFY(interaction.progressTexts.contains("Creating database tables"));
        QVERIFY(interaction.progressTexts.contains("Creating database indexes"));
        QVERIFY(!interaction.progressTexts.contains("Upgrading database."));
        QCOMPARE(ReadDbVersion(), 302);
        QCOMPARE(Indexes(), Sorted(TestDataLines("app/schema_indexes.txt")));
        // Rows made without these values read "0", never NULL.
        QVERIFY(ExecSql("insert into PAYMENTMETHOD (PAYMENTMETHOD_NAME) values ('x')"));
        QVERIFY(ExecSql("insert into ORDERHEAD (ORDERHEAD_ID) values (99)"));
        QCOMPARE(
            QueryTexts({
                "select count(*) from SETUP",
                "select COUNTRY_INTERNATIONAL_CODE, COUNTRY_NAME from COUNTRY where COUNTRY_ID = 0",
                // Hungarian is language 0, kept in the main columns, never a LANG row.
                "select LANG_ID, LANG_CODE from LANG order by LANG_ID",
                // The forint rounds line totals to 1 decimal but prints 2, its invoice total to 0.
                "select CURRENCY_ABBREVIATION, CURRENCY_RATE, "
                "CURRENCY_LINE_TOTAL_ROUNDING_DECIMALS, CURRENCY_LINE_TOTAL_PRINTING_DECIMALS, "
                "CURRENCY_INVOICE_TOTAL_ROUNDING_DECIMALS from CURRENCYY where CURRENCY_ID = 0",
                // The sample orders' totals are the sums of their lines.
                "select count(*) from ORDERHEAD where ORDERHEAD_ID <> 99 and ORDERHEAD_TOTAL_GROSS "
                "is not (select sum(ORDERITEM_TOTAL_GROSS) from ORDERITEM where "
                "ORDERITEM_ORDERHEAD_ID = ORDERHEAD_ID)",
                "select PAYMENTMETHOD_ROUND_TO_5 from PAYMENTMETHOD where PAYMENTMETHOD_NAME = 'x'",
                "select ORDERHEAD_PAYMENTMETHOD_ROUND_TO_5, ORDERHEAD_TOTAL_NET, "
                "ORDERHEAD_TOTAL_VAT, ORDERHEAD_TOTAL_GROSS, ORDERHEAD_TOTAL_CORRECTION_GROSS, "
                "ORDERHEAD_UNPAID_TOTAL, ORDERHEAD_TOTAL_ROUNDING_DIFFERENCE, "
                "ORDERHEAD_PRINTED_COPIES from ORDERHEAD where ORDERHEAD_ID = 99",
            }),
            QStringList(
                {"1", "HU|Magyarország", "1|EN; 2|DE", "Ft|1|1|2|0", "0", "0", "0|0|0|0|0|0|0|0"}));
    }

    // The oldest file takes every step; one of the latest takes only the last.
    void wholeChain_data()
    {
        QTest::addColumn<int>("version");
        AddRow("no version table", -1);
        AddRow("301", 301);
    }

    void wholeChain()
    {
        QFETCH(int, version);
        const QList<QPair<QString, QStringList>> fresh = FreshTables();
        QVERIFY(!fresh.isEmpty());
        const QString path = build({version, 0}); // without line rounding: prints none either
        QVERIFY(!path.isEmpty());
        const QByteArray original = FileBytes(path);

        ScriptedInteraction interaction;
        // Of the methods on orders (sorted: "Csekk", "Készpénz", "Átutalás") bank transfers are
        // unpaid.
        interaction.checkAnswers.enqueue(QList<bool>{false, false, true});
        QVERIFY(Database::open(path));
        const Result r = PrepareDatabase(interaction);
        QVERIFY2(r.ok(), qPrintable(r.message() + u' ' + r.sqlError() + u' ' + r.statement()));
        QVERIFY(interaction.messages.isEmpty());
        QVERIFY(interaction.progressTexts.contains("Upgrading database."));
        QCOMPARE(FileBytes(DatabasePrepare::safetyCopyPath(path)), original);
        QCOMPARE(ReadDbVersion(), 302);

        // The same tables, columns and indexes as a new file; the unused legacy columns stay.
        for (auto [table, columns] : fresh) {
            if (table == "ORDERHEAD" || table == "SETUP")
                columns << table + "_ITEM_ROUND_DIGITS";
            QCOMPARE(Sorted(TableColumns(table)), Sorted(columns));
        }
        QCOMPARE(Indexes(), Sorted(TestDataLines("app/schema_indexes.txt")));
        // The program's extensions come beside the schema, DBVERSION stays the company schema's.
        QCOMPARE(ReadSchemaExtensionVersion(), kSchemaExtensionVersion);
        QCOMPARE(ReadDbVersion(), kCurrentDbVersion);

        QCOMPARE(Setup::current().text("SETUP_NAME"), "Régi Kereskedő Kft.");
        QCOMPARE(
            QueryTexts({
                "select count(*), sum(ORDERITEM_TOTAL_GROSS) from ORDERITEM",
                "select count(*) from ORDERLABELTRANSLATION",
                "select ORDERLABELTRANSLATION_TEXT from ORDERLABELTRANSLATION where "
                "ORDERLABELTRANSLATION_KEY = 'TR_PAYMENT_METHOD' and ORDERLABELTRANSLATION_LANG_ID "
                "= 0",
                "select CURRENCY_BANK_BY_SETUP from CURRENCYY",
                // Lines of older files take their order's shipping date; later ones keep their own.
                "select ORDERITEM_DATE_SHIPPED from ORDERITEM",
                // Orders of version 300 get line decimals from their own old rounding: 2 prints 2,
                // 0 prints 0.
                "select ORDERHEAD_CURRENCY_LINE_TOTAL_ROUNDING_DECIMALS, "
                "ORDERHEAD_CURRENCY_LINE_TOTAL_PRINTING_DECIMALS from ORDERHEAD where ORDERHEAD_ID "
                "<= 2",
            }),
            QStringList({"4|11750", "131", "Fizetési mód", "1; 1; 1",
                         version < 2 ? "2009-03-02; 2009-03-02; 2009-03-05; 2009-04-01"
                                     : "2009-02-27; 2009-02-27; 2009-02-27; 2009-02-27",
                         version <= 300 ? "2|2; 0|0" : "|; |"}));
        if (version < 300) {
            QCOMPARE(interaction.checkLists,
                     QList<QStringList>({{"Csekk", "Készpénz", "Átutalás"}}));
            QCOMPARE(
                QueryTexts({
                    // Paid on issue unless bank transfer, cheque or a due date; cheques only for
                    // "Csekk".
                    "select PAYMENTMETHOD_PAID, PAYMENTMETHOD_CHEQUE from PAYMENTMETHOD",
                    // Only the issued, uncancelled bank-transfer invoice becomes unpaid, for its
                    // gross total.
                    "select ORDERHEAD_PAID, ORDERHEAD_PAYMENTMETHOD_PAID, ORDERHEAD_UNPAID_TOTAL "
                    "from ORDERHEAD",
                    "select ORDERHEAD_PARTNER_COUNTRY_INTERNATIONAL_CODE, "
                    "ORDERHEAD_PARTNER_MAIL_ADDRESS, ORDERHEAD_CURRENCY_ABBREVIATION, "
                    "ORDERHEAD_TOTAL_LOCAL_CURRENCY_GROSS from ORDERHEAD where ORDERHEAD_ID = 5",
                    "select ORDERITEM_LIST_PRICE from ORDERITEM",
                    "select PARTNER_MAIL_CITY from PARTNER",
                    // The company's old line rounding moves to the forint.
                    "select CURRENCY_LINE_TOTAL_ROUNDING_DECIMALS, "
                    "CURRENCY_LINE_TOTAL_PRINTING_DECIMALS from CURRENCYY where CURRENCY_ID = 0",
                    // Rounding and consolidation flags of the early steps start off.
                    "select PAYMENTMETHOD_ROUND_TO_5 from PAYMENTMETHOD",
                    "select ORDERHEAD_TOTAL_ROUNDING_DIFFERENCE from ORDERHEAD where ORDERHEAD_ID "
                    "= 1",
                    "select ORDERHEAD_CONSOLIDATED_INVOICE from ORDERHEAD where ORDERHEAD_ID = 6",
                }),
                QStringList({"1|0; 0|0; 0|1; 1|0; 0|0",
                             "0|0|1250; 1|1|0; 1|1|0; 1|1|0; 1|1|0; 1|1|0", "HUN|Fő u. 1.|Ft|-2500",
                             "12; 400; 400; 8000", "Budapest; Debrecen", "0|0", "1; 0; 0; 0; 0",
                             "0", "0"}));
            QVERIFY(Setup::current().text("SETUP_DOWNLOAD_PARTNER_URL").endsWith("/partner.php"));
            QCOMPARE(Setup::current().integer("SETUP_DOWNLOAD_MAX_PARTNERS"), 1000);
            QVERIFY(Setup::current().value("SETUP_INVOICE_CURR_TMPL_DIR").isNull());
            QVERIFY(Setup::current().value("SETUP_INVOICE_DIGEST").isNull());
        } else {
            QVERIFY(interaction.checkLists.isEmpty());
            QCOMPARE(Setup::current().text("SETUP_INVOICE_CURR_TMPL_DIR"), "sablon_2009");
        }
    }

    void failureKeepsOriginal_data()
    {
        // recordedVersion: 0: as built
        AddColumns<int, int, QString, int, int, QStringList>({"version", "recordedVersion",
                                                              "breakage", "failingStep",
                                                              "cancelAfterChecks", "messages"});
        const QString unable = "Unable to upgrade database.";
        const QString failed = kErrorUpgrading;
        const QString aborted = "Upgrading database aborted.";
        // The file must come back without a version table, not at version 3.
        AddRow("U4 fails after U1-U3", -1, 0, "", 4, -1, QStringList{unable, failed});
        AddRow("index to drop is missing", 3, 0, "partner index", 0, -1,
               QStringList{unable, failed});
        AddRow("old rounding setting is missing", 1, 0, "round digits", 0, -1,
               QStringList{"Unable to load rounding setup.", failed});
        // No step starts from a version the chain does not know, so the file never reaches 302.
        AddRow("unknown version", 3, 150, "", 0, -1, QStringList{unable, failed});
        AddRow("newer version", 301, 303, "", 0, -1,
               QStringList{"The database version is newer, than the version of the billing "
                           "software.&Upgrade the software to a newer version."});
        AddRow("safety copy cannot be made", 3, 0, "safety copy", 0, -1,
               QStringList{"Error backing up database file before upgrade."});
        AddRow("cancelled before U4", -1, 0, "", 0, 3, QStringList{aborted});
        AddRow("payment method choice cancelled", -1, 0, "no answer", 0, -1,
               QStringList{"Operation aborted.", aborted});
    }

    void failureKeepsOriginal()
    {
        auto [version, recordedVersion, breakage, failingStep, cancelAfterChecks, messages] =
            Fetch<int, int, QString, int, int, QStringList>({"version", "recordedVersion",
                                                             "breakage", "failingStep",
                                                             "cancelAfterChecks", "messages"});
        OldCompanyFile file{version};
        file.withoutPartnerNameIndex = breakage == "partner index";
        file.withoutRoundDigits = breakage == "round digits";
        const QString path = build(file);
        QVERIFY(!path.isEmpty());
        if (recordedVersion) {
            QVERIFY(Database::open(path));
            QVERIFY(ExecSql("update DBVERSION set VERSION = ?", {recordedVersion}));
            Database::close();
        }
        // A folder where the copy should go cannot be overwritten.
        if (breakage == "safety copy")
            QVERIFY(QDir().mkpath(DatabasePrepare::safetyCopyPath(path)));
        const QByteArray original = FileBytes(path);

        ScriptedInteraction interaction;
        interaction.cancelAfterChecks = cancelAfterChecks;
        if (breakage != "no answer")
            interaction.checkAnswers.enqueue(QList<bool>{true, true, true});
        QVERIFY(Database::open(path));
        DatabasePrepare prepare(interaction);
        prepare.setFailingStep(failingStep);
        const Result r = prepare.run();
        QVERIFY(!r.ok());
        QCOMPARE(r.message(), messages.last());
        QCOMPARE(Texts(interaction), messages);
        QVERIFY(!Database::isOpen());
        QCOMPARE(FileBytes(path), original);
        QVERIFY(!QFileInfo(DatabasePrepare::safetyCopyPath(path)).isFile());
        QVERIFY(!QFile::exists(path + "-journal"));
    }

    // The program's TN_ additions beside the company schema: put on a file that lacks them when it
    // is opened, kept out of DBVERSION, and a file extended by a newer program is refused
    // untouched.
    void schemaExtensions_data()
    {
        AddColumns<QString, bool, int>({"change", "opens", "version"});
        AddRow("current", QString(), true, kSchemaExtensionVersion);
        AddRow("file without them",
               QString("drop table TN_VERSION; drop index TN_IDX_ORDERHEAD_CANCEL"), true,
               kSchemaExtensionVersion);
        AddRow("newer program's", QString("update TN_VERSION set TN_VERSION_VERSION = 99"), false,
               99);
    }

    void schemaExtensions()
    {
        auto [change, opens, version] = Fetch<QString, bool, int>({"change", "opens", "version"});
        TestCompany company;
        QVERIFY(company.isValid());
        QCOMPARE(ReadSchemaExtensionVersion(), kSchemaExtensionVersion);
        for (const QString& statement : change.split(u';', Qt::SkipEmptyParts))
            QVERIFY(ExecSql(statement.trimmed()));
        ScriptedInteraction interaction;
        const Result r = PrepareDatabase(interaction);
        QCOMPARE(r.ok(), opens);
        if (!opens) {
            QCOMPARE(r.message(), SchemaExtensions::newerVersionMessage());
            QVERIFY(Database::open(company.path()));
        }
        QCOMPARE(ReadSchemaExtensionVersion(), version);
        QCOMPARE(ReadDbVersion(), kCurrentDbVersion);
        QCOMPARE(QueryText("select count(*) from sqlite_master where name like 'TN\\_IDX%' escape "
                           "'\\'"),
                 "6");
    }

private:
    QString build(const OldCompanyFile& file);

    std::optional<QTemporaryDir> m_dir;
};

QString TestSchemaUpgrade::build(const OldCompanyFile& file)
{
    const QString path = m_dir->filePath("old.db");
    return file.build(path) ? path : QString();
}

QTEST_GUILESS_MAIN(TestSchemaUpgrade)
#include "tst_schemaupgrade.moc"
