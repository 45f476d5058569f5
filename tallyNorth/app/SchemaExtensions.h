// What this program adds to a company file beyond the company schema: TN_ tables and indexes,
// created by their own numbered steps and recorded in TN_VERSION. DBVERSION is never touched,
// so other programs and older copies still read the file.
#pragma once

#include "base/Database.h"
#include "base/Result.h"

#include <QCoreApplication>

class Interaction;

inline constexpr int kSchemaExtensionVersion = 2;

// The extension version recorded in TN_VERSION; 0 when the file has none.
int ReadSchemaExtensionVersion(const QSqlDatabase& db = Database::session());

class SchemaExtensions
{
    Q_DECLARE_TR_FUNCTIONS(SchemaExtensions)

public:
    // Runs the steps the file lacks, all in one transaction. Needs the company's lock (or a file
    // nobody else has yet). A failed statement is offered for retry when interaction is given.
    static Result apply(Interaction* interaction, const QSqlDatabase& db = Database::session());
    static QString newerVersionMessage();
};
