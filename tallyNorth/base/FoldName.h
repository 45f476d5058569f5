// The searchable form of a name: accents dropped, upper case. Every ..._NAME_ASCII column is
// written with it and every name search folds the typed text with it.
#pragma once

#include <QString>

QString FoldName(const QString& name);
