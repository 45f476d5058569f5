// The settings record: the one SETUP row of the current company, with typed reads and one
// "UPDATE SETUP SET ..." write. Values follow the stored conventions: flags are "1"/"0" texts
// (NULL reads as not set), numbers may have been stored as text.
#pragma once

#include "Result.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVariant>

class Setup
{
public:
    // Reads the row of the current database; a missing row reads as all NULL.
    Result load();

    QVariant value(const char* column) const;
    QString text(const char* column) const;
    bool flag(const char* column) const;
    qint64 integer(const char* column, qint64 fallback = 0) const;
    double number(const char* column, double fallback = 0.0) const;

    // Changes the value in memory and marks the column for the next save().
    void set(const char* column, const QVariant& value);
    void setFlag(const char* column, bool on);

    // Writes the columns changed since load() (or the given ones) in one statement.
    Result save();
    Result save(const QStringList& columns);
    // Writes the given SETUP columns in one statement with the values bound as parameters: the
    // way template texts are stored (quotes, brackets and line breaks kept byte for byte).
    // Only names of the form SETUP_... are accepted. current() then holds the written values.
    static Result write(const QHash<QString, QVariant>& values);

    // The settings of the open company, reloaded when a database is opened.
    static Setup& current();

private:
    QHash<QString, QVariant> m_values;
    QStringList m_changed;
};
