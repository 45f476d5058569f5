// The order editor and its item dialog driven on the offscreen platform: the order of the
// checks, the questions about the basic data, and the prices the item dialog derives.
#include "ModalDriver.h"
#include "ScriptedInteraction.h"
#include "TestCompany.h"
#include "TestData.h"

#include "base/Setup.h"
#include "base/ui/DateEdit.h"
#include "documents/InvoiceIssue.h"
#include "documents/InvoiceTemplate.h"
#include "documents/LabelTranslations.h"
#include "masterdata/ui/NumberEdit.h"
#include "masterdata/ui/RecordFinder.h"
#include "orders/OrderFill.h"
#include "orders/OrderStore.h"
#include "orders/ui/OrderEdit.h"
#include "orders/ui/OrderEditCommands.h"
#include "orders/ui/OrderItemEditDlg.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QTableView>

#include <optional>

namespace {

void Exec(const QString& sql, const QVariantList& binds = {})
{
    SqlStatement st(sql, binds);
    if (!st.exec())
        qFatal("%s: %s", qPrintable(sql), qPrintable(st.errorText()));
}

// The basic-data partner's order with one line of the test product.
Order PartnerOrder()
{
    Order order;
    if (!OrderFill::newOrder(order) || !OrderFill::partner(order, 1))
        qFatal("no order");
    OrderItem item;
    if (!OrderFill::product(item, order, 1))
        qFatal("no product");
    item.qty = 2;
    OrderFill::recalcItem(item, order);
    order.items << item;
    return order;
}

void SetText(QWidget* form, const char* name, const QString& text)
{
    auto* field = Child<QLineEdit>(form, name);
    field->setText(text);
    Q_EMIT field->textEdited(text);
}

// Chooses the combo's row with data id (the empty row for none), as the user would.
void Choose(QWidget* form, const char* name, const QVariant& id)
{
    auto* combo = Child<QComboBox>(form, name);
    const int index = id.isValid() ? combo->findData(id) : 0;
    QVERIFY(index >= 0);
    combo->setCurrentIndex(index);
    Q_EMIT combo->activated(index);
}

} // namespace

