#pragma once

#include <QString>

struct AeoZephanNavRecord;

/// The scripts of the simulator's aircraft, from the record that the simulator writes at the same time: volatile, so
/// that each field is loaded once.
namespace tracescript {

/// Puts the aircraft on the map.
QString start(const volatile AeoZephanNavRecord& record);
/// Moves it, and with `follow` the map with it.
QString move(const volatile AeoZephanNavRecord& record, bool follow);

} // namespace tracescript
