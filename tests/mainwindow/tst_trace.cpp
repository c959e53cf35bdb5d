// The simulator's aircraft on the map: the two buttons, the ticks and what they send, tick by tick.
#include "messagelog.h"
#include "tracewindow.h"

#include "mainwindow.h"

#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPushButton>
#include <QtTest>

#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr int aDay = 24 * 3600 * 1000; // milliseconds
constexpr int patience = 20000;        // milliseconds
const QString boxTitle = "Trajectoire avion";
const QString boxText = "Impossible de se connecter à Aeo!Zephan.\nAssurez vous de l'avoir démarré.";

/// Puts a read-only opening of the block in the place of this process's own: the system refuses a writable view of it.
/// Nothing else in the process is touched, such as the page engine's threads. False when the block is not open.
bool makeBlockReadOnly()
{
    const QFileInfoList files = QDir("/proc/self/fd").entryInfoList(QDir::Files | QDir::System);
    for (const QFileInfo& file : files) {
        if (file.symLinkTarget() == NoBlock::path()) {
            const int readOnly = open(qPrintable(NoBlock::path()), O_RDONLY | O_CLOEXEC);
            const bool replaced = readOnly != -1 && dup2(readOnly, file.fileName().toInt()) != -1;
            close(readOnly);
            return replaced;
        }
    }
    return false;
}

} // namespace

class TestTrace : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void offBeforeAnyTraceDoesNothing();
    void aTickBeforeAnyTraceDoesNothing();
    void withNoSimulatorTheMarkerSitsAtZero();
    void theFirstPositionIsTheSimulators();
    void eachTickMovesTheMarker();
    void theTimerOfTheSettingsTicks();
    void aLongIntervalOfTheSettingsIsKept();
    void theLongitudeIsNotWrapped_data();
    void theLongitudeIsNotWrapped();
    void theMapFollowsWhileTheButtonIsChecked();
    void followingDoesNothingWithoutATrace();
    void switchingOffErasesTheMarkerAndEndsTheTicks();
    void theMarkerIsErasedBetweenTheTwoLinesOfTheEnd();
    void aBlockThatIsCutShortStopsTheMarkerUntilItIsWhole();
    void twoTracesInARow();
    void aRefusedBlockIsToldAndLeavesTheButtonChecked();
    void theBoxOfAFailureStandsBeforeTheDisconnection();
    void aRefusedViewIsToldAsARefusedBlockIs();
    void theClickAfterAFailureSwitchesOff();
    void afterAFailureTheNextTraceWorks();
    void numbersThatAreNoneLeaveTheMarkerWhereItWas();
    void numbersOfAnySizeDoNoHarm();
    void aTraceBeforeThePageIsThereDoesNoHarm();
    void theTraceGoesOnInAClosedWindow();
    void theWindowMayEndWithATraceOn();

private:
    QScopedPointer<TraceWindow> trace;
};

void TestTrace::init()
{
    trace.reset(new TraceWindow);
}

void TestTrace::cleanup()
{
    trace.reset();
}

void TestTrace::offBeforeAnyTraceDoesNothing()
{
    MessageLog log;
    trace->page().clear();
    QVERIFY(QMetaObject::invokeMethod(&trace->session->window(), "on_pbTraceAcft_clicked", Q_ARG(bool, false)));
    QCOMPARE(trace->page().calls(), QStringList());
    QCOMPARE(log.messages(), QStringList());
}

void TestTrace::aTickBeforeAnyTraceDoesNothing()
{
    QCOMPARE(trace->tick(), QStringList());
}

void TestTrace::withNoSimulatorTheMarkerSitsAtZero()
{
    MessageLog log;
    QCOMPARE(trace->clickTrace(), QStringList{"addAcftMrkr(LatLng(0,0),\"\",0)"});
    QCOMPARE(log.messages(), (QStringList{"", "NAVIGATION: Connect", "Trace is ON"}));
    QVERIFY(trace->traceButton()->isChecked());
    QCOMPARE(trace->boxes.seen().size(), 0);
    QCOMPARE(trace->tick(), QStringList{"setAcftMrkr(LatLng(0,0),0)"});
}

