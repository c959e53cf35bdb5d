// The labels: who gets the room, where they stand, and that they stay there while the map is moved.
#include "labeltest.h"

#include <QtTest>

class TestPageLabels : public LabelTest
{
    Q_OBJECT

private slots:
    void onSymbolsALabelTakesTheLowest();
    void aLabelStandsRightOfItsSymbol();
    void twoMarkersOfOnePlaceHaveLabelsOnBothSides();
    void theLabelOfMoreImportanceHasTheRoom();
    void thePlansLabelComesFirst();
    void noTwoLabelsOverlap();
    void aCrowdHasNoLabelsButThoseOfMoreImportance();
    void labelsStayWhileTheMapIsPanned();
    void labelsGiveWayToTheNamesOfTheBaseMap();
    void aNameOfTheBaseMapGivesWayToASymbol();
    void aNameWithNoRoomStaysAway();
    void aLabelStandsBesideALine();
    void aLabelStandsBesideARunway();
    void aLabelKeepsAwayFromTheStartMarker();
    void aDegreeStaysAwayFromALabel();
    void aDegreeStaysAwayFromANameThatHasMoved();
    void aRowOfSymbolsLeavesTheirOwnLabelsRoom();
    void aLongLabelIsCutBeforeItLiesOnASymbol();
};

namespace {

const char airportColour[] = "#1d3f8f";

} // namespace

void TestPageLabels::onSymbolsALabelTakesTheLowest()
{
    window->run("map.setZoom(8)");
    addAirport("LFXX", 46.5, 2.5);
    window->run(R"(pushAPT();
        const at = (x, y) => new google.maps.LatLng(46.5 - y / 264.5, 2.5 + x / 182);
        [[30, 0], [25, -20], [25, 20], [0, -22], [0, 22], [-25, -20], [-25, 20]].forEach(([x, y], i) =>
            addVORMarker(at(x, y), 'V' + i + '-V' + i + '1FR', 1, 'x'));
        addWPTMarker(at(-30, 0), 'W-WFR', 1, 'x');
        addNavMgr(); VORMgr.addMarkers(listVOR); addWptMgr(); WPTRteMgr.addMarkers(listWptRte);)");
    // On the left, where the waypoint is; a VOR stands on every other side.
    const QStringList placed = labelsInView();
    QVERIFY2(placed.contains("LFXX 1"), qPrintable(placed.join(", ")));
}

void TestPageLabels::aLabelStandsRightOfItsSymbol()
{
    addAirport("LFXX", 46.5, 2.5);
    window->run("pushAPT();");
    window->settle();
    const QImage image = window->view->grab().toImage();
    const QPoint middle = window->mouse->pointOf(46.5, 2.5);
    int right = 0;
    int left = 0;
    for (int y = middle.y() - 6; y <= middle.y() + 6; ++y) {
        for (int x = 12; x < 45; ++x) {
            right += image.pixelColor(middle.x() + x, y) == QColor(airportColour) ? 1 : 0;
            left += image.pixelColor(middle.x() - x, y) == QColor(airportColour) ? 1 : 0;
        }
    }
    QVERIFY2(right > 10, qPrintable(QString::number(right)));
    QCOMPARE(left, 0);
}

void TestPageLabels::twoMarkersOfOnePlaceHaveLabelsOnBothSides()
{
    addAirport("LFXX", 46.5, 2.5);
    addAirport("LFYY", 46.5, 2.5);
    window->run("pushAPT();");
    QStringList texts = labels();
    texts.sort();
    QCOMPARE(texts, (QStringList{"LFXX", "LFYY"}));
}

void TestPageLabels::theLabelOfMoreImportanceHasTheRoom()
{
    // Symbols so near to each other that hardly a label fits between them.
    addWaypoints(15, 15, 0.03, 46.5, 2.5);
    const int alone = labels().size();
    addAirport("LFXX", 46.5, 2.5);
    window->run("addVORMarker(new google.maps.LatLng(46.60000, 2.50000),\"ABC-K\",1,\"<b>VOR ABC</b>\");"
                "addNDBMarker(new google.maps.LatLng(46.40000, 2.50000),\"DE-K\",1,\"<b>NDB DE</b>\");"
                "pushAPT();addNavMgr();VORMgr.addMarkers(listVOR);NDBRteMgr.addMarkers(listNDBRte)");
    const QStringList texts = labels();
    for (const char* text : {"LFXX", "ABC", "DE"})
        QVERIFY2(texts.contains(text), text);
    QVERIFY(texts.size() < 15 * 15);
    QVERIFY(texts.size() <= alone + 3);
}

