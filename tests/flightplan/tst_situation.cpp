// The start situation to the byte, and where its position comes from.
#include "boxresponder.h"
#include "planlines.h"
#include "planonsandbox.h"
#include "situationtext.h"

#include <QDir>
#include <QtTest>

namespace {

const char* const parisText = "<bgno> ========== LFPG =====\n"
                              "\t<wobj> ---- world object type ----\n"
                              "\tplan\n"
                              "\t<bgno> ========== BEGIN OBJECT ==========\n"
                              "\t\t<geop> ---- geo position lat lon elev ----\n"
                              "\t\t48 51' 23.88\" N\n"
                              "\t\t002 32' 49.01\" E\n"
                              "\t\t392\n"
                              "\t\t<_NFO> ---- Vehicle Info Files ----\n"
                              "\t\tcessna172.nfo\n"
                              "\t\t<user> ---- Default user vehicle ----\n"
                              "\t\t<iang> ---- Inertial angular position ----\n"
                              "\t\t0.0,1.57,0.0\n"
                              "\t\t<bvel> ----\n"
                              "\t\t0.0,0.0,0.0\n"
                              "\t\t<bang>\n"
                              "\t\t0.0,0.0,0.0\n"
                              "\t\t<vmod> ---- view mode ----\n"
                              "\t\tspot\n"
                              "\t<endo> ========== END OBJECT ============\n"
                              "<endo> ========== END OBJECT ============\n";

CFpLine startAt(double latS, double lonS, int elev, double heading)
{
    CFpLine start;
    start.latS = latS;
    start.lonS = lonS;
    start.elev = elev;
    start.heading = heading;
    return start;
}

CFpLine paris()
{
    return startAt(arcSeconds(48, 51, 23.88), arcSeconds(2, 32, 49.01), 392, 90.0);
}

CFpLinePtr airport(const QString& iden, const QString& key)
{
    const CFpLinePtr line = pointAt(1.0, 1.0, iden);
    line->usage = "airp";
    line->dbKey = key;
    return line;
}

} // namespace

class TestSituation : public QObject
{
    Q_OBJECT

private slots:
    void situationToTheByte()
    {
        QCOMPARE(situationText("LFPG", paris()).join(""), QString(parisText));
    }

    void headingIsWrittenInRadians_data()
    {
        QTest::addColumn<double>("heading");
        QTest::addColumn<QString>("line");
        QTest::newRow("359") << 359.0 << "\t\t0.0,6.27,0.0\n";
        QTest::newRow("0") << 0.0 << "\t\t0.0,0.00,0.0\n";
        QTest::newRow("180") << 180.0 << "\t\t0.0,3.14,0.0\n";
    }

    void headingIsWrittenInRadians()
    {
        QFETCH(double, heading);
        QFETCH(QString, line);
        QCOMPARE(situationText("LFPG", startAt(0.0, 0.0, 0, heading)).value(6),
                 "\t\t<iang> ---- Inertial angular position ----\n" + line);
    }

    void southAndWestStandBehindTheNumbers()
    {
        QCOMPARE(situationText("SBGR", startAt(-84600.0, 1128600.0, 2459, 0.0)).value(3),
                 QString("\t\t<geop> ---- geo position lat lon elev ----\n"
                         "\t\t23 30' 00.00\" S\n\t\t046 30' 00.00\" W\n\t\t2459\n"));
    }

    void identityWithAPlaceNumberStaysAsItIs()
    {
        QCOMPARE(situationText("%2", paris()).value(0), QString("<bgno> ========== %2 =====\n"));
    }

    void fileNameIsTheLongNameInCapitals()
    {
        CFpLine line;
        line.iden = "LFPO";
        line.name = "Paris Orly";
        QCOMPARE(situationFileName(line), QString("PARIS ORLY.SIT"));
        line.name = QString::fromUtf8("Orléans");
        QCOMPARE(situationFileName(line), QString::fromUtf8("ORLÉANS.SIT"));
    }

    void savedFileToTheByte()
    {
        PlanOnSandbox on;
        on.plan.lines << airport("LFPG", "LFPG");
        on.plan.startLine = paris();
        QVERIFY(on.plan.saveSit("PARIS.SIT"));
        QCOMPARE(on.sandbox.readFile("Saved Simulations/PARIS.SIT"), QByteArray(parisText));
        QCOMPARE(on.sandbox.filesIn(".."), QStringList());
    }

    void textLinesHoldTheSituationUntilTheNextRefresh()
    {
        PlanOnSandbox on;
        on.plan.lines << airport("LFPG", "LFPG");
        on.plan.startLine = paris();
        on.plan.refresh();
        on.plan.buildSitText();
        QCOMPARE(on.plan.textLines.join(""), QString(parisText));
        on.plan.refresh();
        QVERIFY(on.plan.textLines.first().startsWith("<bgno> == Generated"));
    }

