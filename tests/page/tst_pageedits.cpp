// Single markers after an edit, and the deletion of the marker last used.
#include "pagetest.h"

#include <QtTest>

class TestPageEdits : public PageTest
{
    Q_OBJECT

private slots:
    void aSingleMarkerShowsAtOnce_data();
    void aSingleMarkerShowsAtOnce();
    void itShowsFromAfarUntilAClickElsewhere();
    void itShowsInAHiddenLayerToo();
    void itBelongsToItsLayerAfterwards();
    void anEditedRowTakesThePlaceOfItsMarker();
    void anEditedUsageChangesTheLayer();
    void anEditedVorKeepsItsSymbol();
    void aNewNavaidHasTheSymbolOfItsKey_data();
    void aNewNavaidHasTheSymbolOfItsKey();
    void theNextFeedDrawsTheSameSymbol_data();
    void theNextFeedDrawsTheSameSymbol();
    void aRenamedWaypointTakesThePlaceOfItsMarker();
    void aNewWaypointDuringNoEditTakesNobodysPlace();
    void anEmptyTitleIsOneMarker();
    void aDmeIsJoinedToItsNdbByEdits();
    void thousandsOfBeaconsAreJoined();
    void anotherKeyIsAnotherMarker();
    void aWaypointWithAHyphenIsKnownByItsWholeTitle();
    void aNavaidWithAHyphenIsKnownByItsKey();
    void aNavaidIsNotTakenForAWaypoint();
    void deletingRemovesTheMarkerLastUsed_data();
    void deletingRemovesTheMarkerLastUsed();
    void deletingWithoutAMarkerDoesNothing();
    void deletingTwiceRemovesOne();
    void aDeletedMarkerDoesNotComeBackWithItsLayer();
    void aDamagedSingleMarkerIsLeftOut();
    void editsAreFoundFromNear_data();
    void editsAreFoundFromNear();

private:
    QStringList titles(const QString& list)
    {
        return window->run(list + ".map(marker => marker.getTitle())").toStringList();
    }
    bool isDrawn(double latitude, double longitude)
    {
        return window->pixelsAround(latitude, longitude, 8, QColor("#f6f3ea")) < 17 * 17;
    }
    QImage symbolAt(double latitude, double longitude)
    {
        window->settle();
        const QPoint middle = window->mouse->pointOf(latitude, longitude);
        return window->view->grab().toImage().copy(middle.x() - 10, middle.y() - 10, 21, 21);
    }
};

void TestPageEdits::aSingleMarkerShowsAtOnce_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("list");
    QTest::addColumn<QString>("title");

    QTest::newRow("VOR") << R"(addVORMarker2(new google.maps.LatLng(46.70000, 2.30000),"CHATEAUROUX-CGO4FR",1,"x"))"
                         << "listVOR"
                         << "CHATEAUROUX-CGO4FR";
    QTest::newRow("VOR of usage 4") << R"(addVORMarker2(new google.maps.LatLng(46.70000, 2.30000),"CGO-CGO4FR",4,"x"))"
                                    << "listVOR"
                                    << "CGO-CGO4FR";
    QTest::newRow("NDB") << R"(addNDBMarker2(new google.maps.LatLng(46.70000, 2.30000),"MONTLUCON-MT5FR",2,"x"))"
                         << "listNDBRte"
                         << "MONTLUCON-MT5FR";
    QTest::newRow("NDB terminal") << R"(addNDBMarker2(new google.maps.LatLng(46.70000, 2.30000),"MT-MT5FR",4,"x"))"
                                  << "listNDBTerm"
                                  << "MT-MT5FR";
    QTest::newRow("waypoint") << R"(addWPTMarker2(new google.maps.LatLng(46.70000, 2.30000),"ABLAN-ABLANFR",3,"x"))"
                              << "listWptRte"
                              << "ABLAN-ABLANFR";
    QTest::newRow("waypoint terminal")
        << R"(addWPTMarker2(new google.maps.LatLng(46.70000, 2.30000),"ABLAN-ABLANFR",4,"x"))"
        << "listWptTerm"
        << "ABLAN-ABLANFR";
    QTest::newRow("waypoint VFR") << R"(addWPTMarker2(new google.maps.LatLng(46.70000, 2.30000),"ABLAN-ABLANFR",6,"x"))"
                                  << "listWptVfr"
                                  << "ABLAN-ABLANFR";
}

