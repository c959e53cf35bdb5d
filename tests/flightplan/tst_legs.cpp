// Course, distance and minutes of the legs, and the altitude that is copied down the plan.
#include "legs.h"
#include "planlines.h"

#include <QtTest>

#include <climits>
#include <cmath>

namespace {

QString text(double value)
{
    return QString::number(value, 'f', 3);
}

QList<CFpLinePtr> fiveLines()
{
    QList<CFpLinePtr> lines;
    for (int i = 0; i < 5; ++i) {
        lines << pointAt(3600.0 * i, 0.0);
        lines.last()->altd = 100 * (i + 1);
    }
    return lines;
}

QList<int> altitudes(const QList<CFpLinePtr>& lines)
{
    QList<int> result;
    for (const CFpLinePtr& line : lines) {
        result << line->altd;
    }
    return result;
}

} // namespace

class TestLegs : public QObject
{
    Q_OBJECT

private slots:
    void courseAndDistance_data()
    {
        QTest::addColumn<double>("latA");
        QTest::addColumn<double>("lonA");
        QTest::addColumn<double>("latB");
        QTest::addColumn<double>("lonB");
        QTest::addColumn<QString>("course");
        QTest::addColumn<QString>("distance");
        QTest::newRow("one degree up and to the right") << 48.0 << 2.0 << 49.0 << 3.0 << "33.156"
                                                        << "71.975";
        QTest::newRow("due east on the equator") << 0.0 << 0.0 << 0.0 << 1.0 << "90.000"
                                                 << "60.000";
        QTest::newRow("due west on the equator") << 0.0 << 1.0 << 0.0 << 0.0 << "270.000"
                                                 << "60.000";
        QTest::newRow("due north") << 0.0 << 0.0 << 1.0 << 0.0 << "0.000"
                                   << "60.000";
        QTest::newRow("due south") << 1.0 << 0.0 << 0.0 << 0.0 << "180.000"
                                   << "60.000";
        QTest::newRow("east across the 180th meridian") << 0.0 << 179.5 << 0.0 << -179.5 << "90.000"
                                                        << "60.000";
        QTest::newRow("west across the 180th meridian") << 0.0 << -179.5 << 0.0 << 179.5 << "270.000"
                                                        << "60.000";
        QTest::newRow("a quarter of the earth") << 0.0 << 0.0 << 0.0 << 90.0 << "90.000"
                                                << "5400.000";
    }

    void courseAndDistance()
    {
        QFETCH(double, latA);
        QFETCH(double, lonA);
        QFETCH(double, latB);
        QFETCH(double, lonB);
        QFETCH(QString, course);
        QFETCH(QString, distance);
        const Leg leg = legBetween(*pointAt(latA * 3600.0, lonA * 3600.0), *pointAt(latB * 3600.0, lonB * 3600.0));
        QCOMPARE(text(leg.course), course);
        QCOMPARE(text(leg.distance), distance);
    }

    void courseIsNever360()
    {
        // A hair to the west of north: adding the circle rounds to the full 360.
        const Leg leg = legBetween(*pointAt(0.0, 0.0), *pointAt(3600.0, -1e-14));
        QVERIFY(leg.course >= 0.0);
        QVERIFY(leg.course < 360.0);
    }

    void clickedLongitudeGivesTheLegOfTheStoredOne()
    {
        const CFpLinePtr end = pointAt(176400.0, 10800.0);
        const Leg clicked = legBetween(*pointAt(172800.0, 1292400.0), *end);
        const Leg stored = legBetween(*pointAt(172800.0, -3600.0), *end);
        QCOMPARE(clicked.course, stored.course);
        QCOMPARE(clicked.distance, stored.distance);
    }

    void storedLongitudeIsNotChanged()
    {
        const QList<CFpLinePtr> lines{pointAt(0.0, 1292400.0), pointAt(0.0, -3600.0 * 500.0)};
        computeLegs(lines);
        QCOMPARE(lines.at(0)->lonS, 1292400.0);
        QCOMPARE(lines.at(1)->lonS, -3600.0 * 500.0);
    }

