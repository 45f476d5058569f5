// A new user's first hour, through the real main window and its menus: the program opens on the
// demonstration company; a VAT key, a currency with its bank account, a payment method with its
// English and German texts, a partner and a product with a euro price are added and found again;
// a backup is made and restored. The rows are then checked in the database.
// With TALLYNORTH_GRAB_DIR set, every window is also saved there as PNG for a person to look at
// (run with TALLYNORTH_LANG=hu to see them in Hungarian).
#include "ModalDriver.h"
#include "ScriptedInteraction.h"

#include "app/BaseFolder.h"
#include "app/CompanyCreate.h"
#include "app/Database.h"
#include "app/Language.h"
#include "app/SqlStatement.h"
#include "app/ui/ListTab.h"
#include "app/ui/MainWindow.h"
#include "app/ui/RegisterCommands.h"
#include "app/ui/Startup.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QSqlRecord>
#include <QTabWidget>
#include <QTableView>
#include <QtTest>

namespace {

int g_shot = 0;

// Saves what w shows, when pictures are asked for.
void Grab(QWidget* w, const QString& name)
{
    const QString folder = qEnvironmentVariable("TALLYNORTH_GRAB_DIR");
    if (folder.isEmpty())
        return;
    QDir().mkpath(folder);
    QCoreApplication::processEvents();
    const QString file =
        QStringLiteral("%1/%2-%3.png").arg(folder).arg(++g_shot, 2, 10, QChar(u'0')).arg(name);
    w->grab().save(file);
}

// Each page of a tabbed dialog, in turn.
void GrabTabs(QWidget* dialog, const QString& name)
{
    auto* tabs = dialog->findChild<QTabWidget*>(QStringLiteral("m_tabs"));
    if (!tabs) {
        Grab(dialog, name);
        return;
    }
    for (int i = 0; i < tabs->count(); ++i) {
        tabs->setCurrentIndex(i);
        Grab(dialog, name + QLatin1String("-tab") + QString::number(i + 1));
    }
    tabs->setCurrentIndex(0);
}

void ClickLater(QWidget* parent, const char* button)
{
    QPushButton* b = Child<QPushButton>(parent, button);
    Later([b] { b->click(); });
}

void OkLater(QWidget* dialog)
{
    QPushButton* ok = Child<QDialogButtonBox>(dialog, "m_buttons")->button(QDialogButtonBox::Ok);
    Later([ok] { ok->click(); });
}

void CancelLater(QWidget* dialog)
{
    QPushButton* cancel =
        Child<QDialogButtonBox>(dialog, "m_buttons")->button(QDialogButtonBox::Cancel);
    Later([cancel] { cancel->click(); });
}

// Key presses where QTest can make them (ASCII); other letters arrive as typed text does.
void TypeInto(QLineEdit* edit, const QString& text)
{
    edit->selectAll();
    bool ascii = true;
    for (QChar c : text)
        ascii = ascii && c.unicode() < 128;
    if (ascii)
        QTest::keyClicks(edit, text);
    else
        edit->insert(text);
}

void Type(QWidget* parent, const char* field, const QString& text)
{
    TypeInto(Child<QLineEdit>(parent, field), text);
}

// Shows the tab pages that hold w, as the user does before typing into it.
void BringForward(QWidget* w)
{
    for (QWidget* page = w; page && page->parentWidget(); page = page->parentWidget()) {
        if (auto* tabs = qobject_cast<QTabWidget*>(page->parentWidget()->parentWidget()))
            tabs->setCurrentWidget(page);
    }
}

// Puts text into a cell the user can type into, as its editor does when Enter is pressed.
void TypeInCell(QTableView* view, int row, int column, const QString& text)
{
    BringForward(view);
    const QModelIndex index = view->model()->index(row, column);
    QVERIFY(view->model()->flags(index).testFlag(Qt::ItemIsEditable));
    QVERIFY(view->model()->setData(index, text));
}

int RowOf(const QAbstractItemModel* model, int column, const QString& text)
{
    for (int r = 0; r < model->rowCount(); ++r) {
        if (model->index(r, column).data().toString() == text)
            return r;
    }
    return -1;
}

QStringList ColumnTexts(const QAbstractItemModel* model, int column)
{
    QStringList texts;
    for (int r = 0; r < model->rowCount(); ++r)
        texts << model->index(r, column).data().toString();
    return texts;
}

QVariantList Row(const QString& sql, const QVariantList& values = {})
{
    SqlStatement st(sql, values);
    QVariantList row;
    if (!st.exec() || !st.next())
        return row;
    for (int i = 0; i < st.query().record().count(); ++i)
        row << st.value(i);
    return row;
}

// A list opened from the menu: its rows, a step for the dialog it opens, and a close.
QList<ModalDriver::Step> ListAdd(const QString& name, ModalDriver::Step fillDialog)
{
    return {[name](QWidget* list) {
                Grab(list, name + QLatin1String("-list"));
                ClickLater(list, "m_new");
            },
            [name, fillDialog](QWidget* dialog) {
                // The user types at once into the first field, also in a tabbed dialog.
                QCOMPARE(dialog->focusWidget(), Child<QLineEdit>(dialog, "m_name"));
                fillDialog(dialog);
                GrabTabs(dialog, name + QLatin1String("-new"));
                OkLater(dialog);
            },
            [name](QWidget* list) {
                Grab(list, name + QLatin1String("-list-added"));
                // Read again while shown, the columns still fill the list exactly.
                auto* view = Child<QTableView>(list, "m_list");
                QCOMPARE(view->horizontalHeader()->length(), view->viewport()->width());
                ClickLater(list, "m_cancel");
            }};
}

} // namespace

