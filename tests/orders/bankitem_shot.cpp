// Shows "Add Bank Item" (or, with "list", "Previous Bank Items") in Hungarian on a temporary
// company with a partly paid euro invoice, for looking at the windows: bankitem_shot [list].
#include "TestCompany.h"

#include "app/Language.h"
#include "base/SqlStatement.h"
#include "orders/ui/BankItemListDlg.h"
#include "orders/ui/BankitemEdit.h"

#include <QApplication>

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    InstallLanguage(QStringLiteral("hu"));
    TestCompany company;
    if (!company.isValid() ||
        !ExecSql(QStringLiteral(
            "insert into ORDERHEAD (ORDERHEAD_INVOICE_NO, ORDERHEAD_INVOICE_NO_STR, "
            "ORDERHEAD_TYPE, ORDERHEAD_CURRENCY_ABBREVIATION, ORDERHEAD_TOTAL_GROSS, "
            "ORDERHEAD_PAID, ORDERHEAD_UNPAID_TOTAL) values (12, 'SZ-000012', 0, 'EUR', 1270, "
            "'0', 1270)")))
        return 1;
    const qint64 id =
        SelectValue(QStringLiteral("select max(ORDERHEAD_ID) from ORDERHEAD")).toLongLong();
    BankItemInvoice invoice;
    if (!BankItemStore::loadInvoice(id, invoice))
        return 1;
    BankItem item;
    item.recordNo = QStringLiteral("2024/118");
    item.transferDate = QDate(2024, 5, 18);
    item.paidTotal = 508;
    item.comment = QStringLiteral("első részlet (40 %)");
    if (!BankItemStore::add(invoice, item))
        return 1;
    if (app.arguments().value(1) == QLatin1String("list")) {
        QList<BankItem> items;
        if (!BankItemStore::list(id, items))
            return 1;
        BankItemListDlg list(items, invoice.currency, invoice.decimals);
        list.show();
        return app.exec();
    }
    BankitemEdit edit(invoice);
    edit.show();
    return app.exec();
}