void TestPageEdits::aSingleMarkerShowsAtOnce()
{
    QFETCH(QString, script);
    QFETCH(QString, list);
    QFETCH(QString, title);
    // No feed has made a manager: the table was empty when the page was fed.
    window->run(script);
    QCOMPARE(titles(list), QStringList{title});
    QVERIFY(isDrawn(46.7, 2.3));
}

void TestPageEdits::itShowsFromAfarUntilAClickElsewhere()
{
    // So many others that the kind leaves the map early.
    window->run(
        "for (let i = 0; i < 3000; ++i) addWPTMarker(new google.maps.LatLng(44 + i / 3000, 2), 'W' + i + '-W' + "
        "i + 'FR', 1, 'x');addWptMgr();WPTRteMgr.addMarkers(listWptRte);map.setZoom(5)");
    for (int usage : {1, 4, 6}) {
        window->run(
            QString("addWPTMarker2(new google.maps.LatLng(46.70000, 2.30000),\"NEW-NEWFR\",%1,\"x\")").arg(usage));
        QVERIFY2(isDrawn(46.7, 2.3), qPrintable(QString("usage %1").arg(usage)));
    }
    QVERIFY(!window->run("WPTRteMgr.draws(listWptRte[0])").toBool());
    window->click(46.7, 2.3);
    QCOMPARE(window->popupText(), "x");
    window->pressKey(Qt::Key_Escape);
    QVERIFY(!isDrawn(46.7, 2.3));
    window->run("addWPTMarker2(new google.maps.LatLng(46.70000, 2.30000),\"NEW-NEWFR\",1,\"x\")");
    QVERIFY(isDrawn(46.7, 2.3));
    window->click(48.0, 2.3);
    QVERIFY(!isDrawn(46.7, 2.3));
}

void TestPageEdits::itShowsInAHiddenLayerToo()
{
    window->run(
        R"(addVORMarker(new google.maps.LatLng(46.40000, 2.30000),"A-A4FR",1,"x");addNavMgr();VORMgr.clearMarkers())");
    window->run(R"(addVORMarker2(new google.maps.LatLng(46.70000, 2.30000),"B-B4FR",1,"x"))");
    QVERIFY(isDrawn(46.7, 2.3));
    QVERIFY(!isDrawn(46.4, 2.3));
}

void TestPageEdits::itBelongsToItsLayerAfterwards()
{
    window->run("addNavMgr();VORMgr.addMarkers(listVOR)");
    window->run(R"(addVORMarker2(new google.maps.LatLng(46.70000, 2.30000),"B-B4FR",1,"x"))");
    window->run("VORMgr.clearMarkers()");
    QVERIFY(!isDrawn(46.7, 2.3));
    window->run("VORMgr.addMarkers(listVOR)");
    QVERIFY(isDrawn(46.7, 2.3));
}

void TestPageEdits::anEditedRowTakesThePlaceOfItsMarker()
{
    window->run(R"(addWPTMarker2(new google.maps.LatLng(46.40000, 2.30000),"ABLAN-ABLANFR",1,"x"))");
    window->run(R"(addWPTMarker2(new google.maps.LatLng(46.70000, 2.30000),"ABLAN SUD-ABLANFR",1,"x"))");
    QCOMPARE(titles("listWptRte"), QStringList{"ABLAN SUD-ABLANFR"});
    QVERIFY(isDrawn(46.7, 2.3));
    QVERIFY(!isDrawn(46.4, 2.3));
}

