// Orders against a real company database: what is copied into an order, what is stored, and
// what the store refuses.
#include "CompanyTestCase.h"
#include "ScriptedInteraction.h"
#include "TestData.h"
#include "TestOrders.h"

#include "base/SqlStatement.h"
#include "orders/OrderFill.h"
#include "orders/OrderStore.h"

#include <QtTest>

namespace {

// A partner of the basic data's kind; the given columns override.
qint64 InsertPartner(const QString& name, const QVariant& dueDays = {},
                     const QVariant& methodId = 2)
{
    return Insert("insert into PARTNER (PARTNER_NAME, PARTNER_NAME_ASCII, PARTNER_ZIP, "
                  "PARTNER_CITY, PARTNER_ADDRESS, PARTNER_COUNTRY_ID, PARTNER_LANG_ID, "
                  "PARTNER_PAYMENTMETHOD_ID, PARTNER_PAYMENT_DUE_DAYS, PARTNER_MAIL_IS_SAME) "
                  "values (?, upper(?), '1011', 'Budapest', 'Fő utca 2.', 0, 0, ?, ?, '1')",
                  {name, name, methodId, dueDays});
}

QString OrderCount()
{
    return QueryText("select count(*) from ORDERHEAD") + "/" +
           QueryText("select count(*) from ORDERITEM");
}

} // namespace

class TestOrderStore : public CompanyTestCase
{
    Q_OBJECT
private Q_SLOTS:

    void saveAndLoadKeepEverything()
    {
        Order order = TestOrder(3);
        OrderItem typed;
        typed.name = "Szerelés";
        typed.qty = 1.5;
        typed.price = 2000;
        typed.discountType = int(DiscountType::EnteredPrice);
        typed.dateShipped = order.dateShipped;
        QVERIFY(OrderFill::vat(typed, 1));
        OrderFill::recalcItem(typed, order);
        OrderItem back = order.items.first(); // a return line
        back.qty = -1;
        OrderFill::recalcItem(back, order);
        order.items << typed << back;
        order.subject = "Próba";
        order.partnerName = "Árvíztűrő Kft.";

        const Result r = OrderStore::save(order);
        QVERIFY2(r, qPrintable(r.message() + r.sqlError()));
        QVERIFY(order.id > 0);
        QVERIFY(order.items[0].id > 0 && order.items[2].id > order.items[1].id);
        // 3000 + 3000 - 1000 net, 27% VAT on each line.
        QCOMPARE(order.totals.net, 5000.0);
        QCOMPARE(order.totals.vat, 1350.0);
        QCOMPARE(order.totals.gross, 6350.0);

        Order loaded;
        QVERIFY(OrderStore::load(order.id, loaded));
        QCOMPARE(QStringList({loaded.partnerName, loaded.subject, loaded.paymentMethodName,
                              loaded.items.value(1).name, loaded.items.value(0).vatName}),
                 QStringList({"Árvíztűrő Kft.", "Próba", "Átutalás", "Szerelés", "27%"}));
        QCOMPARE(loaded.dateShipped, QDate::currentDate());
        QCOMPARE(loaded.items.size(), 3);
        QVERIFY(!loaded.items[1].productId);
        QCOMPARE((QList<double>{loaded.totals.gross, loaded.items[1].totals.net,
                                loaded.items[2].totals.gross}),
                 (QList<double>{6350, 3000, -1270}));
        // The searchable name is folded; empty codes are NULL so that many orders lack one.
        QCOMPARE(QueryText("select ORDERHEAD_PARTNER_NAME_ASCII, ifnull(ORDERHEAD_CODE, 'null') "
                           "from ORDERHEAD where ORDERHEAD_ID = ?",
                           {order.id}),
                 QString("ARVIZTURO KFT.|null"));
        Order second = TestOrder();
        QVERIFY(OrderStore::save(second));
    }

