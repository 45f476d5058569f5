// One HTTP GET to the webshop, driven synchronously with a local event loop: basic
// authentication, redirects, retries after transport failures, an idle time-out and the progress
// window's cancel. The body is streamed into a file, so a large answer is never held in memory.
#pragma once

#include <QString>

class Progress;
class QFile;

struct HttpAnswer
{
    int status = 0; // the HTTP status, 0 when none was received
    QString error;  // empty on success: a transport failure or a status of 400 or more
    bool canceled = false;

    bool ok() const { return error.isEmpty() && !canceled; }
};

struct HttpRequest
{
    QString url;
    QString userAgent;
    QString login;
    QString password;
    int maxRedirects = 5;
    int retries = 3;
    // Milliseconds without any byte from the server before the request is given up.
    int idleTimeoutMs = 60000;
};

// Writes the body into out (emptied first, and again before each retry). A failed or cancelled
// request leaves out empty.
HttpAnswer WebshopGet(const HttpRequest& request, QFile& out, Progress* progress = nullptr);
