// The simulator's aircraft on the map: it comes, moves, turns and goes.
#include "pagetest.h"

#include <QtTest>

class TestPageAircraft : public PageTest
{
    Q_OBJECT

private slots:
    void theAircraftComesMovesAndGoes();
    void theAircraftTurns();
    void theAircraftTurnsOnOneCanvas();
    void anAircraftThatDoesNotTurnIsNotDrawnAgain();
    void anAircraftWithoutAPlaceStaysWhereItWas();
    void anAircraftWithoutAHeadingGoesOnWithItsLast_data();
    void anAircraftWithoutAHeadingGoesOnWithItsLast();
    void anAircraftThatComesWithoutAHeadingLooksNorth();
    void theAircraftOfTheOtherSideShows();
    void theAircraftUnderThePointerIsNamed();
    void theStartUnderThePointerIsNamed();
    void aClickOnWhatStandsOnAPointIsThePoints_data();
    void aClickOnWhatStandsOnAPointIsThePoints();
    void aClickOnWhatStandsAloneIsTheMaps();
    void theMeasureEndsAtThePointBelowTheStart();
    void thousandsOfTicksLeaveOneAircraft();

private:
    int around(double latitude, double longitude, const char* colour, int reach = 12)
    {
        return window->pixelsAround(latitude, longitude, reach, QColor(colour));
    }
};

namespace {

const char aircraftColour[] = "#d32f2f";

} // namespace

void TestPageAircraft::theAircraftComesMovesAndGoes()
{
    window->run("eraseAcftMrkr();");
    window->run("addAcftMrkr(new google.maps.LatLng(46.70000, 2.30000),\"\",63);");
    QVERIFY(around(46.7, 2.3, aircraftColour) > 20);
    window->run("setAcftMrkr(new google.maps.LatLng(46.40000, 2.60000),63.25);");
    QCOMPARE(around(46.7, 2.3, aircraftColour), 0);
    QVERIFY(around(46.4, 2.6, aircraftColour) > 20);
    window->run("eraseAcftMrkr();");
    window->run("eraseAcftMrkr();");
    QCOMPARE(around(46.4, 2.6, aircraftColour), 0);
    QCOMPARE(window->page->messages, QStringList());
}

void TestPageAircraft::theAircraftTurns()
{
    window->run("addAcftMrkr(new google.maps.LatLng(46.70000, 2.30000),\"\",0);");
    const QImage north = pictureAround(46.7, 2.3, 18);
    window->run("setAcftMrkr(new google.maps.LatLng(46.70000, 2.30000),135);");
    QVERIFY(pictureAround(46.7, 2.3, 18) != north);
    window->run("setAcftMrkr(new google.maps.LatLng(46.70000, 2.30000),0);");
    QCOMPARE(pictureAround(46.7, 2.3, 18), north);
}

void TestPageAircraft::theAircraftTurnsOnOneCanvas()
{
    window->run("addAcftMrkr(new google.maps.LatLng(46.70000, 2.30000),\"\",225);");
    const QImage fresh = pictureAround(46.7, 2.3, 18);
    window->run("setAcftMrkr(new google.maps.LatLng(46.70000, 2.30000),0);");
    window->settle();
    window->run("var canvas = document.querySelector('.chart-marker canvas'), made = 0, make = document.createElement;"
                "document.createElement = function (name) { ++made; return make.call(document, name); };");
    for (int heading = 1; heading <= 225; ++heading)
        window->run(QString("setAcftMrkr(new google.maps.LatLng(46.70000, 2.30000),%1);").arg(heading));
    // Nothing of the headings before is left in the picture.
    QCOMPARE(pictureAround(46.7, 2.3, 18), fresh);
    // 225 turns made none; the base map may have made some tiles meanwhile.
    const int made = window->run("made").toInt();
    QVERIFY2(made < 100, qPrintable(QString::number(made)));
    QVERIFY(window->run("document.querySelector('.chart-marker canvas') === canvas").toBool());
    QCOMPARE(window->run("document.querySelectorAll('.chart-marker *').length").toInt(), 1);
}

