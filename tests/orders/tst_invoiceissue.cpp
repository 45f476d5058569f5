// Issuing under the numbering law against real company databases: gapless numbers whatever
// fails, the future-date refusal, the paid state at issue, and the cancelling invoice's links
// and refusals; the text form of invoice numbers. The document is a stand-in here; its rendering
// has its own test.
#include "CompanyTestCase.h"
#include "TestData.h"
#include "TestOrders.h"

#include "base/Setup.h"
#include "orders/CancelInvoice.h"
#include "orders/FormatInvoiceNo.h"
#include "orders/InvoiceNumbering.h"
#include "orders/OrderFill.h"
#include "orders/OrderStore.h"

#include <QtTest>

namespace {

const QDate kToday(2024, 3, 5);

qint64 NewOrder(double qty = 3, qint64 method = 2, bool consolidated = false)
{
    return SavedTestOrder(qty, kToday, method, consolidated);
}

Result Issue(qint64 orderId, QString* numberText = nullptr, const QDate& today = kToday)
{
    return IssueTestOrder(orderId, today, numberText);
}

QString Numbers()
{
    return QueryText("select ORDERHEAD_ID, ORDERHEAD_INVOICE_NO, ORDERHEAD_INVOICE_NO_STR from "
                     "ORDERHEAD where ORDERHEAD_INVOICE_NO is not null order by 2") +
           " / " + QueryText("select INVOICE_ID, INVOICE_ORDERHEAD_ID from INVOICE order by 1");
}

} // namespace

class TestInvoiceIssue : public CompanyTestCase
{
    Q_OBJECT
private Q_SLOTS:

    void numbersAreConsecutive()
    {
        QVERIFY(ExecSql("update SETUP set SETUP_INVOICE_NO_PREFIX = 'A-', "
                        "SETUP_INVOICE_NO_PADDING_ZEROS = '6'"));
        QVERIFY(Setup::current().load());
        QStringList got;
        for (int i = 0; i < 3; ++i) {
            QString text;
            const Result r = Issue(NewOrder(), &text);
            QVERIFY2(r, qPrintable(r.message()));
            got << text;
        }
        QCOMPARE(got, (QStringList{"A-000001", "A-000002", "A-000003"}));
        QCOMPARE(QueryText("select group_concat(INVOICE_ID) from INVOICE"), QString("1,2,3"));
        // What an issue fixes besides the number.
        QCOMPARE(QueryText("select ORDERHEAD_DATE_CREATED, ORDERHEAD_VERIFIED, ORDERHEAD_TYPE, "
                           "ORDERHEAD_TOTAL_LOCAL_CURRENCY_GROSS from ORDERHEAD where "
                           "ORDERHEAD_INVOICE_NO = 3"),
                 QString("2024-03-05|1|0|3810"));
        // An issued order is never issued again.
        QVERIFY(
            !Issue(QueryText("select ORDERHEAD_ID from ORDERHEAD where ORDERHEAD_INVOICE_NO = 1")
                       .toLongLong()));
    }

    void failureLeavesNoGap_data()
    {
        AddColumns<QString, bool, QString>({"trigger", "renderFails", "message"});
        // The trigger makes a statement after the INVOICE insert fail, as a full disk or a lost
        // lock would.
        AddRow("order update fails after the INVOICE insert",
               QString("create trigger T before update of ORDERHEAD_INVOICE_NO on ORDERHEAD begin "
                       "select raise(abort, 'injected'); end"),
               false, QString("injected"));
        AddRow("INVOICE insert fails",
               QString("create trigger T before insert on INVOICE begin select raise(abort, "
                       "'injected'); end"),
               false, QString("injected"));
        AddRow("rendering fails", QString(), true, QString("no template"));
        AddRow("forint row missing", QString("delete from CURRENCYY where CURRENCY_ID = 0"), false,
               QString("forint"));
    }

