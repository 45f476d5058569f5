// Validates XML documents against the tax authority's published schemas with libxml2, so that a
// document is known to be well-formed for the authority before it leaves the program.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

class XmlSchemaCheck
{
public:
    // entrySchema: a schema file that imports the others by location (validate-invoiceData.xsd).
    explicit XmlSchemaCheck(const QString& entrySchema);
    ~XmlSchemaCheck();
    XmlSchemaCheck(const XmlSchemaCheck&) = delete;
    XmlSchemaCheck& operator=(const XmlSchemaCheck&) = delete;

    bool isLoaded() const { return m_schema != nullptr; }
    // True when the document validates; otherwise errors holds libxml2's messages with lines.
    bool validate(const QByteArray& xml, QStringList* errors = nullptr) const;

    // The entry schemas in the folder of the shipped schemas.
    static QString invoiceDataSchema(const QString& folder = QStringLiteral(TN_NAV_SCHEMA_DIR));
    static QString invoiceApiSchema(const QString& folder = QStringLiteral(TN_NAV_SCHEMA_DIR));

private:
    struct _xmlSchema* m_schema = nullptr;
};
