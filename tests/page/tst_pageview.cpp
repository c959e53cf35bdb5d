// Centre and zoom of the map: what scripts set and read, what the user moves, what the page reports.
#include "pagetest.h"

#include <QtTest>

class TestPageView : public PageTest
{
    Q_OBJECT

private slots:
    void whatIsSetIsReadBackExactly();
    void theCentreSurvivesZoomAndResize();
    void aSmallWindowKeepsNoPixelsOfALargeOne();
    void aZoomOutOfRangeIsCut();
    void whatIsNoNumberIsIgnored();
    void eachCentreIsReported();
    void eachZoomIsReportedAsAWholeNumber();
    void theWheelGoesToTheNextWholeZoom();
    void theWheelKeepsThePlaceUnderThePointer();
    void aDragMovesTheCentreAndReports();
    void aDragIsNoClick();
    void aDragOverTheDateLineWrapsTheCentre();
    void dragsAroundTheWorldStayInItsFirstCopies();
    void thePointerIsReported();
    void theMapFollowsWithTwoSemicolons();
    void aFailingPaintStopsNothingElse();
    void aFailingListenerLeavesTheMapAlive();

private:
    QString firstView() const override
    {
        return "map.setCenter(new google.maps.LatLng(46.50000, 2.50000));map.setZoom(6)";
    }

    void open() override
    {
        PageTest::open();
        program->clear();
    }

    double number(const QString& script)
    {
        const QVariant value = window->run(script);
        return value.isValid() ? value.toDouble() : qQNaN();
    }
};

void TestPageView::whatIsSetIsReadBackExactly()
{
    window->run("map.setCenter(new google.maps.LatLng(-33.94625,-179.00000));");
    window->run("map.setZoom(6.5)");
    QCOMPARE(number("map.getCenter().lat()"), -33.94625);
    QCOMPARE(number("map.getCenter().lng()"), -179.0);
    QCOMPARE(number("map.getZoom()"), 6.5);
    window->run("map.setCenter(new google.maps.LatLng(48.12345,180.00000));map.setZoom(11)");
    QCOMPARE(number("map.getCenter().lng()"), 180.0);
    QCOMPARE(number("map.getZoom()"), 11.0);
}

void TestPageView::theCentreSurvivesZoomAndResize()
{
    window->run("map.setCenter(new google.maps.LatLng(48.12345,  2.98765));");
    for (double zoom : {9.0, 3.25, 17.0, 6.0})
        window->run(QString("map.setZoom(%1)").arg(zoom));
    for (const QSize& size : {QSize(431, 307), QSize(1024, 768), QSize(800, 600)}) {
        window->view->resize(size);
        QTRY_COMPARE_WITH_TIMEOUT(window->run("innerWidth").toInt(), size.width(), 20000);
        window->settle();
    }
    QCOMPARE(number("map.getCenter().lat()"), 48.12345);
    QCOMPARE(number("map.getCenter().lng()"), 2.98765);
    QCOMPARE(number("map.getZoom()"), 6.0);
}

void TestPageView::aSmallWindowKeepsNoPixelsOfALargeOne()
{
    const auto resize = [this](const QSize& size) {
        window->view->resize(size);
        QTRY_COMPARE_WITH_TIMEOUT(window->run("innerWidth").toInt(), size.width(), 20000);
        QTRY_COMPARE_WITH_TIMEOUT(window->run("innerHeight").toInt(), size.height(), 20000);
        window->settle();
    };
    resize({1500, 1000});
    QTRY_VERIFY_WITH_TIMEOUT(number("map.base.world.tiles.size") > 60, 20000);
    window->run("var former = Array.from(map.base.world.tiles.values()).map(tile => tile.canvas)");
    const double large = number("former.length");
    resize({400, 300});
    QTRY_VERIFY_WITH_TIMEOUT(number("map.base.world.tiles.size") * 2 < large, 20000);
    const double inUse = number("map.base.world.tiles.size");
    // Some more wait for a pan.
    const double kept = number("former.filter(canvas => canvas.width > 0).length");
    QVERIFY2(kept <= inUse * 1.5, qPrintable(QString("%1 of %2").arg(kept).arg(large)));
    window->run("map.setCenter(new google.maps.LatLng(46.50000,-8.00000))");
    QVERIFY(window->pixelsAround(46.5, -8, 60, QColor("#d3e4ee")) > 1000);
}

