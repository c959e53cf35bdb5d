// A plan stored as a SID or a STAR through its button: the rows, the boxes, the trees.
#include "cflightplan.h"
#include "planlines.h"
#include "procedurekind.h"
#include "proceduretest.h"

#include <QDockWidget>
#include <QLineEdit>
#include <QtTest>

class TestCreatedProcedures : public ProcedureTest
{
    Q_OBJECT

private slots:
    void aPlanBecomesASid()
    {
        win->add({"LFPO", "PGS-N1", "BAMES-W1"});
        win->addClicked("WPT", 48.1234567, -1.5);
        win->plan().lines[0]->altd = 5000; // flown, not stored
        win->plan().lines[1]->altd = 6000;
        storePlan(*win, *boxes, sid, "ABC1");
        QCOMPARE(rows->stored(), (QStringList{"0;ABC110;FR001;ABC1;10;2;LFPO;0;291;175411;8494",
                                              "0;ABC120;FR001;ABC1;20;2;PGS;1;300;175800;9000",
                                              "0;ABC130;FR001;ABC1;30;2;BAMES;4096;0;175320;10800",
                                              "0;ABC140;FR001;ABC1;40;2;WPT001;4096;0;173244.444;1290600"}));
    }

    void aPlanBecomesAStar()
    {
        win->add({"CGN-N8", "ETAMP-W3", "LFBO"});
        storePlan(*win, *boxes, star, "BCD2");
        // The airport has the highest number, and the procedure is the airport's.
        QCOMPARE(rows->stored(), (QStringList{"0;BCD210;FR002;BCD2;10;1;CGN;8;552;162900;6300",
                                              "0;BCD220;FR002;BCD2;20;1;ETAMP;4096;0;172800;7200",
                                              "0;BCD230;FR002;BCD2;30;1;LFBO;0;499;157086;4924"}));
    }

    void theWholePlanGoesIn_data()
    {
        addBothKinds();
    }
    void theWholePlanGoesIn()
    {
        QFETCH(ProcedureKind, kind);
        win->add({"LFPO", "PGS-N1", "LFXX", "BAMES-W1", "LFBO"});
        storePlan(*win, *boxes, kind, "ABC1");
        QCOMPARE(rows->stored().size(), 5);
        QCOMPARE(rows->stored().at(2).section(';', 6, 7), QString("LFXX;0"));
    }

    void theAirportsKeyIsThatOfItsEnd()
    {
        win->add({"LFPO", "PGS-N1", "LFBO"});
        storePlan(*win, *boxes, sid, "OUT");
        storePlan(*win, *boxes, star, "IN");
        QStringList keys;
        for (const QString& row : rows->stored())
            keys << row.section(';', 2, 3);
        QCOMPARE(keys, (QStringList{"FR001;OUT", "FR001;OUT", "FR001;OUT", "FR002;IN", "FR002;IN", "FR002;IN"}));
    }

    void anEmptyPlanIsPassedOverInSilence_data()
    {
        addBothKinds();
    }
    void anEmptyPlanIsPassedOverInSilence()
    {
        QFETCH(ProcedureKind, kind);
        win->click(kind.button);
        QVERIFY(boxes->seen().isEmpty());
        QCOMPARE(win->told(), QString());
    }

    void aSidWantsTheAirportFirst()
    {
        win->add({"PGS-N1", "LFPO"});
        expectRefusal("Création d'un SID", "Le nouveau SID doit commencé par un aéroport");
        win->click("btnCreateSID");
        checkRefusal();
    }

    void aStarWantsTheAirportLast()
    {
        win->add({"LFPO", "BAMES-W1"});
        expectRefusal("Création d'un STAR", "Le nouveau STAR doit finir par un aéroport");
        win->click("btnCreateSTAR");
        checkRefusal();
    }

    void theNameIsAskedForWithAnEmptyField_data()
    {
        addBothKinds();
    }
    void theNameIsAskedForWithAnEmptyField()
    {
        QFETCH(ProcedureKind, kind);
        win->add({"LFPO"});
        boxes->expectInput(kind.nameTitle, kind.nameLabel, "ABC1");
        boxes->expectAnyMessage();
        win->click(kind.button);
        QCOMPARE(boxes->seen().value(0).value, QString());
        QCOMPARE(boxes->seen().value(0).parentClass, QString("MainWindow"));
        QCOMPARE(boxes->seen().value(1).icon, QMessageBox::Information);
        QCOMPARE(boxes->seen().value(1).choices.size(), 1);
    }

