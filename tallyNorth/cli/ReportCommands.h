// The report verb: the sales and receivables reports as text, CSV or PDF.
#pragma once

#include "Cli.h"

int RunReportCommand(CliContext& context, const QStringList& args);
