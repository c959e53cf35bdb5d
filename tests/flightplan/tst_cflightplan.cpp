// The plan's list, its lines, the start at an airport and the refresh of all that is shown.
#include "boxresponder.h"
#include "planlines.h"
#include "planonsandbox.h"

#include <QtTest>

namespace {

QStringList idens(const CFlightPlan& plan)
{
    QStringList names;
    for (const CFpLinePtr& line : plan.lines) {
        names << line->iden;
    }
    return names;
}

void fill(CFlightPlan& plan, const QStringList& names)
{
    double latS = 172800.0;
    for (const QString& name : names) {
        plan.lines << pointAt(latS, 7200.0, name);
        latS += 3600.0;
    }
}

} // namespace

class TestCFlightPlan : public QObject
{
    Q_OBJECT

private slots:
    void startsEmpty()
    {
        const PlanOnSandbox on;
        QVERIFY(on.plan.lines.isEmpty());
        QVERIFY(on.plan.foundLines.isEmpty());
        QVERIFY(on.plan.textLines.isEmpty());
        QVERIFY(on.plan.currentLine.isNull());
        QCOMPARE(on.plan.fplVersion, 0);
        QCOMPARE(on.plan.userWptCount, 0);
        QCOMPARE(on.plan.grid, &on.grid);
        QCOMPARE(on.plan.startLine.latS, 0.0);
        QCOMPARE(on.plan.startLine.lonS, 0.0);
    }

    void newLineTakesTheCruiseOfTheAircraft()
    {
        PlanOnSandbox on;
        on.plan.aircraft->speedCruise = 122;
        on.plan.aircraft->altCruise = 8500;
        const CFpLinePtr line = on.plan.newLine();
        QCOMPARE(line->speed, 122);
        QCOMPARE(line->altd, 8500);
        QCOMPARE(line->tkof, QString("NONE"));
        QVERIFY(on.plan.lines.isEmpty());
    }

    void removeLineOutsideTheListChangesNothing()
    {
        PlanOnSandbox on;
        fill(on.plan, {"A", "B"});
        on.plan.removeLine(-1);
        on.plan.removeLine(2);
        QCOMPARE(idens(on.plan), QStringList({"A", "B"}));
        on.plan.removeLine(0);
        QCOMPARE(idens(on.plan), QStringList{"B"});
    }

    void moveLineUpOfTheFirstLineChangesNothing()
    {
        PlanOnSandbox on;
        fill(on.plan, {"A", "B", "C"});
        on.plan.moveLineUp(0);
        on.plan.moveLineUp(-1);
        on.plan.moveLineUp(3);
        QCOMPARE(idens(on.plan), QStringList({"A", "B", "C"}));
        on.plan.moveLineUp(2);
        QCOMPARE(idens(on.plan), QStringList({"A", "C", "B"}));
    }

    void moveLineDownOfTheLastLineChangesNothing()
    {
        PlanOnSandbox on;
        fill(on.plan, {"A", "B", "C"});
        on.plan.moveLineDown(2);
        on.plan.moveLineDown(3);
        on.plan.moveLineDown(-1);
        QCOMPARE(idens(on.plan), QStringList({"A", "B", "C"}));
        on.plan.moveLineDown(0);
        QCOMPARE(idens(on.plan), QStringList({"B", "A", "C"}));
    }

    void noMoveOnAListOfOneLine()
    {
        PlanOnSandbox on;
        fill(on.plan, {"A"});
        on.plan.moveLineUp(0);
        on.plan.moveLineDown(0);
        on.plan.moveLineUp(1);
        on.plan.moveLineDown(-1);
        QCOMPARE(idens(on.plan), QStringList{"A"});
    }

    void noMoveOnAnEmptyList()
    {
        PlanOnSandbox on;
        on.plan.moveLineUp(1);
        on.plan.moveLineDown(-1);
        QVERIFY(on.plan.lines.isEmpty());
    }