class TestNewUser : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void opensOnDemoCompany();
    void addVatKey();
    void addCurrencyWithBankAccount();
    void addPaymentMethodWithTranslations();
    void addPartnerAndFindIt();
    void addProductWithEuroPrice();
    void otherBasicDataWindows();
    void backupAndRestoreFromMenu();
    void newCompanyFromMenu();

private:
    QTableView* list(MainTab tab) const
    {
        return Child<QTableView>(m_window->tabPage(tab), "m_list");
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
    QCOMPARE(m_window->windowTitle(),
             QStringLiteral("Vantrell Invoicer - Minta Kereskedelmi Kft. (adószám:12345676-2-41)"));
    QCOMPARE(m_window->companyFile(), BaseFolder::dbFolder() + QLatin1String("/demo.db"));
    Grab(m_window.get(), QStringLiteral("main-orders"));
    // The demonstration company loads its lists on start: each tab is filled when shown.
    m_window->showTab(MainTab::Products);
    QCOMPARE(ColumnTexts(list(MainTab::Products)->model(), 1), QStringList{"Teszt termék"});
    Grab(m_window.get(), QStringLiteral("main-products"));
    m_window->showTab(MainTab::Partners);
    QCOMPARE(ColumnTexts(list(MainTab::Partners)->model(), 1), QStringList{"Teszt Partner Kft"});
    Grab(m_window.get(), QStringLiteral("main-partners"));
    m_window->showTab(MainTab::Cheques);
    Grab(m_window.get(), QStringLiteral("main-cheques"));
    m_window->showTab(MainTab::Orders);

    for (QAction* top : m_window->menuBar()->actions()) {
        QMenu* menu = top->menu();
        menu->popup(m_window->mapToGlobal(QPoint(0, 0)));
        Grab(menu, QLatin1String("menu-") +
                       QString::number(m_window->menuBar()->actions().indexOf(top) + 1));
        menu->hide();
    }
}

void TestNewUser::addVatKey()
{
    ModalDriver driver(ListAdd(QStringLiteral("vat"), [](QWidget* dialog) {
        Type(dialog, "m_name", QStringLiteral("12% kedvezményes"));
        Type(dialog, "m_percent", QStringLiteral("12"));
    }));
    m_window->action(MainCommand::VatKeys)->trigger();
    QVERIFY(driver.done());
    QCOMPARE(Row(QStringLiteral("select VAT_PERCENT, count(*) from VAT where VAT_NAME = ?"),
                 {QStringLiteral("12% kedvezményes")}),
             (QVariantList{12.0, 1}));
}

