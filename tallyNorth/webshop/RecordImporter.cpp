#include "RecordImporter.h"

#include "BasicDataWrite.h"
#include "WebshopInteraction.h"
#include "WebshopXml.h"

#include "Columns.h"
#include "base/FoldName.h"
#include "base/Interaction.h"
#include "base/MessageArgs.h"
#include "base/Setup.h"
#include "base/SqlStatement.h"
#include "base/SqlTransaction.h"
#include "base/SqlValue.h"
#include "documents/QtfReader.h"
#include "masterdata/MasterTables.h"

#include <QSqlError>
#include <QXmlStreamReader>

namespace {

QString Text(const char* source)
{
    return QCoreApplication::translate("RecordImporter", source);
}

// The elements of a partner record that are plain text columns of the same name.
const char* const kPartnerTexts[] = {
    Col::PARTNER_NAME,
    Col::PARTNER_ZIP,
    Col::PARTNER_CITY,
    Col::PARTNER_ADDRESS,
    Col::PARTNER_OTHER_DATA,
    Col::PARTNER_MAIL_NAME,
    Col::PARTNER_MAIL_ZIP,
    Col::PARTNER_MAIL_CITY,
    Col::PARTNER_MAIL_ADDRESS,
    Col::PARTNER_COMMENT,
    Col::PARTNER_CONTACT_NAME,
    Col::PARTNER_CONTACT_PHONE,
    Col::PARTNER_CONTACT_EMAIL,
    Col::PARTNER_CONTACT_COMMENT,
    Col::PARTNER_CONTACT_MOBILE_PHONE,
};

const char* const kProductTexts[] = {Col::PRODUCT_NAME, Col::PRODUCT_STAT_NO, Col::PRODUCT_UNIT};

} // namespace

RecordImporter::RecordImporter(Kind kind, Interaction& interaction, WebshopInteraction& ask)
    : m_kind(kind), m_interaction(interaction), m_ask(ask)
{
}

bool RecordImporter::importDocument(QIODevice& device, Progress* progress)
{
    m_stored.clear();
    const bool partners = m_kind == Kind::Partners;
    const QLatin1String rootTag(partners ? "PARTNERS" : "PRODUCTS");
    const QLatin1String recordTag(partners ? "PARTNER" : "PRODUCT");
    // Text without markup has no tags; markup the parser can not read keeps its own words.
    const bool markup = device.peek(64 * 1024).contains('<');
    QXmlStreamReader reader(&device);
    Result outcome = Result::success();
    bool root = false;
    while (!reader.atEnd() && !root)
        root = reader.readNext() == QXmlStreamReader::StartElement;
    if (!root && markup && reader.hasError()) {
        outcome = Result::failure(
            Text(QT_TRANSLATE_NOOP("RecordImporter", "Error processing data from server:&")) +
            QtfEscape(reader.errorString()));
    } else if (!root) {
        outcome =
            Result::failure(Text(QT_TRANSLATE_NOOP("RecordImporter", "No XML tags in document.")));
    } else if (reader.name() != rootTag) {
        outcome = Result::failure(
            partners ? FillArgs(Text(QT_TRANSLATE_NOOP("RecordImporter",
                                                       "No PARTNERS tag. The first tag is: %s")),
                                {reader.name().toString()})
                     : Text(QT_TRANSLATE_NOOP("RecordImporter", "No PRODUCTS tag.")));
    } else {
        while (outcome && reader.readNextStartElement()) {
            if (reader.name() != recordTag) {
                outcome = Result::failure(
                    partners ? Text(QT_TRANSLATE_NOOP("RecordImporter", "NO PARTNER tag."))
                             : Text(QT_TRANSLATE_NOOP("RecordImporter", "NO PRODUCT tag.")));
                break;
            }
            if (progress && progress->canceled()) {
                outcome = Result::failure(
                    partners ? Text(QT_TRANSLATE_NOOP("RecordImporter",
                                                      "Saving partners to database aborted."))
                             : Text(QT_TRANSLATE_NOOP("RecordImporter",
                                                      "Saving products to database aborted.")));
                break;
            }
            XmlRecord record;
            if (!ReadXmlRecord(reader, record))
                break;
            outcome = importRecord(record);
            if (progress)
                progress->setPos(int(m_stored.size()));
        }
        if (outcome && reader.hasError())
            outcome = Result::failure(
                Text(QT_TRANSLATE_NOOP("RecordImporter", "Error processing data from server:&")) +
                QtfEscape(reader.errorString()));
    }
    if (!m_stored.isEmpty())
        (void)Setup::current().load();
    if (!outcome) {
        m_interaction.error(outcome.message());
        return false;
    }
    return true;
}