    void repeatedPointIsNotGuarded()
    {
        int beyond = 0;
        for (int latitude = 0; latitude < 90 * 3600; latitude += 97) {
            const QList<CFpLinePtr> lines{pointAt(latitude, 7200.0), pointAt(latitude, 7200.0)};
            computeLegs(lines);
            if (std::isnan(lines.first()->dist)) {
                ++beyond;
                QCOMPARE(lines.first()->duration, INT_MIN);
            } else {
                QVERIFY(lines.first()->dist < 0.001);
                QCOMPARE(lines.first()->duration, 0);
            }
        }
        QVERIFY2(beyond > 0, "no latitude carries the cosine past 1");
    }

    void speedZeroGivesTheSmallestNumberOfMinutes()
    {
        const QList<CFpLinePtr> lines{pointAt(0.0, 0.0, "A", 0), pointAt(3600.0, 0.0, "B", 0)};
        computeLegs(lines);
        QCOMPARE(lines.first()->duration, -2147483647 - 1);
    }

    void minutesAreTruncated()
    {
        // 60 miles at 61 knots are 59.02 minutes, at 121 knots 29.75.
        const QList<CFpLinePtr> lines{pointAt(0.0, 0.0, "A", 61), pointAt(3600.0, 0.0, "B", 121),
                                      pointAt(7200.0, 0.0, "C")};
        computeLegs(lines);
        QCOMPARE(lines.at(0)->duration, 59);
        QCOMPARE(lines.at(1)->duration, 29);
    }

    void lastLineKeepsItsFormerLeg()
    {
        const QList<CFpLinePtr> lines{pointAt(0.0, 0.0), pointAt(3600.0, 0.0)};
        lines.last()->route = 123.0;
        lines.last()->dist = 45.0;
        lines.last()->duration = 6;
        computeLegs(lines);
        QCOMPARE(lines.last()->route, 123.0);
        QCOMPARE(lines.last()->dist, 45.0);
        QCOMPARE(lines.last()->duration, 6);
    }

    void timeIsCopiedDownWithoutTheMinutes()
    {
        const QList<CFpLinePtr> lines = fiveLines();
        lines.first()->timeAt = QTime(7, 30);
        computeLegs(lines);
        for (const CFpLinePtr& line : lines) {
            QCOMPARE(line->timeAt, QTime(7, 30));
        }
    }

    void fewerThanTwoLinesChangeNothing()
    {
        computeLegs({});
        const CFpLinePtr line = pointAt(3600.0, 0.0);
        line->dist = 12.0;
        computeLegs({line});
        QCOMPARE(line->dist, 12.0);
        QCOMPARE(line->duration, 0);
    }

    void sameObjectTwiceIsALegOfItsOwn()
    {
        const CFpLinePtr line = pointAt(0.0, 0.0);
        computeLegs({line, line});
        QCOMPARE(line->dist, 0.0);
        QCOMPARE(line->duration, 0);
    }

    void positionsThatAreNoPlaceGiveNoNumber_data()
    {
        QTest::addColumn<double>("value");
        QTest::newRow("infinity") << qInf();
        QTest::newRow("minus infinity") << -qInf();
        QTest::newRow("no number") << qQNaN();
    }

    void positionsThatAreNoPlaceGiveNoNumber()
    {
        QFETCH(double, value);
        const QList<CFpLinePtr> lines{pointAt(value, value), pointAt(0.0, 0.0)};
        computeLegs(lines);
        QVERIFY(std::isnan(lines.first()->dist));
        QVERIFY(std::isnan(lines.first()->route));
        QCOMPARE(lines.first()->duration, INT_MIN);
    }

    void hugeLongitudeEnds()
    {
        const QList<CFpLinePtr> lines{pointAt(0.0, 1e300), pointAt(0.0, -1e300)};
        computeLegs(lines);
        QVERIFY(std::isfinite(lines.first()->dist));
        QVERIFY(std::isfinite(lines.first()->route));
    }

    void altitudeGoesDownToTheLineBeforeTheLast()
    {
        const QList<CFpLinePtr> lines = fiveLines();
        copyAltitudeDown(lines, 1, 4500);
        QCOMPARE(altitudes(lines), QList<int>({100, 4500, 4500, 4500, 500}));
    }

    void altitudeOfTheLastLineChangesNothing()
    {
        const QList<CFpLinePtr> lines = fiveLines();
        copyAltitudeDown(lines, 4, 4500);
        copyAltitudeDown(lines, 5, 4500);
        copyAltitudeDown(lines, -1, 4500);
        QCOMPARE(altitudes(lines), QList<int>({100, 200, 300, 400, 500}));
    }
};

QTEST_APPLESS_MAIN(TestLegs)
#include "tst_legs.moc"
