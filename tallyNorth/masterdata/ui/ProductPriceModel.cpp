#include "ProductPriceModel.h"

#include "NumberEdit.h"
#include "RecordListModel.h"

#include "Columns.h"
#include "base/RoundDecimals.h"
#include "base/SqlValue.h"

#include <QLocale>

#include <algorithm>

using namespace Col;

namespace {

// A price with its currency's unit-price decimals, so that prices side by side line up; digits
// the user typed beyond them are still shown.
QString PriceText(double price, int decimals)
{
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(price, 'f', std::max(decimals, DecimalCount(price)));
}

} // namespace

ProductPriceModel::ProductPriceModel(QObject* parent) : QAbstractTableModel(parent) {}

Result ProductPriceModel::loadCurrencies()
{
    QList<CurrencyRate> currencies;
    const Result r = LoadForeignCurrencies(currencies);
    beginResetModel();
    m_rows.clear();
    for (const CurrencyRate& c : std::as_const(currencies))
        m_rows.append({c, std::nullopt});
    endResetModel();
    return r;
}

void ProductPriceModel::setNetPrice(std::optional<double> net)
{
    m_net = net;
    if (!m_rows.isEmpty())
        Q_EMIT dataChanged(index(0, CalculatedColumn), index(rowCount() - 1, CalculatedColumn));
}

void ProductPriceModel::setRows(const QList<Record>& rows)
{
    for (Row& row : m_rows) {
        row.overridden.reset();
        for (const Record& r : rows) {
            const QVariant price = r.value(QString::fromLatin1(PRODUCTPRICE_PRICE));
            if (RowId(r.value(QString::fromLatin1(PRODUCTPRICE_CURRENCY_ID))) == row.currency.id &&
                !IsNullValue(price))
                row.overridden = ToNumber(price);
        }
    }
    if (!m_rows.isEmpty())
        Q_EMIT dataChanged(index(0, OverriddenColumn), index(rowCount() - 1, OverriddenColumn));
}

QList<Record> ProductPriceModel::rows() const
{
    QList<Record> rows;
    for (const Row& row : m_rows) {
        rows << Record{{QString::fromLatin1(PRODUCTPRICE_CURRENCY_ID), row.currency.id},
                       {QString::fromLatin1(PRODUCTPRICE_PRICE),
                        row.overridden ? QVariant(*row.overridden) : QVariant()}};
    }
    return rows;
}

int ProductPriceModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int ProductPriceModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant ProductPriceModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount() || index.column() >= ColumnCount)
        return {};
    const Row& row = m_rows.at(index.row());
    if (role == Qt::TextAlignmentRole)
        return static_cast<int>(
            Qt::AlignVCenter | (index.column() == CurrencyColumn ? Qt::AlignLeft : Qt::AlignRight));
    if (role != Qt::DisplayRole && role != Qt::EditRole)
        return {};
    switch (index.column()) {
    case CurrencyColumn:
        return row.currency.abbreviation;
    case RateColumn:
        return ListText(row.currency.rate);
    case CalculatedColumn: {
        const std::optional<double> price =
            m_net ? CalculatedPrice(*m_net, row.currency) : std::nullopt;
        return price ? PriceText(*price, row.currency.unitPriceDecimals) : QString();
    }
    default:
        if (!row.overridden)
            return QString();
        return role == Qt::EditRole ? NumberEdit::format(*row.overridden)
                                    : PriceText(*row.overridden, row.currency.unitPriceDecimals);
    }
}

bool ProductPriceModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!index.isValid() || index.row() >= rowCount() || index.column() != OverriddenColumn ||
        role != Qt::EditRole)
        return false;
    const QString text = value.toString();
    const std::optional<double> price = NumberEdit::parse(text);
    if (!price && !text.trimmed().isEmpty()) {
        Q_EMIT notANumber(text);
        return false;
    }
    m_rows[index.row()].overridden = price;
    Q_EMIT dataChanged(index, index, {Qt::DisplayRole, Qt::EditRole});
    return true;
}

Qt::ItemFlags ProductPriceModel::flags(const QModelIndex& index) const
{
    if (!index.isValid() || index.row() >= rowCount() || index.column() >= ColumnCount)
        return Qt::NoItemFlags;
    const Qt::ItemFlags base = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    return index.column() == OverriddenColumn ? base | Qt::ItemIsEditable : base;
}

QVariant ProductPriceModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case CurrencyColumn:
        return tr("Currency");
    case RateColumn:
        return tr("Rate");
    case CalculatedColumn:
        return tr("Calculated Price");
    case OverriddenColumn:
        return tr("Overridden Price");
    default:
        return {};
    }
}
