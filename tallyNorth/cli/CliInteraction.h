// The command line's Interaction: never waits for a person. Messages go to standard error,
// questions take their default answers, lists are left unchecked unless preset.
#pragma once

#include "base/Interaction.h"

#include <QTextStream>

class CliInteraction : public Interaction
{
public:
    explicit CliInteraction(QTextStream& err) : m_err(err) {}

    void message(MessageKind kind, const QString& text) override;
    bool askYesNo(const QString& text) override;
    Choice choose3(const QString& text, const QString& first, const QString& second,
                   const QString& third) override;
    bool sqlError(const QString& error, const QString& statement) override;
    std::optional<QList<bool>> checkItems(const QString& title, const QString& itemCaption,
                                          const QString& checkCaption,
                                          const QStringList& items) override;
    std::unique_ptr<Progress> progress(const QString& text) override;

    // Items of checkItems() that are to be checked (matched by their text).
    QStringList checkedItems;
    // The answer to yes/no questions.
    bool yesAnswer = false;

private:
    QTextStream& m_err;
};
