// Every script text that the map page is asked to evaluate, to the character.
#include "mapscript.h"

#include <QtTest>

#include <limits>

using mapscript::Place;

namespace {

// 48.72528 north, 2.35944 east.
const Place orly{48.7252777, 2.3594444};
const mapscript::NavaidMarker rambouillet{{48.65, 1.98333}, "RBT", "RBT_4", 17, "<b>RBT"};
const mapscript::WaypointMarker bames{{48.7, 3.0}, "BAMES", "BAMES_1", 5, "<b>BAMES"};

} // namespace

class TestMapScript : public QObject
{
    Q_OBJECT

private slots:
    void longitudesLieBetweenMinusAndPlus180_data()
    {
        QTest::addColumn<double>("lonSec");
        QTest::addColumn<QString>("script");

        QTest::newRow("zero") << 0.0 << "map.setCenter(new google.maps.LatLng(0.00000,0.00000));";
        QTest::newRow("east") << 3600.0 << "map.setCenter(new google.maps.LatLng(0.00000,1.00000));";
        QTest::newRow("west, negative") << -3600.0 << "map.setCenter(new google.maps.LatLng(0.00000,-1.00000));";
        QTest::newRow("west, beyond the half circle")
            << 1292400.0 << "map.setCenter(new google.maps.LatLng(0.00000,-1.00000));";
        QTest::newRow("180 stays") << 648000.0 << "map.setCenter(new google.maps.LatLng(0.00000,180.00000));";
        QTest::newRow("-180 becomes 180") << -648000.0 << "map.setCenter(new google.maps.LatLng(0.00000,180.00000));";
        QTest::newRow("181 becomes -179") << 651600.0 << "map.setCenter(new google.maps.LatLng(0.00000,-179.00000));";
        QTest::newRow("a full circle") << 1296000.0 << "map.setCenter(new google.maps.LatLng(0.00000,0.00000));";
        QTest::newRow("two circles and a degree")
            << 2595600.0 << "map.setCenter(new google.maps.LatLng(0.00000,1.00000));";
    }
    void longitudesLieBetweenMinusAndPlus180()
    {
        QFETCH(double, lonSec);
        QFETCH(QString, script);
        QCOMPARE(mapscript::setCenter(mapscript::storedPlace(0.0, lonSec)), script);
    }

    void negativeLatitudeKeepsItsSignAndIsNotNormalised()
    {
        QCOMPARE(mapscript::setCenter(mapscript::storedPlace(-121950.0, 0.0)),
                 QString("map.setCenter(new google.maps.LatLng(-33.87500,0.00000));"));
        QCOMPARE(mapscript::setCenter(mapscript::storedPlace(-720000.0, 0.0)),
                 QString("map.setCenter(new google.maps.LatLng(-200.00000,0.00000));"));
    }

    void wrappedPlaceTakesDegrees()
    {
        const Place place = mapscript::wrappedPlace(-33.5, 181.0);
        QCOMPARE(place.lat, -33.5);
        QCOMPARE(place.lon, -179.0);
    }

    void brokenPositionsStillGiveATextAtOnce()
    {
        const double nan = std::numeric_limits<double>::quiet_NaN();
        QCOMPARE(mapscript::setCenter(mapscript::storedPlace(nan, nan)),
                 QString("map.setCenter(new google.maps.LatLng(nan,nan));"));
        QVERIFY(!mapscript::setCenter(mapscript::storedPlace(1e300, -1e300)).isEmpty());
    }

    void setZoom_data()
    {
        QTest::addColumn<double>("zoom");
        QTest::addColumn<QString>("script");
        QTest::newRow("whole") << 6.0 << "map.setZoom(6)";
        QTest::newRow("half") << 6.5 << "map.setZoom(6.5)";
        QTest::newRow("zero") << 0.0 << "map.setZoom(0)";
        QTest::newRow("six significant digits") << 12.3456789 << "map.setZoom(12.3457)";
    }
    void setZoom()
    {
        QFETCH(double, zoom);
        QTEST(mapscript::setZoom(zoom), "script");
    }

