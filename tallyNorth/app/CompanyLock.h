// One process at a time for the work that rebuilds or replaces a company file (schema creation,
// upgrade, restore, backup snapshot): a lock file beside it ("ceg.db.lock"). A lock left by a
// process that died is taken over. Within one process the lock may be taken again while held.
#pragma once

#include "base/Result.h"

#include <QCoreApplication>
#include <QString>

#include <memory>

class QLockFile;

class CompanyLock
{
    Q_DECLARE_TR_FUNCTIONS(CompanyLock)

public:
    explicit CompanyLock(QString databasePath);
    ~CompanyLock();
    CompanyLock(const CompanyLock&) = delete;
    CompanyLock& operator=(const CompanyLock&) = delete;

    // Waits for another process to finish (TALLYNORTH_LOCK_WAIT_MS, else 20 seconds); the failure
    // names the file.
    Result acquire();
    void release();
    bool held() const { return m_held; }

    static QString lockPath(const QString& databasePath);

private:
    QString m_key;
    bool m_held = false;
};
