// An Interaction for tests: records what would be shown and answers from queues.
#pragma once

#include "base/Interaction.h"

#include <QQueue>

class ScriptedInteraction : public Interaction
{
public:
    struct Shown
    {
        MessageKind kind;
        QString text;
    };

    void message(MessageKind kind, const QString& text) override { messages.append({kind, text}); }
    bool askYesNo(const QString& text) override;
    Choice choose3(const QString& text, const QString& first, const QString& second,
                   const QString& third) override;
    bool sqlError(const QString& error, const QString& statement) override;
    std::optional<QList<bool>> checkItems(const QString& title, const QString& itemCaption,
                                          const QString& checkCaption,
                                          const QStringList& items) override;
    std::unique_ptr<Progress> progress(const QString& text) override;

    // What was shown or asked, in order.
    QList<Shown> messages;
    QStringList questions;
    QStringList sqlErrors;
    QList<QStringList> checkLists;
    QStringList progressTexts;

    // Answers; an empty queue answers No, Third, no retry, "cancelled".
    QQueue<bool> yesNoAnswers;
    QQueue<Choice> choiceAnswers;
    QQueue<std::optional<QList<bool>>> checkAnswers;
    // The progress window reports cancel once this many canceled() calls have been made (-1:
    // never).
    int cancelAfterChecks = -1;

    QString lastMessage() const { return messages.isEmpty() ? QString() : messages.last().text; }

private:
    int m_cancelChecks = 0;
    friend class ScriptedProgress;
};