    void updateKeepsItemsInStep()
    {
        Order order = TestOrder();
        order.items << order.items.first() << order.items.first();
        QVERIFY(OrderStore::save(order));
        const qint64 kept = order.items[0].id;
        order.items.removeAt(1);
        order.items[0].qty = 5;
        OrderFill::recalcItem(order.items[0], order);
        OrderItem added = order.items[1];
        added.id = 0;
        added.name = "Új sor";
        order.items << added;
        QVERIFY(OrderStore::save(order));
        QCOMPARE(QueryText("select ORDERITEM_ID = ?, ORDERITEM_QTY, ORDERITEM_NAME from ORDERITEM "
                           "where ORDERITEM_ORDERHEAD_ID = ? order by ORDERITEM_ID",
                           {kept, order.id}),
                 QString("1|5|Teszt termék; 0|2|Teszt termék; 0|2|Új sor"));
        QCOMPARE(QueryText("select ORDERHEAD_TOTAL_NET from ORDERHEAD where ORDERHEAD_ID = ?",
                           {order.id}),
                 QString("9000"));
    }

    void changedUnderTheUser_data()
    {
        QTest::addColumn<QString>("elsewhere");
        QTest::newRow("issued meanwhile")
            << "update ORDERHEAD set ORDERHEAD_INVOICE_NO = 7 where ORDERHEAD_ID = ?";
        QTest::newRow("deleted meanwhile") << "delete from ORDERHEAD where ORDERHEAD_ID = ?";
    }

    // The other window's work stands; nothing of this save is written, items included.
    void changedUnderTheUser()
    {
        QFETCH(QString, elsewhere);
        Order order = TestOrder();
        QVERIFY(OrderStore::save(order));
        QVERIFY(ExecSql(elsewhere, {order.id}));
        const QString before =
            QueryText("select * from ORDERHEAD") + QueryText("select * from ORDERITEM");
        order.subject = "changed";
        order.items[0].qty = 9;
        order.items << order.items[0];
        order.items.last().id = 0;
        const Result r = OrderStore::save(order);
        QVERIFY(!r);
        QCOMPARE(
            r.message(),
            QString("Unable to save changes of order. Maybe an other user changed this order."));
        QCOMPARE(QueryText("select * from ORDERHEAD") + QueryText("select * from ORDERITEM"),
                 before);
    }

    void numberedOrderIsNeverSaved()
    {
        Order order;
        QVERIFY(OrderStore::load(1, order));
        order.invoiceNo = 3;
        QVERIFY(!OrderStore::save(order));
        QCOMPARE(QueryText("select ORDERHEAD_INVOICE_NO from ORDERHEAD where ORDERHEAD_ID = 1"),
                 QString());
    }

    // A failing item (a duplicate webshop line id) takes the head with it.
    void nothingHalfSaved()
    {
        const QString before = OrderCount();
        Order order = TestOrder();
        order.items << order.items.first();
        order.items[0].code = order.items[1].code = "W-1";
        const Result r = OrderStore::save(order);
        QVERIFY(!r);
        QCOMPARE(r.message(), QString("Can't insert order item."));
        QVERIFY(!r.sqlError().isEmpty());
        QCOMPARE(order.id, 0);
        QCOMPARE(OrderCount(), before);

        Order existing;
        QVERIFY(OrderStore::load(1, existing));
        existing.subject = "half";
        existing.items << existing.items.first() << existing.items.first();
        existing.items[2].id = existing.items[3].id = 0;
        existing.items[2].code = existing.items[3].code = "W-2";
        QVERIFY(!OrderStore::save(existing));
        QCOMPARE(QueryText("select ORDERHEAD_SUBJECT from ORDERHEAD where ORDERHEAD_ID = 1"),
                 QString("Mintarendelés"));
        QCOMPARE(OrderCount(), before);
    }

