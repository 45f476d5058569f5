// Fills the order windows' print hooks with the invoice issue and the printer.
#pragma once

void InstallOrderPrinting();
