// "Add Bank Item" and "Previous Bank Items" on the offscreen platform against a real company:
// what the window refuses and keeps open, what it saves, the past payments, and the order list
// command with its unpaid kind and "Unpaid Total" column following the payment at once.
#include "ModalDriver.h"
#include "ScriptedInteraction.h"
#include "TestCompany.h"
#include "TestData.h"

#include "base/Setup.h"
#include "orders/ui/BankItemListDlg.h"
#include "orders/ui/BankitemEdit.h"
#include "orders/ui/OrderFilter.h"
#include "orders/ui/OrderList.h"
#include "orders/ui/OrderListModel.h"

#include <QLabel>
#include <QLineEdit>
#include <QTableWidget>
#include <QtTest>

namespace {

const QDate kToday(2024, 5, 20);

qint64 InsertOrder(const QVariant& number)
{
    if (!ExecSql("insert into ORDERHEAD (ORDERHEAD_CODE, ORDERHEAD_INVOICE_NO, "
                 "ORDERHEAD_INVOICE_NO_STR, ORDERHEAD_TYPE, ORDERHEAD_PARTNER_NAME, "
                 "ORDERHEAD_CURRENCY_ABBREVIATION, ORDERHEAD_TOTAL_GROSS, ORDERHEAD_PAID, "
                 "ORDERHEAD_UNPAID_TOTAL, ORDERHEAD_VERIFIED, ORDERHEAD_DATE_SHIPPED, "
                 "ORDERHEAD_CURRENCY_INVOICE_TOTAL_PRINTING_DECIMALS) "
                 "values (?, ?, ?, 0, 'Vevő Kft.', 'EUR', 100, '0', 100, '1', '2024-05-10', 2)",
                 QVariantList{QString("R" + number.toString()), number,
                              number.isNull() ? QVariant() : QVariant("INV" + number.toString())}))
        qFatal("insert failed");
    return QueryText("select max(ORDERHEAD_ID) from ORDERHEAD").toLongLong();
}

void SetText(QWidget* w, const char* name, const QString& text)
{
    Child<QLineEdit>(w, name)->setText(text);
}

} // namespace

