// The add commands: what a point brings along, where it goes, what the page is told.
#include "boxresponder.h"
#include "cflightplan.h"
#include "mainwindow.h"
#include "planwindow.h"

#include <QTableWidget>
#include <QtTest>

namespace {

const QString orlyMarker = QStringLiteral("addSitMarker(LatLng(48.73333333,2.40277778),\"CESSNA 172\",243.5)");
const QString orlyPoint = QStringLiteral("addPointToFp(LatLng(48.72528,2.35944),\"PARIS ORLY\")");
const QString toulousePoint = QStringLiteral("addPointToFp(LatLng(43.635,1.36778),\"TOULOUSE BLAGNAC\")");
const QString parisPoint = QStringLiteral("addPointToFp(LatLng(48.83333,2.5),\"PARIS\")");
const QString bamesPoint = QStringLiteral("addPointToFp(LatLng(48.7,3),\"BAMES\")");
// The dock came to the front from behind another one, which wipes a procedure that was shown.
const QString dockRaised = QStringLiteral(" clearSS()");

QString route(const QStringList& points)
{
    return (QStringList{"clearFP()"} + points + QStringList{"pushFP()"}).join(' ');
}

} // namespace

class TestPlanAdd : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        boxes.reset(new BoxResponder);
        win.reset(new PlanWindow);
    }
    void cleanup()
    {
        win.reset();
        boxes.reset();
    }

    void theFirstAirportLandsAtTheHeadWithTheStartMarker()
    {
        win->window->sAddAptToFp("LFPO");
        QCOMPARE(win->told(), orlyMarker + ' ' + route({orlyPoint}) + dockRaised);
        QCOMPARE(win->idents(), QString("LFPO"));
        QCOMPARE(win->current(), qMakePair(0, 1));
        QCOMPARE(win->enabledPlanCommands(), 5);
        QVERIFY(win->isInFront("dockWFlightPlan"));
        const CFpLine& line = *win->plan().lines[0];
        QCOMPARE(line.fpType, QString("airp"));
        QCOMPARE(line.dbKey, QString("FR001"));
        QCOMPARE(line.altd, 291);
        QCOMPARE(line.speed, 120);
        QCOMPARE(line.tkof, QString(""));
    }

    void theFirstOfTwoEquallyLongRunwaysGivesTheStart()
    {
        win->window->sAddAptToFp("LFPO");
        const CFpLine& start = win->plan().startLine;
        QCOMPARE(start.latS, 175440.0);
        QCOMPARE(start.lonS, 8650.0);
        QCOMPARE(start.elev, 290);
        QCOMPARE(start.heading, 243.5);
    }

    void anAirportIsFoundByItsKeyToo()
    {
        win->window->sAddAptToFp("FR002");
        QCOMPARE(win->idents(), QString("LFBO"));
    }

    void aSecondAirportLeavesTheStartMarker()
    {
        win->add({"LFPO"});
        win->window->sAddAptToFp("LFBO");
        QCOMPARE(win->told(), route({orlyPoint, toulousePoint}));
        QCOMPARE(win->plan().startLine.latS, 175440.0);
        QCOMPARE(win->current(), qMakePair(1, 1));
    }

    void anAirportBehindADeletedDepartureLeavesTheStartMarker()
    {
        win->add({"LFPO", "PGS-N1"});
        win->setCurrent(0);
        win->window->sFpLineDel();
        QCOMPARE(win->current(), qMakePair(0, 1));
        win->clearCalls();
        win->window->sAddAptToFp("LFBO");
        QCOMPARE(win->told(), route({parisPoint, toulousePoint}));
        QCOMPARE(win->plan().startLine.latS, 175440.0);
    }

    void anAirportWithNoCurrentRowBecomesTheDeparture()
    {
        win->add({"PGS-N1", "BAMES-W1"});
        win->setCurrent(-1, -1);
        win->window->sAddAptToFp("LFPO");
        QCOMPARE(win->told(), orlyMarker + ' ' + route({orlyPoint, parisPoint, bamesPoint}));
        QCOMPARE(win->current(), qMakePair(0, 1));
    }

    void anAirportWithoutRunwayShowsTheErrorAndClearsTheStart()
    {
        win->add({"LFPO"});
        win->setCurrent(-1, -1);
        boxes->expectMessage("SQL Error", "One of the query failed to execute.Error detail: SELECT * FROM RWY WHERE "
                                          "rapt = \"XX001\" ");
        win->window->sAddAptToFp("LFXX");
        QVERIFY(boxes->allUsed());
        QCOMPARE(boxes->seen().value(0).icon, QMessageBox::Information);
        const CFpLine& start = win->plan().startLine;
        QCOMPARE(start.latS, 0.0);
        QCOMPARE(start.lonS, 0.0);
        QCOMPARE(start.elev, 0);
        QCOMPARE(start.heading, 0.0);
        QCOMPARE(win->probe->calls("addSitMarker"), QStringList{"addSitMarker(LatLng(0,0),\"CESSNA 172\",0)"});
        QCOMPARE(win->idents(), QString("LFXX LFPO"));
    }

    void aBoxInsideThePagesCallLetsThePageGoOn()
    {
        boxes->expectAnyMessage();
        QCOMPARE(win->probe->evaluate("mainWindow.sAddAptToFp('LFXX'); 'after'").toString(), QString("after"));
        QVERIFY(boxes->allUsed());
        QCOMPARE(win->idents(), QString("LFXX"));
    }

    void aNavaidFirstLandsAtTheHeadWithoutMarkerAndLeavesTheCommands()
    {
        win->window->sAddNavToFp("PGS-N1");
        QCOMPARE(win->told(), route({parisPoint}) + dockRaised);
        QCOMPARE(win->current(), qMakePair(0, 1));
        QCOMPARE(win->enabledPlanCommands(), 0);
        QVERIFY(win->isInFront("dockWFlightPlan"));
        const CFpLine& line = *win->plan().lines[0];
        QCOMPARE(line.usage, QString("snav"));
        QCOMPARE(line.navType, 1);
        QCOMPARE(line.freq, 117.05);
        QCOMPARE(line.elev, 300);
        QCOMPARE(line.altd, 0);
        QCOMPARE(line.speed, 120);
    }

    void aNavaidFirstLeavesEnabledCommandsEnabled()
    {
        win->add({"LFPO"});
        win->window->sFpLineDel();
        win->window->sAddNavToFp("PGS-N1");
        QCOMPARE(win->enabledPlanCommands(), 5);
        QCOMPARE(win->idents(), QString("PGS"));
    }

    void aWaypointFirstLeavesTheCommandsDisabled()
    {
        win->window->sAddWptToFp("BAMES-W1");
        QCOMPARE(win->told(), route({bamesPoint}) + dockRaised);
        QCOMPARE(win->enabledPlanCommands(), 0);
        QCOMPARE(win->current(), qMakePair(0, 1));
        const CFpLine& line = *win->plan().lines[0];
        QCOMPARE(line.fpType, QString("wayp"));
        QCOMPARE(line.usage, QString("uswp"));
        QCOMPARE(line.altd, 0);
    }

    void aClickedPointIsWrappedNamedAndKeepsNone()
    {
        win->addClicked("WPT", -12.5, -1.0);
        QCOMPARE(win->told(), route({"addPointToFp(LatLng(-12.5,-1),\"WPT001\")"}) + dockRaised);
        QCOMPARE(win->enabledPlanCommands(), 0);
        const CFpLine& line = *win->plan().lines[0];
        QCOMPARE(line.latS, -45000.0);
        QCOMPARE(line.lonS, 1292400.0);
        QCOMPARE(line.name, QString("WPT001"));
        QCOMPARE(line.iden, QString("WPT001"));
        QCOMPARE(line.fpType, QString("uswp"));
        QCOMPARE(line.usage, QString("uswp"));
        QCOMPARE(line.dbKey, QString("NONE"));
        QCOMPARE(line.tkof, QString("NONE"));
        QCOMPARE(line.land, QString("NONE"));
        QCOMPARE(line.mark, QString(""));
        QCOMPARE(line.altd, 5500);
        QCOMPARE(line.elev, 0);
    }

    void aClickedPointOfAFullCircleIsAtZero()
    {
        win->addClicked("WPT", 0.0, 360.0);
        QCOMPARE(win->plan().lines[0]->lonS, 0.0);
    }

    void theNumberOfAClickedPointGrowsPastThreeDigits()
    {
        win->plan().userWptCount = 998;
        win->addClicked("PT", 1.0, 1.0);
        win->addClicked("PT", 2.0, 2.0);
        QCOMPARE(win->idents(), QString("PT999 PT1000"));
    }

    void eachAddCommandGoesBehindTheCurrentLine_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("expected");
        QTest::newRow("airport") << "KSFO"
                                 << "LFPO KSFO BAMES LFBO";
        QTest::newRow("navaid") << "PGS-N1"
                                << "LFPO PGS BAMES LFBO";
        QTest::newRow("waypoint") << "ETAMP-W3"
                                  << "LFPO ETAMP BAMES LFBO";
        QTest::newRow("clicked") << ""
                                 << "LFPO WPT001 BAMES LFBO";
    }
    void eachAddCommandGoesBehindTheCurrentLine()
    {
        QFETCH(QString, title);
        QFETCH(QString, expected);
        win->add({"LFPO", "BAMES-W1", "LFBO"});
        win->setCurrent(0);
        if (title.isEmpty())
            win->addClicked("WPT", 47.0, 2.0);
        else
            win->add({title});
        QCOMPARE(win->idents(), expected);
        QCOMPARE(win->current(), qMakePair(1, 1));
    }

    void eachAddCommandWithoutCurrentRowGoesToTheHead_data()
    {
        eachAddCommandGoesBehindTheCurrentLine_data();
    }
    void eachAddCommandWithoutCurrentRowGoesToTheHead()
    {
        QFETCH(QString, title);
        win->add({"BAMES-W1", "LFBO"});
        win->setCurrent(-1, -1);
        if (title.isEmpty())
            win->addClicked("WPT", 47.0, 2.0);
        else
            win->add({title});
        QCOMPARE(win->plan().lines.size(), 3);
        QVERIFY(win->idents().endsWith("BAMES LFBO"));
        QCOMPARE(win->current(), qMakePair(0, 1));
    }

    void aRowThatEqualsTheNumberOfLinesAppends()
    {
        win->add({"LFPO"});
        win->grid()->setRowCount(2);
        win->setCurrent(1);
        win->window->sAddNavToFp("PGS-N1");
        QCOMPARE(win->idents(), QString("LFPO PGS"));
    }

    void theSamePointCanStandInThePlanAnyNumberOfTimes()
    {
        win->add({"PGS-N1", "PGS-N1", "PGS-N1"});
        QCOMPARE(win->idents(), QString("PGS PGS PGS"));
        QVERIFY(win->plan().lines[0] != win->plan().lines[1]);
    }

    void anUnknownOrShortTitleChangesNothing_data()
    {
        QTest::addColumn<QString>("title");
        for (const char* title : {"ZZZZ", "X-ZZZZ", "", "-", "--", "PGS-X-N1", "PGS"})
            QTest::newRow(title) << title;
    }
    void anUnknownOrShortTitleChangesNothing()
    {
        QFETCH(QString, title);
        win->window->sAddAptToFp(title);
        win->window->sAddNavToFp(title);
        win->window->sAddWptToFp(title);
        QCOMPARE(win->plan().lines.size(), 0);
        QCOMPARE(win->told(), QString());
        QCOMPARE(win->enabledPlanCommands(), 0);
        QCOMPARE(boxes->seen().size(), 0);
    }

    void aTitleWithoutAKeyAddsNothingWhenNoRowHasAnEmptyOne()
    {
        // The lookup compares for equality: every row has a key, an identity and a name.
        win->window->sAddNavToFp("PGS");
        win->window->sAddWptToFp("BAMES");
        QCOMPARE(win->plan().lines.size(), 0);
        QCOMPARE(win->grid()->rowCount(), 0);
        QCOMPARE(win->told(), QString());
        QCOMPARE(boxes->seen().size(), 0);
    }

    void aTitleWithoutAKeyFindsTheRowOfAnEmptyKey_data()
    {
        QTest::addColumn<QString>("column");
        QTest::newRow("key") << "ukey";
        QTest::newRow("identity") << "iden";
        QTest::newRow("name") << "name";
    }
    void aTitleWithoutAKeyFindsTheRowOfAnEmptyKey()
    {
        QFETCH(QString, column);
        const QString statement = "UPDATE %1 SET %2 = '' WHERE ukey = '%3'";
        win->sandbox.sql(dbfile::gen, statement.arg("NAV", column, "N8"));
        win->sandbox.sql(dbfile::wpt, statement.arg("WPT", column, "W3"));
        win->window->sAddNavToFp("PGS");
        win->window->sAddWptToFp("BAMES");
        QCOMPARE(win->plan().lines.size(), 2);
        QCOMPARE(win->plan().lines[0]->latS, 162900.0);
        QCOMPARE(win->plan().lines[1]->latS, 172800.0);
        QCOMPARE(boxes->seen().size(), 0);
    }

    void aQuoteInANameBreaksTheScriptAndTheMapShowsNothingNew()
    {
        win->add({"LFPO"});
        win->window->sAddWptToFp("A\"B-W2");
        QCOMPARE(win->told(), QString());
        QCOMPARE(win->idents(), QString("LFPO QUOTE"));
        QCOMPARE(win->grid()->rowCount(), 2);
    }

    void thePageCallsTheAddCommands()
    {
        win->probe->evaluate("mainWindow.sAddAptToFp('LFPO');mainWindow.sAddNavToFp('PGS-N1');"
                             "mainWindow.sAddWptToFp('BAMES-W1');mainWindow.sAddNewWptToFp('WPT', 47.5, 2.25)");
        QCOMPARE(win->idents(), QString("LFPO PGS BAMES WPT001"));
        QCOMPARE(win->plan().lines[3]->lonS, 8100.0);
    }

private:
    QScopedPointer<BoxResponder> boxes;
    QScopedPointer<PlanWindow> win;
};

QTEST_MAIN(TestPlanAdd)
#include "tst_planadd.moc"
