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

// A start makes thousands of position texts, so they are put together piece by piece instead of filling a pattern.
void appendPadded(QString& text, const QString& number, int width)
{
    for (int i = number.size(); i < width; ++i) {
        text += QLatin1Char('0');
    }
    text += number;
}

void appendWhole(QString& text, double value, int width)
{
    if (!(value < 1000.0)) { // also NaN
        appendPadded(text, QString::number(value, 'f', 0), width);
        return;
    }
    const int whole = static_cast<int>(value);
    if (width > 2 || whole > 99) {
        text += QLatin1Char(static_cast<char>('0' + whole / 100));
    }
    text += QLatin1Char(static_cast<char>('0' + whole / 10 % 10));
    text += QLatin1Char(static_cast<char>('0' + whole % 10));
}

QString positionText(double arcSeconds, int degreeWidth, QChar hemisphere, bool withSecondMark)
{
    const double degreesWithFraction = arcSeconds / arcSecondsPerDegree;
    const double degrees = std::trunc(degreesWithFraction);
    const double minutesWithFraction = (degreesWithFraction - degrees) * 60.0;
    const double minutes = std::trunc(minutesWithFraction);
    const double seconds = 60.0 * (minutesWithFraction - minutes);
    QString text;
    text.reserve(16);
    appendWhole(text, degrees, degreeWidth);
    text += QLatin1Char(' ');
    appendWhole(text, minutes, 2);
    text += QLatin1String("' ");
    appendPadded(text, QString::number(seconds, 'f', 2), 5);
    text += QLatin1String(withSecondMark ? "\" " : " ");
    text += hemisphere;
    return text;
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
    const QChar hemisphere = QLatin1Char(latSec < 0.0 ? 'S' : 'N');
    return positionText(std::fabs(latSec), 2, hemisphere, withSecondMark);
}

QString longitudeText(double lonSec, bool withSecondMark)
{
    const double wrapped = wrapHalfCircleArcSeconds(lonSec);
    const QChar hemisphere = QLatin1Char(wrapped < 0.0 ? 'W' : 'E');
    return positionText(std::fabs(wrapped), 3, hemisphere, withSecondMark);
}
