// The marker feed: every script of it reaches its list, its manager and the map.
#include "pagetest.h"

#include <QtTest>

class TestPageFeed : public PageTest
{
    Q_OBJECT

private slots:
    void aRowReachesItsList_data();
    void aRowReachesItsList();
    void titlesAreTextAsSent();
    void noManagerStandsBeforeItsScript();
    void airportsShowAtTheEndOfTheirFeed();
    void navaidsShowWhenTheProgramSaysSo_data();
    void navaidsShowWhenTheProgramSaysSo();
    void aHiddenLayerShowsAgain();
    void aLayerWakesWhenTheZoomLetsItBeSeen();
    void showingTwiceShowsEachMarkerOnce();
    void aSecondFeedOfManagersLeavesNothingBehind();
    void anEmptyFeedMakesManagersWithEmptyLists();
    void aWholeBatchIsOneText();
    void aRowWithoutAPlaceIsLeftOutAlone();
    void longitudesBeyondTheCircleAreWrapped();
    void symbolsDifferByKind();
    void symbolsShrinkFromAfar();
    void fiftyThousandMarkersAreTaken();

private:
    QString firstView() const override
    {
        return "map.setCenter(new google.maps.LatLng(46.70000, 2.30000));map.setZoom(8)";
    }

    QStringList titles(const QString& list)
    {
        return window->run(list + ".map(marker => marker.getTitle())").toStringList();
    }
    /// Whether something is drawn at a position where the bare map is nothing but land.
    bool isDrawn(double latitude, double longitude)
    {
        return window->pixelsAround(latitude, longitude, 8, QColor("#f6f3ea")) < 17 * 17;
    }
};

namespace {

const char lists[] = "listApt listVOR listNDBRte listNDBTerm listWptRte listWptTerm listWptVfr";

const char airportRow[] =
    R"(addAPTMarker(new google.maps.LatLng(48.72528, 2.35944),"LFPO",1,)"
    R"("<font color=blue><b>Airport LFPO</b><font color=black><br/>ORLY<br/>48 43' 31.00 N - 002 21' 34.00 E"))";
const char vorRow[] = R"(addVORMarker(new google.maps.LatLng(48.65000, 1.99000),"RBT-RBT1FR",%1,"<b>VOR RBT</b>"))";
const char ndbRow[] = R"(addNDBMarker(new google.maps.LatLng(48.65000, 1.99000),"MT-MT5FR",%1,"<b>NDB MT</b>"))";
const char waypointRow[] =
    R"(addWPTMarker(new google.maps.LatLng(48.65000, 1.99000),"ABLAN-ABLANFR",%1,"<b>Waypoint</b>"))";

} // namespace

void TestPageFeed::aRowReachesItsList_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("list");
    QTest::addColumn<QString>("title");

    QTest::newRow("airport") << airportRow << "listApt"
                             << "LFPO";
    for (int type : {0, 1, 4, 5, 16, 17})
        QTest::addRow("VOR type %d", type) << QString(vorRow).arg(type) << "listVOR"
                                           << "RBT-RBT1FR";
    for (int use : {0, 1, 2, 3, 5, 6})
        QTest::addRow("NDB usage %d", use) << QString(ndbRow).arg(use) << "listNDBRte"
                                           << "MT-MT5FR";
    QTest::newRow("NDB usage 4, terminal") << QString(ndbRow).arg(4) << "listNDBTerm"
                                           << "MT-MT5FR";
    for (int use : {0, 1, 2, 3, 5, 7})
        QTest::addRow("waypoint usage %d", use) << QString(waypointRow).arg(use) << "listWptRte"
                                                << "ABLAN-ABLANFR";
    QTest::newRow("waypoint usage 4, terminal") << QString(waypointRow).arg(4) << "listWptTerm"
                                                << "ABLAN-ABLANFR";
    QTest::newRow("waypoint usage 6, VFR") << QString(waypointRow).arg(6) << "listWptVfr"
                                           << "ABLAN-ABLANFR";
}

void TestPageFeed::aRowReachesItsList()
{
    QFETCH(QString, script);
    QFETCH(QString, list);
    QFETCH(QString, title);
    window->run(script);
    for (const QString& name : QString(lists).split(' '))
        QCOMPARE(titles(name), name == list ? QStringList{title} : QStringList());
    QCOMPARE(window->run(list + "[0].getPosition().lat()").toDouble(), list == "listApt" ? 48.72528 : 48.65);
}

