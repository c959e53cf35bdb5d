// Where the simulator's aircraft has flown.
#include "pagetest.h"

#include <QtTest>

#include <cmath>

class TestPageTrail : public LonePageTest
{
    Q_OBJECT

private slots:
    void theTrailShowsWhereTheAircraftHasFlown();
    void theTrailGrowsWhileItIsLookedAt();
    void aJumpBreaksTheTrail();
    void aFastFlightIsNoJump();
    void theTrailStaysWhenTheAircraftGoes();
    void theNextAircraftBeginsItsOwnTrail();
    void theTrailCanBeCleared();
    void aStandingAircraftAddsNothing();
    void aTickWithoutAPlaceAddsNothing_data();
    void aTickWithoutAPlaceAddsNothing();
    void theZeroPlaceBeforeTheSimulatorFliesIsNoTrail();
    void theTrailCrossesTheDateLine_data();
    void theTrailCrossesTheDateLine();
    void theTrailOverThePoleDrawsNoLineAcrossTheMap();
    void aStraightFlightKeepsFewPoints();
    void aCurvedFlightKeepsItsShape();
    void theTrailIsBounded();
    void manyJumpsAreBounded();
    void aTickPaintsNothingAnew();
    void theTrailTakesTheColourOfTheNight();

private:
    int around(double latitude, double longitude, const char* colour, int reach = 6)
    {
        return window->pixelsAround(latitude, longitude, reach, QColor(colour));
    }
    /// Flies from one position to another in equal steps; the aircraft must be there.
    void fly(double latitude, double longitude, double toLatitude, double toLongitude, int steps)
    {
        window->run(QString("for (let i = 0; i <= %5; ++i) setAcftMrkr(new google.maps.LatLng("
                            "%1 + (%3 - %1) * i / %5, %2 + (%4 - %2) * i / %5), 0);")
                        .arg(latitude)
                        .arg(longitude)
                        .arg(toLatitude)
                        .arg(toLongitude)
                        .arg(steps));
    }
    void begin(double latitude, double longitude)
    {
        window->run(QString("addAcftMrkr(new google.maps.LatLng(%1,%2),\"\",0);").arg(latitude).arg(longitude));
    }
    int points()
    {
        return window->run("page.trailLengths().reduce((sum, length) => sum + length, 0)").toInt();
    }
    int pieces()
    {
        return window->run("page.trailLengths().length").toInt();
    }
};

namespace {

const char trailColour[] = "#b5541c";
const char nightColour[] = "#d08a4a";

} // namespace

void TestPageTrail::theTrailShowsWhereTheAircraftHasFlown()
{
    begin(46.2, 2.2);
    QVERIFY(!window->run("page.hasTrail()").toBool());
    fly(46.2, 2.2, 46.8, 2.8, 3000);
    QVERIFY(around(46.5, 2.5, trailColour) > 0);
    QVERIFY(around(46.3, 2.3, trailColour) > 0);
    QCOMPARE(around(46.5, 2.3, trailColour), 0);
    QVERIFY(window->run("page.hasTrail()").toBool());
}

void TestPageTrail::theTrailGrowsWhileItIsLookedAt()
{
    begin(46.2, 2.5);
    for (int i = 0; i < 5; ++i) {
        const double latitude = 46.2 + i * 0.1;
        QCOMPARE(around(latitude + 0.05, 2.5, trailColour, 4), 0);
        fly(latitude, 2.5, latitude + 0.1, 2.5, 150);
        QVERIFY(around(latitude + 0.05, 2.5, trailColour, 4) > 0);
    }
    QVERIFY(around(46.25, 2.5, trailColour, 4) > 0);
    // What has grown piece by piece looks like what is painted at once.
    window->settle();
    const QImage grown = window->view->grab().toImage();
    window->run("map.setZoom(7);map.setZoom(8)");
    window->settle();
    QCOMPARE(window->view->grab().toImage().copy(380, 100, 40, 400), grown.copy(380, 100, 40, 400));
}

void TestPageTrail::aJumpBreaksTheTrail()
{
    begin(46.3, 2.2);
    fly(46.3, 2.2, 46.3, 2.4, 500);
    fly(46.3, 2.6, 46.3, 2.8, 500);
    QVERIFY(around(46.3, 2.3, trailColour) > 0);
    QCOMPARE(around(46.3, 2.5, trailColour), 0);
    QVERIFY(around(46.3, 2.7, trailColour) > 0);
}

void TestPageTrail::aFastFlightIsNoJump()
{
    // Two miles between two ticks.
    begin(46.3, 2.0);
    fly(46.3, 2.0, 46.3, 3.0, 21);
    QVERIFY(around(46.3, 2.5, trailColour) > 0);
}

void TestPageTrail::theTrailStaysWhenTheAircraftGoes()
{
    begin(46.2, 2.5);
    fly(46.2, 2.5, 46.6, 2.5, 1000);
    window->run("eraseAcftMrkr();");
    QVERIFY(around(46.4, 2.5, trailColour) > 0);
    // A late tick belongs to no aircraft.
    fly(46.6, 2.5, 46.8, 2.5, 500);
    QCOMPARE(around(46.7, 2.5, trailColour), 0);
}

