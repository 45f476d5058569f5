#include "SqlTransaction.h"

#include "Database.h"

SqlTransaction::SqlTransaction()
{
    m_active = Database::session().transaction();
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
    return Database::session().commit();
}

void SqlTransaction::rollback()
{
    if (!m_active)
        return;
    m_active = false;
    Database::session().rollback();
}
