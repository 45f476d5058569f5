// The main window's rules: when lists are read, and changing the company as the user drives it.
#include "CompanyTestCase.h"
#include "ModalDriver.h"
#include "TestData.h"

#include "Columns.h"
#include "app/BaseFolder.h"
#include "app/ui/MainWindow.h"
#include "app/ui/RegisterCommands.h"
#include "base/Database.h"
#include "base/Setup.h"
#include "base/SqlStatement.h"
#include "base/ui/ListTab.h"

#include <QPushButton>
#include <QTableView>
#include <QtTest>

namespace {

class CountingTab : public ListTab
{
public:
    void reload() override { ++reloads; }
    int reloads = 0;
};

void SetCompany(const QString& name, const QString& taxNo)
{
    QVERIFY(Setup::write({{Col::SETUP_NAME, name}, {Col::SETUP_TAX_NO, taxNo}}));
}

void SetLoading(bool onStart, bool onTabChange)
{
    QVERIFY(Setup::write(
        {{Col::SETUP_LOAD_MAIN_WINDOW_DATA_ON_START, onStart ? "1" : "0"},
         {Col::SETUP_REFRESH_MAIN_WINDOW_DATA_ON_TAB_CHANGE, onTabChange ? "1" : "0"}}));
}

} // namespace

class TestMainWindow : public CompanyTestCase
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        CompanyTestCase::init();
        BaseFolder::set(m_company->dir() + "/base");
        QVERIFY(QDir().mkpath(BaseFolder::backupFolder()) && QDir().mkpath(BaseFolder::dbFolder()));
        SetLoading(false, false);
    }

    void cleanup()
    {
        m_window.reset();
        m_counted.clear();
        m_messages.clear();
        CompanyTestCase::cleanup();
    }

    void listLoading_data()
    {
        AddColumns<bool, bool>({"onStart", "onTabChange"});
        // Reads of the orders and products lists after: opening, showing products, back to orders,
        // products again.
        AddColumns<QList<int>, QList<int>>({"orders", "products"});
        AddRow("both off", false, false, QList<int>{0, 0, 0, 0}, QList<int>{0, 0, 0, 0});
        AddRow("on start", true, false, QList<int>{1, 1, 1, 1}, QList<int>{0, 1, 1, 1});
        AddRow("on tab change", false, true, QList<int>{0, 0, 1, 1}, QList<int>{0, 1, 1, 2});
        AddRow("both on", true, true, QList<int>{1, 1, 2, 2}, QList<int>{0, 1, 1, 2});
    }

    void listLoading()
    {
        auto [onStart, onTabChange, orders, products] = Fetch<bool, bool, QList<int>, QList<int>>(
            {"onStart", "onTabChange", "orders", "products"});
        SetLoading(onStart, onTabChange);
        MainWindow& window = open({MainTab::Orders, MainTab::Products});
        window.show();
        QList<int> seenOrders{reloads(MainTab::Orders)};
        QList<int> seenProducts{reloads(MainTab::Products)};
        for (MainTab tab : {MainTab::Products, MainTab::Orders, MainTab::Products}) {
            window.showTab(tab);
            seenOrders << reloads(MainTab::Orders);
            seenProducts << reloads(MainTab::Products);
        }
        QCOMPARE(seenOrders, orders);
        QCOMPARE(seenProducts, products);
    }

    // Issuing in the orders list makes cheques: a cheque list read before is read again when
    // shown, without waiting for the refresh-on-tab-change setting.
    void changeInOneListRereadsTheOthers()
    {
        SetLoading(true, false);
        MainWindow& window = open({MainTab::Orders, MainTab::Products, MainTab::Cheques});
        window.show();
        window.showTab(MainTab::Cheques);
        window.showTab(MainTab::Orders);
        Q_EMIT m_counted.at(MainTab::Orders)->dataChanged();
        window.showTab(MainTab::Cheques);
        window.showTab(MainTab::Products);
        QCOMPARE(reloads(MainTab::Cheques), 2);
        QCOMPARE(reloads(MainTab::Products), 1);
        QCOMPARE(reloads(MainTab::Orders), 1);
    }

    // The lists must never go on showing the rows of the company that was left.
    void changeCompanyCommand()
    {
        const QString first = BaseFolder::dbFolder() + "/elso.db";
        const QString second = BaseFolder::dbFolder() + "/masodik.db";
        SetCompany("Első Kft", "11111111-1-11");
        QVERIFY(QFile::copy(m_company->path(), first) && QFile::copy(m_company->path(), second));
        QVERIFY(Database::open(second));
        SetCompany("Második Kft", "22222222-2-22");
        QVERIFY(Database::open(first));
        MainWindow& window = open({MainTab::Orders, MainTab::Partners, MainTab::Cheques});
        window.showTab(MainTab::Partners);
        QCOMPARE(reloads(MainTab::Partners), 0);

        // The offered list and the message are checked by tst_companies.
        ModalDriver driver({[](QWidget* w) {
                                Child<QTableView>(w, "m_list")->selectRow(1);
                                Child<QPushButton>(w, "m_ok")->click();
                            },
                            Answer(&m_messages)});
        window.action(MainCommand::ChangeCompany)->trigger();
        QVERIFY(driver.done());
        QVERIFY(window.windowTitle().contains("Második Kft"));
        QCOMPARE(window.companyFile(), second);
        // The shown list is read at once, one seen before when shown again, one never seen not at
        // all.
        QCOMPARE(reloads(MainTab::Partners), 1);
        QCOMPARE(reloads(MainTab::Orders), 0);
        window.showTab(MainTab::Orders);
        QCOMPARE(reloads(MainTab::Orders), 1);
        window.showTab(MainTab::Cheques);
        QCOMPARE(reloads(MainTab::Cheques), 0);
    }

private:
    // The window on the test company with every command, counting pages on the tabs given.
    MainWindow& open(std::initializer_list<MainTab> counted = {MainTab::Orders});
    int reloads(MainTab tab) { return m_counted.at(tab)->reloads; }

    std::unique_ptr<MainWindow> m_window;
    std::map<MainTab, CountingTab*> m_counted;
    QStringList m_messages;
};

MainWindow& TestMainWindow::open(std::initializer_list<MainTab> counted)
{
    m_window = std::make_unique<MainWindow>();
    RegisterCommands(*m_window);
    for (MainTab tab : counted) {
        m_counted[tab] = new CountingTab;
        m_window->setTabPage(tab, m_counted[tab]);
    }
    m_window->companyChanged();
    return *m_window;
}

QTEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
