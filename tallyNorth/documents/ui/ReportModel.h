// A report table in a list: its rows, then its totals in bold.
#pragma once

#include "documents/ReportQuery.h"

#include <QAbstractTableModel>

class ReportModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    explicit ReportModel(QObject* parent = nullptr);

    void setTable(ReportTable table);
    const ReportTable& table() const { return m_table; }
    // The invoice of a row, or 0 (totals, reports without one).
    qint64 orderId(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    ReportTable m_table;
};
