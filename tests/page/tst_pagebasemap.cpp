// The base map in its parts: degrees on the edges, squares that fit, the world's ends.
#include "basemaptest.h"

#include <QWebFrame>
#include <QtTest>

namespace {
const QColor coast("#7f9cab");
}

class TestPageBaseMap : public BaseMapTest
{
    Q_OBJECT

private slots:
    void theFirstFrameWaitsForThePage();
    void lakesAreWater_data();
    void lakesAreWater();
    void anIslandInALakeIsLand();
    void riversComeByZoom();
    void theDegreesStandOnTheEdges_data();
    void theDegreesStandOnTheEdges();
    void theDegreesAreWrittenOnceInEachColour();
    void neighbouringSquaresFit();
    void aPanBringsNoGap();
    void theMapGoesOnOverTheDateLine();
    void southOfTheLimitLiesAntarctica();
    void noShoreRunsAlongTheLimit();
    void shallowsAreOfOneTone_data();
    void shallowsAreOfOneTone();
    void noLineCrossesTheSeaBetweenTwoBays_data();
    void noLineCrossesTheSeaBetweenTwoBays();
    void northOfTheLimitLiesTheSea();
    void theScaleFollowsTheLatitude();

private:
    /// The texts that the map writes during a script.
    QStringList written(const QString& during)
    {
        return window
            ->run("var texts = [], plain = CanvasRenderingContext2D.prototype.fillText;"
                  "CanvasRenderingContext2D.prototype.fillText = function (text) {"
                  "  texts.push(text); plain.apply(this, arguments); };" +
                  during + ";CanvasRenderingContext2D.prototype.fillText = plain;texts")
            .toStringList();
    }
};

void TestPageBaseMap::theFirstFrameWaitsForThePage()
{
    QWebFrame* frame = window->page->mainFrame();
    connect(frame, &QWebFrame::javaScriptWindowObjectCleared, frame, [frame] {
        frame->evaluateJavaScript(
            "var paintedAt = [], plainTransform = CanvasRenderingContext2D.prototype.setTransform;"
            "CanvasRenderingContext2D.prototype.setTransform = function () {"
            "  if (this.canvas.className === 'chart-canvas') paintedAt.push(document.readyState);"
            "  plainTransform.apply(this, arguments); };");
    });
    QVERIFY(window->load());
    window->settle();
    const QStringList states = window->run("paintedAt").toStringList();
    QVERIFY(!states.isEmpty());
    QVERIFY2(!states.contains("loading"), qPrintable(states.join(' ')));
}

void TestPageBaseMap::lakesAreWater_data()
{
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("longitude");
    QTest::addColumn<double>("zoom");
    QTest::addColumn<bool>("water");
    QTest::newRow("Léman") << 46.43 << 6.55 << 8.0 << true;
    QTest::newRow("Léman, too near for its shape") << 46.43 << 6.55 << 10.0 << false;
    QTest::newRow("Lausanne") << 46.58 << 6.57 << 10.0 << false;
    QTest::newRow("Thonon") << 46.34 << 6.57 << 10.0 << false;
    QTest::newRow("Superior, over the edges of cells") << 47.53 << -86.27 << 5.5 << true;
    QTest::newRow("Victoria, south of the equator") << -1.63 << 32.77 << 6.0 << true;
    QTest::newRow("Baikal") << 54.93 << 109.32 << 7.5 << true;
    QTest::newRow("Victoria, large enough to be there nearer") << -1.63 << 32.77 << 11.0 << true;
    QTest::newRow("Victoria, too near for its shape") << -1.63 << 32.77 << 12.0 << false;
    QTest::newRow("Taupo, of the file of the world alone") << -38.75 << 175.85 << 8.0 << true;
    QTest::newRow("Tanganyika, of the coarsest file alone") << -6.35 << 29.75 << 7.0 << true;
    QTest::newRow("Victoria from afar") << -1.33 << 32.93 << 3.5 << true;
    QTest::newRow("beside Baikal") << 54.93 << 111.32 << 7.5 << false;
}

void TestPageBaseMap::lakesAreWater()
{
    QFETCH(double, latitude);
    QFETCH(double, longitude);
    QFETCH(double, zoom);
    QFETCH(bool, water);
    look(latitude, longitude, zoom);
    QCOMPARE(window->colourAt(latitude, longitude), water ? sea : land);
}

void TestPageBaseMap::anIslandInALakeIsLand()
{
    look(45.82, -82.37, 8);
    QCOMPARE(window->colourAt(45.82, -82.37), land);
    QCOMPARE(window->colourAt(45.13, -82.37), sea);
}

