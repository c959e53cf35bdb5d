// The lines of the plan's grid.
#include "command.h"
#include "soakworld.h"

#include "cflightplan.h"
#include "cnavglobalvar.h"

#include <QAction>
#include <QApplication>
#include <QTableWidget>
#include <QTreeWidget>
#include <QtTest>

namespace {

constexpr int identityColumn = 1;
constexpr int altitudeColumn = 9;

bool hasLines(SoakWorld& world)
{
    return world.docksAreShown() && world.planSize() > 0;
}

bool hasCurrentLine(SoakWorld& world)
{
    return hasLines(world) && world.grid()->currentRow() >= 0;
}

/// A press on a cell; one that leaves an altitude behind has the plan drawn anew.
void press(SoakWorld& world, int row, int column)
{
    world.openDock("dockWFlightPlan");
    if (world.grid()->currentColumn() == altitudeColumn) {
        world.deeds.typedCells.clear();
    }
    world.clickCell(row, column);
}

void selectLine(SoakWorld& world)
{
    const int row = world.dice.below(world.planSize());
    const int column = world.dice.below(10);
    world.note(QString("%1, %2").arg(row).arg(column));
    press(world, row, column);
    const CFpLinePtr line = world.plan().lines.value(row);
    if (line->usage != "airp") {
        return;
    }
    int procedures = 0;
    for (const char* name : {"treeWSid", "treeWStar"}) {
        procedures += world.tree(name)->topLevelItemCount();
    }
    const int stored = world
                           .column(world.settings().dbRTE,
                                   QString("SELECT DISTINCT strm FROM SIDSTAR WHERE sapt = '%1'").arg(line->dbKey))
                           .size();
    world.require(procedures == stored, QString("%1 procedures are listed, %2 stored").arg(procedures).arg(stored));
}

void typeAltitude(SoakWorld& world)
{
    const int row = world.dice.below(world.planSize());
    const QString text = world.dice.chance(10) ? QString("abc") : QString::number(100 * world.dice.below(450));
    const int away = world.dice.below(world.planSize());
    world.note(QString("%1 in row %2, then to row %3").arg(text).arg(row).arg(away));
    press(world, row, identityColumn);
    press(world, row, altitudeColumn);
    QList<int> wanted;
    for (int i = 0; i < world.planSize(); ++i) {
        wanted << (i >= row && i + 1 < world.planSize() ? text.toInt() : world.plan().lines.at(i)->altd);
    }
    // Two lines can be one and the same point.
    QHash<const CFpLine*, int> taken;
    for (int i = row; i + 1 < world.planSize(); ++i) {
        taken[world.plan().lines.at(i).data()] = text.toInt();
    }
    for (int i = 0; i < world.planSize(); ++i) {
        wanted[i] = taken.value(world.plan().lines.at(i).data(), wanted.at(i));
    }
    // The first key opens the cell's editor, which takes the others.
    QTest::keyClick(world.grid(), text.at(0).toLatin1());
    world.typeOn(text.mid(1) + '\r');
    press(world, away, identityColumn);
    for (int i = 0; i < world.planSize(); ++i) {
        world.require(
            world.plan().lines.at(i)->altd == wanted.at(i),
            QString("line %1 flies at %2, not %3").arg(i).arg(world.plan().lines.at(i)->altd).arg(wanted.at(i)));
    }
}

/// The text of any other cell stands there until the next refresh and changes nothing.
void typeElsewhere(SoakWorld& world)
{
    const int row = world.dice.below(world.planSize());
    const int column = 1 + world.dice.below(altitudeColumn - 1);
    press(world, row, identityColumn); // an altitude that was left behind goes down the plan now
    press(world, row, column);
    const PlanTexts before = world.planTexts();
    QTest::keyClick(world.grid(), Qt::Key_X);
    world.typeOn("\r");
    world.note(QString("%1, %2").arg(row).arg(column));
    world.require(world.planTexts() == before, "a text in the grid changes the plan");
    world.deeds.typedCells << qMakePair(row, column);
}

/// Triggers an entry of the grid's own menu.
void trigger(SoakWorld& world, const char* action)
{
    world.openDock("dockWFlightPlan");
    world.note(QString("row %1").arg(world.grid()->currentRow()));
    world.session.action(action)->trigger();
}

void deleteLine(SoakWorld& world)
{
    QStringList idents = world.planIdents();
    idents.removeAt(world.grid()->currentRow());
    trigger(world, "actFpDel");
    world.deeds.typedCells.clear();
    world.require(world.planIdents() == idents, "another line was deleted");
}

void moveLine(SoakWorld& world, const char* action, int by)
{
    QStringList idents = world.planIdents();
    const int row = world.grid()->currentRow();
    const int other = row + by;
    if (other >= 0 && other < idents.size()) {
        idents.swapItemsAt(row, other);
    }
    trigger(world, action);
    world.deeds.typedCells.clear();
    world.require(world.planIdents() == idents, "another line was moved");
    world.require(world.grid()->currentRow() == idents.size() - 1, "the last line is not the current one");
}

void moveLineUp(SoakWorld& world)
{
    moveLine(world, "actFpUp", -1);
}

void moveLineDown(SoakWorld& world)
{
    moveLine(world, "actFpDown", 1);
}

void centreOnLine(SoakWorld& world)
{
    trigger(world, "actFpCenter");
    const CFpLinePtr line = world.plan().lines.value(world.grid()->currentRow());
    if (!world.mapMoves() && line) {
        constexpr double highest = 80.0; // where the map's picture of the world goes on
        const double latitude = world.evaluate("map.getCenter().lat()").toDouble();
        world.require(qAbs(latitude - line->latS / 3600) < 0.001 || qAbs(line->latS / 3600) > highest,
                      "the map shows another place");
    }
}

} // namespace

QVector<Command> gridCommands()
{
    return {
        {"select line", 6, hasLines, selectLine},
        {"type altitude", 4, hasLines, typeAltitude},
        {"type elsewhere", 1, hasLines, typeElsewhere},
        {"delete line", 9, hasCurrentLine, deleteLine},
        {"move line up", 3, hasCurrentLine, moveLineUp},
        {"move line down", 3, hasCurrentLine, moveLineDown},
        {"centre on line", 2, hasCurrentLine, centreOnLine},
    };
}
