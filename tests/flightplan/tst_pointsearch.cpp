// Rows of the databases as plan lines: what a search text finds, and whose runways an airport gets.
#include "boxresponder.h"
#include "planonsandbox.h"
#include "pointsearch.h"

#include <QtTest>

namespace {

/// "LFPO: 24 06" for each airport, in the order found.
QStringList described(const QVector<FoundPoint>& points)
{
    QStringList texts;
    for (const FoundPoint& point : points) {
        QStringList ends;
        for (const CFpLinePtr& runway : point.runways) {
            ends << runway->iden;
        }
        texts << QString("%1: %2").arg(point.line->dbKey, ends.join(' ')).trimmed();
    }
    return texts;
}

void addAirports(const Sandbox& sandbox, const QStringList& keys)
{
    for (const QString& key : keys) {
        sandbox.addAirport({{"ukey", key}});
    }
}

/// A runway whose ends are named after it: "1H" and "1L".
void addRunway(const Sandbox& sandbox, const QString& airport, const QString& name)
{
    static int sequence = 0;
    sandbox.addRunway({{"nseq", ++sequence}, {"rapt", airport}, {"rhid", name + "H"}, {"rlid", name + "L"}});
}

} // namespace

class TestPointSearch : public QObject
{
    Q_OBJECT

private slots:
    void anAirportComesWithBothEndsOfItsRunways()
    {
        PlanOnSandbox on;
        on.sandbox.addAirport();
        on.sandbox.addRunway();
        const QVector<FoundPoint> found = findAirports(on.plan, "LFPO", true);
        QCOMPARE(described(found), QStringList("LFPO: 24 06"));
        QCOMPARE(found.first().line->usage, QString("airp"));
        QCOMPARE(found.first().runways.first()->name, QString("RWY 24"));
        QVERIFY(on.plan.foundLines.isEmpty());
        QVERIFY(on.plan.lines.isEmpty());
    }

    void exactRunwaysAreOfThisKeyAlone()
    {
        PlanOnSandbox on;
        addAirports(on.sandbox, {"LFP", "LFPO"});
        addRunway(on.sandbox, "LFP", "1");
        addRunway(on.sandbox, "LFPO", "2");
        QCOMPARE(described(findAirports(on.plan, "LFP", true)), QStringList("LFP: 1H 1L"));
    }

    void approximateRunwaysAreOfEveryKeyThatBeginsWithThisOne()
    {
        PlanOnSandbox on;
        addAirports(on.sandbox, {"LFP", "LFPO"});
        addRunway(on.sandbox, "LFPO", "1");
        addRunway(on.sandbox, "LFP", "2");
        QCOMPARE(described(findAirports(on.plan, "LFP", false)), QStringList({"LFP: 1H 1L 2H 2L", "LFPO: 1H 1L"}));
    }

    // Many airports are served by one walk through the runways. It must find what a query for each would.
    void manyAirportsGetTheSameRunwaysAsFew()
    {
        PlanOnSandbox on;
        addAirports(on.sandbox, {"LF", "LFP", "LFPO", "lfpo2", "LF_O", "LF%", "LFBO", "LFML", "LFZZ", "LFÉ"});
        addRunway(on.sandbox, "LFPO", "1");
        addRunway(on.sandbox, "lfpo", "2");
        addRunway(on.sandbox, "LFPO2", "3");
        addRunway(on.sandbox, "LFML", "4");
        addRunway(on.sandbox, "LFBO", "5");
        addRunway(on.sandbox, "LFÉ", "6");
        addRunway(on.sandbox, "LFé", "7");
        addRunway(on.sandbox, "LE", "8");
        addRunway(on.sandbox, "L", "9");
        addRunway(on.sandbox, "", "10");
        const QString all = "1H 1L 2H 2L 3H 3L 4H 4L 5H 5L 6H 6L 7H 7L";
        QCOMPARE(described(findAirports(on.plan, "LF", false)),
                 QStringList({"LF: " + all, "LFP: 1H 1L 2H 2L 3H 3L", "LFPO: 1H 1L 2H 2L 3H 3L", "lfpo2: 3H 3L",
                              "LF_O: 1H 1L 2H 2L 3H 3L 5H 5L", "LF%: " + all, "LFBO: 5H 5L", "LFML: 4H 4L",
                              "LFZZ:", "LFÉ: 6H 6L"}));
    }

    void manyAirportsWithNothingInCommon()
    {
        PlanOnSandbox on;
        addAirports(on.sandbox, {"AA", "BB", "CC", "DD", "EE", "FF", "GG", "HH", ""});
        addRunway(on.sandbox, "BB", "1");
        addRunway(on.sandbox, "HH9", "2");
        QCOMPARE(described(findAirports(on.plan, "", false)),
                 QStringList({"AA:", "BB: 1H 1L", "CC:", "DD:", "EE:", "FF:", "GG:", "HH: 2H 2L", ": 1H 1L 2H 2L"}));
    }

    // What these keys have in common ends in half a character, which no database finds.
    void manyAirportsWithHalfACharacterInCommon()
    {
        PlanOnSandbox on;
        addAirports(on.sandbox, {"LF\U0001F600A", "LF\U0001F600B", "LF\U0001F600C", "LF\U0001F600D", "LF\U0001F601E",
                                 "LF\U0001F601F", "LF\U0001F601G", "LF\U0001F601H"});
        addRunway(on.sandbox, "LF\U0001F600B", "1");
        addRunway(on.sandbox, "LF\U0001F601H", "2");
        const BoxResponder boxes; // a statement with half a character is refused with a box
        const QStringList found = described(findAirports(on.plan, "LF", false));
        QCOMPARE(found.size(), 8);
        QCOMPARE(found.at(1), QString("LF\U0001F600B: 1H 1L"));
        QCOMPARE(found.at(7), QString("LF\U0001F601H: 2H 2L"));
    }

    void navaidsAndWaypointsHaveNoRunways()
    {
        PlanOnSandbox on;
        on.sandbox.addNavaid();
        on.sandbox.addRunway({{"rapt", "RBT"}});
        on.sandbox.addWaypoint({{"ukey", "RBT"}});
        QCOMPARE(described(findNavaids(on.plan, "RBT", false)), QStringList("RBT:"));
        QCOMPARE(described(findWaypoints(on.plan, "RBT", false)), QStringList("RBT:"));
    }

    void aTextThatFitsNothingFindsNothing()
    {
        PlanOnSandbox on;
        on.sandbox.addAirport();
        QVERIFY(findAirports(on.plan, "XXXX", false).isEmpty());
        QVERIFY(findAirports(on.plan, "", true).isEmpty());
        QVERIFY(findNavaids(on.plan, "LFPO", true).isEmpty());
        QVERIFY(findWaypoints(on.plan, "LFPO", true).isEmpty());
    }

    void aFailedStatementIsToldAndFindsNothing()
    {
        PlanOnSandbox on;
        on.sandbox.sql(dbfile::wpt, "DROP TABLE WPT");
        BoxResponder boxes;
        for (int column = 0; column < 3; ++column) {
            boxes.expectAnyMessage();
        }
        QVERIFY(findWaypoints(on.plan, "BAMES", true).isEmpty());
        QVERIFY(boxes.allUsed());
        QCOMPARE(boxes.seen().value(0).title, QString("SQL Error"));
    }
};

QTEST_MAIN(TestPointSearch)
#include "tst_pointsearch.moc"
