#include "BasicDataWrite.h"

#include "base/SqlStatement.h"

bool FindByCode(const char* table, const char* idColumn, const char* codeColumn,
                const QString& code, std::optional<qint64>& id)
{
    id.reset();
    SqlStatement st(Sql("select %1 from %2 where %3 = ?", {idColumn, table, codeColumn}), {code});
    if (!st.exec())
        return false;
    if (st.next())
        id = st.value(0).toLongLong();
    return true;
}

bool WriteRow(const char* table, const char* idColumn, const Record& row, std::optional<qint64>& id)
{
    QStringList names;
    QVariantList values;
    for (auto it = row.cbegin(); it != row.cend(); ++it) {
        names << it.key();
        values << it.value();
    }
    QString text;
    if (id) {
        text = Sql("update %1 set ", {table}) + names.join(QLatin1String(" = ?, ")) +
               Sql(" = ? where %1 = ?", {idColumn});
        values << *id;
    } else {
        text = Sql("insert into %1 (", {table}) + names.join(u',') + QLatin1String(") values (") +
               QStringList(names.size(), QStringLiteral("?")).join(u',') + u')';
    }
    SqlStatement st(text, values);
    if (!st.exec())
        return false;
    if (!id)
        id = st.lastInsertId().toLongLong();
    return true;
}

Result WriteChildRow(const char* table, const char* parentColumn, qint64 parentId,
                     const char* keyColumn, qint64 key, const Record& values)
{
    const QVariant count = SelectValue(
        Sql("select count(*) from %1 where %2 = ? and %3 = ?", {table, parentColumn, keyColumn}),
        {parentId, key});
    if (!count.isValid())
        return Result::failure(QStringLiteral("load"));
    QStringList names;
    QVariantList binds;
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        names << it.key();
        binds << it.value();
    }
    QString text;
    if (count.toInt() > 0) {
        text = Sql("update %1 set ", {table}) + names.join(QLatin1String(" = ?, ")) +
               Sql(" = ? where %1 = ? and %2 = ?", {parentColumn, keyColumn});
        binds << parentId << key;
    } else {
        names << QLatin1String(parentColumn) << QLatin1String(keyColumn);
        binds << parentId << key;
        text = Sql("insert into %1 (", {table}) + names.join(u',') + QLatin1String(") values (") +
               QStringList(names.size(), QStringLiteral("?")).join(u',') + u')';
    }
    if (!ExecSql(text, binds))
        return Result::failure({});
    return Result::success();
}
