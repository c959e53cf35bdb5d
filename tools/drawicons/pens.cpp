#include "pens.h"

#include <cmath>

namespace symbols {

void usePen(QPainter& painter, const QColor& colour, double weight)
{
    painter.setPen(QPen(colour, weight, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    painter.setBrush(Qt::NoBrush);
}

void useBrush(QPainter& painter, const QColor& colour)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
}

void polygon(QPainter& painter, std::initializer_list<QPointF> points)
{
    painter.drawPolygon(QPolygonF(QVector<QPointF>(points)));
}

void openLine(QPainter& painter, std::initializer_list<QPointF> points)
{
    painter.drawPolyline(QPolygonF(QVector<QPointF>(points)));
}

void dot(QPainter& painter, const QPointF& centre, double radius, const QColor& colour)
{
    useBrush(painter, colour);
    painter.drawEllipse(centre, radius, radius);
}

QPolygonF hexagon(double radius)
{
    constexpr double sixth = 1.0471975511965976; // radians
    QPolygonF shape;
    for (int corner = 0; corner < 6; ++corner)
        shape << QPointF(8.0 + radius * std::cos(corner * sixth), 8.0 + radius * std::sin(corner * sixth));
    return shape;
}

} // namespace symbols
