#include "CompanyList.h"

#include "ScopedConnection.h"
#include "base/SqlStatement.h"

#include <QDir>
#include <QFileInfo>

QString CompanyEntry::fileName() const
{
    return QFileInfo(path).fileName();
}

QStringList CompanyFiles(const QString& folder)
{
    QDir dir(folder);
    dir.setFilter(QDir::Files | QDir::Hidden | QDir::CaseSensitive);
    dir.setNameFilters({QStringLiteral("*.db")});
    dir.setSorting(QDir::Name);
    QStringList paths;
    const QStringList names = dir.entryList();
    for (const QString& name : names) {
        if (name.size() > 3 && !name.startsWith(u'.'))
            paths << dir.absoluteFilePath(name);
    }
    return paths;
}

QStringList OfferedCompanyFiles(const QStringList& files)
{
    if (files.size() <= 1)
        return files;
    QStringList offered;
    for (const QString& path : files) {
        if (QFileInfo(path).fileName() != QLatin1String(kDemoDatabase))
            offered << path;
    }
    return offered;
}

CompanyEntry ReadCompanyEntry(const QString& path)
{
    CompanyEntry entry;
    entry.path = path;
    ScopedConnection connection(path, ScopedConnection::Mode::ReadOnly);
    if (!connection.isOpen())
        return entry;
    SqlStatement st(QStringLiteral("select SETUP_NAME, SETUP_ZIP, SETUP_CITY, SETUP_ADDRESS, "
                                   "SETUP_TAX_NO from SETUP"),
                    {}, connection.db());
    if (st.exec() && st.next()) {
        entry.name = st.value("SETUP_NAME").toString();
        entry.zip = st.value("SETUP_ZIP").toString();
        entry.city = st.value("SETUP_CITY").toString();
        entry.address = st.value("SETUP_ADDRESS").toString();
        entry.taxNo = st.value("SETUP_TAX_NO").toString();
    }
    return entry;
}

QList<CompanyEntry> ReadCompanyEntries(const QStringList& paths)
{
    QList<CompanyEntry> entries;
    for (const QString& path : paths)
        entries << ReadCompanyEntry(path);
    return entries;
}
