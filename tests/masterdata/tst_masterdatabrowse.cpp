// The list windows and edit dialogs of the master data, driven on the offscreen platform.
#include "ScriptedInteraction.h"
#include "TestCompany.h"

#include "Columns.h"
#include "app/Setup.h"
#include "app/SqlStatement.h"
#include "masterdata/MasterTables.h"
#include "masterdata/ui/CountryEdit.h"
#include "masterdata/ui/CurrencyEdit.h"
#include "masterdata/ui/MasterBrowses.h"
#include "masterdata/ui/NumberEdit.h"
#include "masterdata/ui/PartnerEdit.h"
#include "masterdata/ui/ProductEdit.h"
#include "masterdata/ui/ProductPriceModel.h"
#include "masterdata/ui/RecordBrowse.h"
#include "masterdata/ui/RecordBrowseDlg.h"
#include "masterdata/ui/RecordFinder.h"
#include "masterdata/ui/RecordListModel.h"
#include "masterdata/ui/TranslationModel.h"

#include <QAbstractItemModelTester>
#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableView>
#include <QtTest>

using namespace Col;

Q_DECLARE_METATYPE(MasterTable)

namespace {

QString N(const char* column)
{
    return QString::fromLatin1(column);
}

template <class T> T* Child(QWidget* parent, const char* name)
{
    T* child = parent->findChild<T*>(QString::fromLatin1(name));
    if (!child)
        qFatal("no child %s", name);
    return child;
}

QStringList ColumnTexts(const QAbstractItemModel* model, int column)
{
    QStringList texts;
    for (int r = 0; r < model->rowCount(); ++r)
        texts << model->index(r, column).data().toString();
    return texts;
}

} // namespace

class TestMasterDataBrowse : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void everyListModelIsConsistent_data();
    void everyListModelIsConsistent();
    void chooseModeReturnsTheId();
    void chooseWithoutSelectionTellsWhy();
    void codeColumnsFollowTheSetting_data();
    void codeColumnsFollowTheSetting();
    void deleteAsksAndKeepsHomeRows();
    void partnerSearchFoldsAndLimits();
    void addVatThroughTheDialog();
    void editTitleNamesTheRow();
    void vanishedRowIsReported();
    void requiredFieldBringsItsTabForward();
    void printingDecimalsCapRounding_data();
    void printingDecimalsCapRounding();
    void rateLabelFollowsAbbreviation();
    void mailAddressMirrorsBilling();
    void translationsSavedPerLanguage();
    void enterMovesToNextFieldWhenSet();
    void partnerFinderPicksOrStaysText();
    void netAndGrossPriceKeptInStep();
    void priceGridCalculatesAndOverrides();
    void productListAndFinderShowForeignPrice();
    void numberEditReadsBothSeparators_data();
    void numberEditReadsBothSeparators();

private:
    std::unique_ptr<TestCompany> m_company;
    ScriptedInteraction m_ui;
};

void TestMasterDataBrowse::init()
{
    m_company = std::make_unique<TestCompany>();
    QVERIFY(m_company->isValid());
    QVERIFY(Setup::current().load());
    m_ui = ScriptedInteraction();
}

void TestMasterDataBrowse::cleanup()
{
    m_company.reset();
}

void TestMasterDataBrowse::everyListModelIsConsistent_data()
{
    QTest::addColumn<MasterTable>("table");
    QTest::addColumn<int>("rows");
    QTest::newRow("vat") << MasterTable::Vat << 9;
    QTest::newRow("currency") << MasterTable::Currency << 3;
    QTest::newRow("payment method") << MasterTable::PaymentMethod << 2;
    QTest::newRow("no-vat reason") << MasterTable::NoVatReason << 1;
    QTest::newRow("stat no") << MasterTable::StatNo << 0;
    QTest::newRow("language") << MasterTable::Lang << 2;
    QTest::newRow("country") << MasterTable::Country << 6;
    QTest::newRow("partner") << MasterTable::Partner << 1;
    QTest::newRow("product") << MasterTable::Product << 1;
}

