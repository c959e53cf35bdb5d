// Course, distance and arrow on the legs of the plan's route.
#include "pagetest.h"

#include <QtTest>

class TestPageLegs : public LonePageTest
{
    Q_OBJECT

private slots:
    void eachLegTellsCourseAndDistance_data();
    void eachLegTellsCourseAndDistance();
    void aShortLegHasAnArrowAlone();
    void aVeryShortLegHasNothing();
    void twoPointsAtOnePlaceAreNoLeg();
    void theTextsComeAndGoWithTheZoom();
    void theTextsGoWithTheRoute();
    void aProcedureHasNoTexts();
    void aTextStandsUprightAboveItsLeg_data();
    void aTextStandsUprightAboveItsLeg();
    void aTextOnAMeridianGoesUp_data();
    void aTextOnAMeridianGoesUp();
    void aTextSparesTheSymbolsOfTheChart();
    void aTextSparesVorsOfAWholeCountry();
    void aTextSparesRunways();
    void aTextStandsOffTheStart();
    void theLabelsOfTheChartSpareTheTexts();
    void aTextStandsOffARose();
    void thereAndBackHaveATextEach();
    void manyLegsAtOnePlaceHaveNoHeapOfTexts();
    void aLegFarBeyondTheViewKeepsItsTextInIt();
    void theTextFollowsTheViewAlongItsLeg();
    void aTextAtTheEdgeOfTheViewIsWhole_data();
    void aTextAtTheEdgeOfTheViewIsWhole();
    void theTextOfALegOverTheDateLineStandsOnIt();
    void theTextOfALegOverThePoleStandsWhereItIsDrawn();
    void theTextsTakeTheColoursOfTheNight();

private:
    void draw(const QList<QPointF>& points);
    QStringList texts();
    int arrows()
    {
        return window->run("document.querySelectorAll('.leg-arrow').length").toInt();
    }
    /// How many pixels of a colour lie in a box of the view.
    int pixels(const QRect& area, const QColor& colour);
};

namespace {

const char routeColour[] = "#c2185b";
const char nightColour[] = "#e8639d";

} // namespace

/// Draws a plan over points of latitude and longitude in degrees.
void TestPageLegs::draw(const QList<QPointF>& points)
{
    QStringList script{"clearFP()"};
    for (const QPointF& point : points)
        script << QString("addPointToFp(new google.maps.LatLng(%1,%2),\"\")")
                      .arg(point.x(), 3, 'f', 5)
                      .arg(point.y(), 3, 'f', 5);
    window->run((script << "pushFP();").join(';'));
    window->settle();
}

QStringList TestPageLegs::texts()
{
    return window->run("Array.from(document.querySelectorAll('.leg-text')).map(e => e.getAttribute('data-text'))")
        .toStringList();
}

int TestPageLegs::pixels(const QRect& area, const QColor& colour)
{
    window->settle();
    const QImage image = window->view->grab().toImage();
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            count += image.pixelColor(x, y) == colour ? 1 : 0;
    return count;
}

void TestPageLegs::eachLegTellsCourseAndDistance_data()
{
    QTest::addColumn<QPointF>("from");
    QTest::addColumn<QPointF>("to");
    QTest::addColumn<double>("zoom");
    QTest::addColumn<QString>("text");

    QTest::newRow("north-east") << QPointF(46, 2) << QPointF(47, 3) << 8.0 << "034°  73 NM";
    QTest::newRow("north is 360") << QPointF(46, 2.5) << QPointF(47, 2.5) << 8.0 << "360°  60 NM";
    QTest::newRow("south") << QPointF(47, 2.5) << QPointF(46, 2.5) << 8.0 << "180°  60 NM";
    QTest::newRow("a little west of north") << QPointF(46, 2.5) << QPointF(47, 2.4999) << 8.0 << "360°  60 NM";
    QTest::newRow("under ten miles") << QPointF(46.45, 2.5) << QPointF(46.55, 2.5) << 11.0 << "360°  6.0 NM";
    QTest::newRow("nearly ten miles") << QPointF(46.42, 2.5) << QPointF(46.586, 2.5) << 11.0 << "360°  10 NM";
}

