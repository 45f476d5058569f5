// The program-wide input helpers: Enter as Tab in edit dialogs, and the date field.
#include "app/ui/DateEdit.h"
#include "app/ui/EnterLikeTab.h"

#include <QComboBox>
#include <QDialog>
#include <QFormLayout>
#include <QInputDialog>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QtTest>

namespace {

// An edit dialog with one field of each kind, in tab order, and a default OK button.
class EditDialog : public QDialog
{
public:
    EditDialog()
    {
        auto* form = new QFormLayout(this);
        line = new QLineEdit;
        spin = new QSpinBox;
        editableCombo = new QComboBox;
        editableCombo->setEditable(true);
        combo = new QComboBox;
        combo->addItems({QStringLiteral("a"), QStringLiteral("b")});
        date = new DateEdit;
        notes = new QPlainTextEdit;
        last = new QLineEdit;
        ok = new QPushButton(QStringLiteral("OK"));
        ok->setDefault(true);
        connect(ok, &QPushButton::clicked, this, &QDialog::accept);
        for (QWidget* w : {static_cast<QWidget*>(line), static_cast<QWidget*>(spin),
                           static_cast<QWidget*>(editableCombo), static_cast<QWidget*>(combo),
                           static_cast<QWidget*>(date), static_cast<QWidget*>(notes),
                           static_cast<QWidget*>(last), static_cast<QWidget*>(ok)})
            form->addRow(w);
    }
    QLineEdit* line;
    QSpinBox* spin;
    QComboBox* editableCombo;
    QComboBox* combo;
    DateEdit* date;
    QPlainTextEdit* notes;
    QLineEdit* last;
    QPushButton* ok;
};

QWidget* FieldOf(EditDialog& d, const QString& name)
{
    if (name == QLatin1String("line"))
        return d.line;
    if (name == QLatin1String("spin"))
        return d.spin;
    if (name == QLatin1String("editable combo"))
        return d.editableCombo;
    if (name == QLatin1String("combo"))
        return d.combo;
    if (name == QLatin1String("date"))
        return d.date;
    if (name == QLatin1String("notes"))
        return d.notes;
    return d.last;
}

// The widget that owns the focus, counting a spin box's or combo box's inner line edit as it.
QWidget* FocusedField()
{
    QWidget* w = QApplication::focusWidget();
    if (w && w->parentWidget() &&
        (qobject_cast<QAbstractSpinBox*>(w->parentWidget()) ||
         qobject_cast<QComboBox*>(w->parentWidget())))
        return w->parentWidget();
    return w;
}

} // namespace

class TestShellWidgets : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cleanup() { EnterLikeTab::setEnabled(false); }
    void enterMovesToNextField_data();
    void enterMovesToNextField();
    void enterKeepsItsMeaningElsewhere();
    void enterConfirmsWhenSwitchedOff();
    void enterConfirmsStandardDialogs();
    void dateTyping_data();
    void dateTyping();
    void dateSetAndSignal();
};

void TestShellWidgets::enterMovesToNextField_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("to");
    const int enter = Qt::Key_Return;
    QTest::newRow("line edit") << QStringLiteral("line") << enter << QStringLiteral("spin");
    QTest::newRow("keypad enter") << QStringLiteral("line") << int(Qt::Key_Enter)
                                  << QStringLiteral("spin");
    QTest::newRow("spin box") << QStringLiteral("spin") << enter
                              << QStringLiteral("editable combo");
    QTest::newRow("editable combo")
        << QStringLiteral("editable combo") << enter << QStringLiteral("combo");
    QTest::newRow("combo") << QStringLiteral("combo") << enter << QStringLiteral("date");
    QTest::newRow("date field") << QStringLiteral("date") << enter << QStringLiteral("notes");
}

void TestShellWidgets::enterMovesToNextField()
{
    QFETCH(QString, from);
    QFETCH(int, key);
    QFETCH(QString, to);
    EnterLikeTab::setEnabled(true);
    EditDialog dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    FieldOf(dialog, from)->setFocus();
    QCOMPARE(FocusedField(), FieldOf(dialog, from));
    const Qt::KeyboardModifiers modifiers =
        key == Qt::Key_Enter ? Qt::KeypadModifier : Qt::NoModifier;
    QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), modifiers);
    QCOMPARE(FocusedField(), FieldOf(dialog, to));
    QVERIFY(dialog.isVisible());
}

