// The start situation file: its name, its bytes, and the start position that goes into it.
#include "boxresponder.h"
#include "cflightplan.h"
#include "mainwindow.h"
#include "planwindow.h"

#include <QDir>
#include <QPushButton>
#include <QSpinBox>
#include <QtTest>

namespace {

const QString questionTitle = QStringLiteral("Enregistrement position initiale");

const char orly[] = "<bgno> ========== LFPO =====\n"
                    "\t<wobj> ---- world object type ----\n"
                    "\tplan\n"
                    "\t<bgno> ========== BEGIN OBJECT ==========\n"
                    "\t\t<geop> ---- geo position lat lon elev ----\n"
                    "\t\t48 44' 00.00\" N\n"
                    "\t\t002 24' 10.00\" E\n"
                    "\t\t290\n"
                    "\t\t<_NFO> ---- Vehicle Info Files ----\n"
                    "\t\tcessna172.nfo\n"
                    "\t\t<user> ---- Default user vehicle ----\n"
                    "\t\t<iang> ---- Inertial angular position ----\n"
                    "\t\t0.0,4.25,0.0\n"
                    "\t\t<bvel> ----\n"
                    "\t\t0.0,0.0,0.0\n"
                    "\t\t<bang>\n"
                    "\t\t0.0,0.0,0.0\n"
                    "\t\t<vmod> ---- view mode ----\n"
                    "\t\tspot\n"
                    "\t<endo> ========== END OBJECT ============\n"
                    "<endo> ========== END OBJECT ============\n";

} // namespace

