#include "CompanyListModel.h"

CompanyListModel::CompanyListModel(QList<CompanyEntry> entries, QObject* parent)
    : QAbstractTableModel(parent), m_entries(std::move(entries))
{
}

int CompanyListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_entries.size());
}

int CompanyListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant CompanyListModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const CompanyEntry& e = m_entries.at(index.row());
    if (role == PathRole)
        return e.path;
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return {};
    switch (Column(index.column())) {
    case Name:
        return role == Qt::ToolTipRole ? e.fileName() : e.name;
    case Zip:
        return e.zip;
    case City:
        return e.city;
    case Address:
        return e.address;
    case TaxNo:
        return e.taxNo;
    case ColumnCount:
        break;
    }
    return {};
}

QVariant CompanyListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (Column(section)) {
    case Name:
        return tr("Name");
    case Zip:
        return tr("ZIP");
    case City:
        return tr("City");
    case Address:
        return tr("Address");
    case TaxNo:
        return tr("Tax No");
    case ColumnCount:
        break;
    }
    return {};
}

int CompanyListModel::append(const CompanyEntry& entry)
{
    const int row = int(m_entries.size());
    beginInsertRows({}, row, row);
    m_entries << entry;
    endInsertRows();
    return row;
}
