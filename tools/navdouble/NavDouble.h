// A stand-in for the tax authority's online invoice interface, for tests and for trying the
// program without the authority: it listens on 127.0.0.1 only, checks the password hash and the
// request signatures, validates every request and invoice against the published schemas, answers
// with the interface's own result codes, and misbehaves when told to.
#pragma once

#include "nav/XmlSchemaCheck.h"

#include <QByteArray>
#include <QDateTime>
#include <QHash>
#include <QList>
#include <QSet>
#include <QString>
#include <QTcpServer>

class QTcpSocket;

// The technical user the double knows.
struct NavDoubleUser
{
    QString login = QStringLiteral("tallyuser1");
    QString password = QStringLiteral("Jelszo123");
    QString signingKey = QStringLiteral("ce-8f5e-215119fa7dd621DLMRHRLH2S");
    QString exchangeKey = QStringLiteral("1234567890ABCDEF");
    QString taxNo = QStringLiteral("12345676");
};

class NavDouble : public QObject
{
    Q_OBJECT

public:
    // What the double does wrong on request.
    enum class Fault {
        None,
        Timeout,     // never answers
        ServerError, // HTTP 500
        SchemaError, // every invoice ABORTED with a schema violation
        Duplicate,   // every CREATE refused as an invoice number already reported
        Reject,      // every invoice DONE with a business error
        Warn,        // every invoice DONE with a warning
    };

    explicit NavDouble(NavDoubleUser user = {},
                       const QString& schemaDir = QStringLiteral(TN_NAV_SCHEMA_DIR),
                       QObject* parent = nullptr);
    ~NavDouble() override;

    // Listens on 127.0.0.1; port 0 picks a free one. The service address is then url().
    bool listen(quint16 port = 0);
    quint16 port() const { return m_server.serverPort(); }
    QString url() const;

    // The fault for the next count requests it applies to (negative: until changed).
    void setFault(Fault fault, int count = -1);
    static bool parseFault(const QString& name, Fault& fault);

    // What it has seen, for tests.
    int requestCount(const QString& operation) const { return m_counts.value(operation); }
    const QSet<QString>& reportedNumbers() const { return m_reported; }
    QString lastErrorCode() const { return m_lastErrorCode; }

private:
    struct Pending
    {
        QByteArray data;
    };
    struct Processing
    {
        int index = 0;
        QString status;
        QByteArray messages; // raw XML of the result's messages
        QString number;
    };

    void readClient(QTcpSocket* socket);
    void answer(QTcpSocket* socket, int status, const QByteArray& body);
    // The answer to one request: HTTP status and body.
    std::pair<int, QByteArray> handle(const QString& path, const QByteArray& body);
    std::pair<int, QByteArray> error(const QString& requestId, int status, const QString& code,
                                     const QString& message);
    Fault takeFault(const QString& operation);
    Processing judge(int index, const QString& operation, const QByteArray& base64);

    NavDoubleUser m_user;
    XmlSchemaCheck m_apiSchema;
    XmlSchemaCheck m_dataSchema;
    QTcpServer m_server;
    QHash<QTcpSocket*, Pending> m_pending;
    Fault m_fault = Fault::None;
    int m_faultCount = -1;
    QHash<QString, QDateTime> m_tokens; // valid until
    QHash<QString, QList<Processing>> m_transactions;
    QSet<QString> m_reported;
    QHash<QString, int> m_counts;
    QString m_lastErrorCode;
    int m_nextTransaction = 1;
};