    void insertLinePastTheEndAppends()
    {
        PlanOnSandbox on;
        fill(on.plan, {"A", "B"});
        on.plan.insertLine(pointAt(0, 0, "C"), 99);
        on.plan.insertLine(pointAt(0, 0, "D"), 1);
        on.plan.insertLine(pointAt(0, 0, "E"), -1);
        QCOMPARE(idens(on.plan), QStringList({"E", "A", "D", "B", "C"}));
    }

    void oneLineCanStandTwiceInThePlan()
    {
        PlanOnSandbox on;
        on.plan.foundLines << pointAt(172800.0, 7200.0, "A");
        on.plan.insertLine(on.plan.foundLines.first(), 0);
        on.plan.insertLine(on.plan.foundLines.first(), 1);
        on.plan.lines.first()->altd = 4500;
        QCOMPARE(on.plan.lines.last()->altd, 4500);
        on.plan.foundLines.clear();
        on.plan.removeLine(0);
        QCOMPARE(on.plan.lines.first()->iden, QString("A"));
    }

    void clearLinesKeepsTheCountOfUserPoints()
    {
        PlanOnSandbox on;
        fill(on.plan, {"A", "B"});
        on.plan.userWptCount = 7;
        on.plan.fplVersion = 3;
        on.plan.startLine.latS = 5.0;
        on.plan.foundLines << pointAt(0, 0);
        on.plan.clearLines();
        QVERIFY(on.plan.lines.isEmpty());
        QCOMPARE(on.plan.userWptCount, 7);
        QCOMPARE(on.plan.fplVersion, 3);
        QCOMPARE(on.plan.startLine.latS, 5.0);
        QCOMPARE(on.plan.foundLines.size(), 1);
    }

    void startIsTheHighEndOfTheLongestRunway()
    {
        PlanOnSandbox on;
        on.sandbox.addRunway({{"rlen", 7874}, {"rhla", 1.0}});
        on.sandbox.addRunway({{"rlen", 11975}, {"rhla", 175500.5}, {"rhlo", -8600.5}, {"rhht", 285}, {"rhhd", 61.5}});
        on.sandbox.addRunway({{"rlen", 3000}, {"rhla", 2.0}});
        const CFpLine start = on.plan.startOfAirport("LFPO");
        QCOMPARE(start.latS, 175500.5);
        QCOMPARE(start.lonS, -8600.5);
        QCOMPARE(start.elev, 285);
        QCOMPARE(start.heading, 61.5);
        QCOMPARE(on.plan.startLine.latS, 175500.5);
        QCOMPARE(on.plan.startLine.heading, 61.5);
    }

    void firstOfTwoEquallyLongRunwaysGivesTheStart()
    {
        PlanOnSandbox on;
        on.sandbox.addRunway({{"rlen", 3000}, {"rhla", 100.0}});
        on.sandbox.addRunway({{"rlen", 3000}, {"rhla", 200.0}});
        QCOMPARE(on.plan.startOfAirport("LFPO").latS, 100.0);
    }

    void elevationOfTheStartIsTruncated()
    {
        PlanOnSandbox on;
        on.sandbox.addRunway({{"rhht", 392.7}});
        QCOMPARE(on.plan.startOfAirport("LFPO").elev, 392);
    }

    void runwaysWithoutALengthLeaveTheStartAsItWas()
    {
        PlanOnSandbox on;
        on.sandbox.addRunway({{"rlen", 0}});
        on.plan.startLine.latS = 42.0;
        QCOMPARE(on.plan.startOfAirport("LFPO").latS, 42.0);
    }

