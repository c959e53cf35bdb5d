#pragma once

#include <QVector>

/// Memory of the process at a moment of the soak.
struct MemorySample
{
    int commands;     ///< that were run until then
    double seconds;   ///< since the first command
    double megabytes; ///< resident, after the caches of the web engine and of the allocator have been emptied
};

/// Empties what is only kept for speed, and looks.
MemorySample sampleMemory(int commands, double seconds);

constexpr int fewestSamples = 3; ///< that make a trend

/// How the memory grows from the samples' trend, in kilobytes for a thousand commands. `samples` are `fewestSamples` or
/// more.
double growthPerThousand(const QVector<MemorySample>& samples);
