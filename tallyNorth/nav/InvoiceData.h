// The invoice document the tax authority's online invoice system takes (InvoiceData, version
// 3.0), built from an issued invoice's stored rows: the amounts are the ones fixed at issue,
// never recomputed, so the report says what the printed invoice says.
#pragma once

#include "base/Result.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

// A Hungarian tax number split as the authority's documents carry it: 12345678-1-12.
struct HungarianTaxNumber
{
    QString taxpayerId; // eight digits
    QString vatCode;    // one digit
    QString countyCode; // two digits, may be empty

    // Accepts "12345678-1-12", "12345678112" and the eight-digit taxpayer id alone.
    static bool parse(const QString& text, HungarianTaxNumber& number);
};

enum class NavOperation { Create, Storno };

class InvoiceData
{
    Q_DECLARE_TR_FUNCTIONS(InvoiceData)

public:
    struct Document
    {
        QString invoiceNo;
        NavOperation operation = NavOperation::Create;
        QByteArray xml;
    };

    // The document of the issued order; a cancelling invoice gives a STORNO document that refers
    // to the invoice it cancels.
    static Result build(qint64 orderId, Document& document);
    // The same by the invoice's number text (ORDERHEAD_INVOICE_NO_STR).
    static Result buildByNumber(const QString& invoiceNo, Document& document);

    // The schema's value for a payment method, from its code and name.
    static QString paymentMethod(const QString& code, const QString& name);
    // The schema's unit, or "OWN" when the unit is the program's own text.
    static QString unitOfMeasure(const QString& unit);
};
