// Turns an ORDERS document (downloaded or read from a file) into orders of the company database:
// every code resolved against the master data, each order stored with its items and the
// download timestamp in one transaction. The first order that fails stops the run; the orders
// stored before it stay, the failed one leaves nothing behind.
#pragma once

#include "base/Result.h"
#include "masterdata/MasterTables.h"
#include "orders/Order.h"

#include <QCoreApplication>
#include <QHash>
#include <QList>
#include <QSqlQuery>
#include <QString>

#include <memory>

#include <optional>

class Interaction;
class Progress;
class QIODevice;
class WebshopInteraction;
struct XmlRecord;

class OrderImporter
{
    Q_DECLARE_TR_FUNCTIONS(OrderImporter)

public:
    OrderImporter(Interaction& interaction, WebshopInteraction& ask);

    // Reads the document from device and stores its orders. False when the document is
    // unreadable or an order failed; the failure's message has then been shown.
    bool importDocument(QIODevice& device, Progress* progress = nullptr);

    // What the last run stored.
    const QList<qint64>& createdOrders() const { return m_created; }
    const QList<qint64>& changedPartners() const { return m_partners; }
    const QList<qint64>& changedProducts() const { return m_products; }

    // The version the last document declared ("1.0" before any); sent in the user agent.
    static QString documentVersion();

private:
    Result importOrder(const XmlRecord& element, Progress* progress);
    Result readHeader(const XmlRecord& element, Order& order, QString& timestamp);
    Result resolveCurrency(const QString& code, Order& order);
    Result resolveLanguage(const QString& code, Order& order);
    Result resolveCountry(const QString& code, std::optional<qint64>& id);
    Result resolveNoVatReason(const QString& code, Order& order);
    Result resolvePaymentMethod(const QString& code, const QString& orderCode, Order& order);
    Result resolvePartner(Order& order);
    Result readItem(const XmlRecord& element, const Order& order, OrderItem& item);
    Result resolveProduct(const Order& order, OrderItem& item);
    Result storeOrder(Order& order, const QString& timestamp);
    // The row of a code; an unknown code: the user is told, picks a row of the table, and the
    // code is stored on it. unknown is the message (with %s for the code); loadError and
    // saveError end the order.
    Result findOrChooseCode(MasterTable table, const char* tableName, const char* idColumn,
                            const char* codeColumn, const QString& code, const char* unknown,
                            const char* loadError, const char* saveError,
                            std::optional<qint64>& id);
    // A translation row that must exist: the parent's editor opens when it is missing.
    Result requireTranslation(const char* table, const char* parentColumn, const char* langColumn,
                              qint64 parentId, qint64 langId, MasterTable editor,
                              const QString& question, const char* aborted, const char* loadError);

    // Lookups by code in the small tables, and OrderFill's snapshots, read once per run: the
    // orders of one document share them. A failed order ends the run and with it the caches.
    bool findCode(const char* table, const char* idColumn, const char* codeColumn,
                  const QString& code, std::optional<qint64>& id);
    Result fillCurrency(Order& order, qint64 id);
    Result fillLanguage(Order& order, qint64 id);
    Result fillNoVatReason(Order& order, std::optional<qint64> id);
    Result fillPaymentMethod(Order& order, qint64 id);
    void forgetCaches();
    // The row id (and the value of extraColumn) by code, through a statement prepared once per
    // run: partners and products are looked up for every order and item.
    bool lookup(const char* table, const char* idColumn, const char* codeColumn,
                const QString& code, std::optional<qint64>& id, const char* extraColumn = nullptr,
                QVariant* extra = nullptr);
    // The payment method's default days until the payment is due.
    std::optional<qint64> methodDueDays(qint64 methodId);

    Interaction& m_interaction;
    WebshopInteraction& m_ask;
    bool m_updateBasicData = false;
    std::optional<qint64> m_homeCountry;
    std::optional<Order> m_newOrder;
    QHash<QString, std::optional<qint64>> m_codes;
    QHash<QString, Order> m_snapshots;
    QHash<QString, bool> m_translations;
    QHash<qint64, QStringList> m_countries;
    QHash<QString, std::shared_ptr<QSqlQuery>> m_prepared;
    QHash<qint64, std::optional<qint64>> m_methodDays;
    std::optional<qint64> m_partnerDays;
    QList<qint64> m_created;
    QList<qint64> m_partners;
    QList<qint64> m_products;
};
