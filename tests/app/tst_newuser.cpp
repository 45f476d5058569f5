// A new user's first hour, through the real main window and its menus: the program opens on the
// demonstration company, the basic data lists open their dialogs, a currency with its own bank
// account is added, a country chooses its currency, and the user's own company is made.
#include "ModalDriver.h"
#include "ScriptedInteraction.h"
#include "TestData.h"

#include "app/BaseFolder.h"
#include "app/CompanyCreate.h"
#include "app/Language.h"
#include "app/ui/MainWindow.h"
#include "app/ui/RegisterCommands.h"
#include "app/ui/Startup.h"
#include "base/Database.h"
#include "base/SqlStatement.h"
#include "base/ui/ListTab.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTranslator>
#include <QtTest>

namespace {

const char kDemoTitle[] = "Vantrell Invoicer - Minta Kereskedelmi Kft. (adószám:12345676-2-41)";

void ClickLater(QWidget* parent, const char* button)
{
    QPushButton* b = Child<QPushButton>(parent, button);
    Later([b] { b->click(); });
}

void ButtonLater(QWidget* dialog, QDialogButtonBox::StandardButton which)
{
    QPushButton* b = Child<QDialogButtonBox>(dialog, "m_buttons")->button(which);
    Later([b] { b->click(); });
}

// Key presses where QTest can make them (ASCII); other letters arrive as typed text does.
void Type(QWidget* parent, const char* field, const QString& text)
{
    auto* edit = Child<QLineEdit>(parent, field);
    edit->selectAll();
    if (std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 128; }))
        QTest::keyClicks(edit, text);
    else
        edit->insert(text);
}

} // namespace

class TestNewUser : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void opensOnDemoCompany();
    void basicDataWindowsOpen_data();
    void basicDataWindowsOpen();
    void addCurrencyWithBankAccount();
    void countryChoosesItsCurrencyFromTheList();
    void newCompanyFromMenu();
    void bothLanguagesReadProperly_data();
    void bothLanguagesReadProperly();

private:
    QStringList listed(MainTab tab) const
    {
        m_window->showTab(tab);
        return ColumnTexts(Child<QTableView>(m_window->tabPage(tab), "m_list")->model(), 1);
    }

    QTemporaryDir m_base;
    std::unique_ptr<MainWindow> m_window;
};

void TestNewUser::initTestCase()
{
    InstallLanguage(ChooseLanguage({}));
    QVERIFY(m_base.isValid());
    BaseFolder::set(m_base.path());
    QVERIFY(BaseFolder::ensureExists());
    ScriptedInteraction quiet;
    QVERIFY(CreateDemoCompany(BaseFolder::dbFolder(), quiet));
    // Only the demonstration company: it opens without a question.
    QVERIFY(StartUp({}));
    m_window = OpenMainWindow();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void TestNewUser::cleanupTestCase()
{
    m_window.reset();
    Database::close();
}

void TestNewUser::opensOnDemoCompany()
{
    QCOMPARE(m_window->windowTitle(), kDemoTitle);
    QCOMPARE(m_window->companyFile(), BaseFolder::dbFolder() + "/demo.db");
    // The demonstration company loads its lists on start: each tab is filled when shown.
    QCOMPARE(listed(MainTab::Products), QStringList{"Teszt termék"});
    QCOMPARE(listed(MainTab::Partners), QStringList{"Teszt Partner Kft"});
    // The program's translation is installed: captions written in Hungarian read in English.
    QCOMPARE(m_window->action(MainCommand::ImportOrders)->text(), "Import invoices from file");
}

// Source texts written in Hungarian without accents read properly in both languages, and the
// counts of the "used by" messages take their plural.
void TestNewUser::bothLanguagesReadProperly_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("context");
    QTest::addColumn<QString>("source");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("expected");
    AddRow("hu menu", "hu", "MainWindow", "Szamlak importalasa fajlbol", -1,
           "Számlák importálása fájlból");
    AddRow("en menu", "en", "MainWindow", "Szamlak importalasa fajlbol", -1,
           "Import invoices from file");
    AddRow("en dialog", "en", "PartnerEditLayout", "Levelezesi cim", -1, "Mailing Address");
    AddRow("en plural", "en", "VatTable", "This VAT key is used by %n product(s).", 3,
           "This VAT key is used by %n products.");
    AddRow("en singular", "en", "CurrencyTable", "This currency is used by %n country(s).", 1,
           "This currency is used by %n country.");
    AddRow("hu count", "hu", "VatTable", "This VAT key is used by %n product(s).", 3,
           "Ezt az ÁFA-kulcsot %n termék használja.");
}

void TestNewUser::bothLanguagesReadProperly()
{
    QFETCH(QString, language);
    QFETCH(QString, context);
    QFETCH(QString, source);
    QFETCH(int, count);
    QFETCH(QString, expected);
    QTranslator translator;
    QVERIFY(translator.load(":/i18n/tallyNorth_" + language + ".qm"));
    QCOMPARE(translator.translate(qPrintable(context), qPrintable(source), nullptr, count),
             expected);
}

void TestNewUser::basicDataWindowsOpen_data()
{
    QTest::addColumn<MainCommand>("command");
    QTest::addColumn<QString>("button");
    AddRow("stat numbers", MainCommand::StatNumbers, "m_new");
    AddRow("languages", MainCommand::Languages, "m_edit");
}

