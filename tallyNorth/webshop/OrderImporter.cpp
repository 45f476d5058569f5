#include "OrderImporter.h"

#include "BasicDataWrite.h"
#include "WebshopInteraction.h"
#include "WebshopXml.h"

#include "Columns.h"
#include "base/Database.h"
#include "base/FoldName.h"
#include "base/Interaction.h"
#include "base/MessageArgs.h"
#include "base/Setup.h"
#include "base/SqlStatement.h"
#include "base/SqlTransaction.h"
#include "documents/QtfReader.h"
#include "orders/Order.h"
#include "orders/OrderFill.h"
#include "orders/OrderStore.h"

#include <QSqlError>
#include <QXmlStreamReader>

namespace {

QString& VersionSlot()
{
    static QString version = QStringLiteral("1.0");
    return version;
}

QString Text(const char* source)
{
    return QCoreApplication::translate("OrderImporter", source);
}

Result Fail(const char* source, const QStringList& args = {})
{
    return Result::failure(FillArgs(Text(source), args));
}

// The first line code of the order that is stored already: the line that could not be inserted.
QString StoredItemCode(const Order& order)
{
    for (const OrderItem& item : order.items) {
        if (!item.code.isEmpty() && SelectValue(Sql("select count(*) from %1 where %2 = ?",
                                                    {Tbl::ORDERITEM, Col::ORDERITEM_CODE}),
                                                {item.code})
                                            .toInt() > 0)
            return item.code;
    }
    return {};
}

} // namespace

OrderImporter::OrderImporter(Interaction& interaction, WebshopInteraction& ask)
    : m_interaction(interaction), m_ask(ask)
{
}

QString OrderImporter::documentVersion()
{
    return VersionSlot();
}

bool OrderImporter::importDocument(QIODevice& device, Progress* progress)
{
    m_created.clear();
    m_partners.clear();
    m_products.clear();
    m_homeCountry.reset();
    forgetCaches();
    VersionSlot() = QStringLiteral("1.0");
    m_updateBasicData = Setup::current().flag(Col::SETUP_DOWNLOAD_UPDATE_BASIC_DATA);

    // Text without any markup is told as such; a parse error at the start of a document with
    // markup (an encoding that can not be read) keeps the parser's own words.
    const bool markup = device.peek(64 * 1024).contains('<');
    QXmlStreamReader reader(&device);
    bool anyElement = false;
    int depth = 0;
    Result outcome = Result::success();
    while (outcome && !reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartDocument:
            if (!reader.documentVersion().isEmpty())
                VersionSlot() = reader.documentVersion().toString();
            break;
        case QXmlStreamReader::ProcessingInstruction:
            if (depth == 0) {
                const QString version = PiVersion(reader.processingInstructionData().toString());
                if (!version.isEmpty())
                    VersionSlot() = version;
            }
            break;
        case QXmlStreamReader::StartElement:
            anyElement = true;
            if (depth == 0 && reader.name() == QLatin1String("ORDERS")) {
                // Each child is one order, whatever its tag; stored before the next is read.
                while (outcome && reader.readNextStartElement()) {
                    XmlRecord order;
                    if (!ReadXmlRecord(reader, order, QStringLiteral("ORDERITEM")))
                        break;
                    outcome = importOrder(order, progress);
                }
            } else {
                ++depth;
            }
            break;
        case QXmlStreamReader::EndElement:
            --depth;
            break;
        default:
            break;
        }
    }
    m_prepared.clear();
    // Each stored order moved the timestamp; the settings in memory follow the database.
    if (!m_created.isEmpty())
        (void)Setup::current().load();
    if (!outcome) {
        m_interaction.error(outcome.message());
        return false;
    }
    if (!anyElement && !(markup && reader.hasError())) {
        m_interaction.error(Text(QT_TRANSLATE_NOOP("OrderImporter", "No XML tags in document.")));
        return false;
    }
    if (reader.hasError()) {
        m_interaction.error(QtfEscape(reader.errorString()));
        return false;
    }
    return true;
}

