// The layout of the simulator's archives: little endian numbers of 32 bits, offsets from the start of the file.

#include "podwriter.h"

#include <QDataStream>
#include <QFile>
#include <QIODevice>

namespace {

constexpr int headerSize = 276;
constexpr int textSize = 80;

QByteArray padded(const QByteArray& text)
{
    return text.leftJustified(textSize, '\0', true);
}

void writeText(QDataStream& out, const QByteArray& text)
{
    out.writeRawData(text.constData(), text.size());
}

void writeHeader(QDataStream& out, qint32 entryCount, qint32 directoryOffset)
{
    constexpr qint32 unused = 0;
    out.writeRawData("AZPD", 4);
    out << unused;
    writeText(out, padded("AeoZephan aircraft archive"));
    out << entryCount << unused << unused << unused;
    writeText(out, padded("AeoZephan"));
    writeText(out, padded("demonstration"));
    out << directoryOffset << unused << unused;
}

void writeDirectory(QDataStream& out, const QVector<PodContent>& entries)
{
    constexpr qint32 unused = 0;
    qint32 nameOffset = 0;
    qint32 dataOffset = headerSize;
    for (const PodContent& entry : entries) {
        out << nameOffset << qint32(entry.data.size()) << dataOffset << unused << unused;
        nameOffset += entry.name.size() + 1;
        dataOffset += entry.data.size();
    }
    for (const PodContent& entry : entries) {
        writeText(out, entry.name);
        out << quint8(0);
    }
}

} // namespace

QByteArray podBytes(const QVector<PodContent>& entries)
{
    qint32 directoryOffset = headerSize;
    for (const PodContent& entry : entries)
        directoryOffset += entry.data.size();

    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    writeHeader(out, entries.size(), directoryOffset);
    for (const PodContent& entry : entries)
        writeText(out, entry.data);
    writeDirectory(out, entries);
    return bytes;
}

bool writePod(const QString& path, const QVector<PodContent>& entries)
{
    const QByteArray bytes = podBytes(entries);
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
}
