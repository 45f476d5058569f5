// The rows of the order list as its view shows them: read-only, one row per order, newest first.
#pragma once

#include "orders/OrderListQuery.h"

#include <QAbstractTableModel>

class OrderListModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum class Column {
        Code,
        InvoiceNo,
        PartnerName,
        DateShipped,
        DateCreated,
        DatePaymentDue,
        Currency,
        TotalNet,
        TotalVat,
        TotalGross,
        UnpaidTotal,
        PaymentMethod,
        Kind,
        Reporting, // the state of the report to the online invoice system
        Count
    };
    static constexpr int IdRole = Qt::UserRole + 1;
    // The value a column sorts by: dates and amounts as such, not as their text.
    static constexpr int SortRole = Qt::UserRole + 2;

    using QAbstractTableModel::QAbstractTableModel;

    // Reads the rows under filter; more tells whether the limit cut the list short.
    Result load(const OrderListFilter& filter);
    void setRows(QList<OrderListRow> rows);
    bool more() const { return m_more; }

    const OrderListRow& row(int index) const { return m_rows.at(index); }
    // The row holding the order, or -1.
    int rowOf(qint64 id) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    QList<OrderListRow> m_rows;
    bool m_more = false;
};
