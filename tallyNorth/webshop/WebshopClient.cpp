#include "WebshopClient.h"

#include "base/Interaction.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>

namespace {

// A transport failure is worth another try; an answer of the server is not.
bool Retryable(QNetworkReply::NetworkError error)
{
    switch (error) {
    case QNetworkReply::RemoteHostClosedError:
    case QNetworkReply::TemporaryNetworkFailureError:
    case QNetworkReply::NetworkSessionFailedError:
    case QNetworkReply::UnknownNetworkError:
    case QNetworkReply::ProxyConnectionClosedError:
        return true;
    default:
        return false;
    }
}

HttpAnswer GetOnce(QNetworkAccessManager& manager, const HttpRequest& request, QFile& out,
                   Progress* progress, bool& retry)
{
    retry = false;
    out.resize(0);
    out.seek(0);
    QNetworkRequest r{QUrl(request.url)};
    r.setHeader(QNetworkRequest::UserAgentHeader, request.userAgent);
    r.setRawHeader("Authorization",
                   "Basic " + (request.login + u':' + request.password).toUtf8().toBase64());
    r.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                   QNetworkRequest::NoLessSafeRedirectPolicy);
    r.setMaximumRedirectsAllowed(request.maxRedirects);
    QNetworkReply* reply = manager.get(r);

    HttpAnswer answer;
    QEventLoop loop;
    QElapsedTimer idle;
    idle.start();
    bool timedOut = false;
    bool writeFailed = false;
    qint64 received = 0;
    QObject::connect(reply, &QNetworkReply::readyRead, &loop, [&] {
        idle.restart();
        const QByteArray chunk = reply->readAll();
        received += chunk.size();
        if (out.write(chunk) != chunk.size()) {
            writeFailed = true;
            reply->abort();
        }
    });
    QObject::connect(reply, &QNetworkReply::downloadProgress, &loop,
                     [&](qint64 received, qint64 total) {
                         idle.restart();
                         if (progress) {
                             progress->setTotal(total > 0 ? int(total / 1024) : 0);
                             progress->setPos(int(received / 1024));
                         }
                     });
    QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
    QTimer tick;
    QObject::connect(&tick, &QTimer::timeout, &loop, [&] {
        if (progress && progress->canceled()) {
            answer.canceled = true;
            reply->abort();
        } else if (idle.elapsed() > request.idleTimeoutMs) {
            timedOut = true;
            reply->abort();
        }
    });
    tick.start(50);
    if (!reply->isFinished())
        loop.exec();
    tick.stop();
    if (!answer.canceled && !timedOut && !writeFailed) {
        const QByteArray rest = reply->readAll();
        received += rest.size();
        writeFailed = out.write(rest) != rest.size();
    }
    // A connection dropped half way may still end without an error: the promised length tells.
    const QVariant length = reply->header(QNetworkRequest::ContentLengthHeader);
    const bool cut = length.isValid() && !reply->hasRawHeader("Content-Encoding") &&
                     received != length.toLongLong();
    answer.status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (answer.canceled) {
        answer.error = QCoreApplication::translate("WebshopClient", "Operation canceled.");
    } else if (timedOut) {
        answer.error =
            QCoreApplication::translate("WebshopClient", "The server did not answer in time.");
    } else if (writeFailed) {
        answer.error = out.errorString();
    } else if (answer.status >= 400) {
        answer.error = reply->attribute(QNetworkRequest::HttpReasonPhraseAttribute).toString();
        if (answer.error.isEmpty())
            answer.error = reply->errorString();
    } else if (reply->error() != QNetworkReply::NoError) {
        answer.error = reply->errorString();
        retry = answer.status == 0 && Retryable(reply->error());
    } else if (cut) {
        answer.error = QCoreApplication::translate(
            "WebshopClient", "The connection was closed before the whole answer arrived.");
    }
    reply->deleteLater();
    if (!answer.ok()) {
        out.resize(0);
        out.seek(0);
    }
    out.flush();
    return answer;
}

} // namespace

HttpAnswer WebshopGet(const HttpRequest& request, QFile& out, Progress* progress)
{
    QNetworkAccessManager manager;
    // Credentials are sent with every request; a 401 is handed back, never answered here.
    manager.setAutoDeleteReplies(false);
    HttpAnswer answer;
    for (int attempt = 0; attempt <= request.retries; ++attempt) {
        bool retry = false;
        answer = GetOnce(manager, request, out, progress, retry);
        if (!retry)
            break;
    }
    return answer;
}
