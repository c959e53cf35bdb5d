// The chart on a screen of two pixels for each of the page's: everything is drawn with the screen's own.
#include "pagetest.h"
#include "samplechart.h"

#include <QApplication>
#include <QtTest>

using namespace samplechart;

class TestPageRatio : public SampleChartTest
{
    Q_OBJECT

private slots:
    void theScreenHasTwoPixels();
    void aSymbolHasTheScreensPixels();
    void theCanvasesHaveTheScreensPixels();
    void theBaseMapIsPaintedAnewForAnotherScreen();

private:
    /// The sides, in pixels, of the canvases that a selector finds, each once.
    QVariantList sides(const QString& selector)
    {
        return window
            ->run("Array.from(new Set(Array.from(document.querySelectorAll('" + selector + "')).map(c => c.width)))")
            .toList();
    }
};

void TestPageRatio::theScreenHasTwoPixels()
{
    QCOMPARE(window->run("window.devicePixelRatio").toDouble(), 2.0);
    QCOMPARE(window->view->grab().toImage().width(), 1600);
}

void TestPageRatio::aSymbolHasTheScreensPixels()
{
    const QString sprite =
        "var sprite = null; ArptMgr.layer.forEach(p => { ArptMgr.layer.dress(p); sprite = p.sprite; }); sprite.";
    QCOMPARE(window->run(sprite + "canvas.width").toInt(), 2 * window->run(sprite + "size").toInt());
    // Half of a pixel of the page is enough to draw something else: no row of the picture only repeats the one above.
    const QImage image = window->view->grab().toImage();
    const QPoint middle = 2 * pixel(*window, airport);
    int differences = 0;
    for (int y = -16; y < 16; y += 2)
        for (int x = -16; x < 16; ++x)
            differences += image.pixel(middle + QPoint(x, y)) != image.pixel(middle + QPoint(x, y + 1)) ? 1 : 0;
    QVERIFY2(differences > 40, qPrintable(QString::number(differences)));
}

void TestPageRatio::theCanvasesHaveTheScreensPixels()
{
    QCOMPARE(sides(".base-tiles canvas"), QVariantList{512.0});
    QVERIFY(window
                ->run("Array.from(document.querySelectorAll('canvas.chart-canvas'))"
                      ".every(c => Math.abs(c.width - 2 * parseFloat(c.style.width)) < 1)")
                .toBool());
}

void TestPageRatio::theBaseMapIsPaintedAnewForAnotherScreen()
{
    window->run("Object.defineProperty(window, 'devicePixelRatio', { value: 1, configurable: true });");
    QCOMPARE(window->run("window.devicePixelRatio").toDouble(), 1.0);
    // The next move finds it out.
    window->run("map.setCenter(new google.maps.LatLng(46.70000, 2.31000));");
    window->settle();
    QCOMPARE(sides(".base-tiles canvas"), QVariantList{256.0});
    QTRY_VERIFY_WITH_TIMEOUT(
        window->run("Array.from(document.querySelectorAll('.base-tiles canvas')).every(c => !c.style.visibility)")
            .toBool(),
        20000);
}

int main(int argc, char* argv[])
{
    qputenv("QT_SCALE_FACTOR", "2");
    QApplication application(argc, argv);
    TestPageRatio test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_pageratio.moc"