void TestPageLegs::eachLegTellsCourseAndDistance()
{
    QFETCH(QPointF, from);
    QFETCH(QPointF, to);
    QFETCH(double, zoom);
    QFETCH(QString, text);
    window->run(QString("map.setZoom(%1)").arg(zoom));
    draw({from, to});
    QCOMPARE(texts(), QStringList{text});
}

void TestPageLegs::aShortLegHasAnArrowAlone()
{
    // About 55 pixels at this zoom; the text is longer.
    draw({{46.5, 2.3}, {46.5, 2.6}});
    QCOMPARE(texts(), QStringList());
    QCOMPARE(arrows(), 1);
}

void TestPageLegs::aVeryShortLegHasNothing()
{
    draw({{46.5, 2.5}, {46.5, 2.6}});
    QCOMPARE(texts(), QStringList());
    QCOMPARE(arrows(), 0);
}

void TestPageLegs::twoPointsAtOnePlaceAreNoLeg()
{
    draw({{46.2, 2.5}, {46.2, 2.5}, {47.2, 2.5}});
    QCOMPARE(texts(), QStringList{"360°  60 NM"});
    draw({{46.2, 2.5}, {46.2, 2.5}});
    QCOMPARE(texts(), QStringList());
    draw({{46.2, 2.5}});
    QCOMPARE(texts(), QStringList());
    QCOMPARE(window->page->messages, QStringList());
}

void TestPageLegs::theTextsComeAndGoWithTheZoom()
{
    draw({{46, 2}, {47, 3}});
    QCOMPARE(texts(), QStringList{"034°  73 NM"});
    window->run("map.setZoom(5)");
    window->settle();
    QCOMPARE(texts(), QStringList());
    window->run("map.setZoom(8)");
    window->settle();
    QCOMPARE(texts(), QStringList{"034°  73 NM"});
}

void TestPageLegs::theTextsGoWithTheRoute()
{
    draw({{46, 2}, {47, 3}});
    QCOMPARE(texts().size(), 1);
    window->run("clearFP()");
    window->settle();
    QCOMPARE(texts(), QStringList());
    QCOMPARE(arrows(), 0);
    draw({{47, 2.5}, {46, 2.5}});
    QCOMPARE(texts(), QStringList{"180°  60 NM"});
}

void TestPageLegs::aProcedureHasNoTexts()
{
    window->run("addPointToSS(new google.maps.LatLng(46.00000, 2.00000),\"A\");"
                "addPointToSS(new google.maps.LatLng(47.00000, 3.00000),\"B\")");
    window->settle();
    QCOMPARE(texts(), QStringList());
}

void TestPageLegs::aTextStandsUprightAboveItsLeg_data()
{
    QTest::addColumn<double>("from");
    QTest::addColumn<double>("to");

    QTest::newRow("to the east") << 1.9 << 3.1;
    QTest::newRow("to the west") << 3.1 << 1.9;
}

void TestPageLegs::aTextStandsUprightAboveItsLeg()
{
    QFETCH(double, from);
    QFETCH(double, to);
    draw({{46.5, from}, {46.5, to}});
    QCOMPARE(texts().size(), 1);
    // The line runs through the middle of the view. A text that stands on its head would be below it.
    QVERIFY(pixels(QRect(360, 280, 80, 12), QColor(routeColour)) > 10);
    QCOMPARE(pixels(QRect(360, 308, 80, 12), QColor(routeColour)), 0);
}

void TestPageLegs::aTextOnAMeridianGoesUp_data()
{
    QTest::addColumn<double>("from");
    QTest::addColumn<double>("to");

    QTest::newRow("to the north") << 46.1 << 46.9;
    QTest::newRow("to the south") << 46.9 << 46.1;
}

void TestPageLegs::aTextOnAMeridianGoesUp()
{
    QFETCH(double, from);
    QFETCH(double, to);
    draw({{from, 2.5}, {to, 2.5}});
    QCOMPARE(texts().size(), 1);
    // Above a text that goes up is left of its line.
    QVERIFY(pixels(QRect(380, 260, 12, 80), QColor(routeColour)) > 10);
    QCOMPARE(pixels(QRect(408, 260, 12, 80), QColor(routeColour)), 0);
}