void TestPageLabels::thePlansLabelComesFirst()
{
    for (int i = 0; i < 12; ++i)
        addAirport(QString("LF%1").arg(10 + i), 46.5, 2.5);
    window->run("pushAPT();");
    QVERIFY(!labels().contains("WPT01"));
    QVERIFY(labels().size() < 12);
    window->run("clearFP();addPointToFp(new google.maps.LatLng(46.50010, 2.50010),\"WPT01\");pushFP();");
    QVERIFY(labels().contains("WPT01"));
}

void TestPageLabels::noTwoLabelsOverlap()
{
    addWaypoints(20, 20, 0.05, 46.5, 2.5);
    window->settle();
    const QString overlaps =
        window
            ->run("var boxes = []; var write = mapEngine.writeLabels;"
                  "mapEngine.writeLabels = (context, all, rim) => { boxes = all; write(context, all, rim); };"
                  "map.chart.paint(); mapEngine.writeLabels = write;"
                  "var bad = []; boxes.forEach((a, i) => boxes.slice(0, i).forEach(b => {"
                  "if (a.x < b.x + b.text.width && b.x < a.x + a.text.width"
                  " && a.y < b.y + b.text.height && b.y < a.y + a.text.height)"
                  " bad.push(a.text.lines[0] + ' ' + b.text.lines[0]); })); boxes.length + ':' + bad.join()")
            .toString();
    QVERIFY2(overlaps.endsWith(':') && overlaps.section(':', 0, 0).toInt() > 20, qPrintable(overlaps));
}

void TestPageLabels::aCrowdHasNoLabelsButThoseOfMoreImportance()
{
    // 6 pixels apart.
    addWaypoints(60, 60, 0.0165, 46.5, 2.5);
    QVERIFY(labels().size() < 40);
    addAirport("LFXX", 46.5, 2.5);
    window->run("pushAPT();map.setZoom(11)");
    window->settle();
    const QStringList near = labels();
    QVERIFY(near.contains("LFXX") || near.contains("LFXX\nFIELD"));
}

void TestPageLabels::labelsStayWhileTheMapIsPanned()
{
    addWaypoints(40, 40, 0.1, 46.5, 2.5);
    QStringList before = labelsInView();
    QVERIFY(before.size() > 20);
    // Far enough for several new paintings, to a side and back.
    for (int i = 1; i <= 24; ++i) {
        const int away = i <= 12 ? i : 24 - i;
        window->run(
            QString("map.setCenter(new google.maps.LatLng(%1,%2))").arg(46.5 + away * 0.03).arg(2.5 + away * 0.07));
        window->settle();
        const QStringList now = window
                                    ->run("var labels = []; map.points.declutter.kept.forEach((side, point) =>"
                                          "labels.push(point.look.label.text + ' ' + side)); labels")
                                    .toStringList();
        const QStringList inView = labelsInView();
        // What stood in the view stands there still, on the same side, if it is in the view at all.
        const QString gone =
            window
                ->run(QString("var titles = %1; listWptRte.filter(marker => {"
                              "const at = map.leaflet.latLngToContainerPoint("
                              "[marker.position.lat(), marker.position.lng()]);"
                              "return at.x > 60 && at.x < 740 && at.y > 30 && at.y < 570"
                              " && titles.indexOf(marker.title.split('-')[0]) >= 0;"
                              "}).map(marker => marker.title.split('-')[0]).join(' ')")
                          .arg("[\"" + QStringList(before).replaceInStrings(QRegExp(" .*"), "").join("\",\"") + "\"]"))
                .toString();
        const QSet<QString> still(now.begin(), now.end());
        for (const QString& label : qAsConst(before))
            if (gone.split(' ').contains(label.section(' ', 0, 0)))
                QVERIFY2(still.contains(label), qPrintable(QString("step %1: %2").arg(i).arg(label)));
        before = inView;
    }
}

