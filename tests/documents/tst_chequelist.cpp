// The "Csekkek" tab and the cheque editor on the offscreen platform against a real company:
// the list and its limit, deleting a selection with printed cheques in it, the filter, and
// saving a cheque with a payer new to the basic data.
#include "CompanyTestCase.h"
#include "ScriptedInteraction.h"
#include "TestData.h"

#include "base/Setup.h"
#include "base/SqlStatement.h"
#include "documents/ui/ChequeEdit.h"
#include "documents/ui/ChequeFilter.h"
#include "documents/ui/ChequeList.h"
#include "documents/ui/ChequeListModel.h"
#include "orders/ChequeStore.h"
#include "orders/ui/OrderList.h"
#include "orders/ui/OrderPrintHooks.h"

#include <QAbstractItemModelTester>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTableView>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

void AddCheque(const QString& name, double amount, bool printed)
{
    Cheque c;
    c.partnerName = name;
    c.amount = amount;
    c.invoiceNoText = QStringLiteral("INV-%1").arg(qint64(amount));
    if (!ChequeStore::save(c) || (printed && !ChequeStore::markPrinted({c.id}, QDate(2024, 3, 5))))
        qFatal("cheque not stored");
}

} // namespace

class TestChequeList : public CompanyTestCase
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        CompanyTestCase::init();
        m_ask = ScriptedInteraction();
        const QStringList names{"Árvíztűrő Kft", "Béla", "Cecília", "Dénes", "Ernő"};
        for (int i = 0; i < names.size(); ++i)
            AddCheque(names[i], 1000 * (i + 1), i == 1 || i == 3);
        m_list.emplace();
        m_list->setInteraction(&m_ask);
        m_list->reload();
    }
    void cleanup()
    {
        m_list.reset();
        CompanyTestCase::cleanup();
    }

    // Newest first; the record limit cuts the list and says so.
    void listsNewestFirst()
    {
        ChequeListModel* model = m_list->model();
        QAbstractItemModelTester tester(model,
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
        m_list->reload();
        QCOMPARE(ColumnTexts(model, 2),
                 (QStringList{"Ernő", "Dénes", "Cecília", "Béla", "Árvíztűrő Kft"}));
        QCOMPARE(ColumnTexts(model, 4), (QStringList{"", "2024.03.05.", "", "2024.03.05.", ""}));
        QVERIFY(Setup::write({{"SETUP_RECORD_LIMIT", 3}}));
        m_list->reload();
        QCOMPARE(ColumnTexts(model, 2), (QStringList{"Ernő", "Dénes", "Cecília"}));
        const auto* note = m_list->findChild<QLabel*>("note");
        QVERIFY(!note->isHidden() && note->text().startsWith("There are more matching cheques"));
    }

    void filterByPartnerBeginning()
    {
        m_list->filterWidget()->setPartner("arviz");
        m_list->reload();
        QCOMPARE(ColumnTexts(m_list->model(), 2), QStringList{"Árvíztűrő Kft"});
        m_list->filterWidget()->setPartner("50%");
        m_list->reload();
        QCOMPARE(m_list->model()->rowCount(), 0);
    }

    void deleteKeepsPrintedOnes_data()
    {
        AddColumns<QList<int>, bool, QString, QStringList, int>(
            {"rows", "answer", "question", "left", "messages"});
        AddRow("all five, two printed", QList<int>{0, 1, 2, 3, 4}, true,
               QString("5 db csekk torlese.&Biztosan torolni szeretne a kijelolt csekkeket?"),
               QStringList{"Dénes", "Béla"}, 1);
        AddRow("one unprinted", QList<int>{0}, true,
               QString("Biztosan torolni szeretne a kivalasztott csekket?"),
               QStringList{"Dénes", "Cecília", "Béla", "Árvíztűrő Kft"}, 0);
        AddRow("answered no", QList<int>{0, 2}, false,
               QString("2 db csekk torlese.&Biztosan torolni szeretne a kijelolt csekkeket?"),
               QStringList{"Ernő", "Dénes", "Cecília", "Béla", "Árvíztűrő Kft"}, 0);
    }
    void deleteKeepsPrintedOnes()
    {
        auto [rows, answer, question, left, messages] =
            Fetch<QList<int>, bool, QString, QStringList, int>(
                {"rows", "answer", "question", "left", "messages"});
        for (int row : rows)
            m_list->view()->selectionModel()->select(m_list->model()->index(row, 1),
                                                     QItemSelectionModel::Select |
                                                         QItemSelectionModel::Rows);
        m_ask.yesNoAnswers.enqueue(answer);
        m_list->deleteCheques();
        QCOMPARE(m_ask.questions, QStringList{question});
        QCOMPARE(ColumnTexts(m_list->model(), 2), left);
        QCOMPARE(m_ask.messages.size(), messages);
        if (messages)
            QCOMPARE(m_ask.lastMessage(),
                     QString("2 kijelolt csekk nem torolheto,&mert mar korabban ki lettek "
                             "nyomtatva."));
    }

    void deleteWithoutSelection()
    {
        m_list->deleteCheques();
        QCOMPARE(m_ask.lastMessage(), QString("Valassza ki a torlendo csekket!"));
        QCOMPARE(m_list->model()->rowCount(), 5);
    }

    void editSavesNewPayerOnAnswer_data()
    {
        AddColumns<QString, bool, QString, QString>({"amount", "store", "stored", "partners"});
        AddRow("stored in basic data", u"1 234,5"_s, true, u"Új Fizető|1235|1|first\nsecond"_s,
               u"2"_s);
        AddRow("kept on the cheque only", u"99"_s, false, u"Új Fizető|99|0|first\nsecond"_s,
               u"1"_s);
    }
    void editSavesNewPayerOnAnswer()
    {
        auto [amount, store, stored, partners] =
            Fetch<QString, bool, QString, QString>({"amount", "store", "stored", "partners"});
        QVERIFY(ExecSql("delete from CHEQUE"));
        ChequeEdit edit;
        edit.setInteraction(&m_ask);
        QVERIFY(edit.load(0));
        edit.findChild<QLineEdit*>("m_partner_name")->setText("Új Fizető");
        edit.findChild<QLineEdit*>("m_partner_city")->setText("Pécs");
        edit.findChild<QLineEdit*>("m_amount")->setText(amount);
        edit.findChild<QPlainTextEdit*>("m_notice")->setPlainText("first\nsecond");
        m_ask.yesNoAnswers.enqueue(store);
        QVERIFY(edit.save());
        QCOMPARE(m_ask.questions,
                 QStringList{"This partner is not in basic data yet. Do you want to store it "
                             "there?"});
        // Saved once, the window edits that cheque from now on.
        QCOMPARE(edit.windowTitle(), QString("Edit Cheque"));
        QCOMPARE(QueryText("select CHEQUE_PARTNER_NAME || '|' || cast(CHEQUE_AMOUNT as integer) "
                           "|| '|' || (CHEQUE_PARTNER_ID is not null) || '|' || CHEQUE_NOTICE "
                           "from CHEQUE"),
                 stored);
        QCOMPARE(QueryText("select count(*) from PARTNER"), partners);
    }

    void changedKnownPayer_data()
    {
        AddColumns<int, QString, QString>({"choice", "partners", "cheque"});
        AddRow("update the partner", 0, u"1|Teszt Partner Kft|Győr"_s, u"1|Győr"_s);
        AddRow("create a new one", 1, u"2|Teszt Partner Kft|Budapest"_s, u"2|Győr"_s);
        AddRow("leave the basic data", 2, u"1|Teszt Partner Kft|Budapest"_s, u"1|Győr"_s);
    }
    void changedKnownPayer()
    {
        auto [choice, partners, cheque] =
            Fetch<int, QString, QString>({"choice", "partners", "cheque"});
        Cheque c;
        c.partnerId = 1;
        c.partnerName = "Teszt Partner Kft";
        c.partnerZip = "1011";
        c.partnerCity = "Budapest";
        c.partnerAddress = "Fő utca 1.";
        c.amount = 500;
        QVERIFY(ChequeStore::save(c));
        ChequeEdit edit;
        edit.setInteraction(&m_ask);
        QVERIFY(edit.load(c.id));
        edit.findChild<QLineEdit*>("m_partner_city")->setText("Győr");
        m_ask.choiceAnswers.enqueue(Interaction::Choice(choice));
        QVERIFY(edit.save());
        QCOMPARE(m_ask.questions.size(), 1);
        QVERIFY(m_ask.questions.first().startsWith("The partner's data has changed."));
        QCOMPARE(QueryText("select count(*) || '|' || min(PARTNER_NAME) || '|' || "
                           "(select PARTNER_CITY from PARTNER where PARTNER_ID = 1) from PARTNER"),
                 partners);
        QCOMPARE(QueryText("select coalesce(CHEQUE_PARTNER_ID, '-') || '|' || CHEQUE_PARTNER_CITY "
                           "from CHEQUE where CHEQUE_ID = ?",
                           {c.id}),
                 cheque);
    }

    void orderListHandsSelectedInvoicesToTheCheques()
    {
        QList<qint64> handed;
        SetChequePrintHook([&handed](QWidget*, const QList<qint64>& ids) {
            handed = ids;
            return Result::failure("refused");
        });
        OrderList orders;
        orders.setInteraction(&m_ask);
        orders.reload();
        QAction* action = nullptr;
        for (QMenu* menu : orders.findChildren<QMenu*>())
            for (QAction* a : menu->actions())
                if (a->text() == "Csekk nyomtatasa")
                    action = a;
        QVERIFY(action && action->isEnabled());
        action->trigger();
        QCOMPARE(m_ask.lastMessage(), QString("Select at least an order to print."));
        orders.selectId(1);
        action->trigger();
        QCOMPARE(handed, QList<qint64>{1});
        QCOMPARE(m_ask.lastMessage(), QString("refused"));
        SetChequePrintHook({});
    }

private:
    std::optional<ChequeList> m_list;
    ScriptedInteraction m_ask;
};

QTEST_MAIN(TestChequeList)
#include "tst_chequelist.moc"
