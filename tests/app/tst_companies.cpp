// Company databases of the database folder: which files count, which are offered, when the
// program chooses without asking, creating a company, and changing to another one.
#include "ScriptedInteraction.h"
#include "TestCompany.h"

#include "app/CompanyChoice.h"
#include "app/CompanyCreate.h"
#include "app/Database.h"
#include "app/DatabasePrepare.h"
#include "app/Setup.h"
#include "app/SqlStatement.h"
#include "documents/LabelTranslations.h"

#include <QDir>
#include <QFileInfo>
#include <QtTest>

namespace {

QStringList FileNames(const QStringList& paths)
{
    QStringList names;
    for (const QString& path : paths)
        names << QFileInfo(path).fileName();
    return names;
}

// A selector that records what it was offered and picks the file named pick (none: cancel).
struct RecordingSelector
{
    QString pick;
    QList<QStringList> offered;

    CompanySelector function()
    {
        return [this](const QList<CompanyEntry>& entries) -> std::optional<QString> {
            QStringList names;
            for (const CompanyEntry& e : entries)
                names << e.fileName() + u':' + e.name;
            offered << names;
            for (const CompanyEntry& e : entries) {
                if (e.fileName() == pick)
                    return e.path;
            }
            return std::nullopt;
        };
    }
};

} // namespace

class TestCompanies : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void discovery_data();
    void discovery();
    void startupChoice_data();
    void startupChoice();
    void commandLinePath();
    void entriesReadWithoutDisturbingSession();
    void fileNames_data();
    void fileNames();
    void createCompany();
    void createRefusals_data();
    void createRefusals();
    void changeCompany_data();
    void changeCompany();
    void changeToUnusableFileKeepsCurrent();
    void changeFromDemoToTheOnlyCompany();
    void invoiceLabelsFollowTheCompany();

private:
    QString folder() const { return m_dir->path(); }
    // A company file made by the program itself.
    QString company(const QString& name, const QString& taxNo, const QString& file = {});
    void touch(const QString& name);

    std::unique_ptr<QTemporaryDir> m_dir;
    ScriptedInteraction m_silent;
};

void TestCompanies::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(m_dir->isValid());
}

void TestCompanies::cleanup()
{
    Database::close();
    m_dir.reset();
}

QString TestCompanies::company(const QString& name, const QString& taxNo, const QString& file)
{
    NewCompany c;
    c.name = name;
    c.taxNo = taxNo;
    c.city = QStringLiteral("Budapest");
    c.fileName = file;
    QString path;
    const Result r = CreateCompany(c, folder(), m_silent, &path);
    if (!r)
        qWarning("%s %s", qPrintable(r.message()), qPrintable(r.sqlError()));
    return path;
}

void TestCompanies::touch(const QString& name)
{
    QFile f(QDir(folder()).filePath(name));
    QVERIFY(f.open(QIODevice::WriteOnly));
}

void TestCompanies::discovery_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QStringList>("companies");
    QTest::addColumn<QStringList>("offered");
    const QString demo = QStringLiteral("demo.db");
    QTest::newRow("empty") << QStringList{} << QStringList{} << QStringList{};
    QTest::newRow("hidden, too short and other files are ignored")
        << QStringList{QStringLiteral(".db"), QStringLiteral(".rejtett.db"), QStringLiteral("a.db"),
                       QStringLiteral("ceg.db.bak"), QStringLiteral("jegyzet.txt")}
        << QStringList{QStringLiteral("a.db")} << QStringList{QStringLiteral("a.db")};
    QTest::newRow("only the demonstration company")
        << QStringList{demo} << QStringList{demo} << QStringList{demo};
    QTest::newRow("demo hidden beside a company") << QStringList{demo, QStringLiteral("kovacs.db")}
                                                  << QStringList{demo, QStringLiteral("kovacs.db")}
                                                  << QStringList{QStringLiteral("kovacs.db")};
    QTest::newRow("demo hidden beside two companies")
        << QStringList{QStringLiteral("szabo.db"), demo, QStringLiteral("kovacs.db")}
        << QStringList{demo, QStringLiteral("kovacs.db"), QStringLiteral("szabo.db")}
        << QStringList{QStringLiteral("kovacs.db"), QStringLiteral("szabo.db")};
}

