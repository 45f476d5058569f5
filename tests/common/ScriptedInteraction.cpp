#include "ScriptedInteraction.h"

class ScriptedProgress : public Progress
{
public:
    explicit ScriptedProgress(ScriptedInteraction& owner) : m_owner(owner) {}
    void setText(const QString& text) override { m_owner.progressTexts << text; }
    void setTotal(int) override {}
    void setPos(int) override {}
    bool canceled() override
    {
        if (m_owner.cancelAfterChecks < 0)
            return false;
        return ++m_owner.m_cancelChecks > m_owner.cancelAfterChecks;
    }

private:
    ScriptedInteraction& m_owner;
};

bool ScriptedInteraction::askYesNo(const QString& text)
{
    questions << text;
    return yesNoAnswers.isEmpty() ? false : yesNoAnswers.dequeue();
}

Interaction::Choice ScriptedInteraction::choose3(const QString& text, const QString&,
                                                 const QString&, const QString&)
{
    questions << text;
    return choiceAnswers.isEmpty() ? Choice::Third : choiceAnswers.dequeue();
}

bool ScriptedInteraction::sqlError(const QString& error, const QString& statement)
{
    sqlErrors << error + QLatin1String(" | ") + statement;
    return false;
}

std::optional<QList<bool>> ScriptedInteraction::checkItems(const QString&, const QString&,
                                                           const QString&, const QStringList& items)
{
    checkLists << items;
    if (checkAnswers.isEmpty())
        return std::nullopt;
    return checkAnswers.dequeue();
}

std::unique_ptr<Progress> ScriptedInteraction::progress(const QString& text)
{
    progressTexts << text;
    return std::make_unique<ScriptedProgress>(*this);
}
