// The GUI entry point.
#include "app/Language.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QLabel>

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("tallyNorth"));
    QApplication::setApplicationDisplayName(QStringLiteral("Vantrell Invoicer"));
    QApplication::setApplicationVersion(QStringLiteral("3.0.4"));

    QCommandLineParser parser;
    const QCommandLineOption langOption(QStringLiteral("lang"), QStringLiteral("hu or en"),
                                        QStringLiteral("LANG"));
    parser.addOption(langOption);
    parser.addHelpOption();
    parser.process(app);
    InstallLanguage(ChooseLanguage(parser.value(langOption)));

    QLabel placeholder(QStringLiteral("Vantrell Invoicer"));
    placeholder.show();
    return app.exec();
}
