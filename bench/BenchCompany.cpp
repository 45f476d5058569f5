#include "BenchCompany.h"

#include "app/DatabasePrepare.h"
#include "base/Database.h"

#include <cstdio>

void QuietInteraction::message(MessageKind, const QString& text)
{
    std::fprintf(stderr, "%s\n", qPrintable(text));
}

bool QuietInteraction::sqlError(const QString& error, const QString& statement)
{
    std::fprintf(stderr, "%s\n%s\n", qPrintable(error), qPrintable(statement));
    return false;
}

Result OpenBenchCompany(const QString& path)
{
    if (Result r = Database::open(path); !r)
        return r;
    QuietInteraction interaction;
    return DatabasePrepare(interaction).run();
}
