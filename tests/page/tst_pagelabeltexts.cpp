// What the labels say, at which zoom, and how they are written.
#include "labeltest.h"

#include <QtTest>

class TestPageLabelTexts : public LabelTest
{
    Q_OBJECT

private slots:
    void aClickedVorTellsItsNameAroundItsRose();
    void aLabelTellsMoreFromNear();
    void aTextWithoutAKindIsLabelledByItsTitle_data();
    void aTextWithoutAKindIsLabelledByItsTitle();
    void aLabelIsText();
    void aWaypointsUsageIsNoPartOfItsName_data();
    void aWaypointsUsageIsNoPartOfItsName();
    void whatIsWrittenAsAnEntityIsRead();
    void aNameStandsOnceUnderAShownProcedure();
    void allLabelsHaveOneFace();
    void theServiceIsToldAPlaceBelowEachSymbol_data();
    void theServiceIsToldAPlaceBelowEachSymbol();
    void theLookOfAMarkerIsMadeOfOptionsAlone();
    void aLabelHasARimAgainstWhatLiesBelow();
};

void TestPageLabelTexts::aClickedVorTellsItsNameAroundItsRose()
{
    window->run("addVORMarker(new google.maps.LatLng(46.50000, 2.50000),\"ABC-K\",1,"
                "\"<font color=blue><b>VOR ABC</b><font color=black><br/>BEACON<br/>113.7 Mhz<br/>x\");"
                "addNavMgr();VORMgr.addMarkers(listVOR)");
    QCOMPARE(labels(), QStringList{"ABC"});
    window->run("page.choose(listVOR[0])");
    QStringList texts = labels();
    texts.sort();
    QCOMPARE(texts, (QStringList{"113.7\nBEACON", "ABC"}));
    window->run("page.choose(null)");
    QCOMPARE(labels(), QStringList{"ABC"});
}

void TestPageLabelTexts::aLabelTellsMoreFromNear()
{
    addAirport("LFXX", 46.5, 2.5);
    window->run("addVORMarker(new google.maps.LatLng(46.60000, 2.30000),\"ABC-K\",1,"
                "\"<font color=blue><b>VOR ABC</b><font color=black><br/>BEACON<br/>113.7 Mhz<br/>x\");"
                "addWPTMarker(new google.maps.LatLng(46.40000, 2.30000),\"POINT-K\",1,"
                "\"<font color=blue><b>Waypoint POINT</b><font color=black><br/>POINT (1)<br/>x\");"
                "pushAPT();addNavMgr();addWptMgr();VORMgr.addMarkers(listVOR);WPTRteMgr.addMarkers(listWptRte)");
    QStringList texts = labels();
    texts.sort();
    QCOMPARE(texts, (QStringList{"ABC", "LFXX", "POINT"}));
    window->run("map.setZoom(10)");
    texts = labels();
    texts.sort();
    // The VOR has its identifier inside its rose, the rest outside.
    QCOMPARE(texts, (QStringList{"113.7\nBEACON", "ABC", "LFXX\nFIELD", "POINT"}));
}

void TestPageLabelTexts::aTextWithoutAKindIsLabelledByItsTitle_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("html");
    QTest::addColumn<QString>("label");
    QTest::newRow("empty") << "POINT-KEYFR"
                           << ""
                           << "POINT";
    QTest::newRow("one word") << "POINT-KEYFR"
                              << "<b>Waypoint</b>"
                              << "POINT";
    QTest::newRow("kind without identifier") << "POINT-KEYFR"
                                             << "<b>Waypoint </b>"
                                             << "POINT";
    QTest::newRow("blanks in the identifier") << "A B-KEYFR"
                                              << "<b>Waypoint A B</b><br/>x"
                                              << "A B";
}

void TestPageLabelTexts::aTextWithoutAKindIsLabelledByItsTitle()
{
    QFETCH(QString, title);
    QFETCH(QString, html);
    QFETCH(QString, label);
    window->run(QString("addWPTMarker(new google.maps.LatLng(46.50000, 2.50000),\"%1\",1,\"%2\");addWptMgr();"
                        "WPTRteMgr.addMarkers(listWptRte)")
                    .arg(title, html));
    QCOMPARE(labels(), QStringList{label});
    window->run("map.setZoom(13)");
    QCOMPARE(labels().first().section('\n', 0, 0), label);
    QCOMPARE(window->page->messages, QStringList());
}

