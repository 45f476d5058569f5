// The GUI entry point.
#include "app/BaseFolder.h"
#include "app/Language.h"
#include "app/ui/MainWindow.h"
#include "app/ui/RegisterCommands.h"
#include "app/ui/Startup.h"
#include "base/ProgramInfo.h"

#include <QApplication>
#include <QCommandLineParser>

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("tallyNorth"));
    // No display name: the window system would append it to the company's exact window title.
    QApplication::setApplicationVersion(ProgramVersion());

    QCommandLineParser parser;
    const QCommandLineOption baseOption(QStringLiteral("base"),
                                        QStringLiteral("Base folder holding DB and backups"),
                                        QStringLiteral("DIR"));
    const QCommandLineOption langOption(QStringLiteral("lang"), QStringLiteral("hu or en"),
                                        QStringLiteral("LANG"));
    parser.addOption(baseOption);
    parser.addOption(langOption);
    parser.addPositionalArgument(QStringLiteral("database"),
                                 QStringLiteral("The company database file to open"));
    parser.addHelpOption();
    parser.process(app);
    InstallLanguage(ChooseLanguage(parser.value(langOption)));
    BaseFolder::set(ResolveBaseFolder(parser.value(baseOption)));
    BaseFolder::ensureExists();
    InstallShellServices();

    if (!StartUp(parser.positionalArguments().value(0)))
        return 1;
    const std::unique_ptr<MainWindow> window = OpenMainWindow();
    return app.exec();
}
