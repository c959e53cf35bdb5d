// What the trace of the simulator's aircraft costs, from the record to the page drawn: at the settings' default
// interval and at a slow one, with the map standing still and with the map following; and what it leaves in the memory.
#include "aeozephannavrecord.h"
#include "benchwindow.h"
#include "cnavglobalvar.h"
#include "flight.h"
#include "mainwindow.h"
#include "measure.h"
#include "sharedblock.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QFile>
#include <QPushButton>
#include <QTimer>
#include <QWebFrame>
#include <QWebView>

#include <algorithm>
#include <cstdio>
#include <ctime>

namespace {

constexpr int never = 24 * 3600 * 1000; // milliseconds
constexpr int settleMs = 2000;

/// Milliseconds that the process has kept processors busy, all its threads together.
double processorMs()
{
    return 1000.0 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

/// An application that knows how long its event loop was busy.
class ClockedApplication : public QApplication
{
public:
    ClockedApplication(int& argc, char** argv) : QApplication(argc, argv)
    {
        // Said in each turn, before the loop waits and looks for what comes from outside.
        connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this, [this] {
            longestTurnMs = turnHasEvents ? std::max(longestTurnMs, elapsed(turn)) : longestTurnMs;
            turnHasEvents = false;
        });
    }

    bool notify(QObject* receiver, QEvent* event) override
    {
        drawings += event->type() == QEvent::Paint && receiver == map ? 1 : 0;
        if (inEvent) {
            return QApplication::notify(receiver, event);
        }
        inEvent = true;
        single.start();
        if (!turnHasEvents) {
            turnHasEvents = true;
            turn.start();
        }
        const bool taken = QApplication::notify(receiver, event);
        const double took = elapsed(single);
        busyMs += took;
        longestEventMs = std::max(longestEventMs, took);
        inEvent = false;
        return taken;
    }

    const QObject* map = nullptr;
    int drawings = 0;            ///< of the map
    double busyMs = 0.0;         ///< in events that are through
    double longestEventMs = 0.0; ///< of them
    /// The longest that a click has to wait: from the first event of a turn of the loop to the next turn.
    double longestTurnMs = 0.0;

private:
    static double elapsed(const QElapsedTimer& timer)
    {
        return static_cast<double>(timer.nsecsElapsed()) / 1e6;
    }

    bool inEvent = false;
    bool turnHasEvents = false;
    QElapsedTimer single;
    QElapsedTimer turn;
};

/// Keeps the program's own tick away while the bench ticks by itself, and leaves the user's interval in the settings.
class NoTickOfItsOwn
{
public:
    NoTickOfItsOwn() : settings(*CNavGlobalVar::instance()), interval(settings.traceInterval)
    {
        settings.traceInterval = never;
    }
    ~NoTickOfItsOwn()
    {
        settings.traceInterval = interval;
    }
    Q_DISABLE_COPY(NoTickOfItsOwn)

private:
    CNavGlobalVar& settings;
    const int interval;
};

/// The aircraft in the block: from Paris to the south-west in tens of minutes.
class Simulator
{
public:
    Simulator() : route(GeoPoint{48.7295, 2.359}, 200.0)
    {
        if (!block.attach() || block.map() == nullptr) {
            qFatal("the system refuses the shared block");
        }
    }

    void publish(double miles)
    {
        const Fix fix = route.fixAfter(miles);
        auto* record = static_cast<AeoZephanNavRecord*>(block.map());
        record->latS = fix.place.latitude * 3600.0;
        record->lonS = fix.place.longitude * 3600.0;
        record->heading = fix.heading;
    }

private:
    SharedBlock block;
    Route route;
};

void runFor(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

class TraceBench
{
public:
    TraceBench(ClockedApplication& timedApplication, MainWindow& mainWindow)
        : application(timedApplication), window(mainWindow)
    {
    }

    void trace(bool on)
    {
        auto* button = window.findChild<QPushButton*>("pbTraceAcft");
        if (button->isChecked() != on) {
            button->click();
        }
    }

    void follow(bool on)
    {
        window.findChild<QPushButton*>("pbCenterAcft")->setChecked(on);
        evaluate("map.setZoom(9);map.setCenter(new google.maps.LatLng(48.7295,2.359));");
        way = 0.0;
        runFor(settleMs);
    }

    void idle()
    {
        const double processor = processorMs();
        runFor(settleMs);
        report("the window at rest: share of one core", (processorMs() - processor) / settleMs * 100.0, "%");
    }

    /// The loop of the program with a tick at an interval in milliseconds.
    void measure(int interval, int ticks, const QString& subject)
    {
        std::vector<double> processor;
        std::vector<double> busy;
        QElapsedTimer wall;
        QTimer timer;
        QEventLoop loop;
        application.longestEventMs = 0.0;
        application.longestTurnMs = 0.0;
        application.drawings = 0;
        wall.start();
        // What a tick costs shows at the next one, when the page has drawn it.
        QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
            processor.push_back(processorMs());
            busy.push_back(application.busyMs);
            if (static_cast<int>(busy.size()) > ticks) {
                loop.quit();
                return;
            }
            tick(interval);
        });
        timer.start(interval);
        loop.exec();
        const double wallMs = static_cast<double>(wall.nsecsElapsed()) / 1e6;
        const double processorSum = processor.back() - processor.front();
        report(subject + ", a tick, median, processor", median(differences(processor)), "ms", 1.0);
        report(subject + ", a tick, mean, processor", processorSum / ticks, "ms");
        report(subject + ", a tick, median, event loop", median(differences(busy)), "ms");
        report(subject + ", a tick, mean, event loop", (busy.back() - busy.front()) / ticks, "ms");
        report(subject + ", share of one core", processorSum / wallMs * 100.0, "%");
        report(subject + ", longest single event", application.longestEventMs, "ms");
        report(subject + ", longest turn of the event loop", application.longestTurnMs, "ms");
        report(subject + ", drawings of the map", application.drawings / wallMs * 1000.0, "a second");
    }

