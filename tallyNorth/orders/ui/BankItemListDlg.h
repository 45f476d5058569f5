// "Previous Bank Items": the payments recorded earlier for one invoice.
#pragma once

#include "orders/BankItemStore.h"

#include <QDialog>

class QTableWidget;

class BankItemListDlg : public QDialog
{
    Q_OBJECT
public:
    // Amounts with decimals places and the currency abbreviation.
    BankItemListDlg(const QList<BankItem>& items, const QString& currency, int decimals,
                    QWidget* parent = nullptr);

    QTableWidget* table() const { return m_table; }

private:
    QTableWidget* m_table;
};
