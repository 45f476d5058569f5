// The look every list of the program shares, so that they read and behave alike.
#pragma once

#include <QAbstractItemView>

class QLabel;
class QTableView;

// Whole rows selected, read-only, striped, no row numbers, rows one text line high.
void SetUpListView(QTableView* view,
                   QAbstractItemView::SelectionMode mode = QAbstractItemView::ExtendedSelection);
// Columns as wide as their texts and headers (within a limit); the spare width goes to the
// stretch column, whose texts are the longest, not to whatever column comes last. An empty
// result (a search that found nothing) keeps the widths the rows gave, so the columns do not
// collapse to their headers; fitted tells whether rows gave them.
void FitListColumns(QTableView* view, int stretch, bool& fitted);
// The red line under a list that tells it was cut short; hidden until there is something to say.
void SetUpListNote(QLabel* note);
