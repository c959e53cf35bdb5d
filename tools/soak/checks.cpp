// What must be true after each command, found out without the functions that it is about.
#include "checks.h"

#include "cflightplan.h"
#include "cnavglobalvar.h"
#include "mainwindow.h"

#include <QApplication>
#include <QCryptographicHash>
#include <QFile>
#include <QPushButton>
#include <QTableWidget>
#include <QTreeWidget>

#include <cmath>

namespace {

/// The texts of a line's cells, columns 1 to 9.
QStringList cellTexts(const CFpLine& line)
{
    const auto padded = [](double value, int width, int decimals) {
        return QString::number(value, 'f', decimals).rightJustified(width);
    };
    return {line.iden,
            line.name,
            padded(line.freq, 3, 3),
            QString::number(line.speed).rightJustified(3),
            QString(), // rounded in its own way
            QString(), // rounded in its own way
            QString::number(line.duration),
            QString("00:00"),
            QString::number(line.altd)};
}

void checkGrid(SoakWorld& world)
{
    const QTableWidget& grid = *world.grid();
    const QList<CFpLinePtr>& lines = world.plan().lines;
    world.require(grid.rowCount() == lines.size(),
                  QString("%1 rows for %2 points").arg(grid.rowCount()).arg(lines.size()));
    for (int row = 0; row < qMin(grid.rowCount(), lines.size()); ++row) {
        const QStringList wanted = cellTexts(*lines.at(row));
        for (int column = 1; column < grid.columnCount(); ++column) {
            const QTableWidgetItem* item = grid.item(row, column);
            const QString text = item != nullptr ? item->text() : QString("(none)");
            const bool typed = world.deeds.typedCells.contains({row, column}) && text == "x";
            world.require(
                typed || wanted.at(column - 1).isNull() || text == wanted.at(column - 1),
                QString("cell %1, %2 shows \"%3\" for \"%4\"").arg(row).arg(column).arg(text, wanted.at(column - 1)));
        }
    }
}

/// The length of a leg by the chord, not by the cosines.
double legMiles(const CFpLine& from, const CFpLine& to)
{
    constexpr double radians = 0.017453292519943295 / 3600.0;
    const double north = from.latS * radians;
    const double farNorth = to.latS * radians;
    const double half = std::sin((farNorth - north) / 2.0);
    const double across = std::sin((to.lonS - from.lonS) * radians / 2.0);
    const double chord = half * half + std::cos(north) * std::cos(farNorth) * across * across;
    return 2.0 * std::asin(std::sqrt(chord)) / radians / 60.0;
}

void checkLegs(SoakWorld& world)
{
    constexpr double slack = 0.01; // NM: the cosines are coarse for short legs
    const QList<CFpLinePtr>& lines = world.plan().lines;
    for (int i = 0; i + 1 < lines.size(); ++i) {
        // A found point can stand in the plan twice, one and the same: its leg is then the later one.
        const int later = lines.indexOf(lines.at(i), i + 1);
        if (later >= 0 && later + 1 < lines.size()) {
            continue;
        }
        const double miles = legMiles(*lines.at(i), *lines.at(i + 1));
        // The cosines give no number for some points that stand on each other.
        const bool none = std::isnan(lines.at(i)->dist) && miles < slack;
        world.require(none || std::abs(lines.at(i)->dist - miles) < slack,
                      QString("leg %1 has %2 NM instead of %3").arg(i).arg(lines.at(i)->dist).arg(miles));
    }
}

void checkRoute(SoakWorld& world)
{
    QStringList names;
    for (const CFpLinePtr& line : world.plan().lines) {
        names << line->name;
    }
    const QStringList drawn = world.evaluate("page.route.points.map(point => point.name)").toStringList();
    world.require(drawn == names, QString("the page draws \"%1\"").arg(drawn.join(' ')));
}

int itemsBelow(const QTreeWidgetItem* item)
{
    int count = item->childCount();
    for (int i = 0; i < item->childCount(); ++i) {
        count += itemsBelow(item->child(i));
    }
    return count;
}

void checkFound(SoakWorld& world)
{
    const int items = itemsBelow(world.tree("treeWFound")->invisibleRootItem());
    world.require(items == world.plan().foundLines.size(),
                  QString("%1 items for %2 found points").arg(items).arg(world.plan().foundLines.size()));
}

void checkRows(SoakWorld& world, const char* what, const QStringList& keys, const QSet<QString>& wanted)
{
    const QSet<QString> found(keys.begin(), keys.end());
    world.require(found.size() == keys.size(), QString("a key of %1 stands there twice").arg(what));
    world.require(found == wanted, QString("%1: too many: %2; missing: %3")
                                       .arg(what, QStringList((found - wanted).values()).join(' '),
                                            QStringList((wanted - found).values()).join(' ')));
}

void checkDatabases(SoakWorld& world)
{
    const CNavGlobalVar& settings = world.settings();
    checkRows(world, "NAV", world.column(settings.dbGEN, "SELECT ukey FROM NAV"), world.deeds.navaids);
    checkRows(world, "WPT", world.column(settings.dbWPT, "SELECT ukey FROM WPT"), world.deeds.waypoints);
    QMap<QString, int> procedures;
    for (const QVariantList& row : world.rows(settings.dbRTE, "SELECT strm, COUNT(*) FROM SIDSTAR GROUP BY strm")) {
        procedures[row.at(0).toString()] = row.at(1).toInt();
    }
    world.require(procedures == world.deeds.procedures, "the stored procedures are others");
}

void checkStartupLine(SoakWorld& world)
{
    QFile file(world.path("system/AeoZephan.ini"));
    world.require(file.open(QIODevice::ReadOnly), "the simulator has lost its settings");
    QByteArrayList lines = file.readAll().split('\n');
    QByteArrayList startup;
    for (const QByteArray& line : lines) {
        if (line.startsWith("startupSituation")) {
            startup << line;
        }
    }
    world.require(lines.size() > 20 && startup.size() == 1, "the simulator's settings are cut");
    if (!world.deeds.startupLine.isEmpty()) {
        world.require(startup.value(0) == world.deeds.startupLine, "another start: " + startup.value(0));
    }
}

void checkWindow(SoakWorld& world)
{
    world.require(QApplication::activeModalWidget() == nullptr, "a box is still open");
    world.require(QApplication::activePopupWidget() == nullptr, "a menu is still open");
    world.require(world.evaluate("6 * 7").toInt() == 42, "the page does not answer");
    world.require(world.session.find<QPushButton>("btnPod")->isHidden(), "a button has come out of hiding");
}

QString valueBelow(const QStringList& lines, int from, const char* tag)
{
    for (int i = from; i + 1 < lines.size(); ++i) {
        if (lines.at(i).trimmed().startsWith(QLatin1String(tag))) {
            return lines.at(i + 1).trimmed();
        }
    }
    return QString();
}

QStringList linesOf(SoakWorld& world, const QString& path)
{
    QFile file(path);
    world.require(file.open(QIODevice::ReadOnly), "no file " + path);
    return QString::fromUtf8(file.readAll()).split('\n');
}

} // namespace

