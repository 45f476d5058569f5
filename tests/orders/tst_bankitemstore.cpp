// Payments against real company databases: partial payments, the settling tolerance and the
// overpayment, the refusals of what can not be paid, one transaction for the bank item and the
// paid state; and "Add Bank Item" on the offscreen platform.
#include "CompanyTestCase.h"
#include "ModalDriver.h"
#include "OrdersTestData.h"
#include "ScriptedInteraction.h"

#include "base/DateText.h"
#include "orders/BankItemStore.h"
#include "orders/ui/BankitemEdit.h"

#include <QLineEdit>
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
                           "BANKITEM_INVOICE_NO = 7 and BANKITEM_INVOICE_NO_STR = 'INV7'",
                           {id}),
                 QString::number(amounts.size()));
        // Read back as the payments window lists them.
        QList<BankItem> listed;
        QVERIFY(BankItemStore::list(id, listed));
        QCOMPARE(listed.size(), amounts.size());
        QCOMPARE(
            QStringList({listed.last().recordNo, listed.last().transferDate.toString(Qt::ISODate),
                         QString::number(listed.last().paidTotal)}),
            QStringList({"K-1", "2024-05-20", QString::number(amounts.last())}));
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

    // The window: a refusal keeps it open with what was typed and writes nothing; what is
    // accepted is stored field by field.
    void window_data()
    {
        AddColumns<QString, QString, QString>({"date", "amount", "message"});
        AddRow("stored", QString("2024.05.18."), QString("40,5"), QString());
        AddRow("no date", QString(""), QString("40"),
               QString("Bankitem Transfer Date mustn't not be empty."));
        AddRow("letters", QString("2024.05.20."), QString("negyven"),
               QString("\"negyven\" is not an amount. Type digits, with a decimal comma or "
                       "point."));
        AddRow("10^12", QString("2024.05.20."), QString("1000000000000"),
               QString("The paid total is too large."));
    }
    void window()
    {
        auto [date, amount, message] =
            Fetch<QString, QString, QString>({"date", "amount", "message"});
        const qint64 id = InsertInvoice();
        BankItemInvoice invoice;
        QVERIFY(BankItemStore::loadInvoice(id, invoice));
        ScriptedInteraction ask;
        BankitemEdit edit(invoice, nullptr, kToday);
        edit.setInteraction(&ask);
        edit.show();
        QCOMPARE(Child<QLineEdit>(&edit, "paidTotal")->text(), QString("100")); // what is owed
        const QStringList fields{"recordNo", "transferDate", "paidTotal", "comment"};
        const QStringList typed{"2024/118", date, amount, "első részlet"};
        for (qsizetype i = 0; i < fields.size(); ++i)
            Child<QLineEdit>(&edit, qPrintable(fields[i]))->setText(typed[i]);
        edit.accept();
        QCOMPARE(ask.lastMessage(), message);
        QCOMPARE(edit.isVisible(), !message.isEmpty());
        QCOMPARE(Child<QLineEdit>(&edit, "paidTotal")->text(), amount);
        QCOMPARE(QueryText("select BANKITEM_ORDERHEAD_ID, BANKITEM_INVOICE_NO_STR, "
                           "BANKITEM_RECORD_NO, BANKITEM_TRANSFER_DATE, BANKITEM_PAID_TOTAL, "
                           "BANKITEM_COMMENT from BANKITEM"),
                 message.isEmpty()
                     ? QString("%1|INV7|2024/118|2024-05-18|40.5|első részlet").arg(id)
                     : QString());
        QCOMPARE(edit.invoice().unpaidTotal, message.isEmpty() ? 59.5 : 100.0);
    }
};

QTEST_MAIN(TestBankItemStore)
#include "tst_bankitemstore.moc"