    void failureLeavesNoGap()
    {
        auto [trigger, renderFails, message] =
            Fetch<QString, bool, QString>({"trigger", "renderFails", "message"});
        QVERIFY(Issue(NewOrder()));
        const qint64 order = NewOrder();
        const QString before = Numbers();
        const QString itemRows =
            QueryText("select * from ORDERITEM where ORDERITEM_ORDERHEAD_ID = ?", {order});

        // A euro order, so that the local totals really change when they are written.
        QVERIFY(
            ExecSql("update ORDERHEAD set ORDERHEAD_CURRENCY_ID = 1, ORDERHEAD_CURRENCY_RATE = 300 "
                    "where ORDERHEAD_ID = ?",
                    {order}));
        const QString euroRow =
            QueryText("select * from ORDERHEAD where ORDERHEAD_ID = ?", {order});
        if (!trigger.isEmpty())
            QVERIFY(ExecSql(trigger));
        IssuedInvoice issued;
        const Result r = InvoiceNumbering::issue(
            order, kToday,
            [&](qint64 id, FrozenInvoice& f) {
                return renderFails ? Result::failure("no template") : StandInDocument(id, f);
            },
            issued);
        QVERIFY(!r);
        QVERIFY2(QString(r.message() + r.sqlError()).contains(message), qPrintable(r.message()));
        QCOMPARE(Numbers(), before);
        QCOMPARE(QueryText("select * from ORDERHEAD where ORDERHEAD_ID = ?", {order}), euroRow);
        QCOMPARE(QueryText("select * from ORDERITEM where ORDERITEM_ORDERHEAD_ID = ?", {order}),
                 itemRows);

        // Once the fault is gone the next number is the one that failed: nothing was skipped.
        QVERIFY(ExecSql("drop trigger if exists T"));
        QVERIFY(ExecSql(
            "insert or ignore into CURRENCYY (CURRENCY_ID, CURRENCY_NAME, CURRENCY_ABBREVIATION, "
            "CURRENCY_RATE) values (0, 'Magyar forint', 'Ft', 1)"));
        QString text;
        QVERIFY(Issue(order, &text));
        QCOMPARE(text, QString("000002"));
    }

    void futureDateRefused()
    {
        QVERIFY(Issue(NewOrder(), nullptr, kToday.addDays(1)));
        const qint64 order = NewOrder();
        const Result r = Issue(order, nullptr, kToday);
        QVERIFY(!r);
        QCOMPARE(r.message(),
                 QString("Printing date of invoice No. 000001 is in the future.&Printing "
                         "this invoice with No. 000002 would be against the law."));
        QCOMPARE(QueryText("select count(*) from INVOICE"), QString("1"));
        // The same day or later is lawful again.
        QVERIFY(Issue(order, nullptr, kToday.addDays(1)));
    }

    void paidStateAtIssue_data()
    {
        AddColumns<QVariant, bool, QString>({"methodPaid", "cancelling", "expected"});
        AddRow("cash, paid on issue", QVariant("1"), false, QString("1|0"));
        AddRow("wire transfer", QVariant("0"), false, QString("0|3810"));
        AddRow("stored as the number 0", QVariant(0), false, QString("0|3810"));
        AddRow("no flag stored", QVariant(), false, QString("1|0"));
        AddRow("cancelling invoice", QVariant("0"), true, QString("1|0"));
    }

    void paidStateAtIssue()
    {
        auto [methodPaid, cancelling, expected] =
            Fetch<QVariant, bool, QString>({"methodPaid", "cancelling", "expected"});
        const qint64 order = NewOrder();
        QVERIFY(ExecSql("update ORDERHEAD set ORDERHEAD_PAYMENTMETHOD_PAID = ?, "
                        "ORDERHEAD_CANCELLED_INVOICE_NO = ? where ORDERHEAD_ID = ?",
                        {methodPaid, cancelling ? QVariant(7) : QVariant(), order}));
        // A cancelling invoice needs the invoice it cancels.
        if (cancelling)
            QVERIFY(ExecSql("update ORDERHEAD set ORDERHEAD_INVOICE_NO = 7, "
                            "ORDERHEAD_DATE_CREATED = '2024-01-01' where ORDERHEAD_ID = 1"));
        QVERIFY(Issue(order));
        QCOMPARE(QueryText("select ORDERHEAD_PAID, ORDERHEAD_UNPAID_TOTAL from ORDERHEAD where "
                           "ORDERHEAD_ID = ?",
                           {order}),
                 expected);
    }

