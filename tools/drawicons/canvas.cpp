#include "canvas.h"

#include <algorithm>

namespace {

/// Takes the coverage out of one colour part, rounded; `alpha` is 1 to 255.
int straightPart(int premultiplied, int alpha)
{
    return qMin(255, (premultiplied * 255 + alpha / 2) / alpha);
}

QRgb straightColour(QRgb pixel)
{
    const int alpha = qAlpha(pixel);
    if (alpha == 0)
        return 0;
    return qRgba(straightPart(qRed(pixel), alpha), straightPart(qGreen(pixel), alpha),
                 straightPart(qBlue(pixel), alpha), alpha);
}

} // namespace

QImage drawnOnNothing(int size, double unitEdge, const std::function<void(QPainter&)>& draw)
{
    QImage drawing(size, size, QImage::Format_ARGB32_Premultiplied);
    drawing.fill(Qt::transparent);
    QPainter painter(&drawing);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / unitEdge, size / unitEdge);
    draw(painter);
    painter.end();
    QImage straight(size, size, QImage::Format_ARGB32);
    for (int y = 0; y < size; ++y) {
        const auto* from = reinterpret_cast<const QRgb*>(drawing.constScanLine(y));
        auto* to = reinterpret_cast<QRgb*>(straight.scanLine(y));
        std::transform(from, from + size, to, straightColour);
    }
    return straight;
}
