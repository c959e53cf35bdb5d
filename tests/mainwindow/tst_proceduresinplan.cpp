// Stored procedures copied into the plan: a SID behind the departure, a STAR ahead of the destination.
#include "cflightplan.h"
#include "planlines.h"
#include "proceduretest.h"

#include <QTableWidget>
#include <QtTest>

class TestProceduresInPlan : public ProcedureTest
{
    Q_OBJECT

private slots:
    void aSidLandsBehindTheCurrentLine()
    {
        prepare("treeWSid", 2, {"ONE", "TWO"});
        win->setCurrent(0);
        win->click("btnAddSid");
        QCOMPARE(win->idents(), QString("LFPO ONE TWO LFBO"));
    }

    void aStarLandsAheadOfTheCurrentLine()
    {
        prepare("treeWStar", 1, {"ONE", "TWO"});
        win->setCurrent(1);
        win->click("btnAddStar");
        QCOMPARE(win->idents(), QString("LFPO ONE TWO LFBO"));
    }

    void anAirportOfTheProcedureIsSkipped_data()
    {
        bothKinds();
    }
    void anAirportOfTheProcedureIsSkipped()
    {
        QFETCH(QString, treeName);
        QFETCH(QString, button);
        QFETCH(int, type);
        rows->add({{"strm", "A1"}, {"sqnm", 10}, {"styp", type}, {"swid", "LFPO"}, {"swpt", 0}});
        rows->add({{"strm", "A1"}, {"sqnm", 20}, {"styp", type}, {"swid", "ONE"}, {"swpt", 8}});
        rows->add({{"strm", "A1"}, {"sqnm", 30}, {"styp", type}, {"swid", "UNTYPED"}, {"swpt", QVariant()}});
        rows->add({{"strm", "A1"}, {"sqnm", 40}, {"styp", type}, {"swid", "TWO"}, {"swpt", 4096}});
        rows->add({{"strm", "A1"}, {"sqnm", 50}, {"styp", type}, {"swid", "LFBO"}, {"swpt", 0}});
        win->add({"KSFO"});
        fillAndSelect(treeName);
        win->click(button);
        QCOMPARE(win->idents(), QString(type == 2 ? "KSFO ONE TWO" : "ONE TWO KSFO"));
    }

    void aProcedureOfItsAirportAloneAddsNothing_data()
    {
        bothKinds();
    }
    void aProcedureOfItsAirportAloneAddsNothing()
    {
        QFETCH(QString, treeName);
        QFETCH(QString, button);
        QFETCH(int, type);
        win->add({"LFPO"});
        const QString word = type == 2 ? "SID" : "STAR";
        boxes->expectInput("Nouveau " + word, "Nom du " + word, "SOLO");
        boxes->expectMessage("Enregistrement " + word, "Le " + word + " SOLO a été enregistré");
        win->click("btnCreate" + word);
        tree(treeName)->setCurrentItem(tree(treeName)->topLevelItem(0));
        win->clearCalls();
        win->click(button);
        QCOMPARE(win->idents(), QString("LFPO"));
        QCOMPARE(win->probe->calls("addPointToFp").size(), 1);
    }

    void theLinesAreOrdinaryWaypoints_data()
    {
        bothKinds();
    }
    void theLinesAreOrdinaryWaypoints()
    {
        QFETCH(QString, treeName);
        QFETCH(QString, button);
        QFETCH(int, type);
        rows->add({{"strm", "A1"},
                   {"sqnm", 10},
                   {"styp", type},
                   {"swid", "CGN"},
                   {"swpt", 8},
                   {"salt", 900},
                   {"slat", 162900.5},
                   {"slon", -6300.25}});
        win->add({"LFPO"});
        fillAndSelect(treeName);
        win->click(button);
        const CFpLine& line = *win->plan().lines.at(type == 2 ? 1 : 0);
        QCOMPARE(line.fpType, QString("wayp"));
        QCOMPARE(line.usage, QString("uswp"));
        QCOMPARE(line.name, QString("CGN"));
        QCOMPARE(line.iden, QString("CGN"));
        QCOMPARE(line.dbKey, QString("NONE"));
        QCOMPARE(line.speed, 120);
        QCOMPARE(line.altd, 0);
        QCOMPARE(line.elev, 0);
        QCOMPARE(line.navType, 0);
        QCOMPARE(line.latS, 162900.5);
        QCOMPARE(line.lonS, -6300.25);
        // The file has the usage word for the type word as well.
        QVERIFY(win->plan().textLines.join("").contains("\tuswp\n\t<bgno>"));
        QVERIFY(win->plan().textLines.join("").contains("\t\tNONE\n\t\t<user> ---------- Waypoint usage --------\n"
                                                        "\t\tuswp\n"));
    }

