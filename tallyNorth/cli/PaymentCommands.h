// Command-line verbs for payments: record one received for an invoice, list the earlier ones.
#pragma once

#include "Cli.h"

// pay INVOICE_NO_STR AMOUNT --date YYYY-MM-DD [--record-no X] [--comment C]
int RunPayCommand(CliContext& context, const QStringList& args);
// payments INVOICE_NO_STR
int RunPaymentsCommand(CliContext& context, const QStringList& args);
