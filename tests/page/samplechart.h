#pragma once

#include "pagewindow.h"

/// A chart of a few points at zoom 8: an airport and an NDB alone, a VOR with a waypoint on it, a waypoint whose title
/// has two "-", and the empty map.
namespace samplechart {

struct Place
{
    double latitude;
    double longitude;
};

constexpr Place centre{46.7, 2.3};
constexpr Place airport{46.9, 2.0};
constexpr Place ndb{46.4, 2.6};
constexpr Place vorAndWaypoint{46.7, 2.6};
constexpr Place oddWaypoint{46.4, 2.3};
constexpr Place nothing{46.6, 1.7};

/// Loads the page and feeds it. False when the page does not load.
bool show(PageWindow& window, const QString& page = "gm_trajector_fr.html");

QPoint pixel(PageWindow& window, const Place& place);
QStringList menuAt(PageWindow& window, const Place& place);

/// The texts of all elements that a selector finds.
QStringList texts(PageWindow& window, const QString& selector);
/// Left, top, right and bottom of the first element that a selector finds.
QRectF box(PageWindow& window, const QString& selector);

} // namespace samplechart
