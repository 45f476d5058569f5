#include "Schema.h"

#include "SchemaExtensions.h"

#include "SqlScript.h"
#include "base/Interaction.h"
#include "base/SqlStatement.h"
#include "base/SqlTransaction.h"

#include <QCoreApplication>
#include <QSqlError>

namespace {

Result RunResource(const char* name, Interaction* interaction, const QSqlDatabase& db)
{
    return ExecSqlScript(LoadSqlScript(QStringLiteral(":/sql/") + QLatin1String(name)), interaction,
                         db);
}

} // namespace

bool SchemaExists(const QSqlDatabase& db)
{
    SqlStatement probe(QStringLiteral("select count(*) from ORDERHEAD"), {}, db);
    return probe.exec();
}

Result CreateSchema(Interaction* interaction, Progress* progress, const QSqlDatabase& db)
{
    SqlTransaction transaction(db);
    if (progress)
        progress->setText(QCoreApplication::translate("Schema", "Creating database tables"));
    Result r = RunResource("create_tables.sql", interaction, db);
    if (!r)
        return r;
    if (progress)
        progress->setText(QCoreApplication::translate("Schema", "Creating database indexes"));
    r = RunResource("create_indexes.sql", interaction, db);
    if (!r)
        return r;
    for (const char* script :
         {"basic_data.sql", "reference_data.sql", "order_labels.sql", "order_labels_added.sql"}) {
        r = RunResource(script, interaction, db);
        if (!r)
            break;
    }
    const QString message =
        QCoreApplication::translate("Schema", "Unable to insert basic data to database.");
    if (!r)
        return Result::failure(message, r.sqlError(), r.statement());
    // A new file is born with the program's extensions, so opening it later changes nothing.
    if (r = SchemaExtensions::apply(interaction, db); !r)
        return r;
    if (!transaction.commit())
        return Result::failure(message, db.lastError().text());
    return Result::success();
}
