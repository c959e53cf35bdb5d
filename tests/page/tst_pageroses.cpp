// What stands around a symbol: the runways of an airport, a VOR around it, compass roses.
#include "charttest.h"

#include <QtTest>

class TestPageRoses : public ChartTest
{
    Q_OBJECT

private slots:
    void runwaysShowInTheSymbolOfTheirAirport();
    void runwaysOfOneDirectionAreOneStrip();
    void aRunwayFarFromAllAirportsChangesNone();
    void anAirportWithRunwaysKeepsItsLastSymbolAlone();
    void airportsWithRunwaysShareTheirDot();
    void thePathsOfManySymbolsAreNotAllKept();
    void aVorOnAnAirportIsDrawnAroundIt();
    void aRoseStandsAroundAVorFromNear();
    void ofTwoRosesThatOverlapOneIsDrawn();
    void rosesFollowTheSwitchOfTheirLayer();
    void rosesOverlapAcross180Degrees();
    void aRunwayAcross180DegreesIsThatOfItsAirport();
    void aVorOnAnAirportAcross180DegreesIsDrawnAroundIt();
};

void TestPageRoses::runwaysShowInTheSymbolOfTheirAirport()
{
    window->run("addAPTMarker(new google.maps.LatLng(46.70000, 2.30000),\"LFXX\",1,\"x\");"
                "addAPTMarker(new google.maps.LatLng(46.40000, 2.30000),\"LFYY\",1,\"x\");pushAPT();");
    const QImage other = pictureAround(46.4, 2.3, 10);
    const QString runway =
        "drawRwy(new google.maps.LatLng(46.70000, 2.28000),new google.maps.LatLng(46.70000, 2.32000));clearRunway();";
    QVERIFY(changes(runway, 46.7, 2.3));
    // A strip from west to east.
    const QImage symbol = pictureAround(46.7, 2.3, 10);
    for (int x = 6; x <= 14; ++x)
        QCOMPARE(symbol.pixelColor(x, 10), QColor(airportColour));
    QCOMPARE(symbol.pixelColor(10, 6), QColor("#ffffff"));
    QCOMPARE(pictureAround(46.4, 2.3, 10), other);
    // Told again.
    QVERIFY(!changes(runway, 46.7, 2.3));
}

void TestPageRoses::runwaysOfOneDirectionAreOneStrip()
{
    window->run("addAPTMarker(new google.maps.LatLng(46.70000, 2.30000),\"LFXX\",1,\"x\");pushAPT();");
    const auto draw = [this](const char* from, const char* to) {
        window->run(
            QString("drawRwy(new google.maps.LatLng(%1),new google.maps.LatLng(%2));clearRunway();").arg(from, to));
        return window->run("listApt[0].path").toString();
    };
    // Eastwards through the airport: the strip and the ring around it.
    const QString single = draw("46.70000, 2.27000", "46.70000, 2.33000");
    QCOMPARE(single.count('Z'), 2);
    // Others beside it, one of them the other way and one a little turned.
    draw("46.71000, 2.32000", "46.71000, 2.28000");
    QCOMPARE(draw("46.69000, 2.28000", "46.69300, 2.32000"), single);
    QCOMPARE(draw("46.68000, 2.30000", "46.71000, 2.31000").count('Z'), 3);
}

void TestPageRoses::aRunwayFarFromAllAirportsChangesNone()
{
    window->run("addAPTMarker(new google.maps.LatLng(46.70000, 2.30000),\"LFXX\",1,\"x\");pushAPT();");
    QVERIFY(!changes(
        "drawRwy(new google.maps.LatLng(46.50000, 2.30000),new google.maps.LatLng(46.50000, 2.32000));"
        "drawRwy(new google.maps.LatLng(nan, 2.30000),new google.maps.LatLng(46.70000, 2.32000));clearRunway();",
        46.7, 2.3));
    QCOMPARE(window->page->messages, QStringList());
}

void TestPageRoses::anAirportWithRunwaysKeepsItsLastSymbolAlone()
{
    window->run("addAPTMarker(new google.maps.LatLng(46.70000, 2.30000),\"LFXX\",1,\"x\");pushAPT();"
                "drawRwy(new google.maps.LatLng(46.70000, 2.28000),new google.maps.LatLng(46.70000, 2.32000));"
                "var symbol = scale => page.symbolOf(listApt[0], 'symbol', scale), first = symbol(1);");
    QVERIFY(window->run("symbol(1) === first").toBool());
    QVERIFY(window->run("symbol(0.9) !== first && symbol(0.9) === symbol(0.9)").toBool());
    QVERIFY(window->run("symbol(1) !== first").toBool());
    // Other colours, and another runway.
    QVERIFY(window->run("first = symbol(1); page.setPalette('night'); symbol(1) !== first").toBool());
    QVERIFY(window
                ->run("first = symbol(1);drawRwy(new google.maps.LatLng(46.68000, 2.30000),"
                      "new google.maps.LatLng(46.71000, 2.31000)); symbol(1) !== first")
                .toBool());
}

