#include "SqlTransaction.h"

#include <QHash>
#include <QSqlError>
#include <QSqlQuery>

namespace {

// Open transactions per connection. Asking SQLite would need its C interface; every
// transaction of the program goes through this class.
QHash<QString, int>& Depths()
{
    static QHash<QString, int> depths;
    return depths;
}

} // namespace

SqlTransaction::SqlTransaction(const QSqlDatabase& db) : m_db(db)
{
    if (!m_db.isOpen()) {
        m_error = QStringLiteral("no database open");
        return;
    }
    int& depth = Depths()[m_db.connectionName()];
    m_level = depth + 1;
    if (m_level == 1) {
        m_active = exec(QStringLiteral("BEGIN"));
    } else {
        m_savepoint = QStringLiteral("tn_level_%1").arg(m_level);
        m_active = exec(QStringLiteral("SAVEPOINT ") + m_savepoint);
    }
    if (m_active)
        depth = m_level;
    else
        m_level = 0;
}

SqlTransaction::~SqlTransaction()
{
    rollback();
}

int SqlTransaction::depth(const QSqlDatabase& db)
{
    return Depths().value(db.connectionName(), 0);
}

bool SqlTransaction::exec(const QString& statement)
{
    QSqlQuery query(m_db);
    if (query.exec(statement))
        return true;
    m_error = query.lastError().text();
    return false;
}

void SqlTransaction::leave()
{
    m_active = false;
    Depths()[m_db.connectionName()] = m_level - 1;
}

bool SqlTransaction::commit()
{
    if (!m_active)
        return false;
    const bool committed = m_savepoint.isEmpty() ? exec(QStringLiteral("COMMIT"))
                                                 : exec(QStringLiteral("RELEASE ") + m_savepoint);
    if (!committed) {
        rollback();
        return false;
    }
    leave();
    return true;
}

void SqlTransaction::rollback()
{
    if (!m_active)
        return;
    if (m_savepoint.isEmpty()) {
        // When even the rollback fails SQLite has already ended the transaction itself (an I/O
        // or full-disk error); the next BEGIN then starts clean.
        exec(QStringLiteral("ROLLBACK"));
    } else {
        exec(QStringLiteral("ROLLBACK TO ") + m_savepoint);
        exec(QStringLiteral("RELEASE ") + m_savepoint);
    }
    leave();
}
