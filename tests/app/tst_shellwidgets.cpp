// The shell's widgets: Enter as Tab in edit dialogs, the date field, and the dialogs of start-up
// (the company chooser can add a company, the check list reports its ticks, the SQL error dialog
// answers Retry or Cancel, the copies question gives its number).
#include "ModalDriver.h"
#include "TestData.h"

#include "app/CompanyList.h"
#include "app/ui/CompanyListModel.h"
#include "app/ui/DatabaseSelectDlg.h"
#include "app/ui/SqlErrorDlg.h"
#include "base/ui/CheckItemsDlg.h"
#include "base/ui/DateEdit.h"
#include "base/ui/EnterLikeTab.h"
#include "base/ui/GuiInteraction.h"

#include <QAbstractItemModelTester>
#include <QComboBox>
#include <QDialog>
#include <QFormLayout>
#include <QInputDialog>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QtTest>

namespace {

// An edit dialog with one field of each kind in tab order, each named after its kind, and a
// default OK button.
class EditDialog : public QDialog
{
public:
    EditDialog()
    {
        auto* combo = new QComboBox;
        combo->addItems({"a", "b"});
        auto* editableCombo = new QComboBox;
        editableCombo->setEditable(true);
        auto* chooser = new QPushButton("Languages...");
        EnterLikeTab::markFieldButton(chooser);
        auto* ok = new QPushButton("OK");
        ok->setDefault(true);
        connect(ok, &QPushButton::clicked, this, &QDialog::accept);
        auto* form = new QFormLayout(this);
        const char* names[] = {"line",  "spin",    "editable combo", "combo", "date",
                               "notes", "chooser", "last",           "ok"};
        QWidget* fields[] = {new QLineEdit,      new QSpinBox, editableCombo, combo, new DateEdit,
                             new QPlainTextEdit, chooser,      new QLineEdit, ok};
        for (int i = 0; i < 9; ++i) {
            fields[i]->setObjectName(names[i]);
            form->addRow(fields[i]);
        }
    }
};

CompanyEntry Entry(const QString& file, const QString& name, const QString& taxNo = {})
{
    return {"/companies/" + file, name, {}, "Budapest", {}, taxNo};
}

// The widget that owns the focus, counting a spin box's or combo box's inner line edit as it.
QWidget* FocusedField()
{
    QWidget* w = QApplication::focusWidget();
    if (w && (qobject_cast<QAbstractSpinBox*>(w->parentWidget()) ||
              qobject_cast<QComboBox*>(w->parentWidget())))
        return w->parentWidget();
    return w;
}

} // namespace

class TestShellWidgets : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void enter_data();
    void enter();
    void enterConfirmsStandardDialogs();
    void dateTyping_data();
    void dateTyping();
    void dateSetAndSignal();
    void companyModel();
    void chooserAddsCompany();
    void checkItemsReportsTicks();
    void sqlErrorRetryOrCancel_data();
    void sqlErrorRetryOrCancel();
    void copiesQuestion_data();
    void copiesQuestion();

private:
    template <class T = QWidget> T* field(const QString& name) const
    {
        return m_dialog->findChild<T*>(name);
    }

    std::unique_ptr<EditDialog> m_dialog;
};

void TestShellWidgets::init()
{
    EnterLikeTab::setEnabled(true);
    m_dialog = std::make_unique<EditDialog>();
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
}

void TestShellWidgets::cleanup()
{
    m_dialog.reset();
    EnterLikeTab::setEnabled(false);
}

void TestShellWidgets::enter_data()
{
    QTest::addColumn<bool>("ruleOn");
    QTest::addColumn<QString>("from");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("to"); // empty: the dialog was accepted
    const int enter = Qt::Key_Return;
    AddRow("line edit", true, "line", enter, "spin");
    AddRow("keypad enter", true, "line", int(Qt::Key_Enter), "spin");
    AddRow("spin box", true, "spin", enter, "editable combo");
    AddRow("editable combo", true, "editable combo", enter, "combo");
    AddRow("combo", true, "combo", enter, "date");
    AddRow("date field", true, "date", enter, "notes");
    // A multi-line field takes Enter as a line break; on a button Enter presses it.
    AddRow("multi-line field", true, "notes", enter, "notes");
    AddRow("button beside a field", true, "chooser", enter, "last");
    AddRow("default button", true, "ok", enter, "");
    AddRow("rule switched off", false, "line", enter, "");
}

void TestShellWidgets::enter()
{
    QFETCH(bool, ruleOn);
    QFETCH(QString, from);
    QFETCH(int, key);
    QFETCH(QString, to);
    EnterLikeTab::setEnabled(ruleOn);
    field(from)->setFocus();
    QCOMPARE(FocusedField(), field(from));
    const auto modifiers = key == Qt::Key_Enter ? Qt::KeypadModifier : Qt::NoModifier;
    QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), modifiers);
    QCOMPARE(m_dialog->isVisible(), !to.isEmpty());
    QCOMPARE(m_dialog->result(), to.isEmpty() ? int(QDialog::Accepted) : int(QDialog::Rejected));
    if (!to.isEmpty())
        QCOMPARE(FocusedField(), field(to));
    QCOMPARE(field<QPlainTextEdit>("notes")->toPlainText(), from == "notes" ? "\n" : "");
}

void TestShellWidgets::enterConfirmsStandardDialogs()
{
    QInputDialog dialog;
    dialog.setLabelText("Name");
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    auto* field = dialog.findChild<QLineEdit*>();
    QVERIFY(field);
    field->setFocus();
    QTest::keyClicks(field, "x");
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(dialog.textValue(), "x");
}

