// What the base map names: cities, countries and seas.
#include "basemaptest.h"

#include <QtTest>

class TestPageNames : public BaseMapTest
{
    Q_OBJECT

private slots:
    void citiesAreNamedByZoom();
    void theListsOfNamesAreWhole();
    void aSeaIsNotNamedTwiceSideBySide();
    void namesDoNotOverlap();
    void namesComeInThePagesLanguage();
    void aNameStaysWhileTheMapMoves();
    void aNameRunsOverTheDateLine();
    void namesThatComeOneByOneShareCanvases();
    void noPictureIsKeptOfAnotherPalette();
    void aNameIsWholeOnASharedCanvas();
    void everyCityIsAtItsPlace_data();
    void everyCityIsAtItsPlace();

private:
    /// The names that have room anywhere in the world at the zoom.
    QStringList names()
    {
        return window->run("map.base.names.placed.map(place => place.name.text)").toStringList();
    }
    /// Shows the places of cities one after the other. A new zoom is painted after its script, another place at once.
    void visitCities(int count)
    {
        window->run("map.setZoom(8)");
        window->settle();
        window->run(QString("worldNames.filter(n => n[0] === 'city').slice(0, %1)"
                            ".forEach(n => map.setCenter(new google.maps.LatLng(n[3], n[4])))")
                        .arg(count));
    }
    /// How many names have been drawn, and how many canvases hold them.
    int drawnNames()
    {
        return window->run("map.base.names.all.filter(name => name.picture).length").toInt();
    }
    int nameCanvases()
    {
        return window
            ->run("new Set(map.base.names.all.filter(name => name.picture).map(name => name.picture.canvas)).size")
            .toInt();
    }
};

void TestPageNames::citiesAreNamedByZoom()
{
    look(46.8, 2.4, 3);
    QVERIFY(!names().contains("Paris"));
    look(46.8, 2.4, 5);
    QVERIFY(names().contains("Paris") && names().contains("Lyon"));
    QVERIFY(!names().contains("Bourges"));
    look(46.8, 2.4, 7);
    QVERIFY(names().contains("Bourges"));
    QVERIFY(!names().contains("Vichy"));
    look(46.8, 2.4, 8);
    QVERIFY(names().contains("Vichy"));
}

void TestPageNames::aSeaIsNotNamedTwiceSideBySide()
{
    for (const double zoom : {2.0, 3.0}) {
        look(30, 180, zoom);
        QCOMPARE(names().count("Océan Pacifique nord"), 1);
    }
    look(36, 15, 4);
    QCOMPARE(names().count("Mer Méditerranée"), 1);
    // A view from nearer has room for one of its two basins alone.
    look(36, 15, 5);
    QCOMPARE(names().count("Mer Méditerranée"), 2);
}

void TestPageNames::theListsOfNamesAreWhole()
{
    // Kind, first and last zoom, latitude, longitude, English and French name, rank.
    const QString wrong = "worldNames.filter(n => ['city', 'country', 'sea'].indexOf(n[0]) < 0 || !(n[1] < n[2])"
                          " || !(Math.abs(n[3]) < 85) || !(Math.abs(n[4]) <= 180) || !n[5].trim() || !n[6].trim()"
                          " || (n[0] === 'city') !== (n[7] >= 1 && n[7] <= 5)).map(n => n.join())";
    QCOMPARE(window->run(wrong).toStringList(), QStringList());
    const QString doubled = "var seen = {}; worldNames.map(n => n.slice(3, 6).join()).filter(key => {"
                            "  const twice = seen[key]; seen[key] = true; return twice; })";
    QCOMPARE(window->run(doubled).toStringList(), QStringList());
    const auto count = [this](const QString& kind) {
        return window->run("worldNames.filter(n => n[0] === '" + kind + "').length").toInt();
    };
    QVERIFY(count("city") > 700);
    QVERIFY(count("country") > 120);
    QVERIFY(count("sea") > 100);
    const QStringList countries =
        window->run("worldNames.filter(n => n[0] === 'country').map(n => n[6])").toStringList();
    for (const char* name : {"France", "Allemagne", "États-Unis", "Russie", "RD Congo", "Nouvelle-Zélande"})
        QVERIFY2(countries.contains(name), name);
}

