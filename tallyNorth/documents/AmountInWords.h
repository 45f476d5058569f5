// An amount written out in Hungarian words, for invoices of forint totals and for cheques.
#pragma once

#include <QString>

// "nulla" for 0, "mínusz" before a negative amount, groups of three digits separated by a
// space ("egyezer kettőszázharmincnégy"). Digits from 10^12 up are dropped, so 10^12 itself
// gives the empty text.
QString AmountInWords(qint64 amount);