    void deleteLeavesPrintedOrders()
    {
        QList<qint64> ids;
        for (int i = 0; i < 3; ++i) {
            Order order = TestOrder();
            QVERIFY(OrderStore::save(order));
            ids << order.id;
        }
        QVERIFY(ExecSql("update ORDERHEAD set ORDERHEAD_PRINTED_COPIES = 2 where ORDERHEAD_ID = ?",
                        {ids[1]}));
        OrderStore::DeleteOutcome outcome;
        QVERIFY(OrderStore::remove(ids, outcome));
        QCOMPARE(outcome.deleted, 2);
        QCOMPARE(outcome.printed, 1);
        QCOMPARE(OrderStore::printedMessage(outcome.printed),
                 QString("1 orders/invoices can not be deleted,&because they are printed yet."));
        QCOMPARE(QueryText("select ORDERHEAD_ID from ORDERHEAD where ORDERHEAD_ID in (?, ?, ?)",
                           {ids[0], ids[1], ids[2]}),
                 QString::number(ids[1]));
        QCOMPARE(QueryText("select count(*) from ORDERITEM where ORDERITEM_ORDERHEAD_ID in (?, ?)",
                           {ids[0], ids[2]}),
                 QString("0"));

        const Result gone = OrderStore::remove({ids[0]}, outcome);
        QCOMPARE(gone.message(),
                 QString("Unable to delete order. It is possible that an other user modified it."));
    }

    void cloneIsANewUnissuedOrder()
    {
        Order order = TestOrder();
        order.items[0].code = "W-9";
        QVERIFY(OrderStore::save(order));
        QVERIFY(ExecSql(
            "update ORDERHEAD set ORDERHEAD_CODE = 'WEB-1', ORDERHEAD_INVOICE_NO = 5, "
            "ORDERHEAD_INVOICE_NO_STR = 'A5', ORDERHEAD_PRINTED_COPIES = 2, "
            "ORDERHEAD_PAID = '1', ORDERHEAD_UNPAID_TOTAL = 10, ORDERHEAD_VERIFIED = '1', "
            "ORDERHEAD_TYPE = 1, ORDERHEAD_CANCELLED_INVOICE_NO = 4, "
            "ORDERHEAD_TOTAL_LOCAL_CURRENCY_NET = 1, ORDERHEAD_DATE_SHIPPED = '2020-01-02', "
            "ORDERHEAD_DATE_CREATED = '2020-01-03', ORDERHEAD_DATE_PAYMENT_DUE = '2020-01-04' "
            "where ORDERHEAD_ID = ?",
            {order.id}));
        qint64 copyId = 0;
        const Result r = OrderStore::clone(order.id, copyId);
        QVERIFY2(r, qPrintable(r.message()));
        Order copy;
        QVERIFY(OrderStore::load(copyId, copy));
        QVERIFY(copyId != order.id);
        QVERIFY(!copy.invoiceNo && !copy.cancelledInvoiceNo && !copy.localNet);
        QVERIFY(copy.code.isEmpty() && copy.invoiceNoStr.isEmpty());
        QVERIFY(!copy.paid && !copy.verified && copy.printedCopies == 0 && copy.type == 0);
        QCOMPARE(copy.unpaidTotal, 0.0);
        const QDate today = QDate::currentDate();
        QVERIFY(copy.dateShipped == today && copy.dateCreated == today);
        QCOMPARE(copy.datePaymentDue, today.addDays(8)); // the partner's 8 days
        QCOMPARE(copy.partnerName, order.partnerName);
        QCOMPARE(copy.items.size(), 1);
        QVERIFY(copy.items[0].id != order.items[0].id);
        QCOMPARE(copy.items[0].code, QString());
        QCOMPARE(copy.items[0].totals.gross, order.items[0].totals.gross);
        QCOMPARE(copy.totals.gross, order.totals.gross);
    }

