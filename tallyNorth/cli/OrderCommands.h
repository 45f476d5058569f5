// Command-line verbs for orders: show one, add one for scripts and tests, clone and delete.
#pragma once

#include "Cli.h"

// order show ID | order add --partner ID|NAME --item PRODUCT_ID:QTY[:PRICE]... [options]
// | order clone ID | order delete ID...
int RunOrderCommand(CliContext& context, const QStringList& args);
// orders [--kind N] [--from D --to D --date shipped|created|due] [--partner TEXT]
// [--format txt|csv]: the order list as the list window shows it
int RunOrdersCommand(CliContext& context, const QStringList& args);