void TestPageView::aZoomOutOfRangeIsCut()
{
    window->run("map.setZoom(99)");
    QCOMPARE(number("map.getZoom()"), 18.0);
    window->run("map.setZoom(-3)");
    QCOMPARE(number("map.getZoom()"), 2.0);
    window->run("map.setZoom(1e+300)");
    QCOMPARE(number("map.getZoom()"), 18.0);
}

void TestPageView::whatIsNoNumberIsIgnored()
{
    window->run("map.setCenter(new google.maps.LatLng(nan,inf));map.setZoom(nan)");
    QCOMPARE(number("map.getCenter().lat()"), 46.5);
    QCOMPARE(number("map.getZoom()"), 6.0);
    QCOMPARE(program->calls(), QStringList());
}

void TestPageView::eachCentreIsReported()
{
    window->run("map.setCenter(new google.maps.LatLng(48.50000,-3.00000));");
    QCOMPARE(program->calls(), QStringList{"doCenter 48.50000 -3.00000"});
    window->run("map.setCenter(new google.maps.LatLng(48.50000,-3.00000));");
    QCOMPARE(program->calls("doCenter").size(), 2);
}

void TestPageView::eachZoomIsReportedAsAWholeNumber()
{
    window->run("map.setZoom(7)");
    window->run("map.setZoom(7)");
    window->run("map.setZoom(6.5)");
    QCOMPARE(program->calls("doZoom"), (QStringList{"doZoom 7", "doZoom 7", "doZoom 7"}));
    window->run("map.setZoom(6.25)");
    QCOMPARE(program->calls("doZoom").last(), "doZoom 6");
    QCOMPARE(program->calls("doCenter"), QStringList());
}

void TestPageView::theWheelGoesToTheNextWholeZoom()
{
    const QPoint middle(400, 300);
    window->mouse->wheel(middle, 120);
    QTRY_COMPARE_WITH_TIMEOUT(number("map.getZoom()"), 7.0, 20000);
    window->mouse->wheel(middle, -120);
    QTRY_COMPARE_WITH_TIMEOUT(number("map.getZoom()"), 6.0, 20000);
    QCOMPARE(program->calls("doZoom"), (QStringList{"doZoom 7", "doZoom 6"}));
    window->run("map.setZoom(6.5)");
    window->mouse->wheel(middle, 120);
    QTRY_COMPARE_WITH_TIMEOUT(number("map.getZoom()"), 7.0, 20000);
    window->run("map.setZoom(6.5)");
    window->mouse->wheel(middle, -120);
    QTRY_COMPARE_WITH_TIMEOUT(number("map.getZoom()"), 6.0, 20000);
}

void TestPageView::theWheelKeepsThePlaceUnderThePointer()
{
    const QPoint place = window->mouse->pointOf(48, 4);
    program->clear();
    window->mouse->wheel(place, 120);
    QTRY_COMPARE_WITH_TIMEOUT(number("map.getZoom()"), 7.0, 20000);
    const QPoint now = window->mouse->pointOf(48, 4);
    QVERIFY((now - place).manhattanLength() <= 2);
    QVERIFY(!program->calls("doCenter").isEmpty());
}

void TestPageView::aDragMovesTheCentreAndReports()
{
    window->mouse->drag({400, 300}, {300, 300});
    // A hundred pixels of the 256 times 64 around the world.
    QVERIFY(qAbs(number("map.getCenter().lng()") - (2.5 + 100 * 360.0 / 16384)) < 0.03);
    QVERIFY(qAbs(number("map.getCenter().lat()") - 46.5) < 0.02);
    const QString last = program->calls("doCenter").last();
    QCOMPARE(last,
             window->run("'doCenter ' + map.getCenter().lat().toFixed(5) + ' ' + map.getCenter().lng().toFixed(5)")
                 .toString());
}

void TestPageView::aDragIsNoClick()
{
    window->run(R"(addAPTMarker(new google.maps.LatLng(46.50000, 2.50000),"LFXX",1,"<b>X</b>");pushAPT();)");
    window->settle();
    window->mouse->drag({400, 300}, {460, 340});
    QCOMPARE(window->popupText(), "");
    QVERIFY(window->run("theLast === null").toBool());
}

/// The longitude that is told; the view itself may be in another copy of the world.
void TestPageView::aDragOverTheDateLineWrapsTheCentre()
{
    window->run("map.setCenter(new google.maps.LatLng(46.50000,179.90000));");
    for (int i = 0; i < 3; ++i)
        window->mouse->drag({600, 300}, {200, 300});
    const double longitude = number("map.getCenter().lng()");
    QVERIFY2(longitude > -180 && longitude < -150, qPrintable(QString::number(longitude)));
}

