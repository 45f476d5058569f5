#include "SetupPage.h"

#include "base/Setup.h"
#include "base/SqlStatement.h"
#include "base/SqlValue.h"
#include "masterdata/ui/FieldBinding.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>

void SetupPage::load(const Setup& setup)
{
    for (const auto& [column, field] : m_fields) {
        const QVariant v = setup.value(column);
        if (auto* mm = qobject_cast<QDoubleSpinBox*>(field))
            mm->setValue(ToNumber(v, mm->minimum()));
        else
            SetFieldValue(field, v);
    }
}

void SetupPage::store(SetupChanges& changes) const
{
    for (const auto& [column, field] : m_fields) {
        if (auto* mm = qobject_cast<const QDoubleSpinBox*>(field))
            changes.values.insert(ColumnName(column), mm->value());
        else
            changes.values.insert(QString::fromLatin1(column), FieldValue(field));
    }
}

void SetupPage::bind(const char* column, QWidget* field)
{
    field->setObjectName(FieldName(column));
    m_fields.append({column, field});
}

QLineEdit* SetupPage::addText(QFormLayout* form, const char* column, const QString& caption,
                              const QString& tip)
{
    auto* edit = new QLineEdit(this);
    edit->setToolTip(tip);
    bind(column, edit);
    form->addRow(caption, edit);
    return edit;
}

QCheckBox* SetupPage::addCheck(QFormLayout* form, const char* column, const QString& caption)
{
    auto* check = new QCheckBox(caption, this);
    bind(column, check);
    form->addRow(check);
    return check;
}

QSpinBox* SetupPage::addNumber(QFormLayout* form, const char* column, const QString& caption,
                               int min, int max)
{
    auto* spin = new QSpinBox(this);
    spin->setRange(min, max);
    // A number needs no more room than its digits.
    spin->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    spin->setMinimumWidth(110);
    bind(column, spin);
    form->addRow(caption, spin);
    return spin;
}

QDoubleSpinBox* SetupPage::addMillimetres(QFormLayout* form, const char* column,
                                          const QString& caption)
{
    auto* spin = new QDoubleSpinBox(this);
    spin->setRange(0, 300);
    spin->setDecimals(1);
    spin->setSuffix(QStringLiteral(" mm"));
    spin->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    spin->setMinimumWidth(110);
    bind(column, spin);
    form->addRow(caption, spin);
    return spin;
}

QComboBox* SetupPage::addCombo(QFormLayout* form, const char* column, const QString& caption)
{
    auto* combo = new QComboBox(this);
    bind(column, combo);
    form->addRow(caption, combo);
    return combo;
}