void TestShellWidgets::dateTyping_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QDate>("date");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<bool>("valid");
    AddRow("short parts", "2024.3.5", QDate(2024, 3, 5), "2024.03.05.", true);
    AddRow("iso form", "2024-12-31", QDate(2024, 12, 31), "2024.12.31.", true);
    AddRow("leap day", "2024.02.29.", QDate(2024, 2, 29), "2024.02.29.", true);
    AddRow("no such day", "2023.02.29.", QDate(), "2023.02.29.", false);
    AddRow("letters are refused", "2024.marc", QDate(), "2024.", false);
    AddRow("double dot refused", "2024..5", QDate(), "2024.5", false);
    AddRow("empty", "", QDate(), "", true);
}

void TestShellWidgets::dateTyping()
{
    QFETCH(QString, typed);
    QFETCH(QDate, date);
    QFETCH(QString, shown);
    QFETCH(bool, valid);
    auto* edit = field<DateEdit>("date");
    edit->setFocus();
    QTest::keyClicks(edit, typed);
    field("last")->setFocus();
    QCOMPARE(edit->date(), date);
    QCOMPARE(edit->text(), shown);
    QCOMPARE(edit->isValidInput(), valid);
}

void TestShellWidgets::dateSetAndSignal()
{
    DateEdit edit;
    QSignalSpy changed(&edit, &DateEdit::dateChanged);
    edit.setDate(QDate(2024, 3, 5));
    QCOMPARE(edit.text(), "2024.03.05.");
    QCOMPARE(edit.property("date").toDate(), QDate(2024, 3, 5));
    edit.setDate(QDate(2024, 3, 5));
    QCOMPARE(changed.size(), 1);
    edit.setDate(QDate());
    QVERIFY(edit.text().isEmpty());
    QCOMPARE(changed.size(), 2);
    QCOMPARE(changed.last().first().toDate(), QDate());
}

void TestShellWidgets::companyModel()
{
    CompanyListModel model({Entry("a.db", "A Kft.")});
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.append(Entry("b.db", "B Bt.", "2"));
    QCOMPARE(model.rowCount(), 2);
    QCOMPARE(model.index(1, CompanyListModel::TaxNo).data(), "2");
    QCOMPARE(model.index(1, 0).data(CompanyListModel::PathRole), "/companies/b.db");
}

void TestShellWidgets::chooserAddsCompany()
{
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    DatabaseSelectDlg dlg({Entry("a.db", "A Kft.")}, dir.path());
    ModalDriver driver({[](QWidget* form) {
        Child<QLineEdit>(form, "m_name")->setText("Új Cég Kft.");
        Child<QLineEdit>(form, "m_tax_no")->setText("33333333-2-43");
        static_cast<QDialog*>(form)->accept();
    }});
    Child<QPushButton>(&dlg, "m_new")->click();
    QVERIFY(driver.done());
    QCOMPARE(dlg.selectedPath(), dir.filePath("uj_ceg_kft.db"));
    QCOMPARE(ReadCompanyEntry(dlg.selectedPath()).taxNo, "33333333-2-43");
}

void TestShellWidgets::checkItemsReportsTicks()
{
    CheckItemsDlg dlg("Select Payment Methods To Set Unpaid", "Payment Method", "Set To Unpaid",
                      {"Csekk", "Készpénz", "Átutalás"});
    auto* list = Child<QTableWidget>(&dlg, "m_list");
    QCOMPARE(dlg.checked(), QList<bool>({false, false, false}));
    list->item(2, 1)->setCheckState(Qt::Checked);
    QCOMPARE(dlg.checked(), QList<bool>({false, false, true}));
}

void TestShellWidgets::sqlErrorRetryOrCancel_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("retry");
    AddRow("retry", "m_retry", true);
    AddRow("cancel", "m_cancel", false);
}

void TestShellWidgets::sqlErrorRetryOrCancel()
{
    QFETCH(QString, button);
    QFETCH(bool, retry);
    QString statement;
    ModalDriver driver({[&](QWidget* dlg) {
        statement = Child<QPlainTextEdit>(dlg, "m_statement")->toPlainText();
        Child<QPushButton>(dlg, qPrintable(button))->click();
    }});
    QCOMPARE(SqlErrorDlg::askRetry("no such index: X", "drop index X", nullptr), retry);
    QCOMPARE(statement, "drop index X");
}

void TestShellWidgets::copiesQuestion_data()
{
    QTest::addColumn<int>("proposed");
    QTest::addColumn<QString>("typed"); // empty: the proposal is taken as it is
    QTest::addColumn<bool>("ok");
    QTest::addColumn<int>("answer"); // -1: nothing, the printing is not started
    AddRow("proposal taken", 2, QString(), true, 2);
    AddRow("typed over", 2, QString("5"), true, 5);
    AddRow("cancelled", 2, QString("5"), false, -1);
}

void TestShellWidgets::copiesQuestion()
{
    QFETCH(int, proposed);
    QFETCH(QString, typed);
    QFETCH(bool, ok);
    QFETCH(int, answer);
    GuiInteraction gui;
    QString title;
    int shown = 0;
    ModalDriver driver({[&](QWidget* dlg) {
        title = dlg->windowTitle();
        auto* number = Child<QSpinBox>(dlg, "m_number");
        shown = number->value();
        if (!typed.isEmpty()) {
            number->selectAll();
            QTest::keyClicks(number, typed);
        }
        if (ok)
            static_cast<QDialog*>(dlg)->accept();
        else
            static_cast<QDialog*>(dlg)->reject();
    }});
    QCOMPARE(gui.askNumber("Invoice copies to print", proposed).value_or(-1), answer);
    QVERIFY(driver.done());
    QCOMPARE(title, "Invoice copies to print");
    QCOMPARE(shown, proposed);
}

QTEST_MAIN(TestShellWidgets)
#include "tst_shellwidgets.moc"
