// The company databases of the database folder and the data the selection list shows of each.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

struct CompanyEntry
{
    QString path;
    QString name;
    QString zip;
    QString city;
    QString address;
    QString taxNo;

    QString fileName() const;
};

// The demonstration company's file name.
inline constexpr char kDemoDatabase[] = "demo.db";

// Paths of the files of folder that are company databases: named "*.db", longer than three
// characters, not beginning with ".". Sorted by name.
QStringList CompanyFiles(const QString& folder);

// The files offered for choosing: the demonstration database only while it is the only one.
QStringList OfferedCompanyFiles(const QStringList& files);

// The company data of one file's SETUP row, read through a read-only connection of its own;
// the fields stay empty when the file has no readable row.
CompanyEntry ReadCompanyEntry(const QString& path);
QList<CompanyEntry> ReadCompanyEntries(const QStringList& paths);