    void partnerSnapshot()
    {
        QVERIFY(ExecSql("update SETUP set SETUP_BANK_NAME = 'OTP', SETUP_BANK_IBAN = 'HU42'"));
        const qint64 partner = Insert(
            "insert into PARTNER (PARTNER_CODE, PARTNER_NAME, PARTNER_ZIP, PARTNER_CITY, "
            "PARTNER_ADDRESS, PARTNER_TAX_NO, PARTNER_EU_TAX_NO, PARTNER_COUNTRY_ID, "
            "PARTNER_LANG_ID, PARTNER_PAYMENTMETHOD_ID, PARTNER_CURRENCY_ID, "
            "PARTNER_MAIL_IS_SAME, PARTNER_MAIL_NAME, PARTNER_MAIL_CITY, PARTNER_MAIL_ADDRESS, "
            "PARTNER_MAIL_COUNTRY_ID, PARTNER_OTHER_DATA) values ('P7', 'Müller GmbH', '80331', "
            "'München', 'Marienplatz 1', NULL, 'DE123', 2, 1, 2, 1, 0, 'Müller Post', 'Wien', "
            "'Ring 3', 3, 'x')");
        Order order;
        QVERIFY(OrderFill::newOrder(order));
        QStringList notes;
        QVERIFY(OrderFill::partner(order, partner, &notes));
        QCOMPARE(notes, QStringList());
        QCOMPARE(QStringList({order.partnerCode, order.partnerName, order.partnerCity,
                              order.partnerEuTaxNo, order.partnerOtherData}),
                 QStringList({"P7", "Müller GmbH", "München", "DE123", "x"}));
        QCOMPARE(QStringList({order.partnerCountryCode, order.partnerCountryName,
                              order.partnerCountryNameOnMails}),
                 QStringList({"DE", "Németország", "Germany"}));
        QCOMPARE(order.mailIsSame, false);
        QCOMPARE(QStringList({order.mailName, order.mailCity, order.mailCountryCode,
                              order.mailCountryNameOnMails}),
                 QStringList({"Müller Post", "Wien", "AT", "Austria"}));
        QVERIFY(order.langId == 1 && order.langCode == "EN");
        QCOMPARE(QStringList({order.paymentMethodCode, order.paymentMethodName,
                              order.paymentMethodNameTranslation}),
                 QStringList({"AT", "Átutalás", "Wire Transfer"}));
        QVERIFY(!order.paymentMethodPaid && order.currencyAbbreviation == "EUR");
        QCOMPARE(order.currencyRate, 280.0);
        QVERIFY(order.unitPriceDecimals == 2 && order.invoicePrintingDecimals == 2);
        QVERIFY(order.bankName == "OTP" && order.bankIban == "HU42");

        // The cash method rounds to 5; a language without its translation is reported.
        QVERIFY(ExecSql("delete from PAYMENTMETHODTRANSLATION where "
                        "PAYMENTMETHODTRANSLATION_PAYMENTMETHOD_ID = 1 and "
                        "PAYMENTMETHODTRANSLATION_LANG_ID = 1"));
        QVERIFY(OrderFill::paymentMethod(order, 1, &notes));
        QCOMPARE(order.roundTo5, true);
        QCOMPARE(order.paymentMethodNameTranslation, QString());
        QCOMPARE(notes, QStringList{"Translation not found for payment method."});
        QVERIFY(OrderFill::noVatReason(order, 1));
        QCOMPARE(QStringList({order.noVatReasonCode, order.noVatReasonTranslationText}),
                 QStringList({"FAD", "VAT have to be paid by customer."}));
        QVERIFY(OrderFill::language(order, 2));
        QCOMPARE(order.noVatReasonTranslationText, QString("MwSt wird von den Kunden bezahlt."));
        QCOMPARE(order.paymentMethodNameTranslation, QString("Barverkauf"));

        // The snapshot is the order's own: later edits of the partner do not reach it.
        QVERIFY(OrderStore::save(order));
        QVERIFY(
            ExecSql("update PARTNER set PARTNER_NAME = 'Renamed' where PARTNER_ID = ?", {partner}));
        Order loaded;
        QVERIFY(OrderStore::load(order.id, loaded));
        QCOMPARE(loaded.partnerName, QString("Müller GmbH"));
        QCOMPARE(loaded.mailCountryName, QString("Ausztria"));
    }

    void missingRowsAreReported()
    {
        Order order;
        QVERIFY(OrderFill::newOrder(order));
        QCOMPARE(
            OrderFill::partner(order, 999).message(),
            QString("Unable to load data from database.&Maybe it is deleted by an other user."));
        OrderItem item;
        QCOMPARE(OrderFill::product(item, order, 999).message(),
                 QString("Error in loading product from database."));
        QVERIFY(ExecSql("update SETUP set SETUP_INVOICE_CURRENCY_ID = 77"));
        QCOMPARE(
            OrderFill::newOrder(order).message(),
            QString("Default currency not found in database.&The database needs to be repaired."));
    }

