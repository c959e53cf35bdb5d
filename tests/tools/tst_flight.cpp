// The great circles that flysim flies, against cases of the sphere that are known without it.
#include "flight.h"

#include <QtTest>

#include <cmath>
#include <limits>

class TestFlight : public QObject
{
    Q_OBJECT

private slots:
    void distanceAndCourseAtTheStart_data();
    void distanceAndCourseAtTheStart();
    void placeAndCourseOnTheWay_data();
    void placeAndCourseOnTheWay();
    void theHeadingIsTheCourseAtThePresentPoint();
    void theWayAcrossThePoleTurnsRoundThere();
    void fromThePoleItGoesAlongTheOtherPointsLongitude();
    void oppositePointsAreJoinedOverTheNorthPole();
    void oppositePolesAreJoinedAlongTheGivenLongitude();
    void legsOfLengthZeroArePassedOver();
    void aRouteOfOnePlaceStaysThere();
    void legsFollowOneAnother();
    void behindTheEndItStaysOnTheLastPoint();
    void beforeTheStartAndWithNoNumberItStaysOnTheFirst();
    void aCourseGoesRoundTheWorld();
    void anyLongitudeAndCourseWillDo();
};

namespace {

const GeoPoint losAngeles{33.95, -118.4};
const GeoPoint newYork{40.6333333333, -73.7833333333};

/// Differences of angles across the full circle count as they are.
double angleBetween(double a, double b)
{
    return std::abs(std::remainder(a - b, 360.0));
}

void compareFix(const Fix& fix, double latitude, double longitude, double heading, double tolerance = 1e-6)
{
    const std::string got = QString("%1 %2 heading %3")
                                .arg(fix.place.latitude, 0, 'g', 12)
                                .arg(fix.place.longitude, 0, 'g', 12)
                                .arg(fix.heading, 0, 'g', 12)
                                .toStdString();
    QVERIFY2(std::abs(fix.place.latitude - latitude) < tolerance, got.c_str());
    QVERIFY2(angleBetween(fix.place.longitude, longitude) < tolerance, got.c_str());
    QVERIFY2(angleBetween(fix.heading, heading) < tolerance, got.c_str());
    QVERIFY2(fix.place.longitude >= -180.0 && fix.place.longitude <= 180.0, got.c_str());
    QVERIFY2(fix.heading >= 0.0 && fix.heading < 360.0, got.c_str());
}

bool isNear(double value, double wanted, double tolerance)
{
    return std::abs(value - wanted) < tolerance;
}

} // namespace

Q_DECLARE_METATYPE(GeoPoint)

void TestFlight::distanceAndCourseAtTheStart_data()
{
    QTest::addColumn<GeoPoint>("from");
    QTest::addColumn<GeoPoint>("to");
    QTest::addColumn<double>("miles");
    QTest::addColumn<double>("course");

    QTest::newRow("a quarter of the equator") << GeoPoint{0, 0} << GeoPoint{0, 90} << 5400.0 << 90.0;
    QTest::newRow("west on the equator") << GeoPoint{0, 10} << GeoPoint{0, 8} << 120.0 << 270.0;
    QTest::newRow("north on a meridian") << GeoPoint{10, 5} << GeoPoint{11, 5} << 60.0 << 0.0;
    QTest::newRow("south on a meridian") << GeoPoint{10, 5} << GeoPoint{9, 5} << 60.0 << 180.0;
    QTest::newRow("to the pole") << GeoPoint{48, 2} << GeoPoint{90, 77} << 2520.0 << 0.0;
    QTest::newRow("Los Angeles to New York") << losAngeles << newYork << 2143.7261 << 65.892167;
    QTest::newRow("Paris Orly to Toulouse")
        << GeoPoint{48.7295, 2.35896} << GeoPoint{43.635, 1.36778} << 308.4231 << 188.032543;
    QTest::newRow("Fiji to Samoa across 180 degrees")
        << GeoPoint{-17.75, 177.45} << GeoPoint{-14.33, -170.71} << 712.7030 << 74.972208;
    QTest::newRow("across 180 degrees on the equator") << GeoPoint{0, 179} << GeoPoint{0, -179} << 120.0 << 90.0;
    QTest::newRow("back across 180 degrees") << GeoPoint{0, -179} << GeoPoint{0, 179} << 120.0 << 270.0;
    QTest::newRow("Sydney to Santiago, far south")
        << GeoPoint{-33.95, 151.18} << GeoPoint{-33.39, -70.79} << 6118.9214 << 145.194132;
    QTest::newRow("six miles from the pole") << GeoPoint{89.9, 0} << GeoPoint{89.9, 90} << 8.4853 << 45.000044;
    QTest::newRow("ten metres") << GeoPoint{48.7295, 2.35896} << GeoPoint{48.7296, 2.35896} << 0.006 << 0.0;
}

