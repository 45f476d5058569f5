#include "RoundDecimals.h"

#include <array>
#include <charconv>
#include <cmath>
#include <string_view>

namespace {

// Every power of ten up to 10^22 is exact in a double.
constexpr std::array<double, 23> kPowersOfTen = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                 1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                                 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

double PowerOfTen(int exponent)
{
    if (exponent >= 0 && exponent < int(kPowersOfTen.size()))
        return kPowersOfTen[exponent];
    return std::pow(10.0, exponent);
}

} // namespace

double RoundDecimals(double value, int decimals)
{
    if (std::fabs(value) < 1e-15)
        return 0.0;
    if (decimals < 0) {
        // Rounding to tens, hundreds...: divide by the exact power rather than multiply by an
        // inexact 0.1, 0.01...
        const double p = PowerOfTen(-decimals);
        const double r = value > 0 ? std::floor(value / p + 0.5) : std::ceil(value / p - 0.5);
        return r * p + 0.0;
    }
    const double p = PowerOfTen(decimals);
    // Exactly floor(x * p + 0.5) / p (ceil(x * p - 0.5) / p below zero), as invoices have always
    // been rounded, including what double arithmetic makes of 1.005. Adding 0.0 turns a negative
    // zero into zero: "-0" must not be printed on an invoice.
    const double r = value > 0 ? std::floor(value * p + 0.5) : std::ceil(value * p - 0.5);
    if (!std::isfinite(r))
        return value;
    return r / p + 0.0;
}

int DecimalCount(double value)
{
    // Fixed notation with no precision asked is the shortest text that reads back as the value,
    // never with an exponent: at most 309 digits before the point, 1074 after it.
    char buffer[1100];
    const auto [end, ec] =
        std::to_chars(buffer, buffer + sizeof buffer, std::fabs(value), std::chars_format::fixed);
    if (ec != std::errc())
        return 0;
    const std::string_view text(buffer, end - buffer);
    const auto point = text.find('.');
    return point == std::string_view::npos ? 0 : int(text.size() - point - 1);
}

double GrossToNet(double gross, double vatPercent)
{
    if (gross == 0.0)
        return 0.0;
    return RoundDecimals(gross / ((vatPercent + 100.0) * 0.01), DecimalCount(gross) + 2);
}

double NetToGross(double net, double vatPercent)
{
    if (net == 0.0)
        return 0.0;
    const int shown = DecimalCount(net);
    return RoundDecimals((vatPercent + 100.0) * 0.01 * net, shown == 0 ? 2 : shown);
}
