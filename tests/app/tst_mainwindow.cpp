// The main window's rules: title, menus, commands without handlers, when lists are read, and
// the backup commands as the user drives them.
#include "ModalDriver.h"
#include "ScriptedInteraction.h"
#include "TestCompany.h"

#include "Columns.h"
#include "app/Backup.h"
#include "app/BaseFolder.h"
#include "app/Database.h"
#include "app/Setup.h"
#include "app/SqlStatement.h"
#include "app/ui/ListTab.h"
#include "app/ui/MainWindow.h"
#include "app/ui/RegisterCommands.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QTabWidget>
#include <QTableView>
#include <QtTest>

#include <functional>

namespace {

class CountingTab : public ListTab
{
public:
    void reload() override { ++reloads; }
    int reloads = 0;
};

void SetCompany(const QString& name, const QString& taxNo)
{
    QVERIFY(Setup::write({{QString::fromLatin1(Col::SETUP_NAME), name},
                          {QString::fromLatin1(Col::SETUP_TAX_NO), taxNo}}));
}

void SetLoading(bool onStart, bool onTabChange)
{
    QVERIFY(Setup::write(
        {{QString::fromLatin1(Col::SETUP_LOAD_MAIN_WINDOW_DATA_ON_START), onStart ? "1" : "0"},
         {QString::fromLatin1(Col::SETUP_REFRESH_MAIN_WINDOW_DATA_ON_TAB_CHANGE),
          onTabChange ? "1" : "0"}}));
}

QStringList MenuTree(const QMenuBar* bar)
{
    QStringList lines;
    std::function<void(const QMenu*, const QString&)> walk = [&](const QMenu* menu,
                                                                 const QString& path) {
        for (const QAction* a : menu->actions()) {
            if (a->isSeparator())
                continue;
            const QString line = path + u'/' + a->text();
            lines << line + QLatin1String(" | ") + a->statusTip();
            if (a->menu())
                walk(a->menu(), line);
        }
    };
    for (const QAction* top : bar->actions())
        walk(top->menu(), top->text());
    return lines;
}

} // namespace

class TestMainWindow : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void title_data();
    void title();
    void titleWithNullRow();
    void menus();
    void tabs();
    void commandsWithoutHandlersAreDisabled();
    void listLoading_data();
    void listLoading();
    void changeOfCompanyRereadsLists();
    void backupCommandProposesName();
    void restoreCommandRefusesOtherCompany();
    void restoreCommandReplacesFile();
    void masterDataPagesFollowLoadingRules_data();
    void masterDataPagesFollowLoadingRules();
    void changeCompanyCommand();
};

void TestMainWindow::title_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("taxNo");
    QTest::addColumn<QString>("title");
    QTest::newRow("company") << QStringLiteral("Minta Kft") << QStringLiteral("12345678-2-41")
                             << QStringLiteral(
                                    "Vantrell Invoicer - Minta Kft (adószám:12345678-2-41)");
    QTest::newRow("empty") << QString() << QString()
                           << QStringLiteral("Vantrell Invoicer -  (adószám:)");
    QTest::newRow("no tax number")
        << QStringLiteral("Árvíztűrő Bt.") << QString()
        << QStringLiteral("Vantrell Invoicer - Árvíztűrő Bt. (adószám:)");
}

void TestMainWindow::title()
{
    QFETCH(QString, name);
    QFETCH(QString, taxNo);
    QFETCH(QString, title);
    TestCompany company;
    QVERIFY(company.isValid());
    SetCompany(name, taxNo);
    MainWindow window;
    window.companyChanged();
    QCOMPARE(window.windowTitle(), title);
}

void TestMainWindow::titleWithNullRow()
{
    TestCompany company;
    QVERIFY(company.isValid());
    QVERIFY(ExecSql(QStringLiteral("delete from SETUP")));
    QVERIFY(ExecSql(QStringLiteral("insert into SETUP (SETUP_NAME) values (NULL)")));
    MainWindow window;
    window.companyChanged();
    QCOMPARE(window.windowTitle(), QStringLiteral("Vantrell Invoicer -  (adószám:)"));
}

