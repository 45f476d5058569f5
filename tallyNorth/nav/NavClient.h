// The reporting interface over HTTP: token exchange, manageInvoice and queryTransactionStatus.
// A network fault, a timeout or a server error is tried again after a short, growing wait; what
// the authority refuses is not.
#pragma once

#include "NavApi.h"
#include "NavSettings.h"

#include "base/Result.h"

#include <QCoreApplication>

struct NavClientOptions
{
    int timeoutMs = 30000;
    int attempts = 3;        // tries of one request
    int firstDelayMs = 1000; // doubled after each failed try
};

class NavClient
{
    Q_DECLARE_TR_FUNCTIONS(NavClient)

public:
    explicit NavClient(NavSettings settings, NavClientOptions options = {});

    // The decrypted exchange token for one manageInvoice.
    Result tokenExchange(QByteArray& token);
    Result manageInvoice(const QByteArray& token, const QList<NavSignedOperation>& operations,
                         QString& transactionId);
    Result queryTransactionStatus(const QString& transactionId,
                                  QList<NavProcessingResult>& results);
    Result queryInvoiceCheck(const QString& invoiceNumber, bool& exists);

    // Whether the last failure was of the network or the server (worth a later try), not a
    // refusal.
    bool lastFailureTransient() const { return m_transient; }

private:
    Result call(const char* operation, const QByteArray& body, NavResponse& response);

    NavSettings m_settings;
    NavClientOptions m_options;
    bool m_transient = false;
};
