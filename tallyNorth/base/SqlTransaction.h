// Writes that belong together: rolled back unless committed.
#pragma once

#include "Database.h"

class SqlTransaction
{
public:
    explicit SqlTransaction(const QSqlDatabase& db = Database::session());
    ~SqlTransaction();
    SqlTransaction(const SqlTransaction&) = delete;
    SqlTransaction& operator=(const SqlTransaction&) = delete;

    bool active() const { return m_active; }
    bool commit();
    void rollback();

private:
    QSqlDatabase m_db;
    bool m_active = false;
};