void TestMainWindow::menus()
{
    MainWindow window;
    const QStringList expected = {
        QStringLiteral("File/New Order / Invoice... | Create new order / invoice"),
        QStringLiteral("File/Setup... | Setup your company's data and application defaults"),
        QStringLiteral("File/Backup | Do or restore backup"),
        QStringLiteral("File/Backup/Do backup... | Do backup of your database"),
        QStringLiteral("File/Backup/Restore backup... | Restore backup of your database"),
        QStringLiteral("File/Change database/company... | Change database to an other one if you "
                       "want to work with an other company"),
        QStringLiteral("File/New company... | Create a new company database"),
        QStringLiteral("File/Exit | Finish editing and close this window"),
        QStringLiteral("Basic Data/VAT Keys | Change VAT keys"),
        QStringLiteral("Basic Data/No VAT Reasons | Manage No VAT Reasons"),
        QStringLiteral("Basic Data/Payment methods | Change payment methods"),
        QStringLiteral("Basic Data/Stat Numbers | Change often used stat numbers"),
        QStringLiteral("Basic Data/Languages | Change languages"),
        QStringLiteral("Basic Data/Countries | Manage countries"),
        QStringLiteral("Basic Data/Currencies, Bank Accounts and Rates | Manage currencies, bank "
                       "accounts and rates"),
        QStringLiteral("Basic Data/Invoice Label Translations | Manage invoice label translations"),
        QStringLiteral(
            "Webshop/Download orders | Download external orders from web, based on Setup"),
        QStringLiteral("Webshop/Download products | Download external products from web, based on "
                       "Setup"),
        QStringLiteral("Webshop/Download partners | Download external partners from web, based on "
                       "Setup"),
        QStringLiteral("Webshop/Szamlak importalasa fajlbol | Szamlakat tartalmazo fajl megnyitasa "
                       "es importalasa"),
        QStringLiteral("Webshop/Termekek/szolgaltatasok importalasa fajlbol | "
                       "Termekeket/szolgaltatasokat tartalmazo fajl megnyitasa es importalasa"),
        QStringLiteral("Webshop/Partnerek importalasa fajlbol | Partnereket tartalmazo fajl "
                       "megnyitasa es importalasa"),
        QStringLiteral("Reports/Outgoing Invoices | Print or export list of invoices"),
        QStringLiteral("Reports/Outgoing Invoice Items | Print or export list of invoice items"),
        QStringLiteral(
            "Reports/Customers Report | Print or export sum of sales grouped by partners"),
        QStringLiteral("Reports/Products Sold Report | Print or export sum of sales grouped by "
                       "products"),
        QStringLiteral("Reports/Receivables | "),
        QStringLiteral(
            "Reports/Receivables/Receivables by invoices | Print or export unpaid invoices"),
        QStringLiteral("Reports/Receivables/Receivables by partners | Print or export unpaid "
                       "invoices grouped by partners"),
        QStringLiteral("Help/Help Topics | Show the list of Help topics"),
        QStringLiteral("Help/Nyilatkozat | 24/1995. (XI. 22.) PM rendelet szerinti nyilatkozat "
                       "megjelenitese"),
        QStringLiteral("Help/About | Information about the program, its version and developer"),
    };
    QCOMPARE(MenuTree(window.menuBar()), expected);
}

void TestMainWindow::tabs()
{
    MainWindow window;
    auto* tabs = window.findChild<QTabWidget*>(QStringLiteral("m_tabs"));
    QVERIFY(tabs);
    QStringList captions;
    for (int i = 0; i < tabs->count(); ++i)
        captions << tabs->tabText(i);
    QCOMPARE(captions, (QStringList{QStringLiteral("Orders/Invoices"), QStringLiteral("Products"),
                                    QStringLiteral("Partners"), QStringLiteral("Csekkek")}));
    auto* page = new CountingTab;
    window.setTabPage(MainTab::Partners, page);
    QCOMPARE(window.tabPage(MainTab::Partners), page);
    QCOMPARE(tabs->tabText(2), QStringLiteral("Partners"));
    QCOMPARE(tabs->count(), 4);
}

