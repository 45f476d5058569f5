// The master-data stores, the folded names they search and product prices against a real
// company database.
#include "CompanyTestCase.h"
#include "TestData.h"

#include "Columns.h"
#include "base/FoldName.h"
#include "base/Setup.h"
#include "masterdata/MasterTables.h"
#include "masterdata/ProductPrices.h"

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

class TestTableStore : public CompanyTestCase
{
    Q_OBJECT
private Q_SLOTS:

    void uniqueCodeClashFails_data()
    {
        AddColumns<const TableStore*, QString, Record>({"store", "codeColumn", "row"});
        const auto row = [](const char* name, const TableStore& store, const char* code,
                            const Record& row) { QTest::newRow(name) << &store << code << row; };
        row("vat", VatStore(), VAT_CODE, {{VAT_NAME, "x"}, {VAT_PERCENT, 10}});
        row("payment method", PaymentMethodStore(), PAYMENTMETHOD_CODE,
            {{PAYMENTMETHOD_NAME, "x"}});
        row("country", CountryStore(), COUNTRY_INTERNATIONAL_CODE, {{COUNTRY_NAME, "x"}});
        row("partner", PartnerStore(), PARTNER_CODE, Partner("x"));
    }

    // A second row with a taken code fails; rows without a code never clash with each other.
    void uniqueCodeClashFails()
    {
        auto [store, codeColumn, row] =
            Fetch<const TableStore*, QString, Record>({"store", "codeColumn", "row"});
        row.insert(codeColumn, "");
        if (!store->missing(row)) { // where the code is optional
            QVERIFY2(Insert(*store, row), "first row without a code");
            QVERIFY2(Insert(*store, row), "second row without a code");
        }
        row.insert(codeColumn, "QQ");
        QVERIFY(Insert(*store, row));
        const qint64 rows = RowCount(*store);
        // The reason is read before the database would refuse the row.
        const QString message = "Unable to save data.&The code \"QQ\" is already used.";
        QCOMPARE(Insert(*store, row).message(), message);
        QCOMPARE(RowCount(*store), rows);
        // Updating another row to the taken code fails the same way.
        row.insert(codeColumn, "QR");
        std::optional<qint64> other;
        QVERIFY(store->save(row, other));
        row.insert(codeColumn, "QQ");
        QCOMPARE(store->save(row, other).message(), message);
    }

    // Keys the user reads without case: a second "eur" or "En" is the same key; a new language
    // code is kept in capitals.
    void keysClashWithoutCase()
    {
        const QString taken = "Unable to save data.&The code \"%1\" is already used.";
        const Record euro{
            {CURRENCY_NAME, "x"}, {CURRENCY_ABBREVIATION, " eur"}, {CURRENCY_RATE, 1}};
        QCOMPARE(Insert(CurrencyStore(), euro).message(), taken.arg("eur"));
        Record lang{{LANG_NAME, "x"}, {LANG_CODE, "En "}};
        QCOMPARE(Insert(LangStore(), lang).message(), taken.arg("EN"));
        lang.insert(LANG_CODE, "fr");
        std::optional<qint64> id;
        QVERIFY(LangStore().save(lang, id));
        QCOMPARE(SelectValue("select LANG_CODE from LANG where LANG_ID = ?", {*id}), "FR");
    }

    // A row other rows point to is kept, and the message says where it is used.
    void usedRowsAreNotDeleted_data()
    {
        // use: makes row 1 used
        AddColumns<const TableStore*, QString, QString>({"store", "use", "message"});
        AddRow("vat key", &VatStore(), QString("update PRODUCT set PRODUCT_VAT_ID = 1"),
               QString("This VAT key is used by %1 product(s)."));
        AddRow("stat number by its text", &StatNoStore(),
               QString("insert or replace into STATNO values (1, '8471', 'x');update PRODUCT set "
                       "PRODUCT_STAT_NO = '8471'"),
               QString("This stat number is used by %1 product(s)."));
        AddRow("country as mailing country", &CountryStore(),
               QString("update PARTNER set PARTNER_MAIL_COUNTRY_ID = 1, PARTNER_COUNTRY_ID = 0"),
               QString("This country is the mailing country of %1 partner(s)."));
    }

