// The steps with the simulator's aircraft: the saved plan is flown, and the map traces the flight and follows it.
#include "tour.h"

#include "aeozephannavrecord.h"
#include "mainwindow.h"
#include "sharedblock.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QPushButton>
#include <QtTest>

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

} // namespace

void Tour::startFlight()
{
    // The working directory is the program's folder, two below the simulator's root.
    const QString plan = QDir().absoluteFilePath("../../Flightplan/LFPO_LFBO.FPL");
    simulator = std::make_unique<QProcess>();
    simulator->start(QCoreApplication::applicationDirPath() + "/flysim",
                     {"--plan", plan, "--speed", "450", "--factor", "200"});
    // It tells its status once it has published: a block that an earlier simulator left says nothing.
    require(QTest::qWaitFor([this] { return simulator->canReadLine(); }, patience),
            "flysim does not fly: " + simulator->readAllStandardError());
}

void Tour::traceFlight()
{
    startFlight();
    clickButton("pbTraceAcft");
    require(fliesSouthOf(47.6), "the aircraft does not fly");
}

void Tour::followFlight()
{
    clickButton("pbCenterAcft");
    zoomTo(8);
    require(fliesSouthOf(46.0), "the aircraft does not fly on");
    const double centre = session.page().evaluate("map.getCenter().lat()").toDouble();
    require(centre < 46.2, QString("the map is at %1 and does not follow").arg(centre));
}

void Tour::endTrace()
{
    clickButton("pbCenterAcft");
    clickButton("pbTraceAcft");
    simulator->terminate();
    require(simulator->waitForFinished(patience) && simulator->exitCode() == 0, "flysim did not end cleanly");
    simulator.reset();
}
