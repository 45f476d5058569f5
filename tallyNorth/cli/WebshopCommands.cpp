#include "WebshopCommands.h"

#include "AppCommands.h"

#include "Columns.h"
#include "base/Interaction.h"
#include "base/Setup.h"
#include "webshop/WebshopExchange.h"

#include <QCoreApplication>

class WebshopCommands
{
    Q_DECLARE_TR_FUNCTIONS(WebshopCommands)
};

namespace {

// Nobody to ask: a missing code stops the run with its message; a login that the server refused
// is told, never asked for.
class CliWebshop : public WebshopInteraction
{
public:
    explicit CliWebshop(CliContext& context) : m_context(context) {}
    std::optional<Login> login(const QString& message, const Login&) override
    {
        PrintMessage(m_context, message);
        return std::nullopt;
    }

private:
    CliContext& m_context;
};

int Finish(CliContext& context, const WebshopExchange& exchange, bool ok)
{
    *context.out << WebshopCommands::tr("stored: %1").arg(exchange.storedCount()) << Qt::endl;
    return ok ? ExitOk : ExitFailure;
}

int Import(CliContext& context, const QStringList& args, WebshopDocument document)
{
    QStringList positional;
    QHash<QString, QString> options;
    QString error;
    if (!ParseVerbArgs(args, {}, &positional, &options, &error))
        return UsageError(context, error);
    if (positional.size() != 1)
        return UsageError(context, WebshopCommands::tr("give the file to import"));
    if (!OpenChosenCompany(context))
        return ExitFailure;
    CliWebshop ask(context);
    WebshopExchange exchange(*context.interaction, ask);
    const bool ok = exchange.importFile(document, positional.first());
    return Finish(context, exchange, ok);
}

int Download(CliContext& context, const QStringList& args, WebshopDocument document)
{
    QStringList positional;
    QHash<QString, QString> options;
    QString error;
    const QString timeout = QStringLiteral("timeout");
    if (!ParseVerbArgs(args, {timeout}, &positional, &options, &error))
        return UsageError(context, error);
    if (!positional.isEmpty())
        return UsageError(context, WebshopCommands::tr("no arguments expected"));
    if (!OpenChosenCompany(context))
        return ExitFailure;
    if (!Setup::current().flag(Col::SETUP_DOWNLOAD_SAVE_PASSWORD)) {
        PrintMessage(context,
                     WebshopCommands::tr("The webshop login is not saved. Set the login name and "
                                         "the password with \"Save password\" in the settings to "
                                         "download from the command line."));
        return ExitFailure;
    }
    CliWebshop ask(context);
    WebshopExchange exchange(*context.interaction, ask);
    if (options.contains(timeout))
        exchange.setIdleTimeout(qMax(1, options.value(timeout).toInt()) * 1000);
    const bool ok = exchange.download(document);
    return Finish(context, exchange, ok);
}

} // namespace

int RunImportOrders(CliContext& context, const QStringList& args)
{
    return Import(context, args, WebshopDocument::Orders);
}

int RunImportPartners(CliContext& context, const QStringList& args)
{
    return Import(context, args, WebshopDocument::Partners);
}

int RunImportProducts(CliContext& context, const QStringList& args)
{
    return Import(context, args, WebshopDocument::Products);
}

int RunDownloadOrders(CliContext& context, const QStringList& args)
{
    return Download(context, args, WebshopDocument::Orders);
}

int RunDownloadPartners(CliContext& context, const QStringList& args)
{
    return Download(context, args, WebshopDocument::Partners);
}

int RunDownloadProducts(CliContext& context, const QStringList& args)
{
    return Download(context, args, WebshopDocument::Products);
}