void TestMasterDataBrowse::everyListModelIsConsistent()
{
    QFETCH(MasterTable, table);
    QFETCH(int, rows);
    RecordBrowse browse(MasterBrowseInfo(table), RecordBrowse::Mode::Manage);
    QAbstractItemModelTester tester(browse.model(),
                                    QAbstractItemModelTester::FailureReportingMode::QtTest);
    QVERIFY(browse.reload());
    QCOMPARE(browse.model()->rowCount(), rows);
    for (int r = 0; r < rows; ++r)
        QVERIFY(browse.model()->index(r, 0).data(RecordListModel::IdRole).isValid());
    QVERIFY(browse.reload());
}

void TestMasterDataBrowse::chooseModeReturnsTheId()
{
    RecordBrowseDlg dlg(MasterBrowseInfo(MasterTable::Country), RecordBrowse::Mode::Choose);
    RecordBrowse* browse = dlg.browse();
    QTableView* view = browse->view();
    // The home country leads the list; the others follow by name.
    QCOMPARE(ColumnTexts(browse->model(), 0).first(), "Magyarország");
    const int row = ColumnTexts(browse->model(), 1).indexOf("DE");
    QVERIFY(row > 0);
    view->selectRow(row);
    Child<QPushButton>(browse, "m_ok")->click();
    QCOMPARE(dlg.result(), int(QDialog::Accepted));
    QCOMPARE(dlg.chosenId(), std::optional<qint64>(2));

    // Enter on the list chooses as well.
    RecordBrowseDlg again(MasterBrowseInfo(MasterTable::Country), RecordBrowse::Mode::Choose);
    again.browse()->view()->selectRow(0);
    QTest::keyClick(again.browse()->view(), Qt::Key_Return);
    QCOMPARE(again.chosenId(), std::optional<qint64>(0));
}

void TestMasterDataBrowse::chooseWithoutSelectionTellsWhy()
{
    RecordBrowse browse(MasterBrowseInfo(MasterTable::Partner), RecordBrowse::Mode::Choose);
    browse.setInteraction(&m_ui);
    QVERIFY(browse.reload());
    QSignalSpy chosen(&browse, &RecordBrowse::chosen);
    browse.choose();
    QCOMPARE(chosen.count(), 0);
    QCOMPARE(m_ui.lastMessage(), "You have to select a partner.");
    browse.editRow();
    QCOMPARE(m_ui.lastMessage(), "Select a partner to edit.");
    browse.deleteRow();
    QCOMPARE(m_ui.lastMessage(), "Select a partner to delete.");
}

void TestMasterDataBrowse::codeColumnsFollowTheSetting_data()
{
    QTest::addColumn<QString>("flag");
    QTest::addColumn<bool>("shown");
    QTest::newRow("1 shows") << "1" << true;
    QTest::newRow("0 hides") << "0" << false;
    QTest::newRow("NULL hides") << QString() << false;
}

void TestMasterDataBrowse::codeColumnsFollowTheSetting()
{
    QFETCH(QString, flag);
    QFETCH(bool, shown);
    Setup::current().set(SETUP_SHOW_CODE_FIELDS, flag.isNull() ? QVariant() : QVariant(flag));
    RecordBrowse browse(MasterBrowseInfo(MasterTable::Vat), RecordBrowse::Mode::Manage);
    QVERIFY(browse.reload());
    QCOMPARE(browse.view()->isColumnHidden(0), !shown);
    QCOMPARE(browse.model()->index(0, 0).data().toString(), "0"); // the code is there all the same

    PartnerEdit partner(1);
    QVERIFY(partner.load());
    partner.show();
    QCOMPARE(Child<QLineEdit>(&partner, "m_code")->isVisible(), shown);
    QCOMPARE(Child<QLabel>(&partner, "m_code_label")->isVisible(), shown);
}

void TestMasterDataBrowse::deleteAsksAndKeepsHomeRows()
{
    RecordBrowse browse(MasterBrowseInfo(MasterTable::Currency), RecordBrowse::Mode::Manage);
    browse.setInteraction(&m_ui);
    QVERIFY(browse.reload());
    browse.selectId(0);
    browse.deleteRow();
    QCOMPARE(m_ui.lastMessage(), "This currency can not be deleted.");
    QVERIFY(m_ui.questions.isEmpty());

    browse.selectId(2);
    m_ui.yesNoAnswers << false;
    browse.deleteRow();
    QCOMPARE(m_ui.questions.last(), "Do you really want to delete the selected Currency?");
    QCOMPARE(browse.model()->rowCount(), 3);

    m_ui.yesNoAnswers << true;
    browse.deleteRow();
    QCOMPARE(browse.model()->rowCount(), 2);
    QCOMPARE(SelectValue("select count(*) from CURRENCYY where CURRENCY_ID = 2").toInt(), 0);
}

