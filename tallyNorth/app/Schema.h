// The schema of a company database and its basic data, as kept in the sql/ resources.
#pragma once

#include "base/Database.h"
#include "base/Result.h"

class Interaction;
class Progress;

// True when the database already has the schema's tables.
bool SchemaExists(const QSqlDatabase& db = Database::session());

// Creates the tables and indexes on the empty database and inserts the basic data (version 302).
// Progress texts are shown on progress when given. Runs on the current session unless another
// connection is given (a new company file is made without leaving the open one).
Result CreateSchema(Interaction* interaction, Progress* progress = nullptr,
                    const QSqlDatabase& db = Database::session());
