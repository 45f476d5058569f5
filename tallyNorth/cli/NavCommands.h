// Verbs of the online invoice reporting: the invoice documents, sending and the states.
#pragma once

#include "Cli.h"

// nav export INVOICE_NO_STR [--out FILE] | nav export --from-no A --to-no B --out DIR |
// nav send | nav status [INVOICE_NO_STR] | nav resend INVOICE_NO_STR
int RunNavCommand(CliContext& context, const QStringList& args);