    void usedRowsAreNotDeleted()
    {
        auto [store, use, message] =
            Fetch<const TableStore*, QString, QString>({"store", "use", "message"});
        // Two rows of the referencing table, whatever the test company holds.
        for (const QString& name : QStringList{"Egy", "Kettő"}) {
            QVERIFY(Insert(PartnerStore(), Partner(name)));
            QVERIFY(Insert(ProductStore(), {{PRODUCT_NAME, name}}));
        }
        for (const QString& sql : use.split(u';'))
            QVERIFY(ExecSql(sql));
        const qint64 table = use.contains("PRODUCT") ? Count("select count(*) from PRODUCT")
                                                     : Count("select count(*) from PARTNER");
        const qint64 before = RowCount(*store);
        // One sentence per referencing table: the test company's orders may add their own.
        QVERIFY(store->canRemove(1).message().split(u'&').contains(message.arg(table)));
        QVERIFY(store->remove(1).message().split(u'&').contains(message.arg(table)));
        QCOMPARE(RowCount(*store), before);
    }

    void homeRowsAreNotDeleted()
    {
        // Rows nothing points to.
        QVERIFY(ExecSql("delete from PARTNER"));
        QVERIFY(ExecSql("update COUNTRY set COUNTRY_CURRENCY_ID = 0"));
        QVERIFY(ExecSql("delete from PRODUCTPRICE"));
        QVERIFY(ExecSql(
            "update SETUP set SETUP_INVOICE_CURRENCY_ID = 0, SETUP_INVOICE_COUNTRY_ID = 0"));
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
        Record row{{VAT_NAME, "x"}, {VAT_PERCENT, 10}};
        std::optional<qint64> id;
        QVERIFY(VatStore().save(row, id));
        QVERIFY(VatStore().read(*id, row));
        QVERIFY(VatStore().remove(*id));
        QCOMPARE(VatStore().read(*id, row).message(),
                 "Unable to load data from database.&Maybe it is deleted by an other user.");
        QCOMPARE(VatStore().save(row, id).message(), "Unable to save data.");
        QCOMPARE(Count("select count(*) from VAT where VAT_ID = ?", {*id}), 0);
    }

    // The searchable form behind every ..._NAME_ASCII column and every name search.
    void fold_data()
    {
        AddColumns<QString, QString>({"name", "folded"});
        const auto row = [](const char* name, const QString& text, const char* folded) {
            QTest::newRow(name) << text << QString::fromUtf8(folded);
        };
        // Hungarian in both cases, the double acute of ő and ű included.
        row("upper", "ÁRVÍZTŰRŐ TÜKÖRFÚRÓGÉP", "ARVIZTURO TUKORFUROGEP");
        row("combining accents", QString::fromUtf8("A\xcc\x81rvi\xcc\x81z"), "ARVIZ");
        row("sharp s", "Größe Straße GROẞE", "GROSSE STRASSE GROSSE");
        // Other Latin letters: with marks, and those that do not decompose.
        row("with marks", "Čapek façade Ñandú Şişli İstanbul", "CAPEK FACADE NANDU SISLI ISTANBUL");
        row("own letters", "Łódź Øresund Ærø Đorđe cœur ılık Þór",
            "LODZ ORESUND AERO DORDE COEUR ILIK THOR");
        row("compatibility forms", "ﬁnom ＡＢＣ", "FINOM ABC");
        // Everything else stays, only upper-cased.
        row("punctuation and digits", "1. sz. Bt. & Co (kft)", "1. SZ. BT. & CO (KFT)");
        row("cyrillic", "Москва", "МОСКВА");
    }