void TestPageFeed::titlesAreTextAsSent()
{
    window->run(R"(addWPTMarker(new google.maps.LatLng(46.70000, 2.30000),"<b>A</b>&amp;-KEYFR",1,"x"))");
    window->run(R"(addWPTMarker(new google.maps.LatLng(46.40000, 2.30000),"-",1,""))");
    QCOMPARE(titles("listWptRte"), (QStringList{"<b>A</b>&amp;-KEYFR", "-"}));
    window->run("addWptMgr();WPTRteMgr.addMarkers(listWptRte)");
    window->settle();
    QCOMPARE(window->menuAt(46.7, 2.3).isEmpty(), false);
    QCOMPARE(window->run("document.querySelector('.menu-title').textContent").toString(), "Waypoint <b>A</b>&amp;");
}

void TestPageFeed::noManagerStandsBeforeItsScript()
{
    for (const char* manager : {"ArptMgr", "VORMgr", "NDBRteMgr", "NDBTermMgr", "WPTRteMgr", "WPTTermMgr", "WPTVfrMgr"})
        QVERIFY(!window->run(QString("!!%1").arg(manager)).toBool());
}

void TestPageFeed::airportsShowAtTheEndOfTheirFeed()
{
    window->run(R"(addAPTMarker(new google.maps.LatLng(46.70000, 2.30000),"LFPO",1,"x"))");
    QVERIFY(!isDrawn(46.7, 2.3));
    window->run("pushAPT();");
    QVERIFY(isDrawn(46.7, 2.3));
    window->run("ArptMgr.clearMarkers()");
    QVERIFY(!isDrawn(46.7, 2.3));
    window->run("ArptMgr.addMarkers(listApt)");
    QVERIFY(isDrawn(46.7, 2.3));
}

void TestPageFeed::navaidsShowWhenTheProgramSaysSo_data()
{
    QTest::addColumn<QString>("row");
    QTest::addColumn<QString>("end");
    QTest::addColumn<QString>("manager");
    QTest::addColumn<QString>("list");

    const QString place = "(new google.maps.LatLng(46.70000, 2.30000),\"A-AFR\",%1,\"x\")";
    QTest::newRow("VOR") << "addVORMarker" + place.arg(1) << "addNavMgr();"
                         << "VORMgr"
                         << "listVOR";
    QTest::newRow("NDB en route") << "addNDBMarker" + place.arg(1) << "addNavMgr();"
                                  << "NDBRteMgr"
                                  << "listNDBRte";
    QTest::newRow("NDB terminal") << "addNDBMarker" + place.arg(4) << "addNavMgr();"
                                  << "NDBTermMgr"
                                  << "listNDBTerm";
    QTest::newRow("waypoint en route") << "addWPTMarker" + place.arg(1) << "addWptMgr();"
                                       << "WPTRteMgr"
                                       << "listWptRte";
    QTest::newRow("waypoint terminal") << "addWPTMarker" + place.arg(4) << "addWptMgr();"
                                       << "WPTTermMgr"
                                       << "listWptTerm";
    QTest::newRow("waypoint VFR") << "addWPTMarker" + place.arg(6) << "addWptMgr();"
                                  << "WPTVfrMgr"
                                  << "listWptVfr";
}

void TestPageFeed::navaidsShowWhenTheProgramSaysSo()
{
    QFETCH(QString, row);
    QFETCH(QString, end);
    QFETCH(QString, manager);
    QFETCH(QString, list);
    window->run(row + ";" + end);
    QVERIFY(!isDrawn(46.7, 2.3));
    window->run(QString("%1.addMarkers(%2)").arg(manager, list));
    QVERIFY(isDrawn(46.7, 2.3));
    window->run(QString("%1.clearMarkers()").arg(manager));
    QVERIFY(!isDrawn(46.7, 2.3));
}

void TestPageFeed::aHiddenLayerShowsAgain()
{
    window->run(
        R"(addVORMarker(new google.maps.LatLng(46.70000, 2.30000),"A-A",1,"x");addNavMgr();VORMgr.clearMarkers())");
    QVERIFY(!isDrawn(46.7, 2.3));
    for (int i = 0; i < 3; ++i) {
        window->run("VORMgr.addMarkers(listVOR)");
        QVERIFY(isDrawn(46.7, 2.3));
        window->run("VORMgr.clearMarkers()");
        QVERIFY(!isDrawn(46.7, 2.3));
    }
}

void TestPageFeed::aLayerWakesWhenTheZoomLetsItBeSeen()
{
    const QString marker = "addWPTMarker%1(new google.maps.LatLng(46.70000, %2),\"%3-%3FR\",1,\"x\");";
    window->run("map.setZoom(5);" + marker.arg("", "2.30000", "A") + "addWptMgr();WPTRteMgr.addMarkers(listWptRte)");
    QVERIFY(!isDrawn(46.7, 2.3));
    // None of the layer's points has been made so far.
    QCOMPARE(window->run("var count = 0; WPTRteMgr.layer.forEach(() => ++count); count").toInt(), 0);
    QVERIFY(window->run("WPTRteMgr.layer.getMap() === null").toBool());
    window->run("map.setZoom(9)");
    QVERIFY(isDrawn(46.7, 2.3));
    window->run("map.setZoom(5)");
    QVERIFY(!isDrawn(46.7, 2.3));
    // What comes while the layer sleeps is there too when it wakes.
    window->run(marker.arg("2", "2.50000", "B") + "theLast = listWptRte[0];delWaypoint();page.chooseEdited(null)");
    QVERIFY(!isDrawn(46.7, 2.5));
    window->run("map.setZoom(9)");
    QVERIFY(isDrawn(46.7, 2.5));
    QVERIFY(!isDrawn(46.7, 2.3));
}

