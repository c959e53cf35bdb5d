// The points of the plan on the map: with their symbols, without their layers, and what they leave of the markers.
#include "charttest.h"

#include <QtTest>

class TestPagePlanPoints : public ChartTest
{
    Q_OBJECT

private slots:
    void runwaysShowInAnAirportOfThePlan();
    void aPlannedVorHasItsRoseWithoutItsLayer();
    void aPointOfThePlanShowsWithoutItsLayer();
    void aPointOfThePlanHasTheCommandsOfItsMarker();
    void aPointWithoutAMarkerIsAPlainOne();
    void aPointOfThePlanIsDrawnOnce();
    void theMarkerOfThePointsNameIsTaken();
    void aPointWithAnotherNameIsNoMarkerOfThePlace();
    void itsNameStandsBesideItFromNear();
    void anEmptiedPlanGivesTheMarkersBack();
    void aDeletedMarkerLeavesItsPointInThePlan();
    void aPointOfALongPlanAsksForItsOwnPlaceAlone();
};

void TestPagePlanPoints::runwaysShowInAnAirportOfThePlan()
{
    window->run("addAPTMarker(new google.maps.LatLng(46.70000, 2.30000),\"LFXX\",1,\"x\");pushAPT();");
    plan("LFXX", 46.7, 2.3);
    QVERIFY(changes(
        "drawRwy(new google.maps.LatLng(46.70000, 2.28000),new google.maps.LatLng(46.70000, 2.32000));clearRunway();",
        46.7, 2.3));
}

void TestPagePlanPoints::aPlannedVorHasItsRoseWithoutItsLayer()
{
    addVor("ABC", 46.5, 2.5);
    window->run("addNavMgr();map.setZoom(10)");
    const auto circle = [this] { return pictureAround(46.5, 2.5, 60).copy(8, 50, 5, 20); };
    const QImage bare = circle();
    plan("NAME ABC", 46.5, 2.5);
    QVERIFY(circle() != bare);
    window->run("clearFP()");
    QCOMPARE(circle(), bare);
}

void TestPagePlanPoints::aPointOfThePlanShowsWithoutItsLayer()
{
    addVor("ABC", 46.7, 2.3, 17);
    showVors();
    window->run("VORMgr.clearMarkers()");
    QCOMPARE(ink(46.7, 2.3, navaidColour), 0);
    plan("NAME ABC", 46.7, 2.3);
    QVERIFY(ink(46.7, 2.3, navaidColour) > 10);
    // Its name, beside it.
    QVERIFY(ink(46.7, 2.3, routeColour, 45) > 20);
    // From afar too.
    window->run("map.setZoom(4)");
    QVERIFY(ink(46.7, 2.3, navaidColour) > 10);
    QVERIFY(ink(46.7, 2.3, routeColour, 45) > 20);
}

void TestPagePlanPoints::aPointOfThePlanHasTheCommandsOfItsMarker()
{
    addVor("ABC", 46.7, 2.3);
    window->run("addNavMgr()");
    plan("NAME ABC", 46.7, 2.3);
    window->settle();
    window->click(46.7, 2.3);
    QVERIFY(window->popupText().contains("NAME ABC"));
    window->run("page.closePopup()");
    QVERIFY(window->menuAt(46.7, 2.3).contains("Ajouter au plan de vol"));
}

void TestPagePlanPoints::aPointWithoutAMarkerIsAPlainOne()
{
    plan("WPT01", 46.7, 2.3);
    QVERIFY(ink(46.7, 2.3, routeColour, 6) > 5);
    QVERIFY(!window->menuAt(46.7, 2.3).contains("Ajouter au plan de vol"));
}

void TestPagePlanPoints::aPointOfThePlanIsDrawnOnce()
{
    window->run("addAPTMarker(new google.maps.LatLng(46.70000, 2.30000),\"LFXX\",1,"
                "\"<font color=blue><b>Airport LFXX</b><font color=black><br/>SOMEWHERE<br/>x\");pushAPT();");
    const int symbolAndLabel = ink(46.7, 2.3, airportColour, 60);
    plan("SOMEWHERE", 46.7, 2.3);
    const int symbolAlone = ink(46.7, 2.3, airportColour, 60);
    QVERIFY2(symbolAlone > 0 && symbolAlone < symbolAndLabel,
             qPrintable(QString("%1 of %2").arg(symbolAlone).arg(symbolAndLabel)));
    QVERIFY(ink(46.7, 2.3, routeColour, 60) > 20);
    // The departure is the destination as well.
    const QImage once = pictureAround(46.7, 2.3, 60);
    const QString point = "addPointToFp(new google.maps.LatLng(46.70000, 2.30000),\"SOMEWHERE\");";
    window->run("clearFP();" + point + point + "pushFP();");
    QCOMPARE(pictureAround(46.7, 2.3, 60), once);
}

