// Company databases of the database folder: which files count, which are offered, when the
// program chooses without asking, creating a company, and changing to another one.
#include "ScriptedInteraction.h"
#include "TestData.h"

#include "app/CompanyChoice.h"
#include "app/CompanyCreate.h"
#include "base/Database.h"
#include "base/Setup.h"
#include "base/SqlStatement.h"
#include "documents/InvoiceTemplate.h"
#include "documents/LabelTranslations.h"
#include "masterdata/TaxNumber.h"

#include <QtTest>

namespace {

QStringList FileNames(const QStringList& paths)
{
    QStringList names;
    for (const QString& path : paths)
        names << QFileInfo(path).fileName();
    return names;
}

} // namespace

class TestCompanies : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        InstallLabelLoading();
        m_dir.emplace();
        QVERIFY(m_dir->isValid());
        m_ui = {};
        m_offered.clear();
    }

    void cleanup()
    {
        Database::close();
        m_dir.reset();
    }

    void discovery_data()
    {
        AddColumns<QStringList, QStringList, QStringList>({"files", "companies", "offered"});
        AddRow("empty", QStringList{}, QStringList{}, QStringList{});
        AddRow("hidden, too short and other files are ignored",
               QStringList{".db", ".rejtett.db", "a.db", "ceg.db.bak", "jegyzet.txt"},
               QStringList{"a.db"}, QStringList{"a.db"});
        AddRow("demo hidden beside companies", QStringList{"szabo.db", "demo.db", "kovacs.db"},
               QStringList{"demo.db", "kovacs.db", "szabo.db"},
               QStringList{"kovacs.db", "szabo.db"});
    }

    void discovery()
    {
        auto [files, companies, offered] =
            Fetch<QStringList, QStringList, QStringList>({"files", "companies", "offered"});
        for (const QString& name : files)
            QVERIFY(WriteFile(file(name), {}));
        QVERIFY(QDir(m_dir->path()).mkdir("mappa.db"));
        const QStringList found = CompanyFiles(m_dir->path());
        QCOMPARE(FileNames(found), companies);
        QCOMPARE(FileNames(OfferedCompanyFiles(found)), offered);
    }

    void startupChoice_data()
    {
        AddColumns<QStringList, QString, QString, QStringList, QString>(
            {"companies", "pick", "chosen", "offered", "message"});
        const QStringList two = {"kovacs_bt.db:Kovács Bt.", "szabo_kft.db:Szabó Kft."};
        AddRow("no files", QStringList{}, "", "", QStringList{},
               "Missing database files. Maybe you have to reinstall the "
               "application.");
        AddRow("only demo, no dialog", QStringList{"demo"}, "", "demo.db", QStringList{}, "");
        AddRow("demo and one company, no dialog", QStringList{"demo", "Kovács Bt."}, "",
               "kovacs_bt.db", QStringList{}, "");
        AddRow("demo and two companies: dialog without demo",
               QStringList{"demo", "Kovács Bt.", "Szabó Kft."}, "szabo_kft.db", "szabo_kft.db", two,
               "");
        AddRow("dialog cancelled", QStringList{"Kovács Bt.", "Szabó Kft."}, "", "", two, "");
    }

    void startupChoice()
    {
        auto [companies, pick, chosen, offered, message] =
            Fetch<QStringList, QString, QString, QStringList, QString>(
                {"companies", "pick", "chosen", "offered", "message"});
        this->companies(companies);
        const QString path = ChooseStartupDatabase({}, m_dir->path(), m_ui, selector(pick));
        QCOMPARE(QFileInfo(path).fileName(), chosen);
        QCOMPARE(m_offered.value(0), offered);
        QCOMPARE(m_ui.messages.size(), message.isEmpty() ? 0 : 1);
        QCOMPARE(m_ui.lastMessage(), message);
    }

    // A given file is taken as it is (every command line test's --db); a missing one is not made.
    void missingCommandLinePath()
    {
        const QString missing = file("nincs.db");
        QVERIFY(ChooseStartupDatabase(missing, m_dir->path(), m_ui, selector()).isEmpty());
        QCOMPARE(m_ui.lastMessage(), missing + " does not exists.");
        QVERIFY(!QFile::exists(missing));
    }

    // A company is made and listed while another is worked on, which stays the current session.
    void createAndListWhileAnotherIsOpen()
    {
        const QString kovacs = company("Kovács Bt.");
        QVERIFY(Database::open(kovacs));
        const NewCompany szabo{
            "Szabó és Társa Kft.", "22222222-2-42", "4025", "Debrecen", "Piac u. 20.", {}};
        QString path;
        QVERIFY(CreateCompany(szabo, m_dir->path(), m_ui, &path));
        QCOMPARE(QFileInfo(path).fileName(), "szabo_es_tarsa_kft.db");
        const QByteArray before = FileBytes(path);
        const CompanyEntry entry = ReadCompanyEntry(path);
        QCOMPARE(QStringList({entry.name, entry.zip, entry.city, entry.address, entry.taxNo}),
                 QStringList({szabo.name, szabo.zip, szabo.city, szabo.address, szabo.taxNo}));
        QCOMPARE(FileBytes(path), before);
        QCOMPARE(Database::path(), kovacs);
        QCOMPARE(SelectValue("select SETUP_NAME from SETUP"), QVariant("Kovács Bt."));

        // A new company prints its first invoice with the shipped template, before any setting.
        QVERIFY(Database::open(path));
        Setup setup;
        QVERIFY(setup.load());
        QVERIFY(LoadTemplateFromSetup(setup).certified());
        QVERIFY(Database::open(kovacs));

        // A file that is not a company database lists with empty data.
        QVERIFY(WriteFile(file("ures.db"), {}));
        QVERIFY(ReadCompanyEntry(file("ures.db")).name.isEmpty());
    }

    void fileNames_data()
    {
        AddColumns<QString, QString>({"name", "file"});
        AddRow("accents folded", "Árvíztűrő Tükörfúrógép Zrt.", "arvizturo_tukorfurogep_zrt.db");
        AddRow("taken name gets a number", "Kovács Bt.", "kovacs_bt_2.db");
        AddRow("demonstration name kept free", "Demo", "demo_2.db");
        AddRow("nothing usable", "???", "company.db");
    }

    void fileNames()
    {
        auto [name, file] = Fetch<QString, QString>({"name", "file"});
        QVERIFY(WriteFile(this->file("kovacs_bt.db"), {}));
        QCOMPARE(CompanyFileName(name, m_dir->path()), file);
    }

    void createRefusals_data()
    {
        AddColumns<QString, QString, QString, QString>({"name", "taxNo", "file", "message"});
        const char* taxNoTaken =
            "It is not possible to create a new database with an existing tax no.";
        AddRow("same tax number", "Másik Kft.", "11111111-2-41", "", taxNoTaken);
        AddRow("same tax number written differently", "Másik Kft.", " 11111111 2 41", "",
               taxNoTaken);
        AddRow("no name", "  ", "33333333-2-43", "", "Name field must have a value.");
        AddRow("file exists", "Másik Kft.", "33333333-2-43", "kovacs_bt.db",
               "kovacs_bt.db already exists.");
        AddRow("file would be hidden", "Másik Kft.", "33333333-2-43", ".masik.db",
               "The file name must end with \".db\", be longer than three characters and must not "
               "begin with \".\".");
    }

    void createRefusals()
    {
        auto [name, taxNo, file, message] =
            Fetch<QString, QString, QString, QString>({"name", "taxNo", "file", "message"});
        QVERIFY(!company("Kovács Bt.", "11111111-2-41").isEmpty());
        QString path;
        const Result r = CreateCompany({name, taxNo, {}, {}, {}, file}, m_dir->path(), m_ui, &path);
        QCOMPARE(r.message(), message);
        QVERIFY(path.isEmpty());
        QCOMPARE(FileNames(CompanyFiles(m_dir->path())), QStringList{"kovacs_bt.db"});
    }

    void changeCompany_data()
    {
        AddColumns<QStringList, QString, QString>({"companies", "pick", "message"});
        AddRow("no databases", QStringList{}, "", "Error: there are no databases.");
        AddRow("only one beside the demo", QStringList{"demo", "Kovács Bt."}, "",
               "There is only one database.");
        AddRow("dialog cancelled", QStringList{"Kovács Bt.", "Szabó Kft."}, "", "");
        AddRow("changed", QStringList{"Kovács Bt.", "Szabó Kft."}, "szabo_kft.db",
               "Database/company changed successfully to:&Szabó Kft.");
    }

    void changeCompany()
    {
        auto [companies, pick, message] =
            Fetch<QStringList, QString, QString>({"companies", "pick", "message"});
        const QString first = this->companies(companies);
        if (!first.isEmpty())
            QVERIFY(OpenCompany(first, m_ui));
        QCOMPARE(ChangeCompanyDatabase(m_dir->path(), m_ui, selector(pick)), !pick.isEmpty());
        QCOMPARE(m_ui.lastMessage(), message);
        QCOMPARE(Database::path(), pick.isEmpty() ? first : file(pick));
    }

    void changeToUnusableFileKeepsCurrent()
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
    void changeFromDemoToTheOnlyCompany()
    {
        const QString kovacs = companies({"demo", "Kovács Bt."});
        QVERIFY(OpenCompany(file("demo.db"), m_ui));
        QVERIFY(ChangeCompanyDatabase(m_dir->path(), m_ui, selector("kovacs_bt.db")));
        QCOMPARE(m_offered, QList<QStringList>{{"kovacs_bt.db:Kovács Bt."}});
        QCOMPARE(Database::path(), kovacs);
    }

    // Invoices must be printed with the labels of the company they are issued in; a company whose
    // labels cannot be read is not opened.
    void invoiceLabelsFollowTheCompany()
    {
        const QString kovacs = companies({"Kovács Bt.", "Szabó Kft.", "Hibás Kft."});
        QVERIFY(Database::open(file("szabo_kft.db")));
        QVERIFY(ExecSql("update ORDERLABELTRANSLATION set ORDERLABELTRANSLATION_TEXT = "
                        "'Fizetés módja' where ORDERLABELTRANSLATION_KEY = 'TR_PAYMENT_METHOD' and "
                        "ORDERLABELTRANSLATION_LANG_ID = 0"));
        QVERIFY(Database::open(file("hibas_kft.db")));
        QVERIFY(ExecSql("drop table ORDERLABELTRANSLATION"));

        QVERIFY(OpenCompany(kovacs, m_ui));
        QCOMPARE(LabelTranslations::current().get("TR_PAYMENT_METHOD", 0), "Fizetési mód");
        QVERIFY(ChangeCompanyDatabase(m_dir->path(), m_ui, selector("szabo_kft.db")));
        QCOMPARE(LabelTranslations::current().get("TR_PAYMENT_METHOD", 0), "Fizetés módja");

        QVERIFY(!OpenCompany(file("hibas_kft.db"), m_ui));
        QCOMPARE(m_ui.lastMessage(), "Unable to load invoice label translations.");
        QVERIFY(!Database::isOpen());
    }

