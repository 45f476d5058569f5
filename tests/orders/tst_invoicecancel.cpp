// "Cancel the Invoice" on the offscreen platform: what it shows of the invoice, what it proposes,
// the rules of its fields, and the order list's "Sztorno" through it to the cancelling order.
#include "CompanyTestCase.h"
#include "ModalDriver.h"
#include "ScriptedInteraction.h"
#include "TestData.h"

#include "base/Setup.h"
#include "base/SqlStatement.h"
#include "base/ui/DateEdit.h"
#include "orders/OrderStore.h"
#include "orders/ui/InvoiceCancel.h"
#include "orders/ui/OrderList.h"
#include "orders/ui/OrderListModel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

// An issued invoice, A-7, of one item of 3 pieces shipped 2024-05-10, paid by transfer (id 2).
qint64 InsertInvoice(bool consolidated)
{
    const qint64 id = Insert(
        u"insert into ORDERHEAD (ORDERHEAD_PRINTED_COPIES, ORDERHEAD_VERIFIED, "
        "ORDERHEAD_INVOICE_NO, ORDERHEAD_INVOICE_NO_STR, ORDERHEAD_TYPE, ORDERHEAD_PARTNER_NAME, "
        "ORDERHEAD_PARTNER_NAME_ASCII, ORDERHEAD_PARTNER_CITY, ORDERHEAD_PARTNER_ADDRESS, "
        "ORDERHEAD_PAYMENTMETHOD_ID, ORDERHEAD_PAYMENTMETHOD_NAME, ORDERHEAD_DATE_SHIPPED, "
        "ORDERHEAD_DATE_CREATED, ORDERHEAD_DATE_PAYMENT_DUE, ORDERHEAD_CONSOLIDATED_INVOICE, "
        "ORDERHEAD_CURRENCY_ID, ORDERHEAD_CURRENCY_ABBREVIATION, ORDERHEAD_CURRENCY_RATE, "
        "ORDERHEAD_TOTAL_NET, ORDERHEAD_TOTAL_VAT, ORDERHEAD_TOTAL_GROSS, "
        "ORDERHEAD_CURRENCY_INVOICE_TOTAL_PRINTING_DECIMALS) "
        "values (1, '1', 7, 'A-7', 0, 'Árvíztűrő Kft.', 'ARVIZTURO KFT.', 'Budapest', "
        "'Fő u. 1.', 2, 'Átutalás', '2024-05-10', '2024-05-10', '2024-05-18', ?, 1, 'HUF', 1, "
        "300, 81, 381, 0)"_s,
        {consolidated ? u"1"_s : u"0"_s});
    Insert(u"insert into ORDERITEM (ORDERITEM_ORDERHEAD_ID, ORDERITEM_NAME, ORDERITEM_PRICE, "
           "ORDERITEM_QTY, ORDERITEM_TOTAL_NET, ORDERITEM_TOTAL_VAT, ORDERITEM_TOTAL_GROSS, "
           "ORDERITEM_DATE_SHIPPED) values (?, 'Csavar', 100, 3, 300, 81, 381, '2024-05-02')"_s,
           {id});
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

    void showsTheInvoiceAndProposesItsTerm()
    {
        const qint64 id = InsertInvoice(false);
        Order original;
        QVERIFY(OrderStore::load(id, original));
        InvoiceCancel window(original, m_ask, nullptr, QDate(2024, 6, 1));
        // Shipped today, due after the original's 8 days, paid the original's way.
        const CancelData data = window.data();
        QCOMPARE(data.dateShipped, QDate(2024, 6, 1));
        QCOMPARE(data.datePaymentDue, QDate(2024, 6, 9));
        QCOMPARE(data.paymentMethodId, std::optional<qint64>(2));
        QVERIFY(!window.byItems());
    }

    void fieldRules_data()
    {
        // method: -1: the empty choice
        AddColumns<bool, bool, QString, QString, int, QString>(
            {"consolidated", "byItems", "shipped", "due", "method", "message"});
        QTest::newRow("accepted") << false << false << "2024.06.01."
                                  << "2024.06.09." << 1 << QString();
        QTest::newRow("no shipping date")
            << false << false << ""
            << "2024.06.09." << 1 << "Date Shipped field must have a value.";
        QTest::newRow("due before shipped")
            << false << false << "2024.06.01."
            << "2024.05.31." << 1 << "The payment due date can not be before the shipping date.";
        QTest::newRow("consolidated by items needs no date") << true << true << ""
                                                             << "2024.06.09." << 1 << QString();
        QTest::newRow("consolidated with one date")
            << true << false << ""
            << "2024.06.09." << 1 << "Date Shipped field must have a value.";
    }
    void fieldRules()
    {
        auto [consolidated, byItems, shipped, due, method, message] =
            Fetch<bool, bool, QString, QString, int, QString>(
                {"consolidated", "byItems", "shipped", "due", "method", "message"});
        Order original;
        QVERIFY(OrderStore::load(InsertInvoice(consolidated), original));
        InvoiceCancel window(original, m_ask, nullptr, QDate(2024, 6, 1));
        QCOMPARE(Child<QCheckBox>(&window, "m_by_items")->isChecked(), consolidated);
        Child<QCheckBox>(&window, "m_by_items")->setChecked(byItems);
        Child<DateEdit>(&window, "m_date_shipped")->setText(shipped);
        Child<DateEdit>(&window, "m_date_payment_due")->setText(due);
        auto* methods = Child<QComboBox>(&window, "m_paymentmethod_id");
        methods->setCurrentIndex(method < 0 ? 0 : methods->findData(method));
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
        const QList<qint64> selected = list.selectedIds();
        QCOMPARE(selected.size(), 1);
        const qint64 made = selected.first();
        QVERIFY(made != id);
        QCOMPARE(list.model()->row(list.model()->rowOf(made)).kind.text, "Unprinted");
        QCOMPARE(OrderValue(made, u"ORDERHEAD_CANCELLED_INVOICE_NO_STR, ORDERHEAD_DATE_SHIPPED, "
                                  "ORDERHEAD_DATE_PAYMENT_DUE, ORDERHEAD_PAYMENTMETHOD_ID, "
                                  "ORDERHEAD_TOTAL_GROSS"_s),
                 "A-7|2024-06-03|2024-06-03|1|-381");
        QCOMPARE(
            QueryText(u"select ORDERITEM_QTY from ORDERITEM where ORDERITEM_ORDERHEAD_ID = ?"_s,
                      {made})
                .toDouble(),
            -3.0);
    }

private:
    ScriptedInteraction m_ask;
};

QTEST_MAIN(TestInvoiceCancel)
#include "tst_invoicecancel.moc"
