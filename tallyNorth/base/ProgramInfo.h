// The program's name and version as the user sees them.
#pragma once

#include <QString>

inline QString ProgramName()
{
    return QStringLiteral("Vantrell Invoicer");
}

inline QString ProgramVersion()
{
    return QStringLiteral("3.0.4");
}