void checkAll(SoakWorld& world)
{
    checkGrid(world);
    checkLegs(world);
    checkRoute(world);
    checkFound(world);
    checkDatabases(world);
    checkStartupLine(world);
    checkWindow(world);
    for (const QString& complaint : world.takeComplaints()) {
        world.require(false, complaint);
    }
}

PlanTexts readPlanFile(SoakWorld& world, const QString& path)
{
    const QStringList lines = linesOf(world, path);
    PlanTexts points;
    int objects = 0;
    int ends = 0;
    for (int i = 0; i < lines.size(); ++i) {
        const QString tag = lines.at(i).trimmed().left(6);
        objects += tag == "<bgno>" ? 1 : 0;
        ends += tag == "<endo>" ? 1 : 0;
        if (tag != "<wpnt>") {
            continue;
        }
        QStringList point;
        for (const char* field :
             {"<name>", "<iden>", "<llps>", "<dbky>", "<user>", "<altd>", "<tkof>", "<land>", "<mark>"}) {
            const QString value = valueBelow(lines, i, field);
            point += QLatin1String(field) == QLatin1String("<llps>") ? value.split(',') : QStringList{value};
        }
        points << point;
    }
    world.require(objects == ends && objects == points.size() + 1 && lines.last().isEmpty(),
                  "the file is not whole: " + path);
    return points;
}

void checkSavedPlan(SoakWorld& world, const QString& fileName)
{
    const QString path = world.path("Flightplan/" + fileName);
    const PlanTexts points = readPlanFile(world, path);
    world.require(points == world.planTexts(), fileName + " is not the plan");
    const QString version = valueBelow(linesOf(world, path), 0, "<vers>");
    world.require(version.toInt() == world.plan().fplVersion, "version " + version);
    world.deeds.plans[fileName] = points;
}

void checkSituation(SoakWorld& world, const QString& fileName)
{
    const QStringList lines = linesOf(world, world.path("Saved Simulations/" + fileName));
    const CFlightPlan& plan = world.plan();
    world.require(lines.size() == 22 && lines.last().isEmpty(), "the file is not whole: " + fileName);
    world.require(lines.first() == QString("<bgno> ========== %1 =====").arg(plan.lines.first()->iden),
                  fileName + " begins with " + lines.first());
    world.require(lines.value(20) == "<endo> ========== END OBJECT ============", fileName + " has no end");
    const double heading = plan.startLine.heading * 0.017453292519943295;
    world.require(valueBelow(lines, 0, "<iang>") == QString("0.0,%1,0.0").arg(heading, 0, 'f', 2),
                  fileName + " turns the aircraft elsewhere");
    world.require(lines.value(7).trimmed() == QString::number(plan.startLine.elev),
                  fileName + " has another elevation");
}

QString digest(const SoakWorld& world)
{
    QCryptographicHash hash(QCryptographicHash::Sha1);
    const auto add = [&hash](const QString& text) { hash.addData(text.toUtf8() + '\n'); };
    for (const QStringList& point : world.planTexts()) {
        add(point.join(';'));
    }
    const CFpLine& start = world.plan().startLine;
    add(QString("%1 %2 %3").arg(start.latS, 0, 'f', 3).arg(start.lonS, 0, 'f', 3).arg(start.heading));
    for (const QSet<QString>& keys : {world.deeds.navaids, world.deeds.waypoints}) {
        QStringList sorted = keys.values();
        sorted.sort();
        add(sorted.join(';'));
    }
    add(QStringList(world.deeds.procedures.keys()).join(';'));
    add(QString::number(world.plan().foundLines.size()));
    add(QString("%1 %2").arg(world.grid()->currentRow()).arg(world.grid()->currentColumn()));
    return QString::fromLatin1(hash.result().toHex().left(8));
}
