// The rows of a master-data list: read-only, columns as the browse describes them.
#pragma once

#include "BrowseInfo.h"

#include <QAbstractTableModel>
#include <QHash>

class RecordListModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    static constexpr int IdRole = Qt::UserRole + 1;

    RecordListModel(QList<ListColumn> columns, const char* idColumn, QObject* parent = nullptr);

    // Also reads what the computed columns look up, once for these rows.
    void setRows(QList<Record> rows);
    const Record& row(int index) const { return m_rows.at(index); }
    std::optional<qint64> id(int row) const;
    // The row holding id, or -1.
    int rowOf(qint64 id) const;
    const ListColumn& column(int index) const { return m_columns.at(index); }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    QVariant value(const Record& row, int column) const;

    QList<ListColumn> m_columns;
    QString m_idColumn;
    QList<Record> m_rows;
    QHash<int, ComputedColumn> m_computed; // by column, for the current rows
};

// A value as a list shows it: numbers in the user's locale, the rest as text.
QString ListText(const QVariant& value);
