// The master-data stores against a real company database.
#include "TestCompany.h"

#include "Columns.h"
#include "app/SqlStatement.h"
#include "masterdata/MasterTables.h"

#include <QtTest>

using namespace Col;

namespace {

QString N(const char* column)
{
    return QString::fromLatin1(column);
}

qint64 Count(const QString& sql, const QVariantList& binds = {})
{
    return SelectValue(sql, binds).toLongLong();
}

Result Insert(const TableStore& store, Record row, std::optional<qint64>* idOut = nullptr)
{
    std::optional<qint64> id;
    const Result r = store.save(row, id);
    if (idOut)
        *idOut = id;
    return r;
}

Record Partner(const QString& name, const QVariant& code = {})
{
    return {{N(PARTNER_NAME), name}, {N(PARTNER_CODE), code}, {N(PARTNER_MAIL_IS_SAME), "1"}};
}

} // namespace

class TestTableStore : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void uniqueCodeClashFails_data();
    void uniqueCodeClashFails();
    void requiredFieldNamesTheField_data();
    void requiredFieldNamesTheField();
    void homeRowsAreNotDeleted_data();
    void homeRowsAreNotDeleted();
    void vanishedRowIsReported();
    void vatKeysOrderedByPercentThenId();
    void partnerNameIsFoldedAndFoundByPrefix_data();
    void partnerNameIsFoldedAndFoundByPrefix();
    void searchOrdersByFoldedName();
    void recordLimitTellsAboutMoreRows();
    void mailAddressFollowsBillingWhenSame();
    void currencyRoundingCappedByPrinting();
    void translationsWrittenAndDeletedWithTheirRow();
    void failedTranslationWriteLeavesNoRow();
};

void TestTableStore::uniqueCodeClashFails_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<QString>("codeColumn");
    QTest::addColumn<Record>("row");
    QTest::newRow("vat") << "VAT" << N(VAT_CODE)
                         << Record{{N(VAT_NAME), "x"}, {N(VAT_PERCENT), 10}};
    QTest::newRow("payment method")
        << "PAYMENTMETHOD" << N(PAYMENTMETHOD_CODE) << Record{{N(PAYMENTMETHOD_NAME), "x"}};
    QTest::newRow("no-vat reason")
        << "NOVATREASON" << N(NOVATREASON_CODE) << Record{{N(NOVATREASON_NAME), "x"}};
    QTest::newRow("language") << "LANG" << N(LANG_CODE) << Record{{N(LANG_NAME), "x"}};
    QTest::newRow("country") << "COUNTRY" << N(COUNTRY_INTERNATIONAL_CODE)
                             << Record{{N(COUNTRY_NAME), "x"}};
    QTest::newRow("partner") << "PARTNER" << N(PARTNER_CODE) << Partner("x");
    QTest::newRow("product") << "PRODUCT" << N(PRODUCT_CODE) << Record{{N(PRODUCT_NAME), "x"}};
}

// A second row with a taken code fails; rows without a code never clash with each other.
void TestTableStore::uniqueCodeClashFails()
{
    QFETCH(QString, table);
    QFETCH(QString, codeColumn);
    QFETCH(Record, row);
    TestCompany company;
    QVERIFY(company.isValid());
    const QHash<QString, const TableStore*> stores{{"VAT", &VatStore()},
                                                   {"PAYMENTMETHOD", &PaymentMethodStore()},
                                                   {"NOVATREASON", &NoVatReasonStore()},
                                                   {"LANG", &LangStore()},
                                                   {"COUNTRY", &CountryStore()},
                                                   {"PARTNER", &PartnerStore()},
                                                   {"PRODUCT", &ProductStore()}};
    const TableStore& store = *stores.value(table);
    row.insert(codeColumn, "");
    if (!store.missing(row)) { // where the code is optional
        QVERIFY2(Insert(store, row), "first row without a code");
        QVERIFY2(Insert(store, row), "second row without a code");
    }
    row.insert(codeColumn, "QQ");
    std::optional<qint64> id;
    QVERIFY(Insert(store, row, &id));
    const Result clash = Insert(store, row);
    QVERIFY(!clash);
    QCOMPARE(clash.message(), "Unable to save data.");
    QVERIFY(!clash.sqlError().isEmpty());
    QCOMPARE(
        Count(QStringLiteral("select count(*) from %1 where %2 = 'QQ'").arg(table, codeColumn)), 1);

    // Updating another row to the taken code fails the same way.
    Record other = row;
    other.insert(codeColumn, "QR");
    std::optional<qint64> otherId;
    QVERIFY(Insert(store, other, &otherId));
    other.insert(codeColumn, "QQ");
    QCOMPARE(store.save(other, otherId).message(), "Unable to save data.");
}

