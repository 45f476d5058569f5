// A template piece parsed for filling: literal texts each followed by a placeholder name
// ("!ORDERHEAD.TOTAL.NET!"), and the literal after the last one.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

class PlaceholderMap;

class TemplateText
{
public:
    struct Segment
    {
        QString literal;
        QString name;

        bool operator==(const Segment&) const = default;
    };

    // A delimiter opens a name of letters, digits, "_", "." and line breaks (the breaks are
    // dropped: editors wrap long names); any other character leaves the delimiter as text.
    static TemplateText parse(const QString& text, QChar delimiter = u'!');

    // The text with every placeholder replaced by its value; names the map does not hold
    // vanish. anyValue tells whether some filled value was not null.
    QString fill(const PlaceholderMap& map, bool* anyValue = nullptr) const;

    QChar delimiter() const { return m_delimiter; }
    const QList<Segment>& segments() const { return m_segments; }
    const QString& trailing() const { return m_trailing; }
    QStringList names() const;

private:
    QChar m_delimiter = u'!';
    QList<Segment> m_segments;
    QString m_trailing;
};
