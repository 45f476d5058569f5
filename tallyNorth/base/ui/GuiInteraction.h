// The Interaction for people: message boxes, questions and progress windows.
#pragma once

#include "base/Interaction.h"

#include <QList>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <memory>

class GuiInteraction : public Interaction
{
public:
    explicit GuiInteraction(QWidget* parent = nullptr) : m_parent(parent) {}

    void message(MessageKind kind, const QString& text) override;
    bool askYesNo(const QString& text) override;
    Choice choose3(const QString& text, const QString& first, const QString& second,
                   const QString& third) override;
    bool sqlError(const QString& error, const QString& statement) override;
    std::optional<QList<bool>> checkItems(const QString& title, const QString& itemCaption,
                                          const QString& checkCaption,
                                          const QStringList& items) override;
    std::unique_ptr<Progress> progress(const QString& text) override;
    std::optional<int> askNumber(const QString& title, int value) override;

    // The shell installs these at start-up: message texts are formatted by the documents layer
    // and the SQL error window belongs to the shell, both above this folder. Without them a
    // message is shown as plain text and a failed statement is not retried.
    using MessageFormatter = std::function<QString(const QString&)>;
    using SqlErrorDialog = std::function<bool(const QString&, const QString&, QWidget*)>;
    static void setMessageFormatter(MessageFormatter formatter);
    static void setSqlErrorDialog(SqlErrorDialog dialog);
    // The message as a message box shows it.
    static QString formatMessage(const QString& text);

    // The window a message, question or dialog is shown over: the newest progress window while
    // one is open (a modal progress window would otherwise cover it and take its clicks).
    QWidget* topWindow() const;

private:
    friend class DialogProgress;

    QWidget* m_parent;
    QList<QPointer<QWidget>> m_progressWindows;
};

// The Interaction of a window: one set by its caller (a test, a command), else message boxes
// over the window itself, made when first needed.
class WindowInteraction
{
public:
    explicit WindowInteraction(QWidget* window) : m_window(window) {}
    void set(Interaction* interaction) { m_set = interaction; }
    Interaction& get()
    {
        if (m_set)
            return *m_set;
        if (!m_own)
            m_own = std::make_unique<GuiInteraction>(m_window);
        return *m_own;
    }

private:
    QWidget* m_window;
    Interaction* m_set = nullptr;
    std::unique_ptr<GuiInteraction> m_own;
};
