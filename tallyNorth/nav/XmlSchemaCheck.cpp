#include "XmlSchemaCheck.h"

#include <QDir>
#include <QFile>

#include <libxml/parser.h>
#include <libxml/xmlschemas.h>

namespace {

void CollectError(void* context, const xmlError* error)
{
    auto* errors = static_cast<QStringList*>(context);
    if (errors && error)
        errors->append(QStringLiteral("%1: %2")
                           .arg(error->line)
                           .arg(QString::fromUtf8(error->message).trimmed()));
}

void Silent(void*, const xmlError*) {}

} // namespace

XmlSchemaCheck::XmlSchemaCheck(const QString& entrySchema)
{
    const QByteArray path = QFile::encodeName(entrySchema);
    xmlSchemaParserCtxtPtr parser = xmlSchemaNewParserCtxt(path.constData());
    if (!parser)
        return;
    xmlSchemaSetParserStructuredErrors(parser, reinterpret_cast<xmlStructuredErrorFunc>(&Silent),
                                       nullptr);
    m_schema = xmlSchemaParse(parser);
    xmlSchemaFreeParserCtxt(parser);
}

XmlSchemaCheck::~XmlSchemaCheck()
{
    if (m_schema)
        xmlSchemaFree(m_schema);
}

bool XmlSchemaCheck::validate(const QByteArray& xml, QStringList* errors) const
{
    QStringList found;
    if (!m_schema) {
        found << QStringLiteral("0: the schema could not be loaded");
    } else {
        xmlDocPtr doc = xmlReadMemory(xml.constData(), int(xml.size()), "document.xml", nullptr,
                                      XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING);
        if (!doc) {
            found << QStringLiteral("0: not well-formed XML");
        } else {
            xmlSchemaValidCtxtPtr valid = xmlSchemaNewValidCtxt(m_schema);
            xmlSchemaSetValidStructuredErrors(
                valid, reinterpret_cast<xmlStructuredErrorFunc>(&CollectError), &found);
            if (xmlSchemaValidateDoc(valid, doc) != 0 && found.isEmpty())
                found << QStringLiteral("0: invalid");
            xmlSchemaFreeValidCtxt(valid);
            xmlFreeDoc(doc);
        }
    }
    if (errors)
        *errors = found;
    return found.isEmpty();
}

QString XmlSchemaCheck::invoiceDataSchema(const QString& folder)
{
    return QDir(folder).filePath(QStringLiteral("validate-invoiceData.xsd"));
}

QString XmlSchemaCheck::invoiceApiSchema(const QString& folder)
{
    return QDir(folder).filePath(QStringLiteral("validate-invoiceApi.xsd"));
}