void TestNewUser::addCurrencyWithBankAccount()
{
    ModalDriver driver(ListAdd(QStringLiteral("currency"), [](QWidget* dialog) {
        Type(dialog, "m_name", QStringLiteral("Svájci frank"));
        Type(dialog, "m_abbreviation", QStringLiteral("CHF"));
        Type(dialog, "m_rate", QStringLiteral("412,35"));
        Child<QCheckBox>(dialog, "m_bank_by_setup")->setChecked(false);
        Type(dialog, "m_bank_name", QStringLiteral("Erste Bank Hungary Zrt."));
        Type(dialog, "m_bank_acct_no", QStringLiteral("11600006-00000000-12345678"));
        Type(dialog, "m_bank_swift", QStringLiteral("GIBAHUHB"));
        Type(dialog, "m_bank_iban", QStringLiteral("HU42 1160 0006 0000 0000 1234 5678"));
    }));
    m_window->action(MainCommand::Currencies)->trigger();
    QVERIFY(driver.done());
    QCOMPARE(Row(QStringLiteral("select CURRENCY_NAME, CURRENCY_RATE, CURRENCY_BANK_BY_SETUP, "
                                "CURRENCY_BANK_NAME, CURRENCY_BANK_ACCT_NO, CURRENCY_BANK_SWIFT, "
                                "CURRENCY_BANK_IBAN, CURRENCY_INVOICE_TOTAL_ROUNDING_DECIMALS "
                                "from CURRENCYY where CURRENCY_ABBREVIATION = 'CHF'")),
             (QVariantList{QStringLiteral("Svájci frank"), 412.35, QStringLiteral("0"),
                           QStringLiteral("Erste Bank Hungary Zrt."),
                           QStringLiteral("11600006-00000000-12345678"), QStringLiteral("GIBAHUHB"),
                           QStringLiteral("HU42 1160 0006 0000 0000 1234 5678"), 2}));
}

void TestNewUser::addPaymentMethodWithTranslations()
{
    ModalDriver driver(ListAdd(QStringLiteral("paymentmethod"), [](QWidget* dialog) {
        Type(dialog, "m_name", QStringLiteral("Átutalás 15 napra"));
        auto* days = Child<QSpinBox>(dialog, "m_due_days");
        days->selectAll();
        QTest::keyClicks(days, QStringLiteral("15"));
        Child<QPlainTextEdit>(dialog, "m_comment_text")
            ->insertPlainText(QStringLiteral("Kérjük, a számla számára hivatkozva utaljon."));
        auto* view = Child<QTableView>(dialog, "m_translations");
        const int english = RowOf(view->model(), 0, QStringLiteral("Angol"));
        const int german = RowOf(view->model(), 0, QStringLiteral("Német"));
        QVERIFY(english >= 0 && german >= 0);
        TypeInCell(view, english, 1, QStringLiteral("Bank transfer, 15 days"));
        TypeInCell(view, english, 2, QStringLiteral("Please quote the invoice number."));
        TypeInCell(view, german, 1, QStringLiteral("Überweisung, 15 Tage"));
        TypeInCell(view, german, 2, QStringLiteral("Bitte geben Sie die Rechnungsnummer an."));
    }));
    m_window->action(MainCommand::PaymentMethods)->trigger();
    QVERIFY(driver.done());
    const QVariantList method =
        Row(QStringLiteral("select PAYMENTMETHOD_ID, PAYMENTMETHOD_DUE_DAYS, "
                           "PAYMENTMETHOD_COMMENT_TEXT from PAYMENTMETHOD where "
                           "PAYMENTMETHOD_NAME = ?"),
            {QStringLiteral("Átutalás 15 napra")});
    QCOMPARE(method.mid(1), (QVariantList{15, QStringLiteral("Kérjük, a számla számára "
                                                             "hivatkozva utaljon.")}));
    const QString translation =
        QStringLiteral("select PAYMENTMETHODTRANSLATION_NAME, PAYMENTMETHODTRANSLATION_COMMENT "
                       "from PAYMENTMETHODTRANSLATION where "
                       "PAYMENTMETHODTRANSLATION_PAYMENTMETHOD_ID = ? and "
                       "PAYMENTMETHODTRANSLATION_LANG_ID = ?");
    QCOMPARE(Row(translation, {method.value(0), 1}),
             (QVariantList{QStringLiteral("Bank transfer, 15 days"),
                           QStringLiteral("Please quote the invoice number.")}));
    QCOMPARE(Row(translation, {method.value(0), 2}),
             (QVariantList{QStringLiteral("Überweisung, 15 Tage"),
                           QStringLiteral("Bitte geben Sie die Rechnungsnummer an.")}));
}

