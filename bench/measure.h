#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

/// Takes what all the programs understand out of the command line and returns the rest, without the program's name:
/// "--cpu" for times of the processor on this program instead of the clock's, for a machine with other work, "--quick"
/// for fewer rounds, "--figures FILE" for a file to which each figure is added as a line.
QStringList takeMeasureOptions(const QStringList& arguments);

/// How often to do something that is usually done so many times: a third of it when it is to go quickly, but once.
int roundsOf(int usually);

/// Whether "--quick" was given.
bool isQuick();

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

/// What was measured, and what came out.
struct Figure
{
    QString subject; ///< what it belongs to: "search"
    QString name;    ///< no tab in it
    double value;
    QString unit;      ///< empty for a ratio
    double goal = 0.0; ///< the most that is wanted; 0 for none
};

/// From here on the subjects of figures are those of a place: "search, world".
void setFigurePlace(const QString& place);

/// Prints a figure as a line to be read, and adds it to the file of "--figures" as
/// "figure", subject, name, value, unit and goal with a tab between them. Ends the process with a message when that
/// file cannot be written.
void printFigure(const Figure& figure);
