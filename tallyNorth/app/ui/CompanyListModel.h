// The company databases offered for choosing, one row per file.
#pragma once

#include "app/CompanyList.h"

#include <QAbstractTableModel>

class CompanyListModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Name, Zip, City, Address, TaxNo, ColumnCount };
    static constexpr int PathRole = Qt::UserRole + 1;

    explicit CompanyListModel(QList<CompanyEntry> entries, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

    // Adds a company and returns its row.
    int append(const CompanyEntry& entry);
    const CompanyEntry& entry(int row) const { return m_entries.at(row); }

private:
    QList<CompanyEntry> m_entries;
};
