// What scripts draw besides the markers: route, procedure, runways, airways and start marker.
#include "pagetest.h"

#include <QtTest>

class TestPageDrawing : public PageTest
{
    Q_OBJECT

private slots:
    void theRouteShowsWhenItsPointsAreComplete();
    void anEmptiedPlanLeavesNoRoute();
    void eachBatchDrawsTheRouteAnew();
    void aPointWithoutAPlaceIsLeftOut();
    void theRouteTakesTheShortWayOverTheDateLine();
    void theRouteFollowsTheGreatCircle();
    void aRouteOfAThousandLongLegsShows();
    void aRouteThriceAroundTheWorldShows();
    void theProcedureShowsBesideTheRoute();
    void aProcedureGrowsPointByPoint();
    void aPointMoreIsNoNewDrawing_data();
    void aPointMoreIsNoNewDrawing();
    void runwaysShowUntilTheyAreCleared();
    void theTrailLiesOverARunway();
    void thePaintOfARunwayIsSeenFromNear();
    void theStartMarkerIsADisc();
    void airwaysShowByLevel();
    void airwaysAddedLaterFollowTheirSwitch();
    void aPointWithoutAnAirwayIsIgnored();
    void thereIsOneStartMarker();
    void theStartMarkerShowsItsHeading();
    void draggingTheStartMarkerTellsTheProgram();
    void theCommandsOfTheMapWorkOnTheStartMarker();

private:
    int around(double latitude, double longitude, const char* colour, int reach = 12)
    {
        return window->pixelsAround(latitude, longitude, reach, QColor(colour));
    }
};

namespace {

const char routeColour[] = "#c2185b";
const char procedureColour[] = "#00796b";
const char runwayColour[] = "#39424a";
const char lowColour[] = "#6d8c3c";
const char highColour[] = "#3c6d8c";
const char bothColour[] = "#7a5c99";
const char startColour[] = "#f2a900";

} // namespace

void TestPageDrawing::theRouteShowsWhenItsPointsAreComplete()
{
    window->run("clearFP();addPointToFp(new google.maps.LatLng(46.70000, 2.20000),\"LFXX\");"
                "addPointToFp(new google.maps.LatLng(46.70000, 2.80000),\"LFYY\")");
    QCOMPARE(around(46.7, 2.5, routeColour), 0);
    window->run("pushFP();");
    QVERIFY(around(46.7, 2.5, routeColour) > 0);
    // The points with their names, right of each.
    QVERIFY(around(46.7, 2.2, routeColour) > 0);
    QVERIFY(around(46.7, 2.92, routeColour) > 10);
}

void TestPageDrawing::anEmptiedPlanLeavesNoRoute()
{
    window->run("clearFP();addPointToFp(new google.maps.LatLng(46.70000, 2.20000),\"A\");"
                "addPointToFp(new google.maps.LatLng(46.70000, 2.80000),\"B\");pushFP();");
    window->run("clearFP()");
    QCOMPARE(around(46.7, 2.5, routeColour, 200), 0);
}

void TestPageDrawing::eachBatchDrawsTheRouteAnew()
{
    window->run("clearFP();addPointToFp(new google.maps.LatLng(46.70000, 2.20000),\"A\");"
                "addPointToFp(new google.maps.LatLng(46.70000, 2.80000),\"B\");pushFP();");
    window->run("clearFP();addPointToFp(new google.maps.LatLng(46.40000, 2.20000),\"A\");"
                "addPointToFp(new google.maps.LatLng(46.40000, 2.80000),\"B\");pushFP();");
    QCOMPARE(around(46.7, 2.5, routeColour), 0);
    QVERIFY(around(46.4, 2.5, routeColour) > 0);
    // One point alone is no line, but a point.
    window->run("clearFP();addPointToFp(new google.maps.LatLng(46.70000, 2.20000),\"A\");pushFP();");
    QCOMPARE(around(46.4, 2.5, routeColour), 0);
    QVERIFY(around(46.7, 2.2, routeColour) > 0);
}

