// Plans and starts saved and loaded, new plans.
#include "checks.h"
#include "command.h"
#include "soakworld.h"

#include "cflightplan.h"
#include "cnavglobalvar.h"

#include <QAction>
#include <QDir>
#include <QPushButton>
#include <QTableWidget>

namespace {

/// A folder with ever more files makes every file dialog slower.
constexpr int mostPlans = 40;

const QString savingTitle = QStringLiteral("Enregistrement plan de vol");

/// By the button where it is to be seen, or by the menu that is one with it.
void give(SoakWorld& world, const char* button, const char* action)
{
    if (world.docksAreShown() && world.dice.chance(50)) {
        world.openDock("dockWFlightPlan");
        world.clickButton(button);
    } else {
        world.session.action(action)->trigger();
    }
}

bool departsFromAirport(SoakWorld& world)
{
    return world.planSize() > 0 && world.plan().lines.first()->usage == "airp";
}

/// Awaits the boxes of the start's saving. True when the simulator is to start there.
bool expectStart(SoakWorld& world)
{
    if (!departsFromAirport(world)) {
        world.expectMessage("Enregistrement point de départ", "Vous devez choisir un aéroport en première ligne.");
        return false;
    }
    const CFpLine& first = *world.plan().lines.first();
    const CFpLine& start = world.plan().startLine;
    const bool unknown = start.latS < 1e-9 && start.lonS < 1e-9;
    const QString runways = QString("SELECT rhla FROM RWY WHERE rapt = '%1'").arg(first.dbKey);
    if (unknown && world.column(world.settings().dbGEN, runways).isEmpty()) {
        world.expectTitled("SQL Error");
    }
    const bool agreed = world.dice.chance(50);
    world.expectMessage("Enregistrement position initiale",
                        QString("Voulez vous définir %1 comme départ dans AeoZephan ?").arg(first.iden),
                        agreed ? QMessageBox::Ok : QMessageBox::Cancel);
    return agreed;
}

void checkStart(SoakWorld& world, bool agreed)
{
    if (!departsFromAirport(world)) {
        return;
    }
    const QString fileName = world.plan().lines.first()->name.toUpper() + ".SIT";
    world.note(fileName);
    checkSituation(world, fileName);
    if (agreed) {
        world.deeds.startupLine = "startupSituation=Saved Simulations/" + fileName.toUtf8();
    }
}

bool mayUsePlan(SoakWorld& world)
{
    return world.session.find<QPushButton>("btnSaveFlightPlan")->isEnabled();
}

/// Another program's user clears the folder now and then.
void dropOldest(SoakWorld& world)
{
    while (world.deeds.plans.size() > mostPlans) {
        const QString fileName = world.deeds.plans.firstKey();
        world.require(QFile::remove(world.path("Flightplan/" + fileName)), "no file " + fileName);
        world.deeds.plans.remove(fileName);
    }
}

void savePlan(SoakWorld& world)
{
    dropOldest(world);
    if (world.planSize() < 2) {
        world.expectMessage(savingTitle, "Un plan de vol doit comporté au moins deux points");
        give(world, "btnSaveFlightPlan", "menuSaveFlightPlan");
        return;
    }
    const QString fileName = QString("%1_%2.FPL").arg(world.planIdents().first(), world.planIdents().last()).toUpper();
    world.note(fileName);
    const int version = world.plan().fplVersion;
    world.expectMessage(savingTitle, QString("Le plan de vol %1 a été enregistré").arg(fileName));
    const bool agreed = expectStart(world);
    give(world, "btnSaveFlightPlan", "menuSaveFlightPlan");
    world.require(world.plan().fplVersion == version + 1, "the save was not counted");
    checkSavedPlan(world, fileName);
    checkStart(world, agreed);
}

bool mayUseStart(SoakWorld& world)
{
    return world.docksAreShown() && mayUsePlan(world);
}

void saveStart(SoakWorld& world)
{
    const bool agreed = expectStart(world);
    world.openDock("dockWFlightPlan");
    world.clickButton("btnStartPos");
    checkStart(world, agreed);
}

/// Awaits the question before a plan goes. True when it goes.
bool expectReset(SoakWorld& world)
{
    if (world.planSize() == 0) {
        return true;
    }
    const bool agreed = world.dice.chance(70);
    world.expectMessage("Nouveau plan de vol", "Voulez vous effacer le plan de vol en cours ?",
                        agreed ? QMessageBox::Ok : QMessageBox::Cancel);
    world.note(agreed ? "" : "refused");
    return agreed;
}

void newPlan(SoakWorld& world)
{
    const PlanTexts before = world.planTexts();
    const bool agreed = expectReset(world);
    give(world, "btnNewFlightPlan", "menuNewFlightPlan");
    world.require(world.planTexts() == (agreed ? PlanTexts() : before), "the plan has not become what it should");
    if (agreed) {
        world.deeds.typedCells.clear();
        world.require(!mayUsePlan(world), "an empty plan can be saved");
    }
}

void loadPlan(SoakWorld& world)
{
    const PlanTexts before = world.planTexts();
    const int ownPoints = world.plan().userWptCount;
    const QString dialog = "Ouvrir un plan de vol existant";
    const bool picks = !world.deeds.plans.isEmpty() && world.dice.chance(85);
    const QString fileName = picks ? world.dice.pick(world.deeds.plans.keys()) : QString();
    const bool agreed = expectReset(world);
    if (agreed && picks) {
        world.note(fileName);
        world.boxes.expectFiles(dialog, {world.path("Flightplan/" + fileName)});
    } else if (agreed) {
        world.note("cancelled");
        world.boxes.expectFilesRejected(dialog);
    }
    give(world, "btnLoadFlightPlan", "menuLoadFlightPlan");
    if (!agreed) {
        world.require(world.planTexts() == before, "a plan that stays has changed");
        return;
    }
    world.deeds.typedCells.clear();
    const PlanTexts saved = world.deeds.plans.value(fileName);
    world.require(world.planTexts() == saved, fileName + " does not read back as it was saved");
    world.require(world.plan().userWptCount == ownPoints + saved.size(), "the loaded points were not counted");
    world.require(mayUsePlan(world), "a loaded plan cannot be saved");
    if (picks) {
        world.require(world.plan().fplVersion == 0, "a loaded plan has a version");
    }
}

} // namespace

QVector<Command> fileCommands()
{
    return {
        {"save plan", 8, mayUsePlan, savePlan},
        {"save start", 2, mayUseStart, saveStart},
        {"load plan", 4, nullptr, loadPlan},
        {"new plan", 2, nullptr, newPlan},
    };
}
