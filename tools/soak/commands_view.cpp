// The tool bar's layers, the docks, the runways and what the page reports.
#include "command.h"
#include "soakworld.h"

#include "cnavglobalvar.h"
#include "mainwindow.h"

#include <QAction>
#include <QLabel>
#include <QStatusBar>
#include <QToolBar>
#include <QtTest>

namespace {

struct Layer
{
    const char* action;
    bool CNavGlobalVar::*flag;
};

const Layer layers[] = {
    {"actApt", &CNavGlobalVar::showAirport},        {"actVor", &CNavGlobalVar::showVor},
    {"actNdbRte", &CNavGlobalVar::showNdbRte},      {"actNdbTerm", &CNavGlobalVar::showNdbTerm},
    {"actWptRte", &CNavGlobalVar::showWaypointRte}, {"actWptTerm", &CNavGlobalVar::showWaypointTerm},
    {"actWptVfr", &CNavGlobalVar::showWaypointVfr}, {"actAtsLo", &CNavGlobalVar::showATSL},
    {"actAtsHi", &CNavGlobalVar::showATSH},         {"actAtsB", &CNavGlobalVar::showATSB},
    {"actBdry", &CNavGlobalVar::showBoundary},
};

void clickTool(SoakWorld& world, QAction* action)
{
    auto* bar = world.session.find<QToolBar>("mainToolBar");
    QTest::mouseClick(bar->widgetForAction(action), Qt::LeftButton);
}

void toggleLayer(SoakWorld& world)
{
    const Layer& layer = layers[world.dice.below(int(std::size(layers)))];
    QAction* action = world.session.action(layer.action);
    const bool before = action->isChecked();
    clickTool(world, action);
    world.note(QString("%1 %2").arg(layer.action, before ? "off" : "on"));
    world.require(action->isChecked() != before && world.settings().*layer.flag != before,
                  "the layer was not switched");
}

void toggleDocks(SoakWorld& world)
{
    QAction* action = world.session.action("actDock");
    clickTool(world, action);
    world.note(action->isChecked() ? "shown" : "hidden");
    world.require(world.docksAreShown() == action->isChecked(), "the docks do not follow");
}

bool docksAreHidden(SoakWorld& world)
{
    return !world.docksAreShown();
}

void showRunways(SoakWorld& world)
{
    const auto row = world.dice.pick(world.rows(world.settings().dbGEN, "SELECT iden, ukey FROM APT ORDER BY ukey"));
    const QString ident = row.first().toString();
    world.note(ident);
    world.callProgram("doViewRwy", {ident});
    world.require(world.session.window().statusBar()->currentMessage() == row.at(1).toString(),
                  "the status bar does not tell the airport");
}

bool isStill(SoakWorld& world)
{
    return !world.mapMoves();
}

void showRunwaysByMenu(SoakWorld& world)
{
    const QStringList titles = world.shownMarkers("airport");
    if (titles.isEmpty()) {
        return;
    }
    const QString title = world.dice.pick(titles);
    world.note(title);
    if (!world.chooseForMarker(title, "showRunways")) {
        world.note("(not there)");
    }
}

void speakFromPage(SoakWorld& world)
{
    world.callProgram("doSomething", {"soak"});
    world.callProgram("doData", {"soak"});
    const auto* label = world.session.find<QLabel>("lblData");
    world.require(label->text() == "soak", "the status bar shows " + label->text());
}

} // namespace

QVector<Command> viewCommands()
{
    return {
        {"toggle layer", 8, nullptr, toggleLayer},
        {"toggle docks", 1, nullptr, toggleDocks},
        {"show docks again", 40, docksAreHidden, toggleDocks},
        {"show runways", 2, nullptr, showRunways},
        {"show runways by menu", 2, isStill, showRunwaysByMenu},
        {"speak from the page", 1, nullptr, speakFromPage},
    };
}
