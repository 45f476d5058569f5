// The list windows and edit dialogs of the master data, driven on the offscreen platform.
#include "CompanyTestCase.h"
#include "ModalDriver.h"
#include "ScriptedInteraction.h"

#include "Columns.h"
#include "TestData.h"
#include "masterdata/MasterTables.h"
#include "masterdata/ui/FieldBinding.h"
#include "masterdata/ui/MasterBrowses.h"
#include "masterdata/ui/NumberEdit.h"
#include "masterdata/ui/PartnerEdit.h"
#include "masterdata/ui/ProductEdit.h"
#include "masterdata/ui/ProductPriceModel.h"
#include "masterdata/ui/RecordBrowseDlg.h"
#include "masterdata/ui/RecordFinder.h"
#include "masterdata/ui/RecordListModel.h"

#include <QtTest>
#include <QtWidgets>

using namespace Col;

class TestMasterDataBrowse : public CompanyTestCase
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        CompanyTestCase::init();
        m_ui = ScriptedInteraction();
    }

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
    }

    // Deleting asks first; the rules of which rows may go are the store's, tested there.
    void deleteAsksFirst()
    {
        QVERIFY(ExecSql("insert into VAT (VAT_ID, VAT_NAME, VAT_PERCENT) values (99, 'x', 1)"));
        RecordBrowse browse(MasterBrowseInfo(MasterTable::Vat), RecordBrowse::Mode::Manage);
        browse.setInteraction(&m_ui);
        QVERIFY(browse.reload());
        const int rows = browse.model()->rowCount();
        browse.selectId(99);
        m_ui.yesNoAnswers << false << true;
        browse.deleteRow();
        QCOMPARE(m_ui.questions.size(), 1);
        QCOMPARE(browse.model()->rowCount(), rows);
        browse.deleteRow();
        QCOMPARE(browse.model()->rowCount(), rows - 1);
    }

    // A missing field (blanks count as missing) is named, and nothing is saved.
    void partnerForm()
    {
        PartnerEdit dlg(std::nullopt);
        dlg.setInteraction(&m_ui);
        QVERIFY(dlg.load());
        Child<QLineEdit>(&dlg, "m_name")->setText("  ");
        dlg.accept();
        QCOMPARE(m_ui.lastMessage(), "Partner Name field must have a value.");
        Child<QLineEdit>(&dlg, "m_name")->setText("Árvíztűrő Kft.");
        auto* same = Child<QCheckBox>(&dlg, "m_mail_is_same");
        same->setChecked(false);
        Child<QLineEdit>(&dlg, "m_mail_name")->clear();
        dlg.accept();
        QCOMPARE(m_ui.lastMessage(), "A partner levelezesi cimehez tartozo nevet meg kell adni.");
        QVERIFY(!dlg.id());
        same->setChecked(true);
        dlg.accept();
        QVERIFY2(dlg.id(), qPrintable(m_ui.lastMessage()));
    }

    void priceGridCalculatesAndOverrides()
    {
        using enum ProductPriceModel::Column;
        QVERIFY(ExecSql("update CURRENCYY set CURRENCY_RATE = 300 where CURRENCY_ID = 1"));
        auto dlg = std::make_unique<ProductEdit>(std::nullopt);
        dlg->setInteraction(&m_ui);
        QVERIFY(dlg->load());
        ProductPriceModel* prices = dlg->prices();
        QAbstractItemModelTester tester(prices,
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
        const QModelIndex euro = prices->index(0, OverriddenColumn);
        Child<QLineEdit>(dlg.get(), "m_name")->setText("Kávé");
        QTest::keyClicks(Child<NumberEdit>(dlg.get(), "m_price"), "1000");
        QCOMPARE(ColumnTexts(prices, CurrencyColumn), QStringList({"EUR", "USD"}));
        QCOMPARE(ColumnTexts(prices, CalculatedColumn), QStringList({"3.33", "5.56"}));
        QVERIFY(prices->setData(euro, "3,5"));
        // Letters are refused with a word, not dropped silently.
        QVERIFY(!prices->setData(euro, "abc"));
        QCOMPARE(m_ui.lastMessage(), "\"abc\" is not a price: type a number.");
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
        QCOMPARE(ColumnTexts(prices, OverriddenColumn).first(), "3.50"); // the currency's decimals
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
        QCOMPARE(ColumnTexts(browse.model(), last), QStringList({"2", "3.9"})); // Tea: 560 / 280

        ProductFinder finder;
        QAbstractItemModelTester tester(finder.matches(),
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
        finder.setCurrency(2);
        finder.show();
        QSignalSpy picked(&finder, &RecordFinder::picked);
        QTest::keyClicks(&finder, "TÉ");
        QCOMPARE(ColumnTexts(finder.matches(), 0), QStringList({"Tea", "Teszt termék"}));
        QCOMPARE(ColumnTexts(finder.matches(), 2), QStringList({"3.11", "5.56"}));
        QVERIFY(!finder.pickedId());
        Q_EMIT finder.dropDown()->activated(finder.dropDown()->completionModel()->index(1, 0));
        QCOMPARE(finder.text(), "Teszt termék");
        QCOMPARE(finder.pickedId(), std::optional<qint64>(1));
        QCOMPARE(picked.count(), 1);
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
    ScriptedInteraction m_ui;
};

QTEST_MAIN(TestMasterDataBrowse)
#include "tst_masterdatabrowse.moc"