void TestPageLabels::labelsGiveWayToTheNamesOfTheBaseMap()
{
    window->run("map.setZoom(7)");
    window->settle();
    // An airport whose label would lie on the name of a town if it stood right of it.
    const QString place =
        window
            ->run("var scale = 256 * 128; var town = map.base.names.placesAt(7, scale).find(each =>"
                  " Math.abs(each.left / scale - 0.507) < 0.005 && Math.abs(each.top / scale - 0.353) < 0.005);"
                  "var x = town.left - 14; var y = (town.top + town.bottom) / 2;"
                  "mapEngine.latitudeOf(y / scale) + ',' + mapEngine.longitudeOf(x / scale)")
            .toString();
    addAirport("LFXX", place.section(',', 0, 0).toDouble(), place.section(',', 1).toDouble());
    window->run(QString("pushAPT();map.setCenter(new google.maps.LatLng(%1))").arg(place));
    QCOMPARE(labels(), QStringList{"LFXX"});
    QVERIFY(window->run("Array.from(map.points.declutter.kept.values())[0]").toInt() != 0);
}

void TestPageLabels::aNameOfTheBaseMapGivesWayToASymbol()
{
    // Bourges lies at 47.08 N 2.40 E; its name stands right of its dot.
    window->run("map.setZoom(8);map.setCenter(new google.maps.LatLng(47.08000, 2.40000))");
    window->settle();
    const QString town = "var town = map.base.names.written.find(each => each.name.text === 'Bourges');";
    QCOMPARE(window->run(town + "Math.sign(town.letters - town.x) + ' ' + (town.row - town.y)").toString(),
             QString("1 0"));
    // 28 pixels east of the dot.
    addAirport("LFXX", 47.08, 2.55);
    window->run("pushAPT();");
    window->settle();
    QVERIFY(window->run(town + "!!town").toBool());
    QVERIFY(window->run(town + "town.letters < town.x || town.row !== town.y").toBool());
    window->run("ArptMgr.clearMarkers()");
    window->settle();
    QCOMPARE(window->run(town + "Math.sign(town.letters - town.x) + ' ' + (town.row - town.y)").toString(),
             QString("1 0"));
}

void TestPageLabels::aNameWithNoRoomStaysAway()
{
    window->run("map.setZoom(8);map.setCenter(new google.maps.LatLng(47.08000, 2.40000))");
    window->settle();
    const QString isWritten = "map.base.names.written.some(each => each.name.text === 'Bourges')";
    QVERIFY(window->run(isWritten).toBool());
    addWaypoints(9, 15, 0.06, 47.08, 2.4);
    window->settle();
    QVERIFY(!window->run(isWritten).toBool());
}

void TestPageLabels::aLabelStandsBesideALine()
{
    addAirport("LFXX", 46.5, 2.5);
    window->run("pushAPT();clearFP();addPointToFp(new google.maps.LatLng(46.50000, 2.00000),\"A\");"
                "addPointToFp(new google.maps.LatLng(46.50000, 2.50000),\"LFXX\");"
                "addPointToFp(new google.maps.LatLng(46.50000, 3.00000),\"B\");pushFP();");
    QVERIFY(labels().contains("LFXX"));
    // Sides 0 and 1 are right and left of the symbol, where the route runs.
    const int side = window
                         ->run("map.points.declutter.kept.get(Array.from(map.points.declutter.kept.keys())"
                               ".find(point => point.look.label.text === 'LFXX'))")
                         .toInt();
    QVERIFY2(side > 1, qPrintable(QString::number(side)));
}

void TestPageLabels::aLabelStandsBesideARunway()
{
    const QString runways =
        "drawRwy(new google.maps.LatLng(46.50000,2.52000),new google.maps.LatLng(46.50000,2.60000));";
    addAirport("LFXX", 46.5, 2.5);
    window->run("pushAPT();" + runways);
    QVERIFY2(!labelsInView().contains("LFXX 0"), qPrintable(labelsInView().join(' ')));
    QCOMPARE(labelsInView().size(), 1);
    window->run("clearRunway();map.setZoom(8)");
    window->settle();
    window->run("map.setZoom(9)");
    QCOMPARE(labelsInView(), QStringList{"LFXX 0"});
    // The airport knows it by now: nothing else about it is new.
    window->run(runways);
    QVERIFY2(!labelsInView().contains("LFXX 0"), qPrintable(labelsInView().join(' ')));
    QCOMPARE(labelsInView().size(), 1);
}

