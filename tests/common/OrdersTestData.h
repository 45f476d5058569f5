// Rows of the order tables written straight into the test company, and tallynorth-cli runs in a
// temporary base folder.
#pragma once

#include "TestData.h"

#include <optional>

// Inserts one row of table; columns are named without the table's prefix, separated by blanks
// ("INVOICE_NO TYPE" for ORDERHEAD_INVOICE_NO, ORDERHEAD_TYPE). Gives the new row's id.
inline qint64 OrdersInsert(const QString& table, const QString& columns, const QVariantList& values)
{
    QStringList names = columns.split(u' ', Qt::SkipEmptyParts);
    for (QString& name : names)
        name.prepend(table + u'_');
    return Insert(QString("insert into %1 (%2) values (%3)")
                      .arg(table, names.join(", "), QStringList(names.size(), "?").join(", ")),
                  values);
}

#ifdef TN_CLI
// tallynorth-cli in English in a fresh base folder; dbName, when set, is given as --db unless a
// call names one.
class OrdersCli
{
public:
    explicit OrdersCli(const QString& dbName = {}) : m_dbName(dbName) {}

    bool isValid() const { return m_base.isValid() && m_runtime.isValid(); }
    QString base() const { return m_base.path(); }
    QString file(const QString& name) const { return m_base.path() + "/" + name; }
    QString db(const QString& name = {}) const
    {
        return file("DB/" + (name.isEmpty() ? m_dbName : name));
    }

    QStringList args(const QStringList& args) const
    {
        QStringList all{"--base", m_base.path(), "--lang", "en"};
        if (!m_dbName.isEmpty() && args.value(0) != "create" && !args.contains("--db"))
            all << "--db" << db();
        return all + args;
    }
    ProcessRun run(const QStringList& a) const
    {
        return RunProcess(TN_CLI, args(a), m_runtime.path());
    }
    // Standard output trimmed; for a failed run the exit status and standard error instead.
    QString output(const QStringList& a) const
    {
        const ProcessRun r = run(a);
        return r.exitCode == 0 ? r.out.trimmed()
                               : QString("<exit %1: %2>").arg(r.exitCode).arg(r.err.trimmed());
    }
    std::unique_ptr<QProcess> start(const QStringList& a) const
    {
        return StartProcess(TN_CLI, args(a), m_runtime.path());
    }
    // The rows of a query on the company file, as QueryText gives them.
    QString stored(const QString& sql) const { return QueryTextIn(db(), sql); }

private:
    QTemporaryDir m_base, m_runtime;
    QString m_dbName;
};
#endif
