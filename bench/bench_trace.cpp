// What the trace of the simulator's aircraft costs, from the record to the page drawn: at the settings' default
// interval and at a slow one, with the map standing still and with the map following; and what it leaves in the memory.
#include "aeozephannavrecord.h"
#include "benchwindow.h"
#include "cnavglobalvar.h"
#include "flight.h"
#include "mainwindow.h"
#include "measure.h"
#include "sharedblock.h"

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
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override
    {
        drawings += event->type() == QEvent::Paint && receiver == map ? 1 : 0;
        if (inTurn) {
            return QApplication::notify(receiver, event);
        }
        inTurn = true;
        turn.start();
        const bool taken = QApplication::notify(receiver, event);
        const double took = static_cast<double>(turn.nsecsElapsed()) / 1e6;
        busyMs += took;
        longestEventMs = std::max(longestEventMs, took);
        inTurn = false;
        return taken;
    }

    const QObject* map = nullptr;
    int drawings = 0;    ///< of the map
    double busyMs = 0.0; ///< in events that are through
    /// The longest of them. Several may follow one another before the loop looks for the user's next click.
    double longestEventMs = 0.0;

private:
    bool inTurn = false;
    QElapsedTimer turn;
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
        printFigure("the window at rest: share of one core", (processorMs() - processor) / settleMs * 100.0, "%");
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
        report(subject + ", a tick, median, processor", median(differences(processor)), "ms");
        report(subject + ", a tick, mean, processor", processorSum / ticks, "ms");
        report(subject + ", a tick, median, event loop", median(differences(busy)), "ms");
        report(subject + ", a tick, mean, event loop", (busy.back() - busy.front()) / ticks, "ms");
        report(subject + ", share of one core", processorSum / wallMs * 100.0, "%");
        report(subject + ", longest single event", application.longestEventMs, "ms");
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

    static void report(const QString& subject, double value, const char* unit)
    {
        printFigure(subject, value, unit);
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
    enterSimulator(application.arguments().value(1));
    MainWindow window;
    window.resize(1320, 1080);
    window.show();
    waitUntilLoaded(window);
    application.map = window.findChild<QWebView*>("map");
    // The bench ticks by itself.
    CNavGlobalVar::instance()->traceInterval = never;

    TraceBench bench(application, window);
    bench.follow(false);
    bench.idle();
    bench.trace(true);
    std::puts("  (at 2 ms several ticks share one drawing: the median is a tick without it, the mean has its share)");
    for (const bool following : {false, true}) {
        const QString map = following ? "map following" : "map still";
        bench.follow(following);
        bench.measure(2, 2000, "2 ms, " + map);
        bench.follow(following);
        bench.measure(100, 100, "100 ms, " + map);
    }
    // Some minutes, and the same on every simulator.
    const bool memory = application.arguments().contains("--memory");
    for (const bool following : {false, true}) {
        if (!memory) {
            break;
        }
        bench.follow(following);
        bench.measureMemory(following ? "map following" : "map still");
    }
    bench.trace(false);
}
