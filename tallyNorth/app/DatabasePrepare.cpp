#include "DatabasePrepare.h"

#include "CompanyFile.h"
#include "CompanyLock.h"
#include "FileReplace.h"
#include "Schema.h"
#include "SchemaExtensions.h"
#include "SqlScript.h"
#include "base/Interaction.h"
#include "base/MessageArgs.h"
#include "base/Setup.h"
#include "base/SqlStatement.h"
#include "base/SqlTransaction.h"
#include "base/SqlValue.h"

#include <QFile>
#include <QSqlError>

#include <functional>

namespace {

QString Script(const char* name)
{
    return LoadSqlScript(QStringLiteral(":/sql/") + QLatin1String(name));
}

QString Section(const char* script, const char* name)
{
    return SqlScriptSection(Script(script), QLatin1String(name));
}

// The marker says that the safety copy beside it belongs to an upgrade not yet finished.
bool WriteMarker(const QString& path)
{
    QFile marker(path);
    if (!marker.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    marker.write("upgrade in progress; the .beforeupgrade file is the original\n");
    marker.close();
    return marker.error() == QFileDevice::NoError && SyncFile(path) && SyncFolderOf(path);
}

} // namespace

int ReadDbVersion(const QSqlDatabase& db)
{
    SqlStatement st(QStringLiteral("select VERSION from DBVERSION"), {}, db);
    if (!st.exec() || !st.next() || st.value(0).isNull())
        return -1;
    return int(ToInteger(st.value(0), -1));
}

QString DatabasePrepare::safetyCopyPath(const QString& databasePath)
{
    return databasePath + QLatin1String(".beforeupgrade");
}

Result PrepareDatabase(Interaction& interaction)
{
    return DatabasePrepare(interaction).run();
}

QString DatabasePrepare::upgradeMarkerPath(const QString& databasePath)
{
    return databasePath + QLatin1String(".upgrading");
}

Result DatabasePrepare::run()
{
    if (!Database::isOpen())
        return fail(QCoreApplication::translate("Database", "Missing filename opening database."));
    const QString path = Database::path();
    if (needsWork(path)) {
        // Only one process creates or upgrades the file; a second one waits for it and then
        // finds the work done.
        Database::close();
        CompanyLock lock(path);
        Result r = lock.acquire();
        if (r)
            r = CompanyFile::inspect(path, CompanyFile::Check::Quick);
        if (r)
            r = Database::open(path);
        if (!r)
            return fail(r.message());
        if (!SchemaExists()) {
            r = createSchema();
            if (!r)
                return r;
        }
        const int version = ReadDbVersion();
        if (version > kCurrentDbVersion)
            return fail(newerVersionMessage());
        if (version < kCurrentDbVersion) {
            r = upgrade();
            if (!r)
                return r;
        }
        // A run that died after its upgrade was committed leaves only its marker behind.
        QFile::remove(upgradeMarkerPath(path));
        r = SchemaExtensions::apply(&m_interaction);
        if (!r)
            return fail(r.message());
    }
    if (ReadDbVersion() > kCurrentDbVersion)
        return fail(newerVersionMessage());
    if (ReadSchemaExtensionVersion() > kSchemaExtensionVersion)
        return fail(SchemaExtensions::newerVersionMessage());
    const Result loaded = Setup::current().load();
    if (!loaded)
        return fail(loaded.message());
    return Result::success();
}

QString DatabasePrepare::newerVersionMessage()
{
    return tr("The database version is newer, than the version of the billing "
              "software.&Upgrade the software to a newer version.");
}

bool DatabasePrepare::needsWork(const QString& path)
{
    return !SchemaExists() || ReadDbVersion() != kCurrentDbVersion ||
           ReadSchemaExtensionVersion() != kSchemaExtensionVersion ||
           QFile::exists(upgradeMarkerPath(path));
}

Result DatabasePrepare::createSchema()
{
    std::unique_ptr<Progress> progress =
        m_interaction.progress(QCoreApplication::translate("Schema", "Creating database tables"));
    const Result r = CreateSchema(&m_interaction, progress.get());
    progress.reset();
    return r ? r : fail(r.message());
}

// Runs with the company's lock held. The steps run in one transaction, so a crash leaves the
// original (SQLite rolls the journal back) and the safety copy is never the half-upgraded file.
Result DatabasePrepare::upgrade()
{
    const QString path = Database::path();
    const QString copy = safetyCopyPath(path);
    const QString marker = upgradeMarkerPath(path);
    std::unique_ptr<Progress> progress = m_interaction.progress(tr("Upgrading database."));
    // A copy beside a marker was taken by a run that was interrupted: it is the original.
    if (!(QFile::exists(marker) && QFile::exists(copy))) {
        // The copy is taken of the closed file so that it is complete, byte for byte.
        Database::close();
        const bool copied = CopyReplacing(path, copy);
        if (!copied || !WriteMarker(marker)) {
            progress.reset();
            return fail(tr("Error backing up database file before upgrade."));
        }
        const Result reopened = Database::open(path);
        if (!reopened) {
            m_interaction.error(reopened.message());
            progress.reset();
            return restore(path, copy);
        }
    }
    m_canceled = false;
    Result r = Result::success();
    {
        SqlTransaction all;
        bool shown = false;
        if (!all.active())
            r = Result::failure(tr("Unable to upgrade database."), all.errorText());
        if (r) {
            r = runSteps(*progress);
            shown = !r;
        }
        if (r && ReadDbVersion() != kCurrentDbVersion)
            r = Result::failure(tr("Unable to upgrade database."));
        if (r && !all.commit())
            r = Result::failure(tr("Unable to upgrade database."), all.errorText());
        if (!r && !shown)
            m_interaction.error(r.message());
    }
    progress.reset();
    if (!r)
        return restore(path, copy);
    QFile::remove(marker);
    SyncFolderOf(marker);
    return r;
}

Result DatabasePrepare::runSteps(Progress& progress)
{
    const Step steps[] = {
        {-1, &DatabasePrepare::step1},  {1, &DatabasePrepare::step2},
        {2, &DatabasePrepare::step3},   {3, &DatabasePrepare::step4},
        {300, &DatabasePrepare::step5}, {301, &DatabasePrepare::step6},
    };
    progress.setTotal(int(std::size(steps)));
    for (int i = 0; i < int(std::size(steps)); ++i) {
        progress.setPos(i);
        if (progress.canceled()) {
            m_canceled = true;
            return Result::failure(tr("Upgrading database aborted."));
        }
        const Result r = runStep(i + 1, steps[i]);
        if (!r) {
            m_interaction.error(r.message());
            return r;
        }
    }
    progress.setPos(int(std::size(steps)));
    return Result::success();
}

Result DatabasePrepare::runStep(int number, const Step& step)
{
    if (ReadDbVersion() != step.from)
        return Result::success();
    SqlTransaction transaction;
    if (!transaction.active())
        return Result::failure(tr("Unable to upgrade database."), transaction.errorText());
    Result r = (this->*step.work)();
    if (r && number == m_failingStep)
        r = Result::failure(tr("Unable to upgrade database."), QStringLiteral("injected fault"));
    if (r && !transaction.commit())
        r = Result::failure(tr("Unable to upgrade database."), transaction.errorText());
    return r;
}

// Puts the safety copy back in place of the file the upgrade failed on.
Result DatabasePrepare::restore(const QString& path, const QString& copy)
{
    Database::close();
    const Result replaced = CompanyFile::replace(copy, path);
    if (!replaced) {
        m_interaction.error(FillArgs(tr("Error restoring database file after failed upgrade.&The "
                                        "saved original database file is here:&&%s"),
                                     {copy}));
    } else {
        QFile::remove(upgradeMarkerPath(path));
        SyncFolderOf(path);
    }
    if (m_canceled)
        return fail(tr("Upgrading database aborted."));
    return fail(tr("Error upgrading database.&You can uninstall current version of the "
                   "software&and reinstall the previously used version to continue your "
                   "work.&&Please report this problem to the developers."));
}

Result DatabasePrepare::fail(const QString& message)
{
    Database::close();
    m_interaction.error(message);
    return Result::failure(message);
}

Result DatabasePrepare::exec(const QString& script)
{
    const Result r = ExecSqlScript(script, &m_interaction);
    if (r)
        return r;
    return Result::failure(tr("Unable to upgrade database."), r.sqlError(), r.statement());
}

Result DatabasePrepare::execResource(const char* name)
{
    return exec(Script(name));
}

Result DatabasePrepare::recordVersion(int version)
{
    const QString text = version == 1 ? QStringLiteral("insert into DBVERSION (VERSION) values (?)")
                                      : QStringLiteral("update DBVERSION set VERSION = ?");
    return ExecSql(text, {version}, tr("Unable to upgrade database."));
}

Result DatabasePrepare::step1()
{
    Result r = execResource("upgrade_1.sql");
    return r ? recordVersion(1) : r;
}

Result DatabasePrepare::step2()
{
    Result r = exec(Section("upgrade_2.sql", "columns"));
    if (r)
        r = copyShippingDates();
    if (r)
        r = recordVersion(2);
    return r ? exec(Section("upgrade_2.sql", "indexes")) : r;
}

Result DatabasePrepare::step3()
{
    Result r = exec(Section("upgrade_3.sql", "columns"));
    if (r)
        r = recordVersion(3);
    return r ? exec(Section("upgrade_3.sql", "indexes")) : r;
}

Result DatabasePrepare::step4()
{
    const QList<std::function<Result()>> parts = {
        [this] { return exec(Section("upgrade_4.sql", "columns")); },
        [this] { return exec(Section("upgrade_4.sql", "labels")); },
        [this] { return execResource("order_labels.sql"); },
        [this] { return exec(Section("upgrade_4.sql", "basic")); },
        [this] { return execResource("reference_data.sql"); },
        [this] { return exec(Section("upgrade_4.sql", "data")); },
        [this] { return selectUnpaidPaymentMethods(); },
        [this] { return exec(Section("upgrade_4.sql", "indexes")); },
        [this] { return carryLineRounding(); },
        [this] { return recordVersion(300); },
    };
    for (const auto& part : parts) {
        const Result r = part();
        if (!r)
            return r;
    }
    return Result::success();
}

Result DatabasePrepare::step5()
{
    Result r = execResource("upgrade_5.sql");
    if (r)
        r = execResource("order_labels_added.sql");
    return r ? recordVersion(301) : r;
}

Result DatabasePrepare::step6()
{
    Result r = execResource("upgrade_6.sql");
    return r ? recordVersion(302) : r;
}

// Consolidated invoices date each line; older lines take their order's shipping date.
Result DatabasePrepare::copyShippingDates()
{
    SqlStatement orders(
        QStringLiteral("select ORDERHEAD_ID, ORDERHEAD_DATE_SHIPPED from ORDERHEAD"));
    if (!orders.exec())
        return orders.failure(tr("Unable to upgrade database."));
    QList<QPair<QVariant, QVariant>> dates;
    while (orders.next())
        dates.append({orders.value("ORDERHEAD_ID"), orders.value("ORDERHEAD_DATE_SHIPPED")});
    for (const auto& [id, date] : std::as_const(dates)) {
        const Result r = ExecSql(QStringLiteral("update ORDERITEM set ORDERITEM_DATE_SHIPPED = ? "
                                                "where ORDERITEM_ORDERHEAD_ID = ?"),
                                 {date, id}, tr("Unable to upgrade database."));
        if (!r)
            return r;
    }
    return Result::success();
}

// The upgrade has just marked every order paid; the user names the payment methods whose
// invoices are in fact still to be paid.
Result DatabasePrepare::selectUnpaidPaymentMethods()
{
    SqlStatement st(QStringLiteral("select distinct ORDERHEAD_PAYMENTMETHOD_NAME from ORDERHEAD "
                                   "where ORDERHEAD_PAYMENTMETHOD_NAME is not null "
                                   "order by ORDERHEAD_PAYMENTMETHOD_NAME"));
    if (!st.exec())
        return st.failure(tr("Error in finding invoices in database."));
    QStringList names;
    while (st.next())
        names << st.value(0).toString();
    if (names.isEmpty())
        return Result::success();
    const std::optional<QList<bool>> checked =
        m_interaction.checkItems(tr("Select Payment Methods To Set Unpaid"), tr("Payment Method"),
                                 tr("Set To Unpaid"), names);
    if (!checked) {
        m_canceled = true;
        return Result::failure(tr("Operation aborted."));
    }
    for (int i = 0; i < names.size() && i < checked->size(); ++i) {
        if (!checked->at(i))
            continue;
        const Result r =
            ExecSql(QStringLiteral("update ORDERHEAD set ORDERHEAD_PAID = '0', "
                                   "ORDERHEAD_UNPAID_TOTAL = ORDERHEAD_TOTAL_GROSS, "
                                   "ORDERHEAD_PAYMENTMETHOD_PAID = '0' "
                                   "where ORDERHEAD_PAYMENTMETHOD_NAME = ? "
                                   "and ifnull(ORDERHEAD_INVOICE_NO, 0) <> 0 "
                                   "and ifnull(ORDERHEAD_CANCELLING_INVOICE_NO, 0) = 0 "
                                   "and ifnull(ORDERHEAD_CANCELLED_INVOICE_NO, 0) = 0"),
                    {names.at(i)}, tr("Unable to set paid states."));
        if (!r)
            return r;
    }
    return Result::success();
}

// Line rounding was a company setting before currencies had their own; the forint takes it over.
Result DatabasePrepare::carryLineRounding()
{
    SqlStatement st(QStringLiteral("select SETUP_ITEM_ROUND_DIGITS from SETUP"));
    if (!st.exec())
        return st.failure(tr("Unable to load rounding setup."));
    // A file without a settings row had no rounding setting: whole forints.
    const qint64 digits = st.next() ? ToInteger(st.value(0)) : 0;
    return ExecSql(
        QStringLiteral("update CURRENCYY set CURRENCY_LINE_TOTAL_ROUNDING_DECIMALS = ?, "
                       "CURRENCY_LINE_TOTAL_PRINTING_DECIMALS = ? where CURRENCY_ID = 0"),
        {digits, digits > 0 ? 2 : 0}, tr("Unable to setup rounding."));
}
