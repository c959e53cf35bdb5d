#include "cpodmgr.h"

#include <QtEndian>

#include <algorithm>
#include <cstring>
#include <utility>

namespace {

constexpr int headerSize = 276;
constexpr int numberSize = 4;
constexpr int textSize = 80;
constexpr int recordSize = 20;
constexpr int recordsAtOnce = 512;

// The name table has no size of its own: it is read in blocks of about what its names need.
constexpr int usualNameSize = 48;
constexpr int smallestBlock = 1 << 12;
constexpr int largestBlock = 1 << 16;

// Far above what any archive holds: a damaged one must not fill the memory with what its numbers claim.
constexpr int largestDirectory = 1 << 22; // entries
constexpr int longestName = 1 << 20;      // characters
constexpr qint64 longestText = 1 << 26;   // bytes

/// A number of the file, little endian; 0 where the bytes are missing.
qint32 number(const QByteArray& bytes, int offset)
{
    return offset + numberSize <= bytes.size() ? qFromLittleEndian<qint32>(bytes.constData() + offset) : 0;
}

/// A text of the file in its full length, zero bytes included.
QString utf8Text(const QByteArray& bytes)
{
    return QString::fromUtf8(bytes.constData(), std::max(bytes.size(), 0));
}

QString text(const QByteArray& bytes, int offset, int size)
{
    return utf8Text(bytes.mid(offset, size));
}

bool isPlainAscii(const QByteArray& bytes)
{
    uint allBits = 0;
    for (const char byte : bytes) {
        allBits |= static_cast<uchar>(byte);
    }
    return allBits < 0x80;
}

/// Each byte of a name is a character by itself, so only plain ASCII comes through.
QString foreignNameText(const char* bytes, int size)
{
    QString result = QString::fromLatin1(bytes, size);
    const auto isForeign = [](QChar character) { return character.unicode() >= 0x80; };
    std::replace_if(result.begin(), result.end(), isForeign, QChar(QChar::ReplacementCharacter));
    return result;
}

/// The last entry that fits, or null: of several, only the last one's text would stay.
template <typename Fits>
const PodEntry* lastEntry(const QList<PodEntry*>& entries, Fits fits)
{
    const auto found = std::find_if(entries.crbegin(), entries.crend(), fits);
    return found == entries.crend() ? nullptr : *found;
}

} // namespace

CPodMgr::CPodMgr(const QString& fileName) : QFile(fileName)
{
    readDirectory(fileName);
}

bool CPodMgr::readDirectory(const QString&)
{
    if (!open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        return false;
    }
    readHeader();
    readRecords();
    readNames();
    return true;
}

void CPodMgr::readHeader()
{
    const QByteArray header = read(headerSize);
    magic = text(header, 0, numberSize); // any magic passes
    headerWord1 = number(header, 4);
    headerText1 = text(header, 8, textSize);
    entryCount = number(header, 88);
    headerWord2 = number(header, 92);
    headerWord3 = number(header, 96);
    headerWord4 = number(header, 100);
    headerText2 = text(header, 104, textSize);
    headerText3 = text(header, 184, textSize);
    directoryOffset = number(header, 264);
    headerWord5 = number(header, 268);
    headerWord6 = number(header, 272);
}

void CPodMgr::readRecords()
{
    // Records that run past the end of the file leave no room for a name, and without names nothing can be found.
    const qint64 room = directoryOffset < 0 ? 0 : size() - directoryOffset;
    if (entryCount <= 0 || entryCount > std::min<qint64>(room / recordSize, largestDirectory) ||
        !seek(directoryOffset)) {
        return;
    }
    entries.reserve(entryCount);
    while (entries.size() < entryCount) {
        const qint64 wanted = qint64{recordSize} * std::min(entryCount - entries.size(), recordsAtOnce);
        const QByteArray records = read(wanted);
        if (records.size() < wanted) {
            return;
        }
        for (int offset = 0; offset < records.size(); offset += recordSize) {
            storage.push_back({QString(), number(records, offset), number(records, offset + 4),
                               number(records, offset + 8), number(records, offset + 12),
                               number(records, offset + 16)});
            entries += &storage.back();
        }
    }
}

void CPodMgr::readNames()
{
    int index = 0;
    while (index < entries.size()) {
        const qint64 wanted = static_cast<qint64>(entries.size() - index) * usualNameSize;
        const QByteArray block = read(std::clamp<qint64>(wanted, smallestBlock, largestBlock));
        if (block.isEmpty()) {
            return; // the end of the file ends every name
        }
        index = takeNames(block, index);
    }
}

/// Hands a block of the name table out, from entry `index` on. Returns the entry that the next block goes on with.
int CPodMgr::takeNames(const QByteArray& block, int index)
{
    const bool plain = isPlainAscii(block);
    const char* at = block.constData();
    const char* const end = at + block.size();
    while (at < end && index < entries.size()) {
        const void* const zero = std::memchr(at, 0, static_cast<size_t>(end - at));
        const char* const nameEnd = zero == nullptr ? end : static_cast<const char*>(zero);
        const int size = static_cast<int>(nameEnd - at);
        QString piece = plain ? QString::fromLatin1(at, size) : foreignNameText(at, size);
        QString& name = entries.at(index)->name;
        if (name.isEmpty()) {
            name = std::move(piece);
        } else if (name.size() < longestName) {
            name += piece; // the rest of a name that began in the block before
        }
        index += zero == nullptr ? 0 : 1;
        at = zero == nullptr ? end : nameEnd + 1;
    }
    return index;
}

void CPodMgr::readContent(const PodEntry& entry)
{
    QByteArray bytes;
    if (entry.size > 0 && entry.offset >= 0 && seek(entry.offset)) {
        bytes = read(std::clamp<qint64>(size() - entry.offset, 0, std::min<qint64>(entry.size, longestText)));
    }
    content = utf8Text(bytes);
}

bool CPodMgr::findBySuffix(const QString& suffix)
{
    const PodEntry* const entry =
        lastEntry(entries, [&suffix](const PodEntry* candidate) { return candidate->name.endsWith(suffix); });
    if (entry == nullptr) {
        return false;
    }
    readContent(*entry);
    return true;
}

void CPodMgr::findExact(const QString& name)
{
    const PodEntry* const entry =
        lastEntry(entries, [&name](const PodEntry* candidate) { return candidate->name == name; });
    if (entry != nullptr) {
        readContent(*entry);
    }
}

QString CPodMgr::lineAfter(const QString& tag)
{
    content.remove(QLatin1Char('\r'));
    // The first line that holds the tag is the one of the tag's first place, as no tag goes over two lines.
    const int place = tag.contains(QLatin1Char('\n')) ? -1 : content.indexOf(tag);
    const int lineFeed = place < 0 ? -1 : content.indexOf(QLatin1Char('\n'), place);
    if (lineFeed < 0) {
        return {};
    }
    const int start = lineFeed + 1;
    const int end = content.indexOf(QLatin1Char('\n'), start);
    return content.mid(start, end < 0 ? -1 : end - start);
}
