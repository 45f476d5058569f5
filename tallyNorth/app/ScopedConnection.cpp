#include "ScopedConnection.h"

#include <QSqlError>

ScopedConnection::ScopedConnection(const QString& path, Mode mode)
{
    static int counter = 0;
    m_name = QStringLiteral("tallynorth-scoped-%1").arg(++counter);
    QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_name);
    db.setDatabaseName(path);
    if (mode == Mode::ReadOnly)
        db.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY"));
    if (!db.open())
        m_error = db.lastError().text();
}

ScopedConnection::~ScopedConnection()
{
    {
        QSqlDatabase db = QSqlDatabase::database(m_name, false);
        db.close();
    }
    QSqlDatabase::removeDatabase(m_name);
}

bool ScopedConnection::isOpen() const
{
    return QSqlDatabase::database(m_name, false).isOpen();
}

QSqlDatabase ScopedConnection::db() const
{
    return QSqlDatabase::database(m_name, false);
}
