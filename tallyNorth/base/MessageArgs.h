// The system's message texts carry printf-style "%s" and "%d" slots; translations keep them.
#pragma once

#include <QString>
#include <QStringList>

// Replaces the slots "%s" and "%d" of text, in order, by args; "%%" stays a percent sign.
QString FillArgs(const QString& text, const QStringList& args);
