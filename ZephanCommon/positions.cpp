#include "positions.h"

#include <climits>
#include <cmath>

namespace {

constexpr double circleDegrees = 360.0;
constexpr double halfCircleDegrees = 180.0;

// fmod of a double by a circle is exact, and so is every subtraction of the loop that it stands for.
// Adding 0.0 turns a negative zero into the zero that the loop ends with.
double raisedToZero(double value, double circle)
{
    if (!(value < 0.0)) {
        return value;
    }
    const double rest = std::fmod(value, circle) + 0.0;
    return rest < 0.0 ? rest + circle : rest;
}

double lowered(double value, double circle, bool keepFullCircle)
{
    if (value < circle || (keepFullCircle && value == circle)) {
        return value;
    }
    const double rest = std::fmod(value, circle);
    return keepFullCircle && rest == 0.0 ? circle : rest;
}

QString positionText(double arcSeconds, int degreeWidth, const QString& hemisphere, bool withSecondMark)
{
    const double degreesWithFraction = arcSeconds / arcSecondsPerDegree;
    const double degrees = std::trunc(degreesWithFraction);
    const double minutesWithFraction = (degreesWithFraction - degrees) * 60.0;
    const double minutes = std::trunc(minutesWithFraction);
    const double seconds = 60.0 * (minutesWithFraction - minutes);
    const QString pattern = withSecondMark ? QStringLiteral("%2 %3' %4\" %1") : QStringLiteral("%2 %3' %4 %1");
    const QChar zero = QLatin1Char('0');
    return pattern.arg(hemisphere)
        .arg(degrees, degreeWidth, 'f', 0, zero)
        .arg(minutes, 2, 'f', 0, zero)
        .arg(seconds, 5, 'f', 2, zero);
}

} // namespace

double wrapScriptDegrees(double longitudeDegrees)
{
    const double east = wrapCourseDegrees(longitudeDegrees);
    return std::isfinite(east) && east > halfCircleDegrees ? east - circleDegrees : east;
}

double wrapCourseDegrees(double degrees)
{
    if (!std::isfinite(degrees)) {
        return degrees;
    }
    return lowered(raisedToZero(degrees, circleDegrees), circleDegrees, false);
}

double wrapPageArcSeconds(double longitudeArcSeconds)
{
    if (!std::isfinite(longitudeArcSeconds)) {
        return longitudeArcSeconds;
    }
    return raisedToZero(lowered(longitudeArcSeconds, circleArcSeconds, true), circleArcSeconds);
}

double wrapClickArcSeconds(double longitudeArcSeconds)
{
    return longitudeArcSeconds == circleArcSeconds ? 0.0 : wrapPageArcSeconds(longitudeArcSeconds);
}

double wrapHalfCircleArcSeconds(double longitudeArcSeconds)
{
    const double east = wrapPageArcSeconds(longitudeArcSeconds);
    return std::isfinite(east) && east > halfCircleArcSeconds ? east - circleArcSeconds : east;
}

int truncatedInt(double value)
{
    return value > -2147483649.0 && value < 2147483648.0 ? static_cast<int>(value) : INT_MIN;
}

QString latitudeText(double latSec, bool withSecondMark)
{
    const QString hemisphere = latSec < 0.0 ? QStringLiteral("S") : QStringLiteral("N");
    return positionText(std::fabs(latSec), 2, hemisphere, withSecondMark);
}

QString longitudeText(double lonSec, bool withSecondMark)
{
    const double wrapped = wrapHalfCircleArcSeconds(lonSec);
    const QString hemisphere = wrapped < 0.0 ? QStringLiteral("W") : QStringLiteral("E");
    return positionText(std::fabs(wrapped), 3, hemisphere, withSecondMark);
}
