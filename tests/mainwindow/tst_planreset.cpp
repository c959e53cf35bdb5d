// New plan and load: the question, and the exact order of what follows it.
#include "boxresponder.h"
#include "cflightplan.h"
#include "mainwindow.h"
#include "planwindow.h"

#include <QAction>
#include <QDialog>
#include <QDockWidget>
#include <QFileDialog>
#include <QLineEdit>
#include <QTableWidget>
#include <QTreeWidget>
#include <QtTest>

namespace {

const QString questionTitle = QStringLiteral("Nouveau plan de vol");
const QString question = QStringLiteral("Voulez vous effacer le plan de vol en cours ?");
const QString loadTitle = QStringLiteral("Ouvrir un plan de vol existant");

const char plan[] = "<bgno> == Generated with zephan Trajector ==\n"
                    "\t<vers> ---------- Version number --------\n"
                    "\t7\n"
                    "\t<wpnt> --------- Waypoint ---------------\n"
                    "\tairp\n"
                    "\t\t<name> ---------- Waypoint name ---------\n"
                    "\t\tTOULOUSE BLAGNAC\n"
                    "\t\t<iden> ---------- Waypoint identity -----\n"
                    "\t\tLFBO\n"
                    "\t\t<llps> ---------- Lat/lon,alt position --\n"
                    "\t\t157086.000,4924.000,499\n"
                    "\t\t<user> ---------- Waypoint usage --------\n"
                    "\t\tairp\n"
                    "<endo> ========== END OBJECT ============\n";

const QString loadedRoute =
    QStringLiteral("clearFP() addPointToFp(LatLng(43.635,1.36778),\"TOULOUSE BLAGNAC\") pushFP()");

} // namespace

class TestPlanReset : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        boxes.reset(new BoxResponder);
        win.reset(new PlanWindow([](const Sandbox& sandbox) {
            sandbox.writeFile("Flightplan/LFBO.FPL", plan);
            sandbox.addProcedureLeg({{"skey", "A10"}, {"sapt", "FR001"}, {"strm", "ORLY1"}, {"sqnm", 10}, {"styp", 2}});
        }));
        file = win->sandbox.path("Flightplan/LFBO.FPL");
    }
    void cleanup()
    {
        win.reset();
        boxes.reset();
    }

    void aNewPlanOnAnEmptyPlanAsksNothing()
    {
        win->window->setPlanActions(true);
        win->window->findChild<QDockWidget*>("dockWSid")->setWindowTitle("SID : LFPO");
        win->click("btnNewFlightPlan");
        QCOMPARE(boxes->seen().size(), 0);
        QCOMPARE(win->title("dockWSid"), QString("SID : "));
        QCOMPARE(win->title("dockWStar"), QString("STAR : "));
        QCOMPARE(win->enabledPlanCommands(), 0);
        QVERIFY(win->isInFront("dockWFlightPlan"));
        QCOMPARE(win->probe->calls("clearFP"), QStringList());
    }

    void aNewPlanAcceptedEmptiesPlanGridAndMap()
    {
        win->add({"LFPO", "PGS-N1"});
        emit win->grid()->cellClicked(0, 0);
        boxes->expectMessage(questionTitle, question);
        win->click("btnNewFlightPlan");
        QVERIFY(boxes->allUsed());
        QCOMPARE(boxes->seen().value(0).icon, QMessageBox::Warning);
        QCOMPARE(boxes->seen().value(0).choices.size(), 2);
        QCOMPARE(win->told(), QString("clearFP() clearSS()"));
        QCOMPARE(win->plan().lines.size(), 0);
        QCOMPARE(win->grid()->rowCount(), 0);
        QCOMPARE(win->enabledPlanCommands(), 0);
        QCOMPARE(win->title("dockWSid"), QString("SID : "));
        QCOMPARE(win->title("dockWStar"), QString("STAR : "));
        // The procedures of the airport last clicked stay, and so does the start.
        QCOMPARE(win->window->findChild<QTreeWidget*>("treeWSid")->topLevelItemCount(), 1);
        QCOMPARE(win->plan().startLine.latS, 175440.0);
    }

    void aNewPlanRefusedChangesNothing()
    {
        win->add({"LFPO", "PGS-N1"});
        emit win->grid()->cellClicked(0, 0);
        boxes->expectMessage(questionTitle, question, QMessageBox::Cancel);
        win->window->findChild<QAction*>("menuNewFlightPlan")->trigger();
        QVERIFY(boxes->allUsed());
        QCOMPARE(win->told(), QString());
        QCOMPARE(win->idents(), QString("LFPO PGS"));
        QCOMPARE(win->enabledPlanCommands(), 5);
        QCOMPARE(win->title("dockWSid"), QString("SID : LFPO"));
    }

    void aLoadOnANonEmptyPlanRefusedOpensNoDialog()
    {
        win->add({"LFPO", "PGS-N1"});
        boxes->expectMessage(questionTitle, question, QMessageBox::Cancel);
        win->click("btnLoadFlightPlan");
        QVERIFY(boxes->allUsed());
        QCOMPARE(boxes->seen().size(), 1);
        QCOMPARE(win->idents(), QString("LFPO PGS"));
        QCOMPARE(win->told(), QString());
    }

    void aLoadOnAnEmptyPlanAsksForTheFileAlone()
    {
        boxes->expectFiles(loadTitle, {file});
        win->click("btnLoadFlightPlan");
        QVERIFY(boxes->allUsed());
        QCOMPARE(boxes->seen().value(0).value, win->sandbox.path("Flightplan"));
        QCOMPARE(boxes->seen().value(0).choices, QStringList{"Fichier plan de vol (*.fpl)"});
        QCOMPARE(win->idents(), QString("LFBO"));
        QCOMPARE(win->enabledPlanCommands(), 5);
        QCOMPARE(win->probe->calls("addSitMarker"), QStringList());
        QCOMPARE(win->plan().startLine.latS, 0.0);
    }

    void theOrderOfALoadIsKept()
    {
        prepareLoad();
        expectDialogThatFindsTheOldTitles(file);
        win->click("btnLoadFlightPlan");
        QVERIFY(boxes->allUsed());
        QVERIFY(win->told().startsWith("clearFP() clearSS() " + loadedRoute));
        checkTheEndOfALoad();
        QCOMPARE(win->idents(), QString("LFBO"));
        QCOMPARE(win->grid()->rowCount(), 1);
        QCOMPARE(win->plan().startLine.latS, 175440.0);
    }

    void theOrderOfALoadIsKeptWhenTheFileDialogIsCancelled()
    {
        prepareLoad();
        expectDialogThatFindsTheOldTitles({});
        win->click("btnLoadFlightPlan");
        QVERIFY(boxes->allUsed());
        QVERIFY(win->told().startsWith("clearFP() clearSS()"));
        QCOMPARE(win->probe->calls("pushFP"), QStringList());
        checkTheEndOfALoad();
        QCOMPARE(win->plan().lines.size(), 0);
        QCOMPARE(win->grid()->rowCount(), 0);
    }

    void aCancelledLoadOnAnEmptyPlanEnablesTheCommands()
    {
        boxes->expectFilesRejected(loadTitle);
        win->window->findChild<QAction*>("menuLoadFlightPlan")->trigger();
        QCOMPARE(win->plan().lines.size(), 0);
        QCOMPARE(win->enabledPlanCommands(), 5);
        QVERIFY(win->isInFront("dockWFlightPlan"));
    }

    void afterACancelledLoadTheEnabledCommandsAreSafe()
    {
        boxes->expectFilesRejected(loadTitle);
        win->click("btnLoadFlightPlan");
        boxes->expectMessage("Enregistrement plan de vol", "Un plan de vol doit comporté au moins deux points");
        win->click("btnSaveFlightPlan");
        boxes->expectMessage("Enregistrement point de départ", "Vous devez choisir un aéroport en première ligne.");
        win->click("btnStartPos");
        win->click("btnCreateSID");
        win->click("btnCreateSTAR");
        QVERIFY(boxes->allUsed());
        QCOMPARE(win->sandbox.filesIn("Saved Simulations"), QStringList());
    }

