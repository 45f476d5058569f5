// The rows of a list that a store reads at once: read-only, each row with its id, and whether
// the record limit cut the list short. The models say how the rows look.
#pragma once

#include "base/Result.h"

#include <QAbstractTableModel>
#include <QList>

template <typename Row> class RowListModel : public QAbstractTableModel
{
public:
    using QAbstractTableModel::QAbstractTableModel;

    void setRows(QList<Row> rows)
    {
        beginResetModel();
        m_rows = std::move(rows);
        m_more = false;
        endResetModel();
    }
    bool more() const { return m_more; }
    const Row& row(int index) const { return m_rows.at(index); }
    // The row holding the id, or -1.
    int rowOf(qint64 id) const
    {
        for (qsizetype i = 0; i < m_rows.size(); ++i)
            if (m_rows.at(i).id == id)
                return int(i);
        return -1;
    }
    int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : int(m_rows.size());
    }

protected:
    // A failed read empties the list rather than leaving rows of another filter.
    Result setRead(const Result& r, QList<Row> rows, bool more)
    {
        setRows(r ? std::move(rows) : QList<Row>());
        m_more = r && more;
        return r;
    }

private:
    QList<Row> m_rows;
    bool m_more = false;
};
