// Points that go into the plan, from the map and from its menus, and the start of the flight.
#include "command.h"
#include "soakworld.h"

#include "cflightplan.h"
#include "cnavglobalvar.h"

#include <QSpinBox>
#include <QTableWidget>
#include <QtTest>

namespace {

/// A plan that nobody shortens would only grow.
constexpr int longestPlan = 40;

bool hasRoom(SoakWorld& world)
{
    return world.planSize() < longestPlan;
}

bool hasRoomOnStillMap(SoakWorld& world)
{
    return hasRoom(world) && !world.mapMoves();
}

bool isStill(SoakWorld& world)
{
    return !world.mapMoves();
}

/// Adds a point by `add` and requires it to stand behind the current line, and to be the current one.
template <typename Add>
void addPoint(SoakWorld& world, const QString& ident, const Add& add)
{
    QStringList idents = world.planIdents();
    const int row = world.grid()->currentRow();
    idents.insert(row + 1, ident);
    world.note(ident);
    if (!add()) {
        world.note("(not there)");
        return;
    }
    world.deeds.typedCells.clear();
    world.require(world.planIdents() == idents, "the plan is " + world.planIdents().join(' '));
    world.require(world.grid()->currentRow() == row + 1 && world.grid()->currentColumn() == 1,
                  "the new point is not the current one");
}

struct Runway
{
    bool there;
    double latS;
    double lonS;
};

Runway longestRunway(SoakWorld& world, const QString& airportKey)
{
    const auto rows = world.rows(
        world.settings().dbGEN,
        QString("SELECT rhla, rhlo FROM RWY WHERE rapt = '%1' ORDER BY rlen DESC, rowid LIMIT 1").arg(airportKey));
    return rows.isEmpty() ? Runway{false, 0.0, 0.0}
                          : Runway{true, rows.first().at(0).toDouble(), rows.first().at(1).toDouble()};
}

/// What an airport does besides when it is the departure: the flight starts at its longest runway.
template <typename Add>
void addAirport(SoakWorld& world, const QString& ident, const Add& add)
{
    const bool departs = world.grid()->currentRow() == -1;
    const QString key =
        world.column(world.settings().dbGEN, QString("SELECT ukey FROM APT WHERE iden = '%1'").arg(ident)).value(0);
    const Runway runway = longestRunway(world, key);
    if (departs && !runway.there) {
        world.expectTitled("SQL Error");
    }
    addPoint(world, ident, add);
    const CFpLine& start = world.plan().startLine;
    if (departs) {
        world.require(qFuzzyCompare(start.latS + 1e7, runway.latS + 1e7) &&
                          qFuzzyCompare(start.lonS + 1e7, runway.lonS + 1e7),
                      "the flight starts elsewhere");
    }
}

void addAirportBySlot(SoakWorld& world)
{
    const QString ident = world.dice.pick(world.column(world.settings().dbGEN, "SELECT iden FROM APT ORDER BY ukey"));
    addAirport(world, ident, [&] {
        world.callProgram("sAddAptToFp", {ident});
        return true;
    });
}

void addNavaidBySlot(SoakWorld& world)
{
    const auto row = world.dice.pick(world.rows(world.settings().dbGEN, "SELECT iden, ukey FROM NAV ORDER BY ukey"));
    addPoint(world, row.at(0).toString(), [&] {
        world.callProgram("sAddNavToFp", {row.at(0).toString() + '-' + row.at(1).toString()});
        return true;
    });
}

void addWaypointBySlot(SoakWorld& world)
{
    const auto row =
        world.dice.pick(world.rows(world.settings().dbWPT, "SELECT iden, ukey, name FROM WPT ORDER BY ukey"));
    addPoint(world, row.at(0).toString(), [&] {
        world.callProgram("sAddWptToFp", {row.at(2).toString() + '-' + row.at(1).toString()});
        return true;
    });
}

/// The identifier that the next point of the user's own gets.
QString nextOwnName(SoakWorld& world)
{
    return "WPT" + QString::number(world.plan().userWptCount + 1).rightJustified(3, '0');
}

void addOwnPointBySlot(SoakWorld& world)
{
    addPoint(world, nextOwnName(world), [&] {
        world.callProgram("sAddNewWptToFp", {"WPT"}, {world.dice.between(-60, 75), world.dice.between(-180, 180)});
        return true;
    });
}

void addOwnPointByMenu(SoakWorld& world)
{
    const double latitude = world.dice.between(42, 51);
    const double longitude = world.dice.between(-5, 8);
    addPoint(world, nextOwnName(world), [&] { return world.chooseForPlace(latitude, longitude, "userPoint"); });
}

/// A point of the plan from a marker's own menu.
void addMarkerByMenu(SoakWorld& world)
{
    const QString family = world.dice.pick(QStringList{"airport", "navaid", "waypoint"});
    const QStringList titles = world.shownMarkers(family);
    if (titles.isEmpty()) {
        world.note("no " + family);
        return;
    }
    const QString title = world.dice.pick(titles);
    const auto add = [&] { return world.chooseForMarker(title, "addToPlan"); };
    if (family == "airport") {
        addAirport(world, title, add);
        return;
    }
    const bool isNavaid = family == "navaid";
    const QString ident =
        world
            .column(
                isNavaid ? world.settings().dbGEN : world.settings().dbWPT,
                QString("SELECT iden FROM %1 WHERE ukey = '%2'").arg(isNavaid ? "NAV" : "WPT", title.section('-', 1)))
            .value(0);
    if (ident.isNull()) { // an import has deleted its row: the marker stays and adds nothing
        world.note(title);
        world.note(add() ? "(no row)" : "(not there)");
        return;
    }
    addPoint(world, ident, add);
}

void startHere(SoakWorld& world)
{
    const double latitude = world.dice.between(42, 51);
    const double longitude = world.dice.between(-5, 8);
    const bool bySlot = world.dice.chance(50);
    if (bySlot) {
        world.callProgram("sAddSitToFp", {}, {latitude, longitude});
        world.callProgram("doMoveSIT", {}, {latitude, longitude});
    } else if (!world.chooseForPlace(latitude, longitude, "startHere")) {
        world.note("(not there)");
        return;
    }
    constexpr double step = 0.01; // degrees: a press is as fine as a point of the screen
    const CFpLine& start = world.plan().startLine;
    const double east = longitude < 0 ? longitude + 360 : longitude;
    world.require(qAbs(start.latS / 3600 - latitude) < step && qAbs(start.lonS / 3600 - east) < step,
                  "the flight starts elsewhere");
}

void dragStart(SoakWorld& world)
{
    const CFpLine before = world.plan().startLine;
    world.clearView(before.latS / 3600, before.lonS / 3600 > 180 ? before.lonS / 3600 - 360 : before.lonS / 3600, 10);
    const QPoint from = world.session.page().pointOf(
        before.latS / 3600, before.lonS / 3600 > 180 ? before.lonS / 3600 - 360 : before.lonS / 3600);
    world.session.page().drag(from, from + QPoint(world.dice.below(200) - 100, world.dice.below(200) - 100));
    const CFpLine& after = world.plan().startLine;
    world.require(qAbs(after.latS - before.latS) < 3600 && after.elev == before.elev &&
                      qFuzzyCompare(after.heading + 1, before.heading + 1),
                  "the dragged start has more than another place");
}

bool canTurn(SoakWorld& world)
{
    return world.docksAreShown();
}

void turnStart(SoakWorld& world)
{
    world.openDock("dockWFlightPlan");
    auto* heading = world.session.find<QSpinBox>("spInertial");
    const int wanted = world.dice.below(360);
    const int before = heading->value();
    world.note(QString::number(wanted));
    heading->setFocus();
    heading->selectAll();
    QTest::keyClicks(heading, QString::number(wanted));
    QTest::keyClick(heading, Qt::Key_Return);
    world.require(heading->value() == wanted, "the heading was not taken");
    if (before != wanted) {
        world.require(qFuzzyCompare(world.plan().startLine.heading + 1, wanted + 1.0), "the start was not turned");
    }
}

} // namespace

QVector<Command> planCommands()
{
    return {
        {"add airport", 5, hasRoom, addAirportBySlot},
        {"add navaid", 4, hasRoom, addNavaidBySlot},
        {"add waypoint", 4, hasRoom, addWaypointBySlot},
        {"add own point", 3, hasRoom, addOwnPointBySlot},
        {"add own point by menu", 2, hasRoomOnStillMap, addOwnPointByMenu},
        {"add marker by menu", 5, hasRoomOnStillMap, addMarkerByMenu},
        {"start here", 2, isStill, startHere},
        {"drag start", 2, isStill, dragStart},
        {"turn start", 3, canTurn, turnStart},
    };
}
