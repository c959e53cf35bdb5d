// A window on a small world of airports, navaids and waypoints.
#include "planwindow.h"

#include "caircraftdata.h"
#include "cflightplan.h"
#include "cnavglobalvar.h"
#include "mainwindow.h"
#include "podbytes.h"

#include <QAction>
#include <QDockWidget>
#include <QPushButton>
#include <QTableWidget>
#include <QtTest>

namespace {

void addAirports(const Sandbox& sandbox)
{
    sandbox.addAirport({{"ukey", "FR001"}, {"iden", "LFPO"}});
    sandbox.addAirport({{"ukey", "FR002"},
                        {"iden", "LFBO"},
                        {"name", "TOULOUSE BLAGNAC"},
                        {"alat", 157086},
                        {"alon", 4924},
                        {"aele", 499}});
    sandbox.addAirport({{"ukey", "US001"},
                        {"iden", "KSFO"},
                        {"name", "San Francisco Intl"},
                        {"ctry", "US"},
                        {"alat", 135720.5},
                        {"alon", -440912.25},
                        {"aele", 13}});
    sandbox.addAirport({{"ukey", "BR001"},
                        {"iden", "SBGL"},
                        {"name", "GALEAO"},
                        {"ctry", "BR"},
                        {"alat", -82116},
                        {"alon", -155700},
                        {"aele", 28}});
    sandbox.addAirport({{"ukey", "XX001"}, {"iden", "LFXX"}, {"name", "SANS PISTE"}});
}

void addRunways(const Sandbox& sandbox)
{
    sandbox.addRunway({{"rapt", "FR001"}, {"rlen", 2000}, {"rhla", 1}, {"rhlo", 2}, {"rhht", 3}, {"rhhd", 4.0}});
    sandbox.addRunway({{"rapt", "FR001"}, {"rlen", 3000}, {"rhlo", 8650}});
    sandbox.addRunway({{"rapt", "FR001"}, {"rlen", 3000}, {"rhla", 5}, {"rhlo", 6}, {"rhht", 7}, {"rhhd", 8.0}});
    sandbox.addRunway(
        {{"rapt", "FR002"}, {"rlen", 11483}, {"rhla", 157050}, {"rhlo", 4932}, {"rhht", 490}, {"rhhd", 323.0}});
    sandbox.addRunway(
        {{"rapt", "US001"}, {"rlen", 11870}, {"rhla", 135720}, {"rhlo", -440640}, {"rhht", 12}, {"rhhd", 298.0}});
    sandbox.addRunway(
        {{"rapt", "BR001"}, {"rlen", 13123}, {"rhla", -82080}, {"rhlo", -155520}, {"rhht", 27}, {"rhhd", 90.0}});
}

void addPoints(const Sandbox& sandbox)
{
    sandbox.addNavaid({{"ukey", "N1"},
                       {"iden", "PGS"},
                       {"name", "PARIS"},
                       {"nfrq", 117.05},
                       {"ntyp", 1},
                       {"nlat", 175800},
                       {"nlon", 9000},
                       {"nalt", 300}});
    sandbox.addNavaid({{"ukey", "N8"},
                       {"iden", "CGN"},
                       {"name", "COGNAC"},
                       {"nfrq", 370.5},
                       {"ntyp", 8},
                       {"nlat", 162900},
                       {"nlon", 6300}});
    sandbox.addWaypoint({{"ukey", "W1"}, {"iden", "BAMES"}, {"name", "BAMES"}});
    sandbox.addWaypoint({{"ukey", "W2"}, {"iden", "QUOTE"}, {"name", "A\"B"}});
    sandbox.addWaypoint({{"ukey", "W3"}, {"iden", "ETAMP"}, {"name", "ETAMP"}, {"wlat", 172800}, {"wlon", 7200}});
    // The map shows country FR and a name with a quote would cost it the whole feed.
    sandbox.sql(dbfile::wpt, "UPDATE WPT SET ctry = 'XX' WHERE ukey = 'W2'");
}

} // namespace

PlanWindow::PlanWindow(const std::function<void(const Sandbox&)>& prepare)
{
    addAirports(sandbox);
    addRunways(sandbox);
    addPoints(sandbox);
    sandbox.writeFile("Aircraft/C172.pod", podAircraft("CESSNA 172", "<acid>\nF-GZEP\n<043a>\n110\n"));
    if (prepare)
        prepare(sandbox);
    window = std::make_unique<MainWindow>(nullptr);
    probe = std::make_unique<PageProbe>(window.get());
    window->show();
    // No window manager does it on a virtual display, and keys go to the active window only.
    QApplication::setActiveWindow(window.get());
    if (!probe->waitUntilLoaded())
        qFatal("the map page did not load");
    // Without a speed every leg would last for ever.
    plan().aircraft->speedCruise = 120;
    plan().aircraft->altCruise = 5500;
    clearCalls();
}

PlanWindow::~PlanWindow() = default;

void PlanWindow::add(const QStringList& titles)
{
    for (const QString& title : titles) {
        if (!title.contains('-'))
            window->sAddAptToFp(title);
        else if (title.section('-', 1).startsWith('N'))
            window->sAddNavToFp(title);
        else
            window->sAddWptToFp(title);
    }
    clearCalls();
}

void PlanWindow::addClicked(const QString& stem, double latitude, double longitude)
{
    window->sAddNewWptToFp(stem, latitude, longitude);
}

void PlanWindow::clearCalls()
{
    // A dock that came to the front tells the page so only when its events have run.
    QCoreApplication::processEvents();
    probe->clear();
}

QString PlanWindow::told()
{
    return probe->calls().join(' ');
}

CFlightPlan& PlanWindow::plan() const
{
    return *CNavGlobalVar::instance()->flightPlan;
}

QTableWidget* PlanWindow::grid() const
{
    return window->findChild<QTableWidget*>("fltplnGrid");
}

QString PlanWindow::cell(int row, int column) const
{
    const QTableWidgetItem* item = grid()->item(row, column);
    return item ? item->text() : QStringLiteral("(no item)");
}

QString PlanWindow::idents() const
{
    QStringList found;
    for (const CFpLinePtr& line : plan().lines)
        found << line->iden;
    return found.join(' ');
}

QPair<int, int> PlanWindow::current() const
{
    return {grid()->currentRow(), grid()->currentColumn()};
}

void PlanWindow::setCurrent(int row, int column) const
{
    grid()->setCurrentCell(row, column);
}

void PlanWindow::bringToFront(const QString& dock) const
{
    window->findChild<QDockWidget*>(dock)->raise();
    QCoreApplication::processEvents();
}

bool PlanWindow::isInFront(const QString& dock) const
{
    QCoreApplication::processEvents();
    return !window->findChild<QDockWidget*>(dock)->visibleRegion().isEmpty();
}

QString PlanWindow::title(const QString& dock) const
{
    return window->findChild<QDockWidget*>(dock)->windowTitle();
}

int PlanWindow::enabledPlanCommands() const
{
    int enabled = window->findChild<QAction*>("menuSaveFlightPlan")->isEnabled() ? 1 : 0;
    for (const char* button : {"btnSaveFlightPlan", "btnStartPos", "btnCreateSID", "btnCreateSTAR"})
        enabled += window->findChild<QPushButton*>(button)->isEnabled() ? 1 : 0;
    return enabled;
}

void PlanWindow::click(const QString& button) const
{
    window->findChild<QPushButton*>(button)->click();
}
