#pragma once

#include <QString>

/// Wraps and conversions of positions. Positions are double arc seconds or degrees, north and east positive.
///
/// Each wrap gives what repeated adding or subtracting of the circle gives, in constant time, for every finite
/// value; infinities and NaN come back as they are, so that a damaged file can neither hang nor crash a caller.

constexpr double arcSecondsPerDegree = 3600.0;
constexpr double circleArcSeconds = 1296000.0;
constexpr double halfCircleArcSeconds = 648000.0;
constexpr double radiansPerDegree = 0.017453292519943295;
constexpr double degreesPerRadian = 57.29577951308232;

/// A longitude in degrees as the map page takes it: -180 (exclusive when it came from above 180) to 180.
/// 180 stays 180, 181 becomes -179, -180 becomes 180.
double wrapScriptDegrees(double longitudeDegrees);

/// A course in degrees: 0 up to but not including 360.
double wrapCourseDegrees(double degrees);

/// A longitude in arc seconds as positions from the page are kept: 0 to 1296000, both ends included.
double wrapPageArcSeconds(double longitudeArcSeconds);

/// As wrapPageArcSeconds, but exactly one full circle becomes 0: the form of a point clicked on the map.
double wrapClickArcSeconds(double longitudeArcSeconds);

/// A longitude in arc seconds for reading and for the leg arithmetic: above -648000 up to 648000, 648000 staying east.
double wrapHalfCircleArcSeconds(double longitudeArcSeconds);

/// The whole part of a double. What does not fit an int gives the smallest int, as the processor's conversion does.
int truncatedInt(double value);

/// A latitude in arc seconds as text: `48 45' 30.60" N`; without the second mark `48 45' 30.60 N`.
QString latitudeText(double latSec, bool withSecondMark);

/// A longitude in arc seconds as text, wrapped to the half circle first: `001 00' 00.00" W`.
QString longitudeText(double lonSec, bool withSecondMark);
