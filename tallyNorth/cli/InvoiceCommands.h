// Command-line verbs for invoices: issue an order, print a copy, cancel, the template's sample.
#pragma once

#include "Cli.h"

// issue ORDER_ID [--pdf FILE] [--copies N]
int RunIssueCommand(CliContext& context, const QStringList& args);
// print INVOICE_NO_STR --pdf FILE [--copies N]
int RunPrintCommand(CliContext& context, const QStringList& args);
// cancel INVOICE_NO_STR [--pdf FILE] [--copies N] [--shipped D] [--due D] [--payment ID]
int RunCancelCommand(CliContext& context, const QStringList& args);
// sample --pdf FILE
int RunSampleCommand(CliContext& context, const QStringList& args);
