#include "MessageText.h"

#include "QtfReader.h"
#include "QtfTextDocument.h"

#include <QTextDocument>

namespace {

// Message boxes put "[g " (the GUI font) before the text; older texts start with their own
// "[G1 " block, which means the same and becomes a plain block.
QString MessageQtf(const QString& message)
{
    QString body = message;
    if (body.startsWith(QLatin1String("[G1 ")))
        body.replace(0, 4, QStringLiteral("[ "));
    return QStringLiteral("[g ") + body;
}

} // namespace

QString MessageRichText(const QString& message)
{
    QtfLayout layout;
    layout.units = QtfUnits::Screen;
    layout.width = 0;
    return MakeTextDocument(ReadQtfMessage(MessageQtf(message)), layout)->toHtml();
}

QString MessagePlainText(const QString& message)
{
    return PlainText(ReadQtfMessage(message).blocks);
}
