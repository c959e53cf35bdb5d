// The box beside the pointer.
#include "pagetest.h"
#include "samplechart.h"

#include <QtTest>

using namespace samplechart;

class TestPageHover : public SampleChartTest
{
    Q_OBJECT

private slots:
    void aRestOverAMarkerShowsTheBox();
    void theBoxTellsTheFrequency();
    void theBoxTellsEachOfSeveralObjects();
    void theBoxGoes_data();
    void theBoxGoes();
    void theBoxDoesNotRepeatThePopUp();
    void theBoxIsText();
    void theBoxStaysInTheWindow();
    void theBoxFollowsThePalette();
    void aMapThatFollowsShowsTheBox();
    void aMarkerThatComesToThePointerShowsItsBox();
    void aWindowInTheBackgroundHasNoBox();

private:
    bool isShown()
    {
        return !window->run("document.getElementById('tooltip').hidden").toBool();
    }
    QStringList lines()
    {
        return texts(*window, "#tooltip div");
    }
    void rest(const Place& place)
    {
        window->mouse->moveTo({5, 300});
        window->mouse->moveTo(pixel(*window, place));
    }
};

void TestPageHover::aRestOverAMarkerShowsTheBox()
{
    rest(airport);
    QVERIFY(!isShown());
    QTRY_VERIFY_WITH_TIMEOUT(isShown(), 20000);
    QCOMPARE(lines(), (QStringList{"Aéroport LFLX", "DEOLS"}));
    QCOMPARE(window->run("document.getElementById('tooltip').getAttribute('role')").toString(), "tooltip");
    // Nothing of the engine's own beside it.
    QCOMPARE(window->run("document.getElementById('chart').title").toString(), "");
}

void TestPageHover::theBoxTellsTheFrequency()
{
    rest(ndb);
    QTRY_VERIFY_WITH_TIMEOUT(isShown(), 20000);
    QCOMPARE(lines(), (QStringList{"NDB terminal MT", "MONTLUCON", "398 Khz"}));
}

void TestPageHover::theBoxTellsEachOfSeveralObjects()
{
    rest(vorAndWaypoint);
    QTRY_VERIFY_WITH_TIMEOUT(isShown(), 20000);
    QCOMPARE(lines(), (QStringList{"VOR-DME CGO", "CHATEAUROUX", "117.8 Mhz", "Waypoint CGO"}));
    for (int i = 0; i < 6; ++i)
        window->run(QString("addWPTMarker2(new google.maps.LatLng(46.60000, 1.70000),\"P%1-P%1FR\",1,\"x\")").arg(i));
    window->settle();
    rest(nothing);
    QTRY_COMPARE_WITH_TIMEOUT(lines().size(), 5, 20000);
    QCOMPARE(lines().last(), "et 2 autres");
}

void TestPageHover::theBoxGoes_data()
{
    QTest::addColumn<QString>("way");
    for (const char* way : {"leave", "press", "wheel", "key", "script"})
        QTest::newRow(way) << way;
}

void TestPageHover::theBoxGoes()
{
    QFETCH(QString, way);
    rest(airport);
    QTRY_VERIFY_WITH_TIMEOUT(isShown(), 20000);
    if (way == "leave")
        window->mouse->moveTo({5, 300});
    else if (way == "press")
        window->mouse->click(pixel(*window, airport));
    else if (way == "wheel")
        window->mouse->wheel(pixel(*window, airport), 120);
    else if (way == "key")
        window->pressKey(Qt::Key_Plus);
    else
        window->run("map.setCenter(new google.maps.LatLng(46.00000, 2.00000));");
    QTRY_VERIFY_WITH_TIMEOUT(!isShown(), 20000);
}

void TestPageHover::theBoxDoesNotRepeatThePopUp()
{
    window->click(airport.latitude, airport.longitude);
    QVERIFY(window->popupText().startsWith("Airport LFLX"));
    rest(airport);
    QTest::qWait(600);
    QVERIFY(!isShown());
    window->pressKey(Qt::Key_Escape);
    rest(airport);
    QTRY_VERIFY_WITH_TIMEOUT(isShown(), 20000);
}

