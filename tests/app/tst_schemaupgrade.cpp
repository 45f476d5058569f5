// Preparing a company file: new files get the schema, older ones are carried to the current
// version with their data intact, and any failure puts the original file back byte for byte.
#include "OldCompanyFile.h"
#include "ScriptedInteraction.h"
#include "TestCompany.h"
#include "TestData.h"

#include "app/Database.h"
#include "app/DatabasePrepare.h"
#include "app/Setup.h"
#include "app/SqlStatement.h"
#include "app/SqlValue.h"

#include <QSqlQuery>
#include <QtTest>

namespace {

const char kErrorUpgrading[] =
    "Error upgrading database.&You can uninstall current version of the software&and reinstall "
    "the previously used version to continue your work.&&Please report this problem to the "
    "developers.";

QStringList Texts(const ScriptedInteraction& interaction)
{
    QStringList texts;
    for (const ScriptedInteraction::Shown& shown : interaction.messages)
        texts << shown.text;
    return texts;
}

QStringList SortedColumns(const QString& table)
{
    QStringList columns = TableColumns(table);
    columns.sort();
    return columns;
}

QStringList IndexNames()
{
    QStringList names;
    QSqlQuery q("select name from sqlite_master where type = 'index' order by name",
                Database::session());
    while (q.next())
        names << q.value(0).toString();
    return names;
}

QVariant Order(int id, const char* column)
{
    return SelectValue(QStringLiteral("select %1 from ORDERHEAD where ORDERHEAD_ID = ?")
                           .arg(QLatin1String(column)),
                       {id});
}

QVariant Method(const QString& name, const char* column)
{
    return SelectValue(QStringLiteral("select %1 from PAYMENTMETHOD where PAYMENTMETHOD_NAME = ?")
                           .arg(QLatin1String(column)),
                       {name});
}

} // namespace

class TestSchemaUpgrade : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void wholeChain_data();
    void wholeChain();
    void failureKeepsOriginal_data();
    void failureKeepsOriginal();
    void currentVersionOpensWithoutCopy();
    void emptyFileGetsSchema();

private:
    QString build(const OldCompanyFile& file);

    // Today's columns of every table and today's index names, from a new company file.
    QHash<QString, QStringList> m_columns;
    QStringList m_indexes;
    QTemporaryDir m_dir;
    int m_files = 0;
};

void TestSchemaUpgrade::initTestCase()
{
    TestCompany company;
    QVERIFY(company.isValid());
    for (const QString& table : Database::session().tables())
        m_columns.insert(table, SortedColumns(table));
    m_indexes = IndexNames();
    QCOMPARE(m_indexes.size(), 37);
    QVERIFY(m_dir.isValid());
}

QString TestSchemaUpgrade::build(const OldCompanyFile& file)
{
    const QString path = m_dir.filePath(QStringLiteral("old%1.db").arg(++m_files));
    return file.build(path) ? path : QString();
}

void TestSchemaUpgrade::wholeChain_data()
{
    QTest::addColumn<int>("version");
    QTest::addColumn<int>("roundDigits");
    AddRow("no version", -1, 0);
    AddRow("1", 1, 2);
    AddRow("2", 2, 1);
    AddRow("3", 3, 1);
    AddRow("300", 300, 1);
    AddRow("301", 301, 1);
}

