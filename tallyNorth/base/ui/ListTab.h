// A page of the main window's tabs: a list that loads its rows only when asked.
#pragma once

#include <QWidget>

class ListTab : public QWidget
{
    Q_OBJECT
public:
    using QWidget::QWidget;

    // Re-reads the list from the current database.
    virtual void reload() = 0;

Q_SIGNALS:
    // A command of this list wrote what other lists show, such as the cheques of an issue.
    void dataChanged();
};
