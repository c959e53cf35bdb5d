// The plan file to the byte, its name, and the script of the route.
#include "planlines.h"
#include "plantext.h"

#include <QtTest>

class TestPlanText : public QObject
{
    Q_OBJECT

private slots:
    void airportAndNavaidToTheByte()
    {
        QCOMPARE(planText(airportAndNavaid(), 1, 12000).join(""), QString(airportAndNavaidText));
    }

    void everyPieceEndsInItsLineFeed()
    {
        const QStringList pieces = planText(airportAndNavaid(), 1, 12000);
        QCOMPARE(pieces.size(), 6 + 2 * 13 + 1);
        for (const QString& piece : pieces) {
            QVERIFY(piece.endsWith('\n'));
        }
    }

    void usageIsWrittenAsTheTypeWord()
    {
        const CFpLinePtr line = pointAt(0.0, 0.0);
        line->fpType = "wayp";
        QCOMPARE(planText({line}, 0, 0).value(7), QString("\tuswp\n"));
    }

    void emptyPlanHasNoText()
    {
        QVERIFY(planText({}, 3, 12000).isEmpty());
    }

    void textsWithPlaceNumbersStayAsTheyAre()
    {
        const QList<CFpLinePtr> lines{pointAt(0.0, 0.0, "%2"), pointAt(0.0, 0.0, "%1")};
        const QStringList pieces = planText(lines, 1, 2);
        QCOMPARE(pieces.value(3), QString("\tFlight plan from %2 to %1\n"));
        QCOMPARE(pieces.value(9), QString("\t\t<name> ---------- Waypoint name ---------\n\t\t%2\n"));
    }

    void numbersThatAreNoneAreWritten()
    {
        const QList<CFpLinePtr> lines{pointAt(qQNaN(), -qInf())};
        QVERIFY(planText(lines, 1, 2).contains("\t\t<llps> ---------- Lat/lon,alt position --\n\t\tnan,-inf,0\n"));
    }

    void fileNameIsInCapitals_data()
    {
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("last");
        QTest::addColumn<QString>("name");
        QTest::newRow("two airports") << "KSFO"
                                      << "KLAX"
                                      << "KSFO_KLAX.FPL";
        QTest::newRow("small letters") << "ksfo"
                                       << "wpt001"
                                       << "KSFO_WPT001.FPL";
        QTest::newRow("the same airport twice") << "KSFO"
                                                << "KSFO"
                                                << "KSFO_KSFO.FPL";
        QTest::newRow("no identities") << ""
                                       << ""
                                       << "_.FPL";
        QTest::newRow("a place number") << "%2"
                                        << "B"
                                        << "%2_B.FPL";
    }

    void fileNameIsInCapitals()
    {
        QFETCH(QString, first);
        QFETCH(QString, last);
        QFETCH(QString, name);
        QCOMPARE(planFileName(*pointAt(0, 0, first), *pointAt(0, 0, last)), name);
    }

    void routeScriptWrapsTheLongitude()
    {
        const QList<CFpLinePtr> lines{pointAt(175411.5, 1292400.0, "A"), pointAt(-3600.0, 648000.0, "B"),
                                      pointAt(0.0, 651600.0, "C"), pointAt(0.0, -3600.0, "D")};
        QCOMPARE(routeScript(lines), QString("clearFP();"
                                             "addPointToFp(new google.maps.LatLng(48.72542,-1.00000),\"A\");"
                                             "addPointToFp(new google.maps.LatLng(-1.00000,180.00000),\"B\");"
                                             "addPointToFp(new google.maps.LatLng(0.00000,-179.00000),\"C\");"
                                             "addPointToFp(new google.maps.LatLng(0.00000,-1.00000),\"D\");"
                                             "pushFP();"));
    }

    void routeScriptDoesNotEscapeTheName()
    {
        QCOMPARE(
            routeScript({pointAt(0.0, 0.0, "A \"quoted\" name")}),
            QString("clearFP();addPointToFp(new google.maps.LatLng(0.00000,0.00000),\"A \"quoted\" name\");pushFP();"));
    }

    void routeScriptKeepsPlaceNumbersInANameAsTheyAre()
    {
        QCOMPARE(routeScript({pointAt(3600.0, 7200.0, "%1 %2 %3")}),
                 QString("clearFP();addPointToFp(new google.maps.LatLng(1.00000,2.00000),\"%1 %2 %3\");pushFP();"));
    }

    void routeScriptOfAnEmptyPlanClearsTheRoute()
    {
        QCOMPARE(routeScript({}), QString("clearFP();pushFP();"));
    }
};

QTEST_APPLESS_MAIN(TestPlanText)
#include "tst_plantext.moc"
