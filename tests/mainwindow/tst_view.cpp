// The commands of the view: layers, docks, first view, status bar, runways.
#include "boxresponder.h"
#include "sandbox.h"
#include "windowsession.h"

#include "cnavglobalvar.h"
#include "mainwindow.h"

#include <QDockWidget>
#include <QLabel>
#include <QStatusBar>
#include <QtTest>

namespace {
const QStringList docks{"dockWSearch", "dockWFlightPlan", "dockWSid", "dockWStar", "dockWAircraft", "dockWDebug"};
}

class TestView : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void layersFollowTheirActions();
    void airwaysAreAskedForThoughThePageHasNone();
    void boundaryIsRememberedWithNoVisibleEffect();
    void firstClickOnFullScreenHidesAllSixDocks();
    void aFullScreenOfTheLastRunHidesItsDocksWithTheSecondClick();
    void zoomOfTheFile_data();
    void zoomOfTheFile();
    void centreOfTheFile_data();
    void centreOfTheFile();
    void doZoomShowsTheLevel();
    void doDataShowsTheTextAsItIs();
    void doCenter_data();
    void doCenter();
    void threeRunwaysAreDrawnAfterOneClearing();
    void runwayLongitudesAreWrapped();
    void airportWithoutARunwayLeavesTheOldDrawing();
    void unknownAirportShowsAnEmptyMessageAndKeepsTheDrawing();
    void runwaysAreFoundByTheIdentityOfTheMarker();
    void runwayKeyStaysInTheStatusBar();

private:
    PageProbe& page()
    {
        return session->page();
    }

    QScopedPointer<Sandbox> sandbox;
    QScopedPointer<WindowSession> session;
};

void TestView::init()
{
    sandbox.reset(new Sandbox);
    // One row of each table, so that the page has all its managers.
    sandbox->addAirport();
    sandbox->addNavaid();
    sandbox->addWaypoint();
    session.reset(new WindowSession);
}

void TestView::cleanup()
{
    session.reset();
    sandbox.reset();
}

void TestView::layersFollowTheirActions()
{
    const struct
    {
        const char* action;
        bool CNavGlobalVar::*flag;
        QString show;
        QString hide;
    } layers[] = {
        {"actApt", &CNavGlobalVar::showAirport, "ArptMgr.addMarkers(listApt)", "ArptMgr.clearMarkers()"},
        {"actVor", &CNavGlobalVar::showVor, "VORMgr.addMarkers(listVOR)", "VORMgr.clearMarkers()"},
        {"actNdbRte", &CNavGlobalVar::showNdbRte, "NDBRteMgr.addMarkers(listNDBRte)", "NDBRteMgr.clearMarkers()"},
        {"actNdbTerm", &CNavGlobalVar::showNdbTerm, "NDBTermMgr.addMarkers(listNDBTerm)", "NDBTermMgr.clearMarkers()"},
        {"actWptRte", &CNavGlobalVar::showWaypointRte, "WPTRteMgr.addMarkers(listWptRte)", "WPTRteMgr.clearMarkers()"},
        {"actWptTerm", &CNavGlobalVar::showWaypointTerm, "WPTTermMgr.addMarkers(listWptTerm)",
         "WPTTermMgr.clearMarkers()"},
        {"actWptVfr", &CNavGlobalVar::showWaypointVfr, "WPTVfrMgr.addMarkers(listWptVfr)", "WPTVfrMgr.clearMarkers()"},
        {"actAtsLo", &CNavGlobalVar::showATSL, "showATS(\"L\",1)", "showATS(\"L\",0)"},
        {"actAtsHi", &CNavGlobalVar::showATSH, "showATS(\"H\",1)", "showATS(\"H\",0)"},
        {"actAtsB", &CNavGlobalVar::showATSB, "showATS(\"B\",1)", "showATS(\"B\",0)"},
    };
    QVERIFY(session->load());
    for (const auto& layer : layers) {
        page().clear();
        QAction* action = session->action(layer.action);
        action->trigger();
        QCOMPARE(page().calls(), QStringList{layer.hide});
        QVERIFY2(!(CNavGlobalVar::instance()->*layer.flag), layer.action);
        page().clear();
        action->trigger();
        QCOMPARE(page().calls(), QStringList{layer.show});
        QVERIFY2(CNavGlobalVar::instance()->*layer.flag, layer.action);
    }
}