void TestTrace::theFirstPositionIsTheSimulators()
{
    BlockPeer simulator;
    QVERIFY(simulator.publish("175411", "8494", "271.123456"));
    // Five decimals of a degree, six digits of the heading.
    QCOMPARE(trace->clickTrace(), QStringList{"addAcftMrkr(LatLng(48.72528,2.35944),\"\",271.123)"});
}

void TestTrace::eachTickMovesTheMarker()
{
    BlockPeer simulator;
    trace->clickTrace();
    QVERIFY(simulator.publish("175411", "8494", "271.5"));
    QCOMPARE(trace->tick(), QStringList{"setAcftMrkr(LatLng(48.72528,2.35944),271.5)"});
    QVERIFY(simulator.publish("-1800", "-3600", "-0.25"));
    QCOMPARE(trace->tick(), QStringList{"setAcftMrkr(LatLng(-0.5,-1),-0.25)"});
}

void TestTrace::theTimerOfTheSettingsTicks()
{
    trace->setInterval(2);
    BlockPeer simulator;
    trace->clickTrace();
    QVERIFY(simulator.publish("3600", "7200", "10"));
    QVERIFY(trace->markerComesTo("1,2", "10"));
    QVERIFY(simulator.publish("3600", "10800", "20"));
    QVERIFY(trace->markerComesTo("1,3", "20"));
    QCOMPARE(trace->page().calls("addAcftMrkr"), QStringList{"addAcftMrkr(LatLng(0,0),\"\",0)"});
    QCOMPARE(trace->page().calls("map.setCenter"), QStringList());
}

void TestTrace::aLongIntervalOfTheSettingsIsKept()
{
    trace->clickTrace();
    QTest::qWait(50);
    QCOMPARE(trace->page().calls("setAcftMrkr"), QStringList());
}

void TestTrace::theLongitudeIsNotWrapped_data()
{
    QTest::addColumn<QString>("lonS");
    QTest::addColumn<QString>("script");
    QTest::newRow("a little east of the far side") << "651600"
                                                   << "181";
    QTest::newRow("a full circle") << "1296000"
                                   << "360";
    QTest::newRow("far west") << "-1292400"
                              << "-359";
}

void TestTrace::theLongitudeIsNotWrapped()
{
    QFETCH(QString, lonS);
    QFETCH(QString, script);
    trace->page().evaluate(
        "var given = [], made = google.maps.LatLng;"
        "google.maps.LatLng = function (lat, lon) { given.push(lat + ' ' + lon); return new made(lat, lon); };");
    BlockPeer simulator;
    QVERIFY(simulator.publish("3600", lonS, "0"));
    const QString place = "1 " + script;
    trace->page().evaluate("given = []");
    trace->clickTrace();
    QCOMPARE(trace->page().evaluate("given[0]").toString(), place);
    trace->page().evaluate("given = []");
    trace->tick();
    QCOMPARE(trace->page().evaluate("given[0]").toString(), place);
    trace->centreButton()->click();
    trace->page().evaluate("given = []");
    trace->tick();
    QCOMPARE(trace->page().evaluate("given[0] + ' ' + given[1]").toString(), place + " " + place);
}

void TestTrace::theMapFollowsWhileTheButtonIsChecked()
{
    BlockPeer simulator;
    QVERIFY(simulator.publish("36000", "7200", "10"));
    trace->clickTrace();
    trace->page().clear();
    trace->centreButton()->click();
    QCOMPARE(trace->page().calls(), QStringList());
    QCOMPARE(trace->tick().mid(0, 2), (QStringList{"setAcftMrkr(LatLng(10,2),10)", "map.setCenter(LatLng(10,2))"}));
    QVERIFY(simulator.publish("39600", "10800", "20"));
    QCOMPARE(trace->tick().mid(0, 2), (QStringList{"setAcftMrkr(LatLng(11,3),20)", "map.setCenter(LatLng(11,3))"}));
    QCOMPARE(trace->mapCentre(), QString("11 3"));
    trace->centreButton()->click();
    QVERIFY(simulator.publish("43200", "14400", "30"));
    QCOMPARE(trace->tick(), QStringList{"setAcftMrkr(LatLng(12,4),30)"});
    QCOMPARE(trace->mapCentre(), QString("11 3"));
}