    /// Ticks as fast as they go, the page drawing meanwhile.
    void measureMemory(const QString& subject)
    {
        constexpr int warmUp = 20000;
        constexpr int ticks = 100000;
        run(warmUp);
        const double before = residentMegabytes();
        run(ticks / 2);
        const double half = residentMegabytes();
        run(ticks / 2);
        const double after = residentMegabytes();
        report(subject + ", memory before 100,000 ticks", before, "MB");
        report(subject + ", growth over the first half of them", half - before, "MB");
        report(subject + ", growth over the second half", after - half, "MB");
    }

private:
    /// A tick after so many milliseconds of flight: 450 knots, with the time going twenty times as fast.
    void tick(int milliseconds)
    {
        constexpr double milesPerMillisecond = 0.0025;
        way += milesPerMillisecond * milliseconds;
        simulator.publish(way);
        QMetaObject::invokeMethod(&window, "sTraceAircraft", Qt::DirectConnection);
    }

    void run(int ticks)
    {
        for (int i = 0; i < ticks; ++i) {
            tick(2);
            QApplication::processEvents();
        }
    }

    void evaluate(const QString& script)
    {
        window.findChild<QWebView*>("map")->page()->mainFrame()->evaluateJavaScript(script);
    }

    static std::vector<double> differences(const std::vector<double>& values)
    {
        std::vector<double> steps;
        for (std::size_t i = 1; i < values.size(); ++i) {
            steps.push_back(values[i] - values[i - 1]);
        }
        return steps;
    }

    /// What the process holds of the memory; 0 on a system that does not tell it there.
    static double residentMegabytes()
    {
        QFile status("/proc/self/status");
        if (!status.open(QIODevice::ReadOnly)) {
            return 0.0;
        }
        for (const QByteArray& line : status.readAll().split('\n')) {
            if (line.startsWith("VmRSS:")) {
                return line.mid(6).trimmed().split(' ').first().toDouble() / 1024.0;
            }
        }
        return 0.0;
    }

    static void report(const QString& name, double value, const char* unit, double goal = 0.0)
    {
        printFigure({"trace", name, value, unit, goal});
    }

    ClockedApplication& application;
    MainWindow& window;
    Simulator simulator;
    double way = 0.0; // NM
};

} // namespace

int main(int argc, char* argv[])
{
    ClockedApplication application(argc, argv);
    QStringList arguments = takeMeasureOptions(application.arguments());
    // Some minutes, and the same on every simulator.
    const bool memory = arguments.removeAll("--memory") > 0;
    enterSimulator(arguments.value(0));
    MainWindow window;
    window.resize(1320, 1080);
    window.show();
    waitUntilLoaded(window);
    application.map = window.findChild<QWebView*>("map");
    const NoTickOfItsOwn quiet;

    TraceBench bench(application, window);
    bench.follow(false);
    bench.idle();
    bench.trace(true);
    std::puts("  (at 2 ms several ticks share one drawing: the median is a tick without it, the mean has its share)");
    for (const bool following : {false, true}) {
        const QString map = following ? "map following" : "map still";
        bench.follow(following);
        bench.measure(2, roundsOf(2000), "2 ms, " + map);
        bench.follow(following);
        bench.measure(100, roundsOf(100), "100 ms, " + map);
    }
    for (const bool following : {false, true}) {
        if (!memory) {
            break;
        }
        bench.follow(following);
        bench.measureMemory(following ? "map following" : "map still");
    }
    bench.trace(false);
}
