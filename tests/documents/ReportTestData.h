// Hand-made invoices for the report tests; their sums are worked out in tst_reports.cpp.
#pragma once

#include "base/SqlStatement.h"

#include <QDebug>

using namespace Qt::StringLiterals;

namespace ReportTestData {

struct Head
{
    int id;
    int partner;
    const char* name;
    const char* currency;
    double rate;
    const char* invoiceNo; // nullptr: not issued
    const char* shipped;
    const char* created;
    const char* due;
    bool consolidated;
    double gross;
    double unpaid;
    bool paid;
};

struct Item
{
    int order;
    const char* shipped;
    const char* name;
    double qty;
    double net, vat, gross;
};

inline bool Exec(const QString& sql, const QVariantList& binds = {})
{
    SqlStatement st(sql, binds);
    if (st.exec())
        return true;
    qWarning() << st.errorText() << sql;
    return false;
}

inline bool FillInvoices()
{
    const Head heads[] = {
        {1, 1, "Alfa Kft.", "HUF", 1, "A-1", "2024-03-05", "2024-03-05", "2024-03-13", false, 1270,
         0, true},
        {2, 1, "Alfa Kft.", "EUR", 300, "A-2", "2024-03-10", "2024-03-10", "2024-03-20", false, 100,
         100, false},
        {3, 2, "Béta Bt.", "HUF", 1, "A-3", "2024-03-31", "2024-04-01", "2024-04-15", true, 1270,
         1270, false},
        {4, 1, "Alfa Zrt.", "HUF", 1, "A-4", "2024-03-20", "2024-03-20", "2024-03-28", false, 127,
         127, true},
        {5, 2, "Béta Bt.", "HUF", 1, nullptr, "2024-03-21", "2024-03-21", "2024-03-21", false,
         99999, 99999, false},
    };
    const Item items[] = {
        {1, "2024-03-05", "Csavar", 10, 1000, 270, 1270},
        {2, "2024-03-10", "Csavar", 5, 100, 0, 100},
        {3, "2024-02-20", "Anyacsavar", 1, 500, 135, 635},
        {3, "2024-03-15", "Csavar", 2, 200, 54, 254},
        {3, "2024-04-02", "Csavar", 3, 300, 81, 381},
        {4, "2024-03-20", "Csavar", 1, 100, 27, 127},
        {5, "2024-03-21", "Csavar", 100, 99999, 0, 99999},
    };
    if (!Exec(u"delete from ORDERITEM"_s) || !Exec(u"delete from ORDERHEAD"_s) ||
        !Exec(u"delete from PARTNER"_s))
        return false;
    // The partner as it is called today.
    if (!Exec(u"insert into PARTNER (PARTNER_ID, PARTNER_NAME, PARTNER_NAME_ASCII) values "
              "(1, 'Alfa Zrt.', 'ALFA ZRT.'), (2, 'Béta Bt.', 'BETA BT.')"_s))
        return false;
    double rate[6] = {};
    for (const Head& h : heads) {
        rate[h.id] = h.rate;
        const QVariant invoiceNo = h.invoiceNo ? QVariant(h.id) : QVariant();
        const QVariant invoiceText =
            h.invoiceNo ? QVariant(QString::fromUtf8(h.invoiceNo)) : QVariant();
        const QString name = QString::fromUtf8(h.name);
        if (!Exec(u"insert into ORDERHEAD (ORDERHEAD_ID, ORDERHEAD_PARTNER_ID, "
                  "ORDERHEAD_PARTNER_NAME, ORDERHEAD_PARTNER_NAME_ASCII, ORDERHEAD_PARTNER_ZIP, "
                  "ORDERHEAD_PARTNER_CITY, ORDERHEAD_PARTNER_ADDRESS, ORDERHEAD_DATE_SHIPPED, "
                  "ORDERHEAD_DATE_CREATED, ORDERHEAD_DATE_PAYMENT_DUE, "
                  "ORDERHEAD_CONSOLIDATED_INVOICE, ORDERHEAD_CURRENCY_ABBREVIATION, "
                  "ORDERHEAD_CURRENCY_RATE, ORDERHEAD_INVOICE_NO, ORDERHEAD_INVOICE_NO_STR, "
                  "ORDERHEAD_TOTAL_GROSS, ORDERHEAD_TOTAL_LOCAL_CURRENCY_GROSS, "
                  "ORDERHEAD_UNPAID_TOTAL, ORDERHEAD_PAID, ORDERHEAD_TYPE, ORDERHEAD_VERIFIED, "
                  "ORDERHEAD_PAYMENTMETHOD_NAME) values (?, ?, ?, ?, '6720', 'Szeged', "
                  "'Fő u. 1.', ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, 0, '1', 'Átutalás')"_s,
                  {h.id, h.partner, name, name.toUpper().replace(u"É"_s, u"E"_s),
                   QString::fromUtf8(h.shipped), QString::fromUtf8(h.created),
                   QString::fromUtf8(h.due), h.consolidated ? u"1"_s : u"0"_s,
                   QString::fromUtf8(h.currency), h.rate, invoiceNo, invoiceText, h.gross,
                   h.gross * h.rate, h.unpaid, h.paid ? u"1"_s : u"0"_s}))
            return false;
    }
    for (const Item& i : items) {
        const double r = rate[i.order];
        if (!Exec(u"insert into ORDERITEM (ORDERITEM_ORDERHEAD_ID, ORDERITEM_DATE_SHIPPED, "
                  "ORDERITEM_NAME, ORDERITEM_UNIT, ORDERITEM_QTY, ORDERITEM_TOTAL_NET, "
                  "ORDERITEM_TOTAL_VAT, ORDERITEM_TOTAL_GROSS, "
                  "ORDERITEM_TOTAL_LOCAL_CURRENCY_NET, ORDERITEM_TOTAL_LOCAL_CURRENCY_VAT, "
                  "ORDERITEM_TOTAL_LOCAL_CURRENCY_GROSS) values (?, ?, ?, 'db', ?, ?, ?, ?, ?, "
                  "?, ?)"_s,
                  {i.order, QString::fromUtf8(i.shipped), QString::fromUtf8(i.name), i.qty, i.net,
                   i.vat, i.gross, i.net * r, i.vat * r, i.gross * r}))
            return false;
    }
    return true;
}

} // namespace ReportTestData