void TestTrace::followingDoesNothingWithoutATrace()
{
    trace->page().clear();
    trace->centreButton()->click();
    QCOMPARE(trace->tick(), QStringList());
    trace->clickTrace();
    QCOMPARE(trace->clickTrace(), QStringList{"eraseAcftMrkr()"});
    QCOMPARE(trace->tick(), QStringList());
}

void TestTrace::switchingOffErasesTheMarkerAndEndsTheTicks()
{
    trace->setInterval(1);
    trace->clickTrace();
    QTRY_VERIFY_WITH_TIMEOUT(!trace->page().calls("setAcftMrkr").isEmpty(), patience);
    MessageLog log;
    QCOMPARE(trace->clickTrace(), QStringList{"eraseAcftMrkr()"});
    QCOMPARE(log.messages(), (QStringList{"NAVIGATION: Disconnect", "Trace is OFF"}));
    QVERIFY(!trace->traceButton()->isChecked());
    QTest::qWait(50);
    QCOMPARE(trace->page().calls(), QStringList{"eraseAcftMrkr()"});
    // The block is the simulator's as much as ours.
    QVERIFY(QFileInfo::exists(NoBlock::path()));
}

void TestTrace::theMarkerIsErasedBetweenTheTwoLinesOfTheEnd()
{
    trace->clickTrace();
    QStringList sent;
    MessageLog log;
    log.listen([&](const QString& message) { sent << message + ": " + trace->page().calls().join(' '); });
    trace->clickTrace();
    QCOMPARE(sent, (QStringList{"NAVIGATION: Disconnect: ", "Trace is OFF: eraseAcftMrkr()"}));
}

void TestTrace::aBlockThatIsCutShortStopsTheMarkerUntilItIsWhole()
{
    trace->setInterval(1);
    BlockPeer simulator;
    QVERIFY(simulator.publish("169200", "7200", "10"));
    trace->centreButton()->click();
    trace->clickTrace();
    QVERIFY(trace->markerComesTo("47,2", "10"));
    simulator.kill();
    QVERIFY(QFile::resize(NoBlock::path(), 0));
    QCOMPARE(trace->tick(), QStringList());
    // The timer ticks on.
    QTest::qWait(50);
    QCOMPARE(trace->page().calls("setAcftMrkr"), QStringList());
    QCOMPARE(trace->mapCentre(), QString("47 2"));
    QVERIFY(simulator.publish("172800", "7200", "20"));
    QVERIFY(trace->markerComesTo("48,2", "20"));
    QVERIFY(QFile::resize(NoBlock::path(), 0));
    QCOMPARE(trace->clickTrace(), QStringList{"eraseAcftMrkr()"});
    QCOMPARE(trace->boxes.seen().size(), 0);
}

void TestTrace::twoTracesInARow()
{
    trace->setInterval(1);
    BlockPeer simulator;
    QVERIFY(simulator.publish("3600", "7200", "10"));
    trace->clickTrace();
    QVERIFY(trace->markerComesTo("1,2", "10"));
    trace->clickTrace();
    trace->setInterval(aDay);
    QVERIFY(simulator.publish("7200", "7200", "10"));
    QCOMPARE(trace->clickTrace(), QStringList{"addAcftMrkr(LatLng(2,2),\"\",10)"});
    // The first trace's timer is dead.
    QTest::qWait(50);
    QCOMPARE(trace->page().calls("setAcftMrkr"), QStringList());
    QVERIFY(simulator.publish("10800", "7200", "10"));
    QCOMPARE(trace->tick(), QStringList{"setAcftMrkr(LatLng(3,2),10)"});
    QCOMPARE(trace->clickTrace(), QStringList{"eraseAcftMrkr()"});
}

