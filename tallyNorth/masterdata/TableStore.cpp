#include "TableStore.h"

#include "base/FoldName.h"
#include "base/SqlStatement.h"
#include "base/SqlTransaction.h"
#include "base/SqlValue.h"

#include <QCoreApplication>
#include <QSqlRecord>

#include <algorithm>

namespace {

// The typed text as a LIKE prefix: its own "%", "_" and "\" match only themselves.
QString LikePrefix(const QString& text)
{
    QString out;
    for (const QChar c : text) {
        if (c == u'%' || c == u'_' || c == u'\\')
            out += u'\\';
        out += c;
    }
    return out + u'%';
}

Record ReadRecord(SqlStatement& st)
{
    Record row;
    const QSqlRecord fields = st.query().record();
    for (int i = 0; i < fields.count(); ++i)
        row.insert(fields.fieldName(i), st.value(i));
    return row;
}

bool IsBlank(const QVariant& value)
{
    return value.typeId() == QMetaType::QString ? value.toString().trimmed().isEmpty()
                                                : value.isNull();
}

} // namespace

std::optional<qint64> RowId(const QVariant& id)
{
    if (IsNullValue(id))
        return std::nullopt;
    bool ok = false;
    const qint64 value = id.toLongLong(&ok);
    return ok ? std::optional<qint64>(value) : std::nullopt;
}

TableStore::TableStore(TableInfo info) : m_info(std::move(info)) {}

QString TableStore::text(const char* source) const
{
    return QCoreApplication::translate(m_info.context, source);
}

QString TableStore::columnList() const
{
    QStringList names{ColumnName(m_info.idColumn)};
    for (const char* c : m_info.columns)
        names << ColumnName(c);
    return names.join(u", ");
}

Result TableStore::list(RecordPage& page, const ListQuery& query) const
{
    page = {};
    QString sql = QStringLiteral("select %1 from %2").arg(columnList(), ColumnName(m_info.table));
    QVariantList binds;
    QString order = m_info.orderBy;
    if (m_info.foldColumn && !query.namePrefix.isEmpty()) {
        sql += QStringLiteral(" where %1 like ? escape '\\'").arg(ColumnName(m_info.foldColumn));
        binds << LikePrefix(FoldName(query.namePrefix));
        order = ColumnName(m_info.foldColumn);
    }
    if (!order.isEmpty())
        sql += QStringLiteral(" order by ") + order;
    if (query.limit > 0) {
        sql += QStringLiteral(" limit ?");
        binds << query.limit + 1;
    }
    SqlStatement st(sql, binds);
    if (!st.exec())
        return st.failure(
            QCoreApplication::translate("TableStore", "Unable to load data from database."));
    while (st.next()) {
        if (query.limit > 0 && page.rows.size() == query.limit) {
            page.more = true;
            break;
        }
        page.rows << ReadRecord(st);
    }
    if (m_info.foldedOrder)
        sortFolded(page.rows);
    return Result::success();
}

void TableStore::sortFolded(QList<Record>& rows) const
{
    const QString name = ColumnName(m_info.nameColumn);
    const QString idColumn = ColumnName(m_info.idColumn);
    const auto key = [&](const Record& row) {
        const bool home = m_info.homeId && RowId(row.value(idColumn)) == m_info.homeId;
        return std::pair(!home, FoldName(row.value(name).toString()));
    };
    std::stable_sort(rows.begin(), rows.end(),
                     [&](const Record& a, const Record& b) { return key(a) < key(b); });
}

Result TableStore::names(QHash<qint64, QString>& names) const
{
    names.clear();
    SqlStatement st(QStringLiteral("select %1, %2 from %3")
                        .arg(ColumnName(m_info.idColumn), ColumnName(m_info.nameColumn),
                             ColumnName(m_info.table)));
    if (!st.exec())
        return st.failure(
            QCoreApplication::translate("TableStore", "Unable to load data from database."));
    while (st.next())
        names.insert(st.value(m_info.idColumn).toLongLong(),
                     st.value(m_info.nameColumn).toString());
    return Result::success();
}