    void dueDays_data()
    {
        AddColumns<QVariant, int, int>({"partnerDays", "methodDays", "expected"});
        AddRow("partner unset, method's days", QVariant(), 8, 8);
        AddRow("partner 0, method's days", QVariant(0), 8, 8);
        AddRow("partner's own days win", QVariant(15), 8, 15);
        AddRow("neither: due on the invoice date", QVariant(), 0, 0);
        AddRow("days stored as text", QVariant("20"), 8, 20);
    }

    void dueDays()
    {
        auto [partnerDays, methodDays, expected] =
            Fetch<QVariant, int, int>({"partnerDays", "methodDays", "expected"});
        QVERIFY(ExecSql(
            "update PAYMENTMETHOD set PAYMENTMETHOD_DUE_DAYS = ? where PAYMENTMETHOD_ID = 2",
            {methodDays}));
        const qint64 partner = InsertPartner("Due Kft", partnerDays);
        Order order;
        QVERIFY(OrderFill::newOrder(order));
        QVERIFY(OrderFill::partner(order, partner));
        order.dateCreated = QDate(2024, 2, 20);
        QDate due;
        QVERIFY(OrderFill::defaultDueDate(order, due));
        QCOMPARE(due, QDate(2024, 2, 20).addDays(expected));

        // Left empty, the due date is filled when the order is checked.
        ScriptedInteraction ask;
        order.dateCreated = QDate::currentDate();
        QVERIFY(OrderFill::checkOrder(order, ask));
        QCOMPARE(order.datePaymentDue, QDate::currentDate().addDays(expected));
        QCOMPARE(ask.questions, QStringList());
    }

    void listPrice_data()
    {
        AddColumns<int, double, QVariant, QVariant, double, double>(
            {"currency", "rate", "productPrice", "currencyPrice", "listPrice", "lineNet"});
        AddRow("forint price converted at the rate", 1, 400.0, QVariant(10000), QVariant(), 25.0,
               50.0);
        AddRow("converted price rounded", 1, 300.0, QVariant(1000), QVariant(), 3.33, 6.66);
        AddRow("price per currency as it stands", 1, 400.0, QVariant(10000), QVariant(12.345),
               12.345, 24.69);
        AddRow("no price at all", 1, 400.0, QVariant(), QVariant(), 0.0, 0.0);
        AddRow("forint order", 0, 1.0, QVariant(999), QVariant(), 999.0, 1998.0);
        AddRow("currency without rate", 1, 0.0, QVariant(10000), QVariant(), 0.0, 0.0);
    }

    void listPrice()
    {
        auto [currency, rate, productPrice, currencyPrice, listPrice, lineNet] =
            Fetch<int, double, QVariant, QVariant, double, double>(
                {"currency", "rate", "productPrice", "currencyPrice", "listPrice", "lineNet"});
        QVERIFY(ExecSql("update CURRENCYY set CURRENCY_RATE = ? where CURRENCY_ID = 1", {rate}));
        QVERIFY(
            ExecSql("update PRODUCT set PRODUCT_PRICE = ? where PRODUCT_ID = 1", {productPrice}));
        if (currencyPrice.isValid())
            QVERIFY(ExecSql("insert into PRODUCTPRICE values (1, 1, ?)", {currencyPrice}));
        Order order;
        QVERIFY(OrderFill::newOrder(order));
        QVERIFY(OrderFill::partner(order, 1));
        QVERIFY(OrderFill::currency(order, currency));
        OrderItem item;
        QVERIFY(OrderFill::product(item, order, 1));
        item.qty = 2;
        OrderFill::recalcItem(item, order);
        QCOMPARE(item.listPrice, listPrice);
        QCOMPARE(item.price, listPrice);
        QCOMPARE(item.totals.net, lineNet);
        QCOMPARE(item.name, QString("Teszt termék"));
        QCOMPARE(item.vatPercent, 27.0);
    }

