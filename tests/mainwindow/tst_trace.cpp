// The simulator's aircraft on the map, against processes that write the shared block as the simulator does.
#include "blockpeer.h"
#include "boxresponder.h"
#include "messagelog.h"
#include "sandbox.h"
#include "windowsession.h"

#include "cnavglobalvar.h"
#include "mainwindow.h"

#include <QDir>
#include <QFileInfo>
#include <QPushButton>
#include <QtTest>

namespace {

constexpr int never = 24 * 3600 * 1000; // milliseconds
constexpr int patience = 20000;         // milliseconds
const QString boxTitle = "Trajectoire avion";
const QString boxText = "Impossible de se connecter à Aeo!Zephan.\nAssurez vous de l'avoir démarré.";

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
    void twoTracesInARow();
    void aRefusedBlockIsToldAndLeavesTheButtonChecked();
    void theClickAfterAFailureSwitchesOff();
    void afterAFailureTheNextTraceWorks();
    void aSimulatorStartedBeforeTheTraceIsSeen();
    void aSimulatorStartedAfterTheTraceIsSeen();
    void aKilledSimulatorLeavesTheMarkerAndItsSuccessorMovesIt();
    void numbersThatAreNoneLeaveTheMarkerWhereItWas();
    void numbersOfAnySizeDoNoHarm();
    void aTraceBeforeThePageIsThereDoesNoHarm();
    void theTraceGoesOnInAClosedWindow();
    void theWindowMayEndWithATraceOn();

private:
    PageProbe& page()
    {
        return session->page();
    }
    QPushButton* traceButton()
    {
        return session->find<QPushButton>("pbTraceAcft");
    }
    QPushButton* centreButton()
    {
        return session->find<QPushButton>("pbCenterAcft");
    }
    /// A click on the button, and the calls that it made.
    QStringList clickTrace()
    {
        page().clear();
        traceButton()->click();
        return page().calls();
    }
    /// One tick, with the timer's own far away; and the calls that it made.
    QStringList tick()
    {
        page().clear();
        if (!QMetaObject::invokeMethod(&session->window(), "sTraceAircraft", Qt::DirectConnection))
            return {"no slot"};
        return page().calls();
    }
    void setInterval(int milliseconds)
    {
        CNavGlobalVar::instance()->traceInterval = milliseconds;
    }
    bool markerComesTo(const QString& place, const QString& heading)
    {
        const QString call = QString("setAcftMrkr(LatLng(%1),%2)").arg(place, heading);
        return QTest::qWaitFor([this, call] { return page().calls("setAcftMrkr").contains(call); }, patience);
    }

    QScopedPointer<NoBlock> noBlock;
    QScopedPointer<BoxResponder> boxes;
    QScopedPointer<Sandbox> sandbox;
    QScopedPointer<WindowSession> session;
};

void TestTrace::init()
{
    noBlock.reset(new NoBlock);
    boxes.reset(new BoxResponder);
    sandbox.reset(new Sandbox);
    session.reset(new WindowSession);
    QVERIFY(session->load());
    setInterval(never);
}

void TestTrace::cleanup()
{
    session.reset();
    sandbox.reset();
    boxes.reset();
    noBlock.reset();
}

void TestTrace::offBeforeAnyTraceDoesNothing()
{
    MessageLog log;
    page().clear();
    QVERIFY(QMetaObject::invokeMethod(&session->window(), "on_pbTraceAcft_clicked", Q_ARG(bool, false)));
    QCOMPARE(page().calls(), QStringList());
    QCOMPARE(log.messages(), QStringList());
}

void TestTrace::aTickBeforeAnyTraceDoesNothing()
{
    QCOMPARE(tick(), QStringList());
}

void TestTrace::withNoSimulatorTheMarkerSitsAtZero()
{
    MessageLog log;
    QCOMPARE(clickTrace(), QStringList{"addAcftMrkr(LatLng(0,0),\"\",0)"});
    QCOMPARE(log.messages(), (QStringList{"", "NAVIGATION: Connect", "Trace is ON"}));
    QVERIFY(traceButton()->isChecked());
    QCOMPARE(boxes->seen().size(), 0);
    QCOMPARE(tick(), QStringList{"setAcftMrkr(LatLng(0,0),0)"});
}

