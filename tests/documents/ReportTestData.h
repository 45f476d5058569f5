// Hand-made invoices for the report tests; their sums are worked out in tst_reports.cpp.
#pragma once

#include "base/SqlStatement.h"

#include <QDebug>

using namespace Qt::StringLiterals;

namespace ReportTestData {

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
    // Amounts in the invoice's money; the forint ones follow from the rate.
    return Exec(u"delete from ORDERITEM"_s) && Exec(u"delete from ORDERHEAD"_s) &&
           Exec(u"delete from PARTNER"_s) &&
           // The partner as it is called today.
           Exec(u"insert into PARTNER (PARTNER_ID, PARTNER_NAME, PARTNER_NAME_ASCII) values "
                "(1, 'Alfa Zrt.', 'ALFA ZRT.'), (2, 'Béta Bt.', 'BETA BT.')"_s) &&
           Exec(u"insert into ORDERHEAD (ORDERHEAD_ID, ORDERHEAD_PARTNER_ID, "
                "ORDERHEAD_PARTNER_NAME, ORDERHEAD_PARTNER_NAME_ASCII, ORDERHEAD_DATE_SHIPPED, "
                "ORDERHEAD_DATE_CREATED, ORDERHEAD_DATE_PAYMENT_DUE, "
                "ORDERHEAD_CONSOLIDATED_INVOICE, ORDERHEAD_CURRENCY_ABBREVIATION, "
                "ORDERHEAD_CURRENCY_RATE, ORDERHEAD_INVOICE_NO, ORDERHEAD_INVOICE_NO_STR, "
                "ORDERHEAD_TOTAL_GROSS, ORDERHEAD_UNPAID_TOTAL, ORDERHEAD_PAID, "
                "ORDERHEAD_TOTAL_LOCAL_CURRENCY_GROSS, ORDERHEAD_PARTNER_ZIP, "
                "ORDERHEAD_PARTNER_CITY, ORDERHEAD_PARTNER_ADDRESS, ORDERHEAD_TYPE, "
                "ORDERHEAD_VERIFIED, ORDERHEAD_PAYMENTMETHOD_NAME) select v.*, "
                "v.column13 * v.column10, '6720', 'Szeged', 'Fő u. 1.', 0, '1', 'Átutalás' from "
                "(values (1, 1, 'Alfa Kft.', 'ALFA KFT.', '2024-03-05', '2024-03-05', "
                "'2024-03-13', '0', 'HUF', 1.0, 1, 'A-1', 1270.0, 0.0, '1'), "
                "(2, 1, 'Alfa Kft.', 'ALFA KFT.', '2024-03-10', '2024-03-10', '2024-03-20', '0', "
                "'EUR', 300.0, 2, 'A-2', 100.0, 100.0, '0'), "
                "(3, 2, 'Béta Bt.', 'BETA BT.', '2024-03-31', '2024-04-01', '2024-04-15', '1', "
                "'HUF', 1.0, 3, 'A-3', 1270.0, 1270.0, '0'), "
                "(4, 1, 'Alfa Zrt.', 'ALFA ZRT.', '2024-03-20', '2024-03-20', '2024-03-28', '0', "
                "'HUF', 1.0, 4, 'A-4', 127.0, 127.0, '1'), "
                // Never issued.
                "(5, 2, 'Béta Bt.', 'BETA BT.', '2024-03-21', '2024-03-21', '2024-03-21', '0', "
                "'HUF', 1.0, null, null, 99999.0, 99999.0, '0')) v"_s) &&
           Exec(u"insert into ORDERITEM (ORDERITEM_ORDERHEAD_ID, ORDERITEM_DATE_SHIPPED, "
                "ORDERITEM_NAME, ORDERITEM_QTY, ORDERITEM_TOTAL_NET, ORDERITEM_TOTAL_VAT, "
                "ORDERITEM_TOTAL_GROSS, ORDERITEM_UNIT, ORDERITEM_TOTAL_LOCAL_CURRENCY_NET, "
                "ORDERITEM_TOTAL_LOCAL_CURRENCY_VAT, ORDERITEM_TOTAL_LOCAL_CURRENCY_GROSS) "
                "select v.*, 'db', v.column5 * h.ORDERHEAD_CURRENCY_RATE, "
                "v.column6 * h.ORDERHEAD_CURRENCY_RATE, v.column7 * h.ORDERHEAD_CURRENCY_RATE "
                "from (values (1, '2024-03-05', 'Csavar', 10.0, 1000.0, 270.0, 1270.0), "
                "(2, '2024-03-10', 'Csavar', 5.0, 100.0, 0.0, 100.0), "
                "(3, '2024-02-20', 'Anyacsavar', 1.0, 500.0, 135.0, 635.0), "
                "(3, '2024-03-15', 'Csavar', 2.0, 200.0, 54.0, 254.0), "
                "(3, '2024-04-02', 'Csavar', 3.0, 300.0, 81.0, 381.0), "
                "(4, '2024-03-20', 'Csavar', 1.0, 100.0, 27.0, 127.0), "
                "(5, '2024-03-21', 'Csavar', 100.0, 99999.0, 0.0, 99999.0)) v "
                "join ORDERHEAD h on h.ORDERHEAD_ID = v.column1"_s);
}

} // namespace ReportTestData