void TestTableStore::requiredFieldNamesTheField_data()
{
    QTest::addColumn<int>("table");
    QTest::addColumn<Record>("row");
    QTest::addColumn<QString>("message");
    QTest::newRow("vat name") << 0 << Record{{N(VAT_PERCENT), 5}}
                              << "VAT Name field must have a value.";
    QTest::newRow("vat percent") << 0 << Record{{N(VAT_NAME), "5%"}}
                                 << "VAT Percent field must have a value.";
    QTest::newRow("currency rate")
        << 1 << Record{{N(CURRENCY_NAME), "Frank"}, {N(CURRENCY_ABBREVIATION), "CHF"}}
        << "Exchange Rate field must have a value.";
    QTest::newRow("currency abbreviation blank")
        << 1
        << Record{{N(CURRENCY_NAME), "Frank"},
                  {N(CURRENCY_ABBREVIATION), "  "},
                  {N(CURRENCY_RATE), 1}}
        << "Currency Abbreviation field must have a value.";
    QTest::newRow("stat no") << 2 << Record{{N(STATNO_NAME), "x"}}
                             << "Stat No field must have a value.";
    QTest::newRow("country code") << 3 << Record{{N(COUNTRY_NAME), "Ausztrália"}}
                                  << "International Country Code field must have a value.";
    QTest::newRow("partner mail name")
        << 4 << Record{{N(PARTNER_NAME), "Kovács"}, {N(PARTNER_MAIL_IS_SAME), "0"}}
        << "A partner levelezesi cimehez tartozo nevet meg kell adni.";
    QTest::newRow("product name") << 5 << Record{{N(PRODUCT_PRICE), 10}}
                                  << "Name field must have a value.";
}

void TestTableStore::requiredFieldNamesTheField()
{
    QFETCH(int, table);
    QFETCH(Record, row);
    QFETCH(QString, message);
    TestCompany company;
    QVERIFY(company.isValid());
    const TableStore* stores[] = {&VatStore(),     &CurrencyStore(), &StatNoStore(),
                                  &CountryStore(), &PartnerStore(),  &ProductStore()};
    const TableStore& store = *stores[table];
    const qint64 before = Count("select count(*) from " + N(store.info().table));
    const Result r = Insert(store, row);
    QCOMPARE(r.message(), message);
    QCOMPARE(Count("select count(*) from " + N(store.info().table)), before);
}

void TestTableStore::homeRowsAreNotDeleted_data()
{
    QTest::addColumn<bool>("currency");
    QTest::addColumn<QString>("message");
    QTest::newRow("forint") << true << "This currency can not be deleted.";
    QTest::newRow("home country") << false << "This country can not be deleted.";
}

void TestTableStore::homeRowsAreNotDeleted()
{
    QFETCH(bool, currency);
    QFETCH(QString, message);
    TestCompany company;
    QVERIFY(company.isValid());
    const TableStore& store = currency ? CurrencyStore() : CountryStore();
    const QString count = "select count(*) from " + N(store.info().table);
    const qint64 before = Count(count);
    QCOMPARE(store.canRemove(0).message(), message);
    QCOMPARE(store.remove(0).message(), message);
    QCOMPARE(Count(count), before);
    QVERIFY(store.canRemove(1));
    QVERIFY(store.remove(1));
    QCOMPARE(Count(count), before - 1);
}

void TestTableStore::vanishedRowIsReported()
{
    TestCompany company;
    QVERIFY(company.isValid());
    Record row;
    QVERIFY(VatStore().read(1, row));
    QCOMPARE(row.value(N(VAT_NAME)).toString(), "27%");
    QVERIFY(VatStore().remove(1));
    QCOMPARE(VatStore().read(1, row).message(),
             "Unable to load data from database.&Maybe it is deleted by an other user.");
    std::optional<qint64> id = 1;
    QCOMPARE(VatStore().save(row, id).message(), "Unable to save data.");
    QCOMPARE(Count("select count(*) from VAT where VAT_ID = 1"), 0);
}

void TestTableStore::vatKeysOrderedByPercentThenId()
{
    TestCompany company;
    QVERIFY(company.isValid());
    QVERIFY(Insert(VatStore(), {{N(VAT_NAME), "7%"}, {N(VAT_PERCENT), 7.0}}));
    RecordPage page;
    QVERIFY(VatStore().list(page));
    QStringList names;
    for (const Record& r : page.rows)
        names << r.value(N(VAT_NAME)).toString();
    QCOMPARE(names.mid(0, 6), QStringList({"0%", "Alanyi adómentes", "Tárgyi adómentes",
                                           "Közösségen belüli értékesítés (fordított adózás)",
                                           "Harmadik országba irányuló értékesítés",
                                           "Az áfa tárgyi hatályán kívül"}));
    QCOMPARE(names.mid(6), QStringList({"5%", "7%", "18%", "27%"}));
}

