#include "OrderListModel.h"

#include "base/DateText.h"
#include "orders/ReportingQueue.h"

#include <QBrush>
#include <QColor>
#include <QLocale>

namespace {

bool IsAmount(OrderListModel::Column column)
{
    using C = OrderListModel::Column;
    return column == C::TotalNet || column == C::TotalVat || column == C::TotalGross ||
           column == C::UnpaidTotal;
}

double Amount(const OrderListRow& row, OrderListModel::Column column)
{
    using C = OrderListModel::Column;
    switch (column) {
    case C::TotalNet:
        return row.totalNet;
    case C::TotalVat:
        return row.totalVat;
    case C::TotalGross:
        return row.totalGross;
    default:
        return row.unpaidTotal;
    }
}

} // namespace

Result OrderListModel::load(const OrderListFilter& filter)
{
    QList<OrderListRow> rows;
    bool more = false;
    const Result r = OrderListQuery::load(filter, rows, more);
    return setRead(r, std::move(rows), more);
}

int OrderListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(Column::Count);
}

QVariant OrderListModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const OrderListRow& row = RowListModel::row(index.row());
    const auto column = Column(index.column());
    switch (role) {
    case IdRole:
        return row.id;
    case Qt::TextAlignmentRole:
        if (IsAmount(column))
            return QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter);
        return {};
    case Qt::ForegroundRole:
        if (column == Column::Kind && row.kind.ink.isValid())
            return QBrush(row.kind.ink);
        if (column == Column::Reporting && row.reportState == int(NavState::Rejected))
            return QBrush(QColor(200, 0, 0));
        return {};
    case Qt::ToolTipRole:
        // A rejected invoice shows the authority's messages.
        if (column == Column::Reporting && !row.reportMessages.isEmpty())
            return QString(row.reportMessages).replace(u'&', u'\n');
        return {};
    case SortRole:
        switch (column) {
        case Column::DateShipped:
            return row.dateShipped;
        case Column::DateCreated:
            return row.dateCreated;
        case Column::DatePaymentDue:
            return row.datePaymentDue;
        case Column::TotalNet:
        case Column::TotalVat:
        case Column::TotalGross:
        case Column::UnpaidTotal:
            return Amount(row, column);
        default:
            return data(index, Qt::DisplayRole);
        }
    case Qt::DisplayRole:
        break;
    default:
        return {};
    }
    switch (column) {
    case Column::Code:
        return row.code;
    case Column::InvoiceNo:
        return row.invoiceNoStr;
    case Column::PartnerName:
        return row.partnerName;
    case Column::DateShipped:
        return FormatDate(row.dateShipped);
    case Column::DateCreated:
        return FormatDate(row.dateCreated);
    case Column::DatePaymentDue:
        return FormatDate(row.datePaymentDue);
    case Column::Currency:
        return row.currency;
    case Column::TotalNet:
    case Column::TotalVat:
    case Column::TotalGross:
    case Column::UnpaidTotal:
        return QLocale().toString(Amount(row, column), 'f', qBound(0, row.printingDecimals, 10));
    case Column::PaymentMethod:
        return row.paymentMethod;
    case Column::Kind:
        return row.kind.text;
    case Column::Reporting:
        return row.reportState ? ReportingQueue::stateText(NavState(*row.reportState)) : QString();
    case Column::Count:
        break;
    }
    return {};
}

QVariant OrderListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= int(Column::Count))
        return {};
    if (role == Qt::TextAlignmentRole && IsAmount(Column(section)))
        return QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    switch (Column(section)) {
    case Column::Code:
        return tr("Code");
    case Column::InvoiceNo:
        return tr("Invoice No");
    case Column::PartnerName:
        return tr("Partner Name");
    case Column::DateShipped:
        return tr("Date Shipped");
    case Column::DateCreated:
        return tr("Date Created");
    case Column::DatePaymentDue:
        return tr("Date Payment Due");
    case Column::Currency:
        return tr("Currency");
    case Column::TotalNet:
        return tr("Total Net");
    case Column::TotalVat:
        return tr("Total VAT");
    case Column::TotalGross:
        return tr("Total Gross");
    case Column::UnpaidTotal:
        return tr("Unpaid Total");
    case Column::PaymentMethod:
        return tr("Payment Method");
    case Column::Kind:
        return tr("Kind");
    case Column::Reporting:
        return tr("NAV");
    case Column::Count:
        break;
    }
    return {};
}
