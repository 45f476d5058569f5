#include "ReportModel.h"

#include "documents/ReportOutput.h"

#include <QFont>

ReportModel::ReportModel(QObject* parent) : QAbstractTableModel(parent) {}

void ReportModel::setTable(ReportTable table)
{
    beginResetModel();
    m_table = std::move(table);
    endResetModel();
}

qint64 ReportModel::orderId(int row) const
{
    return row >= 0 && row < m_table.orderIds.size() ? m_table.orderIds.at(row) : 0;
}

int ReportModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_table.rows.size() + m_table.totals.size());
}

int ReportModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_table.columns.size());
}

QVariant ReportModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const int row = index.row();
    const bool total = row >= m_table.rows.size();
    const ReportColumn& column = m_table.columns.at(index.column());
    switch (role) {
    case Qt::DisplayRole: {
        const QVariantList& values =
            total ? m_table.totals.at(row - m_table.rows.size()) : m_table.rows.at(row);
        return ReportOutput::cellText(column, values.value(index.column()));
    }
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(
            Qt::AlignVCenter |
            (column.type == ReportColumn::Type::Number ? Qt::AlignRight : Qt::AlignLeft));
    case Qt::FontRole:
        if (total) {
            QFont bold;
            bold.setBold(true);
            return bold;
        }
        return {};
    default:
        return {};
    }
}

QVariant ReportModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 ||
        section >= m_table.columns.size())
        return QAbstractTableModel::headerData(section, orientation, role);
    return m_table.columns.at(section).title;
}
