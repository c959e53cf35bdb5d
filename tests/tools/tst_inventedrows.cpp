#include "inventednames.h"
#include "inventedplaces.h"
#include "inventedrows.h"
#include "updatestatements.h"

#include <QRegularExpression>
#include <QSet>
#include <QtTest>

class TestInventedRows : public QObject
{
    Q_OBJECT

private slots:
    void aNumberAlwaysGivesTheSameRow();
    void rowsHaveAllValuesOfTheirStatements();
    void keysAreUniqueAndFit();
    void namesStayUniquePastTheShortOnes();
    void theFrenchShareIsEvenlySpread();
    void frenchPlacesLieInFrance();
    void longitudesLieOnOneTurn();
    void someAirportsHaveTwoRunwaysAndSomeNone();
    void aRunwayLiesBetweenItsEnds();
    void allKindsOccur();
};

void TestInventedRows::aNumberAlwaysGivesTheSameRow()
{
    QCOMPARE(inventedAirport(7, true).airport, inventedAirport(7, true).airport);
    QCOMPARE(inventedNavaid(7, false), inventedNavaid(7, false));
    QCOMPARE(inventedWaypoint(0, true).mid(1, 4), QStringList({"PAKIB", "PAKIBFR", "PAKIB", "FR"}));
    QVERIFY(inventedAirport(7, true).airport != inventedAirport(8, true).airport);
}

void TestInventedRows::rowsHaveAllValuesOfTheirStatements()
{
    for (int number = 0; number < 300; ++number) {
        const InventedAirport airport = inventedAirport(number, number % 2 == 0);
        QCOMPARE(airport.airport.size(), 50);
        QCOMPARE(airport.airport.at(45).toInt(), airport.runways.size());
        for (const QStringList& runway : airport.runways)
            QCOMPARE(runway.size(), 71);
        QCOMPARE(inventedNavaid(number, true).size(), 17);
        QCOMPARE(inventedWaypoint(number, true).size(), 16);
    }
}

void TestInventedRows::keysAreUniqueAndFit()
{
    const QRegularExpression plain("^[A-Z0-9]{1,10}$");
    QSet<QString> airports;
    QSet<QString> navaids;
    QSet<QString> waypoints;
    constexpr int count = 20000;
    for (int number = 0; number < count; ++number) {
        const bool french = number % 3 == 0;
        airports << inventedAirport(number, french).airport.at(airportKey);
        navaids << inventedNavaid(number, french).at(navaidKey);
        waypoints << inventedWaypoint(number, french).at(waypointKey);
    }
    for (const QSet<QString>& keys : {airports, navaids, waypoints}) {
        QCOMPARE(keys.size(), count);
        for (const QString& key : keys)
            QVERIFY2(plain.match(key).hasMatch(), qPrintable(key));
    }
}

void TestInventedRows::namesStayUniquePastTheShortOnes()
{
    QCOMPARE(inventedFiveLetters(199999).size(), 5);
    QCOMPARE(inventedFiveLetters(200000), inventedFiveLetters(0) + "A");
    QCOMPARE(inventedFiveLetters(5399999).size(), 6);
    QCOMPARE(inventedBeacon(17575).size(), 3);
    QCOMPARE(inventedBeacon(17576).size(), 4);
    QSet<QString> beacons;
    for (int number = 0; number < 60000; ++number)
        beacons << inventedBeacon(number);
    QCOMPARE(beacons.size(), 60000);
    QCOMPARE(inventedCode(35, 4), QString("000Z"));
    QCOMPARE(inventedCode(1679615, 4), QString("ZZZZ"));
}

void TestInventedRows::theFrenchShareIsEvenlySpread()
{
    for (const int percent : {0, 1, 4, 10, 33, 50, 99, 100}) {
        int french = 0;
        for (int number = 0; number < 1000; ++number)
            french += isFrench(number, percent) ? 1 : 0;
        QCOMPARE(french, percent * 10);
    }
}

void TestInventedRows::frenchPlacesLieInFrance()
{
    for (int number = 0; number < 2000; ++number) {
        const QStringList waypoint = inventedWaypoint(number, true);
        QCOMPARE(waypoint.at(4), QString("FR"));
        const double latitude = waypoint.at(9).toDouble() / 3600.0;
        double longitude = waypoint.at(10).toDouble() / 3600.0;
        longitude -= longitude > 180.0 ? 360.0 : 0.0;
        QVERIFY(latitude > 42.4 && latitude < 51.1 && longitude > -4.6 && longitude < 8.1);
        // Neither the Bay of Biscay nor Lombardy.
        QVERIFY(!(latitude < 46.0 && longitude < -2.0));
        QVERIFY(!(latitude < 47.0 && longitude > 7.6));
        QVERIFY(inventedWaypoint(number, false).at(4) != "FR");
    }
}

void TestInventedRows::longitudesLieOnOneTurn()
{
    for (int number = 0; number < 5000; ++number) {
        const double longitude = inventedNavaid(number, number % 2 == 0).at(13).toDouble();
        QVERIFY(longitude >= 0.0 && longitude < 1296000.0);
    }
}

void TestInventedRows::someAirportsHaveTwoRunwaysAndSomeNone()
{
    QCOMPARE(inventedAirport(0, true).runways.size(), 1);
    QCOMPARE(inventedAirport(9, true).runways.size(), 2);
    QCOMPARE(inventedAirport(99, true).runways.size(), 0);
}

void TestInventedRows::aRunwayLiesBetweenItsEnds()
{
    for (int number = 0; number < 200; ++number) {
        const InventedAirport invented = inventedAirport(number, true);
        for (const QStringList& runway : invented.runways) {
            const double middle = (runway.at(14).toDouble() + runway.at(43).toDouble()) / 2.0;
            QVERIFY(qAbs(middle - invented.airport.at(9).toDouble()) < 0.01);
            const double turn = runway.at(17).toDouble() - runway.at(46).toDouble();
            QVERIFY(qAbs(qAbs(turn) - 180.0) < 0.05);
            QVERIFY(runway.at(13).toInt() >= 1 && runway.at(13).toInt() <= 36);
            // Landing on the high end one flies towards the low end: a course above 180 leads to the west.
            if (runway.at(17).toDouble() > 181.0 && runway.at(17).toDouble() < 359.0)
                QVERIFY(std::remainder(runway.at(15).toDouble() - runway.at(44).toDouble(), 1296000.0) > 0.0);
        }
    }
}

void TestInventedRows::allKindsOccur()
{
    QSet<QString> types;
    QSet<QString> usages;
    QSet<QString> locations;
    for (int number = 0; number < 2000; ++number) {
        types << inventedNavaid(number, true).at(9);
        usages << inventedWaypoint(number, true).at(8);
        locations << inventedWaypoint(number, true).at(6);
    }
    QCOMPARE(types, QSet<QString>({"1", "4", "8", "16", "17", "24"}));
    QCOMPARE(usages, QSet<QString>({"1", "2", "3", "4", "5", "6"}));
    QCOMPARE(locations, QSet<QString>({"78", "89"}));
}

QTEST_GUILESS_MAIN(TestInventedRows)
#include "tst_inventedrows.moc"
