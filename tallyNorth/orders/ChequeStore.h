// Postal cheques ("csekk"): the CHEQUE rows with their payer, amount and texts, the cheque an
// invoice gets at issue when its payment method asks for one, and the rules of printed ones
// (a printed cheque is never deleted; printing marks it with the date).
#pragma once

#include "base/Result.h"

#include <QCoreApplication>
#include <QDate>
#include <QList>
#include <QString>

#include <optional>

struct Cheque
{
    qint64 id = 0; // 0: not stored yet
    QString code;
    std::optional<qint64> orderId; // the invoice the cheque was made for, if any
    std::optional<qint64> invoiceNo;
    QString invoiceNoText;
    std::optional<qint64> partnerId; // none: a payer typed in
    QString partnerCode;
    QString partnerName;
    QString partnerZip;
    QString partnerCity;
    QString partnerAddress;
    double amount = 0.0; // whole forints
    QString pretence;    // left-hand text
    QString notice;      // right-hand text
    bool printed = false;
    QDate dateCreated;
    QDate datePrinted;
};

struct ChequeListFilter
{
    QString partner; // the beginning of the payer's name, folded
    int limit = 0;   // 0: every row
};

class ChequeStore
{
    Q_DECLARE_TR_FUNCTIONS(ChequeStore)

public:
    // A post office takes whole forints only: fillér are rounded half away from zero
    // (1234.50 gives 1235, 1234.49 gives 1234).
    static double wholeForints(double amount);
    // A typed amount (spaces, decimal comma or point), rounded to whole forints.
    static Result parseAmount(const QString& text, double& amount);
    // The amount is required, positive and below 10^12 (the words stop there).
    static Result check(const Cheque& cheque);

    // Inserts a new cheque (id 0) or updates a stored one; the amount is rounded first.
    static Result save(Cheque& cheque);
    static Result load(qint64 id, Cheque& cheque);
    // Newest first; more tells whether rows beyond the limit match.
    static Result list(const ChequeListFilter& filter, QList<Cheque>& rows, bool& more);
    static QString moreMessage();

    struct Removal
    {
        int deleted = 0;
        int refused = 0; // printed ones, kept
    };
    // Deletes the cheques of ids that have no print date, in one transaction.
    static Result remove(const QList<qint64>& ids, Removal& removal);
    // The question before deleting count cheques, and the note on the printed ones kept.
    static QString deleteQuestion(int count);
    static QString refusedMessage(int count);

    // The cheques not printed yet, oldest first.
    static Result unprinted(QList<qint64>& ids);
    static Result markPrinted(const QList<qint64>& ids, const QDate& date);

    // Whether the payment method of the order asks for a cheque (PAYMENTMETHOD_CHEQUE).
    static Result chequeFlag(qint64 orderId, bool& set);
    // The cheque of a just numbered invoice: payer from the order, the forint gross total, the
    // pretence and notice with the dates and the number. Runs inside the issuing transaction.
    static Result createForInvoice(qint64 orderId, const QDate& today, qint64& chequeId);
    // The cheques of issued invoices, made now for those that have none ("Csekk nyomtatasa" in
    // the order list); an order without a number is refused.
    static Result forInvoices(const QList<qint64>& orderIds, const QDate& today,
                              QList<qint64>& chequeIds);
    // The left- and right-hand texts of an invoice's cheque.
    static QString pretenceText(const QDate& invoiceDate, const QDate& due, const QString& number);
    static QString noticeText(const QDate& invoiceDate, const QDate& due, const QString& number);
};
