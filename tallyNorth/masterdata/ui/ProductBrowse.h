// The product list: the "Products" tab of the main window and the list for choosing.
#pragma once

#include "BrowseInfo.h"

class CurrencyPrices;

const BrowseInfo& ProductBrowseInfo();

// The "Price (%s)" column: its title and a product's price in that currency.
QString PriceInHeader(const QString& abbreviation);
QVariant PriceIn(const CurrencyPrices& prices, const Record& product);
