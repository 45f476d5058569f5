// tallynorth-navdouble: the local stand-in for the authority's online invoice interface.
//   tallynorth-navdouble [--port N] [--fault none|timeout|500|schema|duplicate|reject|warn]
//       [--login L] [--password P] [--signing-key K] [--exchange-key K] [--tax-no N]
// Prints the service address to give in the NAV settings. While it runs,
// GET http://127.0.0.1:PORT/control?fault=NAME changes the fault.
#include "NavDouble.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTextStream>

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    const QCommandLineOption port("port", "Port on 127.0.0.1 (0: any free one).", "N", "0");
    const QCommandLineOption fault("fault", "What to do wrong.", "NAME", "none");
    const QCommandLineOption login("login", "Technical user's login.", "L");
    const QCommandLineOption password("password", "Technical user's password.", "P");
    const QCommandLineOption signingKey("signing-key", "Signing key.", "K");
    const QCommandLineOption exchangeKey("exchange-key", "Exchange key (16 characters).", "K");
    const QCommandLineOption taxNo("tax-no", "Seller's taxpayer id (8 digits).", "N");
    const QCommandLineOption schemas("schemas", "Folder of the authority's schemas.", "DIR",
                                     QStringLiteral(TN_NAV_SCHEMA_DIR));
    parser.addOptions({port, fault, login, password, signingKey, exchangeKey, taxNo, schemas});
    parser.process(app);

    NavDoubleUser user;
    if (parser.isSet(login))
        user.login = parser.value(login);
    if (parser.isSet(password))
        user.password = parser.value(password);
    if (parser.isSet(signingKey))
        user.signingKey = parser.value(signingKey);
    if (parser.isSet(exchangeKey))
        user.exchangeKey = parser.value(exchangeKey);
    if (parser.isSet(taxNo))
        user.taxNo = parser.value(taxNo);
    NavDouble server(user, parser.value(schemas));
    NavDouble::Fault f;
    if (!NavDouble::parseFault(parser.value(fault), f)) {
        QTextStream(stderr) << "unknown fault: " << parser.value(fault) << Qt::endl;
        return 2;
    }
    server.setFault(f);
    if (!server.listen(quint16(parser.value(port).toUInt()))) {
        QTextStream(stderr) << "can not listen on 127.0.0.1 or load the schemas" << Qt::endl;
        return 1;
    }
    QTextStream(stdout) << server.url() << Qt::endl;
    return app.exec();
}
