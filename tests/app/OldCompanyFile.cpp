#include "OldCompanyFile.h"
#include "TestData.h"

#include "app/SqlScript.h"
#include "base/Database.h"
#include "base/SqlStatement.h"

#include <QRegularExpression>
#include <QSqlQuery>

namespace {

struct Step
{
    int version;
    QString kind; // "table", "index" or the table that gained the columns
    QStringList names;
};

// The upgrade steps in order; an indented line continues the one above.
QList<Step> History()
{
    static QList<Step> steps;
    if (steps.isEmpty()) {
        for (const QString& line : TestDataLines("app/schema_history.txt")) {
            const QStringList words = line.split(u' ', Qt::SkipEmptyParts);
            if (line.front().isSpace())
                steps.last().names << words;
            else
                steps.append({words[0].toInt(), words[1], words.mid(2)});
        }
    }
    return steps;
}

// The names of kind that the file's version did not yet have.
QStringList Later(const QString& kind, int version)
{
    QStringList names;
    for (const Step& s : History()) {
        if (s.version > version && s.kind == kind)
            names << s.names;
    }
    return names;
}

// Today's create statement of one table, cut back to version.
QString OldCreateStatement(const QString& statement, int version, bool withRoundDigits)
{
    static const QRegularExpression head(QStringLiteral("^create table (\\w+) \\("));
    const QString table = head.match(statement).captured(1);
    const QStringList later = Later(table, version);
    QStringList definitions;
    const QStringList lines = statement.split(u'\n');
    for (const QString& line : lines.mid(1, lines.size() - 2)) {
        QString definition = line.trimmed();
        if (definition.endsWith(u','))
            definition.chop(1);
        if (!later.contains(definition.section(u' ', 0, 0)))
            definitions << definition;
    }
    // Columns of the time that later versions leave unused.
    if (table == "ORDERHEAD")
        definitions << "ORDERHEAD_ITEM_ROUND_DIGITS integer";
    if (table == "SETUP" && withRoundDigits)
        definitions << "SETUP_ITEM_ROUND_DIGITS integer";
    return "create table " + table + " (" + definitions.join(u',') + u')';
}

bool Exec(const QString& text, const QVariantList& binds = {})
{
    const Result r = ExecSql(text, binds);
    if (!r)
        qWarning("%s: %s", qPrintable(text), qPrintable(r.sqlError()));
    return r.ok();
}

bool RunScript(const char* name)
{
    return ExecSqlScript(LoadSqlScript(QStringLiteral(":/sql/") + QLatin1String(name))).ok();
}

// Inserts one row of values for columns, leaving out what the table lacks at this version.
bool Insert(const QString& table, const QStringList& columns, const QVariantList& row)
{
    const QStringList have = TableColumns(table);
    QStringList used, marks;
    QVariantList binds;
    for (int i = 0; i < columns.size(); ++i) {
        if (have.contains(columns[i])) {
            used << columns[i];
            marks << QStringLiteral("?");
            binds << row.value(i);
        }
    }
    return have.isEmpty() || Exec(QStringLiteral("insert into %1 (%2) values (%3)")
                                      .arg(table, used.join(u','), marks.join(u',')),
                                  binds);
}

// The rows of the old company, from tests/data/app/old_company.txt.
bool InsertRows(const OldCompanyFile& file)
{
    QString table;
    QStringList columns;
    for (const QString& line : TestDataLines("app/old_company.txt")) {
        if (line.startsWith("table ")) {
            columns = line.split(u' ', Qt::SkipEmptyParts).mid(1);
            table = columns.takeFirst();
        } else if (line.front().isSpace()) {
            columns << line.split(u' ', Qt::SkipEmptyParts);
        } else {
            QVariantList row;
            for (const QString& value : line.split(u'|'))
                row << (value == "$ROUND_DIGITS" ? QVariant(file.roundDigits)
                        : value.isEmpty()        ? QVariant()
                                                 : QVariant(value));
            if (!Insert(table, columns, row))
                return false;
        }
    }
    return true;
}

// The tables or indexes of today's create script that the file's version already had.
bool CreateOld(const OldCompanyFile& file, const QString& kind)
{
    const bool tables = kind == "table";
    const QStringList later = Later(kind, file.version);
    for (const QString& statement : SplitSqlScript(
             LoadSqlScript(tables ? ":/sql/create_tables.sql" : ":/sql/create_indexes.sql"))) {
        if (later.contains(tables ? statement.section(u' ', 2, 2)
                                  : statement.section(u' ', -3, -3)))
            continue;
        if (!Exec(tables ? OldCreateStatement(statement, file.version, !file.withoutRoundDigits)
                         : statement))
            return false;
    }
    return true;
}

bool CreateIndexes(const OldCompanyFile& file)
{
    if (!CreateOld(file, "index"))
        return false;
    // Indexes of the time that the upgrade to 300 drops.
    return file.version >= 300 ||
           ((file.withoutPartnerNameIndex ||
             Exec("create index IDX_PARTNER$PARTNER_NAME on PARTNER(PARTNER_NAME)")) &&
            Exec("create index IDX_PRODUCT$PRODUCT_NAME on PRODUCT(PRODUCT_NAME)"));
}

// What the upgrades to 300 and 301 had already written into files of those versions.
bool InsertLaterData(const OldCompanyFile& file)
{
    return file.version < 300 ||
           (RunScript("reference_data.sql") && RunScript("order_labels.sql") &&
            RunScript("order_labels_added.sql"));
}

} // namespace

QStringList TableColumns(const QString& table)
{
    QStringList names;
    QSqlQuery q(QStringLiteral("pragma table_info(%1)").arg(table), Database::session());
    while (q.next())
        names << q.value(1).toString();
    return names;
}

bool OldCompanyFile::build(const QString& path) const
{
    if (History().isEmpty() || !Database::open(path))
        return false;
    bool ok = CreateOld(*this, "table") && CreateIndexes(*this) && InsertRows(*this) &&
              InsertLaterData(*this);
    if (ok && version >= 1)
        ok = Exec("insert into DBVERSION values (?)", {version});
    Database::close();
    return ok;
}
