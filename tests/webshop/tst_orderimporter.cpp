// ORDERS documents against a real company database: how each code is resolved, what every stop
// condition leaves behind (the orders before it, nothing of the failed one, the timestamp at the
// last stored order), and the text conversions.
#include "AppTestData.h"
#include "CompanyTestCase.h"
#include "ScriptedInteraction.h"
#include "TestData.h"
#include "WebshopDocs.h"

#include "base/Setup.h"
#include "documents/MessageText.h"
#include "webshop/OrderImporter.h"
#include "webshop/WebshopXml.h"

#include <QtTest>

namespace {

QString Stored()
{
    return QueryText("select ORDERHEAD_CODE from ORDERHEAD where ORDERHEAD_CODE is not null "
                     "order by ORDERHEAD_ID");
}

QString LastTimestamp()
{
    return QueryText("select SETUP_DOWNLOAD_LAST_ORDERHEAD_TIMESTAMP from SETUP");
}

void SetUpdateBasicData(bool on)
{
    QVERIFY(Setup::write({{"SETUP_DOWNLOAD_UPDATE_BASIC_DATA", on ? "1" : "0"}}));
}

} // namespace

class TestOrderImporter : public CompanyTestCase
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        CompanyTestCase::init();
        SetUpdateBasicData(false);
        // A language without any translations.
        QVERIFY(ExecSql("insert into LANG values (3, 'FR', 'Francia')"));
        m_ui = {};
        m_ask.emplace();
    }

    void storesOrderWithLocalTotals()
    {
        const QByteArray doc = OrdersDoc({OrderXml(
            "W1", {"ORDERHEAD_SUBJECT=Webshop", "ORDERHEAD_VERIFIED= +3"},
            {Item("L1"), Item("L2", {"ORDERITEM_PRICE=333.3", "ORDERITEM_QTY=3",
                                     "ORDERITEM_VAT_CODE=5", "ORDERITEM_VAT_PERCENT=5"})})});
        // Of a repeated element the first counts.
        QVERIFY(run(
            QByteArray(doc).replace("</ORDER>", "<ORDERHEAD_CODE>W9</ORDERHEAD_CODE></ORDER>")));
        QCOMPARE(Stored(), QString("W1"));
        QCOMPARE(m_ui.messages.size(), 0);
        // Lines to one decimal (999.9), the order to whole forints: 2000 + 1000, VAT 540 + 50.
        QCOMPARE(QueryText("select ORDERHEAD_PARTNER_NAME, ORDERHEAD_PARTNER_CODE, "
                           "coalesce(ORDERHEAD_PARTNER_ID, 'none'), ORDERHEAD_PAYMENTMETHOD_CODE, "
                           "ORDERHEAD_DATE_SHIPPED, ORDERHEAD_SUBJECT, ORDERHEAD_VERIFIED, "
                           "ORDERHEAD_TOTAL_NET, ORDERHEAD_TOTAL_VAT, ORDERHEAD_TOTAL_GROSS "
                           "from ORDERHEAD where ORDERHEAD_CODE = 'W1'"),
                 QString("Vevő W1|C-W1|none|KP|2024-03-05|Webshop|1|3000|590|3590"));
        QCOMPARE(QueryText("select ORDERITEM_CODE, coalesce(ORDERITEM_PRODUCT_ID, 'none'), "
                           "ORDERITEM_VAT_ID, ORDERITEM_TOTAL_NET, ORDERITEM_TOTAL_GROSS from "
                           "ORDERITEM where ORDERITEM_CODE like 'L%' order by ORDERITEM_ID"),
                 QString("L1|none|1|2000|2540; L2|none|3|999.9|1049.9"));
        QCOMPARE(LastTimestamp(), QString("T-W1"));
        // Without "Update basic data on import" the master data stays as it was.
        QCOMPARE(QueryText("select (select count(*) from PARTNER where PARTNER_CODE = 'C-W1') + "
                           "(select count(*) from PRODUCT where PRODUCT_CODE like 'P-%')"),
                 QString("0"));
    }

    void updateBasicDataWritesMasterRows()
    {
        SetUpdateBasicData(true);
        QVERIFY(ExecSql("insert into PARTNER (PARTNER_CODE, PARTNER_NAME, PARTNER_TAX_NO, "
                        "PARTNER_PAYMENT_DUE_DAYS) values ('C-W2', 'Régi név', '111', 30)"));
        const QByteArray doc = OrdersDoc(
            {OrderXml("W1",
                      {"ORDERHEAD_CURRENCY_ABBREVIATION=EUR", "ORDERHEAD_PARTNER_LANG_CODE=en",
                       "ORDERHEAD_PARTNER_COUNTRY_INTERNATIONAL_CODE=DE",
                       "ORDERHEAD_NOVATREASON_CODE=FAD", "ORDERHEAD_PAYMENTMETHOD_CODE=AT"},
                      {Item("L1", {"ORDERITEM_VAT_CODE=NEW", "ORDERITEM_VAT_NAME=Új kulcs",
                                   "ORDERITEM_VAT_PERCENT=10", "ORDERITEM_PRICE=12.5",
                                   "ORDERITEM_NAME_TRANSLATION=Product"})}),
             OrderXml("W2", {"ORDERHEAD_PARTNER_NAME=Új név", "ORDERHEAD_PARTNER_TAX_NO=-"})});
        QVERIFY(run(doc));
        QCOMPARE(
            QueryTexts({
                "select PARTNER_NAME, PARTNER_NAME_ASCII, PARTNER_COUNTRY_ID, PARTNER_LANG_ID from "
                "PARTNER where PARTNER_CODE = 'C-W1'",
                // An existing partner is updated; what the order does not carry stays.
                "select PARTNER_NAME, PARTNER_PAYMENT_DUE_DAYS from PARTNER where "
                "PARTNER_CODE = 'C-W2'",
                "select VAT_NAME, VAT_PERCENT, VAT_ID = (select ORDERITEM_VAT_ID from ORDERITEM "
                "where ORDERITEM_CODE = 'L1') from VAT where VAT_CODE = 'NEW'",
                "select PRODUCTPRICE_CURRENCY_ID, PRODUCTPRICE_PRICE, PRODUCTTRANSLATION_LANG_ID, "
                "PRODUCTTRANSLATION_NAME from PRODUCT join PRODUCTPRICE on PRODUCTPRICE_PRODUCT_ID "
                "= PRODUCT_ID join PRODUCTTRANSLATION on PRODUCTTRANSLATION_PRODUCT_ID = "
                "PRODUCT_ID where PRODUCT_CODE = 'P-L1'",
                "select PRODUCT_PRICE from PRODUCT where PRODUCT_CODE = 'P-W2-1'",
                // The orders point to the rows and carry their copies.
                "select ORDERHEAD_CURRENCY_ABBREVIATION, ORDERHEAD_PARTNER_LANG_ID, "
                "ORDERHEAD_PARTNER_COUNTRY_INTERNATIONAL_CODE, ORDERHEAD_NOVATREASON_ID, "
                "ORDERHEAD_PARTNER_ID = (select PARTNER_ID from PARTNER where PARTNER_CODE = "
                "'C-W1'), ORDERHEAD_TOTAL_GROSS from ORDERHEAD where ORDERHEAD_CODE = 'W1'",
                // Due days: the partner's own agreement, else the payment method's.
                "select ORDERHEAD_CODE, julianday(ORDERHEAD_DATE_PAYMENT_DUE) - "
                "julianday(ORDERHEAD_DATE_CREATED) from ORDERHEAD where ORDERHEAD_CODE in ('W1', "
                "'W2') order by ORDERHEAD_CODE",
            }),
            QStringList({"Vevő W1|VEVO W1|2|1", "Új név|30", "Új kulcs|10|1", "1|12.5|1|Product",
                         "1000", "EUR|1|DE|1|1|27.5", "W1|8; W2|30"}));
    }

    // Each bad second order stops the run: the first stays, nothing of the second or third.
    void stopConditions_data()
    {
        AddColumns<QByteArray, QString>({"order", "message"});
        AddRow("missing code", OrderXml("W2", {"ORDERHEAD_CODE=-"}),
               QString("ORDERHEAD_CODE is missing"));
        AddRow("missing payment method", OrderXml("W2", {"ORDERHEAD_PAYMENTMETHOD_CODE="}),
               QString("ORDERHEAD_PAYMENTMETHOD_CODE is missing.&&ORDERHEAD_CODE=W2"));
        AddRow("unknown language", OrderXml("W2", {"ORDERHEAD_PARTNER_LANG_CODE=XX"}),
               QString("There is no lang with code XX in database.&&Add this language and the "
                       "translations and try downloading orders again."));
        AddRow("currency not set up", OrderXml("W2", {"ORDERHEAD_CURRENCY_ABBREVIATION=CHF"}),
               QString("Setting up currency aborted."));
        AddRow("country not set up",
               OrderXml("W2", {"ORDERHEAD_PARTNER_MAIL_COUNTRY_INTERNATIONAL_CODE=FR"}),
               QString("Setting up country aborted."));
        AddRow("payment method not chosen", OrderXml("W2", {"ORDERHEAD_PAYMENTMETHOD_CODE=PP"}),
               QString("Unable to load payment method."));
        AddRow("translation not set up", OrderXml("W2", {"ORDERHEAD_PARTNER_LANG_CODE=FR"}),
               QString("Setting up payment method translation aborted."));
        AddRow("without items",
               QByteArray("<ORDER><ORDERHEAD_CODE>W2</ORDERHEAD_CODE>"
                          "<ORDERHEAD_PAYMENTMETHOD_CODE>KP"
                          "</ORDERHEAD_PAYMENTMETHOD_CODE></ORDER>"),
               QString("Order without items. ORDERHEAD_CODE is W2"));
        AddRow("quantity not a number", OrderXml("W2", {}, {Item("L9", {"ORDERITEM_QTY=két"})}),
               QString("ORDERITEM_QTY is not a number: \"két\"&&ORDERHEAD_CODE=W2"));
        AddRow("order code stored", OrderXml("W1", {"ORDERHEAD_TIMESTAMP=T-W2"}, {Item("L9")}),
               QString("Can't insert order W1.&Error creating order in database with CODE W1."));
        AddRow("item code stored", OrderXml("W2", {}, {Item("L9"), Item("W1-1")}),
               QString("Can't insert order W2.&Error creating orderitem in database with CODE "
                       "W1-1."));
    }
    void stopConditions()
    {
        auto [order, message] = Fetch<QByteArray, QString>({"order", "message"});
        SetUpdateBasicData(true);
        QVERIFY(!run(OrdersDoc({OrderXml("W1"), order, OrderXml("W3")})));
        QVERIFY2(m_ui.lastMessage().startsWith(message), qPrintable(m_ui.lastMessage()));
        QCOMPARE(Stored(), QString("W1"));
        QCOMPARE(LastTimestamp(), QString("T-W1"));
        // The failed order's partner and products went with it.
        QCOMPARE(QueryText("select (select count(*) from PARTNER where PARTNER_CODE in ('C-W2', "
                           "'C-W3')) + (select count(*) from PRODUCT where PRODUCT_CODE in "
                           "('P-L9', 'P-W3-1')) + (select count(*) from ORDERITEM where "
                           "ORDERITEM_CODE = 'L9')"),
                 QString("0"));
    }

    void unreadableDocuments_data()
    {
        AddColumns<QByteArray, QString, QString>({"doc", "message", "stored"});
        AddRow("empty", QByteArray(), QString("No XML tags in document."), QString());
        AddRow("cut in the second order",
               OrdersDoc({OrderXml("W1")}).replace("</ORDERS>", "<ORDER><ORDERHEAD_CODE>W2"),
               QString("Premature end of document."), QString("W1"));
        AddRow("unknown encoding",
               OrdersDoc({OrderXml("W1")}, "<?xml version=\"1.0\" encoding=\"EBCDIC-X\"?>"),
               QString("Encoding EBCDIC-X is unsupported"), QString());
    }
    void unreadableDocuments()
    {
        auto [doc, message, stored] =
            Fetch<QByteArray, QString, QString>({"doc", "message", "stored"});
        QVERIFY(!run(doc));
        QCOMPARE(MessagePlainText(m_ui.lastMessage()), message);
        QCOMPARE(Stored(), stored);
    }

    void otherRootImportsNothing()
    {
        QVERIFY(run("<?xml version=\"1.0\"?><PRODUCTS><ORDER/></PRODUCTS>"));
        QCOMPARE(Stored(), QString());
        QCOMPARE(m_ui.messages.size(), 0);
    }

    // Before the shop's version 2.1 the list price is the price.
    void documentVersion()
    {
        const auto doc = [](const char* code, const QByteArray& prolog) {
            return OrdersDoc(
                {OrderXml(code, {}, {Item(code + QString("-1"), {"ORDERITEM_LIST_PRICE=1200"})})},
                prolog);
        };
        QVERIFY(run(doc("W1", {})));
        QCOMPARE(OrderImporter::documentVersion(), QString("1.0"));
        QVERIFY(run(doc("W2", "<?xml version=\"1.0\"?><?webshop version=\"2.1\"?>")));
        QCOMPARE(OrderImporter::documentVersion(), QString("2.1"));
        QCOMPARE(QueryText("select ORDERITEM_LIST_PRICE from ORDERITEM where ORDERITEM_CODE like "
                           "'W%' order by ORDERITEM_ID"),
                 QString("1000; 1200"));
    }

    // Codes the user sets up in the editors and lists; the rows stay even when the order fails.
    void missingCodesSetUpByTheUser()
    {
        m_ask->onEdit = [](MasterTable table, std::optional<qint64> id, const Record& presets) {
            if (table == MasterTable::Currency) {
                (void)ExecSql("insert into CURRENCYY (CURRENCY_ID, CURRENCY_NAME, "
                              "CURRENCY_ABBREVIATION, CURRENCY_RATE, "
                              "CURRENCY_LINE_TOTAL_ROUNDING_DECIMALS, "
                              "CURRENCY_INVOICE_TOTAL_ROUNDING_DECIMALS) values (7, 'Frank', ?, "
                              "300, 2, 2)",
                              {presets.value("CURRENCY_ABBREVIATION")});
                return std::optional<qint64>(7);
            }
            if (table == MasterTable::PaymentMethod)
                (void)ExecSql("insert into PAYMENTMETHODTRANSLATION values (?, 3, 'Virement', '')",
                              {*id});
            if (table == MasterTable::NoVatReason)
                (void)ExecSql("insert into NOVATREASONTRANSLATION values (?, 3, 'Autoliquidation')",
                              {*id});
            return id;
        };
        m_ask->chosen << 1 << 2;
        QVERIFY(run(OrdersDoc({OrderXml(
            "W1", {"ORDERHEAD_CURRENCY_ABBREVIATION=CHF", "ORDERHEAD_PAYMENTMETHOD_CODE=BANK",
                   "ORDERHEAD_NOVATREASON_CODE=EU", "ORDERHEAD_PARTNER_LANG_CODE=FR"})})));
        QCOMPARE(m_ask->asked,
                 QStringList({"edit 1 -1", "choose 3", "edit 3 1", "choose 2", "edit 2 2"}));
        QCOMPARE(QueryText("select ORDERHEAD_CURRENCY_ID, ORDERHEAD_PAYMENTMETHOD_ID, "
                           "ORDERHEAD_PAYMENTMETHOD_NAME_TRANSLATION, ORDERHEAD_NOVATREASON_ID "
                           "from ORDERHEAD where ORDERHEAD_CODE = 'W1'"),
                 QString("7|2|Virement|1"));
        QCOMPARE(QueryText("select PAYMENTMETHOD_CODE, (select group_concat(NOVATREASON_CODE) from "
                           "NOVATREASON) from PAYMENTMETHOD where PAYMENTMETHOD_ID = 2"),
                 QString("BANK|EU"));
        // The messages come before the windows.
        QVERIFY(m_ui.messages.value(0).text.startsWith("There is no CHF currency in database."));
    }

    void cancelStopsBeforeTheNextOrder()
    {
        m_ui.cancelAfterChecks = 1;
        auto progress = m_ui.progress("x");
        OrderImporter importer(m_ui, *m_ask);
        QVERIFY(
            !ImportBytes(importer, OrdersDoc({OrderXml("W1"), OrderXml("W2")}), progress.get()));
        QCOMPARE(m_ui.lastMessage(), QString("Operation canceled."));
        QCOMPARE(Stored(), QString("W1"));
    }

    // expected: flag|number|date
    void conversions_data()
    {
        AddColumns<QString, QString>({"text", "expected"});
        AddRow("zero", QString("0"), QString("0|0|"));
        AddRow("blanks and sign", QString("  +2"), QString("1|2|"));
        AddRow("trailing text", QString("0x1"), QString("0||"));
        AddRow("grouped digits, decimal comma", QString("-1 000,5"), QString("1|-1000.5|"));
        AddRow("display date", QString("2024.03.05."), QString("1||2024-03-05"));
        AddRow("iso date", QString("2024-03-05"), QString("1||2024-03-05"));
        AddRow("no date", QString("2024-13-05"), QString("1||"));
    }
    void conversions()
    {
        auto [text, expected] = Fetch<QString, QString>({"text", "expected"});
        const std::optional<double> n = WebshopNumber(text);
        QCOMPARE(QStringList({WebshopFlag(text) ? "1" : "0", n ? QString::number(*n) : QString(),
                              WebshopDate(text).toString(Qt::ISODate)})
                     .join('|'),
                 expected);
    }

private:
    bool run(const QByteArray& doc)
    {
        OrderImporter importer(m_ui, *m_ask);
        return ImportBytes(importer, doc);
    }

    ScriptedInteraction m_ui;
    std::optional<ScriptedWebshop> m_ask;
};

QTEST_GUILESS_MAIN(TestOrderImporter)
#include "tst_orderimporter.moc"