void TestMasterDataBrowse::partnerSearchFoldsAndLimits()
{
    for (const char* name : {"Árvíztűrő Kft.", "Arany Bt.", "Arató Zrt.", "Béke Kft."}) {
        Record row{{N(PARTNER_NAME), QString::fromUtf8(name)}, {N(PARTNER_MAIL_IS_SAME), "1"}};
        std::optional<qint64> id;
        QVERIFY(PartnerStore().save(row, id));
    }
    Setup::current().set(SETUP_RECORD_LIMIT, 2);
    RecordBrowse browse(MasterBrowseInfo(MasterTable::Partner), RecordBrowse::Mode::Page);
    browse.show();
    auto* name = Child<QLineEdit>(&browse, "m_name");
    auto* note = Child<QLabel>(&browse, "m_note");

    name->setText("ar");
    QTest::keyClick(name, Qt::Key_Return);
    QCOMPARE(ColumnTexts(browse.model(), 1), QStringList({"Arany Bt.", "Arató Zrt."}));
    QVERIFY(note->isVisible());
    QCOMPARE(note->text(),
             "There are more matching partners then displayed. Try more specific filter.");

    name->setText("árv");
    Child<QPushButton>(&browse, "m_find")->click();
    QCOMPARE(ColumnTexts(browse.model(), 1), QStringList({"Árvíztűrő Kft."}));
    // The note stays for its time even when a later search fits.
    QVERIFY(note->isVisible());
    QTRY_VERIFY_WITH_TIMEOUT(!note->isVisible(), 6000);
}

void TestMasterDataBrowse::addVatThroughTheDialog()
{
    const BrowseInfo& info = MasterBrowseInfo(MasterTable::Vat);
    QTimer::singleShot(0, [] {
        auto* dlg = qobject_cast<RecordEditDlg*>(QApplication::activeModalWidget());
        QVERIFY(dlg);
        QCOMPARE(dlg->windowTitle(), "Add VAT");
        Child<QLineEdit>(dlg, "m_name")->setText("12%");
        Child<NumberEdit>(dlg, "m_percent")->setText("12,5");
        dlg->accept();
    });
    const std::optional<qint64> id = info.edit(nullptr, std::nullopt, {});
    QVERIFY(id);
    SqlStatement st("select VAT_NAME, VAT_PERCENT, VAT_CODE from VAT where VAT_ID = ?", {*id});
    QVERIFY(st.exec() && st.next());
    QCOMPARE(st.value(0).toString(), "12%");
    QCOMPARE(st.value(1).toDouble(), 12.5);
    QVERIFY(st.value(2).isNull()); // no code typed: NULL, so that the unique index lets it be
}

void TestMasterDataBrowse::editTitleNamesTheRow()
{
    struct Case
    {
        MasterTable table;
        qint64 id;
        QString title;
    };
    const Case cases[] = {{MasterTable::Vat, 1, "Edit VAT: 27%"},
                          {MasterTable::Currency, 1, "Edit Currency: Euro"},
                          {MasterTable::Country, 2, "Edit Country: Németország"},
                          {MasterTable::PaymentMethod, 1, "Edit Payment Method"},
                          {MasterTable::NoVatReason, 1, "Edit No VAT Reason"},
                          {MasterTable::Partner, 1, "Partner szerkesztese: Teszt Partner Kft"}};
    for (const Case& c : cases) {
        QString title;
        QTimer::singleShot(0, [&title] {
            QWidget* dlg = QApplication::activeModalWidget();
            title = dlg ? dlg->windowTitle() : QString();
            if (dlg)
                static_cast<QDialog*>(dlg)->reject();
        });
        QVERIFY(!MasterBrowseInfo(c.table).edit(nullptr, c.id, {}));
        QCOMPARE(title, c.title);
    }
}

void TestMasterDataBrowse::vanishedRowIsReported()
{
    CountryEdit dlg(5);
    dlg.setInteraction(&m_ui);
    QVERIFY(CountryStore().remove(5));
    QVERIFY(!dlg.load());
    QCOMPARE(m_ui.lastMessage(),
             "Unable to load data from database.&Maybe it is deleted by an other user.");
}

