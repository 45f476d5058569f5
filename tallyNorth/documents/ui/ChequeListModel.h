// The rows of the cheque list as its view shows them: read-only, one row per cheque, newest
// first.
#pragma once

#include "base/Result.h"
#include "orders/ChequeStore.h"

#include <QAbstractTableModel>

class ChequeListModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum class Column { Code, InvoiceNo, PartnerName, Amount, DatePrinted, Count };
    static constexpr int IdRole = Qt::UserRole + 1;

    using QAbstractTableModel::QAbstractTableModel;

    // Reads the rows under filter; more tells whether the limit cut the list short.
    Result load(const ChequeListFilter& filter);
    void setRows(QList<Cheque> rows);
    bool more() const { return m_more; }
    const Cheque& row(int index) const { return m_rows.at(index); }
    // The row holding the cheque, or -1.
    int rowOf(qint64 id) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    QList<Cheque> m_rows;
    bool m_more = false;
};
