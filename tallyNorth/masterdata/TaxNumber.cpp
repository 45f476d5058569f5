#include "TaxNumber.h"

#include <QCoreApplication>
#include <QHash>
#include <QRegularExpression>

namespace {

QString Compact(const QString& text)
{
    QString out;
    for (const QChar c : text)
        if (!c.isSpace() && c != u'-')
            out += c.toUpper();
    return out;
}

// The part after the country prefix, by the EU's published formats.
const QHash<QString, QString>& EuShapes()
{
    static const QHash<QString, QString> shapes{
        {QStringLiteral("AT"), QStringLiteral("U\\d{8}")},
        {QStringLiteral("BE"), QStringLiteral("[01]\\d{9}")},
        {QStringLiteral("BG"), QStringLiteral("\\d{9,10}")},
        {QStringLiteral("CY"), QStringLiteral("\\d{8}[A-Z]")},
        {QStringLiteral("CZ"), QStringLiteral("\\d{8,10}")},
        {QStringLiteral("DE"), QStringLiteral("\\d{9}")},
        {QStringLiteral("DK"), QStringLiteral("\\d{8}")},
        {QStringLiteral("EE"), QStringLiteral("\\d{9}")},
        {QStringLiteral("EL"), QStringLiteral("\\d{9}")},
        {QStringLiteral("ES"), QStringLiteral("[A-Z0-9]\\d{7}[A-Z0-9]")},
        {QStringLiteral("FI"), QStringLiteral("\\d{8}")},
        {QStringLiteral("FR"), QStringLiteral("[A-HJ-NP-Z0-9]{2}\\d{9}")},
        {QStringLiteral("HR"), QStringLiteral("\\d{11}")},
        {QStringLiteral("HU"), QStringLiteral("\\d{8}")},
        {QStringLiteral("IE"), QStringLiteral("\\d[A-Z0-9+*]\\d{5}[A-Z]{1,2}")},
        {QStringLiteral("IT"), QStringLiteral("\\d{11}")},
        {QStringLiteral("LT"), QStringLiteral("\\d{9}|\\d{12}")},
        {QStringLiteral("LU"), QStringLiteral("\\d{8}")},
        {QStringLiteral("LV"), QStringLiteral("\\d{11}")},
        {QStringLiteral("MT"), QStringLiteral("\\d{8}")},
        {QStringLiteral("NL"), QStringLiteral("\\d{9}B\\d{2}")},
        {QStringLiteral("PL"), QStringLiteral("\\d{10}")},
        {QStringLiteral("PT"), QStringLiteral("\\d{9}")},
        {QStringLiteral("RO"), QStringLiteral("\\d{2,10}")},
        {QStringLiteral("SE"), QStringLiteral("\\d{12}")},
        {QStringLiteral("SI"), QStringLiteral("\\d{8}")},
        {QStringLiteral("SK"), QStringLiteral("\\d{10}")},
        {QStringLiteral("XI"), QStringLiteral("\\d{9}|\\d{12}|GD\\d{3}|HA\\d{3}")},
    };
    return shapes;
}

bool FirstEightCheck(const QString& digits)
{
    return HungarianTaxNoCheckDigit(digits.left(7)) == digits.at(7).digitValue();
}

} // namespace

int HungarianTaxNoCheckDigit(const QString& sevenDigits)
{
    static const int weights[] = {9, 7, 3, 1, 9, 7, 3};
    int sum = 0;
    for (int i = 0; i < 7 && i < sevenDigits.size(); ++i)
        sum += weights[i] * sevenDigits.at(i).digitValue();
    return (10 - sum % 10) % 10;
}

TaxNoProblem CheckHungarianTaxNo(const QString& taxNo)
{
    // Hyphens or blanks may part the three groups, never a group itself.
    static const QRegularExpression shape(
        QStringLiteral("^\\s*(\\d{8})[\\s-]*(\\d)[\\s-]*(\\d{2})\\s*$"));
    const QRegularExpressionMatch m = shape.match(taxNo);
    if (!m.hasMatch())
        return TaxNoProblem::Shape;
    const QString vatCode = m.captured(2);
    // The VAT code is 1 to 5; 0 and 6-9 are never given out.
    if (vatCode.toInt() < 1 || vatCode.toInt() > 5)
        return TaxNoProblem::Shape;
    return FirstEightCheck(m.captured(1)) ? TaxNoProblem::None : TaxNoProblem::CheckDigit;
}

TaxNoProblem CheckEuVatNo(const QString& vatNo)
{
    const QString compact = Compact(vatNo);
    if (compact.size() < 4)
        return TaxNoProblem::Shape;
    const QString country = compact.left(2);
    const QString rest = compact.mid(2);
    const auto it = EuShapes().constFind(country);
    if (it == EuShapes().constEnd())
        return TaxNoProblem::Shape;
    const QRegularExpression re(QStringLiteral("^(?:") + it.value() + QStringLiteral(")$"));
    if (!re.match(rest).hasMatch())
        return TaxNoProblem::Shape;
    if (country == QLatin1String("HU") && !FirstEightCheck(rest))
        return TaxNoProblem::CheckDigit;
    return TaxNoProblem::None;
}

QString HungarianTaxNoMessage(const QString& taxNo)
{
    if (taxNo.trimmed().isEmpty())
        return {};
    switch (CheckHungarianTaxNo(taxNo)) {
    case TaxNoProblem::None:
        return {};
    case TaxNoProblem::Shape:
        return QCoreApplication::translate(
            "TaxNumber", "The tax number must have the form 12345678-1-12 (8, 1 and 2 digits).");
    case TaxNoProblem::CheckDigit:
        break;
    }
    return QCoreApplication::translate(
        "TaxNumber",
        "The tax number is not valid: its eighth digit does not match the first seven.&Check "
        "for a mistyped digit.");
}

QString EuVatNoMessage(const QString& vatNo)
{
    if (vatNo.trimmed().isEmpty())
        return {};
    switch (CheckEuVatNo(vatNo)) {
    case TaxNoProblem::None:
        return {};
    case TaxNoProblem::Shape:
        return QCoreApplication::translate(
            "TaxNumber", "The EU VAT number must begin with a country code of the EU and have "
                         "that country's form (for example HU12345676).");
    case TaxNoProblem::CheckDigit:
        break;
    }
    return QCoreApplication::translate(
        "TaxNumber", "The EU VAT number is not valid: its check digit does not match.");
}

QString PartnerTaxNoMessage(const QString& taxNo, const QString& euVatNo, bool homeCountry)
{
    if (homeCountry)
        if (QString m = HungarianTaxNoMessage(taxNo); !m.isEmpty())
            return m;
    return EuVatNoMessage(euVatNo);
}
