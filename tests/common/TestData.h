// Expected data kept as text files under tests/data.
#pragma once

#include <QtTest>

// The lines of tests/data/<name>, without blank lines and "#" comments; indentation is kept.
inline QStringList TestDataLines(const QString& name)
{
    QFile file(QFINDTESTDATA("../data/" + name));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
    lines.removeIf(
        [](const QString& line) { return line.trimmed().isEmpty() || line.startsWith(u'#'); });
    return lines;
}

// QTest::newRow(tag) << values..., written as one call so that a row stays on one line.
template <class... Values> void AddRow(const char* tag, Values... values)
{
    (QTest::newRow(tag) << ... << values);
}
