// The one rounding primitive of the program and the price conversions built only on it. The
// money arithmetic of orders (orders/OrderCalc.h) uses these; nothing else rounds an amount.
#pragma once

// Rounds half away from zero (2.5 -> 3, -2.5 -> -3); |value| below 1e-15 gives 0.
double RoundDecimals(double value, int decimals);

// Digits after the decimal point in the shortest text that reads back as |value|.
int DecimalCount(double value);

// Net price from a typed gross price: two more decimals than the gross price shows.
double GrossToNet(double gross, double vatPercent);
// Gross price from a net price: as many decimals as the net price shows, two for a whole one.
double NetToGross(double net, double vatPercent);
