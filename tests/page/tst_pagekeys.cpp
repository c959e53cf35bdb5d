// The map by keys, the double click, and the order in which Escape closes things.
#include "pagetest.h"
#include "samplechart.h"

#include <QtTest>

using namespace samplechart;

class TestPageKeys : public SampleChartTest
{
    Q_OBJECT

private slots:
    void theArrowsMoveTheMap_data();
    void theArrowsMoveTheMap();
    void twoArrowsGoTwiceAsFar();
    void plusAndMinusZoom();
    void insertDoesNotZoom();
    void zoomingByKeysKeepsTheCentre();
    void keysWithModifiersAreNotTheMaps();
    void theMapCanBeReachedByTab();
    void everyButtonHasAName_data();
    void everyButtonHasAName();
    void keysStayOnTheDrawnWorld_data();
    void keysStayOnTheDrawnWorld();
    void aScriptMayGoBeyondIt();
    void aPressEndsTheGlide();
    void theFocusShowsForKeysOnly();
    void aDoubleClickZoomsAboutThePointer();
    void aDoubleClickOnAMarkerZoomsToo();
    void aDoubleClickStopsAtTheNearestView();
    void escapeClosesMenuThenPopUpThenMeasure();

private:
    double number(const QString& script)
    {
        return window->run(script).toDouble();
    }
    bool isByKeys()
    {
        return window->run("document.body.classList.contains('by-keys')").toBool();
    }
};

void TestPageKeys::theArrowsMoveTheMap_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("east");
    QTest::addColumn<int>("south");
    QTest::newRow("left") << int(Qt::Key_Left) << -80 << 0;
    QTest::newRow("right") << int(Qt::Key_Right) << 80 << 0;
    QTest::newRow("up") << int(Qt::Key_Up) << 0 << -80;
    QTest::newRow("down") << int(Qt::Key_Down) << 0 << 80;
    QTest::newRow("page up") << int(Qt::Key_PageUp) << 0 << -450;
    QTest::newRow("page down") << int(Qt::Key_PageDown) << 0 << 450;
    QTest::newRow("home") << int(Qt::Key_Home) << -600 << 0;
    QTest::newRow("end") << int(Qt::Key_End) << 600 << 0;
}

void TestPageKeys::theArrowsMoveTheMap()
{
    QFETCH(int, key);
    QFETCH(int, east);
    QFETCH(int, south);
    const QPoint before = pixel(*window, centre);
    window->pressKey(Qt::Key(key));
    QTRY_COMPARE_WITH_TIMEOUT(pixel(*window, centre), before - QPoint(east, south), 20000);
    window->settle();
    QCOMPARE(pixel(*window, centre), before - QPoint(east, south));
    const QString last =
        window->run("'doCenter ' + map.getCenter().lat().toFixed(5) + ' ' + map.getCenter().lng().toFixed(5)")
            .toString();
    QCOMPARE(program->calls("doCenter").last(), last);
}

void TestPageKeys::twoArrowsGoTwiceAsFar()
{
    const QPoint before = pixel(*window, centre);
    window->pressKey(Qt::Key_Right);
    window->pressKey(Qt::Key_Right);
    window->pressKey(Qt::Key_Down);
    QTRY_COMPARE_WITH_TIMEOUT(pixel(*window, centre), before - QPoint(160, 80), 20000);
}

void TestPageKeys::plusAndMinusZoom()
{
    window->pressKey(Qt::Key_Plus);
    QCOMPARE(number("map.getZoom()"), 9.0);
    window->pressKey(Qt::Key_Minus);
    window->pressKey(Qt::Key_Minus);
    QCOMPARE(number("map.getZoom()"), 7.0);
    QCOMPARE(program->calls("doZoom"), (QStringList{"doZoom 9", "doZoom 8", "doZoom 7"}));
    window->run("map.setZoom(6.5)");
    window->pressKey(Qt::Key_Plus);
    QCOMPARE(number("map.getZoom()"), 7.0);
    for (int i = 0; i < 20; ++i)
        window->pressKey(Qt::Key_Minus);
    QCOMPARE(number("map.getZoom()"), 2.0);
}

