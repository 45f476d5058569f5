// SQL scripts kept as resources (schema, basic data, upgrade steps), run statement by statement.
#pragma once

#include "base/Database.h"
#include "base/Result.h"

#include <QString>
#include <QStringList>

class Interaction;

// Splits a script at the ";" that end its statements; quoted texts may hold ";" and line breaks.
QStringList SplitSqlScript(const QString& script);

// The text of a script resource such as ":/sql/create_tables.sql".
QString LoadSqlScript(const QString& resource);

// The part of script after the line "-- [name]" up to the next such line: scripts whose steps
// are interleaved with work done by the program are cut into named sections.
QString SqlScriptSection(const QString& script, const QString& name);

// Runs every statement of script; a script without statements fails (a missing resource). A failed
// statement is offered to the user for retry through the SQL error dialog when interaction is
// given; the first failure that is not retried ends it.
Result ExecSqlScript(const QString& script, Interaction* interaction = nullptr,
                     const QSqlDatabase& db = Database::session());
