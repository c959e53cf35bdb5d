#include "tracescript.h"

#include "aeozephannavrecord.h"
#include "mapscript.h"
#include "positions.h"

namespace {

/// The aircraft's place: the longitude goes to the page as the simulator gives it, not wrapped. There is no lock, so
/// latitude and longitude may come from two writes of the simulator, which a marker on a map can bear.
mapscript::Place placeOf(const volatile AeoZephanNavRecord& record)
{
    return {record.latS / arcSecondsPerDegree, record.lonS / arcSecondsPerDegree};
}

} // namespace

namespace tracescript {

QString start(const volatile AeoZephanNavRecord& record)
{
    return mapscript::addAircraft(placeOf(record), record.heading);
}

QString move(const volatile AeoZephanNavRecord& record, bool follow)
{
    const auto script = follow ? mapscript::followAircraft : mapscript::moveAircraft;
    return script(placeOf(record), record.heading);
}

} // namespace tracescript
