#include "WebshopXml.h"

#include "base/DateText.h"

#include <QXmlStreamReader>

bool ReadXmlRecord(QXmlStreamReader& reader, XmlRecord& record, const QString& itemTag)
{
    record.tag = reader.name().toString();
    record.fields.clear();
    record.items.clear();
    while (reader.readNextStartElement()) {
        const QString name = reader.name().toString();
        if (!itemTag.isEmpty() && name == itemTag) {
            XmlRecord item;
            if (!ReadXmlRecord(reader, item))
                return false;
            record.items.append(std::move(item));
            continue;
        }
        // Markup inside a value is kept as its text, so a stray tag does not lose the value.
        const QString text = reader.readElementText(QXmlStreamReader::IncludeChildElements);
        if (reader.hasError())
            return false;
        if (!record.fields.contains(name))
            record.fields.insert(name, text);
    }
    return !reader.hasError();
}

namespace {

// Leading blanks, an optional sign and digits: the position after them, and the digits' start.
qsizetype ScanSigned(const QString& text, qsizetype& digitsFrom, bool& negative)
{
    qsizetype i = 0;
    while (i < text.size() && text.at(i).isSpace())
        ++i;
    negative = false;
    if (i < text.size() && (text.at(i) == u'+' || text.at(i) == u'-'))
        negative = text.at(i++) == u'-';
    digitsFrom = i;
    while (i < text.size() && text.at(i) >= u'0' && text.at(i) <= u'9')
        ++i;
    return i;
}

} // namespace

std::optional<qint64> WebshopInteger(const QString& text)
{
    qsizetype from = 0;
    bool negative = false;
    const qsizetype end = ScanSigned(text, from, negative);
    if (end == from)
        return std::nullopt;
    bool ok = false;
    const qint64 value = text.mid(from, end - from).toLongLong(&ok);
    if (!ok)
        return std::nullopt;
    return negative ? -value : value;
}

bool WebshopFlag(const QString& text)
{
    const std::optional<qint64> value = WebshopInteger(text);
    if (value)
        return *value != 0;
    // Digits too many for an integer are still not zero.
    qsizetype from = 0;
    bool negative = false;
    const qsizetype end = ScanSigned(text, from, negative);
    for (qsizetype i = from; i < end; ++i)
        if (text.at(i) != u'0')
            return true;
    return false;
}

std::optional<double> WebshopNumber(const QString& text)
{
    QString t = text.trimmed();
    if (t.startsWith(u'+'))
        t.remove(0, 1);
    // Thousands grouped with blanks ("1 000", also the no-break space) and a decimal comma.
    t.remove(u' ');
    t.remove(QChar(0x00A0));
    t.replace(u',', u'.');
    bool ok = false;
    const double value = t.toDouble(&ok);
    if (!ok || t.isEmpty())
        return std::nullopt;
    return value;
}

QDate WebshopDate(const QString& text)
{
    return ParseDate(text.trimmed());
}

QString PiVersion(const QString& data)
{
    const qsizetype at = data.indexOf(QLatin1String("version"));
    if (at < 0)
        return {};
    qsizetype i = at + 7;
    while (i < data.size() && data.at(i).isSpace())
        ++i;
    if (i >= data.size() || data.at(i) != u'=')
        return {};
    const qsizetype open = data.indexOf(u'"', i);
    const qsizetype close = open < 0 ? -1 : data.indexOf(u'"', open + 1);
    if (close < 0)
        return {};
    return data.mid(open + 1, close - open - 1);
}