void TestMainWindow::commandsWithoutHandlersAreDisabled()
{
    MainWindow window;
    for (int c = int(MainCommand::NewOrder); c <= int(MainCommand::About); ++c)
        QVERIFY2(!window.action(MainCommand(c))->isEnabled(), qPrintable(QString::number(c)));

    int runs = 0;
    window.setCommand(MainCommand::Setup, [&runs] { ++runs; });
    QVERIFY(window.action(MainCommand::Setup)->isEnabled());
    window.action(MainCommand::Setup)->trigger();
    QCOMPARE(runs, 1);
    // Registering again replaces the handler; it does not add a second one.
    window.setCommand(MainCommand::Setup, [&runs] { runs += 10; });
    window.action(MainCommand::Setup)->trigger();
    QCOMPARE(runs, 11);
    window.setCommand(MainCommand::Setup, {});
    QVERIFY(!window.action(MainCommand::Setup)->isEnabled());
    window.action(MainCommand::Setup)->trigger();
    QCOMPARE(runs, 11);

    // What works now is reachable; what is not built yet stays disabled.
    RegisterCommands(window);
    for (MainCommand c :
         {MainCommand::DoBackup, MainCommand::RestoreBackup, MainCommand::ChangeCompany,
          MainCommand::NewCompany, MainCommand::Exit, MainCommand::VatKeys,
          MainCommand::NoVatReasons, MainCommand::PaymentMethods, MainCommand::StatNumbers,
          MainCommand::Languages, MainCommand::Countries, MainCommand::Currencies})
        QVERIFY2(window.action(c)->isEnabled(), qPrintable(window.action(c)->text()));
    QVERIFY(!window.action(MainCommand::NewOrder)->isEnabled());
    QVERIFY(!window.action(MainCommand::LabelTranslations)->isEnabled());
}

void TestMainWindow::listLoading_data()
{
    QTest::addColumn<bool>("onStart");
    QTest::addColumn<bool>("onTabChange");
    // Reads of the orders and products lists after: opening, showing products, back to orders,
    // products again.
    QTest::addColumn<QList<int>>("orders");
    QTest::addColumn<QList<int>>("products");
    QTest::newRow("both off") << false << false << QList<int>{0, 0, 0, 0} << QList<int>{0, 0, 0, 0};
    QTest::newRow("on start") << true << false << QList<int>{1, 1, 1, 1} << QList<int>{0, 1, 1, 1};
    QTest::newRow("on tab change")
        << false << true << QList<int>{0, 0, 1, 1} << QList<int>{0, 1, 1, 2};
    QTest::newRow("both on") << true << true << QList<int>{1, 1, 2, 2} << QList<int>{0, 1, 1, 2};
}

void TestMainWindow::listLoading()
{
    QFETCH(bool, onStart);
    QFETCH(bool, onTabChange);
    QFETCH(QList<int>, orders);
    QFETCH(QList<int>, products);
    TestCompany company;
    QVERIFY(company.isValid());
    SetLoading(onStart, onTabChange);

    MainWindow window;
    auto* orderList = new CountingTab;
    auto* productList = new CountingTab;
    window.setTabPage(MainTab::Orders, orderList);
    window.setTabPage(MainTab::Products, productList);
    QCOMPARE(orderList->reloads, 0);
    window.companyChanged();
    window.show();
    QList<int> seenOrders{orderList->reloads};
    QList<int> seenProducts{productList->reloads};
    for (MainTab tab : {MainTab::Products, MainTab::Orders, MainTab::Products}) {
        window.showTab(tab);
        seenOrders << orderList->reloads;
        seenProducts << productList->reloads;
    }
    QCOMPARE(seenOrders, orders);
    QCOMPARE(seenProducts, products);
}

