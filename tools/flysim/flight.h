#pragma once

#include <vector>

/// Great circles on a sphere on which one nautical mile is one minute of arc. Degrees, north and east positive.

struct GeoPoint
{
    double latitude;  ///< -90 to 90
    double longitude; ///< any finite value; the circle is closed
};

/// Where the aircraft is and which way it looks.
struct Fix
{
    GeoPoint place; ///< longitude -180 to 180
    double heading; ///< true course along the great circle at this very place, degrees, 0 up to but not including 360
};

/// A direction from the centre of the sphere, of length 1: x towards 0 N 0 E, y towards 0 N 90 E, z towards the north.
struct Direction
{
    double x;
    double y;
    double z;
};

/// A piece of a great circle.
struct Arc
{
    Direction from;    ///< its first point
    Direction forward; ///< a quarter of the circle ahead of it
    double length;     ///< NM; infinity for a circle that goes on and on
};

/// The shortest arc between two points. Of the many between two ends of a diameter it is the one over the north pole,
/// or, from a pole, the one along the longitude that the point was given with. Of length 0 between equal points.
Arc arcBetween(const GeoPoint& from, const GeoPoint& to);

/// The circle that leaves a point on a true course, degrees, and never ends.
Arc arcOnCourse(const GeoPoint& from, double course);

/// The fix that lies a distance, NM, ahead of the arc's first point.
Fix fixOnArc(const Arc& arc, double distance);

/// A way along one arc after the other.
class Route
{
public:
    /// Through two points or more. Legs of length 0 are passed over.
    explicit Route(const std::vector<GeoPoint>& points);
    /// From a point on a true course, degrees, round and round the world.
    Route(const GeoPoint& start, double course);

    /// NM; infinity for a way with a course and no end, 0 when all points are one.
    double length() const;

    /// The fix after a distance in NM: before the start the start, behind the end the end with the last leg's course.
    /// A way of length 0 looks north.
    Fix fixAfter(double distance) const;

private:
    std::vector<Arc> arcs; ///< never empty
};
