// Airways, procedures, boundaries and the aircraft.
#include "pens.h"
#include "symbols.h"

namespace symbols {

namespace {

/// A segment between two reporting points at height `y`.
void segment(QPainter& painter, double y, const QColor& colour)
{
    usePen(painter, colour);
    painter.drawLine(QPointF(3.0, y), QPointF(13.0, y));
    dot(painter, QPointF(3.0, y), 2.4, ink::plain);
    dot(painter, QPointF(13.0, y), 2.4, ink::plain);
}

/// A chevron with its point three units above `foot`, or below it.
void chevron(QPainter& painter, double foot, double upwards, const QColor& colour)
{
    usePen(painter, colour);
    openLine(painter, {{4.6, foot}, {8.0, foot - upwards * 3.4}, {11.4, foot}});
}

void runwayLine(QPainter& painter, double left, double right)
{
    useBrush(painter, ink::plain);
    painter.drawRect(QRectF(left, 14.0, right - left, 2.0));
}

/// An aeroplane seen from the side, its nose to the right, turned by `pitch` degrees: positive is nose down.
void aeroplaneInProfile(QPainter& painter, double height, double pitch)
{
    painter.save();
    painter.translate(8.0, height);
    painter.rotate(pitch);
    useBrush(painter, ink::aircraft);
    polygon(painter, {{-7.5, -4.5}, {-6.0, -4.5}, {-3.5, -1.2}, {5.5, -1.2}, {7.5, 0.2}, {6.5, 1.2}, {-6.0, 1.2}});
    polygon(painter, {{2.5, 0.6}, {-2.6, 5.4}, {-4.4, 5.4}, {-2.0, 0.6}});
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

/// The same aeroplane as `aeroplane`, with its edges on whole units.
void aircraft(QPainter& painter)
{
    useBrush(painter, ink::aircraft);
    painter.drawRect(QRectF(7.0, 1.0, 2.0, 14.0));
    polygon(painter, {{8.0, 4.0}, {15.0, 9.0}, {15.0, 11.0}, {8.0, 9.0}, {1.0, 11.0}, {1.0, 9.0}});
    polygon(painter, {{8.0, 11.0}, {12.0, 14.0}, {12.0, 15.0}, {4.0, 15.0}, {4.0, 14.0}});
}

void departure(QPainter& painter)
{
    aeroplaneInProfile(painter, 6.5, -22.0);
    runwayLine(painter, 0.0, 16.0);
}

void arrival(QPainter& painter)
{
    aeroplaneInProfile(painter, 7.0, 22.0);
    runwayLine(painter, 0.0, 16.0);
}

/// A zone: its outline and the tint that the charts lay inside it.
void boundary(QPainter& painter)
{
    usePen(painter, ink::aircraft);
    painter.setBrush(tint(ink::aircraft));
    polygon(painter, {{2.0, 2.0}, {10.0, 2.0}, {14.0, 6.0}, {14.0, 14.0}, {6.0, 14.0}, {2.0, 10.0}});
}

void leg(QPainter& painter)
{
    usePen(painter, ink::route);
    openLine(painter, {{3.0, 13.0}, {6.0, 6.0}, {13.0, 3.0}});
    for (const QPointF& point : {QPointF(3.0, 13.0), QPointF(6.0, 6.0), QPointF(13.0, 3.0)})
        dot(painter, point, 2.0, ink::route);
}

/// From the runway out to the route.
void sid(QPainter& painter)
{
    runwayLine(painter, 0.0, 8.0);
    usePen(painter, ink::procedure);
    openLine(painter, {{8.0, 2.0}, {14.0, 2.0}, {14.0, 8.0}});
    painter.drawLine(QPointF(3.0, 13.0), QPointF(14.0, 2.0));
}

/// From the last point of the route down to the runway.
void star(QPainter& painter)
{
    runwayLine(painter, 8.0, 16.0);
    dot(painter, QPointF(3.0, 2.4), 2.4, ink::procedure);
    usePen(painter, ink::procedure);
    painter.drawLine(QPointF(3.0, 2.0), QPointF(13.0, 12.0));
    openLine(painter, {{13.0, 6.0}, {13.0, 12.0}, {7.0, 12.0}});
}

void airwayLow(QPainter& painter)
{
    segment(painter, 5.0, ink::airwayLow);
    chevron(painter, 9.0, -1.0, ink::airwayLow);
}

void airwayHigh(QPainter& painter)
{
    segment(painter, 11.0, ink::airwayHigh);
    chevron(painter, 7.0, 1.0, ink::airwayHigh);
}

void airwayBoth(QPainter& painter)
{
    segment(painter, 8.0, ink::airwayBoth);
    chevron(painter, 5.0, 1.0, ink::airwayBoth);
    chevron(painter, 11.0, -1.0, ink::airwayBoth);
}

} // namespace symbols
