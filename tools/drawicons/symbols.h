#pragma once

#include <QColor>
#include <QPainter>
#include <QPainterPath>

/// The chart symbols of the program's icons, one plain function a symbol.
///
/// All draw into a square of 16 x 16 units whose origin is the top left corner, so that one function serves the
/// bitmaps of the tool bar and the marker images, twice as large. Main strokes are two units wide, details one, and
/// straight edges lie on whole units: at 16 pixels they are sharp. The forms are those of the map's own symbols.
namespace symbols {

/// One drawing of the family.
using Draw = void (*)(QPainter&);

/// Edge of the square that the symbols are drawn into, in units.
constexpr double edge = 16.0;

/// The hues of the map's symbols by day and by night, all at one luminance, 0.21: each has a contrast of 3.5 to one on
/// a light tool bar (#f0f0f0) and on a dark one (#2b2b2b), and no icon is louder than its neighbour.
namespace ink {
const QColor airport(0x5d, 0x79, 0xdc);
const QColor navaid(0x21, 0x85, 0xc7);
const QColor ndb(0xb9, 0x5d, 0xae);
const QColor waypoint(0x31, 0x8f, 0x5b);
const QColor terminal(0x6d, 0x82, 0x8f);
const QColor visual(0xcf, 0x5c, 0x3e);
const QColor airwayLow(0x6a, 0x89, 0x3b);
const QColor airwayHigh(0x3f, 0x85, 0xb6);
const QColor airwayBoth(0x8e, 0x71, 0xbe);
const QColor route(0xdf, 0x42, 0x83);
const QColor procedure(0x0f, 0x8f, 0x7f);
const QColor aircraft(0xe0, 0x4a, 0x46);
const QColor folder(0xb3, 0x70, 0x10);
const QColor plain(0x78, 0x80, 0x88);
} // namespace ink

/// An aeroplane seen from above, nose up, about 14 units long.
QPainterPath aeroplane();

void centre(QPainter& painter);
void aircraft(QPainter& painter);
void flightPlan(QPainter& painter);
void ndb(QPainter& painter);
void dme(QPainter& painter);
void vor(QPainter& painter);
void ndbLayer(QPainter& painter);
void tacan(QPainter& painter);
void airport(QPainter& painter);
void fullScreen(QPainter& painter);
void runwayEnd(QPainter& painter);
void heliport(QPainter& painter);
void waypointEnRoute(QPainter& painter);
void waypointTerminal(QPainter& painter);
void waypointRnav(QPainter& painter);
void vorDme(QPainter& painter);
void vortac(QPainter& painter);
void ndbDme(QPainter& painter);
void landingSystem(QPainter& painter);
void markerBeacon(QPainter& painter);
void radio(QPainter& painter);
void search(QPainter& painter);
void newDocument(QPainter& painter);
void openFolder(QPainter& painter);
void save(QPainter& painter);
void departure(QPainter& painter);
void arrival(QPainter& painter);
void boundary(QPainter& painter);
void leg(QPainter& painter);
void sid(QPainter& painter);
void star(QPainter& painter);
void seaplaneBase(QPainter& painter);
void closedAirport(QPainter& painter);
void waypointVisual(QPainter& painter);
void landmark(QPainter& painter);
void procedurePoint(QPainter& painter);
void airwayLow(QPainter& painter);
void airwayHigh(QPainter& painter);
void airwayBoth(QPainter& painter);

} // namespace symbols
