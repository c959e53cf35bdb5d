// How the map draws lines: great circles at every zoom, thinned points, symbols along the line, areas.
#include "pagetest.h"

#include <QtTest>

#include <cmath>

class TestPageLines : public LonePageTest
{
    Q_OBJECT

private slots:
    void aGreatCircleBendsAtEveryZoom_data();
    void aGreatCircleBendsAtEveryZoom();
    void aLineOverThePoleEndsAtTheEdgeOfTheMap();
    void aLineBeyondTheEdgeOfTheMapIsNotDrawn();
    void aLineOfManyPointsKeepsItsShape();
    void aLineThatTurnsBackIsDrawnToItsTip();
    void aLineIsDrawnInEveryCopyOfTheWorld();
    void aPointAddedToAShownLineShows();
    void aChangedPointMovesTheLine();
    void aLineForgetsTheListItHadBefore();
    void anOptionChangesAShownLine();
    void aProcedureIsDashed();
    void symbolsPointTheWayOfTheLine();
    void symbolsOfAHugeLineStandInTheView();
    void noLineReadsBeforeTheBeginningOfAnArray();
    void runwaysAreToScaleFromNear();
    void aRunwayIsSeenFromAfar();
    void anAreaIsFilled();
    void runwaysTakeTheColoursOfTheNight();
    void airwaysTakeTheColoursOfTheNight();

private:
    int around(double latitude, double longitude, const char* colour, int reach = 6)
    {
        return window->pixelsAround(latitude, longitude, reach, QColor(colour));
    }
    QImage picture()
    {
        window->settle();
        return window->view->grab().toImage();
    }
    /// How many pixels of a colour lie in a box of the view.
    int pixels(const QRect& area, const char* colour)
    {
        const QImage image = picture();
        int count = 0;
        for (int y = area.top(); y <= area.bottom(); ++y)
            for (int x = area.left(); x <= area.right(); ++x)
                count += image.pixelColor(x, y) == QColor(colour) ? 1 : 0;
        return count;
    }
    /// Draws a red line over the points of an expression; more options may follow.
    void draw(const QString& path, const QString& options = QString())
    {
        window->run(QString("var line = new google.maps.Polyline(Object.assign({ path: %1, strokeColor: '#ff0000',"
                            "strokeWeight: 3, map: map }, {%2}))")
                        .arg(path, options));
    }
};

namespace {

const char red[] = "#ff0000";
const char procedureColour[] = "#00796b";
const char runwayColour[] = "#39424a";
const char nightRunway[] = "#aab5bd";

QString at(double latitude, double longitude)
{
    return QString("new google.maps.LatLng(%1,%2)").arg(latitude, 0, 'g', 12).arg(longitude, 0, 'g', 12);
}

QString list(const QStringList& positions)
{
    return '[' + positions.join(',') + ']';
}

} // namespace

void TestPageLines::aGreatCircleBendsAtEveryZoom_data()
{
    QTest::addColumn<double>("zoom");

    for (int zoom : {4, 7, 9, 11, 13, 15})
        QTest::newRow(qPrintable(QString::number(zoom))) << double(zoom);
}

void TestPageLines::aGreatCircleBendsAtEveryZoom()
{
    QFETCH(double, zoom);
    // The middle of 89 degrees of the 45th parallel, and a quarter of a degree of arc away from it.
    const double radians = std::acos(-1.0) / 180.0;
    const double top = std::atan(1.0 / std::cos(44.5 * radians)) / radians;
    for (double longitude : {0.0, 0.31}) {
        const double latitude = std::atan(std::tan(top * radians) * std::cos(longitude * radians)) / radians;
        window->run(QString("map.setZoom(%1);map.setCenter(%2)").arg(zoom).arg(at(latitude, longitude)));
        draw(list({at(45, -44.5), at(45, 44.5)}), "geodesic: true");
        QVERIFY(around(latitude, longitude, red, 1) > 0);
        window->run("line.setMap(null)");
    }
}

