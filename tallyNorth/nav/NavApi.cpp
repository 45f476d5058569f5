#include "NavApi.h"

#include "base/ProgramInfo.h"

#include <QDomDocument>
#include <QRandomGenerator>
#include <QXmlStreamWriter>

namespace {

void Header(QXmlStreamWriter& xml, const QString& requestId, const QDateTime& timestamp)
{
    xml.writeStartElement(NavApi::kCommon, QStringLiteral("header"));
    xml.writeTextElement(NavApi::kCommon, QStringLiteral("requestId"), requestId);
    xml.writeTextElement(NavApi::kCommon, QStringLiteral("timestamp"),
                         NavApi::timestampText(timestamp));
    xml.writeTextElement(NavApi::kCommon, QStringLiteral("requestVersion"), QStringLiteral("3.0"));
    xml.writeTextElement(NavApi::kCommon, QStringLiteral("headerVersion"), QStringLiteral("1.0"));
    xml.writeEndElement();
}

void Software(QXmlStreamWriter& xml)
{
    xml.writeStartElement(NavApi::kApi, QStringLiteral("software"));
    xml.writeTextElement(NavApi::kApi, QStringLiteral("softwareId"),
                         QStringLiteral("TALLYNORTH-0000001"));
    xml.writeTextElement(NavApi::kApi, QStringLiteral("softwareName"), ProgramName());
    xml.writeTextElement(NavApi::kApi, QStringLiteral("softwareOperation"),
                         QStringLiteral("LOCAL_SOFTWARE"));
    xml.writeTextElement(NavApi::kApi, QStringLiteral("softwareMainVersion"), ProgramVersion());
    xml.writeTextElement(NavApi::kApi, QStringLiteral("softwareDevName"),
                         QStringLiteral("tallyNorth"));
    xml.writeTextElement(NavApi::kApi, QStringLiteral("softwareDevContact"),
                         QStringLiteral("info@tallynorth.hu"));
    xml.writeTextElement(NavApi::kApi, QStringLiteral("softwareDevCountryCode"),
                         QStringLiteral("HU"));
    xml.writeEndElement();
}

// Starts a request: root, header, user with the signature over the given operations.
void Begin(QXmlStreamWriter& xml, const char* root, const NavSettings& settings,
           const QString& requestId, const QDateTime& timestamp,
           const QList<NavSignedOperation>& operations = {})
{
    xml.writeStartDocument();
    xml.writeNamespace(NavApi::kCommon, QStringLiteral("common"));
    xml.writeDefaultNamespace(NavApi::kApi);
    xml.writeStartElement(NavApi::kApi, QLatin1String(root));
    Header(xml, requestId, timestamp);
    xml.writeStartElement(NavApi::kCommon, QStringLiteral("user"));
    xml.writeTextElement(NavApi::kCommon, QStringLiteral("login"), settings.login);
    xml.writeStartElement(NavApi::kCommon, QStringLiteral("passwordHash"));
    xml.writeAttribute(QStringLiteral("cryptoType"), QStringLiteral("SHA-512"));
    xml.writeCharacters(settings.passwordHash);
    xml.writeEndElement();
    xml.writeTextElement(NavApi::kCommon, QStringLiteral("taxNumber"), settings.taxNo);
    xml.writeStartElement(NavApi::kCommon, QStringLiteral("requestSignature"));
    xml.writeAttribute(QStringLiteral("cryptoType"), QStringLiteral("SHA3-512"));
    xml.writeCharacters(
        NavSignature::requestSignature(requestId, timestamp, settings.signingKey, operations));
    xml.writeEndElement();
    xml.writeEndElement();
    Software(xml);
}

QDomElement Child(const QDomElement& parent, const char* name)
{
    for (QDomElement e = parent.firstChildElement(); !e.isNull(); e = e.nextSiblingElement())
        if (e.localName() == QLatin1String(name))
            return e;
    return {};
}

QList<QDomElement> Children(const QDomElement& parent, const char* name)
{
    QList<QDomElement> found;
    for (QDomElement e = parent.firstChildElement(); !e.isNull(); e = e.nextSiblingElement())
        if (e.localName() == QLatin1String(name))
            found << e;
    return found;
}

QString Text(const QDomElement& parent, const char* name)
{
    return Child(parent, name).text().trimmed();
}

QString Message(const QDomElement& e)
{
    QString code = Text(e, "validationErrorCode");
    if (code.isEmpty())
        code = Text(e, "validationResultCode");
    const QString text = Text(e, "message");
    return text.isEmpty() ? code : code + QStringLiteral(": ") + text;
}

} // namespace

