#include "SqlStatement.h"

#include "Database.h"

#include <QSqlError>

SqlStatement::SqlStatement(QString text, QVariantList binds, const QSqlDatabase& db)
    : m_text(std::move(text)), m_binds(std::move(binds)), m_query(db)
{
}

bool SqlStatement::exec()
{
    if (!m_query.prepare(m_text))
        return false;
    for (const QVariant& v : std::as_const(m_binds))
        m_query.addBindValue(v);
    return m_query.exec();
}

QString SqlStatement::errorText() const
{
    const QSqlError e = m_query.lastError();
    QString text = e.databaseText();
    if (text.isEmpty())
        text = e.text();
    return text;
}

Result SqlStatement::failure(const QString& message) const
{
    return Result::failure(message, errorText(), m_text);
}

Result ExecSql(const QString& text, const QVariantList& binds, const QString& message,
               const QSqlDatabase& db)
{
    SqlStatement st(text, binds, db);
    if (!st.exec())
        return st.failure(message.isEmpty() ? st.errorText() : message);
    return Result::success();
}

QVariant SelectValue(const QString& text, const QVariantList& binds)
{
    SqlStatement st(text, binds);
    if (!st.exec() || !st.next())
        return {};
    return st.value(0);
}

QString Sql(const char* pattern, std::initializer_list<const char*> names)
{
    QString text = QString::fromLatin1(pattern);
    for (const char* name : names)
        text = text.arg(QLatin1StringView(name));
    return text;
}
