#pragma once

#include "flight.h"
#include "options.h"

#include <chrono>
#include <string>

/// What flysim's clock makes of the command line.

/// NM along a way of a length in NM, infinity for one without end, so many seconds after the start: by speed and factor
/// to the last point, or round and round.
double flownAfter(double seconds, double length, const Options& options);

/// The time from one record to the next at a rate, records a second, above 0.
std::chrono::steady_clock::duration periodOf(double rate);

/// One line without its end: the fix, the NM flown, those of the whole way when it has an end, and whether that is
/// reached.
std::string statusText(const Fix& fix, double flown, double length);
