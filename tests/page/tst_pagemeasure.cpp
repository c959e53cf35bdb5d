// The measure: its legs, their numbers, the line to the pointer, and its end.
#include "pagetest.h"
#include "samplechart.h"

#include <QtTest>

using namespace samplechart;

class TestPageMeasure : public SampleChartTest
{
    Q_OBJECT

private slots:
    void aLegTellsItsLengthAndBothCourses();
    void theTextOfALegToTheEastStandsBesideIt();
    void theLineFollowsThePointer();
    void theLineEndsAtTheMarkerUnderThePointer();
    void theLineLeavesADeletedMarker();
    void theLineLeavesAMarkerThatTheViewTakesAway();
    void severalLegsHaveASum();
    void aDoubleClickEndsItAndDoesNotZoom();
    void aDoubleClickZoomsAgainAfterwards();
    void aDoubleClickOnAMarkerEndsItThere();
    void escapeEndsItAndThenClearsIt();
    void aMeasureWithoutALegLeavesNothing();
    void anotherStartClearsTheFormer();
    void aDragIsNoCorner();
    void aClickOnAMarkerOpensNoPopUp();
    void noMarkerIsChosenWhileMeasuring();
    void theShortWayGoesOverTheDateLine();
    void aClickThatClosesTheMenuIsNoCorner();
    void theMenuEndsAndClearsIt();
    void theCrossClearsIt();
    void theProgramIsNotToldOfIt();
    void theMeasureFollowsThePalette();

private:
    void measureFrom(const Place& place, const QString& object = {})
    {
        menuAt(*window, place);
        if (!object.isEmpty())
            QVERIFY(window->chooseEntry(object));
        QVERIFY(window->chooseEntry("Mesurer depuis ici"));
        QVERIFY(isMeasuring());
    }
    void start(double latitude, double longitude)
    {
        window->run(QString("page.startMeasure(new google.maps.LatLng(%1,%2), '')").arg(latitude).arg(longitude));
    }
    void corner(double latitude, double longitude)
    {
        window->run(QString("page.measureTo(new google.maps.LatLng(%1,%2), '')").arg(latitude).arg(longitude));
    }
    bool isMeasuring()
    {
        return window->run("page.isMeasuring()").toBool();
    }
    bool hasMeasure()
    {
        return window->run("page.hasMeasure()").toBool();
    }
    /// The table, a row a text with the cells between bars.
    QStringList rows()
    {
        return window
            ->run("Array.from(document.querySelectorAll('#measure:not([hidden]) tr')).map(row => "
                  "Array.from(row.cells).map(cell => cell.textContent).join('|'))")
            .toStringList();
    }
    QStringList readout()
    {
        return texts(*window, "#measure-readout:not([hidden]) div");
    }
};

void TestPageMeasure::aLegTellsItsLengthAndBothCourses()
{
    start(48, 2);
    corner(49, 3);
    QCOMPARE(rows(), QStringList{"1|72.0 NM|133.3 km|033° / 214°"});
    start(48, 2);
    corner(48.05, 2);
    QCOMPARE(rows(), QStringList{"1|3.00 NM|5.56 km|360° / 180°"});
}

void TestPageMeasure::theTextOfALegToTheEastStandsBesideIt()
{
    start(46.55, 1.6);
    corner(46.55, 2.2);
    window->settle();
    const QString side = "map.points.declutter.kept.get(Array.from(map.points.declutter.kept.keys())"
                         ".find(point => / NM /.test(point.look.label.text)))";
    // Sides 0 and 1 are right and left of the leg's middle.
    QVERIFY2(window->run(side).toInt() > 1, qPrintable(window->run(side).toString()));
}

