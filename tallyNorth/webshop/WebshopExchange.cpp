#include "WebshopExchange.h"

#include "OrderImporter.h"
#include "RecordImporter.h"
#include "WebshopClient.h"
#include "WebshopUrl.h"

#include "Columns.h"
#include "base/Interaction.h"
#include "base/MessageArgs.h"
#include "base/Setup.h"
#include "documents/QtfReader.h"

#include <QFile>
#include <QTemporaryFile>

namespace {

struct DocumentSettings
{
    const char* url;
    const char* timestamp;
    const char* maximum;
    const char* timestampParameter;
    const char* maximumParameter;
};

DocumentSettings SettingsOf(WebshopDocument document)
{
    switch (document) {
    case WebshopDocument::Partners:
        return {Col::SETUP_DOWNLOAD_PARTNER_URL, Col::SETUP_DOWNLOAD_LAST_PARTNER_TIMESTAMP,
                Col::SETUP_DOWNLOAD_MAX_PARTNERS, "last_partner_timestamp", "max_partners"};
    case WebshopDocument::Products:
        return {Col::SETUP_DOWNLOAD_PRODUCT_URL, Col::SETUP_DOWNLOAD_LAST_PRODUCT_TIMESTAMP,
                Col::SETUP_DOWNLOAD_MAX_PRODUCTS, "last_product_timestamp", "max_products"};
    case WebshopDocument::Orders:
        break;
    }
    return {Col::SETUP_DOWNLOAD_INVOICE_URL, Col::SETUP_DOWNLOAD_LAST_ORDERHEAD_TIMESTAMP,
            Col::SETUP_DOWNLOAD_MAX_ORDERS, "last_orderhead_timestamp", "max_orders"};
}

QString Text(const char* source)
{
    return QCoreApplication::translate("WebshopExchange", source);
}

// "Orders not downloaded" and its partner and product forms.
QString NotDownloaded(WebshopDocument document)
{
    switch (document) {
    case WebshopDocument::Partners:
        return Text(QT_TRANSLATE_NOOP("WebshopExchange", "Partners not downloaded"));
    case WebshopDocument::Products:
        return Text(QT_TRANSLATE_NOOP("WebshopExchange", "Products not downloaded"));
    case WebshopDocument::Orders:
        break;
    }
    return Text(QT_TRANSLATE_NOOP("WebshopExchange", "Orders not downloaded"));
}

QString Creating(WebshopDocument document)
{
    switch (document) {
    case WebshopDocument::Partners:
        return Text(QT_TRANSLATE_NOOP("WebshopExchange", "Creating partners in database..."));
    case WebshopDocument::Products:
        return Text(QT_TRANSLATE_NOOP("WebshopExchange", "Creating products in database..."));
    case WebshopDocument::Orders:
        break;
    }
    return Text(QT_TRANSLATE_NOOP("WebshopExchange", "Creating orders in database..."));
}

QString StoredRecords(WebshopDocument document, int count)
{
    return FillArgs(document == WebshopDocument::Partners
                        ? Text(QT_TRANSLATE_NOOP("WebshopExchange", "%d partners saved."))
                        : Text(QT_TRANSLATE_NOOP("WebshopExchange", "%d products saved.")),
                    {QString::number(count)});
}

// Only blanks, or nothing at all.
bool HoldsNothing(QFile& file)
{
    file.seek(0);
    char c = 0;
    while (file.getChar(&c)) {
        if (!QChar::isSpace(uchar(c))) {
            file.seek(0);
            return false;
        }
    }
    file.seek(0);
    return true;
}

} // namespace

WebshopExchange::WebshopExchange(Interaction& interaction, WebshopInteraction& ask)
    : m_interaction(interaction), m_ask(ask)
{
}

QString WebshopExchange::requestUrl(WebshopDocument document)
{
    const DocumentSettings s = SettingsOf(document);
    const Setup& setup = Setup::current();
    return WebshopRequestUrl(setup.text(s.url), s.timestampParameter, setup.text(s.timestamp),
                             s.maximumParameter, setup.integer(s.maximum));
}

QString WebshopExchange::userAgent()
{
    return QStringLiteral("Vantrell Webshop Module/") + OrderImporter::documentVersion();
}

bool WebshopExchange::askLogin(WebshopDocument document, const QString& message, QString& login,
                               QString& password)
{
    const DocumentSettings s = SettingsOf(document);
    const Setup& setup = Setup::current();
    WebshopInteraction::Login proposal;
    proposal.url = setup.text(s.url);
    proposal.login = setup.text(Col::SETUP_DOWNLOAD_LOGIN);
    proposal.savePassword = setup.flag(Col::SETUP_DOWNLOAD_SAVE_PASSWORD);
    if (proposal.savePassword)
        proposal.password = setup.text(Col::SETUP_DOWNLOAD_PASSWORD);
    const std::optional<WebshopInteraction::Login> answer = m_ask.login(message, proposal);
    if (!answer)
        return false;
    // An unsaved password is used for this run only and never reaches the file.
    const Result saved =
        Setup::write({{QLatin1String(s.url), answer->url},
                      {QLatin1String(Col::SETUP_DOWNLOAD_LOGIN), answer->login},
                      {QLatin1String(Col::SETUP_DOWNLOAD_SAVE_PASSWORD),
                       answer->savePassword ? QStringLiteral("1") : QStringLiteral("0")},
                      {QLatin1String(Col::SETUP_DOWNLOAD_PASSWORD),
                       answer->savePassword ? answer->password : QString()}});
    if (!saved)
        m_interaction.error(saved.message());
    login = answer->login;
    password = answer->password;
    return true;
}

