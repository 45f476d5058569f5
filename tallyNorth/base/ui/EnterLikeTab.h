// SETUP_ENTER_LIKE_TAB for the whole program: while it is on, Enter in an input field of an edit
// dialog moves to the next field as Tab does. Buttons, multi-line texts, lists and Qt's own
// standard dialogs keep their Enter.
#pragma once

#include <QObject>

class QWidget;

class EnterLikeTab : public QObject
{
    Q_OBJECT
public:
    // Switches the rule on or off; the filter is installed on the application when first needed.
    static void setEnabled(bool enabled);
    static bool isEnabled();

    // A button beside a field ("Languages..."): Enter moves on from it like from the field,
    // instead of falling through to the dialog's default button.
    static constexpr char kFieldButton[] = "tnFieldButton";
    static void markFieldButton(QWidget* button);

    // True when Enter in widget moves to the next field (the rule being on).
    static bool movesOn(const QWidget* widget);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using QObject::QObject;
    static EnterLikeTab* instance(bool create);

    bool m_enabled = false;
};
