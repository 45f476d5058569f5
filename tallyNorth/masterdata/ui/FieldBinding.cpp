#include "FieldBinding.h"

#include "NumberEdit.h"
#include "base/SqlValue.h"

#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTabWidget>

QString FieldName(const char* column)
{
    const QString name = QString::fromLatin1(column);
    return QStringLiteral("m_") + name.mid(name.indexOf(u'_') + 1).toLower();
}

QWidget* FindField(QWidget* form, const char* column)
{
    return form->findChild<QWidget*>(FieldName(column));
}

QVariant FieldValue(const QWidget* field)
{
    if (auto* number = qobject_cast<const NumberEdit*>(field))
        return number->variant();
    if (auto* line = qobject_cast<const QLineEdit*>(field))
        return line->text().trimmed();
    if (auto* text = qobject_cast<const QPlainTextEdit*>(field))
        return text->toPlainText();
    if (auto* check = qobject_cast<const QCheckBox*>(field))
        return FlagText(check->isChecked());
    if (auto* spin = qobject_cast<const QSpinBox*>(field))
        return spin->value();
    if (auto* combo = qobject_cast<const QComboBox*>(field))
        return combo->currentIndex() < 0 ? QVariant() : combo->currentData();
    return {};
}

void SetFieldValue(QWidget* field, const QVariant& value)
{
    if (auto* number = qobject_cast<NumberEdit*>(field))
        number->setValue(value);
    else if (auto* line = qobject_cast<QLineEdit*>(field))
        line->setText(value.toString());
    else if (auto* text = qobject_cast<QPlainTextEdit*>(field))
        text->setPlainText(value.toString());
    else if (auto* check = qobject_cast<QCheckBox*>(field))
        check->setChecked(IsFlagSet(value));
    else if (auto* spin = qobject_cast<QSpinBox*>(field))
        spin->setValue(static_cast<int>(ToInteger(value, spin->minimum())));
    else if (auto* combo = qobject_cast<QComboBox*>(field))
        SelectComboId(combo, value);
}

void SetFieldVisible(QWidget* field, bool visible)
{
    field->setVisible(visible);
    for (QLabel* label : field->window()->findChildren<QLabel*>()) {
        if (label->buddy() == field)
            label->setVisible(visible);
    }
}

void RevealField(QWidget* field)
{
    for (QWidget* w = field; w; w = w->parentWidget()) {
        auto* stack = qobject_cast<QStackedWidget*>(w->parentWidget());
        if (auto* tabs = stack ? qobject_cast<QTabWidget*>(stack->parentWidget()) : nullptr)
            tabs->setCurrentWidget(w);
    }
    field->setFocus(Qt::OtherFocusReason);
}

void SelectComboId(QComboBox* combo, const QVariant& id)
{
    const std::optional<qint64> wanted = RowId(id);
    int empty = -1;
    for (int i = 0; i < combo->count(); ++i) {
        const std::optional<qint64> item = RowId(combo->itemData(i));
        if (item == wanted) {
            combo->setCurrentIndex(i);
            return;
        }
        if (!item && empty < 0)
            empty = i;
    }
    // An id without a row (language 0, Hungarian, has none) shows as the empty item.
    combo->setCurrentIndex(empty);
}

Result FillCombo(QComboBox* combo, const TableStore& store, bool allowEmpty)
{
    const QVariant chosen = combo->currentIndex() < 0 ? QVariant() : combo->currentData();
    RecordPage page;
    const Result r = store.list(page);
    combo->clear();
    if (allowEmpty)
        combo->addItem(QString(), QVariant());
    const QString id = QString::fromLatin1(store.info().idColumn);
    const QString name = QString::fromLatin1(store.info().nameColumn);
    for (const Record& row : std::as_const(page.rows))
        combo->addItem(row.value(name).toString(), row.value(id));
    SelectComboId(combo, chosen);
    return r;
}