void TestView::airwaysAreAskedForThoughThePageHasNone()
{
    QVERIFY(session->load());
    page().clear();
    session->action("actAtsB")->setChecked(true);
    session->window().sViewAtsB();
    QCOMPARE(page().calls(), QStringList{"showATS(\"B\",1)"});
}

void TestView::boundaryIsRememberedWithNoVisibleEffect()
{
    QVERIFY(session->load());
    page().clear();
    session->action("actBdry")->trigger();
    QVERIFY(!CNavGlobalVar::instance()->showBoundary);
    session->action("actBdry")->trigger();
    QVERIFY(CNavGlobalVar::instance()->showBoundary);
    QCOMPARE(page().calls(), QStringList());
}

void TestView::firstClickOnFullScreenHidesAllSixDocks()
{
    QVERIFY(session->load());
    QAction* action = session->action("actDock");
    QVERIFY(action->isChecked());
    for (const QString& dock : docks)
        QVERIFY2(!session->find<QDockWidget>(dock)->isHidden(), qPrintable(dock));
    action->trigger();
    QVERIFY(!action->isChecked());
    QVERIFY(!CNavGlobalVar::instance()->showDock);
    for (const QString& dock : docks)
        QVERIFY2(session->find<QDockWidget>(dock)->isHidden(), qPrintable(dock));
    action->trigger();
    QVERIFY(CNavGlobalVar::instance()->showDock);
    for (const QString& dock : docks)
        QVERIFY2(!session->find<QDockWidget>(dock)->isHidden(), qPrintable(dock));
}

void TestView::aFullScreenOfTheLastRunHidesItsDocksWithTheSecondClick()
{
    session.reset();
    sandbox->setSetting("view/showBoundary", false); // where the state of the docks is kept
    session.reset(new WindowSession);
    QVERIFY(session->load());
    QAction* action = session->action("actDock");
    QVERIFY(!action->isChecked());
    QVERIFY(!session->find<QDockWidget>("dockWSearch")->isHidden());
    action->trigger();
    QVERIFY(!session->find<QDockWidget>("dockWSearch")->isHidden());
    action->trigger();
    QVERIFY(session->find<QDockWidget>("dockWSearch")->isHidden());
}

void TestView::zoomOfTheFile_data()
{
    QTest::addColumn<double>("zoom");
    QTest::addColumn<QString>("script");
    QTest::newRow("whole") << 6.0 << "map.setZoom(6)";
    QTest::newRow("half") << 6.5 << "map.setZoom(6.5)";
}

void TestView::zoomOfTheFile()
{
    QFETCH(double, zoom);
    QFETCH(QString, script);
    CNavGlobalVar::instance()->zoom = zoom;
    QVERIFY(session->load());
    QCOMPARE(page().calls("map.setZoom"), QStringList{script});
}

void TestView::centreOfTheFile_data()
{
    QTest::addColumn<QPointF>("centre");
    QTest::addColumn<QString>("script");
    // x is the longitude, y the latitude; five decimals go out.
    QTest::newRow("east") << QPointF(2.5, 48.75) << "map.setCenter(LatLng(48.75,2.5))";
    QTest::newRow("south west") << QPointF(-3.1234567, -12.7654321) << "map.setCenter(LatLng(-12.76543,-3.12346))";
}

void TestView::centreOfTheFile()
{
    QFETCH(QPointF, centre);
    QFETCH(QString, script);
    CNavGlobalVar::instance()->mapCenter = centre;
    QVERIFY(session->load());
    QCOMPARE(page().calls("map.setCenter"), QStringList{script});
}

void TestView::doZoomShowsTheLevel()
{
    session->window().doZoom(11);
    QCOMPARE(session->find<QLabel>("lblZoom")->text(), QString("Zoom: 11"));
}

void TestView::doDataShowsTheTextAsItIs()
{
    session->window().doData(" <b>Ä %1</b>\n");
    QCOMPARE(session->find<QLabel>("lblData")->text(), QString(" <b>Ä %1</b>\n"));
}