void TestSchemaUpgrade::wholeChain()
{
    QFETCH(int, version);
    QFETCH(int, roundDigits);
    const QString path = build({version, roundDigits});
    QVERIFY(!path.isEmpty());
    const QByteArray original = FileBytes(path);

    ScriptedInteraction interaction;
    // Of the methods on orders (sorted: "Csekk", "Készpénz", "Átutalás") bank transfers are unpaid.
    interaction.checkAnswers.enqueue(QList<bool>{false, false, true});
    QVERIFY(Database::open(path));
    const Result r = PrepareDatabase(interaction);
    QVERIFY2(r.ok(), qPrintable(r.message() + u' ' + r.sqlError() + u' ' + r.statement()));
    QVERIFY(interaction.messages.isEmpty());
    QVERIFY(interaction.progressTexts.contains("Upgrading database."));
    QCOMPARE(FileBytes(DatabasePrepare::safetyCopyPath(path)), original);
    QCOMPARE(ReadDbVersion(), 302);

    // The same tables, columns and indexes as a new file; the unused legacy columns stay.
    for (auto it = m_columns.cbegin(); it != m_columns.cend(); ++it) {
        QStringList expected = it.value();
        if (it.key() == "ORDERHEAD")
            expected << "ORDERHEAD_ITEM_ROUND_DIGITS";
        if (it.key() == "SETUP")
            expected << "SETUP_ITEM_ROUND_DIGITS";
        expected.sort();
        QCOMPARE(SortedColumns(it.key()), expected);
    }
    QCOMPARE(IndexNames(), m_indexes);

    QCOMPARE(Setup::current().text("SETUP_NAME"), "Régi Kereskedő Kft.");
    QCOMPARE(SelectValue("select count(*) from ORDERHEAD").toInt(), 6);
    QCOMPARE(SelectValue("select sum(ORDERITEM_TOTAL_GROSS) from ORDERITEM").toDouble(), 11750.0);
    QCOMPARE(SelectValue("select count(*) from ORDERLABELTRANSLATION").toInt(), 131);
    QCOMPARE(SelectValue("select ORDERLABELTRANSLATION_TEXT from ORDERLABELTRANSLATION where "
                         "ORDERLABELTRANSLATION_KEY = 'TR_PAYMENT_METHOD' and "
                         "ORDERLABELTRANSLATION_LANG_ID = 0"),
             QVariant("Fizetési mód"));
    QCOMPARE(
        SelectValue("select count(*) from CURRENCYY where CURRENCY_BANK_BY_SETUP = '1'").toInt(),
        3);

    if (version < 1) {
        QCOMPARE(Method("Készpénz", "PAYMENTMETHOD_ROUND_TO_5"), QVariant("1"));
        QCOMPARE(Method("Utánvét", "PAYMENTMETHOD_ROUND_TO_5"), QVariant("0"));
        QCOMPARE(Order(1, "ORDERHEAD_TOTAL_ROUNDING_DIFFERENCE").toDouble(), 0.0);
    }
    // Lines of older files take their order's shipping date; later ones keep their own.
    const QString shipped = "select ORDERITEM_DATE_SHIPPED from ORDERITEM where ORDERITEM_ID = ?";
    QCOMPARE(SelectValue(shipped, {2}), QVariant(version < 2 ? "2009-03-02" : "2009-02-27"));
    QCOMPARE(SelectValue(shipped, {4}), QVariant(version < 2 ? "2009-04-01" : "2009-02-27"));
    if (version < 2)
        QCOMPARE(Order(6, "ORDERHEAD_CONSOLIDATED_INVOICE"), QVariant("0"));
    if (version < 3) {
        QVERIFY(Setup::current().text("SETUP_DOWNLOAD_PARTNER_URL").endsWith("/partner.php"));
        QCOMPARE(Setup::current().integer("SETUP_DOWNLOAD_MAX_PARTNERS"), 1000);
    }

    if (version < 300) {
        QCOMPARE(interaction.checkLists, QList<QStringList>({{"Csekk", "Készpénz", "Átutalás"}}));
        // Paid on issue unless bank transfer, cheque or a due date; cheques only for "Csekk".
        QCOMPARE(SelectValue("select group_concat(PAYMENTMETHOD_NAME || ' ' || PAYMENTMETHOD_PAID "
                             "|| PAYMENTMETHOD_CHEQUE, ', ') from PAYMENTMETHOD"),
                 QVariant("Készpénz 10, Átutalás 00, Csekk 01, Utánvét 10, Halasztott fizetés 00"));
        // Only the issued, uncancelled bank-transfer invoice becomes unpaid, for its gross total.
        QCOMPARE(SelectValue("select group_concat(ORDERHEAD_PAID || ORDERHEAD_PAYMENTMETHOD_PAID "
                             "|| ' ' || ORDERHEAD_UNPAID_TOTAL, ', ') from ORDERHEAD"),
                 QVariant("00 1250.0, 11 0.0, 11 0.0, 11 0.0, 11 0.0, 11 0.0"));
        QCOMPARE(Order(5, "ORDERHEAD_PARTNER_COUNTRY_INTERNATIONAL_CODE || ', ' || "
                          "ORDERHEAD_PARTNER_MAIL_ADDRESS || ', ' || "
                          "ORDERHEAD_CURRENCY_ABBREVIATION || ' ' || "
                          "ORDERHEAD_TOTAL_LOCAL_CURRENCY_GROSS"),
                 QVariant("HUN, Fő u. 1., Ft -2500.0"));
        QCOMPARE(SelectValue("select ORDERITEM_LIST_PRICE from ORDERITEM where ORDERITEM_ID = 1")
                     .toDouble(),
                 12.0);
        QCOMPARE(SelectValue("select PARTNER_MAIL_CITY from PARTNER where PARTNER_ID = 2"),
                 QVariant("Debrecen"));
        // The company's old line rounding moves to the forint.
        QCOMPARE(SelectValue("select CURRENCY_LINE_TOTAL_ROUNDING_DECIMALS || ' ' || "
                             "CURRENCY_LINE_TOTAL_PRINTING_DECIMALS from CURRENCYY "
                             "where CURRENCY_ID = 0"),
                 QVariant(QStringLiteral("%1 %2").arg(roundDigits).arg(roundDigits > 0 ? 2 : 0)));
        QVERIFY(Setup::current().value("SETUP_INVOICE_CURR_TMPL_DIR").isNull());
        QVERIFY(Setup::current().value("SETUP_INVOICE_DIGEST").isNull());
        QCOMPARE(Setup::current().number("SETUP_INVOICE_LOGO_SIZE_PERCENT"), 10.0);
        QCOMPARE(Setup::current().number("SETUP_CHEQUE_MARGIN_TOP_MM"), 20.0);
    } else {
        QVERIFY(interaction.checkLists.isEmpty());
        QCOMPARE(Setup::current().text("SETUP_INVOICE_CURR_TMPL_DIR"), "sablon_2009");
    }
    // Orders of version 300 get line decimals from their own old rounding: 2 prints 2, 0 prints 0.
    const char* decimals = "ORDERHEAD_CURRENCY_LINE_TOTAL_ROUNDING_DECIMALS || ' ' || "
                           "ORDERHEAD_CURRENCY_LINE_TOTAL_PRINTING_DECIMALS";
    if (version <= 300) {
        QCOMPARE(Order(1, decimals), QVariant("2 2"));
        QCOMPARE(Order(2, decimals), QVariant("0 0"));
    } else {
        QVERIFY(Order(1, "ORDERHEAD_CURRENCY_LINE_TOTAL_PRINTING_DECIMALS").isNull());
    }
    Database::close();
}

