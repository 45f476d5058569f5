#include "NavDouble.h"

#include "nav/NavApi.h"
#include "nav/NavSettings.h"
#include "nav/NavSignature.h"

#include <QDomDocument>
#include <QRandomGenerator>
#include <QTcpSocket>

namespace {

QByteArray Escape(const QString& text)
{
    return text.toHtmlEscaped().toUtf8();
}

QByteArray BusinessMessage(const char* result, const QString& code, const QString& message)
{
    return "<businessValidationMessages><validationResultCode>" + QByteArray(result) +
           "</validationResultCode><validationErrorCode>" + Escape(code) +
           "</validationErrorCode><message>" + Escape(message) +
           "</message></businessValidationMessages>";
}

QByteArray TechnicalMessage(const QString& code, const QString& message)
{
    return "<technicalValidationMessages><common:validationResultCode>ERROR</"
           "common:validationResultCode><common:validationErrorCode>" +
           Escape(code) + "</common:validationErrorCode><common:message>" +
           Escape(message.left(1000)) + "</common:message></technicalValidationMessages>";
}

QString InvoiceNumber(const QByteArray& xml)
{
    QDomDocument doc;
    if (!doc.setContent(xml, true))
        return {};
    for (QDomElement e = doc.documentElement().firstChildElement(); !e.isNull();
         e = e.nextSiblingElement())
        if (e.localName() == QLatin1String("invoiceNumber"))
            return e.text();
    return {};
}

} // namespace

NavDouble::NavDouble(NavDoubleUser user, const QString& schemaDir, QObject* parent)
    : QObject(parent), m_user(std::move(user)),
      m_apiSchema(XmlSchemaCheck::invoiceApiSchema(schemaDir)),
      m_dataSchema(XmlSchemaCheck::invoiceDataSchema(schemaDir))
{
    connect(&m_server, &QTcpServer::newConnection, this, [this] {
        while (QTcpSocket* socket = m_server.nextPendingConnection()) {
            m_pending.insert(socket, {});
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] { readClient(socket); });
            connect(socket, &QTcpSocket::disconnected, this, [this, socket] {
                m_pending.remove(socket);
                socket->deleteLater();
            });
        }
    });
}

bool NavDouble::listen(quint16 port)
{
    return m_apiSchema.isLoaded() && m_dataSchema.isLoaded() &&
           m_server.listen(QHostAddress::LocalHost, port);
}

QString NavDouble::url() const
{
    return QStringLiteral("http://127.0.0.1:%1/invoiceService/v3").arg(port());
}

void NavDouble::setFault(Fault fault, int count)
{
    m_fault = fault;
    m_faultCount = count;
}

bool NavDouble::parseFault(const QString& name, Fault& fault)
{
    static const QHash<QString, Fault> names{{"none", Fault::None},
                                             {"timeout", Fault::Timeout},
                                             {"500", Fault::ServerError},
                                             {"schema", Fault::SchemaError},
                                             {"duplicate", Fault::Duplicate},
                                             {"reject", Fault::Reject},
                                             {"warn", Fault::Warn}};
    if (!names.contains(name))
        return false;
    fault = names.value(name);
    return true;
}

NavDouble::~NavDouble()
{
    // The sockets die with the server; their handlers must not outlive the double.
    for (QTcpSocket* socket : m_pending.keys()) {
        socket->disconnect(this);
        delete socket;
    }
    m_pending.clear();
}

NavDouble::Fault NavDouble::takeFault(const QString& operation)
{
    // The invoices' faults count only the requests that carry invoices.
    const bool invoiceFault = m_fault != Fault::Timeout && m_fault != Fault::ServerError;
    if (invoiceFault && operation != QLatin1String("manageInvoice"))
        return Fault::None;
    const Fault fault = m_fault;
    if (m_faultCount > 0 && --m_faultCount == 0)
        m_fault = Fault::None;
    return fault;
}

void NavDouble::readClient(QTcpSocket* socket)
{
    Pending& pending = m_pending[socket];
    pending.data += socket->readAll();
    const qsizetype headerEnd = pending.data.indexOf("\r\n\r\n");
    if (headerEnd < 0)
        return;
    const QList<QByteArray> lines = pending.data.left(headerEnd).split('\n');
    qsizetype length = 0;
    for (const QByteArray& line : lines)
        if (line.toLower().startsWith("content-length:"))
            length = line.mid(15).trimmed().toLongLong();
    if (pending.data.size() < headerEnd + 4 + length)
        return;
    const QList<QByteArray> request = lines.value(0).trimmed().split(' ');
    const QByteArray body = pending.data.mid(headerEnd + 4, length);
    pending.data.clear();
    const QString path = QString::fromLatin1(request.value(1));

    // The control address changes the fault from outside (the help topic's trials).
    if (request.value(0) == "GET" && path.startsWith(QLatin1String("/control"))) {
        Fault fault;
        const QString name = path.section(u'=', 1);
        if (!parseFault(name, fault))
            return answer(socket, 400, "unknown fault\n");
        setFault(fault);
        return answer(socket, 200, "fault " + name.toUtf8() + "\n");
    }
    if (request.value(0) != "POST")
        return answer(socket, 405, {});
    const auto [status, reply] = handle(path, body);
    if (status == 0)
        return; // the timeout fault: the connection is left hanging
    answer(socket, status, reply);
}

