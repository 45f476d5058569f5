#include "FileReplace.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace {

bool SameFile(const QString& a, const QString& b)
{
    const QFileInfo fa(a), fb(b);
    if (fa.exists() && fb.exists())
        return fa.canonicalFilePath() == fb.canonicalFilePath();
    return fa.absoluteFilePath() == fb.absoluteFilePath();
}

} // namespace

bool CopyReplacing(const QString& source, const QString& target)
{
    if (SameFile(source, target))
        return false;
    QFile in(source);
    if (!in.open(QIODevice::ReadOnly))
        return false;
    QSaveFile out(target);
    if (!out.open(QIODevice::WriteOnly))
        return false;
    while (!in.atEnd()) {
        const QByteArray chunk = in.read(1 << 20);
        if (chunk.isEmpty() && in.error() != QFileDevice::NoError)
            return false;
        if (out.write(chunk) != chunk.size())
            return false;
    }
    return out.commit();
}

bool MoveReplacing(const QString& from, const QString& to)
{
    if (QFile::exists(to) && !QFile::remove(to))
        return false;
    return QFile::rename(from, to);
}
