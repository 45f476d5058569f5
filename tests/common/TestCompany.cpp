#include "TestCompany.h"

#include "app/Schema.h"
#include "base/Database.h"

#include <QFile>

namespace {

// Creating the schema takes a while; the first test company is kept as a template and copied.
QString TemplateFile()
{
    static QTemporaryDir dir;
    static QString path;
    if (path.isEmpty() && dir.isValid()) {
        const QString candidate = dir.filePath(QStringLiteral("template.db"));
        if (Database::open(candidate) && CreateSchema(nullptr))
            path = candidate;
        Database::close();
    }
    return path;
}

} // namespace

TestCompany::TestCompany()
{
    const QString source = TemplateFile();
    if (source.isEmpty() || !m_dir.isValid())
        return;
    m_path = m_dir.filePath(QStringLiteral("company.db"));
    m_valid = QFile::copy(source, m_path) &&
              QFile::setPermissions(m_path, QFile::ReadOwner | QFile::WriteOwner) &&
              Database::open(m_path).ok();
}

TestCompany::~TestCompany()
{
    Database::close();
}
