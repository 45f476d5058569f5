#include "SetupSave.h"

#include "base/Interaction.h"
#include "base/Setup.h"
#include "base/SqlStatement.h"
#include "base/SqlTransaction.h"
#include "base/SqlValue.h"
#include "masterdata/TaxNumber.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QImageReader>

#include "Columns.h"

namespace {

QString Tr(const char* text)
{
    return QCoreApplication::translate("SetupSave", text);
}

bool Empty(const SetupValues& values, const char* column)
{
    const QVariant v = values.value(ColumnName(column));
    return v.isNull() || v.toString().trimmed().isEmpty();
}

QString SaveFailedText()
{
    return Tr("Unable to save setup to database.");
}

} // namespace

std::optional<SetupProblem> CheckSetupValues(const SetupValues& values)
{
    struct Required
    {
        const char* column;
        const char* message;
    };
    static const Required required[] = {
        {Col::SETUP_NAME, QT_TRANSLATE_NOOP("SetupSave", "Company Name is required.")},
        {Col::SETUP_ZIP, QT_TRANSLATE_NOOP("SetupSave", "ZIP is required.")},
        {Col::SETUP_CITY, QT_TRANSLATE_NOOP("SetupSave", "City is required.")},
        {Col::SETUP_ADDRESS, QT_TRANSLATE_NOOP("SetupSave", "Street Address is required.")},
        {Col::SETUP_INVOICE_CURRENCY_ID, QT_TRANSLATE_NOOP("SetupSave", "Currency is required.")},
        {Col::SETUP_INVOICE_COPIES, QT_TRANSLATE_NOOP("SetupSave", "Field is required.")},
        {Col::SETUP_RECORD_LIMIT, QT_TRANSLATE_NOOP("SetupSave", "Field is required.")},
    };
    for (const Required& r : required)
        if (Empty(values, r.column))
            return SetupProblem{Tr(r.message), ColumnName(r.column)};
    if (IsFlagSet(values.value(ColumnName(Col::SETUP_INVOICE_LOGO_PRINT))) &&
        ToNumber(values.value(ColumnName(Col::SETUP_INVOICE_LOGO_SIZE_PERCENT)), 0) <= 0)
        return SetupProblem{Tr("Set the logo size."),
                            ColumnName(Col::SETUP_INVOICE_LOGO_SIZE_PERCENT)};
    const QString taxNo = values.value(ColumnName(Col::SETUP_TAX_NO)).toString();
    if (const QString m = HungarianTaxNoMessage(taxNo); !m.isEmpty())
        return SetupProblem{m, ColumnName(Col::SETUP_TAX_NO)};
    const QString euNo = values.value(ColumnName(Col::SETUP_EU_VAT_REG_NO)).toString();
    if (const QString m = EuVatNoMessage(euNo); !m.isEmpty())
        return SetupProblem{m, ColumnName(Col::SETUP_EU_VAT_REG_NO)};
    return std::nullopt;
}

bool PrefixHasYear(const QString& prefix, int year)
{
    return prefix.contains(QString::number(year)) ||
           prefix.contains(QString::asprintf("%02d", year % 100));
}

QString YearInPrefixNotice()
{
    return QCoreApplication::translate(
        "SetupSave",
        "A számlaszám előtagjában szerepel az évszám.&Az előtag az első számla kinyomtatása után "
        "már nem változtatható meg, a számlák sorszámozása pedig az év végén sem kezdődik újra. "
        "Új évhez új előtaggal új cégadatbázist kell kezdeni.");
}

QByteArray LogoPicture(qint64 logoId)
{
    const QVariant data = SelectValue(
        Sql("select %1 from %2 where %3 = ?", {Col::LOGO_DATA, Tbl::LOGO, Col::LOGO_ID}), {logoId});
    return QByteArray::fromBase64(data.toString().toLatin1());
}

std::optional<QString> LogoData(const QByteArray& pictureFile)
{
    QBuffer buffer;
    buffer.setData(pictureFile);
    QImageReader reader(&buffer);
    if (!reader.canRead() || reader.read().isNull())
        return std::nullopt;
    return QString::fromLatin1(pictureFile.toBase64());
}

Result SaveSetup(SetupChanges changes, Interaction& interaction, QString* badColumn,
                 const QDate& today)
{
    const auto fail = [&interaction](const Result& r) {
        interaction.error(r.message());
        return r;
    };
    if (const auto problem = CheckSetupValues(changes.values)) {
        if (badColumn)
            *badColumn = problem->column;
        return fail(Result::failure(problem->message));
    }
    const QString prefix =
        changes.values.value(ColumnName(Col::SETUP_INVOICE_NO_PREFIX)).toString();
    if (PrefixHasYear(prefix, today.year())) {
        const QVariant invoices = SelectValue(Sql("select count(*) from %1", {Tbl::INVOICE}));
        if (!invoices.isValid())
            return fail(Result::failure(Tr("Can not count invoices")));
        // Once an invoice is printed the prefix stays; before that the user can still choose.
        if (invoices.toLongLong() == 0)
            interaction.info(YearInPrefixNotice());
    }
    // The password is kept only when the user asked for it.
    if (!IsFlagSet(changes.values.value(ColumnName(Col::SETUP_DOWNLOAD_SAVE_PASSWORD))))
        changes.values.insert(ColumnName(Col::SETUP_DOWNLOAD_PASSWORD), QVariant());

    SqlTransaction transaction;
    if (changes.newLogo) {
        const std::optional<QString> data = LogoData(*changes.newLogo);
        SqlStatement insert(Sql("insert into %1 (%2) values (?)", {Tbl::LOGO, Col::LOGO_DATA}),
                            {data.value_or(QString())});
        if (!data || !insert.exec())
            return fail(Result::failure(Tr("A logo adatbazisba mentese nem sikerult.")));
        changes.values.insert(ColumnName(Col::SETUP_INVOICE_LOGO_ID), insert.lastInsertId());
    }
    if (Result r = Setup::write(changes.values); !r) {
        Setup::current().load().ok();
        return fail(r);
    }
    if (!changes.homeCurrency.isEmpty()) {
        QStringList assignments;
        QVariantList binds;
        for (auto it = changes.homeCurrency.cbegin(); it != changes.homeCurrency.cend(); ++it) {
            // Only the decimals columns are ever pasted into the statement.
            if (!it.key().startsWith(QLatin1String("CURRENCY_")) ||
                !it.key().endsWith(QLatin1String("_DECIMALS")))
                return fail(Result::failure(SaveFailedText()));
            assignments << it.key() + QLatin1String(" = ?");
            binds << it.value();
        }
        binds << 0;
        const Result r = ExecSql(Sql("update %1 set ", {Tbl::CURRENCYY}) + assignments.join(u',') +
                                     Sql(" where %1 = ?", {Col::CURRENCY_ID}),
                                 binds, SaveFailedText());
        if (!r) {
            transaction.rollback();
            Setup::current().load().ok();
            return fail(r);
        }
    }
    if (!transaction.commit()) {
        Setup::current().load().ok();
        return fail(Result::failure(SaveFailedText(), transaction.errorText()));
    }
    return Result::success();
}
