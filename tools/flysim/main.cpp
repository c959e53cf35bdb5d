// "flysim" plays the simulator: it flies a plan, or from a start position on a course, and publishes the aircraft in
// the shared block. Free of Qt, as the simulator is.

#include "aeozephannavrecord.h"
#include "flight.h"
#include "options.h"
#include "planpoints.h"
#include "sharedblock.h"
#include "stoprequest.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <exception>

namespace {

using Clock = std::chrono::steady_clock;
using Seconds = std::chrono::duration<double>;

enum ExitCode
{
    stopped = 0,
    nothingToFly = 1,
    wrongUsage = 2
};

constexpr double arcSecondsPerDegree = 3600.0;
constexpr double secondsPerHour = 3600.0;
constexpr Seconds statusInterval(5.0);

int complain(const std::string& what, ExitCode code)
{
    std::fprintf(stderr, "flysim: %s\n", what.c_str());
    return code;
}

/// The way through the plan. Empty with `error` when there is nothing to fly.
std::vector<GeoPoint> pointsToFly(const std::string& path, std::string& error)
{
    const PlanPoints plan = readPlanFile(path, error);
    if (!error.empty()) {
        return {};
    }
    const std::size_t found = plan.points.size();
    if (static_cast<int>(found) < plan.waypoints) {
        std::fprintf(stderr, "flysim: %d of the plan's %d points have no position that can be read and are left out\n",
                     plan.waypoints - static_cast<int>(found), plan.waypoints);
    }
    if (found < 2) {
        error = path + ": has fewer than two points to fly between";
        return {};
    }
    std::vector<GeoPoint> places;
    places.reserve(found);
    for (const PlanPoint& point : plan.points) {
        places.push_back(point.place);
    }
    return places;
}

/// The longitude goes as an atlas has it, -648000 to 648000 arc seconds; the rest of the record is the simulator's.
void publish(const Fix& fix, AeoZephanNavRecord& record)
{
    record.latS = fix.place.latitude * arcSecondsPerDegree;
    record.lonS = fix.place.longitude * arcSecondsPerDegree;
    record.heading = fix.heading;
}

void printStatus(const Fix& fix, double flown, double length)
{
    std::printf("%9.5f %10.5f  heading %5.1f  %.1f NM", fix.place.latitude, fix.place.longitude, fix.heading, flown);
    if (std::isfinite(length)) {
        std::printf(" of %.1f NM", length);
    }
    std::printf("%s\n", flown >= length ? ", at the last point" : "");
    std::fflush(stdout);
}

/// Flies until somebody asks it to stop.
void fly(const Route& route, const Options& options, AeoZephanNavRecord& record)
{
    const double length = route.length();
    const double milesPerSecond = options.speed * options.factor / secondsPerHour;
    const bool again = options.loop && length > 0.0;
    const auto period = std::chrono::duration_cast<Clock::duration>(Seconds(1.0 / options.rate));
    const Clock::time_point start = Clock::now();
    Clock::time_point nextStatus = start;
    for (Clock::time_point next = start; !stopAskedBefore(next);) {
        const Clock::time_point now = Clock::now();
        const double way = milesPerSecond * Seconds(now - start).count();
        const double flown = again ? std::fmod(way, length) : std::fmin(way, length);
        const Fix fix = route.fixAfter(flown);
        publish(fix, record);
        if (now >= nextStatus) {
            printStatus(fix, flown, length);
            nextStatus = now + std::chrono::duration_cast<Clock::duration>(statusInterval);
        }
        // After a pause of the machine no burst of records follows.
        next = std::max(next + period, now);
    }
}

int run(const std::vector<std::string>& arguments)
{
    Options options;
    std::string error;
    if (!readOptions(arguments, options, error)) {
        return complain(error + "; --help tells more", wrongUsage);
    }
    if (options.help) {
        std::fputs(helpText().c_str(), stdout);
        return stopped;
    }
    std::vector<GeoPoint> points;
    if (!options.plan.empty()) {
        points = pointsToFly(options.plan, error);
        if (!error.empty()) {
            return complain(error, nothingToFly);
        }
    }
    SharedBlock block;
    void* const view = block.attach() ? block.map() : nullptr;
    if (view == nullptr) {
        return complain("the system refuses the shared block", nothingToFly);
    }
    listenForStop();
    fly(points.empty() ? Route(options.start, options.course) : Route(points), options,
        *static_cast<AeoZephanNavRecord*>(view));
    return stopped;
}

} // namespace

int main(int argc, char* argv[])
{
    try {
        return run(std::vector<std::string>(argv + 1, argv + argc));
    } catch (const std::exception& failure) {
        return complain(failure.what(), nothingToFly);
    }
}
