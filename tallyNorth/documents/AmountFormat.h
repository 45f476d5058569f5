// Money as printed on invoices and cheques: a fixed number of decimals, trailing zeros kept,
// Hungarian digit grouping (a no-break space every three digits) and a decimal comma.
#pragma once

#include <QString>

// The format text for a count of decimals: "%0nl" for none, "%2!nl" for two; counts outside
// 1 to 10 are taken as none.
QString AmountFormat(int decimals);
// The count of decimals of such a format text (0 when it is not one).
int AmountFormatDecimals(const QString& format);

// value rounded half away from zero to decimals places (0 to 10, others count as 0) and
// written out: FormatAmount(-1234567.5, 2) is "-1 234 567,50" with no-break spaces.
QString FormatAmount(double value, int decimals);
QString FormatAmount(double value, const QString& format);