void TestPageLegs::aTextSparesTheSymbolsOfTheChart()
{
    // Symbols in a row 12 pixels above the line; below it there is room.
    window->run("for (let i = 0; i <= 40; ++i)"
                "addVORMarker(new google.maps.LatLng(46.54500, 1.9 + i * 0.03), 'V' + i + '-K', 17, '');"
                "addNavMgr();VORMgr.addMarkers(listVOR);");
    draw({{46.5, 1.9}, {46.5, 3.1}});
    QCOMPARE(texts().size(), 1);
    QVERIFY(pixels(QRect(360, 308, 80, 12), QColor(routeColour)) > 10);
    // They are hidden: the text goes back.
    window->run("VORMgr.clearMarkers()");
    draw({{46.5, 1.9}, {46.5, 3.1}});
    QVERIFY(pixels(QRect(360, 280, 80, 12), QColor(routeColour)) > 10);
}

void TestPageLegs::aTextSparesVorsOfAWholeCountry()
{
    // At zoom 6; the many waypoints, too far to be drawn, stand in no way.
    window->run("map.setZoom(6);for (let i = 0; i <= 50; ++i)"
                "addVORMarker(new google.maps.LatLng(46.68000, i * 0.1), 'V' + i + '-K', 17, '');"
                "for (let i = 0; i < 5000; ++i)"
                "addWPTMarker(new google.maps.LatLng(43 + i / 1000, 2.5), 'W' + i + '-K', 1, '');"
                "addNavMgr();VORMgr.addMarkers(listVOR);addWptMgr();WPTRteMgr.addMarkers(listWptRte);");
    draw({{46.5, 0.0}, {46.5, 5.0}});
    QCOMPARE(texts().size(), 1);
    QVERIFY(pixels(QRect(360, 306, 80, 14), QColor(routeColour)) > 10);
}

void TestPageLegs::aTextSparesRunways()
{
    draw({{46.5, 1.9}, {46.5, 3.1}});
    QVERIFY(pixels(QRect(360, 280, 80, 12), QColor(routeColour)) > 10);
    // 12 pixels above the line, as long as it; beside it another one that the data give without its other end.
    window->run("drawRwy(new google.maps.LatLng(46.54500,1.90000),new google.maps.LatLng(46.54500,3.10000));"
                "drawRwy(new google.maps.LatLng(46.54500,1.90000),new google.maps.LatLng(0.00000,0.00000));");
    window->settle();
    QCOMPARE(texts().size(), 1);
    QVERIFY(pixels(QRect(360, 308, 80, 12), QColor(routeColour)) > 10);
    window->run("clearRunway();");
    window->settle();
    QVERIFY(pixels(QRect(360, 280, 80, 12), QColor(routeColour)) > 10);
}

void TestPageLegs::aTextStandsOffTheStart()
{
    draw({{46.5, 2.0}, {46.5, 3.0}});
    // The line goes through the middle of the view; the two sides of it, but for what the start covers.
    const auto above = [this] {
        return pixels({365, 280, 23, 14}, routeColour) + pixels({412, 280, 23, 14}, routeColour);
    };
    const auto below = [this] { return pixels({365, 306, 23, 14}, routeColour); };
    QVERIFY(above() > 5);
    QCOMPARE(below(), 0);
    window->run("addSitMarker(new google.maps.LatLng( 46.54500000,  2.50000000),\"Cessna 172\", 0);");
    QCOMPARE(above(), 0);
    QVERIFY(below() > 5);
    // Somewhere else.
    window->run("addSitMarker(new google.maps.LatLng( 47.00000000,  2.50000000),\"Cessna 172\", 0);");
    QVERIFY(above() > 5);
    // The aircraft moves all the time.
    window->run("addAcftMrkr(new google.maps.LatLng(46.54500, 2.50000),\"\",0);");
    QVERIFY(above() > 5);
}

