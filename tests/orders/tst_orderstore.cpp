// Orders against a real company database: what is copied into an order, what is stored, and
// what the store refuses.
#include "CompanyTestCase.h"
#include "OrdersTestData.h"
#include "ScriptedInteraction.h"
#include "TestOrders.h"

#include "orders/OrderFill.h"
#include "orders/OrderStore.h"

#include <QtTest>

#include <functional>

namespace {

// A partner of the basic data's kind with its own due days.
qint64 InsertPartner(const QString& name, const QVariant& dueDays = {})
{
    return OrdersInsert(
        "PARTNER",
        "NAME NAME_ASCII ZIP CITY ADDRESS COUNTRY_ID LANG_ID PAYMENTMETHOD_ID "
        "PAYMENT_DUE_DAYS MAIL_IS_SAME",
        {name, name.toUpper(), "1011", "Budapest", "Fő utca 2.", 0, 0, 2, dueDays, "1"});
}

// A new order of the partner; a failure ends the test run.
Order NewOrderOf(qint64 partner)
{
    Order order;
    if (!OrderFill::newOrder(order) || !OrderFill::partner(order, partner))
        qFatal("no order");
    return order;
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
        QCOMPARE((QList<double>{order.totals.net, order.totals.vat, order.totals.gross}),
                 (QList<double>{5000, 1350, 6350}));

        Order loaded;
        QVERIFY(OrderStore::load(order.id, loaded));
        QCOMPARE(QStringList({loaded.partnerName, loaded.subject, loaded.paymentMethodName,
                              loaded.items.value(1).name, loaded.items.value(0).vatName}),
                 QStringList({"Árvíztűrő Kft.", "Próba", "Átutalás", "Szerelés", "27%"}));
        QVERIFY(loaded.dateShipped == QDate::currentDate() && loaded.items.size() == 3);
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
        QVERIFY(copyId != order.id && !copy.invoiceNo && !copy.cancelledInvoiceNo &&
                !copy.localNet);
        QVERIFY(copy.code.isEmpty() && copy.invoiceNoStr.isEmpty() && copy.unpaidTotal == 0);
        QVERIFY(!copy.paid && !copy.verified && copy.printedCopies == 0 && copy.type == 0);
        const QDate today = QDate::currentDate();
        QVERIFY(copy.dateShipped == today && copy.dateCreated == today);
        QCOMPARE(copy.datePaymentDue, today.addDays(8)); // the partner's 8 days
        QVERIFY(copy.items.size() == 1 && copy.items[0].id != order.items[0].id);
        QVERIFY(copy.items[0].code.isEmpty() && copy.partnerName == order.partnerName);
        QCOMPARE((QList<double>{copy.items[0].totals.gross, copy.totals.gross}),
                 (QList<double>{order.items[0].totals.gross, order.totals.gross}));
    }

    void partnerSnapshot()
    {
        QVERIFY(ExecSql("update SETUP set SETUP_BANK_NAME = 'OTP', SETUP_BANK_IBAN = 'HU42'"));
        const qint64 partner = OrdersInsert(
            "PARTNER",
            "CODE NAME ZIP CITY ADDRESS TAX_NO EU_TAX_NO COUNTRY_ID LANG_ID PAYMENTMETHOD_ID "
            "CURRENCY_ID MAIL_IS_SAME MAIL_NAME MAIL_CITY MAIL_ADDRESS MAIL_COUNTRY_ID OTHER_DATA",
            {"P7", "Müller GmbH", "80331", "München", "Marienplatz 1", QVariant(), "DE123", 2, 1, 2,
             1, 0, "Müller Post", "Wien", "Ring 3", 3, "x"});
        Order order;
        QVERIFY(OrderFill::newOrder(order));
        QStringList notes;
        QVERIFY(OrderFill::partner(order, partner, &notes));
        QCOMPARE(notes, QStringList());
        QCOMPARE(
            QStringList({order.partnerCode, order.partnerName, order.partnerCity,
                         order.partnerEuTaxNo, order.partnerOtherData, order.partnerCountryCode,
                         order.partnerCountryName, order.partnerCountryNameOnMails, order.mailName,
                         order.mailCity, order.mailCountryCode, order.mailCountryNameOnMails,
                         order.langCode, order.paymentMethodCode, order.paymentMethodName,
                         order.paymentMethodNameTranslation, order.currencyAbbreviation,
                         order.bankName, order.bankIban}),
            QStringList({"P7", "Müller GmbH", "München", "DE123", "x", "DE", "Németország",
                         "Germany", "Müller Post", "Wien", "AT", "Austria", "EN", "AT", "Átutalás",
                         "Wire Transfer", "EUR", "OTP", "HU42"}));
        QVERIFY(!order.mailIsSame && order.langId == 1 && !order.paymentMethodPaid &&
                order.currencyRate == 280.0 && order.unitPriceDecimals == 2 &&
                order.invoicePrintingDecimals == 2);

        // The cash method rounds to 5; a language without its translation is reported.
        QVERIFY(ExecSql("delete from PAYMENTMETHODTRANSLATION where "
                        "PAYMENTMETHODTRANSLATION_PAYMENTMETHOD_ID = 1 and "
                        "PAYMENTMETHODTRANSLATION_LANG_ID = 1"));
        QVERIFY(OrderFill::paymentMethod(order, 1, &notes));
        QVERIFY(order.roundTo5 && order.paymentMethodNameTranslation.isEmpty());
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
        Order order = NewOrderOf(InsertPartner("Due Kft", partnerDays));
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
        Order order = NewOrderOf(1);
        QVERIFY(OrderFill::currency(order, currency));
        OrderItem item;
        QVERIFY(OrderFill::product(item, order, 1));
        item.qty = 2;
        OrderFill::recalcItem(item, order);
        QCOMPARE(item.listPrice, listPrice);
        QCOMPARE(item.price, listPrice);
        QCOMPARE(item.totals.net, lineNet);
    }

