// The map page in the program's own web view: markers beside what Leaflet itself draws, labels, the base map, the
// trail.
#include "benchpage.h"
#include "mapscript.h"
#include "markertext.h"
#include "measure.h"

#include <QApplication>
#include <QFile>
#include <QTest>

#include <algorithm>
#include <cstdio>
#include <random>

namespace {

/// Milliseconds over a walk of the view.
struct Walk
{
    double mean;
    double worst;
};

struct MethodFigures
{
    double add;
    double firstDraw;
    Walk pan;
    double zoom;
    double hover;
};

void printMs(const QString& name, double value, double goal = 0.0)
{
    printFigure({"map", name, value, "ms", goal});
}

void setView(BenchPage& page, double zoom)
{
    page.frameMs(QString("map.setZoom(%1);map.setCenter(new google.maps.LatLng(46.60000, 2.50000));").arg(zoom));
}

/// Walks the view around an oblong, 40 pixels a frame, so far that a canvas which reaches a quarter beyond the view is
/// left behind on each side. Most of what is in the view at its start stays there.
Walk walk(BenchPage& page, int rounds)
{
    constexpr int step = 40;
    constexpr int width = 10; // steps
    constexpr int height = 7;
    const QPoint sides[] = {{step, 0}, {0, step}, {-step, 0}, {0, -step}};
    Walk result{0.0, 0.0};
    int frames = 0;
    for (int round = 0; round < rounds; ++round) {
        for (int side = 0; side < 4; ++side) {
            const QString script = QString("bench.pan(%1,%2)").arg(sides[side].x()).arg(sides[side].y());
            for (int i = 0; i < (side % 2 == 0 ? width : height); ++i) {
                const double time = page.frameMs(script);
                result.mean += time;
                result.worst = std::max(result.worst, time);
                ++frames;
            }
        }
    }
    result.mean /= frames;
    return result;
}

double zoomMs(BenchPage& page, double zoom, int rounds)
{
    std::vector<double> times;
    for (int round = 0; round < rounds; ++round) {
        for (double wanted : {zoom + 1.0, zoom}) {
            times.push_back(page.frameMs(QString("map.setZoom(%1)").arg(wanted)));
        }
    }
    return median(times);
}

/// Leaflet looks at every thirty-second millisecond's move only, so each move waits for its turn before it is measured.
double hoverMs(BenchPage& page, int moves)
{
    constexpr int turn = 40; // milliseconds
    std::mt19937 random(7);
    std::uniform_int_distribution<int> x(100, 1180);
    std::uniform_int_distribution<int> y(100, 700);
    std::vector<double> times;
    for (int i = 0; i < moves; ++i) {
        QTest::qWait(turn);
        times.push_back(page.pointerMs({x(random), y(random)}));
    }
    return median(times);
}

void openPage(BenchPage& page)
{
    QFile rivals(":/bench/rivals.js");
    if (!rivals.open(QIODevice::ReadOnly)) {
        qFatal("no resource rivals.js");
    }
    page.loadPage();
    page.run(QString::fromUtf8(rivals.readAll()));
}

MethodFigures measureMethod(BenchPage& page, const QString& method, int count)
{
    constexpr double zoom = 6.0;
    openPage(page);
    setView(page, zoom);
    page.run("bench.dropBase()");
    page.run(QString("bench.prepare(%1)").arg(count));
    page.frameMs({});
    MethodFigures figures{};
    figures.add = elapsedMs([&] { page.run("bench.add('" + method + "')"); });
    figures.firstDraw = figures.add + page.frameMs({});
    page.frameMs({});
    figures.pan = walk(page, count > 10000 ? 1 : 3);
    figures.zoom = zoomMs(page, zoom, count > 10000 ? 2 : 5);
    figures.hover = hoverMs(page, 15);
    return figures;
}

void printMethod(const char* name, const MethodFigures& figures)
{
    std::printf("    %-26s %9.1f %11.1f %10.1f %10.1f %10.1f %9.2f\n", name, figures.add, figures.firstDraw,
                figures.pan.mean, figures.pan.worst, figures.zoom, figures.hover);
    std::fflush(stdout);
}

/// The same points drawn by the chart, by Leaflet on its canvas and as elements, without a base map.
void compareMethods(BenchPage& page)
{
    std::printf("  Symbols, ms; a frame of a pan with the view painted, a zoom step, a move of the pointer\n");
    for (int count : {1000, 10000, 50000}) {
        std::printf("    %-26s %9s %11s %10s %10s %10s %9s\n", qPrintable(QString("%1 points").arg(count)), "add",
                    "first draw", "pan mean", "pan worst", "zoom", "hover");
        const MethodFigures chart = measureMethod(page, "chart", count);
        printMethod("the chart's layer", chart);
        const MethodFigures circles = measureMethod(page, "circles", count);
        printMethod("Leaflet's circleMarker", circles);
        const MethodFigures elements = measureMethod(page, "elements", count);
        printMethod("Leaflet's marker", elements);
        const QString frame = QString("%1 symbols, pan frame, chart to ").arg(count);
        printFigure({"map", frame + "Leaflet's circleMarker", chart.pan.mean / circles.pan.mean, "",
                     count == 10000 ? 0.2 : 0.0});
        printFigure({"map", frame + "Leaflet's marker", chart.pan.mean / elements.pan.mean, ""});
        printMs(QString("%1 symbols, first draw").arg(count), chart.firstDraw);
        printMs(QString("%1 symbols, pan frame, mean").arg(count), chart.pan.mean);
        printMs(QString("%1 symbols, zoom step").arg(count), chart.zoom);
    }
}

/// The script of one marker: of forty, ten airports, a VOR and waypoints of all usages.
QString markerScript(int number, double latitude, double longitude)
{
    const mapscript::Place place{latitude, longitude};
    const QString name = QString("%1").arg(number, 5, 36, QChar('0')).toUpper();
    const double lat = latitude * 3600.0;
    const double lon = longitude * 3600.0;
    if (number % 4 == 0) {
        return mapscript::addAptMarker({place, name, markertext::airport(name, "AERODROME " + name, lat, lon)});
    }
    if (number % 40 == 1) {
        return mapscript::addVorMarker(
            {place, name, name + "FR", 17, markertext::vor(name, "BALISE", 114.7, lat, lon)});
    }
    const int usage = number % 7;
    return mapscript::addWptMarker(
        {place, name, name + "FR", usage, markertext::waypoint(name, name, QString::number(usage), lat, lon)});
}

/// The feed of so many markers, all of them in the view, as the program writes it. Another edition is another text with
/// the same picture: each marker stands so many hundred-thousandths of a degree, far less than a pixel, farther north.
QString feedText(BenchPage& page, int count, int edition = 0)
{
    const double north = edition * 1e-5;
    const QVariantList places = page.run(QString("bench.places(%1)").arg(count)).toList();
    QStringList scripts;
    scripts.reserve(count + 10);
    for (int i = 0; i < count; ++i) {
        const QVariantList at = places.at(i).toList();
        scripts << markerScript(i, at.at(0).toDouble() + north, at.at(1).toDouble());
    }
    scripts << mapscript::pushApt() << mapscript::addNavMgr() << mapscript::addWptMgr();
    const std::pair<const char*, const char*> layers[] = {
        {"VORMgr", "listVOR"}, {"WPTRteMgr", "listWptRte"}, {"WPTTermMgr", "listWptTerm"}, {"WPTVfrMgr", "listWptVfr"}};
    for (const auto& [manager, list] : layers) {
        scripts << mapscript::markerLayer(QLatin1String(manager), QLatin1String(list), true);
    }
    return scripts.join(';');
}

void measureLabels(BenchPage& page)
{
    // So near that every marker asks for its label, however many there are.
    constexpr double zoom = 12.0;
    const std::pair<int, double> goals[] = {{3000, 16.0}, {12000, 33.0}, {50000, 50.0}};
    std::printf("  Markers of the feed with their labels, base map and all\n");
    for (const auto& [count, goal] : goals) {
        openPage(page);
        setView(page, zoom);
        page.run(feedText(page, count));
        page.frameMs({});
        const Walk pan = walk(page, 3);
        printMs(QString("pan frame, %1 markers with labels, mean").arg(count), pan.mean, goal);
        printMs(QString("pan frame, %1 markers with labels, worst").arg(count), pan.worst);
    }
}

/// Milliseconds from the text of a feed to its picture, in a fresh page where some other script ran before.
double feedMs(BenchPage& page, double zoom, int edition, const QString& before = {})
{
    constexpr int count = 50000;
    openPage(page);
    setView(page, zoom);
    page.run(before);
    return page.frameMs(feedText(page, count, edition));
}

/// The engine reads the script in any case: the same text is timed with functions that do nothing, too. It keeps what
/// it has made of a text that it has read, so one that it knows and new ones are figures of their own.
void measureFeed(BenchPage& page)
{
    const QString idle = "addAPTMarker = addVORMarker = addWPTMarker = pushAPT = function () {}";
    const int rounds = roundsOf(5);
    for (double zoom : {6.0, 12.0}) {
        std::vector<double> known;
        std::vector<double> knownIdle;
        std::vector<double> fresh;
        std::vector<double> freshIdle;
        feedMs(page, zoom, 0, idle);
        for (int round = 1; round <= rounds; ++round) {
            known.push_back(feedMs(page, zoom, 0));
            knownIdle.push_back(feedMs(page, zoom, 0, idle));
        }
        // Not in turns with the others: what the engine puts away of these texts would fall into those times.
        for (int round = 1; round <= rounds; ++round) {
            fresh.push_back(feedMs(page, zoom, 2 * round));
            freshIdle.push_back(feedMs(page, zoom, 2 * round + 1, idle));
        }
        const QString name = QString("50000 markers from script text to first draw, zoom %1").arg(zoom);
        printMs(name, median(known), 150.0);
        printMs(QString("the same text at zoom %1, its functions doing nothing").arg(zoom), median(knownIdle));
        printMs(name + ", read for the first time", median(fresh));
        printMs(QString("such a text at zoom %1, its functions doing nothing").arg(zoom), median(freshIdle));
    }
}

void measureBase(BenchPage& page)
{
    const int rounds = roundsOf(9);
    std::vector<double> reading;
    std::vector<double> making;
    std::vector<double> frame;
    std::vector<double> ready;
    for (int round = 0; round < rounds; ++round) {
        page.loadPage();
        reading.push_back(page.run("benchScriptTime('maps/world/')").toDouble());
        making.push_back(page.run("benchScriptTime('maps/page/map.js')").toDouble());
        frame.push_back(page.frameMs({}));
        ready.push_back(reading.back() + making.back() + frame.back());
    }
    printMs("base map ready", median(ready), 100.0);
    printMs("base map: reading the world", median(reading));
    printMs("base map: making the map", median(making));
    printMs("base map: the first frame", median(frame));
    for (double zoom : {3.0, 6.0, 9.0}) {
        openPage(page);
        setView(page, zoom);
        page.frameMs({});
        const Walk with = walk(page, 3);
        page.run("bench.dropBase()");
        const Walk without = walk(page, 3);
        printMs(QString("base map: what it adds to a pan frame at zoom %1, mean").arg(zoom), with.mean - without.mean,
                5.0);
        printMs(QString("base map: what it adds to a pan frame at zoom %1, worst").arg(zoom),
                with.worst - without.worst);
    }
}

/// An hour of flight at ten updates a second, turning all the way.
void measureTrail(BenchPage& page)
{
    constexpr int before = 36000;
    openPage(page);
    setView(page, 9.0);
    page.run("addAcftMrkr(new google.maps.LatLng(46.60000, 2.50000),\"\",0);"
             "var flown = 0;"
             "function fly() { ++flown;"
             "  setAcftMrkr(new google.maps.LatLng(46.6 + 0.3 * Math.sin(flown / 900) + flown * 1e-6,"
             "    2.5 + 0.5 * Math.cos(flown / 1300)), flown / 10 % 360); }");
    page.run(QString("while (flown < %1) fly();").arg(before));
    page.frameMs({});
    std::vector<double> updates;
    std::vector<double> frames;
    double worst = 0.0;
    for (int i = 0; i < 200; ++i) {
        updates.push_back(page.workMs("fly()"));
        worst = std::max(worst, updates.back());
        frames.push_back(page.frameMs("fly()"));
    }
    printMs(QString("trail update at %1 points, median").arg(before), median(updates), 3.0);
    printMs("trail update, the slowest of 200", worst);
    printMs("trail update with the view painted, median", median(frames));
}

void measureHover(BenchPage& page)
{
    openPage(page);
    setView(page, 12.0);
    page.run(feedText(page, 250000));
    page.frameMs({});
    page.pointerMs({640, 400});
    printMs("hover over 250000 markers, median", hoverMs(page, 40), 2.0);
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    const struct
    {
        const char* name;
        void (*measure)(BenchPage&);
    } parts[] = {{"methods", compareMethods}, {"labels", measureLabels}, {"feed", measureFeed},
                 {"base", measureBase},       {"trail", measureTrail},   {"hover", measureHover}};
    const QStringList wanted = takeMeasureOptions(application.arguments());
    for (const auto& part : parts) {
        if (wanted.isEmpty() || wanted.contains(part.name)) {
            BenchPage page;
            part.measure(page);
        }
    }
}
