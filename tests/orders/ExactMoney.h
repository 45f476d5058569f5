// Amounts must match to the last bit: QCOMPARE forgives small differences between doubles.
#pragma once

#include <QString>
#include <QtTest>

#define QCOMPARE_MONEY(actual, expected)                                                           \
    do {                                                                                           \
        const double a_ = (actual);                                                                \
        const double e_ = (expected);                                                              \
        QVERIFY2(a_ == e_, qPrintable(QStringLiteral("%1: %2, expected %3")                        \
                                          .arg(QStringLiteral(#actual))                            \
                                          .arg(a_, 0, 'g', 17)                                     \
                                          .arg(e_, 0, 'g', 17)));                                  \
    } while (false)
