#include "inivalues.h"

#include <QByteArrayList>
#include <QMetaType>
#include <QString>
#include <QVector>

#include <algorithm>
#include <iterator>

namespace {

constexpr int nothing = -1; ///< for an escape that the settings' reader passes over

/// What stands for a letter behind a backslash.
int escapedLetter(char letter)
{
    switch (letter) {
    case 'a':
    case 'b':
    case 'f':
    case 'n':
    case 'r':
    case 't':
    case 'v':
        return ' '; // some control character: none of them stands in what is looked for
    case '"':
    case '?':
    case '\'':
    case '\\':
        return letter;
    default:
        return nothing;
    }
}

int digitValue(char letter, int base)
{
    const int digit = QByteArray("0123456789abcdef").indexOf(QByteArray(1, letter).toLower());
    return digit < base ? digit : -1;
}

/// The character of a number behind a backslash, as many digits as there are. `at` comes to stand behind the last one.
char escapedNumber(const QByteArray& ini, int& at, int base)
{
    unsigned value = 0;
    for (; at < ini.size() && digitValue(ini.at(at), base) >= 0; ++at) {
        value = value * static_cast<unsigned>(base) + static_cast<unsigned>(digitValue(ini.at(at), base));
    }
    value &= 0xFFFFU; // of a number that is too large the lowest digits count
    return value < 0x80U ? static_cast<char>(value) : ' ';
}

/// The character behind a backslash at `at`, which comes to stand behind it.
int unescaped(const QByteArray& ini, int& at)
{
    if (at >= ini.size()) {
        return nothing;
    }
    if (ini.at(at) == 'x') {
        return escapedNumber(ini, ++at, 16);
    }
    if (digitValue(ini.at(at), 8) >= 0) {
        return escapedNumber(ini, at, 8);
    }
    const char letter = ini.at(at++);
    if (letter == '\r' && at < ini.size() && ini.at(at) == '\n') {
        ++at; // a line that goes on in the next one
    }
    return escapedLetter(letter);
}

/// Whether a line opens a section of another name beyond any doubt.
bool opensAnother(const QByteArray& line, const QByteArray& section)
{
    const QByteArray header = line.trimmed();
    const auto isPlain = [](char letter) {
        return (letter >= 'A' && letter <= 'Z') || (letter >= 'a' && letter <= 'z');
    };
    return header.size() > 2 && header.startsWith('[') && header.endsWith(']') &&
           std::all_of(header.begin() + 1, header.end() - 1, isPlain) &&
           header.mid(1, header.size() - 2).toLower() != section.toLower();
}

/// The file without the sections that are another's. Where a value can go on over lines, all of it.
QByteArray linesOfSection(const QByteArray& ini, const QByteArray& section)
{
    if (ini.contains('"') || ini.contains("\\\n") || ini.contains("\\\r")) {
        return ini;
    }
    QByteArray kept;
    bool another = false;
    const QByteArrayList lines = QByteArray(ini).replace('\r', '\n').split('\n');
    for (const QByteArray& line : lines) {
        if (line.trimmed().startsWith('[')) {
            another = opensAnother(line, section);
        }
        if (!another) {
            kept += line + '\n';
        }
    }
    return kept;
}

/// A file's characters as they are read, whatever value they belong to: without quotes and escapes.
struct PlainText
{
    QByteArray characters;
    QVector<int> places; ///< where each of them begins in the file
};

PlainText plainText(const QByteArray& ini)
{
    PlainText plain;
    plain.characters.reserve(ini.size());
    plain.places.reserve(ini.size());
    for (int at = 0; at < ini.size();) {
        const int place = at;
        const char letter = ini.at(at++);
        const int character = letter == '\\' ? unescaped(ini, at) : letter;
        if (character != nothing && letter != '"') {
            plain.characters += static_cast<char>(character);
            plain.places += place;
        }
    }
    return plain;
}

const char packedValue[] = "@Variant(";
const char packedTime[] = "@DateTime(";

/// Whether what stands behind "@Variant(" is of a type that takes the same few bytes whatever they hold. Only such a
/// value can be unpacked without harm: all others tell of themselves how much memory they want.
bool isOfFixedSize(const QByteArray& packed)
{
    constexpr int typeSize = 4;
    static const char fixedTypes[] = {
        QMetaType::QDate, QMetaType::QTime,  QMetaType::QRectF,  QMetaType::QSizeF,
        QMetaType::QLine, QMetaType::QLineF, QMetaType::QPointF,
    };
    return packed.size() >= typeSize && packed.startsWith(QByteArray(typeSize - 1, '\0')) &&
           std::find(std::begin(fixedTypes), std::end(fixedTypes), packed.at(typeSize - 1)) != std::end(fixedTypes);
}

/// Whether a packed value that can do harm begins at this character.
bool isHarmful(const QByteArray& characters, int at)
{
    constexpr int longestStart = 16; // the word and the type
    const QByteArray start = characters.mid(at, longestStart);
    return start.startsWith(packedTime) ||
           (start.startsWith(packedValue) && !isOfFixedSize(start.mid(int(sizeof packedValue) - 1)));
}

} // namespace

bool holdsPackedValues(const QByteArray& ini, const QByteArray& section)
{
    const QByteArray plain = plainText(linesOfSection(ini, section)).characters;
    return plain.contains(packedValue) || plain.contains(packedTime);
}

QByteArray withHarmlessValues(const QByteArray& ini)
{
    const PlainText plain = plainText(ini);
    QByteArray harmless;
    int copied = 0;
    for (int at = plain.characters.indexOf('@'); at >= 0; at = plain.characters.indexOf('@', at + 1)) {
        if (isHarmful(plain.characters, at)) {
            harmless += ini.mid(copied, plain.places.at(at) - copied) + '@';
            copied = plain.places.at(at);
        }
    }
    return harmless + ini.mid(copied);
}

bool isHarmlessRest(const QString& text)
{
    return text.startsWith(QLatin1String(packedValue)) || text.startsWith(QLatin1String(packedTime));
}
