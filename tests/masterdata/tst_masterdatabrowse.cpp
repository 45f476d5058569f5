// The list windows and edit dialogs of the master data, driven on the offscreen platform.
#include "ModalDriver.h"
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
#include "masterdata/ui/RecordBrowseDlg.h"
#include "masterdata/ui/RecordFinder.h"
#include "masterdata/ui/RecordListModel.h"

#include <QAbstractItemModelTester>
#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableView>
#include <QtTest>

using namespace Col;

Q_DECLARE_METATYPE(MasterTable)

namespace {

using Tester = QAbstractItemModelTester;

QStringList ColumnTexts(const QAbstractItemModel* model, int column)
{
    QStringList texts;
    for (int r = 0; r < model->rowCount(); ++r)
        texts << model->index(r, column).data().toString();
    return texts;
}

void AddPartners(std::initializer_list<const char*> names)
{
    for (const char* name : names) {
        Record row{{PARTNER_NAME, name}, {PARTNER_CITY, "Pécs"}, {PARTNER_MAIL_IS_SAME, "1"}};
        std::optional<qint64> id;
        if (!PartnerStore().save(row, id))
            qFatal("partner %s not saved", name);
    }
}

} // namespace

class TestMasterDataBrowse : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        m_company = std::make_unique<TestCompany>();
        QVERIFY(m_company->isValid());
        QVERIFY(Setup::current().load());
        m_ui = ScriptedInteraction();
    }
    void cleanup() { m_company.reset(); }

    void everyListModelIsConsistent_data()
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

    void everyListModelIsConsistent()
    {
        QFETCH(MasterTable, table);
        QFETCH(int, rows);
        RecordBrowse browse(MasterBrowseInfo(table), RecordBrowse::Mode::Manage);
        Tester tester(browse.model(), Tester::FailureReportingMode::QtTest);
        QVERIFY(browse.reload());
        QCOMPARE(browse.model()->rowCount(), rows);
        QVERIFY(browse.reload());
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

    void codeColumnsFollowTheSetting()
    {
        for (const bool shown : {true, false}) {
            Setup::current().setFlag(SETUP_SHOW_CODE_FIELDS, shown);
            RecordBrowse browse(MasterBrowseInfo(MasterTable::Vat), RecordBrowse::Mode::Manage);
            QVERIFY(browse.reload());
            QCOMPARE(browse.view()->isColumnHidden(0), !shown);
            QCOMPARE(browse.model()->index(0, 0).data().toString(), "0"); // there all the same
            PartnerEdit partner(1);
            QVERIFY(partner.load());
            partner.show();
            QCOMPARE(Child<QLineEdit>(&partner, "m_code")->isVisible(), shown);
            QCOMPARE(Child<QLabel>(&partner, "m_code_label")->isVisible(), shown);
        }
    }

    void deleteAsksAndKeepsHomeRows()
    {
        RecordBrowse browse(MasterBrowseInfo(MasterTable::Currency), RecordBrowse::Mode::Manage);
        browse.setInteraction(&m_ui);
        QVERIFY(browse.reload());
        browse.selectId(0);
        browse.deleteRow();
        QCOMPARE(m_ui.lastMessage(), "This currency can not be deleted.");
        QVERIFY(m_ui.questions.isEmpty());
        browse.selectId(2);
        m_ui.yesNoAnswers << false << true;
        browse.deleteRow();
        QCOMPARE(m_ui.questions.last(), "Do you really want to delete the selected Currency?");
        QCOMPARE(browse.model()->rowCount(), 3);
        browse.deleteRow();
        QCOMPARE(browse.model()->rowCount(), 2);
        QCOMPARE(SelectValue("select count(*) from CURRENCYY where CURRENCY_ID = 2").toInt(), 0);
    }

    void partnerSearchFoldsAndLimits()
    {
        AddPartners({"Árvíztűrő Kft.", "Arany Bt.", "Arató Zrt."});
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

    // The list's new-row and edit actions open the table's form; its edit title names the row.
    void formOpenedFromTheList()
    {
        const BrowseInfo& info = MasterBrowseInfo(MasterTable::Vat);
        QStringList titles;
        const auto fill = [&titles](bool save) {
            QTimer::singleShot(0, [&titles, save] {
                auto* dlg = qobject_cast<RecordEditDlg*>(QApplication::activeModalWidget());
                QVERIFY(dlg);
                titles << dlg->windowTitle();
                Child<QLineEdit>(dlg, "m_name")->setText("12%");
                Child<NumberEdit>(dlg, "m_percent")->setText("12,5");
                save ? dlg->accept() : dlg->reject();
            });
        };
        fill(true);
        const std::optional<qint64> id = info.edit(nullptr, std::nullopt, {});
        QVERIFY(id);
        // No code typed: NULL, so that the unique index lets it be.
        QCOMPARE(SelectValue("select VAT_NAME || '/' || VAT_PERCENT || '/' || "
                             "ifnull(VAT_CODE, 'NULL') from VAT where VAT_ID = ?",
                             {*id})
                     .toString(),
                 "12%/12.5/NULL");
        fill(false);
        QVERIFY(!info.edit(nullptr, 1, {}));
        QCOMPARE(titles, QStringList({"Add VAT", "Edit VAT: 27%"}));
    }

    void vanishedRowIsReported()
    {
        CountryEdit dlg(5);
        dlg.setInteraction(&m_ui);
        QVERIFY(CountryStore().remove(5));
        QVERIFY(!dlg.load());
        QCOMPARE(m_ui.lastMessage(),
                 "Unable to load data from database.&Maybe it is deleted by an other user.");
    }

    // A missing field brings its tab forward; the mail address follows the billing one.
    void partnerForm()
    {
        PartnerEdit dlg(std::nullopt);
        dlg.setInteraction(&m_ui);
        QVERIFY(dlg.load());
        dlg.show();
        auto* tabs = Child<QTabWidget>(&dlg, "m_tabs");
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
        QCOMPARE(spin("m_calculated_unit_price_rounding_decimals")->maximum(),
                 kMaxCurrencyDecimals);

        CurrencyEdit dlg(std::nullopt);
        QVERIFY(dlg.load());
        Child<QLineEdit>(&dlg, "m_abbreviation")->setText("CHF");
        QCOMPARE(Child<QLabel>(&dlg, "m_rate_label")->text(), "Arfolyam (1 CHF ennyi HUF)");
        // A new currency uses the company's bank account.
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
            model->setData(model->index(1, 1), "Nachnahme");
            model->setData(model->index(1, 2), "Zahlbar bei Lieferung");
            dlg->accept();
        });
        const std::optional<qint64> id =
            MasterBrowseInfo(MasterTable::PaymentMethod).edit(nullptr, std::nullopt, {});
        QVERIFY(id);
        QCOMPARE(languages, "Angol/Német");
        QCOMPARE(SelectValue("select group_concat(PAYMENTMETHODTRANSLATION_LANG_ID || ':' || "
                             "PAYMENTMETHODTRANSLATION_NAME || ':' || "
                             "ifnull(PAYMENTMETHODTRANSLATION_COMMENT, ''), '|') from (select * "
                             "from PAYMENTMETHODTRANSLATION where "
                             "PAYMENTMETHODTRANSLATION_PAYMENTMETHOD_ID = ? "
                             "order by PAYMENTMETHODTRANSLATION_LANG_ID)",
                             {*id})
                     .toString(),
                 "1:Cash on delivery:|2:Nachnahme:Zahlbar bei Lieferung");
    }

    void enterMovesToNextFieldWhenSet()
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
                QCOMPARE(QApplication::focusWidget(),
                         Child<QLineEdit>(&dlg, "m_international_code"));
                QVERIFY(dlg.isVisible());
            } else { // Enter confirms: the empty name is named and the dialog stays.
                QCOMPARE(m_ui.lastMessage(), "Country Name field must have a value.");
            }
        }
    }

    void partnerFinderPicksOrStaysText()
    {
        AddPartners({"Árvíztűrő Kft.", "Arvai Bt."});
        PartnerFinder finder;
        Tester tester(finder.matches(), Tester::FailureReportingMode::QtTest);
        finder.show();
        QSignalSpy picked(&finder, &RecordFinder::picked);
        QTest::keyClicks(&finder, "ÁRV");
        QCOMPARE(ColumnTexts(finder.matches(), 0), QStringList({"Arvai Bt.", "Árvíztűrő Kft."}));
        QCOMPARE(finder.matches()->headerData(1, Qt::Horizontal).toString(), "City");
        QVERIFY(!finder.pickedId());
        Q_EMIT finder.dropDown()->activated(finder.dropDown()->completionModel()->index(0, 0));
        QCOMPARE(finder.text(), "Arvai Bt.");
        QCOMPARE(finder.pickedId(),
                 SelectValue("select PARTNER_ID from PARTNER where PARTNER_NAME = 'Arvai Bt.'")
                     .value<qint64>());
        QCOMPARE(picked.count(), 1);
        // Typing again makes it plain text until another pick.
        QTest::keyClicks(&finder, "x");
        QVERIFY(!finder.pickedId());
        QCOMPARE(finder.matches()->rowCount(), 0);
        QCOMPARE(finder.text(), "Arvai Bt.x");
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
        QVERIFY(ExecSql("update CURRENCYY set CURRENCY_RATE = 300 where CURRENCY_ID = 1"));
        auto dlg = std::make_unique<ProductEdit>(std::nullopt);
        QVERIFY(dlg->load());
        ProductPriceModel* prices = dlg->prices();
        Tester tester(prices, Tester::FailureReportingMode::QtTest);
        const QModelIndex euro = prices->index(0, ProductPriceModel::OverriddenColumn);
        Child<QLineEdit>(dlg.get(), "m_name")->setText("Kávé");
        QTest::keyClicks(Child<NumberEdit>(dlg.get(), "m_price"), "1000");
        QCOMPARE(ColumnTexts(prices, ProductPriceModel::CurrencyColumn),
                 QStringList({"EUR", "USD"}));
        QCOMPARE(ColumnTexts(prices, ProductPriceModel::CalculatedColumn),
                 QStringList({"3.33", "5.56"}));
        QVERIFY(prices->setData(euro, "3,5"));
        QVERIFY(!prices->setData(euro, "abc"));
        QVERIFY(!prices->setData(prices->index(0, ProductPriceModel::CalculatedColumn), "1"));
        dlg->accept();
        const std::optional<qint64> id = dlg->id();
        QVERIFY(id);
        const QString price = "select PRODUCTPRICE_PRICE from PRODUCTPRICE where "
                              "PRODUCTPRICE_PRODUCT_ID = ? and PRODUCTPRICE_CURRENCY_ID = ?";
        QCOMPARE(SelectValue(price, {*id, 1}).toDouble(), 3.5);
        QVERIFY(!SelectValue(price, {*id, 2}).isValid()); // nothing typed: no row

        // Reopened, the overridden price is there; cleared, the row goes and the calculated
        // applies.
        dlg = std::make_unique<ProductEdit>(id);
        QVERIFY(dlg->load());
        prices = dlg->prices();
        QCOMPARE(ColumnTexts(prices, ProductPriceModel::OverriddenColumn).first(), "3.5");
        QCOMPARE(ColumnTexts(prices, ProductPriceModel::CalculatedColumn).first(), "3.33");
        QVERIFY(prices->setData(prices->index(0, ProductPriceModel::OverriddenColumn), ""));
        dlg->accept();
        QVERIFY(!SelectValue(price, {*id, 1}).isValid());
    }

    void productListAndFinderShowForeignPrice()
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

    void numberEditReadsBothSeparators_data()
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

    void numberEditReadsBothSeparators()
    {
        QFETCH(QString, text);
        QFETCH(QVariant, value);
        NumberEdit edit;
        edit.setText(text);
        QCOMPARE(edit.variant(), value);
    }

private:
    std::unique_ptr<TestCompany> m_company;
    ScriptedInteraction m_ui;
};

QTEST_MAIN(TestMasterDataBrowse)
#include "tst_masterdatabrowse.moc"