void TestFlight::distanceAndCourseAtTheStart()
{
    QFETCH(const GeoPoint, from);
    QFETCH(const GeoPoint, to);
    QFETCH(const double, miles);
    QFETCH(const double, course);
    const Route route({from, to});
    QVERIFY2(isNear(route.length(), miles, 1e-4), QByteArray::number(route.length()).constData());
    compareFix(route.fixAfter(0.0), from.latitude, from.longitude, course, 2e-6);
}

void TestFlight::placeAndCourseOnTheWay_data()
{
    QTest::addColumn<GeoPoint>("from");
    QTest::addColumn<GeoPoint>("to");
    QTest::addColumn<double>("share");
    QTest::addColumn<GeoPoint>("place");
    QTest::addColumn<double>("course");

    QTest::newRow("Los Angeles to New York, two fifths of the way")
        << losAngeles << newYork << 0.4 << GeoPoint{38.669448, -101.626160} << 75.879475;
    QTest::newRow("the top of the circle along 60 degrees north")
        << GeoPoint{60, 0} << GeoPoint{60, 90} << 0.5 << GeoPoint{67.792346, 45.0} << 90.0;
    QTest::newRow("Fiji to Samoa, behind 180 degrees") << GeoPoint{-17.75, 177.45} << GeoPoint{-14.33, -170.71} << 0.5
                                                       << GeoPoint{-16.121539, -176.579007} << 73.231243;
    QTest::newRow("Sydney to Santiago, near the ice") << GeoPoint{-33.95, 151.18} << GeoPoint{-33.39, -70.79} << 0.5
                                                      << GeoPoint{-61.736969, -139.318713} << 89.366670;
    QTest::newRow("round the pole") << GeoPoint{89.9, 0} << GeoPoint{89.9, 90} << 0.5 << GeoPoint{89.929289, 45.0}
                                    << 90.0;
    QTest::newRow("the end of a quarter of the equator")
        << GeoPoint{0, 0} << GeoPoint{0, 90} << 1.0 << GeoPoint{0, 90} << 90.0;
}

void TestFlight::placeAndCourseOnTheWay()
{
    QFETCH(const GeoPoint, from);
    QFETCH(const GeoPoint, to);
    QFETCH(const double, share);
    QFETCH(const GeoPoint, place);
    QFETCH(const double, course);
    const Route route({from, to});
    compareFix(route.fixAfter(route.length() * share), place.latitude, place.longitude, course, 2e-6);
}

void TestFlight::theHeadingIsTheCourseAtThePresentPoint()
{
    // From 60 N 0 E to 60 N 90 E it begins to the north of east and ends as far to its south.
    const Route route({{60, 0}, {60, 90}});
    compareFix(route.fixAfter(0.0), 60.0, 0.0, 49.106605);
    compareFix(route.fixAfter(route.length()), 60.0, 90.0, 130.893395);
}

void TestFlight::theWayAcrossThePoleTurnsRoundThere()
{
    const Route route({{60, 20}, {60, -160}});
    QVERIFY(isNear(route.length(), 3600.0, 1e-6));
    compareFix(route.fixAfter(1740.0), 89.0, 20.0, 0.0);
    compareFix(route.fixAfter(1860.0), 89.0, -160.0, 180.0);
    const Fix atThePole = route.fixAfter(1800.0);
    QVERIFY(isNear(atThePole.place.latitude, 90.0, 1e-6));
    QVERIFY(std::isfinite(atThePole.heading) && std::isfinite(atThePole.place.longitude));
}

void TestFlight::fromThePoleItGoesAlongTheOtherPointsLongitude()
{
    const Route north({{90, 0}, {60, 45}});
    QVERIFY(isNear(north.length(), 1800.0, 1e-6));
    compareFix(north.fixAfter(60.0), 89.0, 45.0, 180.0);
    const Route south({{-90, 0}, {-60, 45}});
    compareFix(south.fixAfter(60.0), -89.0, 45.0, 0.0);
}

