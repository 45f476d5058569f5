#include "LocalWebshop.h"

#include "ShopGenerator.h"

#include <QDir>
#include <QFile>
#include <QHttpServerRequest>
#include <QHttpServerResponder>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTcpSocket>
#include <QUrlQuery>
#include <QXmlStreamReader>

namespace {

constexpr qint64 kHighWater = 256 * 1024;

// Writes the pieces as the socket drains, then closes: memory stays flat for any size.
void Stream(std::shared_ptr<QHttpServerResponder> responder, std::function<QByteArray()> next,
            qint64 cutAfter = -1)
{
    QTcpSocket* socket = responder->socket();
    auto written = std::make_shared<qint64>(0);
    auto pump = std::make_shared<std::function<void()>>();
    *pump = [responder, socket, next, cutAfter, written, pump] {
        while (socket->state() == QAbstractSocket::ConnectedState &&
               socket->bytesToWrite() < kHighWater) {
            const QByteArray piece = next();
            if (piece.isEmpty()) {
                QObject::disconnect(socket, &QTcpSocket::bytesWritten, nullptr, nullptr);
                socket->disconnectFromHost();
                *pump = nullptr;
                return;
            }
            if (cutAfter >= 0 && *written + piece.size() > cutAfter) {
                responder->writeBody(piece.left(cutAfter - *written));
                socket->flush();
                QObject::disconnect(socket, &QTcpSocket::bytesWritten, nullptr, nullptr);
                socket->abort();
                *pump = nullptr;
                return;
            }
            *written += piece.size();
            responder->writeBody(piece);
        }
    };
    QObject::connect(socket, &QTcpSocket::bytesWritten, socket, [pump] {
        if (*pump)
            (*pump)();
    });
    (*pump)();
}

QByteArray TimestampOf(const QByteArray& xml, const char* tag)
{
    const QByteArray open = QByteArray("<") + tag + ">";
    const qsizetype from = xml.indexOf(open);
    if (from < 0)
        return {};
    const qsizetype start = from + open.size();
    const qsizetype end = xml.indexOf("</", start);
    return end < 0 ? QByteArray() : xml.mid(start, end - start).trimmed();
}

} // namespace

std::optional<LocalWebshop::Fault> LocalWebshop::parseFault(const QString& text)
{
    const QList<std::pair<QString, Fault>> names = {
        {"401", Fault::Unauthorized}, {"500", Fault::ServerError}, {"garbage", Fault::Garbage},
        {"slow", Fault::Slow},        {"cut", Fault::Cut},         {"huge", Fault::Huge},
        {"none", Fault::None}};
    for (const auto& [name, fault] : names)
        if (name == text)
            return fault;
    return std::nullopt;
}

bool LocalWebshop::load(Document& document, const QString& file, const char* timestampTag,
                        QString& error)
{
    QFile f(QDir(m_options.folder).filePath(file));
    if (!f.exists())
        return true; // a shop without that document answers with an empty one
    if (!f.open(QIODevice::ReadOnly)) {
        error = f.fileName() + ": " + f.errorString();
        return false;
    }
    const QByteArray content = f.readAll();
    QXmlStreamReader reader(content);
    int depth = 0;
    qint64 tokenEnd = 0;
    while (!reader.atEnd()) {
        const auto token = reader.readNext();
        if (token == QXmlStreamReader::StartElement) {
            if (depth == 1) {
                const qint64 start = tokenEnd;
                reader.skipCurrentElement();
                tokenEnd = reader.characterOffset();
                // The offsets count characters; the file is read as UTF-8 text for slicing.
                const QByteArray xml =
                    QString::fromUtf8(content).mid(start, tokenEnd - start).trimmed().toUtf8();
                document.records.append({TimestampOf(xml, timestampTag), xml + '\n'});
                continue;
            }
            ++depth;
        } else if (token == QXmlStreamReader::EndElement) {
            --depth;
        }
        tokenEnd = reader.characterOffset();
    }
    if (reader.hasError()) {
        error = f.fileName() + ": " + reader.errorString();
        return false;
    }
    return true;
}