void TestSchemaUpgrade::failureKeepsOriginal_data()
{
    QTest::addColumn<int>("version");
    QTest::addColumn<int>("recordedVersion"); // 0: as built
    QTest::addColumn<QString>("breakage");
    QTest::addColumn<int>("failingStep");
    QTest::addColumn<int>("cancelAfterChecks");
    QTest::addColumn<QStringList>("messages");
    const QString unable = "Unable to upgrade database.";
    const QString failed = kErrorUpgrading;
    const QString aborted = "Upgrading database aborted.";
    AddRow("first step fails", -1, 0, "", 1, -1, QStringList{unable, failed});
    // The file must come back without a version table, not at version 3.
    AddRow("U4 fails after U1-U3", -1, 0, "", 4, -1, QStringList{unable, failed});
    AddRow("last step of the whole chain fails", -1, 0, "", 6, -1, QStringList{unable, failed});
    AddRow("U6 from 301 fails", 301, 0, "", 6, -1, QStringList{unable, failed});
    AddRow("index to drop is missing", 3, 0, "partner index", 0, -1, QStringList{unable, failed});
    AddRow("old rounding setting is missing", 1, 0, "round digits", 0, -1,
           QStringList{"Unable to load rounding setup.", failed});
    // No step starts from a version the chain does not know, so the file never reaches 302.
    AddRow("unknown version", 3, 150, "", 0, -1, QStringList{unable, failed});
    AddRow("newer version", 301, 303, "", 0, -1,
           QStringList{"The database version is newer, than the version of the billing "
                       "software.&Upgrade the software to a newer version."});
    AddRow("safety copy cannot be made", 3, 0, "safety copy", 0, -1,
           QStringList{"Error backing up database file before upgrade."});
    AddRow("cancelled before the first step", -1, 0, "", 0, 0, QStringList{aborted});
    AddRow("cancelled before U4", -1, 0, "", 0, 3, QStringList{aborted});
    AddRow("payment method choice cancelled", -1, 0, "no answer", 0, -1,
           QStringList{"Operation aborted.", aborted});
}

void TestSchemaUpgrade::failureKeepsOriginal()
{
    QFETCH(int, version);
    QFETCH(int, recordedVersion);
    QFETCH(QString, breakage);
    QFETCH(int, failingStep);
    QFETCH(int, cancelAfterChecks);
    QFETCH(QStringList, messages);
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

void TestSchemaUpgrade::currentVersionOpensWithoutCopy()
{
    TestCompany company;
    QVERIFY(company.isValid());
    QVERIFY(ExecSql("update SETUP set SETUP_NAME = 'Jelen Kft.'"));
    ScriptedInteraction interaction;
    QVERIFY(PrepareDatabase(interaction).ok());
    QVERIFY(interaction.messages.isEmpty());
    QVERIFY(interaction.progressTexts.isEmpty());
    QVERIFY(!QFile::exists(DatabasePrepare::safetyCopyPath(company.path())));
    QCOMPARE(Setup::current().text("SETUP_NAME"), "Jelen Kft.");
}

void TestSchemaUpgrade::emptyFileGetsSchema()
{
    QVERIFY(Database::open(m_dir.filePath("new.db")));
    ScriptedInteraction interaction;
    QVERIFY(PrepareDatabase(interaction).ok());
    QVERIFY(interaction.progressTexts.contains("Creating database tables"));
    QVERIFY(interaction.progressTexts.contains("Creating database indexes"));
    QVERIFY(!interaction.progressTexts.contains("Upgrading database."));
    QCOMPARE(ReadDbVersion(), 302);
    QCOMPARE(IndexNames(), m_indexes);
    Database::close();
}

QTEST_GUILESS_MAIN(TestSchemaUpgrade)
#include "tst_schemaupgrade.moc"