void TestPageTrail::theNextAircraftBeginsItsOwnTrail()
{
    begin(46.2, 2.5);
    fly(46.2, 2.5, 46.6, 2.5, 1000);
    window->run("eraseAcftMrkr();");
    begin(46.61, 2.5);
    QCOMPARE(around(46.4, 2.5, trailColour), 0);
    QVERIFY(!window->run("page.hasTrail()").toBool());
    fly(46.61, 2.5, 46.9, 2.5, 1000);
    QVERIFY(around(46.75, 2.5, trailColour) > 0);
    QCOMPARE(around(46.4, 2.5, trailColour), 0);
}

void TestPageTrail::theTrailCanBeCleared()
{
    begin(46.2, 2.5);
    fly(46.2, 2.5, 46.6, 2.5, 1000);
    window->run("page.clearTrail()");
    QCOMPARE(around(46.4, 2.5, trailColour), 0);
    QVERIFY(!window->run("page.hasTrail()").toBool());
    // The flight goes on from here.
    fly(46.6, 2.5, 46.9, 2.5, 1000);
    QCOMPARE(around(46.4, 2.5, trailColour), 0);
    QVERIFY(around(46.75, 2.5, trailColour) > 0);
}

void TestPageTrail::aStandingAircraftAddsNothing()
{
    begin(46.2, 2.5);
    window->run("for (let i = 0; i < 5000; ++i)"
                "setAcftMrkr(new google.maps.LatLng(46.2 + (i % 3) * 0.00001, 2.5), i % 360);");
    QCOMPARE(points(), 1);
    QVERIFY(!window->run("page.hasTrail()").toBool());
}

void TestPageTrail::aTickWithoutAPlaceAddsNothing_data()
{
    QTest::addColumn<QString>("tick");

    QTest::newRow("no place") << "setAcftMrkr(new google.maps.LatLng(nan,nan),0);";
    QTest::newRow("no longitude") << "setAcftMrkr(new google.maps.LatLng(46.50000,nan),0);";
    QTest::newRow("infinite") << "setAcftMrkr(new google.maps.LatLng(inf,-inf),0);";
}

void TestPageTrail::aTickWithoutAPlaceAddsNothing()
{
    QFETCH(QString, tick);
    begin(46.3, 2.5);
    fly(46.3, 2.5, 46.5, 2.5, 1000);
    const int before = points();
    const QString shown = window->run("document.querySelector('.chart-marker').style.cssText").toString();
    window->run(tick);
    window->settle();
    QCOMPARE(points(), before);
    QCOMPARE(window->run("document.querySelector('.chart-marker').style.cssText").toString(), shown);
    fly(46.5, 2.5, 46.7, 2.5, 1000);
    QVERIFY(around(46.5, 2.5, trailColour) > 0);
    QVERIFY(around(46.6, 2.5, trailColour) > 0);
    QCOMPARE(window->page->messages, QStringList());
}

void TestPageTrail::theZeroPlaceBeforeTheSimulatorFliesIsNoTrail()
{
    // Until the simulator fills its record the aircraft stands at 0, 0.
    begin(0, 0);
    window->run("for (let i = 0; i < 100; ++i) setAcftMrkr(new google.maps.LatLng( 0.00000, 0.00000),0);");
    fly(46.3, 2.5, 46.6, 2.5, 1000);
    QVERIFY(around(46.45, 2.5, trailColour) > 0);
    window->run("map.setZoom(3);map.setCenter(new google.maps.LatLng(23.00000, 1.20000));");
    QCOMPARE(around(23, 1.2, trailColour, 40), 0);
    QCOMPARE(around(0, 0, trailColour, 20), 0);
}

void TestPageTrail::theTrailCrossesTheDateLine_data()
{
    QTest::addColumn<double>("from");
    QTest::addColumn<double>("to");

    QTest::newRow("to the east") << 178.0 << 182.0;
    QTest::newRow("to the west") << 182.0 << 178.0;
    QTest::newRow("to the west, counted below") << -178.0 << -182.0;
}

void TestPageTrail::theTrailCrossesTheDateLine()
{
    QFETCH(double, from);
    QFETCH(double, to);
    window->run("map.setCenter(new google.maps.LatLng(10.00000,180.00000));map.setZoom(6);");
    begin(10, from);
    fly(10, from, 10, to, 4000);
    QCOMPARE(pieces() > 1, true);
    QVERIFY(around(10, 180, trailColour, 4) > 0);
    // A degree on both sides: 45 pixels.
    window->settle();
    const QImage image = window->view->grab().toImage();
    for (int x : {355, 445}) {
        int found = 0;
        for (int y = 294; y <= 306; ++y)
            found += image.pixelColor(x, y) == QColor(trailColour) ? 1 : 0;
        QVERIFY2(found > 0, qPrintable(QString::number(x)));
    }
    window->run("map.setCenter(new google.maps.LatLng(10.00000, 0.00000));map.setZoom(3);");
    QCOMPARE(around(10, 0, trailColour, 30), 0);
    QCOMPARE(around(10, 90, trailColour, 30), 0);
}