void TestShellWidgets::enterKeepsItsMeaningElsewhere()
{
    EnterLikeTab::setEnabled(true);
    EditDialog dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));

    // A multi-line field takes Enter as a line break.
    dialog.notes->setFocus();
    QTest::keyClicks(dialog.notes, QStringLiteral("a"));
    QTest::keyClick(dialog.notes, Qt::Key_Return);
    QTest::keyClicks(dialog.notes, QStringLiteral("b"));
    QCOMPARE(dialog.notes->toPlainText(), QStringLiteral("a\nb"));
    QCOMPARE(FocusedField(), dialog.notes);

    // On a button Enter presses it.
    dialog.ok->setFocus();
    QTest::keyClick(dialog.ok, Qt::Key_Return);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

void TestShellWidgets::enterConfirmsWhenSwitchedOff()
{
    EnterLikeTab::setEnabled(true);
    EnterLikeTab::setEnabled(false);
    EditDialog dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    dialog.line->setFocus();
    QTest::keyClick(dialog.line, Qt::Key_Return);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

void TestShellWidgets::enterConfirmsStandardDialogs()
{
    EnterLikeTab::setEnabled(true);
    QInputDialog dialog;
    dialog.setLabelText(QStringLiteral("Name"));
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    auto* field = dialog.findChild<QLineEdit*>();
    QVERIFY(field);
    field->setFocus();
    QTest::keyClicks(field, QStringLiteral("x"));
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(dialog.textValue(), QStringLiteral("x"));
}

void TestShellWidgets::dateTyping_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QDate>("date");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<bool>("valid");
    QTest::newRow("display form") << QStringLiteral("2024.03.05.") << QDate(2024, 3, 5)
                                  << QStringLiteral("2024.03.05.") << true;
    QTest::newRow("short parts") << QStringLiteral("2024.3.5") << QDate(2024, 3, 5)
                                 << QStringLiteral("2024.03.05.") << true;
    QTest::newRow("iso form") << QStringLiteral("2024-12-31") << QDate(2024, 12, 31)
                              << QStringLiteral("2024.12.31.") << true;
    QTest::newRow("leap day") << QStringLiteral("2024.02.29.") << QDate(2024, 2, 29)
                              << QStringLiteral("2024.02.29.") << true;
    QTest::newRow("no such day") << QStringLiteral("2023.02.29.") << QDate()
                                 << QStringLiteral("2023.02.29.") << false;
    QTest::newRow("letters are refused")
        << QStringLiteral("2024.marc") << QDate() << QStringLiteral("2024.") << false;
    QTest::newRow("double dot refused")
        << QStringLiteral("2024..5") << QDate() << QStringLiteral("2024.5") << false;
    QTest::newRow("empty") << QString() << QDate() << QString() << true;
}

void TestShellWidgets::dateTyping()
{
    QFETCH(QString, typed);
    QFETCH(QDate, date);
    QFETCH(QString, shown);
    QFETCH(bool, valid);
    QDialog dialog;
    auto* edit = new DateEdit(&dialog);
    auto* other = new QLineEdit(&dialog);
    auto* layout = new QFormLayout(&dialog);
    layout->addRow(edit);
    layout->addRow(other);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    edit->setFocus();
    QTest::keyClicks(edit, typed);
    other->setFocus();
    QCOMPARE(edit->date(), date);
    QCOMPARE(edit->text(), shown);
    QCOMPARE(edit->isValidInput(), valid);
}

void TestShellWidgets::dateSetAndSignal()
{
    DateEdit edit;
    QSignalSpy changed(&edit, &DateEdit::dateChanged);
    edit.setDate(QDate(2024, 3, 5));
    QCOMPARE(edit.text(), QStringLiteral("2024.03.05."));
    QCOMPARE(edit.property("date").toDate(), QDate(2024, 3, 5));
    edit.setDate(QDate(2024, 3, 5));
    QCOMPARE(changed.size(), 1);
    edit.setDate(QDate());
    QVERIFY(edit.text().isEmpty());
    QCOMPARE(changed.size(), 2);
    QCOMPARE(changed.last().first().toDate(), QDate());
}

QTEST_MAIN(TestShellWidgets)
#include "tst_shellwidgets.moc"
