// The order editor and its item dialog driven on the offscreen platform: the item commands, the
// questions about the basic data, and printing from the window.
#include "CompanyTestCase.h"
#include "ModalDriver.h"
#include "ScriptedInteraction.h"
#include "TestData.h"
#include "TestOrders.h"

#include "base/Setup.h"
#include "documents/InvoiceIssue.h"
#include "documents/InvoiceTemplate.h"
#include "documents/LabelTranslations.h"
#include "orders/OrderFill.h"
#include "orders/OrderStore.h"
#include "orders/ui/OrderEdit.h"
#include "orders/ui/OrderItemEditDlg.h"

#include <QLineEdit>
#include <QTableView>

#include <optional>

namespace {

void SetText(QWidget* form, const char* name, const QString& text)
{
    auto* field = Child<QLineEdit>(form, name);
    field->setText(text);
    Q_EMIT field->textEdited(text);
}

} // namespace

class TestOrderEdit : public CompanyTestCase
{
    Q_OBJECT
private Q_SLOTS:

    // The partner questions themselves are shared with the cheque window and tested there; here
    // that OK asks them and that a partner stored anew becomes the order's partner.
    void partnerBasicDataOnAccept()
    {
        ScriptedInteraction interaction;
        interaction.yesNoAnswers << true;
        Order order = TestOrder();
        order.partnerId.reset();
        order.partnerName = "Árvíztűrő Kft.";
        OrderEdit typed(order, interaction);
        typed.accept();
        QCOMPARE(
            interaction.questions,
            QStringList{"This partner is not in basic data yet. Do you want to store it there?"});
        QCOMPARE(QueryText("select PARTNER_ID from PARTNER where PARTNER_NAME = 'Árvíztűrő Kft.'"),
                 QString::number(typed.order().partnerId.value_or(0)));
    }

    void itemCommands()
    {
        ScriptedInteraction interaction;
        OrderEdit edit(TestOrder(), interaction);
        // A typed-in return line from the item dialog shows in the grid and the totals.
        edit.setItemEditor([](const Order& order, OrderItem& item, QWidget*) {
            item = order.items.first();
            item.qty = -0.5;
            OrderFill::recalcItem(item, order);
            return true;
        });
        edit.insertItem();
        auto* grid = Child<QTableView>(&edit, "m_items");
        QCOMPARE(Child<QLineEdit>(&edit, "m_total_net")->text(),
                 QLocale().toString(1500.0, 'f', 0));

        interaction.yesNoAnswers << false << true;
        grid->setCurrentIndex(grid->model()->index(0, 0));
        edit.deleteItem();
        QCOMPARE(grid->model()->rowCount(), 2);
        edit.deleteItem();
        QCOMPARE(interaction.questions.last(),
                 QString("Do you really want to delete the selected item ?"));
        QVERIFY(edit.order().items.size() == 1 && edit.order().totals.net == -500.0);
    }

    void productBasicData_data()
    {
        // products: name|unit|price of every product afterwards
        AddColumns<bool, bool, int, QString>({"typed", "yes", "choice", "products"});
        const int keep = int(Interaction::Choice::Third);
        AddRow("new product stored", true, true, keep,
               QString("Teszt termék|db|1000; Csavar|kg|250"));
        AddRow("new product not stored", true, false, keep, QString("Teszt termék|db|1000"));
        AddRow("changed, updated", false, false, int(Interaction::Choice::First),
               QString("Teszt termék|kg|250"));
        AddRow("changed, new product", false, false, int(Interaction::Choice::Second),
               QString("Teszt termék|db|1000; Teszt termék|kg|250"));
    }
    void productBasicData()
    {
        auto [typed, yes, choice, products] =
            Fetch<bool, bool, int, QString>({"typed", "yes", "choice", "products"});
        ScriptedInteraction interaction;
        interaction.yesNoAnswers << yes;
        interaction.choiceAnswers << Interaction::Choice(choice);
        const Order order = TestOrder();
        OrderItemEditDlg dlg(order, typed ? OrderItem() : order.items.first(), interaction);
        if (typed)
            SetText(&dlg, "m_name", "Csavar");
        SetText(&dlg, "m_qty", "4");
        SetText(&dlg, "m_unit", "kg");
        SetText(&dlg, "m_list_price", "250");
        dlg.accept();
        QCOMPARE(dlg.result(), int(QDialog::Accepted));
        QCOMPARE(interaction.questions.size(), 1);
        QCOMPARE(QueryText("select PRODUCT_NAME, PRODUCT_UNIT, PRODUCT_PRICE from PRODUCT "
                           "order by PRODUCT_ID"),
                 products);
        QCOMPARE(dlg.item().totals.net, 1000.0);
    }

    // Printing saves and issues the order; the editor then closes on the issued order.
    void printIssuesTheSavedOrder()
    {
        ScriptedInteraction interaction;
        OrderEdit edit(TestOrder(), interaction);
        QVERIFY(SaveTemplateToSetup(LoadTemplateDir(TN_TEMPLATE_DIR)));
        QVERIFY(Setup::current().load());
        QVERIFY(LabelTranslations::current().load());
        const QString pdf = m_company->dir() + "/invoice.pdf";
        OrderEdit::setInvoicePrinter([pdf](qint64 id, bool, Interaction& in, QWidget*) {
            PdfInvoiceOutput output(pdf);
            InvoiceIssue::Outcome outcome;
            return InvoiceIssue::print(id, in, &output, outcome);
        });
        SetText(&edit, "m_partner_address", "");
        edit.print();
        QCOMPARE(interaction.lastMessage(), QString("Partner Address field is required."));
        QVERIFY(!edit.issued());
        SetText(&edit, "m_partner_address", "Fő utca 1.");
        edit.print();
        QVERIFY2(edit.issued(), qPrintable(interaction.lastMessage()));
        QCOMPARE(edit.result(), int(QDialog::Accepted));
        QVERIFY(QFileInfo(pdf).size() > 0);
        QCOMPARE(QueryText("select ORDERHEAD_INVOICE_NO is not null from ORDERHEAD "
                           "where ORDERHEAD_ID = ?",
                           {edit.order().id}),
                 QString("1"));

        // Opened again, the invoice is only viewed and printed again, never saved.
        Order stored;
        QVERIFY(OrderStore::load(edit.order().id, stored));
        OrderEdit view(stored, interaction);
        QVERIFY(Child<QLineEdit>(&view, "m_partner_name")->isReadOnly());
        view.print();
        OrderEdit::setInvoicePrinter({});
        view.accept();
        QCOMPARE(view.result(), int(QDialog::Rejected));
        QCOMPARE(QueryText("select ORDERHEAD_PRINTED_COPIES from ORDERHEAD where ORDERHEAD_ID = ?",
                           {stored.id}),
                 QString::number(2 * stored.printedCopies));
    }
};

QTEST_MAIN(TestOrderEdit)
#include "tst_orderedit.moc"