void TestView::doCenter_data()
{
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("longitude");
    QTest::addColumn<QString>("text");
    QTest::newRow("west is told signed, wrapped and as west")
        << 48.5 << -3.0 << "Centre: 48.50000  -3.00000\n 174600.00 1285200.00\n48 30' 00.00\" N 003 00' 00.00\" W";
    QTest::newRow("east") << 48.7583 << 2.25
                          << "Centre: 48.75830  2.25000\n 175529.88 8100.00\n48 45' 29.88\" N 002 15' 00.00\" E";
    QTest::newRow("south") << -0.5 << 179.5
                           << "Centre: -0.50000  179.50000\n -1800.00 646200.00\n00 30' 00.00\" S 179 30' 00.00\" E";
    QTest::newRow("origin") << 0.0 << 0.0 << "Centre: 0.00000  0.00000\n 0.00 0.00\n00 00' 00.00\" N 000 00' 00.00\" E";
    QTest::newRow("more than a circle")
        << 0.0 << 361.0 << "Centre: 0.00000  361.00000\n 0.00 3600.00\n00 00' 00.00\" N 001 00' 00.00\" E";
}

void TestView::doCenter()
{
    QFETCH(double, latitude);
    QFETCH(double, longitude);
    QFETCH(QString, text);
    session->window().doCenter(latitude, longitude);
    QCOMPARE(session->find<QLabel>("lblCenter")->text(), text);
}

void TestView::threeRunwaysAreDrawnAfterOneClearing()
{
    for (int number = 1; number <= 3; ++number)
        sandbox->addRunway({{"nseq", number},
                            {"rhla", arcSeconds(48)},
                            {"rhlo", arcSeconds(number)},
                            {"rlla", arcSeconds(49)},
                            {"rllo", arcSeconds(number, 30)}});
    QVERIFY(session->load());
    page().clear();
    session->window().doViewRwy("LFPO");
    QCOMPARE(page().calls(),
             (QStringList{"clearRunway()", "drawRwy(LatLng(48,1),LatLng(49,1.5))",
                          "drawRwy(LatLng(48,2),LatLng(49,2.5))", "drawRwy(LatLng(48,3),LatLng(49,3.5))"}));
}

void TestView::runwayLongitudesAreWrapped()
{
    sandbox->addRunway({{"rhla", arcSeconds(-17, 45)},
                        {"rhlo", arcSeconds(181)},
                        {"rlla", arcSeconds(-17, 45)},
                        {"rllo", arcSeconds(-181)}});
    QVERIFY(session->load());
    page().clear();
    session->window().doViewRwy("LFPO");
    QCOMPARE(page().calls("drawRwy"), QStringList{"drawRwy(LatLng(-17.75,-179),LatLng(-17.75,179))"});
}

void TestView::airportWithoutARunwayLeavesTheOldDrawing()
{
    sandbox->addRunway();
    sandbox->addAirport({{"ukey", "LFBO"}});
    QVERIFY(session->load());
    session->window().doViewRwy("LFPO");
    page().clear();
    session->window().doViewRwy("LFBO");
    QCOMPARE(page().calls(), QStringList());
    QCOMPARE(session->window().statusBar()->currentMessage(), QString("LFBO"));
}

void TestView::unknownAirportShowsAnEmptyMessageAndKeepsTheDrawing()
{
    BoxResponder boxes;
    sandbox->addRunway();
    QVERIFY(session->load());
    session->window().doViewRwy("LFPO");
    QCOMPARE(session->window().statusBar()->currentMessage(), QString("LFPO"));
    page().clear();
    session->window().doViewRwy("XXXX");
    QCOMPARE(page().calls(), QStringList());
    QCOMPARE(session->window().statusBar()->currentMessage(), QString());
}

void TestView::runwaysAreFoundByTheIdentityOfTheMarker()
{
    sandbox->addAirport({{"ukey", "KEY7"}, {"iden", "LFBZ"}});
    sandbox->addRunway({{"rapt", "KEY7"}});
    QVERIFY(session->load());
    page().clear();
    page().evaluate("mainWindow.doViewRwy('LFBZ')");
    QCOMPARE(page().calls("drawRwy").size(), 1);
    QCOMPARE(session->window().statusBar()->currentMessage(), QString("KEY7"));
}

void TestView::runwayKeyStaysInTheStatusBar()
{
    QVERIFY(session->load());
    session->window().doViewRwy("LFPO");
    QTest::qWait(50);
    QCOMPARE(session->window().statusBar()->currentMessage(), QString("LFPO"));
}

QTEST_MAIN(TestView)
#include "tst_view.moc"
