// Reading webshop documents: one record element at a time, its child elements by tag name, and
// the conversions of their texts. Documents are streamed, so a large answer is never held whole.
#pragma once

#include <QDate>
#include <QHash>
#include <QList>
#include <QString>

#include <optional>

class QXmlStreamReader;

// One record element (an order, an item, a partner, a product): the text of each child element
// by tag, the first of a tag winning; child elements named as the item tag become items.
struct XmlRecord
{
    QString tag;
    QHash<QString, QString> fields;
    QList<XmlRecord> items;

    bool has(const QString& name) const { return fields.contains(name); }
    // Empty for an absent element as for an empty one.
    QString text(const QString& name) const { return fields.value(name); }
};

// Reads the element the reader stands on (a start element) up to its end. False when the reader
// fails on the way (the reader holds the error).
bool ReadXmlRecord(QXmlStreamReader& reader, XmlRecord& record, const QString& itemTag = {});

// A flag is set when the text, read as a decimal integer after leading blanks and an optional
// sign, is not zero.
bool WebshopFlag(const QString& text);
// A decimal integer after leading blanks and an optional sign; none when there are no digits.
std::optional<qint64> WebshopInteger(const QString& text);
// A decimal number (blanks around it and between digit groups, an optional sign; a decimal comma
// is read as a point); none when the text is not a number.
std::optional<double> WebshopNumber(const QString& text);
// A date in the display form (2024.03.05.) or in ISO form (2024-03-05); invalid otherwise.
QDate WebshopDate(const QString& text);
// The value of the version attribute of a processing instruction's data, empty when none.
QString PiVersion(const QString& data);