Result OrderImporter::importOrder(const XmlRecord& element, Progress* progress)
{
    if (!m_homeCountry) {
        std::optional<qint64> country;
        const bool currencyOk = SelectValue(Sql("select count(*) from %1 where %2 = 0",
                                                {Tbl::CURRENCYY, Col::CURRENCY_ID}))
                                    .toInt() == 1;
        if (!findCode(Tbl::COUNTRY, Col::COUNTRY_ID, Col::COUNTRY_INTERNATIONAL_CODE,
                      QStringLiteral("HU"), country) ||
            !country || !currencyOk)
            return Fail(QT_TRANSLATE_NOOP("OrderImporter", "Error in reading database."));
        m_homeCountry = country;
    }

    Order order;
    QString timestamp;
    if (Result r = readHeader(element, order, timestamp); !r)
        return r;
    if (progress && progress->canceled())
        return Fail(QT_TRANSLATE_NOOP("OrderImporter", "Operation canceled."));

    const QString code = order.code;
    if (Result r =
            resolveCurrency(element.text(QStringLiteral("ORDERHEAD_CURRENCY_ABBREVIATION")), order);
        !r)
        return r;
    if (Result r =
            resolveLanguage(element.text(QStringLiteral("ORDERHEAD_PARTNER_LANG_CODE")), order);
        !r)
        return r;
    if (Result r = resolveCountry(
            element.text(QStringLiteral("ORDERHEAD_PARTNER_COUNTRY_INTERNATIONAL_CODE")),
            order.partnerCountryId);
        !r)
        return r;
    if (Result r = resolveCountry(
            element.text(QStringLiteral("ORDERHEAD_PARTNER_MAIL_COUNTRY_INTERNATIONAL_CODE")),
            order.mailCountryId);
        !r)
        return r;
    if (Result r =
            resolveNoVatReason(element.text(QStringLiteral("ORDERHEAD_NOVATREASON_CODE")), order);
        !r)
        return r;
    if (Result r = resolvePaymentMethod(
            element.text(QStringLiteral("ORDERHEAD_PAYMENTMETHOD_CODE")), code, order);
        !r)
        return r;

    // From here on nothing asks: the master data written back belongs to the order's
    // transaction and goes with it when the order fails.
    SqlTransaction transaction;
    if (Result r = resolvePartner(order); !r)
        return r;
    QList<qint64> products;
    for (const XmlRecord& itemElement : element.items) {
        OrderItem item;
        if (Result r = readItem(itemElement, order, item); !r)
            return r;
        if (Result r = resolveProduct(order, item); !r)
            return r;
        if (item.productId && m_updateBasicData)
            products << *item.productId;
        order.items << item;
    }
    if (order.items.isEmpty())
        return Fail(QT_TRANSLATE_NOOP("OrderImporter", "Order without items. ORDERHEAD_CODE is %s"),
                    {code});
    if (!order.datePaymentDue.isValid()) {
        const int days = OrderFill::dueDays(
            m_partnerDays,
            order.paymentMethodId ? methodDueDays(*order.paymentMethodId) : std::nullopt);
        order.datePaymentDue = order.dateCreated.addDays(days);
    }
    if (Result r = storeOrder(order, timestamp); !r)
        return r;
    if (!transaction.commit())
        return Result::failure(
            FillArgs(Text(QT_TRANSLATE_NOOP("OrderImporter", "Can't insert order %s.")), {code}) +
            u'&' + QtfEscape(transaction.errorText()));
    m_created << order.id;
    if (m_updateBasicData && order.partnerId)
        m_partners << *order.partnerId;
    m_products << products;
    if (progress)
        progress->setPos(int(m_created.size()));
    return Result::success();
}

Result OrderImporter::readHeader(const XmlRecord& e, Order& order, QString& timestamp)
{
    if (!e.has(QStringLiteral("ORDERHEAD_CODE")))
        return Fail(QT_TRANSLATE_NOOP("OrderImporter", "ORDERHEAD_CODE is missing"));
    if (!m_newOrder) {
        m_newOrder.emplace();
        if (Result r = OrderFill::newOrder(*m_newOrder); !r) {
            m_newOrder.reset();
            return r;
        }
    }
    order = *m_newOrder;
    order.code = e.text(QStringLiteral("ORDERHEAD_CODE"));
    timestamp = e.text(QStringLiteral("ORDERHEAD_TIMESTAMP"));
    const auto text = [&](const char* tag, QString& field) {
        const QString name = QLatin1String(tag);
        if (e.has(name))
            field = e.text(name);
    };
    const auto flag = [&](const char* tag, bool& field) {
        const QString name = QLatin1String(tag);
        if (e.has(name))
            field = WebshopFlag(e.text(name));
    };
    const auto date = [&](const char* tag, QDate& field) {
        const QDate d = WebshopDate(e.text(QLatin1String(tag)));
        if (d.isValid())
            field = d;
    };
    text("ORDERHEAD_PARTNER_CODE", order.partnerCode);
    text("ORDERHEAD_PARTNER_NAME", order.partnerName);
    text("ORDERHEAD_PARTNER_ZIP", order.partnerZip);
    text("ORDERHEAD_PARTNER_CITY", order.partnerCity);
    text("ORDERHEAD_PARTNER_ADDRESS", order.partnerAddress);
    text("ORDERHEAD_PARTNER_TAX_NO", order.partnerTaxNo);
    text("ORDERHEAD_PARTNER_EU_TAX_NO", order.partnerEuTaxNo);
    text("ORDERHEAD_PARTNER_OTHER_DATA", order.partnerOtherData);
    flag("ORDERHEAD_PARTNER_MAIL_IS_SAME", order.mailIsSame);
    text("ORDERHEAD_PARTNER_MAIL_NAME", order.mailName);
    text("ORDERHEAD_PARTNER_MAIL_ZIP", order.mailZip);
    text("ORDERHEAD_PARTNER_MAIL_CITY", order.mailCity);
    text("ORDERHEAD_PARTNER_MAIL_ADDRESS", order.mailAddress);
    date("ORDERHEAD_DATE_SHIPPED", order.dateShipped);
    order.datePaymentDue = WebshopDate(e.text(QStringLiteral("ORDERHEAD_DATE_PAYMENT_DUE")));
    flag("ORDERHEAD_CONSOLIDATED_INVOICE", order.consolidated);
    flag("ORDERHEAD_NO_VAT", order.noVat);
    text("ORDERHEAD_SUBJECT", order.subject);
    flag("ORDERHEAD_VERIFIED", order.verified);
    if (order.mailIsSame) {
        order.mailName = order.partnerName;
        order.mailZip = order.partnerZip;
        order.mailCity = order.partnerCity;
        order.mailAddress = order.partnerAddress;
    }
    return Result::success();
}