void TestPageDrawing::aPointWithoutAPlaceIsLeftOut()
{
    window->run("clearFP();addPointToFp(new google.maps.LatLng(46.70000, 2.20000),\"A\");"
                "addPointToFp(new google.maps.LatLng(nan,nan),\"X\");"
                "addPointToFp(new google.maps.LatLng(46.70000, 2.80000),\"B\");pushFP();");
    QVERIFY(around(46.7, 2.5, routeColour) > 0);
    QCOMPARE(window->page->messages, QStringList());
}

void TestPageDrawing::theRouteTakesTheShortWayOverTheDateLine()
{
    window->run("map.setZoom(3);map.setCenter(new google.maps.LatLng(0.00000,180.00000));");
    window->run("clearFP();addPointToFp(new google.maps.LatLng(5.00000,170.00000),\"A\");"
                "addPointToFp(new google.maps.LatLng(5.00000,-170.00000),\"B\");pushFP();");
    QVERIFY(around(5, 180, routeColour) > 0);
    window->run("map.setCenter(new google.maps.LatLng(0.00000, 0.00000));");
    QCOMPARE(around(5, 0, routeColour, 60), 0);
    // The same line from the other side of the date line.
    window->run("map.setCenter(new google.maps.LatLng(0.00000,-178.00000));");
    QVERIFY(window->pixelsAround(5, -178, 20, QColor(routeColour)) > 0);
}

void TestPageDrawing::theRouteFollowsTheGreatCircle()
{
    window->run("map.setZoom(3);map.setCenter(new google.maps.LatLng(55.00000,-40.00000));");
    window->run("clearFP();addPointToFp(new google.maps.LatLng(48.00000,-80.00000),\"A\");"
                "addPointToFp(new google.maps.LatLng(48.00000, 0.00000),\"B\");pushFP();");
    // Half way between two points of the 48th parallel 80 degrees apart.
    QVERIFY(around(55.4, -40, routeColour, 6) > 0);
    QCOMPARE(around(48, -40, routeColour, 6), 0);
}

void TestPageDrawing::aRouteOfAThousandLongLegsShows()
{
    // There and back between Paris and Sao Paulo: more points on great circles than a call takes arguments.
    window->run("map.setZoom(3);map.setCenter(new google.maps.LatLng(10.00000,-20.00000));");
    window->run("clearFP();for (var i = 0; i < 1300; ++i)"
                "addPointToFp(i % 2 ? new google.maps.LatLng(-23.50000,-46.60000)"
                " : new google.maps.LatLng(48.80000, 2.30000), \"\");pushFP();");
    QVERIFY(around(48.8, 2.3, routeColour) > 0);
    QVERIFY(around(13.7, -24.9, routeColour) > 0);
    QVERIFY(around(-23.5, -46.6, routeColour) > 0);
    QCOMPARE(window->page->messages, QStringList());
}

void TestPageDrawing::aRouteThriceAroundTheWorldShows()
{
    window->run("map.setZoom(2);map.setCenter(new google.maps.LatLng(20.00000,-60.00000));");
    window->run("clearFP();[0, 15, 30].forEach(function (latitude) { [-120, 0, 120].forEach(function (longitude) {"
                "addPointToFp(new google.maps.LatLng(latitude, longitude), \"\"); }); });"
                "addPointToFp(new google.maps.LatLng(30, -120), \"\");pushFP();");
    // Half way between two points of a parallel 120 degrees apart, on each lap.
    for (double latitude : {0.0, 28.19, 49.11})
        QVERIFY2(around(latitude, -60, routeColour, 4) > 0, qPrintable(QString::number(latitude)));
    window->run("map.setCenter(new google.maps.LatLng(20.00000,60.00000));");
    for (double latitude : {0.0, 28.19, 49.11})
        QVERIFY2(around(latitude, 60, routeColour, 4) > 0, qPrintable(QString::number(latitude)));
    window->run("map.setCenter(new google.maps.LatLng(20.00000,180.00000));");
    QVERIFY(around(49.11, 180, routeColour, 4) > 0);
}

