// The seam through which core logic asks a person something. The GUI answers with dialogs,
// the command line and the tests with scripted or non-interactive answers.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

// A long operation's progress window with a cancel button.
class Progress
{
public:
    virtual ~Progress() = default;
    virtual void setText(const QString& text) = 0;
    // A total of 0 shows a busy indicator.
    virtual void setTotal(int total) = 0;
    virtual void setPos(int pos) = 0;
    virtual bool canceled() = 0;
};

class Interaction
{
public:
    enum class MessageKind { Info, Exclamation, Error };
    enum class Choice { First, Second, Third };

    virtual ~Interaction() = default;

    // Message texts are the system's: "&" is a line break, QTF formatting is allowed.
    virtual void message(MessageKind kind, const QString& text) = 0;
    virtual bool askYesNo(const QString& text) = 0;
    // Three-way choice with the given button captions.
    virtual Choice choose3(const QString& text, const QString& first, const QString& second,
                           const QString& third) = 0;
    // A failed statement (SQL error dialog): true to retry it.
    virtual bool sqlError(const QString& error, const QString& statement) = 0;
    // A list of items each with a check box; the chosen states, or nothing when cancelled.
    virtual std::optional<QList<bool>> checkItems(const QString& title, const QString& itemCaption,
                                                  const QString& checkCaption,
                                                  const QStringList& items) = 0;
    virtual std::unique_ptr<Progress> progress(const QString& text) = 0;
    // A whole number with its proposed value (the copies to print); nothing when cancelled.
    // Without a person to ask, the proposal stands.
    virtual std::optional<int> askNumber(const QString& /*title*/, int value) { return value; }

    void info(const QString& text) { message(MessageKind::Info, text); }
    void exclamation(const QString& text) { message(MessageKind::Exclamation, text); }
    void error(const QString& text) { message(MessageKind::Error, text); }
};

// Answers nothing and shows nothing: for work that must not stop to ask.
class SilentProgress : public Progress
{
public:
    void setText(const QString&) override {}
    void setTotal(int) override {}
    void setPos(int) override {}
    bool canceled() override { return false; }
};