    void fold()
    {
        auto [name, folded] = Fetch<QString, QString>({"name", "folded"});
        QCOMPARE(FoldName(name), folded);
    }

    void partnerNameIsFoldedAndFoundByPrefix_data()
    {
        AddColumns<QString, QStringList>({"search", "found"});
        const QStringList arv{"Árvíztűrő Kft."}, none;
        QTest::newRow("mixed accents") << "árvizturo k" << arv;
        QTest::newRow("inside the name") << "tűrő" << none;
        QTest::newRow("wildcard typed") << "%rv" << none;
        QTest::newRow("percent in name") << "50%" << QStringList{"50% Bt."};
        // In the order of the folded names: Á goes with A, not after Z.
        QTest::newRow("empty lists all") << ""
                                         << QStringList{"50% Bt.", "5000 Kft.", "Árvíztűrő Kft.",
                                                        "Teszt Partner Kft", "Zala Bt."};
    }

    void partnerNameIsFoldedAndFoundByPrefix()
    {
        auto [search, found] = Fetch<QString, QStringList>({"search", "found"});
        for (const char* name : {"Árvíztűrő Kft.", "50% Bt.", "5000 Kft.", "Zala Bt."})
            QVERIFY(Insert(PartnerStore(), Partner(QString::fromUtf8(name))));
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
        const std::tuple<QString, int, int, bool> cases[] = {
            {"", 5, 5, false}, {"csa", 3, 3, true}, {"", 0, 5, false}};
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
        row.insert(PARTNER_MAIL_CITY, "Pécs"); // the save above put the billing city in
        QVERIFY(PartnerStore().save(row, id));
        QCOMPARE(SelectValue(mail, {*id}).toString(), "Kovács Bt./Pécs/3");
    }

    void currencyRoundingCappedByPrinting()
    {
        Record euro;
        QVERIFY(CurrencyStore().read(1, euro));
        euro.insert(CURRENCY_LINE_TOTAL_ROUNDING_DECIMALS, 3);
        euro.insert(CURRENCY_LINE_TOTAL_PRINTING_DECIMALS, 1);
        euro.insert(CURRENCY_INVOICE_TOTAL_ROUNDING_DECIMALS, 0); // below its printing: kept
        std::optional<qint64> id = 1;
        QVERIFY(CurrencyStore().save(euro, id));
        QCOMPARE(SelectValue("select CURRENCY_LINE_TOTAL_ROUNDING_DECIMALS || '/' || "
                             "CURRENCY_INVOICE_TOTAL_ROUNDING_DECIMALS from CURRENCYY "
                             "where CURRENCY_ID = 1")
                     .toString(),
                 "1/0");
    }

    // Saving without child lists leaves the translations alone; with them, replaces them. A
    // failing translation write takes its row back with it.
    void translationsWrittenAndDeletedWithTheirRow()
    {
        const TableStore& store = PaymentMethodStore();
        const QString stored = "select count(*) from PAYMENTMETHODTRANSLATION where "
                               "PAYMENTMETHODTRANSLATION_PAYMENTMETHOD_ID = ?";
        Record row{{PAYMENTMETHOD_NAME, "Utánvét"}};
        const QList<Record> english{
            {{PAYMENTMETHODTRANSLATION_LANG_ID, 1}, {PAYMENTMETHODTRANSLATION_NAME, "COD"}}};
        std::optional<qint64> id;
        QVERIFY(store.save(row, id, {english}));
        QVERIFY(store.save(row, id));
        QCOMPARE(Count(stored, {*id}), 1);
        QVERIFY(store.save(row, id, {{}}));
        QCOMPARE(Count(stored, {*id}), 0);
        QVERIFY(store.save(row, id, {english}));
        QVERIFY(store.remove(*id));
        QCOMPARE(Count(stored, {*id}), 0);
        // The basic data's translations of the other methods are untouched.
        QCOMPARE(Count("select count(*) from PAYMENTMETHODTRANSLATION"), 4);

        QVERIFY(ExecSql("drop table PAYMENTMETHODTRANSLATION"));
        const qint64 methods = RowCount(store);
        std::optional<qint64> failed;
        QCOMPARE(store.save(row, failed, {english}).message(), "Unable to save translation data.");
        QVERIFY(!failed);
        QCOMPARE(RowCount(store), methods);
    }

