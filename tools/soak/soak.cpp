// The loop of the commands, its log and its tables.
#include "soak.h"

#include "checks.h"

#include <QCoreApplication>
#include <QTimer>

#include <cstdio>

namespace {

constexpr int pause = 5;          // milliseconds between a command and its check: the window draws and the page rests
constexpr int sampleEvery = 100;  // commands
constexpr int samplePause = 5000; // milliseconds after which there is a sample however few commands there were
constexpr int keptLines = 40;

void print(const QString& line)
{
    std::printf("%s\n", qPrintable(line));
    std::fflush(stdout);
}

} // namespace

QVector<Command> allCommands()
{
    QVector<Command> all;
    for (const auto group : {planCommands, gridCommands, fileCommands, searchCommands, viewCommands, mapCommands,
                             dataCommands, procedureCommands, traceCommands, shellCommands}) {
        all += group();
    }
    return all;
}

Soak::Soak(SoakWorld& soakedWorld, const SoakOptions& soakOptions)
    : world(soakedWorld), options(soakOptions), commands(allCommands())
{
    for (const Command& command : commands) {
        counts[command.name] = 0;
    }
}

bool Soak::run()
{
    clock.start();
    sampleClock.start();
    QTimer::singleShot(0, this, &Soak::step);
    QCoreApplication::exec();
    dog.reset();
    const bool whole = world.failure().isEmpty();
    if (!whole) {
        if (options.quiet) {
            print(lastLines.join('\n'));
        }
        print(QString("FAILED at command %1: %2").arg(number).arg(world.failure()));
        print(QString("again: soak --seed %1 --until %2").arg(options.seed).arg(number));
    }
    printTable();
    return judgeMemory() && whole;
}

const Command& Soak::choose()
{
    QVector<int> possible;
    int sum = 0;
    for (int i = 0; i < commands.size(); ++i) {
        const bool wanted = options.only.isEmpty() || options.only.contains(commands.at(i).name);
        if (!wanted) {
            continue;
        }
        if (commands.at(i).possible == nullptr || commands.at(i).possible(world)) {
            possible << i;
            sum += commands.at(i).weight;
        }
    }
    if (possible.isEmpty()) {
        world.require(false, "no command is possible");
        return commands.first();
    }
    int left = world.dice.below(sum);
    for (const int i : possible) {
        left -= commands.at(i).weight;
        if (left < 0) {
            return commands.at(i);
        }
    }
    return commands.first();
}

void Soak::step()
{
    const Command& command = choose();
    ++number;
    present = command.name;
    ++counts[command.name];
    commandClock.start();
    world.takeKeyboard();
    // Until the next one: over the window's own work behind the command and over the checks as well.
    dog.reset(); // its end first, or the two would bite side by side
    dog = std::make_unique<Watchdog>(
        QString("command %1, %2, of seed %3").arg(number).arg(command.name).arg(options.seed));
    command.run(world);
    QTimer::singleShot(pause, this, &Soak::check);
}

void Soak::check()
{
    checkAll(world);
    spent[present] += static_cast<double>(commandClock.nsecsElapsed()) / 1e6;
    log(QString("%1 %2 %3 %4").arg(number, 7).arg(QLatin1String(present), -28).arg(digest(world), world.takeNotes()));
    if (number % sampleEvery == 0 || sampleClock.hasExpired(samplePause)) {
        lookAtMemory();
    }
    if (!world.failure().isEmpty() || isOver()) {
        QCoreApplication::quit();
        return;
    }
    QTimer::singleShot(0, this, &Soak::step);
}

bool Soak::isOver() const
{
    return options.until > 0 ? number >= options.until : clock.hasExpired(1000LL * options.seconds);
}

void Soak::log(const QString& line)
{
    if (!options.quiet) {
        print(line);
        return;
    }
    lastLines << line;
    if (lastLines.size() > keptLines) {
        lastLines.removeFirst();
    }
}

void Soak::lookAtMemory()
{
    samples << sampleMemory(number, static_cast<double>(clock.elapsed()) / 1000.0);
    sampleClock.start();
}

void Soak::printTable() const
{
    print(QString("\nseed %1, %2 commands in %3 s").arg(options.seed).arg(number).arg(clock.elapsed() / 1000));
    for (auto count = counts.begin(); count != counts.end(); ++count) {
        print(QString("  %1 %2 %3 ms")
                  .arg(count.key(), -32)
                  .arg(count.value(), 6)
                  .arg(spent.value(count.key()) / qMax(1, count.value()), 8, 'f', 0));
    }
    if (!world.allowedMessages.isEmpty()) {
        print("messages that may be:");
    }
    for (auto message = world.allowedMessages.begin(); message != world.allowedMessages.end(); ++message) {
        print(QString("  %1 times: %2").arg(message.value(), 6).arg(message.key()));
    }
}

bool Soak::judgeMemory()
{
    constexpr int rows = 20;
    print("memory:   commands      s       MB");
    const int every = qMax(1, samples.size() / rows);
    QVector<MemorySample> judged;
    for (int i = 0; i < samples.size(); ++i) {
        const MemorySample& sample = samples.at(i);
        if (i % every == 0 || i + 1 == samples.size()) {
            print(QString("        %1 %2 %3")
                      .arg(sample.commands, 10)
                      .arg(sample.seconds, 6, 'f', 0)
                      .arg(sample.megabytes, 8, 'f', 1));
        }
        if (sample.commands > number * options.warmUp) {
            judged << sample;
        }
    }
    if (judged.size() < fewestSamples) {
        print(QString("memory NOT judged: %1 samples after the first %2 %, of %3 that it takes")
                  .arg(judged.size())
                  .arg(options.warmUp * 100)
                  .arg(fewestSamples));
        return options.mostGrowth <= 0.0; // who wants it judged is not told that it holds
    }
    const double growth = growthPerThousand(judged);
    print(QString("growth after the first %1 %: %2 kB for a thousand commands")
              .arg(options.warmUp * 100)
              .arg(growth, 0, 'f', 0));
    if (options.mostGrowth > 0.0 && growth > options.mostGrowth) {
        print(QString("FAILED: the memory grows by more than %1 kB").arg(options.mostGrowth));
        return false;
    }
    return true;
}