Result OrderImporter::resolveCurrency(const QString& code, Order& order)
{
    std::optional<qint64> id = 0;
    if (!code.isEmpty()) {
        if (!findCode(Tbl::CURRENCYY, Col::CURRENCY_ID, Col::CURRENCY_ABBREVIATION, code, id))
            return Fail(QT_TRANSLATE_NOOP("OrderImporter", "Error loading currency data (%s)."),
                        {code});
        if (!id) {
            m_interaction.exclamation(FillArgs(
                Text(QT_TRANSLATE_NOOP("OrderImporter", "There is no %s currency in database.&You "
                                                        "have to set it up in the next window.")),
                {code}));
            forgetCaches(); // the user may change any row in the windows
            if (!m_ask.editRow(MasterTable::Currency, std::nullopt,
                               {{QLatin1String(Col::CURRENCY_ABBREVIATION), code}}))
                return Fail(QT_TRANSLATE_NOOP("OrderImporter", "Setting up currency aborted."));
            if (!findCode(Tbl::CURRENCYY, Col::CURRENCY_ID, Col::CURRENCY_ABBREVIATION, code, id) ||
                !id)
                return Fail(QT_TRANSLATE_NOOP("OrderImporter", "Error loading currency data (%s)."),
                            {code});
        }
    }
    if (!fillCurrency(order, *id))
        return Fail(QT_TRANSLATE_NOOP("OrderImporter", "Error loading currency data (%s)."),
                    {code});
    return Result::success();
}

Result OrderImporter::resolveLanguage(const QString& code, Order& order)
{
    // Hungarian is language 0 and has no row.
    std::optional<qint64> id = 0;
    if (!code.isEmpty() && code.compare(QLatin1String("HU"), Qt::CaseInsensitive) != 0) {
        if (!findCode(Tbl::LANG, Col::LANG_ID, Col::LANG_CODE, code.toUpper(), id) || !id)
            return Fail(QT_TRANSLATE_NOOP("OrderImporter",
                                          "There is no lang with code %s in database.&&Add this "
                                          "language and the translations and try downloading "
                                          "orders again."),
                        {code});
    }
    if (Result r = fillLanguage(order, *id); !r)
        return r;
    return Result::success();
}

Result OrderImporter::resolveCountry(const QString& code, std::optional<qint64>& id)
{
    if (code.isEmpty()) {
        id = m_homeCountry;
        return Result::success();
    }
    if (!findCode(Tbl::COUNTRY, Col::COUNTRY_ID, Col::COUNTRY_INTERNATIONAL_CODE, code, id))
        return Fail(QT_TRANSLATE_NOOP("OrderImporter", "Error loading country data (%s)."), {code});
    if (id)
        return Result::success();
    m_interaction.exclamation(
        FillArgs(Text(QT_TRANSLATE_NOOP("OrderImporter", "There is no %s country in database.&You "
                                                         "have to set it up in the next window.")),
                 {code}));
    forgetCaches(); // the user may change any row in the windows
    if (!m_ask.editRow(MasterTable::Country, std::nullopt,
                       {{QLatin1String(Col::COUNTRY_INTERNATIONAL_CODE), code}}))
        return Fail(QT_TRANSLATE_NOOP("OrderImporter", "Setting up country aborted."));
    if (!findCode(Tbl::COUNTRY, Col::COUNTRY_ID, Col::COUNTRY_INTERNATIONAL_CODE, code, id) || !id)
        return Fail(QT_TRANSLATE_NOOP("OrderImporter", "Error loading country data (%s)."), {code});
    return Result::success();
}

