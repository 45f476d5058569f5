// Command-line verbs for postal cheques: list them, print them to PDF.
#pragma once

#include "Cli.h"

// cheques [--partner TEXT]
int RunChequesCommand(CliContext& context, const QStringList& args);
// cheque print [--all-unprinted | ID...] --pdf FILE
int RunChequeCommand(CliContext& context, const QStringList& args);
