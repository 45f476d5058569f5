// Creating a new company database in the database folder: one file per company, named after it,
// never a second file for a tax number that a company database already has.
#pragma once

#include "base/Result.h"

#include <QString>

class Interaction;

struct NewCompany
{
    QString name;
    QString taxNo;
    QString zip;
    QString city;
    QString address;
    // The file name to use ("name.db"); empty to derive it from the company name.
    QString fileName;
};

// "Minta Kft." gives "minta_kft.db"; "_2", "_3"... keep it apart from the files of folder.
QString CompanyFileName(const QString& companyName, const QString& folder);

// True when the two tax numbers name the same taxpayer (separators and blanks do not count).
bool SameTaxNo(const QString& a, const QString& b);

// Creates the file in folder with the schema and basic data and the company's data in SETUP.
// On success path holds the new file's path; a file left half made is removed.
Result CreateCompany(const NewCompany& company, const QString& folder, Interaction& interaction,
                     QString* path = nullptr);

// The demonstration company "demo.db", made the first time the database folder is found empty.
Result CreateDemoCompany(const QString& folder, Interaction& interaction, QString* path = nullptr);
