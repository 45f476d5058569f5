#include "CliInteraction.h"

#include "documents/MessageText.h"

void CliInteraction::message(MessageKind, const QString& text)
{
    m_err << MessagePlainText(text) << Qt::endl;
}

bool CliInteraction::askYesNo(const QString& text)
{
    m_err << MessagePlainText(text) << (yesAnswer ? " -> yes" : " -> no") << Qt::endl;
    return yesAnswer;
}

Interaction::Choice CliInteraction::choose3(const QString& text, const QString&, const QString&,
                                            const QString& third)
{
    m_err << MessagePlainText(text) << " -> " << third << Qt::endl;
    return Choice::Third;
}

bool CliInteraction::sqlError(const QString& error, const QString& statement)
{
    m_err << "SQL error:\n" << error << "\nError statement:\n" << statement << Qt::endl;
    return false;
}

std::optional<QList<bool>> CliInteraction::checkItems(const QString&, const QString&,
                                                      const QString&, const QStringList& items)
{
    QList<bool> states;
    for (const QString& item : items)
        states << checkedItems.contains(item);
    return states;
}

std::unique_ptr<Progress> CliInteraction::progress(const QString& text)
{
    m_err << MessagePlainText(text) << Qt::endl;
    return std::make_unique<SilentProgress>();
}
