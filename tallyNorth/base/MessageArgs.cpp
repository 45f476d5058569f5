#include "MessageArgs.h"

QString FillArgs(const QString& text, const QStringList& args)
{
    QString out;
    out.reserve(text.size() + 32);
    qsizetype next = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c == u'%' && i + 1 < text.size()) {
            const QChar k = text.at(i + 1);
            if (k == u'%') {
                out += u'%';
                ++i;
                continue;
            }
            if (k == u's' || k == u'd') {
                if (next < args.size())
                    out += args.at(next++);
                ++i;
                continue;
            }
        }
        out += c;
    }
    return out;
}
