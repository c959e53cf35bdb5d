// What belongs to no other concern: the docks' tabs, the aircraft, the about boxes, the window's size.
#include "command.h"
#include "soakworld.h"

#include "mainwindow.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QtTest>

namespace {

bool docksAreShown(SoakWorld& world)
{
    return world.docksAreShown();
}

void openDock(SoakWorld& world)
{
    const QString dock =
        world.dice.pick(QStringList{"dockWFlightPlan", "dockWSid", "dockWStar", "dockWAircraft", "dockWDebug"});
    world.note(dock);
    world.openDock(dock);
}

void chooseAircraft(SoakWorld& world)
{
    world.openDock("dockWAircraft");
    auto* box = world.session.find<QComboBox>("cbAircraftType");
    const QString before = world.session.find<QLineEdit>("leAltCruise")->text();
    box->setFocus();
    for (int steps = world.dice.below(4); steps >= 0; --steps) {
        QTest::keyClick(box, world.dice.chance(50) ? Qt::Key_Down : Qt::Key_Up);
    }
    world.note(box->currentText());
    world.require(world.session.find<QLineEdit>("leAltCruise")->text() == before,
                  "an aircraft's choice changes the plan's altitude");
}

void tellAbout(SoakWorld& world)
{
    world.expectTitled("A propos de Zephan Trajector");
    world.session.action("actionAbout")->trigger();
}

void tellAboutQt(SoakWorld& world)
{
    world.boxes.expectAnyMessage();
    world.session.action("actionAboutQt")->trigger();
}

void resizeWindow(SoakWorld& world)
{
    world.session.window().resize(1200 + world.dice.below(300), 900 + world.dice.below(300));
}

/// Both commands have these keys, so that neither is given.
void pressBothsKeys(SoakWorld& world)
{
    const PlanTexts before = world.planTexts();
    world.session.window().setFocus();
    QTest::keyClick(&world.session.window(), Qt::Key_L, Qt::ControlModifier);
    world.require(world.planTexts() == before, "Ctrl+L gives a command");
}

} // namespace

QVector<Command> shellCommands()
{
    return {
        {"open dock", 4, docksAreShown, openDock},   {"choose aircraft", 2, docksAreShown, chooseAircraft},
        {"tell about", 1, nullptr, tellAbout},       {"tell about Qt", 1, nullptr, tellAboutQt},
        {"resize window", 2, nullptr, resizeWindow}, {"press Ctrl+L", 1, docksAreShown, pressBothsKeys},
    };
}
