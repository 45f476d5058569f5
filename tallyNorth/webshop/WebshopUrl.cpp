#include "WebshopUrl.h"

QByteArray WebshopUrlEncode(const QString& text)
{
    static const char hex[] = "0123456789ABCDEF";
    const QByteArray bytes = text.toUtf8();
    QByteArray out;
    out.reserve(bytes.size() * 3);
    for (const char c : bytes) {
        const auto u = static_cast<unsigned char>(c);
        const bool keep = (u >= 'a' && u <= 'z') || (u >= 'A' && u <= 'Z') ||
                          (u >= '0' && u <= '9') || u == ',' || u == '.' || u == '-';
        if (keep) {
            out += c;
        } else {
            out += '%';
            out += hex[u >> 4];
            out += hex[u & 15];
        }
    }
    return out;
}

QString WebshopRequestUrl(const QString& base, const char* timestampName, const QString& timestamp,
                          const char* maxName, qint64 maximum)
{
    QString url = base;
    url += base.contains(u'?') ? u'&' : u'?';
    url += QLatin1String(timestampName) + u'=' + QString::fromLatin1(WebshopUrlEncode(timestamp));
    url += u'&' + QLatin1String(maxName) + u'=' + QString::number(maximum);
    return url;
}
