// The setup window's cheque "Teszt" button prints a test cheque with the margins being edited.
// The cheque printer installs itself here; until it does, the button stays disabled.
#pragma once

#include <QString>

#include <functional>

class QWidget;

struct ChequeTestSettings
{
    QString templateDir; // the chosen cheque template folder; empty for the installed one
    double marginLeftMm = 20;
    double marginTopMm = 20;
};

using ChequeTestPrinter = std::function<void(QWidget* parent, const ChequeTestSettings& settings)>;

void SetChequeTestPrinter(ChequeTestPrinter printer);
// Empty while no cheque printer is installed.
const ChequeTestPrinter& ChequeTestPrint();