bool WebshopExchange::fetch(WebshopDocument document, QFile& file)
{
    const Setup& setup = Setup::current();
    QString login, password;
    if (setup.flag(Col::SETUP_DOWNLOAD_SAVE_PASSWORD)) {
        login = setup.text(Col::SETUP_DOWNLOAD_LOGIN);
        password = setup.text(Col::SETUP_DOWNLOAD_PASSWORD);
    } else {
        const char* prompt =
            document == WebshopDocument::Orders
                ? QT_TRANSLATE_NOOP("WebshopExchange",
                                    "Authenticate yourself to download orders from server.")
            : document == WebshopDocument::Partners
                ? QT_TRANSLATE_NOOP("WebshopExchange",
                                    "Authenticate yourself to download partners from server.")
                : QT_TRANSLATE_NOOP("WebshopExchange",
                                    "Authenticate yourself to download products from server.");
        if (!askLogin(document, Text(prompt), login, password))
            return false;
    }
    const std::unique_ptr<Progress> progress = m_interaction.progress(
        Text(QT_TRANSLATE_NOOP("WebshopExchange", "Downloading from server...")));
    for (;;) {
        HttpRequest request;
        request.url = requestUrl(document);
        request.userAgent = userAgent();
        request.login = login;
        request.password = password;
        request.idleTimeoutMs = m_idleTimeoutMs;
        const HttpAnswer answer = WebshopGet(request, file, progress.get());
        if (answer.ok())
            return true;
        if (answer.canceled)
            return false;
        if (answer.status == 401) {
            if (askLogin(document,
                         Text(QT_TRANSLATE_NOOP("WebshopExchange",
                                                "Wrong login name or password. Try again.")),
                         login, password))
                continue;
            return false;
        }
        m_interaction.error(FillArgs(
            Text(QT_TRANSLATE_NOOP("WebshopExchange", "Communication error with web "
                                                      "server.&Code: %d&Error message: %s")),
            {QString::number(answer.status), QtfEscape(answer.error)}));
        return false;
    }
}

bool WebshopExchange::download(WebshopDocument document)
{
    m_stored = 0;
    QTemporaryFile file;
    if (!file.open()) {
        m_interaction.error(file.errorString());
        return false;
    }
    if (!fetch(document, file) || HoldsNothing(file)) {
        m_interaction.exclamation(NotDownloaded(document));
        return false;
    }
    return importDevice(document, file, true);
}

bool WebshopExchange::importFile(WebshopDocument document, const QString& path)
{
    m_stored = 0;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        m_interaction.error(file.errorString());
        return false;
    }
    if (HoldsNothing(file)) {
        m_interaction.exclamation(
            document == WebshopDocument::Orders
                ? Text(QT_TRANSLATE_NOOP("WebshopExchange",
                                         "A fajlban nincsenek importalhato szamlak."))
                : NotDownloaded(document));
        return false;
    }
    return importDevice(document, file, false);
}

bool WebshopExchange::importDevice(WebshopDocument document, QFile& file, bool downloaded)
{
    const std::unique_ptr<Progress> progress = m_interaction.progress(Creating(document));
    file.seek(0);
    if (document == WebshopDocument::Orders) {
        OrderImporter importer(m_interaction, m_ask);
        const bool ok = importer.importDocument(file, progress.get());
        m_stored = int(importer.createdOrders().size());
        if (!ok) {
            m_interaction.exclamation(
                downloaded ? NotDownloaded(document)
                           : Text(QT_TRANSLATE_NOOP("WebshopExchange",
                                                    "A szamlak importalasa nem sikerult.")));
            return false;
        }
        const QString n = QString::number(m_stored);
        if (!downloaded) {
            m_interaction.info(
                m_stored == 0
                    ? Text(QT_TRANSLATE_NOOP("WebshopExchange", "Szamlak nem lettek importalva."))
                    : FillArgs(Text(QT_TRANSLATE_NOOP("WebshopExchange",
                                                      "%d db szamla importalasa sikerult.")),
                               {n}));
        } else if (m_stored == 0) {
            m_interaction.info(
                Text(QT_TRANSLATE_NOOP("WebshopExchange", "No new orders to download.")));
        } else if (m_stored == Setup::current().integer(Col::SETUP_DOWNLOAD_MAX_ORDERS)) {
            m_interaction.info(FillArgs(
                Text(QT_TRANSLATE_NOOP("WebshopExchange",
                                       "%d orders downloaded. There can be downloadable orders on "
                                       "the server yet.")),
                {n}));
        } else {
            m_interaction.info(
                FillArgs(Text(QT_TRANSLATE_NOOP("WebshopExchange", "%d orders downloaded.")), {n}));
        }
        return true;
    }
    RecordImporter importer(document == WebshopDocument::Partners ? RecordImporter::Kind::Partners
                                                                  : RecordImporter::Kind::Products,
                            m_interaction, m_ask);
    const bool ok = importer.importDocument(file, progress.get());
    m_stored = int(importer.stored().size());
    if (!ok)
        return false;
    m_interaction.info(StoredRecords(document, m_stored));
    return true;
}