void TestPageHover::theBoxIsText()
{
    window->run("addAPTMarker(new google.maps.LatLng(46.60000, 1.70000),\"LFXX\",1,\"<b>Airport <i>LF</i>XX</b><br/>"
                "<img src='http://127.0.0.1:9/a.png' onerror='mainWindow.doSomething(1)'>A &lt;b&gt;<script>"
                "mainWindow.doSomething(2)</script><br/>B\");pushAPT();");
    window->settle();
    window->requests.clear();
    rest(nothing);
    QTRY_VERIFY_WITH_TIMEOUT(isShown(), 20000);
    QCOMPARE(lines(), (QStringList{"Aéroport LFXX", "A <b>"}));
    QCOMPARE(window->run("document.querySelectorAll('#tooltip div *').length").toInt(), 0);
    QTest::qWait(50);
    QCOMPARE(window->requests, QList<QUrl>());
    QCOMPARE(program->calls("doSomething"), QStringList());
}

void TestPageHover::theBoxStaysInTheWindow()
{
    for (const Place& centreNow : {Place{47.9, -0.17}, Place{45.9, -0.17}}) {
        window->run(
            QString("map.setCenter(new google.maps.LatLng(%1,%2));").arg(centreNow.latitude).arg(centreNow.longitude));
        window->settle();
        const QPoint place = pixel(*window, airport);
        QVERIFY(QRect(700, 0, 100, 600).contains(place));
        rest(airport);
        QTRY_VERIFY_WITH_TIMEOUT(isShown(), 20000);
        const QRectF tip = box(*window, "#tooltip");
        QVERIFY(QRectF(0, 0, 800, 600).contains(tip));
        QVERIFY(!tip.contains(place));
        window->mouse->moveTo({5, 300});
    }
}

void TestPageHover::theBoxFollowsThePalette()
{
    const QString look =
        "var look = getComputedStyle(document.getElementById('tooltip')); look.backgroundColor + look.color";
    rest(airport);
    QTRY_VERIFY_WITH_TIMEOUT(isShown(), 20000);
    QCOMPARE(window->run(look).toString(), "rgb(255, 255, 255)rgb(28, 39, 48)");
    window->run("page.setPalette('night')");
    QCOMPARE(window->run(look).toString(), "rgb(34, 45, 54)rgb(201, 212, 220)");
}

void TestPageHover::aMapThatFollowsShowsTheBox()
{
    rest(airport);
    // An aircraft that stands still, or hardly moves: the map follows it all the same, ten times a second.
    window->run("var ticks = setInterval(function () {"
                "map.setCenter(new google.maps.LatLng(46.70000, 2.30000)); }, 20)");
    QTRY_VERIFY_WITH_TIMEOUT(isShown(), 20000);
    QCOMPARE(lines().first(), "Aéroport LFLX");
    QTest::qWait(200);
    QVERIFY(isShown());
    // It takes off.
    window->run("clearInterval(ticks);map.setCenter(new google.maps.LatLng(46.70000, 2.60000));");
    QTRY_VERIFY_WITH_TIMEOUT(!isShown(), 20000);
}

void TestPageHover::aMarkerThatComesToThePointerShowsItsBox()
{
    const QPoint place = pixel(*window, airport);
    window->run("map.setCenter(new google.maps.LatLng(46.70000, 2.60000));");
    window->mouse->moveTo({5, 300});
    window->mouse->moveTo(place);
    QTest::qWait(500);
    QVERIFY(!isShown());
    window->run("map.setCenter(new google.maps.LatLng(46.70000, 2.30000));");
    QTRY_VERIFY_WITH_TIMEOUT(isShown(), 20000);
}

void TestPageHover::aWindowInTheBackgroundHasNoBox()
{
    rest(airport);
    QTRY_VERIFY_WITH_TIMEOUT(isShown(), 20000);
    window->run("window.dispatchEvent(new Event('blur'))");
    QVERIFY(!isShown());
}

QTEST_MAIN(TestPageHover)
#include "tst_pagehover.moc"
