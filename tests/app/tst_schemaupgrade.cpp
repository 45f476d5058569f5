// Preparing a company file: new files get the schema, older ones are carried to the current
// version with their data intact, and any failure puts the original file back byte for byte.
#include "OldCompanyFile.h"
#include "ScriptedInteraction.h"
#include "TestCompany.h"

#include "app/Database.h"
#include "app/DatabasePrepare.h"
#include "app/Schema.h"
#include "app/Setup.h"
#include "app/SqlStatement.h"
#include "app/SqlValue.h"

#include <QDir>
#include <QSqlQuery>
#include <QtTest>

namespace {

const char kErrorUpgrading[] =
    "Error upgrading database.&You can uninstall current version of the software&and reinstall "
    "the previously used version to continue your work.&&Please report this problem to the "
    "developers.";
const char kAborted[] = "Upgrading database aborted.";

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
    QSqlQuery q(QStringLiteral("select name from sqlite_master where type = 'index' order by name"),
                Database::session());
    while (q.next())
        names << q.value(0).toString();
    return names;
}

QVariant Value(const QString& select, const QVariantList& binds = {})
{
    return SelectValue(select, binds);
}

// A column value of one order.
QVariant Order(int id, const char* column)
{
    return Value(QStringLiteral("select %1 from ORDERHEAD where ORDERHEAD_ID = ?")
                     .arg(QLatin1String(column)),
                 {id});
}

