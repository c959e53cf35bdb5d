// The HTML of the info windows, to the character.
#include "markertext.h"

#include <QtTest>

class TestMarkerText : public QObject
{
    Q_OBJECT

private slots:
    void airport()
    {
        QCOMPARE(markertext::airport("LFPO", "PARIS ORLY", 175411.0, 8494.0),
                 QString("<font color=blue><b>Airport LFPO</b><font color=black><br/>PARIS ORLY<br/>"
                         "48 43' 31.00 N - 002 21' 34.00 E"));
    }

    void southAndWest()
    {
        QCOMPARE(markertext::airport("SCEL", "SANTIAGO", -120214.5, -254823.0),
                 QString("<font color=blue><b>Airport SCEL</b><font color=black><br/>SANTIAGO<br/>"
                         "33 23' 34.50 S - 070 47' 03.00 W"));
        QCOMPARE(markertext::airport("X", "Y", 0.0, 1292400.0),
                 QString("<font color=blue><b>Airport X</b><font color=black><br/>Y<br/>"
                         "00 00' 00.00 N - 001 00' 00.00 W"));
    }

    // 48 39' is a hair below 39 minutes when taken from arc seconds; there is no carry out of the seconds.
    void vorFrequencyInMhz()
    {
        QCOMPARE(markertext::vor("RBT", "RAMBOUILLET", 114.7, 175140.0, 7140.0),
                 QString("<font color=blue><b>VOR RBT</b><font color=black><br/>RAMBOUILLET<br/>114.7 Mhz<br/>"
                         "48 38' 60.00 N - 001 59' 00.00 E"));
    }

    void ndbFrequencyInKhz()
    {
        QCOMPARE(markertext::ndb("OYE", "ORLY EST", 349.0, 175140.0, 7140.0),
                 QString("<font color=blue><b>NDB OYE</b><font color=black><br/>ORLY EST<br/>349 Khz<br/>"
                         "48 38' 60.00 N - 001 59' 00.00 E"));
    }

    void frequencyHasSixSignificantDigits_data()
    {
        QTest::addColumn<double>("frequency");
        QTest::addColumn<QString>("text");
        QTest::newRow("three decimals") << 113.775 << "<br/>113.775 Mhz<br/>";
        QTest::newRow("none") << 0.0 << "<br/>0 Mhz<br/>";
        QTest::newRow("a float's tail is cut") << 114.69999694824219 << "<br/>114.7 Mhz<br/>";
        QTest::newRow("large") << 12345678.0 << "<br/>1.23457e+07 Mhz<br/>";
    }
    void frequencyHasSixSignificantDigits()
    {
        QFETCH(double, frequency);
        QFETCH(QString, text);
        QVERIFY2(markertext::vor("A", "B", frequency, 0.0, 0.0).contains(text),
                 qPrintable(markertext::vor("A", "B", frequency, 0.0, 0.0)));
    }

    void waypointTellsItsUsage()
    {
        QCOMPARE(markertext::waypoint("BAMES", "BAMES", "5", 175320.0, 10800.0),
                 QString("<font color=blue><b>Waypoint BAMES</b><font color=black><br/>BAMES (5)<br/>"
                         "48 42' 00.00 N - 003 00' 00.00 E"));
    }

    void aPlaceholderInsideANameStaysWhatItIs()
    {
        QCOMPARE(markertext::waypoint("%2", "A%1", "%5", 0.0, 0.0),
                 QString("<font color=blue><b>Waypoint %2</b><font color=black><br/>A%1 (%5)<br/>"
                         "00 00' 00.00 N - 000 00' 00.00 E"));
        QCOMPARE(markertext::airport("%3", "%4", 0.0, 0.0),
                 QString("<font color=blue><b>Airport %3</b><font color=black><br/>%4<br/>"
                         "00 00' 00.00 N - 000 00' 00.00 E"));
    }
};

QTEST_GUILESS_MAIN(TestMarkerText)
#include "tst_markertext.moc"
