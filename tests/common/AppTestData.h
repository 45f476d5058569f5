// Several query results compared at once: a QStringList comparison names the first that differs.
#pragma once

#include "TestData.h"

// QueryText of each query on the current session, in order.
inline QStringList QueryTexts(const QStringList& queries)
{
    QStringList texts;
    for (const QString& sql : queries)
        texts << QueryText(sql);
    return texts;
}