void TestPageBaseMap::riversComeByZoom()
{
    const auto coloured = [this](double latitude, double longitude, double zoom) {
        look(latitude, longitude, zoom);
        return 17 * 17 - window->pixelsAround(latitude, longitude, 8, land);
    };
    // The Loire above Roanne, the Darling: not from afar, then to where their courses would be too coarse.
    QCOMPARE(coloured(45.743, 4.212, 3.5), 0);
    QVERIFY(coloured(45.743, 4.212, 6) > 8);
    QVERIFY(coloured(45.743, 4.212, 9) > 8);
    QCOMPARE(coloured(45.743, 4.212, 10), 0);
    QVERIFY(coloured(-30.575, 145.077, 8) > 8);
    QCOMPARE(coloured(-30.575, 145.077, 9), 0);
}

void TestPageBaseMap::theDegreesStandOnTheEdges_data()
{
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("longitude");
    QTest::addColumn<double>("zoom");
    QTest::addColumn<QStringList>("labels");
    QTest::newRow("far") << 46.5 << 2.5 << 5.0 << QStringList{"5°W", "0°", "5°E", "45°N", "50°N"};
    QTest::newRow("half degrees") << -33.8 << 151.2 << 8.5
                                  << QStringList{"150°30'E", "151°00'E", "151°30'E", "34°00'S", "33°30'S"};
    QTest::newRow("minutes") << 46.21 << 6.15 << 11.0 << QStringList{"6°05'E", "6°10'E", "46°15'N", "46°10'N"};
    QTest::newRow("from very near") << 48.7295 << 2.35896 << 18.0
                                    << QStringList{"2°21'30\"E", "2°21'35\"E", "48°43'45\"N"};
    QTest::newRow("over 180 degrees") << 0.0 << 180.0 << 5.0
                                      << QStringList{"175°E", "180°", "175°W", "5°N", "0°", "5°S"};
    QTest::newRow("near the north pole") << 83.0 << 20.0 << 3.0 << QStringList{"70°N", "80°N", "85°N"};
    QTest::newRow("between two wide steps") << 77.5 << -40.0 << 6.0 << QStringList{"77°N", "78°N"};
    QTest::newRow("near the south pole") << -79.5 << 20.0 << 4.0 << QStringList{"75°S", "80°S", "82°S"};
}

void TestPageBaseMap::theDegreesStandOnTheEdges()
{
    QFETCH(double, latitude);
    QFETCH(double, longitude);
    QFETCH(double, zoom);
    QFETCH(QStringList, labels);
    // A label that was seen before is only copied.
    window->run("map.base.labels.pictures.clear()");
    const QStringList texts = written(
        QString("map.setZoom(%3);map.setCenter(new google.maps.LatLng(%1,%2))").arg(latitude).arg(longitude).arg(zoom));
    for (const QString& label : qAsConst(labels))
        QVERIFY2(texts.contains(label), qPrintable(label + " is not in " + texts.join(' ')));
}

void TestPageBaseMap::theDegreesAreWrittenOnceInEachColour()
{
    look(46.5, 2.5, 5);
    QVERIFY(!written("map.setCenter(new google.maps.LatLng(46.4, 2.6))").contains("5°E"));
    QVERIFY(written("page.setPalette('night')").contains("5°E"));
    QVERIFY(written("page.setPalette('day')").contains("5°E"));
}

void TestPageBaseMap::neighbouringSquaresFit()
{
    // Inside Australia, away from names: land and thin lines of the graticule, nothing else.
    look(-28, 127, 7);
    const int wide = 100;
    const int all = (2 * wide + 1) * (2 * wide + 1);
    const int plain = window->pixelsAround(-28, 127, wide, land);
    QVERIFY2(plain > all - 6 * (2 * wide + 1), qPrintable(QString::number(all - plain)));
}

void TestPageBaseMap::aPanBringsNoGap()
{
    look(-28, 127, 7);
    for (int i = 0; i < 6; ++i) {
        window->mouse->drag({700, 300}, {60, 300});
        // The view's own colour behind the squares is the sea's, which is nowhere here.
        const QVariantList centre = window->run("[map.getCenter().lat(), map.getCenter().lng()]").toList();
        if (i < 2)
            QCOMPARE(window->pixelsAround(centre[0].toDouble(), centre[1].toDouble(), 60, sea), 0);
        QCOMPARE(window
                     ->run("Array.from(map.base.world.tiles.values()).filter(t => !t.painted &&"
                           " t.canvas.getBoundingClientRect().left > -256 &&"
                           " t.canvas.getBoundingClientRect().left < innerWidth &&"
                           " t.canvas.getBoundingClientRect().top > -256 &&"
                           " t.canvas.getBoundingClientRect().top < innerHeight).length")
                     .toInt(),
                 0);
    }
}