void TestPageKeys::insertDoesNotZoom()
{
    // Its number is the letter code of the minus, and it is the 0 of the block of figures while that gives no figures.
    window->pressKey(Qt::Key_Insert);
    window->pressKey(Qt::Key_Insert, Qt::KeypadModifier);
    QCOMPARE(number("map.getZoom()"), 8.0);
    window->pressKey(Qt::Key_Plus, Qt::KeypadModifier);
    QCOMPARE(number("map.getZoom()"), 9.0);
    window->pressKey(Qt::Key_Minus, Qt::KeypadModifier);
    QCOMPARE(number("map.getZoom()"), 8.0);
}

void TestPageKeys::zoomingByKeysKeepsTheCentre()
{
    for (Qt::Key key : {Qt::Key_Plus, Qt::Key_Plus, Qt::Key_Minus, Qt::Key_Plus})
        window->pressKey(key);
    QCOMPARE(number("map.getCenter().lat()"), 46.7);
    QCOMPARE(number("map.getCenter().lng()"), 2.3);
}

void TestPageKeys::keysWithModifiersAreNotTheMaps()
{
    window->pressKey(Qt::Key_Right, Qt::ControlModifier);
    window->pressKey(Qt::Key_Plus, Qt::AltModifier);
    window->settle();
    QCOMPARE(number("map.getCenter().lng()"), 2.3);
    QCOMPARE(number("map.getZoom()"), 8.0);
}

void TestPageKeys::theMapCanBeReachedByTab()
{
    QCOMPARE(window->run("document.getElementById('chart').tabIndex").toInt(), 0);
    window->run("document.activeElement.blur()");
    window->pressKey(Qt::Key_Tab);
    QCOMPARE(window->run("document.activeElement.id").toString(), "chart");
    // And on to the buttons of the map.
    window->pressKey(Qt::Key_Tab);
    QVERIFY(window->run("document.activeElement.id !== 'chart' && document.activeElement !== document.body").toBool());
}

void TestPageKeys::theFocusShowsForKeysOnly()
{
    window->mouse->click({400, 500});
    QCOMPARE(window->run("document.activeElement.id").toString(), "chart");
    QVERIFY(!isByKeys());
    window->pressKey(Qt::Key_Escape);
    QVERIFY(!isByKeys());
    window->pressKey(Qt::Key_Left);
    QVERIFY(isByKeys());
    QCOMPARE(window->run("getComputedStyle(document.getElementById('chart'), '::before').borderTopWidth").toString(),
             "2px");
    window->mouse->click({400, 500});
    QVERIFY(!isByKeys());
}

void TestPageKeys::aDoubleClickZoomsAboutThePointer()
{
    const QPoint place = pixel(*window, nothing);
    window->mouse->doubleClick(place);
    QTRY_COMPARE_WITH_TIMEOUT(number("map.getZoom()"), 9.0, 20000);
    QVERIFY((pixel(*window, nothing) - place).manhattanLength() <= 3);
    QCOMPARE(program->calls("doZoom"), QStringList{"doZoom 9"});
    window->run("map.setZoom(6.5)");
    window->mouse->doubleClick({400, 500});
    QTRY_COMPARE_WITH_TIMEOUT(number("map.getZoom()"), 7.0, 20000);
}

void TestPageKeys::aDoubleClickOnAMarkerZoomsToo()
{
    window->mouse->doubleClick(pixel(*window, ndb));
    QTRY_COMPARE_WITH_TIMEOUT(number("map.getZoom()"), 9.0, 20000);
    QVERIFY(window->popupText().startsWith("NDB MT"));
}

void TestPageKeys::aDoubleClickStopsAtTheNearestView()
{
    window->run("map.setZoom(18)");
    window->mouse->doubleClick({400, 500});
    window->settle();
    QCOMPARE(number("map.getZoom()"), 18.0);
}