void TestPageLabels::aLabelKeepsAwayFromTheStartMarker()
{
    addAirport("LFXX", 46.5, 2.5);
    window->run("pushAPT();");
    const QString side = "Array.from(map.points.declutter.kept.values())[0]";
    QCOMPARE(labels(), QStringList{"LFXX"});
    QCOMPARE(window->run(side).toInt(), 0);
    // 22 pixels east of the airport.
    window->run("addSitMarker(new google.maps.LatLng(46.50000000, 2.56000000),\"B737-800\", 63);");
    QCOMPARE(labels(), QStringList{"LFXX"});
    QVERIFY(window->run(side).toInt() > 0);
    // It goes elsewhere: the label comes back.
    window->run("addSitMarker(new google.maps.LatLng(46.70000000, 2.56000000),\"B737-800\", 63);");
    window->run("map.setZoom(10)");
    window->settle();
    window->run("map.setZoom(9)");
    QCOMPARE(labels(), QStringList{"LFXX"});
    QCOMPARE(window->run(side).toInt(), 0);
}

void TestPageLabels::aDegreeStaysAwayFromALabel()
{
    window->settle();
    QVERIFY(window->run("map.base.labels.shown").toStringList().contains("2°30'E"));
    // The upper edge of the view, 300 pixels from its middle, lies at 47.062 N.
    addAirport("LFXX", 47.05, 2.47);
    window->run("pushAPT();");
    QCOMPARE(labels(), QStringList{"LFXX"});
    QVERIFY(!window->run("map.base.labels.shown").toStringList().contains("2°30'E"));
    window->run("ArptMgr.clearMarkers()");
    window->settle();
    QVERIFY(window->run("map.base.labels.shown").toStringList().contains("2°30'E"));
}

void TestPageLabels::aDegreeStaysAwayFromANameThatHasMoved()
{
    // Nevers, 29 pixels east of a meridian, 9 below the upper edge of the view; its name stands right of its dot.
    window->run("map.setZoom(8);map.setCenter(new google.maps.LatLng("
                "mapEngine.latitudeOf(mapEngine.unitY(46.99) + 291 / 65536), 3.16))");
    window->settle();
    const QString side = "var town = map.base.names.written.find(each => each.name.text === 'Nevers');"
                         "Math.sign(town.letters - town.x) + ' ' + (town.row - town.y)";
    QCOMPARE(window->run(side).toString(), QString("1 0"));
    QVERIFY(window->run("map.base.labels.shown").toStringList().contains("3°E"));
    // 28 pixels east of the dot: the name goes to the other side, where the degree stands.
    addAirport("LFXX", 46.99, 3.31);
    window->run("pushAPT();");
    window->settle();
    QCOMPARE(window->run(side).toString(), QString("-1 0"));
    QVERIFY(!window->run("map.base.labels.shown").toStringList().contains("3°E"));
    window->run("ArptMgr.clearMarkers()");
    window->settle();
    QVERIFY(window->run("map.base.labels.shown").toStringList().contains("3°E"));
}

void TestPageLabels::aRowOfSymbolsLeavesTheirOwnLabelsRoom()
{
    // Apart enough for a label between any two of them.
    addWaypoints(1, 5, 0.3, 46.5, 2.5);
    QCOMPARE(labels().size(), 5);
    QCOMPARE(window->run("Array.from(map.points.declutter.kept.values()).join()").toString(), QString("0,0,0,0,0"));
}

void TestPageLabels::aLongLabelIsCutBeforeItLiesOnASymbol()
{
    window->run("map.setZoom(10);addAPTMarker(new google.maps.LatLng(46.50000, 2.50000),\"LFXX\",1,"
                "\"<b>Airport LFXX</b><br/>A LONG NAME OF AN AIRPORT\");pushAPT();");
    const auto text = [this] {
        window->settle();
        // Places from the eighth on are those of the first line alone.
        return window->run("map.points.declutter.kept.get(Array.from(map.points.declutter.kept.keys())[0])").toInt();
    };
    QVERIFY(text() < 8);
    // A wall of symbols at either side, some 50 pixels away, and a row of them above and below.
    window->run("for (var i = -8; i <= 8; ++i) {"
                "[-0.075, 0.075].forEach(east => addWPTMarker(new google.maps.LatLng(46.5 + i * 0.012, 2.5 + east),"
                "'W' + i + east + '-K', 1, 'x'));"
                "[-0.032, 0.032].forEach(north => addWPTMarker(new google.maps.LatLng(46.5 + north, 2.5 + i * 0.012),"
                "'V' + i + north + '-K', 1, 'x')); }"
                "addWptMgr();WPTRteMgr.addMarkers(listWptRte)");
    QVERIFY(text() >= 8);
}

QTEST_MAIN(TestPageLabels)
#include "tst_pagelabels.moc"
