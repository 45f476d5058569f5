#include "ChequeTestPrint.h"

namespace {

ChequeTestPrinter& Printer()
{
    static ChequeTestPrinter printer;
    return printer;
}

} // namespace

void SetChequeTestPrinter(ChequeTestPrinter printer)
{
    Printer() = std::move(printer);
}

const ChequeTestPrinter& ChequeTestPrint()
{
    return Printer();
}
