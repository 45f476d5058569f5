// The values a template is filled with: an ordered map from placeholder name to value.
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVariant>

class PlaceholderMap
{
public:
    // Setting a name that is already there replaces its value and keeps its place.
    void set(const QString& name, const QVariant& value);
    bool contains(const QString& name) const { return m_values.contains(name); }
    QVariant value(const QString& name) const { return m_values.value(name); }
    // The value as it is printed; an unknown name gives the empty text.
    QString text(const QString& name) const;
    const QStringList& names() const { return m_names; }
    qsizetype size() const { return m_names.size(); }
    bool isEmpty() const { return m_names.isEmpty(); }

private:
    QStringList m_names;
    QHash<QString, QVariant> m_values;
};

// A stored value as template text: dates in display form, numbers without exponent, null and
// the null number as nothing.
QString PlaceholderText(const QVariant& value);
// NULL, the empty text and the null number.
bool IsNullPlaceholder(const QVariant& value);
