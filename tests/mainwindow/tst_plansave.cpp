// Saving a plan: the name and the bytes of the file, the version, the boxes, and what happens where nothing can be
// written.
#include "boxresponder.h"
#include "caircraftdata.h"
#include "cflightplan.h"
#include "mainwindow.h"
#include "planwindow.h"

#include <QAction>
#include <QDir>
#include <QPushButton>
#include <QtTest>

namespace {

const QString savedTitle = QStringLiteral("Enregistrement plan de vol");
const QString startTitle = QStringLiteral("Enregistrement position initiale");

const char sanFranciscoToOrly[] = "<bgno> == Generated with zephan Trajector ==\n"
                                  "\t<form> ---- Format Type -----------------\n"
                                  "\twpno=1, format=FM01\n"
                                  "\t<desc> ========== Description ===========\n"
                                  "\tFlight plan from KSFO to LFPO\n"
                                  "\t<vers> ---------- Version number --------\n"
                                  "\t1\n"
                                  "\t<ceil> -----------Average ceil ----------\n"
                                  "\t13000\n"
                                  "\t<wpnt> --------- Waypoint ---------------\n"
                                  "\tairp\n"
                                  "\t<bgno> ========== BEGIN OBJECT ==========\n"
                                  "\t\t<name> ---------- Waypoint name ---------\n"
                                  "\t\tSan Francisco Intl\n"
                                  "\t\t<iden> ---------- Waypoint identity -----\n"
                                  "\t\tKSFO\n"
                                  "\t\t<llps> ---------- Lat/lon,alt position --\n"
                                  "\t\t135720.500,-440912.250,13\n"
                                  "\t\t<dbky> ---------- Database key ----------\n"
                                  "\t\tUS001\n"
                                  "\t\t<user> ---------- Waypoint usage --------\n"
                                  "\t\tairp\n"
                                  "\t\t<altd> --- Altitude (feet) at WPT -------\n"
                                  "\t\t13\n"
                                  "\t\t<tkof> --- Take off runway --------------\n"
                                  "\t\t\n"
                                  "\t\t<land> --- Landing runway ---------------\n"
                                  "\t\t\n"
                                  "\t\t<mark> --- Terminated mark- -------------\n"
                                  "\t\t\n"
                                  "\t<endo> ========== END OBJECT ============\n"
                                  "\t<wpnt> --------- Waypoint ---------------\n"
                                  "\tuswp\n"
                                  "\t<bgno> ========== BEGIN OBJECT ==========\n"
                                  "\t\t<name> ---------- Waypoint name ---------\n"
                                  "\t\tWPT001\n"
                                  "\t\t<iden> ---------- Waypoint identity -----\n"
                                  "\t\tWPT001\n"
                                  "\t\t<llps> ---------- Lat/lon,alt position --\n"
                                  "\t\t180000.000,1292400.000,0\n"
                                  "\t\t<dbky> ---------- Database key ----------\n"
                                  "\t\tNONE\n"
                                  "\t\t<user> ---------- Waypoint usage --------\n"
                                  "\t\tuswp\n"
                                  "\t\t<altd> --- Altitude (feet) at WPT -------\n"
                                  "\t\t5500\n"
                                  "\t\t<tkof> --- Take off runway --------------\n"
                                  "\t\tNONE\n"
                                  "\t\t<land> --- Landing runway ---------------\n"
                                  "\t\tNONE\n"
                                  "\t\t<mark> --- Terminated mark- -------------\n"
                                  "\t\t\n"
                                  "\t<endo> ========== END OBJECT ============\n"
                                  "\t<wpnt> --------- Waypoint ---------------\n"
                                  "\tairp\n"
                                  "\t<bgno> ========== BEGIN OBJECT ==========\n"
                                  "\t\t<name> ---------- Waypoint name ---------\n"
                                  "\t\tPARIS ORLY\n"
                                  "\t\t<iden> ---------- Waypoint identity -----\n"
                                  "\t\tLFPO\n"
                                  "\t\t<llps> ---------- Lat/lon,alt position --\n"
                                  "\t\t175411.000,8494.000,291\n"
                                  "\t\t<dbky> ---------- Database key ----------\n"
                                  "\t\tFR001\n"
                                  "\t\t<user> ---------- Waypoint usage --------\n"
                                  "\t\tairp\n"
                                  "\t\t<altd> --- Altitude (feet) at WPT -------\n"
                                  "\t\t291\n"
                                  "\t\t<tkof> --- Take off runway --------------\n"
                                  "\t\t\n"
                                  "\t\t<land> --- Landing runway ---------------\n"
                                  "\t\t\n"
                                  "\t\t<mark> --- Terminated mark- -------------\n"
                                  "\t\t\n"
                                  "\t<endo> ========== END OBJECT ============\n"
                                  "<endo> ========== END OBJECT ============\n";

} // namespace

