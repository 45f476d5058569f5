// The "Orders/Invoices" tab on the offscreen platform against a real company: the refusal to
// print unverified orders and the refusals of cancelling.
#include "CompanyTestCase.h"
#include "OrdersTestData.h"
#include "ScriptedInteraction.h"

#include "orders/ui/OrderList.h"
#include "orders/ui/OrderPrintHooks.h"

#include <QTableView>
#include <QtTest>

namespace {

// code, copies, verified, invoice no, number text, type, cancelling no, its text, cancelled no
qint64 InsertOrder(const QString& code, const QVariantList& values, double gross = 1270.0)
{
    return OrdersInsert("ORDERHEAD",
                        "CODE PRINTED_COPIES VERIFIED INVOICE_NO INVOICE_NO_STR TYPE "
                        "CANCELLING_INVOICE_NO CANCELLING_INVOICE_NO_STR CANCELLED_INVOICE_NO "
                        "PARTNER_NAME DATE_SHIPPED CURRENCY_ABBREVIATION TOTAL_NET TOTAL_VAT "
                        "TOTAL_GROSS CURRENCY_INVOICE_TOTAL_PRINTING_DECIMALS",
                        QVariantList{code} + values +
                            QVariantList{"Árvíztűrő Kft.", "2024-05-10", "EUR", gross / 1.27,
                                         gross - gross / 1.27, gross, 2});
}

const QVariant null;

} // namespace

class TestOrderList : public CompanyTestCase
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        CompanyTestCase::init();
        m_ask = ScriptedInteraction();
        QVERIFY(ExecSql("delete from ORDERITEM"));
        QVERIFY(ExecSql("delete from ORDERHEAD"));
        // An unverified order, a verified one, an invoice, a cancelled invoice and its cancel.
        m_unverified = InsertOrder("R1", {0, "0", null, null, 0, null, null, null});
        m_verified = InsertOrder("R2", {0, "1", null, null, 0, null, null, null});
        m_invoice = InsertOrder("R3", {1, "1", 3, "A-3", 0, null, null, null}, 1234567.5);
        m_cancelled = InsertOrder("R4", {1, "1", 4, "A-4", 0, 5, "A-5", null});
        m_cancel = InsertOrder("R5", {1, "1", 5, "A-5", 1, null, null, 4}, -1270.0);
        m_list.emplace();
        m_list->setInteraction(&m_ask);
        m_list->reload();
    }
    void cleanup()
    {
        m_list.reset();
        CompanyTestCase::cleanup();
        SetOrderPrintHooks({});
    }

    void printRefusesUnverified()
    {
        int printed = 0;
        SetOrderPrintHooks({[&](QWidget*, const QList<qint64>& ids) {
                                printed += int(ids.size());
                                return Result::success();
                            },
                            {}});
        m_list->selectId(m_verified);
        m_list->selectId(m_unverified);
        m_list->printOrders();
        QCOMPARE(m_ask.lastMessage(),
                 "There are unverified invoices in selection. Verify them before print.");
        QCOMPARE(printed, 0);
        m_list->view()->clearSelection();
        m_list->selectId(m_verified);
        m_list->selectId(m_invoice);
        m_list->printOrders();
        QCOMPARE(printed, 2);
    }

    void cancelRefusals_data()
    {
        AddColumns<int, QString>({"which", "message"});
        AddRow("no number", 1, QString("Invoices, having Invoice No, can only be cancelled."));
        AddRow("a cancel invoice", 4, QString("Cancel Invoice can not be cancelled."));
        AddRow("cancelled already", 3, QString("This invoice is cancelled by A-5."));
        AddRow("its cancel waits to be printed", 5, QString("Cancel Invoice not printed."));
        AddRow("can be cancelled", 2, QString());
    }
    void cancelRefusals()
    {
        auto [which, message] = Fetch<int, QString>({"which", "message"});
        // An invoice whose cancelling order has been made but not yet printed.
        const qint64 waiting = InsertOrder("R6", {1, "1", 6, "A-6", 0, null, null, null});
        InsertOrder("R7", {0, "1", null, null, 1, null, null, 6});
        const qint64 ids[] = {m_unverified, m_verified, m_invoice, m_cancelled, m_cancel, waiting};
        QCOMPARE(OrderList::cancelRefusal(ids[which]).message(), message);
    }

private:
    std::optional<OrderList> m_list;
    ScriptedInteraction m_ask;
    qint64 m_unverified = 0, m_verified = 0, m_invoice = 0, m_cancelled = 0, m_cancel = 0;
};

QTEST_MAIN(TestOrderList)
#include "tst_orderlist.moc"