void TestCompanies::discovery()
{
    QFETCH(QStringList, files);
    QFETCH(QStringList, companies);
    QFETCH(QStringList, offered);
    for (const QString& f : files)
        touch(f);
    QVERIFY(QDir(folder()).mkdir(QStringLiteral("mappa.db")));
    const QStringList found = CompanyFiles(folder());
    QCOMPARE(FileNames(found), companies);
    QCOMPARE(FileNames(OfferedCompanyFiles(found)), offered);
}

void TestCompanies::startupChoice_data()
{
    QTest::addColumn<QStringList>("companies");
    QTest::addColumn<QString>("pick");
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<QStringList>("offered");
    QTest::addColumn<QStringList>("messages");
    QTest::newRow("no files") << QStringList{} << QString() << QString() << QStringList{}
                              << QStringList{QStringLiteral(
                                     "Missing database files. Maybe you have to reinstall the "
                                     "application.")};
    QTest::newRow("only demo, no dialog")
        << QStringList{QStringLiteral("demo")} << QString() << QStringLiteral("demo.db")
        << QStringList{} << QStringList{};
    QTest::newRow("demo and one company, no dialog")
        << QStringList{QStringLiteral("demo"), QStringLiteral("Kovács Bt.")} << QString()
        << QStringLiteral("kovacs_bt.db") << QStringList{} << QStringList{};
    QTest::newRow("demo and two companies: dialog without demo")
        << QStringList{QStringLiteral("demo"), QStringLiteral("Kovács Bt."),
                       QStringLiteral("Szabó Kft.")}
        << QStringLiteral("szabo_kft.db") << QStringLiteral("szabo_kft.db")
        << QStringList{QStringLiteral("kovacs_bt.db:Kovács Bt."),
                       QStringLiteral("szabo_kft.db:Szabó Kft.")}
        << QStringList{};
    QTest::newRow("dialog cancelled")
        << QStringList{QStringLiteral("Kovács Bt."), QStringLiteral("Szabó Kft.")} << QString()
        << QString()
        << QStringList{QStringLiteral("kovacs_bt.db:Kovács Bt."),
                       QStringLiteral("szabo_kft.db:Szabó Kft.")}
        << QStringList{};
}

void TestCompanies::startupChoice()
{
    QFETCH(QStringList, companies);
    QFETCH(QString, pick);
    QFETCH(QString, chosen);
    QFETCH(QStringList, offered);
    QFETCH(QStringList, messages);
    int tax = 10;
    for (const QString& name : companies) {
        const bool demo = name == QLatin1String("demo");
        QVERIFY(!company(demo ? QStringLiteral("Minta Kft.") : name,
                         QStringLiteral("1111%1-2-41").arg(++tax),
                         demo ? QStringLiteral("demo.db") : QString())
                     .isEmpty());
    }
    RecordingSelector selector;
    selector.pick = pick;
    ScriptedInteraction interaction;
    const QString path = ChooseStartupDatabase({}, folder(), interaction, selector.function());
    QCOMPARE(QFileInfo(path).fileName(), chosen);
    QCOMPARE(selector.offered.isEmpty() ? QStringList{} : selector.offered.first(), offered);
    QCOMPARE(interaction.messages.size(), messages.size());
    if (!messages.isEmpty())
        QCOMPARE(interaction.lastMessage(), messages.first());
}

void TestCompanies::commandLinePath()
{
    QVERIFY(!company(QStringLiteral("Kovács Bt."), QStringLiteral("11111111-2-41")).isEmpty());
    QVERIFY(!company(QStringLiteral("Szabó Kft."), QStringLiteral("22222222-2-42")).isEmpty());
    RecordingSelector selector;
    ScriptedInteraction interaction;
    const QString given = QDir(folder()).filePath(QStringLiteral("szabo_kft.db"));
    QCOMPARE(ChooseStartupDatabase(given, folder(), interaction, selector.function()), given);
    QVERIFY(selector.offered.isEmpty());

    const QString missing = QDir(folder()).filePath(QStringLiteral("nincs.db"));
    QVERIFY(ChooseStartupDatabase(missing, folder(), interaction, selector.function()).isEmpty());
    QCOMPARE(interaction.lastMessage(), missing + QLatin1String(" does not exists."));
    QVERIFY(!QFile::exists(missing));
}