void TestPageLegs::theLabelsOfTheChartSpareTheTexts()
{
    // A VOR left of the text, 12 pixels above the line: its label would stand on the text.
    window->run("addVORMarker(new google.maps.LatLng(46.54500, 2.18000), 'ABC-K', 17, '<b>VOR ABC</b>');"
                "addNavMgr();VORMgr.addMarkers(listVOR);");
    window->settle();
    const QString side = "map.points.declutter.kept.get(Array.from(map.points.declutter.kept.keys())"
                         ".find(point => point.look.label.text === 'ABC'))";
    QCOMPARE(window->run(side).toInt(), 0);
    draw({{46.5, 1.9}, {46.5, 3.1}});
    QCOMPARE(texts().size(), 1);
    QVERIFY(pixels(QRect(360, 280, 80, 12), QColor(routeColour)) > 10);
    QVERIFY(window->run(side + " !== 0").toBool());
    window->run("clearFP()");
    window->settle();
    QVERIFY(window->run("page.route.legs.covers === null").toBool());
}

void TestPageLegs::aTextStandsOffARose()
{
    window->run("map.setZoom(10);"
                "addVORMarker(new google.maps.LatLng(46.50000, 2.50000), 'ABC-K', 1, '<b>VOR ABC</b>');"
                "addNavMgr();VORMgr.addMarkers(listVOR);");
    draw({{46.5, 2.5}, {46.5, 6.5}});
    QCOMPARE(texts().size(), 1);
    // The rose has a radius of 50 pixels around the view's middle; the text is more than 80 pixels wide.
    const double x = window
                         ->run("var box = document.querySelector('.leg-text').getBoundingClientRect();"
                               "box.left + box.width / 2")
                         .toDouble();
    QVERIFY2(x > 400 + 50 + 40, qPrintable(QString::number(x)));
}

void TestPageLegs::thereAndBackHaveATextEach()
{
    draw({{46.5, 1.5}, {46.5, 3.5}, {46.5, 1.5}});
    QCOMPARE(texts(), (QStringList{"089°  83 NM", "271°  83 NM"}));
}

void TestPageLegs::manyLegsAtOnePlaceHaveNoHeapOfTexts()
{
    QList<QPointF> points;
    for (int i = 0; i < 200; ++i)
        points << QPointF(46.5, i % 2 ? 3.5 : 1.5);
    draw(points);
    // At most above and below the line, at each of a few places on it.
    QVERIFY(texts().size() >= 2);
    QVERIFY2(texts().size() <= 10, qPrintable(QString::number(texts().size())));
}

void TestPageLegs::aLegFarBeyondTheViewKeepsItsTextInIt()
{
    // Paris to New York; the view shows the beginning alone.
    draw({{46.5, 2.6}, {40.6, -73.8}});
    QCOMPARE(texts().size(), 1);
    QVERIFY(texts().first().endsWith("NM"));
    const QVariantList box = window
                                 ->run("var box = document.querySelector('.leg-text').getBoundingClientRect();"
                                       "[box.left + box.width / 2, box.top + box.height / 2]")
                                 .toList();
    QVERIFY(QRect(0, 0, 800, 600).contains(box.value(0).toInt(), box.value(1).toInt()));
}

void TestPageLegs::theTextFollowsTheViewAlongItsLeg()
{
    window->run("map.setCenter(new google.maps.LatLng(48.50000, 2.50000))");
    draw({{46.5, -20}, {46.5, 25}});
    const auto isInView = [this] {
        const QVariantList ends = window
                                      ->run("var box = document.querySelector('.leg-text').getBoundingClientRect();"
                                            "[box.left, box.right]")
                                      .toList();
        return ends.value(0).toDouble() > 0 && ends.value(1).toDouble() < 800;
    };
    QCOMPARE(texts(), QStringList{"073°  1833 NM"});
    QVERIFY(isInView());
    // The user drags the map, which alone draws nothing anew: to the east, then back and farther to the west.
    for (int from : {700, 700, 100, 100, 100}) {
        window->mouse->drag({from, 500}, {800 - from, 500});
        QTRY_VERIFY_WITH_TIMEOUT(isInView(), 20000);
        QCOMPARE(texts(), QStringList{"073°  1833 NM"});
    }
}