void TestPageNames::namesDoNotOverlap()
{
    for (double zoom : {3.0, 4.5, 6.0, 8.0}) {
        look(46.8, 2.4, zoom);
        const QString overlaps = "var all = map.base.names.placed, found = [];"
                                 "all.forEach((a, i) => all.slice(i + 1).forEach(b => {"
                                 "  if (a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom)"
                                 "    found.push(a.name.text + ' ' + b.name.text); }));";
        QCOMPARE(window->run(overlaps + "found").toStringList(), QStringList());
        QVERIFY(window->run("map.base.names.placed.length").toInt() > 20);
    }
}

void TestPageNames::namesComeInThePagesLanguage()
{
    look(51.5, -0.1, 6.5);
    QVERIFY(names().contains("Londres"));
    QVERIFY(!names().contains("London"));
    QVERIFY(window->load("gm_trajector_en.html"));
    look(51.5, -0.1, 6.5);
    QVERIFY(names().contains("London"));
    QVERIFY(!names().contains("Londres"));
}

void TestPageNames::aNameStaysWhileTheMapMoves()
{
    look(46.8, 2.4, 6);
    const QString where = "map.base.names.placed.map(p => [p.name.text, p.letters, p.y].join()).join('|')";
    const QString before = window->run(where).toString();
    window->mouse->drag({400, 300}, {313, 251});
    QCOMPARE(window->run(where).toString(), before);
    look(-20, 130, 6);
    look(46.8, 2.4, 6);
    QCOMPARE(window->run(where).toString(), before);
}

void TestPageNames::aNameRunsOverTheDateLine()
{
    // The Bering Sea's name stands on both sides of 180 degrees, and is whole from either.
    for (double centre : {180.0, -180.0}) {
        look(58, centre, 5);
        QVERIFY(window->pixelsAround(58, centre - 1, 10, sea) < 21 * 21 - 40);
        QVERIFY(window->pixelsAround(58, centre + 1, 10, sea) < 21 * 21 - 40);
    }
}

void TestPageNames::namesThatComeOneByOneShareCanvases()
{
    visitCities(100);
    QVERIFY2(drawnNames() > 60, qPrintable(QString::number(drawnNames())));
    // A dozen names fill one.
    QVERIFY2(nameCanvases() * 8 < drawnNames(), qPrintable(QString::number(nameCanvases())));
}

void TestPageNames::noPictureIsKeptOfAnotherPalette()
{
    visitCities(20);
    QVERIFY(drawnNames() > 40);
    window->run(
        "var former = new Set(map.base.names.all.filter(name => name.picture).map(name => name.picture.canvas));"
        "page.setPalette('night')");
    window->settle();
    QVERIFY(drawnNames() > 0);
    // Nor of the names that are not in view.
    QCOMPARE(window->run("map.base.names.all.filter(name => name.picture && former.has(name.picture.canvas)).length"),
             QVariant(0.0));
}

void TestPageNames::aNameIsWholeOnASharedCanvas()
{
    // Drawn among many at once, and as the last of many that came one by one.
    look(48.86, 2.35, 8);
    window->settle();
    const QImage first = window->view->grab().toImage();
    window->run("page.setPalette('night')");
    window->settle();
    window->run("page.setPalette('day')");
    visitCities(60);
    look(48.86, 2.35, 8);
    window->settle();
    QCOMPARE(window->view->grab().toImage(), first);
}

void TestPageNames::everyCityIsAtItsPlace_data()
{
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("longitude");
    QTest::newRow("Paris") << 48.86 << 2.35;
    QTest::newRow("Genève") << 46.20 << 6.15;
    QTest::newRow("Suva") << -18.14 << 178.44;
    QTest::newRow("Ushuaia") << -54.80 << -68.30;
    QTest::newRow("Nukuʻalofa") << -21.14 << -175.20;
}

void TestPageNames::everyCityIsAtItsPlace()
{
    QFETCH(double, latitude);
    QFETCH(double, longitude);
    look(latitude, longitude, 8);
    QVERIFY(window->pixelsAround(latitude, longitude, 2, QColor("#6f675a")) >= 4);
}

QTEST_MAIN(TestPageNames)
#include "tst_pagenames.moc"
