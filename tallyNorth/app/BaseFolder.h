// The program's base folder and the folders under it: "DB" for the company databases,
// "BiztonsagiMasolatok" for backups.
#pragma once

#include <QString>

// --base DIR when given, else TALLYNORTH_BASE, else the user's application-data folder.
QString ResolveBaseFolder(const QString& commandLineChoice);

class BaseFolder
{
public:
    static void set(const QString& path);
    static QString path();
    static QString dbFolder();
    static QString backupFolder();
    // Creates the base folder with its two folders when missing.
    static bool ensureExists();
};
