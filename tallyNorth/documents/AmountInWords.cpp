#include "AmountInWords.h"

#include <array>

namespace {

using Words = std::array<const char*, 10>;

constexpr Words kUnits = {"",   "egy", "kettő", "három", "négy",
                          "öt", "hat", "hét",   "nyolc", "kilenc"};
constexpr Words kHundreds = {"",       "egyszáz", "kettőszáz", "háromszáz", "négyszáz",
                             "ötszáz", "hatszáz", "hétszáz",   "nyolcszáz", "kilencszáz"};
// Tens standing alone ("húsz") and tens followed by a unit ("huszonöt").
constexpr Words kTens = {"",      "tíz",    "húsz",   "harminc",  "negyven",
                         "ötven", "hatvan", "hetven", "nyolcvan", "kilencven"};
constexpr Words kTensBeforeUnit = {"",      "tizen",  "huszon", "harminc",  "negyven",
                                   "ötven", "hatvan", "hetven", "nyolcvan", "kilencven"};

// 1..999, written together without spaces.
QString GroupWords(unsigned group)
{
    const unsigned units = group % 10;
    const Words& tens = units == 0 ? kTens : kTensBeforeUnit;
    return QString::fromUtf8(kHundreds[group / 100]) + QString::fromUtf8(tens[group / 10 % 10]) +
           QString::fromUtf8(kUnits[units]);
}

} // namespace

QString AmountInWords(qint64 amount)
{
    if (amount == 0)
        return QStringLiteral("nulla");
    QString text;
    if (amount < 0)
        text = QStringLiteral("mínusz");
    // Unsigned, so that the most negative amount has a magnitude too.
    const quint64 magnitude = amount < 0 ? 0 - quint64(amount) : quint64(amount);
    struct Group
    {
        quint64 divisor;
        const char* word;
    };
    static constexpr std::array<Group, 4> groups = {
        {{1'000'000'000, "milliárd"}, {1'000'000, "millió"}, {1'000, "ezer"}, {1, ""}}};
    for (const Group& g : groups) {
        const unsigned value = unsigned(magnitude / g.divisor % 1000);
        if (value == 0)
            continue;
        if (!text.isEmpty())
            text += u' ';
        text += GroupWords(value) + QString::fromUtf8(g.word);
    }
    return text;
}