Result RecordImporter::partnerValues(const XmlRecord& record, QVariantMap& row)
{
    for (const char* column : kPartnerTexts) {
        const QString name = QLatin1String(column);
        if (record.has(name))
            row.insert(name, record.text(name));
    }
    const QString name = record.text(QStringLiteral("PARTNER_NAME"));
    if (record.has(QStringLiteral("PARTNER_NAME")))
        row.insert(QLatin1String(Col::PARTNER_NAME_ASCII), FoldName(name));
    if (record.has(QStringLiteral("PARTNER_MAIL_IS_SAME")))
        row.insert(QLatin1String(Col::PARTNER_MAIL_IS_SAME),
                   WebshopFlag(record.text(QStringLiteral("PARTNER_MAIL_IS_SAME")))
                       ? QStringLiteral("1")
                       : QStringLiteral("0"));
    // A value that is no number is not stored.
    if (const auto days = WebshopInteger(record.text(QStringLiteral("PARTNER_PAYMENT_DUE_DAYS"))))
        row.insert(QLatin1String(Col::PARTNER_PAYMENT_DUE_DAYS), *days);
    const QString code = record.text(QStringLiteral("PAYMENTMETHOD_CODE"));
    if (code.isEmpty())
        return Result::success();
    std::optional<qint64> method;
    if (!FindByCode(Tbl::PAYMENTMETHOD, Col::PAYMENTMETHOD_ID, Col::PAYMENTMETHOD_CODE, code,
                    method))
        return Result::failure(
            Text(QT_TRANSLATE_NOOP("RecordImporter", "Saving partners to database aborted.")));
    if (!method) {
        m_interaction.exclamation(FillArgs(
            Text(QT_TRANSLATE_NOOP("RecordImporter",
                                   "[G1 Eddig nem szereplo fizetesi mod.&&Partner neve: "
                                   "\"%s\",&Fizetesi mod kodja: \"%s\"&Fizetesi mod megnevezese: "
                                   "\"%s\"&& Valassza ki a megfelelo fizetesi modot a kovetkezo "
                                   "ablakbol!]")),
            {name, code, record.text(QStringLiteral("PAYMENTMETHOD_NAME"))}));
        method = m_ask.chooseRow(MasterTable::PaymentMethod);
        if (!method)
            return Result::failure(
                Text(QT_TRANSLATE_NOOP("RecordImporter", "Saving partners to database aborted.")));
    }
    row.insert(QLatin1String(Col::PARTNER_PAYMENTMETHOD_ID), *method);
    return Result::success();
}

Result RecordImporter::productValues(const XmlRecord& record, QVariantMap& row)
{
    for (const char* column : kProductTexts) {
        const QString name = QLatin1String(column);
        if (record.has(name))
            row.insert(name, record.text(name));
    }
    const QString name = record.text(QStringLiteral("PRODUCT_NAME"));
    if (record.has(QStringLiteral("PRODUCT_NAME")))
        row.insert(QLatin1String(Col::PRODUCT_NAME_ASCII), FoldName(name));
    if (const auto price = WebshopNumber(record.text(QStringLiteral("PRODUCT_PRICE"))))
        row.insert(QLatin1String(Col::PRODUCT_PRICE), *price);
    const QString code = record.text(QStringLiteral("PRODUCT_VAT_CODE"));
    if (code.isEmpty())
        return Result::success();
    std::optional<qint64> vat;
    if (!FindByCode(Tbl::VAT, Col::VAT_ID, Col::VAT_CODE, code, vat))
        return Result::failure(
            Text(QT_TRANSLATE_NOOP("RecordImporter", "Saving products to database aborted.")));
    if (!vat) {
        m_interaction.exclamation(FillArgs(
            Text(QT_TRANSLATE_NOOP("RecordImporter",
                                   "[G1 New VAT_CODE found.&&PRODUCT_NAME: \"%s\",&VAT_CODE: "
                                   "\"%s\"&& Please, select appropriate VAT key in nex dialog.]")),
            {name, code}));
        vat = m_ask.chooseRow(MasterTable::Vat);
        if (!vat)
            return Result::failure(
                Text(QT_TRANSLATE_NOOP("RecordImporter", "Saving products to database aborted.")));
    }
    row.insert(QLatin1String(Col::PRODUCT_VAT_ID), *vat);
    return Result::success();
}