void TestNewUser::basicDataWindowsOpen()
{
    QFETCH(MainCommand, command);
    QFETCH(QString, button);
    ModalDriver driver({[button](QWidget* list) {
                            Child<QTableView>(list, "m_list")->selectRow(0);
                            ClickLater(list, qPrintable(button));
                        },
                        [](QWidget* dialog) { ButtonLater(dialog, QDialogButtonBox::Cancel); },
                        [](QWidget* list) { ClickLater(list, "m_cancel"); }});
    m_window->action(command)->trigger();
    QVERIFY(driver.done());
}

void TestNewUser::addCurrencyWithBankAccount()
{
    ModalDriver driver({[](QWidget* list) { ClickLater(list, "m_new"); },
                        [](QWidget* dialog) {
                            // The user types at once into the first field.
                            QCOMPARE(dialog->focusWidget(), Child<QLineEdit>(dialog, "m_name"));
                            Type(dialog, "m_name", "Svájci frank");
                            Type(dialog, "m_abbreviation", "CHF");
                            Type(dialog, "m_rate", "412,35");
                            Child<QCheckBox>(dialog, "m_bank_by_setup")->setChecked(false);
                            Type(dialog, "m_bank_name", "Erste Bank Hungary Zrt.");
                            Type(dialog, "m_bank_acct_no", "11600006-00000000-12345678");
                            Type(dialog, "m_bank_swift", "GIBAHUHB");
                            Type(dialog, "m_bank_iban", "HU42 1160 0006 0000 0000 1234 5678");
                            ButtonLater(dialog, QDialogButtonBox::Ok);
                        },
                        [](QWidget* list) {
                            // Read again while shown, the columns still fill the list exactly.
                            auto* view = Child<QTableView>(list, "m_list");
                            QCOMPARE(view->horizontalHeader()->length(), view->viewport()->width());
                            ClickLater(list, "m_cancel");
                        }});
    m_window->action(MainCommand::Currencies)->trigger();
    QVERIFY(driver.done());
    QCOMPARE(QueryText("select CURRENCY_NAME, CURRENCY_RATE, CURRENCY_BANK_BY_SETUP, "
                       "CURRENCY_BANK_NAME, CURRENCY_BANK_ACCT_NO, CURRENCY_BANK_SWIFT, "
                       "CURRENCY_BANK_IBAN, CURRENCY_INVOICE_TOTAL_ROUNDING_DECIMALS from "
                       "CURRENCYY where CURRENCY_ABBREVIATION = 'CHF'"),
             "Svájci frank|412.35|0|Erste Bank Hungary Zrt.|11600006-00000000-12345678|GIBAHUHB|"
             "HU42 1160 0006 0000 0000 1234 5678|2");
}

// The country dialog chooses its currency through its "Currencies..." list.
void TestNewUser::countryChoosesItsCurrencyFromTheList()
{
    QString chosen;
    ModalDriver driver({[](QWidget* list) {
                            Child<QTableView>(list, "m_list")->selectRow(0);
                            ClickLater(list, "m_edit");
                        },
                        [](QWidget* dialog) { ClickLater(dialog, "m_currencies"); },
                        [](QWidget* chooser) {
                            auto* view = Child<QTableView>(chooser, "m_list");
                            view->selectRow(ColumnTexts(view->model(), 1).indexOf("USD"));
                            ClickLater(chooser, "m_ok");
                        },
                        [&chosen](QWidget* dialog) {
                            chosen = Child<QComboBox>(dialog, "m_currency_id")->currentText();
                            ButtonLater(dialog, QDialogButtonBox::Cancel);
                        },
                        [](QWidget* list) { ClickLater(list, "m_cancel"); }});
    m_window->action(MainCommand::Countries)->trigger();
    QVERIFY(driver.done());
    QCOMPARE(chosen, "Amerikai Dollár");
}

// The user's own company is made from the File menu and worked on at once; the lists follow it.
// The demonstration company's tax number, typed by mistake, is refused and the data kept.
void TestNewUser::newCompanyFromMenu()
{
    QVERIFY(ExecSql("insert into PARTNER (PARTNER_NAME) values ('Demó Vevő Kft.')"));
    Child<QPushButton>(m_window->tabPage(MainTab::Partners), "m_find")->click();
    QVERIFY(listed(MainTab::Partners).contains("Demó Vevő Kft."));
    QStringList messages;
    ModalDriver creating({[](QWidget* dialog) {
                              Type(dialog, "m_name", "Kovács és Társa Bt.");
                              Type(dialog, "m_tax_no", "12345676-2-41");
                              Type(dialog, "m_city", "Szeged");
                              ButtonLater(dialog, QDialogButtonBox::Ok);
                          },
                          Answer(&messages),
                          [](QWidget* dialog) {
                              QCOMPARE(Child<QLineEdit>(dialog, "m_name")->text(),
                                       "Kovács és Társa Bt.");
                              Type(dialog, "m_tax_no", "11223344-2-13");
                              ButtonLater(dialog, QDialogButtonBox::Ok);
                          },
                          Answer(&messages, QMessageBox::Yes), Answer(&messages)});
    m_window->action(MainCommand::NewCompany)->trigger();
    QVERIFY(creating.done());
    QCOMPARE(messages.size(), 3);
    QCOMPARE(m_window->windowTitle(),
             "Vantrell Invoicer - Kovács és Társa Bt. (adószám:11223344-2-13)");
    QCOMPARE(QFileInfo(m_window->companyFile()).fileName(), "kovacs_es_tarsa_bt.db");
    QVERIFY(!listed(MainTab::Partners).contains("Demó Vevő Kft."));
}

QTEST_MAIN(TestNewUser)
#include "tst_newuser.moc"
