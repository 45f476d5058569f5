// Company databases of the database folder: which files count, which are offered, when the
// program chooses without asking, creating a company, and changing to another one.
#include "ScriptedInteraction.h"

#include "app/CompanyChoice.h"
#include "app/CompanyCreate.h"
#include "app/Database.h"
#include "app/DatabasePrepare.h"
#include "app/Setup.h"
#include "app/SqlStatement.h"
#include "documents/LabelTranslations.h"

#include <QtTest>

namespace {

QStringList FileNames(const QStringList& paths)
{
    QStringList names;
    for (const QString& path : paths)
        names << QFileInfo(path).fileName();
    return names;
}

QByteArray FileBytes(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

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
    QString file(const QString& name) const { return QDir(m_dir->path()).filePath(name); }
    // A company file made by the program itself; "demo" is the demonstration company.
    QString company(const QString& name, const QString& taxNo = {});
    // The companies named, in turn; the path of the first that is not the demonstration one.
    QString companies(const QStringList& names);
    // Records what the selector was offered ("file:name") and picks the file named pick.
    CompanySelector selector(const QString& pick = {});

    std::optional<QTemporaryDir> m_dir;
    ScriptedInteraction m_ui;
    QList<QStringList> m_offered;
    int m_taxNo = 0;
};

void TestCompanies::init()
{
    m_dir.emplace();
    QVERIFY(m_dir->isValid());
    m_ui = {};
    m_offered.clear();
}

void TestCompanies::cleanup()
{
    Database::close();
    m_dir.reset();
}

QString TestCompanies::company(const QString& name, const QString& taxNo)
{
    QString path;
    ScriptedInteraction quiet;
    const Result r =
        name == "demo"
            ? CreateDemoCompany(m_dir->path(), quiet, &path)
            : CreateCompany({name,
                             taxNo.isEmpty()
                                 ? QStringLiteral("1000%1-2-41").arg(++m_taxNo, 4, 10, QChar('0'))
                                 : taxNo,
                             {},
                             "Budapest"},
                            m_dir->path(), quiet, &path);
    if (!r)
        qWarning("%s %s", qPrintable(r.message()), qPrintable(r.sqlError()));
    return path;
}

QString TestCompanies::companies(const QStringList& names)
{
    QString first;
    for (const QString& name : names) {
        const QString path = company(name);
        if (first.isEmpty() && name != "demo")
            first = path;
    }
    return first;
}

CompanySelector TestCompanies::selector(const QString& pick)
{
    return [this, pick](const QList<CompanyEntry>& entries) -> std::optional<QString> {
        std::optional<QString> chosen;
        m_offered.append(QStringList());
        for (const CompanyEntry& e : entries) {
            m_offered.last() << e.fileName() + ':' + e.name;
            if (e.fileName() == pick)
                chosen = e.path;
        }
        return chosen;
    };
}

void TestCompanies::discovery_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QStringList>("companies");
    QTest::addColumn<QStringList>("offered");
    QTest::newRow("empty") << QStringList{} << QStringList{} << QStringList{};
    QTest::newRow("hidden, too short and other files are ignored")
        << QStringList{".db", ".rejtett.db", "a.db", "ceg.db.bak", "jegyzet.txt"}
        << QStringList{"a.db"} << QStringList{"a.db"};
    QTest::newRow("only the demonstration company")
        << QStringList{"demo.db"} << QStringList{"demo.db"} << QStringList{"demo.db"};
    QTest::newRow("demo hidden beside companies")
        << QStringList{"szabo.db", "demo.db", "kovacs.db"}
        << QStringList{"demo.db", "kovacs.db", "szabo.db"} << QStringList{"kovacs.db", "szabo.db"};
}

void TestCompanies::discovery()
{
    QFETCH(QStringList, files);
    QFETCH(QStringList, companies);
    QFETCH(QStringList, offered);
    for (const QString& name : files) {
        QFile f(file(name));
        QVERIFY(f.open(QIODevice::WriteOnly));
    }
    QVERIFY(QDir(m_dir->path()).mkdir("mappa.db"));
    const QStringList found = CompanyFiles(m_dir->path());
    QCOMPARE(FileNames(found), companies);
    QCOMPARE(FileNames(OfferedCompanyFiles(found)), offered);
}