Result TableStore::read(qint64 id, Record& row) const
{
    SqlStatement st(QStringLiteral("select %1 from %2 where %3 = ?")
                        .arg(columnList(), ColumnName(m_info.table), ColumnName(m_info.idColumn)),
                    {id});
    const QString gone = QCoreApplication::translate(
        "TableStore", "Unable to load data from database.&Maybe it is deleted by an other user.");
    if (!st.exec())
        return st.failure(gone);
    if (!st.next())
        return Result::failure(gone);
    row = ReadRecord(st);
    return Result::success();
}

std::optional<RequiredField> TableStore::missing(const Record& row) const
{
    for (const RequiredField& f : m_info.required) {
        if (IsBlank(row.value(ColumnName(f.column))))
            return f;
    }
    return std::nullopt;
}

Result TableStore::save(Record& row, std::optional<qint64>& id,
                        const QList<QList<Record>>& children) const
{
    if (m_info.prepare)
        m_info.prepare(row);
    if (const std::optional<RequiredField> f = missing(row))
        return Result::failure(text(f->message));
    if (m_info.foldColumn)
        row.insert(ColumnName(m_info.foldColumn),
                   FoldName(row.value(ColumnName(m_info.nameColumn)).toString()));
    for (const char* c : m_info.codeColumns) {
        if (IsBlank(row.value(ColumnName(c))))
            row.insert(ColumnName(c), QVariant());
    }
    if (Result r = checkUnique(row, id); !r)
        return r;
    // Joins a caller's transaction when there is one (an import saving many rows at once).
    SqlTransaction transaction;
    std::optional<qint64> written = id;
    if (Result r = writeRow(row, written); !r)
        return r;
    for (int i = 0; i < children.size() && i < m_info.children.size(); ++i) {
        if (Result r = writeChildren(i, *written, children.at(i)); !r)
            return r;
    }
    if (!transaction.commit())
        return Result::failure(QCoreApplication::translate("TableStore", "Unable to save data."));
    id = written;
    row.insert(ColumnName(m_info.idColumn), *id);
    return Result::success();
}

Result TableStore::writeRow(Record& row, std::optional<qint64>& id) const
{
    QStringList names;
    QVariantList values;
    for (const char* c : m_info.columns) {
        names << ColumnName(c);
        values << row.value(ColumnName(c));
    }
    const QString failed = QCoreApplication::translate("TableStore", "Unable to save data.");
    if (!id) {
        const QString marks = QStringList(names.size(), QStringLiteral("?")).join(u", ");
        SqlStatement st(QStringLiteral("insert into %1 (%2) values (%3)")
                            .arg(ColumnName(m_info.table), names.join(u", "), marks),
                        values);
        if (!st.exec())
            return st.failure(failed);
        id = st.lastInsertId().toLongLong();
        return Result::success();
    }
    values << *id;
    SqlStatement st(QStringLiteral("update %1 set %2 = ? where %3 = ?")
                        .arg(ColumnName(m_info.table), names.join(QStringLiteral(" = ?, ")),
                             ColumnName(m_info.idColumn)),
                    values);
    if (!st.exec())
        return st.failure(failed);
    if (st.numRowsAffected() == 0)
        return Result::failure(failed, QString(), st.text());
    return Result::success();
}

Result TableStore::writeChildren(int child, qint64 parentId, const QList<Record>& rows) const
{
    const ChildTable& c = m_info.children.at(child);
    const QString failed = QCoreApplication::translate("TableStore", c.saveError);
    const Result cleared = ExecSql(QStringLiteral("delete from %1 where %2 = ?")
                                       .arg(ColumnName(c.table), ColumnName(c.parentColumn)),
                                   {parentId}, failed);
    if (!cleared)
        return cleared;
    QStringList names{ColumnName(c.parentColumn), ColumnName(c.keyColumn)};
    for (const char* v : c.valueColumns)
        names << ColumnName(v);
    const QString sql = QStringLiteral("insert into %1 (%2) values (%3)")
                            .arg(ColumnName(c.table), names.join(u", "),
                                 QStringList(names.size(), QStringLiteral("?")).join(u", "));
    for (const Record& r : rows) {
        QVariantList values{parentId, r.value(ColumnName(c.keyColumn))};
        bool empty = true;
        for (const char* v : c.valueColumns) {
            values << r.value(ColumnName(v));
            empty = empty && IsBlank(r.value(ColumnName(v)));
        }
        if (empty)
            continue;
        if (Result w = ExecSql(sql, values, failed); !w)
            return w;
    }
    return Result::success();
}