void TestFlight::oppositePointsAreJoinedOverTheNorthPole()
{
    const Route route({{0, 0}, {0, 180}});
    QVERIFY(isNear(route.length(), 10800.0, 1e-6));
    compareFix(route.fixAfter(0.0), 0.0, 0.0, 0.0);
    compareFix(route.fixAfter(3600.0), 60.0, 0.0, 0.0);
    compareFix(route.fixAfter(7200.0), 60.0, 180.0, 180.0);
}

void TestFlight::oppositePolesAreJoinedAlongTheGivenLongitude()
{
    const Route route({{-90, 30}, {90, 0}});
    QVERIFY(isNear(route.length(), 10800.0, 1e-6));
    compareFix(route.fixAfter(5400.0), 0.0, 30.0, 0.0);
}

void TestFlight::legsOfLengthZeroArePassedOver()
{
    const Route route({{10, 5}, {10, 5}, {11, 5}, {11, 5}, {11, 365}, {12, 5}, {12, 5}});
    QVERIFY(isNear(route.length(), 120.0, 1e-9));
    compareFix(route.fixAfter(0.0), 10.0, 5.0, 0.0);
    compareFix(route.fixAfter(60.0), 11.0, 5.0, 0.0);
    compareFix(route.fixAfter(90.0), 11.5, 5.0, 0.0);
    compareFix(route.fixAfter(120.0), 12.0, 5.0, 0.0);
}

void TestFlight::aRouteOfOnePlaceStaysThere()
{
    const Route route({{48.5, 2.5}, {48.5, 2.5}});
    QCOMPARE(route.length(), 0.0);
    compareFix(route.fixAfter(0.0), 48.5, 2.5, 0.0);
    compareFix(route.fixAfter(100.0), 48.5, 2.5, 0.0);
}

void TestFlight::legsFollowOneAnother()
{
    const Route route({{0, 0}, {0, 1}, {1, 1}, {1, 1.5}});
    compareFix(route.fixAfter(59.0), 0.0, 59.0 / 60.0, 90.0);
    compareFix(route.fixAfter(61.0), 1.0 / 60.0, 1.0, 0.0);
    compareFix(route.fixAfter(119.0), 59.0 / 60.0, 1.0, 0.0);
    // The great circle to the east bends to the north of the parallel.
    compareFix(route.fixAfter(120.0), 1.0, 1.0, 89.995637, 1e-5);
}

void TestFlight::behindTheEndItStaysOnTheLastPoint()
{
    const Route route({{0, 0}, {0, 1}, {1, 1}});
    compareFix(route.fixAfter(120.0), 1.0, 1.0, 0.0);
    compareFix(route.fixAfter(5000.0), 1.0, 1.0, 0.0);
    compareFix(route.fixAfter(std::numeric_limits<double>::infinity()), 1.0, 1.0, 0.0);
}

void TestFlight::beforeTheStartAndWithNoNumberItStaysOnTheFirst()
{
    const Route route({{0, 0}, {0, 1}});
    compareFix(route.fixAfter(-30.0), 0.0, 0.0, 90.0);
    compareFix(route.fixAfter(std::nan("")), 0.0, 0.0, 90.0);
}

void TestFlight::aCourseGoesRoundTheWorld()
{
    const Route equator(GeoPoint{0, 0}, 90.0);
    QVERIFY(std::isinf(equator.length()));
    compareFix(equator.fixAfter(5400.0), 0.0, 90.0, 90.0);
    compareFix(equator.fixAfter(12000.0), 0.0, -160.0, 90.0);
    compareFix(equator.fixAfter(21600.0 + 60.0), 0.0, 1.0, 90.0);
    const Route northEast(GeoPoint{0, 0}, 45.0);
    compareFix(northEast.fixAfter(5400.0), 45.0, 90.0, 90.0);
    compareFix(northEast.fixAfter(10800.0), 0.0, 180.0, 135.0);
    const Route west(GeoPoint{48.7295, 2.359}, 270.0);
    compareFix(west.fixAfter(0.0), 48.7295, 2.359, 270.0);
}

void TestFlight::anyLongitudeAndCourseWillDo()
{
    compareFix(Route({{0, 370}, {0, -345}}).fixAfter(60.0), 0.0, 11.0, 90.0);
    compareFix(Route(GeoPoint{0, 10}, -270.0).fixAfter(60.0), 0.0, 11.0, 90.0);
    const Fix far = Route({{0, 1e300}, {1, -1e300}}).fixAfter(1.0);
    QVERIFY(std::isfinite(far.place.latitude) && std::isfinite(far.place.longitude) && std::isfinite(far.heading));
}

QTEST_APPLESS_MAIN(TestFlight)
#include "tst_flight.moc"