    void airportWithoutARunwayShowsTheErrorBoxAndClearsTheStart()
    {
        PlanOnSandbox on;
        on.plan.startLine.latS = 1.0;
        on.plan.startLine.lonS = 2.0;
        on.plan.startLine.elev = 3;
        on.plan.startLine.heading = 4.0;
        BoxResponder boxes;
        boxes.expectAnyMessage();
        const CFpLine start = on.plan.startOfAirport("LFXX");
        QCOMPARE(boxes.seen().size(), 1);
        QCOMPARE(boxes.seen().value(0).title, QString("SQL Error"));
        QVERIFY(boxes.seen().value(0).text.contains("rapt = \"LFXX\""));
        QCOMPARE(start.latS, 0.0);
        QCOMPARE(start.lonS, 0.0);
        QCOMPARE(start.elev, 0);
        QCOMPARE(start.heading, 0.0);
        QCOMPARE(on.plan.startLine.latS, 0.0);
        QCOMPARE(on.plan.startLine.heading, 0.0);
    }

    void refreshComputesShowsAndWritesThePlan()
    {
        PlanOnSandbox on;
        on.plan.lines << pointAt(0, 0, "A", 119) << pointAt(3600, 0, "B");
        QCOMPARE(on.plan.refresh(), QString("clearFP();addPointToFp(new google.maps.LatLng(0.00000,0.00000),\"A\");"
                                            "addPointToFp(new google.maps.LatLng(1.00000,0.00000),\"B\");pushFP();"));
        QCOMPARE(QString::number(on.plan.lines.first()->dist, 'f', 3), QString("60.000"));
        QCOMPARE(on.grid.rowCount(), 2);
        QCOMPARE(on.grid.item(0, 7)->text(), QString("30"));
        QCOMPARE(on.grid.currentRow(), 1);
        QCOMPARE(on.grid.currentColumn(), 1);
        QCOMPARE(on.plan.textLines.value(3), QString("\tFlight plan from A to B\n"));
    }

    void refreshOfAnEmptyPlanLeavesNoRowNoCellAndNoText()
    {
        PlanOnSandbox on;
        fill(on.plan, {"A", "B"});
        on.plan.refresh();
        on.plan.clearLines();
        QCOMPARE(on.plan.refresh(), QString("clearFP();pushFP();"));
        QCOMPARE(on.grid.rowCount(), 0);
        QCOMPARE(on.grid.currentRow(), -1);
        QCOMPARE(on.grid.currentColumn(), -1);
        QVERIFY(on.plan.textLines.isEmpty());
    }

    // Whoever leaves an altitude cell refreshes the plan; taking rows away leaves one.
    void refreshSurvivesARefreshOutOfTheGridsSignal_data()
    {
        QTest::addColumn<int>("remaining");
        QTest::newRow("the last line is deleted") << 2;
        QTest::newRow("two lines are gone") << 1;
        QTest::newRow("the plan is emptied") << 0;
    }

    void refreshSurvivesARefreshOutOfTheGridsSignal()
    {
        QFETCH(int, remaining);
        PlanOnSandbox on;
        connect(&on.grid, &QTableWidget::currentCellChanged, &on.grid, [&on](int, int, int, int previousColumn) {
            if (previousColumn == 9) {
                on.plan.refresh();
            }
        });
        fill(on.plan, {"A", "B", "C"});
        on.plan.refresh();
        on.grid.setCurrentCell(2, 9);
        while (on.plan.lines.size() > remaining) {
            on.plan.removeLine(on.plan.lines.size() - 1);
        }
        on.plan.refresh();
        QCOMPARE(on.grid.rowCount(), remaining);
        QCOMPARE(on.grid.currentRow(), remaining - 1);
        QCOMPARE(on.grid.currentColumn(), remaining == 0 ? -1 : 1);
    }

    void positionsThatAreNoPlaceOnEarthHangNothing()
    {
        PlanOnSandbox on;
        for (const double value : {1e300, -1e300, qInf(), -qInf(), qQNaN()}) {
            on.plan.lines << pointAt(value, value, "X");
        }
        on.plan.refresh();
        QCOMPARE(on.grid.rowCount(), 5);
        QCOMPARE(on.plan.lines.at(3)->duration, INT_MIN);
        QVERIFY(on.plan.textLines.join("").contains("nan,nan,0"));
    }
};

QTEST_MAIN(TestCFlightPlan)
#include "tst_cflightplan.moc"
