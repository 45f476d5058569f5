// Verbs of the company databases: list them, create one, prepare one.
#pragma once

#include "Cli.h"

#include "base/Result.h"

int RunCompanies(CliContext& context, const QStringList& args);
int RunCreate(CliContext& context, const QStringList& args);
int RunCheck(CliContext& context, const QStringList& args);

// The company file a verb works on: --db FILE, else the file the program would open at start-up.
// Where the start-up would ask, the companies are listed with the hint to choose one with --db.
// Empty when there is none to use; the reason has been printed.
QString ChooseCompany(CliContext& context);
// Opens the company ChooseCompany() names, preparing it as the program's start does.
bool OpenChosenCompany(CliContext& context);

// Prints the failure's message (and the database's error text when asked) and returns
// ExitFailure; an empty message, for a refusal already told, prints nothing.
int PrintFailure(CliContext& context, const Result& r, bool withSqlError = false);