// The lists must never go on showing the rows of the company that was left.
void TestMainWindow::changeOfCompanyRereadsLists()
{
    TestCompany company;
    QVERIFY(company.isValid());
    SetLoading(false, false);
    SetCompany(QStringLiteral("Első Kft"), QStringLiteral("11111111-1-11"));
    const QString second = company.dir() + QLatin1String("/masik.db");
    QVERIFY(QFile::copy(company.path(), second));

    MainWindow window;
    auto* orderList = new CountingTab;
    auto* partnerList = new CountingTab;
    auto* chequeList = new CountingTab;
    window.setTabPage(MainTab::Orders, orderList);
    window.setTabPage(MainTab::Partners, partnerList);
    window.setTabPage(MainTab::Cheques, chequeList);
    window.companyChanged();
    window.showTab(MainTab::Partners);
    QCOMPARE(partnerList->reloads, 0);

    QVERIFY(Database::open(second));
    SetCompany(QStringLiteral("Második Kft"), QStringLiteral("22222222-2-22"));
    window.companyChanged();
    QCOMPARE(window.windowTitle(),
             QStringLiteral("Vantrell Invoicer - Második Kft (adószám:22222222-2-22)"));
    QCOMPARE(window.companyFile(), QFileInfo(second).absoluteFilePath());
    QCOMPARE(partnerList->reloads, 1);
    QCOMPARE(orderList->reloads, 0);
    window.showTab(MainTab::Orders);
    QCOMPARE(orderList->reloads, 1);
    window.showTab(MainTab::Cheques);
    QCOMPARE(chequeList->reloads, 0);
}

void TestMainWindow::backupCommandProposesName()
{
    TestCompany company;
    QVERIFY(company.isValid());
    BaseFolder::set(company.dir() + QLatin1String("/base"));
    MainWindow window;
    RegisterCommands(window);
    window.companyChanged();

    QString folder, proposed;
    QStringList messages;
    ModalDriver driver({[&](QWidget* w) {
                            auto* dialog = qobject_cast<QFileDialog*>(w);
                            QVERIFY2(dialog, w->metaObject()->className());
                            folder = dialog->directory().absolutePath();
                            proposed = QFileInfo(dialog->selectedFiles().value(0)).fileName();
                            QCOMPARE(dialog->nameFilters(),
                                     QStringList{QStringLiteral("Database backup files (*.dbk)")});
                            static_cast<QDialog*>(dialog)->accept();
                        },
                        Answer(&messages)});
    window.action(MainCommand::DoBackup)->trigger();
    QVERIFY(driver.done());
    QCOMPARE(folder, BaseFolder::backupFolder());
    QCOMPARE(proposed, QStringLiteral("company.dbk"));
    QCOMPARE(messages, QStringList{QStringLiteral("Backup file saved successfully.")});
    QVERIFY(QFile::exists(BaseFolder::backupFolder() + QLatin1String("/company.dbk")));
    QVERIFY(Database::isOpen());
}

void TestMainWindow::restoreCommandRefusesOtherCompany()
{
    TestCompany company;
    QVERIFY(company.isValid());
    BaseFolder::set(company.dir() + QLatin1String("/base"));
    QVERIFY(QDir().mkpath(BaseFolder::backupFolder()));
    const QString other = BaseFolder::backupFolder() + QLatin1String("/masik.dbk");
    QVERIFY(QFile::copy(company.path(), other));
    QVERIFY(ExecSql(QStringLiteral("insert into STATNO (STATNO_NAME) values ('mine')")));
    MainWindow window;
    RegisterCommands(window);
    window.companyChanged();

    QStringList messages;
    ModalDriver driver({Answer(&messages, QMessageBox::Yes), ChooseFile(other), Answer(&messages)});
    window.action(MainCommand::RestoreBackup)->trigger();
    QVERIFY(driver.done());
    QCOMPARE(messages,
             (QStringList{QStringLiteral("The content of current database will be overwritten&by "
                                         "the backup file you select to restore.&Do you want to "
                                         "continue?"),
                          QStringLiteral("The selected file is not a backup of currently active "
                                         "database/company.")}));
    QVERIFY(Database::isOpen());
    QCOMPARE(SelectValue(QStringLiteral("select count(*) from STATNO")).toInt(), 1);
}

