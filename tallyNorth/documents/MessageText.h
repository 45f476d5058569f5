// The system's message texts are QTF: "&" ends a line, "[* ...]" and "[G1 ...]" format. One
// reading serves the message boxes (rich text) and the terminal (plain text). Data put into a
// message is best escaped with QtfEscape(); unescaped file names and line feeds are tolerated.
#pragma once

#include <QString>

// Rich text (HTML) for a message box, in the GUI font.
QString MessageRichText(const QString& message);
// The message for a terminal: one line per paragraph, formatting dropped.
QString MessagePlainText(const QString& message);