void TestPageFeed::showingTwiceShowsEachMarkerOnce()
{
    window->run(R"(addVORMarker(new google.maps.LatLng(46.70000, 2.30000),"A-A",1,"x");addNavMgr();)");
    window->run("VORMgr.addMarkers(listVOR);VORMgr.addMarkers(listVOR)");
    window->settle();
    window->click(46.7, 2.3);
    window->run("delNavaid();theLast == null;");
    QVERIFY(!isDrawn(46.7, 2.3));
}

void TestPageFeed::aSecondFeedOfManagersLeavesNothingBehind()
{
    window->run(
        R"(addVORMarker(new google.maps.LatLng(46.70000, 2.30000),"A-A",1,"x");addNavMgr();VORMgr.addMarkers(listVOR))");
    window->run(R"(addAPTMarker(new google.maps.LatLng(46.40000, 2.30000),"LFXX",1,"x");pushAPT();)");
    window->run("addNavMgr();pushAPT();ArptMgr.clearMarkers()");
    QVERIFY(!isDrawn(46.7, 2.3));
    QVERIFY(!isDrawn(46.4, 2.3));
}

void TestPageFeed::anEmptyFeedMakesManagersWithEmptyLists()
{
    window->run("pushAPT();");
    window->run("addNavMgr();;VORMgr.addMarkers(listVOR);NDBRteMgr.clearMarkers();NDBTermMgr.addMarkers(listNDBTerm)");
    window->run("addWptMgr();;WPTRteMgr.clearMarkers();WPTTermMgr.addMarkers(listWptTerm);WPTVfrMgr.clearMarkers()");
    for (const QString& name : QString(lists).split(' '))
        QCOMPARE(window->run(name + ".length").toInt(), 0);
    QCOMPARE(window->page->messages, QStringList());
}

void TestPageFeed::aWholeBatchIsOneText()
{
    const QStringList batch{
        R"(addNDBMarker(new google.maps.LatLng(47.20000,-2.10000),"NT-NT5FR",3,"<font color=blue><b>NDB NT</b><font color=black><br/>NANTES<br/>338 Khz<br/>47 12' 00.00 N - 002 06' 00.00 W"))",
        R"(addVORMarker(new google.maps.LatLng(47.15000,  -1.61000),"NTS-NTS4FR",17,"<font color=blue><b>VOR NTS</b><font color=black><br/>NANTES<br/>115.5 Mhz<br/>47 09' 00.00 N - 001 36' 36.00 W"))",
        "addNavMgr();",
        "VORMgr.addMarkers(listVOR)",
        "NDBRteMgr.addMarkers(listNDBRte)",
        "NDBTermMgr.clearMarkers()"};
    window->run(batch.join(";"));
    QCOMPARE(titles("listVOR"), QStringList{"NTS-NTS4FR"});
    QCOMPARE(titles("listNDBRte"), QStringList{"NT-NT5FR"});
    QCOMPARE(window->run("listVOR[0].getPosition().lng()").toDouble(), -1.61);
    QCOMPARE(window->page->messages, QStringList());
}

void TestPageFeed::aRowWithoutAPlaceIsLeftOutAlone()
{
    window->run(
        R"(addVORMarker(new google.maps.LatLng(nan,2.00000),"A-A",1,"x");)"
        R"(addVORMarker(new google.maps.LatLng(47.00000,inf),"B-B",1,"x");)"
        R"(addVORMarker(new google.maps.LatLng(-inf,-nan),"C-C",1,"x");)"
        R"(addVORMarker(new google.maps.LatLng(46.70000, 2.30000),"D-D",1,"x");addNavMgr();VORMgr.addMarkers(listVOR))");
    QCOMPARE(titles("listVOR"), QStringList{"D-D"});
    QVERIFY(isDrawn(46.7, 2.3));
}

