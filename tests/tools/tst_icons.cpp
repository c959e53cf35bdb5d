// The images that are compiled into the program.
#include <QDataStream>
#include <QDir>
#include <QDirIterator>
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
    void theProgramDrawsWhatIsKept();
    void theSplashIsDrawnAlikeWhateverTheFonts();
    void theDrawingProgramAsksForItsFolder();
    void theOwnIconHasEverySize();
    void theWindowsIconHoldsEverySize();

private:
    QTemporaryDir m_drawn;
};

namespace {

QString bitmap(int number)
{
    return QString(":/icon/images/Img%1.bmp").arg(number, 2, 10, QLatin1Char('0'));
}

QString drawingProgram()
{
    return QCoreApplication::applicationDirPath() + "/drawicons";
}

/// The folder of the kept images in the sources: not all of them are compiled into the program.
QString kept(const QString& name)
{
    return KEPT_IMAGES "/" + name;
}

/// The names of the images below a folder, each with its way from there.
QStringList filesBelow(const QString& folder)
{
    QStringList names;
    for (QDirIterator files(folder, QDir::Files, QDirIterator::Subdirectories); files.hasNext();)
        names.append(QDir(folder).relativeFilePath(files.next()));
    names.sort();
    return names;
}

QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// How far two pictures of one size are apart on average, in steps of 255 of a colour part.
double meanDifference(const QImage& a, const QImage& b)
{
    qint64 sum = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) {
            const QRgb first = a.pixel(x, y);
            const QRgb second = b.pixel(x, y);
            sum += qAbs(qRed(first) - qRed(second)) + qAbs(qGreen(first) - qGreen(second)) +
                   qAbs(qBlue(first) - qBlue(second));
        }
    return double(sum) / (3.0 * a.width() * a.height());
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
    QCOMPARE(QProcess::execute(drawingProgram(), {m_drawn.path()}), 0);
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
            QVERIFY2(contrast(colour, QColor(0xf0, 0xf0, 0xf0)) > 3.0, qPrintable(colour.name()));
            QVERIFY2(contrast(colour, QColor(0x2b, 0x2b, 0x2b)) > 3.0, qPrintable(colour.name()));
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
        QCOMPARE(image.size(), QSize(32, 32));
        QVERIFY(image.hasAlphaChannel());
    }
    QVERIFY(!QImage(":/image/images/AeoZephanSplash.jpg").isNull());
}

// A drawing that was changed and not kept, or an image that was touched by hand, is told here.
void TestIcons::theProgramDrawsWhatIsKept()
{
    const QStringList names = filesBelow(m_drawn.path());
    QCOMPARE(names.size(), 39 + 3 + 1 + 7 + 1);
    QCOMPARE(filesBelow(KEPT_IMAGES), names);
    for (const QString& name : names) {
        if (name.endsWith(".bmp"))
            QVERIFY2(contents(m_drawn.filePath(name)) == contents(kept(name)), qPrintable(name));
        else if (name.endsWith(".png")) // the pixels: packing differs by the version of the library
            QVERIFY2(QImage(m_drawn.filePath(name)) == QImage(kept(name)), qPrintable(name));
    }
}

void TestIcons::theSplashIsDrawnAlikeWhateverTheFonts()
{
    const QImage drawn(m_drawn.filePath("AeoZephanSplash.jpg"));
    const QImage keptSplash(kept("AeoZephanSplash.jpg"));
    QCOMPARE(drawn.size(), QSize(640, 400));
    QCOMPARE(keptSplash.size(), drawn.size());
    const double difference = meanDifference(drawn, keptSplash);
    QVERIFY2(difference < 6.0, qPrintable(QString::number(difference)));
}

void TestIcons::theDrawingProgramAsksForItsFolder()
{
    QCOMPARE(QProcess::execute(drawingProgram(), {}), 2);
}

void TestIcons::theOwnIconHasEverySize()
{
    for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
        const QImage image(kept(QString("app/zephan-trajector-%1.png").arg(size)));
        QCOMPARE(image.size(), QSize(size, size));
        QVERIFY(qAlpha(image.pixel(0, 0)) < 8); // the corners are round
        QCOMPARE(qAlpha(image.pixel(size / 2, size / 2)), 255);
    }
}

void TestIcons::theWindowsIconHoldsEverySize()
{
    const QByteArray ico = contents(kept("app/zephan-trajector.ico"));
    QDataStream in(ico);
    in.setByteOrder(QDataStream::LittleEndian);
    quint16 reserved = 1;
    quint16 kind = 0;
    quint16 count = 0;
    in >> reserved >> kind >> count;
    QCOMPARE(reserved, quint16(0));
    QCOMPARE(kind, quint16(1));
    QCOMPARE(count, quint16(7));
    for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
        quint8 width = 0, height = 0, colours = 0, spare = 0;
        quint16 planes = 0, depth = 0;
        quint32 length = 0, offset = 0;
        in >> width >> height >> colours >> spare >> planes >> depth >> length >> offset;
        QCOMPARE(int(width), size % 256);
        QCOMPARE(int(height), size % 256);
        QCOMPARE(int(depth), 32);
        QVERIFY(offset + length <= quint32(ico.size()));
        const QImage entry = QImage::fromData(ico.mid(int(offset), int(length)), "PNG");
        QVERIFY(entry == QImage(kept(QString("app/zephan-trajector-%1.png").arg(size))));
    }
}

QTEST_MAIN(TestIcons)
#include "tst_icons.moc"