    void withoutANameNothingHappens_data()
    {
        addBothKinds();
    }
    void withoutANameNothingHappens()
    {
        QFETCH(ProcedureKind, kind);
        win->add({"LFPO"});
        rows->addProcedure("ABC1", 2, {"BAMES"});
        boxes->expectInputRejected(kind.nameTitle, kind.nameLabel);
        win->click(kind.button);
        boxes->expectDialog("QInputDialog", [](QDialog* dialog) {
            dialog->findChild<QLineEdit*>()->setText("ABC1");
            dialog->reject();
        });
        win->click(kind.button);
        boxes->expectInput(kind.nameTitle, kind.nameLabel, "");
        win->click(kind.button);
        QVERIFY(boxes->allUsed());
        QCOMPARE(boxes->seen().size(), 3);
        QCOMPARE(rows->stored(), QStringList{"0;K001;FR001;ABC1;10;2;BAMES;1;5000;175320;10800"});
        QCOMPARE(outline(*tree("treeWSid")), QString());
    }

    void oneAirportGivesOneRow_data()
    {
        QTest::addColumn<ProcedureKind>("kind");
        QTest::addColumn<QString>("row");
        QTest::newRow("SID") << sid << "0;SOLO10;FR001;SOLO;10;2;LFPO;0;291;175411;8494";
        QTest::newRow("STAR") << star << "0;SOLO10;FR001;SOLO;10;1;LFPO;0;291;175411;8494";
    }
    void oneAirportGivesOneRow()
    {
        QFETCH(ProcedureKind, kind);
        QFETCH(QString, row);
        win->add({"LFPO"});
        storePlan(*win, *boxes, kind, "SOLO");
        QCOMPARE(rows->stored(), QStringList{row});
    }

    void theOldProcedureOfThatNameGoesWhoseverItWas_data()
    {
        addBothKinds();
    }
    void theOldProcedureOfThatNameGoesWhoseverItWas()
    {
        QFETCH(ProcedureKind, kind);
        rows->add({{"sapt", "FR002"}, {"strm", "X"}, {"sqnm", 10}});
        rows->add({{"sapt", "FR002"}, {"strm", "X"}, {"sqnm", 20}});
        rows->add({{"sapt", "FR002"}, {"strm", "Y"}, {"sqnm", 10}});
        win->add({"LFPO"});
        storePlan(*win, *boxes, kind, "X");
        QCOMPARE(rows->names(), QString("X Y"));
        QCOMPARE(rows->stored().size(), 2);
        QVERIFY(rows->stored().last().startsWith("0;X10;FR001;X;10;"));
    }

    void aShorterProcedureLeavesNothingOfTheLongerOne()
    {
        win->add({"LFPO", "PGS-N1", "BAMES-W1"});
        storePlan(*win, *boxes, sid, "ABC1");
        QCOMPARE(rows->stored().size(), 3);
        win->setCurrent(2);
        win->window->sFpLineDel();
        storePlan(*win, *boxes, sid, "ABC1");
        QCOMPARE(rows->stored().size(), 2);
    }

    void aRowWithTheSameKeyIsReplaced()
    {
        // The eleventh point of "ABC" has the key of the first point of "ABC1".
        win->sandbox.addProcedureLeg({{"skey", "ABC110"}, {"sapt", "FR002"}, {"strm", "ABC"}, {"sqnm", 110}});
        win->add({"LFPO"});
        storePlan(*win, *boxes, sid, "ABC1");
        QCOMPARE(rows->names(), QString("ABC1"));
    }

    void anApostropheInAPointLosesThisPointOnly()
    {
        win->add({"LFPO"});
        win->addClicked("L'Est", 48, 2);
        win->add({"BAMES-W1"});
        storePlan(*win, *boxes, sid, "ABC1");
        QCOMPARE(rows->stored().size(), 2);
        QVERIFY(rows->stored().last().startsWith("0;ABC130;FR001;ABC1;30;2;BAMES;"));
    }

    void aRefusedRowIsSaidToBeStored_data()
    {
        addBothKinds();
    }
    void aRefusedRowIsSaidToBeStored()
    {
        QFETCH(ProcedureKind, kind);
        win->sandbox.sql(dbfile::route,
                         "CREATE TRIGGER locked BEFORE INSERT ON SIDSTAR BEGIN SELECT RAISE(ABORT, 'locked'); END");
        win->add({"LFPO"});
        storePlan(*win, *boxes, kind, "ABC1");
        QCOMPARE(rows->stored(), QStringList());
    }

