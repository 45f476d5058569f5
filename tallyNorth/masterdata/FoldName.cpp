#include "FoldName.h"

namespace {

// Latin letters that are not a base letter with marks, so decomposition leaves them as they are.
QString BaseLetters(QChar c)
{
    switch (c.unicode()) {
    case 0x00DF: // sharp s
    case 0x1E9E: return QStringLiteral("ss");
    case 0x00C6: return QStringLiteral("AE");
    case 0x00E6: return QStringLiteral("ae");
    case 0x0152: return QStringLiteral("OE");
    case 0x0153: return QStringLiteral("oe");
    case 0x00D8: return QStringLiteral("O");
    case 0x00F8: return QStringLiteral("o");
    case 0x0110: // D with stroke
    case 0x00D0: return QStringLiteral("D"); // eth
    case 0x0111:
    case 0x00F0: return QStringLiteral("d");
    case 0x0141: return QStringLiteral("L");
    case 0x0142: return QStringLiteral("l");
    case 0x0126: return QStringLiteral("H");
    case 0x0127: return QStringLiteral("h");
    case 0x0166: return QStringLiteral("T");
    case 0x0167: return QStringLiteral("t");
    case 0x0131: return QStringLiteral("i"); // dotless i
    case 0x00DE: return QStringLiteral("TH");
    case 0x00FE: return QStringLiteral("th");
    default: return QString(c);
    }
}

bool IsMark(QChar c)
{
    const QChar::Category category = c.category();
    return category == QChar::Mark_NonSpacing || category == QChar::Mark_SpacingCombining
        || category == QChar::Mark_Enclosing;
}

} // namespace

QString FoldName(const QString& name)
{
    // Compatibility decomposition splits á into a + accent (ő, ű likewise) and also spells out
    // ligatures and full-width forms; dropping the marks leaves the base letters.
    const QString decomposed = name.normalized(QString::NormalizationForm_KD);
    QString out;
    out.reserve(decomposed.size());
    for (const QChar c : decomposed) {
        if (!IsMark(c))
            out += BaseLetters(c);
    }
    return out.toUpper();
}