void TestTrace::theFirstPositionIsTheSimulators()
{
    BlockPeer simulator;
    QVERIFY(simulator.publish("175411", "8494", "271.123456"));
    // Five decimals of a degree, six digits of the heading.
    QCOMPARE(clickTrace(), QStringList{"addAcftMrkr(LatLng(48.72528,2.35944),\"\",271.123)"});
}

void TestTrace::eachTickMovesTheMarker()
{
    BlockPeer simulator;
    clickTrace();
    QVERIFY(simulator.publish("175411", "8494", "271.5"));
    QCOMPARE(tick(), QStringList{"setAcftMrkr(LatLng(48.72528,2.35944),271.5)"});
    QVERIFY(simulator.publish("-1800", "-3600", "-0.25"));
    QCOMPARE(tick(), QStringList{"setAcftMrkr(LatLng(-0.5,-1),-0.25)"});
}

void TestTrace::theTimerOfTheSettingsTicks()
{
    setInterval(2);
    BlockPeer simulator;
    clickTrace();
    QVERIFY(simulator.publish("3600", "7200", "10"));
    QVERIFY(markerComesTo("1,2", "10"));
    QVERIFY(simulator.publish("3600", "10800", "20"));
    QVERIFY(markerComesTo("1,3", "20"));
    QCOMPARE(page().calls("addAcftMrkr"), QStringList{"addAcftMrkr(LatLng(0,0),\"\",0)"});
    QCOMPARE(page().calls("map.setCenter"), QStringList());
}

void TestTrace::aLongIntervalOfTheSettingsIsKept()
{
    clickTrace();
    QTest::qWait(50);
    QCOMPARE(page().calls("setAcftMrkr"), QStringList());
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
    page().evaluate(
        "var given = [], made = google.maps.LatLng;"
        "google.maps.LatLng = function (lat, lon) { given.push(lat + ' ' + lon); return new made(lat, lon); };");
    BlockPeer simulator;
    QVERIFY(simulator.publish("3600", lonS, "0"));
    const QString place = "1 " + script;
    page().evaluate("given = []");
    clickTrace();
    QCOMPARE(page().evaluate("given[0]").toString(), place);
    page().evaluate("given = []");
    tick();
    QCOMPARE(page().evaluate("given[0]").toString(), place);
    centreButton()->click();
    page().evaluate("given = []");
    tick();
    QCOMPARE(page().evaluate("given[0] + ' ' + given[1]").toString(), place + " " + place);
}

void TestTrace::theMapFollowsWhileTheButtonIsChecked()
{
    BlockPeer simulator;
    QVERIFY(simulator.publish("36000", "7200", "10"));
    clickTrace();
    page().clear();
    centreButton()->click();
    QCOMPARE(page().calls(), QStringList());
    QCOMPARE(tick().mid(0, 2), (QStringList{"setAcftMrkr(LatLng(10,2),10)", "map.setCenter(LatLng(10,2))"}));
    QVERIFY(simulator.publish("39600", "10800", "20"));
    QCOMPARE(tick().mid(0, 2), (QStringList{"setAcftMrkr(LatLng(11,3),20)", "map.setCenter(LatLng(11,3))"}));
    QCOMPARE(page().evaluate("map.getCenter().lat() + ' ' + map.getCenter().lng()").toString(), QString("11 3"));
    centreButton()->click();
    QVERIFY(simulator.publish("43200", "14400", "30"));
    QCOMPARE(tick(), QStringList{"setAcftMrkr(LatLng(12,4),30)"});
    QCOMPARE(page().evaluate("map.getCenter().lat() + ' ' + map.getCenter().lng()").toString(), QString("11 3"));
}

void TestTrace::followingDoesNothingWithoutATrace()
{
    page().clear();
    centreButton()->click();
    QCOMPARE(tick(), QStringList());
    clickTrace();
    QCOMPARE(clickTrace(), QStringList{"eraseAcftMrkr()"});
    QCOMPARE(tick(), QStringList());
}

void TestTrace::switchingOffErasesTheMarkerAndEndsTheTicks()
{
    setInterval(1);
    clickTrace();
    QTRY_VERIFY_WITH_TIMEOUT(!page().calls("setAcftMrkr").isEmpty(), patience);
    MessageLog log;
    QCOMPARE(clickTrace(), QStringList{"eraseAcftMrkr()"});
    QCOMPARE(log.messages(), (QStringList{"NAVIGATION: Disconnect", "Trace is OFF"}));
    QVERIFY(!traceButton()->isChecked());
    QTest::qWait(50);
    QCOMPARE(page().calls(), QStringList{"eraseAcftMrkr()"});
    // The block is the simulator's as much as ours.
    QVERIFY(QFileInfo::exists(NoBlock::path()));
}

