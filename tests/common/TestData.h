// Expected data: text files under tests/data, data-table rows, files and query results.
#pragma once

#include "base/SqlStatement.h"

#include <QAbstractItemModel>
#include <QSqlRecord>
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

// The file's bytes, for byte-for-byte comparisons.
inline QByteArray FileBytes(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
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

// The display texts of one column of a list, top to bottom.
inline QStringList ColumnTexts(const QAbstractItemModel* model, int column)
{
    QStringList texts;
    for (int r = 0; r < model->rowCount(); ++r)
        texts << model->index(r, column).data().toString();
    return texts;
}
