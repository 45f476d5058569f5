// Which company database to work on: the choice at start-up and the change of company while
// running. The asking is left to a selector (the selection dialog, or a script) and the
// messages go through the Interaction, so the GUI, the command line and the tests share it.
#pragma once

#include "CompanyList.h"
#include "base/Result.h"

#include <functional>
#include <optional>

class Interaction;

// Picks one of the offered companies and returns its path; nothing when cancelled.
using CompanySelector = std::function<std::optional<QString>(const QList<CompanyEntry>&)>;

// The path to open at start-up: the command-line path when given and present, the only offered
// file of dbFolder, or the selector's choice. Empty when the program must not go on; the reason
// has then been shown.
QString ChooseStartupDatabase(const QString& commandLinePath, const QString& dbFolder,
                              Interaction& interaction, const CompanySelector& select);

// A restore that died between keeping the company's file aside and putting the backup in its
// place (or an older program's restore) leaves only the aside copy: it is put back and the
// user told. For one company file, and for every one of a folder.
void RecoverInterruptedRestore(const QString& path, Interaction& interaction);
void RecoverInterruptedRestores(const QString& dbFolder, Interaction& interaction);

// Opens path as the current database, prepares it and loads what the company's work reads from
// it (settings, invoice labels); messages are shown. A file that is not a company database, is
// damaged, read-only or busy is refused and left untouched. A failure leaves no database open.
Result OpenCompany(const QString& path, Interaction& interaction);

// "Change database/company...": true when another file was chosen, opened and prepared. When
// the chosen file cannot be used, the company worked on before is opened again.
bool ChangeCompanyDatabase(const QString& dbFolder, Interaction& interaction,
                           const CompanySelector& select);

// Makes path the current company and tells the user its name. When path cannot be used, the
// company worked on before is opened again.
bool SwitchCompany(const QString& path, Interaction& interaction);