    void discounts()
    {
        // The partner's discount wins over the settings' default.
        const qint64 partner = InsertPartner("Kedvezmény Bt");
        QVERIFY(
            ExecSql("update PARTNER set PARTNER_DISCOUNT_TYPE = 1, PARTNER_DISCOUNT_PERCENT = 15 "
                    "where PARTNER_ID = ?",
                    {partner}));
        QVERIFY(ExecSql("update PRODUCT set PRODUCT_PRICE = 999"));
        Order order;
        QVERIFY(OrderFill::newOrder(order));
        QVERIFY(OrderFill::partner(order, partner));
        OrderItem item;
        QVERIFY(OrderFill::product(item, order, 1));
        QCOMPARE(item.discountType, 1);
        QCOMPARE(item.price, 849.0);

        // A special price stays when the list price changes.
        item.discountType = int(DiscountType::EnteredPrice);
        item.price = 700;
        item.listPrice = 1200;
        item.qty = 1;
        OrderFill::recalcItem(item, order);
        QCOMPARE(item.price, 700.0);
        QCOMPARE(item.totals.gross, 889.0);
    }

    void checkOrder_data()
    {
        AddColumns<QString, QList<bool>, QString, int>(
            {"change", "answers", "message", "questions"});
        const QList<bool> yes{true, true}, no{false, false};
        const auto row = [](const char* tag, const QString& change, const QList<bool>& answers,
                            const QString& message, int questions) {
            QTest::newRow(tag) << change << answers << message << questions;
        };
        row("complete", QString(), no, QString(), 0);
        row("no name", "name", no, "Partner Name field is required.", 0);
        row("mail without name", "mailname", no,
            "A partner levelezesi cimehez tartozo nevet meg kell adni.", 0);
        row("no rate", "rate", no, "Currency Rate field is required.", 0);
        row("name before rate", "name rate", no, "Partner Name field is required.", 0);
        row("item without name", "itemname", no, "Order item name field must have a value.", 0);
        row("quantity 0", "qty0", no, "Quantity field must have a value.", 0);
        row("price of 10^12", "hugeprice", no, "The amount of the order item is too large.", 0);
        row("shipped 15 days back", "shipped15", no, QString(), 0);
        row("shipped 16 days back, no", "shipped16", no, QString("<stopped>"), 1);
        row("shipped 16 days back, yes", "shipped16", yes, QString(), 1);
        row("consolidated is not asked", "shipped16 consolidated", no, QString(), 0);
        row("due in the past, no", "duepast", no, QString("<stopped>"), 1);
        row("both asked", "shipped16 duepast", yes, QString(), 2);
        row("first no stops", "shipped16 duepast", no, QString("<stopped>"), 1);
    }

    void checkOrder()
    {
        auto [change, answers, message, questions] = Fetch<QString, QList<bool>, QString, int>(
            {"change", "answers", "message", "questions"});
        Order order = TestOrder();
        const QDate today(2024, 6, 30);
        order.dateShipped = order.dateCreated = today;
        const QStringList changes = change.split(u' ', Qt::SkipEmptyParts);
        for (const QString& c : changes) {
            if (c == "name")
                order.partnerName = " ";
            else if (c == "mailname") {
                order.mailIsSame = false;
                order.mailName.clear();
            } else if (c == "rate")
                order.currencyRate = 0;
            else if (c == "itemname")
                order.items[0].name.clear();
            else if (c == "qty0")
                order.items[0].qty = 0;
            else if (c == "hugeprice")
                order.items[0].price = 1e12;
            else if (c == "shipped15")
                order.dateShipped = today.addDays(-15);
            else if (c == "shipped16")
                order.dateShipped = today.addDays(-16);
            else if (c == "consolidated")
                order.consolidated = true;
            else if (c == "duepast")
                order.datePaymentDue = today.addDays(-1);
        }
        ScriptedInteraction ask;
        for (bool a : answers)
            ask.yesNoAnswers.enqueue(a);
        const Result r = OrderFill::checkOrder(order, ask, today);
        QCOMPARE(r                       ? QString()
                 : r.message().isEmpty() ? QString("<stopped>")
                                         : r.message(),
                 message);
        QCOMPARE(ask.questions.size(), questions);
        if (questions > 0 && change.startsWith("shipped16"))
            QVERIFY(ask.questions.first().startsWith("A teljesítés 15 napnál régebbi."));
    }

private:
};

QTEST_GUILESS_MAIN(TestOrderStore)
#include "tst_orderstore.moc"
