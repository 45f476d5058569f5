// "Add Bank Item" on the offscreen platform against a real company: what the window refuses and
// keeps open, and what it saves.
#include "CompanyTestCase.h"
#include "ModalDriver.h"
#include "OrdersTestData.h"
#include "ScriptedInteraction.h"

#include "base/Setup.h"
#include "orders/ui/BankitemEdit.h"

#include <QLineEdit>
#include <QtTest>

namespace {

const QDate kToday(2024, 5, 20);

void SetText(QWidget* w, const char* name, const QString& text)
{
    Child<QLineEdit>(w, name)->setText(text);
}

} // namespace

class TestBankitemEdit : public CompanyTestCase
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        CompanyTestCase::init();
        QVERIFY(ExecSql("delete from ORDERITEM"));
        QVERIFY(ExecSql("delete from ORDERHEAD"));
        m_ask = ScriptedInteraction();
        m_id = OrdersInsert(
            "ORDERHEAD",
            "CODE INVOICE_NO INVOICE_NO_STR TYPE PARTNER_NAME CURRENCY_ABBREVIATION "
            "TOTAL_GROSS PAID UNPAID_TOTAL VERIFIED DATE_SHIPPED "
            "CURRENCY_INVOICE_TOTAL_PRINTING_DECIMALS",
            {"R7", 7, "INV7", 0, "Vevő Kft.", "EUR", 100, "0", 100, "1", "2024-05-10", 2});
        QVERIFY(BankItemStore::loadInvoice(m_id, m_invoice));
    }

    // Each refusal keeps the window open with what was typed and writes nothing.
    void refusals_data()
    {
        AddColumns<QString, QString, QString>({"date", "amount", "message"});
        AddRow("no date", QString(""), QString("40"),
               QString("Bankitem Transfer Date mustn't not be empty."));
        AddRow("letters", QString("2024.05.20."), QString("negyven"),
               QString("\"negyven\" is not an amount. Type digits, with a decimal comma or "
                       "point."));
        AddRow("10^12", QString("2024.05.20."), QString("1000000000000"),
               QString("The paid total is too large."));
    }
    void refusals()
    {
        auto [date, amount, message] =
            Fetch<QString, QString, QString>({"date", "amount", "message"});
        BankitemEdit edit(m_invoice, nullptr, kToday);
        edit.setInteraction(&m_ask);
        edit.show();
        SetText(&edit, "transferDate", date);
        SetText(&edit, "paidTotal", amount);
        edit.accept();
        QCOMPARE(m_ask.lastMessage(), message);
        QVERIFY(edit.isVisible());
        QCOMPARE(Child<QLineEdit>(&edit, "paidTotal")->text(), amount);
        QCOMPARE(QueryText("select count(*) from BANKITEM"), QString("0"));
    }

    void savesEveryField()
    {
        BankitemEdit edit(m_invoice, nullptr, kToday);
        edit.setInteraction(&m_ask);
        edit.show();
        QCOMPARE(Child<QLineEdit>(&edit, "paidTotal")->text(), QString("100")); // what is owed
        SetText(&edit, "recordNo", "2024/118");
        SetText(&edit, "transferDate", "2024.05.18.");
        SetText(&edit, "paidTotal", "40,5");
        SetText(&edit, "comment", "első részlet");
        edit.accept();
        QVERIFY(m_ask.messages.isEmpty());
        QCOMPARE(edit.result(), int(QDialog::Accepted));
        QCOMPARE(QueryText("select BANKITEM_ORDERHEAD_ID, BANKITEM_INVOICE_NO_STR, "
                           "BANKITEM_RECORD_NO, BANKITEM_TRANSFER_DATE, BANKITEM_PAID_TOTAL, "
                           "BANKITEM_COMMENT from BANKITEM"),
                 QString("%1|INV7|2024/118|2024-05-18|40.5|első részlet").arg(m_id));
        QCOMPARE(edit.invoice().unpaidTotal, 59.5);
    }

private:
    ScriptedInteraction m_ask;
    BankItemInvoice m_invoice;
    qint64 m_id = 0;
};

QTEST_MAIN(TestBankitemEdit)
#include "tst_bankitemedit.moc"