QVariant Method(const QString& name, const char* column)
{
    return Value(QStringLiteral("select %1 from PAYMENTMETHOD where PAYMENTMETHOD_NAME = ?")
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
    void failureRestoresOriginal_data();
    void failureRestoresOriginal();
    void cancelRestoresOriginal_data();
    void cancelRestoresOriginal();
    void newerVersionRefused();
    void currentVersionOpensWithoutCopy();
    void emptyFileGetsSchema();
    void safetyCopyThatCannotBeMade();

private:
    QString build(const OldCompanyFile& file);

    // Today's columns of every table and today's index names, from a new company file.
    QHash<QString, QStringList> m_columns;
    QStringList m_indexes;
    std::unique_ptr<QTemporaryDir> m_dir;
    int m_files = 0;
};

void TestSchemaUpgrade::initTestCase()
{
    TestCompany company;
    QVERIFY(company.isValid());
    const QStringList tables = Database::session().tables();
    for (const QString& table : tables)
        m_columns.insert(table, SortedColumns(table));
    m_indexes = IndexNames();
    QCOMPARE(m_indexes.size(), 37);
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(m_dir->isValid());
}

QString TestSchemaUpgrade::build(const OldCompanyFile& file)
{
    const QString path = m_dir->filePath(QStringLiteral("old%1.db").arg(++m_files));
    return file.build(path) ? path : QString();
}

void TestSchemaUpgrade::wholeChain_data()
{
    QTest::addColumn<int>("version");
    QTest::addColumn<int>("roundDigits");
    QTest::newRow("no version") << -1 << 0;
    QTest::newRow("1") << 1 << 2;
    QTest::newRow("2") << 2 << 1;
    QTest::newRow("3") << 3 << 1;
    QTest::newRow("300") << 300 << 1;
    QTest::newRow("301") << 301 << 1;
}

void TestSchemaUpgrade::wholeChain()
{
    QFETCH(int, version);
    QFETCH(int, roundDigits);
    OldCompanyFile file;
    file.version = version;
    file.roundDigits = roundDigits;
    const QString path = build(file);
    QVERIFY(!path.isEmpty());
    const QByteArray original = FileBytes(path);

    ScriptedInteraction interaction;
    // Of the methods on orders (sorted: "Csekk", "Készpénz", "Átutalás") bank transfers are unpaid.
    interaction.checkAnswers.enqueue(QList<bool>{false, false, true});
    QVERIFY(Database::open(path));
    const Result r = PrepareDatabase(interaction);
    QVERIFY2(r.ok(), qPrintable(r.message() + u' ' + r.sqlError() + u' ' + r.statement()));
    QVERIFY(interaction.messages.isEmpty());
    QVERIFY(interaction.progressTexts.contains(QStringLiteral("Upgrading database.")));
    QCOMPARE(FileBytes(DatabasePrepare::safetyCopyPath(path)), original);
    QCOMPARE(ReadDbVersion(), 302);

    // The same tables, columns and indexes as a new file; the unused legacy columns stay.
    for (auto it = m_columns.cbegin(); it != m_columns.cend(); ++it) {
        QStringList expected = it.value();
        if (it.key() == QLatin1String("ORDERHEAD"))
            expected << QStringLiteral("ORDERHEAD_ITEM_ROUND_DIGITS");
        if (it.key() == QLatin1String("SETUP"))
            expected << QStringLiteral("SETUP_ITEM_ROUND_DIGITS");
        expected.sort();
        QCOMPARE(SortedColumns(it.key()), expected);
    }
    QCOMPARE(IndexNames(), m_indexes);

    QCOMPARE(Setup::current().text("SETUP_NAME"), QStringLiteral("Régi Kereskedő Kft."));
    QCOMPARE(Value(QStringLiteral("select count(*) from ORDERHEAD")).toInt(), 6);
    QCOMPARE(Value(QStringLiteral("select sum(ORDERITEM_TOTAL_GROSS) from ORDERITEM")).toDouble(),
             11750.0);
    QCOMPARE(Value(QStringLiteral("select count(*) from ORDERLABELTRANSLATION")).toInt(), 131);
    QCOMPARE(Value(QStringLiteral("select ORDERLABELTRANSLATION_TEXT from ORDERLABELTRANSLATION "
                                  "where ORDERLABELTRANSLATION_KEY = 'TR_PAYMENT_METHOD' and "
                                  "ORDERLABELTRANSLATION_LANG_ID = 0")),
             QVariant(QStringLiteral("Fizetési mód")));
    QCOMPARE(
        Value(QStringLiteral("select count(*) from CURRENCYY where CURRENCY_BANK_BY_SETUP = '1'"))
            .toInt(),
        3);

    if (version < 1) {
        QCOMPARE(Method(QStringLiteral("Készpénz"), "PAYMENTMETHOD_ROUND_TO_5"),
                 QVariant(QStringLiteral("1")));
        QCOMPARE(Method(QStringLiteral("Utánvét"), "PAYMENTMETHOD_ROUND_TO_5"),
                 QVariant(QStringLiteral("0")));
        QCOMPARE(Order(1, "ORDERHEAD_TOTAL_ROUNDING_DIFFERENCE").toDouble(), 0.0);
    }
    // Lines of older files take their order's shipping date; later ones keep their own.
    QCOMPARE(
        Value(QStringLiteral("select ORDERITEM_DATE_SHIPPED from ORDERITEM where ORDERITEM_ID = 2"))
            .toString(),
        version < 2 ? QStringLiteral("2009-03-02") : QStringLiteral("2009-02-27"));
    QCOMPARE(
        Value(QStringLiteral("select ORDERITEM_DATE_SHIPPED from ORDERITEM where ORDERITEM_ID = 4"))
            .toString(),
        version < 2 ? QStringLiteral("2009-04-01") : QStringLiteral("2009-02-27"));
    if (version < 2)
        QCOMPARE(Order(6, "ORDERHEAD_CONSOLIDATED_INVOICE"), QVariant(QStringLiteral("0")));
    if (version < 3) {
        QVERIFY(Setup::current()
                    .text("SETUP_DOWNLOAD_PARTNER_URL")
                    .endsWith(QLatin1String("/partner.php")));
        QCOMPARE(Setup::current().integer("SETUP_DOWNLOAD_MAX_PARTNERS"), 1000);
    }

    if (version < 300) {
        const QStringList methodsOnOrders{QStringLiteral("Csekk"), QStringLiteral("Készpénz"),
                                          QStringLiteral("Átutalás")};
        QCOMPARE(interaction.checkLists, QList<QStringList>{methodsOnOrders});
        // Paid on issue unless bank transfer, cheque or a due date; cheques only for "Csekk".
        const QList<QPair<QString, bool>> paid = {{QStringLiteral("Készpénz"), true},
                                                  {QStringLiteral("Átutalás"), false},
                                                  {QStringLiteral("Csekk"), false},
                                                  {QStringLiteral("Utánvét"), true},
                                                  {QStringLiteral("Halasztott fizetés"), false}};
        for (const auto& [name, isPaid] : paid) {
            QCOMPARE(IsFlagSet(Method(name, "PAYMENTMETHOD_PAID")), isPaid);
            QCOMPARE(IsFlagSet(Method(name, "PAYMENTMETHOD_CHEQUE")),
                     name == QLatin1String("Csekk"));
        }
        // Only the issued, uncancelled bank-transfer invoice becomes unpaid, for its gross total.
        QCOMPARE(Order(1, "ORDERHEAD_PAID"), QVariant(QStringLiteral("0")));
        QCOMPARE(Order(1, "ORDERHEAD_UNPAID_TOTAL").toDouble(), 1250.0);
        QCOMPARE(Order(1, "ORDERHEAD_PAYMENTMETHOD_PAID"), QVariant(QStringLiteral("0")));
        for (int id : {2, 3, 4, 5, 6}) {
            QCOMPARE(Order(id, "ORDERHEAD_PAID"), QVariant(QStringLiteral("1")));
            QCOMPARE(Order(id, "ORDERHEAD_UNPAID_TOTAL").toDouble(), 0.0);
        }
        QCOMPARE(Order(5, "ORDERHEAD_PARTNER_COUNTRY_INTERNATIONAL_CODE"),
                 QVariant(QStringLiteral("HUN")));
        QCOMPARE(Order(5, "ORDERHEAD_PARTNER_MAIL_ADDRESS"), QVariant(QStringLiteral("Fő u. 1.")));
        QCOMPARE(Order(5, "ORDERHEAD_CURRENCY_ABBREVIATION"), QVariant(QStringLiteral("Ft")));
        QCOMPARE(Order(5, "ORDERHEAD_TOTAL_LOCAL_CURRENCY_GROSS").toDouble(), -2500.0);
        QCOMPARE(Value(QStringLiteral(
                           "select ORDERITEM_LIST_PRICE from ORDERITEM where ORDERITEM_ID = 1"))
                     .toDouble(),
                 12.0);
        QCOMPARE(
            Value(QStringLiteral("select PARTNER_MAIL_CITY from PARTNER where PARTNER_ID = 2")),
            QVariant(QStringLiteral("Debrecen")));
        // The company's old line rounding moves to the forint.
        QCOMPARE(Value(QStringLiteral("select CURRENCY_LINE_TOTAL_ROUNDING_DECIMALS from CURRENCYY "
                                      "where CURRENCY_ID = 0"))
                     .toInt(),
                 roundDigits);
        QCOMPARE(Value(QStringLiteral("select CURRENCY_LINE_TOTAL_PRINTING_DECIMALS from CURRENCYY "
                                      "where CURRENCY_ID = 0"))
                     .toInt(),
                 roundDigits > 0 ? 2 : 0);
        QVERIFY(Setup::current().value("SETUP_INVOICE_CURR_TMPL_DIR").isNull());
        QVERIFY(Setup::current().value("SETUP_INVOICE_DIGEST").isNull());
        QCOMPARE(Setup::current().number("SETUP_INVOICE_LOGO_SIZE_PERCENT"), 10.0);
        QCOMPARE(Setup::current().number("SETUP_CHEQUE_MARGIN_TOP_MM"), 20.0);
    } else {
        QVERIFY(interaction.checkLists.isEmpty());
        QCOMPARE(Setup::current().text("SETUP_INVOICE_CURR_TMPL_DIR"),
                 QStringLiteral("sablon_2009"));
    }
    // Orders of version 300 get line decimals from their own old rounding: 2 prints 2, 0 prints 0.
    if (version <= 300) {
        QCOMPARE(Order(1, "ORDERHEAD_CURRENCY_LINE_TOTAL_ROUNDING_DECIMALS").toInt(), 2);
        QCOMPARE(Order(1, "ORDERHEAD_CURRENCY_LINE_TOTAL_PRINTING_DECIMALS").toInt(), 2);
        QCOMPARE(Order(2, "ORDERHEAD_CURRENCY_LINE_TOTAL_ROUNDING_DECIMALS").toInt(), 0);
        QCOMPARE(Order(2, "ORDERHEAD_CURRENCY_LINE_TOTAL_PRINTING_DECIMALS").toInt(), 0);
    } else {
        QVERIFY(Order(1, "ORDERHEAD_CURRENCY_LINE_TOTAL_PRINTING_DECIMALS").isNull());
    }
    Database::close();
}

void TestSchemaUpgrade::failureRestoresOriginal_data()
{
    QTest::addColumn<int>("version");
    QTest::addColumn<int>("failingStep");
    QTest::addColumn<bool>("withoutPartnerNameIndex");
    QTest::addColumn<bool>("withoutRoundDigits");
    QTest::addColumn<QString>("stepMessage");
    QTest::addColumn<int>("recordedVersion");
    const QString unable = QStringLiteral("Unable to upgrade database.");
    QTest::newRow("first step") << -1 << 1 << false << false << unable << 0;
    // The file must come back without a version table, not at version 3.
    QTest::newRow("U4 after U1-U3") << -1 << 4 << false << false << unable << 0;
    QTest::newRow("last step of the whole chain") << -1 << 6 << false << false << unable << 0;
    QTest::newRow("U5 from 2") << 2 << 5 << false << false << unable << 0;
    QTest::newRow("U6 from 301") << 301 << 6 << false << false << unable << 0;
    QTest::newRow("index to drop is missing") << 3 << 0 << true << false << unable << 0;
    QTest::newRow("old rounding setting is missing")
        << 1 << 0 << false << true << QStringLiteral("Unable to load rounding setup.") << 0;
    // No step starts from a version the chain does not know, so the file never reaches 302.
    QTest::newRow("unknown version") << 3 << 0 << false << false << unable << 150;
}

void TestSchemaUpgrade::failureRestoresOriginal()
{
    QFETCH(int, version);
    QFETCH(int, failingStep);
    QFETCH(bool, withoutPartnerNameIndex);
    QFETCH(bool, withoutRoundDigits);
    QFETCH(QString, stepMessage);
    QFETCH(int, recordedVersion);
    OldCompanyFile file;
    file.version = version;
    file.withoutPartnerNameIndex = withoutPartnerNameIndex;
    file.withoutRoundDigits = withoutRoundDigits;
    const QString path = build(file);
    QVERIFY(!path.isEmpty());
    if (recordedVersion) {
        QVERIFY(Database::open(path));
        QVERIFY(ExecSql(QStringLiteral("update DBVERSION set VERSION = ?"), {recordedVersion}));
        Database::close();
    }
    const QByteArray original = FileBytes(path);

    ScriptedInteraction interaction;
    interaction.checkAnswers.enqueue(QList<bool>{true, true, true});
    QVERIFY(Database::open(path));
    DatabasePrepare prepare(interaction);
    prepare.setFailingStep(failingStep);
    const Result r = prepare.run();
    QVERIFY(!r.ok());
    QCOMPARE(r.message(), QString::fromLatin1(kErrorUpgrading));
    QCOMPARE(Texts(interaction), QStringList({stepMessage, QString::fromLatin1(kErrorUpgrading)}));
    QVERIFY(!Database::isOpen());
    QCOMPARE(FileBytes(path), original);
    QVERIFY(!QFile::exists(DatabasePrepare::safetyCopyPath(path)));
    QVERIFY(!QFile::exists(path + QLatin1String("-journal")));
}

void TestSchemaUpgrade::cancelRestoresOriginal_data()
{
    QTest::addColumn<int>("cancelAfterChecks");
    QTest::addColumn<bool>("answerPaymentMethods");
    QTest::addColumn<QStringList>("messages");
    const QString aborted = QString::fromLatin1(kAborted);
    QTest::newRow("before the first step") << 0 << true << QStringList{aborted};
    QTest::newRow("before U4") << 3 << true << QStringList{aborted};
    QTest::newRow("payment method choice")
        << -1 << false << QStringList{QStringLiteral("Operation aborted."), aborted};
}

void TestSchemaUpgrade::cancelRestoresOriginal()
{
    QFETCH(int, cancelAfterChecks);
    QFETCH(bool, answerPaymentMethods);
    QFETCH(QStringList, messages);
    OldCompanyFile file;
    const QString path = build(file);
    QVERIFY(!path.isEmpty());
    const QByteArray original = FileBytes(path);

    ScriptedInteraction interaction;
    interaction.cancelAfterChecks = cancelAfterChecks;
    if (answerPaymentMethods)
        interaction.checkAnswers.enqueue(QList<bool>{false, false, false});
    QVERIFY(Database::open(path));
    QVERIFY(!PrepareDatabase(interaction).ok());
    QCOMPARE(Texts(interaction), messages);
    QCOMPARE(FileBytes(path), original);
    QVERIFY(!QFile::exists(DatabasePrepare::safetyCopyPath(path)));
}

void TestSchemaUpgrade::newerVersionRefused()
{
    QString path;
    {
        TestCompany company;
        QVERIFY(company.isValid());
        QVERIFY(ExecSql(QStringLiteral("update DBVERSION set VERSION = 303")));
        Database::close();
        path = m_dir->filePath(QStringLiteral("newer.db"));
        QVERIFY(QFile::copy(company.path(), path));
    }
    const QByteArray original = FileBytes(path);
    ScriptedInteraction interaction;
    QVERIFY(Database::open(path));
    QVERIFY(!PrepareDatabase(interaction).ok());
    QCOMPARE(
        Texts(interaction),
        QStringList{QStringLiteral("The database version is newer, than the version of the "
                                   "billing software.&Upgrade the software to a newer version.")});
    QVERIFY(!Database::isOpen());
    QCOMPARE(FileBytes(path), original);
    QVERIFY(!QFile::exists(DatabasePrepare::safetyCopyPath(path)));
}

void TestSchemaUpgrade::currentVersionOpensWithoutCopy()
{
    TestCompany company;
    QVERIFY(company.isValid());
    QVERIFY(ExecSql(QStringLiteral("update SETUP set SETUP_NAME = 'Jelen Kft.'")));
    ScriptedInteraction interaction;
    QVERIFY(PrepareDatabase(interaction).ok());
    QVERIFY(interaction.messages.isEmpty());
    QVERIFY(interaction.progressTexts.isEmpty());
    QVERIFY(!QFile::exists(DatabasePrepare::safetyCopyPath(company.path())));
    QCOMPARE(Setup::current().text("SETUP_NAME"), QStringLiteral("Jelen Kft."));
}

void TestSchemaUpgrade::emptyFileGetsSchema()
{
    const QString path = m_dir->filePath(QStringLiteral("new.db"));
    QVERIFY(Database::open(path));
    ScriptedInteraction interaction;
    QVERIFY(PrepareDatabase(interaction).ok());
    QVERIFY(interaction.progressTexts.contains(QStringLiteral("Creating database tables")));
    QVERIFY(interaction.progressTexts.contains(QStringLiteral("Creating database indexes")));
    QVERIFY(!interaction.progressTexts.contains(QStringLiteral("Upgrading database.")));
    QCOMPARE(ReadDbVersion(), 302);
    QCOMPARE(IndexNames(), m_indexes);
    Database::close();
}

void TestSchemaUpgrade::safetyCopyThatCannotBeMade()
{
    OldCompanyFile file;
    file.version = 3;
    const QString path = build(file);
    QVERIFY(!path.isEmpty());
    const QByteArray original = FileBytes(path);
    // A folder where the copy should go cannot be overwritten.
    QVERIFY(QDir().mkpath(DatabasePrepare::safetyCopyPath(path)));
    ScriptedInteraction interaction;
    QVERIFY(Database::open(path));
    QVERIFY(!PrepareDatabase(interaction).ok());
    QCOMPARE(Texts(interaction),
             QStringList{QStringLiteral("Error backing up database file before upgrade.")});
    QCOMPARE(FileBytes(path), original);
}

QTEST_GUILESS_MAIN(TestSchemaUpgrade)
#include "tst_schemaupgrade.moc"
