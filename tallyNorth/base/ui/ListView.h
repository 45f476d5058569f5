// The look every list of the program shares, so that they read and behave alike.
#pragma once

#include <QAbstractItemView>

class QLabel;
class QTableView;

// Whole rows selected, read-only, striped, no row numbers, rows one text line high.
void SetUpListView(QTableView* view,
                   QAbstractItemView::SelectionMode mode = QAbstractItemView::ExtendedSelection);
// The red line under a list that tells it was cut short; hidden until there is something to say.
void SetUpListNote(QLabel* note);
