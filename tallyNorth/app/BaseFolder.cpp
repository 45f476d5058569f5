#include "BaseFolder.h"

#include <QDir>
#include <QStandardPaths>

namespace {
QString& Current()
{
    static QString path;
    return path;
}
} // namespace

QString ResolveBaseFolder(const QString& commandLineChoice)
{
    if (!commandLineChoice.isEmpty())
        return QDir(commandLineChoice).absolutePath();
    const QString env = qEnvironmentVariable("TALLYNORTH_BASE");
    if (!env.isEmpty())
        return QDir(env).absolutePath();
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QLatin1String("/tallyNorth");
}

void BaseFolder::set(const QString& path)
{
    Current() = path;
}

QString BaseFolder::path()
{
    if (Current().isEmpty())
        Current() = ResolveBaseFolder({});
    return Current();
}

QString BaseFolder::dbFolder()
{
    return path() + QLatin1String("/DB");
}

QString BaseFolder::backupFolder()
{
    return path() + QLatin1String("/BiztonsagiMasolatok");
}

bool BaseFolder::ensureExists()
{
    QDir dir;
    return dir.mkpath(dbFolder()) && dir.mkpath(backupFolder());
}
