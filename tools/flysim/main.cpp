// "flysim" plays the simulator: it flies a plan, or from a start position on a course, and publishes the aircraft in
// the shared block. Free of Qt, as the simulator is.

#include "aeozephannavrecord.h"
#include "flight.h"
#include "options.h"
#include "pace.h"
#include "planpoints.h"
#include "sharedblock.h"
#include "stoprequest.h"

#include <algorithm>
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
constexpr std::chrono::seconds statusInterval(5);

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
/// Volatile because another process reads it: each store is one of its own, in this order.
void publish(const Fix& fix, volatile AeoZephanNavRecord& record)
{
    record.latS = fix.place.latitude * arcSecondsPerDegree;
    record.lonS = fix.place.longitude * arcSecondsPerDegree;
    record.heading = fix.heading;
}

/// Flies until somebody asks it to stop. False when the block is gone.
bool fly(const Route& route, const Options& options, SharedBlock& block)
{
    auto& record = *static_cast<volatile AeoZephanNavRecord*>(block.map());
    const double length = route.length();
    const Clock::duration period = periodOf(options.rate);
    const Clock::time_point start = Clock::now();
    Clock::time_point nextStatus = start;
    for (Clock::time_point next = start; !stopAskedBefore(next);) {
        const Clock::time_point now = Clock::now();
        const double flown = flownAfter(Seconds(now - start).count(), length, options);
        const Fix fix = route.fixAfter(flown);
        // A block that somebody has cut short is made whole again.
        if (!block.holdsView() && !block.attach()) {
            return false;
        }
        publish(fix, record);
        if (now >= nextStatus) {
            std::puts(statusText(fix, flown, length).c_str());
            std::fflush(stdout);
            nextStatus = now + statusInterval;
        }
        // After a pause of the machine no burst of records follows.
        next = std::max(next + period, now);
    }
    return true;
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
    listenForStop();
    if (!block.attach() || block.map() == nullptr ||
        !fly(points.empty() ? Route(options.start, options.course) : Route(points), options, block)) {
        return complain("the system refuses the shared block; another user may have left it", nothingToFly);
    }
    std::puts("ended; the block keeps the last position");
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
