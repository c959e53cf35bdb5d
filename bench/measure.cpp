#include "measure.h"

#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <ctime>

namespace {

bool byProcessor = false;

} // namespace

void measureProcessorTime()
{
    byProcessor = true;
}

double nowMs()
{
    if (byProcessor) {
        return static_cast<double>(std::clock()) * 1000.0 / CLOCKS_PER_SEC;
    }
    static const QElapsedTimer timer = [] {
        QElapsedTimer started;
        started.start();
        return started;
    }();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

double elapsedMs(const std::function<void()>& work)
{
    const double before = nowMs();
    work();
    return nowMs() - before;
}

double median(std::vector<double> values)
{
    if (values.empty()) {
        return 0.0;
    }
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2.0;
}

double medianMs(int rounds, const std::function<void()>& work)
{
    work();
    std::vector<double> times;
    times.reserve(static_cast<std::size_t>(rounds));
    for (int round = 0; round < rounds; ++round) {
        times.push_back(elapsedMs(work));
    }
    return median(times);
}

Comparison compareMs(int rounds, const std::function<void()>& first, const std::function<void()>& second)
{
    std::vector<double> firstTimes;
    std::vector<double> secondTimes;
    first();
    second();
    for (int round = 0; round < rounds; ++round) {
        firstTimes.push_back(elapsedMs(first));
        secondTimes.push_back(elapsedMs(second));
    }
    const double firstMs = median(firstTimes);
    const double secondMs = median(secondTimes);
    return {firstMs, secondMs, secondMs / firstMs};
}

void printFigure(const QString& subject, double value, const char* unit)
{
    std::printf("  %-58s %12.3f %s\n", qPrintable(subject), value, unit);
    std::fflush(stdout);
}
