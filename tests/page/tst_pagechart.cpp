// How the markers look: a symbol for each kind, less of it from afar, runways and compass roses, the points of the
// plan.
#include "pagewindow.h"

#include <QtTest>

#include <cmath>

class TestPageChart : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        program.reset(new FullProgramSide);
        window.reset(new PageWindow(program.data()));
        QVERIFY(window->load());
        window->run("map.setCenter(new google.maps.LatLng(46.50000, 2.50000));map.setZoom(8)");
    }

    void aTypeHasItsSymbol_data();
    void aTypeHasItsSymbol();
    void aDmeIsDrawnAroundItsNdb();
    void anNdbWithADmeHasASquareToo_data();
    void anNdbWithADmeHasASquareToo();
    void itsNdbMayLieBeyond180Degrees();
    void symbolsLeaveInOrderFromAfar_data();
    void symbolsLeaveInOrderFromAfar();
    void anRnavWaypointIsSmallerThanOneEnRoute_data();
    void anRnavWaypointIsSmallerThanOneEnRoute();
    void thousandsLookFartherAway();
    void aPaletteColoursTheSymbols();
    void runwaysShowInTheSymbolOfTheirAirport();
    void runwaysShowInAnAirportOfThePlan();
    void aRunwayFarFromAllAirportsChangesNone();
    void aRunwayAcross180DegreesIsThatOfItsAirport();
    void aVorOnAnAirportIsDrawnAroundIt();
    void aVorOnAnAirportAcross180DegreesIsDrawnAroundIt();
    void aRoseStandsAroundAVorFromNear();
    void ofTwoRosesThatOverlapOneIsDrawn();
    void rosesFollowTheSwitchOfTheirLayer();
    void aPlannedVorHasItsRoseWithoutItsLayer();
    void rosesOverlapAcross180Degrees();
    void aPointOfThePlanShowsWithoutItsLayer();
    void aPointOfThePlanHasTheCommandsOfItsMarker();
    void aPointWithoutAMarkerIsAPlainOne();
    void aPointOfThePlanIsDrawnOnce();
    void theMarkerOfThePointsNameIsTaken();
    void aPointWithAnotherNameIsNoMarkerOfThePlace();
    void anEmptiedPlanGivesTheMarkersBack();
    void aDeletedMarkerLeavesItsPointInThePlan();
    void theClickedMarkerIsNamedFromAfar();
    void onePointOfALayerHasOptionsOfItsOwn();
    void aCrowdIsDrawnWithoutHoles();
    void theProjectionIsThatOfTheWeb_data();
    void theProjectionIsThatOfTheWeb();
    void aCopiedLookKeepsItsLabel();

private:
    QScopedPointer<ProgramSide> program;
    QScopedPointer<PageWindow> window;

    QImage pictureAround(double latitude, double longitude, int reach)
    {
        window->settle();
        const QPoint middle = window->mouse->pointOf(latitude, longitude);
        return window->view->grab().toImage().copy(middle.x() - reach, middle.y() - reach, 2 * reach + 1,
                                                   2 * reach + 1);
    }
    /// Whether a script changes what shows around a position.
    bool changes(const QString& script, double latitude, double longitude, int reach = 10)
    {
        const QImage before = pictureAround(latitude, longitude, reach);
        window->run(script);
        return pictureAround(latitude, longitude, reach) != before;
    }
    int ink(double latitude, double longitude, const char* colour, int reach = 10)
    {
        return window->pixelsAround(latitude, longitude, reach, QColor(colour));
    }
    void addVor(const char* ident, double latitude, double longitude, int type = 1)
    {
        window->run(QString("addVORMarker(new google.maps.LatLng(%1,%2),\"%3-%3KEY\",%4,"
                            "\"<font color=blue><b>VOR %3</b><font color=black><br/>NAME %3<br/>113.7 Mhz<br/>x\")")
                        .arg(latitude)
                        .arg(longitude)
                        .arg(ident)
                        .arg(type));
    }
    void showVors()
    {
        window->run("addNavMgr();VORMgr.addMarkers(listVOR)");
    }
    void plan(const QString& name, double latitude, double longitude)
    {
        window->run(QString("clearFP();addPointToFp(new google.maps.LatLng(%1,%2),\"%3\");pushFP();")
                        .arg(latitude)
                        .arg(longitude)
                        .arg(name));
    }
};

