// The radio navaids: each as the charts draw it, hexagon, square, dotted rings or three lobes.
#include "pens.h"
#include "symbols.h"

namespace symbols {

namespace {

const QPointF middle(8.0, 8.0);

void ring(QPainter& painter, double radius, double weight, const QColor& colour)
{
    usePen(painter, colour, weight);
    painter.drawEllipse(middle, radius, radius);
}

void dottedRing(QPainter& painter, double radius, int dots, double dotRadius)
{
    for (int index = 0; index < dots; ++index) {
        painter.save();
        painter.translate(middle);
        painter.rotate(360.0 * index / dots);
        dot(painter, QPointF(0.0, -radius), dotRadius, ink::ndb);
        painter.restore();
    }
}

void hexagonOutline(QPainter& painter, double radius)
{
    usePen(painter, ink::vor);
    painter.drawPolygon(hexagon(radius));
}

/// The three solid blocks on the short sides that mark a military beacon.
void lobes(QPainter& painter, double from, double to)
{
    for (const int turn : {0, 120, 240}) {
        painter.save();
        painter.translate(middle);
        painter.rotate(turn);
        useBrush(painter, ink::vor);
        painter.drawRect(QRectF(-2.2, -to, 4.4, to - from));
        painter.restore();
    }
}

void square(QPainter& painter, const QColor& colour)
{
    usePen(painter, colour, 2.0);
    painter.drawRect(QRectF(2.0, 2.0, 12.0, 12.0));
}

} // namespace

void ndb(QPainter& painter)
{
    dot(painter, middle, 2.0, ink::ndb);
    ring(painter, 3.9, 1.1, ink::ndb);
    dottedRing(painter, 6.6, 14, 0.7);
}

/// The switch of a whole layer: the beacon with its waves, to tell it from the single beacon of a list.
void ndbLayer(QPainter& painter)
{
    dot(painter, middle, 2.2, ink::ndb);
    dottedRing(painter, 4.6, 10, 0.75);
    dottedRing(painter, 7.1, 16, 0.75);
}

void dme(QPainter& painter)
{
    square(painter, ink::vor);
    dot(painter, middle, 1.6, ink::vor);
}

void vor(QPainter& painter)
{
    hexagonOutline(painter, 7.0);
    dot(painter, middle, 1.8, ink::vor);
}

void vorDme(QPainter& painter)
{
    usePen(painter, ink::vor, 1.0);
    painter.drawRect(QRectF(0.5, 1.5, 15.0, 13.0));
    usePen(painter, ink::vor, 1.3);
    painter.drawPolygon(hexagon(6.6));
    dot(painter, middle, 1.6, ink::vor);
}

void tacan(QPainter& painter)
{
    usePen(painter, ink::vor, 1.2);
    painter.drawPolygon(hexagon(4.2));
    lobes(painter, 3.4, 7.6);
}

void vortac(QPainter& painter)
{
    hexagonOutline(painter, 4.6);
    lobes(painter, 4.0, 7.8);
    dot(painter, middle, 1.3, ink::vor);
}

void ndbDme(QPainter& painter)
{
    square(painter, ink::ndb);
    dot(painter, middle, 1.6, ink::ndb);
    dottedRing(painter, 4.0, 10, 0.6);
}

/// A landing system: the two halves of the beam towards the runway.
void landingSystem(QPainter& painter)
{
    useBrush(painter, ink::airport);
    polygon(painter, {{8.0, 15.0}, {2.5, 2.0}, {8.0, 4.5}});
    usePen(painter, ink::airport, 1.2);
    polygon(painter, {{8.0, 14.0}, {13.0, 2.8}, {8.0, 4.8}});
}

/// A marker beacon: the lens across the final course.
void markerBeacon(QPainter& painter)
{
    QPainterPath lens(QPointF(1.0, 8.0));
    lens.quadTo(8.0, 0.0, 15.0, 8.0);
    lens.quadTo(8.0, 16.0, 1.0, 8.0);
    usePen(painter, ink::airport);
    painter.drawPath(lens);
    dot(painter, middle, 1.4, ink::airport);
}

/// A radio frequency: a mast with its waves.
void radio(QPainter& painter)
{
    usePen(painter, ink::plain);
    openLine(painter, {{4.5, 15.0}, {8.0, 6.0}, {11.5, 15.0}});
    openLine(painter, {{6.0, 11.5}, {10.0, 11.5}});
    dot(painter, QPointF(8.0, 5.0), 1.5, ink::warning);
    usePen(painter, ink::warning, 1.2);
    painter.drawArc(QRectF(4.0, 1.0, 8.0, 8.0), -45 * 16, 90 * 16);
    painter.drawArc(QRectF(4.0, 1.0, 8.0, 8.0), 135 * 16, 90 * 16);
    painter.drawArc(QRectF(1.5, -1.5, 13.0, 13.0), -40 * 16, 80 * 16);
    painter.drawArc(QRectF(1.5, -1.5, 13.0, 13.0), 140 * 16, 80 * 16);
}

} // namespace symbols
