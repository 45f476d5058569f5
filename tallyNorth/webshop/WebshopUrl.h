// The request addresses of the webshop's order, partner and product endpoints.
#pragma once

#include <QByteArray>
#include <QString>

// Letters, digits, ",", "." and "-" stay; every other byte of the UTF-8 text becomes "%XX".
QByteArray WebshopUrlEncode(const QString& text);

// base, then "?" (or "&" when base holds a query already), "<name>=" and the encoded timestamp,
// then "&<maxName>=" and the maximum.
QString WebshopRequestUrl(const QString& base, const char* timestampName, const QString& timestamp,
                          const char* maxName, qint64 maximum);
