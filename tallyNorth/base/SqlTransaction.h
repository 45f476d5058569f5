// Writes that belong together: rolled back unless committed. Transactions nest: an inner one is a
// savepoint of the outer, so its rollback undoes only its own writes and its commit is made
// durable by the outer commit.
#pragma once

#include "Database.h"

class SqlTransaction
{
public:
    explicit SqlTransaction(const QSqlDatabase& db = Database::session());
    ~SqlTransaction();
    SqlTransaction(const SqlTransaction&) = delete;
    SqlTransaction& operator=(const SqlTransaction&) = delete;

    // Begun and not yet committed or rolled back. False when BEGIN failed: the writes that
    // follow would not be guarded, so commit() then fails too.
    bool active() const { return m_active; }
    bool nested() const { return m_level > 1; }
    // The database's error text when BEGIN or COMMIT failed.
    QString errorText() const { return m_error; }

    // A failed COMMIT is rolled back, so the connection is never left inside the transaction.
    [[nodiscard]] bool commit();
    void rollback();

    // How many transactions are open on the connection (0: none).
    static int depth(const QSqlDatabase& db = Database::session());

private:
    bool exec(const QString& statement);
    void leave();

    QSqlDatabase m_db;
    QString m_savepoint;
    QString m_error;
    int m_level = 0;
    bool m_active = false;
};
