// The great circles by vectors: unlike the formulas with angles alone they hold near the poles, across 180 degrees and
// for legs of a few metres.
#include "flight.h"

#include <cmath>
#include <limits>

namespace {

constexpr double radiansPerDegree = 0.017453292519943295;
constexpr double degreesPerRadian = 57.29577951308232;
constexpr double minutesPerDegree = 60.0; // nautical miles
constexpr double fullCircle = 360.0;
// Below it two directions are one or opposite, and the circle through them has no sense: a centimetre of the ground.
constexpr double indistinct = 1e-9;

Direction directionOf(const GeoPoint& point)
{
    const double latitude = point.latitude * radiansPerDegree;
    // The turns round the world go off in degrees, where they are exact.
    const double longitude = std::remainder(point.longitude, fullCircle) * radiansPerDegree;
    return {std::cos(latitude) * std::cos(longitude), std::cos(latitude) * std::sin(longitude), std::sin(latitude)};
}

double scalar(const Direction& a, const Direction& b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

/// a * u + b * v
Direction combined(double u, const Direction& a, double v, const Direction& b)
{
    return {a.x * u + b.x * v, a.y * u + b.y * v, a.z * u + b.z * v};
}

/// The horizontal direction north of a place; at a pole the one that its longitude makes of it.
Direction northAt(double latitude, double longitude)
{
    return {-std::sin(latitude) * std::cos(longitude), -std::sin(latitude) * std::sin(longitude), std::cos(latitude)};
}

Direction eastAt(double longitude)
{
    return {-std::sin(longitude), std::cos(longitude), 0.0};
}

double wrappedCourse(double degrees)
{
    const double course = std::fmod(degrees, fullCircle);
    const double positive = course < 0.0 ? course + fullCircle : course;
    // A course a hair below 0 comes to the full circle by rounding.
    return positive < fullCircle ? positive : 0.0;
}

} // namespace

Arc arcOnCourse(const GeoPoint& from, double course)
{
    // The course's unit vector in the plane of the horizon: north by its cosine, east by its sine.
    const double latitude = from.latitude * radiansPerDegree;
    const double longitude = std::remainder(from.longitude, fullCircle) * radiansPerDegree;
    const double angle = std::remainder(course, fullCircle) * radiansPerDegree;
    return {directionOf(from),
            combined(std::cos(angle), northAt(latitude, longitude), std::sin(angle), eastAt(longitude)),
            std::numeric_limits<double>::infinity()};
}

Arc arcBetween(const GeoPoint& from, const GeoPoint& to)
{
    const Direction a = directionOf(from);
    const Direction b = directionOf(to);
    const double cosine = scalar(a, b);
    // What is left of b without its part along a (Gram and Schmidt) lies in the plane of the circle, a quarter ahead of
    // a; its length is the angle's sine. Together with the cosine: angle = atan2(sine, cosine), good for small angles
    // and for such near 180 degrees, where the arc cosine is blind.
    const Direction rest = combined(1.0, b, -cosine, a);
    const double sine = std::sqrt(scalar(rest, rest));
    const double length = std::atan2(sine, cosine) * degreesPerRadian * minutesPerDegree;
    if (sine < indistinct) {
        Arc north = arcOnCourse(from, 0.0);
        north.length = cosine > 0.0 ? 0.0 : length;
        return north;
    }
    return {a, combined(1.0 / sine, rest, 0.0, a), length};
}

Fix fixOnArc(const Arc& arc, double distance)
{
    // p = a cos t + f sin t goes round the circle of a and f, and its derivative -a sin t + f cos t is the way ahead.
    const double angle = std::remainder(distance / minutesPerDegree, fullCircle) * radiansPerDegree;
    const Direction place = combined(std::cos(angle), arc.from, std::sin(angle), arc.forward);
    const Direction ahead = combined(-std::sin(angle), arc.from, std::cos(angle), arc.forward);

    const double latitude = std::atan2(place.z, std::hypot(place.x, place.y));
    const double longitude = std::atan2(place.y, place.x);
    // The course is the angle of the way ahead to the meridian: atan2 of its shares to the east and to the north.
    const double course =
        std::atan2(scalar(ahead, eastAt(longitude)), scalar(ahead, northAt(latitude, longitude))) * degreesPerRadian;
    return {{latitude * degreesPerRadian, longitude * degreesPerRadian}, wrappedCourse(course)};
}

Route::Route(const std::vector<GeoPoint>& points)
{
    for (std::size_t i = 0; i + 1 < points.size(); ++i) {
        const Arc leg = arcBetween(points[i], points[i + 1]);
        if (leg.length > 0.0) {
            arcs.push_back(leg);
        }
    }
    if (arcs.empty()) {
        const GeoPoint only = points.empty() ? GeoPoint{0.0, 0.0} : points.front();
        arcs.push_back(arcBetween(only, only));
    }
}

Route::Route(const GeoPoint& start, double course) : arcs{arcOnCourse(start, course)} {}

double Route::length() const
{
    double sum = 0.0;
    for (const Arc& arc : arcs) {
        sum += arc.length;
    }
    return sum;
}

Fix Route::fixAfter(double distance) const
{
    double left = std::fmax(distance, 0.0); // and 0 for what is no number
    for (const Arc& arc : arcs) {
        if (left < arc.length) {
            return fixOnArc(arc, left);
        }
        left -= arc.length;
    }
    return fixOnArc(arcs.back(), arcs.back().length);
}