    void aSidFillsTheTreesOfTheFirstLine()
    {
        rows->addProcedure("OLD", 1, {"BAMES"});
        win->add({"LFPO", "PGS-N1", "LFBO"});
        storePlan(*win, *boxes, sid, "ABC1");
        QCOMPARE(outline(*tree("treeWSid")), QString("ABC1[LFPO PGS LFBO]"));
        QCOMPARE(outline(*tree("treeWStar")), QString("OLD[BAMES]"));
        QCOMPARE(win->title("dockWSid"), QString("SID : LFPO"));
        QCOMPARE(win->title("dockWStar"), QString("STAR : LFPO"));
    }

    void aStarFillsTheTreesOfTheLastLine()
    {
        win->add({"LFPO", "PGS-N1", "LFBO"});
        storePlan(*win, *boxes, star, "BCD2");
        QCOMPARE(outline(*tree("treeWSid")), QString());
        QCOMPARE(outline(*tree("treeWStar")), QString("BCD2[LFPO PGS LFBO]"));
        QCOMPARE(win->title("dockWSid"), QString("SID : LFBO"));
        QCOMPARE(win->title("dockWStar"), QString("STAR : LFBO"));
    }

    void theTreesAreFilledBeforeTheMessage()
    {
        win->add({"LFPO"});
        QString shown;
        boxes->expectInput("Nouveau SID", "Nom du SID", "ABC1");
        boxes->expectDialog("QMessageBox", [&](QDialog* dialog) {
            shown = outline(*tree("treeWSid"));
            dialog->accept();
        });
        win->click("btnCreateSID");
        QCOMPARE(shown, QString("ABC1[LFPO]"));
    }

    void aNavaidOfTypeEightShowsItsPicture()
    {
        win->add({"LFPO", "CGN-N8", "PGS-N1"});
        storePlan(*win, *boxes, sid, "ABC1");
        const QTreeWidgetItem* top = tree("treeWSid")->topLevelItem(0);
        QVERIFY(top);
        QCOMPARE(picture(top->child(1)->icon(0)), picture(QIcon(":/icon/images/Img03.bmp")));
        QCOMPARE(picture(top->child(2)->icon(0)), picture(QIcon(":/icon/images/Img05.bmp")));
        QVERIFY(picture(top->child(1)->icon(0)) != picture(top->child(2)->icon(0)));
    }

    void aLoadedPlanHasForgottenTheTypesOfItsNavaids()
    {
        win->sandbox.writeFile("Flightplan/LOADED.FPL", airportAndNavaidText);
        boxes->expectFiles("Ouvrir un plan de vol existant", {win->sandbox.path("Flightplan/LOADED.FPL")});
        win->click("btnLoadFlightPlan");
        QCOMPARE(win->idents(), QString("KSFO OAK"));
        storePlan(*win, *boxes, sid, "ABC1");
        QCOMPARE(rows->stored(), (QStringList{"0;ABC110;US_KSFO;ABC1;10;2;KSFO;0;13;135720.5;-440912.25",
                                              "0;ABC120;US_KSFO;ABC1;20;2;OAK;0;10;135800;-440000"}));
    }

    void thePlanAndTheMapStayAsTheyAre()
    {
        win->add({"LFPO", "PGS-N1"});
        win->setCurrent(1, 3);
        win->clearCalls();
        storePlan(*win, *boxes, sid, "ABC1");
        QCOMPARE(win->idents(), QString("LFPO PGS"));
        QCOMPARE(win->current(), qMakePair(1, 3));
        QCOMPARE(win->told(), QString());
    }

private:
    void startOfEach() override
    {
        emptyTrees();
        for (const char* dock : {"dockWSid", "dockWStar"})
            win->window->findChild<QDockWidget*>(dock)->setWindowTitle("untouched");
        win->window->setPlanActions(true);
        win->clearCalls();
    }

    void endOfEach() override
    {
        win->sandbox.sql(dbfile::route, "DROP TRIGGER IF EXISTS locked");
        dropPlan();
    }

    static QImage picture(const QIcon& icon)
    {
        return icon.pixmap(16, 16).toImage();
    }

    void expectRefusal(const QString& title, const QString& text)
    {
        rows->addProcedure("ABC1", 2, {"BAMES"});
        boxes->expectMessage(title, text);
    }

    void checkRefusal()
    {
        QVERIFY(boxes->allUsed());
        QCOMPARE(boxes->seen().size(), 1);
        QCOMPARE(boxes->seen().value(0).icon, QMessageBox::Warning);
        QCOMPARE(rows->stored(), QStringList{"0;K001;FR001;ABC1;10;2;BAMES;1;5000;175320;10800"});
        QCOMPARE(outline(*tree("treeWSid")), QString());
        QCOMPARE(win->title("dockWSid"), QString("untouched"));
    }
};

QTEST_MAIN(TestCreatedProcedures)
#include "tst_createdprocedures.moc"
