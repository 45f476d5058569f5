#include "ProductPrices.h"

#include "Columns.h"
#include "TableStore.h"
#include "base/RoundDecimals.h"
#include "base/Setup.h"
#include "base/SqlStatement.h"
#include "base/SqlValue.h"

#include <QCoreApplication>

namespace {

const QString kCurrencySelect =
    QStringLiteral("select CURRENCY_ID, CURRENCY_NAME, CURRENCY_ABBREVIATION, CURRENCY_RATE, "
                   "CURRENCY_CALCULATED_UNIT_PRICE_ROUNDING_DECIMALS from CURRENCYY ");

CurrencyRate ReadCurrency(const SqlStatement& st)
{
    return {st.value(0).toLongLong(), st.value(1).toString(), st.value(2).toString(),
            ToNumber(st.value(3)), static_cast<int>(ToInteger(st.value(4)))};
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
    SqlStatement st(kCurrencySelect +
                    QStringLiteral("where CURRENCY_ID <> 0 order by CURRENCY_ID"));
    if (!st.exec())
        return st.failure(LoadError());
    while (st.next())
        currencies << ReadCurrency(st);
    return Result::success();
}

std::optional<qint64> ListPriceCurrency()
{
    const qint64 preferred = Setup::current().integer(Col::SETUP_INVOICE_CURRENCY_ID);
    const QVariant id =
        SelectValue(QStringLiteral("select CURRENCY_ID from CURRENCYY where CURRENCY_ID <> 0 "
                                   "order by CURRENCY_ID <> ?, CURRENCY_ID limit 1"),
                    {preferred});
    return RowId(id);
}

Result CurrencyPrices::load(qint64 currencyId)
{
    m_currency = {};
    m_overridden.clear();
    SqlStatement currency(kCurrencySelect + QStringLiteral("where CURRENCY_ID = ?"), {currencyId});
    if (!currency.exec() || !currency.next())
        return currency.failure(LoadError());
    m_currency = ReadCurrency(currency);
    SqlStatement prices(QStringLiteral("select PRODUCTPRICE_PRODUCT_ID, PRODUCTPRICE_PRICE from "
                                       "PRODUCTPRICE where PRODUCTPRICE_CURRENCY_ID = ?"),
                        {currencyId});
    if (!prices.exec())
        return prices.failure(LoadError());
    while (prices.next()) {
        if (!IsNullValue(prices.value(1)))
            m_overridden.insert(prices.value(0).toLongLong(), ToNumber(prices.value(1)));
    }
    return Result::success();
}

std::optional<double> CurrencyPrices::price(qint64 productId, double netPrice) const
{
    if (const auto it = m_overridden.constFind(productId); it != m_overridden.cend())
        return *it;
    return CalculatedPrice(netPrice, m_currency);
}
