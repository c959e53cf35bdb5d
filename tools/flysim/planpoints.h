#pragma once

#include "flight.h"

#include <iosfwd>
#include <string>
#include <vector>

struct PlanPoint
{
    std::string iden; ///< as the plan spells it, in the plan's own bytes
    GeoPoint place;
};

/// What a .fpl file gives to somebody who only flies it.
struct PlanPoints
{
    std::vector<PlanPoint> points;
    int waypoints = 0; ///< how many the plan has, those without a readable position included
};

/// Reads the points of a flight plan. Tags and values are taken as the flight planner takes them: whatever the
/// indentation, with carriage returns or without. A waypoint is left out of the points when its position is missing, is
/// no pair of numbers, or lies beyond a pole. Foreign bytes give no points.
PlanPoints readPlanPoints(std::istream& plan);

/// The same from a file. On failure `error` says why, in English: no such file, no file to read, no flight plan.
PlanPoints readPlanFile(const std::string& path, std::string& error);

/// A whole text as a number, with a point for the decimals in every locale, with a plus sign or without. False when it
/// is no finite number.
bool readNumber(const std::string& text, double& number);

/// Splits "LATITUDE,LONGITUDE", with or without further parts behind a comma, into two finite numbers.
bool readPair(const std::string& text, double& first, double& second);