void TestPageAircraft::anAircraftThatDoesNotTurnIsNotDrawnAgain()
{
    window->run("addAcftMrkr(new google.maps.LatLng(46.70000, 2.30000),\"\",63.25);");
    window->settle();
    window->run("var drawn = 0, draw = mapEngine.drawSymbol;"
                "mapEngine.drawSymbol = function (symbol, canvas) { ++drawn; return draw(symbol, canvas); };");
    for (int i = 0; i < 100; ++i)
        window->run(
            QString("setAcftMrkr(new google.maps.LatLng(46.70000, %1),63.25);").arg(2.3 + i * 0.002, 3, 'f', 5));
    window->settle();
    QCOMPARE(window->run("drawn").toInt(), 0);
    // Many turns before the next frame are one drawing.
    window->run("for (var i = 0; i < 100; ++i) setAcftMrkr(new google.maps.LatLng(46.70000, 2.30000),i);");
    window->settle();
    QCOMPARE(window->run("drawn").toInt(), 1);
}

void TestPageAircraft::anAircraftWithoutAPlaceStaysWhereItWas()
{
    window->run("addAcftMrkr(new google.maps.LatLng(nan,nan),\"\",0);");
    QCOMPARE(around(46.7, 2.3, aircraftColour), 0);
    window->run("setAcftMrkr(new google.maps.LatLng(46.70000, 2.30000),0);");
    QVERIFY(around(46.7, 2.3, aircraftColour) > 20);
    window->run("setAcftMrkr(new google.maps.LatLng(inf,-inf),nan);");
    QVERIFY(around(46.7, 2.3, aircraftColour) > 20);
    QCOMPARE(window->page->messages, QStringList());
}

void TestPageAircraft::anAircraftWithoutAHeadingGoesOnWithItsLast_data()
{
    QTest::addColumn<QString>("heading");
    for (const char* heading : {"nan", "inf", "-inf"})
        QTest::newRow(heading) << heading;
}

void TestPageAircraft::anAircraftWithoutAHeadingGoesOnWithItsLast()
{
    QFETCH(const QString, heading);
    window->run("addAcftMrkr(new google.maps.LatLng(46.70000, 2.30000),\"\",0);");
    window->run("setAcftMrkr(new google.maps.LatLng(46.70000, 2.30000),135);");
    const QString place = "new google.maps.LatLng(46.20000, 2.80000)";
    window->run(QString("setAcftMrkr(%1,%2);;map.setCenter(%1);").arg(place, heading));
    QCOMPARE(around(46.7, 2.3, aircraftColour), 0);
    QVERIFY(around(46.2, 2.8, aircraftColour) > 20);
    const QImage picture = pictureAround(46.2, 2.8, 18);
    window->run(QString("setAcftMrkr(%1,135);").arg(place));
    QCOMPARE(pictureAround(46.2, 2.8, 18), picture);
    window->run(QString("setAcftMrkr(%1,0);").arg(place));
    QVERIFY(pictureAround(46.2, 2.8, 18) != picture);
    QCOMPARE(window->page->messages, QStringList());
}

void TestPageAircraft::anAircraftThatComesWithoutAHeadingLooksNorth()
{
    window->run("addAcftMrkr(new google.maps.LatLng(46.70000, 2.30000),\"\",nan);");
    const QImage picture = pictureAround(46.7, 2.3, 18);
    QVERIFY(around(46.7, 2.3, aircraftColour) > 20);
    window->run("setAcftMrkr(new google.maps.LatLng(46.70000, 2.30000),0);");
    QCOMPARE(pictureAround(46.7, 2.3, 18), picture);
    window->run("setAcftMrkr(new google.maps.LatLng(46.70000, 2.30000),90);");
    QVERIFY(pictureAround(46.7, 2.3, 18) != picture);
}