    void readingScripts()
    {
        QCOMPARE(mapscript::centerLatitude(), QString("map.getCenter().lat()"));
        QCOMPARE(mapscript::centerLongitude(), QString("map.getCenter().lng()"));
        QCOMPARE(mapscript::zoomLevel(), QString("map.getZoom()"));
    }

    void airportMarkerAlwaysHasOneInItsNumber()
    {
        QCOMPARE(mapscript::addAptMarker({orly, "LFPO", "<b>LFPO"}),
                 QString("addAPTMarker(new google.maps.LatLng(48.72528,2.35944),\"LFPO\",1,\"<b>LFPO\")"));
        QCOMPARE(mapscript::pushApt(), QString("pushAPT();"));
    }

    void navaidMarkers()
    {
        QCOMPARE(mapscript::addVorMarker(rambouillet),
                 QString("addVORMarker(new google.maps.LatLng(48.65000,1.98333),\"RBT-RBT_4\",17,\"<b>RBT\")"));
        QCOMPARE(mapscript::addNdbMarker(rambouillet),
                 QString("addNDBMarker(new google.maps.LatLng(48.65000,1.98333),\"RBT-RBT_4\",17,\"<b>RBT\")"));
        QCOMPARE(mapscript::addVorMarker2(rambouillet),
                 QString("addVORMarker2(new google.maps.LatLng(48.65000,1.98333),\"RBT-RBT_4\",17,\"<b>RBT\")"));
        QCOMPARE(mapscript::addNdbMarker2(rambouillet),
                 QString("addNDBMarker2(new google.maps.LatLng(48.65000,1.98333),\"RBT-RBT_4\",17,\"<b>RBT\")"));
        QCOMPARE(mapscript::addNavMgr(), QString("addNavMgr();"));
        QCOMPARE(mapscript::delNavaid(), QString("delNavaid();theLast == null;"));
    }

    void waypointMarkers()
    {
        QCOMPARE(mapscript::addWptMarker(bames),
                 QString("addWPTMarker(new google.maps.LatLng(48.70000,3.00000),\"BAMES-BAMES_1\",5,\"<b>BAMES\")"));
        QCOMPARE(mapscript::addWptMarker2(bames),
                 QString("addWPTMarker2(new google.maps.LatLng(48.70000,3.00000),\"BAMES-BAMES_1\",5,\"<b>BAMES\")"));
        QCOMPARE(mapscript::addWptMgr(), QString("addWptMgr();"));
        QCOMPARE(mapscript::delWaypoint(), QString("delWaypoint();theLast == null;"));
    }

    void aPlaceholderInsideANameStaysWhatItIs()
    {
        QCOMPARE(mapscript::addWptMarker({{1.0, 2.0}, "A%1B", "%2", 4, "%1 %5"}),
                 QString("addWPTMarker(new google.maps.LatLng(1.00000,2.00000),\"A%1B-%2\",4,\"%1 %5\")"));
        QCOMPARE(mapscript::addAptMarker({{1.0, 2.0}, "%5", "100%4"}),
                 QString("addAPTMarker(new google.maps.LatLng(1.00000,2.00000),\"%5\",1,\"100%4\")"));
        QCOMPARE(mapscript::addVorMarker({{1.0, 2.0}, "%6", "%4", 3, "%3"}),
                 QString("addVORMarker(new google.maps.LatLng(1.00000,2.00000),\"%6-%4\",3,\"%3\")"));
        QCOMPARE(mapscript::addPointToFp({1.0, 2.0}, "50%1"),
                 QString("addPointToFp(new google.maps.LatLng(1.00000,2.00000),\"50%1\")"));
        QCOMPARE(mapscript::addSitMarker({1.0, 2.0}, "%4", 7.0),
                 QString("addSitMarker(new google.maps.LatLng(1.00000000,2.00000000),\"%4\", 7);"));
    }

    void namesAreNotEscaped()
    {
        QCOMPARE(mapscript::addPointToFp({1.0, 2.0}, "LE \"TROU\""),
                 QString("addPointToFp(new google.maps.LatLng(1.00000,2.00000),\"LE \"TROU\"\")"));
    }

