// Command-line verbs for documents: rendering QTF and checking or installing invoice templates.
#pragma once

#include "Cli.h"

// qtf FILE [--header FILE] [--footer FILE] [--page WxH] [--shift-mm X,Y] --pdf OUT | --text
int RunQtfCommand(CliContext& context, const QStringList& args);
// template check DIR | template install DIR
int RunTemplateCommand(CliContext& context, const QStringList& args);
