#pragma once

#include "command.h"
#include "memory.h"
#include "soakworld.h"
#include "watchdog.h"

#include <QElapsedTimer>
#include <QMap>
#include <QObject>
#include <QStringList>
#include <QVector>

#include <memory>

struct SoakOptions
{
    unsigned seed = 1;
    int seconds = 120;
    int until = 0;           ///< number of the last command; 0 for none: the time decides
    double mostGrowth = 0.0; ///< kilobytes for a thousand commands; 0 does not judge
    double warmUp = 0.3;     ///< share of the time after which the memory is judged
    QStringList only;        ///< names of the commands that are run; empty for all of them
    bool quiet = false;      ///< the commands are told only after a failure
};

/// Gives the window one random command after the other, from the event loop of the application as a user would, and
/// checks the window after each of them.
class Soak : public QObject
{
    Q_OBJECT

public:
    Soak(SoakWorld& soakedWorld, const SoakOptions& soakOptions);

    /// Runs until the time is over, the last command is through or something is wrong. False in the last case, and
    /// where the memory was to be judged and there were too few samples.
    bool run();

private slots:
    void step();
    void check();

private:
    const Command& choose();
    void log(const QString& line);
    void lookAtMemory();
    bool isOver() const;
    void printTable() const;
    bool judgeMemory();

    SoakWorld& world;
    const SoakOptions options;
    const QVector<Command> commands;
    int number = 0; ///< of the present command, from 1
    const char* present = "";
    QMap<QString, int> counts;
    QMap<QString, double> spent; ///< milliseconds, the check included
    QElapsedTimer commandClock;
    QStringList lastLines;
    QVector<MemorySample> samples;
    QElapsedTimer sampleClock; ///< since the last sample
    QElapsedTimer clock;
    std::unique_ptr<Watchdog> dog; ///< over the present command, its check and what the event loop does behind it
};