    void emptyPlanWritesNoSituation()
    {
        PlanOnSandbox on;
        QVERIFY(!on.plan.saveSit("X.SIT"));
        QVERIFY(on.sandbox.filesIn("Saved Simulations").isEmpty());
        QVERIFY(on.plan.textLines.isEmpty());
    }

    void missingFolderFails()
    {
        PlanOnSandbox on;
        QVERIFY(QDir(on.sandbox.path("Saved Simulations")).removeRecursively());
        on.plan.lines << airport("LFPG", "LFPG");
        on.plan.startLine = paris();
        QVERIFY(!on.plan.saveSit("PARIS.SIT"));
    }

    void nameWithASlashFails()
    {
        PlanOnSandbox on;
        on.plan.lines << airport("LFPG", "LFPG");
        on.plan.startLine = paris();
        QVERIFY(!on.plan.saveSit("LE BOURGET/DUGNY.SIT"));
    }

    void draggedPositionStaysWithTheElevationOfTheRunwayEnd()
    {
        PlanOnSandbox on;
        on.sandbox.addRunway();
        on.plan.lines << airport("LFPO", "LFPO");
        on.plan.startOfAirport("LFPO");
        on.plan.startLine.latS = arcSeconds(48, 50);
        on.plan.startLine.lonS = arcSeconds(2, 30);
        on.plan.buildSitText();
        QCOMPARE(on.plan.textLines.value(3), QString("\t\t<geop> ---- geo position lat lon elev ----\n"
                                                     "\t\t48 50' 00.00\" N\n\t\t002 30' 00.00\" E\n\t\t290\n"));
    }

    void emptyStartIsTakenFromTheRunway()
    {
        PlanOnSandbox on;
        on.sandbox.addRunway({{"rhlo", arcSeconds(2, 24, 30.5)}});
        on.plan.lines << airport("LFPO", "LFPO");
        on.plan.buildSitText();
        QCOMPARE(on.plan.textLines.value(3), QString("\t\t<geop> ---- geo position lat lon elev ----\n"
                                                     "\t\t48 44' 00.00\" N\n\t\t002 24' 30.50\" E\n\t\t290\n"));
        // 243.5 degrees.
        QVERIFY(on.plan.textLines.value(6).endsWith("\t\t0.0,4.25,0.0\n"));
        QCOMPARE(on.plan.startLine.latS, arcSeconds(48, 44));
    }

    void startSouthAndWestIsLookedUpAgain()
    {
        PlanOnSandbox on;
        on.sandbox.addRunway({{"rapt", "SBGR"}, {"rhla", -84000.0}, {"rhlo", -167000.0}});
        on.plan.lines << airport("SBGR", "SBGR");
        on.plan.startLine = startAt(-84600.0, -167400.0, 2459, 0.0);
        on.plan.buildSitText();
        QCOMPARE(on.plan.startLine.latS, -84000.0);
        QCOMPARE(on.plan.startLine.lonS, -167000.0);
    }

    void startOnOneNegativeSideStays()
    {
        PlanOnSandbox on;
        on.plan.lines << airport("KSFO", "KSFO");
        on.plan.startLine = startAt(135720.0, -440000.0, 13, 0.0);
        on.plan.buildSitText();
        QCOMPARE(on.plan.startLine.lonS, -440000.0);
        on.plan.startLine = startAt(-120000.0, 540000.0, 13, 0.0);
        on.plan.buildSitText();
        QCOMPARE(on.plan.startLine.latS, -120000.0);
    }

    void airportWithoutARunwayShowsTheErrorBoxAndWritesZeros()
    {
        PlanOnSandbox on;
        on.plan.lines << airport("LFXX", "LFXX");
        BoxResponder boxes;
        boxes.expectAnyMessage();
        QVERIFY(on.plan.saveSit("X.SIT"));
        QCOMPARE(boxes.seen().value(0).title, QString("SQL Error"));
        QVERIFY(on.sandbox.readFile("Saved Simulations/X.SIT")
                    .contains("\n\t\t00 00' 00.00\" N\n\t\t000 00' 00.00\" E\n\t\t0\n"));
    }

    void startThatIsNoPlaceHangsNothing()
    {
        PlanOnSandbox on;
        on.plan.lines << airport("LFPO", "LFPO");
        for (const double value : {qInf(), qQNaN(), 1e300}) {
            on.plan.startLine = startAt(value, value, 0, value);
            on.plan.buildSitText();
            QCOMPARE(on.plan.textLines.size(), 12);
        }
    }
};

QTEST_MAIN(TestSituation)
#include "tst_situation.moc"
