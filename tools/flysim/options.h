#pragma once

#include "flight.h"

#include <string>
#include <vector>

/// What the command line asks for.
struct Options
{
    bool help = false;
    std::string plan;         ///< path of a .fpl file; empty for a flight from a start position
    GeoPoint start{0.0, 0.0}; ///< degrees; when there is no plan
    double course = 0.0;      ///< true course from the start position, degrees, 0 to 360
    double speed = 120.0;     ///< knots
    double factor = 1.0;      ///< how many seconds of flight pass in one second
    double rate = 25.0;       ///< records a second
    bool loop = false;        ///< at the plan's end begin again
};

/// Takes the arguments behind the program's name. False with `error`, one English sentence, when they cannot be
/// understood.
bool readOptions(const std::vector<std::string>& arguments, Options& options, std::string& error);

/// What --help prints.
std::string helpText();