void TestCompanies::startupChoice_data()
{
    QTest::addColumn<QStringList>("companies");
    QTest::addColumn<QString>("pick");
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<QStringList>("offered");
    QTest::addColumn<QString>("message");
    const QStringList two = {"kovacs_bt.db:Kovács Bt.", "szabo_kft.db:Szabó Kft."};
    QTest::newRow("no files") << QStringList{} << ""
                              << "" << QStringList{}
                              << "Missing database files. Maybe you have to reinstall the "
                                 "application.";
    QTest::newRow("only demo, no dialog") << QStringList{"demo"} << ""
                                          << "demo.db" << QStringList{} << "";
    QTest::newRow("demo and one company, no dialog") << QStringList{"demo", "Kovács Bt."} << ""
                                                     << "kovacs_bt.db" << QStringList{} << "";
    QTest::newRow("demo and two companies: dialog without demo")
        << QStringList{"demo", "Kovács Bt.", "Szabó Kft."} << "szabo_kft.db"
        << "szabo_kft.db" << two << "";
    QTest::newRow("dialog cancelled") << QStringList{"Kovács Bt.", "Szabó Kft."} << ""
                                      << "" << two << "";
}

void TestCompanies::startupChoice()
{
    QFETCH(QStringList, companies);
    QFETCH(QString, pick);
    QFETCH(QString, chosen);
    QFETCH(QStringList, offered);
    QFETCH(QString, message);
    this->companies(companies);
    const QString path = ChooseStartupDatabase({}, m_dir->path(), m_ui, selector(pick));
    QCOMPARE(QFileInfo(path).fileName(), chosen);
    QCOMPARE(m_offered.value(0), offered);
    QCOMPARE(m_ui.messages.size(), message.isEmpty() ? 0 : 1);
    QCOMPARE(m_ui.lastMessage(), message);
}

void TestCompanies::commandLinePath()
{
    companies({"Kovács Bt.", "Szabó Kft."});
    const QString given = file("szabo_kft.db");
    QCOMPARE(ChooseStartupDatabase(given, m_dir->path(), m_ui, selector()), given);
    QVERIFY(m_offered.isEmpty());

    const QString missing = file("nincs.db");
    QVERIFY(ChooseStartupDatabase(missing, m_dir->path(), m_ui, selector()).isEmpty());
    QCOMPARE(m_ui.lastMessage(), missing + " does not exists.");
    QVERIFY(!QFile::exists(missing));
}

void TestCompanies::entriesReadWithoutDisturbingSession()
{
    const QString kovacs = company("Kovács Bt.");
    const NewCompany szabo{"Szabó Kft.", "22222222-2-42", "4025", "Debrecen", "Piac u. 20."};
    QString szaboPath;
    QVERIFY(CreateCompany(szabo, m_dir->path(), m_ui, &szaboPath));
    const QByteArray before = FileBytes(szaboPath);

    QVERIFY(Database::open(kovacs));
    const CompanyEntry entry = ReadCompanyEntry(szaboPath);
    QCOMPARE(QStringList({entry.name, entry.zip, entry.city, entry.address, entry.taxNo}),
             QStringList({szabo.name, szabo.zip, szabo.city, szabo.address, szabo.taxNo}));
    QCOMPARE(Database::path(), kovacs);
    QCOMPARE(SelectValue("select SETUP_NAME from SETUP"), QVariant("Kovács Bt."));
    QCOMPARE(FileBytes(szaboPath), before);

    // A file that is not a company database lists with empty data.
    QFile empty(file("ures.db"));
    QVERIFY(empty.open(QIODevice::WriteOnly));
    QVERIFY(ReadCompanyEntry(empty.fileName()).name.isEmpty());
}

