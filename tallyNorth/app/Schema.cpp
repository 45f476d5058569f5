#include "Schema.h"

#include "Interaction.h"
#include "SqlScript.h"
#include "SqlStatement.h"
#include "SqlTransaction.h"

#include <QCoreApplication>

bool SchemaExists()
{
    SqlStatement probe(QStringLiteral("select count(*) from ORDERHEAD"));
    return probe.exec();
}

Result CreateSchema(Interaction* interaction, Progress* progress)
{
    SqlTransaction transaction;
    if (progress)
        progress->setText(QCoreApplication::translate("Schema", "Creating database tables"));
    Result r = ExecSqlScript(LoadSqlScript(QStringLiteral(":/sql/create_tables.sql")), interaction);
    if (!r)
        return r;
    if (progress)
        progress->setText(QCoreApplication::translate("Schema", "Creating database indexes"));
    r = ExecSqlScript(LoadSqlScript(QStringLiteral(":/sql/create_indexes.sql")), interaction);
    if (!r)
        return r;
    r = ExecSqlScript(LoadSqlScript(QStringLiteral(":/sql/basic_data.sql")), interaction);
    if (r)
        r = ExecSqlScript(LoadSqlScript(QStringLiteral(":/sql/order_labels.sql")), interaction);
    if (!r)
        return Result::failure(
            QCoreApplication::translate("Schema", "Unable to insert basic data to database."),
            r.sqlError(), r.statement());
    if (!transaction.commit())
        return Result::failure(
            QCoreApplication::translate("Schema", "Unable to insert basic data to database."));
    return Result::success();
}
