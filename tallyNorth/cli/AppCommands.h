// Verbs of the company databases: list them, create one, prepare one.
#pragma once

#include "Cli.h"

int RunCompanies(CliContext& context, const QStringList& args);
int RunCreate(CliContext& context, const QStringList& args);
int RunCheck(CliContext& context, const QStringList& args);
