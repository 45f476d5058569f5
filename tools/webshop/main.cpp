// tallynorth-webshop: the local webshop. Prints its address and serves until stopped.
#include "LocalWebshop.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTextStream>

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("tallynorth-webshop"));
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("A webshop on 127.0.0.1 serving order.php, partner.php and product.php."));
    parser.addHelpOption();
    const QCommandLineOption port({"p", "port"}, "Port to listen on (0: any free one).", "N",
                                  "8080");
    const QCommandLineOption folder(
        "folder", "Folder with orders.xml, partners.xml and products.xml.", "DIR");
    const QCommandLineOption generate("generate", "Serve N generated orders (5 items each).", "N",
                                      "100");
    const QCommandLineOption login("login", "Login name asked with basic authentication.", "NAME");
    const QCommandLineOption password("password", "Password of the login.", "TEXT");
    const QCommandLineOption fail("fail", "Misbehave: 401, 500, garbage, slow, cut or huge.",
                                  "MODE", "none");
    parser.addOptions({port, folder, generate, login, password, fail});
    parser.process(app);

    QTextStream out(stdout);
    QTextStream err(stderr);
    LocalWebshop::Options options;
    options.folder = parser.value(folder);
    options.generated = parser.value(generate).toLongLong();
    options.login = parser.value(login);
    options.password = parser.value(password);
    const std::optional<LocalWebshop::Fault> fault = LocalWebshop::parseFault(parser.value(fail));
    if (!fault) {
        err << "tallynorth-webshop: unknown --fail mode " << parser.value(fail) << Qt::endl;
        return 2;
    }
    options.fault = *fault;
    LocalWebshop shop;
    QString error;
    if (!shop.start(options, quint16(parser.value(port).toUInt()), error)) {
        err << "tallynorth-webshop: " << error << Qt::endl;
        return 1;
    }
    out << "listening on http://127.0.0.1:" << shop.port() << "/" << Qt::endl;
    return app.exec();
}