void TestPageFeed::longitudesBeyondTheCircleAreWrapped()
{
    window->run(
        R"(addVORMarker(new google.maps.LatLng(46.70000,362.30000),"A-A",1,"x");)"
        R"(addVORMarker(new google.maps.LatLng(1e300,-1e300),"B-B",1,"x");)"
        R"(addVORMarker(new google.maps.LatLng(47.00000,180.00000),"C-C",1,"x");)"
        R"(addVORMarker(new google.maps.LatLng(47.00000,-181.00000),"D-D",1,"x");addNavMgr();VORMgr.addMarkers(listVOR))");
    QVERIFY(isDrawn(46.7, 2.3));
    QCOMPARE(window->run("listVOR[0].getPosition().lng().toFixed(5)").toString(), "2.30000");
    QCOMPARE(window->run("listVOR[1].getPosition().lat()").toDouble(), 90.0);
    QVERIFY(qAbs(window->run("listVOR[1].getPosition().lng()").toDouble()) <= 180.0);
    QCOMPARE(window->run("listVOR[2].getPosition().lng()").toDouble(), 180.0);
    QCOMPARE(window->run("listVOR[3].getPosition().lng()").toDouble(), 179.0);
}

void TestPageFeed::symbolsDifferByKind()
{
    const QStringList rows{
        "addAPTMarker(%1,\"LFXX\",1,\"x\")", "addVORMarker(%1,\"A-A\",1,\"x\")",  "addVORMarker(%1,\"A-B\",17,\"x\")",
        "addVORMarker(%1,\"A-C\",4,\"x\")",  "addVORMarker(%1,\"A-D\",16,\"x\")", "addNDBMarker(%1,\"A-E\",1,\"x\")",
        "addNDBMarker(%1,\"A-F\",4,\"x\")",  "addWPTMarker(%1,\"A-G\",1,\"x\")",  "addWPTMarker(%1,\"A-H\",5,\"x\")",
        "addWPTMarker(%1,\"A-I\",4,\"x\")",  "addWPTMarker(%1,\"A-J\",6,\"x\")"};
    // Two rows between the parallels.
    const auto latitude = [](int i) { return i < 6 ? 46.7 : 46.4; };
    const auto longitude = [](int i) { return 2.2 + 0.13 * (i % 6); };
    for (int i = 0; i < rows.size(); ++i)
        window->run(rows[i].arg(QString("new google.maps.LatLng(%1,%2)").arg(latitude(i)).arg(longitude(i))));
    window->run("pushAPT();addNavMgr();addWptMgr();VORMgr.addMarkers(listVOR);NDBRteMgr.addMarkers(listNDBRte);"
                "NDBTermMgr.addMarkers(listNDBTerm);WPTRteMgr.addMarkers(listWptRte);"
                "WPTTermMgr.addMarkers(listWptTerm);WPTVfrMgr.addMarkers(listWptVfr)");
    window->settle();
    const QImage image = window->view->grab().toImage();
    QList<QImage> symbols;
    for (int i = 0; i < rows.size(); ++i) {
        const QPoint middle = window->mouse->pointOf(latitude(i), longitude(i));
        const QImage symbol = image.copy(middle.x() - 10, middle.y() - 10, 21, 21);
        QVERIFY2(!symbols.contains(symbol), qPrintable(rows[i]));
        symbols.append(symbol);
    }
}

void TestPageFeed::symbolsShrinkFromAfar()
{
    window->run(R"(addAPTMarker(new google.maps.LatLng(46.70000, 2.30000),"LFXX",1,"x");pushAPT();)");
    const QColor blue("#1d3f8f");
    const int near = window->pixelsAround(46.7, 2.3, 12, blue);
    window->run("map.setZoom(5)");
    const int far = window->pixelsAround(46.7, 2.3, 12, blue);
    QVERIFY2(near > 0 && far < near, qPrintable(QString("%1 near, %2 far").arg(near).arg(far)));
    window->run("map.setZoom(8)");
    QCOMPARE(window->pixelsAround(46.7, 2.3, 12, blue), near);
}

void TestPageFeed::fiftyThousandMarkersAreTaken()
{
    QStringList batch;
    for (int i = 0; i < 50000; ++i) {
        const int row = i % 250;
        const int column = i / 250;
        batch.append(QString(R"(addWPTMarker(new google.maps.LatLng(%1,%2),"W%3-W%3FR",1,"x"))")
                         .arg(42 + row * 0.036, 3, 'f', 5)
                         .arg(-4 + column * 0.055, 3, 'f', 5)
                         .arg(i));
    }
    batch << "addWptMgr();"
          << "WPTRteMgr.addMarkers(listWptRte)";
    window->run(batch.join(";"));
    QCOMPARE(window->run("listWptRte.length").toInt(), 50000);
    window->settle();
    // The point number 250 * 100 + 125 answers the mouse among all the others.
    window->run("map.setZoom(12);map.setCenter(new google.maps.LatLng(46.5,1.5))");
    window->settle();
    window->click(46.5, 1.5);
    QCOMPARE(window->run("theLast.getTitle()").toString(), "W25125-W25125FR");
}

QTEST_MAIN(TestPageFeed)
#include "tst_pagefeed.moc"
