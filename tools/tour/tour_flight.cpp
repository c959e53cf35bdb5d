// The steps with the simulator's aircraft: the saved plan is flown, and the map traces the flight and follows it.
#include "tour.h"

#include "aeozephannavrecord.h"
#include "mainwindow.h"
#include "sharedblock.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QPushButton>
#include <QVector3D>
#include <QtMath>
#include <QtTest>

#include <limits>

namespace {

constexpr int patience = 60000; // milliseconds

/// Waits until the published aircraft has come to the south of a latitude, in degrees.
bool fliesSouthOf(double latitude)
{
    SharedBlock block;
    if (!block.attach() || block.map() == nullptr) {
        return false;
    }
    const auto& record = *static_cast<const volatile AeoZephanNavRecord*>(block.map());
    return QTest::qWaitFor([&] { return record.latS < latitude * 3600.0; }, patience);
}

/// The last published place as flysim takes it: degrees, latitude and longitude.
QString publishedPlace()
{
    SharedBlock block;
    if (!block.attach() || block.map() == nullptr) {
        return {};
    }
    const auto& record = *static_cast<const volatile AeoZephanNavRecord*>(block.map());
    return QString("%1,%2").arg(record.latS / 3600.0, 0, 'f', 6).arg(record.lonS / 3600.0, 0, 'f', 6);
}

/// The saved plan. The working directory is the program's folder, two below the simulator's root.
QString planPath()
{
    return QDir().absoluteFilePath("../../Flightplan/LFPO_LFBO.FPL");
}

/// The unit vector from the middle of the earth, for a place in degrees.
QVector3D directionOf(double latitude, double longitude)
{
    const double north = qDegreesToRadians(latitude);
    const double east = qDegreesToRadians(longitude);
    return {static_cast<float>(qCos(north) * qCos(east)), static_cast<float>(qCos(north) * qSin(east)),
            static_cast<float>(qSin(north))};
}

/// The plan's points by the positions in its file: not by what flysim makes of them, which is looked at here.
QVector<QVector3D> plannedPoints()
{
    QFile file(planPath());
    QVector<QVector3D> points;
    if (!file.open(QIODevice::ReadOnly)) {
        return points;
    }
    while (!file.atEnd()) {
        if (file.readLine().trimmed().startsWith("<llps>")) {
            const QList<QByteArray> arcSeconds = file.readLine().trimmed().split(',');
            points << directionOf(arcSeconds.value(0).toDouble() / 3600.0, arcSeconds.value(1).toDouble() / 3600.0);
        }
    }
    return points;
}

/// The distance, NM, of a place to the great circle between two others, or to the nearer of them when it is not between
/// them.
float distanceToLeg(const QVector3D& place, const QVector3D& from, const QVector3D& to)
{
    const QVector3D axis = QVector3D::crossProduct(from, to).normalized();
    const bool between = QVector3D::dotProduct(QVector3D::crossProduct(from, place), axis) >= 0.0F &&
                         QVector3D::dotProduct(QVector3D::crossProduct(place, to), axis) >= 0.0F;
    // In radians; a short chord is as good as its arc.
    const float angle =
        between ? qAbs(QVector3D::dotProduct(place, axis)) : qMin((place - from).length(), (place - to).length());
    return qRadiansToDegrees(angle) * 60.0F;
}

/// The distance, NM, to the nearest leg of the plan; infinite without one.
float distanceToPlan(double latitude, double longitude)
{
    const QVector3D place = directionOf(latitude, longitude);
    const QVector<QVector3D> points = plannedPoints();
    float nearest = std::numeric_limits<float>::infinity();
    for (int i = 0; i + 1 < points.size(); ++i) {
        nearest = qMin(nearest, distanceToLeg(place, points[i], points[i + 1]));
    }
    return nearest;
}

} // namespace

void Tour::startFlight(const QStringList& way, int factor)
{
    simulator = std::make_unique<QProcess>();
    simulator->start(QCoreApplication::applicationDirPath() + "/flysim",
                     way + QStringList{"--speed", "450", "--factor", QString::number(factor)});
    // It tells its status once it has published: a block that an earlier simulator left says nothing.
    const bool isOver = QTest::qWaitFor(
        [this] { return simulator->canReadLine() || simulator->state() == QProcess::NotRunning; }, patience);
    require(isOver && simulator->canReadLine(), "flysim does not fly: " + simulator->readAllStandardError());
}

void Tour::traceFlight()
{
    startFlight({"--plan", planPath()}, 200);
    clickButton("pbTraceAcft");
    require(fliesSouthOf(47.6), "the aircraft does not fly");
}

void Tour::followFlight()
{
    clickButton("pbCenterAcft");
    zoomTo(8);
    require(fliesSouthOf(46.0), "the aircraft does not fly on");
    // The map's middle is the aircraft; it comes there with the next tick, for which a busy window may take its time.
    QVariantList middle;
    const bool follows = QTest::qWaitFor(
        [&] {
            middle = session->page().evaluate("[map.getCenter().lat(), map.getCenter().lng()]").toList();
            return middle.value(0).toDouble() < 46.2;
        },
        patience);
    require(follows, QString("the map is at %1 and does not follow").arg(middle.value(0).toDouble()));
    const float astray = distanceToPlan(middle.value(0).toDouble(), middle.value(1).toDouble());
    require(astray < 1.0F, QString("the aircraft is %1 NM from the plan").arg(static_cast<double>(astray)));
}

void Tour::endFlight()
{
    simulator->terminate();
    require(simulator->waitForFinished(patience) && simulator->exitCode() == 0, "flysim did not end cleanly");
    simulator.reset();
}

/// On the plan the route lies over the trail. Slower than there: the trail has a gap where the aircraft has flown three
/// nautical miles while the window was busy.
void Tour::leavePlan()
{
    endFlight();
    startFlight({"--start", publishedPlace(), "--heading", "235"}, 60);
    require(fliesSouthOf(45.3), "the aircraft does not leave the plan");
    require(session->page().evaluate("page.hasTrail()").toBool(), "the aircraft leaves no trail");
}

void Tour::endTrace()
{
    clickButton("pbCenterAcft");
    clickButton("pbTraceAcft");
    endFlight();
}