QString NavResponse::errorText() const
{
    QStringList parts;
    if (!errorCode.isEmpty())
        parts << (message.isEmpty() ? errorCode : errorCode + QStringLiteral(": ") + message);
    else if (!message.isEmpty())
        parts << message;
    parts << technicalMessages;
    return parts.join(u'&');
}

QString NavApi::newRequestId()
{
    static const char chars[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
    QString id = QStringLiteral("TN") +
                 QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMddHHmmss"));
    while (id.size() < 30)
        id += QLatin1Char(chars[QRandomGenerator::global()->bounded(36)]);
    return id;
}

QString NavApi::timestampText(const QDateTime& timestamp)
{
    return timestamp.toUTC().toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss.zzzZ"));
}

QByteArray NavApi::tokenExchangeRequest(const NavSettings& settings, const QString& requestId,
                                        const QDateTime& timestamp)
{
    QByteArray out;
    QXmlStreamWriter xml(&out);
    Begin(xml, "TokenExchangeRequest", settings, requestId, timestamp);
    xml.writeEndElement();
    xml.writeEndDocument();
    return out;
}

QByteArray NavApi::manageInvoiceRequest(const NavSettings& settings, const QString& requestId,
                                        const QDateTime& timestamp, const QByteArray& exchangeToken,
                                        const QList<NavSignedOperation>& operations)
{
    QByteArray out;
    QXmlStreamWriter xml(&out);
    Begin(xml, "ManageInvoiceRequest", settings, requestId, timestamp, operations);
    xml.writeTextElement(kApi, QStringLiteral("exchangeToken"), QString::fromUtf8(exchangeToken));
    xml.writeStartElement(kApi, QStringLiteral("invoiceOperations"));
    xml.writeTextElement(kApi, QStringLiteral("compressedContent"), QStringLiteral("false"));
    for (int i = 0; i < operations.size(); ++i) {
        xml.writeStartElement(kApi, QStringLiteral("invoiceOperation"));
        xml.writeTextElement(kApi, QStringLiteral("index"), QString::number(i + 1));
        xml.writeTextElement(kApi, QStringLiteral("invoiceOperation"), operations.at(i).operation);
        xml.writeTextElement(kApi, QStringLiteral("invoiceData"),
                             QString::fromLatin1(operations.at(i).base64));
        xml.writeEndElement();
    }
    xml.writeEndElement();
    xml.writeEndElement();
    xml.writeEndDocument();
    return out;
}

QByteArray NavApi::queryTransactionStatusRequest(const NavSettings& settings,
                                                 const QString& requestId,
                                                 const QDateTime& timestamp,
                                                 const QString& transactionId)
{
    QByteArray out;
    QXmlStreamWriter xml(&out);
    Begin(xml, "QueryTransactionStatusRequest", settings, requestId, timestamp);
    xml.writeTextElement(kApi, QStringLiteral("transactionId"), transactionId);
    xml.writeEndElement();
    xml.writeEndDocument();
    return out;
}

QByteArray NavApi::queryInvoiceCheckRequest(const NavSettings& settings, const QString& requestId,
                                            const QDateTime& timestamp,
                                            const QString& invoiceNumber)
{
    QByteArray out;
    QXmlStreamWriter xml(&out);
    Begin(xml, "QueryInvoiceCheckRequest", settings, requestId, timestamp);
    xml.writeStartElement(kApi, QStringLiteral("invoiceNumberQuery"));
    xml.writeTextElement(kApi, QStringLiteral("invoiceNumber"), invoiceNumber);
    xml.writeTextElement(kApi, QStringLiteral("invoiceDirection"), QStringLiteral("OUTBOUND"));
    xml.writeEndElement();
    xml.writeEndElement();
    xml.writeEndDocument();
    return out;
}

Result NavApi::parseResponse(const QByteArray& xml, NavResponse& response)
{
    QDomDocument doc;
    if (!doc.setContent(xml, true))
        return Result::failure(QStringLiteral("not XML"));
    const QDomElement root = doc.documentElement();
    response = {};
    response.root = root.localName();
    const QDomElement result = Child(root, "result");
    if (result.isNull())
        return Result::failure(QStringLiteral("no result"));
    response.funcCode = Text(result, "funcCode");
    response.errorCode = Text(result, "errorCode");
    response.message = Text(result, "message");
    for (const QDomElement& m : Children(root, "technicalValidationMessages"))
        response.technicalMessages << Message(m);
    response.transactionId = Text(root, "transactionId");
    response.encodedExchangeToken = Text(root, "encodedExchangeToken").toLatin1();
    response.invoiceCheckResult = Text(root, "invoiceCheckResult") == QLatin1String("true");
    for (const QDomElement& r : Children(Child(root, "processingResults"), "processingResult")) {
        NavProcessingResult p;
        p.index = Text(r, "index").toInt();
        p.status = Text(r, "invoiceStatus");
        for (const QDomElement& m : Children(r, "technicalValidationMessages")) {
            p.messages << Message(m);
            p.errors = true;
        }
        for (const QDomElement& m : Children(r, "businessValidationMessages")) {
            p.messages << Message(m);
            const QString code = Text(m, "validationResultCode");
            if (code == QLatin1String("ERROR"))
                p.errors = true;
            else if (code == QLatin1String("WARN"))
                p.warnings = true;
        }
        response.results << p;
    }
    return Result::success();
}

Result NavApi::parseRequest(const QByteArray& xml, NavRequestInfo& request)
{
    QDomDocument doc;
    if (!doc.setContent(xml, true))
        return Result::failure(QStringLiteral("not XML"));
    const QDomElement root = doc.documentElement();
    request = {};
    request.root = root.localName();
    const QDomElement header = Child(root, "header");
    request.requestId = Text(header, "requestId");
    request.timestamp = Text(header, "timestamp");
    const QDomElement user = Child(root, "user");
    request.login = Text(user, "login");
    request.passwordHash = Text(user, "passwordHash");
    request.taxNumber = Text(user, "taxNumber");
    request.requestSignature = Text(user, "requestSignature");
    request.exchangeToken = Text(root, "exchangeToken");
    request.transactionId = Text(root, "transactionId");
    request.invoiceNumber = Text(Child(root, "invoiceNumberQuery"), "invoiceNumber");
    for (const QDomElement& op : Children(Child(root, "invoiceOperations"), "invoiceOperation"))
        request.operations << NavSignedOperation{Text(op, "invoiceOperation"),
                                                 Text(op, "invoiceData").toLatin1()};
    return Result::success();
}

QByteArray NavApi::response(const QString& root, const QString& requestId,
                            const QDateTime& timestamp, const QString& funcCode,
                            const QString& errorCode, const QString& message,
                            const QByteArray& extra)
{
    QByteArray out;
    {
        QXmlStreamWriter xml(&out);
        xml.writeStartDocument();
        xml.writeNamespace(kCommon, QStringLiteral("common"));
        xml.writeDefaultNamespace(kApi);
        xml.writeStartElement(kApi, root);
        Header(xml, requestId, timestamp);
        xml.writeStartElement(kCommon, QStringLiteral("result"));
        xml.writeTextElement(kCommon, QStringLiteral("funcCode"), funcCode);
        if (!errorCode.isEmpty())
            xml.writeTextElement(kCommon, QStringLiteral("errorCode"), errorCode);
        if (!message.isEmpty())
            xml.writeTextElement(kCommon, QStringLiteral("message"), message);
        xml.writeEndElement();
        Software(xml);
        // Closes the start tag; what follows is raw, in the answer's default namespace.
        xml.writeCharacters(QString());
    }
    out += extra;
    out += "</" + root.toUtf8() + ">";
    return out;
}