void TestMasterDataBrowse::requiredFieldBringsItsTabForward()
{
    PartnerEdit dlg(std::nullopt);
    dlg.setInteraction(&m_ui);
    QVERIFY(dlg.load());
    dlg.show();
    auto* tabs = Child<QTabWidget>(&dlg, "m_tabs");
    dlg.accept();
    QCOMPARE(m_ui.lastMessage(), "Partner Name field must have a value.");
    QCOMPARE(tabs->currentIndex(), 0);

    Child<QLineEdit>(&dlg, "m_name")->setText("Kovács és Társa");
    Child<QCheckBox>(&dlg, "m_mail_is_same")->setChecked(false);
    Child<QLineEdit>(&dlg, "m_mail_name")->clear();
    dlg.accept();
    QCOMPARE(m_ui.lastMessage(), "A partner levelezesi cimehez tartozo nevet meg kell adni.");
    QCOMPARE(tabs->currentIndex(), 2);
    QVERIFY(!dlg.id());
    QCOMPARE(dlg.result(), int(QDialog::Rejected));
}

void TestMasterDataBrowse::printingDecimalsCapRounding_data()
{
    QTest::addColumn<QByteArray>("printing");
    QTest::addColumn<QByteArray>("rounding");
    QTest::addColumn<int>("newPrinting");
    QTest::addColumn<int>("expectedRounding");
    QTest::addColumn<int>("expectedMaximum");
    QTest::newRow("line 2 to 0") << QByteArray("m_line_total_printing_decimals")
                                 << QByteArray("m_line_total_rounding_decimals") << 0 << 0 << 0;
    QTest::newRow("invoice 2 to 1")
        << QByteArray("m_invoice_total_printing_decimals")
        << QByteArray("m_invoice_total_rounding_decimals") << 1 << 1 << 1;
    QTest::newRow("raising keeps rounding")
        << QByteArray("m_line_total_printing_decimals")
        << QByteArray("m_line_total_rounding_decimals") << 4 << 2 << 4;
}

void TestMasterDataBrowse::printingDecimalsCapRounding()
{
    QFETCH(QByteArray, printing);
    QFETCH(QByteArray, rounding);
    QFETCH(int, newPrinting);
    QFETCH(int, expectedRounding);
    QFETCH(int, expectedMaximum);
    CurrencyEdit dlg(1); // the euro: everything 2
    QVERIFY(dlg.load());
    auto* print = Child<QSpinBox>(&dlg, printing.constData());
    auto* round = Child<QSpinBox>(&dlg, rounding.constData());
    QCOMPARE(round->value(), 2);
    print->setValue(newPrinting);
    QCOMPARE(round->value(), expectedRounding);
    QCOMPARE(round->maximum(), expectedMaximum);
    // The unit-price decimals are not tied to printing.
    QCOMPARE(Child<QSpinBox>(&dlg, "m_calculated_unit_price_rounding_decimals")->maximum(),
             kMaxCurrencyDecimals);
}

void TestMasterDataBrowse::rateLabelFollowsAbbreviation()
{
    CurrencyEdit dlg(std::nullopt);
    QVERIFY(dlg.load());
    QCOMPARE(dlg.windowTitle(), "Add Currency");
    Child<QLineEdit>(&dlg, "m_abbreviation")->setText("CHF");
    QCOMPARE(Child<QLabel>(&dlg, "m_rate_label")->text(), "Arfolyam (1 CHF ennyi HUF)");
    // A new currency starts with two decimals everywhere and the company's bank account.
    QCOMPARE(Child<QSpinBox>(&dlg, "m_invoice_total_rounding_decimals")->value(), 2);
    QVERIFY(Child<QCheckBox>(&dlg, "m_bank_by_setup")->isChecked());
    QVERIFY(!Child<QLineEdit>(&dlg, "m_bank_iban")->isEnabled());

    // A stored rounding above its printing shows capped; the forint's rate stays 1.
    QVERIFY(ExecSql("update CURRENCYY set CURRENCY_LINE_TOTAL_ROUNDING_DECIMALS = 3, "
                    "CURRENCY_LINE_TOTAL_PRINTING_DECIMALS = 1 where CURRENCY_ID = 0"));
    CurrencyEdit forint(0);
    QVERIFY(forint.load());
    QCOMPARE(Child<QSpinBox>(&forint, "m_line_total_rounding_decimals")->value(), 1);
    QVERIFY(Child<NumberEdit>(&forint, "m_rate")->isReadOnly());
}

