// Bytes of aircraft archives, so that a test can tell exactly what stands in the simulator's folder.
#include "podbytes.h"

#include <QtEndian>

namespace {

constexpr int headerSize = 276;
constexpr int textSize = 80;

QByteArray number(qint32 value)
{
    QByteArray bytes(4, '\0');
    qToLittleEndian(value, bytes.data());
    return bytes;
}

QByteArray text(const QByteArray& value)
{
    return value.leftJustified(textSize, '\0', true);
}

} // namespace

QByteArray podArchive(const QVector<QPair<QByteArray, QByteArray>>& entries)
{
    QByteArray data;
    QByteArray directory;
    QByteArray names;
    for (const auto& entry : entries) {
        directory += number(0) + number(entry.second.size()) + number(headerSize + data.size()) + number(0) + number(0);
        data += entry.second;
        names += entry.first + '\0';
    }
    return "POD " + number(0) + text("aircraft") + number(entries.size()) + number(0) + number(0) + number(0) +
           text("author") + text("copyright") + number(headerSize + data.size()) + number(0) + number(0) + data +
           directory + names;
}

QByteArray podAircraft(const QByteArray& make, const QByteArray& svhText)
{
    return podArchive({{"DATA\\PLANE.NFO", "<bgno>\r\n<make> --- maker\r\n\t" + make + "\r\n<endo>\r\n"},
                       {"DATA\\PLANE.SVH", svhText}});
}