void TestPageBaseMap::theMapGoesOnOverTheDateLine()
{
    for (double zoom : {3.0, 5.0, 7.0}) {
        // Chukotka on both sides of 180 degrees, from either side.
        for (double centre : {179.5, -179.5}) {
            look(66.9, centre, zoom);
            const double meridian = centre > 0 ? 180 : -180;
            QCOMPARE(window->colourAt(67.13, meridian + 1.77), land);
            QCOMPARE(window->colourAt(67.13, meridian - 1.23), land);
        }
    }
}

void TestPageBaseMap::southOfTheLimitLiesAntarctica()
{
    look(-85, 40.3, 3);
    QCOMPARE(window->pixelsAround(-84.9, 40.3, 6, coast), 0);
    window->settle();
    QCOMPARE(window->view->grab().toImage().pixelColor(402, 500), land);
}

void TestPageBaseMap::noShoreRunsAlongTheLimit()
{
    // Inside Antarctica, between the lines of the graticule; each scale of the coasts ends there in its own way.
    for (const double zoom : {3.5, 5.0, 8.0}) {
        look(-85.03, 42.55, zoom);
        QCOMPARE(window->pixelsAround(-85.05, 42.55, 3, land), 7 * 7);
    }
}

void TestPageBaseMap::shallowsAreOfOneTone_data()
{
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("longitude");
    QTest::addColumn<double>("zoom");
    QTest::newRow("where cells meet, at Quiberon") << 47.5 << -3.13 << 11.0;
    QTest::newRow("between the Hebrides") << 57.3 << -7.0 << 5.0;
}

void TestPageBaseMap::shallowsAreOfOneTone()
{
    QFETCH(double, latitude);
    QFETCH(double, longitude);
    QFETCH(double, zoom);
    look(latitude, longitude, zoom);
    window->settle();
    const QImage image = window->view->grab().toImage();
    // The coast's colour over the sea's, once and twice.
    const auto tone = [this](int times) {
        QVector<double> channels{double(sea.red()), double(sea.green()), double(sea.blue())};
        const QVector<int> over{coast.red(), coast.green(), coast.blue()};
        for (int i = 0; i < times; ++i)
            for (int k = 0; k < 3; ++k)
                channels[k] += 0.16 * (over[k] - channels[k]);
        return channels;
    };
    const auto count = [&image](const QVector<double>& channels) {
        int found = 0;
        for (int y = 150; y < 400; ++y)
            for (int x = 300; x < 500; ++x) {
                const QColor pixel = image.pixelColor(x, y);
                found += qAbs(pixel.red() - channels[0]) < 1.5 && qAbs(pixel.green() - channels[1]) < 1.5 &&
                                 qAbs(pixel.blue() - channels[2]) < 1.5
                             ? 1
                             : 0;
            }
        return found;
    };
    QVERIFY2(count(tone(1)) > 1000, qPrintable(QString::number(count(tone(1)))));
    QVERIFY2(count(tone(2)) < 40, qPrintable(QString::number(count(tone(2)))));
}

void TestPageBaseMap::noLineCrossesTheSeaBetweenTwoBays_data()
{
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("longitude");
    QTest::addColumn<double>("zoom");
    QTest::newRow("Bristol Channel") << 50.9 << -4.95 << 7.0;
    QTest::newRow("Mediterranean") << 35.5 << 22.55 << 4.6;
}

void TestPageBaseMap::noLineCrossesTheSeaBetweenTwoBays()
{
    // On a cell's edge, with land of one ring north and south of it.
    QFETCH(double, latitude);
    QFETCH(double, longitude);
    QFETCH(double, zoom);
    look(latitude, longitude, zoom);
    QCOMPARE(window->pixelsAround(latitude, longitude, 5, sea), 11 * 11);
}

void TestPageBaseMap::northOfTheLimitLiesTheSea()
{
    look(85, 40.3, 3);
    window->settle();
    QCOMPARE(window->view->grab().toImage().pixelColor(402, 100), sea);
}

void TestPageBaseMap::theScaleFollowsTheLatitude()
{
    const QString lengths =
        "Array.from(document.querySelectorAll('.scale-bar-line')).map(e => e.textContent).join(' ')";
    look(0, 0, 8);
    QCOMPARE(window->run(lengths).toString(), "20 NM 50 km");
    look(75, 0, 8);
    QCOMPARE(window->run(lengths).toString(), "10 NM 10 km");
}

QTEST_MAIN(TestPageBaseMap)
#include "tst_pagebasemap.moc"
