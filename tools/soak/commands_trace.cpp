// The simulator's aircraft on the map.
#include "command.h"
#include "soakworld.h"

#include "cnavglobalvar.h"

#include <QPushButton>
#include <QtTest>

namespace {

bool docksAreShown(SoakWorld& world)
{
    return world.docksAreShown();
}

void toggleTrace(SoakWorld& world)
{
    world.openDock("dockWFlightPlan");
    world.clickButton("pbTraceAcft");
    world.deeds.tracing = world.session.find<QPushButton>("pbTraceAcft")->isChecked();
    world.note(world.deeds.tracing ? "on" : "off");
}

void toggleFollowing(SoakWorld& world)
{
    world.openDock("dockWFlightPlan");
    world.clickButton("pbCenterAcft");
    world.note(world.mapMoves() ? "follows" : "stays");
}

void fly(SoakWorld& world)
{
    const double latitude = world.dice.between(42, 51);
    const double longitude = world.dice.between(-5, 8);
    const bool published =
        world.simulator.publish(QString::number(latitude * 3600, 'f', 3), QString::number(longitude * 3600, 'f', 3),
                                QString::number(world.dice.below(360)));
    world.require(published, "the simulator's stand-in does not publish");
    if (!world.mapMoves()) {
        return;
    }
    const bool came = QTest::qWaitFor(
        [&] { return qAbs(world.evaluate("map.getCenter().lat()").toDouble() - latitude) < 0.001; }, 20000);
    world.require(came, "the map does not follow");
}

/// A crash of the simulator: the marker stands still, and the next one is seen again.
void endSimulator(SoakWorld& world)
{
    world.simulator.kill();
}

} // namespace

QVector<Command> traceCommands()
{
    return {
        {"toggle trace", 2, docksAreShown, toggleTrace},
        {"toggle following", 2, docksAreShown, toggleFollowing},
        {"fly", 6, nullptr, fly},
        {"end simulator", 1, nullptr, endSimulator},
    };
}