void TestTableStore::partnerNameIsFoldedAndFoundByPrefix_data()
{
    QTest::addColumn<QString>("search");
    QTest::addColumn<QStringList>("found");
    const QStringList arv{"Árvíztűrő Kft."};
    QTest::newRow("plain lower") << "arv" << arv;
    QTest::newRow("accented") << "ÁRVÍZ" << arv;
    QTest::newRow("mixed accents") << "árvizturo k" << arv;
    QTest::newRow("inside the name") << "tűrő" << QStringList();
    QTest::newRow("wildcard typed") << "%rv" << QStringList();
    QTest::newRow("underscore typed") << "_rv" << QStringList();
    QTest::newRow("percent in name") << "50%" << QStringList{"50% Bt."};
    QTest::newRow("empty lists all")
        << "" << QStringList{"50% Bt.", "5000 Kft.", "Árvíztűrő Kft.", "Teszt Partner Kft"};
}

void TestTableStore::partnerNameIsFoldedAndFoundByPrefix()
{
    QFETCH(QString, search);
    QFETCH(QStringList, found);
    TestCompany company;
    QVERIFY(company.isValid());
    std::optional<qint64> id;
    QVERIFY(Insert(PartnerStore(), Partner("Árvíztűrő Kft."), &id));
    QVERIFY(Insert(PartnerStore(), Partner("50% Bt.")));
    QVERIFY(Insert(PartnerStore(), Partner("5000 Kft.")));
    QCOMPARE(SelectValue("select PARTNER_NAME_ASCII from PARTNER where PARTNER_ID = ?", {*id})
                 .toString(),
             "ARVIZTURO KFT.");
    RecordPage page;
    QVERIFY(PartnerStore().list(page, {search, 0}));
    QStringList names;
    for (const Record& r : page.rows)
        names << r.value(N(PARTNER_NAME)).toString();
    QCOMPARE(names, found);
}

void TestTableStore::searchOrdersByFoldedName()
{
    TestCompany company;
    QVERIFY(company.isValid());
    for (const char* name : {"Zala Bt.", "Ábel Kft.", "Abroncs Kft.", "Őz Bt."})
        QVERIFY(Insert(PartnerStore(), Partner(QString::fromUtf8(name))));
    RecordPage page;
    QVERIFY(PartnerStore().list(page, {"", 0}));
    QStringList names;
    for (const Record& r : page.rows)
        names << r.value(N(PARTNER_NAME_ASCII)).toString();
    QCOMPARE(names,
             QStringList({"ABEL KFT.", "ABRONCS KFT.", "OZ BT.", "TESZT PARTNER KFT", "ZALA BT."}));
}

void TestTableStore::recordLimitTellsAboutMoreRows()
{
    TestCompany company;
    QVERIFY(company.isValid());
    for (int i = 0; i < 4; ++i)
        QVERIFY(Insert(ProductStore(), {{N(PRODUCT_NAME), QStringLiteral("Csavar %1").arg(i)}}));
    struct Case
    {
        QString prefix;
        int limit;
        int rows;
        bool more;
    };
    // Four screws and the basic data's test product.
    const Case cases[] = {{"", 3, 3, true},
                          {"", 5, 5, false},
                          {"csa", 4, 4, false},
                          {"csa", 3, 3, true},
                          {"", 0, 5, false}};
    for (const Case& c : cases) {
        RecordPage page;
        QVERIFY(ProductStore().list(page, {c.prefix, c.limit}));
        QCOMPARE(page.rows.size(), c.rows);
        QCOMPARE(page.more, c.more);
    }
}

void TestTableStore::mailAddressFollowsBillingWhenSame()
{
    TestCompany company;
    QVERIFY(company.isValid());
    Record row = Partner("Kovács Bt.");
    row.insert(N(PARTNER_CITY), "Győr");
    row.insert(N(PARTNER_COUNTRY_ID), 3);
    row.insert(N(PARTNER_MAIL_CITY), "Pécs");
    std::optional<qint64> id;
    QVERIFY(PartnerStore().save(row, id));
    Record stored;
    QVERIFY(PartnerStore().read(*id, stored));
    QCOMPARE(stored.value(N(PARTNER_MAIL_NAME)).toString(), "Kovács Bt.");
    QCOMPARE(stored.value(N(PARTNER_MAIL_CITY)).toString(), "Győr");
    QCOMPARE(stored.value(N(PARTNER_MAIL_COUNTRY_ID)).toInt(), 3);

    stored.insert(N(PARTNER_MAIL_IS_SAME), "0");
    stored.insert(N(PARTNER_MAIL_CITY), "Pécs");
    QVERIFY(PartnerStore().save(stored, id));
    QCOMPARE(
        SelectValue("select PARTNER_MAIL_CITY from PARTNER where PARTNER_ID = ?", {*id}).toString(),
        "Pécs");
}