void TestTrace::aRefusedBlockIsToldAndLeavesTheButtonChecked()
{
    QVERIFY(QDir().mkdir(NoBlock::path()));
    trace->boxes.expectMessage(boxTitle, boxText);
    MessageLog log;
    QCOMPARE(trace->clickTrace(), QStringList());
    QCOMPARE(log.messages(QtDebugMsg),
             (QStringList{"Error CreateFileMapping", "Trace failed", "NAVIGATION: Disconnect"}));
    QVERIFY(trace->traceButton()->isChecked());
    QCOMPARE(trace->boxes.seen().size(), 1);
    QCOMPARE(trace->boxes.seen().value(0).icon, QMessageBox::Warning);
    QCOMPARE(trace->boxes.seen().value(0).choices, QStringList{"OK"});
    QCOMPARE(trace->boxes.seen().value(0).parentClass, QString("MainWindow"));
    QCOMPARE(trace->tick(), QStringList());
}

void TestTrace::theBoxOfAFailureStandsBeforeTheDisconnection()
{
    QVERIFY(QDir().mkdir(NoBlock::path()));
    MessageLog log;
    QStringList before;
    trace->boxes.expectDialog("QMessageBox", [&](QDialog* box) {
        before = log.messages(QtDebugMsg);
        box->accept();
    });
    trace->clickTrace();
    QCOMPARE(before, (QStringList{"Error CreateFileMapping", "Trace failed"}));
    QCOMPARE(log.messages(QtDebugMsg), before + QStringList{"NAVIGATION: Disconnect"});
}

void TestTrace::aRefusedViewIsToldAsARefusedBlockIs()
{
    trace->setInterval(1);
    trace->boxes.expectMessage(boxTitle, boxText);
    MessageLog log;
    // The line between the attaching and the mapping.
    bool isReadOnly = false;
    log.listen([&isReadOnly](const QString& message) {
        if (message.isEmpty())
            isReadOnly = makeBlockReadOnly();
    });
    QCOMPARE(trace->clickTrace(), QStringList());
    QCOMPARE(log.messages(QtDebugMsg),
             (QStringList{"", "Error MapViewOfFile", "Trace failed", "NAVIGATION: Disconnect"}));
    log.listen(nullptr);
    QVERIFY(isReadOnly);
    QVERIFY(trace->traceButton()->isChecked());
    QCOMPARE(trace->boxes.seen().size(), 1);
    // The link's timer, which ran, is stopped, and nothing hangs on it.
    QTest::qWait(50);
    QCOMPARE(trace->page().calls(), QStringList());
    QCOMPARE(trace->tick(), QStringList());
    QCOMPARE(trace->clickTrace(), QStringList{"eraseAcftMrkr()"});
    QCOMPARE(trace->clickTrace(), QStringList{"addAcftMrkr(LatLng(0,0),\"\",0)"});
}

void TestTrace::theClickAfterAFailureSwitchesOff()
{
    QVERIFY(QDir().mkdir(NoBlock::path()));
    trace->boxes.expectMessage(boxTitle, boxText);
    trace->clickTrace();
    MessageLog log;
    QCOMPARE(trace->clickTrace(), QStringList{"eraseAcftMrkr()"});
    QCOMPARE(log.messages(), (QStringList{"NAVIGATION: Disconnect", "Trace is OFF"}));
    QVERIFY(!trace->traceButton()->isChecked());
    QCOMPARE(trace->boxes.seen().size(), 1);
}

