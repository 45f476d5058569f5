// Company files of older schema versions, built the way those versions left them: today's schema
// less what each later upgrade step added (tests/data/app/schema_history.txt), with the legacy
// columns and indexes of the time and a small but realistic set of partners, payment methods,
// orders and invoices.
#pragma once

#include <QString>
#include <QStringList>

struct OldCompanyFile
{
    // -1 (no version table), 1, 2, 3 or 301.
    int version = -1;
    // SETUP_ITEM_ROUND_DIGITS, the company's line rounding before currencies had their own.
    int roundDigits = 1;
    // Breakages found in the wild: an index the upgrade drops is missing, or the old rounding
    // setting is.
    bool withoutPartnerNameIndex = false;
    bool withoutRoundDigits = false;

    // Writes the file at path; the current session is closed afterwards.
    bool build(const QString& path) const;
};

// Column names of table on the current session, in declaration order.
QStringList TableColumns(const QString& table);
