#include "pace.h"

#include <array>
#include <cmath>
#include <cstdio>

double flownAfter(double seconds, double length, const Options& options)
{
    constexpr double secondsPerHour = 3600.0;
    const double way = options.speed * options.factor / secondsPerHour * seconds;
    return options.loop && length > 0.0 ? std::fmod(way, length) : std::fmin(way, length);
}

std::chrono::steady_clock::duration periodOf(double rate)
{
    return std::chrono::duration_cast<std::chrono::steady_clock::duration>(std::chrono::duration<double>(1.0 / rate));
}

std::string statusText(const Fix& fix, double flown, double length)
{
    std::array<char, 100> place{};
    std::snprintf(place.data(), place.size(), "%9.5f %10.5f  heading %5.1f  %.1f NM", fix.place.latitude,
                  fix.place.longitude, fix.heading, flown);
    std::array<char, 40> whole{};
    if (std::isfinite(length)) {
        std::snprintf(whole.data(), whole.size(), " of %.1f NM", length);
    }
    return std::string(place.data()) + whole.data() + (flown >= length ? ", at the last point" : "");
}
