// The radio navaids: each as the charts draw it, hexagon, square, rings of dots or three arms.
#include "pens.h"
#include "symbols.h"

namespace symbols {

namespace {

const QPointF middle(8.0, 8.0);

/// Square dots around the middle, two units wide unless told, at the given places of its first quarter.
void dotsAround(QPainter& painter, std::initializer_list<QPointF> places, double width = 2.0)
{
    around(painter, {0, 90, 180, 270}, [&] {
        useBrush(painter, ink::ndb);
        for (const QPointF& place : places)
            painter.drawRect(QRectF(place.x() - width / 2.0, place.y() - width / 2.0, width, width));
    });
}

/// Three blocks from `inner` units off the middle outwards, one of them downwards.
void arms(QPainter& painter, double inner)
{
    around(painter, {60, 180, 300}, [&] {
        useBrush(painter, ink::navaid);
        painter.drawRect(QRectF(-2.5, -8.0, 5.0, 8.0 - inner));
    });
}

} // namespace

void ndb(QPainter& painter)
{
    dot(painter, middle, 2.4, ink::ndb);
    dotsAround(painter, {{0.0, -7.0}, {3.0, -6.0}, {6.0, -3.0}});
}

/// The layer of the beacons: the core with both rings of the route beacon.
void ndbLayer(QPainter& painter)
{
    ndb(painter);
    dotsAround(painter, {{-1.5, -3.5}, {1.5, -3.5}}, 1.0);
}

void dme(QPainter& painter)
{
    usePen(painter, ink::navaid);
    painter.drawRect(QRectF(3.0, 3.0, 10.0, 10.0));
    dot(painter, middle, 1.7, ink::navaid);
}

void vor(QPainter& painter)
{
    usePen(painter, ink::navaid);
    painter.drawPolygon(hexagon(6.8, 6.0));
    dot(painter, middle, 1.7, ink::navaid);
}

void vorDme(QPainter& painter)
{
    usePen(painter, ink::navaid, 1.0);
    painter.drawRect(QRectF(0.5, 1.5, 15.0, 13.0));
    usePen(painter, ink::navaid);
    painter.drawPolygon(hexagon(5.0, 4.0));
    dot(painter, middle, 1.2, ink::navaid);
}

/// The three arms of a military beacon, solid, with a hole for its place.
void tacan(QPainter& painter)
{
    useBrush(painter, ink::navaid);
    painter.drawPolygon(hexagon(5.2, 4.5));
    arms(painter, 3.0);
    useKnife(painter);
    painter.drawEllipse(middle, 1.9, 1.9);
}

/// The hexagon of a VOR between the ends of the three arms.
void vortac(QPainter& painter)
{
    arms(painter, 6.0);
    usePen(painter, ink::navaid, 1.7);
    painter.drawPolygon(hexagon(4.5, 3.9));
    dot(painter, middle, 1.2, ink::navaid);
}

void ndbDme(QPainter& painter)
{
    usePen(painter, ink::ndb);
    painter.drawRect(QRectF(2.0, 2.0, 12.0, 12.0));
    dot(painter, middle, 1.7, ink::ndb);
    dotsAround(painter, {{-0.5, -3.5}, {0.5, -3.5}, {2.5, -2.5}}, 1.0);
}

/// A landing system: the two halves of its beam towards the runway, one of them filled.
void landingSystem(QPainter& painter)
{
    useBrush(painter, tint(ink::navaid));
    polygon(painter, {{8.0, 15.0}, {13.0, 1.0}, {8.0, 4.0}});
    useBrush(painter, ink::navaid);
    polygon(painter, {{8.0, 15.0}, {3.0, 1.0}, {8.0, 4.0}});
    usePen(painter, ink::navaid, 1.0);
    openLine(painter, {{8.0, 4.2}, {12.6, 1.6}, {8.2, 14.2}});
}

/// A marker beacon: the lens of its signal across the final course.
void markerBeacon(QPainter& painter)
{
    useBrush(painter, ink::navaid);
    painter.drawRect(QRectF(7.0, 0.0, 2.0, 16.0));
    QPainterPath lens(QPointF(0.0, 8.0));
    lens.quadTo(8.0, 0.0, 16.0, 8.0);
    lens.quadTo(8.0, 16.0, 0.0, 8.0);
    painter.drawPath(lens);
    useKnife(painter);
    for (const double left : {3.0, 7.0, 11.0})
        painter.drawRect(QRectF(left, 7.0, 2.0, 2.0));
}

/// A radio frequency: a mast with its waves.
void radio(QPainter& painter)
{
    usePen(painter, ink::plain);
    openLine(painter, {{5.0, 15.0}, {8.0, 7.0}, {11.0, 15.0}});
    useBrush(painter, ink::plain);
    painter.drawRect(QRectF(6.0, 11.0, 4.0, 1.0));
    dot(painter, QPointF(8.0, 5.0), 2.0, ink::plain);
    usePen(painter, ink::navaid);
    painter.drawArc(QRectF(2.0, -1.0, 12.0, 12.0), -50 * 16, 100 * 16);
    painter.drawArc(QRectF(2.0, -1.0, 12.0, 12.0), 130 * 16, 100 * 16);
}

} // namespace symbols