Result OrderImporter::requireTranslation(const char* table, const char* parentColumn,
                                         const char* langColumn, qint64 parentId, qint64 langId,
                                         MasterTable editor, const QString& question,
                                         const char* aborted, const char* loadError)
{
    if (langId == 0)
        return Result::success();
    const QString key =
        QStringLiteral("%1 %2 %3").arg(QLatin1String(table)).arg(parentId).arg(langId);
    if (m_translations.contains(key))
        return Result::success();
    const QString sql =
        Sql("select count(*) from %1 where %2 = ? and %3 = ?", {table, parentColumn, langColumn});
    QVariant count = SelectValue(sql, {parentId, langId});
    if (!count.isValid())
        return Fail(loadError);
    if (count.toInt() > 0) {
        m_translations.insert(key, true);
        return Result::success();
    }
    m_interaction.exclamation(question);
    forgetCaches(); // the user may change any row in the windows
    if (!m_ask.editRow(editor, parentId))
        return Fail(aborted);
    count = SelectValue(sql, {parentId, langId});
    if (!count.isValid() || count.toInt() == 0)
        return Fail(loadError);
    return Result::success();
}

Result OrderImporter::resolveNoVatReason(const QString& code, Order& order)
{
    std::optional<qint64> id;
    if (!code.isEmpty()) {
        if (Result r = findOrChooseCode(
                MasterTable::NoVatReason, Tbl::NOVATREASON, Col::NOVATREASON_ID,
                Col::NOVATREASON_CODE, code,
                QT_TRANSLATE_NOOP("OrderImporter",
                                  "There is no novatreason with code %s in database.&&Add or "
                                  "select this novatreason in the next window."),
                QT_TRANSLATE_NOOP("OrderImporter", "Unable to load novatreason."),
                QT_TRANSLATE_NOOP("OrderImporter", "Error saving novatreason selection."), id);
            !r)
            return r;
        if (Result r = requireTranslation(
                Tbl::NOVATREASONTRANSLATION, Col::NOVATREASONTRANSLATION_NOVATREASON_ID,
                Col::NOVATREASONTRANSLATION_LANG_ID, *id, order.langId, MasterTable::NoVatReason,
                FillArgs(Text(QT_TRANSLATE_NOOP("OrderImporter",
                                                "There is no %s translation for %s novatreason in "
                                                "database.&You have to set it up in the next "
                                                "window.")),
                         {order.langCode, code}),
                QT_TRANSLATE_NOOP("OrderImporter", "Setting up novatreason translation aborted."),
                QT_TRANSLATE_NOOP("OrderImporter", "Unable to load novatreason translation."));
            !r)
            return r;
    }
    if (!fillNoVatReason(order, id))
        return Fail(QT_TRANSLATE_NOOP("OrderImporter", "Unable to load novatreason."));
    return Result::success();
}

Result OrderImporter::findOrChooseCode(MasterTable table, const char* tableName,
                                       const char* idColumn, const char* codeColumn,
                                       const QString& code, const char* unknown,
                                       const char* loadError, const char* saveError,
                                       std::optional<qint64>& id)
{
    if (!findCode(tableName, idColumn, codeColumn, code, id))
        return Fail(loadError);
    if (id)
        return Result::success();
    m_interaction.exclamation(FillArgs(Text(unknown), {code}));
    forgetCaches(); // the user may change any row in the windows
    id = m_ask.chooseRow(table);
    if (!id)
        return Fail(loadError);
    if (!ExecSql(Sql("update %1 set %2 = ? where %3 = ?", {tableName, codeColumn, idColumn}),
                 {code, *id}))
        return Fail(saveError);
    return Result::success();
}