void TestMasterDataBrowse::mailAddressMirrorsBilling()
{
    PartnerEdit dlg(std::nullopt);
    dlg.setInteraction(&m_ui);
    QVERIFY(dlg.load());
    Child<QLineEdit>(&dlg, "m_name")->setText("Árvíztűrő Kft.");
    Child<QLineEdit>(&dlg, "m_city")->setText("Győr");
    QCOMPARE(Child<QLineEdit>(&dlg, "m_mail_city")->text(), "Győr");
    QVERIFY(!Child<QLineEdit>(&dlg, "m_mail_city")->isEnabled());
    // Picking a country brings its language and currency: Germany, German, euro.
    auto* country = Child<QComboBox>(&dlg, "m_country_id");
    const int germany = country->findData(2);
    country->setCurrentIndex(germany);
    Q_EMIT country->activated(germany);
    QCOMPARE(Child<QComboBox>(&dlg, "m_lang_id")->currentData().toInt(), 2);
    QCOMPARE(Child<QComboBox>(&dlg, "m_currency_id")->currentData().toInt(), 1);
    QCOMPARE(Child<QComboBox>(&dlg, "m_mail_country_id")->currentData().toInt(), 2);
    dlg.accept();
    QVERIFY2(dlg.id(), qPrintable(m_ui.lastMessage()));
    SqlStatement st("select PARTNER_NAME_ASCII, PARTNER_MAIL_NAME, PARTNER_LANG_ID, PARTNER_CODE "
                    "from PARTNER where PARTNER_ID = ?",
                    {*dlg.id()});
    QVERIFY(st.exec() && st.next());
    QCOMPARE(st.value(0).toString(), "ARVIZTURO KFT.");
    QCOMPARE(st.value(1).toString(), "Árvíztűrő Kft.");
    QCOMPARE(st.value(2).toInt(), 2);
    QVERIFY(st.value(3).isNull());
}

void TestMasterDataBrowse::translationsSavedPerLanguage()
{
    QString error;
    QTimer::singleShot(0, [&error] {
        auto* dlg = qobject_cast<RecordEditDlg*>(QApplication::activeModalWidget());
        if (!dlg) {
            error = "no dialog";
            return;
        }
        Child<QLineEdit>(dlg, "m_name")->setText("Utánvét");
        auto* view = Child<QTableView>(dlg, "m_translations");
        QAbstractItemModelTester tester(view->model(),
                                        QAbstractItemModelTester::FailureReportingMode::Warning);
        // One row per language: English, German.
        if (view->model()->rowCount() != 2 || view->model()->index(1, 0).data() != "Német")
            error = "languages";
        view->model()->setData(view->model()->index(0, 1), "Cash on delivery");
        view->model()->setData(view->model()->index(1, 1), "Nachnahme");
        view->model()->setData(view->model()->index(1, 2), "Zahlbar bei Lieferung");
        dlg->accept();
    });
    const std::optional<qint64> id =
        MasterBrowseInfo(MasterTable::PaymentMethod).edit(nullptr, std::nullopt, {});
    QVERIFY2(error.isEmpty(), qPrintable(error));
    QVERIFY(id);
    SqlStatement st("select PAYMENTMETHODTRANSLATION_LANG_ID, PAYMENTMETHODTRANSLATION_NAME, "
                    "PAYMENTMETHODTRANSLATION_COMMENT from PAYMENTMETHODTRANSLATION "
                    "where PAYMENTMETHODTRANSLATION_PAYMENTMETHOD_ID = ? "
                    "order by PAYMENTMETHODTRANSLATION_LANG_ID",
                    {*id});
    QVERIFY(st.exec());
    QVERIFY(st.next());
    QCOMPARE(st.value(0).toInt(), 1);
    QCOMPARE(st.value(1).toString(), "Cash on delivery");
    QVERIFY(st.next());
    QCOMPARE(st.value(1).toString(), "Nachnahme");
    QCOMPARE(st.value(2).toString(), "Zahlbar bei Lieferung");
    QVERIFY(!st.next());
}