void TestNewUser::addPartnerAndFindIt()
{
    m_window->showTab(MainTab::Partners);
    ListTab* page = m_window->tabPage(MainTab::Partners);
    ModalDriver driver({[](QWidget* dialog) {
        QCOMPARE(dialog->focusWidget(), Child<QLineEdit>(dialog, "m_name"));
        Type(dialog, "m_name", QStringLiteral("Árvíztűrő Kft."));
        Type(dialog, "m_zip", QStringLiteral("9021"));
        Type(dialog, "m_city", QStringLiteral("Győr"));
        Type(dialog, "m_address", QStringLiteral("Baross Gábor út 12."));
        Type(dialog, "m_tax_no", QStringLiteral("24681357-2-08"));
        auto* method = Child<QComboBox>(dialog, "m_paymentmethod_id");
        method->setCurrentIndex(method->findText(QStringLiteral("Átutalás 15 napra")));
        QVERIFY(method->currentIndex() > 0);
        GrabTabs(dialog, QStringLiteral("partner-new"));
        OkLater(dialog);
    }});
    Child<QPushButton>(page, "m_new")->click();
    QVERIFY(driver.done());

    auto* name = Child<QLineEdit>(page, "m_name");
    QTest::keyClicks(name, QStringLiteral("arv"));
    QTest::keyClick(name, Qt::Key_Return);
    QCOMPARE(ColumnTexts(list(MainTab::Partners)->model(), 1), QStringList{"Árvíztűrő Kft."});
    Grab(m_window.get(), QStringLiteral("main-partners-found"));
    QCOMPARE(Row(QStringLiteral("select P.PARTNER_NAME_ASCII, P.PARTNER_CITY, M.PAYMENTMETHOD_NAME "
                                "from PARTNER P join PAYMENTMETHOD M on "
                                "M.PAYMENTMETHOD_ID = P.PARTNER_PAYMENTMETHOD_ID "
                                "where P.PARTNER_NAME = ?"),
                 {QStringLiteral("Árvíztűrő Kft.")}),
             (QVariantList{QStringLiteral("ARVIZTURO KFT."), QStringLiteral("Győr"),
                           QStringLiteral("Átutalás 15 napra")}));
}

void TestNewUser::addProductWithEuroPrice()
{
    m_window->showTab(MainTab::Products);
    ListTab* page = m_window->tabPage(MainTab::Products);
    QString gross, calculated;
    ModalDriver driver({[&](QWidget* dialog) {
        QCOMPARE(dialog->focusWidget(), Child<QLineEdit>(dialog, "m_name"));
        Type(dialog, "m_name", QStringLiteral("Pálinka díszdobozban"));
        Type(dialog, "m_unit", QStringLiteral("db"));
        auto* vat = Child<QComboBox>(dialog, "m_vat_id");
        vat->setCurrentIndex(vat->findText(QStringLiteral("27%")));
        Type(dialog, "m_price", QStringLiteral("10000"));
        gross = Child<QLineEdit>(dialog, "m_gross_price")->text();
        auto* translations = Child<QTableView>(dialog, "m_translations");
        const int english = RowOf(translations->model(), 0, QStringLiteral("Angol"));
        TypeInCell(translations, english, 1, QStringLiteral("Fruit brandy in gift box"));
        TypeInCell(translations, english, 3, QStringLiteral("pcs"));
        auto* prices = Child<QTableView>(dialog, "m_prices");
        const int euro = RowOf(prices->model(), 0, QStringLiteral("EUR"));
        QVERIFY(euro >= 0);
        calculated = prices->model()->index(euro, 2).data().toString();
        TypeInCell(prices, euro, 3, QStringLiteral("32,5"));
        GrabTabs(dialog, QStringLiteral("product-new"));
        OkLater(dialog);
    }});
    Child<QPushButton>(page, "m_new")->click();
    QVERIFY(driver.done());
    // 10000 Ft with 27% VAT; in euro at 280 Ft: 35.714... rounded to 2 decimals.
    QCOMPARE(QLocale().toDouble(gross), 12700.0);
    QCOMPARE(QLocale().toDouble(calculated), 35.71);

    const QVariantList product =
        Row(QStringLiteral("select PRODUCT_ID, PRODUCT_NAME_ASCII, PRODUCT_PRICE, VAT_PERCENT from "
                           "PRODUCT join VAT on VAT_ID = PRODUCT_VAT_ID where PRODUCT_NAME = ?"),
            {QStringLiteral("Pálinka díszdobozban")});
    QCOMPARE(product.mid(1), (QVariantList{QStringLiteral("PALINKA DISZDOBOZBAN"), 10000.0, 27.0}));
    QCOMPARE(Row(QStringLiteral("select PRODUCTPRICE_PRICE from PRODUCTPRICE where "
                                "PRODUCTPRICE_PRODUCT_ID = ? and PRODUCTPRICE_CURRENCY_ID = 1"),
                 {product.value(0)}),
             QVariantList{32.5});
    QCOMPARE(Row(QStringLiteral("select PRODUCTTRANSLATION_NAME, PRODUCTTRANSLATION_UNIT from "
                                "PRODUCTTRANSLATION where PRODUCTTRANSLATION_PRODUCT_ID = ? and "
                                "PRODUCTTRANSLATION_LANG_ID = 1"),
                 {product.value(0)}),
             (QVariantList{QStringLiteral("Fruit brandy in gift box"), QStringLiteral("pcs")}));

    auto* name = Child<QLineEdit>(page, "m_name");
    QTest::keyClicks(name, QStringLiteral("pal"));
    QTest::keyClick(name, Qt::Key_Return);
    const QAbstractItemModel* model = list(MainTab::Products)->model();
    QCOMPARE(ColumnTexts(model, 1), QStringList{"Pálinka díszdobozban"});
    const int last = model->columnCount() - 1;
    QVERIFY(model->headerData(last, Qt::Horizontal).toString().endsWith(QLatin1String("(EUR)")));
    QCOMPARE(model->rowCount(), 1);
    QCOMPARE(QLocale().toDouble(model->index(0, last).data().toString()), 32.5);
    Grab(m_window.get(), QStringLiteral("main-products-found"));
}