Result OrderImporter::resolvePaymentMethod(const QString& code, const QString& orderCode,
                                           Order& order)
{
    if (code.isEmpty())
        return Fail(
            QT_TRANSLATE_NOOP("OrderImporter",
                              "ORDERHEAD_PAYMENTMETHOD_CODE is missing.&&ORDERHEAD_CODE=%s"),
            {orderCode});
    std::optional<qint64> id;
    if (Result r = findOrChooseCode(
            MasterTable::PaymentMethod, Tbl::PAYMENTMETHOD, Col::PAYMENTMETHOD_ID,
            Col::PAYMENTMETHOD_CODE, code,
            QT_TRANSLATE_NOOP("OrderImporter",
                              "There is no payment method with code %s in database.&&Add or "
                              "select this payment method and the translations in the next "
                              "window."),
            QT_TRANSLATE_NOOP("OrderImporter", "Unable to load payment method."),
            QT_TRANSLATE_NOOP("OrderImporter", "Error saving payment method selection."), id);
        !r)
        return r;
    if (Result r = requireTranslation(
            Tbl::PAYMENTMETHODTRANSLATION, Col::PAYMENTMETHODTRANSLATION_PAYMENTMETHOD_ID,
            Col::PAYMENTMETHODTRANSLATION_LANG_ID, *id, order.langId, MasterTable::PaymentMethod,
            FillArgs(Text(QT_TRANSLATE_NOOP("OrderImporter",
                                            "There is no %s translation for %s payment method in "
                                            "database.&You have to set it up in the next window.")),
                     {order.langCode, code}),
            QT_TRANSLATE_NOOP("OrderImporter", "Setting up payment method translation aborted."),
            QT_TRANSLATE_NOOP("OrderImporter", "Unable to load payment method translation."));
        !r)
        return r;
    if (!fillPaymentMethod(order, *id))
        return Fail(QT_TRANSLATE_NOOP("OrderImporter", "Unable to load payment method."));
    return Result::success();
}

Result OrderImporter::resolvePartner(Order& order)
{
    // The countries' names and the language's code as the order keeps them.
    for (auto [id, code, name, onMails] :
         {std::tuple{order.partnerCountryId, &order.partnerCountryCode, &order.partnerCountryName,
                     &order.partnerCountryNameOnMails},
          std::tuple{order.mailCountryId, &order.mailCountryCode, &order.mailCountryName,
                     &order.mailCountryNameOnMails}}) {
        QStringList& country = m_countries[id.value_or(0)];
        if (country.isEmpty()) {
            SqlStatement st(Sql("select %1, %2, %3 from %4 where %5 = ?",
                                {Col::COUNTRY_INTERNATIONAL_CODE, Col::COUNTRY_NAME,
                                 Col::COUNTRY_NAME_ON_MAILS, Tbl::COUNTRY, Col::COUNTRY_ID}),
                            {id.value_or(0)});
            if (!st.exec() || !st.next())
                return Fail(QT_TRANSLATE_NOOP("OrderImporter", "Error loading country data (%s)."),
                            {QString::number(id.value_or(0))});
            country = {st.value(Col::COUNTRY_INTERNATIONAL_CODE).toString(),
                       st.value(Col::COUNTRY_NAME).toString(),
                       st.value(Col::COUNTRY_NAME_ON_MAILS).toString()};
        }
        *code = country.at(0);
        *name = country.at(1);
        *onMails = country.at(2);
    }

    std::optional<qint64> id;
    QVariant days;
    m_partnerDays.reset();
    if (!order.partnerCode.isEmpty() &&
        !lookup(Tbl::PARTNER, Col::PARTNER_ID, Col::PARTNER_CODE, order.partnerCode, id,
                Col::PARTNER_PAYMENT_DUE_DAYS, &days))
        return Fail(QT_TRANSLATE_NOOP("OrderImporter", "Error loading partner data."));
    if (id && !days.isNull())
        m_partnerDays = days.toLongLong();
    order.partnerId = id;
    if (!m_updateBasicData || order.partnerCode.isEmpty())
        return Result::success();
    Record partner;
    if (!id)
        partner = NewPartnerDefaults();
    const auto put = [&](const char* column, const QVariant& value) {
        partner.insert(QLatin1String(column), value);
    };
    put(Col::PARTNER_CODE, order.partnerCode);
    put(Col::PARTNER_NAME, order.partnerName);
    put(Col::PARTNER_NAME_ASCII, FoldName(order.partnerName));
    put(Col::PARTNER_ZIP, order.partnerZip);
    put(Col::PARTNER_CITY, order.partnerCity);
    put(Col::PARTNER_ADDRESS, order.partnerAddress);
    put(Col::PARTNER_TAX_NO, order.partnerTaxNo);
    put(Col::PARTNER_EU_TAX_NO, order.partnerEuTaxNo);
    put(Col::PARTNER_OTHER_DATA, order.partnerOtherData);
    put(Col::PARTNER_COUNTRY_ID, order.partnerCountryId.value_or(0));
    put(Col::PARTNER_LANG_ID, order.langId);
    put(Col::PARTNER_MAIL_IS_SAME, order.mailIsSame ? QStringLiteral("1") : QStringLiteral("0"));
    put(Col::PARTNER_MAIL_NAME, order.mailName);
    put(Col::PARTNER_MAIL_ZIP, order.mailZip);
    put(Col::PARTNER_MAIL_CITY, order.mailCity);
    put(Col::PARTNER_MAIL_ADDRESS, order.mailAddress);
    put(Col::PARTNER_MAIL_COUNTRY_ID, order.mailCountryId.value_or(0));
    if (!WriteRow(Tbl::PARTNER, Col::PARTNER_ID, partner, id))
        return Fail(QT_TRANSLATE_NOOP("OrderImporter", "Error saving partner data."));
    order.partnerId = id;
    return Result::success();
}

