// A product's price in a foreign currency: the home net price divided by the currency's rate,
// rounded to its unit-price decimals, unless the product has an overridden price for it.
#pragma once

#include "base/Result.h"

#include <QHash>
#include <QList>
#include <QString>

#include <optional>

struct CurrencyRate
{
    qint64 id = 0;
    QString name;
    QString abbreviation;
    double rate = 0;
    int unitPriceDecimals = 0;
};

// None when the rate is not positive.
std::optional<double> CalculatedPrice(double netPrice, const CurrencyRate& currency);

// The currencies other than the forint, by id.
Result LoadForeignCurrencies(QList<CurrencyRate>& currencies);

// The currency of the product list's second price column: the default currency of new orders
// when it is foreign, else the first foreign currency; none when there is no foreign currency.
std::optional<qint64> ListPriceCurrency();

// Every product's price in one currency, for lists and finders.
class CurrencyPrices
{
public:
    Result load(qint64 currencyId);
    const CurrencyRate& currency() const { return m_currency; }
    // The overridden price, else the calculated one.
    std::optional<double> price(qint64 productId, double netPrice) const;

private:
    CurrencyRate m_currency;
    QHash<qint64, double> m_overridden;
};
