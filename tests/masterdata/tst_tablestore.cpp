// The master-data stores against a real company database.
#include "TestCompany.h"

#include "Columns.h"
#include "app/SqlStatement.h"
#include "masterdata/MasterTables.h"

#include <QtTest>

using namespace Col;

Q_DECLARE_METATYPE(const TableStore*)

namespace {

qint64 Count(const QString& sql, const QVariantList& binds = {})
{
    return SelectValue(sql, binds).toLongLong();
}

qint64 RowCount(const TableStore& store)
{
    return Count(u"select count(*) from " + QString::fromLatin1(store.info().table));
}

Result Insert(const TableStore& store, Record row)
{
    std::optional<qint64> id;
    return store.save(row, id);
}

Record Partner(const QString& name)
{
    return {{PARTNER_NAME, name}, {PARTNER_MAIL_IS_SAME, "1"}};
}

} // namespace

class TestTableStore : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        m_company = std::make_unique<TestCompany>();
        QVERIFY(m_company->isValid());
    }
    void cleanup() { m_company.reset(); }

    void uniqueCodeClashFails_data()
    {
        QTest::addColumn<const TableStore*>("store");
        QTest::addColumn<QString>("codeColumn");
        QTest::addColumn<Record>("row");
        const auto row = [](const char* name, const TableStore& store, const char* code,
                            const Record& row) { QTest::newRow(name) << &store << code << row; };
        row("vat", VatStore(), VAT_CODE, {{VAT_NAME, "x"}, {VAT_PERCENT, 10}});
        row("payment method", PaymentMethodStore(), PAYMENTMETHOD_CODE,
            {{PAYMENTMETHOD_NAME, "x"}});
        row("no-vat reason", NoVatReasonStore(), NOVATREASON_CODE, {{NOVATREASON_NAME, "x"}});
        row("language", LangStore(), LANG_CODE, {{LANG_NAME, "x"}});
        row("country", CountryStore(), COUNTRY_INTERNATIONAL_CODE, {{COUNTRY_NAME, "x"}});
        row("partner", PartnerStore(), PARTNER_CODE, Partner("x"));
        row("product", ProductStore(), PRODUCT_CODE, {{PRODUCT_NAME, "x"}});
    }

    // A second row with a taken code fails; rows without a code never clash with each other.
    void uniqueCodeClashFails()
    {
        QFETCH(const TableStore*, store);
        QFETCH(QString, codeColumn);
        QFETCH(Record, row);
        row.insert(codeColumn, "");
        if (!store->missing(row)) { // where the code is optional
            QVERIFY2(Insert(*store, row), "first row without a code");
            QVERIFY2(Insert(*store, row), "second row without a code");
        }
        row.insert(codeColumn, "QQ");
        QVERIFY(Insert(*store, row));
        const qint64 rows = RowCount(*store);
        const Result clash = Insert(*store, row);
        QCOMPARE(clash.message(), "Unable to save data.");
        QVERIFY(!clash.sqlError().isEmpty());
        QCOMPARE(RowCount(*store), rows);
        // Updating another row to the taken code fails the same way.
        row.insert(codeColumn, "QR");
        std::optional<qint64> other;
        QVERIFY(store->save(row, other));
        row.insert(codeColumn, "QQ");
        QCOMPARE(store->save(row, other).message(), "Unable to save data.");
    }

    // The first empty required field is named, blanks count as empty, and nothing is written.
    void requiredFieldNamesTheField_data()
    {
        QTest::addColumn<const TableStore*>("store");
        QTest::addColumn<Record>("row");
        QTest::addColumn<QString>("message");
        QTest::newRow("second of two")
            << &VatStore() << Record{{VAT_NAME, "5%"}} << "VAT Percent field must have a value.";
        QTest::newRow("blank text")
            << &CurrencyStore()
            << Record{{CURRENCY_NAME, "Frank"}, {CURRENCY_ABBREVIATION, "  "}, {CURRENCY_RATE, 1}}
            << "Currency Abbreviation field must have a value.";
        // The mail name is copied from the name only while the mail address is the same.
        QTest::newRow("partner mail name")
            << &PartnerStore() << Record{{PARTNER_NAME, "Kovács"}, {PARTNER_MAIL_IS_SAME, "0"}}
            << "A partner levelezesi cimehez tartozo nevet meg kell adni.";
    }

    void requiredFieldNamesTheField()
    {
        QFETCH(const TableStore*, store);
        QFETCH(Record, row);
        QFETCH(QString, message);
        const qint64 before = RowCount(*store);
        QCOMPARE(Insert(*store, row).message(), message);
        QCOMPARE(RowCount(*store), before);
    }

    void homeRowsAreNotDeleted()
    {
        for (const TableStore* store : {&CurrencyStore(), &CountryStore()}) {
            const qint64 before = RowCount(*store);
            const QString message = store == &CurrencyStore() ? "This currency can not be deleted."
                                                              : "This country can not be deleted.";
            QCOMPARE(store->canRemove(0).message(), message);
            QCOMPARE(store->remove(0).message(), message);
            QCOMPARE(RowCount(*store), before);
            QVERIFY(store->canRemove(1));
            QVERIFY(store->remove(1));
            QCOMPARE(RowCount(*store), before - 1);
        }
    }

    void vanishedRowIsReported()
    {
        Record row;
        QVERIFY(VatStore().read(1, row));
        QCOMPARE(row.value(VAT_NAME).toString(), "27%");
        QVERIFY(VatStore().remove(1));
        QCOMPARE(VatStore().read(1, row).message(),
                 "Unable to load data from database.&Maybe it is deleted by an other user.");
        std::optional<qint64> id = 1;
        QCOMPARE(VatStore().save(row, id).message(), "Unable to save data.");
        QCOMPARE(Count("select count(*) from VAT where VAT_ID = 1"), 0);
    }

    void partnerNameIsFoldedAndFoundByPrefix_data()
    {
        QTest::addColumn<QString>("search");
        QTest::addColumn<QStringList>("found");
        const QStringList arv{"Árvíztűrő Kft."}, none;
        QTest::newRow("accented") << "ÁRVÍZ" << arv;
        QTest::newRow("mixed accents") << "árvizturo k" << arv;
        QTest::newRow("inside the name") << "tűrő" << none;
        QTest::newRow("wildcard typed") << "%rv" << none;
        QTest::newRow("underscore typed") << "_rv" << none;
        QTest::newRow("percent in name") << "50%" << QStringList{"50% Bt."};
        // In the order of the folded names: Á goes with A, not after Z.
        QTest::newRow("empty lists all") << ""
                                         << QStringList{"50% Bt.", "5000 Kft.", "Árvíztűrő Kft.",
                                                        "Teszt Partner Kft", "Zala Bt."};
    }

    void partnerNameIsFoldedAndFoundByPrefix()
    {
        QFETCH(QString, search);
        QFETCH(QStringList, found);
        for (const char* name : {"Árvíztűrő Kft.", "50% Bt.", "5000 Kft.", "Zala Bt."})
            QVERIFY(Insert(PartnerStore(), Partner(QString::fromUtf8(name))));
        QCOMPARE(Count("select count(*) from PARTNER where PARTNER_NAME_ASCII = 'ARVIZTURO KFT.'"),
                 1);
        RecordPage page;
        QVERIFY(PartnerStore().list(page, {search, 0}));
        QStringList names;
        for (const Record& r : page.rows)
            names << r.value(PARTNER_NAME).toString();
        QCOMPARE(names, found);
    }

    void recordLimitTellsAboutMoreRows()
    {
        for (int i = 0; i < 4; ++i)
            QVERIFY(Insert(ProductStore(), {{PRODUCT_NAME, QStringLiteral("Csavar %1").arg(i)}}));
        // Four screws and the basic data's test product: prefix, limit, rows, more.
        const std::tuple<QString, int, int, bool> cases[] = {{"", 3, 3, true},
                                                             {"", 5, 5, false},
                                                             {"csa", 4, 4, false},
                                                             {"csa", 3, 3, true},
                                                             {"", 0, 5, false}};
        for (const auto& [prefix, limit, rows, more] : cases) {
            RecordPage page;
            QVERIFY(ProductStore().list(page, {prefix, limit}));
            QCOMPARE(page.rows.size(), rows);
            QCOMPARE(page.more, more);
        }
    }

    void mailAddressFollowsBillingWhenSame()
    {
        Record row = Partner("Kovács Bt.");
        row.insert(PARTNER_CITY, "Győr");
        row.insert(PARTNER_COUNTRY_ID, 3);
        row.insert(PARTNER_MAIL_CITY, "Pécs");
        std::optional<qint64> id;
        const QString mail =
            "select PARTNER_MAIL_NAME || '/' || PARTNER_MAIL_CITY || '/' || "
            "ifnull(PARTNER_MAIL_COUNTRY_ID, '') from PARTNER where PARTNER_ID = ?";
        QVERIFY(PartnerStore().save(row, id));
        QCOMPARE(SelectValue(mail, {*id}).toString(), "Kovács Bt./Győr/3");
        row.insert(PARTNER_MAIL_IS_SAME, "0");
        row.insert(PARTNER_MAIL_CITY, "Pécs");
        QVERIFY(PartnerStore().save(row, id));
        QCOMPARE(SelectValue(mail, {*id}).toString(), "Kovács Bt./Pécs/3");
    }

    void currencyRoundingCappedByPrinting()
    {
        Record row{{CURRENCY_NAME, "Svájci frank"},
                   {CURRENCY_ABBREVIATION, "CHF"},
                   {CURRENCY_RATE, 400.5},
                   {CURRENCY_LINE_TOTAL_ROUNDING_DECIMALS, 3},
                   {CURRENCY_LINE_TOTAL_PRINTING_DECIMALS, 1},
                   {CURRENCY_INVOICE_TOTAL_ROUNDING_DECIMALS, 0},
                   {CURRENCY_INVOICE_TOTAL_PRINTING_DECIMALS, 2}};
        std::optional<qint64> id;
        QVERIFY(CurrencyStore().save(row, id));
        QCOMPARE(SelectValue("select CURRENCY_LINE_TOTAL_ROUNDING_DECIMALS || '/' || "
                             "CURRENCY_INVOICE_TOTAL_ROUNDING_DECIMALS from CURRENCYY "
                             "where CURRENCY_ID = ?",
                             {*id})
                     .toString(),
                 "1/0");
    }

    void translationsWrittenAndDeletedWithTheirRow()
    {
        const TableStore& store = PaymentMethodStore();
        const auto stored = [](qint64 id) {
            return Count("select count(*) from PAYMENTMETHODTRANSLATION where "
                         "PAYMENTMETHODTRANSLATION_PAYMENTMETHOD_ID = ?",
                         {id});
        };
        Record row{{PAYMENTMETHOD_NAME, "Utánvét"}, {PAYMENTMETHOD_CODE, "UV"}};
        const QList<Record> translations{{{PAYMENTMETHODTRANSLATION_LANG_ID, 1},
                                          {PAYMENTMETHODTRANSLATION_NAME, "Cash on delivery"}},
                                         {{PAYMENTMETHODTRANSLATION_LANG_ID, 2},
                                          {PAYMENTMETHODTRANSLATION_NAME, ""},
                                          {PAYMENTMETHODTRANSLATION_COMMENT, " "}}};
        std::optional<qint64> id;
        QVERIFY(store.save(row, id, {translations}));
        QList<Record> read;
        QVERIFY(store.readChildren(0, *id, read));
        QCOMPARE(read.size(), 1); // the empty German row is not stored
        QCOMPARE(read.at(0).value(PAYMENTMETHODTRANSLATION_NAME).toString(), "Cash on delivery");
        // Saving without child lists leaves the translations alone; saving with them replaces them.
        QVERIFY(store.save(row, id));
        QCOMPARE(stored(*id), 1);
        QVERIFY(store.save(row, id, {{}}));
        QCOMPARE(stored(*id), 0);
        QVERIFY(store.save(row, id, {translations}));
        QVERIFY(store.remove(*id));
        QCOMPARE(stored(*id), 0);
        // The basic data's translations of the other methods are untouched.
        QCOMPARE(Count("select count(*) from PAYMENTMETHODTRANSLATION"), 4);
    }

    void failedTranslationWriteLeavesNoRow()
    {
        QVERIFY(ExecSql("drop table NOVATREASONTRANSLATION"));
        Record row{{NOVATREASON_NAME, "Export"}};
        std::optional<qint64> id;
        const QList<Record> texts{
            {{NOVATREASONTRANSLATION_LANG_ID, 1}, {NOVATREASONTRANSLATION_TEXT, "Export"}}};
        QCOMPARE(NoVatReasonStore().save(row, id, {texts}).message(),
                 "Unable to save translation data.");
        QVERIFY(!id);
        QCOMPARE(Count("select count(*) from NOVATREASON where NOVATREASON_NAME = 'Export'"), 0);
    }

private:
    std::unique_ptr<TestCompany> m_company;
};

QTEST_GUILESS_MAIN(TestTableStore)
#include "tst_tablestore.moc"