void TestCompanies::fileNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("file");
    QTest::newRow("plain") << "Minta Kft."
                           << "minta_kft.db";
    QTest::newRow("accents folded") << "Árvíztűrő Tükörfúrógép Zrt."
                                    << "arvizturo_tukorfurogep_zrt.db";
    QTest::newRow("taken name gets a number") << "Kovács Bt."
                                              << "kovacs_bt_2.db";
    QTest::newRow("demonstration name kept free") << "Demo"
                                                  << "demo_2.db";
    QTest::newRow("nothing usable") << "???"
                                    << "company.db";
}

void TestCompanies::fileNames()
{
    QFETCH(QString, name);
    QFETCH(QString, file);
    QFile taken(this->file("kovacs_bt.db"));
    QVERIFY(taken.open(QIODevice::WriteOnly));
    QCOMPARE(CompanyFileName(name, m_dir->path()), file);
}

void TestCompanies::createCompany()
{
    const QString current = company("Kovács Bt.");
    QVERIFY(Database::open(current));
    const QString path = company("Szabó és Társa Kft.", "22222222-2-42");
    QCOMPARE(QFileInfo(path).fileName(), "szabo_es_tarsa_kft.db");
    // The open company stays the current session.
    QCOMPARE(Database::path(), current);
    QCOMPARE(SelectValue("select SETUP_NAME from SETUP"), QVariant("Kovács Bt."));

    QVERIFY(OpenCompany(path, m_ui));
    QVERIFY(m_ui.messages.isEmpty());
    QCOMPARE(ReadDbVersion(), 302);
    QCOMPARE(
        QStringList({Setup::current().text("SETUP_NAME"), Setup::current().text("SETUP_TAX_NO"),
                     Setup::current().text("SETUP_CITY")}),
        QStringList({"Szabó és Társa Kft.", "22222222-2-42", "Budapest"}));
}

void TestCompanies::createRefusals_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("taxNo");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("message");
    const char* taxNoTaken = "It is not possible to create a new database with an existing tax no.";
    QTest::newRow("same tax number") << "Másik Kft."
                                     << "11111111-2-41"
                                     << "" << taxNoTaken;
    QTest::newRow("same tax number written differently") << "Másik Kft."
                                                         << " 11111111 2 41"
                                                         << "" << taxNoTaken;
    QTest::newRow("tax number of the demonstration company") << "Másik Kft."
                                                             << "12345676-2-41"
                                                             << "" << taxNoTaken;
    QTest::newRow("no name") << "  "
                             << "33333333-2-43"
                             << ""
                             << "Name field must have a value.";
    QTest::newRow("no tax number") << "Másik Kft."
                                   << ""
                                   << ""
                                   << "Tax No field must have a value.";
    QTest::newRow("file exists") << "Másik Kft."
                                 << "33333333-2-43"
                                 << "kovacs_bt.db"
                                 << "kovacs_bt.db already exists.";
    QTest::newRow("file would be hidden")
        << "Másik Kft."
        << "33333333-2-43"
        << ".masik.db"
        << "The file name must end with \".db\", be longer than three characters and must not "
           "begin with \".\".";
}

void TestCompanies::createRefusals()
{
    QFETCH(QString, name);
    QFETCH(QString, taxNo);
    QFETCH(QString, file);
    QFETCH(QString, message);
    QVERIFY(!company("Kovács Bt.", "11111111-2-41").isEmpty());
    QVERIFY(!company("demo").isEmpty());
    QString path;
    const Result r = CreateCompany({name, taxNo, {}, {}, {}, file}, m_dir->path(), m_ui, &path);
    QCOMPARE(r.message(), message);
    QVERIFY(path.isEmpty());
    QCOMPARE(FileNames(CompanyFiles(m_dir->path())), QStringList({"demo.db", "kovacs_bt.db"}));
}

void TestCompanies::changeCompany_data()
{
    QTest::addColumn<QStringList>("companies");
    QTest::addColumn<QString>("pick");
    QTest::addColumn<QString>("message");
    QTest::newRow("no databases") << QStringList{} << ""
                                  << "Error: there are no databases.";
    QTest::newRow("only one beside the demo") << QStringList{"demo", "Kovács Bt."} << ""
                                              << "There is only one database.";
    QTest::newRow("dialog cancelled") << QStringList{"Kovács Bt.", "Szabó Kft."} << ""
                                      << "";
    QTest::newRow("changed") << QStringList{"Kovács Bt.", "Szabó Kft."} << "szabo_kft.db"
                             << "Database/company changed successfully to:&Szabó Kft.";
}

