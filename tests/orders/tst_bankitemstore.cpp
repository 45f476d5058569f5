// Payments against real company databases: partial payments, the settling tolerance and the
// overpayment, the refusals of what can not be paid, one transaction for the bank item and the
// paid state.
#include "CompanyTestCase.h"
#include "OrdersTestData.h"

#include "base/DateText.h"
#include "base/Setup.h"
#include "orders/BankItemStore.h"

#include <QtTest>

namespace {

const QDate kToday(2024, 5, 20);

// An issued invoice No 7 "INV7" of 100 EUR, unpaid, due on due; type 0, or 1 for a cancelling one.
qint64 InsertInvoice(const QVariant& number = 7, const QVariant& cancelledBy = QVariant(),
                     int type = 0, const QDate& due = kToday.addDays(8))
{
    const auto text = [](const QVariant& n) {
        return n.isNull() ? n : QVariant("INV" + n.toString());
    };
    return OrdersInsert("ORDERHEAD",
                        "INVOICE_NO INVOICE_NO_STR TYPE CANCELLING_INVOICE_NO "
                        "CANCELLING_INVOICE_NO_STR PARTNER_NAME CURRENCY_ABBREVIATION TOTAL_GROSS "
                        "PAID UNPAID_TOTAL VERIFIED DATE_PAYMENT_DUE",
                        {number, text(number), type, cancelledBy, text(cancelledBy), "Vevő Kft.",
                         "EUR", 100, "0", 100, "1", DateToSql(due)});
}

QString PaidState(qint64 id)
{
    return QueryText("select ORDERHEAD_PAID, ORDERHEAD_UNPAID_TOTAL from ORDERHEAD where "
                     "ORDERHEAD_ID = ?",
                     {id});
}

Result Pay(qint64 id, double amount, BankItemInvoice* after = nullptr)
{
    BankItemInvoice invoice;
    if (Result r = BankItemStore::loadInvoice(id, invoice); !r)
        return r;
    BankItem item;
    item.transferDate = kToday;
    item.paidTotal = amount;
    item.recordNo = "K-1";
    const Result r = BankItemStore::add(invoice, item);
    if (after)
        *after = invoice;
    return r;
}

} // namespace

class TestBankItemStore : public CompanyTestCase
{
    Q_OBJECT
private Q_SLOTS:

    // Each payment in turn and the state it leaves: "paid|unpaid total".
    void payments_data()
    {
        AddColumns<QList<double>, QStringList>({"amounts", "states"});
        AddRow("short by less than the tolerance", QList<double>{99.9999995}, QStringList{"1|0"});
        AddRow("short by the tolerance", QList<double>{99.999998}, QStringList{"0|2e-06"});
        AddRow("decimal parts that never add up in binary", QList<double>{33.3, 33.3, 33.4},
               QStringList{"0|66.7", "0|33.4", "1|0"});
        AddRow("a refund of the overpayment", QList<double>{120, -20}, QStringList{"0|-20", "1|0"});
    }
    void payments()
    {
        auto [amounts, states] = Fetch<QList<double>, QStringList>({"amounts", "states"});
        const qint64 id = InsertInvoice();
        for (qsizetype i = 0; i < amounts.size(); ++i) {
            BankItemInvoice after;
            QVERIFY(Pay(id, amounts.at(i), &after));
            const QStringList stored = PaidState(id).split(u'|');
            QCOMPARE(stored.first(), states.at(i).section(u'|', 0, 0));
            QVERIFY2(qAbs(stored.last().toDouble() - states.at(i).section(u'|', 1).toDouble()) <
                         1e-9,
                     qPrintable(PaidState(id)));
            QCOMPARE(after.paid, stored.first() == "1");
        }
        QCOMPARE(QueryText("select count(*) from BANKITEM where BANKITEM_ORDERHEAD_ID = ? and "
                           "BANKITEM_INVOICE_NO = 7 and BANKITEM_INVOICE_NO_STR = 'INV7' and "
                           "BANKITEM_TRANSFER_DATE = '2024-05-20' and BANKITEM_RECORD_NO = 'K-1'",
                           {id}),
                 QString::number(amounts.size()));
    }

    void refusals_data()
    {
        AddColumns<QVariant, QVariant, int, QString>({"number", "cancelledBy", "type", "message"});
        AddRow("unissued order", QVariant(), QVariant(), 0,
               QString("Only an issued invoice can be paid. This order has no invoice number "
                       "yet."));
        AddRow("cancelled invoice", QVariant(7), QVariant(9), 0,
               QString("This invoice is cancelled by INV9, it can not be paid."));
        AddRow("cancelling invoice", QVariant(9), QVariant(), 1,
               QString("A cancelling invoice can not be paid."));
    }
    void refusals()
    {
        auto [number, cancelledBy, type, message] =
            Fetch<QVariant, QVariant, int, QString>({"number", "cancelledBy", "type", "message"});
        const qint64 id = InsertInvoice(number, cancelledBy, type);
        const Result r = Pay(id, 100);
        QVERIFY(!r);
        QCOMPARE(r.message(), message);
        QCOMPARE(PaidState(id), QString("0|100"));
        QCOMPARE(QueryText("select count(*) from BANKITEM"), QString("0"));
    }

    // A failing insert changes no paid state; a failing paid state update takes the bank item
    // back with it.
    void oneTransaction_data()
    {
        AddColumns<QString, QString>({"trigger", "message"});
        AddRow("insert fails",
               QString("create trigger T before insert on BANKITEM begin select "
                       "raise(abort, 'no bank items today'); end"),
               QString("Unable to insert bank item."));
        AddRow("paid state fails",
               QString("create trigger T before update of ORDERHEAD_PAID on ORDERHEAD begin "
                       "select raise(abort, 'no bank items today'); end"),
               QString("Can't create bank item in database."));
    }
    void oneTransaction()
    {
        auto [trigger, message] = Fetch<QString, QString>({"trigger", "message"});
        const qint64 id = InsertInvoice();
        QVERIFY(Pay(id, 40));
        QVERIFY(ExecSql(trigger));
        BankItemInvoice after;
        const Result r = Pay(id, 60, &after);
        QVERIFY(!r);
        QVERIFY2(r.message().startsWith(message), qPrintable(r.message()));
        QVERIFY(r.message().contains("no bank items today"));
        QCOMPARE(PaidState(id), QString("0|60"));
        QCOMPARE(after.unpaidTotal, 60.0); // the window's copy is not advanced either
        QCOMPARE(QueryText("select count(*) from BANKITEM"), QString("1"));
    }
};

QTEST_GUILESS_MAIN(TestBankItemStore)
#include "tst_bankitemstore.moc"
