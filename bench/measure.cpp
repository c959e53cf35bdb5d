#include "measure.h"

#include <QElapsedTimer>
#include <QFile>

#include <algorithm>
#include <cstdio>
#include <ctime>

namespace {

struct Options
{
    bool byProcessor = false;
    bool quick = false;
    QString figures;
    QString place;
};

Options& options()
{
    static Options all;
    return all;
}

void addToFile(const Figure& figure, const QString& subject)
{
    QFile file(options().figures);
    const QStringList fields{QStringLiteral("figure"),
                             subject,
                             figure.name,
                             QString::number(figure.value, 'f', 3),
                             figure.unit,
                             figure.goal > 0.0 ? QString::number(figure.goal) : QString()};
    const QByteArray line = fields.join('\t').toUtf8() + '\n';
    if (!file.open(QIODevice::Append) || file.write(line) != line.size() || !file.flush()) {
        qFatal("%s cannot be written", qPrintable(options().figures));
    }
}

} // namespace

QStringList takeMeasureOptions(const QStringList& arguments)
{
    QStringList rest = arguments.mid(1);
    options().byProcessor = rest.removeAll("--cpu") > 0;
    options().quick = rest.removeAll("--quick") > 0;
    const int figures = rest.indexOf("--figures");
    if (figures >= 0) {
        if (figures + 1 == rest.size()) {
            qFatal("--figures wants a file");
        }
        options().figures = rest.at(figures + 1);
        rest.erase(rest.begin() + figures, rest.begin() + figures + 2);
    }
    return rest;
}

bool isQuick()
{
    return options().quick;
}

int roundsOf(int usually)
{
    return isQuick() ? std::max(1, usually / 3) : usually;
}

void setFigurePlace(const QString& place)
{
    options().place = place;
}

double nowMs()
{
    if (options().byProcessor) {
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

void printFigure(const Figure& figure)
{
    const QString& place = options().place;
    const QString subject = place.isEmpty() ? figure.subject : figure.subject + ", " + place;
    std::printf("  %-16s %-58s %12.3f %-9s", qPrintable(subject), qPrintable(figure.name), figure.value,
                qPrintable(figure.unit));
    if (figure.goal > 0.0) {
        std::printf(" goal %g %s", figure.goal, figure.value <= figure.goal ? "kept" : "MISSED");
    }
    std::puts("");
    std::fflush(stdout);
    if (!options().figures.isEmpty()) {
        addToFile(figure, subject);
    }
}
