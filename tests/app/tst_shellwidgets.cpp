// The shell's widgets: Enter as Tab in edit dialogs, the date field, and the translations.
#include "TestData.h"

#include "base/ui/DateEdit.h"
#include "base/ui/EnterLikeTab.h"

#include <QComboBox>
#include <QDialog>
#include <QFormLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTranslator>
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
    void init()
    {
        EnterLikeTab::setEnabled(true);
        m_dialog = std::make_unique<EditDialog>();
        m_dialog->show();
        QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
    }

    void cleanup()
    {
        m_dialog.reset();
        EnterLikeTab::setEnabled(false);
    }

    void enter_data()
    {
        // to: empty: the dialog was accepted
        AddColumns<bool, QString, int, QString>({"ruleOn", "from", "key", "to"});
        const int enter = Qt::Key_Return;
        AddRow("line edit", true, "line", enter, "spin");
        AddRow("keypad enter", true, "line", int(Qt::Key_Enter), "spin");
        AddRow("editable combo", true, "editable combo", enter, "combo");
        AddRow("combo", true, "combo", enter, "date");
        // A multi-line field takes Enter as a line break; on a button Enter presses it.
        AddRow("multi-line field", true, "notes", enter, "notes");
        AddRow("button beside a field", true, "chooser", enter, "last");
        AddRow("default button", true, "ok", enter, "");
        AddRow("rule switched off", false, "line", enter, "");
    }

    void enter()
    {
        auto [ruleOn, from, key, to] =
            Fetch<bool, QString, int, QString>({"ruleOn", "from", "key", "to"});
        EnterLikeTab::setEnabled(ruleOn);
        field(from)->setFocus();
        QCOMPARE(FocusedField(), field(from));
        const auto modifiers = key == Qt::Key_Enter ? Qt::KeypadModifier : Qt::NoModifier;
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), modifiers);
        QCOMPARE(m_dialog->isVisible(), !to.isEmpty());
        QCOMPARE(m_dialog->result(),
                 to.isEmpty() ? int(QDialog::Accepted) : int(QDialog::Rejected));
        if (!to.isEmpty())
            QCOMPARE(FocusedField(), field(to));
        QCOMPARE(field<QPlainTextEdit>("notes")->toPlainText(), from == "notes" ? "\n" : "");
    }

    void dateTyping_data()
    {
        AddColumns<QString, QDate, QString, bool>({"typed", "date", "shown", "valid"});
        AddRow("short parts", "2024.3.5", QDate(2024, 3, 5), "2024.03.05.", true);
        AddRow("iso form", "2024-12-31", QDate(2024, 12, 31), "2024.12.31.", true);
        AddRow("no such day", "2023.02.29.", QDate(), "2023.02.29.", false);
        AddRow("letters are refused", "2024.marc", QDate(), "2024.", false);
        AddRow("empty", "", QDate(), "", true);
    }

    void dateTyping()
    {
        auto [typed, date, shown, valid] =
            Fetch<QString, QDate, QString, bool>({"typed", "date", "shown", "valid"});
        auto* edit = field<DateEdit>("date");
        edit->setFocus();
        QTest::keyClicks(edit, typed);
        field("last")->setFocus();
        QCOMPARE(edit->date(), date);
        QCOMPARE(edit->text(), shown);
        QCOMPARE(edit->isValidInput(), valid);
    }

    // Source texts written in Hungarian without accents read properly in both languages, and the
    // counts of the "used by" messages take their plural.
    void bothLanguagesReadProperly_data()
    {
        AddColumns<QString, QString, QString, int, QString>(
            {"language", "context", "source", "count", "expected"});
        AddRow("hu menu", "hu", "MainWindow", "&Szamlak importalasa fajlbol", -1,
               "&Számlák importálása fájlból");
        AddRow("en menu", "en", "MainWindow", "&Szamlak importalasa fajlbol", -1,
               "&Import invoices from file");
        AddRow("en dialog", "en", "PartnerEditLayout", "Levelezesi cim", -1, "Mailing Address");
        AddRow("en order list", "en", "OrderList", "Egyeb muveletek", -1, "Other Operations");
        AddRow("en plural", "en", "VatTable", "This VAT key is used by %n product(s).", 3,
               "This VAT key is used by %n products.");
        AddRow("hu count", "hu", "VatTable", "This VAT key is used by %n product(s).", 3,
               "Ezt az ÁFA-kulcsot %n termék használja.");
    }

    void bothLanguagesReadProperly()
    {
        auto [language, context, source, count, expected] =
            Fetch<QString, QString, QString, int, QString>(
                {"language", "context", "source", "count", "expected"});
        QTranslator translator;
        QVERIFY(translator.load(":/i18n/tallyNorth_" + language + ".qm"));
        QCOMPARE(translator.translate(qPrintable(context), qPrintable(source), nullptr, count),
                 expected);
    }

private:
    template <class T = QWidget> T* field(const QString& name) const
    {
        return m_dialog->findChild<T*>(name);
    }

    std::unique_ptr<EditDialog> m_dialog;
};

QTEST_MAIN(TestShellWidgets)
#include "tst_shellwidgets.moc"
