#include "RecordListModel.h"

#include <QLocale>

QString ListText(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::Double:
        return QLocale().toString(value.toDouble(), 'f', QLocale::FloatingPointShortest);
    case QMetaType::Int:
    case QMetaType::LongLong:
        return QLocale().toString(value.toLongLong());
    default:
        return value.toString();
    }
}

RecordListModel::RecordListModel(QList<ListColumn> columns, const char* idColumn, QObject* parent)
    : QAbstractTableModel(parent), m_columns(std::move(columns)),
      m_idColumn(QString::fromLatin1(idColumn))
{
}

void RecordListModel::setRows(QList<Record> rows)
{
    beginResetModel();
    m_rows = std::move(rows);
    m_computed.clear();
    for (int c = 0; c < m_columns.size(); ++c) {
        if (m_columns.at(c).load)
            m_computed.insert(c, m_columns.at(c).load());
    }
    endResetModel();
}

std::optional<qint64> RecordListModel::id(int row) const
{
    if (row < 0 || row >= m_rows.size())
        return std::nullopt;
    return RowId(m_rows.at(row).value(m_idColumn));
}

int RecordListModel::rowOf(qint64 id) const
{
    for (int i = 0; i < m_rows.size(); ++i) {
        if (RowId(m_rows.at(i).value(m_idColumn)) == id)
            return i;
    }
    return -1;
}

int RecordListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int RecordListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

QVariant RecordListModel::value(const Record& row, int column) const
{
    const ListColumn& c = m_columns.at(column);
    if (const auto it = m_computed.constFind(column); it != m_computed.cend() && it->value)
        return it->value(row);
    if (c.value)
        return c.value(row);
    return row.value(QString::fromLatin1(c.column));
}

QVariant RecordListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount() || index.column() >= columnCount())
        return {};
    const Record& row = m_rows.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return ListText(value(row, index.column()));
    case Qt::TextAlignmentRole: {
        const int type = value(row, index.column()).typeId();
        const bool number =
            type == QMetaType::Double || type == QMetaType::Int || type == QMetaType::LongLong;
        return static_cast<int>(number ? Qt::AlignRight | Qt::AlignVCenter
                                       : Qt::AlignLeft | Qt::AlignVCenter);
    }
    case IdRole:
        return row.value(m_idColumn);
    default:
        return {};
    }
}

QVariant RecordListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 ||
        section >= m_columns.size())
        return {};
    const ListColumn& c = m_columns.at(section);
    if (const auto it = m_computed.constFind(section);
        it != m_computed.cend() && !it->header.isEmpty())
        return it->header;
    return c.headerText ? c.headerText() : c.header.text();
}
