#include "CompanyLock.h"

#include "base/MessageArgs.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>

#include <map>

namespace {

struct Held
{
    std::unique_ptr<QLockFile> file;
    int count = 0;
};

std::map<QString, Held>& HeldLocks()
{
    static std::map<QString, Held> locks;
    return locks;
}

int WaitMs()
{
    bool ok = false;
    const int ms = qEnvironmentVariableIntValue("TALLYNORTH_LOCK_WAIT_MS", &ok);
    return ok && ms >= 0 ? ms : 20000;
}

// A process killed between creating its lock file and writing its owner into it leaves an empty
// file, which QLockFile can never judge stale. Writing takes microseconds, so an empty file a few
// seconds old belongs to nobody.
void RemoveEmptyLeftover(const QString& path)
{
    const QFileInfo info(path);
    if (info.exists() && info.size() == 0 &&
        info.lastModified().secsTo(QDateTime::currentDateTime()) >= 3)
        QFile::remove(path);
}

} // namespace

CompanyLock::CompanyLock(QString databasePath) : m_key(QFileInfo(databasePath).absoluteFilePath())
{
}

CompanyLock::~CompanyLock()
{
    release();
}

QString CompanyLock::lockPath(const QString& databasePath)
{
    return QFileInfo(databasePath).absoluteFilePath() + QLatin1String(".lock");
}

Result CompanyLock::acquire()
{
    if (m_held)
        return Result::success();
    Held& held = HeldLocks()[m_key];
    if (held.count == 0) {
        held.file = std::make_unique<QLockFile>(lockPath(m_key));
        // Never stale by age: an upgrade of a large company may take long. A lock whose
        // process is gone is stale at once.
        held.file->setStaleLockTime(0);
        RemoveEmptyLeftover(lockPath(m_key));
        if (!held.file->tryLock(WaitMs())) {
            HeldLocks().erase(m_key);
            return Result::failure(
                FillArgs(tr("The company file is being upgraded, restored or backed up by another "
                            "program:&%s&Try again when it has finished."),
                         {m_key}));
        }
    }
    ++held.count;
    m_held = true;
    return Result::success();
}

void CompanyLock::release()
{
    if (!m_held)
        return;
    m_held = false;
    auto it = HeldLocks().find(m_key);
    if (it != HeldLocks().end() && --it->second.count == 0)
        HeldLocks().erase(it);
}
