// Wraps and texts of positions.
#include "positions.h"

#include "platformpath.h"

#include <QDir>
#include <QRandomGenerator>
#include <QtTest>

#include <cmath>
#include <limits>

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
const double notANumber = std::numeric_limits<double>::quiet_NaN();

/// The wraps as they are told: repeated steps of a circle.
double steppedPageArcSeconds(double value)
{
    while (value > 1296000.0)
        value -= 1296000.0;
    while (value < 0.0)
        value += 1296000.0;
    return value;
}

double steppedScriptDegrees(double value)
{
    while (value < 0.0)
        value += 360.0;
    while (value >= 360.0)
        value -= 360.0;
    return value > 180.0 ? value - 360.0 : value;
}

/// Values around every multiple of a half circle, and random ones of all sizes that the steps can manage.
QVector<double> valuesAround(double circle)
{
    QVector<double> values{0.0, -0.0, 1e-300, -1e-300, 1e-9, -1e-9};
    for (int half = -9; half <= 9; ++half) {
        const double edge = half * circle / 2.0;
        values << edge << std::nextafter(edge, infinity) << std::nextafter(edge, -infinity) << edge + 0.1 << edge - 0.1;
    }
    QRandomGenerator random(20260101);
    for (int i = 0; i < 2000; ++i) {
        const double size = std::pow(10.0, random.bounded(6.0)) * circle / 1000.0;
        values << (random.generateDouble() - 0.5) * size;
    }
    return values;
}

} // namespace

class TestPositions : public QObject
{
    Q_OBJECT

private slots:
    void pageWrapEqualsRepeatedSteps()
    {
        for (const double value : valuesAround(1296000.0)) {
            const double wrapped = wrapPageArcSeconds(value);
            QVERIFY2(wrapped == steppedPageArcSeconds(value), qPrintable(QString::number(value, 'g', 17)));
        }
    }

    void scriptWrapEqualsRepeatedSteps()
    {
        for (const double value : valuesAround(360.0)) {
            const double wrapped = wrapScriptDegrees(value);
            QVERIFY2(wrapped == steppedScriptDegrees(value), qPrintable(QString::number(value, 'g', 17)));
        }
    }

    void wraps_data()
    {
        QTest::addColumn<double>("page");
        QTest::addColumn<double>("wrappedPage");
        QTest::newRow("zero") << 0.0 << 0.0;
        QTest::newRow("full circle stays") << 1296000.0 << 1296000.0;
        QTest::newRow("two circles are one") << 2592000.0 << 1296000.0;
        QTest::newRow("above the circle") << 1296001.0 << 1.0;
        QTest::newRow("west") << -3600.0 << 1292400.0;
        QTest::newRow("minus a circle") << -1296000.0 << 0.0;
        QTest::newRow("far west") << -1296000.0 * 3.0 - 10.0 << 1295990.0;
    }

    void wraps()
    {
        QFETCH(double, page);
        QTEST(wrapPageArcSeconds(page), "wrappedPage");
    }

    void scriptDegrees_data()
    {
        QTest::addColumn<double>("degrees");
        QTest::addColumn<double>("wrapped");
        QTest::newRow("zero") << 0.0 << 0.0;
        QTest::newRow("180 stays") << 180.0 << 180.0;
        QTest::newRow("181 is west") << 181.0 << -179.0;
        QTest::newRow("-180 is 180") << -180.0 << 180.0;
        QTest::newRow("359.5") << 359.5 << -0.5;
        QTest::newRow("360") << 360.0 << 0.0;
        QTest::newRow("-2.5") << -2.5 << -2.5;
        QTest::newRow("-722") << -722.0 << -2.0;
    }

    void scriptDegrees()
    {
        QFETCH(double, degrees);
        QTEST(wrapScriptDegrees(degrees), "wrapped");
    }

    void courseIsBelow360()
    {
        QCOMPARE(wrapCourseDegrees(360.0), 0.0);
        QCOMPARE(wrapCourseDegrees(-90.0), 270.0);
        QCOMPARE(wrapCourseDegrees(725.0), 5.0);
    }

    void clickedFullCircleIsZero()
    {
        QCOMPARE(wrapClickArcSeconds(1296000.0), 0.0);
        QCOMPARE(wrapClickArcSeconds(-3600.0), 1292400.0);
    }

    void halfCircleStaysEast()
    {
        QCOMPARE(wrapHalfCircleArcSeconds(648000.0), 648000.0);
        QCOMPARE(wrapHalfCircleArcSeconds(648001.0), -647999.0);
        QCOMPARE(wrapHalfCircleArcSeconds(-648000.0), 648000.0);
    }

