#include "NavClient.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>

namespace {

void Wait(int ms)
{
    if (ms <= 0)
        return;
    QEventLoop loop;
    QTimer::singleShot(ms, &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace

NavClient::NavClient(NavSettings settings, NavClientOptions options)
    : m_settings(std::move(settings)), m_options(options)
{
}

Result NavClient::call(const char* operation, const QByteArray& body, NavResponse& response)
{
    QNetworkAccessManager network;
    QNetworkRequest request(QUrl(m_settings.serviceUrl() + u'/' + QLatin1String(operation)));
    request.setHeader(QNetworkRequest::ContentTypeHeader, QByteArrayLiteral("application/xml"));
    request.setRawHeader("Accept", "application/xml");
    request.setTransferTimeout(m_options.timeoutMs);
    QString failure;
    int delay = m_options.firstDelayMs;
    for (int attempt = 1; attempt <= std::max(1, m_options.attempts); ++attempt) {
        if (attempt > 1) {
            Wait(delay);
            delay *= 2;
        }
        QNetworkReply* reply = network.post(request, body);
        QEventLoop loop;
        QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
        loop.exec();
        const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        const QByteArray answer = reply->readAll();
        const QNetworkReply::NetworkError error = reply->error();
        const QString errorString = reply->errorString();
        reply->deleteLater();

        const bool parsed = !answer.isEmpty() && NavApi::parseResponse(answer, response).ok();
        if (status >= 500 || (status == 0 && error != QNetworkReply::NoError)) {
            failure = parsed && !response.errorText().isEmpty()
                          ? response.errorText()
                          : (status ? tr("The service answered with HTTP status %1.").arg(status)
                                    : errorString);
            continue; // the network or the server: worth another try
        }
        m_transient = false;
        if (!parsed)
            return Result::failure(
                tr("The service's answer could not be read (HTTP status %1).").arg(status));
        if (!response.ok())
            return Result::failure(response.errorText());
        return Result::success();
    }
    m_transient = true;
    return Result::failure(tr("The online invoice service can not be reached:&%1").arg(failure));
}

Result NavClient::tokenExchange(QByteArray& token)
{
    NavResponse response;
    const QDateTime now = QDateTime::currentDateTimeUtc();
    if (Result r =
            call("tokenExchange",
                 NavApi::tokenExchangeRequest(m_settings, NavApi::newRequestId(), now), response);
        !r)
        return r;
    token = NavSignature::decryptToken(QByteArray::fromBase64(response.encodedExchangeToken),
                                       m_settings.exchangeKey.toUtf8());
    if (token.isEmpty()) {
        m_transient = false;
        return Result::failure(
            tr("The exchange token could not be decrypted. Check the exchange key."));
    }
    return Result::success();
}

Result NavClient::manageInvoice(const QByteArray& token,
                                const QList<NavSignedOperation>& operations, QString& transactionId)
{
    NavResponse response;
    const QDateTime now = QDateTime::currentDateTimeUtc();
    if (Result r = call("manageInvoice",
                        NavApi::manageInvoiceRequest(m_settings, NavApi::newRequestId(), now, token,
                                                     operations),
                        response);
        !r)
        return r;
    transactionId = response.transactionId;
    return Result::success();
}

Result NavClient::queryTransactionStatus(const QString& transactionId,
                                         QList<NavProcessingResult>& results)
{
    NavResponse response;
    const QDateTime now = QDateTime::currentDateTimeUtc();
    if (Result r = call("queryTransactionStatus",
                        NavApi::queryTransactionStatusRequest(m_settings, NavApi::newRequestId(),
                                                              now, transactionId),
                        response);
        !r)
        return r;
    results = response.results;
    return Result::success();
}

Result NavClient::queryInvoiceCheck(const QString& invoiceNumber, bool& exists)
{
    NavResponse response;
    const QDateTime now = QDateTime::currentDateTimeUtc();
    if (Result r = call("queryInvoiceCheck",
                        NavApi::queryInvoiceCheckRequest(m_settings, NavApi::newRequestId(), now,
                                                         invoiceNumber),
                        response);
        !r)
        return r;
    exists = response.invoiceCheckResult;
    return Result::success();
}