void TestPageDrawing::theProcedureShowsBesideTheRoute()
{
    window->run("clearFP();addPointToFp(new google.maps.LatLng(46.70000, 2.20000),\"A\");"
                "addPointToFp(new google.maps.LatLng(46.70000, 2.80000),\"B\");pushFP();");
    window->run("addPointToSS(new google.maps.LatLng(46.40000, 2.20000),\"C\");"
                "addPointToSS(new google.maps.LatLng(46.40000, 2.80000),\"D\")");
    QVERIFY(around(46.4, 2.5, procedureColour) > 0);
    QVERIFY(around(46.7, 2.5, routeColour) > 0);
    window->run("clearSS()");
    QCOMPARE(around(46.4, 2.5, procedureColour, 100), 0);
    QVERIFY(around(46.7, 2.5, routeColour) > 0);
}

void TestPageDrawing::aProcedureGrowsPointByPoint()
{
    window->run("addPointToSS(new google.maps.LatLng(46.40000, 2.20000),\"C\")");
    QVERIFY(around(46.4, 2.2, procedureColour) > 0);
    QCOMPARE(around(46.4, 2.5, procedureColour), 0);
    window->run("addPointToSS(new google.maps.LatLng(46.40000, 2.80000),\"D\")");
    QVERIFY(around(46.4, 2.5, procedureColour) > 0);
    window->run("addPointToSS(new google.maps.LatLng(46.70000, 2.80000),\"E\")");
    QVERIFY(around(46.4, 2.5, procedureColour) > 0);
    QVERIFY(around(46.55, 2.8, procedureColour) > 0);
    // The next one begins at its own first point.
    window->run("clearSS()");
    window->run("addPointToSS(new google.maps.LatLng(46.40000, 2.20000),\"C\")");
    QCOMPARE(around(46.4, 2.5, procedureColour), 0);
    QCOMPARE(around(46.55, 2.8, procedureColour), 0);
    QVERIFY(around(46.4, 2.2, procedureColour) > 0);
}

void TestPageDrawing::aPointMoreIsNoNewDrawing_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("point");
    QTest::addColumn<QString>("colour");

    QTest::newRow("procedure") << "clearSS()"
                               << "addPointToSS(%1,\"P\")" << procedureColour;
    QTest::newRow("airway") << "showATS('L',1);addATS('L')"
                            << "addToATS(%1),'ATS'" << lowColour;
    QTest::newRow("airway not shown yet") << "addATS('L')"
                                          << "addToATS(%1),'ATS'" << lowColour;
}

void TestPageDrawing::aPointMoreIsNoNewDrawing()
{
    QFETCH(QString, before);
    QFETCH(QString, point);
    QFETCH(QString, colour);
    window->run("var looks = 0, look = mapEngine.isFinitePosition;"
                "mapEngine.isFinitePosition = function (position) { ++looks; return look(position); };");
    window->run(before);
    QStringList points;
    for (int i = 0; i <= 300; ++i)
        points << point.arg(QString("new google.maps.LatLng(46.40000, %1)").arg(2.2 + i * 0.002, 3, 'f', 5));
    window->run(points.join(';'));
    // Each of the 301 is looked at a few times. All of them for each one more would be 45,000.
    const int looks = window->run("looks").toInt();
    QVERIFY2(looks < 2000, qPrintable(QString::number(looks)));
    window->run("showATS('L',1)");
    QVERIFY(window->pixelsAround(46.4, 2.8, 12, QColor(colour)) > 0);
}

void TestPageDrawing::runwaysShowUntilTheyAreCleared()
{
    // Three runways of one airport, joined with the empty text.
    window->run("clearRunway();"
                "drawRwy(new google.maps.LatLng(46.70000, 2.20000),new google.maps.LatLng(46.70000, 2.40000));"
                "drawRwy(new google.maps.LatLng(46.60000, 2.20000),new google.maps.LatLng(46.60000, 2.40000));"
                "drawRwy(new google.maps.LatLng(46.40000, 2.20000),new google.maps.LatLng(46.40000, 2.40000));");
    for (double latitude : {46.7, 46.6, 46.4})
        QVERIFY(around(latitude, 2.3, runwayColour) > 0);
    window->run("clearRunway();");
    QCOMPARE(around(46.55, 2.3, runwayColour, 80), 0);
}

