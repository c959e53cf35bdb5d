// Airports, runways and waypoints.
#include "pens.h"
#include "symbols.h"

namespace symbols {

namespace {

const QPointF middle(8.0, 8.0);

void aerodromeRing(QPainter& painter, const QColor& colour)
{
    usePen(painter, colour);
    painter.drawEllipse(middle, 5.0, 5.0);
}

void tick(QPainter& painter, int turn)
{
    painter.save();
    painter.translate(middle);
    painter.rotate(turn);
    painter.drawLine(QPointF(0.0, -5.0), QPointF(0.0, -7.8));
    painter.restore();
}

void triangle(QPainter& painter)
{
    polygon(painter, {{8.0, 2.2}, {14.0, 13.25}, {2.0, 13.25}});
}

/// The four pointed star of area navigation.
void fourPoints(QPainter& painter, double reach)
{
    constexpr double waist = 1.9;
    polygon(painter, {{8.0, 8.0 - reach},
                      {8.0 + waist, 8.0 - waist},
                      {8.0 + reach, 8.0},
                      {8.0 + waist, 8.0 + waist},
                      {8.0, 8.0 + reach},
                      {8.0 - waist, 8.0 + waist},
                      {8.0 - reach, 8.0},
                      {8.0 - waist, 8.0 - waist}});
}

} // namespace

void airport(QPainter& painter)
{
    aerodromeRing(painter, ink::airport);
    for (const int turn : {0, 90, 180, 270})
        tick(painter, turn);
    painter.save();
    painter.translate(middle);
    painter.rotate(45.0);
    useBrush(painter, ink::airport);
    painter.drawRect(QRectF(-1.25, -4.2, 2.5, 8.4));
    painter.restore();
}

void closedAirport(QPainter& painter)
{
    aerodromeRing(painter, ink::warning);
    painter.drawLine(QPointF(2.5, 2.5), QPointF(13.5, 13.5));
    painter.drawLine(QPointF(13.5, 2.5), QPointF(2.5, 13.5));
}

void heliport(QPainter& painter)
{
    usePen(painter, ink::airport);
    painter.drawEllipse(middle, 7.0, 7.0);
    painter.drawLine(QPointF(5.5, 4.0), QPointF(5.5, 12.0));
    painter.drawLine(QPointF(10.5, 4.0), QPointF(10.5, 12.0));
    painter.drawLine(QPointF(5.5, 8.0), QPointF(10.5, 8.0));
}

void seaplaneBase(QPainter& painter)
{
    usePen(painter, ink::vor);
    painter.drawEllipse(QPointF(8.0, 3.2), 1.8, 1.8);
    painter.drawLine(QPointF(8.0, 5.0), QPointF(8.0, 14.5));
    painter.drawLine(QPointF(4.5, 7.0), QPointF(11.5, 7.0));
    painter.drawArc(QRectF(2.0, 4.0, 12.0, 10.5), 190 * 16, 160 * 16);
}

/// The threshold of a runway: the strip, its piano keys and the centre line.
void runwayEnd(QPainter& painter)
{
    usePen(painter, ink::plain, 1.0);
    openLine(painter, {{3.5, 0.0}, {3.5, 15.5}, {12.5, 15.5}, {12.5, 0.0}});
    useBrush(painter, ink::warning);
    for (const int left : {5, 7, 9})
        painter.drawRect(QRectF(left, 10.0, 1.0, 4.0));
    painter.drawRect(QRectF(11.0, 10.0, 0.9, 4.0));
    useBrush(painter, ink::plain);
    for (const int top : {0, 4})
        painter.drawRect(QRectF(7.5, top, 1.0, 2.5));
}

void waypointEnRoute(QPainter& painter)
{
    useBrush(painter, ink::waypoint);
    polygon(painter, {{8.0, 1.0}, {15.0, 14.0}, {1.0, 14.0}});
}

void waypointTerminal(QPainter& painter)
{
    usePen(painter, ink::waypoint);
    triangle(painter);
    dot(painter, QPointF(8.0, 9.6), 1.5, ink::waypoint);
}

void waypointRnav(QPainter& painter)
{
    useBrush(painter, ink::waypoint);
    fourPoints(painter, 7.5);
}

/// A point found by eye from the cockpit: the flag of the sectional charts.
void waypointVisual(QPainter& painter)
{
    useBrush(painter, ink::visual);
    polygon(painter, {{4.0, 1.0}, {14.5, 4.75}, {4.0, 8.5}});
    painter.drawRect(QRectF(3.0, 1.0, 1.5, 14.0));
    painter.drawRect(QRectF(1.0, 14.0, 6.0, 1.2));
}

void waypointOffRoute(QPainter& painter)
{
    usePen(painter, ink::plain);
    polygon(painter, {{8.0, 1.8}, {14.2, 8.0}, {8.0, 14.2}, {1.8, 8.0}});
}

/// A point of a stored procedure: the star of area navigation with the path that leads through it.
void procedurePoint(QPainter& painter)
{
    usePen(painter, ink::airway, 1.5);
    openLine(painter, {{0.5, 14.5}, {8.0, 8.0}, {15.5, 8.0}});
    useBrush(painter, ink::waypoint);
    fourPoints(painter, 6.5);
}

} // namespace symbols