void TestPageAircraft::theAircraftOfTheOtherSideShows()
{
    // The longitude of the trace is not wrapped by the program.
    window->run("addAcftMrkr(new google.maps.LatLng(46.70000,362.30000),\"\",0);");
    QVERIFY(around(46.7, 2.3, aircraftColour) > 20);
    window->run("map.setCenter(new google.maps.LatLng(46.70000,179.90000));");
    window->run("setAcftMrkr(new google.maps.LatLng(46.70000,181.00000),0);");
    window->settle();
    const QImage image = window->view->grab().toImage();
    // 1.1 degrees east of the middle at 256 times 256 pixels around the world.
    int red = 0;
    for (int x = 588; x < 614; ++x)
        for (int y = 286; y < 314; ++y)
            red += image.pixelColor(x, y) == QColor(aircraftColour) ? 1 : 0;
    QVERIFY(red > 20);
}

void TestPageAircraft::thousandsOfTicksLeaveOneAircraft()
{
    window->run("addAcftMrkr(new google.maps.LatLng(46.00000, 2.00000),\"\",0);");
    for (int i = 1; i <= 3000; ++i) {
        const QString place = QString("new google.maps.LatLng(%1, 2.30000)").arg(46 + i * 0.0002, 3, 'f', 5);
        window->run(QString("setAcftMrkr(%1,%2);;map.setCenter(%1);").arg(place).arg(i % 360));
    }
    QCOMPARE(window->run("document.querySelectorAll('.chart-marker').length").toInt(), 1);
    QCOMPARE(window->run("map.getCenter().lat()").toDouble(), 46.6);
    QVERIFY(around(46.6, 2.3, aircraftColour) > 20);
    QCOMPARE(program->calls("doCenter").size(), 3001);
}

void TestPageAircraft::theAircraftUnderThePointerIsNamed()
{
    window->run("addAPTMarker(new google.maps.LatLng(46.70000, 2.30000),\"LFLX\",1,\"<b>Airport LFLX</b>\");pushAPT();"
                "addAcftMrkr(new google.maps.LatLng(46.40000, 2.60000),\"\",90);");
    window->settle();
    const auto last = [this] { return program->calls("doData").value(program->calls("doData").size() - 1); };
    window->mouse->moveTo({20, 20});
    window->mouse->moveTo(window->mouse->pointOf(46.7, 2.3));
    QTRY_VERIFY_WITH_TIMEOUT(last().endsWith(" E  Aéroport LFLX\""), 20000);
    // It flies to the pointer and away from it; the mouse stands still.
    window->run("setAcftMrkr(new google.maps.LatLng(46.70500, 2.30500),90);");
    QTRY_VERIFY_WITH_TIMEOUT(last().endsWith(" E  Avion, Aéroport LFLX\""), 20000);
    program->clear();
    window->run("setAcftMrkr(new google.maps.LatLng(46.70500, 2.30510),90);");
    window->settle();
    QCOMPARE(program->calls("doData"), QStringList());
    window->run("setAcftMrkr(new google.maps.LatLng(46.90000, 2.30500),90);");
    QTRY_VERIFY_WITH_TIMEOUT(last().endsWith(" E  Aéroport LFLX\""), 20000);
    // Without the markers under it, too.
    window->mouse->moveTo(window->mouse->pointOf(46.9, 2.305));
    QTRY_VERIFY_WITH_TIMEOUT(last().endsWith(" E  Avion\""), 20000);
    window->run("eraseAcftMrkr();");
    QTRY_VERIFY_WITH_TIMEOUT(last().endsWith(" E\""), 20000);
}

void TestPageAircraft::theStartUnderThePointerIsNamed()
{
    window->run("addSitMarker(new google.maps.LatLng( 46.70000000,  2.30000000),\"Cessna 172\", 90);");
    window->settle();
    window->mouse->moveTo({20, 20});
    window->mouse->moveTo(window->mouse->pointOf(46.7, 2.3) + QPoint(4, 3));
    const auto last = [this] { return program->calls("doData").value(program->calls("doData").size() - 1); };
    QTRY_VERIFY_WITH_TIMEOUT(last().endsWith(" E  Départ Cessna 172\""), 20000);
}