Result OrderImporter::readItem(const XmlRecord& e, const Order& order, OrderItem& item)
{
    const auto text = [&](const char* tag, QString& field) { field = e.text(QLatin1String(tag)); };
    // A number the shop sent that reads as none stops the order: a quantity taken as 0 would be
    // a wrong invoice.
    QString notNumber;
    const auto number = [&](const char* tag, double& field) {
        const QString value = e.text(QLatin1String(tag));
        if (const std::optional<double> v = WebshopNumber(value))
            field = *v;
        else if (!value.trimmed().isEmpty() && notNumber.isEmpty())
            notNumber =
                FillArgs(Text(QT_TRANSLATE_NOOP("OrderImporter",
                                                "%s is not a number: \"%s\"&&ORDERHEAD_CODE=%s")),
                         {QLatin1String(tag), value, order.code});
    };
    text("ORDERITEM_CODE", item.code);
    item.dateShipped = WebshopDate(e.text(QStringLiteral("ORDERITEM_DATE_SHIPPED")));
    if (!item.dateShipped.isValid())
        item.dateShipped = order.dateShipped;
    text("ORDERITEM_PRODUCT_CODE", item.productCode);
    text("ORDERITEM_NAME", item.name);
    text("ORDERITEM_UNIT", item.unit);
    text("ORDERITEM_STAT_NO", item.statNo);
    text("ORDERITEM_NAME_TRANSLATION", item.nameTranslation);
    text("ORDERITEM_COMMENT_TRANSLATION", item.commentTranslation);
    text("ORDERITEM_UNIT_TRANSLATION", item.unitTranslation);
    text("ORDERITEM_VAT_CODE", item.vatCode);
    text("ORDERITEM_VAT_NAME", item.vatName);
    number("ORDERITEM_VAT_PERCENT", item.vatPercent);
    number("ORDERITEM_LIST_PRICE", item.listPrice);
    number("ORDERITEM_PRICE", item.price);
    number("ORDERITEM_QTY", item.qty);
    if (const std::optional<qint64> type =
            WebshopInteger(e.text(QStringLiteral("ORDERITEM_DISCOUNT_TYPE"))))
        item.discountType = int(*type);
    number("ORDERITEM_DISCOUNT_PERCENT", item.discountPercent);
    if (!notNumber.isEmpty())
        return Result::failure(notNumber);
    // Version 1.0 shops sent no real list price.
    if (documentVersion() == QLatin1String("1.0"))
        item.listPrice = item.price;
    // The webshop's price stands; only the totals are computed here.
    item.totals = CalcLineTotals(item.price, item.qty, item.vatPercent, order.lineDecimals);

    std::optional<qint64> vatId;
    if (!item.vatCode.isEmpty()) {
        if (!findCode(Tbl::VAT, Col::VAT_ID, Col::VAT_CODE, item.vatCode, vatId))
            return Fail(QT_TRANSLATE_NOOP("OrderImporter", "Error loading VAT data."));
        if (m_updateBasicData) {
            Record vat{{QLatin1String(Col::VAT_CODE), item.vatCode},
                       {QLatin1String(Col::VAT_NAME), item.vatName},
                       {QLatin1String(Col::VAT_PERCENT), item.vatPercent}};
            if (!WriteRow(Tbl::VAT, Col::VAT_ID, vat, vatId))
                return Fail(QT_TRANSLATE_NOOP("OrderImporter", "Error saving VAT data."));
        }
    }
    item.vatId = vatId;
    return Result::success();
}

