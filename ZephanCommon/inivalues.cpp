#include "inivalues.h"

#include <QByteArrayList>

#include <algorithm>

namespace {

/// What stands for a letter behind a backslash; 0 where the settings' reader passes over it.
char escapedLetter(char letter)
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
        return 0;
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

/// The character behind a backslash at `at`, which comes to stand behind it; 0 for none.
char unescaped(const QByteArray& ini, int& at)
{
    if (at >= ini.size()) {
        return 0;
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

} // namespace

bool holdsPackedValues(const QByteArray& ini, const QByteArray& section)
{
    const QByteArray lines = linesOfSection(ini, section);
    QByteArray plain;
    plain.reserve(lines.size());
    for (int at = 0; at < lines.size();) {
        const char letter = lines.at(at++);
        const char character = letter == '\\' ? unescaped(lines, at) : letter;
        if (character != 0 && letter != '"') {
            plain += character;
        }
    }
    return plain.contains("@Variant(") || plain.contains("@DateTime(");
}