/// However often the user drags the map around the world, what stands in the panes need not follow him ever farther.
void TestPageView::dragsAroundTheWorldStayInItsFirstCopies()
{
    window->run("map.setZoom(2)");
    // Five times around, each time in two and a half drags.
    for (int i = 0; i < 13; ++i) {
        window->mouse->drag({600, 300}, {200, 300});
        const double longitude = number("map.leaflet.getCenter().lng");
        QVERIFY2(qAbs(longitude) < 400, qPrintable(QString::number(longitude)));
    }
}

void TestPageView::thePointerIsReported()
{
    // So near that a pixel is less than a second.
    window->run("map.setZoom(18)");
    window->mouse->click({400, 300});
    QTRY_VERIFY_WITH_TIMEOUT(!program->calls("doData").isEmpty(), 20000);
    QTRY_COMPARE_WITH_TIMEOUT(program->calls("doData").last(), QString("doData \"46° 30' 00\" N  002° 30' 00\" E\""),
                              20000);
    window->run("map.setCenter(new google.maps.LatLng(-33.50000,-70.75000));");
    window->mouse->click({400, 300});
    QTRY_COMPARE_WITH_TIMEOUT(program->calls("doData").last(), QString("doData \"33° 30' 00\" S  070° 45' 00\" W\""),
                              20000);
}

void TestPageView::theMapFollowsWithTwoSemicolons()
{
    window->run("addAcftMrkr(new google.maps.LatLng(48.00000, 2.00000),\"\",90);");
    window->run("setAcftMrkr(new google.maps.LatLng(48.10000, 2.10000),91);;map.setCenter(new "
                "google.maps.LatLng(48.10000, 2.10000));");
    QCOMPARE(number("map.getCenter().lat()"), 48.1);
    QCOMPARE(number("map.getCenter().lng()"), 2.1);
}

void TestPageView::aFailingPaintStopsNothingElse()
{
    window->page->expectFault("no line");
    window->run(R"(addAPTMarker(new google.maps.LatLng(48.50000,-3.00000),"LFXX",1,"x");pushAPT();)"
                "var whole = mapEngine.Lines.prototype.paintHeight;"
                "mapEngine.Lines.prototype.paintHeight = function () { throw new Error('no line'); };");
    window->run("map.setCenter(new google.maps.LatLng(48.50000,-3.00000));map.setZoom(7)");
    QCOMPARE(number("map.getCenter().lat()"), 48.5);
    QCOMPARE(number("map.getCenter().lng()"), -3.0);
    QCOMPARE(number("map.getZoom()"), 7.0);
    window->view->resize(431, 307);
    QTRY_COMPARE_WITH_TIMEOUT(window->run("innerWidth").toInt(), 431, 20000);
    window->view->resize(800, 600);
    QTRY_COMPARE_WITH_TIMEOUT(window->run("innerWidth").toInt(), 800, 20000);
    program->clear();
    window->mouse->wheel({400, 300}, 120);
    QTRY_COMPARE_WITH_TIMEOUT(number("map.getZoom()"), 8.0, 20000);
    QCOMPARE(program->calls("doZoom"), QStringList{"doZoom 8"});
    window->mouse->drag({400, 300}, {200, 300});
    QVERIFY(number("map.getCenter().lng()") > -2.9);
    QVERIFY(!program->calls("doCenter").isEmpty());
    // It is told, and the next frame shows everything again.
    QVERIFY(window->page->messages.value(0).contains("no line"));
    window->run(
        "mapEngine.Lines.prototype.paintHeight = whole;map.setCenter(new google.maps.LatLng(48.50000,-3.00000));"
        "map.setZoom(7)");
    QVERIFY(window->pixelsAround(48.5, -3, 8, QColor("#1d3f8f")) > 0);
}

void TestPageView::aFailingListenerLeavesTheMapAlive()
{
    window->page->expectFault("no idle");
    window->run(
        "var failing = google.maps.event.addListener(map, 'idle', function () { throw new Error('no idle'); })");
    window->run("map.setCenter(new google.maps.LatLng(48.50000,-3.00000));");
    QVERIFY(qAbs(number("map.getCenter().lat()") - 48.5) < 0.01);
    QVERIFY(window->page->messages.value(0).contains("no idle"));
    window->run("google.maps.event.removeListener(failing)");
    program->clear();
    window->mouse->drag({400, 300}, {300, 300});
    QVERIFY(!program->calls("doCenter").isEmpty());
    QVERIFY(number("map.getCenter().lng()") > -2);
}

QTEST_MAIN(TestPageView)
#include "tst_pageview.moc"
