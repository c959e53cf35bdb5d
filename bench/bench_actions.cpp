// What a user waits for: each command of the window once through, boxes and the drawing of the map included. The last
// commands change the simulator's root.
#include "benchwindow.h"
#include "boxanswers.h"
#include "ciodatabase.h"
#include "cnavglobalvar.h"
#include "mainwindow.h"
#include "measure.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QWebView>

#include <cstdio>

namespace {

/// What takes longer is not done often.
constexpr double longMs = 3000.0;
constexpr int planLines = 100;

class ActionBench
{
public:
    explicit ActionBench(MainWindow& mainWindow) : window(mainWindow), settings(*CNavGlobalVar::instance()) {}

    /// All parts, or those that are named.
    void run(const QStringList& wanted)
    {
        const struct
        {
            const char* name;
            void (ActionBench::*measure)();
        } parts[] = {{"search", &ActionBench::searches},
                     {"map", &ActionBench::map},
                     {"plan", &ActionBench::plan},
                     {"dialogs", &ActionBench::dialogs},
                     {"files", &ActionBench::files}};
        for (const auto& part : parts) {
            if (wanted.isEmpty() || wanted.contains(part.name)) {
                (this->*part.measure)();
            }
        }
    }

private:
    /// The median of some rounds, or the first one when that takes long.
    void measure(const QString& name, const std::function<void()>& action)
    {
        const double first = elapsedMs(action);
        printFigure({"actions", name, first > longMs ? first : medianMs(roundsOf(6), action), "ms"});
    }

    void click(const char* button)
    {
        window.findChild<QPushButton*>(button)->click();
    }

    /// Until the page has run its next frame and the view is painted.
    void untilDrawn()
    {
        window.runMapScript(
            "var benchDrawn = false;"
            "requestAnimationFrame(function () { setTimeout(function () { benchDrawn = true; }, 0); })");
        while (!window.runMapScript("benchDrawn").toBool()) {
            QApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
        }
        window.findChild<QWebView*>("map")->repaint();
    }

    void search(const QString& name, const QString& text, const char* button)
    {
        auto* found = window.findChild<QTreeWidget*>("treeWFound");
        measure(name, [&] {
            window.findChild<QLineEdit*>("searchData")->setText(text);
            click(button);
            QApplication::processEvents();
        });
        std::printf("    (%d found)\n", found->topLevelItemCount());
    }

    void searches()
    {
        search("exact search of an airport", "LFPO", "btnSearchExact");
        search("near search of a letter", "A", "btnSearchNear");
        search("near search of nothing: all that there is", "", "btnSearchNear");
        search("exact search of nothing", "", "btnSearchExact");
    }

    void map()
    {
        const char* const layers[] = {"actApt",    "actVor",     "actNdbRte", "actNdbTerm",
                                      "actWptRte", "actWptTerm", "actWptVfr"};
        const auto toggleAll = [&] {
            for (const char* layer : layers) {
                window.findChild<QAction*>(layer)->trigger();
            }
            untilDrawn();
        };
        for (const char* layer : layers) {
            auto* action = window.findChild<QAction*>(layer);
            if (!action->isChecked()) {
                action->trigger();
            }
        }
        untilDrawn();
        measure("all marker layers off and on, drawn", [&] {
            toggleAll();
            toggleAll();
        });
        for (const int zoom : {6, 12}) {
            window.runMapScript(QString("map.setCenter(new google.maps.LatLng(46.6,2.5));map.setZoom(%1)").arg(zoom));
            untilDrawn();
            measure(QString("zoom from %1 to %2 and back with all markers, drawn").arg(zoom).arg(zoom + 1), [&] {
                for (const int step : {zoom + 1, zoom}) {
                    window.runMapScript(QString("map.setZoom(%1)").arg(step));
                    untilDrawn();
                }
            });
        }
        measure("runways of an airport, drawn", [&] {
            window.doViewRwy("LFPO");
            untilDrawn();
        });
    }