void TestPageDrawing::theTrailLiesOverARunway()
{
    window->run("map.setZoom(13);map.setCenter(new google.maps.LatLng(46.50000, 2.30000));"
                "drawRwy(new google.maps.LatLng(46.50000, 2.28000),new google.maps.LatLng(46.50000, 2.32000));"
                "addAcftMrkr(new google.maps.LatLng(46.49000, 2.30500),\"\",0);"
                "for (let i = 1; i <= 20; ++i) setAcftMrkr(new google.maps.LatLng(46.49 + i * 0.001, 2.305), 0);");
    QVERIFY(around(46.5, 2.31, runwayColour, 4) > 0);
    // Where both cross.
    QCOMPARE(window->colourAt(46.5, 2.305), QColor("#b5541c"));
}

void TestPageDrawing::thePaintOfARunwayIsSeenFromNear()
{
    // 1500 m, to scale: at zoom 16 its width is 27 pixels and a stripe of the threshold has two.
    window->run("map.setCenter(new google.maps.LatLng(46.50000, 2.30000));map.setZoom(16);"
                "drawRwy(new google.maps.LatLng(46.50000, 2.30000),new google.maps.LatLng(46.50000, 2.32000));");
    const QString painted = "Array.from(map.ground.lines.lines).length";
    // The runway, its centre line, six stripes at each end.
    QCOMPARE(window->run(painted).toInt(), 14);
    window->run("map.setZoom(14)");
    QCOMPARE(window->run(painted).toInt(), 2);
    window->run("map.setZoom(11)");
    QCOMPARE(window->run(painted).toInt(), 1);
    window->run("map.setZoom(16)");
    QCOMPARE(window->run(painted).toInt(), 14);
}

void TestPageDrawing::theStartMarkerIsADisc()
{
    window->run("map.setZoom(10);map.setCenter(new google.maps.LatLng(46.50000, 2.30000));"
                "addSitMarker(new google.maps.LatLng(46.50000000, 2.30000000),\"\", 0);");
    window->settle();
    const QImage image = window->view->grab().toImage();
    const QPoint middle = window->mouse->pointOf(46.5, 2.3);
    // Within ten pixels on every side; the aircraft has nothing before and behind its wings.
    for (const QPoint& beside : {QPoint(-6, -5), QPoint(6, -5), QPoint(-6, 5), QPoint(6, 5)})
        QCOMPARE(image.pixelColor(middle + beside), QColor(startColour));
    QVERIFY(image.pixelColor(middle + QPoint(0, 13)) != QColor(startColour));
}

void TestPageDrawing::airwaysShowByLevel()
{
    window->run("addATS('L')");
    window->run("addToATS(new google.maps.LatLng(46.70000, 2.20000)),'ATS'");
    window->run("addToATS(new google.maps.LatLng(46.70000, 2.80000)),'ATS'");
    window->run("addATS('H');addToATS(new google.maps.LatLng(46.60000, 2.20000)),'ATS';"
                "addToATS(new google.maps.LatLng(46.60000, 2.80000)),'ATS'");
    window->run("addATS('B');addToATS(new google.maps.LatLng(46.40000, 2.20000)),'ATS';"
                "addToATS(new google.maps.LatLng(46.40000, 2.80000)),'ATS'");
    QCOMPARE(around(46.7, 2.5, lowColour), 0);
    window->run("showATS('L',1)");
    QVERIFY(around(46.7, 2.5, lowColour) > 0);
    QCOMPARE(around(46.6, 2.5, highColour), 0);
    window->run("showATS('H',1)");
    window->run("showATS('B',1)");
    QVERIFY(around(46.6, 2.5, highColour) > 0);
    QVERIFY(around(46.4, 2.5, bothColour) > 0);
    window->run("showATS('L',0)");
    QCOMPARE(around(46.7, 2.5, lowColour), 0);
    QVERIFY(around(46.6, 2.5, highColour) > 0);
}

