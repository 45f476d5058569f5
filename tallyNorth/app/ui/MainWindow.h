// The program's one top-level window while a company is open: the company in the title, the
// main lists on tabs, and the menus from which every other window is opened. The subsystems
// fill it through setCommand() and setTabPage() (see RegisterCommands).
#pragma once

#include "base/ui/CommandHost.h"
#include "base/ui/MainCommand.h"

#include <QList>
#include <QMainWindow>

#include <array>
#include <functional>
#include <map>

class ListTab;
class QLabel;
class QTabWidget;

// "Vantrell Invoicer - NAME (adószám:TAX)", every fixed piece kept when a value is empty.
QString MainWindowTitle(const QString& name, const QString& taxNo);

class MainWindow : public QMainWindow, public CommandHost
{
    Q_OBJECT
public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    void setCommand(MainCommand command, std::function<void()> handler) override;
    QAction* action(MainCommand command) const;

    void setTabPage(MainTab tab, ListTab* page) override;
    void reloadTab(MainTab tab) override;
    QWidget* hostWidget() override { return this; }
    ListTab* tabPage(MainTab tab) const;
    void showTab(MainTab tab);

    // Reads the settings of the open company and applies them: the title, Enter as Tab and the
    // loading rules of the lists. Called when the window opens, after a change of company, a
    // restore or a backup (the session was reopened) and after the settings were saved.
    void companyChanged();
    // The company's database file, also while its session is closed after a failed opening.
    QString companyFile() const { return m_companyFile; }

private:
    struct TabState
    {
        bool shown = false;  // the user has seen it, so it may hold rows the user loaded
        bool loaded = false; // read by the window for the current session
        bool stale = false;  // may show rows of an earlier company or rows changed since
    };

    void othersChanged(int changedIndex);
    void buildMenus();
    void buildToolBar();
    void buildTabs();
    QAction* addCommand(QMenu* menu, MainCommand command, const QString& caption,
                        const QString& help);
    void updateSubmenus();
    void tabShown(int index);
    // selected: the user changed to the tab (not the window opening on it).
    void showList(int index, bool selected);
    void loadTab(int index);

    QTabWidget* m_tabs = nullptr;
    QLabel* m_fileLabel = nullptr;
    std::map<MainCommand, QAction*> m_actions;
    QList<QMenu*> m_submenus;
    std::array<TabState, 4> m_tabState;
    bool m_loadOnStart = false;
    bool m_refreshOnTabChange = false;
    bool m_started = false; // the settings have been applied once
    QString m_companyFile;
};
