#include "ProductPrices.h"

#include "Columns.h"
#include "TableStore.h"
#include "base/RoundDecimals.h"
#include "base/Setup.h"
#include "base/SqlStatement.h"
#include "base/SqlValue.h"

#include <QCoreApplication>

namespace {

using namespace Col;

QString CurrencySelect()
{
    return QStringLiteral("select %1, %2, %3, %4, %5 from %6 ")
        .arg(ColumnName(CURRENCY_ID), ColumnName(CURRENCY_NAME), ColumnName(CURRENCY_ABBREVIATION),
             ColumnName(CURRENCY_RATE),
             ColumnName(CURRENCY_CALCULATED_UNIT_PRICE_ROUNDING_DECIMALS),
             ColumnName(Tbl::CURRENCYY));
}

CurrencyRate ReadCurrency(const SqlStatement& st)
{
    return {
        st.value(CURRENCY_ID).toLongLong(), st.value(CURRENCY_NAME).toString(),
        st.value(CURRENCY_ABBREVIATION).toString(), ToNumber(st.value(CURRENCY_RATE)),
        static_cast<int>(ToInteger(st.value(CURRENCY_CALCULATED_UNIT_PRICE_ROUNDING_DECIMALS)))};
}

QString LoadError()
{
    return QCoreApplication::translate("TableStore", "Unable to load data from database.");
}

} // namespace

std::optional<double> CalculatedPrice(double netPrice, const CurrencyRate& currency)
{
    if (currency.rate <= 0)
        return std::nullopt;
    return RoundDecimals(netPrice / currency.rate, currency.unitPriceDecimals);
}

Result LoadForeignCurrencies(QList<CurrencyRate>& currencies)
{
    currencies.clear();
    SqlStatement st(CurrencySelect() +
                    QStringLiteral("where %1 <> 0 order by %1").arg(ColumnName(CURRENCY_ID)));
    if (!st.exec())
        return st.failure(LoadError());
    while (st.next())
        currencies << ReadCurrency(st);
    return Result::success();
}

std::optional<qint64> ListPriceCurrency()
{
    const qint64 preferred = Setup::current().integer(SETUP_INVOICE_CURRENCY_ID);
    const QVariant id = SelectValue(QStringLiteral("select %1 from %2 where %1 <> 0 "
                                                   "order by %1 <> ?, %1 limit 1")
                                        .arg(ColumnName(CURRENCY_ID), ColumnName(Tbl::CURRENCYY)),
                                    {preferred});
    return RowId(id);
}

Result CurrencyPrices::load(qint64 currencyId)
{
    m_currency = {};
    m_overridden.clear();
    SqlStatement currency(CurrencySelect() +
                              QStringLiteral("where %1 = ?").arg(ColumnName(CURRENCY_ID)),
                          {currencyId});
    if (!currency.exec() || !currency.next())
        return currency.failure(LoadError());
    m_currency = ReadCurrency(currency);
    SqlStatement prices(QStringLiteral("select %1, %2 from %3 where %4 = ?")
                            .arg(ColumnName(PRODUCTPRICE_PRODUCT_ID),
                                 ColumnName(PRODUCTPRICE_PRICE), ColumnName(Tbl::PRODUCTPRICE),
                                 ColumnName(PRODUCTPRICE_CURRENCY_ID)),
                        {currencyId});
    if (!prices.exec())
        return prices.failure(LoadError());
    while (prices.next()) {
        const QVariant price = prices.value(PRODUCTPRICE_PRICE);
        if (!IsNullValue(price))
            m_overridden.insert(prices.value(PRODUCTPRICE_PRODUCT_ID).toLongLong(),
                                ToNumber(price));
    }
    return Result::success();
}

std::optional<double> CurrencyPrices::price(qint64 productId, double netPrice) const
{
    if (const auto it = m_overridden.constFind(productId); it != m_overridden.cend())
        return *it;
    return CalculatedPrice(netPrice, m_currency);
}
