#include "ChequeListModel.h"

#include "base/DateText.h"
#include "documents/AmountFormat.h"

Result ChequeListModel::load(const ChequeListFilter& filter)
{
    QList<Cheque> rows;
    bool more = false;
    const Result r = ChequeStore::list(filter, rows, more);
    return setRead(r, std::move(rows), more);
}

int ChequeListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(Column::Count);
}

QVariant ChequeListModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const Cheque& c = row(index.row());
    const auto column = Column(index.column());
    if (role == IdRole)
        return c.id;
    if (role == Qt::TextAlignmentRole && column == Column::Amount)
        return QVariant::fromValue(Qt::Alignment(Qt::AlignRight | Qt::AlignVCenter));
    if (role != Qt::DisplayRole)
        return {};
    switch (column) {
    case Column::Code:
        return c.code;
    case Column::InvoiceNo:
        return c.invoiceNoText;
    case Column::PartnerName:
        return c.partnerName;
    case Column::Amount:
        return FormatAmount(c.amount, AmountFormat(0));
    case Column::DatePrinted:
        return FormatDate(c.datePrinted);
    case Column::Count:
        break;
    }
    return {};
}

QVariant ChequeListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    switch (Column(section)) {
    case Column::Code:
        return tr("Code");
    case Column::InvoiceNo:
        return tr("Szamlaszam");
    case Column::PartnerName:
        return tr("Partner Name");
    case Column::Amount:
        return tr("Osszeg");
    case Column::DatePrinted:
        return tr("Nyomtatas napja");
    case Column::Count:
        break;
    }
    return {};
}