void TestPageMeasure::theLineFollowsThePointer()
{
    measureFrom(nothing);
    QCOMPARE(readout(), QStringList());
    window->mouse->moveTo({200, 500});
    QTRY_COMPARE_WITH_TIMEOUT(readout().size(), 2, 20000);
    const QString first = readout().value(0);
    QVERIFY(first.contains(QRegularExpression("^\\d+\\.\\d+ NM  ·  \\d+\\.\\d+ km$")));
    QVERIFY(readout().value(1).contains(QRegularExpression("^\\d{3}° / \\d{3}°$")));
    const QColor violet("#5e35b1");
    const auto middle = [this] {
        return window->run("var m = page.midPoint(new google.maps.LatLng(46.6, 1.7), measuredEnd); [m.lat(), m.lng()]")
            .toList();
    };
    window->run("var measuredEnd; google.maps.event.addListener(map, 'mousemove', e => { measuredEnd = e.latLng; })");
    window->mouse->moveTo({150, 400});
    QTRY_VERIFY_WITH_TIMEOUT(readout().value(0) != first, 20000);
    const QVariantList way = middle();
    QVERIFY(window->pixelsAround(way.value(0).toDouble(), way.value(1).toDouble(), 4, violet) > 0);
    // Off the map: onto the box with the legs.
    window->mouse->moveTo(box(*window, "#measure").center().toPoint());
    QTRY_COMPARE_WITH_TIMEOUT(readout(), QStringList(), 20000);
    QCOMPARE(window->pixelsAround(way.value(0).toDouble(), way.value(1).toDouble(), 4, violet), 0);
}

void TestPageMeasure::theLineEndsAtTheMarkerUnderThePointer()
{
    start(46.9, 2.6);
    // Some pixels off the NDB, which lies half a degree to the south.
    window->mouse->moveTo(pixel(*window, ndb) + QPoint(3, 3));
    QTRY_COMPARE_WITH_TIMEOUT(readout(), (QStringList{"30.0 NM  ·  55.6 km", "180° / 360°"}), 20000);
}

void TestPageMeasure::theLineLeavesADeletedMarker()
{
    const QStringList snapped{"30.0 NM  ·  55.6 km", "180° / 360°"};
    start(46.9, 2.6);
    window->mouse->moveTo(pixel(*window, ndb) + QPoint(3, 3));
    QTRY_COMPARE_WITH_TIMEOUT(readout(), snapped, 20000);
    window->run("theLast = listNDBTerm[0]; delNavaid();");
    QTRY_VERIFY_WITH_TIMEOUT(readout() != snapped, 20000);
    window->mouse->moveTo(pixel(*window, ndb) + QPoint(4, -5));
    window->settle();
    QCOMPARE(readout().size(), 2);
    QVERIFY(readout().value(0) != snapped.value(0));
}

void TestPageMeasure::theLineLeavesAMarkerThatTheViewTakesAway()
{
    start(46.9, 2.6);
    window->mouse->moveTo(pixel(*window, ndb));
    const QStringList snapped{"30.0 NM  ·  55.6 km", "180° / 360°"};
    QTRY_COMPARE_WITH_TIMEOUT(readout(), snapped, 20000);
    // The mouse stands still, the map goes 160 pixels to the west, 36 NM: the place below the mouse is 47 NM away.
    window->pressKey(Qt::Key_Right);
    window->pressKey(Qt::Key_Right);
    QTRY_VERIFY_WITH_TIMEOUT(readout().value(1).startsWith("1") && readout() != snapped, 20000);
    QTRY_VERIFY_WITH_TIMEOUT(qAbs(readout().value(0).section(' ', 0, 0).toDouble() - 47.2) < 1, 20000);
}

void TestPageMeasure::severalLegsHaveASum()
{
    measureFrom(vorAndWaypoint, "VOR-DME CGO");
    window->mouse->click(pixel(*window, ndb));
    QCOMPARE(rows(), QStringList{"1  VOR-DME CGO – NDB terminal MT|18.0 NM|33.3 km|180° / 360°"});
    window->run("page.measureTo(new google.maps.LatLng(46.9, 2.6), '')");
    QCOMPARE(rows(), (QStringList{"1  VOR-DME CGO – NDB terminal MT|18.0 NM|33.3 km|180° / 360°",
                                  "2  NDB terminal MT – …|30.0 NM|55.6 km|360° / 180°", "Total|48.0 NM|88.9 km|"}));
    window->mouse->moveTo(pixel(*window, vorAndWaypoint));
    QTRY_COMPARE_WITH_TIMEOUT(readout().value(2), QString("Total  60.0 NM"), 20000);
}