Result TableStore::readChildren(int child, qint64 parentId, QList<Record>& rows) const
{
    rows.clear();
    const ChildTable& c = m_info.children.at(child);
    SqlStatement st(
        QStringLiteral("select * from %1 where %2 = ? order by %3")
            .arg(ColumnName(c.table), ColumnName(c.parentColumn), ColumnName(c.keyColumn)),
        {parentId});
    if (!st.exec())
        return st.failure(
            QCoreApplication::translate("TableStore", "Unable to load data from database."));
    while (st.next())
        rows << ReadRecord(st);
    return Result::success();
}

Result TableStore::checkUnique(const Record& row, std::optional<qint64> id) const
{
    // Webshop codes are compared as typed; the other keys (a currency's abbreviation, a language
    // code) without case, as the user reads them.
    const std::pair<const QList<const char*>*, bool> groups[] = {{&m_info.codeColumns, false},
                                                                 {&m_info.uniqueColumns, true}};
    for (const auto& [columns, anyCase] : groups) {
        for (const char* c : *columns) {
            const QString value = row.value(ColumnName(c)).toString().trimmed();
            if (value.isEmpty())
                continue;
            const QString compare =
                anyCase ? QStringLiteral("upper(%1) = upper(?)") : QStringLiteral("%1 = ?");
            SqlStatement st(QStringLiteral("select count(*) from %1 where %2 and %3 <> ?")
                                .arg(ColumnName(m_info.table), compare.arg(ColumnName(c)),
                                     ColumnName(m_info.idColumn)),
                            {value, id.value_or(-1)});
            const QString failed =
                QCoreApplication::translate("TableStore", "Unable to save data.");
            if (!st.exec() || !st.next())
                return st.failure(failed);
            if (st.value(0).toLongLong() > 0)
                return Result::failure(
                    failed + u'&' +
                    QCoreApplication::translate("TableStore", "The code \"%1\" is already used.")
                        .arg(value));
        }
    }
    return Result::success();
}

Result TableStore::usage(qint64 id, QStringList& uses) const
{
    uses.clear();
    for (const Reference& ref : m_info.usedBy) {
        const QString key = ref.valueColumn
                                ? QStringLiteral("(select %1 from %2 where %3 = ?)")
                                      .arg(ColumnName(ref.valueColumn), ColumnName(m_info.table),
                                           ColumnName(m_info.idColumn))
                                : QStringLiteral("?");
        SqlStatement st(QStringLiteral("select count(*) from %1 where %2 = %3")
                            .arg(ColumnName(ref.table), ColumnName(ref.column), key),
                        {id});
        if (!st.exec() || !st.next())
            return st.failure(
                QCoreApplication::translate("TableStore", "Unable to load data from database."));
        if (const int count = st.value(0).toInt(); count > 0)
            uses << QCoreApplication::translate(m_info.context, ref.message, nullptr, count);
    }
    return Result::success();
}

Result TableStore::canRemove(qint64 id) const
{
    if (m_info.homeId && *m_info.homeId == id)
        return Result::failure(text(m_info.homeMessage));
    QStringList uses;
    if (Result r = usage(id, uses); !r)
        return r;
    if (!uses.isEmpty())
        return Result::failure(uses.join(u'&'));
    return Result::success();
}

Result TableStore::remove(qint64 id) const
{
    if (Result r = canRemove(id); !r)
        return r;
    const QString failed =
        m_info.removeError ? text(m_info.removeError)
                           : QCoreApplication::translate("TableStore", "Unable to delete data.");
    SqlTransaction transaction;
    for (const ChildTable& c : m_info.children) {
        const Result r = ExecSql(QStringLiteral("delete from %1 where %2 = ?")
                                     .arg(ColumnName(c.table), ColumnName(c.parentColumn)),
                                 {id}, failed);
        if (!r)
            return r;
    }
    const Result r = ExecSql(QStringLiteral("delete from %1 where %2 = ?")
                                 .arg(ColumnName(m_info.table), ColumnName(m_info.idColumn)),
                             {id}, failed);
    if (!r)
        return r;
    if (!transaction.commit())
        return Result::failure(failed);
    return Result::success();
}
