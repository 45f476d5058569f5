#include "FoldName.h"

QString FoldName(const QString& name)
{
    const QString decomposed = name.normalized(QString::NormalizationForm_KD);
    QString out;
    out.reserve(decomposed.size());
    for (const QChar c : decomposed) {
        if (c.category() == QChar::Mark_NonSpacing || c.category() == QChar::Mark_SpacingCombining
            || c.category() == QChar::Mark_Enclosing)
            continue;
        out += c;
    }
    return out.toUpper();
}
