// The one database session of the program, on the current company's file.
#pragma once

#include "Result.h"

#include <QSqlDatabase>
#include <QString>

class Database
{
public:
    // Opens the SQLite file, creating it when missing. Closes an earlier session first.
    static Result open(const QString& path);
    static void close();
    static bool isOpen();
    static QString path();
    static QSqlDatabase session();
    // The session's connection name.
    static constexpr char kSessionName[] = "tallynorth";

private:
    static QString& currentPath();
};
