#include "SqlValue.h"

#include <cmath>

bool IsFlagSet(const QVariant& value)
{
    if (value.isNull())
        return false;
    switch (value.typeId()) {
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::UInt:
    case QMetaType::ULongLong:
        return value.toLongLong() == 1;
    case QMetaType::Double:
        return value.toDouble() == 1.0;
    default:
        return value.toString().trimmed() == QLatin1String("1");
    }
}

QString FlagText(bool set)
{
    return set ? QStringLiteral("1") : QStringLiteral("0");
}

double ToNumber(const QVariant& value, double fallback)
{
    if (IsNullValue(value))
        return fallback;
    bool ok = false;
    const double d = value.typeId() == QMetaType::QString
                         ? value.toString().trimmed().replace(u',', u'.').toDouble(&ok)
                         : value.toDouble(&ok);
    return ok && std::isfinite(d) ? d : fallback;
}

qint64 ToInteger(const QVariant& value, qint64 fallback)
{
    if (IsNullValue(value))
        return fallback;
    const double d = ToNumber(value, std::nan(""));
    return std::isnan(d) ? fallback : static_cast<qint64>(std::llround(d));
}

bool IsNullValue(const QVariant& value)
{
    return value.isNull() || (value.typeId() == QMetaType::QString && value.toString().isEmpty());
}
