#include "ListView.h"

#include <QHeaderView>
#include <QLabel>
#include <QTableView>

void SetUpListView(QTableView* view, QAbstractItemView::SelectionMode mode)
{
    view->setSelectionBehavior(QAbstractItemView::SelectRows);
    view->setSelectionMode(mode);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->setAlternatingRowColors(true);
    view->verticalHeader()->hide();
    view->verticalHeader()->setDefaultSectionSize(view->fontMetrics().height() + 6);
    view->horizontalHeader()->setHighlightSections(false);
}

void SetUpListNote(QLabel* note)
{
    note->setObjectName(QStringLiteral("note"));
    note->setStyleSheet(QStringLiteral("color: #c80000;"));
    note->hide();
}
