#include "bitmapfile.h"

#include <QDataStream>
#include <QIODevice>

namespace {

constexpr quint32 fileHeaderSize = 14;
constexpr quint32 infoHeaderSize = 108; // BITMAPV4HEADER
constexpr quint32 bitFieldCompression = 3;
constexpr quint32 standardColourSpace = 0x73524742; // "sRGB"
constexpr int endpointAndGammaWords = 12;           // not looked at in the standard colour space

void writeHeaders(QDataStream& out, const QImage& image)
{
    const quint32 pixels = static_cast<quint32>(image.width()) * static_cast<quint32>(image.height()) * 4;
    const quint32 offset = fileHeaderSize + infoHeaderSize;
    out.writeRawData("BM", 2);
    out << offset + pixels << quint32(0) << offset;
    out << infoHeaderSize << qint32(image.width()) << qint32(image.height());
    out << quint16(1) << quint16(32) << bitFieldCompression << pixels;
    out << qint32(2835) << qint32(2835) << quint32(0) << quint32(0); // 72 dots an inch, no palette
    out << quint32(0x00ff0000) << quint32(0x0000ff00) << quint32(0x000000ff) << quint32(0xff000000);
    out << standardColourSpace;
    for (int word = 0; word < endpointAndGammaWords; ++word)
        out << quint32(0);
}

} // namespace

QByteArray bitmapBytes(const QImage& image)
{
    const QImage pixels = image.convertToFormat(QImage::Format_ARGB32);
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    writeHeaders(out, pixels);
    for (int y = pixels.height() - 1; y >= 0; --y) // the format counts its rows from the bottom
        for (int x = 0; x < pixels.width(); ++x)
            out << quint32(pixels.pixel(x, y));
    return bytes;
}
