// The list window of a master-data table: rows with a new-row button, "&Edit", "Delete",
// "Cancel" and "Help", a context menu, double click and Enter to edit; opened for choosing it
// gives the chosen row's id. Partners and products add the name search and the record limit.
#pragma once

#include "BrowseInfo.h"
#include "base/Interaction.h"
#include "base/ui/GuiInteraction.h"

#include <QTimer>
#include <QWidget>

#include <memory>

namespace Ui {
class RecordBrowseLayout;
}
class QTableView;
class RecordListModel;

class RecordBrowse : public QWidget
{
    Q_OBJECT
public:
    // Manage: a list window of its own; Choose: returns a row; Page: a tab of the main window.
    enum class Mode { Manage, Choose, Page };

    RecordBrowse(const BrowseInfo& info, Mode mode, QWidget* parent = nullptr);
    ~RecordBrowse() override;

    // Reads the rows again, keeping the selected one.
    Result reload();
    std::optional<qint64> currentId() const;
    void selectId(qint64 id);
    RecordListModel* model() const { return m_model; }
    QTableView* view() const;
    const BrowseInfo& info() const { return m_info; }

    // Messages and questions go here; a GuiInteraction on this window unless set.
    void setInteraction(Interaction* interaction) { m_interaction.set(interaction); }

    void newRow();
    void editRow();
    void deleteRow();
    // Choose mode: emits chosen, or tells that a row must be selected.
    void choose();

    // How the "Help" buttons open a topic; set once by the help window.
    static void setHelpOpener(std::function<void(QWidget*, const QString&)> opener);

Q_SIGNALS:
    void chosen(qint64 id);
    void cancelled();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void activate();
    void fitColumns();
    void showNote(const QString& text);
    void openHelp();
    Interaction& interaction() { return m_interaction.get(); }

    const BrowseInfo& m_info;
    Mode m_mode;
    std::unique_ptr<Ui::RecordBrowseLayout> m_ui;
    RecordListModel* m_model;
    QTimer m_noteTimer;
    WindowInteraction m_interaction{this};
    bool m_fitted = false; // the widths come from rows
};