void TestPageEdits::anEditedUsageChangesTheLayer()
{
    window->run(R"(addWPTMarker2(new google.maps.LatLng(46.70000, 2.30000),"ABLAN-ABLANFR",1,"x"))");
    window->run(R"(addWPTMarker2(new google.maps.LatLng(46.70000, 2.30000),"ABLAN-ABLANFR",6,"x"))");
    QCOMPARE(titles("listWptRte"), QStringList());
    QCOMPARE(titles("listWptVfr"), QStringList{"ABLAN-ABLANFR"});
}

void TestPageEdits::anEditedVorKeepsItsSymbol()
{
    window->run(
        R"(addVORMarker(new google.maps.LatLng(46.70000, 2.30000),"CGO-CGO4FR",17,"x");)"
        R"(addVORMarker(new google.maps.LatLng(46.40000, 2.30000),"MOU-MOU1FR",1,"x");addNavMgr();VORMgr.addMarkers(listVOR))");
    const QImage vorDme = symbolAt(46.7, 2.3);
    QVERIFY(vorDme != symbolAt(46.4, 2.3));
    // The dialog sends the usage and the name where the feed has the type and the identifier.
    window->run(R"(addVORMarker2(new google.maps.LatLng(46.70000, 2.30000),"CHATEAUROUX-CGO4FR",3,"x"))");
    QCOMPARE(titles("listVOR"), (QStringList{"MOU-MOU1FR", "CHATEAUROUX-CGO4FR"}));
    QCOMPARE(symbolAt(46.7, 2.3), vorDme);
}

void TestPageEdits::aNewNavaidHasTheSymbolOfItsKey_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("symbol");

    const QString vor = "addVORMarker2(new google.maps.LatLng(46.70000, 2.30000),\"NAME-%1\",3,\"x\");listVOR[0]";
    const QString ndb = "addNDBMarker2(new google.maps.LatLng(46.70000, 2.30000),\"NAME-%1\",3,\"x\");listNDBRte[0]";
    const QString term = "addNDBMarker2(new google.maps.LatLng(46.70000, 2.30000),\"NAME-%1\",4,\"x\");listNDBTerm[0]";
    QTest::newRow("VOR") << vor.arg("ABC1FR") << "vor";
    QTest::newRow("TACAN") << vor.arg("ABC2FR") << "tacan";
    QTest::newRow("VOR DME") << vor.arg("ABC4FR") << "vorDme";
    QTest::newRow("VORTAC") << vor.arg("ABC6FR") << "vortac";
    QTest::newRow("another of its key") << vor.arg("ABC4FR2") << "vorDme";
    QTest::newRow("digits in the identifier") << vor.arg("A1B24FR") << "vorDme";
    QTest::newRow("a key of no type") << vor.arg("ABCFR") << "vor";
    QTest::newRow("a type of no button") << vor.arg("ABC0FR") << "vor";
    QTest::newRow("no key") << vor.arg("") << "vor";
    QTest::newRow("NDB") << ndb.arg("AB5FR") << "ndbRoute";
    QTest::newRow("NDB terminal") << term.arg("AB5FR") << "ndbTerminal";
    QTest::newRow("NDB DME") << ndb.arg("AB7FR") << "ndbDmeRoute";
    QTest::newRow("NDB DME terminal") << term.arg("AB7FR") << "ndbDmeTerminal";
}

void TestPageEdits::aNewNavaidHasTheSymbolOfItsKey()
{
    QFETCH(QString, script);
    QFETCH(QString, symbol);
    QCOMPARE(window->run(script + ".symbol").toString(), symbol);
    QVERIFY(isDrawn(46.7, 2.3));
    QCOMPARE(window->page->messages, QStringList());
}