void TestPageLines::aLineOverThePoleEndsAtTheEdgeOfTheMap()
{
    window->run("map.setZoom(2);map.setCenter(new google.maps.LatLng(80.00000, 60.00000));");
    draw(list({at(70, 0), at(70, 120)}), "geodesic: true");
    // Half way over 120 degrees of the 70th parallel: atan(tan 70 / cos 60).
    QVERIFY(around(79.69, 60, red) > 0);
    window->run("line.setMap(null)");
    draw(list({at(75, -30), at(75, 150)}), "geodesic: true");
    QVERIFY(around(84, -30, red) > 0);
    QVERIFY(around(84, 150, red) > 0);
    for (double longitude : {0.0, 30.0, 60.0, 90.0, 120.0})
        QCOMPARE(around(85.04, longitude, red), 0);
}

void TestPageLines::aLineBeyondTheEdgeOfTheMapIsNotDrawn()
{
    window->run("map.setZoom(2);map.setCenter(new google.maps.LatLng(80.00000, 0.00000));");
    draw(list({at(86, -60), at(88, 0), at(86, 60)}));
    QCOMPARE(pixels(QRect(0, 0, 800, 600), red), 0);
    QCOMPARE(window->page->messages, QStringList());
}

void TestPageLines::aLineOfManyPointsKeepsItsShape()
{
    window->run(
        "var path = []; for (let i = 0; i <= 20000; ++i)"
        "path.push(new google.maps.LatLng(46.5 + 0.4 * Math.cos(i / 3183.1), 2.5 + 0.6 * Math.sin(i / 3183.1)))");
    draw("path");
    for (double angle = 0.1; angle < 6.2; angle += 0.3)
        QVERIFY2(around(46.5 + 0.4 * std::cos(angle), 2.5 + 0.6 * std::sin(angle), red, 1) > 0,
                 qPrintable(QString::number(angle)));
    QCOMPARE(around(46.5, 2.5, red, 40), 0);
}

void TestPageLines::aLineThatTurnsBackIsDrawnToItsTip()
{
    // There and back on the same way, in small steps.
    window->run("var path = []; for (let i = -300; i <= 300; ++i)"
                "path.push(new google.maps.LatLng(46.5, 3 - Math.abs(i) * 0.002))");
    draw("path");
    QVERIFY(around(46.5, 3.0, red, 1) > 0);
    QVERIFY(around(46.5, 2.4, red, 1) > 0);
    QCOMPARE(around(46.5, 3.05, red, 4), 0);
}

void TestPageLines::aLineIsDrawnInEveryCopyOfTheWorld()
{
    // 512 pixels around the world in a view of 800.
    window->run("map.setZoom(2);map.setCenter(new google.maps.LatLng(0.00000,180.00000));map.setZoom(1)");
    const double around = 256.0 * std::pow(2.0, window->run("map.getZoom()").toDouble());
    draw(list({at(-20, 170), at(20, 170)}));
    const int x = qRound(400 - 10.0 / 360.0 * around);
    QVERIFY(pixels(QRect(x - 3, 290, 7, 20), red) > 0);
    if (around < 780) {
        const int copy = x - qRound(around);
        QVERIFY(copy < 0 || pixels(QRect(copy - 3, 290, 7, 20), red) > 0);
    }
}

void TestPageLines::aPointAddedToAShownLineShows()
{
    draw(list({at(46.5, 2.2), at(46.5, 2.4)}));
    QCOMPARE(around(46.5, 2.6, red), 0);
    window->run("line.getPath().push(" + at(46.5, 2.8) + ")");
    QVERIFY(around(46.5, 2.6, red) > 0);
    window->run("line.getPath().pop()");
    QCOMPARE(around(46.5, 2.6, red), 0);
    QVERIFY(around(46.5, 2.3, red) > 0);
    window->run("line.setPath([])");
    QCOMPARE(around(46.5, 2.3, red), 0);
}

void TestPageLines::aChangedPointMovesTheLine()
{
    draw(list({at(46.5, 2.2), at(46.5, 2.8)}));
    window->run("line.getPath().setAt(1, " + at(46.9, 2.2) + ")");
    QCOMPARE(around(46.5, 2.5, red), 0);
    QVERIFY(around(46.7, 2.2, red) > 0);
}

void TestPageLines::anOptionChangesAShownLine()
{
    draw(list({at(46.5, 2.2), at(46.5, 2.8)}));
    window->run("line.setOptions({ strokeColor: '#0000ff' })");
    QVERIFY(around(46.5, 2.5, "#0000ff") > 0);
    QCOMPARE(around(46.5, 2.5, red), 0);
    // Below everything else, and up again.
    window->run("line.setOptions({ zIndex: -1 })");
    QVERIFY(around(46.5, 2.5, "#0000ff") > 0);
    window->run("line.setOptions({ zIndex: 3 })");
    QVERIFY(around(46.5, 2.5, "#0000ff") > 0);
    window->run("line.setMap(null)");
    QCOMPARE(around(46.5, 2.5, "#0000ff"), 0);
}