    void hugeAndUnusualValuesReturn()
    {
        for (double (*wrap)(double) : {wrapScriptDegrees, wrapCourseDegrees, wrapPageArcSeconds, wrapClickArcSeconds,
                                       wrapHalfCircleArcSeconds}) {
            QVERIFY(std::isnan(wrap(notANumber)));
            QCOMPARE(wrap(infinity), infinity);
            QCOMPARE(wrap(-infinity), -infinity);
            for (const double huge : {1e300, -1e300, 1.7e308, -1.7e308})
                QVERIFY(std::fabs(wrap(huge)) <= 1296000.0);
        }
        QVERIFY(!longitudeText(1e300, true).isEmpty());
        QVERIFY(!longitudeText(infinity, true).isEmpty());
        QVERIFY(!latitudeText(notANumber, true).isEmpty());
    }

    void wholePartOfADouble()
    {
        QCOMPARE(truncatedInt(2.9), 2);
        QCOMPARE(truncatedInt(-2.9), -2);
        QCOMPARE(truncatedInt(2147483647.9), 2147483647);
        QCOMPARE(truncatedInt(-2147483648.9), std::numeric_limits<int>::min());
        for (const double tooBig : {2147483648.0, -2147483649.0, 1e300, infinity, -infinity, notANumber})
            QCOMPARE(truncatedInt(tooBig), std::numeric_limits<int>::min());
    }

    void latitudeTexts_data()
    {
        QTest::addColumn<double>("arcSeconds");
        QTest::addColumn<QString>("marked");
        QTest::addColumn<QString>("unmarked");
        QTest::newRow("north") << 175530.6 << "48 45' 30.60\" N"
                               << "48 45' 30.60 N";
        QTest::newRow("south") << -175530.6 << "48 45' 30.60\" S"
                               << "48 45' 30.60 S";
        QTest::newRow("equator is north") << 0.0 << "00 00' 00.00\" N"
                                          << "00 00' 00.00 N";
        QTest::newRow("minus zero is north") << -0.0 << "00 00' 00.00\" N"
                                             << "00 00' 00.00 N";
        QTest::newRow("one digit each") << 3723.0 << "01 02' 03.00\" N"
                                        << "01 02' 03.00 N";
        // 59.999 seconds: shown as 60.00, with no carry into the minutes.
        QTest::newRow("seconds that round to 60") << 59.999 << "00 00' 60.00\" N"
                                                  << "00 00' 60.00 N";
        QTest::newRow("beyond the pole") << 360000.0 << "100 00' 00.00\" N"
                                         << "100 00' 00.00 N";
        QTest::newRow("not a number") << notANumber << "nan nan' 00nan\" N"
                                      << "nan nan' 00nan N";
        QTest::newRow("infinity") << infinity << "inf nan' 00nan\" N"
                                  << "inf nan' 00nan N";
    }

    void latitudeTexts()
    {
        QFETCH(double, arcSeconds);
        QTEST(latitudeText(arcSeconds, true), "marked");
        QTEST(latitudeText(arcSeconds, false), "unmarked");
    }

    void longitudeTexts_data()
    {
        QTest::addColumn<double>("arcSeconds");
        QTest::addColumn<QString>("marked");
        QTest::newRow("one degree west") << -3600.0 << "001 00' 00.00\" W";
        QTest::newRow("one degree beyond the circle") << 1299600.0 << "001 00' 00.00\" E";
        QTest::newRow("west of a full circle") << 1292400.0 << "001 00' 00.00\" W";
        QTest::newRow("zero") << 0.0 << "000 00' 00.00\" E";
        QTest::newRow("full circle") << 1296000.0 << "000 00' 00.00\" E";
        QTest::newRow("half circle stays east") << 648000.0 << "180 00' 00.00\" E";
        QTest::newRow("just beyond the half circle") << 648000.5 << "179 59' 59.50\" W";
        QTest::newRow("minus a half circle is east") << -648000.0 << "180 00' 00.00\" E";
        QTest::newRow("seconds that round to the next one") << 8499.999 << "002 21' 40.00\" E";
        // 59.999 seconds: shown as 60.00, with no carry into the minutes.
        QTest::newRow("seconds that round to 60") << 8519.999 << "002 21' 60.00\" E";
    }

    void longitudeTexts()
    {
        QFETCH(double, arcSeconds);
        QTEST(longitudeText(arcSeconds, true), "marked");
    }

    void longitudeTextWithoutTheMark()
    {
        QCOMPARE(longitudeText(8494.0, false), QString("002 21' 34.00 E"));
    }

    void backslashesBecomeThePlatformsSeparator()
    {
        const QString expected = QDir::separator() == '/' ? "root/Flightplan/X.FPL" : "root\\Flightplan/X.FPL";
        QCOMPARE(platformPath("root\\Flightplan/X.FPL"), expected);
        QCOMPARE(platformPath(QString()), QString());
    }
};

QTEST_APPLESS_MAIN(TestPositions)
#include "tst_positions.moc"
