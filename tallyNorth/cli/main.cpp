// The command-line front end: works on a company database without a window.
#include "app/Language.h"

#include <QCoreApplication>
#include <QTextStream>

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("tallyNorth"));
    QCoreApplication::setApplicationVersion(QStringLiteral("3.0.4"));
    QTextStream(stderr) << "usage: tallynorth-cli [--base DIR] [--db FILE] [--lang hu|en] COMMAND [ARGS]\n";
    return 2;
}
