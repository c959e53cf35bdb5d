#include "pens.h"

#include <utility>

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

void useKnife(QPainter& painter)
{
    useBrush(painter, Qt::black); // any solid colour: only what it covers counts
    painter.setCompositionMode(QPainter::CompositionMode_Clear);
}

QColor tint(const QColor& colour)
{
    QColor thin = colour;
    thin.setAlpha(80);
    return thin;
}

void around(QPainter& painter, std::initializer_list<int> turns, const std::function<void()>& draw)
{
    for (const int turn : turns) {
        painter.save();
        painter.translate(8.0, 8.0);
        painter.rotate(turn);
        draw();
        painter.restore();
    }
}

QPolygonF hexagon(double halfWidth, double halfHeight)
{
    QPolygonF shape;
    for (const auto& [x, y] : {std::pair(1.0, 0.0), std::pair(0.5, 1.0), std::pair(-0.5, 1.0), std::pair(-1.0, 0.0),
                               std::pair(-0.5, -1.0), std::pair(0.5, -1.0)})
        shape << QPointF(8.0 + halfWidth * x, 8.0 + halfHeight * y);
    return shape;
}

} // namespace symbols
