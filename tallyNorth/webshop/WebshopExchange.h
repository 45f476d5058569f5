// The webshop commands: download orders, partners or products, or import them from a file, with
// every message the user sees on the way. The windows and the command line both run these.
#pragma once

#include "WebshopInteraction.h"

#include "base/Result.h"

#include <QCoreApplication>
#include <QString>

class Interaction;
class QFile;

enum class WebshopDocument { Orders, Partners, Products };

class WebshopExchange
{
    Q_DECLARE_TR_FUNCTIONS(WebshopExchange)

public:
    WebshopExchange(Interaction& interaction, WebshopInteraction& ask);

    // The request URL of the document from the settings: base URL, stored timestamp, maximum.
    static QString requestUrl(WebshopDocument document);
    // "Vantrell Webshop Module/" and the version the last imported document declared.
    static QString userAgent();

    // Milliseconds the server may stay silent before a download is given up.
    void setIdleTimeout(int ms) { m_idleTimeoutMs = ms; }

    // The menu commands. False when nothing was stored because of a failure or a cancel; the
    // final message has been shown either way.
    bool download(WebshopDocument document);
    bool importFile(WebshopDocument document, const QString& path);

    // Orders, partners or products stored by the last command.
    int storedCount() const { return m_stored; }

    // The authentication dialog: filled from the settings, its answer written back to them (the
    // password only when "Save password" is set). False when cancelled.
    bool askLogin(WebshopDocument document, const QString& message, QString& login,
                  QString& password);

private:
    // The HTTP exchange with its authentication loop; the body in file. False (file empty) when
    // the download failed or was cancelled; the reason has been shown.
    bool fetch(WebshopDocument document, QFile& file);
    bool importDevice(WebshopDocument document, QFile& file, bool downloaded);

    Interaction& m_interaction;
    WebshopInteraction& m_ask;
    int m_idleTimeoutMs = 60000;
    int m_stored = 0;
};