class TestStartSituation : public QObject
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

    void theFileIsWrittenByteForByte()
    {
        win->add({"LFPO", "LFBO"});
        save("LFPO");
        QCOMPARE(win->sandbox.filesIn("Saved Simulations"), QStringList{"PARIS ORLY.SIT"});
        QCOMPARE(win->sandbox.readFile("Saved Simulations/PARIS ORLY.SIT"), QByteArray(orly));
        QCOMPARE(boxes->seen().value(0).icon, QMessageBox::Question);
    }

    void onePointIsEnough()
    {
        win->add({"LFPO"});
        save("LFPO");
        QVERIFY(win->sandbox.hasFile("Saved Simulations/PARIS ORLY.SIT"));
    }

    void smallLettersAndAccentsOfTheNameBecomeCapitals()
    {
        win->sandbox.sql(dbfile::gen, "UPDATE APT SET name = 'Le Mont-Dore été' WHERE ukey = 'US001'");
        win->add({"KSFO"});
        save("KSFO");
        QCOMPARE(win->sandbox.filesIn("Saved Simulations"), QStringList{"LE MONT-DORE ÉTÉ.SIT"});
    }

    void aLongerFileIsReplacedWhole()
    {
        win->sandbox.writeFile("Saved Simulations/PARIS ORLY.SIT", QByteArray(50000, 'x'));
        win->add({"LFPO"});
        save("LFPO");
        QCOMPARE(win->sandbox.readFile("Saved Simulations/PARIS ORLY.SIT"), QByteArray(orly));
    }

    void anEmptyPlanIsRefused()
    {
        expectRefusal();
        emit win->window->findChild<QPushButton*>("btnStartPos")->clicked();
        QVERIFY(boxes->allUsed());
        QCOMPARE(boxes->seen().value(0).icon, QMessageBox::Warning);
        QCOMPARE(win->sandbox.filesIn("Saved Simulations"), QStringList());
    }

    void aFirstLineThatIsNoAirportIsRefused_data()
    {
        QTest::addColumn<QString>("title");
        QTest::newRow("navaid") << "PGS-N1";
        QTest::newRow("waypoint") << "BAMES-W1";
    }
    void aFirstLineThatIsNoAirportIsRefused()
    {
        QFETCH(QString, title);
        win->add({title, "LFPO"});
        expectRefusal();
        win->click("btnStartPos");
        QVERIFY(boxes->allUsed());
        QCOMPARE(win->sandbox.filesIn("Saved Simulations"), QStringList());
    }

    void aFirstLineThatIsNoAirportIsRefusedBehindASavedPlanToo()
    {
        win->add({"PGS-N1", "LFPO"});
        boxes->expectMessage("Enregistrement plan de vol", "Le plan de vol PGS_LFPO.FPL a été enregistré");
        expectRefusal();
        win->click("btnSaveFlightPlan");
        QVERIFY(boxes->allUsed());
        QCOMPARE(win->sandbox.filesIn("Flightplan"), QStringList{"PGS_LFPO.FPL"});
        QCOMPARE(win->sandbox.filesIn("Saved Simulations"), QStringList());
    }

    void theHeadingOfTheSpinnerIsWrittenInRadians_data()
    {
        QTest::addColumn<int>("degrees");
        QTest::addColumn<QByteArray>("line");
        QTest::newRow("359") << 359 << QByteArray("\t\t0.0,6.27,0.0\n");
        QTest::newRow("90") << 90 << QByteArray("\t\t0.0,1.57,0.0\n");
        QTest::newRow("0") << 0 << QByteArray("\t\t0.0,0.00,0.0\n");
    }
    void theHeadingOfTheSpinnerIsWrittenInRadians()
    {
        QFETCH(int, degrees);
        QFETCH(QByteArray, line);
        win->add({"LFPO"});
        auto* spinner = win->window->findChild<QSpinBox*>("spInertial");
        spinner->setValue(180);
        spinner->setValue(degrees);
        save("LFPO");
        QVERIFY(orlySituation().contains("<iang> ---- Inertial angular position ----\n" + line));
    }

    void aDraggedStartKeepsItsPlaceAndTheElevationOfTheRunway()
    {
        win->add({"LFPO"});
        win->probe->evaluate("mainWindow.doMoveSIT(48.85663333333333, 2.546947222222222)");
        save("LFPO");
        QVERIFY(orlySituation().contains("\t\t48 51' 23.88\" N\n\t\t002 32' 49.01\" E\n\t\t290\n"));
    }

    void aStartDraggedWestIsWrittenWest()
    {
        win->add({"LFPO"});
        win->window->doMoveSIT(48.5, -1.5);
        save("LFPO");
        QVERIFY(orlySituation().contains("\t\t48 30' 00.00\" N\n\t\t001 30' 00.00\" W\n\t\t290\n"));
    }

    void aStartSouthAndWestIsLookedUpAgain()
    {
        win->add({"SBGL"});
        win->plan().startLine.latS = -1.0;
        win->plan().startLine.lonS = -1.0;
        save("SBGL");
        QCOMPARE(win->plan().startLine.latS, -82080.0);
        QVERIFY(win->sandbox.readFile("Saved Simulations/GALEAO.SIT")
                    .contains("\t\t22 48' 00.00\" S\n\t\t043 12' 00.00\" W\n\t\t27\n"));
    }

    void aStartNorthAndWestIsKept()
    {
        win->add({"KSFO"});
        win->window->findChild<QSpinBox*>("spInertial")->setValue(90);
        save("KSFO");
        QCOMPARE(win->plan().startLine.heading, 90.0);
        QVERIFY(win->sandbox.readFile("Saved Simulations/SAN FRANCISCO INTL.SIT")
                    .contains("\t\t37 42' 00.00\" N\n\t\t122 24' 00.00\" W\n\t\t12\n"));
    }

    void anUnknownStartIsTakenFromTheRunways()
    {
        // A plan out of a file right after the start of the program.
        win->sandbox.writeFile("Flightplan/A.FPL",
                               "<wpnt>\nairp\n<name>\nParis Orly\n<iden>\nLFPO\n<llps>\n1,2,3\n<dbky>\nFR001\n"
                               "<user>\nairp\n");
        boxes->expectFiles("Ouvrir un plan de vol existant", {win->sandbox.path("Flightplan/A.FPL")});
        win->click("btnLoadFlightPlan");
        QCOMPARE(win->plan().startLine.latS, 0.0);
        save("LFPO");
        QCOMPARE(orlySituation(), QByteArray(orly));
        QCOMPARE(win->plan().startLine.latS, 175440.0);
        QCOMPARE(win->probe->calls("addSitMarker"), QStringList());
    }

    void aLoadedPlanKeepsTheStartOfTheOneBefore()
    {
        win->add({"LFBO"});
        win->sandbox.writeFile("Flightplan/A.FPL", "<wpnt>\nairp\n<name>\nParis Orly\n<iden>\nLFPO\n<llps>\n1,2,3\n"
                                                   "<dbky>\nFR001\n<user>\nairp\n");
        boxes->expectMessage("Nouveau plan de vol", "Voulez vous effacer le plan de vol en cours ?");
        boxes->expectFiles("Ouvrir un plan de vol existant", {win->sandbox.path("Flightplan/A.FPL")});
        win->click("btnLoadFlightPlan");
        save("LFPO");
        QVERIFY(orlySituation().contains("\t\t43 37' 30.00\" N\n\t\t001 22' 12.00\" E\n\t\t490\n"));
    }

    void anAirportWithoutRunwayShowsTheErrorAndWritesZero()
    {
        win->add({"LFPO"});
        win->plan().lines[0]->dbKey = "XX001";
        win->plan().startLine.clear();
        boxes->expectMessage("SQL Error", "One of the query failed to execute.Error detail: SELECT * FROM RWY WHERE "
                                          "rapt = \"XX001\" ");
        save("LFPO");
        QVERIFY(orlySituation().contains("\t\t0\n\t\t<_NFO>"));
        QVERIFY(orlySituation().contains("\t\t00 00' 00.00\" "));
    }

    void theSituationsTextStandsInTheBufferUntilTheNextRefresh()
    {
        win->add({"LFPO", "LFBO"});
        save("LFPO");
        QCOMPARE(win->plan().textLines.join(""), QString(orly));
        win->plan().refresh();
        QVERIFY(win->plan().textLines.first().startsWith("<bgno> == Generated"));
    }

    void aMissingFolderIsSilentAndTheQuestionComes()
    {
        win->add({"LFPO"});
        QVERIFY(QDir(win->sandbox.path("Saved Simulations")).removeRecursively());
        save("LFPO");
        QVERIFY(!QDir(win->sandbox.path("Saved Simulations")).exists());
        QCOMPARE(QDir(win->sandbox.path("..")).entryList(QDir::Files), QStringList());
    }

private:
    void expectRefusal()
    {
        boxes->expectMessage("Enregistrement point de départ", "Vous devez choisir un aéroport en première ligne.");
    }

    /// Presses the button and refuses to make the situation the simulator's start.
    void save(const QString& iden)
    {
        boxes->expectMessage(questionTitle, "Voulez vous définir " + iden + " comme départ dans AeoZephan ?",
                             QMessageBox::Cancel);
        win->click("btnStartPos");
        QVERIFY(boxes->allUsed());
    }

    QByteArray orlySituation() const
    {
        return win->sandbox.readFile("Saved Simulations/PARIS ORLY.SIT");
    }

    QScopedPointer<BoxResponder> boxes;
    QScopedPointer<PlanWindow> win;
};

QTEST_MAIN(TestStartSituation)
#include "tst_startsituation.moc"
