// The requests and answers of the authority's reporting interface (version 3.0): built as the
// interface schema wants them, read back by local names so that prefixes do not matter. The
// client and the local test double share them.
#pragma once

#include "NavSettings.h"
#include "NavSignature.h"

#include "base/Result.h"

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>

struct NavProcessingResult
{
    int index = 0;
    QString status; // RECEIVED, PROCESSING, SAVED, DONE, ABORTED
    bool errors = false;
    bool warnings = false;
    QStringList messages; // "CODE: text", errors and warnings
};

struct NavResponse
{
    QString root; // the answer's element name, e.g. TokenExchangeResponse, GeneralErrorResponse
    QString funcCode;
    QString errorCode;
    QString message;
    QString transactionId;
    QByteArray encodedExchangeToken;
    QList<NavProcessingResult> results;
    QStringList technicalMessages;
    bool invoiceCheckResult = false; // queryInvoiceCheck: the invoice is in the system

    bool ok() const { return funcCode == QLatin1String("OK"); }
    // errorCode and message (and technical messages) as one text for the user.
    QString errorText() const;
};

// What a request says about itself, for the test double.
struct NavRequestInfo
{
    QString root;
    QString requestId;
    QString timestamp;
    QString login;
    QString passwordHash;
    QString taxNumber;
    QString requestSignature;
    QString exchangeToken;
    QString transactionId;
    QString invoiceNumber; // queryInvoiceCheck
    QList<NavSignedOperation> operations;
};

namespace NavApi {

inline const QString kApi = QStringLiteral("http://schemas.nav.gov.hu/OSA/3.0/api");
inline const QString kCommon = QStringLiteral("http://schemas.nav.gov.hu/NTCA/1.0/common");

// A fresh request id: unique per request, 30 characters of the allowed ones.
QString newRequestId();
QString timestampText(const QDateTime& timestamp);

QByteArray tokenExchangeRequest(const NavSettings& settings, const QString& requestId,
                                const QDateTime& timestamp);
QByteArray manageInvoiceRequest(const NavSettings& settings, const QString& requestId,
                                const QDateTime& timestamp, const QByteArray& exchangeToken,
                                const QList<NavSignedOperation>& operations);
QByteArray queryTransactionStatusRequest(const NavSettings& settings, const QString& requestId,
                                         const QDateTime& timestamp, const QString& transactionId);

// Whether an invoice of this seller's is in the system: what a send cut short left unknown.
QByteArray queryInvoiceCheckRequest(const NavSettings& settings, const QString& requestId,
                                    const QDateTime& timestamp, const QString& invoiceNumber);

// Reads an answer; fails only on what is not an answer of the interface at all.
Result parseResponse(const QByteArray& xml, NavResponse& response);
Result parseRequest(const QByteArray& xml, NavRequestInfo& request);

// Answers, for the test double: header and result with the given function and error code.
QByteArray response(const QString& root, const QString& requestId, const QDateTime& timestamp,
                    const QString& funcCode, const QString& errorCode = {},
                    const QString& message = {}, const QByteArray& extra = {});

} // namespace NavApi
