// An order (ORDERHEAD) with its items (ORDERITEM) as typed values. Windows, the command line and
// the importers take an Order in and give one back; OrderStore reads and writes it.
#pragma once

#include "OrderCalc.h"

#include <QDate>
#include <QList>
#include <QString>

#include <optional>

struct OrderItem
{
    qint64 id = 0; // 0: not stored yet
    QString code;  // webshop line id; empty is stored as NULL (unique column)
    QDate dateShipped;
    std::optional<qint64> productId; // none for a typed-in line
    QString productCode;
    QString statNo;
    QString name;
    QString nameTranslation;
    QString comment;
    QString commentTranslation;
    QString unit;
    QString unitTranslation;
    std::optional<qint64> vatId;
    QString vatCode;
    double vatPercent = 0.0;
    QString vatName;
    double listPrice = 0.0;
    double price = 0.0;
    double qty = 0.0;
    std::optional<int> discountType; // DiscountType values; none shows as "Unset"
    double discountPercent = 0.0;
    LineTotals totals;
    // Fixed when the invoice is issued.
    std::optional<double> localNet;
    std::optional<double> localVat;
    std::optional<double> localGross;
};

struct Order
{
    qint64 id = 0; // 0: not stored yet
    QString code;  // webshop order id; empty is stored as NULL (unique column)

    // Snapshot of the partner.
    std::optional<qint64> partnerId; // none: a partner typed in, not in the basic data
    QString partnerCode;
    QString partnerName; // ORDERHEAD_PARTNER_NAME_ASCII is written from it
    QString partnerZip;
    QString partnerCity;
    QString partnerAddress;
    QString partnerTaxNo;
    QString partnerEuTaxNo;
    std::optional<qint64> partnerCountryId;
    QString partnerCountryCode;
    QString partnerCountryName;
    QString partnerCountryNameOnMails;
    qint64 langId = 0; // second language of the invoice; 0 is Hungarian only
    QString langCode;
    QString partnerOtherData;
    bool mailIsSame = true;
    QString mailName;
    QString mailZip;
    QString mailCity;
    QString mailAddress;
    std::optional<qint64> mailCountryId;
    QString mailCountryCode;
    QString mailCountryName;
    QString mailCountryNameOnMails;

    // Snapshot of the payment method.
    std::optional<qint64> paymentMethodId;
    QString paymentMethodCode;
    QString paymentMethodName;
    QString paymentMethodNameTranslation;
    bool paymentMethodPaid = false;
    bool roundTo5 = false;

    QDate dateShipped;
    QDate dateCreated;
    QDate datePaymentDue; // invalid: computed from the due days when the order is checked
    bool consolidated = false;

    bool noVat = false;
    std::optional<qint64> noVatReasonId;
    QString noVatReasonCode;
    QString noVatReasonText;
    QString noVatReasonTranslationText;

    // Snapshot of the currency with its rate and decimals.
    std::optional<qint64> currencyId; // none or 0: forint
    QString currencyAbbreviation;
    double currencyRate = 0.0;
    int unitPriceDecimals = 0;
    int lineDecimals = 0;
    int linePrintingDecimals = 0;
    int invoiceDecimals = 0;
    int invoicePrintingDecimals = 0;
    QString bankName;
    QString bankAcctNo;
    QString bankIban;
    QString bankSwift;

    std::optional<qint64> invoiceNo; // set once issued; an order with a number is never changed
    QString invoiceNoStr;
    QString subject;
    OrderTotals totals;
    double unpaidTotal = 0.0;
    bool paid = false;
    std::optional<double> localNet;
    std::optional<double> localVat;
    std::optional<double> localGross;
    QString commentText;
    int printedCopies = 0;
    int type = 0; // OrderType
    std::optional<qint64> cancelledInvoiceNo;
    QString cancelledInvoiceNoStr;
    std::optional<qint64> cancellingInvoiceNo;
    QString cancellingInvoiceNoStr;
    bool verified = false;

    QList<OrderItem> items;

    bool issued() const { return invoiceNo.has_value(); }
};
