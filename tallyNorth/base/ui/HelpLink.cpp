#include "HelpLink.h"

#include <QAbstractButton>
#include <QDialogButtonBox>

namespace {

HelpOpener& Opener()
{
    static HelpOpener opener;
    return opener;
}

} // namespace

void SetHelpOpener(HelpOpener opener)
{
    Opener() = std::move(opener);
}

void OpenHelp(QWidget* parent, const QString& topic)
{
    if (Opener())
        Opener()(parent, topic);
}

void LinkHelp(QAbstractButton* button, const QString& topic)
{
    if (!button)
        return;
    button->setEnabled(true);
    QObject::connect(button, &QAbstractButton::clicked, button,
                     [button, topic] { OpenHelp(button->window(), topic); });
}

void LinkHelp(QDialogButtonBox* buttons, const QString& topic)
{
    if (!buttons)
        return;
    QObject::connect(buttons, &QDialogButtonBox::helpRequested, buttons,
                     [buttons, topic] { OpenHelp(buttons->window(), topic); });
}
