#pragma once

#include <QString>

#include <functional>
#include <vector>

/// From here on times are those of the processor on this program, not the clock's: for a machine with other work.
void measureProcessorTime();

/// Milliseconds since some moment.
double nowMs();

/// Milliseconds that one call takes.
double elapsedMs(const std::function<void()>& work);

/// The middle value; of an even number of values the mean of the middle two, of none 0.
double median(std::vector<double> values);

/// Median of the milliseconds that each of `rounds` calls takes, after one call that is not counted.
double medianMs(int rounds, const std::function<void()>& work);

struct Comparison
{
    double firstMs;
    double secondMs;
    double ratio; ///< the second to the first
};

/// Medians of two works that take turns, so that both meet the same weather of the machine. One call of each is not
/// counted.
Comparison compareMs(int rounds, const std::function<void()>& first, const std::function<void()>& second);

/// Prints one line of the report: what was measured, and its figure with the unit.
void printFigure(const QString& subject, double value, const char* unit);