void TestPageLegs::aTextAtTheEdgeOfTheViewIsWhole_data()
{
    QTest::addColumn<QPointF>("from");
    QTest::addColumn<QPointF>("to");
    QTest::addColumn<bool>("shows");
    // The view is 800 pixels wide, a degree of longitude 182 and one of latitude about 265.
    QTest::newRow("the middle at the right edge") << QPointF(46.5, 2.5) << QPointF(46.5, 6.8) << true;
    QTest::newRow("the middle at the lower edge") << QPointF(46.9, 2.5) << QPointF(44.0, 2.5) << true;
    QTest::newRow("hardly in the view") << QPointF(46.5, 4.6) << QPointF(46.5, 6.6) << false;
}

void TestPageLegs::aTextAtTheEdgeOfTheViewIsWhole()
{
    QFETCH(QPointF, from);
    QFETCH(QPointF, to);
    QFETCH(bool, shows);
    draw({from, to});
    QCOMPARE(texts().size(), shows ? 1 : 0);
    // The picture is a square around arrow and text; the letters are in its middle part.
    const int inside = pixels(QRect(2, 2, 796, 596), QColor(routeColour));
    QVERIFY(inside > 10);
    if (!shows)
        return;
    const QString fits = window
                             ->run("var text = document.querySelector('.leg-text'), box = text.getBoundingClientRect();"
                                   "var ruler = document.createElement('canvas').getContext('2d');"
                                   "ruler.font = 'bold 11px \"Liberation Sans\"';"
                                   "var half = ruler.measureText(text.getAttribute('data-text')).width / 2;"
                                   "var x = (box.left + box.right) / 2, y = (box.top + box.bottom) / 2;"
                                   "`${x} ${y} ${half}`")
                             .toString();
    const QStringList numbers = fits.split(' ');
    const bool isLevel = from.x() == to.x();
    const double middle = numbers.value(isLevel ? 0 : 1).toDouble();
    QVERIFY2(middle >= numbers.value(2).toDouble() && middle <= (isLevel ? 800 : 600) - numbers.value(2).toDouble(),
             qPrintable(fits));
}

void TestPageLegs::theTextOfALegOverTheDateLineStandsOnIt()
{
    window->run("map.setZoom(5);map.setCenter(new google.maps.LatLng(0.00000,179.00000));");
    draw({{0, 175}, {0, -175}});
    QCOMPARE(texts(), QStringList{"090°  600 NM"});
    // The middle of the leg is a degree east of the view's middle, 23 pixels.
    QVERIFY(pixels(QRect(390, 280, 66, 12), QColor(routeColour)) > 10);
    window->run("map.setCenter(new google.maps.LatLng(0.00000,-179.00000));");
    window->settle();
    QCOMPARE(texts(), QStringList{"090°  600 NM"});
    QVERIFY(pixels(QRect(344, 280, 66, 12), QColor(routeColour)) > 10);
}

void TestPageLegs::theTextOfALegOverThePoleStandsWhereItIsDrawn()
{
    window->run("map.setZoom(2);map.setCenter(new google.maps.LatLng(75.00000,0.00000));");
    draw({{60, 10}, {62, -170}});
    QCOMPARE(texts(), QStringList{"360°  3480 NM"});
    // On the meridian of 10 degrees east, left of it, and not where the projection ends.
    const QPoint end = window->mouse->pointOf(84, 10);
    QVERIFY(pixels(QRect(end.x() - 20, end.y() + 60, 14, 200), QColor(routeColour)) > 10);
    QCOMPARE(pixels(QRect(end.x() - 60, 0, 56, end.y()), QColor(routeColour)), 0);
}

void TestPageLegs::theTextsTakeTheColoursOfTheNight()
{
    draw({{46.5, 1.9}, {46.5, 3.1}});
    window->run("page.setPalette('night')");
    QVERIFY(pixels(QRect(360, 280, 80, 12), QColor(nightColour)) > 10);
    QVERIFY(pixels(QRect(300, 295, 200, 10), QColor(nightColour)) > 100);
    QCOMPARE(pixels(QRect(0, 0, 800, 600), QColor(routeColour)), 0);
}

QTEST_MAIN(TestPageLegs)
#include "tst_pagelegs.moc"
