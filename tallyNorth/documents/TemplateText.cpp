#include "TemplateText.h"

#include "PlaceholderMap.h"

namespace {

bool IsNameChar(QChar c)
{
    const ushort u = c.unicode();
    return (u >= 'a' && u <= 'z') || (u >= 'A' && u <= 'Z') || (u >= '0' && u <= '9') || u == '_' ||
           u == '.' || u == '\r' || u == '\n';
}

} // namespace

TemplateText TemplateText::parse(const QString& text, QChar delimiter)
{
    TemplateText t;
    t.m_delimiter = delimiter;
    QString literal;
    qsizetype i = 0;
    while (i < text.size()) {
        const QChar c = text.at(i);
        if (c != delimiter) {
            literal += c;
            ++i;
            continue;
        }
        qsizetype end = i + 1;
        while (end < text.size() && IsNameChar(text.at(end)))
            ++end;
        const bool closed = end < text.size() && text.at(end) == delimiter && end > i + 1;
        if (!closed) {
            // Not a name: the delimiter and the name characters after it stay text (an empty
            // name "!!" included).
            const qsizetype stop = end < text.size() && text.at(end) == delimiter ? end + 1 : end;
            literal += text.mid(i, stop - i);
            i = stop;
            continue;
        }
        QString name = text.mid(i + 1, end - i - 1);
        name.remove(u'\r');
        name.remove(u'\n');
        t.m_segments.append({literal, name});
        literal.clear();
        i = end + 1;
    }
    t.m_trailing = literal;
    return t;
}

QString TemplateText::fill(const PlaceholderMap& map, bool* anyValue) const
{
    QString out;
    bool any = false;
    for (const Segment& s : m_segments) {
        out += s.literal;
        if (!map.contains(s.name))
            continue;
        const QVariant value = map.value(s.name);
        any = any || !IsNullPlaceholder(value);
        out += PlaceholderText(value);
    }
    out += m_trailing;
    if (anyValue)
        *anyValue = any;
    return out;
}

QStringList TemplateText::names() const
{
    QStringList out;
    for (const Segment& s : m_segments)
        out << s.name;
    return out;
}