namespace {

const char airportColour[] = "#1d3f8f";
const char navaidColour[] = "#1f5fa8";
const char waypointColour[] = "#2f4a38";
const char routeColour[] = "#c2185b";

const char allLayers[] =
    "pushAPT();addNavMgr();addWptMgr();VORMgr.addMarkers(listVOR);NDBRteMgr.addMarkers(listNDBRte);"
    "NDBTermMgr.addMarkers(listNDBTerm);WPTRteMgr.addMarkers(listWptRte);"
    "WPTTermMgr.addMarkers(listWptTerm);WPTVfrMgr.addMarkers(listWptVfr)";
const char noLayers[] = "ArptMgr.clearMarkers();VORMgr.clearMarkers();NDBRteMgr.clearMarkers();"
                        "NDBTermMgr.clearMarkers();WPTRteMgr.clearMarkers();WPTTermMgr.clearMarkers();"
                        "WPTVfrMgr.clearMarkers()";

} // namespace

void TestPageChart::aTypeHasItsSymbol_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("symbol");
    QTest::newRow("0, no type") << 0 << "vor";
    QTest::newRow("1, VOR") << 1 << "vor";
    QTest::newRow("17, VOR with DME") << 17 << "vorDme";
    QTest::newRow("4, TACAN") << 4 << "tacan";
    QTest::newRow("20, TACAN with DME") << 20 << "tacan";
    QTest::newRow("5, VORTAC") << 5 << "vortac";
    QTest::newRow("21, VORTAC with DME") << 21 << "vortac";
    QTest::newRow("16, DME") << 16 << "dme";
}

void TestPageChart::aTypeHasItsSymbol()
{
    QFETCH(int, type);
    QFETCH(QString, symbol);
    addVor("ABC", 46.7, 2.3, type);
    QCOMPARE(window->run("listVOR[0].symbol").toString(), symbol);
    window->run("addNavMgr()");
    QVERIFY(changes("VORMgr.addMarkers(listVOR)", 46.7, 2.3));
}

void TestPageChart::aDmeIsDrawnAroundItsNdb()
{
    addVor("MT", 46.7, 2.3, 16);
    addVor("ABC", 46.4, 2.3, 16);
    window->run("addNDBMarker(new google.maps.LatLng(46.70300, 2.30000),\"MT-MT5FR\",3,"
                "\"<font color=blue><b>NDB MT</b><font color=black><br/>MT<br/>338 Khz<br/>x\")");
    window->run(allLayers);
    QCOMPARE(window->run("listVOR.map(marker => marker.symbol)").toStringList(), (QStringList{"dmeNdb", "dme"}));
    // The beacon shows inside the square.
    QVERIFY(ink(46.703, 2.3, "#8a2f7e", 3) > 0);
}

void TestPageChart::itsNdbMayLieBeyond180Degrees()
{
    addVor("ABC", -17, 179.998, 16);
    window->run("addNDBMarker(new google.maps.LatLng(-17, -179.998),\"ABC-ABC5FJ\",3,"
                "\"<font color=blue><b>NDB ABC</b><font color=black><br/>ABC<br/>338 Khz<br/>x\")");
    window->run(allLayers);
    QCOMPARE(window->run("listVOR[0].symbol").toString(), "dmeNdb");
}

void TestPageChart::anNdbWithADmeHasASquareToo_data()
{
    QTest::addColumn<int>("usage");
    QTest::addColumn<QString>("kind");
    QTest::newRow("route") << 3 << "NDB-DME GU";
    QTest::newRow("terminal") << 4 << "NDB-DME terminal GU";
}

void TestPageChart::anNdbWithADmeHasASquareToo()
{
    QFETCH(int, usage);
    QFETCH(QString, kind);
    const QString add = "addNDBMarker(new google.maps.LatLng(%1, 2.30000),\"GU-%2\",%3,"
                        "\"<font color=blue><b>NDB GU</b><font color=black><br/>GUIPAVAS<br/>338 Khz<br/>x\");";
    window->run(add.arg("46.70000").arg("GU7FR").arg(usage) + add.arg("46.40000").arg("GU5FR").arg(usage));
    window->run(allLayers);
    const char open[] = "#f6f3ea";
    QVERIFY(ink(46.7, 2.3, open, 9) < ink(46.4, 2.3, open, 9) - 40);
    // The square is not filled.
    QVERIFY(ink(46.7, 2.3, open, 7) > 40);
    QCOMPARE(window->run("page.describe(listNDBRte.concat(listNDBTerm)[0]).head").toString(), kind);
}

void TestPageChart::symbolsLeaveInOrderFromAfar_data()
{
    QTest::addColumn<double>("zoom");
    QTest::addColumn<QString>("shown");
    QTest::newRow("8") << 8.0 << "airport vor ndb route rnav terminal vfr";
    QTest::newRow("6.9") << 6.9 << "airport vor ndb route";
    QTest::newRow("6.5") << 6.5 << "airport vor ndb route";
    QTest::newRow("6.4") << 6.4 << "airport vor ndb";
    QTest::newRow("5.5") << 5.5 << "airport vor ndb";
    QTest::newRow("4") << 4.0 << "airport vor";
    QTest::newRow("3") << 3.0 << "airport";
}

