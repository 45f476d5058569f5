// What a file that is to become the company's database really is, and the one way a company
// file is replaced: under SQLite's exclusive lock, so that no other process is in the middle of
// a write and no journal of the replaced file is applied to the new one.
#pragma once

#include "base/Result.h"

#include <QCoreApplication>
#include <QString>

class CompanyFile
{
    Q_DECLARE_TR_FUNCTIONS(CompanyFile)

public:
    enum class Kind {
        New,     // missing, 0 bytes or an SQLite file without tables: gets the schema
        Company, // has the company tables and passed the integrity check
    };
    enum class Check {
        Quick, // pragma quick_check, at every opening
        Full,  // pragma integrity_check, for a file about to replace the company's
    };

    // Refuses (with a message naming the file) a file that is not SQLite, an SQLite file without
    // the company tables, a damaged or truncated file and one that another program keeps locked.
    // Nothing is written to the file.
    static Result inspect(const QString& path, Check check, Kind* kind = nullptr,
                          int* version = nullptr);

    // A file that may be restored over the company's: a complete company database of a version
    // this program can open.
    static Result checkRestorable(const QString& path);

    // Puts replacement in the place of target in one rename, holding SQLite's exclusive lock on
    // target meanwhile. With aside given, target's file is kept under that name too.
    static Result replace(const QString& replacement, const QString& target,
                          const QString& aside = {});
};
