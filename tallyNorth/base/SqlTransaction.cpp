#include "SqlTransaction.h"

#include "Database.h"

SqlTransaction::SqlTransaction(const QSqlDatabase& db) : m_db(db)
{
    m_active = m_db.transaction();
}

SqlTransaction::~SqlTransaction()
{
    rollback();
}

bool SqlTransaction::commit()
{
    if (!m_active)
        return false;
    m_active = false;
    return m_db.commit();
}

void SqlTransaction::rollback()
{
    if (!m_active)
        return;
    m_active = false;
    m_db.rollback();
}