void TestPageMeasure::aDoubleClickEndsItAndDoesNotZoom()
{
    measureFrom(nothing);
    window->mouse->click({200, 500});
    window->mouse->doubleClick({300, 520});
    QTRY_VERIFY_WITH_TIMEOUT(!isMeasuring(), 20000);
    QVERIFY(hasMeasure());
    // Two legs: the double click is one corner.
    QCOMPARE(rows().size(), 3);
    QCOMPARE(readout(), QStringList());
    window->settle();
    QCOMPARE(window->run("map.getZoom()").toDouble(), 8.0);
    // And no more corners.
    window->mouse->click({500, 500});
    QCOMPARE(rows().size(), 3);
}

void TestPageMeasure::aDoubleClickZoomsAgainAfterwards()
{
    measureFrom(nothing);
    window->mouse->doubleClick({300, 520});
    QVERIFY(!isMeasuring());
    window->settle();
    QTRY_COMPARE_WITH_TIMEOUT(window->run("map.get ? map.options.disableDoubleClickZoom : false").toBool(), false,
                              20000);
    window->mouse->doubleClick({300, 520});
    QTRY_COMPARE_WITH_TIMEOUT(window->run("map.getZoom()").toDouble(), 9.0, 20000);
}

void TestPageMeasure::aDoubleClickOnAMarkerEndsItThere()
{
    measureFrom(airport);
    window->mouse->doubleClick(pixel(*window, ndb));
    QVERIFY(!isMeasuring());
    QCOMPARE(rows().size(), 1);
    QVERIFY(rows().value(0).startsWith("1  Aéroport LFLX – NDB terminal MT|"));
    QCOMPARE(window->popupText(), "");
}

void TestPageMeasure::escapeEndsItAndThenClearsIt()
{
    measureFrom(nothing);
    window->mouse->click({200, 500});
    window->pressKey(Qt::Key_Escape);
    QVERIFY(!isMeasuring());
    QCOMPARE(rows().size(), 1);
    window->pressKey(Qt::Key_Escape);
    QVERIFY(!hasMeasure());
    QCOMPARE(rows(), QStringList());
}

void TestPageMeasure::aMeasureWithoutALegLeavesNothing()
{
    measureFrom(nothing);
    window->pressKey(Qt::Key_Escape);
    QVERIFY(!isMeasuring());
    QVERIFY(!hasMeasure());
    QVERIFY(window->run("document.getElementById('measure').hidden").toBool());
}

void TestPageMeasure::anotherStartClearsTheFormer()
{
    start(48, 2);
    corner(49, 3);
    const QColor violet("#5e35b1");
    window->run("map.setCenter(new google.maps.LatLng(48.50000, 2.50000));");
    QVERIFY(window->pixelsAround(48.25, 2.25, 12, violet) > 0);
    start(48, 4);
    QCOMPARE(rows(), QStringList());
    QVERIFY(isMeasuring());
    QCOMPARE(window->pixelsAround(48.25, 2.25, 12, violet), 0);
}

void TestPageMeasure::aDragIsNoCorner()
{
    measureFrom(nothing);
    window->mouse->drag({400, 500}, {300, 450});
    QCOMPARE(rows(), QStringList());
    QVERIFY(isMeasuring());
    window->mouse->click({400, 500});
    QCOMPARE(rows().size(), 1);
}

void TestPageMeasure::aClickOnAMarkerOpensNoPopUp()
{
    measureFrom(nothing);
    window->click(airport.latitude, airport.longitude);
    QCOMPARE(window->popupText(), "");
    QCOMPARE(rows().size(), 1);
    window->pressKey(Qt::Key_Escape);
    window->click(airport.latitude, airport.longitude);
    QVERIFY(window->popupText().startsWith("Airport LFLX"));
}

void TestPageMeasure::theShortWayGoesOverTheDateLine()
{
    window->run("map.setZoom(10);map.setCenter(new google.maps.LatLng(  0.00000,179.95000));");
    start(0, 179.9);
    window->mouse->click(window->mouse->pointOf(0, 180.1));
    const QString row = rows().value(0);
    QVERIFY2(row.contains(QRegularExpression("^1\\|1(1\\.9|2\\.0|2\\.1) NM\\|22\\.\\d km\\|090° / 270°$")),
             qPrintable(row));
    window->pressKey(Qt::Key_Escape);
    const QColor violet("#5e35b1");
    QVERIFY(window->pixelsAround(0, 179.97, 5, violet) > 0);
    // Between the words of the leg's text.
    QVERIFY(window->pixelsAround(0, 180.07, 8, violet) > 0);
    QCOMPARE(window->pixelsAround(0, 179.8, 5, violet), 0);
    QCOMPARE(window->pixelsAround(0, 180.2, 5, violet), 0);
}