    void markerLayers_data()
    {
        QTest::addColumn<QString>("manager");
        QTest::addColumn<QString>("list");
        QTest::addColumn<QString>("show");
        QTest::addColumn<QString>("hide");
        QTest::newRow("airports") << "ArptMgr"
                                  << "listApt"
                                  << "ArptMgr.addMarkers(listApt)"
                                  << "ArptMgr.clearMarkers()";
        QTest::newRow("waypoints VFR") << "WPTVfrMgr"
                                       << "listWptVfr"
                                       << "WPTVfrMgr.addMarkers(listWptVfr)"
                                       << "WPTVfrMgr.clearMarkers()";
    }
    void markerLayers()
    {
        QFETCH(QString, manager);
        QFETCH(QString, list);
        const QByteArray managerBytes = manager.toLatin1();
        const QByteArray listBytes = list.toLatin1();
        QTEST(mapscript::markerLayer(QLatin1String(managerBytes), QLatin1String(listBytes), true), "show");
        QTEST(mapscript::markerLayer(QLatin1String(managerBytes), QLatin1String(listBytes), false), "hide");
    }

    void airways()
    {
        QCOMPARE(mapscript::airwayLayer('L', true), QString("showATS('L',1)"));
        QCOMPARE(mapscript::airwayLayer('H', false), QString("showATS('H',0)"));
        QCOMPARE(mapscript::airwayLayer('B', true), QString("showATS('B',1)"));
        QCOMPARE(mapscript::addAts('H'), QString("addATS('H')"));
    }

    void addToAtsHasItsBracketBeforeTheComma()
    {
        QCOMPARE(mapscript::addToAts({48.5, -3.0}, "ATS"),
                 QString("addToATS(new google.maps.LatLng(48.50000,-3.00000)),'ATS'"));
    }

    void runways()
    {
        QCOMPARE(mapscript::clearRunway(), QString("clearRunway();"));
        QCOMPARE(mapscript::drawRunway({48.7, 2.3}, {48.8, -2.4}),
                 QString("drawRwy(new google.maps.LatLng(48.70000,2.30000),"
                         "new google.maps.LatLng(48.80000,-2.40000));"));
    }

    void planAndProcedure()
    {
        QCOMPARE(mapscript::clearFp(), QString("clearFP()"));
        QCOMPARE(mapscript::clearFpStatement(), QString("clearFP();"));
        QCOMPARE(mapscript::addPointToFp(orly, "PARIS ORLY"),
                 QString("addPointToFp(new google.maps.LatLng(48.72528,2.35944),\"PARIS ORLY\")"));
        QCOMPARE(mapscript::pushFp(), QString("pushFP();"));
        QCOMPARE(mapscript::clearSs(), QString("clearSS()"));
        QCOMPARE(mapscript::addPointToSs(orly, "BAMES"),
                 QString("addPointToSS(new google.maps.LatLng(48.72528,2.35944),\"BAMES\")"));
    }

    void startMarkerHasEightDecimalsAndABlankBeforeTheHeading()
    {
        QCOMPARE(mapscript::addSitMarker({48.725277777, -2.359444444}, "Cessna 172", 90.0),
                 QString("addSitMarker(new google.maps.LatLng(48.72527778,-2.35944444),\"Cessna 172\", 90);"));
        QCOMPARE(mapscript::addSitMarker({0.0, 0.0}, "", 61.75),
                 QString("addSitMarker(new google.maps.LatLng(0.00000000,0.00000000),\"\", 61.75);"));
    }

    void aircraft()
    {
        QCOMPARE(mapscript::eraseAircraft(), QString("eraseAcftMrkr();"));
        QCOMPARE(mapscript::addAircraft(orly, 271.5),
                 QString("addAcftMrkr(new google.maps.LatLng(48.72528,2.35944),\"\",271.5);"));
        QCOMPARE(mapscript::moveAircraft(orly, 0.0),
                 QString("setAcftMrkr(new google.maps.LatLng(48.72528,2.35944),0);"));
        QCOMPARE(mapscript::followAircraft(orly, 359.0),
                 QString("setAcftMrkr(new google.maps.LatLng(48.72528,2.35944),359);;"
                         "map.setCenter(new google.maps.LatLng(48.72528,2.35944));"));
    }
};

QTEST_GUILESS_MAIN(TestMapScript)
#include "tst_mapscript.moc"
