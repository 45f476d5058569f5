// Writes that belong together: rolled back unless committed.
#pragma once

class SqlTransaction
{
public:
    SqlTransaction();
    ~SqlTransaction();
    SqlTransaction(const SqlTransaction&) = delete;
    SqlTransaction& operator=(const SqlTransaction&) = delete;

    bool active() const { return m_active; }
    bool commit();
    void rollback();

private:
    bool m_active = false;
};