void TestTrace::twoTracesInARow()
{
    setInterval(1);
    BlockPeer simulator;
    QVERIFY(simulator.publish("3600", "7200", "10"));
    clickTrace();
    QVERIFY(markerComesTo("1,2", "10"));
    clickTrace();
    setInterval(never);
    QVERIFY(simulator.publish("7200", "7200", "10"));
    QCOMPARE(clickTrace(), QStringList{"addAcftMrkr(LatLng(2,2),\"\",10)"});
    // The first trace's timer is dead.
    QTest::qWait(50);
    QCOMPARE(page().calls("setAcftMrkr"), QStringList());
    QVERIFY(simulator.publish("10800", "7200", "10"));
    QCOMPARE(tick(), QStringList{"setAcftMrkr(LatLng(3,2),10)"});
    QCOMPARE(clickTrace(), QStringList{"eraseAcftMrkr()"});
}

void TestTrace::aRefusedBlockIsToldAndLeavesTheButtonChecked()
{
    QVERIFY(QDir().mkdir(NoBlock::path()));
    boxes->expectMessage(boxTitle, boxText);
    MessageLog log;
    QCOMPARE(clickTrace(), QStringList());
    QCOMPARE(log.messages(QtDebugMsg),
             (QStringList{"Error CreateFileMapping", "Trace failed", "NAVIGATION: Disconnect"}));
    QVERIFY(traceButton()->isChecked());
    QCOMPARE(boxes->seen().size(), 1);
    QCOMPARE(boxes->seen().at(0).icon, QMessageBox::Warning);
    QCOMPARE(boxes->seen().at(0).choices, QStringList{"OK"});
    QCOMPARE(boxes->seen().at(0).parentClass, QString("MainWindow"));
    QCOMPARE(tick(), QStringList());
}

void TestTrace::theClickAfterAFailureSwitchesOff()
{
    QVERIFY(QDir().mkdir(NoBlock::path()));
    boxes->expectMessage(boxTitle, boxText);
    clickTrace();
    MessageLog log;
    QCOMPARE(clickTrace(), QStringList{"eraseAcftMrkr()"});
    QCOMPARE(log.messages(), (QStringList{"NAVIGATION: Disconnect", "Trace is OFF"}));
    QVERIFY(!traceButton()->isChecked());
    QCOMPARE(boxes->seen().size(), 1);
}

void TestTrace::afterAFailureTheNextTraceWorks()
{
    QVERIFY(QDir().mkdir(NoBlock::path()));
    boxes->expectMessage(boxTitle, boxText);
    clickTrace();
    clickTrace();
    NoBlock::remove();
    BlockPeer simulator;
    QVERIFY(simulator.publish("3600", "7200", "10"));
    QCOMPARE(clickTrace(), QStringList{"addAcftMrkr(LatLng(1,2),\"\",10)"});
    QVERIFY(traceButton()->isChecked());
}

void TestTrace::aSimulatorStartedBeforeTheTraceIsSeen()
{
    setInterval(2);
    BlockPeer simulator;
    QVERIFY(simulator.publish("3600", "7200", "10"));
    QCOMPARE(clickTrace().mid(0, 1), QStringList{"addAcftMrkr(LatLng(1,2),\"\",10)"});
    QVERIFY(simulator.publish("7200", "7200", "20"));
    QVERIFY(markerComesTo("2,2", "20"));
}

void TestTrace::aSimulatorStartedAfterTheTraceIsSeen()
{
    setInterval(2);
    clickTrace();
    QVERIFY(markerComesTo("0,0", "0"));
    BlockPeer simulator;
    QVERIFY(simulator.publish("3600", "7200", "10"));
    QVERIFY(markerComesTo("1,2", "10"));
    QCOMPARE(boxes->seen().size(), 0);
}