void TestTableStore::currencyRoundingCappedByPrinting()
{
    TestCompany company;
    QVERIFY(company.isValid());
    Record row{{N(CURRENCY_NAME), "Svájci frank"},
               {N(CURRENCY_ABBREVIATION), "CHF"},
               {N(CURRENCY_RATE), 400.5},
               {N(CURRENCY_LINE_TOTAL_ROUNDING_DECIMALS), 3},
               {N(CURRENCY_LINE_TOTAL_PRINTING_DECIMALS), 1},
               {N(CURRENCY_INVOICE_TOTAL_ROUNDING_DECIMALS), 0},
               {N(CURRENCY_INVOICE_TOTAL_PRINTING_DECIMALS), 2}};
    std::optional<qint64> id;
    QVERIFY(CurrencyStore().save(row, id));
    SqlStatement st(
        "select CURRENCY_LINE_TOTAL_ROUNDING_DECIMALS, CURRENCY_INVOICE_TOTAL_ROUNDING_DECIMALS "
        "from CURRENCYY where CURRENCY_ID = ?",
        {*id});
    QVERIFY(st.exec() && st.next());
    QCOMPARE(st.value(0).toInt(), 1);
    QCOMPARE(st.value(1).toInt(), 0);
}

void TestTableStore::translationsWrittenAndDeletedWithTheirRow()
{
    TestCompany company;
    QVERIFY(company.isValid());
    const TableStore& store = PaymentMethodStore();
    Record row{{N(PAYMENTMETHOD_NAME), "Utánvét"}, {N(PAYMENTMETHOD_CODE), "UV"}};
    const QList<Record> translations{
        {{N(PAYMENTMETHODTRANSLATION_LANG_ID), 1},
         {N(PAYMENTMETHODTRANSLATION_NAME), "Cash on delivery"}},
        {{N(PAYMENTMETHODTRANSLATION_LANG_ID), 2},
         {N(PAYMENTMETHODTRANSLATION_NAME), ""},
         {N(PAYMENTMETHODTRANSLATION_COMMENT), " "}},
    };
    std::optional<qint64> id;
    QVERIFY(store.save(row, id, {translations}));
    QList<Record> read;
    QVERIFY(store.readChildren(0, *id, read));
    QCOMPARE(read.size(), 1); // the empty German row is not stored
    QCOMPARE(read.at(0).value(N(PAYMENTMETHODTRANSLATION_NAME)).toString(), "Cash on delivery");

    // Saving without child lists leaves the translations alone; saving with them replaces them.
    QVERIFY(store.save(row, id));
    QCOMPARE(Count("select count(*) from PAYMENTMETHODTRANSLATION where "
                   "PAYMENTMETHODTRANSLATION_PAYMENTMETHOD_ID = ?",
                   {*id}),
             1);
    QVERIFY(store.save(row, id, {{}}));
    QCOMPARE(Count("select count(*) from PAYMENTMETHODTRANSLATION where "
                   "PAYMENTMETHODTRANSLATION_PAYMENTMETHOD_ID = ?",
                   {*id}),
             0);

    QVERIFY(store.save(row, id, {translations}));
    QVERIFY(store.remove(*id));
    QCOMPARE(Count("select count(*) from PAYMENTMETHODTRANSLATION where "
                   "PAYMENTMETHODTRANSLATION_PAYMENTMETHOD_ID = ?",
                   {*id}),
             0);
    // The basic data's translations of the other methods are untouched.
    QCOMPARE(Count("select count(*) from PAYMENTMETHODTRANSLATION"), 4);
}

void TestTableStore::failedTranslationWriteLeavesNoRow()
{
    TestCompany company;
    QVERIFY(company.isValid());
    QVERIFY(ExecSql("drop table NOVATREASONTRANSLATION"));
    Record row{{N(NOVATREASON_NAME), "Export"}};
    std::optional<qint64> id;
    const Result r = NoVatReasonStore().save(
        row, id,
        {{{{N(NOVATREASONTRANSLATION_LANG_ID), 1}, {N(NOVATREASONTRANSLATION_TEXT), "Export"}}}});
    QCOMPARE(r.message(), "Unable to save translation data.");
    QVERIFY(!id);
    QCOMPARE(Count("select count(*) from NOVATREASON where NOVATREASON_NAME = 'Export'"), 0);
}

QTEST_GUILESS_MAIN(TestTableStore)
#include "tst_tablestore.moc"