void TestPageChart::symbolsLeaveInOrderFromAfar()
{
    QFETCH(double, zoom);
    QFETCH(QString, shown);
    // Far from each other at every zoom.
    const QVector<QPair<QString, QString>> rows{
        {"airport", "addAPTMarker(%1,\"LFXX\",1,\"x\")"}, {"vor", "addVORMarker(%1,\"A-A\",1,\"x\")"},
        {"ndb", "addNDBMarker(%1,\"A-E\",1,\"x\")"},      {"route", "addWPTMarker(%1,\"A-G\",1,\"x\")"},
        {"rnav", "addWPTMarker(%1,\"A-H\",5,\"x\")"},     {"terminal", "addWPTMarker(%1,\"A-I\",4,\"x\")"},
        {"vfr", "addWPTMarker(%1,\"A-J\",6,\"x\")"}};
    const QStringList wanted = shown.split(' ');
    QStringList found;
    for (const auto& row : rows) {
        window->run(
            "[listApt, listVOR, listNDBRte, listWptRte, listWptTerm, listWptVfr].forEach(l => { l.length = 0; })");
        window->run(QString(row.second).arg("new google.maps.LatLng(46.60000, 2.60000)"));
        window->run(QString("map.setZoom(%1)").arg(zoom));
        window->run(allLayers);
        if (changes(noLayers, 46.6, 2.6))
            found << row.first;
    }
    QCOMPARE(found, wanted);
}

void TestPageChart::anRnavWaypointIsSmallerThanOneEnRoute_data()
{
    QTest::addColumn<double>("zoom");
    QTest::newRow("a dot") << 8.0;
    QTest::newRow("a star") << 9.0;
}

void TestPageChart::anRnavWaypointIsSmallerThanOneEnRoute()
{
    QFETCH(double, zoom);
    window->run(QString("addWPTMarker(new google.maps.LatLng(46.60000, 2.60000),\"A-G\",1,\"x\");"
                        "addWPTMarker(new google.maps.LatLng(46.40000, 2.60000),\"A-H\",5,\"x\");map.setZoom(%1);")
                    .arg(zoom));
    window->run(allLayers);
    const auto painted = [this](double latitude) {
        const QImage with = pictureAround(latitude, 2.6, 9);
        window->run("WPTRteMgr.clearMarkers()");
        const QImage without = pictureAround(latitude, 2.6, 9);
        window->run("WPTRteMgr.addMarkers(listWptRte)");
        int pixels = 0;
        // Left of the labels.
        for (int y = 0; y < with.height(); ++y)
            for (int x = 0; x <= 9; ++x)
                pixels += with.pixel(x, y) != without.pixel(x, y) ? 1 : 0;
        return pixels;
    };
    const int enRoute = painted(46.6);
    const int rnav = painted(46.4);
    QVERIFY2(rnav > 0 && rnav < enRoute, qPrintable(QString("%1 and %2").arg(enRoute).arg(rnav)));
}

void TestPageChart::thousandsLookFartherAway()
{
    window->run("addAPTMarker(new google.maps.LatLng(46.70000, 2.30000),\"LFXX\",1,\"x\");pushAPT();map.setZoom(7);");
    const QImage alone = pictureAround(46.7, 2.3, 8);
    // The others lie on the other side of the world.
    window->run("for (var i = 0; i < 4000; ++i)"
                "addAPTMarker(new google.maps.LatLng(-40 + i * 0.01, -170),\"X\" + i,1,\"x\");pushAPT();");
    QVERIFY(pictureAround(46.7, 2.3, 8) != alone);
    QVERIFY(changes("ArptMgr.clearMarkers()", 46.7, 2.3));
}

void TestPageChart::aPaletteColoursTheSymbols()
{
    window->run("addAPTMarker(new google.maps.LatLng(46.70000, 2.30000),\"LFXX\",1,\"x\");pushAPT();");
    QVERIFY(ink(46.7, 2.3, airportColour) > 0);
    window->run("page.setPalette('night')");
    QCOMPARE(ink(46.7, 2.3, airportColour), 0);
    QVERIFY(ink(46.7, 2.3, "#8fb0e8") > 0);
}

void TestPageChart::runwaysShowInTheSymbolOfTheirAirport()
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

