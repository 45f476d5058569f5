// Payments received against an issued invoice (bank items) and the invoice's paid state that
// follows them. The window, the command line and the tests all save through here.
#pragma once

#include "base/Result.h"

#include <QCoreApplication>
#include <QDate>
#include <QList>
#include <QString>

#include <optional>

// The invoice as the payment window sees it when it opens.
struct BankItemInvoice
{
    qint64 orderId = 0;
    qint64 invoiceNo = 0;
    QString invoiceNoStr;
    QString currency; // abbreviation
    int decimals = 2; // the invoice's printing decimals of totals
    double totalGross = 0.0;
    bool paid = false;
    double unpaidTotal = 0.0;
};

struct BankItem
{
    qint64 id = 0;
    QString recordNo; // the bank statement's record number
    QDate transferDate;
    double paidTotal = 0.0; // in the invoice's currency
    QString comment;
};

class BankItemStore
{
    Q_DECLARE_TR_FUNCTIONS(BankItemStore)

public:
    // Pays within this of the unpaid amount settle the invoice: sums of decimal amounts never
    // meet exactly in binary.
    static constexpr double kTolerance = 0.000001;

    // Reads the invoice; refuses an unissued order, a cancelled and a cancelling invoice.
    static Result loadInvoice(qint64 orderId, BankItemInvoice& invoice);
    // The amount the user typed: empty, unreadable, 0 and absurd sizes are refused.
    static Result parseAmount(const QString& text, double& amount);
    static Result checkItem(const BankItem& item);
    // What stays unpaid after paying paid on unpaid; 0 within the tolerance, negative on
    // overpayment.
    static double remaining(double unpaid, double paid);
    // Inserts the bank item and sets the invoice's paid state from the unpaid total in invoice
    // (as loaded), in one transaction; invoice then holds the new state.
    static Result add(BankItemInvoice& invoice, BankItem& item);
    // The invoice's earlier bank items, oldest first.
    static Result list(qint64 orderId, QList<BankItem>& items);
};
