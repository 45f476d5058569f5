// Drives the modal windows a command opens, the way a person would: each step gets the next
// window that comes up (a dialog, a message box, a file dialog, or the same list again once the
// window it opened has closed). A step must not block: what opens another modal window is
// queued with Later().
#pragma once

#include <QElapsedTimer>
#include <QMessageBox>
#include <QPointer>
#include <QStringList>
#include <QTimer>

#include <functional>

class ModalDriver : public QObject
{
public:
    using Step = std::function<void(QWidget*)>;
    explicit ModalDriver(QList<Step> steps);
    bool done() const { return m_steps.isEmpty(); }

private:
    void poll();

    QList<Step> m_steps;
    QPointer<QWidget> m_last;
    QTimer m_timer;
    QElapsedTimer m_clock;
};

// Runs work once control is back in the event loop.
void Later(std::function<void()> work);

// Records a message box's text ("&" for its line breaks) and closes it with the given button.
ModalDriver::Step Answer(QStringList* texts, QMessageBox::StandardButton button = QMessageBox::Ok);

// Types path into the open file dialog's name field, as the user would, and confirms.
ModalDriver::Step ChooseFile(const QString& path);

// The named child of parent; the test fails (and the program stops) without it.
template <class T> T* Child(QObject* parent, const char* name)
{
    T* child = parent->findChild<T*>(QString::fromLatin1(name));
    if (!child)
        qFatal("no child %s", name);
    return child;
}