Result RecordImporter::importRecord(const XmlRecord& record)
{
    const bool partners = m_kind == Kind::Partners;
    const char* table = partners ? Tbl::PARTNER : Tbl::PRODUCT;
    const char* idColumn = partners ? Col::PARTNER_ID : Col::PRODUCT_ID;
    const char* codeColumn = partners ? Col::PARTNER_CODE : Col::PRODUCT_CODE;
    const char* nameColumn = partners ? Col::PARTNER_NAME : Col::PRODUCT_NAME;
    const QString code = record.text(QLatin1String(codeColumn));
    const QString name = record.text(QLatin1String(nameColumn));

    QVariantMap row;
    if (Result r = partners ? partnerValues(record, row) : productValues(record, row); !r)
        return r;
    // Questions are over: the row and its timestamp are written together or not at all.
    SqlTransaction transaction;
    std::optional<qint64> id;
    if (!FindByCode(table, idColumn, codeColumn, code, id))
        return Result::failure(
            Text(QT_TRANSLATE_NOOP("RecordImporter", "Error processing data from server:&")) +
            Database::session().lastError().text());
    if (!id) {
        QVariantMap fresh = partners ? NewPartnerDefaults() : QVariantMap();
        for (auto it = row.cbegin(); it != row.cend(); ++it)
            fresh.insert(it.key(), it.value());
        row = fresh;
        row.insert(QLatin1String(codeColumn), code.isEmpty() ? QVariant() : QVariant(code));
    }
    if (partners && IsFlagSet(row.value(QLatin1String(Col::PARTNER_MAIL_IS_SAME))))
        CopyMailAddress(row);
    const bool update = id.has_value();
    bool written = WriteRow(table, idColumn, row, id);
    const char* timestampColumn = partners ? Col::SETUP_DOWNLOAD_LAST_PARTNER_TIMESTAMP
                                           : Col::SETUP_DOWNLOAD_LAST_PRODUCT_TIMESTAMP;
    const QString timestamp =
        record.text(QLatin1String(partners ? "PARTNER_TIMESTAMP" : "PRODUCT_TIMESTAMP"));
    if (written && !timestamp.isEmpty())
        written = bool(ExecSql(Sql("UPDATE SETUP SET %1 = ?", {timestampColumn}), {timestamp}));
    if (written)
        written = transaction.commit();
    if (!written) {
        const QString error = Database::session().lastError().text();
        transaction.rollback();
        QString message = FillArgs(
            update ? Text(QT_TRANSLATE_NOOP("RecordImporter",
                                            "Unable to update in DB. CODE: %s, NAME: %s"))
                   : Text(QT_TRANSLATE_NOOP("RecordImporter",
                                            "Unable to insert into DB. CODE: %s, NAME: %s")),
            {code, name});
        const QVariant clash =
            SelectValue(Sql("select count(*) from %1 where upper(%2) = upper(?) and "
                            "coalesce(%3, '') <> ?",
                            {table, nameColumn, codeColumn}),
                        {name, code});
        if (clash.toInt() > 0)
            message = (partners ? Text(QT_TRANSLATE_NOOP("RecordImporter",
                                                         "Error: Maybe there is an other partner "
                                                         "in the database with the same name and "
                                                         "a different code:&"))
                                : Text(QT_TRANSLATE_NOOP("RecordImporter",
                                                         "Error: Maybe there is an other product "
                                                         "in the database with the same name and "
                                                         "a different code:&"))) +
                      message;
        return Result::failure(message + u'&' + QtfEscape(error));
    }
    m_stored << *id;
    return Result::success();
}