void TestMasterDataBrowse::enterMovesToNextFieldWhenSet()
{
    for (const bool likeTab : {true, false}) {
        Setup::current().setFlag(SETUP_ENTER_LIKE_TAB, likeTab);
        CountryEdit dlg(std::nullopt);
        dlg.setInteraction(&m_ui);
        QVERIFY(dlg.load());
        dlg.show();
        QVERIFY(QTest::qWaitForWindowActive(&dlg));
        auto* name = Child<QLineEdit>(&dlg, "m_name");
        name->setFocus();
        QTest::keyClick(name, Qt::Key_Return);
        if (likeTab) {
            QCOMPARE(QApplication::focusWidget(), Child<QLineEdit>(&dlg, "m_international_code"));
            QVERIFY(dlg.isVisible());
        } else {
            // Enter confirms: the empty name is named and the dialog stays.
            QCOMPARE(m_ui.lastMessage(), "Country Name field must have a value.");
        }
    }
}

void TestMasterDataBrowse::partnerFinderPicksOrStaysText()
{
    for (const char* name : {"Árvíztűrő Kft.", "Arvai Bt.", "Béke Kft."}) {
        Record row{{N(PARTNER_NAME), QString::fromUtf8(name)},
                   {N(PARTNER_CITY), "Pécs"},
                   {N(PARTNER_MAIL_IS_SAME), "1"}};
        std::optional<qint64> id;
        QVERIFY(PartnerStore().save(row, id));
    }
    PartnerFinder finder;
    QAbstractItemModelTester tester(finder.matches(),
                                    QAbstractItemModelTester::FailureReportingMode::QtTest);
    finder.show();
    QSignalSpy picked(&finder, &RecordFinder::picked);
    QTest::keyClicks(&finder, "ÁRV");
    QCOMPARE(ColumnTexts(finder.matches(), 0), QStringList({"Arvai Bt.", "Árvíztűrő Kft."}));
    QCOMPARE(finder.matches()->headerData(1, Qt::Horizontal).toString(), "City");
    QVERIFY(!finder.pickedId());

    Q_EMIT finder.dropDown()->activated(finder.dropDown()->completionModel()->index(0, 0));
    QCOMPARE(finder.text(), "Arvai Bt.");
    const qint64 arvai =
        SelectValue("select PARTNER_ID from PARTNER where PARTNER_NAME = 'Arvai Bt.'").toLongLong();
    QCOMPARE(finder.pickedId(), std::optional<qint64>(arvai));
    QCOMPARE(picked.count(), 1);

    // Typing again makes it plain text until another pick.
    QTest::keyClicks(&finder, "x");
    QVERIFY(!finder.pickedId());
    QCOMPARE(finder.matches()->rowCount(), 0);
    QCOMPARE(finder.text(), "Arvai Bt.x");
}

void TestMasterDataBrowse::netAndGrossPriceKeptInStep()
{
    ProductEdit dlg(std::nullopt);
    QVERIFY(dlg.load());
    auto* net = Child<NumberEdit>(&dlg, "m_price");
    auto* gross = Child<NumberEdit>(&dlg, "m_gross_price");
    auto* vat = Child<QComboBox>(&dlg, "m_vat_id");
    vat->setCurrentIndex(vat->findData(1)); // 27%
    QTest::keyClicks(net, "1000");
    QCOMPARE(gross->value(), std::optional<double>(1270));
    gross->clear();
    QTest::keyClicks(gross, "254");
    QCOMPARE(net->value(), std::optional<double>(200));
    // A gross price with decimals gives a net price with two more.
    gross->clear();
    QTest::keyClicks(gross, "100,5");
    QCOMPARE(net->value(), std::optional<double>(79.134));
    // Another VAT key recomputes the gross price from the stored net price.
    vat->setCurrentIndex(vat->findData(3)); // 5%
    QCOMPARE(gross->value(), std::optional<double>(83.091));
    vat->setCurrentIndex(0); // none: 0%
    QCOMPARE(gross->value(), std::optional<double>(79.134));
}

