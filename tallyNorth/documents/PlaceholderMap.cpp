#include "PlaceholderMap.h"

#include "base/DateText.h"

#include <QDate>
#include <QDateTime>
#include <QLocale>

#include <cmath>

namespace {

// The null number of stored data (-1e308).
bool IsNullNumber(double v)
{
    return v <= -1e307 || std::isnan(v);
}

} // namespace

void PlaceholderMap::set(const QString& name, const QVariant& value)
{
    if (!m_values.contains(name))
        m_names << name;
    m_values.insert(name, value);
}

QString PlaceholderMap::text(const QString& name) const
{
    return PlaceholderText(m_values.value(name));
}

bool IsNullPlaceholder(const QVariant& value)
{
    if (value.isNull() || !value.isValid())
        return true;
    switch (value.typeId()) {
    case QMetaType::QString:
        return value.toString().isEmpty();
    case QMetaType::Double:
    case QMetaType::Float:
        return IsNullNumber(value.toDouble());
    case QMetaType::QDate:
        return !value.toDate().isValid();
    default:
        return false;
    }
}

QString PlaceholderText(const QVariant& value)
{
    if (IsNullPlaceholder(value))
        return QString();
    switch (value.typeId()) {
    case QMetaType::Double:
    case QMetaType::Float: {
        const double v = value.toDouble();
        if (std::isinf(v))
            return QString();
        return QLocale::c().toString(v, 'f', QLocale::FloatingPointShortest);
    }
    case QMetaType::QDate:
        return FormatDate(value.toDate());
    case QMetaType::QDateTime:
        return FormatDate(value.toDateTime().date());
    default:
        return value.toString();
    }
}
