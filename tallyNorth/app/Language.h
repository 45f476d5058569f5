// The user-interface language: Hungarian by default, English source texts on request.
#pragma once

#include <QString>

// "hu" or "en". Chosen by --lang, else TALLYNORTH_LANG, else Hungarian.
QString ChooseLanguage(const QString& commandLineChoice);

// Installs the program's and Qt's own translations for language on the running application.
// English installs none. Returns false when the program's Hungarian texts cannot be loaded.
bool InstallLanguage(const QString& language);