void TestPageMeasure::aClickThatClosesTheMenuIsNoCorner()
{
    const auto rows = [this] { return texts(*window, "#measure tr").size(); };
    measureFrom(nothing);
    window->mouse->click({200, 500});
    QCOMPARE(rows(), 1);
    // On the map, then on a marker, which the menu leaves free.
    for (const QPoint& beside : {QPoint(100, 300), pixel(*window, ndb)}) {
        window->mouse->contextMenu({500, 40});
        QVERIFY(!window->menuEntries().isEmpty());
        window->mouse->click(beside);
        QCOMPARE(window->menuEntries(), QStringList());
        QCOMPARE(rows(), 1);
    }
    QVERIFY(isMeasuring());
    window->mouse->click({100, 300});
    QCOMPARE(rows(), 3); // with the sum
}

void TestPageMeasure::theMenuEndsAndClearsIt()
{
    const QString none = "Aucune mesure affichée";
    const QString ended = "Aucune mesure en cours";
    const auto reasons = [this] { return texts(*window, ".menu-reason").filter("mesure"); };
    menuAt(*window, nothing);
    QCOMPARE(reasons(), (QStringList{ended, none}));
    window->closeMenu();
    measureFrom(nothing);
    window->mouse->click({200, 500});
    menuAt(*window, nothing);
    QCOMPARE(reasons(), QStringList());
    QVERIFY(window->chooseEntry("Terminer la mesure"));
    QVERIFY(!isMeasuring());
    QVERIFY(hasMeasure());
    menuAt(*window, nothing);
    QCOMPARE(reasons(), QStringList{ended});
    QVERIFY(window->chooseEntry("Effacer la mesure"));
    QVERIFY(!hasMeasure());
    menuAt(*window, nothing);
    QCOMPARE(reasons(), (QStringList{ended, none}));
}

void TestPageMeasure::theCrossClearsIt()
{
    start(48, 2);
    corner(49, 3);
    window->mouse->click(box(*window, ".measure-close").center().toPoint());
    QVERIFY(!hasMeasure());
    QVERIFY(!isMeasuring());
}

void TestPageMeasure::theProgramIsNotToldOfIt()
{
    measureFrom(airport);
    window->mouse->click(pixel(*window, ndb));
    window->mouse->doubleClick({300, 520});
    window->pressKey(Qt::Key_Escape);
    QCOMPARE(program->calls().filter(QRegularExpression("^(?!doData)")), QStringList());
    QCOMPARE(window->page->messages, QStringList());
}

void TestPageMeasure::theMeasureFollowsThePalette()
{
    window->run("map.setCenter(new google.maps.LatLng(48.50000, 2.50000));");
    start(48, 2);
    corner(49, 3);
    QVERIFY(window->pixelsAround(48.25, 2.25, 12, QColor("#5e35b1")) > 0);
    window->run("page.setPalette('night')");
    QVERIFY(window->pixelsAround(48.25, 2.25, 12, QColor("#a98be0")) > 0);
    QCOMPARE(window->pixelsAround(48.25, 2.25, 12, QColor("#5e35b1")), 0);
}

void TestPageMeasure::noMarkerIsChosenWhileMeasuring()
{
    window->run("map.setZoom(5)");
    const auto isChosen = [this](const QString& marker) {
        return window
            ->run("var drawn = ArptMgr.layer, one = null; drawn.forEach(f => { if (f.getProperty('marker') === " +
                  marker + ") one = f; }); drawn.style(one).zIndex === 58")
            .toBool();
    };
    QVERIFY(!isChosen("listApt[0]"));
    window->click(airport.latitude, airport.longitude);
    QVERIFY(isChosen("listApt[0]"));
    measureFrom(airport, "");
    QVERIFY(window->run("page.isMeasuring()").toBool());
    QVERIFY(!isChosen("listApt[0]"));
    // A corner at a marker does not choose it either.
    window->mouse->click({200, 500});
    window->click(airport.latitude, airport.longitude);
    QVERIFY(!isChosen("listApt[0]"));
}

QTEST_MAIN(TestPageMeasure)
#include "tst_pagemeasure.moc"
