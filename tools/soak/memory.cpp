// What the process holds of the machine's memory, and how that changes.
#include "memory.h"

#include <QFile>
#include <QPixmapCache>
#include <QWebSettings>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

double residentMegabytes()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly)) {
        return 0.0; // not Linux: nothing is measured
    }
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmRSS:")) {
            return line.mid(6).trimmed().split(' ').first().toDouble() / 1024.0;
        }
    }
    return 0.0;
}

} // namespace

MemorySample sampleMemory(int commands, double seconds)
{
    // Collects the scripts' rubbish too, which the engine would do in its own time.
    QWebSettings::clearMemoryCaches();
    QPixmapCache::clear();
#ifdef __GLIBC__
    malloc_trim(0);
#endif
    return {commands, seconds, residentMegabytes()};
}

double growthPerThousand(const QVector<MemorySample>& samples)
{
    // The straight line with the least squares.
    double meanCommands = 0.0;
    double meanMegabytes = 0.0;
    for (const MemorySample& sample : samples) {
        meanCommands += sample.commands / double(samples.size());
        meanMegabytes += sample.megabytes / double(samples.size());
    }
    double together = 0.0;
    double squares = 0.0;
    for (const MemorySample& sample : samples) {
        const double commands = sample.commands - meanCommands;
        together += commands * (sample.megabytes - meanMegabytes);
        squares += commands * commands;
    }
    return squares > 0.0 ? together / squares * 1000.0 * 1024.0 : 0.0;
}
