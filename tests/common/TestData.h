// Expected data: text files under tests/data, data-table rows, files and query results.
#pragma once

#include "DataTable.h"

#include "app/ScopedConnection.h"
#include "base/SqlStatement.h"

#include <QAbstractItemModel>
#include <QProcess>
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

inline bool WriteFile(const QString& path, const QByteArray& bytes)
{
    QFile f(path);
    return f.open(QIODevice::WriteOnly) && f.write(bytes) == bytes.size();
}

// QTest::newRow(tag) << values..., written as one call so that a row stays on one line.
template <class... Values> void AddRow(const char* tag, Values... values)
{
    (QTest::newRow(tag) << ... << values);
}

// The rows of a query on the current session as "a|b; c|d", NULL as an empty text.
inline QString QueryText(const QString& sql, const QVariantList& binds = {},
                         const QSqlDatabase& db = Database::session())
{
    SqlStatement st(sql, binds, db);
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

// The STATNO names of another company file, which tests add as markers to tell which content
// is in use; read without disturbing the session.
inline QString MarkersOf(const QString& path)
{
    ScopedConnection c(path, ScopedConnection::Mode::ReadOnly);
    SqlStatement st("select STATNO_NAME from STATNO order by STATNO_ID", {}, c.db());
    if (!st.exec())
        return "<" + st.errorText() + ">";
    QStringList names;
    while (st.next())
        names << st.value(0).toString();
    return names.join("; ");
}

// The same on another company file (a process's, say), without disturbing the session.
inline QString QueryTextIn(const QString& path, const QString& sql)
{
    ScopedConnection c(path, ScopedConnection::Mode::ReadWrite);
    return QueryText(sql, {}, c.db());
}

// The display texts of one column of a list, top to bottom.
inline QStringList ColumnTexts(const QAbstractItemModel* model, int column)
{
    QStringList texts;
    for (int r = 0; r < model->rowCount(); ++r)
        texts << model->index(r, column).data().toString();
    return texts;
}

// Runs an insert on the current session and gives the new row's id; a failure ends the test run.
inline qint64 Insert(const QString& sql, const QVariantList& binds = {})
{
    SqlStatement st(sql, binds);
    if (!st.exec())
        qFatal("%s: %s", qPrintable(sql), qPrintable(st.errorText()));
    return st.lastInsertId().toLongLong();
}

// A finished program run; exitCode -1 when it did not finish in time.
struct ProcessRun
{
    int exitCode = -1;
    QString out, err;
};

// Started, not waited for. A private runtime folder keeps Qt's note about a missing one off
// standard error, which then holds only the program's own messages.
inline std::unique_ptr<QProcess> StartProcess(const QString& program, const QStringList& args,
                                              const QString& runtimeDir = {})
{
    auto process = std::make_unique<QProcess>();
    if (!runtimeDir.isEmpty()) {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("XDG_RUNTIME_DIR", runtimeDir);
        process->setProcessEnvironment(env);
    }
    process->start(program, args);
    return process;
}

inline ProcessRun RunProcess(const QString& program, const QStringList& args,
                             const QString& runtimeDir = {})
{
    const auto process = StartProcess(program, args, runtimeDir);
    if (!process->waitForFinished(120000))
        return {};
    return {process->exitCode(), QString::fromUtf8(process->readAllStandardOutput()),
            QString::fromUtf8(process->readAllStandardError())};
}
