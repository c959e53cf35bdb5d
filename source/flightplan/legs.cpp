#include "legs.h"

#include "positions.h"

#include <cmath>

namespace {

constexpr double fullTurn = 2.0 * 3.14159265358979323846;
constexpr double minutesPerDegree = 60.0; // one nautical mile is one minute of great circle arc: no earth radius
constexpr double minutesPerHour = 60.0;

double radians(double arcSeconds)
{
    return arcSeconds / arcSecondsPerDegree * radiansPerDegree;
}

} // namespace

Leg legBetween(const CFpLine& from, const CFpLine& to)
{
    const double latA = radians(from.latS);
    const double latB = radians(to.latS);
    // Start minus end: the course below is turned round by its sign.
    const double dLon = radians(wrapHalfCircleArcSeconds(from.lonS)) - radians(wrapHalfCircleArcSeconds(to.lonS));

    // The cosine is not clamped to 1: a point that is repeated can show NaN instead of 0, as pilots know it.
    const double cosine = std::sin(latA) * std::sin(latB) + std::cos(latA) * std::cos(latB) * std::cos(dLon);
    const double turn = std::atan2(std::sin(dLon) * std::cos(latB),
                                   std::cos(latA) * std::sin(latB) - std::sin(latA) * std::cos(latB) * std::cos(dLon));
    return {wrapCourseDegrees(-std::fmod(turn, fullTurn) * degreesPerRadian),
            std::acos(cosine) * degreesPerRadian * minutesPerDegree};
}

void computeLegs(const QList<CFpLinePtr>& lines)
{
    for (int i = 0; i + 1 < lines.size(); ++i) {
        CFpLine& from = *lines.at(i);
        CFpLine& to = *lines.at(i + 1);
        const Leg leg = legBetween(from, to);
        from.route = leg.course;
        from.dist = leg.distance;
        // A speed of 0 gives infinity, which shows as the smallest whole number.
        from.duration = truncatedInt(from.dist / from.speed * minutesPerHour);
        // Passed on as it is, without the leg's minutes: "Temps" shows the same time on every line.
        to.timeAt = from.timeAt;
    }
}

void copyAltitudeDown(const QList<CFpLinePtr>& lines, int row, int altitude)
{
    if (row < 0) {
        return;
    }
    for (int i = row; i + 1 < lines.size(); ++i) {
        lines.at(i)->altd = altitude;
    }
}
