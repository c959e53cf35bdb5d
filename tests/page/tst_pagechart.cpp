// How the markers look: a symbol for each kind, less of it from afar.
#include "charttest.h"

#include <QtTest>

#include <cmath>

class TestPageChart : public ChartTest
{
    Q_OBJECT

private slots:
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
    void theClickedMarkerIsNamedFromAfar();
    void onePointOfALayerHasOptionsOfItsOwn();
    void aCrowdIsDrawnWithoutHoles();
    void theProjectionIsThatOfTheWeb_data();
    void theProjectionIsThatOfTheWeb();
    void aCopiedLookKeepsItsLabel();
};

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

QTEST_MAIN(TestPageChart)
#include "tst_pagechart.moc"