    // The partner's discount wins over the settings' default.
    void partnerDiscount()
    {
        const qint64 partner = InsertPartner("Kedvezmény Bt");
        QVERIFY(
            ExecSql("update PARTNER set PARTNER_DISCOUNT_TYPE = 1, PARTNER_DISCOUNT_PERCENT = 15 "
                    "where PARTNER_ID = ?",
                    {partner}));
        QVERIFY(ExecSql("update PRODUCT set PRODUCT_PRICE = 999"));
        const Order order = NewOrderOf(partner);
        OrderItem item;
        QVERIFY(OrderFill::product(item, order, 1));
        QVERIFY(item.discountType == 1 && item.price == 849.0);
    }

    void checkOrder_data()
    {
        AddColumns<QString, QList<bool>, QString, int>(
            {"change", "answers", "message", "questions"});
        const QList<bool> yes{true, true}, no{false, false};
        const auto row = [](const char* tag, const QString& change, const QList<bool>& answers,
                            const QString& message,
                            int questions) { AddRow(tag, change, answers, message, questions); };
        row("complete", QString(), no, QString(), 0);
        row("no name", "name", no, "Partner Name field is required.", 0);
        row("mail without name", "mailname", no,
            "A partner levelezesi cimehez tartozo nevet meg kell adni.", 0);
        row("no rate", "rate", no, "Currency Rate field is required.", 0);
        row("item without name", "itemname", no, "Order item name field must have a value.", 0);
        row("quantity 0", "qty0", no, "Quantity field must have a value.", 0);
        row("price 0 not entered", "price0", no, "Price field must have a value.", 0);
        row("item without date", "itemdate", no, "Date Shipped field must have a value.", 0);
        row("price of 10^12", "hugeprice", no, "The amount of the order item is too large.", 0);
        row("shipped 15 days back", "shipped15", no, QString(), 0);
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
        const QHash<QString, std::function<void()>> edits{
            {"name", [&] { order.partnerName = " "; }},
            {"mailname", [&] { order.mailIsSame = false, order.mailName.clear(); }},
            {"rate", [&] { order.currencyRate = 0; }},
            {"itemname", [&] { order.items[0].name.clear(); }},
            {"qty0", [&] { order.items[0].qty = 0; }},
            {"price0", [&] { order.items[0].price = 0, order.items[0].discountType = 0; }},
            {"itemdate", [&] { order.items[0].dateShipped = QDate(); }},
            {"hugeprice", [&] { order.items[0].price = 1e12; }},
            {"shipped15", [&] { order.dateShipped = today.addDays(-15); }},
            {"shipped16", [&] { order.dateShipped = today.addDays(-16); }},
            {"consolidated", [&] { order.consolidated = true; }},
            {"duepast", [&] { order.datePaymentDue = today.addDays(-1); }}};
        for (const QString& c : change.split(u' ', Qt::SkipEmptyParts))
            edits[c]();
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
};

QTEST_GUILESS_MAIN(TestOrderStore)
#include "tst_orderstore.moc"
