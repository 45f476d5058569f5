// The Webshop menu's windows: the authentication dialog filled from and giving back a login, and
// an import from a file started from the menu, up to its final message and the lists read again.
#include "CompanyTestCase.h"
#include "ModalDriver.h"
#include "TestData.h"
#include "WebshopDocs.h"

#include "base/Setup.h"
#include "base/ui/CommandHost.h"
#include "base/ui/GuiInteraction.h"
#include "webshop/ui/GuiWebshopInteraction.h"
#include "webshop/ui/WebshopCommands.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

namespace {

class FakeHost : public CommandHost
{
public:
    void setCommand(MainCommand command, std::function<void()> handler) override
    {
        handlers.insert(int(command), handler);
    }
    void setTabPage(MainTab, ListTab*) override {}
    void reloadTab(MainTab tab) override { reloaded << int(tab); }
    QWidget* hostWidget() override { return nullptr; }

    QHash<int, std::function<void()>> handlers;
    QList<int> reloaded;
};

} // namespace

class TestWebshopCommands : public CompanyTestCase
{
    Q_OBJECT
private Q_SLOTS:

    void authenticationDialog()
    {
        GuiInteraction gui;
        GuiWebshopInteraction ask(gui);
        QStringList seen;
        ModalDriver driver({[&seen](QWidget* w) {
            seen << Child<QLabel>(w, "m_message")->text() << Child<QLineEdit>(w, "m_url")->text()
                 << Child<QLineEdit>(w, "m_login")->text()
                 << Child<QLineEdit>(w, "m_password")->text();
            Child<QLineEdit>(w, "m_password")->setText("titok");
            Child<QCheckBox>(w, "m_save_password")->setChecked(true);
            Child<QPushButton>(w, "m_ok")->click();
        }});
        const auto login = ask.login("Wrong login name or password. Try again.",
                                     {"http://127.0.0.1/order.php", "bolt", "", false});
        QVERIFY(driver.done());
        QCOMPARE(seen.mid(1), QStringList({"http://127.0.0.1/order.php", "bolt", ""}));
        QVERIFY(seen.value(0).contains("Wrong login name or password."));
        QVERIFY(login);
        QCOMPARE(QStringList({login->url, login->login, login->password}),
                 QStringList({"http://127.0.0.1/order.php", "bolt", "titok"}));
        QVERIFY(login->savePassword);
    }

    void cancelledDialogGivesNoLogin()
    {
        GuiInteraction gui;
        GuiWebshopInteraction ask(gui);
        ModalDriver driver({[](QWidget* w) { Child<QPushButton>(w, "m_cancel")->click(); }});
        QVERIFY(!ask.login("x", {}));
        QVERIFY(driver.done());
    }

    void importOrdersFromTheMenu()
    {
        const QString path = m_company->dir() + "/orders.xml";
        QVERIFY(WriteFile(path, OrdersDoc({OrderXml("W1"), OrderXml("W2")})));
        FakeHost host;
        RegisterWebshopCommands(host);
        QCOMPARE(host.handlers.size(), 6);
        QStringList texts;
        ModalDriver driver({ChooseFile(path), Answer(&texts)});
        host.handlers.value(int(MainCommand::ImportOrders))();
        QVERIFY(driver.done());
        QCOMPARE(texts, QStringList({"2 db szamla importalasa sikerult."}));
        QCOMPARE(QueryText("select count(*) from ORDERHEAD where ORDERHEAD_CODE like 'W%'"),
                 QString("2"));
        QVERIFY(host.reloaded.contains(int(MainTab::Orders)));
    }
};

QTEST_MAIN(TestWebshopCommands)
#include "tst_webshopcommands.moc"