Result OrderImporter::resolveProduct(const Order& order, OrderItem& item)
{
    if (item.productCode.isEmpty())
        return Result::success();
    std::optional<qint64> id;
    if (!lookup(Tbl::PRODUCT, Col::PRODUCT_ID, Col::PRODUCT_CODE, item.productCode, id))
        return Fail(QT_TRANSLATE_NOOP("OrderImporter", "Error loading product data."));
    item.productId = id;
    if (!m_updateBasicData)
        return Result::success();
    const qint64 currency = order.currencyId.value_or(0);
    Record product{{QLatin1String(Col::PRODUCT_CODE), item.productCode},
                   {QLatin1String(Col::PRODUCT_NAME), item.name},
                   {QLatin1String(Col::PRODUCT_NAME_ASCII), FoldName(item.name)},
                   {QLatin1String(Col::PRODUCT_STAT_NO), item.statNo},
                   {QLatin1String(Col::PRODUCT_UNIT), item.unit}};
    if (item.vatId)
        product.insert(QLatin1String(Col::PRODUCT_VAT_ID), *item.vatId);
    // The forint price is the product's own; other currencies have a price row each.
    if (currency == 0)
        product.insert(QLatin1String(Col::PRODUCT_PRICE), item.listPrice);
    if (!WriteRow(Tbl::PRODUCT, Col::PRODUCT_ID, product, id))
        return Fail(QT_TRANSLATE_NOOP("OrderImporter", "Error saving product data."));
    item.productId = id;
    if (currency != 0) {
        Result r = WriteChildRow(Tbl::PRODUCTPRICE, Col::PRODUCTPRICE_PRODUCT_ID, *id,
                                 Col::PRODUCTPRICE_CURRENCY_ID, currency,
                                 {{QLatin1String(Col::PRODUCTPRICE_PRICE), item.listPrice}});
        if (!r)
            return Fail(
                r.message().isEmpty()
                    ? QT_TRANSLATE_NOOP("OrderImporter", "Error saving product price data.")
                    : QT_TRANSLATE_NOOP("OrderImporter", "Error loading product price data."));
    }
    if (order.langId != 0) {
        Result r = WriteChildRow(
            Tbl::PRODUCTTRANSLATION, Col::PRODUCTTRANSLATION_PRODUCT_ID, *id,
            Col::PRODUCTTRANSLATION_LANG_ID, order.langId,
            {{QLatin1String(Col::PRODUCTTRANSLATION_NAME), item.nameTranslation},
             {QLatin1String(Col::PRODUCTTRANSLATION_COMMENT), item.commentTranslation},
             {QLatin1String(Col::PRODUCTTRANSLATION_UNIT), item.unitTranslation}});
        if (!r)
            return Fail(
                r.message().isEmpty()
                    ? QT_TRANSLATE_NOOP("OrderImporter", "Error saving product translation data.")
                    : QT_TRANSLATE_NOOP("OrderImporter",
                                        "Error loading product translation data."));
    }
    return Result::success();
}

Result OrderImporter::storeOrder(Order& order, const QString& timestamp)
{
    const auto failed = [&](const QString& detail) {
        return Result::failure(
            FillArgs(Text(QT_TRANSLATE_NOOP("OrderImporter", "Can't insert order %s.")),
                     {order.code}) +
            u'&' + detail);
    };
    if (Result r = OrderStore::save(order); !r) {
        const QString what =
            r.statement().contains(QLatin1String(Tbl::ORDERITEM))
                ? FillArgs(Text(QT_TRANSLATE_NOOP("OrderImporter",
                                                  "Error creating orderitem in database with "
                                                  "CODE %s.")),
                           {StoredItemCode(order)})
                : FillArgs(Text(QT_TRANSLATE_NOOP(
                               "OrderImporter", "Error creating order in database with CODE %s.")),
                           {order.code});
        return failed(what + u'&' + QtfEscape(r.sqlError()));
    }
    // An order without a timestamp leaves the last one standing, so nothing is fetched twice.
    if (!timestamp.isEmpty()) {
        if (!ExecSql(Sql("UPDATE SETUP SET %1 = ?", {Col::SETUP_DOWNLOAD_LAST_ORDERHEAD_TIMESTAMP}),
                     {timestamp}))
            return failed(QtfEscape(Database::session().lastError().text()));
    }
    return Result::success();
}

void OrderImporter::forgetCaches()
{
    m_codes.clear();
    m_snapshots.clear();
    m_translations.clear();
    m_countries.clear();
    m_methodDays.clear();
}

bool OrderImporter::lookup(const char* table, const char* idColumn, const char* codeColumn,
                           const QString& code, std::optional<qint64>& id, const char* extraColumn,
                           QVariant* extra)
{
    id.reset();
    const QString key = QLatin1String(table);
    std::shared_ptr<QSqlQuery>& query = m_prepared[key];
    if (!query) {
        query = std::make_shared<QSqlQuery>(Database::session());
        const QString text =
            extraColumn ? Sql("select %1, %2 from %3 where %4 = ?",
                              {idColumn, extraColumn, table, codeColumn})
                        : Sql("select %1 from %2 where %3 = ?", {idColumn, table, codeColumn});
        if (!query->prepare(text)) {
            query.reset();
            return false;
        }
    }
    query->bindValue(0, code);
    if (!query->exec())
        return false;
    if (query->next()) {
        id = query->value(QLatin1String(idColumn)).toLongLong();
        if (extra)
            *extra = query->value(QLatin1String(extraColumn));
    }
    query->finish();
    return true;
}

