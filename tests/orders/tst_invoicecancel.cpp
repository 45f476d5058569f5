// "Cancel the Invoice" on the offscreen platform: what it shows of the invoice, what it proposes,
// the rules of its fields, and the order list's "Sztorno" through it to the cancelling order.
#include "CompanyTestCase.h"
#include "ModalDriver.h"
#include "OrdersTestData.h"
#include "ScriptedInteraction.h"

#include "base/ui/DateEdit.h"
#include "orders/OrderStore.h"
#include "orders/ui/InvoiceCancel.h"
#include "orders/ui/OrderList.h"

#include <QCheckBox>
#include <QComboBox>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

// An issued invoice, A-7, of one item of 3 pieces shipped 2024-05-10, paid by transfer (id 2).
qint64 InsertInvoice(bool consolidated)
{
    const char* flag = consolidated ? "1" : "0";
    const QVariantList values =
        QVariantList{1, "1", 7, "A-7", 0, "Árvíztűrő Kft.", "Budapest", "Fő u. 1.", 2, "Átutalás"} +
        QVariantList{"2024-05-10", "2024-05-10", "2024-05-18", flag, 1, "HUF", 1, 300, 81, 381, 0};
    const qint64 id = OrdersInsert(
        u"ORDERHEAD"_s,
        u"PRINTED_COPIES VERIFIED INVOICE_NO INVOICE_NO_STR TYPE PARTNER_NAME PARTNER_CITY "
        "PARTNER_ADDRESS PAYMENTMETHOD_ID PAYMENTMETHOD_NAME DATE_SHIPPED DATE_CREATED "
        "DATE_PAYMENT_DUE CONSOLIDATED_INVOICE CURRENCY_ID CURRENCY_ABBREVIATION CURRENCY_RATE "
        "TOTAL_NET TOTAL_VAT TOTAL_GROSS CURRENCY_INVOICE_TOTAL_PRINTING_DECIMALS"_s,
        values);
    OrdersInsert(u"ORDERITEM"_s,
                 u"ORDERHEAD_ID NAME PRICE QTY TOTAL_NET TOTAL_VAT TOTAL_GROSS DATE_SHIPPED"_s,
                 {id, "Csavar", 100, 3, 300, 81, 381, "2024-05-02"});
    return id;
}

QString OrderValue(qint64 id, const QString& column)
{
    return QueryText(u"select %1 from ORDERHEAD where ORDERHEAD_ID = ?"_s.arg(column), {id});
}

} // namespace

class TestInvoiceCancel : public CompanyTestCase
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        CompanyTestCase::init();
        m_ask = ScriptedInteraction();
    }

    // Shipped today, due after the original's 8 days, paid the original's way.
    void proposesTheTerm()
    {
        Order original;
        QVERIFY(OrderStore::load(InsertInvoice(false), original));
        const CancelData data = InvoiceCancel(original, m_ask, nullptr, QDate(2024, 6, 1)).data();
        QCOMPARE(
            (QVariantList{data.dateShipped, data.datePaymentDue, data.paymentMethodId.value_or(0)}),
            (QVariantList{QDate(2024, 6, 1), QDate(2024, 6, 9), qint64(2)}));
    }

    void fieldRules_data()
    {
        AddColumns<bool, bool, QString, QString, QString>(
            {"consolidated", "byItems", "shipped", "due", "message"});
        AddRow("accepted", false, false, u"2024.06.01."_s, u"2024.06.09."_s, QString());
        AddRow("due before shipped", false, false, u"2024.06.01."_s, u"2024.05.31."_s,
               u"The payment due date can not be before the shipping date."_s);
        AddRow("consolidated by items needs no date", true, true, QString(), u"2024.06.09."_s,
               QString());
        AddRow("consolidated with one date", true, false, QString(), u"2024.06.09."_s,
               u"Date Shipped field must have a value."_s);
    }
    void fieldRules()
    {
        auto [consolidated, byItems, shipped, due, message] =
            Fetch<bool, bool, QString, QString, QString>(
                {"consolidated", "byItems", "shipped", "due", "message"});
        Order original;
        QVERIFY(OrderStore::load(InsertInvoice(consolidated), original));
        InvoiceCancel window(original, m_ask, nullptr, QDate(2024, 6, 1));
        QCOMPARE(Child<QCheckBox>(&window, "m_by_items")->isChecked(), consolidated);
        Child<QCheckBox>(&window, "m_by_items")->setChecked(byItems);
        Child<DateEdit>(&window, "m_date_shipped")->setText(shipped);
        Child<DateEdit>(&window, "m_date_payment_due")->setText(due);
        window.accept();
        QCOMPARE(m_ask.lastMessage(), message);
        QCOMPARE(window.result() == QDialog::Accepted, message.isEmpty());
    }

    // "Sztorno" in the list: the window's data go to the cancelling order, which is selected.
    void sztornoMakesTheCancellingOrder()
    {
        const qint64 id = InsertInvoice(false);
        OrderList list;
        list.setInteraction(&m_ask);
        list.reload();
        list.selectId(id);
        ModalDriver driver({[](QWidget* w) {
            Child<DateEdit>(w, "m_date_shipped")->setDate(QDate(2024, 6, 3));
            Child<DateEdit>(w, "m_date_payment_due")->setDate(QDate(2024, 6, 3));
            auto* methods = Child<QComboBox>(w, "m_paymentmethod_id");
            methods->setCurrentIndex(methods->findData(1));
            static_cast<QDialog*>(w)->accept();
        }});
        list.cancelInvoice();
        QVERIFY(driver.done());
        QCOMPARE(m_ask.lastMessage(), QString());
        QCOMPARE(list.selectedIds().size(), 1);
        const qint64 made = list.selectedIds().first();
        QVERIFY(made != id);
        QCOMPARE(OrderValue(made, u"ORDERHEAD_CANCELLED_INVOICE_NO_STR, ORDERHEAD_DATE_SHIPPED, "
                                  "ORDERHEAD_DATE_PAYMENT_DUE, ORDERHEAD_PAYMENTMETHOD_ID, "
                                  "ORDERHEAD_TOTAL_GROSS"_s),
                 "A-7|2024-06-03|2024-06-03|1|-381");
    }

private:
    ScriptedInteraction m_ask;
};

QTEST_MAIN(TestInvoiceCancel)
#include "tst_invoicecancel.moc"