void TestTrace::aKilledSimulatorLeavesTheMarkerAndItsSuccessorMovesIt()
{
    setInterval(2);
    BlockPeer simulator;
    clickTrace();
    QVERIFY(simulator.publish("3600", "7200", "10"));
    QVERIFY(markerComesTo("1,2", "10"));
    simulator.kill();
    page().clear();
    // Ticks go on, at the last values, and nobody is told.
    QTRY_VERIFY_WITH_TIMEOUT(page().calls("setAcftMrkr").size() >= 3, patience);
    QStringList places = page().calls("setAcftMrkr");
    places.removeDuplicates();
    QCOMPARE(places, QStringList{"setAcftMrkr(LatLng(1,2),10)"});
    QVERIFY(simulator.publish("7200", "7200", "20"));
    QVERIFY(markerComesTo("2,2", "20"));
    QCOMPARE(boxes->seen().size(), 0);
    QVERIFY(traceButton()->isChecked());
}

void TestTrace::numbersThatAreNoneLeaveTheMarkerWhereItWas()
{
    BlockPeer simulator;
    QVERIFY(simulator.publish("nan", "-inf", "nan"));
    QCOMPARE(clickTrace(), QStringList{"addAcftMrkr(LatLng(NaN,NaN),\"\",NaN)"});
    QVERIFY(simulator.publish("169200", "7200", "10"));
    centreButton()->click();
    tick();
    const QStringList numbers[] = {{"nan", "7200", "0"}, {"3600", "inf", "0"}, {"-nan", "-nan", "-inf"}};
    for (const QStringList& record : numbers) {
        QVERIFY(simulator.publish(record.at(0), record.at(1), record.at(2)));
        QCOMPARE(tick().filter("setAcftMrkr").size(), 1);
        // The map stays where the last true position had put it.
        QCOMPARE(page().evaluate("map.getCenter().lat() + ' ' + map.getCenter().lng()").toString(), QString("47 2"));
    }
    QVERIFY(simulator.publish("172800", "7200", "10"));
    tick();
    QCOMPARE(page().evaluate("map.getCenter().lat() + ' ' + map.getCenter().lng()").toString(), QString("48 2"));
    QCOMPARE(page().evaluate("document.querySelectorAll('.chart-marker').length").toInt(), 1);
}

void TestTrace::numbersOfAnySizeDoNoHarm()
{
    BlockPeer simulator;
    centreButton()->click();
    QVERIFY(simulator.publish("1e308", "-1e308", "1e300"));
    clickTrace();
    QCOMPARE(tick().filter("setAcftMrkr").size(), 1);
    QVERIFY(simulator.publish("5e-324", "1e18", "-1e-300"));
    QCOMPARE(tick().filter("setAcftMrkr").size(), 1);
    QVERIFY(simulator.publish("172800", "7200", "10"));
    QVERIFY(tick().contains("setAcftMrkr(LatLng(48,2),10)"));
    QCOMPARE(page().evaluate("map.getCenter().lat() + ' ' + map.getCenter().lng()").toString(), QString("48 2"));
}

void TestTrace::aTraceBeforeThePageIsThereDoesNoHarm()
{
    session.reset();
    session.reset(new WindowSession);
    setInterval(1);
    traceButton()->click();
    QVERIFY(session->load());
    QVERIFY(traceButton()->isChecked());
    // There was no page to put the marker on; the next trace brings it.
    traceButton()->click();
    QVERIFY(clickTrace().contains("addAcftMrkr(LatLng(0,0),\"\",0)"));
}

void TestTrace::theTraceGoesOnInAClosedWindow()
{
    setInterval(2);
    BlockPeer simulator;
    clickTrace();
    session->window().close();
    QVERIFY(!session->window().isVisible());
    QVERIFY(simulator.publish("3600", "7200", "10"));
    QVERIFY(markerComesTo("1,2", "10"));
}

void TestTrace::theWindowMayEndWithATraceOn()
{
    setInterval(1);
    clickTrace();
    QTRY_VERIFY_WITH_TIMEOUT(!page().calls("setAcftMrkr").isEmpty(), patience);
    session->close();
    // The timer ticks on for nobody.
    QTest::qWait(50);
    session.reset();
    sandbox.reset();
    sandbox.reset(new Sandbox);
    session.reset(new WindowSession);
    QVERIFY(session->load());
    setInterval(never);
    QCOMPARE(clickTrace(), QStringList{"addAcftMrkr(LatLng(0,0),\"\",0)"});
}

QTEST_MAIN(TestTrace)
#include "tst_trace.moc"
