#include "CompanyFile.h"

#include "DatabasePrepare.h"
#include "FileReplace.h"
#include "ScopedConnection.h"
#include "base/MessageArgs.h"
#include "base/SqlStatement.h"

#include <QFile>
#include <QFileInfo>
#include <QSqlError>
#include <QSqlQuery>
#include <QtEndian>

namespace {

// Tables every version of the company schema has had.
const char* const kCompanyTables[] = {"ORDERHEAD", "ORDERITEM",     "PARTNER",
                                      "PRODUCT",   "PAYMENTMETHOD", "SETUP"};

Result NotCompany(const QString& path)
{
    return Result::failure(
        FillArgs(CompanyFile::tr("The file is not a company database:&%s"), {path}));
}

Result Damaged(const QString& path, const QString& detail = {})
{
    return Result::failure(
        FillArgs(CompanyFile::tr("The company database file is damaged:&%s"), {path}), detail);
}

Result InUse(const QString& path, const QString& detail)
{
    return Result::failure(
        FillArgs(CompanyFile::tr("The company database file is in use by another program:&%s&Try "
                                 "again later."),
                 {path}),
        detail);
}

bool Busy(const QSqlError& error)
{
    // SQLITE_BUSY (5) and SQLITE_LOCKED (6).
    const QString code = error.nativeErrorCode();
    return code == QLatin1String("5") || code == QLatin1String("6");
}

// The header's page count where SQLite itself trusts it: a file shorter than that lost its end.
bool Truncated(const QByteArray& header, qint64 size)
{
    if (header.size() < 100)
        return true;
    const auto* h = reinterpret_cast<const uchar*>(header.constData());
    qint64 pageSize = qFromBigEndian<quint16>(h + 16);
    if (pageSize == 1)
        pageSize = 65536;
    const quint32 changeCounter = qFromBigEndian<quint32>(h + 24);
    const quint32 pages = qFromBigEndian<quint32>(h + 28);
    const quint32 validFor = qFromBigEndian<quint32>(h + 92);
    if (pageSize < 512 || size % pageSize != 0)
        return true;
    return pages != 0 && validFor == changeCounter && qint64(pages) * pageSize > size;
}

} // namespace

Result CompanyFile::inspect(const QString& path, Check check, Kind* kind, int* version)
{
    if (kind)
        *kind = Kind::New;
    if (version)
        *version = -1;
    const QFileInfo info(path);
    if (!info.exists() || (info.isFile() && info.size() == 0))
        return Result::success();
    if (!info.isFile())
        return NotCompany(path);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Result::failure(FillArgs(tr("The file cannot be read:&%s"), {path}),
                               file.errorString());
    const QByteArray header = file.read(100);
    file.close();
    if (!header.startsWith(QByteArray("SQLite format 3", 16)))
        return NotCompany(path);
    // With a journal beside it the file may be short until SQLite rolls the journal back.
    if (!QFile::exists(path + QLatin1String("-journal")) && Truncated(header, info.size()))
        return Damaged(path);

    ScopedConnection connection(path, ScopedConnection::Mode::ReadWrite);
    if (!connection.isOpen())
        return Result::failure(FillArgs(tr("The file cannot be read:&%s"), {path}),
                               connection.errorText());
    QSqlQuery tables(connection.db());
    if (!tables.exec(QStringLiteral("select name from sqlite_master where type = 'table'"))) {
        if (Busy(tables.lastError()))
            return InUse(path, tables.lastError().text());
        return Damaged(path, tables.lastError().text());
    }
    QStringList names;
    while (tables.next())
        names << tables.value(0).toString().toUpper();
    tables.finish();
    if (names.isEmpty())
        return Result::success();
    for (const char* table : kCompanyTables) {
        if (!names.contains(QLatin1String(table)))
            return NotCompany(path);
    }
    QSqlQuery verify(connection.db());
    const QString pragma = check == Check::Full ? QStringLiteral("pragma integrity_check")
                                                : QStringLiteral("pragma quick_check");
    if (!verify.exec(pragma)) {
        if (Busy(verify.lastError()))
            return InUse(path, verify.lastError().text());
        return Damaged(path, verify.lastError().text());
    }
    if (!verify.next() || verify.value(0).toString() != QLatin1String("ok"))
        return Damaged(path, verify.value(0).toString());
    verify.finish();
    if (kind)
        *kind = Kind::Company;
    if (version)
        *version = ReadDbVersion(connection.db());
    return Result::success();
}

Result CompanyFile::checkRestorable(const QString& path)
{
    Kind kind = Kind::New;
    int version = -1;
    const Result r = inspect(path, Check::Full, &kind, &version);
    if (!r)
        return r;
    // An empty file would become a new, blank company in the place of the restored one.
    if (kind != Kind::Company)
        return NotCompany(path);
    if (version > kCurrentDbVersion)
        return Result::failure(
            DatabasePrepare::tr("The database version is newer, than the version of the billing "
                                "software.&Upgrade the software to a newer version."));
    return Result::success();
}

Result CompanyFile::replace(const QString& replacement, const QString& target, const QString& aside)
{
    std::optional<ScopedConnection> current;
    if (QFileInfo(target).isFile() && QFileInfo(target).size() > 0) {
        // Waits for a writer to finish, and rolls back a journal a dead one left, before the
        // file leaves its name.
        current.emplace(target, ScopedConnection::Mode::ReadWrite);
        QSqlQuery lock(current->db());
        if (!current->isOpen() || !lock.exec(QStringLiteral("begin exclusive")))
            return InUse(target,
                         current->isOpen() ? lock.lastError().text() : current->errorText());
    }
    if (!aside.isEmpty() && current && !KeepAs(target, aside))
        return Result::failure(FillArgs(tr("The file cannot be written:&%s"), {aside}));
    if (!MoveReplacing(replacement, target))
        return Result::failure(FillArgs(tr("The file cannot be written:&%s"), {target}));
    if (current) {
        QSqlQuery(current->db()).exec(QStringLiteral("rollback"));
    }
    return Result::success();
}
