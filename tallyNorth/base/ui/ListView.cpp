#include "ListView.h"

#include <QHeaderView>
#include <QLabel>
#include <QTableView>

#include <algorithm>

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

namespace {
constexpr int kMaxColumnWidth = 320;
} // namespace

void FitListColumns(QTableView* view, int stretch, bool& fitted)
{
    const int rows = view->model()->rowCount();
    if (rows == 0 && fitted)
        return;
    QHeaderView* header = view->horizontalHeader();
    header->setStretchLastSection(false);
    header->setSectionResizeMode(QHeaderView::Interactive);
    view->resizeColumnsToContents();
    for (int c = 0; c < header->count(); ++c) {
        const int wanted = std::min(view->columnWidth(c), kMaxColumnWidth);
        view->setColumnWidth(c, std::max(wanted, header->sectionSizeHint(c)));
    }
    if (stretch >= 0)
        header->setSectionResizeMode(stretch, QHeaderView::Stretch);
    fitted = rows > 0;
}

void SetUpListNote(QLabel* note)
{
    note->setObjectName(QStringLiteral("note"));
    note->setStyleSheet(QStringLiteral("color: #c80000;"));
    note->hide();
}
