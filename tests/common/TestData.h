// Expected data: text files under tests/data, data-table rows, and query results as text.
#pragma once

#include "app/SqlStatement.h"

#include <QSqlRecord>
#include <QtTest>

// The lines of tests/data/<name>, without blank lines and "#" comments; indentation is kept.
inline QStringList TestDataLines(const QString& name)
{
    QFile file(QFINDTESTDATA("../data/" + name));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
    lines.removeIf([](const QString& line) {
        return line.trimmed().isEmpty() || line.startsWith(u'#');
    });
    return lines;
}

// QTest::newRow(tag) << values..., written as one call so that a row stays on one line.
template <class... Values> void AddRow(const char* tag, Values... values)
{
    (QTest::newRow(tag) << ... << values);
}

// The rows of a query on the current session as "a|b; c|d", NULL as an empty text.
inline QString QueryText(const QString& sql, const QVariantList& binds = {})
{
    SqlStatement st(sql, binds);
    if (!st.exec())
        return "<" + st.errorText() + ">";
    QStringList rows;
    while (st.next()) {
        QStringList values;
        for (int i = 0; i < st.query().record().count(); ++i)
            values << st.value(i).toString();
        rows << values.join(u'|');
    }
    return rows.join("; ");
}
