// A statement on the current session with every value bound through "?" placeholders.
#pragma once

#include "Database.h"
#include "Result.h"

#include <QByteArray>
#include <QList>
#include <QSqlQuery>
#include <QString>
#include <QVariant>
#include <QVariantList>

#include <initializer_list>
#include <utility>

class SqlStatement
{
public:
    // Runs on the current session unless another connection is given.
    explicit SqlStatement(QString text, QVariantList binds = {},
                          const QSqlDatabase& db = Database::session());

    // Prepares, binds and executes; false with errorText() on failure.
    bool exec();
    bool next() { return m_query.next(); }
    // A column by its name; the position is looked up once per statement run. A name the
    // statement does not select is a programming fault: it is reported and reads as null.
    QVariant value(const char* column) const;
    QVariant value(int index) const { return m_query.value(index); }
    int numRowsAffected() const { return m_query.numRowsAffected(); }
    QVariant lastInsertId() const { return m_query.lastInsertId(); }

    const QString& text() const { return m_text; }
    QString errorText() const;
    // A failure carrying message, the database's text and this statement.
    Result failure(const QString& message) const;
    QSqlQuery& query() { return m_query; }

private:
    QString m_text;
    QVariantList m_binds;
    bool m_keep;     // a write on the session, kept prepared
    bool m_prepared; // m_query is prepared for m_text
    QSqlQuery m_query;
    // Of the columns read by name since exec(); by text, as a name may be a passing buffer.
    mutable QList<std::pair<QByteArray, int>> m_positions;
};

// Drops the statements kept prepared on the session; called before the session closes.
void ForgetPreparedStatements();

// Runs one statement that returns no rows.
Result ExecSql(const QString& text, const QVariantList& binds = {}, const QString& message = {},
               const QSqlDatabase& db = Database::session());

// First column of the first row, or an invalid QVariant when there is no row or it fails.
QVariant SelectValue(const QString& text, const QVariantList& binds = {});

// SQL text with table and column names from Columns.h put in for %1, %2, ...; only such names go
// into the text, every value is bound.
QString Sql(const char* pattern, std::initializer_list<const char*> names);
// A name from Columns.h as a QString.
inline QString ColumnName(const char* column)
{
    return QString::fromLatin1(column);
}
