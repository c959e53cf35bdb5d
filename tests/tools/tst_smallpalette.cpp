// Pictures with few colours.
#include "smallpalette.h"

#include <QtTest>

class TestSmallPalette : public QObject
{
    Q_OBJECT

private slots:
    void fewColoursStayAsTheyAre();
    void manyColoursBecomeNearOnes();
    void oneColourIsTheMean();
    void transparencyIsLost();
    void noPictureGivesNone();
};

namespace {

QImage ramp()
{
    QImage image(256, 4, QImage::Format_RGB32);
    for (int x = 0; x < image.width(); ++x)
        for (int y = 0; y < image.height(); ++y)
            image.setPixel(x, y, qRgb(x, 255 - x, y * 80));
    return image;
}

int farthest(QRgb a, QRgb b)
{
    return qMax(qAbs(qRed(a) - qRed(b)), qMax(qAbs(qGreen(a) - qGreen(b)), qAbs(qBlue(a) - qBlue(b))));
}

} // namespace

void TestSmallPalette::fewColoursStayAsTheyAre()
{
    QImage image(3, 1, QImage::Format_RGB32);
    image.setPixel(0, 0, qRgb(1, 2, 3));
    image.setPixel(1, 0, qRgb(250, 240, 230));
    image.setPixel(2, 0, qRgb(1, 2, 4));
    const QImage small = withFewColours(image, 3);
    QCOMPARE(small.format(), QImage::Format_Indexed8);
    QCOMPARE(small.colorCount(), 3);
    QCOMPARE(small.convertToFormat(QImage::Format_RGB32), image);
}

void TestSmallPalette::manyColoursBecomeNearOnes()
{
    const QImage small = withFewColours(ramp(), 64);
    QCOMPARE(small.colorCount(), 64);
    for (int x = 0; x < small.width(); ++x)
        for (int y = 0; y < small.height(); ++y)
            QVERIFY(farthest(small.pixel(x, y), ramp().pixel(x, y)) <= 16);
}

void TestSmallPalette::oneColourIsTheMean()
{
    QImage image(4, 1, QImage::Format_RGB32);
    image.fill(qRgb(10, 20, 30));
    image.setPixel(3, 0, qRgb(50, 60, 70));
    const QImage small = withFewColours(image, 1);
    QCOMPARE(small.colorCount(), 1);
    QCOMPARE(small.pixel(3, 0), qRgb(20, 30, 40));
}

void TestSmallPalette::transparencyIsLost()
{
    QImage image(1, 1, QImage::Format_ARGB32);
    image.fill(qRgba(9, 8, 7, 255));
    QCOMPARE(withFewColours(image, 8).pixel(0, 0), qRgb(9, 8, 7));
}

void TestSmallPalette::noPictureGivesNone()
{
    QVERIFY(withFewColours({}, 8).isNull());
}

QTEST_GUILESS_MAIN(TestSmallPalette)
#include "tst_smallpalette.moc"
