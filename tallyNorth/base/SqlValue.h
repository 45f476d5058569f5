// Readers for values as they are stored: flags are "1"/"0" texts, but data fixes write bare
// numbers, and some numeric columns hold text.
#pragma once

#include <QVariant>

// "1" or 1 is set; "0", 0, NULL and anything else is not.
bool IsFlagSet(const QVariant& value);
// The stored flag text for a boolean.
QString FlagText(bool set);
// A number from a numeric or text value; NULL, empty or unreadable text gives fallback.
double ToNumber(const QVariant& value, double fallback = 0.0);
qint64 ToInteger(const QVariant& value, qint64 fallback = 0);
// NULL or empty text.
bool IsNullValue(const QVariant& value);