// The lists not used above, each with an edit dialog; the country dialog chooses the currency
// added before through its "Currencies..." list.
void TestNewUser::otherBasicDataWindows()
{
    const auto look = [](const QString& name, const char* button) {
        return QList<ModalDriver::Step>{[name, button](QWidget* list) {
                                            Grab(list, name + QLatin1String("-list"));
                                            Child<QTableView>(list, "m_list")->selectRow(0);
                                            ClickLater(list, button);
                                        },
                                        [name](QWidget* dialog) {
                                            GrabTabs(dialog, name + QLatin1String("-edit"));
                                            CancelLater(dialog);
                                        },
                                        [](QWidget* list) { ClickLater(list, "m_cancel"); }};
    };
    struct Case
    {
        MainCommand command;
        QString name;
        const char* button;
    };
    const Case cases[] = {{MainCommand::NoVatReasons, QStringLiteral("novatreason"), "m_edit"},
                          {MainCommand::StatNumbers, QStringLiteral("statno"), "m_new"},
                          {MainCommand::Languages, QStringLiteral("language"), "m_edit"}};
    for (const Case& c : cases) {
        ModalDriver driver(look(c.name, c.button));
        m_window->action(c.command)->trigger();
        QVERIFY2(driver.done(), qPrintable(c.name));
    }

    QString chosenCurrency;
    ModalDriver driver({[](QWidget* list) {
                            Grab(list, QStringLiteral("country-list"));
                            Child<QTableView>(list, "m_list")->selectRow(0);
                            ClickLater(list, "m_edit");
                        },
                        [](QWidget* dialog) {
                            Grab(dialog, QStringLiteral("country-edit"));
                            ClickLater(dialog, "m_currencies");
                        },
                        [](QWidget* chooser) {
                            Grab(chooser, QStringLiteral("country-currency-chooser"));
                            auto* view = Child<QTableView>(chooser, "m_list");
                            view->selectRow(RowOf(view->model(), 1, QStringLiteral("CHF")));
                            ClickLater(chooser, "m_ok");
                        },
                        [&chosenCurrency](QWidget* dialog) {
                            chosenCurrency =
                                Child<QComboBox>(dialog, "m_currency_id")->currentText();
                            CancelLater(dialog);
                        },
                        [](QWidget* list) { ClickLater(list, "m_cancel"); }});
    m_window->action(MainCommand::Countries)->trigger();
    QVERIFY(driver.done());
    QCOMPARE(chosenCurrency, QStringLiteral("Svájci frank"));
}