    // A product's price in a foreign currency when none is overridden (the overriding is checked
    // through the product list and finder): halves away from zero, none without a usable rate.
    void calculatedPrice()
    {
        const std::tuple<double, double, int, std::optional<double>> cases[] = {
            {1005.0, 10.0, 0, 101.0}, {-1005.0, 10.0, 0, -101.0}, {1000.0, 0.0, 2, std::nullopt}};
        for (const auto& [net, rate, decimals, price] : cases)
            QCOMPARE(CalculatedPrice(net, {1, "Euro", "EUR", rate, decimals}), price);
    }

    // A new partner takes every invoice default of the settings; choosing a country brings its
    // language and, when it has one, its currency.
    void newPartnerTakesSettingsDefaults()
    {
        QVERIFY(Setup::current().load());
        const std::pair<const char*, const char*> defaults[] = {
            {PARTNER_COUNTRY_ID, SETUP_INVOICE_COUNTRY_ID},
            {PARTNER_MAIL_COUNTRY_ID, SETUP_INVOICE_COUNTRY_ID},
            {PARTNER_LANG_ID, SETUP_INVOICE_LANG_ID},
            {PARTNER_CURRENCY_ID, SETUP_INVOICE_CURRENCY_ID},
            {PARTNER_DISCOUNT_TYPE, SETUP_INVOICE_DEFAULT_DISCOUNT_TYPE},
        };
        int value = 2;
        for (const auto& [partner, setup] : defaults)
            Setup::current().set(setup, value++);
        const Record row = NewPartnerDefaults();
        for (const auto& [partner, setup] : defaults)
            QCOMPARE(row.value(partner).toLongLong(), Setup::current().integer(setup));
        QCOMPARE(row.value(PARTNER_MAIL_IS_SAME), "1");
        QCOMPARE(row.size(), 6);

        QVERIFY(ExecSql("update COUNTRY set COUNTRY_LANG_ID = 2, COUNTRY_CURRENCY_ID = 3 where "
                        "COUNTRY_ID = 1"));
        Record chosen;
        QVERIFY(CountryDefaults(1, chosen));
        QCOMPARE(chosen, (Record{{PARTNER_LANG_ID, 2}, {PARTNER_CURRENCY_ID, 3}}));
        QVERIFY(ExecSql("update COUNTRY set COUNTRY_CURRENCY_ID = NULL where COUNTRY_ID = 1"));
        QVERIFY(CountryDefaults(1, chosen));
        QVERIFY(!chosen.contains(PARTNER_CURRENCY_ID));
    }

    // An unset or not positive setting gives the default.
    void listRecordLimit()
    {
        const std::pair<QVariant, int> cases[] = {{25, 25}, {QVariant(), 1000}, {0, 1000}};
        for (const auto& [setting, limit] : cases) {
            Setup::current().set(SETUP_RECORD_LIMIT, setting);
            QCOMPARE(ListRecordLimit(), limit);
        }
    }

    // The product list's second price column: the default currency of new orders when foreign.
    void listCurrencyPrefersOrderDefault()
    {
        QVERIFY(Setup::current().load());
        QCOMPARE(ListPriceCurrency(), std::optional<qint64>(1)); // the default is the forint
        Setup::current().set(SETUP_INVOICE_CURRENCY_ID, 2);
        QCOMPARE(ListPriceCurrency(), std::optional<qint64>(2));
        QVERIFY(ExecSql("delete from CURRENCYY where CURRENCY_ID <> 0"));
        QVERIFY(!ListPriceCurrency());
    }
};

QTEST_GUILESS_MAIN(TestTableStore)
#include "tst_tablestore.moc"
