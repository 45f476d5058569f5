// The "Csekkek" tab: the cheques under the filter, newest first, with the toolbar to add, edit,
// delete and print them. The rules are ChequeStore's and ChequePrinting's; this window checks
// the selection, asks, and shows what happened.
#pragma once

#include "base/ui/GuiInteraction.h"
#include "base/ui/ListTab.h"

#include <QList>

#include <memory>

class ChequeFilter;
class ChequeListModel;
class Interaction;
class QLabel;
class QTableView;
class QToolBar;

class ChequeList : public ListTab
{
    Q_OBJECT
public:
    explicit ChequeList(QWidget* parent = nullptr);
    ~ChequeList() override;

    void reload() override;

    ChequeFilter* filterWidget() const { return m_filter; }
    QTableView* view() const { return m_view; }
    ChequeListModel* model() const { return m_model; }
    QToolBar* toolBar() const { return m_toolbar; }
    // The ids of the selected rows, in list order.
    QList<qint64> selectedIds() const;
    void selectId(qint64 id);

    // Where the commands ask and report; the tests script it. Default: message boxes.
    void setInteraction(Interaction* interaction) { m_interaction.set(interaction); }

    void insertCheque();
    void editCheque();
    void deleteCheques();
    void printCheques();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Interaction& interaction() { return m_interaction.get(); }
    void showContextMenu(const QPoint& pos);

    QToolBar* m_toolbar;
    ChequeFilter* m_filter;
    ChequeListModel* m_model;
    QTableView* m_view;
    QLabel* m_note;
    WindowInteraction m_interaction{this};
    bool m_fitted = false; // the column widths come from rows
};
