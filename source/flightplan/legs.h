#pragma once

#include "cfpline.h"

#include <QList>

/// The great circle from one point to another.
struct Leg
{
    double course;   ///< initial true course, degrees, 0 up to but not including 360
    double distance; ///< nautical miles; NaN where rounding carries the cosine past 1
};

/// The stored longitudes are wrapped for the arithmetic only. Positions that are no numbers give a leg of NaN.
Leg legBetween(const CFpLine& from, const CFpLine& to);

/// Fills course, distance and minutes of every line but the last, and copies `timeAt` down the plan.
/// Fewer than two lines change nothing; the last line keeps what it has.
void computeLegs(const QList<CFpLinePtr>& lines);

/// Gives `altitude` (feet) to `row` and to all lines behind it but the last: the destination keeps its own.
/// A row that is not there changes nothing.
void copyAltitudeDown(const QList<CFpLinePtr>& lines, int row, int altitude);