void TestPageLines::aProcedureIsDashed()
{
    window->run("addPointToSS(new google.maps.LatLng(46.50000, 1.50000),\"\");"
                "addPointToSS(new google.maps.LatLng(46.50000, 3.50000),\"\")");
    // Some 360 pixels of line; the rows above and below take up its bend.
    const QImage image = picture();
    int coloured = 0;
    int changes = 0;
    bool before = false;
    for (int x = 250; x < 550; ++x) {
        bool now = false;
        for (int y = 294; y <= 306; ++y)
            now = now || image.pixelColor(x, y) == QColor(procedureColour);
        coloured += now ? 1 : 0;
        changes += now != before ? 1 : 0;
        before = now;
    }
    QVERIFY2(coloured > 120 && coloured < 260, qPrintable(QString::number(coloured)));
    QVERIFY2(changes > 20, qPrintable(QString::number(changes)));
}

void TestPageLines::symbolsPointTheWayOfTheLine()
{
    // An arrow in the middle: wide behind, a tip in front.
    const QString options = "strokeOpacity: 0, icons: [{ offset: '50%', icon: { path: 'M 0 -12 L 10 8 L -10 8 Z',"
                            "strokeWeight: 0, fillColor: '#ff0000', fillOpacity: 1 } }]";
    const QRect left(392, 285, 6, 30);
    const QRect right(403, 285, 6, 30);
    draw(list({at(46.5, 2.0), at(46.5, 3.0)}), options);
    QVERIFY(pixels(left, red) > 2 * pixels(right, red));
    window->run("line.setPath([" + at(46.5, 3.0) + "," + at(46.5, 2.0) + "])");
    QVERIFY(pixels(right, red) > 2 * pixels(left, red));
}

void TestPageLines::symbolsOfAHugeLineStandInTheView()
{
    // Around half the world at the closest zoom: the line is a hundred million pixels long.
    window->run("map.setZoom(18);map.setCenter(new google.maps.LatLng(0.00000,45.00000));");
    draw(list({at(0, 0), at(0, 90)}), "geodesic: true, strokeOpacity: 0, icons: [{ offset: '0px', repeat: '100px',"
                                      "icon: { path: 'M 0 -5 L 0 5', strokeColor: '#ff0000', strokeWeight: 4 } }]");
    const int found = pixels(QRect(0, 290, 800, 20), red);
    // Eight dashes of ten pixels by four.
    QVERIFY2(found > 150 && found < 350, qPrintable(QString::number(found)));
    QCOMPARE(window->page->messages, QStringList());
}

void TestPageLines::noLineReadsBeforeTheBeginningOfAnArray()
{
    // Once such a read has been made often enough, the engine throws there now and then.
    window->run("var early = 0;"
                "Object.defineProperty(Array.prototype, '-1', { get: () => { ++early; }, configurable: true });"
                "drawRwy(new google.maps.LatLng(46.50000, 2.48000),new google.maps.LatLng(46.50000, 2.52000));"
                "clearFP();addPointToFp(new google.maps.LatLng(46.60000, 2.20000),\"LFXX\");"
                "addPointToFp(new google.maps.LatLng(46.60000, 2.80000),\"LFYY\");pushFP();");
    window->settle();
    QVERIFY(window->run("map.lines.lines.size").toInt() > 0);
    QCOMPARE(window->run("delete Array.prototype['-1']; early"), QVariant(0.0));
}

void TestPageLines::runwaysAreToScaleFromNear()
{
    // 1.64 m a pixel at this latitude and zoom.
    window->run("map.setZoom(16);map.setCenter(new google.maps.LatLng(46.50000, 2.50000));");
    window->run("drawRwy(new google.maps.LatLng(46.50000, 2.48000),new google.maps.LatLng(46.50000, 2.52000));");
    const QImage image = picture();
    int width = 0;
    for (int y = 200; y < 400; ++y)
        width += image.pixelColor(406, y) == QColor(runwayColour) || image.pixelColor(414, y) == QColor(runwayColour);
    QVERIFY2(width >= 27 && width <= 34, qPrintable(QString::number(width)));
    // A broken line in its middle.
    int light = 0;
    for (int x = 300; x < 500; ++x)
        light += image.pixelColor(x, 300).lightness() > 180 || image.pixelColor(x, 299).lightness() > 180;
    QVERIFY2(light > 60 && light < 140, qPrintable(QString::number(light)));
}

