#include "WebshopCommands.h"

#include "GuiWebshopInteraction.h"

#include "base/ui/CommandHost.h"
#include "base/ui/GuiInteraction.h"
#include "webshop/WebshopExchange.h"

#include <QCoreApplication>
#include <QFileDialog>

namespace {

MainTab TabOf(WebshopDocument document)
{
    switch (document) {
    case WebshopDocument::Partners:
        return MainTab::Partners;
    case WebshopDocument::Products:
        return MainTab::Products;
    case WebshopDocument::Orders:
        break;
    }
    return MainTab::Orders;
}

void Run(CommandHost& host, WebshopDocument document, bool fromFile)
{
    QWidget* parent = host.hostWidget();
    QString path;
    if (fromFile) {
        const char* title =
            document == WebshopDocument::Orders
                ? QT_TRANSLATE_NOOP("WebshopCommands", "Importalando szamlak (*.xml)")
            : document == WebshopDocument::Partners
                ? QT_TRANSLATE_NOOP("WebshopCommands", "Importalando partnerek (*.xml)")
                : QT_TRANSLATE_NOOP("WebshopCommands",
                                    "Importalando termekek/szolgaltatasok (*.xml)");
        const QString caption = QCoreApplication::translate("WebshopCommands", title);
        path = QFileDialog::getOpenFileName(parent, caption, QString(),
                                            caption + QStringLiteral(";;*.xml"));
        if (path.isEmpty())
            return;
    }
    GuiInteraction gui(parent);
    GuiWebshopInteraction ask(gui);
    WebshopExchange exchange(gui, ask);
    if (fromFile)
        (void)exchange.importFile(document, path);
    else
        (void)exchange.download(document);
    // Rows set up in the editors count too, so the lists are read again in any case.
    host.reloadTab(TabOf(document));
    if (document == WebshopDocument::Orders) {
        host.reloadTab(MainTab::Partners);
        host.reloadTab(MainTab::Products);
    }
}

} // namespace

void RegisterWebshopCommands(CommandHost& host)
{
    static constexpr std::tuple<MainCommand, WebshopDocument, bool> kCommands[] = {
        {MainCommand::DownloadOrders, WebshopDocument::Orders, false},
        {MainCommand::DownloadPartners, WebshopDocument::Partners, false},
        {MainCommand::DownloadProducts, WebshopDocument::Products, false},
        {MainCommand::ImportOrders, WebshopDocument::Orders, true},
        {MainCommand::ImportPartners, WebshopDocument::Partners, true},
        {MainCommand::ImportProducts, WebshopDocument::Products, true},
    };
    for (const auto& [command, document, fromFile] : kCommands)
        host.setCommand(command, [&host, document = document, fromFile = fromFile] {
            Run(host, document, fromFile);
        });
}