void TestPageRoses::airportsWithRunwaysShareTheirDot()
{
    window->run("addAPTMarker(new google.maps.LatLng(46.70000, 2.30000),\"LFXX\",1,\"x\");"
                "addAPTMarker(new google.maps.LatLng(46.40000, 2.30000),\"LFYY\",1,\"x\");pushAPT();"
                "drawRwy(new google.maps.LatLng(46.70000, 2.28000),new google.maps.LatLng(46.70000, 2.32000));"
                "drawRwy(new google.maps.LatLng(46.38000, 2.30000),new google.maps.LatLng(46.42000, 2.30000));");
    for (const char* form : {"dot", "sign"})
        QVERIFY(
            window->run(QString("page.symbolOf(listApt[0], '%1', 1) === page.symbolOf(listApt[1], '%1', 1)").arg(form))
                .toBool());
    QVERIFY(window->run("page.symbolOf(listApt[0], 'symbol', 1) !== page.symbolOf(listApt[1], 'symbol', 1)").toBool());
}

void TestPageRoses::thePathsOfManySymbolsAreNotAllKept()
{
    window->run("var plain = Path2D, read = 0;"
                "Path2D = function (text) { ++read; return new plain(text); };"
                "var draw = number => mapEngine.drawSymbol({ path: `M 0 0 L ${number / 100} 1`, strokeWeight: 1 });");
    QCOMPARE(window->run("draw(7); draw(7); read"), QVariant(1.0));
    QCOMPARE(window->run("for (let i = 1000; i < 2000; ++i) draw(i); read"), QVariant(1001.0));
    QCOMPARE(window->run("draw(7); read"), QVariant(1002.0));
}

void TestPageRoses::aVorOnAnAirportIsDrawnAroundIt()
{
    // Two pixels apart at this zoom, and thirteen.
    addVor("ABC", 46.6, 2.311);
    addVor("DEF", 46.4, 2.37);
    window->run("addAPTMarker(new google.maps.LatLng(46.60000, 2.30000),\"LFXX\",1,\"x\");"
                "addAPTMarker(new google.maps.LatLng(46.40000, 2.30000),\"LFYY\",1,\"x\");");
    showVors();
    const int alone = ink(46.6, 2.311, navaidColour);
    const QImage farther = pictureAround(46.4, 2.37, 3);
    window->run("pushAPT()");
    // The hexagon's left and right corner stand farther out than the airport's ticks.
    const QImage both = pictureAround(46.6, 2.311, 14);
    const auto isNavaid = [&both](int left, int right) {
        for (int x = left; x <= right; ++x)
            if (both.pixelColor(x, 14) == QColor(navaidColour))
                return true;
        return false;
    };
    QVERIFY(isNavaid(2, 5));
    QVERIFY(isNavaid(23, 26));
    QCOMPARE(pictureAround(46.4, 2.37, 3), farther);
    // Without the airports there is nothing to be around, and from nearer they are two.
    window->run("ArptMgr.clearMarkers()");
    QCOMPARE(ink(46.6, 2.311, navaidColour), alone);
    window->run("ArptMgr.addMarkers(listApt);map.setZoom(12)");
    const QImage near = pictureAround(46.6, 2.311, 10);
    window->run("ArptMgr.clearMarkers()");
    QCOMPARE(pictureAround(46.6, 2.311, 10), near);
}

