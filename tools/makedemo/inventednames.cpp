// Names for rows that nobody has flown to.

#include "inventednames.h"

#include <QLatin1String>

#include <iterator>

namespace {

const char* const townHeads[] = {"AIGUE",  "ARGEN", "AUBE", "BEAU", "BELLE", "BOIS",  "BRAN",   "CHAMP",
                                 "CHATEL", "CLAIR", "COUR", "FONT", "GRAND", "HAUTE", "LAN",    "LONG",
                                 "MAR",    "MIR",   "MONT", "MOR",  "NEUF",  "NOIR",  "PIERRE", "PLAN",
                                 "PONT",   "ROCHE", "SAL",  "SAVI", "TOUR",  "VAL",   "VERNE",  "VIEUX"};
const char* const townTails[] = {"AC",   "AGNE", "ARD",  "BOIS",  "BOURG", "CHAMP", "COURT",  "DIEU",    "ELLE", "EUIL",
                                 "FORT", "GNAN", "IGNY", "IERES", "LAC",   "LIEU",  "MESNIL", "MONT",    "ON",   "OUX",
                                 "RAC",  "SAC",  "SEC",  "TEL",   "VERT",  "VIERS", "VILLE",  "VILLIERS"};
const char* const rivers[] = {"ARGUE", "BRESLE",  "CISSE", "DOUVE", "ERDRE",
                              "LAINE", "MAULDRE", "ORGE",  "SARCE", "VERE"};

const QLatin1String consonants("BCDFGHJKLMNPQRSTVWXZ");
const QLatin1String vowels("AEIOU");
constexpr int words = 20 * 5 * 20 * 5 * 20;
constexpr int letters = 26;
constexpr int threeLetters = letters * letters * letters;
constexpr int fourLetters = threeLetters * letters;
// Prime to all the counts above: neighbours in number are far apart in the alphabet, and none comes twice.
constexpr std::int64_t stride = 7919;

template <std::size_t count>
QString pick(Dice& dice, const char* const (&list)[count])
{
    return QLatin1String(list[dice.roll(int(count))]);
}

int scattered(int index, int count)
{
    return int((index * stride + 4711) % count);
}

QString spelled(int number, int length)
{
    QString text;
    for (int place = 0; place < length; ++place, number /= letters)
        text.prepend(QLatin1Char(char('A' + number % letters)));
    return text;
}

} // namespace

Dice::Dice(std::uint64_t seed) : state(seed) {}

int Dice::roll(int sides)
{
    return int(fraction() * sides);
}

double Dice::fraction()
{
    // SplitMix64: every seed is good and neighbouring seeds have nothing in common.
    state += 0x9e3779b97f4a7c15ULL;
    std::uint64_t mixed = state;
    mixed = (mixed ^ (mixed >> 30)) * 0xbf58476d1ce4e5b9ULL;
    mixed = (mixed ^ (mixed >> 27)) * 0x94d049bb133111ebULL;
    mixed ^= mixed >> 31;
    return double(mixed >> 11) / 9007199254740992.0; // 2 to the 53rd
}

QString inventedTown(Dice& dice)
{
    QString name = dice.roll(8) == 0 ? QStringLiteral("SAINT ") : QString();
    name += pick(dice, townHeads) + pick(dice, townTails);
    if (dice.roll(4) == 0)
        name += QStringLiteral(" SUR ") + pick(dice, rivers);
    return name;
}

QString inventedFiveLetters(int index)
{
    const int round = index / words;
    int number = scattered(index % words, words);
    QString word;
    for (int place = 0; place < 5; ++place) {
        const QLatin1String& choices = place % 2 == 1 ? vowels : consonants;
        word += choices.at(number % choices.size());
        number /= choices.size();
    }
    return round == 0 ? word : word + QLatin1Char(char('A' + round - 1));
}

QString inventedBeacon(int index)
{
    return index < threeLetters ? spelled(scattered(index, threeLetters), 3)
                                : spelled(scattered(index - threeLetters, fourLetters), 4);
}

QString inventedCode(int number, int digits)
{
    return QString::number(number, 36).toUpper().rightJustified(digits, QLatin1Char('0'));
}