void TestPageAircraft::aClickOnWhatStandsOnAPointIsThePoints_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QPoint>("beside");
    const QString start = "addSitMarker(new google.maps.LatLng(%1,  2.30000000),\"Cessna 172\", 90);";
    const QString aircraft = "addAcftMrkr(new google.maps.LatLng(%1, 2.30000),\"\",0);";
    QTest::newRow("start, its middle") << start.arg("46.70000000") << QPoint(0, 0);
    // Too far from the airport for a click on that alone.
    QTest::newRow("start, its nose") << start.arg("46.70000000") << QPoint(11, 0);
    QTest::newRow("aircraft, its middle") << aircraft.arg("46.70000") << QPoint(0, 0);
    QTest::newRow("aircraft, its wing") << aircraft.arg("46.70000") << QPoint(11, 3);
    // Its tail lies on the airport, it flies farther north.
    QTest::newRow("aircraft, its tail") << aircraft.arg("46.73500") << QPoint(0, 0);
}

void TestPageAircraft::aClickOnWhatStandsOnAPointIsThePoints()
{
    QFETCH(QString, script);
    QFETCH(QPoint, beside);
    window->run(
        "addAPTMarker(new google.maps.LatLng(46.70000, 2.30000),\"LFLX\",1,\"<b>Airport LFLX</b>\");pushAPT();" +
        script);
    window->settle();
    const QPoint place = window->mouse->pointOf(46.7, 2.3) + beside;
    QVERIFY(
        window
            ->run(QString("!!document.elementFromPoint(%1, %2).closest('.chart-marker')").arg(place.x()).arg(place.y()))
            .toBool());
    window->mouse->click(place);
    QCOMPARE(window->popupText(), "Airport LFLX");
    window->mouse->contextMenu(place);
    QVERIFY(window->chooseEntry("Aéroport LFLX"));
    QVERIFY(window->chooseEntry("Ajouter au plan de vol"));
    QCOMPARE(program->calls("sAddAptToFp"), QStringList{"sAddAptToFp \"LFLX\""});
}

void TestPageAircraft::aClickOnWhatStandsAloneIsTheMaps()
{
    window->run("addAPTMarker(new google.maps.LatLng(46.20000, 2.90000),\"LFLX\",1,\"<b>Airport LFLX</b>\");pushAPT();"
                "addSitMarker(new google.maps.LatLng( 46.70000000,  2.30000000),\"\", 90);");
    window->settle();
    window->click(46.2, 2.9);
    QCOMPARE(window->popupText(), "Airport LFLX");
    window->mouse->click(window->mouse->pointOf(46.7, 2.3) + QPoint(9, 1));
    QCOMPARE(window->popupText(), "");
    window->mouse->contextMenu(window->mouse->pointOf(46.7, 2.3) + QPoint(9, 1));
    // The place is that of the start and not the mouse's.
    QVERIFY(window->chooseEntry("Carte ici"));
    QVERIFY(window->chooseEntry("Ajouter un point utilisateur ici"));
    QCOMPARE(program->calls("sAddNewWptToFp"), QStringList{"sAddNewWptToFp \"WPT\" 46.70000 2.30000"});
}

void TestPageAircraft::theMeasureEndsAtThePointBelowTheStart()
{
    window->run("addAPTMarker(new google.maps.LatLng(46.70000, 2.30000),\"LFLX\",1,\"<b>Airport LFLX</b>\");pushAPT();"
                "addSitMarker(new google.maps.LatLng( 46.70000000,  2.30000000),\"\", 90);"
                "page.startMeasure(new google.maps.LatLng(46.40000, 2.30000), '');");
    window->settle();
    window->mouse->click(window->mouse->pointOf(46.7, 2.3) + QPoint(3, 3));
    const QString names = window->run("document.querySelector('#measure .measure-name').textContent").toString();
    QVERIFY2(names.contains("LFLX"), qPrintable(names));
}

QTEST_MAIN(TestPageAircraft)
#include "tst_pageaircraft.moc"
