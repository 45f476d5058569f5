#include "Database.h"

#include "MessageArgs.h"
#include <QCoreApplication>

#include "SqlStatement.h"

#include <QDir>
#include <QFileInfo>
#include <QSqlError>

namespace {
const char* const kConnection = Database::kSessionName;
}

QString& Database::currentPath()
{
    static QString path;
    return path;
}

Result Database::open(const QString& path)
{
    close();
    if (path.isEmpty())
        return Result::failure(
            QCoreApplication::translate("Database", "Missing filename opening database."));
    QSqlDatabase db =
        QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QString::fromLatin1(kConnection));
    db.setDatabaseName(path);
    const bool dirExists = QFileInfo(path).absoluteDir().exists();
    if (!dirExists || !db.open()) {
        const QString error = db.lastError().text();
        db = QSqlDatabase();
        QSqlDatabase::removeDatabase(QString::fromLatin1(kConnection));
        return Result::failure(FillArgs(QCoreApplication::translate(
                                            "Database", "Can't create or open database file:\n%s"),
                                        {path}),
                               error);
    }
    currentPath() = QFileInfo(path).absoluteFilePath();
    return Result::success();
}

void Database::close()
{
    if (!QSqlDatabase::contains(QString::fromLatin1(kConnection)))
        return;
    ForgetPreparedStatements();
    {
        QSqlDatabase db = QSqlDatabase::database(QString::fromLatin1(kConnection), false);
        db.close();
    }
    QSqlDatabase::removeDatabase(QString::fromLatin1(kConnection));
    currentPath().clear();
}

bool Database::isOpen()
{
    return QSqlDatabase::contains(QString::fromLatin1(kConnection)) &&
           QSqlDatabase::database(QString::fromLatin1(kConnection), false).isOpen();
}

QString Database::path()
{
    return currentPath();
}

QSqlDatabase Database::session()
{
    return QSqlDatabase::database(QString::fromLatin1(kConnection), false);
}