void TestCompanies::entriesReadWithoutDisturbingSession()
{
    const QString kovacs = company(QStringLiteral("Kovács Bt."), QStringLiteral("11111111-2-41"));
    QVERIFY(!kovacs.isEmpty());
    NewCompany szabo;
    szabo.name = QStringLiteral("Szabó Kft.");
    szabo.taxNo = QStringLiteral("22222222-2-42");
    szabo.zip = QStringLiteral("4025");
    szabo.city = QStringLiteral("Debrecen");
    szabo.address = QStringLiteral("Piac u. 20.");
    QString szaboPath;
    QVERIFY(CreateCompany(szabo, folder(), m_silent, &szaboPath));
    const QByteArray before = [&] {
        QFile f(szaboPath);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }();

    QVERIFY(Database::open(kovacs));
    const CompanyEntry entry = ReadCompanyEntry(szaboPath);
    QCOMPARE(QStringList({entry.name, entry.zip, entry.city, entry.address, entry.taxNo}),
             QStringList({szabo.name, szabo.zip, szabo.city, szabo.address, szabo.taxNo}));
    QCOMPARE(Database::path(), kovacs);
    QCOMPARE(SelectValue(QStringLiteral("select SETUP_NAME from SETUP")).toString(),
             QStringLiteral("Kovács Bt."));
    QFile f(szaboPath);
    QVERIFY(f.open(QIODevice::ReadOnly));
    QCOMPARE(f.readAll(), before);

    // A file that is not a company database lists with empty data.
    touch(QStringLiteral("ures.db"));
    QVERIFY(ReadCompanyEntry(QDir(folder()).filePath(QStringLiteral("ures.db"))).name.isEmpty());
}

void TestCompanies::fileNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("file");
    QTest::newRow("plain") << QStringLiteral("Minta Kft.") << QStringLiteral("minta_kft.db");
    QTest::newRow("accents folded") << QStringLiteral("Árvíztűrő Tükörfúrógép Zrt.")
                                    << QStringLiteral("arvizturo_tukorfurogep_zrt.db");
    QTest::newRow("taken name gets a number")
        << QStringLiteral("Kovács Bt.") << QStringLiteral("kovacs_bt_2.db");
    QTest::newRow("demonstration name kept free")
        << QStringLiteral("Demo") << QStringLiteral("demo_2.db");
    QTest::newRow("nothing usable") << QStringLiteral("???") << QStringLiteral("company.db");
}

void TestCompanies::fileNames()
{
    QFETCH(QString, name);
    QFETCH(QString, file);
    touch(QStringLiteral("kovacs_bt.db"));
    QCOMPARE(CompanyFileName(name, folder()), file);
}

void TestCompanies::createCompany()
{
    const QString current = company(QStringLiteral("Kovács Bt."), QStringLiteral("11111111-2-41"));
    QVERIFY(Database::open(current));
    const QString path =
        company(QStringLiteral("Szabó és Társa Kft."), QStringLiteral("22222222-2-42"));
    QCOMPARE(QFileInfo(path).fileName(), QStringLiteral("szabo_es_tarsa_kft.db"));
    // The open company stays the current session.
    QCOMPARE(Database::path(), current);
    QCOMPARE(SelectValue(QStringLiteral("select SETUP_NAME from SETUP")).toString(),
             QStringLiteral("Kovács Bt."));

    ScriptedInteraction interaction;
    QVERIFY(OpenCompany(path, interaction));
    QVERIFY(interaction.messages.isEmpty());
    QCOMPARE(ReadDbVersion(), 302);
    QCOMPARE(Setup::current().text("SETUP_NAME"), QStringLiteral("Szabó és Társa Kft."));
    QCOMPARE(Setup::current().text("SETUP_TAX_NO"), QStringLiteral("22222222-2-42"));
    QCOMPARE(Setup::current().text("SETUP_CITY"), QStringLiteral("Budapest"));
}