    QStringList titles(const QString& connection, const QString& statement)
    {
        QStringList found;
        QSqlQuery query(QSqlDatabase::database(connection));
        for (query.exec(statement); query.next();) {
            found << query.value(0).toString() + '-' + query.value(1).toString();
        }
        return found;
    }

    void plan()
    {
        const QStringList waypoints =
            titles(settings.dbWPT, QString("SELECT name, ukey FROM WPT WHERE ctry = 'FR' LIMIT %1").arg(planLines - 2));
        const auto build = [&] {
            window.sAddAptToFp("LFPO");
            for (const QString& waypoint : waypoints) {
                window.sAddWptToFp(waypoint);
            }
            window.sAddAptToFp("LFBO");
            untilDrawn();
        };
        measure(QString("a plan of %1 points built point by point, and a new plan").arg(planLines), [&] {
            build();
            click("btnNewFlightPlan");
        });
        build();
        measure(QString("saving a plan of %1 points").arg(planLines), [&] { click("btnSaveFlightPlan"); });
        boxes.file = settings.dirZephan.filePath("Flightplan/LFPO_LFBO.FPL");
        measure(QString("loading a plan of %1 points, drawn").arg(planLines), [&] {
            click("btnLoadFlightPlan");
            untilDrawn();
        });
        const QString onAirway = titles(settings.dbRTE, "SELECT nvi1, aaid FROM ATSROUTE LIMIT 1").value(0);
        measure("airways through a point", [&] { window.sATS(onAirway, QString()); });
    }

    void dialogs()
    {
        const QString navaid = titles(settings.dbGEN, "SELECT iden, ukey FROM NAV LIMIT 1").value(0);
        const QString waypoint = titles(settings.dbWPT, "SELECT name, ukey FROM WPT LIMIT 1").value(0);
        measure("opening the dialog of a navaid", [&] { window.sAddNavToDB(navaid, 0.0, 0.0); });
        measure("opening the dialog of a waypoint", [&] { window.sAddWptToDB(waypoint, 0.0, 0.0); });
        QStringList navaids = titles(settings.dbGEN, "SELECT iden, ukey FROM NAV WHERE ctry = 'FR' LIMIT 20");
        QStringList waypoints = titles(settings.dbWPT, "SELECT name, ukey FROM WPT WHERE ctry = 'FR' LIMIT 20");
        measure("deleting a navaid", [&] { window.sDelNavFromDB(navaids.takeLast()); });
        measure("deleting a waypoint", [&] { window.sDelWptFromDB(waypoints.takeLast()); });
    }

    void files()
    {
        const QString navaids = folder.filePath("navaids.CSV");
        const QString waypoints = folder.filePath("waypoints.CSV");
        CIODataBase exchange;
        measure("exporting all navaids", [&] { exchange.exportAllNAV(settings.dbGEN, navaids); });
        measure("exporting all waypoints", [&] { exchange.exportAllWPT(settings.dbWPT, waypoints); });
        boxes.file = firstLines(waypoints, 50000);
        measure("importing 50000 waypoints", [&] { window.findChild<QAction*>("actImport")->trigger(); });
    }

    /// A file of the first rows of another; its first line, which an import refuses, is left out.
    QString firstLines(const QString& path, int count)
    {
        QFile all(path);
        QFile some(folder.filePath("some.CSV"));
        if (!all.open(QIODevice::ReadOnly) || !some.open(QIODevice::WriteOnly)) {
            qFatal("%s was not exported", qPrintable(path));
        }
        all.readLine();
        for (int line = 0; line < count && !all.atEnd(); ++line) {
            some.write(all.readLine());
        }
        return some.fileName();
    }

    MainWindow& window;
    CNavGlobalVar& settings;
    BoxAnswers boxes;
    const QTemporaryDir folder;
};

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    const QStringList arguments = takeMeasureOptions(application.arguments());
    enterSimulator(arguments.value(0));
    MainWindow window;
    window.resize(1320, 1080);
    window.show();
    waitUntilLoaded(window);
    ActionBench(window).run(arguments.mid(1));
}