void TestMasterDataBrowse::priceGridCalculatesAndOverrides()
{
    QVERIFY(ExecSql("update CURRENCYY set CURRENCY_RATE = 300 where CURRENCY_ID = 1"));
    auto openProduct = [](std::optional<qint64> id) {
        auto dlg = std::make_unique<ProductEdit>(id);
        if (!dlg->load())
            qFatal("product not loaded");
        return dlg;
    };
    std::unique_ptr<ProductEdit> dlg = openProduct(std::nullopt);
    ProductPriceModel* prices = dlg->prices();
    QAbstractItemModelTester tester(prices, QAbstractItemModelTester::FailureReportingMode::QtTest);
    Child<QLineEdit>(dlg.get(), "m_name")->setText("Kávé");
    QTest::keyClicks(Child<NumberEdit>(dlg.get(), "m_price"), "1000");
    QCOMPARE(ColumnTexts(prices, ProductPriceModel::CurrencyColumn), QStringList({"EUR", "USD"}));
    QCOMPARE(ColumnTexts(prices, ProductPriceModel::CalculatedColumn),
             QStringList({"3.33", "5.56"}));
    QVERIFY(prices->setData(prices->index(0, ProductPriceModel::OverriddenColumn), "3,5"));
    QVERIFY(!prices->setData(prices->index(0, ProductPriceModel::OverriddenColumn), "abc"));
    QVERIFY(!prices->setData(prices->index(0, ProductPriceModel::CalculatedColumn), "1"));
    dlg->accept();
    const std::optional<qint64> id = dlg->id();
    QVERIFY(id);
    const QString price =
        "select PRODUCTPRICE_PRICE from PRODUCTPRICE where PRODUCTPRICE_PRODUCT_ID = ? "
        "and PRODUCTPRICE_CURRENCY_ID = ?";
    QCOMPARE(SelectValue(price, {*id, 1}).toDouble(), 3.5);
    QVERIFY(!SelectValue(price, {*id, 2}).isValid()); // nothing typed: no row

    // Reopened, the overridden price is there; cleared, the row goes and the calculated applies.
    dlg = openProduct(id);
    prices = dlg->prices();
    QCOMPARE(prices->index(0, ProductPriceModel::OverriddenColumn).data().toString(), "3.5");
    QCOMPARE(prices->index(0, ProductPriceModel::CalculatedColumn).data().toString(), "3.33");
    QVERIFY(prices->setData(prices->index(0, ProductPriceModel::OverriddenColumn), ""));
    dlg->accept();
    QCOMPARE(
        SelectValue("select count(*) from PRODUCTPRICE where PRODUCTPRICE_PRODUCT_ID = ?", {*id})
            .toInt(),
        0);
}

void TestMasterDataBrowse::productListAndFinderShowForeignPrice()
{
    QVERIFY(ExecSql("insert into PRODUCTPRICE values (1, 1, 3.9)"));
    QVERIFY(ExecSql("insert into PRODUCT (PRODUCT_NAME, PRODUCT_NAME_ASCII, PRODUCT_PRICE) "
                    "values ('Tea', 'TEA', 560)"));
    RecordBrowse browse(MasterBrowseInfo(MasterTable::Product), RecordBrowse::Mode::Page);
    QVERIFY(browse.reload());
    const int last = browse.model()->columnCount() - 1;
    QCOMPARE(browse.model()->headerData(last, Qt::Horizontal).toString(), "Price (EUR)");
    // Tea: 560 / 280 = 2; the test product's euro price is overridden.
    QCOMPARE(ColumnTexts(browse.model(), last), QStringList({"2", "3.9"}));

    ProductFinder finder;
    finder.setCurrency(2);
    finder.show();
    QTest::keyClicks(&finder, "te");
    QCOMPARE(ColumnTexts(finder.matches(), 0), QStringList({"Tea", "Teszt termék"}));
    QCOMPARE(finder.matches()->headerData(2, Qt::Horizontal).toString(), "Price (USD)");
    QCOMPARE(ColumnTexts(finder.matches(), 2), QStringList({"3.11", "5.56"}));
}

void TestMasterDataBrowse::numberEditReadsBothSeparators_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("comma") << "1234,5" << QVariant(1234.5);
    QTest::newRow("point") << "1234.5" << QVariant(1234.5);
    QTest::newRow("grouped") << "1 234,5" << QVariant(1234.5);
    QTest::newRow("negative") << "-3" << QVariant(-3.0);
    QTest::newRow("empty is NULL") << "" << QVariant();
    QTest::newRow("lone sign is NULL") << "-" << QVariant();
}

void TestMasterDataBrowse::numberEditReadsBothSeparators()
{
    QFETCH(QString, text);
    QFETCH(QVariant, value);
    NumberEdit edit;
    edit.setText(text);
    QCOMPARE(edit.variant(), value);
}

QTEST_MAIN(TestMasterDataBrowse)
#include "tst_masterdatabrowse.moc"