void TestPageEdits::aDmeIsJoinedToItsNdbByEdits()
{
    const auto symbols = [this] { return window->run("listVOR.map(marker => marker.symbol)").toStringList(); };
    window->run(R"(addVORMarker(new google.maps.LatLng(46.70000, 2.30000),"MT-MT3FR",16,"<b>VOR MT</b><br/>x");)"
                R"(addNavMgr();VORMgr.addMarkers(listVOR))");
    QCOMPARE(symbols(), QStringList{"dme"});
    const QImage alone = symbolAt(46.7, 2.3);
    const QString ndb = "addNDBMarker2(new google.maps.LatLng(%1, 2.30000),\"MT-MT5FR\",3,\"<b>NDB MT</b><br/>x\")";
    window->run(ndb.arg("46.70300"));
    QCOMPARE(symbols(), QStringList{"dmeNdb"});
    // The NDB goes elsewhere, comes back, and is deleted.
    window->run(ndb.arg("46.20000"));
    QCOMPARE(symbols(), QStringList{"dme"});
    QCOMPARE(symbolAt(46.7, 2.3), alone);
    window->run(ndb.arg("46.70300"));
    QCOMPARE(symbols(), QStringList{"dmeNdb"});
    window->run("theLast = listNDBRte[0]; delNavaid();");
    QCOMPARE(symbols(), QStringList{"dme"});
    QCOMPARE(symbolAt(46.7, 2.3), alone);
    // An edit of the DME itself.
    window->run(ndb.arg("46.20000"));
    window->run(R"(addVORMarker2(new google.maps.LatLng(46.20300, 2.30000),"MT-MT3FR",3,"<b>VOR MT</b><br/>x"))");
    QCOMPARE(symbols(), QStringList{"dmeNdb"});
}

void TestPageEdits::thousandsOfBeaconsAreJoined()
{
    // Each pair has its own identifier; the last DME has none of the NDBs beside it.
    window->run("for (let i = 0; i < 3000; ++i) {"
                "const place = new google.maps.LatLng(40 + i % 50 * 0.2, Math.floor(i / 50) * 0.2);"
                "addVORMarker(place, `B${i}-B${i}3FR`, 16, `<b>VOR B${i}</b><br/>x`);"
                "addNDBMarker(place, `B${i}-B${i}5FR`, 3, `<b>NDB B${i}</b><br/>x`); }"
                "addVORMarker(new google.maps.LatLng(40, 0), 'C-C3FR', 16, '<b>VOR C</b><br/>x');addNavMgr()");
    QCOMPARE(window->run("listVOR.filter(marker => marker.symbol === 'dmeNdb').length").toInt(), 3000);
    QCOMPARE(window->run("listVOR[3000].symbol").toString(), "dme");
    QCOMPARE(window->page->messages, QStringList());
}

void TestPageEdits::anotherKeyIsAnotherMarker()
{
    window->run(R"(addWPTMarker2(new google.maps.LatLng(46.40000, 2.30000),"ABLAN-ABLANFR",1,"x"))");
    window->run(R"(addWPTMarker2(new google.maps.LatLng(46.70000, 2.30000),"ABLAN-ABLANES",1,"x"))");
    window->run(R"(addWPTMarker2(new google.maps.LatLng(46.70000, 2.40000),"ABLAN-",1,"x"))");
    window->run(R"(addWPTMarker2(new google.maps.LatLng(46.70000, 2.50000),"BALAN-",1,"x"))");
    QCOMPARE(titles("listWptRte"), (QStringList{"ABLAN-ABLANFR", "ABLAN-ABLANES", "ABLAN-", "BALAN-"}));
}