// The backup keeps the day's work; what is done after it is undone by the restore.
void TestNewUser::backupAndRestoreFromMenu()
{
    const QString backup = BaseFolder::backupFolder() + QLatin1String("/demo.dbk");
    QStringList messages;
    ModalDriver saving({[](QWidget* dialog) {
                            Grab(dialog, QStringLiteral("backup-file-dialog"));
                            Later([dialog] { static_cast<QDialog*>(dialog)->accept(); });
                        },
                        [&messages](QWidget* box) {
                            Grab(box, QStringLiteral("backup-saved"));
                            Answer (&messages)(box);
                        }});
    m_window->action(MainCommand::DoBackup)->trigger();
    QVERIFY(saving.done());
    QVERIFY(QFile::exists(backup));

    QVERIFY(ExecSql(QStringLiteral("delete from PARTNER where PARTNER_NAME = ?"),
                    {QStringLiteral("Árvíztűrő Kft.")}));
    ModalDriver restoring({[&messages](QWidget* box) {
                               Grab(box, QStringLiteral("restore-question"));
                               Answer(&messages, QMessageBox::Yes)(box);
                           },
                           ChooseFile(backup),
                           [&messages](QWidget* box) {
                               Grab(box, QStringLiteral("restore-done"));
                               Answer (&messages)(box);
                           }});
    m_window->action(MainCommand::RestoreBackup)->trigger();
    QVERIFY(restoring.done());
    QCOMPARE(messages.size(), 3);
    QVERIFY(Database::isOpen());
    QCOMPARE(Row(QStringLiteral("select count(*) from PARTNER where PARTNER_NAME_ASCII like ?"),
                 {QStringLiteral("ARV%")}),
             QVariantList{1});
    QCOMPARE(m_window->windowTitle(),
             QStringLiteral("Vantrell Invoicer - Minta Kereskedelmi Kft. (adószám:12345676-2-41)"));
    // The partner list shows the restored rows.
    m_window->showTab(MainTab::Partners);
    QVERIFY(ColumnTexts(list(MainTab::Partners)->model(), 1)
                .contains(QStringLiteral("Árvíztűrő Kft.")));
}

// The user's own company is made from the File menu and worked on at once; the lists follow it.
// The demonstration company's tax number, typed by mistake, is refused and the data kept.
void TestNewUser::newCompanyFromMenu()
{
    m_window->showTab(MainTab::Partners);
    QStringList messages;
    const auto answer = [&messages](const QString& name, QMessageBox::StandardButton button) {
        return [&messages, name, button](QWidget* box) {
            Grab(box, name);
            Answer(&messages, button)(box);
        };
    };
    ModalDriver creating({[](QWidget* dialog) {
                              Type(dialog, "m_name", QStringLiteral("Kovács és Társa Bt."));
                              Type(dialog, "m_tax_no", QStringLiteral("12345676-2-41"));
                              Type(dialog, "m_zip", QStringLiteral("6720"));
                              Type(dialog, "m_city", QStringLiteral("Szeged"));
                              Type(dialog, "m_address", QStringLiteral("Kárász utca 5."));
                              Grab(dialog, QStringLiteral("newcompany"));
                              OkLater(dialog);
                          },
                          answer(QStringLiteral("newcompany-taxno-taken"), QMessageBox::Ok),
                          [](QWidget* dialog) {
                              QCOMPARE(Child<QLineEdit>(dialog, "m_name")->text(),
                                       QStringLiteral("Kovács és Társa Bt."));
                              Type(dialog, "m_tax_no", QStringLiteral("11223344-2-13"));
                              OkLater(dialog);
                          },
                          answer(QStringLiteral("newcompany-question"), QMessageBox::Yes),
                          answer(QStringLiteral("newcompany-changed"), QMessageBox::Ok)});
    m_window->action(MainCommand::NewCompany)->trigger();
    QVERIFY(creating.done());
    QCOMPARE(messages.size(), 3);
    QCOMPARE(m_window->windowTitle(),
             QStringLiteral("Vantrell Invoicer - Kovács és Társa Bt. (adószám:11223344-2-13)"));
    QCOMPARE(QFileInfo(m_window->companyFile()).fileName(),
             QStringLiteral("kovacs_es_tarsa_bt.db"));
    QVERIFY(!ColumnTexts(list(MainTab::Partners)->model(), 1)
                 .contains(QStringLiteral("Árvíztűrő Kft.")));
    Grab(m_window.get(), QStringLiteral("main-newcompany"));

    // The demonstration company now stays out of the list: there is nothing to change to.
    ModalDriver changing({answer(QStringLiteral("change-only-one"), QMessageBox::Ok)});
    m_window->action(MainCommand::ChangeCompany)->trigger();
    QVERIFY(changing.done());
    QCOMPARE(messages.size(), 4);
    QCOMPARE(QFileInfo(m_window->companyFile()).fileName(),
             QStringLiteral("kovacs_es_tarsa_bt.db"));
}

QTEST_MAIN(TestNewUser)
#include "tst_newuser.moc"
