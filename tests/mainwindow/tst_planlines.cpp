// The commands on a line of the plan: delete, move, centre, and what they do where no line is current.
#include "boxresponder.h"
#include "cflightplan.h"
#include "mainwindow.h"
#include "planwindow.h"

#include <QAction>
#include <QTableWidget>
#include <QTreeWidget>
#include <QtTest>

class TestPlanLines : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        boxes.reset(new BoxResponder);
        win.reset(new PlanWindow([](const Sandbox& sandbox) {
            sandbox.addProcedureLeg({{"skey", "A10"}, {"sapt", "FR001"}, {"strm", "ORLY1"}, {"sqnm", 10}, {"styp", 2}});
            sandbox.addProcedureLeg({{"skey", "B10"}, {"sapt", "FR002"}, {"strm", "TOU1"}, {"sqnm", 10}, {"styp", 2}});
        }));
    }
    void cleanup()
    {
        win.reset();
        boxes.reset();
    }

    void deletingRemovesTheCurrentLineAndGoesToTheLast()
    {
        win->add({"LFPO", "PGS-N1", "BAMES-W1", "LFBO"});
        win->setCurrent(1);
        win->window->findChild<QAction*>("actFpDel")->trigger();
        QCOMPARE(win->idents(), QString("LFPO BAMES LFBO"));
        QCOMPARE(win->grid()->rowCount(), 3);
        QCOMPARE(win->current(), qMakePair(2, 1));
        QCOMPARE(win->told(), QString("clearFP() addPointToFp(LatLng(48.72528,2.35944),\"PARIS ORLY\") "
                                      "addPointToFp(LatLng(48.7,3),\"BAMES\") "
                                      "addPointToFp(LatLng(43.635,1.36778),\"TOULOUSE BLAGNAC\") pushFP()"));
    }

    void deletingTheOnlyLineClearsGridAndMap()
    {
        win->add({"LFPO"});
        win->window->sFpLineDel();
        QCOMPARE(win->told(), QString("clearFP()"));
        QCOMPARE(win->plan().lines.size(), 0);
        QCOMPARE(win->grid()->rowCount(), 0);
        QCOMPARE(win->enabledPlanCommands(), 5);
        QCOMPARE(win->plan().startLine.latS, 175440.0);
    }

    void afterDeletingTheOnlyLineTheNextAddLandsAtTheHead()
    {
        win->add({"PGS-N1"});
        win->window->sFpLineDel();
        win->window->sAddWptToFp("BAMES-W1");
        QCOMPARE(win->idents(), QString("BAMES"));
        QCOMPARE(win->current(), qMakePair(0, 1));
    }

    void afterDeletingTheOnlyLineAnAirportIsTheDepartureAgain()
    {
        win->add({"LFPO"});
        win->window->sFpLineDel();
        win->window->sAddAptToFp("LFBO");
        QCOMPARE(win->probe->calls("addSitMarker"),
                 QStringList{"addSitMarker(LatLng(43.625,1.37),\"CESSNA 172\",323)"});
    }

    void deletingWithTheAltitudeOfTheLastRowCurrentIsSafe()
    {
        win->add({"LFPO", "PGS-N1", "LFBO"});
        for (int left = 2; left >= 0; --left) {
            win->setCurrent(left, 9);
            win->window->sFpLineDel();
            QCOMPARE(win->plan().lines.size(), left);
            QCOMPARE(win->grid()->rowCount(), left);
        }
        QCOMPARE(win->plan().startLine.latS, 175440.0);
    }

    void aNewPlanWithTheAltitudeOfTheLastRowCurrentIsSafe()
    {
        win->add({"LFPO", "PGS-N1", "LFBO"});
        win->setCurrent(2, 9);
        boxes->expectMessage("Nouveau plan de vol", "Voulez vous effacer le plan de vol en cours ?");
        win->click("btnNewFlightPlan");
        QCOMPARE(win->grid()->rowCount(), 0);
        QCOMPARE(win->plan().lines.size(), 0);
    }

    void deletingWithoutCurrentRowKeepsTheLines()
    {
        win->add({"LFPO", "PGS-N1"});
        win->setCurrent(-1, -1);
        win->window->sFpLineDel();
        QCOMPARE(win->idents(), QString("LFPO PGS"));
        QCOMPARE(win->current(), qMakePair(1, 1));
    }

    void movingUpSwapsWithTheLineAboveAndGoesToTheLast()
    {
        win->add({"LFPO", "PGS-N1", "BAMES-W1"});
        win->setCurrent(1);
        win->window->findChild<QAction*>("actFpUp")->trigger();
        QCOMPARE(win->idents(), QString("PGS LFPO BAMES"));
        QCOMPARE(win->current(), qMakePair(2, 1));
        QCOMPARE(win->told(), QString("clearFP() addPointToFp(LatLng(48.83333,2.5),\"PARIS\") "
                                      "addPointToFp(LatLng(48.72528,2.35944),\"PARIS ORLY\") "
                                      "addPointToFp(LatLng(48.7,3),\"BAMES\") pushFP()"));
    }

    void movingDownSwapsWithTheLineBelow()
    {
        win->add({"LFPO", "PGS-N1", "BAMES-W1"});
        win->setCurrent(0);
        win->window->findChild<QAction*>("actFpDown")->trigger();
        QCOMPARE(win->idents(), QString("PGS LFPO BAMES"));
        QCOMPARE(win->current(), qMakePair(2, 1));
    }

    void movingFillsTheProceduresOfTheRememberedRow()
    {
        win->add({"LFPO", "LFBO", "BAMES-W1"});
        win->setCurrent(1);
        win->window->sFpLineUp();
        // LFBO went to row 0; the row that was current now holds LFPO.
        QCOMPARE(win->title("dockWSid"), QString("SID : LFPO"));
        QCOMPARE(win->title("dockWStar"), QString("STAR : LFPO"));
        const auto* tree = win->window->findChild<QTreeWidget*>("treeWSid");
        QCOMPARE(tree->topLevelItemCount(), 1);
        QCOMPARE(tree->topLevelItem(0)->text(0), QString("ORLY1"));
    }

    void theFirstLineCannotGoUp()
    {
        win->add({"LFPO", "PGS-N1"});
        win->setCurrent(0);
        win->window->sFpLineUp();
        QCOMPARE(win->idents(), QString("LFPO PGS"));
    }

    void theLastLineCannotGoDown()
    {
        win->add({"LFPO", "PGS-N1"});
        win->setCurrent(1);
        win->window->sFpLineDown();
        QCOMPARE(win->idents(), QString("LFPO PGS"));
    }

    void theOnlyLineCannotMove()
    {
        win->add({"LFPO"});
        win->window->sFpLineUp();
        win->window->sFpLineDown();
        QCOMPARE(win->idents(), QString("LFPO"));
        QCOMPARE(win->grid()->rowCount(), 1);
    }

    void aLineMovedToTheLastPlaceKeepsTheValuesOfItsFormerLeg()
    {
        win->add({"LFPO", "LFBO", "PGS-N1"});
        QCOMPARE(win->cell(1, 6), QString("315.4"));
        win->setCurrent(1);
        win->window->sFpLineDown();
        QCOMPARE(win->idents(), QString("LFPO PGS LFBO"));
        QCOMPARE(win->cell(2, 6), QString("315.4"));
    }

    void movingWithoutCurrentRowKeepsTheOrder()
    {
        win->add({"LFPO", "PGS-N1", "BAMES-W1"});
        for (const char* action : {"actFpUp", "actFpDown"}) {
            win->setCurrent(-1, -1);
            win->window->findChild<QAction*>(action)->trigger();
            QCOMPARE(win->idents(), QString("LFPO PGS BAMES"));
        }
    }

    void theLineCommandsOnAnEmptyPlanDoNothing()
    {
        for (const char* action : {"actFpCenter", "actFpDel", "actFpUp", "actFpDown"})
            win->window->findChild<QAction*>(action)->trigger();
        QCOMPARE(win->grid()->rowCount(), 0);
        QCOMPARE(win->plan().lines.size(), 0);
        QCOMPARE(win->probe->calls("map.setCenter"), QStringList());
    }

    void centringSetsTheMapsCentreOnly()
    {
        win->add({"LFPO", "KSFO"});
        win->setCurrent(0);
        win->window->findChild<QAction*>("actFpCenter")->trigger();
        QCOMPARE(win->told(), QString("map.setCenter(LatLng(48.72528,2.35944))"));
        QCOMPARE(win->idents(), QString("LFPO KSFO"));
        QCOMPARE(win->current(), qMakePair(0, 1));
    }

    void centringWrapsAClickedLongitude()
    {
        win->addClicked("WPT", 10.0, -1.0);
        win->clearCalls();
        win->window->sFpCenterAt();
        QCOMPARE(win->told(), QString("map.setCenter(LatLng(10,-1))"));
    }

    void centringWithoutCurrentRowDoesNothing()
    {
        win->add({"LFPO"});
        win->setCurrent(-1, -1);
        win->window->sFpCenterAt();
        QCOMPARE(win->told(), QString());
    }

    void clickedPointsGoOnCountingAfterADeletion()
    {
        for (int i = 0; i < 3; ++i)
            win->addClicked("WPT", 40.0 + i, 2.0);
        win->setCurrent(1);
        win->window->sFpLineDel();
        win->addClicked("WPT", 50.0, 2.0);
        QCOMPARE(win->idents(), QString("WPT001 WPT003 WPT004"));
    }

    void clickedPointsGoOnCountingAfterANewPlan()
    {
        win->addClicked("WPT", 40.0, 2.0);
        win->addClicked("WPT", 41.0, 2.0);
        boxes->expectMessage("Nouveau plan de vol", "Voulez vous effacer le plan de vol en cours ?");
        win->click("btnNewFlightPlan");
        win->addClicked("WPT", 42.0, 2.0);
        QCOMPARE(win->idents(), QString("WPT003"));
    }

private:
    QScopedPointer<BoxResponder> boxes;
    QScopedPointer<PlanWindow> win;
};

QTEST_MAIN(TestPlanLines)
#include "tst_planlines.moc"