void TestPageEdits::aWaypointWithAHyphenIsKnownByItsWholeTitle()
{
    const QString place = "(new google.maps.LatLng(46.70000, 2.30000),\"%1\",1,\"x\")";
    // The feed's marker, then one whose title ends in the same letters, then one whose whole key are those letters.
    window->run("addWPTMarker" + place.arg("AB-CD-AB-CDFR"));
    window->run("addWPTMarker2" + place.arg("XY-CD-XY-CDFR"));
    window->run("addWPTMarker2" + place.arg("CD-CDFR"));
    QCOMPARE(titles("listWptRte"), (QStringList{"AB-CD-AB-CDFR", "XY-CD-XY-CDFR", "CD-CDFR"}));
    window->run("addWPTMarker2" + place.arg("AB-CD-AB-CDFR"));
    QCOMPARE(titles("listWptRte"), (QStringList{"XY-CD-XY-CDFR", "CD-CDFR", "AB-CD-AB-CDFR"}));
    window->run("addWPTMarker2" + place.arg("NEW-CDFR"));
    QCOMPARE(titles("listWptRte"), (QStringList{"XY-CD-XY-CDFR", "AB-CD-AB-CDFR", "NEW-CDFR"}));
}

void TestPageEdits::aNavaidWithAHyphenIsKnownByItsKey()
{
    window->run(R"(addVORMarker(new google.maps.LatLng(46.40000, 3.90000),"SYN-SYN1FR",1,"x"))");
    window->run(R"(addVORMarker2(new google.maps.LatLng(46.40000, 3.90000),"SAINT-YAN-SYN1FR",1,"x"))");
    QCOMPARE(titles("listVOR"), QStringList{"SAINT-YAN-SYN1FR"});
    window->run(R"(addVORMarker2(new google.maps.LatLng(46.40000, 3.90000),"ST-YAN-SYN1FR",1,"x"))");
    QCOMPARE(titles("listVOR"), QStringList{"ST-YAN-SYN1FR"});
}

void TestPageEdits::aNavaidIsNotTakenForAWaypoint()
{
    window->run(R"(addWPTMarker2(new google.maps.LatLng(46.40000, 2.30000),"A-KEY",1,"x"))");
    window->run(R"(addVORMarker2(new google.maps.LatLng(46.70000, 2.30000),"A-KEY",1,"x"))");
    QCOMPARE(titles("listWptRte"), QStringList{"A-KEY"});
    QCOMPARE(titles("listVOR"), QStringList{"A-KEY"});
    // A beacon that has become a VOR is the same navaid.
    window->run(R"(addNDBMarker2(new google.maps.LatLng(46.70000, 2.30000),"A-KEY",4,"x"))");
    QCOMPARE(titles("listVOR"), QStringList());
    QCOMPARE(titles("listNDBTerm"), QStringList{"A-KEY"});
}

void TestPageEdits::deletingRemovesTheMarkerLastUsed_data()
{
    QTest::addColumn<QString>("add");
    QTest::addColumn<QString>("list");
    QTest::addColumn<QString>("script");

    const QString place = "(new google.maps.LatLng(46.70000, 2.30000),\"A-AFR\",%1,\"x\")";
    QTest::newRow("VOR") << "addVORMarker2" + place.arg(1) << "listVOR"
                         << "delNavaid();theLast == null;";
    QTest::newRow("NDB") << "addNDBMarker2" + place.arg(1) << "listNDBRte"
                         << "delNavaid();theLast == null;";
    QTest::newRow("NDB terminal") << "addNDBMarker2" + place.arg(4) << "listNDBTerm"
                                  << "delNavaid();theLast == null;";
    QTest::newRow("waypoint") << "addWPTMarker2" + place.arg(1) << "listWptRte"
                              << "delWaypoint();theLast == null;";
    QTest::newRow("waypoint terminal") << "addWPTMarker2" + place.arg(4) << "listWptTerm"
                                       << "delWaypoint();theLast == null;";
    QTest::newRow("waypoint VFR") << "addWPTMarker2" + place.arg(6) << "listWptVfr"
                                  << "delWaypoint();theLast == null;";
}

