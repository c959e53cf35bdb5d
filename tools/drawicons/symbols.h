#pragma once

#include <QColor>
#include <QPainter>
#include <QPainterPath>

/// The chart symbols of the program's icons, one plain function a symbol.
///
/// All draw into a square of 16 x 16 units whose origin is the top left corner, so that one function serves the
/// bitmaps of the tool bar and the larger marker images. Strokes lie on half units: at 16 pixels they are crisp.
namespace symbols {

/// One drawing of the family.
using Draw = void (*)(QPainter&);

/// Edge of the square that the symbols are drawn into, in units.
constexpr double edge = 16.0;

/// Colours of middle brightness: each keeps a contrast of three to one or more on a light and on a dark tool bar.
namespace ink {
const QColor airport(0x1f, 0x8f, 0x4f);
const QColor vor(0x1e, 0x7f, 0xd6);
const QColor ndb(0xb6, 0x4f, 0xc8);
const QColor waypoint(0xc4, 0x6f, 0x12);
const QColor visual(0x2f, 0x8f, 0x6f);
const QColor airway(0x5f, 0x7c, 0xa8);
const QColor warning(0xd8, 0x48, 0x3c);
const QColor plain(0x7c, 0x85, 0x90);
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
void waypointOffRoute(QPainter& painter);
void procedurePoint(QPainter& painter);
void airwayLow(QPainter& painter);
void airwayHigh(QPainter& painter);
void airwayBoth(QPainter& painter);

} // namespace symbols