void TestPageLabelTexts::aLabelIsText()
{
    addAirport("<i>X</i>", 46.5, 2.5);
    window->run("pushAPT();");
    QCOMPARE(labels(), QStringList{"X"});
    QCOMPARE(window->run("document.querySelectorAll('i').length").toInt(), 0);
}

void TestPageLabelTexts::aWaypointsUsageIsNoPartOfItsName_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("name");
    // A number in the feed, a word in what the dialog sends.
    for (const char* usage : {"1", "3", "12", "", "High", "Low", "High/Low", "Terminal", "RNAV", "VFR"})
        QTest::addRow("(%s)", usage) << QString("SAINT YAN (%1)").arg(usage) << "SAINT YAN";
    QTest::newRow("a word of the name itself") << "SAINT YAN (Nord) (3)"
                                               << "SAINT YAN (Nord)";
    QTest::newRow("nothing but a word of the name") << "SAINT YAN (Nord)"
                                                    << "SAINT YAN (Nord)";
}

void TestPageLabelTexts::aWaypointsUsageIsNoPartOfItsName()
{
    QFETCH(QString, line);
    QFETCH(QString, name);
    window->run("addWPTMarker2(new google.maps.LatLng(46.50000, 2.50000),\"SAINT YAN-SAINTFR\",1,\"<font color=blue><b>"
                "Waypoint SAIN</b><font color=black><br/>" +
                line + "<br/>46 30 00 N - 002 30 00 E\")");
    window->run("map.setZoom(13)");
    QCOMPARE(labels(), QStringList{"SAIN\n" + name});
    QCOMPARE(window->run("page.nameOf(listWptRte[0])").toString(), name);
    QCOMPARE(window->run("page.describe(listWptRte[0]).lines").toStringList(), QStringList{name});
}

void TestPageLabelTexts::whatIsWrittenAsAnEntityIsRead()
{
    window->run(
        "addAPTMarker(new google.maps.LatLng(46.50000, 2.50000),\"LFXX\",1,\"<font color=blue><b>Airport L&amp;F"
        "</b><font color=black><br/>A &lt; B<br/>46 30 00 N - 002 30 00 E\");pushAPT();");
    QCOMPARE(labels(), QStringList{"L&F"});
    window->run("map.setZoom(13)");
    QCOMPARE(labels(), QStringList{"L&F\nA < B"});
}

void TestPageLabelTexts::aNameStandsOnceUnderAShownProcedure()
{
    addAirport("LFXX", 46.5, 2.5);
    window->run("addWPTMarker(new google.maps.LatLng(46.3, 2.2),\"PG101-K\",1,\"<b>Waypoint PG101</b>\");"
                "addWPTMarker(new google.maps.LatLng(46.3, 2.8),\"OTHER-K\",1,\"<b>Waypoint OTHER</b>\");"
                "pushAPT();addWptMgr();WPTRteMgr.addMarkers(listWptRte)");
    const auto coloured = [this] {
        window->settle();
        QStringList all = window
                              ->run("Array.from(map.points.declutter.kept.keys()).map(point =>"
                                    "point.look.label.text + ' ' + Object.keys(page.palette).find(name =>"
                                    "page.palette[name] === point.look.label.color))")
                              .toStringList();
        all.sort();
        return all;
    };
    const QStringList chart{"LFXX airport", "OTHER waypoint", "PG101 waypoint"};
    QCOMPARE(coloured(), chart);
    // The place of OTHER has another name in the procedure.
    window->run("addPointToSS(new google.maps.LatLng(46.5, 2.5), 'LFXX');"
                "addPointToSS(new google.maps.LatLng(46.3, 2.2), 'PG101');"
                "addPointToSS(new google.maps.LatLng(46.3, 2.8), 'D12.0');");
    QCOMPARE(coloured(), (QStringList{"D12.0 procedure", "LFXX procedure", "OTHER waypoint", "PG101 procedure"}));
    window->run("addPointToFp(new google.maps.LatLng(46.5, 2.5), 'FIELD');pushFP();");
    QCOMPARE(coloured(), (QStringList{"D12.0 procedure", "LFXX route", "OTHER waypoint", "PG101 procedure"}));
    window->run("clearFP()");
    QCOMPARE(coloured(), (QStringList{"D12.0 procedure", "LFXX procedure", "OTHER waypoint", "PG101 procedure"}));
    window->run("clearSS()");
    QCOMPARE(coloured(), chart);
}