void TestPageEdits::deletingRemovesTheMarkerLastUsed()
{
    QFETCH(QString, add);
    QFETCH(QString, list);
    QFETCH(QString, script);
    window->run(add);
    window->settle();
    window->menuAt(46.7, 2.3);
    QCOMPARE(window->run("theLast === " + list + "[0]").toBool(), true);
    window->closeMenu();
    window->run(script);
    QCOMPARE(window->run(list + ".length").toInt(), 0);
    QVERIFY(!isDrawn(46.7, 2.3));
}

void TestPageEdits::deletingWithoutAMarkerDoesNothing()
{
    window->run(R"(addVORMarker2(new google.maps.LatLng(46.70000, 2.30000),"A-A4FR",1,"x"))");
    window->run("delNavaid();theLast == null;");
    window->run("delWaypoint();theLast == null;");
    QCOMPARE(titles("listVOR"), QStringList{"A-A4FR"});
    QCOMPARE(window->page->messages, QStringList());
}

void TestPageEdits::deletingTwiceRemovesOne()
{
    window->run(R"(addVORMarker2(new google.maps.LatLng(46.70000, 2.30000),"A-A4FR",1,"x");)"
                R"(addVORMarker2(new google.maps.LatLng(46.40000, 2.30000),"B-B4FR",1,"x"))");
    window->settle();
    window->click(46.7, 2.3);
    window->run("delNavaid();theLast == null;");
    window->run("delNavaid();theLast == null;");
    QCOMPARE(titles("listVOR"), QStringList{"B-B4FR"});
}

void TestPageEdits::aDeletedMarkerDoesNotComeBackWithItsLayer()
{
    window->run(R"(addVORMarker2(new google.maps.LatLng(46.70000, 2.30000),"A-A4FR",1,"x"))");
    window->settle();
    window->click(46.7, 2.3);
    window->run("delNavaid();theLast == null;");
    window->run("VORMgr.clearMarkers()");
    window->run("VORMgr.addMarkers(listVOR)");
    QVERIFY(!isDrawn(46.7, 2.3));
}

void TestPageEdits::aDamagedSingleMarkerIsLeftOut()
{
    window->run(R"(addVORMarker2(new google.maps.LatLng(nan, 2.30000),"A-A4FR",1,"x");)"
                R"(addWPTMarker2(new google.maps.LatLng(46.70000,inf),"A-AFR",1,"x");)"
                R"(addNDBMarker2(new google.maps.LatLng(46.70000, 2.30000),"B-B5FR",1,"x"))");
    QCOMPARE(titles("listVOR"), QStringList());
    QCOMPARE(titles("listWptRte"), QStringList());
    QCOMPARE(titles("listNDBRte"), QStringList{"B-B5FR"});
    QCOMPARE(window->page->messages, QStringList());
}

void TestPageEdits::editsAreFoundFromNear_data()
{
    QTest::addColumn<double>("zoom");
    for (double zoom : {8.0, 14.0})
        QTest::addRow("zoom %g", zoom) << zoom;
}

void TestPageEdits::editsAreFoundFromNear()
{
    QFETCH(double, zoom);
    window->run(QString("map.setZoom(%1)").arg(zoom));
    window->run("addWPTMarker2(new google.maps.LatLng(46.50000, 2.50000),\"A-A1\",1,\"first\")");
    window->settle();
    window->click(46.5, 2.5);
    QCOMPARE(window->popupText(), "first");
    // What comes and goes after the pointer has looked for something is found, or no more, like the rest.
    const double beside = zoom > 10 ? 2.51 : 2.9;
    window->run(QString("addWPTMarker2(new google.maps.LatLng(46.50000, %1),\"B-B1\",1,\"second\")").arg(beside));
    window->settle();
    window->click(46.5, beside);
    QCOMPARE(window->popupText(), "second");
    window->run("delWaypoint();theLast == null;");
    window->settle();
    window->click(46.5, beside);
    QCOMPARE(window->popupText(), "");
    window->click(46.5, 2.5);
    QCOMPARE(window->popupText(), "first");
}