class TestOrderEdit : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { QVERIFY(m_company.emplace().isValid()); }
    void cleanup() { m_company.reset(); }

    void checksInOrder_data()
    {
        QTest::addColumn<QStringList>("edits");
        QTest::addColumn<QString>("message");
        AddRow("name", QStringList{"m_partner_name="}, QString("Partner Name field is required."));
        AddRow("city before payment", QStringList{"m_partner_city=", "payment="},
               QString("Partner City field is required."));
        AddRow("address", QStringList{"m_partner_address= "},
               QString("Partner Address field is required."));
        AddRow("mail name",
               QStringList{"separate", "m_mail_name=", "m_mail_city=Pécs", "m_mail_address=Fő tér"},
               QString("A partner levelezesi cimehez tartozo nevet meg kell adni."));
        AddRow("mail address",
               QStringList{"separate", "m_mail_name=X", "m_mail_city=Pécs", "m_mail_address="},
               QString("A partner levelezesi cimehez tartozo cimet meg kell adni."));
        AddRow("payment before rate", QStringList{"payment=", "m_currency_rate="},
               QString("Payment Method field is required."));
        AddRow("rate empty", QStringList{"m_currency_rate="},
               QString("Currency Rate field is required."));
        AddRow("rate letters", QStringList{"m_currency_rate=abc"},
               QString("Currency Rate field is required."));
        AddRow("shipped empty", QStringList{"m_date_shipped="},
               QString("Date Shipped field must have a value."));
    }
    void checksInOrder()
    {
        QFETCH(QStringList, edits);
        QFETCH(QString, message);
        ScriptedInteraction interaction;
        OrderEdit edit(PartnerOrder(), interaction);
        for (const QString& e : std::as_const(edits)) {
            if (e == "separate")
                Child<QCheckBox>(&edit, "m_mail_is_same")->setChecked(false);
            else if (e == "payment=")
                Choose(&edit, "m_paymentmethod_id", {});
            else
                SetText(&edit, qPrintable(e.section('=', 0, 0)), e.section('=', 1));
        }
        edit.accept();
        QCOMPARE(interaction.lastMessage(), message);
        QVERIFY(interaction.questions.isEmpty());
        QCOMPARE(edit.result(), int(QDialog::Rejected));
    }

    void dateQuestions_data()
    {
        QTest::addColumn<int>("shippedDaysBack");
        QTest::addColumn<bool>("consolidated");
        QTest::addColumn<int>("dueDaysAhead"); // 99: left empty
        QTest::addColumn<bool>("answer");
        QTest::addColumn<int>("questions");
        QTest::addColumn<bool>("accepted");
        AddRow("15 days back passes", 15, false, 99, false, 0, true);
        AddRow("16 days back asks, no", 16, false, 99, false, 1, false);
        AddRow("16 days back asks, yes", 16, false, 99, true, 1, true);
        AddRow("consolidated never asked", 40, true, 99, false, 0, true);
        AddRow("due yesterday asks, no", 0, false, -1, false, 1, false);
        AddRow("due today passes", 0, false, 0, false, 0, true);
    }
    void dateQuestions()
    {
        QFETCH(int, shippedDaysBack);
        QFETCH(bool, consolidated);
        QFETCH(int, dueDaysAhead);
        QFETCH(bool, answer);
        QFETCH(int, questions);
        QFETCH(bool, accepted);
        ScriptedInteraction interaction;
        interaction.yesNoAnswers << answer;
        OrderEdit edit(PartnerOrder(), interaction);
        const QDate today = QDate::currentDate();
        Child<DateEdit>(&edit, "m_date_shipped")->setDate(today.addDays(-shippedDaysBack));
        Child<DateEdit>(&edit, "m_date_payment_due")
            ->setDate(dueDaysAhead == 99 ? QDate() : today.addDays(dueDaysAhead));
        Child<QCheckBox>(&edit, "m_consolidated_invoice")->setChecked(consolidated);
        edit.accept();
        QCOMPARE(interaction.questions.size(), questions);
        QCOMPARE(edit.result() == QDialog::Accepted, accepted);
        // An empty due date is filled from the partner's or payment method's days.
        QVERIFY(edit.order().datePaymentDue.isValid());
    }

    void partnerNotInBasicData_data()
    {
        QTest::addColumn<bool>("store");
        AddRow("stored", true);
        AddRow("not stored", false);
    }
    void partnerNotInBasicData()
    {
        QFETCH(bool, store);
        ScriptedInteraction interaction;
        interaction.yesNoAnswers << store;
        Order order = PartnerOrder();
        order.partnerId.reset();
        order.partnerName = "Árvíztűrő Kft.";
        OrderEdit edit(order, interaction);
        edit.accept();
        QCOMPARE(
            interaction.questions,
            QStringList{"This partner is not in basic data yet. Do you want to store it there?"});
        QCOMPARE(edit.result(), int(QDialog::Accepted));
        const QString stored = QueryText(
            "select PARTNER_ID, PARTNER_CITY from PARTNER where PARTNER_NAME = 'Árvíztűrő Kft.'");
        QCOMPARE(edit.order().partnerId.has_value(), store);
        QCOMPARE(stored,
                 store ? QString::number(*edit.order().partnerId) + "|Budapest" : QString());
    }

    void partnerChanged_data()
    {
        QTest::addColumn<int>("choice");
        QTest::addColumn<QString>("partners"); // name|city of every partner afterwards
        AddRow("update", int(Interaction::Choice::First), QString("Teszt Partner Kft|Szeged"));
        AddRow("new partner", int(Interaction::Choice::Second),
               QString("Teszt Partner Kft|Budapest; Teszt Partner Kft|Szeged"));
        AddRow("keep", int(Interaction::Choice::Third), QString("Teszt Partner Kft|Budapest"));
    }
    void partnerChanged()
    {
        QFETCH(int, choice);
        QFETCH(QString, partners);
        ScriptedInteraction interaction;
        interaction.choiceAnswers << Interaction::Choice(choice);
        OrderEdit edit(PartnerOrder(), interaction);
        SetText(&edit, "m_partner_city", "Szeged");
        edit.accept();
        QCOMPARE(edit.result(), int(QDialog::Accepted));
        QCOMPARE(interaction.questions.size(), 1);
        QVERIFY(interaction.questions.first().startsWith("The partner's data has changed."));
        QCOMPARE(QueryText("select PARTNER_NAME, PARTNER_CITY from PARTNER order by PARTNER_ID"),
                 partners);
        // A partner stored anew becomes the order's partner.
        QCOMPARE(*edit.order().partnerId, choice == int(Interaction::Choice::Second) ? 2 : 1);
    }

    void itemCommands()
    {
        ScriptedInteraction interaction;
        OrderEdit edit(PartnerOrder(), interaction);
        edit.editItem();
        QCOMPARE(interaction.lastMessage(), QString("Select an order item to edit"));
        edit.deleteItem();
        QCOMPARE(interaction.lastMessage(), QString("Select an order item to delete"));

        // A typed-in return line from the item dialog shows in the grid and the totals.
        edit.setItemEditor([](const Order& order, OrderItem& item, QWidget*) {
            item.name = "Visszáru";
            item.qty = -1;
            item.price = 500;
            item.discountType = int(DiscountType::EnteredPrice);
            item.dateShipped = order.dateShipped;
            OrderFill::recalcItem(item, order);
            return true;
        });
        edit.insertItem();
        auto* grid = Child<QTableView>(&edit, "m_items");
        QCOMPARE(grid->model()->rowCount(), 2);
        QCOMPARE(grid->model()->index(1, 4).data().toString(), QLocale().toString(-500.0, 'f', 2));
        QCOMPARE(Child<QLineEdit>(&edit, "m_total_net")->text(),
                 QLocale().toString(1500.0, 'f', 0));

        interaction.yesNoAnswers << false << true;
        grid->setCurrentIndex(grid->model()->index(0, 0));
        edit.deleteItem();
        QCOMPARE(grid->model()->rowCount(), 2);
        edit.deleteItem();
        QCOMPARE(interaction.questions.last(),
                 QString("Do you really want to delete the selected item ?"));
        QCOMPARE(edit.order().items.size(), 1);
        QCOMPARE(edit.order().totals.net, -500.0);

        interaction.yesNoAnswers << true;
        grid->setCurrentIndex(grid->model()->index(0, 0));
        edit.deleteItem();
        edit.print();
        QCOMPARE(interaction.lastMessage(),
                 QString("It is not allowed to print an invoice without items."));
    }

    void itemPrices_data()
    {
        QTest::addColumn<QString>("setup"); // SQL run first
        QTest::addColumn<double>("rate");
        QTest::addColumn<QString>("listPrice");
        QTest::addColumn<QString>("totalNet");
        AddRow("forint price at rate 400", QString("update PRODUCT set PRODUCT_PRICE = 10000"),
               400.0, QString("25"), QString("50"));
        AddRow("price in the currency as it stands",
               QString("insert into PRODUCTPRICE (PRODUCTPRICE_PRODUCT_ID, "
                       "PRODUCTPRICE_CURRENCY_ID, PRODUCTPRICE_PRICE) values (1, 1, 3.456)"),
               400.0, QString("3.456"), QString("6.91"));
        AddRow("no price at all", QString("update PRODUCT set PRODUCT_PRICE = NULL"), 400.0,
               QString(), QString("0"));
    }
    void itemPrices()
    {
        QFETCH(QString, setup);
        QFETCH(double, rate);
        QFETCH(QString, listPrice);
        QFETCH(QString, totalNet);
        Exec(setup);
        Order order = PartnerOrder();
        QVERIFY(OrderFill::currency(order, 1));
        order.currencyRate = rate;
        order.unitPriceDecimals = 2;
        order.lineDecimals = 2;
        ScriptedInteraction interaction;
        OrderItemEditDlg dlg(order, OrderItem(), interaction);
        SetText(&dlg, "m_qty", "2");
        dlg.chooseProduct(1);
        QCOMPARE(interaction.messages.size(), 0);
        const auto number = [](const QString& s) {
            return s.isEmpty() ? s : NumberEdit::format(s.toDouble());
        };
        QCOMPARE(Child<NumberEdit>(&dlg, "m_list_price")->text(), number(listPrice));
        QCOMPARE(Child<QLineEdit>(&dlg, "m_total_net")->text(), number(totalNet));
    }

    void itemNetAndGrossInStep()
    {
        ScriptedInteraction interaction;
        const Order order = PartnerOrder();
        OrderItemEditDlg dlg(order, OrderItem(), interaction);
        dlg.chooseProduct(1); // 1000 Ft, 27 %
        SetText(&dlg, "m_qty", "3");
        SetText(&dlg, "m_list_price_gross", "2540");
        QCOMPARE(Child<NumberEdit>(&dlg, "m_list_price")->value(), 2000.0);
        QCOMPARE(Child<NumberEdit>(&dlg, "m_price")->value(), 2000.0);
        QCOMPARE(Child<QLineEdit>(&dlg, "m_total_gross")->text(), NumberEdit::format(7620));

        // A special price stays when the list price changes.
        Choose(&dlg, "m_discount_type", int(DiscountType::EnteredPrice));
        SetText(&dlg, "m_gross_price", "1016");
        QCOMPARE(Child<NumberEdit>(&dlg, "m_price")->value(), 800.0);
        SetText(&dlg, "m_list_price", "5000");
        QCOMPARE(Child<NumberEdit>(&dlg, "m_price")->value(), 800.0);
        QCOMPARE(Child<QLineEdit>(&dlg, "m_total_net")->text(), NumberEdit::format(2400));

        // A percent discount follows the list price.
        Choose(&dlg, "m_discount_type", int(DiscountType::PercentFromListPrice));
        SetText(&dlg, "m_discount_percent", "10");
        QCOMPARE(Child<NumberEdit>(&dlg, "m_price")->value(), 4500.0);

        // Another VAT key keeps the net prices and moves their gross pairs.
        Choose(&dlg, "m_vat_id", 4); // 0 %
        QCOMPARE(Child<NumberEdit>(&dlg, "m_gross_price")->value(), 4500.0);
        QCOMPARE(Child<NumberEdit>(&dlg, "m_list_price_gross")->value(), 5000.0);
        QCOMPARE(Child<QLineEdit>(&dlg, "m_total_gross")->text(), NumberEdit::format(13500));
    }

    void itemChecksInOrder_data()
    {
        QTest::addColumn<QStringList>("edits");
        QTest::addColumn<QString>("message");
        AddRow("name", QStringList{"m_name=", "m_qty="},
               QString("Order item name field must have a value."));
        AddRow("quantity letters", QStringList{"m_qty=abc", "m_price="},
               QString("Quantity field must have a value."));
        AddRow("quantity 0", QStringList{"m_qty=0"}, QString("Quantity field must have a value."));
        AddRow("price", QStringList{"m_price=", "m_date_shipped="},
               QString("Price field must have a value."));
        AddRow("date", QStringList{"m_date_shipped="},
               QString("Date Shipped field must have a value."));
        AddRow("price too large", QStringList{"m_price=1000000000000"},
               QString("The amount of the order item is too large."));
    }
    void itemChecksInOrder()
    {
        QFETCH(QStringList, edits);
        QFETCH(QString, message);
        ScriptedInteraction interaction;
        const Order order = PartnerOrder();
        OrderItemEditDlg dlg(order, order.items.first(), interaction);
        for (const QString& e : std::as_const(edits))
            SetText(&dlg, qPrintable(e.section('=', 0, 0)), e.section('=', 1));
        dlg.accept();
        QCOMPARE(interaction.lastMessage(), message);
        QCOMPARE(dlg.result(), int(QDialog::Rejected));
    }

    void productBasicData_data()
    {
        QTest::addColumn<bool>("typed");
        QTest::addColumn<bool>("yes");
        QTest::addColumn<int>("choice");
        QTest::addColumn<QString>("products"); // name|unit|price of every product afterwards
        const int keep = int(Interaction::Choice::Third);
        AddRow("new product stored", true, true, keep,
               QString("Teszt termék|db|1000; Csavar|kg|250"));
        AddRow("new product not stored", true, false, keep, QString("Teszt termék|db|1000"));
        AddRow("changed, updated", false, false, int(Interaction::Choice::First),
               QString("Teszt termék|kg|250"));
        AddRow("changed, new product", false, false, int(Interaction::Choice::Second),
               QString("Teszt termék|db|1000; Teszt termék|kg|250"));
        AddRow("changed, kept", false, false, keep, QString("Teszt termék|db|1000"));
    }
    void productBasicData()
    {
        QFETCH(bool, typed);
        QFETCH(bool, yes);
        QFETCH(int, choice);
        QFETCH(QString, products);
        ScriptedInteraction interaction;
        interaction.yesNoAnswers << yes;
        interaction.choiceAnswers << Interaction::Choice(choice);
        const Order order = PartnerOrder();
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
        OrderEdit::setInvoicePrinter({});
        OrderEdit edit(PartnerOrder(), interaction);
        edit.print();
        QCOMPARE(interaction.lastMessage(), QString("The invoice can not be printed yet."));
        QCOMPARE(QueryText("select count(*) from ORDERHEAD where ORDERHEAD_ID > 1"), QString("0"));

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

        // Opened again, the invoice is only viewed and printed again.
        Order stored;
        QVERIFY(OrderStore::load(edit.order().id, stored));
        QVERIFY(stored.printedCopies > 0);
        OrderEdit view(stored, interaction);
        QVERIFY(Child<QLineEdit>(&view, "m_partner_name")->isReadOnly());
        QVERIFY(!Child<QComboBox>(&view, "m_currency_id")->isEnabled());
        view.setItemEditor([](const Order&, OrderItem&, QWidget*) {
            qFatal("an issued order's items were edited");
            return false;
        });
        view.insertItem();
        view.print();
        OrderEdit::setInvoicePrinter({});
        view.accept();
        QCOMPARE(view.result(), int(QDialog::Rejected));
        QCOMPARE(QueryText("select ORDERHEAD_PRINTED_COPIES from ORDERHEAD where ORDERHEAD_ID = ?",
                           {stored.id}),
                 QString::number(2 * stored.printedCopies));
    }

    // "New order" as a person does it: partner, one item from the item dialog, OK; the database
    // holds what the windows showed.
    void newOrderSaved()
    {
        QStringList texts;
        qint64 savedId = 0;
        QString totalShown;
        ModalDriver driver({
            [](QWidget* w) {
                auto* edit = qobject_cast<OrderEdit*>(w);
                QVERIFY(edit);
                Q_EMIT Child<PartnerFinder>(edit, "m_partner_name")->picked(1);
                Later([edit] { Child<QPushButton>(edit, "m_insert_item")->click(); });
            },
            [](QWidget* w) {
                auto* dlg = qobject_cast<OrderItemEditDlg*>(w);
                QVERIFY(dlg);
                dlg->chooseProduct(1);
                SetText(dlg, "m_qty", "3");
                dlg->accept();
            },
            [&totalShown](QWidget* w) {
                auto* edit = qobject_cast<OrderEdit*>(w);
                QVERIFY(edit);
                totalShown = Child<QLineEdit>(edit, "m_total_gross")->text();
                edit->accept();
            },
        });
        QVERIFY(OpenOrderEdit(nullptr, 0, &savedId));
        QVERIFY(driver.done());
        QCOMPARE(totalShown, QLocale().toString(3810.0, 'f', 0));
        QCOMPARE(QueryText("select ORDERHEAD_PARTNER_NAME, ORDERHEAD_TOTAL_GROSS from ORDERHEAD "
                           "where ORDERHEAD_ID = ?",
                           {savedId}),
                 QString("Teszt Partner Kft|3810"));
        QCOMPARE(QueryText("select ORDERITEM_NAME, ORDERITEM_QTY from ORDERITEM "
                           "where ORDERITEM_ORDERHEAD_ID = ?",
                           {savedId}),
                 QString("Teszt termék|3"));
    }

    // A new customer typed in, a euro order with a euro-priced product, a typed-in line and a
    // return line, as a new user would enter it.
    void euroOrderForNewCustomer()
    {
        Exec("insert into PRODUCTPRICE (PRODUCTPRICE_PRODUCT_ID, PRODUCTPRICE_CURRENCY_ID, "
             "PRODUCTPRICE_PRICE) values (1, 1, 10)");
        QStringList texts;
        QString grossShown;
        const auto insertLater = [](QWidget* w) {
            auto* edit = qobject_cast<OrderEdit*>(w);
            QVERIFY(edit);
            Later([edit] { Child<QPushButton>(edit, "m_insert_item")->click(); });
        };
        const auto productLine = [](double qty) {
            return [qty](QWidget* w) {
                auto* dlg = qobject_cast<OrderItemEditDlg*>(w);
                QVERIFY(dlg);
                dlg->chooseProduct(1);
                SetText(dlg, "m_qty", NumberEdit::format(qty));
                dlg->accept();
            };
        };
        ModalDriver driver({
            [&insertLater](QWidget* w) {
                SetText(w, "m_partner_name", "Árvíztűrő Kft.");
                SetText(w, "m_partner_zip", "6720");
                SetText(w, "m_partner_city", "Szeged");
                SetText(w, "m_partner_address", "Tisza Lajos krt. 1.");
                Choose(w, "m_paymentmethod_id", 2);
                Choose(w, "m_currency_id", 1);
                insertLater(w);
            },
            productLine(2),
            insertLater,
            [](QWidget* w) {
                auto* dlg = qobject_cast<OrderItemEditDlg*>(w);
                QVERIFY(dlg);
                SetText(dlg, "m_name", "Szerelés");
                SetText(dlg, "m_qty", "1");
                Choose(dlg, "m_discount_type", int(DiscountType::EnteredPrice));
                SetText(dlg, "m_price", "20");
                Later([dlg] { dlg->accept(); });
            },
            Answer(&texts, QMessageBox::No),
            insertLater,
            productLine(-1),
            [&grossShown](QWidget* w) {
                grossShown = Child<QLineEdit>(w, "m_total_gross")->text();
                Later([w] { qobject_cast<OrderEdit*>(w)->accept(); });
            },
            Answer(&texts, QMessageBox::Yes),
        });
        qint64 id = 0;
        QVERIFY(OpenOrderEdit(nullptr, 0, &id));
        QVERIFY(driver.done());
        QCOMPARE(
            texts,
            (QStringList{"This product is not in basic data yet. Do you want to store it there?",
                         "This partner is not in basic data yet. Do you want to store it there?"}));
        QCOMPARE(grossShown, QLocale().toString(32.7, 'f', 2));
        QCOMPARE(
            QueryText("select ORDERHEAD_PARTNER_ID = PARTNER_ID, ORDERHEAD_CURRENCY_ABBREVIATION, "
                      "ORDERHEAD_TOTAL_NET, ORDERHEAD_TOTAL_VAT, ORDERHEAD_TOTAL_GROSS "
                      "from ORDERHEAD join PARTNER on PARTNER_NAME = ORDERHEAD_PARTNER_NAME "
                      "where ORDERHEAD_ID = ?",
                      {id}),
            QString("1|EUR|30|2.7|32.7"));
        QCOMPARE(
            QueryText("select ORDERITEM_NAME, ORDERITEM_PRODUCT_ID, ORDERITEM_QTY, "
                      "ORDERITEM_PRICE, ORDERITEM_TOTAL_GROSS from ORDERITEM "
                      "where ORDERITEM_ORDERHEAD_ID = ? order by ORDERITEM_ID",
                      {id}),
            QString("Teszt termék|1|2|10|25.4; Szerelés||1|20|20; Teszt termék|1|-1|10|-12.7"));
        QCOMPARE(QueryText("select count(*) from PRODUCT"), QString("1"));
    }

    // Another process deletes the order while it is open: saving says so, writes nothing, and
    // the editor comes back with what was typed.
    void orderDeletedWhileEdited()
    {
        Order order = PartnerOrder();
        QVERIFY(OrderStore::save(order));
        const QString before = QueryText("select count(*) from ORDERITEM");
        QStringList texts;
        QString subjectAgain;
        ModalDriver driver({
            [id = order.id](QWidget* w) {
                auto* edit = qobject_cast<OrderEdit*>(w);
                QVERIFY(edit);
                SetText(edit, "m_subject", "Új tárgy");
                OrderStore::DeleteOutcome outcome;
                QVERIFY(OrderStore::remove({id}, outcome));
                edit->accept();
            },
            Answer(&texts),
            [&subjectAgain](QWidget* w) {
                auto* edit = qobject_cast<OrderEdit*>(w);
                QVERIFY(edit);
                subjectAgain = Child<QLineEdit>(edit, "m_subject")->text();
                edit->reject();
            },
        });
        QVERIFY(!OpenOrderEdit(nullptr, order.id));
        QVERIFY(driver.done());
        QCOMPARE(texts, QStringList{"Unable to save changes of order. Maybe an other user changed "
                                    "this order."});
        QCOMPARE(subjectAgain, QString("Új tárgy"));
        QCOMPARE(QueryText("select count(*) from ORDERHEAD where ORDERHEAD_ID = ?", {order.id}),
                 QString("0"));
        QCOMPARE(QueryText("select count(*) from ORDERITEM"), QString::number(before.toInt() - 1));
    }

private:
    std::optional<TestCompany> m_company;
};

QTEST_MAIN(TestOrderEdit)
#include "tst_orderedit.moc"
