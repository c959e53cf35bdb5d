// Courses, distances and middles on the sphere of the plan's legs.
#include "pagewindow.h"

#include <QtTest>

class TestPageGreatCircle : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        window.reset(new PageWindow(nullptr));
        QVERIFY(window->load());
    }

    void courseAndDistance_data();
    void courseAndDistance();
    void neighboursKeepTheirDigits();
    void aPointHasNoWayToItself();
    void theMiddle_data();
    void theMiddle();

private:
    QScopedPointer<PageWindow> window;

    double number(const QString& script)
    {
        return window->run(script).toDouble();
    }
};

namespace {

QString position(double latitude, double longitude)
{
    return QString("new google.maps.LatLng(%1,%2)").arg(latitude, 0, 'g', 15).arg(longitude, 0, 'g', 15);
}

bool near(double value, double wanted, double tolerance)
{
    return qAbs(value - wanted) <= tolerance;
}

} // namespace

void TestPageGreatCircle::courseAndDistance_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<double>("distance");
    QTest::addColumn<double>("course");

    const QString paris = position(48, 2);
    const QString east = position(49, 3);
    QTest::newRow("one degree north-east") << paris << east << 71.975 << 33.156;
    QTest::newRow("and back") << east << paris << 71.975 << 213.905;
    QTest::newRow("east on the equator") << position(0, 10) << position(0, 11) << 60.0 << 90.0;
    QTest::newRow("west on the equator") << position(0, 11) << position(0, 10) << 60.0 << 270.0;
    QTest::newRow("north") << position(10, 20) << position(11, 20) << 60.0 << 0.0;
    QTest::newRow("south") << position(11, 20) << position(10, 20) << 60.0 << 180.0;
    QTest::newRow("over the date line") << position(0, 179.5) << position(0, -179.5) << 60.0 << 90.0;
    QTest::newRow("over the pole") << position(80, 0) << position(80, 180) << 1200.0 << 0.0;
    QTest::newRow("from the pole") << position(90, 0) << position(60, 0) << 1800.0 << 180.0;
    QTest::newRow("to the other side of the earth") << position(0, 0) << position(0, 180) << 10800.0 << 90.0;
    QTest::newRow("over an ocean") << position(33.95, -118.4) << position(40.0 + 38.0 / 60.0, -73.0 - 47.0 / 60.0)
                                   << 2143.726 << 65.892;
}

void TestPageGreatCircle::courseAndDistance()
{
    QFETCH(QString, from);
    QFETCH(QString, to);
    QFETCH(double, distance);
    QFETCH(double, course);
    const double miles = number(QString("page.distanceTo(%1,%2)").arg(from, to));
    const double degrees = number(QString("page.courseTo(%1,%2)").arg(from, to));
    QVERIFY2(near(miles, distance, 0.0006), qPrintable(QString::number(miles, 'f', 4)));
    QVERIFY2(near(degrees, course, 0.0006), qPrintable(QString::number(degrees, 'f', 4)));
}

void TestPageGreatCircle::neighboursKeepTheirDigits()
{
    // A ten-millionth of a degree, about a centimetre: the arc cosine would give nothing here.
    const double miles = number("page.distanceTo(" + position(48, 2) + ',' + position(48.0000001, 2) + ')');
    QVERIFY2(near(miles, 6e-6, 1e-9), qPrintable(QString::number(miles)));
}

void TestPageGreatCircle::aPointHasNoWayToItself()
{
    for (const QString& place : {position(48.12345, 2.98765), position(0, 0), position(-33.5, -70.75)}) {
        QCOMPARE(number(QString("page.distanceTo(%1,%1)").arg(place)), 0.0);
        QCOMPARE(number(QString("page.courseTo(%1,%1)").arg(place)), 0.0);
    }
    // Nearly nothing to the west of north is north, and not the full circle.
    QCOMPARE(number("page.courseTo(" + position(0, 0) + ',' + position(10, -1e-17) + ')'), 0.0);
}

void TestPageGreatCircle::theMiddle_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("longitude");

    QTest::newRow("on the equator") << position(0, 10) << position(0, 30) << 0.0 << 20.0;
    QTest::newRow("on a meridian") << position(40, 5) << position(50, 5) << 45.0 << 5.0;
    QTest::newRow("north of both") << position(60, 0) << position(60, 90) << 67.792 << 45.0;
    QTest::newRow("over the date line") << position(0, 170) << position(0, -150) << 0.0 << -170.0;
}

void TestPageGreatCircle::theMiddle()
{
    QFETCH(QString, from);
    QFETCH(QString, to);
    QFETCH(double, latitude);
    QFETCH(double, longitude);
    window->run(QString("var middle = page.midPoint(%1,%2)").arg(from, to));
    QVERIFY(near(number("middle.lat()"), latitude, 0.0006));
    QVERIFY(near(number("middle.lng()"), longitude, 0.0006));
}

QTEST_MAIN(TestPageGreatCircle)
#include "tst_pagegreatcircle.moc"