void TestCompanies::changeCompany()
{
    QFETCH(QStringList, companies);
    QFETCH(QString, pick);
    QFETCH(QString, message);
    const QString first = this->companies(companies);
    if (!first.isEmpty())
        QVERIFY(OpenCompany(first, m_ui));
    QCOMPARE(ChangeCompanyDatabase(m_dir->path(), m_ui, selector(pick)), !pick.isEmpty());
    QCOMPARE(m_ui.lastMessage(), message);
    QCOMPARE(Database::path(), pick.isEmpty() ? first : file(pick));
}

void TestCompanies::changeToUnusableFileKeepsCurrent()
{
    const QString kovacs = companies({"Kovács Bt.", "Szabó Kft."});
    QVERIFY(Database::open(file("szabo_kft.db")));
    QVERIFY(ExecSql("update DBVERSION set VERSION = 303"));
    QVERIFY(OpenCompany(kovacs, m_ui));
    QVERIFY(!ChangeCompanyDatabase(m_dir->path(), m_ui, selector("szabo_kft.db")));
    QVERIFY(m_ui.lastMessage().startsWith("The database version is newer"));
    QVERIFY(Database::isOpen());
    QCOMPARE(Database::path(), kovacs);
    QCOMPARE(Setup::current().text("SETUP_NAME"), "Kovács Bt.");
}

// Right after the first real company is made, the demonstration company may still be open: the
// new company, the only one offered, is not "only one database" to change to.
void TestCompanies::changeFromDemoToTheOnlyCompany()
{
    const QString kovacs = companies({"demo", "Kovács Bt."});
    QVERIFY(OpenCompany(file("demo.db"), m_ui));
    QVERIFY(ChangeCompanyDatabase(m_dir->path(), m_ui, selector("kovacs_bt.db")));
    QCOMPARE(m_offered, QList<QStringList>{{"kovacs_bt.db:Kovács Bt."}});
    QCOMPARE(Database::path(), kovacs);

    // Now it is the one open: nothing to change to.
    QVERIFY(!ChangeCompanyDatabase(m_dir->path(), m_ui, selector("kovacs_bt.db")));
    QCOMPARE(m_ui.lastMessage(), "There is only one database.");
    QCOMPARE(m_offered.size(), 1);
}

// Invoices must be printed with the labels of the company they are issued in; a company whose
// labels cannot be read is not opened.
void TestCompanies::invoiceLabelsFollowTheCompany()
{
    const QString kovacs = companies({"Kovács Bt.", "Szabó Kft.", "Hibás Kft."});
    QVERIFY(Database::open(file("szabo_kft.db")));
    QVERIFY(ExecSql("update ORDERLABELTRANSLATION set ORDERLABELTRANSLATION_TEXT = "
                    "'Fizetés módja' where ORDERLABELTRANSLATION_KEY = 'TR_PAYMENT_METHOD' and "
                    "ORDERLABELTRANSLATION_LANG_ID = 0"));
    QVERIFY(Database::open(file("hibas_kft.db")));
    QVERIFY(ExecSql("drop table ORDERLABELTRANSLATION"));

    QVERIFY(OpenCompany(kovacs, m_ui));
    QCOMPARE(LabelTranslations::current().Get("TR_PAYMENT_METHOD", 0), "Fizetési mód");
    QVERIFY(ChangeCompanyDatabase(m_dir->path(), m_ui, selector("szabo_kft.db")));
    QCOMPARE(LabelTranslations::current().Get("TR_PAYMENT_METHOD", 0), "Fizetés módja");

    QVERIFY(!OpenCompany(file("hibas_kft.db"), m_ui));
    QCOMPARE(m_ui.lastMessage(), "Unable to load invoice label translations.");
    QVERIFY(!Database::isOpen());
}

QTEST_GUILESS_MAIN(TestCompanies)
#include "tst_companies.moc"
