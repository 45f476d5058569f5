// The list windows and edit dialogs of the master data, driven on the offscreen platform.
#include "ModalDriver.h"
#include "ScriptedInteraction.h"
#include "TestCompany.h"

#include "Columns.h"
#include "base/Setup.h"
#include "base/SqlStatement.h"
#include "masterdata/MasterTables.h"
#include "masterdata/ui/CountryEdit.h"
#include "masterdata/ui/CurrencyEdit.h"
#include "masterdata/ui/FieldBinding.h"
#include "masterdata/ui/MasterBrowses.h"
#include "masterdata/ui/NumberEdit.h"
#include "masterdata/ui/PartnerEdit.h"
#include "masterdata/ui/ProductEdit.h"
#include "masterdata/ui/ProductPriceModel.h"
#include "masterdata/ui/RecordBrowseDlg.h"
#include "masterdata/ui/RecordFinder.h"
#include "masterdata/ui/RecordListModel.h"

#include "TestData.h"

#include <QtTest>
#include <QtWidgets>

using namespace Col;

using Tester = QAbstractItemModelTester;

class TestMasterDataBrowse : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        QVERIFY(m_company.emplace().isValid());
        QVERIFY(Setup::current().load());
        m_ui = ScriptedInteraction();
    }
    void cleanup() { m_company.reset(); }

    void chooseModeReturnsTheId()
    {
        RecordBrowseDlg dlg(MasterBrowseInfo(MasterTable::Country), RecordBrowse::Mode::Choose);
        RecordBrowse* browse = dlg.browse();
        // The home country leads the list; the others follow by name.
        QCOMPARE(ColumnTexts(browse->model(), 0).first(), "Magyarország");
        const int row = ColumnTexts(browse->model(), 1).indexOf("DE");
        QVERIFY(row > 0);
        browse->view()->selectRow(row);
        Child<QPushButton>(browse, "m_ok")->click();
        QCOMPARE(dlg.result(), int(QDialog::Accepted));
        QCOMPARE(dlg.chosenId(), std::optional<qint64>(2));
        // Enter on the list chooses as well.
        browse->view()->selectRow(0);
        QTest::keyClick(browse->view(), Qt::Key_Return);
        QCOMPARE(dlg.chosenId(), std::optional<qint64>(0));
    }

    void chooseWithoutSelectionTellsWhy()
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

    void deleteAsksOnlyWhenAllowed()
    {
        RecordBrowse browse(MasterBrowseInfo(MasterTable::Currency), RecordBrowse::Mode::Manage);
        browse.setInteraction(&m_ui);
        QVERIFY(browse.reload());
        // A currency in use is refused before asking, saying where it is used (the rules of
        // which rows may go are the store's, tested there).
        browse.selectId(2);
        browse.deleteRow();
        QVERIFY(m_ui.lastMessage().startsWith("This currency is used by "));
        QVERIFY(m_ui.questions.isEmpty());
        for (const char* sql :
             {"update PARTNER set PARTNER_CURRENCY_ID = 0",
              "update COUNTRY set COUNTRY_CURRENCY_ID = 0",
              "update ORDERHEAD set ORDERHEAD_CURRENCY_ID = 0", "delete from PRODUCTPRICE",
              "update SETUP set SETUP_INVOICE_CURRENCY_ID = 0"})
            QVERIFY(ExecSql(sql));
        m_ui.yesNoAnswers << false << true;
        browse.deleteRow();
        QCOMPARE(m_ui.questions.last(), "Do you really want to delete the selected Currency?");
        QCOMPARE(browse.model()->rowCount(), 3);
        browse.deleteRow();
        QCOMPARE(browse.model()->rowCount(), 2);
        QCOMPARE(SelectValue("select count(*) from CURRENCYY where CURRENCY_ID = 2").toInt(), 0);
    }

    // A missing field (blanks count as missing) brings its tab forward, and nothing is saved; the
    // mail address follows the billing one.
    void partnerForm()
    {
        PartnerEdit dlg(std::nullopt);
        dlg.setInteraction(&m_ui);
        QVERIFY(dlg.load());
        dlg.show();
        auto* tabs = Child<QTabWidget>(&dlg, "m_tabs");
        Child<QLineEdit>(&dlg, "m_name")->setText("  ");
        dlg.accept();
        QCOMPARE(m_ui.lastMessage(), "Partner Name field must have a value.");
        QCOMPARE(tabs->currentIndex(), 0);
        Child<QLineEdit>(&dlg, "m_name")->setText("Árvíztűrő Kft.");
        Child<QLineEdit>(&dlg, "m_city")->setText("Győr");
        QCOMPARE(Child<QLineEdit>(&dlg, "m_mail_city")->text(), "Győr");
        QVERIFY(!Child<QLineEdit>(&dlg, "m_mail_city")->isEnabled());
        // Picking a country brings its language and currency: Germany, German, euro.
        auto* country = Child<QComboBox>(&dlg, "m_country_id");
        country->setCurrentIndex(country->findData(2));
        Q_EMIT country->activated(country->currentIndex());
        QCOMPARE(Child<QComboBox>(&dlg, "m_lang_id")->currentData().toInt(), 2);
        QCOMPARE(Child<QComboBox>(&dlg, "m_currency_id")->currentData().toInt(), 1);
        QCOMPARE(Child<QComboBox>(&dlg, "m_mail_country_id")->currentData().toInt(), 2);
        auto* same = Child<QCheckBox>(&dlg, "m_mail_is_same");
        same->setChecked(false);
        Child<QLineEdit>(&dlg, "m_mail_name")->clear();
        dlg.accept();
        QCOMPARE(m_ui.lastMessage(), "A partner levelezesi cimehez tartozo nevet meg kell adni.");
        QCOMPARE(tabs->currentIndex(), 2);
        QVERIFY(!dlg.id());
        same->setChecked(true);
        dlg.accept();
        QVERIFY2(dlg.id(), qPrintable(m_ui.lastMessage()));
        // No code typed: NULL, so that the unique index lets many partners lack one.
        QCOMPARE(SelectValue("select PARTNER_MAIL_NAME || '/' || PARTNER_LANG_ID || '/' || "
                             "ifnull(PARTNER_CODE, 'NULL') from PARTNER where PARTNER_ID = ?",
                             {*dlg.id()})
                     .toString(),
                 "Árvíztűrő Kft./2/NULL");
    }

    void currencyForm()
    {
        CurrencyEdit euro(1); // everything 2
        QVERIFY(euro.load());
        const auto spin = [&euro](const char* name) { return Child<QSpinBox>(&euro, name); };
        const auto rounding = [&spin](const char* name) {
            return std::pair(spin(name)->value(), spin(name)->maximum());
        };
        // Lowering the printing decimals caps the rounding ones; raising them leaves them.
        spin("m_line_total_printing_decimals")->setValue(4);
        QCOMPARE(rounding("m_line_total_rounding_decimals"), std::pair(2, 4));
        spin("m_line_total_printing_decimals")->setValue(0);
        QCOMPARE(rounding("m_line_total_rounding_decimals"), std::pair(0, 0));
        spin("m_invoice_total_printing_decimals")->setValue(1);
        QCOMPARE(rounding("m_invoice_total_rounding_decimals"), std::pair(1, 1));
        // The unit-price decimals are not tied to printing.
        QCOMPARE(spin("m_calculated_unit_price_rounding_decimals")->maximum(), 6);

        // A stored rounding above its printing shows capped; the forint's rate stays 1.
        QVERIFY(ExecSql("update CURRENCYY set CURRENCY_LINE_TOTAL_ROUNDING_DECIMALS = 3, "
                        "CURRENCY_LINE_TOTAL_PRINTING_DECIMALS = 1 where CURRENCY_ID = 0"));
        CurrencyEdit forint(0);
        QVERIFY(forint.load());
        QCOMPARE(Child<QSpinBox>(&forint, "m_line_total_rounding_decimals")->value(), 1);
        QVERIFY(Child<NumberEdit>(&forint, "m_rate")->isReadOnly());
    }

    // The forms opened from a list; a language left empty stores no translation.
    void translationsSavedPerLanguage()
    {
        QString languages;
        QTimer::singleShot(0, [&languages] {
            auto* dlg = qobject_cast<RecordEditDlg*>(QApplication::activeModalWidget());
            QVERIFY(dlg);
            Child<QLineEdit>(dlg, "m_name")->setText("Utánvét");
            QAbstractItemModel* model = Child<QTableView>(dlg, "m_translations")->model();
            Tester tester(model, Tester::FailureReportingMode::Warning);
            languages = ColumnTexts(model, 0).join(u'/');
            model->setData(model->index(0, 1), "Cash on delivery");
            model->setData(model->index(0, 2), "Pay the courier");
            dlg->accept();
        });
        const std::optional<qint64> id =
            MasterBrowseInfo(MasterTable::PaymentMethod).edit(nullptr, std::nullopt, {});
        QVERIFY(id);
        QCOMPARE(languages, "Angol/Német");
        QCOMPARE(
            SelectValue(
                "select group_concat(PAYMENTMETHODTRANSLATION_LANG_ID || ':' || "
                "PAYMENTMETHODTRANSLATION_NAME || ':' || PAYMENTMETHODTRANSLATION_COMMENT) "
                "from PAYMENTMETHODTRANSLATION where PAYMENTMETHODTRANSLATION_PAYMENTMETHOD_ID = ?",
                {*id})
                .toString(),
            "1:Cash on delivery:Pay the courier");
    }

    void netAndGrossPriceKeptInStep()
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

    void priceGridCalculatesAndOverrides()
    {
        using enum ProductPriceModel::Column;
        QVERIFY(ExecSql("update CURRENCYY set CURRENCY_RATE = 300 where CURRENCY_ID = 1"));
        auto dlg = std::make_unique<ProductEdit>(std::nullopt);
        dlg->setInteraction(&m_ui);
        QVERIFY(dlg->load());
        ProductPriceModel* prices = dlg->prices();
        Tester tester(prices, Tester::FailureReportingMode::QtTest);
        const QModelIndex euro = prices->index(0, OverriddenColumn);
        Child<QLineEdit>(dlg.get(), "m_name")->setText("Kávé");
        QTest::keyClicks(Child<NumberEdit>(dlg.get(), "m_price"), "1000");
        QCOMPARE(ColumnTexts(prices, CurrencyColumn), QStringList({"EUR", "USD"}));
        QCOMPARE(ColumnTexts(prices, CalculatedColumn), QStringList({"3.33", "5.56"}));
        QVERIFY(prices->setData(euro, "3,5"));
        // Letters are refused with a word, not dropped silently.
        QVERIFY(!prices->setData(euro, "abc"));
        QCOMPARE(m_ui.lastMessage(), "\"abc\" is not a price: type a number.");
        QVERIFY(!prices->setData(prices->index(0, CalculatedColumn), "1"));
        dlg->accept();
        const std::optional<qint64> id = dlg->id();
        QVERIFY(id);
        const QString price = "select PRODUCTPRICE_PRICE from PRODUCTPRICE where "
                              "PRODUCTPRICE_PRODUCT_ID = ? and PRODUCTPRICE_CURRENCY_ID = ?";
        QCOMPARE(SelectValue(price, {*id, 1}).toDouble(), 3.5);
        QVERIFY(!SelectValue(price, {*id, 2}).isValid()); // nothing typed: no row

        // Reopened, the overridden price is there; cleared, its row goes.
        dlg = std::make_unique<ProductEdit>(id);
        QVERIFY(dlg->load());
        prices = dlg->prices();
        // Side by side with the currency's decimals.
        QCOMPARE(ColumnTexts(prices, OverriddenColumn).first(), "3.50");
        QCOMPARE(ColumnTexts(prices, CalculatedColumn).first(), "3.33");
        QVERIFY(prices->setData(prices->index(0, OverriddenColumn), ""));
        dlg->accept();
        QVERIFY(!SelectValue(price, {*id, 1}).isValid());
    }

    // The list and the finder show each product's price in a foreign currency: overridden, or
    // calculated where none or an empty one is stored. A picked row gives its id.
    void productListAndFinder()
    {
        QVERIFY(ExecSql("insert into PRODUCTPRICE values (1, 1, 3.9), (1, 2, NULL)"));
        QVERIFY(ExecSql("insert into PRODUCT (PRODUCT_NAME, PRODUCT_NAME_ASCII, PRODUCT_PRICE) "
                        "values ('Tea', 'TEA', 560)"));
        RecordBrowse browse(MasterBrowseInfo(MasterTable::Product), RecordBrowse::Mode::Page);
        QVERIFY(browse.reload());
        const int last = browse.model()->columnCount() - 1;
        QCOMPARE(browse.model()->headerData(last, Qt::Horizontal).toString(), "Price (EUR)");
        QCOMPARE(ColumnTexts(browse.model(), last), QStringList({"2", "3.9"})); // Tea: 560 / 280

        ProductFinder finder;
        Tester tester(finder.matches(), Tester::FailureReportingMode::QtTest);
        finder.setCurrency(2);
        finder.show();
        QSignalSpy picked(&finder, &RecordFinder::picked);
        QTest::keyClicks(&finder, "TÉ");
        QCOMPARE(ColumnTexts(finder.matches(), 0), QStringList({"Tea", "Teszt termék"}));
        QCOMPARE(finder.matches()->headerData(2, Qt::Horizontal).toString(), "Price (USD)");
        QCOMPARE(ColumnTexts(finder.matches(), 2), QStringList({"3.11", "5.56"}));
        QVERIFY(!finder.pickedId());
        Q_EMIT finder.dropDown()->activated(finder.dropDown()->completionModel()->index(1, 0));
        QCOMPARE(finder.text(), "Teszt termék");
        QCOMPARE(finder.pickedId(), std::optional<qint64>(1));
        QCOMPARE(picked.count(), 1);
        // Typing again makes it plain text until another pick.
        QTest::keyClicks(&finder, "x");
        QVERIFY(!finder.pickedId());
        QCOMPARE(finder.matches()->rowCount(), 0);
        QCOMPARE(finder.text(), "Teszt termékx");
    }

    // What a control gives to the store: single-line texts without the blanks around them.
    void fieldValuesAsStored()
    {
        QLineEdit line;
        line.setText("  Kovács Kft. ");
        QCOMPARE(FieldValue(&line), "Kovács Kft.");
        QPlainTextEdit text;
        text.setPlainText(" first\nsecond ");
        QCOMPARE(FieldValue(&text), " first\nsecond ");
        QCheckBox check;
        check.setChecked(true);
        QCOMPARE(FieldValue(&check), "1");
    }

    void numberEditReadsBothSeparators()
    {
        const std::pair<QString, QVariant> cases[] = {
            {"1234,5", 1234.5}, {"1234.5", 1234.5}, {"1 234,5", 1234.5}, {"-3", -3.0},
            {"", QVariant()},   {"-", QVariant()}}; // empty or a lone sign: NULL
        for (const auto& [text, value] : cases) {
            NumberEdit edit;
            edit.setText(text);
            QCOMPARE(edit.variant(), value);
        }
    }

private:
    std::optional<TestCompany> m_company;
    ScriptedInteraction m_ui;
};

QTEST_MAIN(TestMasterDataBrowse)
#include "tst_masterdatabrowse.moc"