void NavDouble::answer(QTcpSocket* socket, int status, const QByteArray& body)
{
    const QByteArray reason = status == 200   ? "OK"
                              : status == 500 ? "Internal Server Error"
                                              : "Error";
    socket->write("HTTP/1.1 " + QByteArray::number(status) + ' ' + reason +
                  "\r\nContent-Type: application/xml;charset=UTF-8\r\nContent-Length: " +
                  QByteArray::number(body.size()) + "\r\nConnection: close\r\n\r\n" + body);
    socket->disconnectFromHost();
}

std::pair<int, QByteArray> NavDouble::error(const QString& requestId, int status,
                                            const QString& code, const QString& message)
{
    m_lastErrorCode = code;
    return {status, NavApi::response(QStringLiteral("GeneralErrorResponse"), requestId,
                                     QDateTime::currentDateTimeUtc(), QStringLiteral("ERROR"), code,
                                     message)};
}

std::pair<int, QByteArray> NavDouble::handle(const QString& path, const QByteArray& body)
{
    const QString operation = path.section(u'/', -1);
    m_counts[operation] += 1;
    const Fault fault = takeFault(operation);
    if (fault == Fault::Timeout)
        return {0, {}};
    NavRequestInfo request;
    const bool parsed = NavApi::parseRequest(body, request).ok();
    if (fault == Fault::ServerError)
        return error(request.requestId, 500, QStringLiteral("OPERATION_FAILED"),
                     QStringLiteral("Internal error"));

    QStringList errors;
    if (!parsed || !m_apiSchema.validate(body, &errors))
        return error(request.requestId, 400, QStringLiteral("INVALID_REQUEST"),
                     errors.join(QStringLiteral("; ")).left(1000));
    static const QHash<QString, QString> roots{
        {"tokenExchange", "TokenExchangeRequest"},
        {"manageInvoice", "ManageInvoiceRequest"},
        {"queryTransactionStatus", "QueryTransactionStatusRequest"},
        {"queryInvoiceCheck", "QueryInvoiceCheckRequest"}};
    if (roots.value(operation) != request.root)
        return error(request.requestId, 400, QStringLiteral("INVALID_REQUEST"),
                     QStringLiteral("Unknown operation"));
    if (request.login != m_user.login ||
        request.passwordHash != NavSettings::passwordHashOf(m_user.password) ||
        request.taxNumber != m_user.taxNo)
        return error(request.requestId, 400, QStringLiteral("INVALID_SECURITY_USER"),
                     QStringLiteral("Hibás authentikációs adatok!"));
    const QDateTime timestamp = QDateTime::fromString(request.timestamp, Qt::ISODateWithMs);
    const QList<NavSignedOperation> signedOps = operation == QLatin1String("manageInvoice")
                                                    ? request.operations
                                                    : QList<NavSignedOperation>();
    if (request.requestSignature !=
        NavSignature::requestSignature(request.requestId, timestamp, m_user.signingKey, signedOps))
        return error(request.requestId, 400, QStringLiteral("INVALID_REQUEST_SIGNATURE"),
                     QStringLiteral("Helytelen kérés aláírás!"));

    const QDateTime now = QDateTime::currentDateTimeUtc();
    if (operation == QLatin1String("tokenExchange")) {
        QByteArray token = "TN";
        while (token.size() < 36)
            token += QByteArray::number(QRandomGenerator::global()->bounded(16), 16);
        m_tokens.insert(QString::fromLatin1(token), now.addSecs(300));
        const QByteArray encrypted =
            NavSignature::encryptToken(token, m_user.exchangeKey.toUtf8()).toBase64();
        return {200,
                NavApi::response(QStringLiteral("TokenExchangeResponse"), request.requestId, now,
                                 QStringLiteral("OK"), {}, {},
                                 "<encodedExchangeToken>" + encrypted + "</encodedExchangeToken>" +
                                     "<tokenValidityFrom>" + NavApi::timestampText(now).toLatin1() +
                                     "</tokenValidityFrom><tokenValidityTo>" +
                                     NavApi::timestampText(now.addSecs(300)).toLatin1() +
                                     "</tokenValidityTo>")};
    }
    if (operation == QLatin1String("manageInvoice")) {
        // A token serves one request, for five minutes.
        const QDateTime until = m_tokens.take(request.exchangeToken);
        if (!until.isValid() || until < now)
            return error(request.requestId, 400, QStringLiteral("INVALID_EXCHANGE_TOKEN"),
                         QStringLiteral("Érvénytelen adatcsere token!"));
        QList<Processing> results;
        for (int i = 0; i < request.operations.size(); ++i) {
            Processing p =
                judge(i + 1, request.operations.at(i).operation, request.operations.at(i).base64);
            if (fault == Fault::SchemaError) {
                p.status = QStringLiteral("ABORTED");
                p.messages = TechnicalMessage(QStringLiteral("SCHEMA_VIOLATION"),
                                              QStringLiteral("Az XML nem felel meg a sémának."));
            } else if (fault == Fault::Duplicate &&
                       request.operations.at(i).operation == QLatin1String("CREATE")) {
                p.status = QStringLiteral("DONE");
                p.messages = BusinessMessage("ERROR", QStringLiteral("INVOICE_NUMBER_NOT_UNIQUE"),
                                             QStringLiteral("A számlaszám már szerepel a "
                                                            "rendszerben."));
            } else if (fault == Fault::Reject) {
                p.status = QStringLiteral("DONE");
                p.messages = BusinessMessage("ERROR", QStringLiteral("INCORRECT_VAT_CODE"),
                                             QStringLiteral("Hibás ÁFA kód."));
            } else if (fault == Fault::Warn && p.status == QLatin1String("DONE")) {
                p.messages = BusinessMessage("WARN", QStringLiteral("INCORRECT_COUNTY_CODE"),
                                             QStringLiteral("A megyekód nem megfelelő."));
            }
            // Only an accepted invoice counts as reported.
            if (p.status == QLatin1String("DONE") && !p.messages.contains("ERROR<"))
                m_reported.insert(p.number);
            results << p;
        }
        const QString transactionId = QStringLiteral("TNT%1%2")
                                          .arg(now.toString(QStringLiteral("yyyyMMddHHmmss")))
                                          .arg(m_nextTransaction++, 6, 10, QLatin1Char('0'));
        m_transactions.insert(transactionId, results);
        return {200, NavApi::response(QStringLiteral("ManageInvoiceResponse"), request.requestId,
                                      now, QStringLiteral("OK"), {}, {},
                                      "<transactionId>" + transactionId.toLatin1() +
                                          "</transactionId>")};
    }
    if (operation == QLatin1String("queryInvoiceCheck")) {
        const bool found = m_reported.contains(request.invoiceNumber);
        return {200, NavApi::response(QStringLiteral("QueryInvoiceCheckResponse"),
                                      request.requestId, now, QStringLiteral("OK"), {}, {},
                                      found ? "<invoiceCheckResult>true</invoiceCheckResult>"
                                            : "<invoiceCheckResult>false</invoiceCheckResult>")};
    }
    // queryTransactionStatus
    if (!m_transactions.contains(request.transactionId))
        return {200, NavApi::response(QStringLiteral("QueryTransactionStatusResponse"),
                                      request.requestId, now, QStringLiteral("OK"))};
    QByteArray results = "<processingResults>";
    for (const Processing& p : m_transactions.value(request.transactionId))
        results += "<processingResult><index>" + QByteArray::number(p.index) +
                   "</index><invoiceStatus>" + p.status.toLatin1() + "</invoiceStatus>" +
                   p.messages + "<compressedContentIndicator>false</compressedContentIndicator>" +
                   "</processingResult>";
    results += "<originalRequestVersion>3.0</originalRequestVersion></processingResults>";
    return {200, NavApi::response(QStringLiteral("QueryTransactionStatusResponse"),
                                  request.requestId, now, QStringLiteral("OK"), {}, {}, results)};
}

NavDouble::Processing NavDouble::judge(int index, const QString& operation,
                                       const QByteArray& base64)
{
    Processing p{index, QStringLiteral("DONE"), {}, {}};
    const QByteArray xml = QByteArray::fromBase64(base64);
    QStringList errors;
    if (!m_dataSchema.validate(xml, &errors)) {
        p.status = QStringLiteral("ABORTED");
        for (const QString& e : std::as_const(errors))
            p.messages += TechnicalMessage(QStringLiteral("SCHEMA_VIOLATION"), e);
        return p;
    }
    const QString number = InvoiceNumber(xml);
    if (m_reported.contains(number)) {
        p.messages = BusinessMessage("ERROR", QStringLiteral("INVOICE_NUMBER_NOT_UNIQUE"),
                                     QStringLiteral("A számlaszám már szerepel a rendszerben."));
        return p;
    }
    Q_UNUSED(operation);
    p.number = number;
    return p;
}