void TestPageLabelTexts::allLabelsHaveOneFace()
{
    addAirport("LFXX", 46.6, 2.5);
    window->run("pushAPT();addPointToSS(new google.maps.LatLng(46.4, 2.2), 'PG101');"
                "addPointToFp(new google.maps.LatLng(46.4, 2.8), 'WPT01');pushFP();"
                "page.startMeasure(new google.maps.LatLng(46.1, 2.0), '');"
                "page.measureTo(new google.maps.LatLng(46.1, 3.0), '');");
    QVERIFY(labels().size() >= 4);
    const QStringList faces =
        window
            ->run("Array.from(new Set(Array.from(map.points.declutter.kept.keys()).map(p => p.look.label.fontFamily)))")
            .toStringList();
    QCOMPARE(faces, QStringList("\"Liberation Sans\", Arial, Helvetica, sans-serif"));
}

void TestPageLabelTexts::theServiceIsToldAPlaceBelowEachSymbol_data()
{
    QTest::addColumn<QString>("symbol");
    QTest::addColumn<double>("least");
    QTest::newRow("airport") << "page.symbolOf({ symbol: 'airport' }, 'symbol', 1)" << 15.0;
    QTest::newRow("airport, small") << "page.symbolOf({ symbol: 'airport' }, 'symbol', 0.5)" << 23.0;
    QTest::newRow("VOR, a sign") << "page.symbolOf({ symbol: 'vor' }, 'sign', 0.5)" << 10.0;
    QTest::newRow("a point of a procedure") << "page.procedure.point" << 10.0;
}

void TestPageLabelTexts::theServiceIsToldAPlaceBelowEachSymbol()
{
    QFETCH(QString, symbol);
    QFETCH(double, least);
    QVERIFY(window->run(symbol + ".labelOrigin.y").toDouble() >= least);
    QCOMPARE(window->run(symbol + ".labelOrigin.x").toDouble(), 0.0);
}

void TestPageLabelTexts::theLookOfAMarkerIsMadeOfOptionsAlone()
{
    // A service reads what it is given with all that can be listed, and refuses what it does not know.
    window->run("addVORMarker(new google.maps.LatLng(46.5, 2.5), 'ABC-ABC4FR', 17, '<b>VOR ABC</b>');addNavMgr();"
                "var look = page.looksAt(12, () => 1).of(listVOR[0], false), names = [];"
                "for (var name in look) names.push(name);");
    QCOMPARE(window->run("names.sort()").toStringList(), (QStringList{"icon", "label", "zIndex"}));
    QCOMPARE(window->run("Object.keys(Object.assign({}, look)).sort()").toStringList(),
             (QStringList{"icon", "label", "zIndex"}));
    QCOMPARE(window->run("Object.assign({}, look).label.text").toString(), "ABC");
    QVERIFY(window->run("look.label === look.label").toBool());
}

void TestPageLabelTexts::aLabelHasARimAgainstWhatLiesBelow()
{
    // Upon the sea, which is darker than the rim.
    window->run("map.setCenter(new google.maps.LatLng(45.00000,-20.00000));");
    addAirport("LFHM", 45, -20);
    window->run("pushAPT();");
    const QColor sea(window->run("page.palette.sea").toString());
    window->settle();
    const QImage image = window->view->grab().toImage();
    int lighter = 0;
    for (int y = 285; y < 315; ++y)
        for (int x = 412; x < 450; ++x)
            lighter += qGray(image.pixel(x, y)) > qGray(sea.rgb()) + 8 ? 1 : 0;
    QVERIFY2(lighter > 90, qPrintable(QString::number(lighter)));
}

QTEST_MAIN(TestPageLabelTexts)
#include "tst_pagelabeltexts.moc"