void TestCompanies::createRefusals_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("taxNo");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("message");
    const QString existingTax =
        QStringLiteral("It is not possible to create a new database with an existing tax no.");
    QTest::newRow("same tax number") << QStringLiteral("Másik Kft.")
                                     << QStringLiteral("11111111-2-41") << QString() << existingTax;
    QTest::newRow("same tax number written differently")
        << QStringLiteral("Másik Kft.") << QStringLiteral(" 11111111 2 41") << QString()
        << existingTax;
    QTest::newRow("tax number of the demonstration company")
        << QStringLiteral("Másik Kft.") << QStringLiteral("12345676-2-41") << QString()
        << existingTax;
    QTest::newRow("no name") << QStringLiteral("  ") << QStringLiteral("33333333-2-43") << QString()
                             << QStringLiteral("Name field must have a value.");
    QTest::newRow("no tax number") << QStringLiteral("Másik Kft.") << QString() << QString()
                                   << QStringLiteral("Tax No field must have a value.");
    QTest::newRow("file exists") << QStringLiteral("Másik Kft.") << QStringLiteral("33333333-2-43")
                                 << QStringLiteral("kovacs_bt.db")
                                 << QStringLiteral("kovacs_bt.db already exists.");
    QTest::newRow("file would be hidden")
        << QStringLiteral("Másik Kft.") << QStringLiteral("33333333-2-43")
        << QStringLiteral(".masik.db")
        << QStringLiteral(
               "The file name must end with \".db\", be longer than three characters and "
               "must not begin with \".\".");
}

void TestCompanies::createRefusals()
{
    QFETCH(QString, name);
    QFETCH(QString, taxNo);
    QFETCH(QString, file);
    QFETCH(QString, message);
    QVERIFY(!company(QStringLiteral("Kovács Bt."), QStringLiteral("11111111-2-41")).isEmpty());
    QVERIFY(CreateDemoCompany(folder(), m_silent));
    NewCompany c;
    c.name = name;
    c.taxNo = taxNo;
    c.fileName = file;
    QString path;
    const Result r = CreateCompany(c, folder(), m_silent, &path);
    QCOMPARE(r.message(), message);
    QVERIFY(path.isEmpty());
    QCOMPARE(FileNames(CompanyFiles(folder())),
             QStringList({QStringLiteral("demo.db"), QStringLiteral("kovacs_bt.db")}));
}

void TestCompanies::changeCompany_data()
{
    QTest::addColumn<QStringList>("companies");
    QTest::addColumn<QString>("pick");
    QTest::addColumn<bool>("changed");
    QTest::addColumn<QString>("message");
    QTest::newRow("no databases") << QStringList{} << QString() << false
                                  << QStringLiteral("Error: there are no databases.");
    QTest::newRow("only one beside the demo")
        << QStringList{QStringLiteral("demo"), QStringLiteral("Kovács Bt.")} << QString() << false
        << QStringLiteral("There is only one database.");
    QTest::newRow("dialog cancelled")
        << QStringList{QStringLiteral("Kovács Bt."), QStringLiteral("Szabó Kft.")} << QString()
        << false << QString();
    QTest::newRow("changed") << QStringList{QStringLiteral("Kovács Bt."),
                                            QStringLiteral("Szabó Kft.")}
                             << QStringLiteral("szabo_kft.db") << true
                             << QStringLiteral(
                                    "Database/company changed successfully to:&Szabó Kft.");
}

void TestCompanies::changeCompany()
{
    QFETCH(QStringList, companies);
    QFETCH(QString, pick);
    QFETCH(bool, changed);
    QFETCH(QString, message);
    int tax = 10;
    QString first;
    for (const QString& name : companies) {
        const bool demo = name == QLatin1String("demo");
        const QString path = company(demo ? QStringLiteral("Minta Kft.") : name,
                                     QStringLiteral("1111%1-2-41").arg(++tax),
                                     demo ? QStringLiteral("demo.db") : QString());
        QVERIFY(!path.isEmpty());
        if (first.isEmpty() && !demo)
            first = path;
    }
    ScriptedInteraction interaction;
    if (!first.isEmpty())
        QVERIFY(OpenCompany(first, interaction));
    RecordingSelector selector;
    selector.pick = pick;
    QCOMPARE(ChangeCompanyDatabase(folder(), interaction, selector.function()), changed);
    QCOMPARE(interaction.lastMessage(), message);
    if (changed)
        QCOMPARE(QFileInfo(Database::path()).fileName(), pick);
    else if (!first.isEmpty())
        QCOMPARE(Database::path(), first);
}

