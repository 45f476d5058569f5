#include "CompanyCreate.h"

#include "CompanyList.h"
#include "Schema.h"
#include "ScopedConnection.h"
#include "base/FoldName.h"
#include "base/MessageArgs.h"
#include "base/SqlStatement.h"
#include "documents/ChequeTemplate.h"
#include "documents/InvoiceTemplate.h"
#include "masterdata/TaxNumber.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include "Columns.h"

namespace {

bool FileExistsIn(const QDir& dir, const QString& name)
{
    const QStringList names = dir.entryList(QDir::AllEntries | QDir::Hidden | QDir::System);
    return names.contains(name, Qt::CaseInsensitive);
}

bool ValidFileName(const QString& name)
{
    return name.size() > 3 && name.endsWith(QLatin1String(".db")) && !name.startsWith(u'.') &&
           !name.contains(u'/') && !name.contains(u'\\');
}

Result Validate(const NewCompany& company, const QString& folder)
{
    if (company.name.trimmed().isEmpty())
        return Result::failure(
            QCoreApplication::translate("CompanyCreate", "Name field must have a value."));
    if (company.taxNo.trimmed().isEmpty())
        return Result::failure(
            QCoreApplication::translate("CompanyCreate", "Tax No field must have a value."));
    if (const QString wrong = HungarianTaxNoMessage(company.taxNo); !wrong.isEmpty())
        return Result::failure(wrong);
    if (!company.fileName.isEmpty() && !ValidFileName(company.fileName))
        return Result::failure(QCoreApplication::translate(
            "CompanyCreate", "The file name must end with \".db\", be longer than three "
                             "characters and must not begin with \".\"."));
    if (!company.fileName.isEmpty() && FileExistsIn(QDir(folder), company.fileName))
        return Result::failure(
            FillArgs(QCoreApplication::translate("CompanyCreate", "%s already exists."),
                     {company.fileName}));
    const QList<CompanyEntry> existing = ReadCompanyEntries(CompanyFiles(folder));
    for (const CompanyEntry& entry : existing) {
        if (SameTaxNo(entry.taxNo, company.taxNo))
            return Result::failure(QCoreApplication::translate(
                "CompanyCreate",
                "It is not possible to create a new database with an existing tax no."));
    }
    return Result::success();
}

Result WriteCompany(const NewCompany& company, const QString& path, Interaction& interaction)
{
    ScopedConnection connection(path, ScopedConnection::Mode::ReadWrite);
    if (!connection.isOpen())
        return Result::failure(FillArgs(QCoreApplication::translate(
                                            "Database", "Can't create or open database file:\n%s"),
                                        {path}),
                               connection.errorText());
    Result r = CreateSchema(&interaction, nullptr, connection.db());
    if (!r)
        return r;
    QHash<QString, QVariant> values = TemplateSetupValues(LoadTemplateDir(kShippedTemplateDir));
    // The shipped cheque template too, so the first cheque prints without a visit to Setup.
    ChequeTemplate cheque;
    if (ChequeTemplates::load(kShippedChequeTemplateDir, cheque)) {
        values.insert(ColumnName(Col::SETUP_CHEQUE_QTF), cheque.qtf);
        values.insert(ColumnName(Col::SETUP_CHEQUE_CURR_TMPL_DIR),
                      QString::fromLatin1(kShippedChequeTemplateDir));
    }
    values.insert(ColumnName(Col::SETUP_NAME), company.name.trimmed());
    values.insert(ColumnName(Col::SETUP_TAX_NO), company.taxNo.trimmed());
    values.insert(ColumnName(Col::SETUP_ZIP), company.zip.trimmed());
    values.insert(ColumnName(Col::SETUP_CITY), company.city.trimmed());
    values.insert(ColumnName(Col::SETUP_ADDRESS), company.address.trimmed());
    QStringList assignments;
    QVariantList binds;
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        assignments << it.key() + QLatin1String(" = ?");
        binds << it.value();
    }
    SqlStatement st(QStringLiteral("update SETUP set ") + assignments.join(u", "), binds,
                    connection.db());
    if (!st.exec() || st.numRowsAffected() != 1)
        return st.failure(QCoreApplication::translate("Setup", "Unable to update SETUP record."));
    return Result::success();
}

} // namespace

QString CompanyFileName(const QString& companyName, const QString& folder)
{
    QString base = FoldName(companyName).toLower();
    base.replace(QRegularExpression(QStringLiteral("[^a-z0-9]+")), QStringLiteral("_"));
    while (base.startsWith(u'_'))
        base.remove(0, 1);
    while (base.endsWith(u'_'))
        base.chop(1);
    if (base.isEmpty())
        base = QStringLiteral("company");
    const QDir dir(folder);
    QString name = base + QLatin1String(".db");
    // The demonstration company's name stays its own even when a company is called "Demo".
    for (int n = 2; FileExistsIn(dir, name) || name == QLatin1String(kDemoDatabase); ++n)
        name = base + u'_' + QString::number(n) + QLatin1String(".db");
    return name;
}

bool SameTaxNo(const QString& a, const QString& b)
{
    const auto key = [](const QString& s) {
        QString k;
        for (const QChar c : s) {
            if (c.isLetterOrNumber())
                k += c.toUpper();
        }
        return k;
    };
    const QString ka = key(a);
    return !ka.isEmpty() && ka == key(b);
}

Result CreateCompany(const NewCompany& company, const QString& folder, Interaction& interaction,
                     QString* path)
{
    Result r = Validate(company, folder);
    if (!r)
        return r;
    if (!QDir().mkpath(folder))
        return Result::failure(FillArgs(
            QCoreApplication::translate("Database", "Can't create or open database file:\n%s"),
            {folder}));
    const QString name =
        company.fileName.isEmpty() ? CompanyFileName(company.name, folder) : company.fileName;
    const QString file = QDir(folder).absoluteFilePath(name);
    r = WriteCompany(company, file, interaction);
    if (!r) {
        QFile::remove(file);
        return r;
    }
    if (path)
        *path = file;
    return Result::success();
}

Result CreateDemoCompany(const QString& folder, Interaction& interaction, QString* path)
{
    NewCompany demo;
    demo.name = QStringLiteral("Minta Kereskedelmi Kft.");
    demo.taxNo = QStringLiteral("12345676-2-41");
    demo.zip = QStringLiteral("1052");
    demo.city = QStringLiteral("Budapest");
    demo.address = QStringLiteral("Váci utca 10.");
    demo.fileName = QLatin1String(kDemoDatabase);
    return CreateCompany(demo, folder, interaction, path);
}
