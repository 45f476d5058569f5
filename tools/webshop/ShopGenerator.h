// Generated webshop records: order i (1-based) of a shop with five items, and its partners and
// products. The timestamps are ten-digit counters, so their text order is their number order.
// Shared by the local webshop and the import benchmark.
#pragma once

#include <QByteArray>
#include <QString>

inline QByteArray ShopTimestamp(qint64 i)
{
    return QByteArray::number(i).rightJustified(10, '0');
}

inline QByteArray GeneratedOrder(qint64 i, int items = 5)
{
    const QByteArray n = QByteArray::number(i);
    const QByteArray partner = QByteArray::number(i % 1000 + 1);
    QByteArray xml;
    xml.reserve(600 + items * 420);
    xml += "<ORDER><ORDERHEAD_CODE>G" + n + "</ORDERHEAD_CODE><ORDERHEAD_TIMESTAMP>" +
           ShopTimestamp(i) + "</ORDERHEAD_TIMESTAMP><ORDERHEAD_PARTNER_CODE>GP" + partner +
           "</ORDERHEAD_PARTNER_CODE><ORDERHEAD_PARTNER_NAME>Vásárló " + partner +
           " Kft.</ORDERHEAD_PARTNER_NAME><ORDERHEAD_PARTNER_ZIP>1011</ORDERHEAD_PARTNER_ZIP>"
           "<ORDERHEAD_PARTNER_CITY>Budapest</ORDERHEAD_PARTNER_CITY>"
           "<ORDERHEAD_PARTNER_ADDRESS>Fő utca " +
           partner +
           ".</ORDERHEAD_PARTNER_ADDRESS>"
           "<ORDERHEAD_PARTNER_MAIL_IS_SAME>1</ORDERHEAD_PARTNER_MAIL_IS_SAME>"
           "<ORDERHEAD_PARTNER_COUNTRY_INTERNATIONAL_CODE>HU"
           "</ORDERHEAD_PARTNER_COUNTRY_INTERNATIONAL_CODE>"
           "<ORDERHEAD_PAYMENTMETHOD_CODE>AT</ORDERHEAD_PAYMENTMETHOD_CODE>"
           "<ORDERHEAD_CURRENCY_ABBREVIATION>Ft</ORDERHEAD_CURRENCY_ABBREVIATION>"
           "<ORDERHEAD_DATE_SHIPPED>2024-03-05</ORDERHEAD_DATE_SHIPPED>";
    for (int j = 1; j <= items; ++j) {
        const QByteArray product = QByteArray::number((i * 7 + j) % 500 + 1);
        xml += "<ORDERITEM><ORDERITEM_CODE>G" + n + "-" + QByteArray::number(j) +
               "</ORDERITEM_CODE><ORDERITEM_PRODUCT_CODE>GPR" + product +
               "</ORDERITEM_PRODUCT_CODE><ORDERITEM_NAME>Termék " + product +
               "</ORDERITEM_NAME><ORDERITEM_UNIT>db</ORDERITEM_UNIT>"
               "<ORDERITEM_VAT_CODE>27</ORDERITEM_VAT_CODE><ORDERITEM_VAT_NAME>27%"
               "</ORDERITEM_VAT_NAME><ORDERITEM_VAT_PERCENT>27</ORDERITEM_VAT_PERCENT>"
               "<ORDERITEM_PRICE>" +
               QByteArray::number(100 * j) + "</ORDERITEM_PRICE><ORDERITEM_QTY>" +
               QByteArray::number(j) + "</ORDERITEM_QTY></ORDERITEM>";
    }
    return xml + "</ORDER>\n";
}

inline QByteArray GeneratedPartner(qint64 i)
{
    const QByteArray n = QByteArray::number(i);
    return "<PARTNER><PARTNER_CODE>GP" + n + "</PARTNER_CODE><PARTNER_NAME>Vásárló " + n +
           " Kft.</PARTNER_NAME><PARTNER_ZIP>1011</PARTNER_ZIP><PARTNER_CITY>Budapest"
           "</PARTNER_CITY><PARTNER_ADDRESS>Fő utca " +
           n +
           ".</PARTNER_ADDRESS>"
           "<PARTNER_MAIL_IS_SAME>1</PARTNER_MAIL_IS_SAME><PAYMENTMETHOD_CODE>AT"
           "</PAYMENTMETHOD_CODE><PARTNER_TIMESTAMP>" +
           ShopTimestamp(i) + "</PARTNER_TIMESTAMP></PARTNER>\n";
}

inline QByteArray GeneratedProduct(qint64 i)
{
    const QByteArray n = QByteArray::number(i);
    return "<PRODUCT><PRODUCT_CODE>GPR" + n + "</PRODUCT_CODE><PRODUCT_NAME>Termék " + n +
           "</PRODUCT_NAME><PRODUCT_UNIT>db</PRODUCT_UNIT><PRODUCT_PRICE>" +
           QByteArray::number(100 + i) +
           "</PRODUCT_PRICE><PRODUCT_VAT_CODE>27"
           "</PRODUCT_VAT_CODE><PRODUCT_TIMESTAMP>" +
           ShopTimestamp(i) + "</PRODUCT_TIMESTAMP></PRODUCT>\n";
}
