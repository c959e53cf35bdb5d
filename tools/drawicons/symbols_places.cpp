// Airports, runways and waypoints.
#include "pens.h"
#include "symbols.h"

namespace symbols {

namespace {

const QPointF middle(8.0, 8.0);

/// The four pointed star of area navigation.
void fourPoints(QPainter& painter, double reach)
{
    constexpr double waist = 1.8;
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

/// A paved airport: the disc with its runway cut out, and four ticks.
void airport(QPainter& painter)
{
    dot(painter, middle, 6.0, ink::airport);
    painter.drawRect(QRectF(7.0, 0.0, 2.0, 16.0));
    painter.drawRect(QRectF(0.0, 7.0, 16.0, 2.0));
    useKnife(painter);
    around(painter, {45}, [&] { painter.drawRect(QRectF(-1.2, -4.4, 2.4, 8.8)); });
}

void closedAirport(QPainter& painter)
{
    dot(painter, middle, 7.0, ink::plain);
    useKnife(painter);
    around(painter, {45, 135}, [&] { painter.drawRect(QRectF(-1.2, -5.0, 2.4, 10.0)); });
}

void heliport(QPainter& painter)
{
    dot(painter, middle, 7.0, ink::airport);
    useKnife(painter);
    painter.drawRect(QRectF(5.0, 4.0, 2.0, 8.0));
    painter.drawRect(QRectF(9.0, 4.0, 2.0, 8.0));
    painter.drawRect(QRectF(7.0, 7.0, 2.0, 2.0));
}

/// A water aerodrome: the disc with an anchor cut out.
void seaplaneBase(QPainter& painter)
{
    dot(painter, middle, 7.0, ink::airport);
    useKnife(painter);
    painter.drawRect(QRectF(7.0, 3.0, 2.0, 10.0));
    painter.drawRect(QRectF(5.0, 5.0, 6.0, 1.0));
    for (const QRectF& fluke : {QRectF(4.0, 9.0, 1.0, 2.0), QRectF(5.0, 11.0, 2.0, 1.0), QRectF(11.0, 9.0, 1.0, 2.0),
                                QRectF(9.0, 11.0, 2.0, 1.0)})
        painter.drawRect(fluke);
}

/// The threshold of a runway: the strip with its piano keys and the centre line.
void runwayEnd(QPainter& painter)
{
    useBrush(painter, ink::plain);
    painter.drawRect(QRectF(3.0, 0.0, 10.0, 16.0));
    useKnife(painter);
    for (const double left : {4.0, 6.0, 9.0, 11.0})
        painter.drawRect(QRectF(left, 10.0, 1.0, 5.0));
    painter.drawRect(QRectF(7.0, 0.0, 2.0, 3.0));
    painter.drawRect(QRectF(7.0, 5.0, 2.0, 3.0));
}

void waypointEnRoute(QPainter& painter)
{
    usePen(painter, ink::waypoint);
    polygon(painter, {{8.0, 3.2}, {13.2, 13.0}, {2.8, 13.0}});
}

void waypointTerminal(QPainter& painter)
{
    useBrush(painter, ink::terminal);
    polygon(painter, {{8.0, 2.0}, {14.0, 13.0}, {2.0, 13.0}});
}

void waypointRnav(QPainter& painter)
{
    useBrush(painter, ink::waypoint);
    fourPoints(painter, 8.0);
}

/// A point found by eye from the cockpit.
void waypointVisual(QPainter& painter)
{
    usePen(painter, ink::visual);
    painter.setBrush(tint(ink::visual));
    polygon(painter, {{8.0, 2.4}, {13.6, 8.0}, {8.0, 13.6}, {2.4, 8.0}});
}

/// A landmark: a flag on its pole.
void landmark(QPainter& painter)
{
    useBrush(painter, ink::visual);
    painter.drawRect(QRectF(3.0, 1.0, 2.0, 14.0));
    polygon(painter, {{5.0, 1.0}, {14.0, 5.0}, {5.0, 9.0}});
}

/// A point of a stored procedure: the star of area navigation on the path that leads through it.
void procedurePoint(QPainter& painter)
{
    usePen(painter, ink::plain);
    painter.drawLine(QPointF(1.0, 15.0), QPointF(15.0, 1.0));
    useBrush(painter, ink::procedure);
    fourPoints(painter, 7.0);
}

} // namespace symbols
