#include "SchemaExtensions.h"

#include "SqlScript.h"

#include "base/Interaction.h"
#include "base/SqlStatement.h"
#include "base/SqlTransaction.h"
#include "base/SqlValue.h"

#include <QSqlQuery>

int ReadSchemaExtensionVersion(const QSqlDatabase& db)
{
    QSqlQuery exists(db);
    if (!exists.exec(QStringLiteral(
            "select count(*) from sqlite_master where type = 'table' and name = 'TN_VERSION'")) ||
        !exists.next() || exists.value(0).toInt() == 0)
        return 0;
    exists.finish();
    QSqlQuery version(db);
    if (!version.exec(QStringLiteral("select max(TN_VERSION_VERSION) from TN_VERSION")) ||
        !version.next())
        return 0;
    return int(ToInteger(version.value(0)));
}

Result SchemaExtensions::apply(Interaction* interaction, const QSqlDatabase& db)
{
    const int from = ReadSchemaExtensionVersion(db);
    if (from > kSchemaExtensionVersion)
        return Result::failure(newerVersionMessage());
    if (from == kSchemaExtensionVersion)
        return Result::success();
    // Indexing a large company takes a while.
    std::unique_ptr<Progress> progress;
    if (interaction)
        progress = interaction->progress(tr("Extending database tables"));
    SqlTransaction transaction(db);
    for (int step = from + 1; step <= kSchemaExtensionVersion; ++step) {
        const QString script = LoadSqlScript(QStringLiteral(":/sql/tn_extension_%1.sql").arg(step));
        if (Result r = ExecSqlScript(script, interaction, db); !r)
            return Result::failure(tr("Unable to extend database tables."), r.sqlError(),
                                   r.statement());
        if (Result r = ExecSql(QStringLiteral("update TN_VERSION set TN_VERSION_VERSION = ?"),
                               {step}, {}, db);
            !r)
            return r;
    }
    if (!transaction.commit())
        return Result::failure(tr("Unable to extend database tables."), transaction.errorText());
    return Result::success();
}

QString SchemaExtensions::newerVersionMessage()
{
    return tr("This company file was extended by a newer version of the program.&Upgrade the "
              "software to a newer version.");
}
