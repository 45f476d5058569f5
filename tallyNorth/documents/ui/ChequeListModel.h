// The rows of the cheque list as its view shows them: read-only, one row per cheque, newest
// first.
#pragma once

#include "base/ui/RowListModel.h"
#include "orders/ChequeStore.h"

class ChequeListModel : public RowListModel<Cheque>
{
    Q_OBJECT
public:
    enum class Column { Code, InvoiceNo, PartnerName, Amount, DatePrinted, Count };
    static constexpr int IdRole = Qt::UserRole + 1;

    using RowListModel::RowListModel;

    // Reads the rows under filter; more tells whether the limit cut the list short.
    Result load(const ChequeListFilter& filter);

    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
};