void TestPageTrail::theTrailOverThePoleDrawsNoLineAcrossTheMap()
{
    window->run("map.setCenter(new google.maps.LatLng(80.00000, 0.00000));map.setZoom(2);");
    begin(80, 40);
    fly(80, 40, 90, 40, 1500);
    fly(90, -140, 80, -140, 1500);
    QVERIFY(around(83, 40, trailColour) > 0);
    QVERIFY(around(83, -140, trailColour) > 0);
    // Along the map's upper edge, between the two.
    for (double longitude : {-100.0, -60.0, -20.0, 20.0})
        QCOMPARE(around(85.04, longitude, trailColour, 5), 0);
    QCOMPARE(window->page->messages, QStringList());
}

void TestPageTrail::aStraightFlightKeepsFewPoints()
{
    begin(46.0, 2.5);
    fly(46.0, 2.5, 47.0, 2.5, 10000);
    // 111 km at a point every 11 m; the last piece is not finished.
    QVERIFY2(points() < 1000, qPrintable(QString::number(points())));
    for (double latitude : {46.1, 46.5, 46.9})
        QVERIFY(around(latitude, 2.5, trailColour, 4) > 0);
}

void TestPageTrail::aCurvedFlightKeepsItsShape()
{
    // Circles of about a kilometre; a pixel is 6.6 m.
    window->run("map.setZoom(14)");
    begin(46.51, 2.5);
    window->run("for (let i = 0; i < 8000; ++i) setAcftMrkr(new google.maps.LatLng("
                "46.5 + 0.01 * Math.cos(i / 1000), 2.5 + 0.01 * Math.sin(i / 1000)), 0);"
                "eraseAcftMrkr();");
    QVERIFY(pieces() > 1);
    for (double angle : {0.5, 1.0, 2.0, 3.0, 4.0, 5.0})
        QVERIFY2(around(46.5 + 0.01 * std::cos(angle), 2.5 + 0.01 * std::sin(angle), trailColour, 2) > 0,
                 qPrintable(QString::number(angle)));
}

void TestPageTrail::theTrailIsBounded()
{
    begin(46.0, 2.5);
    // A hard zigzag: every point is needed.
    window->run("for (let i = 0; i < 60000; ++i) setAcftMrkr(new google.maps.LatLng("
                "46 + i * 0.0001, 2.5 + (i % 2) * 0.0005), 0);");
    QVERIFY2(points() > 30000, qPrintable(QString::number(points())));
    QVERIFY2(points() <= 36000, qPrintable(QString::number(points())));
    QVERIFY(window->run("Math.max.apply(null, page.trailLengths())").toInt() <= 500);
    // The oldest went: the newest is there.
    window->run("map.setCenter(new google.maps.LatLng(51.90000, 2.50000));");
    QVERIFY(around(51.8, 2.50025, trailColour) > 0);
    window->run("map.setCenter(new google.maps.LatLng(46.50000, 2.50000));");
    QCOMPARE(around(46.5, 2.50025, trailColour), 0);
}

void TestPageTrail::manyJumpsAreBounded()
{
    begin(46.0, 2.5);
    window->run("for (let i = 0; i < 5000; ++i) { const latitude = 20 + (i * 7 % 50);"
                "setAcftMrkr(new google.maps.LatLng(latitude, 2.5), 0);"
                "setAcftMrkr(new google.maps.LatLng(latitude + 0.01, 2.5), 0); }");
    QVERIFY2(pieces() <= 501, qPrintable(QString::number(pieces())));
    QCOMPARE(window->page->messages, QStringList());
}

void TestPageTrail::aTickPaintsNothingAnew()
{
    begin(46.2, 2.5);
    fly(46.2, 2.5, 46.3, 2.5, 200);
    window->settle();
    window->run("var chart = 0, ground = 0;"
                "[[map.chart, 'chart'], [map.ground.canvas, 'ground']].forEach(entry => {"
                "const paint = entry[0].paint;"
                "entry[0].paint = function () { ++window[entry[1]]; paint.call(this); }; });");
    for (int i = 0; i < 20; ++i) {
        fly(46.3 + i * 0.005, 2.5, 46.3 + (i + 1) * 0.005, 2.5, 5);
        window->settle();
    }
    QCOMPARE(window->run("[chart, ground].join()").toString(), QString("0,0"));
    QVERIFY(around(46.31, 2.5, trailColour, 4) > 0);
}

void TestPageTrail::theTrailTakesTheColourOfTheNight()
{
    begin(46.2, 2.5);
    fly(46.2, 2.5, 46.6, 2.5, 4000);
    window->run("page.setPalette('night')");
    QVERIFY(around(46.4, 2.5, nightColour) > 0);
    QCOMPARE(around(46.4, 2.5, trailColour), 0);
    fly(46.6, 2.5, 46.8, 2.5, 1000);
    QVERIFY(around(46.7, 2.5, nightColour) > 0);
}

QTEST_MAIN(TestPageTrail)
#include "tst_pagetrail.moc"
