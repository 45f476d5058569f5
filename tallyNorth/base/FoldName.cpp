#include "FoldName.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

// Latin letters that are not a base letter with marks, so decomposition leaves them as they
// are: sharp s, ae, oe, o and d with stroke, eth, l/h/t with stroke, dotless i, thorn.
constexpr std::array<std::pair<char16_t, const char*>, 21> kOwnLetters = {{
    {u'\u00DF', "SS"}, {u'\u1E9E', "SS"}, {u'\u00C6', "AE"}, {u'\u00E6', "AE"}, {u'\u0152', "OE"},
    {u'\u0153', "OE"}, {u'\u00D8', "O"},  {u'\u00F8', "O"},  {u'\u0110', "D"},  {u'\u0111', "D"},
    {u'\u00D0', "D"},  {u'\u00F0', "D"},  {u'\u0141', "L"},  {u'\u0142', "L"},  {u'\u0126', "H"},
    {u'\u0127', "H"},  {u'\u0166', "T"},  {u'\u0167', "T"},  {u'\u0131', "I"},  {u'\u00DE', "TH"},
    {u'\u00FE', "TH"},
}};

bool IsMark(QChar c)
{
    const QChar::Category category = c.category();
    return category == QChar::Mark_NonSpacing || category == QChar::Mark_SpacingCombining ||
           category == QChar::Mark_Enclosing;
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
        if (IsMark(c))
            continue;
        const auto own = std::find_if(kOwnLetters.begin(), kOwnLetters.end(),
                                      [c](const auto& letter) { return letter.first == c; });
        if (own != kOwnLetters.end())
            out += QLatin1StringView(own->second);
        else
            out += c;
    }
    return out.toUpper();
}