void TestPageEdits::theNextFeedDrawsTheSameSymbol_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("symbol");
    // The types are those that the dialog stores.
    QTest::newRow("VOR") << "ABC1FR" << 1 << "vor";
    QTest::newRow("TACAN") << "ABC2FR" << 5 << "tacan";
    QTest::newRow("VOR DME") << "ABC4FR" << 17 << "vorDme";
}

void TestPageEdits::theNextFeedDrawsTheSameSymbol()
{
    QFETCH(QString, key);
    QFETCH(int, type);
    QFETCH(QString, symbol);
    window->run(QString("addVORMarker2(new google.maps.LatLng(46.70000, 2.30000),\"NAME-%1\",3,\"x\")").arg(key));
    QCOMPARE(window->run("listVOR[0].symbol").toString(), symbol);
    window->run(
        QString("listVOR.length = 0;addVORMarker(new google.maps.LatLng(46.70000, 2.30000),\"ABC-%1\",%2,\"x\");"
                "addVORMarker(new google.maps.LatLng(46.70000, 2.40000),\"DEF-DEF6FR\",5,\"x\");addNavMgr()")
            .arg(key)
            .arg(type));
    QCOMPARE(window->run("listVOR[0].symbol").toString(), symbol);
    // The same type under another key.
    QCOMPARE(window->run("listVOR[1].symbol").toString(), QString("vortac"));
}

void TestPageEdits::aRenamedWaypointTakesThePlaceOfItsMarker()
{
    window->run(R"(addWPTMarker(new google.maps.LatLng(46.70000, 2.30000),"WY-WXFR",6,"x");addWptMgr();)"
                R"(WPTVfrMgr.addMarkers(listWptVfr))");
    window->settle();
    // The dialog's script comes before the slot has returned.
    connect(program.data(), &ProgramSide::called, window.data(), [this](const QString& call) {
        if (call.startsWith("sAddWptToDB"))
            window->run(R"(addWPTMarker2(new google.maps.LatLng(46.70000, 2.30000),"W-X-WXFR",6,"x"))");
    });
    window->menuAt(46.7, 2.3);
    QVERIFY(window->chooseEntry("Modifier le waypoint…"));
    QCOMPARE(titles("listWptVfr"), QStringList{"W-X-WXFR"});
}

void TestPageEdits::aNewWaypointDuringNoEditTakesNobodysPlace()
{
    window->run(R"(addWPTMarker(new google.maps.LatLng(46.70000, 2.30000),"W-X-WXFR",6,"x");addWptMgr();)"
                R"(WPTVfrMgr.addMarkers(listWptVfr))");
    window->settle();
    window->click(46.7, 2.3);
    connect(program.data(), &ProgramSide::called, window.data(), [this](const QString& call) {
        if (call.startsWith("sAddWptToDB"))
            window->run(R"(addWPTMarker2(new google.maps.LatLng(46.40000, 2.30000),"WX-WXFR",6,"x"))");
    });
    window->menuAt(46.4, 2.3);
    QVERIFY(window->chooseEntry("Nouveau waypoint ici…"));
    QCOMPARE(titles("listWptVfr"), (QStringList{"W-X-WXFR", "WX-WXFR"}));
}

void TestPageEdits::anEmptyTitleIsOneMarker()
{
    // Neither name nor key: the row without a key is replaced each time.
    for (const char* place : {"46.40000, 2.30000", "46.70000, 2.30000", "46.70000, 2.60000"})
        window->run(QString("addWPTMarker2(new google.maps.LatLng(%1),\"-\",1,\"x\")").arg(place));
    QCOMPARE(titles("listWptRte"), QStringList{"-"});
    QVERIFY(isDrawn(46.7, 2.6));
    QVERIFY(!isDrawn(46.4, 2.3));
}

QTEST_MAIN(TestPageEdits)
#include "tst_pageedits.moc"