void TestMainWindow::restoreCommandReplacesFile()
{
    TestCompany company;
    QVERIFY(company.isValid());
    BaseFolder::set(company.dir() + QLatin1String("/base"));
    QVERIFY(QDir().mkpath(BaseFolder::backupFolder()));
    SetCompany(QStringLiteral("Mentett Kft"), QStringLiteral("1"));
    SetLoading(false, false);
    const QString backup = BaseFolder::backupFolder() + QLatin1String("/company.dbk");
    ScriptedInteraction quiet;
    QVERIFY(DoBackup(company.path(), backup, quiet));
    SetCompany(QStringLiteral("Későbbi Kft"), QStringLiteral("2"));

    MainWindow window;
    RegisterCommands(window);
    auto* orderList = new CountingTab;
    window.setTabPage(MainTab::Orders, orderList);
    window.companyChanged();
    QStringList messages;
    ModalDriver driver(
        {Answer(&messages, QMessageBox::Yes), ChooseFile(backup), Answer(&messages)});
    window.action(MainCommand::RestoreBackup)->trigger();
    QVERIFY(driver.done());
    QCOMPARE(messages.value(1), QStringLiteral("Backup file restored successfully."));
    QCOMPARE(window.windowTitle(), QStringLiteral("Vantrell Invoicer - Mentett Kft (adószám:1)"));
    QCOMPARE(orderList->reloads, 1);
}

void TestMainWindow::masterDataPagesFollowLoadingRules_data()
{
    QTest::addColumn<bool>("onStart");
    QTest::addColumn<int>("productsOnOpening");
    QTest::newRow("load on start") << true << 1;
    QTest::newRow("both off") << false << 0;
}

// The real Products and Partners pages are read by the window's rules, not when they are made.
void TestMainWindow::masterDataPagesFollowLoadingRules()
{
    QFETCH(bool, onStart);
    QFETCH(int, productsOnOpening);
    TestCompany company;
    QVERIFY(company.isValid());
    SetLoading(onStart, false);
    MainWindow window;
    RegisterCommands(window);
    window.showTab(MainTab::Products);
    window.companyChanged();
    auto* products =
        window.tabPage(MainTab::Products)->findChild<QTableView*>(QStringLiteral("m_list"));
    auto* partners =
        window.tabPage(MainTab::Partners)->findChild<QTableView*>(QStringLiteral("m_list"));
    QVERIFY(products && partners);
    QCOMPARE(products->model()->rowCount(), productsOnOpening);
    window.showTab(MainTab::Partners);
    QCOMPARE(partners->model()->rowCount(), productsOnOpening);

    // Asked for by the user, the list is read whatever the settings say.
    Child<QPushButton>(window.tabPage(MainTab::Partners), "m_find")->click();
    QCOMPARE(partners->model()->rowCount(), 1);
}

void TestMainWindow::changeCompanyCommand()
{
    TestCompany company;
    QVERIFY(company.isValid());
    SetLoading(false, false);
    SetCompany(QStringLiteral("Első Kft"), QStringLiteral("11111111-1-11"));
    BaseFolder::set(company.dir() + QLatin1String("/base"));
    QVERIFY(QDir().mkpath(BaseFolder::dbFolder()));
    const QString first = BaseFolder::dbFolder() + QLatin1String("/elso.db");
    const QString second = BaseFolder::dbFolder() + QLatin1String("/masodik.db");
    QVERIFY(QFile::copy(company.path(), first));
    QVERIFY(QFile::copy(company.path(), second));
    QVERIFY(Database::open(second));
    SetCompany(QStringLiteral("Második Kft"), QStringLiteral("22222222-2-22"));
    QVERIFY(Database::open(first));

    MainWindow window;
    RegisterCommands(window);
    auto* orderList = new CountingTab;
    window.setTabPage(MainTab::Orders, orderList);
    window.companyChanged();
    QStringList offered, messages;
    ModalDriver driver({[&](QWidget* w) {
                            auto* list = Child<QTableView>(w, "m_list");
                            for (int r = 0; r < list->model()->rowCount(); ++r)
                                offered << list->model()->index(r, 0).data().toString();
                            list->selectRow(1);
                            Child<QPushButton>(w, "m_ok")->click();
                        },
                        Answer(&messages)});
    window.action(MainCommand::ChangeCompany)->trigger();
    QVERIFY(driver.done());
    QCOMPARE(offered, (QStringList{QStringLiteral("Első Kft"), QStringLiteral("Második Kft")}));
    QCOMPARE(messages,
             QStringList{QStringLiteral("Database/company changed successfully to:&Második Kft")});
    QCOMPARE(window.windowTitle(),
             QStringLiteral("Vantrell Invoicer - Második Kft (adószám:22222222-2-22)"));
    QCOMPARE(window.companyFile(), second);
    QCOMPARE(orderList->reloads, 1);
}

QTEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
