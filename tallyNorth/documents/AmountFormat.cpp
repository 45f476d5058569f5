#include "AmountFormat.h"

#include <QLocale>

#include <algorithm>

#include <cmath>

namespace {

int ValidDecimals(int decimals)
{
    return decimals >= 1 && decimals <= 10 ? decimals : 0;
}

// Rounds the decimal digits of a non-negative number written without exponent.
QString RoundDigits(const QString& plain, int decimals)
{
    const qsizetype dot = plain.indexOf(u'.');
    QString whole = dot < 0 ? plain : plain.left(dot);
    QString fraction = dot < 0 ? QString() : plain.mid(dot + 1);
    const bool up = fraction.size() > decimals && fraction.at(decimals) >= u'5';
    fraction = fraction.left(decimals).leftJustified(decimals, u'0');
    QString digits = whole + fraction;
    if (up) {
        qsizetype i = digits.size() - 1;
        while (i >= 0 && digits.at(i) == u'9')
            digits[i--] = u'0';
        if (i < 0)
            digits.prepend(u'1');
        else
            digits[i] = QChar(digits.at(i).unicode() + 1);
    }
    whole = digits.left(digits.size() - decimals);
    fraction = digits.right(decimals);
    return decimals > 0 ? whole + u'.' + fraction : whole;
}

} // namespace

QString AmountFormat(int decimals)
{
    const int d = ValidDecimals(decimals);
    return d == 0 ? QStringLiteral("%0nl") : QStringLiteral("%%1!nl").arg(d);
}

int AmountFormatDecimals(const QString& format)
{
    if (!format.startsWith(u'%'))
        return 0;
    bool ok = false;
    qsizetype end = 1;
    while (end < format.size() && format.at(end).isDigit())
        ++end;
    const int d = format.mid(1, end - 1).toInt(&ok);
    return ok ? ValidDecimals(d) : 0;
}

QString FormatAmount(double value, int decimals)
{
    if (!std::isfinite(value))
        return QString();
    const int d = ValidDecimals(decimals);
    // The shortest text that reads back as value: 2.675 rounds up as it reads, not as the
    // binary fraction just below it would.
    const QString plain =
        QLocale::c().toString(std::abs(value), 'f', QLocale::FloatingPointShortest);
    const QString rounded = RoundDigits(plain, d);
    const qsizetype dot = rounded.indexOf(u'.');
    const QString whole = dot < 0 ? rounded : rounded.left(dot);
    QString out;
    for (qsizetype i = 0; i < whole.size(); ++i) {
        if (i > 0 && (whole.size() - i) % 3 == 0)
            out += QChar(0xA0);
        out += whole.at(i);
    }
    if (dot >= 0)
        out += u',' + rounded.mid(dot + 1);
    const bool zero = std::none_of(rounded.cbegin(), rounded.cend(),
                                   [](QChar c) { return c >= u'1' && c <= u'9'; });
    return value < 0 && !zero ? u'-' + out : out;
}

QString FormatAmount(double value, const QString& format)
{
    return FormatAmount(value, AmountFormatDecimals(format));
}
