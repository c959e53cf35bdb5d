// Airways, procedures, boundaries and the aircraft.
#include "pens.h"
#include "symbols.h"

namespace symbols {

namespace {

/// A segment between two reporting points at height `y`.
void segment(QPainter& painter, double y)
{
    usePen(painter, ink::airway, 2.0);
    painter.drawLine(QPointF(3.0, y), QPointF(13.0, y));
    dot(painter, QPointF(2.5, y), 2.1, ink::waypoint);
    dot(painter, QPointF(13.5, y), 2.1, ink::waypoint);
}

/// A chevron with its point at `tip`, opening downwards for a positive height.
void chevron(QPainter& painter, const QPointF& tip, double height)
{
    usePen(painter, ink::airway, 1.7);
    openLine(painter, {{tip.x() - 3.5, tip.y() + height}, tip, {tip.x() + 3.5, tip.y() + height}});
}

void arrowHead(QPainter& painter, const QPointF& tip, double turn, const QColor& colour)
{
    painter.save();
    painter.translate(tip);
    painter.rotate(turn);
    useBrush(painter, colour);
    polygon(painter, {{0.0, 0.0}, {-2.8, 5.0}, {2.8, 5.0}});
    painter.restore();
}

void runwayLine(QPainter& painter, double left, double right, double y)
{
    useBrush(painter, ink::plain);
    painter.drawRect(QRectF(left, y, right - left, 2.0));
}

void slantedAeroplane(QPainter& painter, double turn)
{
    painter.save();
    painter.translate(8.0, 6.0);
    painter.rotate(turn);
    painter.scale(0.72, 0.72);
    painter.translate(-8.0, -8.0);
    painter.fillPath(aeroplane(), ink::vor);
    painter.restore();
}

} // namespace

QPainterPath aeroplane()
{
    QPainterPath shape;
    shape.addPolygon(QPolygonF(QVector<QPointF>{{8.0, 1.0},
                                                {9.2, 3.0},
                                                {9.2, 6.2},
                                                {15.0, 9.2},
                                                {15.0, 10.8},
                                                {9.2, 9.2},
                                                {8.9, 12.6},
                                                {11.2, 14.2},
                                                {11.2, 15.2},
                                                {8.0, 14.4},
                                                {4.8, 15.2},
                                                {4.8, 14.2},
                                                {7.1, 12.6},
                                                {6.8, 9.2},
                                                {1.0, 10.8},
                                                {1.0, 9.2},
                                                {6.8, 6.2},
                                                {6.8, 3.0}}));
    shape.closeSubpath();
    return shape;
}

void aircraft(QPainter& painter)
{
    painter.fillPath(aeroplane(), ink::vor);
}

void departure(QPainter& painter)
{
    slantedAeroplane(painter, 60.0);
    runwayLine(painter, 1.0, 15.0, 13.0);
}

void arrival(QPainter& painter)
{
    slantedAeroplane(painter, 120.0);
    runwayLine(painter, 1.0, 15.0, 13.0);
}

/// A zone: its outline and the tint that the charts lay inside it.
void boundary(QPainter& painter)
{
    painter.setBrush(QColor(ink::warning.red(), ink::warning.green(), ink::warning.blue(), 70));
    painter.setPen(QPen(ink::warning, 1.7, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    polygon(painter, {{1.8, 5.0}, {9.0, 1.8}, {14.2, 6.5}, {12.0, 14.0}, {3.5, 13.0}});
}

void leg(QPainter& painter)
{
    usePen(painter, ink::ndb, 2.0);
    openLine(painter, {{3.0, 13.0}, {7.0, 5.0}, {13.0, 3.0}});
    for (const QPointF& point : {QPointF(3.0, 13.0), QPointF(7.0, 5.0), QPointF(13.0, 3.0)})
        dot(painter, point, 2.1, ink::waypoint);
}

/// From the runway out to the first point of the route.
void sid(QPainter& painter)
{
    runwayLine(painter, 0.5, 7.0, 13.0);
    usePen(painter, ink::airway, 1.7);
    openLine(painter, {{6.5, 12.5}, {9.5, 10.0}, {11.6, 4.5}});
    arrowHead(painter, QPointF(13.0, 1.0), 20.0, ink::airway);
}

/// From the last point of the route down to the runway.
void star(QPainter& painter)
{
    runwayLine(painter, 9.0, 15.5, 13.0);
    dot(painter, QPointF(3.0, 2.8), 2.1, ink::waypoint);
    usePen(painter, ink::airway, 1.7);
    openLine(painter, {{3.4, 4.0}, {5.0, 8.0}, {7.0, 9.6}});
    arrowHead(painter, QPointF(10.5, 12.6), 130.0, ink::airway);
}

void airwayLow(QPainter& painter)
{
    segment(painter, 4.5);
    chevron(painter, QPointF(8.0, 13.5), -4.5);
}

void airwayHigh(QPainter& painter)
{
    segment(painter, 11.5);
    chevron(painter, QPointF(8.0, 2.5), 4.5);
}

void airwayBoth(QPainter& painter)
{
    segment(painter, 8.0);
    chevron(painter, QPointF(8.0, 1.5), 3.5);
    chevron(painter, QPointF(8.0, 14.5), -3.5);
}

} // namespace symbols