void TestPageRoses::aRoseStandsAroundAVorFromNear()
{
    addVor("ABC", 46.5, 2.5);
    addVor("DEF", 46.5, 2.9, 16);
    window->run("addNavMgr();map.setZoom(10)");
    const QImage bare = pictureAround(46.5, 2.5, 60);
    const QImage bareDme = pictureAround(46.5, 2.9, 60);
    window->run("VORMgr.addMarkers(listVOR)");
    const QImage rose = pictureAround(46.5, 2.5, 60);
    // On the circle of 50 pixels in the west and in the south, where no label stands, and on the arrow in the north.
    for (const QPoint& point : {QPoint(10, 60), QPoint(60, 110), QPoint(60, 5)})
        QVERIFY(rose.pixelColor(point) != bare.pixelColor(point));
    // In the east no label lies on the circle, whose middle is the corner of four pixels.
    QCOMPARE(rose.pixelColor(109, 60), rose.pixelColor(10, 60));
    // A DME gives no bearing.
    const QImage dme = pictureAround(46.5, 2.9, 60);
    QCOMPARE(dme.pixelColor(10, 60), bareDme.pixelColor(10, 60));
    QCOMPARE(dme.pixelColor(60, 110), bareDme.pixelColor(60, 110));
    // From afar it would be in the way.
    window->run("map.setZoom(8);VORMgr.clearMarkers()");
    const QImage afar = pictureAround(46.5, 2.5, 60);
    window->run("VORMgr.addMarkers(listVOR)");
    QCOMPARE(pictureAround(46.5, 2.5, 60).pixelColor(10, 60), afar.pixelColor(10, 60));
}

void TestPageRoses::ofTwoRosesThatOverlapOneIsDrawn()
{
    addVor("ABC", 46.5, 2.5);
    // 40 pixels north of it at this zoom.
    addVor("DEF", 46.5378, 2.5);
    window->run("addNavMgr();map.setZoom(10)");
    const QImage bare = pictureAround(46.5378, 2.5, 55);
    window->run("VORMgr.addMarkers(listVOR)");
    const QImage drawn = pictureAround(46.5378, 2.5, 55);
    // The second one's circle would cross its west; the first one's does not.
    QCOMPARE(drawn.pixelColor(5, 55), bare.pixelColor(5, 55));
    QVERIFY(changes("VORMgr.clearMarkers()", 46.5, 2.5, 55));
}

void TestPageRoses::rosesFollowTheSwitchOfTheirLayer()
{
    addVor("ABC", 46.5, 2.5);
    window->run("addNavMgr();map.setZoom(10)");
    const QImage bare = pictureAround(46.5, 2.5, 60);
    window->run("VORMgr.addMarkers(listVOR)");
    QVERIFY(pictureAround(46.5, 2.5, 60) != bare);
    window->run("VORMgr.clearMarkers()");
    QCOMPARE(pictureAround(46.5, 2.5, 60), bare);
}

void TestPageRoses::rosesOverlapAcross180Degrees()
{
    window->run("map.setCenter(new google.maps.LatLng(0, 180));map.setZoom(10)");
    addVor("ABC", 0, 179.97);
    // 44 pixels east of it at this zoom.
    addVor("DEF", 0, -179.97);
    window->run("addNavMgr()");
    const auto eastOfTheSecond = [this] { return pictureAround(0, 180.03, 60).copy(108, 20, 5, 20); };
    const QImage bare = eastOfTheSecond();
    window->run("VORMgr.addMarkers(listVOR)");
    QCOMPARE(eastOfTheSecond(), bare);
}

void TestPageRoses::aRunwayAcross180DegreesIsThatOfItsAirport()
{
    window->run("map.setCenter(new google.maps.LatLng(46.50000,179.99000));");
    for (double longitude : {179.99, -179.99}) {
        window->run(QString("listApt.length = 0;addAPTMarker(new google.maps.LatLng(46.50000,%1),\"LFLX\",1,\"x\");"
                            "pushAPT();")
                        .arg(longitude));
        window->run("drawRwy(new google.maps.LatLng(46.50000,179.98000),new google.maps.LatLng(46.50000,-179.98000));"
                    "clearRunway();");
        // From west to east, a good deal longer than wide.
        const QVariantList ends =
            window->run("var runway = Array.from(listApt[0].runways.values())[0]; [runway[0].east, runway[1].east]")
                .toList();
        QCOMPARE(ends.size(), 2);
        const double length = ends.value(1).toDouble() - ends.value(0).toDouble();
        QVERIFY2(length > 0.02 && length < 0.04, qPrintable(QString::number(length)));
    }
}

void TestPageRoses::aVorOnAnAirportAcross180DegreesIsDrawnAroundIt()
{
    window->run("map.setCenter(new google.maps.LatLng(46.50000,179.99900));");
    addVor("ABC", 46.5, 179.999);
    showVors();
    // The airport is a third of a pixel away, in the next degree.
    QVERIFY(!window->run("page.isUnderAirport(listVOR[0], 8)").toBool());
    window->run("addAPTMarker(new google.maps.LatLng(46.50000,-179.99900),\"LFLX\",1,\"x\");pushAPT();");
    QVERIFY(window->run("page.isUnderAirport(listVOR[0], 8)").toBool());
}

QTEST_MAIN(TestPageRoses)
#include "tst_pageroses.moc"