void TestPageLines::aRunwayIsSeenFromAfar()
{
    window->run("drawRwy(new google.maps.LatLng(46.50000, 2.48000),new google.maps.LatLng(46.50000, 2.52000));");
    QVERIFY(around(46.5, 2.5, runwayColour, 10) > 15);
    window->run("map.setZoom(4)");
    QVERIFY(around(46.5, 2.5, runwayColour, 6) > 3);
    window->run("clearRunway();");
    QCOMPARE(around(46.5, 2.5, runwayColour, 10), 0);
}

void TestPageLines::anAreaIsFilled()
{
    window->run("var area = new google.maps.Polygon({ map: map, strokeWeight: 0, fillColor: '#ff0000', fillOpacity: 1,"
                "paths: [" +
                at(46.3, 2.3) + "," + at(46.7, 2.3) + "," + at(46.7, 2.7) + "," + at(46.3, 2.7) + "] })");
    QCOMPARE(around(46.5, 2.5, red, 10), 21 * 21);
    QCOMPARE(around(46.5, 2.8, red, 5), 0);
    // Of an area larger than the view there is nothing but the inside.
    window->run("map.setZoom(14)");
    QCOMPARE(pixels(QRect(100, 100, 600, 400), red), 600 * 400);
    window->run("area.setMap(null)");
    QCOMPARE(pixels(QRect(100, 100, 600, 400), red), 0);
}

void TestPageLines::runwaysTakeTheColoursOfTheNight()
{
    window->run("drawRwy(new google.maps.LatLng(46.50000, 2.40000),new google.maps.LatLng(46.50000, 2.60000));");
    QVERIFY(around(46.5, 2.5, runwayColour, 10) > 15);
    window->run("page.setPalette('night')");
    QCOMPARE(around(46.5, 2.5, runwayColour, 10), 0);
    QVERIFY(around(46.5, 2.5, nightRunway, 10) > 15);
    window->run("clearRunway();");
    window->run("page.setPalette('day')");
    QCOMPARE(around(46.5, 2.5, runwayColour, 10), 0);
}

void TestPageLines::airwaysTakeTheColoursOfTheNight()
{
    window->run("addATS('L');addToATS(new google.maps.LatLng(46.40000, 2.20000)),'ATS';"
                "addToATS(new google.maps.LatLng(46.40000, 2.80000)),'ATS';showATS('L',1)");
    QVERIFY(around(46.4, 2.5, "#6d8c3c") > 0);
    window->run("page.setPalette('night')");
    QCOMPARE(around(46.4, 2.5, "#6d8c3c"), 0);
    QVERIFY(around(46.4, 2.5, "#7f9a52") > 0);
}

void TestPageLines::aLineForgetsTheListItHadBefore()
{
    window->run(
        "var former = new google.maps.MVCArray([new google.maps.LatLng(46.5, 2), new google.maps.LatLng(46.5, 3)]);"
        "var line = new google.maps.Polyline({ path: former, map: map, strokeColor: '#ff00ff' });");
    QVERIFY(around(46.5, 2.5, "#ff00ff") > 0);
    window->run(
        "var next = new google.maps.MVCArray([new google.maps.LatLng(46.2, 2), new google.maps.LatLng(46.2, 3)]);"
        "line.setPath(next);");
    QCOMPARE(around(46.5, 2.5, "#ff00ff"), 0);
    QVERIFY(around(46.2, 2.5, "#ff00ff") > 0);
    // What happens to the former list is no more the line's.
    for (const char* event : {"insert_at", "remove_at", "set_at"}) {
        QVERIFY(!window->run(QString("google.maps.event.hasListeners(former, '%1')").arg(event)).toBool());
        QVERIFY(window->run(QString("google.maps.event.hasListeners(next, '%1')").arg(event)).toBool());
    }
}

QTEST_MAIN(TestPageLines)
#include "tst_pagelines.moc"
