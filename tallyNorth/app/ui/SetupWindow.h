// "Setup": the company's settings on tabs, with OK, "Cancel" and "Help". OK checks and saves them
// all at once (SaveSetup); the caller then applies them to the open windows.
#pragma once

#include <QDialog>

#include <functional>

class QTabWidget;
class SetupPage;

class SetupWindow : public QDialog
{
    Q_OBJECT
public:
    using PageFactory = std::function<SetupPage*(QWidget* parent)>;

    explicit SetupWindow(QWidget* parent = nullptr);

    // A further tab after the window's own ones (for example another subsystem's settings).
    static void addPage(PageFactory factory);

    // Reads the settings into the pages; false, with the message shown, when that fails.
    bool load();
    QList<SetupPage*> pages() const { return m_pages; }
    QTabWidget* tabs() const { return m_tabs; }

    void accept() override;

    // Opens the window; true when the settings were saved.
    static bool edit(QWidget* parent);

private:
    void showHelp();

    QTabWidget* m_tabs = nullptr;
    QList<SetupPage*> m_pages;
};
