#include "SqlStatement.h"

#include "Database.h"

#include <QHash>

#include <QSqlError>
#include <QSqlRecord>
#include <algorithm>
#include <iterator>

namespace {

// Writes that return no rows are kept prepared on the session: storing an order repeats the same
// few inserts and updates, and preparing them again cost more than running them. A finished
// write holds no lock, so keeping it is safe; texts with a varying number of placeholders are
// why the cache has a bound.
constexpr qsizetype kMaxPrepared = 64;

QHash<QString, QSqlQuery>& Prepared()
{
    static QHash<QString, QSqlQuery> statements;
    return statements;
}

bool WritesOnly(const QString& text)
{
    const QStringView head = QStringView(text).trimmed().left(7);
    return head.startsWith(u"insert", Qt::CaseInsensitive) ||
           head.startsWith(u"update", Qt::CaseInsensitive) ||
           head.startsWith(u"delete", Qt::CaseInsensitive);
}

} // namespace

SqlStatement::SqlStatement(QString text, QVariantList binds, const QSqlDatabase& db)
    : m_text(std::move(text)), m_binds(std::move(binds)),
      m_keep(db.connectionName() == QLatin1String(Database::kSessionName) && WritesOnly(m_text)),
      m_prepared(m_keep && Prepared().contains(m_text)),
      m_query(m_prepared ? Prepared().value(m_text) : QSqlQuery(db))
{
}

bool SqlStatement::exec()
{
    if (!m_prepared) {
        if (!m_query.prepare(m_text))
            return false;
        m_prepared = true;
        if (m_keep) {
            if (Prepared().size() >= kMaxPrepared)
                Prepared().clear();
            Prepared().insert(m_text, m_query);
        }
    }
    for (const QVariant& v : std::as_const(m_binds))
        m_query.addBindValue(v);
    m_positions.clear();
    return m_query.exec();
}

QVariant SqlStatement::value(const char* column) const
{
    auto it = std::find_if(m_positions.cbegin(), m_positions.cend(),
                           [column](const auto& p) { return p.first == column; });
    if (it == m_positions.cend()) {
        const int position = m_query.record().indexOf(QLatin1StringView(column));
        if (position < 0)
            qWarning("SqlStatement: unknown column %s in: %s", column, qPrintable(m_text));
        m_positions.append({QByteArray(column), position});
        it = std::prev(m_positions.cend());
    }
    return it->second < 0 ? QVariant() : m_query.value(it->second);
}

void ForgetPreparedStatements()
{
    Prepared().clear();
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
