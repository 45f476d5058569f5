// The product's prices per foreign currency: the rate, the price calculated from the net price
// and the overridden price the user types (cleared, the calculated price applies again).
#pragma once

#include "masterdata/ProductPrices.h"
#include "masterdata/TableStore.h"

#include <QAbstractTableModel>

class ProductPriceModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Column { CurrencyColumn, RateColumn, CalculatedColumn, OverriddenColumn, ColumnCount };

    explicit ProductPriceModel(QObject* parent = nullptr);

    Result loadCurrencies();
    void setNetPrice(std::optional<double> net);
    // PRODUCTPRICE rows keyed by currency.
    void setRows(const QList<Record>& rows);
    QList<Record> rows() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

Q_SIGNALS:
    // Text typed as an overridden price that is not a number; the price is left as it was.
    void notANumber(const QString& text);

private:
    struct Row
    {
        CurrencyRate currency;
        std::optional<double> overridden;
    };

    QList<Row> m_rows;
    std::optional<double> m_net;
};