class TestBankitemEdit : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        QVERIFY(m_company.emplace().isValid());
        QVERIFY(Setup::current().load());
        QVERIFY(ExecSql("delete from ORDERITEM"));
        QVERIFY(ExecSql("delete from ORDERHEAD"));
        m_ask = ScriptedInteraction();
        m_id = InsertOrder(7);
        QVERIFY(BankItemStore::loadInvoice(m_id, m_invoice));
    }
    void cleanup() { m_company.reset(); }

    // Each refusal keeps the window open with what was typed and writes nothing.
    void refusals_data()
    {
        QTest::addColumn<QString>("date");
        QTest::addColumn<QString>("amount");
        QTest::addColumn<QString>("message");
        AddRow("no date", QString(""), QString("40"),
               QString("Bankitem Transfer Date mustn't not be empty."));
        AddRow("not a date", QString("2024.13.45."), QString("40"),
               QString("The transfer date is not a date."));
        AddRow("no amount", QString("2024.05.20."), QString(""),
               QString("Bank Paid Total field must have a value."));
        AddRow("letters", QString("2024.05.20."), QString("negyven"),
               QString("\"negyven\" is not an amount. Type digits, with a decimal comma or "
                       "point."));
        AddRow("10^12", QString("2024.05.20."), QString("1000000000000"),
               QString("The paid total is too large."));
    }
    void refusals()
    {
        QFETCH(QString, date);
        QFETCH(QString, amount);
        QFETCH(QString, message);
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
        QCOMPARE(Child<QLineEdit>(&edit, "invoiceNo")->text(), QString("INV7"));
        QCOMPARE(Child<QLabel>(&edit, "currency")->text(), QString("EUR"));
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
        QCOMPARE(QueryText("select ORDERHEAD_PAID, ORDERHEAD_UNPAID_TOTAL from ORDERHEAD"),
                 QString("0|59.5"));
    }

    void pastPayments()
    {
        BankitemEdit edit(m_invoice, nullptr, kToday);
        edit.setInteraction(&m_ask);
        edit.listPastPayments();
        QCOMPARE(m_ask.lastMessage(), QString("There are no bank items to this invoice."));

        BankItemInvoice invoice = m_invoice;
        BankItem item;
        item.recordNo = "K-9";
        item.transferDate = QDate(2024, 5, 2);
        item.paidTotal = 25;
        item.comment = "átutalás";
        QVERIFY(BankItemStore::add(invoice, item));
        QStringList shown;
        ModalDriver driver({[&shown](QWidget* w) {
            auto* list = qobject_cast<BankItemListDlg*>(w);
            QVERIFY(list);
            QCOMPARE(list->windowTitle(), QString("Previous Bank Items"));
            QTableWidget* table = list->table();
            for (int column = 0; column < table->columnCount(); ++column)
                shown << table->horizontalHeaderItem(column)->text()
                      << table->item(0, column)->text();
            QCOMPARE(table->rowCount(), 1);
            list->reject();
        }});
        edit.listPastPayments();
        QVERIFY(driver.done());
        QCOMPARE(shown,
                 (QStringList{"Record No", "K-9", "Transfer Date", "2024.05.02.", "Paid",
                              QLocale().toString(25.0, 'f', 2) + " EUR", "Comment", "átutalás"}));
    }

    // From the list: the selection rule, the refusal of an unissued order, then 40 % and the
    // rest paid while the list shows the unpaid invoices only.
    void fromTheOrderList()
    {
        const qint64 unissued = InsertOrder(QVariant());
        OrderList list;
        list.setInteraction(&m_ask);
        OrderListFilter filter = list.filterWidget()->filter();
        filter.kind = int(OrderListFilter::Kind::Unpaid);
        list.filterWidget()->setFilter(filter);
        list.reload();
        list.addBankItem();
        QCOMPARE(m_ask.lastMessage(), QString("Select an order/invoice to add bank item."));
        QCOMPARE(list.model()->rowCount(), 1);

        list.filterWidget()->setFilter(OrderListFilter());
        list.reload();
        list.selectId(unissued);
        list.addBankItem();
        QCOMPARE(m_ask.lastMessage(),
                 QString("Only an issued invoice can be paid. This order has no invoice number "
                         "yet."));

        list.filterWidget()->setFilter(filter);
        list.reload();
        const auto pay = [](const QString& amount) {
            return [amount](QWidget* w) {
                auto* edit = qobject_cast<BankitemEdit*>(w);
                QVERIFY(edit);
                SetText(edit, "paidTotal", amount);
                edit->accept();
            };
        };
        const auto unpaidShown = [&list] {
            const QModelIndex index =
                list.model()->index(list.model()->rowOf(list.selectedIds().value(0)),
                                    int(OrderListModel::Column::UnpaidTotal));
            return index.data(OrderListModel::SortRole).toDouble();
        };
        {
            ModalDriver driver({pay("40")});
            list.selectId(m_id);
            list.addBankItem();
            QVERIFY(driver.done());
        }
        QCOMPARE(list.model()->rowCount(), 1);
        QCOMPARE(unpaidShown(), 60.0);
        {
            ModalDriver driver({pay("60")});
            list.selectId(m_id);
            list.addBankItem();
            QVERIFY(driver.done());
        }
        QCOMPARE(list.model()->rowCount(), 0);
        QCOMPARE(QueryText("select ORDERHEAD_PAID, ORDERHEAD_UNPAID_TOTAL from ORDERHEAD where "
                           "ORDERHEAD_ID = ?",
                           {m_id}),
                 QString("1|0"));
    }

private:
    std::optional<TestCompany> m_company;
    ScriptedInteraction m_ask;
    BankItemInvoice m_invoice;
    qint64 m_id = 0;
};

QTEST_MAIN(TestBankitemEdit)
#include "tst_bankitemedit.moc"