void TestPageChart::runwaysShowInAnAirportOfThePlan()
{
    window->run("addAPTMarker(new google.maps.LatLng(46.70000, 2.30000),\"LFXX\",1,\"x\");pushAPT();");
    plan("LFXX", 46.7, 2.3);
    QVERIFY(changes(
        "drawRwy(new google.maps.LatLng(46.70000, 2.28000),new google.maps.LatLng(46.70000, 2.32000));clearRunway();",
        46.7, 2.3));
}

void TestPageChart::aRunwayFarFromAllAirportsChangesNone()
{
    window->run("addAPTMarker(new google.maps.LatLng(46.70000, 2.30000),\"LFXX\",1,\"x\");pushAPT();");
    QVERIFY(!changes(
        "drawRwy(new google.maps.LatLng(46.50000, 2.30000),new google.maps.LatLng(46.50000, 2.32000));"
        "drawRwy(new google.maps.LatLng(nan, 2.30000),new google.maps.LatLng(46.70000, 2.32000));clearRunway();",
        46.7, 2.3));
    QCOMPARE(window->page->messages, QStringList());
}

void TestPageChart::aVorOnAnAirportIsDrawnAroundIt()
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

void TestPageChart::aRoseStandsAroundAVorFromNear()
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

void TestPageChart::ofTwoRosesThatOverlapOneIsDrawn()
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

void TestPageChart::rosesFollowTheSwitchOfTheirLayer()
{
    addVor("ABC", 46.5, 2.5);
    window->run("addNavMgr();map.setZoom(10)");
    const QImage bare = pictureAround(46.5, 2.5, 60);
    window->run("VORMgr.addMarkers(listVOR)");
    QVERIFY(pictureAround(46.5, 2.5, 60) != bare);
    window->run("VORMgr.clearMarkers()");
    QCOMPARE(pictureAround(46.5, 2.5, 60), bare);
}

void TestPageChart::aPlannedVorHasItsRoseWithoutItsLayer()
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

void TestPageChart::rosesOverlapAcross180Degrees()
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

void TestPageChart::aPointOfThePlanShowsWithoutItsLayer()
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

void TestPageChart::aPointOfThePlanHasTheCommandsOfItsMarker()
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

void TestPageChart::aPointWithoutAMarkerIsAPlainOne()
{
    plan("WPT01", 46.7, 2.3);
    QVERIFY(ink(46.7, 2.3, routeColour, 6) > 5);
    QVERIFY(!window->menuAt(46.7, 2.3).contains("Ajouter au plan de vol"));
}

void TestPageChart::aPointOfThePlanIsDrawnOnce()
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

void TestPageChart::theMarkerOfThePointsNameIsTaken()
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

void TestPageChart::aPointWithAnotherNameIsNoMarkerOfThePlace()
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

void TestPageChart::anEmptiedPlanGivesTheMarkersBack()
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

void TestPageChart::aDeletedMarkerLeavesItsPointInThePlan()
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

void TestPageChart::theClickedMarkerIsNamedFromAfar()
{
    addVor("ABC", 46.5, 2.5);
    showVors();
    window->run("map.setZoom(5)");
    const QImage before = pictureAround(46.5, 2.5, 50);
    window->click(46.5, 2.5);
    // Its pop-up lies over it.
    window->run("document.querySelector('.leaflet-popup').style.visibility = 'hidden'");
    const QImage chosen = pictureAround(46.5, 2.5, 50);
    QVERIFY(chosen != before);
    QVERIFY(ink(46.5, 2.5, navaidColour, 50) > 60);
    window->click(44.5, 2.5);
    QCOMPARE(pictureAround(46.5, 2.5, 50), before);
}

void TestPageChart::onePointOfALayerHasOptionsOfItsOwn()
{
    window->run("var layer = new google.maps.Data({ map: map });"
                "layer.setStyle({ icon: page.symbol('M -5 -5 L 5 -5 L 5 5 L -5 5 Z', '#00ff00', 0, '#00ff00') });"
                "var one = layer.add({ geometry: new google.maps.LatLng(46.7, 2.3) });"
                "var two = layer.add({ geometry: new google.maps.LatLng(46.4, 2.3) });");
    QVERIFY(ink(46.7, 2.3, "#00ff00") > 50);
    window->run("layer.overrideStyle(one, { visible: false })");
    QCOMPARE(ink(46.7, 2.3, "#00ff00"), 0);
    QVERIFY(ink(46.4, 2.3, "#00ff00") > 50);
    window->run("layer.revertStyle(one)");
    QVERIFY(ink(46.7, 2.3, "#00ff00") > 50);
    window->run("layer.overrideStyle(one, { visible: false });layer.overrideStyle(two, { visible: false });"
                "layer.revertStyle()");
    QVERIFY(ink(46.7, 2.3, "#00ff00") > 50);
    QVERIFY(ink(46.4, 2.3, "#00ff00") > 50);
}

