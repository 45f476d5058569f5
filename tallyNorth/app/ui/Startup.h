// The program's start on a company database, and the change to another company while running.
#pragma once

#include <QString>

class QWidget;

// Chooses the company database (the command-line path, the only file of the database folder, or
// the selection dialog), opens and prepares it and loads its settings. False when the program
// must not go on; the user has been told why.
bool StartUp(const QString& commandLinePath, QWidget* parent = nullptr);

// "Change database/company...": true when another company's database is now the current one.
bool ChangeCompany(QWidget* parent);
