// Command-line verbs of the webshop exchange: import orders, partners or products from a file,
// or download them with the login saved in the settings.
#pragma once

#include "Cli.h"

// import-orders FILE, import-partners FILE, import-products FILE
int RunImportOrders(CliContext& context, const QStringList& args);
int RunImportPartners(CliContext& context, const QStringList& args);
int RunImportProducts(CliContext& context, const QStringList& args);
// download-orders, download-partners, download-products [--timeout SECONDS]
int RunDownloadOrders(CliContext& context, const QStringList& args);
int RunDownloadPartners(CliContext& context, const QStringList& args);
int RunDownloadProducts(CliContext& context, const QStringList& args);
