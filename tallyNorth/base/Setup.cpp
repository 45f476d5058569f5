#include "Setup.h"

#include "SqlStatement.h"
#include "SqlValue.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QSqlRecord>

namespace {

// Column names are pasted into the statement, so only plain SETUP column names pass.
bool IsSetupColumn(const QString& name)
{
    static const QRegularExpression re(QStringLiteral("^SETUP_[A-Z0-9_]+$"));
    return re.match(name).hasMatch();
}

QString UpdateFailedText()
{
    return QCoreApplication::translate("Setup", "Unable to update SETUP record.");
}

} // namespace

Result Setup::load()
{
    m_values.clear();
    m_changed.clear();
    SqlStatement st(QStringLiteral("select * from SETUP"));
    if (!st.exec())
        return st.failure(QCoreApplication::translate("Setup", "Error loading setup data."));
    const QSqlRecord record = st.query().record();
    const bool hasRow = st.next();
    for (int i = 0; i < record.count(); ++i)
        m_values.insert(record.fieldName(i), hasRow ? st.value(i) : QVariant());
    return Result::success();
}

QVariant Setup::value(const char* column) const
{
    return m_values.value(QString::fromLatin1(column));
}

QString Setup::text(const char* column) const
{
    const QVariant v = value(column);
    return v.isNull() ? QString() : v.toString();
}

bool Setup::flag(const char* column) const
{
    return IsFlagSet(value(column));
}

qint64 Setup::integer(const char* column, qint64 fallback) const
{
    return ToInteger(value(column), fallback);
}

double Setup::number(const char* column, double fallback) const
{
    return ToNumber(value(column), fallback);
}

void Setup::set(const char* column, const QVariant& value)
{
    const QString name = QString::fromLatin1(column);
    m_values.insert(name, value);
    if (!m_changed.contains(name))
        m_changed << name;
}

void Setup::setFlag(const char* column, bool on)
{
    set(column, FlagText(on));
}

Result Setup::save()
{
    if (m_changed.isEmpty())
        return Result::success();
    const Result r = save(m_changed);
    if (r)
        m_changed.clear();
    return r;
}

Result Setup::save(const QStringList& columns)
{
    QHash<QString, QVariant> values;
    for (const QString& c : columns)
        values.insert(c, m_values.value(c));
    return write(values);
}

Result Setup::write(const QHash<QString, QVariant>& values)
{
    if (values.isEmpty())
        return Result::success();
    QStringList names = values.keys();
    names.sort();
    QStringList assignments;
    QVariantList binds;
    for (const QString& name : std::as_const(names)) {
        if (!IsSetupColumn(name))
            return Result::failure(UpdateFailedText(), {}, name);
        assignments << name + QLatin1String(" = ?");
        binds << values.value(name);
    }
    // A database made before the row existed gets it on first save; never a second one.
    const QVariant rows = SelectValue(QStringLiteral("select count(*) from SETUP"));
    if (!rows.isValid())
        return Result::failure(UpdateFailedText());
    if (rows.toInt() == 0) {
        const Result inserted = ExecSql(
            QStringLiteral("insert into SETUP (SETUP_NAME) values (NULL)"), {}, UpdateFailedText());
        if (!inserted)
            return inserted;
    }
    SqlStatement st(QStringLiteral("UPDATE SETUP SET ") + assignments.join(u','), binds);
    if (!st.exec())
        return st.failure(UpdateFailedText());
    // The settings in memory follow what was written, whoever wrote it.
    Setup& settings = current();
    for (const QString& name : std::as_const(names))
        settings.m_values.insert(name, values.value(name));
    return Result::success();
}

Setup& Setup::current()
{
    static Setup setup;
    return setup;
}
