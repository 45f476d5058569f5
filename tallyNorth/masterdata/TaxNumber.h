// Tax numbers as typed: the Hungarian "adószám" (8-1-2 digits, the eighth digit checking the first
// seven) and the EU VAT registration number (country prefix and the country's shape).
#pragma once

#include <QString>

enum class TaxNoProblem { None, Shape, CheckDigit };

// "12345676-2-41" or "12345676241". Blanks around the parts do not count.
TaxNoProblem CheckHungarianTaxNo(const QString& taxNo);
inline bool IsValidHungarianTaxNo(const QString& taxNo)
{
    return CheckHungarianTaxNo(taxNo) == TaxNoProblem::None;
}
// The check digit of the first seven digits: weights 9, 7, 3, 1, repeated; (10 - sum mod 10)
// mod 10.
int HungarianTaxNoCheckDigit(const QString& sevenDigits);

// "HU12345676", "ATU12345678", "DE123456789"... Blanks and hyphens do not count; a Hungarian
// number must also have a correct check digit.
TaxNoProblem CheckEuVatNo(const QString& vatNo);

// The message for a number that fails; empty when the number is fine or empty.
QString HungarianTaxNoMessage(const QString& taxNo);
QString EuVatNoMessage(const QString& vatNo);

// A partner's numbers: the tax number is checked as a Hungarian one only for a partner in the
// home country (a foreign partner's number has its own country's form); the EU VAT number always.
QString PartnerTaxNoMessage(const QString& taxNo, const QString& euVatNo, bool homeCountry);
