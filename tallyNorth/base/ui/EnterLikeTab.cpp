#include "EnterLikeTab.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QColorDialog>
#include <QComboBox>
#include <QDialog>
#include <QFileDialog>
#include <QFontDialog>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QProgressDialog>
#include <QPushButton>

namespace {

// A button beside a field ("Languages..."): Enter on it must go on to the next field, not fall
// through to the dialog's default button and close the dialog half filled in.
bool IsFieldButton(const QWidget* widget)
{
    return qobject_cast<const QPushButton*>(widget) &&
           widget->property(EnterLikeTab::kFieldButton).toBool();
}

bool IsInputField(const QWidget* widget)
{
    return qobject_cast<const QLineEdit*>(widget) ||
           qobject_cast<const QAbstractSpinBox*>(widget) || qobject_cast<const QComboBox*>(widget);
}

// Qt's standard dialogs: Enter there confirms, as the user expects.
bool IsStandardDialog(const QWidget* window)
{
    return qobject_cast<const QFileDialog*>(window) || qobject_cast<const QMessageBox*>(window) ||
           qobject_cast<const QInputDialog*>(window) ||
           qobject_cast<const QProgressDialog*>(window) ||
           qobject_cast<const QColorDialog*>(window) || qobject_cast<const QFontDialog*>(window);
}

bool IsPlainEnter(const QKeyEvent* key)
{
    if (key->key() != Qt::Key_Return && key->key() != Qt::Key_Enter)
        return false;
    return (key->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

} // namespace

EnterLikeTab* EnterLikeTab::instance(bool create)
{
    static QPointer<EnterLikeTab> filter;
    if (!filter && create && qApp) {
        filter = new EnterLikeTab(qApp);
        qApp->installEventFilter(filter);
    }
    return filter;
}

void EnterLikeTab::markFieldButton(QWidget* button)
{
    button->setProperty(kFieldButton, true);
}

void EnterLikeTab::setEnabled(bool enabled)
{
    if (EnterLikeTab* filter = instance(enabled))
        filter->m_enabled = enabled;
}

bool EnterLikeTab::isEnabled()
{
    const EnterLikeTab* filter = instance(false);
    return filter && filter->m_enabled;
}

bool EnterLikeTab::movesOn(const QWidget* widget)
{
    if (!isEnabled() || !widget)
        return false;
    // The line edit inside a spin box or an editable combo box counts as its owner.
    const QWidget* field = widget;
    if (qobject_cast<const QLineEdit*>(field) && field->parentWidget() &&
        IsInputField(field->parentWidget()))
        field = field->parentWidget();
    if (!IsInputField(field) && !IsFieldButton(field))
        return false;
    const auto* combo = qobject_cast<const QComboBox*>(field);
    if (combo && combo->view() && combo->view()->isVisible())
        return false;
    const QWidget* window = field->window();
    return qobject_cast<const QDialog*>(window) && !IsStandardDialog(window);
}

bool EnterLikeTab::eventFilter(QObject* watched, QEvent* event)
{
    if (!m_enabled || event->type() != QEvent::KeyPress)
        return false;
    auto* key = static_cast<QKeyEvent*>(event);
    auto* widget = qobject_cast<QWidget*>(watched);
    if (!IsPlainEnter(key) || !widget || !movesOn(widget))
        return false;
    QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &tab);
    return true;
}
