#include "DateText.h"

#include <QRegularExpression>

QString FormatDate(const QDate& date)
{
    if (!date.isValid())
        return {};
    return QStringLiteral("%1.%2.%3.")
        .arg(date.year(), 4, 10, QLatin1Char('0'))
        .arg(date.month(), 2, 10, QLatin1Char('0'))
        .arg(date.day(), 2, 10, QLatin1Char('0'));
}

QDate ParseDate(const QString& text)
{
    static const QRegularExpression re(QStringLiteral(
        "^\\s*(\\d{4})\\s*[.\\-]\\s*(\\d{1,2})\\s*[.\\-]\\s*(\\d{1,2})\\s*\\.?\\s*$"));
    const QRegularExpressionMatch m = re.match(text);
    if (!m.hasMatch())
        return {};
    return QDate(m.captured(1).toInt(), m.captured(2).toInt(), m.captured(3).toInt());
}

QString DateToSql(const QDate& date)
{
    return date.isValid() ? date.toString(Qt::ISODate) : QString();
}

QDate DateFromSql(const QVariant& value)
{
    if (value.isNull())
        return {};
    if (value.typeId() == QMetaType::QDate)
        return value.toDate();
    return QDate::fromString(value.toString().left(10), Qt::ISODate);
}

QString FormatSqlDate(const QVariant& value)
{
    return FormatDate(DateFromSql(value));
}