    void cancellingInvoice()
    {
        const qint64 order = NewOrder(3, 2, true);
        QVERIFY(Issue(order));
        QVERIFY(ExecSql("update ORDERHEAD set ORDERHEAD_TOTAL_ROUNDING_DIFFERENCE = 2 where "
                        "ORDERHEAD_ID = ?",
                        {order}));
        qint64 cancel = 0;
        CancelData data;
        data.dateShipped = kToday.addDays(2);
        data.paymentMethodId = 1;
        const Result r = CancelInvoice::create(order, data, cancel, kToday);
        QVERIFY2(r, qPrintable(r.message() + r.sqlError()));
        QCOMPARE(QueryText(
                     "select ORDERHEAD_TYPE, ORDERHEAD_CANCELLED_INVOICE_NO, "
                     "ORDERHEAD_CANCELLED_INVOICE_NO_STR, ORDERHEAD_INVOICE_NO, "
                     "ORDERHEAD_TOTAL_NET, ORDERHEAD_TOTAL_VAT, ORDERHEAD_TOTAL_GROSS, "
                     "ORDERHEAD_TOTAL_ROUNDING_DIFFERENCE, ORDERHEAD_CONSOLIDATED_INVOICE, "
                     "ORDERHEAD_DATE_SHIPPED, ORDERHEAD_PAYMENTMETHOD_NAME, ORDERHEAD_COMMENT_TEXT "
                     "from ORDERHEAD where ORDERHEAD_ID = ?",
                     {cancel}),
                 QString("1|1|000001||-3000|-810|-3810|-2|1|2024-03-07|Készpénz|This is the cancel "
                         "invoice of No 000001"));
        // Quantities and totals negated, prices kept; a consolidated item keeps its own date.
        QCOMPARE(QueryText("select ORDERITEM_QTY, ORDERITEM_PRICE, ORDERITEM_TOTAL_NET, "
                           "ORDERITEM_TOTAL_GROSS, ORDERITEM_DATE_SHIPPED from ORDERITEM where "
                           "ORDERITEM_ORDERHEAD_ID = ?",
                           {cancel}),
                 QString("-3|1000|-3000|-3810|2024-03-05"));

        QString text;
        QVERIFY(Issue(cancel, &text));
        QCOMPARE(text, QString("000002"));
        QCOMPARE(QueryText(
                     "select ORDERHEAD_CANCELLING_INVOICE_NO, ORDERHEAD_CANCELLING_INVOICE_NO_STR, "
                     "ORDERHEAD_PAID, ORDERHEAD_UNPAID_TOTAL from ORDERHEAD where ORDERHEAD_ID = ?",
                     {order}),
                 QString("2|000002|1|0"));
    }

    void cannotCancel_data()
    {
        AddColumns<QString, QString>({"situation", "message"});
        AddRow("not issued", QString("unissued"),
               QString("Only an issued invoice can be cancelled."));
        AddRow("cancelled already", QString("cancelled"),
               QString("Cancelled invoice can not be cancelled."));
        AddRow("a cancelling invoice", QString("cancelling"),
               QString("A cancelling invoice can not be cancelled."));
        AddRow("a cancelling order waits", QString("waiting"),
               QString("This invoice already has a cancelling invoice waiting to be printed."));
        AddRow("cancelled meanwhile", QString("race"),
               QString("Cancelled invoice can not be cancelled."));
    }

    void cannotCancel()
    {
        auto [situation, message] = Fetch<QString, QString>({"situation", "message"});
        const qint64 order = NewOrder();
        if (situation != "unissued")
            QVERIFY(Issue(order));
        qint64 target = order;
        qint64 cancel = 0;
        if (situation == "cancelled" || situation == "cancelling") {
            QVERIFY(CancelInvoice::create(order, {}, cancel, kToday));
            QVERIFY(Issue(cancel));
            if (situation == "cancelling")
                target = cancel;
        } else if (situation == "waiting") {
            QVERIFY(CancelInvoice::create(order, {}, cancel, kToday));
        } else if (situation == "race") {
            // Two cancelling orders made before either was printed: the second one fails at issue
            // and takes no number.
            QVERIFY(CancelInvoice::create(order, {}, cancel, kToday));
            QVERIFY(ExecSql("update ORDERHEAD set ORDERHEAD_CANCELLED_INVOICE_NO = NULL where "
                            "ORDERHEAD_ID = ?",
                            {cancel}));
            qint64 second = 0;
            QVERIFY(CancelInvoice::create(order, {}, second, kToday));
            QVERIFY(ExecSql("update ORDERHEAD set ORDERHEAD_CANCELLED_INVOICE_NO = 1 where "
                            "ORDERHEAD_ID = ?",
                            {cancel}));
            QVERIFY(Issue(cancel));
            const Result r = Issue(second);
            QCOMPARE(r.message(), message);
            QCOMPARE(QueryText("select count(*) from INVOICE"), QString("2"));
            return;
        }
        const QString before = QueryText("select count(*) from ORDERHEAD");
        qint64 another = 0;
        const Result r = CancelInvoice::create(target, {}, another, kToday);
        QCOMPARE(r.message(), message);
        QCOMPARE(QueryText("select count(*) from ORDERHEAD"), before);
    }

    void invoiceNo_data()
    {
        AddColumns<qint64, QString, int, QString>({"number", "prefix", "width", "text"});
        QTest::newRow("wider than padding") << qint64(1234567) << "A-" << 6 << "A-1234567";
        // printf would left-justify with blanks for a negative width.
        QTest::newRow("negative width") << qint64(42) << "" << -3 << "42";
    }

    void invoiceNo()
    {
        auto [number, prefix, width, text] =
            Fetch<qint64, QString, int, QString>({"number", "prefix", "width", "text"});
        QCOMPARE(FormatInvoiceNo(number, prefix, width), text);
    }
};

QTEST_GUILESS_MAIN(TestInvoiceIssue)
#include "tst_invoiceissue.moc"
