// A webshop on 127.0.0.1 for tests and integrators: order.php, partner.php and product.php
// answer with the records newer than the asked timestamp, at most the asked count, from a folder
// of XML documents or from generated data; it checks basic authentication and can misbehave.
#pragma once

#include <QByteArray>
#include <QHttpServer>
#include <QList>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

class QHttpServerRequest;
class QHttpServerResponder;

class LocalWebshop
{
public:
    enum class Fault { None, Unauthorized, ServerError, Garbage, Slow, Cut, Huge };

    struct Options
    {
        QString folder;       // orders.xml, partners.xml, products.xml
        qint64 generated = 0; // generated orders, when no folder is given
        QString login;        // empty: no authentication asked
        QString password;
        Fault fault = Fault::None;
    };

    // False with error when a document of the folder can not be read.
    bool start(const Options& options, quint16 port, QString& error);
    quint16 port() const { return m_port; }
    // Requests answered so far, for the log.
    int requests() const { return m_requests; }

    static std::optional<Fault> parseFault(const QString& text);

private:
    struct Record
    {
        QByteArray timestamp;
        QByteArray xml;
    };
    struct Document
    {
        const char* root;
        const char* timestampParameter;
        const char* maximumParameter;
        QList<Record> records;                      // read from the folder
        std::function<QByteArray(qint64)> generate; // or made on demand
        qint64 generatedCount = 0;
    };

    bool load(Document& document, const QString& file, const char* timestampTag, QString& error);
    void answer(Document& document, const QHttpServerRequest& request,
                QHttpServerResponder&& responder);
    bool authorized(const QHttpServerRequest& request) const;
    // The answer's pieces one after the other, made as the connection takes them; empty at the end.
    std::function<QByteArray()> body(const Document& document, const QByteArray& after,
                                     qint64 maximum) const;

    Options m_options;
    QHttpServer m_server;
    Document m_orders{"ORDERS", "last_orderhead_timestamp", "max_orders", {}, {}, 0};
    Document m_partners{"PARTNERS", "last_partner_timestamp", "max_partners", {}, {}, 0};
    Document m_products{"PRODUCTS", "last_product_timestamp", "max_products", {}, {}, 0};
    // Requests held open without an answer ("slow").
    QList<std::shared_ptr<QHttpServerResponder>> m_held;
    quint16 m_port = 0;
    int m_requests = 0;
};