private:
    QString file(const QString& name) const { return QDir(m_dir->path()).filePath(name); }
    // A company file made by the program itself; "demo" is the demonstration company.
    QString company(const QString& name, QString taxNo = {});
    // The companies named, in turn; the path of the first that is not the demonstration one.
    QString companies(const QStringList& names);
    // Records what the selector was offered ("file:name") and picks the file named pick.
    CompanySelector selector(const QString& pick = {});

    std::optional<QTemporaryDir> m_dir;
    ScriptedInteraction m_ui;
    QList<QStringList> m_offered;
    int m_taxNo = 0;
};

QString TestCompanies::company(const QString& name, QString taxNo)
{
    if (taxNo.isEmpty()) {
        // Distinct numbers that pass the check digit.
        const QString seven = QString::number(1000000 + ++m_taxNo);
        taxNo = seven + QString::number(HungarianTaxNoCheckDigit(seven)) + QStringLiteral("-2-41");
    }
    QString path;
    ScriptedInteraction quiet;
    const Result r = name == "demo" ? CreateDemoCompany(m_dir->path(), quiet, &path)
                                    : CreateCompany({name, taxNo, {}, "Budapest", {}, {}},
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

QTEST_GUILESS_MAIN(TestCompanies)
#include "tst_companies.moc"
