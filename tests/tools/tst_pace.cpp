// What flysim's clock makes of speed, factor, rate and the way's length; and its status line.
#include "pace.h"

#include <QtTest>

#include <limits>

namespace {

constexpr double endless = std::numeric_limits<double>::infinity();

} // namespace

class TestPace : public QObject
{
    Q_OBJECT

private slots:
    void theWayGrowsWithSpeedFactorAndTime_data()
    {
        QTest::addColumn<double>("speed");
        QTest::addColumn<double>("factor");
        QTest::addColumn<double>("seconds");
        QTest::addColumn<double>("miles");
        QTest::newRow("an hour") << 120.0 << 1.0 << 3600.0 << 120.0;
        QTest::newRow("half a minute") << 120.0 << 1.0 << 30.0 << 1.0;
        QTest::newRow("twice as fast") << 240.0 << 1.0 << 30.0 << 2.0;
        QTest::newRow("the time twenty times as fast") << 450.0 << 20.0 << 60.0 << 150.0;
        QTest::newRow("slow motion") << 360.0 << 0.1 << 100.0 << 1.0;
        QTest::newRow("standing still") << 0.0 << 1000.0 << 3600.0 << 0.0;
        QTest::newRow("the start") << 450.0 << 20.0 << 0.0 << 0.0;
    }

    void theWayGrowsWithSpeedFactorAndTime()
    {
        QFETCH(const double, speed);
        QFETCH(const double, factor);
        QFETCH(const double, seconds);
        QFETCH(const double, miles);
        Options options;
        options.speed = speed;
        options.factor = factor;
        QVERIFY(qAbs(flownAfter(seconds, endless, options) - miles) < 1e-9);
    }

    void theLastPointIsTheEnd()
    {
        Options options;
        options.speed = 3600.0;
        QCOMPARE(flownAfter(59.0, 60.0, options), 59.0);
        QCOMPARE(flownAfter(61.0, 60.0, options), 60.0);
        QCOMPARE(flownAfter(1e9, 60.0, options), 60.0);
    }

    void aLoopBeginsAgain()
    {
        Options options;
        options.speed = 3600.0;
        options.loop = true;
        QCOMPARE(flownAfter(59.0, 60.0, options), 59.0);
        QCOMPARE(flownAfter(61.0, 60.0, options), 1.0);
        QCOMPARE(flownAfter(150.0, 60.0, options), 30.0);
        // Nowhere to go again.
        QCOMPARE(flownAfter(150.0, 0.0, options), 0.0);
    }

    void theRateGivesThePeriod()
    {
        using Microseconds = std::chrono::microseconds;
        QVERIFY(periodOf(25.0) == Microseconds(40000));
        QVERIFY(periodOf(1000.0) == Microseconds(1000));
        QVERIFY(periodOf(0.1) == Microseconds(10000000));
    }

    void theStatusTellsFixAndWay()
    {
        const Fix fix{{48.7295, -2.359}, 188.04};
        QCOMPARE(statusText(fix, 12.34, endless), std::string(" 48.72950   -2.35900  heading 188.0  12.3 NM"));
        QCOMPARE(statusText(fix, 12.34, 308.4),
                 std::string(" 48.72950   -2.35900  heading 188.0  12.3 NM of 308.4 NM"));
        QCOMPARE(statusText(fix, 308.4, 308.4),
                 std::string(" 48.72950   -2.35900  heading 188.0  308.4 NM of 308.4 NM, at the last point"));
    }
};

QTEST_APPLESS_MAIN(TestPace)
#include "tst_pace.moc"