class TestPlanSave : public QObject
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
        win->plan().aircraft->ceiling = 13000;
        win->add({"KSFO"});
        win->addClicked("WPT", 50.0, -1.0);
        win->add({"LFPO"});
        expectSaved("KSFO_LFPO.FPL", "KSFO");
        win->click("btnSaveFlightPlan");
        QVERIFY(boxes->allUsed());
        QCOMPARE(win->sandbox.filesIn("Flightplan"), QStringList{"KSFO_LFPO.FPL"});
        QCOMPARE(win->sandbox.readFile("Flightplan/KSFO_LFPO.FPL"), QByteArray(sanFranciscoToOrly));
    }

    void theBoxesAreAnInformationAndAQuestion()
    {
        win->add({"KSFO", "LFPO"});
        expectSaved("KSFO_LFPO.FPL", "KSFO");
        win->click("btnSaveFlightPlan");
        QCOMPARE(boxes->seen().value(0).icon, QMessageBox::Information);
        QCOMPARE(boxes->seen().value(1).icon, QMessageBox::Question);
        QCOMPARE(boxes->seen().value(1).choices.size(), 2);
    }

    void theMenuEntrySavesToo()
    {
        win->add({"KSFO", "LFPO"});
        expectSaved("KSFO_LFPO.FPL", "KSFO");
        win->window->findChild<QAction*>("menuSaveFlightPlan")->trigger();
        QVERIFY(win->sandbox.hasFile("Flightplan/KSFO_LFPO.FPL"));
    }

    void aSaveGoesOnToTheStartSituation()
    {
        win->add({"LFPO", "LFBO"});
        expectSaved("LFPO_LFBO.FPL", "LFPO");
        win->click("btnSaveFlightPlan");
        QCOMPARE(win->sandbox.filesIn("Saved Simulations"), QStringList{"PARIS ORLY.SIT"});
    }

    void theSameAirportTwiceGivesItsNameTwice()
    {
        win->add({"KSFO", "KSFO"});
        expectSaved("KSFO_KSFO.FPL", "KSFO");
        win->click("btnSaveFlightPlan");
        QCOMPARE(win->sandbox.filesIn("Flightplan"), QStringList{"KSFO_KSFO.FPL"});
    }

    void emptyIdentitiesGiveALoneUnderscore()
    {
        win->sandbox.sql(dbfile::gen, "UPDATE APT SET iden = ''");
        win->add({"FR001", "FR002"});
        expectSaved("_.FPL", "");
        win->click("btnSaveFlightPlan");
        QCOMPARE(win->sandbox.filesIn("Flightplan"), QStringList{"_.FPL"});
    }

    void smallLettersBecomeCapitalsInTheNameOnly()
    {
        win->sandbox.sql(dbfile::gen, "UPDATE APT SET iden = 'lfpé' WHERE ukey = 'FR001'");
        win->add({"FR001", "LFBO"});
        expectSaved("LFPÉ_LFBO.FPL", "lfpé");
        win->click("btnSaveFlightPlan");
        QVERIFY(win->sandbox.readFile("Flightplan/LFPÉ_LFBO.FPL").contains("\t\tlfp\xC3\xA9\n"));
    }

    void fewerThanTwoLinesAreRefused_data()
    {
        QTest::addColumn<QStringList>("titles");
        QTest::newRow("none") << QStringList{};
        QTest::newRow("one") << QStringList{"LFPO"};
    }
    void fewerThanTwoLinesAreRefused()
    {
        QFETCH(QStringList, titles);
        win->add(titles);
        boxes->expectMessage(savedTitle, "Un plan de vol doit comporté au moins deux points");
        emit win->window->findChild<QPushButton*>("btnSaveFlightPlan")->clicked();
        QVERIFY(boxes->allUsed());
        QCOMPARE(boxes->seen().value(0).icon, QMessageBox::Warning);
        QCOMPARE(win->sandbox.filesIn("Flightplan"), QStringList());
        QCOMPARE(win->sandbox.filesIn("Saved Simulations"), QStringList());
        QCOMPARE(win->plan().fplVersion, 0);
    }

    void aPlanSavedTwiceCountsItsVersion()
    {
        win->add({"LFPO", "LFBO"});
        for (const char* version : {"1", "2"}) {
            expectSaved("LFPO_LFBO.FPL", "LFPO");
            win->click("btnSaveFlightPlan");
            QCOMPARE(versionIn("Flightplan/LFPO_LFBO.FPL"), QString(version));
        }
        QCOMPARE(win->sandbox.filesIn("Flightplan"), QStringList{"LFPO_LFBO.FPL"});
    }

    void aLoadedPlanIsSavedAsVersionOne()
    {
        win->add({"LFPO", "LFBO"});
        win->plan().fplVersion = 41;
        expectSaved("LFPO_LFBO.FPL", "LFPO");
        win->click("btnSaveFlightPlan");
        QCOMPARE(versionIn("Flightplan/LFPO_LFBO.FPL"), QString("42"));
        boxes->expectMessage("Nouveau plan de vol", "Voulez vous effacer le plan de vol en cours ?");
        boxes->expectFiles("Ouvrir un plan de vol existant", {win->sandbox.path("Flightplan/LFPO_LFBO.FPL")});
        win->click("btnLoadFlightPlan");
        QCOMPARE(win->plan().fplVersion, 0);
        expectSaved("LFPO_LFBO.FPL", "LFPO");
        win->click("btnSaveFlightPlan");
        QCOMPARE(versionIn("Flightplan/LFPO_LFBO.FPL"), QString("1"));
    }

    void aNewPlanGoesOnCountingTheVersion()
    {
        win->add({"LFPO", "LFBO"});
        expectSaved("LFPO_LFBO.FPL", "LFPO");
        win->click("btnSaveFlightPlan");
        boxes->expectMessage("Nouveau plan de vol", "Voulez vous effacer le plan de vol en cours ?");
        win->click("btnNewFlightPlan");
        win->add({"LFBO", "KSFO"});
        expectSaved("LFBO_KSFO.FPL", "LFBO");
        win->click("btnSaveFlightPlan");
        QCOMPARE(versionIn("Flightplan/LFBO_KSFO.FPL"), QString("2"));
    }

    void aMissingFolderShowsNothingAndTheSituationFollows()
    {
        win->add({"LFPO", "LFBO"});
        QVERIFY(QDir(win->sandbox.path("Flightplan")).removeRecursively());
        boxes->expectMessage(startTitle, "Voulez vous définir LFPO comme départ dans AeoZephan ?", QMessageBox::Cancel);
        win->click("btnSaveFlightPlan");
        QVERIFY(boxes->allUsed());
        QCOMPARE(win->plan().fplVersion, 1);
        QVERIFY(win->sandbox.hasFile("Saved Simulations/PARIS ORLY.SIT"));
        QVERIFY(!QDir(win->sandbox.path("Flightplan")).exists());
        // A backslash in a path must not end up in the name of a file.
        QCOMPARE(QDir(win->sandbox.path("..")).entryList(QDir::Files), QStringList());
    }

    void aTargetThatIsAFolderShowsNothing()
    {
        win->add({"LFPO", "LFBO"});
        QVERIFY(QDir().mkpath(win->sandbox.path("Flightplan/LFPO_LFBO.FPL")));
        boxes->expectMessage(startTitle, "Voulez vous définir LFPO comme départ dans AeoZephan ?", QMessageBox::Cancel);
        win->click("btnSaveFlightPlan");
        QVERIFY(boxes->allUsed());
    }

    void aLongerFileIsReplacedWhole()
    {
        win->sandbox.writeFile("Flightplan/LFPO_LFBO.FPL", QByteArray(100000, 'x'));
        win->add({"LFPO", "LFBO"});
        expectSaved("LFPO_LFBO.FPL", "LFPO");
        win->click("btnSaveFlightPlan");
        const QByteArray bytes = win->sandbox.readFile("Flightplan/LFPO_LFBO.FPL");
        QVERIFY(bytes.startsWith("<bgno> == Generated"));
        QVERIFY(bytes.endsWith("\n<endo> ========== END OBJECT ============\n"));
        QVERIFY(!bytes.contains('x'));
    }

private:
    /// The boxes of a save; the question for the simulator's start is refused.
    void expectSaved(const QString& file, const QString& iden)
    {
        boxes->expectMessage(savedTitle, "Le plan de vol " + file + " a été enregistré");
        boxes->expectMessage(startTitle, "Voulez vous définir " + iden + " comme départ dans AeoZephan ?",
                             QMessageBox::Cancel);
    }

    QString versionIn(const QString& file) const
    {
        const QString text = QString::fromUtf8(win->sandbox.readFile(file));
        return text.section("<vers> ---------- Version number --------\n\t", 1).section('\n', 0, 0);
    }

    QScopedPointer<BoxResponder> boxes;
    QScopedPointer<PlanWindow> win;
};

QTEST_MAIN(TestPlanSave)
#include "tst_plansave.moc"
