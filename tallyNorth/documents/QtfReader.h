// Reading QTF, the rich-text format of invoice templates, reports, help topics and messages.
#pragma once

#include "QtfDocument.h"

#include <QColor>
#include <QString>

// The structure of a QTF text. Unknown codes are skipped; on malformed input reading stops,
// keeps what it has and adds "ERROR: reason: next source characters" to the paragraph being
// built, as the original format's reader did.
Qtf::Document ReadQtf(const QString& qtf);
// A message text read leniently: the program's messages often carry file names, command-line
// options and line feeds unescaped, so a line feed ends a line, "_" and "\" are themselves, and
// "--", "::", "||" or a "]" that closes nothing are text instead of errors.
Qtf::Document ReadQtfMessage(const QString& message);

// The plain text of a QTF text: paragraphs joined by line feeds, table cells row by row.
// With tabs, the cells of a row are separated by TAB when none of them holds a line break.
QString QtfToPlainText(const QString& qtf, bool tabs = false);
QString PlainText(const QList<Qtf::Block>& blocks, bool tabs = false);

// Data made safe for inserting into QTF: every ASCII punctuation character is escaped and a
// line feed becomes a paragraph end.
QString QtfEscape(const QString& text);

// An image as a QTF object ("@@PNG:cx&cy(base64)") at percent of its natural size: its pixels at
// its own resolution, or at 96 per inch when it has none. Empty for data that is no image.
QString QtfImageObject(const QByteArray& imageData, double percent = 100);

// A colour code character of QTF ("@3" = dark red).
QColor QtfColor(QChar code);

// Help topic files start with 'topic "Title";' before their QTF.
QString QtfTopicBody(const QString& topicFile);
