// Hand-written webshop documents for the tests: an order is its header elements and items, each
// given as "TAG=value" pairs over a plain forint order that stores as it is.
#pragma once

#include "base/Interaction.h"
#include "webshop/WebshopInteraction.h"

#include <QBuffer>
#include <QByteArray>
#include <QByteArrayList>
#include <QHash>
#include <QList>
#include <QQueue>
#include <QStringList>

// The elements of a record; a value of "-" leaves the element out.
inline QByteArray Elements(QStringList fields, const QStringList& base)
{
    QHash<QString, QString> values;
    QStringList order;
    for (const QString& field : base + fields) {
        const QString tag = field.section(u'=', 0, 0);
        if (!values.contains(tag))
            order << tag;
        values.insert(tag, field.section(u'=', 1));
    }
    QByteArray xml;
    for (const QString& tag : std::as_const(order)) {
        if (values.value(tag) == QLatin1String("-"))
            continue;
        xml += "<" + tag.toUtf8() + ">" + values.value(tag).toHtmlEscaped().toUtf8() + "</" +
               tag.toUtf8() + ">";
    }
    return xml;
}

// One ORDERITEM: product P<line>, 2 x 1000 Ft at 27%.
inline QByteArray Item(const QString& code, const QStringList& fields = {})
{
    return "<ORDERITEM>" +
           Elements(fields,
                    {"ORDERITEM_CODE=" + code, "ORDERITEM_PRODUCT_CODE=P-" + code,
                     "ORDERITEM_NAME=Termék " + code, "ORDERITEM_UNIT=db", "ORDERITEM_VAT_CODE=27",
                     "ORDERITEM_VAT_NAME=27%", "ORDERITEM_VAT_PERCENT=27", "ORDERITEM_PRICE=1000",
                     "ORDERITEM_QTY=2", "ORDERITEM_DATE_SHIPPED=2024-03-05"}) +
           "</ORDERITEM>";
}

// One order with code, timestamp "T-<code>", partner C-<code> paying cash, and the items given
// (one item "<code>-1" when none).
inline QByteArray OrderXml(const QString& code, const QStringList& fields = {},
                           QList<QByteArray> items = {})
{
    if (items.isEmpty())
        items << Item(code + "-1");
    return "<ORDER>" +
           Elements(fields,
                    {"ORDERHEAD_CODE=" + code, "ORDERHEAD_TIMESTAMP=T-" + code,
                     "ORDERHEAD_PARTNER_CODE=C-" + code, "ORDERHEAD_PARTNER_NAME=Vevő " + code,
                     "ORDERHEAD_PARTNER_ZIP=1011", "ORDERHEAD_PARTNER_CITY=Budapest",
                     "ORDERHEAD_PARTNER_ADDRESS=Fő utca 1.", "ORDERHEAD_PARTNER_MAIL_IS_SAME=1",
                     "ORDERHEAD_PAYMENTMETHOD_CODE=KP", "ORDERHEAD_CURRENCY_ABBREVIATION=Ft",
                     "ORDERHEAD_DATE_SHIPPED=2024.03.05."}) +
           items.join() + "</ORDER>";
}

// A document of the records under root.
inline QByteArray Doc(const char* root, const QList<QByteArray>& records,
                      const QByteArray& prolog = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>")
{
    return prolog + "\n<" + root + ">" + records.join() + "</" + root + ">\n";
}

inline QByteArray OrdersDoc(const QList<QByteArray>& orders,
                            const QByteArray& prolog = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>")
{
    return Doc("ORDERS", orders, prolog);
}

// Runs an importer on a document held in memory.
template <typename Importer>
bool ImportBytes(Importer& importer, const QByteArray& xml, Progress* progress = nullptr)
{
    QBuffer buffer;
    buffer.setData(xml);
    buffer.open(QIODevice::ReadOnly);
    return importer.importDocument(buffer, progress);
}

// Answers the editor and chooser questions from queues and records which were asked.
class ScriptedWebshop : public WebshopInteraction
{
public:
    std::optional<qint64> editRow(MasterTable table, std::optional<qint64> id,
                                  const Record& presets) override
    {
        asked << QStringLiteral("edit %1 %2").arg(int(table)).arg(id.value_or(-1));
        lastPresets = presets;
        if (onEdit)
            return onEdit(table, id, presets);
        return std::nullopt;
    }
    std::optional<qint64> chooseRow(MasterTable table) override
    {
        asked << QStringLiteral("choose %1").arg(int(table));
        return chosen.isEmpty() ? std::nullopt : chosen.dequeue();
    }
    std::optional<Login> login(const QString& message, const Login& proposal) override
    {
        asked << message;
        proposals << proposal;
        return logins.isEmpty() ? std::nullopt : logins.dequeue();
    }

    QStringList asked;
    Record lastPresets;
    QQueue<std::optional<qint64>> chosen;
    QQueue<std::optional<Login>> logins;
    QList<Login> proposals;
    std::function<std::optional<qint64>(MasterTable, std::optional<qint64>, const Record&)> onEdit;
};