void TestPageKeys::escapeClosesMenuThenPopUpThenMeasure()
{
    menuAt(*window, nothing);
    QVERIFY(window->chooseEntry("Mesurer depuis ici"));
    window->mouse->click({200, 500});
    window->run("page.openPopup(listApt[0])");
    menuAt(*window, nothing);
    const auto open = [this] {
        QStringList names;
        if (!window->menuEntries().isEmpty())
            names << "menu";
        if (!window->popupText().isEmpty())
            names << "pop-up";
        if (window->run("page.isMeasuring()").toBool())
            names << "measuring";
        if (window->run("page.hasMeasure()").toBool())
            names << "measure";
        return names;
    };
    QCOMPARE(open(), (QStringList{"menu", "pop-up", "measuring", "measure"}));
    window->pressKey(Qt::Key_Escape);
    QCOMPARE(open(), (QStringList{"pop-up", "measuring", "measure"}));
    window->pressKey(Qt::Key_Escape);
    QCOMPARE(open(), (QStringList{"measuring", "measure"}));
    window->pressKey(Qt::Key_Escape);
    QCOMPARE(open(), (QStringList{"measure"}));
    window->pressKey(Qt::Key_Escape);
    QCOMPARE(open(), (QStringList{}));
    window->pressKey(Qt::Key_Escape);
    QCOMPARE(open(), (QStringList{}));
}

void TestPageKeys::everyButtonHasAName_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("French") << "gm_trajector_fr.html"
                            << QStringList{"Zoom avant", "Zoom arrière", "Carte de nuit", "Menu de la carte"};
    QTest::newRow("English") << "gm_trajector_en.html" << QStringList{"Zoom in", "Zoom out", "Night map", "Map menu"};
}

void TestPageKeys::everyButtonHasAName()
{
    QFETCH(QString, page);
    QFETCH(QStringList, names);
    QVERIFY(show(*window, page));
    QCOMPARE(window
                 ->run("Array.from(document.querySelectorAll('#chart a, #chart button'))"
                       ".map(e => e.getAttribute('aria-label') || e.title)")
                 .toStringList(),
             names);
    QVERIFY(window->run("Array.from(document.querySelectorAll('#chart a, #chart button')).every(e => e.tabIndex === 0)")
                .toBool());
}

void TestPageKeys::keysStayOnTheDrawnWorld_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("back");
    QTest::addColumn<double>("latitude");
    QTest::newRow("north") << int(Qt::Key_PageUp) << int(Qt::Key_Down) << 85.0;
    QTest::newRow("south") << int(Qt::Key_PageDown) << int(Qt::Key_Up) << -85.0;
}

void TestPageKeys::keysStayOnTheDrawnWorld()
{
    QFETCH(int, key);
    QFETCH(int, back);
    QFETCH(double, latitude);
    window->run("map.setZoom(3)");
    for (int i = 0; i < 8; ++i)
        window->pressKey(Qt::Key(key));
    // A pixel is about a sixty-fifth of a degree there.
    QTRY_VERIFY_WITH_TIMEOUT(qAbs(number("map.getCenter().lat()") - latitude) < 0.05, 20000);
    window->settle();
    window->settle();
    QVERIFY(qAbs(number("map.getCenter().lat()")) <= 85);
    window->pressKey(Qt::Key(back));
    QTRY_VERIFY_WITH_TIMEOUT(qAbs(number("map.getCenter().lat()")) < 84.5, 20000);
}

void TestPageKeys::aScriptMayGoBeyondIt()
{
    window->run("map.setCenter(new google.maps.LatLng(88.00000, 2.30000));");
    QCOMPARE(number("map.getCenter().lat()"), 88.0);
    // No key leads farther, and a key to the east leaves it there.
    window->pressKey(Qt::Key_Up);
    window->pressKey(Qt::Key_Right);
    QTRY_VERIFY_WITH_TIMEOUT(number("map.getCenter().lng()") > 2.4, 20000);
    window->settle();
    // The projection's own end, where the view has been all the time.
    QVERIFY(qAbs(number("map.getCenter().lat()") - 85.05) < 0.01);
}

void TestPageKeys::aPressEndsTheGlide()
{
    const QPoint before = pixel(*window, centre);
    // The first part of the way goes at once, the others wait for frames that do not come.
    window->run("var frames = []; var realFrames = window.requestAnimationFrame;"
                "window.requestAnimationFrame = function (f) { frames.push(f); return 1; };");
    window->pressKey(Qt::Key_Right);
    window->mouse->click({400, 500});
    window->run("for (let i = 0; i < 50; ++i) frames.splice(0).forEach(function (f) { f(); });"
                "window.requestAnimationFrame = realFrames;");
    const int way = before.x() - pixel(*window, centre).x();
    QVERIFY2(way > 0 && way < 80, qPrintable(QString::number(way)));
}

QTEST_MAIN(TestPageKeys)
#include "tst_pagekeys.moc"