    void thePageIsToldToClearAndToDraw_data()
    {
        bothKinds();
    }
    void thePageIsToldToClearAndToDraw()
    {
        QFETCH(QString, treeName);
        QFETCH(QString, button);
        QFETCH(int, type);
        prepare(treeName, type, {"ONE"});
        win->setCurrent(type == 2 ? 0 : 1);
        win->bringToFront("dockWFlightPlan");
        win->clearCalls();
        win->click(button);
        QCOMPARE(win->told(), QString("clearSS() clearFP() addPointToFp(LatLng(48.72528,2.35944),\"PARIS ORLY\") "
                                      "addPointToFp(LatLng(48.7,3),\"ONE\") "
                                      "addPointToFp(LatLng(43.635,1.36778),\"TOULOUSE BLAGNAC\") pushFP()"));
    }

    void thePlanComesToTheFrontAndItsLastRowIsCurrent_data()
    {
        bothKinds();
    }
    void thePlanComesToTheFrontAndItsLastRowIsCurrent()
    {
        QFETCH(QString, treeName);
        QFETCH(QString, button);
        QFETCH(int, type);
        prepare(treeName, type, {"ONE", "TWO"});
        win->setCurrent(0);
        win->bringToFront(type == 2 ? "dockWSid" : "dockWStar");
        QVERIFY(!win->isInFront("dockWFlightPlan"));
        win->click(button);
        QVERIFY(win->isInFront("dockWFlightPlan"));
        QCOMPARE(win->current(), qMakePair(3, 1));
        QCOMPARE(win->grid()->rowCount(), 4);
    }

    void aSelectedPointAddsNothingButClearsAndRedraws_data()
    {
        bothKinds();
    }
    void aSelectedPointAddsNothingButClearsAndRedraws()
    {
        QFETCH(QString, treeName);
        QFETCH(QString, button);
        QFETCH(int, type);
        prepare(treeName, type, {"ONE", "TWO"});
        win->setCurrent(0);
        win->bringToFront("dockWFlightPlan");
        tree(treeName)->setCurrentItem(tree(treeName)->topLevelItem(0)->child(1));
        win->clearCalls();
        win->click(button);
        QCOMPARE(win->told(), QString("clearSS() clearFP() addPointToFp(LatLng(48.72528,2.35944),\"PARIS ORLY\") "
                                      "addPointToFp(LatLng(43.635,1.36778),\"TOULOUSE BLAGNAC\") pushFP()"));
        QCOMPARE(win->idents(), QString("LFPO LFBO"));
        QCOMPARE(win->current(), qMakePair(1, 1));
    }

    void unlessOneItemIsSelectedNothingHappens_data()
    {
        bothKinds();
    }
    void unlessOneItemIsSelectedNothingHappens()
    {
        QFETCH(QString, treeName);
        QFETCH(QString, button);
        QFETCH(int, type);
        prepare(treeName, type, {"ONE"});
        rows->addProcedure("B1", type, {"TWO"});
        fillAndSelect(treeName);
        win->setCurrent(0);
        tree(treeName)->clearSelection();
        QVERIFY(tree(treeName)->currentItem()); // current, and not selected
        win->clearCalls();
        win->click(button);
        tree(treeName)->setSelectionMode(QAbstractItemView::MultiSelection);
        tree(treeName)->selectAll();
        QVERIFY(tree(treeName)->selectedItems().size() > 1);
        win->click(button);
        QCOMPARE(win->told(), QString());
        QCOMPARE(win->idents(), QString("LFPO LFBO"));
        QVERIFY(!win->isInFront("dockWFlightPlan"));
    }

    void eachButtonLooksAtItsOwnTree()
    {
        prepare("treeWSid", 2, {"ONE"});
        win->clearCalls();
        win->click("btnAddStar");
        QCOMPARE(win->told(), QString());
        QCOMPARE(win->idents(), QString("LFPO LFBO"));
    }

    void aStarWithoutACurrentRowPutsItsFirstPointLast()
    {
        prepare("treeWStar", 1, {"ONE", "TWO", "THREE"});
        win->setCurrent(-1, -1);
        QCOMPARE(win->current(), qMakePair(-1, -1));
        win->click("btnAddStar");
        QCOMPARE(win->idents(), QString("TWO THREE ONE LFPO LFBO"));
    }

    void aSidWithoutACurrentRowLandsAtTheHead()
    {
        prepare("treeWSid", 2, {"ONE", "TWO", "THREE"});
        win->setCurrent(-1, -1);
        win->click("btnAddSid");
        QCOMPARE(win->idents(), QString("ONE TWO THREE LFPO LFBO"));
    }

