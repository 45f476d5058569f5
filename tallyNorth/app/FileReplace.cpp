#include "FileReplace.h"

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace {

bool SameFile(const QString& a, const QString& b)
{
    const QFileInfo fa(a), fb(b);
    if (fa.exists() && fb.exists())
        return fa.canonicalFilePath() == fb.canonicalFilePath();
    return fa.absoluteFilePath() == fb.absoluteFilePath();
}

bool SyncPath(const QString& path, int flags)
{
    const int fd = ::open(QFile::encodeName(path).constData(), flags | O_CLOEXEC);
    if (fd < 0)
        return false;
    const bool synced = ::fsync(fd) == 0;
    return ::close(fd) == 0 && synced;
}

} // namespace

QString TempPathBeside(const QString& path)
{
    for (;;) {
        const QString candidate =
            path + QStringLiteral(".tn-%1.tmp")
                       .arg(QRandomGenerator::global()->generate(), 8, 16, QLatin1Char('0'));
        if (!QFileInfo::exists(candidate))
            return candidate;
    }
}

bool SyncFile(const QString& path)
{
    return SyncPath(path, O_RDONLY);
}

bool SyncFolderOf(const QString& path)
{
    // Some file systems cannot flush a folder; the rename is then as durable as they make it.
    SyncPath(QFileInfo(path).absolutePath(), O_RDONLY | O_DIRECTORY);
    return true;
}

bool CopyToNewFile(const QString& source, const QString& target)
{
    QFile in(source);
    if (!in.open(QIODevice::ReadOnly))
        return false;
    QFile out(target);
    if (!out.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        return false;
    bool ok = true;
    while (ok && !in.atEnd()) {
        const QByteArray chunk = in.read(1 << 20);
        ok = !(chunk.isEmpty() && in.error() != QFileDevice::NoError) &&
             out.write(chunk) == chunk.size();
    }
    ok = ok && out.flush() && ::fsync(out.handle()) == 0;
    out.close();
    if (!ok || out.error() != QFileDevice::NoError) {
        QFile::remove(target);
        return false;
    }
    return true;
}

bool CopyReplacing(const QString& source, const QString& target)
{
    if (SameFile(source, target) || QFileInfo(target).isDir())
        return false;
    const QString temp = TempPathBeside(target);
    if (!CopyToNewFile(source, temp))
        return false;
    if (!MoveReplacing(temp, target)) {
        QFile::remove(temp);
        return false;
    }
    return true;
}

bool MoveReplacing(const QString& from, const QString& to)
{
    if (std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) != 0)
        return false;
    SyncFolderOf(to);
    return true;
}

bool KeepAs(const QString& path, const QString& alias)
{
    const QString temp = TempPathBeside(alias);
    if (::link(QFile::encodeName(path).constData(), QFile::encodeName(temp).constData()) != 0 &&
        !CopyToNewFile(path, temp))
        return false;
    if (!MoveReplacing(temp, alias)) {
        QFile::remove(temp);
        return false;
    }
    return true;
}
