#include "appicon.h"

#include "canvas.h"
#include "pens.h"
#include "symbols.h"

#include <QBuffer>
#include <QDataStream>

namespace {

const QColor sky(0x1b, 0x3d, 0x75);
const QColor earth(0x2e, 0x9a, 0xe8);
const QColor route(0xff, 0xc4, 0x6b);

/// The drawing's own square, in units.
constexpr double unitEdge = 64.0;
/// Up to this many pixels the route is one solid line and the aeroplane larger.
constexpr int smallIcon = 32;

void drawGround(QPainter& painter, double margin)
{
    QPainterPath square;
    const double edge = unitEdge - 2.0 * margin;
    square.addRoundedRect(QRectF(margin, margin, edge, edge), 13.0, 13.0);
    QPainterPath globe;
    globe.addEllipse(QPointF(32.0, 106.0), 62.0, 62.0);
    painter.fillPath(square, sky);
    painter.fillPath(square.intersected(globe), earth);
}

void drawRoute(QPainter& painter, bool small)
{
    QPainterPath path(QPointF(10.0, 52.0));
    path.quadTo(15.0, 33.0, 36.0, 27.0);
    QPen pen(route, small ? 5.0 : 3.0, Qt::SolidLine, small ? Qt::RoundCap : Qt::FlatCap);
    if (!small) {
        pen.setDashPattern({2.4, 1.2});
        pen.setDashOffset(1.2); // a gap shows between the start's dot and the first dash
    }
    painter.setBrush(Qt::NoBrush);
    painter.setPen(pen);
    painter.drawPath(path);
    symbols::dot(painter, QPointF(10.5, 52.0), small ? 5.5 : 4.5, route);
}

void drawAeroplane(QPainter& painter, bool small)
{
    painter.save();
    painter.translate(small ? QPointF(38.0, 25.0) : QPointF(40.0, 24.0));
    painter.rotate(62.0);
    const double enlarged = small ? 3.1 : 2.5;
    painter.scale(enlarged, enlarged);
    painter.translate(-8.0, -8.0);
    painter.fillPath(symbols::aeroplane(), Qt::white);
    painter.restore();
}

QByteArray pngBytes(const QImage& image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    return image.save(&buffer, "PNG") ? bytes : QByteArray();
}

void writeEntry(QDataStream& out, const QImage& image, int bytes, quint32 offset)
{
    const auto edge = static_cast<quint8>(image.width()); // 256 is written as 0
    out << edge << edge << quint8(0) << quint8(0);        // no palette
    out << quint16(1) << quint16(32) << quint32(bytes) << offset;
}

} // namespace

const QVector<int> appIconSizes = {16, 24, 32, 48, 64, 128, 256};

QImage appIcon(int size)
{
    return drawnOnNothing(size, unitEdge, [size](QPainter& painter) {
        const bool small = size <= smallIcon;
        const int marginPixels = small ? 0 : size / smallIcon; // whole ones: the square's sides stay sharp
        drawGround(painter, marginPixels * unitEdge / size);
        drawRoute(painter, small);
        drawAeroplane(painter, small);
    });
}

QByteArray icoBytes(const QVector<QImage>& images)
{
    constexpr quint32 headerSize = 6;
    constexpr quint32 entrySize = 16;
    QByteArray directory;
    QByteArray pictures;
    QDataStream out(&directory, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out << quint16(0) << quint16(1) << quint16(images.size()); // reserved, kind "icon", number of entries
    const quint32 first = headerSize + entrySize * quint32(images.size());
    for (const QImage& image : images) {
        const QByteArray png = pngBytes(image);
        if (png.isEmpty())
            return QByteArray();
        writeEntry(out, image, png.size(), first + quint32(pictures.size()));
        pictures += png;
    }
    return directory + pictures;
}