void TestPageChart::aCrowdIsDrawnWithoutHoles()
{
    // Squares of 10 pixels, 2 apart in both directions: most of them are under others, which are drawn for them.
    window->run("var crowd = new google.maps.Data({ map: map });"
                "crowd.setStyle({ icon: page.symbol('M -5 -5 L 5 -5 L 5 5 L -5 5 Z', '#00ff00', 0, '#00ff00') });"
                "var degrees = 2 * 360 / 256 / Math.pow(2, map.getZoom());"
                "for (var row = 0; row < 80; ++row) for (var column = 0; column < 80; ++column)"
                "crowd.add({ geometry: new google.maps.LatLng(46.5 + (row - 40) * degrees * 0.688, 2.5 + (column - 40) "
                "* degrees) });"
                // And one of the same crowd on its own.
                "crowd.add({ geometry: new google.maps.LatLng(46.9, 1.6) });");
    QCOMPARE(ink(46.5, 2.5, "#00ff00", 70), 141 * 141);
    QVERIFY(ink(46.9, 1.6, "#00ff00", 10) > 80);
}

void TestPageChart::theProjectionIsThatOfTheWeb_data()
{
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("y");
    QTest::newRow("equator") << 0.0 << 128.0;
    QTest::newRow("on a step of the table") << 48.7 << 88.24026125;
    QTest::newRow("between two steps") << 46.64321 << 90.41269937;
    QTest::newRow("south") << -33.9461 << 153.68984877;
    QTest::newRow("south, on a step") << -54.8 << 174.78040511;
    QTest::newRow("below the table's end") << 79.95 << 28.94265717;
    QTest::newRow("above the table's end") << 80.02 << 28.65642219;
    QTest::newRow("far north") << 85.0 << 0.41930619;
    QTest::newRow("far south") << -85.0 << 255.58069381;
    QTest::newRow("beyond the limit") << 89.0 << 0.0;
    QTest::newRow("the south pole") << -90.0 << 256.0;
}

void TestPageChart::theProjectionIsThatOfTheWeb()
{
    QFETCH(double, latitude);
    QFETCH(double, y);
    const double found = window
                             ->run(QString("map.getProjection().fromLatLngToPoint(new google.maps.LatLng(%1, 2.3)).y")
                                       .arg(latitude, 0, 'f', 5))
                             .toDouble();
    // A tenth of a pixel at zoom 18.
    QVERIFY2(std::abs(found - y) < 4e-7, qPrintable(QString::number(found, 'f', 9)));
}

void TestPageChart::aCopiedLookKeepsItsLabel()
{
    window->run("map.setZoom(12);"
                "addAPTMarker(new google.maps.LatLng(46.6, 2.5), 'LFXX', 1, '<b>AERODROME LFXX</b>');pushAPT();"
                "var look = null;"
                "ArptMgr.layer.forEach(point => { look = ArptMgr.layer.style(point); });"
                "var copy = {};"
                "for (var name in look) copy[name] = look[name];");
    QCOMPARE(window->run("copy.label.text").toString(), QString("LFXX"));
    QVERIFY(window->run("copy.icon === look.icon && copy.zIndex === look.zIndex").toBool());
    window->run("ArptMgr.layer.forEach(point => ArptMgr.layer.overrideStyle(point, { zIndex: 7 }));"
                "ArptMgr.layer.forEach(point => { ArptMgr.layer.dress(point, 1); look = point.look; });");
    QCOMPARE(window->run("look.zIndex").toInt(), 7);
    QCOMPARE(window->run("look.label.text").toString(), QString("LFXX"));
}

void TestPageChart::aRunwayAcross180DegreesIsThatOfItsAirport()
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

void TestPageChart::aVorOnAnAirportAcross180DegreesIsDrawnAroundIt()
{
    window->run("map.setCenter(new google.maps.LatLng(46.50000,179.99900));");
    addVor("ABC", 46.5, 179.999);
    showVors();
    // The airport is a third of a pixel away, in the next degree.
    QVERIFY(!window->run("page.isUnderAirport(listVOR[0], 8)").toBool());
    window->run("addAPTMarker(new google.maps.LatLng(46.50000,-179.99900),\"LFLX\",1,\"x\");pushAPT();");
    QVERIFY(window->run("page.isUnderAirport(listVOR[0], 8)").toBool());
}

QTEST_MAIN(TestPageChart)
#include "tst_pagechart.moc"