void TestPagePlanPoints::theMarkerOfThePointsNameIsTaken()
{
    addVor("ABC", 46.7, 2.3);
    window->run("addNavMgr();addWPTMarker(new google.maps.LatLng(46.70000, 2.30000),\"POINT-KEYFR\",1,"
                "\"<font color=blue><b>Waypoint POINT</b><font color=black><br/>POINT (1)<br/>x\");addWptMgr();");
    plan("POINT", 46.7, 2.3);
    QCOMPARE(ink(46.7, 2.3, navaidColour), 0);
    QVERIFY(ink(46.7, 2.3, waypointColour) > 5);
    plan("NAME ABC", 46.7, 2.3);
    QVERIFY(ink(46.7, 2.3, navaidColour) > 5);
    // A waypoint of the dialog: its identifier is the name's first letters, and the usage is a word.
    window->run("addWPTMarker2(new google.maps.LatLng(46.70000, 2.30000),\"DIALOG-DIALOFR\",3,"
                "\"<font color=blue><b>Waypoint DIAL</b><font color=black><br/>DIALOG (High/Low)<br/>x\")");
    plan("DIALOG", 46.7, 2.3);
    QCOMPARE(window->run("page.isPlanned(listWptRte[1])").toBool(), true);
}

void TestPagePlanPoints::aPointWithAnotherNameIsNoMarkerOfThePlace()
{
    addVor("ABC", 46.7, 2.3);
    showVors();
    const QImage before = pictureAround(46.7, 2.3, 40);
    // Such as the user makes it on the VOR.
    plan("WPT001", 46.7, 2.3);
    QCOMPARE(window->run("page.plannedMarkers().length").toInt(), 0);
    QVERIFY(pictureAround(46.7, 2.3, 40) != before);
    QVERIFY(ink(46.7, 2.3, navaidColour) > 5);
    QVERIFY(ink(46.7, 2.3, routeColour, 60) > 20);
    window->run("VORMgr.clearMarkers()");
    QCOMPARE(ink(46.7, 2.3, navaidColour), 0);
    // Blanks around a name are not among the letters of the marker's text.
    plan(" NAME ABC ", 46.7, 2.3);
    QCOMPARE(window->run("page.plannedMarkers().length").toInt(), 1);
}

void TestPagePlanPoints::itsNameStandsBesideItFromNear()
{
    window->run("addAPTMarker(new google.maps.LatLng(46.50000, 2.50000),\"LFXX\",1,"
                "\"<font color=blue><b>Airport LFXX</b><font color=black><br/>SOMEWHERE<br/>x\");pushAPT();"
                "ArptMgr.clearMarkers();");
    plan("LFXX", 46.5, 2.5);
    const auto label = [this] {
        window->settle();
        return window->run("Array.from(map.points.declutter.kept.keys())[0].look.label.text").toString();
    };
    QCOMPARE(label(), "LFXX");
    window->run("map.setZoom(11)");
    QCOMPARE(label(), "LFXX\nSOMEWHERE");
    window->run("map.setZoom(8)");
    QCOMPARE(label(), "LFXX");
}

void TestPagePlanPoints::anEmptiedPlanGivesTheMarkersBack()
{
    addVor("ABC", 46.7, 2.3);
    showVors();
    const QImage before = pictureAround(46.7, 2.3, 40);
    plan("NAME ABC", 46.7, 2.3);
    QVERIFY(pictureAround(46.7, 2.3, 40) != before);
    window->run("clearFP()");
    QCOMPARE(pictureAround(46.7, 2.3, 40), before);
    window->run("VORMgr.clearMarkers()");
    QCOMPARE(ink(46.7, 2.3, navaidColour), 0);
}

void TestPagePlanPoints::aDeletedMarkerLeavesItsPointInThePlan()
{
    addVor("ABC", 46.7, 2.3);
    showVors();
    plan("NAME ABC", 46.7, 2.3);
    window->settle();
    window->click(46.7, 2.3);
    window->run("page.closePopup();delNavaid();theLast == null;");
    QCOMPARE(ink(46.7, 2.3, navaidColour), 0);
    QVERIFY(ink(46.7, 2.3, routeColour, 6) > 5);
}

void TestPagePlanPoints::aPointOfALongPlanAsksForItsOwnPlaceAlone()
{
    // Each point is asked for with each drawing: a look at all the others would cost the square of them.
    window->run(
        "clearFP();for (var i = 0; i < 300; ++i) addPointToFp(new google.maps.LatLng(46 + i / 1000, 2), 'P' + i);"
        "pushFP()");
    window->run(
        "var asked = 0, place = { lat: function () { ++asked; return 46.299; }, lng: function () { return 2; } }");
    QCOMPARE(window->run("page.planText({ position: place, name: 'P299' })").toString(), QString("P299"));
    QVERIFY(window->run("page.planTells({ position: place, name: 'P299' })").toBool());
    const int asked = window->run("asked").toInt();
    QVERIFY2(asked >= 2 && asked < 10, qPrintable(QString::number(asked)));
}

QTEST_MAIN(TestPagePlanPoints)
#include "tst_pageplanpoints.moc"