void TestPageDrawing::airwaysAddedLaterFollowTheirSwitch()
{
    window->run("showATS('B',1)");
    window->run("addATS('B');addToATS(new google.maps.LatLng(46.40000, 2.20000)),'ATS';"
                "addToATS(new google.maps.LatLng(46.40000, 2.80000)),'ATS'");
    QVERIFY(around(46.4, 2.5, bothColour) > 0);
}

void TestPageDrawing::aPointWithoutAnAirwayIsIgnored()
{
    window->run("addToATS(new google.maps.LatLng(46.40000, 2.20000)),'ATS'");
    window->run("addATS('');addToATS(new google.maps.LatLng(nan,nan)),'ATS';showATS('',1);showATS('?',0)");
    QCOMPARE(window->page->messages, QStringList());
}

void TestPageDrawing::thereIsOneStartMarker()
{
    window->run("addSitMarker(new google.maps.LatLng(46.70000000, 2.30000000),\"B737-800\", 63);");
    QVERIFY(around(46.7, 2.3, startColour) > 20);
    window->run("addSitMarker(new google.maps.LatLng(46.40000000, 2.30000000),\"A320\", 63.5);");
    QCOMPARE(around(46.7, 2.3, startColour), 0);
    QVERIFY(around(46.4, 2.3, startColour) > 20);
    QCOMPARE(window->run("Array.from(document.querySelectorAll('.chart-marker')).map(e => e.title)").toStringList(),
             QStringList{"Départ A320"});
}

void TestPageDrawing::theStartMarkerShowsItsHeading()
{
    window->run("addSitMarker(new google.maps.LatLng(46.70000000, 2.30000000),\"\", 0);");
    const QImage north = pictureAround(46.7, 2.3, 18);
    window->run("addSitMarker(new google.maps.LatLng(46.70000000, 2.30000000),\"\", 90);");
    QVERIFY(pictureAround(46.7, 2.3, 18) != north);
    window->run("addSitMarker(new google.maps.LatLng(46.70000000, 2.30000000),\"\", 1e+22);");
    window->run("addSitMarker(new google.maps.LatLng(46.70000000, 2.30000000),\"\", 360);");
    QCOMPARE(pictureAround(46.7, 2.3, 18), north);
    window->run("addSitMarker(new google.maps.LatLng(46.70000000, 2.30000000),\"\", nan);");
    QCOMPARE(pictureAround(46.7, 2.3, 18), north);
}

void TestPageDrawing::draggingTheStartMarkerTellsTheProgram()
{
    window->run("addSitMarker(new google.maps.LatLng(46.70000000, 2.30000000),\"A320\", 63);");
    window->settle();
    program->clear();
    const QPoint from = window->mouse->pointOf(46.7, 2.3);
    const QPoint to = window->mouse->pointOf(46.4, 2.7);
    window->mouse->drag(from, to);
    const QStringList moves = program->calls("doMoveSIT");
    QCOMPARE(moves.size(), 1);
    const QStringList parts = moves.first().split(' ');
    QVERIFY(qAbs(parts[1].toDouble() - 46.4) < 0.01);
    QVERIFY(qAbs(parts[2].toDouble() - 2.7) < 0.01);
    QVERIFY(around(46.4, 2.7, startColour) > 20);
    QCOMPARE(around(46.7, 2.3, startColour), 0);
    // The map stayed where it was.
    QCOMPARE(window->run("map.getCenter().lat()").toDouble(), 46.5);
    QCOMPARE(program->calls("doCenter"), QStringList());
}

void TestPageDrawing::theCommandsOfTheMapWorkOnTheStartMarker()
{
    window->run("addSitMarker(new google.maps.LatLng(46.70000000, 2.30000000),\"A320\", 63);");
    window->settle();
    QCOMPARE(window->menuAt(46.7, 2.3), (QStringList{"Mesurer depuis ici", "Centrer ici", "Carte ici"}));
    QVERIFY(window->chooseEntry("Carte ici"));
    QVERIFY(window->chooseEntry("Ajouter un point utilisateur ici"));
    QCOMPARE(program->calls("sAddNewWptToFp"), QStringList{"sAddNewWptToFp \"WPT\" 46.70000 2.30000"});
}

QTEST_MAIN(TestPageDrawing)
#include "tst_pagedrawing.moc"
