// A master-data list as a window of its own, for keeping the table or for choosing a row.
#pragma once

#include "RecordBrowse.h"
#include "base/ui/ListTab.h"

#include <QDialog>

class RecordBrowseDlg : public QDialog
{
    Q_OBJECT
public:
    RecordBrowseDlg(const BrowseInfo& info, RecordBrowse::Mode mode, QWidget* parent = nullptr);

    RecordBrowse* browse() const { return m_browse; }
    // The row chosen in choose mode.
    std::optional<qint64> chosenId() const { return m_chosen; }

private:
    RecordBrowse* m_browse;
    std::optional<qint64> m_chosen;
};

// A page of the main window's tabs holding a master-data list.
class RecordBrowseTab : public ListTab
{
    Q_OBJECT
public:
    RecordBrowseTab(const BrowseInfo& info, QWidget* parent = nullptr);

    void reload() override { (void)m_browse->reload(); }
    RecordBrowse* browse() const { return m_browse; }

private:
    RecordBrowse* m_browse;
};
