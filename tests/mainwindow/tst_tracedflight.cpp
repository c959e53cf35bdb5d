// The trace of an aircraft that the simulator's stand-in flies in a process of its own.
#include "tracewindow.h"

#include "aeozephannavrecord.h"
#include "sharedblock.h"

#include <QCoreApplication>
#include <QProcess>
#include <QPushButton>
#include <QtTest>

#include <algorithm>

namespace {

constexpr int patience = 20000; // milliseconds

/// Latitudes that the marker was given, in their order, with repetitions left out.
QVector<double> latitudes(const QStringList& calls)
{
    QVector<double> found;
    for (const QString& call : calls) {
        const double latitude = call.section('(', 2, 2).section(',', 0, 0).toDouble();
        if (found.isEmpty() || found.last() != latitude)
            found << latitude;
    }
    return found;
}

} // namespace

class TestTracedFlight : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        trace.reset(new TraceWindow);
        trace->setInterval(2);
    }
    void cleanup()
    {
        simulator.reset();
        trace.reset();
    }

    void aSimulatorStartedBeforeTheTraceIsSeen()
    {
        fly("47,2", "90");
        QTRY_VERIFY_WITH_TIMEOUT(isPublishing(), patience);
        trace->clickTrace();
        QCOMPARE(trace->page().calls("addAcftMrkr"), QStringList{"addAcftMrkr(LatLng(47,2),\"\",90)"});
        QVERIFY(trace->markerComesTo("47,2", "90"));
    }

    void aSimulatorStartedAfterTheTraceIsSeen()
    {
        trace->clickTrace();
        QVERIFY(trace->markerComesTo("0,0", "0"));
        fly("47,2", "90");
        QVERIFY(trace->markerComesTo("47,2", "90"));
        QCOMPARE(trace->boxes.seen().size(), 0);
    }

    void aFlyingAircraftMovesOverTheMap()
    {
        fly("10,2", "0", "100");
        QTRY_VERIFY_WITH_TIMEOUT(isPublishing(), patience);
        trace->clickTrace();
        trace->centreButton()->click();
        QTRY_VERIFY_WITH_TIMEOUT(latitudes(trace->page().calls("setAcftMrkr")).size() >= 10, patience);
        const QString centre = trace->mapCentre();
        const QVector<double> flown = latitudes(trace->page().calls("setAcftMrkr"));
        QVERIFY(flown.first() >= 10.0);
        QVERIFY(std::is_sorted(flown.begin(), flown.end()));
        // The map is where the aircraft is.
        QCOMPARE(centre.section(' ', 0, 0).toDouble(), flown.last());
        QCOMPARE(centre.section(' ', 1, 1), QString("2"));
    }

    void aKilledSimulatorLeavesTheMarkerAndItsSuccessorMovesIt()
    {
        fly("47,2", "90");
        trace->clickTrace();
        QVERIFY(trace->markerComesTo("47,2", "90"));
        simulator->kill();
        QVERIFY(simulator->waitForFinished(patience));
        trace->page().clear();
        // Ticks go on, at the last values, and nobody is told.
        QTRY_VERIFY_WITH_TIMEOUT(trace->page().calls("setAcftMrkr").size() >= 3, patience);
        QStringList places = trace->page().calls("setAcftMrkr");
        places.removeDuplicates();
        QCOMPARE(places, QStringList{"setAcftMrkr(LatLng(47,2),90)"});
        fly("46,-3", "180");
        QVERIFY(trace->markerComesTo("46,-3", "180"));
        QCOMPARE(trace->boxes.seen().size(), 0);
        QVERIFY(trace->traceButton()->isChecked());
    }

    void theTraceEndsAndTheFlightGoesOn()
    {
        // Six minutes of arc a second to the north: a quarter of an hour and no pole on the way.
        fly("10,2", "0", "21.6");
        trace->clickTrace();
        QTRY_VERIFY_WITH_TIMEOUT(!latitudes(trace->page().calls("setAcftMrkr")).isEmpty() &&
                                     latitudes(trace->page().calls("setAcftMrkr")).last() > 10.0,
                                 patience);
        trace->clickTrace();
        SharedBlock block;
        QVERIFY(block.attach());
        const auto* record = static_cast<const volatile AeoZephanNavRecord*>(block.map());
        QVERIFY(record != nullptr);
        const double left = record->latS;
        QVERIFY(left > 36000.0);
        QTRY_VERIFY_WITH_TIMEOUT(record->latS > left, patience);
        QCOMPARE(simulator->state(), QProcess::Running);
        // The next trace begins where the flight is by now.
        const QStringList marker = trace->clickTrace().filter("addAcftMrkr");
        QCOMPARE(marker.size(), 1);
        QVERIFY2(latitudes(marker).value(0) > left / 3600.0, qPrintable(marker.first()));
    }

private:
    /// Starts the simulator's stand-in from a place on a course, standing still unless it is given a speed in knots.
    void fly(const QString& start, const QString& heading, const QString& speed = "0")
    {
        simulator.reset(new QProcess);
        simulator->start(QCoreApplication::applicationDirPath() + "/flysim",
                         {"--start", start, "--heading", heading, "--speed", speed, "--factor", "1000"});
        QVERIFY(simulator->waitForStarted(patience));
    }
    bool isPublishing()
    {
        // It tells its first record.
        return simulator->bytesAvailable() > 0;
    }

    QScopedPointer<TraceWindow> trace;
    QScopedPointer<QProcess> simulator;
};

QTEST_MAIN(TestTracedFlight)
#include "tst_tracedflight.moc"
