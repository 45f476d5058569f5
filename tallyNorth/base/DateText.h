// Dates as the user sees and types them (2024.03.05.) and as the database keeps them (2024-03-05).
#pragma once

#include <QDate>
#include <QString>
#include <QVariant>

QString FormatDate(const QDate& date);
// Accepts "2024.03.05.", "2024.03.05", "2024.3.5." and the ISO form; invalid QDate otherwise.
QDate ParseDate(const QString& text);

QString DateToSql(const QDate& date);
// A stored ISO date (NULL or unreadable gives an invalid date).
QDate DateFromSql(const QVariant& value);
// A stored ISO date in display form, empty for NULL.
QString FormatSqlDate(const QVariant& value);
