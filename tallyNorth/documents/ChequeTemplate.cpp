#include "ChequeTemplate.h"

#include "InvoiceTemplate.h"
#include "QtfReader.h"

#include "Columns.h"
#include "base/MessageArgs.h"
#include "base/Setup.h"
#include "base/SqlStatement.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

constexpr char kDigestSalt[] = "w7dk(&pe%2\t<?6";
constexpr char kConfigFile[] = "cheque.cfg";
constexpr char kTextFile[] = "cheque.qtf";

} // namespace

QString ChequeTemplate::computeDigest() const
{
    QCryptographicHash md5(QCryptographicHash::Md5);
    md5.addData(qtf.toUtf8());
    md5.addData(QByteArrayView(kDigestSalt));
    return QString::fromLatin1(md5.result().toHex().toUpper());
}

bool ChequeTemplates::isTemplateDir(const QString& directory)
{
    return QFileInfo::exists(QDir(directory).filePath(QString::fromLatin1(kConfigFile)));
}

Result ChequeTemplates::load(const QString& directory, ChequeTemplate& loaded)
{
    const QDir dir(directory);
    QFile file(dir.filePath(QString::fromLatin1(kTextFile)));
    if (!file.open(QIODevice::ReadOnly))
        return Result::failure(FillArgs(tr("The cheque template %s is missing from %s."),
                                        {QString::fromLatin1(kTextFile),
                                         QtfEscape(QDir::toNativeSeparators(dir.absolutePath()))}));
    loaded.qtf = QString::fromUtf8(file.readAll());
    const QString config = dir.filePath(QString::fromLatin1(kConfigFile));
    loaded.name = ReadConfigValue(config, QStringLiteral("Name"));
    loaded.digest = ReadConfigValue(config, QStringLiteral("Digest"));
    return Result::success();
}

Result ChequeTemplates::install(const QString& directory, ChequeTemplate& installed)
{
    if (Result r = load(directory, installed); !r)
        return r;
    const bool shipped = directory.startsWith(u':');
    return Setup::write({{ColumnName(Col::SETUP_CHEQUE_QTF), installed.qtf},
                         {ColumnName(Col::SETUP_CHEQUE_CURR_TMPL_DIR),
                          shipped ? directory : QFileInfo(directory).absoluteFilePath()}});
}

QString ChequeTemplates::current()
{
    return Setup::current().text(Col::SETUP_CHEQUE_QTF);
}

QString ChequeTemplates::missingMessage()
{
    return tr("Select a cheque template in Setup.");
}