void TestCompanies::changeToUnusableFileKeepsCurrent()
{
    const QString kovacs = company(QStringLiteral("Kovács Bt."), QStringLiteral("11111111-2-41"));
    const QString szabo = company(QStringLiteral("Szabó Kft."), QStringLiteral("22222222-2-42"));
    QVERIFY(Database::open(szabo));
    QVERIFY(ExecSql(QStringLiteral("update DBVERSION set VERSION = 303")));
    ScriptedInteraction interaction;
    QVERIFY(OpenCompany(kovacs, interaction));
    RecordingSelector selector;
    selector.pick = QStringLiteral("szabo_kft.db");
    QVERIFY(!ChangeCompanyDatabase(folder(), interaction, selector.function()));
    QVERIFY(interaction.lastMessage().startsWith(QLatin1String("The database version is newer")));
    QVERIFY(Database::isOpen());
    QCOMPARE(Database::path(), kovacs);
    QCOMPARE(Setup::current().text("SETUP_NAME"), QStringLiteral("Kovács Bt."));
}

// Right after the first real company is made, the demonstration company may still be open: the
// new company, the only one offered, is not "only one database" to change to.
void TestCompanies::changeFromDemoToTheOnlyCompany()
{
    QVERIFY(CreateDemoCompany(folder(), m_silent));
    const QString kovacs = company(QStringLiteral("Kovács Bt."), QStringLiteral("11111111-2-41"));
    ScriptedInteraction interaction;
    QVERIFY(OpenCompany(QDir(folder()).filePath(QStringLiteral("demo.db")), interaction));
    RecordingSelector selector;
    selector.pick = QStringLiteral("kovacs_bt.db");
    QVERIFY(ChangeCompanyDatabase(folder(), interaction, selector.function()));
    QCOMPARE(selector.offered, QList<QStringList>{{QStringLiteral("kovacs_bt.db:Kovács Bt.")}});
    QCOMPARE(Database::path(), kovacs);

    // Now it is the one open: nothing to change to.
    QVERIFY(!ChangeCompanyDatabase(folder(), interaction, selector.function()));
    QCOMPARE(interaction.lastMessage(), QStringLiteral("There is only one database."));
    QCOMPARE(selector.offered.size(), 1);
}

// Invoices must be printed with the labels of the company they are issued in; a company whose
// labels cannot be read is not opened.
void TestCompanies::invoiceLabelsFollowTheCompany()
{
    const QString key = QStringLiteral("TR_PAYMENT_METHOD");
    const QString kovacs = company(QStringLiteral("Kovács Bt."), QStringLiteral("11111111-2-41"));
    const QString szabo = company(QStringLiteral("Szabó Kft."), QStringLiteral("22222222-2-42"));
    const QString broken = company(QStringLiteral("Hibás Kft."), QStringLiteral("33333333-2-43"));
    QVERIFY(Database::open(szabo));
    QVERIFY(ExecSql(QStringLiteral("update ORDERLABELTRANSLATION set ORDERLABELTRANSLATION_TEXT = "
                                   "? where ORDERLABELTRANSLATION_KEY = ? and "
                                   "ORDERLABELTRANSLATION_LANG_ID = 0"),
                    {QStringLiteral("Fizetés módja"), key}));
    QVERIFY(Database::open(broken));
    QVERIFY(ExecSql(QStringLiteral("drop table ORDERLABELTRANSLATION")));

    ScriptedInteraction interaction;
    QVERIFY(OpenCompany(kovacs, interaction));
    QCOMPARE(LabelTranslations::current().Get(key, 0), QStringLiteral("Fizetési mód"));
    RecordingSelector selector;
    selector.pick = QStringLiteral("szabo_kft.db");
    QVERIFY(ChangeCompanyDatabase(folder(), interaction, selector.function()));
    QCOMPARE(LabelTranslations::current().Get(key, 0), QStringLiteral("Fizetés módja"));

    QVERIFY(!OpenCompany(broken, interaction));
    QCOMPARE(interaction.lastMessage(),
             QStringLiteral("Unable to load invoice label translations."));
    QVERIFY(!Database::isOpen());
}

QTEST_GUILESS_MAIN(TestCompanies)
#include "tst_companies.moc"
