#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

/// Rows of the navigation tables out of nothing but a number: the values of an update line, in the order of its
/// statement. The same number always gives the same row.

/// One invented airport with its runways.
struct InventedAirport
{
    QStringList airport;          ///< 50 values of APT
    QVector<QStringList> runways; ///< 71 values of RWY each; mostly one, at times two or none
};

/// Airport `number`, 0 to 1679615; its key is unique and none of the real identifiers.
InventedAirport inventedAirport(int number, bool french);
/// Navaid `number`, 0 to 474551: 17 values of NAV. A real navaid can have the same key.
QStringList inventedNavaid(int number, bool french);
/// Waypoint `number`, 0 to 5399999: 16 values of WPT. A real waypoint can have the same key.
QStringList inventedWaypoint(int number, bool french);

/// Positions of the keys among the values.
constexpr int airportKey = 1;
constexpr int navaidKey = 1;
constexpr int waypointKey = 2;
