// The command-line front end: works on a company database without a window.
#include "AppCommands.h"
#include "Cli.h"
#include "CliInteraction.h"
#include "DocumentCommands.h"
#include "ShellCommands.h"

#include "app/BaseFolder.h"
#include "app/Language.h"
#include "base/ProgramInfo.h"
#include "documents/LabelTranslations.h"
#include "documents/MessageText.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>

#include <unistd.h>

#include <cstring>
#include <iterator>

// Each subsystem's verbs live in a file of their own; the table below lists them all.
const CliCommand kCommands[] = {
    {"version", "version",
     [](CliContext& c, const QStringList&) {
         *c.out << QCoreApplication::applicationVersion() << Qt::endl;
         return int(ExitOk);
     }},
    {"companies", "companies", RunCompanies},
    {"create", "create NAME --tax-no NO [--zip Z] [--city C] [--address A] [--file NAME.db]",
     RunCreate},
    {"check", "check [--unpaid-methods \"A,B\"]", RunCheck},
    {"backup", "backup FILE", RunBackup},
    {"restore", "restore FILE", RunRestore},
    {"qtf",
     "qtf FILE [--header FILE] [--footer FILE] [--page WxH] [--shift-mm X,Y] --pdf OUT | --text",
     RunQtfCommand},
    {"template", "template check DIR | template install DIR", RunTemplateCommand},
};

void PrintMessage(CliContext& context, const QString& text)
{
    *context.err << MessagePlainText(text) << Qt::endl;
}

bool ParseVerbArgs(const QStringList& args, const QStringList& optionNames, QStringList* positional,
                   QHash<QString, QString>* options)
{
    for (qsizetype i = 0; i < args.size(); ++i) {
        const QString& arg = args.at(i);
        if (!arg.startsWith(QLatin1String("--"))) {
            *positional << arg;
            continue;
        }
        const QString name = arg.mid(2);
        if (!optionNames.contains(name) || i + 1 >= args.size())
            return false;
        options->insert(name, args.at(++i));
    }
    return true;
}

namespace {

int Usage(QTextStream& err)
{
    err << "usage: tallynorth-cli [--base DIR] [--db FILE] [--lang hu|en] COMMAND [ARGS]\n";
    for (const CliCommand& c : kCommands)
        err << "  " << c.usage << '\n';
    err.flush();
    return ExitUsage;
}

} // namespace

int main(int argc, char* argv[])
{
    // Documents are rendered with QtGui; no window is ever shown.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // Without a desktop session Qt warns on every run that it picks a runtime folder itself;
    // pick it here, quietly, so standard error carries only the program's messages.
    if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")) {
        const QByteArray dir = QDir::tempPath().toLocal8Bit() + "/runtime-tallynorth-" +
                               QByteArray::number(qulonglong(getuid()));
        if (QDir().mkpath(QString::fromLocal8Bit(dir)))
            QFile::setPermissions(QString::fromLocal8Bit(dir),
                                  QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv("XDG_RUNTIME_DIR", dir);
    }
    QGuiApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("tallyNorth"));
    QCoreApplication::setApplicationVersion(ProgramVersion());

    QTextStream out(stdout);
    QTextStream err(stderr);
    QStringList args = QCoreApplication::arguments().mid(1);
    QString base;
    CliContext context;
    while (!args.isEmpty() && args.first().startsWith(QLatin1String("--"))) {
        const QString option = args.takeFirst();
        if (args.isEmpty())
            return Usage(err);
        if (option == QLatin1String("--base"))
            base = args.takeFirst();
        else if (option == QLatin1String("--db"))
            context.dbPath = args.takeFirst();
        else if (option == QLatin1String("--lang"))
            context.language = args.takeFirst();
        else
            return Usage(err);
    }
    if (args.isEmpty())
        return Usage(err);
    BaseFolder::set(ResolveBaseFolder(base));
    context.language = ChooseLanguage(context.language);
    InstallLanguage(context.language);
    InstallLabelLoading();

    CliInteraction interaction(err);
    context.interaction = &interaction;
    context.cliInteraction = &interaction;
    context.out = &out;
    context.err = &err;
    const QString verb = args.takeFirst();
    for (const CliCommand& c : kCommands) {
        if (verb == QLatin1String(c.name))
            return c.run(context, args);
    }
    return Usage(err);
}
