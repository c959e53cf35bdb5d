// The images that are compiled into the program.
#include <QDir>
#include <QImage>
#include <QImageReader>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <cmath>

class TestIcons : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void thereAre39Bitmaps();
    void everyBitmapIsDrawnOnNothing_data();
    void everyBitmapIsDrawnOnNothing();
    void everyBitmapStandsOutOnLightAndDark_data()
    {
        everyBitmapIsDrawnOnNothing_data();
    }
    void everyBitmapStandsOutOnLightAndDark();
    void noTwoBitmapsAreAlike();
    void theOtherImagesAreThere();
    void theProgramDrawsThem();
};

namespace {

QString bitmap(int number)
{
    return QString(":/icon/images/Img%1.bmp").arg(number, 2, 10, QLatin1Char('0'));
}

/// Relative luminance of a colour, 0 to 1, as contrast is reckoned from it.
double luminance(const QColor& colour)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

double contrast(const QColor& a, const QColor& b)
{
    const double first = luminance(a) + 0.05;
    const double second = luminance(b) + 0.05;
    return qMax(first, second) / qMin(first, second);
}

} // namespace

void TestIcons::initTestCase()
{
    Q_INIT_RESOURCE(trajector);
}

void TestIcons::thereAre39Bitmaps()
{
    QCOMPARE(QDir(":/icon/images").entryList().size(), 39);
    QVERIFY(QFile::exists(":/icon/images/Img00.bmp"));
    QVERIFY(QFile::exists(":/icon/images/Img38.bmp"));
}

void TestIcons::everyBitmapIsDrawnOnNothing_data()
{
    QTest::addColumn<int>("number");
    for (int number = 0; number < 39; ++number)
        QTest::addRow("Img%02d", number) << number;
}

void TestIcons::everyBitmapIsDrawnOnNothing()
{
    QFETCH(int, number);
    const QImage image(bitmap(number));
    QCOMPARE(image.size(), QSize(16, 16));
    QVERIFY(image.hasAlphaChannel());
    int clear = 0;
    int solid = 0;
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 16; ++x) {
            clear += qAlpha(image.pixel(x, y)) == 0 ? 1 : 0;
            solid += qAlpha(image.pixel(x, y)) > 200 ? 1 : 0;
        }
    QVERIFY2(clear > 25, qPrintable(QString::number(clear)));
    QVERIFY2(solid > 12, qPrintable(QString::number(solid)));
}

void TestIcons::everyBitmapStandsOutOnLightAndDark()
{
    QFETCH(int, number);
    const QImage image(bitmap(number));
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 16; ++x) {
            const QColor colour = image.pixelColor(x, y);
            if (colour.alpha() < 250)
                continue;
            QVERIFY2(contrast(colour, QColor(0xf0, 0xf0, 0xf0)) > 2.8, qPrintable(colour.name()));
            QVERIFY2(contrast(colour, QColor(0x2b, 0x2b, 0x2b)) > 2.8, qPrintable(colour.name()));
        }
}

void TestIcons::noTwoBitmapsAreAlike()
{
    for (int a = 0; a < 39; ++a)
        for (int b = a + 1; b < 39; ++b)
            QVERIFY2(QImage(bitmap(a)) != QImage(bitmap(b)), qPrintable(bitmap(b)));
}

void TestIcons::theOtherImagesAreThere()
{
    for (const char* name : {"NDB.png", "VOR.png", "VORDME.png"}) {
        const QImage image(QString(":/image/images/") + name);
        QCOMPARE(image.size(), QSize(24, 24));
        QVERIFY(image.hasAlphaChannel());
    }
    QVERIFY(!QImage(":/image/images/AeoZephanSplash.jpg").isNull());
}

void TestIcons::theProgramDrawsThem()
{
    const QTemporaryDir folder;
    QCOMPARE(QProcess::execute(QCoreApplication::applicationDirPath() + "/drawicons", {folder.path()}), 0);
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files).size(), 43);
    // Edges may differ by the version of the drawing library; the shapes do not.
    const QImage drawn(folder.filePath("Img12.bmp"));
    const QImage kept(bitmap(12));
    QCOMPARE(drawn.pixelColor(8, 10), kept.pixelColor(8, 10));
    QCOMPARE(drawn.pixelColor(0, 0).alpha(), 0);
    QCOMPARE(QProcess::execute(QCoreApplication::applicationDirPath() + "/drawicons", {}), 2);
}

QTEST_MAIN(TestIcons)
#include "tst_icons.moc"
