#pragma once

#include <cstddef>
#include <limits>

/// The aircraft's state as the running simulator publishes it at the start of the shared block: little-endian, with no
/// lock and no sequence number. What stands between the three fields belongs to the simulator.
struct AeoZephanNavRecord
{
    unsigned char simulator0[32];
    double latS; ///< arc seconds, north positive
    double lonS; ///< arc seconds, on either side of the zero point
    unsigned char simulator48[16];
    double heading; ///< degrees
    unsigned char simulator72[8];
};

static_assert(std::numeric_limits<double>::is_iec559 && sizeof(double) == 8, "the record holds IEEE 754 doubles");
static_assert(offsetof(AeoZephanNavRecord, latS) == 32, "the simulator's place of the latitude");
static_assert(offsetof(AeoZephanNavRecord, lonS) == 40, "the simulator's place of the longitude");
static_assert(offsetof(AeoZephanNavRecord, heading) == 64, "the simulator's place of the heading");
static_assert(sizeof(AeoZephanNavRecord) == 80, "the mapped part of the block");