std::optional<qint64> OrderImporter::methodDueDays(qint64 methodId)
{
    if (!m_methodDays.contains(methodId)) {
        const QVariant days = SelectValue(
            Sql("select %1 from %2 where %3 = ?",
                {Col::PAYMENTMETHOD_DUE_DAYS, Tbl::PAYMENTMETHOD, Col::PAYMENTMETHOD_ID}),
            {methodId});
        m_methodDays.insert(methodId, days.isNull() || !days.isValid()
                                          ? std::nullopt
                                          : std::optional<qint64>(days.toLongLong()));
    }
    return m_methodDays.value(methodId);
}

bool OrderImporter::findCode(const char* table, const char* idColumn, const char* codeColumn,
                             const QString& code, std::optional<qint64>& id)
{
    const QString key = QLatin1String(table) + u'\n' + code;
    if (const auto it = m_codes.constFind(key); it != m_codes.constEnd()) {
        id = *it;
        return true;
    }
    if (!FindByCode(table, idColumn, codeColumn, code, id))
        return false;
    // A missing code is asked for (and the caches forgotten) or stops the run.
    if (id)
        m_codes.insert(key, id);
    return true;
}

Result OrderImporter::fillCurrency(Order& order, qint64 id)
{
    const QString key = QStringLiteral("currency %1").arg(id);
    if (!m_snapshots.contains(key)) {
        Order filled;
        if (Result r = OrderFill::currency(filled, id); !r)
            return r;
        m_snapshots.insert(key, filled);
    }
    const Order& c = m_snapshots[key];
    order.currencyId = c.currencyId;
    order.currencyAbbreviation = c.currencyAbbreviation;
    order.currencyRate = c.currencyRate;
    order.unitPriceDecimals = c.unitPriceDecimals;
    order.lineDecimals = c.lineDecimals;
    order.linePrintingDecimals = c.linePrintingDecimals;
    order.invoiceDecimals = c.invoiceDecimals;
    order.invoicePrintingDecimals = c.invoicePrintingDecimals;
    order.bankName = c.bankName;
    order.bankAcctNo = c.bankAcctNo;
    order.bankIban = c.bankIban;
    order.bankSwift = c.bankSwift;
    return Result::success();
}

Result OrderImporter::fillLanguage(Order& order, qint64 id)
{
    const QString key = QStringLiteral("lang %1").arg(id);
    if (!m_snapshots.contains(key)) {
        Order filled;
        if (Result r = OrderFill::language(filled, id); !r)
            return r;
        m_snapshots.insert(key, filled);
    }
    order.langId = m_snapshots[key].langId;
    order.langCode = m_snapshots[key].langCode;
    return Result::success();
}

Result OrderImporter::fillNoVatReason(Order& order, std::optional<qint64> id)
{
    const QString key = QStringLiteral("reason %1 %2").arg(id.value_or(-1)).arg(order.langId);
    if (!m_snapshots.contains(key)) {
        Order filled;
        filled.langId = order.langId;
        if (Result r = OrderFill::noVatReason(filled, id); !r)
            return r;
        m_snapshots.insert(key, filled);
    }
    const Order& n = m_snapshots[key];
    order.noVatReasonId = n.noVatReasonId;
    order.noVatReasonCode = n.noVatReasonCode;
    order.noVatReasonText = n.noVatReasonText;
    order.noVatReasonTranslationText = n.noVatReasonTranslationText;
    return Result::success();
}

Result OrderImporter::fillPaymentMethod(Order& order, qint64 id)
{
    const QString key = QStringLiteral("method %1 %2").arg(id).arg(order.langId);
    if (!m_snapshots.contains(key)) {
        Order filled;
        filled.langId = order.langId;
        if (Result r = OrderFill::paymentMethod(filled, id); !r)
            return r;
        m_snapshots.insert(key, filled);
    }
    const Order& m = m_snapshots[key];
    order.paymentMethodId = m.paymentMethodId;
    order.paymentMethodCode = m.paymentMethodCode;
    order.paymentMethodName = m.paymentMethodName;
    order.paymentMethodNameTranslation = m.paymentMethodNameTranslation;
    order.paymentMethodPaid = m.paymentMethodPaid;
    order.roundTo5 = m.roundTo5;
    return Result::success();
}