void TestTrace::afterAFailureTheNextTraceWorks()
{
    QVERIFY(QDir().mkdir(NoBlock::path()));
    trace->boxes.expectMessage(boxTitle, boxText);
    trace->clickTrace();
    trace->clickTrace();
    NoBlock::remove();
    BlockPeer simulator;
    QVERIFY(simulator.publish("3600", "7200", "10"));
    QCOMPARE(trace->clickTrace(), QStringList{"addAcftMrkr(LatLng(1,2),\"\",10)"});
    QVERIFY(trace->traceButton()->isChecked());
}

void TestTrace::numbersThatAreNoneLeaveTheMarkerWhereItWas()
{
    BlockPeer simulator;
    QVERIFY(simulator.publish("nan", "-inf", "nan"));
    QCOMPARE(trace->clickTrace(), QStringList{"addAcftMrkr(LatLng(NaN,NaN),\"\",NaN)"});
    QVERIFY(simulator.publish("169200", "7200", "10"));
    trace->centreButton()->click();
    trace->tick();
    const QStringList numbers[] = {{"nan", "7200", "0"}, {"3600", "inf", "0"}, {"-nan", "-nan", "-inf"}};
    for (const QStringList& record : numbers) {
        QVERIFY(simulator.publish(record.at(0), record.at(1), record.at(2)));
        QCOMPARE(trace->tick().filter("setAcftMrkr").size(), 1);
        // The map stays where the last true position had put it.
        QCOMPARE(trace->mapCentre(), QString("47 2"));
    }
    QVERIFY(simulator.publish("172800", "7200", "10"));
    trace->tick();
    QCOMPARE(trace->mapCentre(), QString("48 2"));
    QCOMPARE(trace->page().evaluate("document.querySelectorAll('.chart-marker').length").toInt(), 1);
}

void TestTrace::numbersOfAnySizeDoNoHarm()
{
    BlockPeer simulator;
    trace->centreButton()->click();
    QVERIFY(simulator.publish("1e308", "-1e308", "1e300"));
    trace->clickTrace();
    QCOMPARE(trace->tick().filter("setAcftMrkr").size(), 1);
    QVERIFY(simulator.publish("5e-324", "1e18", "-1e-300"));
    QCOMPARE(trace->tick().filter("setAcftMrkr").size(), 1);
    QVERIFY(simulator.publish("172800", "7200", "10"));
    QVERIFY(trace->tick().contains("setAcftMrkr(LatLng(48,2),10)"));
    QCOMPARE(trace->mapCentre(), QString("48 2"));
}

void TestTrace::aTraceBeforeThePageIsThereDoesNoHarm()
{
    trace->session.reset();
    trace->session.reset(new WindowSession);
    trace->setInterval(1);
    trace->traceButton()->click();
    QVERIFY(trace->session->load());
    QVERIFY(trace->traceButton()->isChecked());
    // There was no page to put the marker on; the next trace brings it.
    trace->traceButton()->click();
    QVERIFY(trace->clickTrace().contains("addAcftMrkr(LatLng(0,0),\"\",0)"));
}

void TestTrace::theTraceGoesOnInAClosedWindow()
{
    trace->setInterval(2);
    BlockPeer simulator;
    trace->clickTrace();
    trace->session->window().close();
    QVERIFY(!trace->session->window().isVisible());
    QVERIFY(simulator.publish("3600", "7200", "10"));
    QVERIFY(trace->markerComesTo("1,2", "10"));
}

void TestTrace::theWindowMayEndWithATraceOn()
{
    trace->setInterval(1);
    trace->clickTrace();
    QTRY_VERIFY_WITH_TIMEOUT(!trace->page().calls("setAcftMrkr").isEmpty(), patience);
    trace->session->close();
    // The timer ticks on for nobody.
    QTest::qWait(50);
    trace.reset();
    trace.reset(new TraceWindow);
    QCOMPARE(trace->clickTrace(), QStringList{"addAcftMrkr(LatLng(0,0),\"\",0)"});
}

QTEST_MAIN(TestTrace)
#include "tst_trace.moc"