private:
    /// A plan, its procedures, another dock in front.
    void prepareLoad()
    {
        win->add({"LFPO", "PGS-N1"});
        emit win->grid()->cellClicked(0, 0);
        win->window->findChild<QDockWidget*>("dockWAircraft")->raise();
        win->window->setPlanActions(false);
        QVERIFY(!win->isInFront("dockWFlightPlan"));
        win->clearCalls();
        boxes->expectMessage(questionTitle, question);
    }

    /// The file dialog comes behind the emptied plan and ahead of everything else.
    void expectDialogThatFindsTheOldTitles(const QString& name)
    {
        boxes->expectDialog("QFileDialog", [this, name](QDialog* dialog) {
            QCOMPARE(dialog->windowTitle(), loadTitle);
            QCOMPARE(win->told(), QString("clearFP() clearSS()"));
            QCOMPARE(win->plan().lines.size(), 0);
            QCOMPARE(win->grid()->rowCount(), 0);
            QCOMPARE(win->title("dockWSid"), QString("SID : LFPO"));
            QCOMPARE(win->title("dockWStar"), QString("STAR : LFPO"));
            QCOMPARE(win->enabledPlanCommands(), 0);
            if (name.isEmpty())
                return dialog->reject();
            dialog->findChild<QLineEdit*>("fileNameEdit")->setText(name);
            QMetaObject::invokeMethod(dialog, "accept");
        });
    }

    void checkTheEndOfALoad()
    {
        QVERIFY(win->isInFront("dockWFlightPlan"));
        QCOMPARE(win->title("dockWSid"), QString("SID : "));
        QCOMPARE(win->title("dockWStar"), QString("STAR : "));
        QCOMPARE(win->enabledPlanCommands(), 5);
        QCOMPARE(win->window->findChild<QTreeWidget*>("treeWSid")->topLevelItemCount(), 1);
    }

    QScopedPointer<BoxResponder> boxes;
    QScopedPointer<PlanWindow> win;
    QString file;
};

QTEST_MAIN(TestPlanReset)
#include "tst_planreset.moc"
