// The rows of the order list as its view shows them: read-only, one row per order, newest first.
#pragma once

#include "base/ui/RowListModel.h"
#include "orders/OrderListQuery.h"

class OrderListModel : public RowListModel<OrderListRow>
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

    using RowListModel::RowListModel;

    // Reads the rows under filter; more tells whether the limit cut the list short.
    Result load(const OrderListFilter& filter);

    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
};