    void anEmptiedPlanTakesTheProcedureToo_data()
    {
        bothKinds();
    }
    void anEmptiedPlanTakesTheProcedureToo()
    {
        QFETCH(QString, treeName);
        QFETCH(QString, button);
        QFETCH(int, type);
        prepare(treeName, type, {"ONE", "TWO"});
        boxes->expectMessage("Nouveau plan de vol", "Voulez vous effacer le plan de vol en cours ?");
        win->click("btnNewFlightPlan");
        QCOMPARE(outline(*tree(treeName)), QString("A1[ONE TWO]"));
        win->click(button);
        QCOMPARE(win->idents(), QString(type == 2 ? "ONE TWO" : "TWO ONE"));
        QCOMPARE(win->grid()->rowCount(), 2);
    }

    void anEmptiedPlanStaysEmptyWithoutAPoint_data()
    {
        bothKinds();
    }
    void anEmptiedPlanStaysEmptyWithoutAPoint()
    {
        QFETCH(QString, treeName);
        QFETCH(QString, button);
        QFETCH(int, type);
        prepare(treeName, type, {"ONE", "TWO"});
        boxes->expectMessage("Nouveau plan de vol", "Voulez vous effacer le plan de vol en cours ?");
        win->click("btnNewFlightPlan");
        tree(treeName)->setCurrentItem(tree(treeName)->topLevelItem(0)->child(0));
        win->clearCalls();
        win->click(button);
        QCOMPARE(win->idents(), QString());
        QCOMPARE(win->grid()->rowCount(), 0);
        QCOMPARE(win->probe->calls("clearFP").size(), 1);
        QCOMPARE(win->probe->calls("addPointToFp"), QStringList());
    }

    void aProcedureThatIsGoneAddsNothing()
    {
        prepare("treeWSid", 2, {"ONE"});
        rows->clear();
        win->click("btnAddSid");
        QCOMPARE(win->idents(), QString("LFPO LFBO"));
    }

    void navaidsOfALoadedPlanAreSkippedAsIfTheyWereAirports()
    {
        win->sandbox.writeFile("Flightplan/LOADED.FPL", airportAndNavaidText);
        boxes->expectFiles("Ouvrir un plan de vol existant", {win->sandbox.path("Flightplan/LOADED.FPL")});
        win->click("btnLoadFlightPlan");
        win->addClicked("WPT", 37, -122);
        boxes->expectInput("Nouveau SID", "Nom du SID", "OUT");
        boxes->expectMessage("Enregistrement SID", "Le SID OUT a été enregistré");
        win->click("btnCreateSID");
        QVERIFY(outline(*tree("treeWSid")).startsWith("OUT[KSFO OAK WPT"));
        boxes->expectMessage("Nouveau plan de vol", "Voulez vous effacer le plan de vol en cours ?");
        win->click("btnNewFlightPlan");
        win->add({"KSFO"});
        tree("treeWSid")->setCurrentItem(tree("treeWSid")->topLevelItem(0));
        win->click("btnAddSid");
        QCOMPARE(win->plan().lines.size(), 2);
        QVERIFY(win->plan().lines.last()->iden.startsWith("WPT"));
    }

private:
    void startOfEach() override
    {
        emptyTrees();
        win->bringToFront("dockWDebug");
        win->clearCalls();
    }

    void endOfEach() override
    {
        tree("treeWSid")->setSelectionMode(QAbstractItemView::SingleSelection);
        tree("treeWStar")->setSelectionMode(QAbstractItemView::SingleSelection);
        dropPlan();
    }

    static void bothKinds()
    {
        QTest::addColumn<QString>("treeName");
        QTest::addColumn<QString>("button");
        QTest::addColumn<int>("type");
        QTest::newRow("SID") << "treeWSid"
                             << "btnAddSid" << 2;
        QTest::newRow("STAR") << "treeWStar"
                              << "btnAddStar" << 1;
    }

    /// The airports LFPO and LFBO in the plan, and A1 of the points selected in the tree.
    void prepare(const QString& treeName, int type, const QStringList& points)
    {
        rows->addProcedure("A1", type, points);
        win->add({"LFPO", "LFBO"});
        fillAndSelect(treeName);
        win->bringToFront("dockWDebug");
        win->clearCalls();
    }

    void fillAndSelect(const QString& treeName)
    {
        emptyTrees();
        win->window->fillSidStarTrees("FR001");
        tree(treeName)->setCurrentItem(tree(treeName)->topLevelItem(0));
        QCOMPARE(tree(treeName)->selectedItems().size(), 1);
    }
};

QTEST_MAIN(TestProceduresInPlan)
#include "tst_proceduresinplan.moc"