bool LocalWebshop::start(const Options& options, quint16 port, QString& error)
{
    m_options = options;
    if (!options.folder.isEmpty()) {
        if (!load(m_orders, "orders.xml", "ORDERHEAD_TIMESTAMP", error) ||
            !load(m_partners, "partners.xml", "PARTNER_TIMESTAMP", error) ||
            !load(m_products, "products.xml", "PRODUCT_TIMESTAMP", error))
            return false;
    } else {
        m_orders.generate = [](qint64 i) { return GeneratedOrder(i); };
        m_orders.generatedCount = options.generated;
        m_partners.generate = GeneratedPartner;
        m_partners.generatedCount = qMin<qint64>(options.generated, 1000);
        m_products.generate = GeneratedProduct;
        m_products.generatedCount = qMin<qint64>(options.generated, 500);
    }
    for (Document* document : {&m_orders, &m_partners, &m_products}) {
        const QString path = "/" + QString::fromLatin1(document == &m_orders     ? "order.php"
                                                       : document == &m_partners ? "partner.php"
                                                                                 : "product.php");
        m_server.route(path, [this, document](const QHttpServerRequest& request,
                                              QHttpServerResponder&& responder) {
            answer(*document, request, std::move(responder));
        });
    }
    m_port = m_server.listen(QHostAddress::LocalHost, port);
    if (m_port == 0) {
        error = QStringLiteral("can not listen on 127.0.0.1:%1").arg(port);
        return false;
    }
    return true;
}

bool LocalWebshop::authorized(const QHttpServerRequest& request) const
{
    if (m_options.login.isEmpty())
        return true;
    const QByteArray expected =
        "Basic " + (m_options.login + u':' + m_options.password).toUtf8().toBase64();
    return request.value("Authorization") == expected;
}

std::function<QByteArray()> LocalWebshop::body(const Document& document, const QByteArray& after,
                                               qint64 maximum) const
{
    struct State
    {
        int stage = 0;
        qint64 next = 0;
        qint64 sent = 0;
    };
    auto state = std::make_shared<State>();
    const Document* d = &document;
    const bool huge = m_options.fault == Fault::Huge;
    if (d->generate) {
        bool ok = false;
        const qint64 last = after.toLongLong(&ok);
        state->next = ok ? last + 1 : 1;
    }
    return [state, d, after, maximum, huge]() -> QByteArray {
        switch (state->stage) {
        case 0:
            state->stage = 1;
            return QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<") + d->root + ">\n";
        case 1:
            while (maximum <= 0 || state->sent < maximum) {
                QByteArray record;
                if (d->generate) {
                    if (state->next > d->generatedCount)
                        break;
                    record = d->generate(state->next++);
                } else {
                    if (state->next >= d->records.size())
                        break;
                    const Record& r = d->records.at(state->next++);
                    if (!after.isEmpty() && r.timestamp <= after)
                        continue;
                    record = r.xml;
                }
                // One element of 10 MB in the first record, which the importers skip.
                if (huge && state->sent == 0) {
                    const qsizetype close = record.lastIndexOf("</");
                    record.insert(close,
                                  "<PADDING>" + QByteArray(10 * 1024 * 1024, 'x') + "</PADDING>");
                }
                ++state->sent;
                return record;
            }
            state->stage = 2;
            return QByteArray("</") + d->root + ">\n";
        default:
            return {};
        }
    };
}

void LocalWebshop::answer(Document& document, const QHttpServerRequest& request,
                          QHttpServerResponder&& responder)
{
    ++m_requests;
    using Status = QHttpServerResponder::StatusCode;
    if (m_options.fault == Fault::Unauthorized || !authorized(request)) {
        responder.write(QByteArray("Authorization required\n"),
                        {{"Content-Type", "text/plain"},
                         {"WWW-Authenticate", "Basic realm=\"tallyNorth webshop\""}},
                        Status::Unauthorized);
        return;
    }
    switch (m_options.fault) {
    case Fault::ServerError:
        responder.write(QByteArray("Internal error\n"), "text/plain", Status::InternalServerError);
        return;
    case Fault::Garbage: {
        QByteArray noise(4096, '\0');
        for (char& c : noise)
            c = char(QRandomGenerator::global()->bounded(256));
        responder.write(noise, "application/octet-stream");
        return;
    }
    case Fault::Slow:
        // Held open, never answered: the client's time-out has to end it.
        m_held << std::make_shared<QHttpServerResponder>(std::move(responder));
        return;
    default:
        break;
    }
    const QUrlQuery query = request.query();
    const QByteArray after =
        query.queryItemValue(document.timestampParameter, QUrl::FullyDecoded).toUtf8();
    const qint64 maximum = query.queryItemValue(document.maximumParameter).toLongLong();
    auto held = std::make_shared<QHttpServerResponder>(std::move(responder));
    held->writeStatusLine(Status::Ok);
    if (m_options.fault == Fault::Cut) {
        // Promises more than it sends, then drops the connection half way.
        held->writeHeaders(
            {{"Content-Type", "text/xml; charset=UTF-8"}, {"Content-Length", "100000000"}});
        Stream(held, body(document, after, maximum), 2000);
        return;
    }
    held->writeHeaders({{"Content-Type", "text/xml; charset=UTF-8"}, {"Connection", "close"}});
    Stream(held, body(document, after, maximum));
}
