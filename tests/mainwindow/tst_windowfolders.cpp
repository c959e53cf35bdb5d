// The start's search for the simulator and the work folder, and the settings from one run of the window to the next.
#include "boxresponder.h"
#include "cnavglobalvar.h"
#include "mainwindow.h"
#include "pageprobe.h"
#include "sandbox.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QSqlDatabase>
#include <QtTest>

namespace {

const QString simulatorTitle = QStringLiteral("Sélectionner le répertoire de Aeo Zephan");
const QString workTitle = QStringLiteral("Sélectionner le répertoire de travail");
const QString iniFile = QStringLiteral("Tools/Trajector/trajector.ini");

} // namespace

class TestWindowFolders : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        boxes.reset(new BoxResponder);
        sandbox.reset(new Sandbox);
    }
    void cleanup()
    {
        window.reset();
        sandbox.reset();
        boxes.reset();
    }

    void theRootIsFoundTwoLevelsUpWithoutAQuestion()
    {
        start();
        QCOMPARE(boxes->seen().size(), 0);
        QCOMPARE(settings().dirZephan.path(), sandbox->root());
        QCOMPARE(settings().dirWork.path(), sandbox->path("Work"));
        QCOMPARE(settings().dbGEN, QString("GEN.db"));
        QCOMPARE(settings().dbRTE, QString("ROUTE.db"));
    }

    void aMissingSimulatorIsAskedFor()
    {
        sandbox->removeFile("AeoZephan.exe");
        // The databases of another folder, to see that the answer counts.
        boxes->expectFiles(simulatorTitle, {sandbox->path("Work")});
        start();
        QVERIFY(boxes->allUsed());
        QCOMPARE(boxes->seen().value(0).value, QCoreApplication::applicationDirPath());
        QCOMPARE(settings().dirZephan.path(), sandbox->path("Work"));
        QCOMPARE(settings().dbGEN, QString());
    }

    void aCancelledQuestionForTheSimulatorLeavesAnEmptyPath()
    {
        sandbox->removeFile("AeoZephan.exe");
        boxes->expectFilesRejected(simulatorTitle);
        start();
        QVERIFY(boxes->allUsed());
        QCOMPARE(settings().dirZephan.path(), QString());
        // The window opens and its commands are safe.
        window->show();
        window->sAddNewWptToFp("WPT", 48.0, 2.0);
        window->sAddNewWptToFp("WPT", 49.0, 2.0);
    }

    void theFirstRunAsksForTheWorkFolderAndTheNextDoesNot()
    {
        sandbox->removeSettings();
        boxes->expectFiles(workTitle, {sandbox->path("Work")});
        start();
        QVERIFY(boxes->allUsed());
        QCOMPARE(boxes->seen().value(0).value, QCoreApplication::applicationDirPath());
        QCOMPARE(settings().dirWork.path(), sandbox->path("Work"));
        stop();
        QCOMPARE(sandbox->setting("directory/dirWork").toString(), sandbox->path("Work"));
        start();
        QCOMPARE(boxes->seen().size(), 1);
        QCOMPARE(settings().dirWork.path(), sandbox->path("Work"));
    }

    void aWorkFolderThatIsGoneIsAskedForAgain()
    {
        sandbox->setSetting("directory/dirWork", sandbox->path("Gone"));
        boxes->expectFilesRejected(workTitle);
        start();
        QVERIFY(boxes->allUsed());
        QCOMPARE(settings().dirWork.path(), QString());
    }

    void bothQuestionsComeInTheirOrder()
    {
        sandbox->removeSettings();
        sandbox->removeFile("AeoZephan.exe");
        boxes->expectFiles(simulatorTitle, {sandbox->root()});
        boxes->expectFiles(workTitle, {sandbox->path("Work")});
        start();
        QVERIFY(boxes->allUsed());
        QCOMPARE(settings().dbGEN, QString("GEN.db"));
    }

    void aFirstRunHasTheDefaults()
    {
        sandbox->removeSettings();
        boxes->expectFiles(workTitle, {sandbox->path("Work")});
        start();
        for (const char* action : {"actApt", "actVor", "actNdbRte", "actNdbTerm", "actWptRte", "actWptTerm",
                                   "actWptVfr", "actAtsLo", "actAtsHi", "actAtsB", "actBdry", "actDock"})
            QVERIFY2(toggle(action)->isChecked(), action);
        QCOMPARE(settings().zoom, 6.0);
        QCOMPARE(settings().mapCenter, QPointF(2.0, 49.0));
        QCOMPARE(settings().route, QString("FR"));
        QCOMPARE(settings().traceInterval, 2);
    }

    void mixedAirwaysSwitchedOffComeBackAsHighAltitudeOff()
    {
        start();
        toggle("actAtsB")->trigger();
        QVERIFY(!settings().showATSB);
        stop();
        start();
        QVERIFY(toggle("actAtsB")->isChecked());
        QVERIFY(!toggle("actAtsHi")->isChecked());
        QVERIFY(toggle("actAtsLo")->isChecked());
    }

    void fullScreenComesBackAsTheAirspaceOff()
    {
        start();
        toggle("actDock")->trigger();
        QVERIFY(!settings().showDock);
        stop();
        QCOMPARE(sandbox->setting("view/showBoundary").toBool(), false);
        start();
        QVERIFY(!settings().showBoundary);
        QVERIFY(settings().showDock);
        QVERIFY(!toggle("actBdry")->isChecked());
    }

    void theAirspaceSwitchedOffIsForgotten()
    {
        start();
        toggle("actBdry")->trigger();
        QVERIFY(!settings().showBoundary);
        stop();
        QCOMPARE(sandbox->setting("view/showBoundary").toBool(), true);
    }

    void aRunWritesNoLineForTheMixedAirwaysAndTheDocks()
    {
        start();
        stop();
        QVERIFY(!sandbox->setting("view/showATSB").isValid());
        QVERIFY(!sandbox->setting("view/showDock").isValid());
        QVERIFY(sandbox->setting("view/showATSH").isValid());
        QVERIFY(sandbox->setting("view/showBoundary").isValid());
        QCOMPARE(sandbox->setting("view/route").toString(), QString("FR"));
        QCOMPARE(sandbox->setting("trace/intervale").toInt(), 2);
    }

    void aKeyThatIsNeverWrittenStaysAsEditedByHand()
    {
        sandbox->setSetting("view/showATSB", false);
        sandbox->setSetting("view/showDock", false);
        start();
        QVERIFY(!toggle("actAtsB")->isChecked());
        QVERIFY(toggle("actDock")->isChecked());
        stop();
        QCOMPARE(sandbox->setting("view/showATSB").toBool(), false);
        QCOMPARE(sandbox->setting("view/showDock").toBool(), false);
        QCOMPARE(sandbox->setting("view/showATSH").toBool(), false);
        QCOMPARE(sandbox->setting("view/showBoundary").toBool(), false);
    }

    void eachOtherLayerComesBackAsItWasLeft_data()
    {
        QTest::addColumn<QString>("action");
        for (const char* action : {"actApt", "actVor", "actNdbRte", "actWptRte", "actWptTerm", "actWptVfr", "actAtsLo"})
            QTest::newRow(action) << action;
    }
    void eachOtherLayerComesBackAsItWasLeft()
    {
        QFETCH(QString, action);
        start();
        toggle(action)->trigger();
        stop();
        start();
        QVERIFY(!toggle(action)->isChecked());
        QCOMPARE(toggle("actAtsHi")->isChecked(), true);
    }

    void theMapsPlaceComesBack()
    {
        start();
        PageProbe probe(window.data());
        window->show();
        QVERIFY(probe.waitUntilLoaded());
        probe.evaluate("map.setCenter(new google.maps.LatLng(45.5, 3.25));map.setZoom(9)");
        stop();
        start();
        QCOMPARE(settings().zoom, 9.0);
        QVERIFY(qAbs(settings().mapCenter.x() - 3.25) < 1e-6);
        QVERIFY(qAbs(settings().mapCenter.y() - 45.5) < 1e-6);
    }

    void theLastDatabaseInNameOrderIsUsed()
    {
        sandbox->createDatabase("GEN_a.db", 0);
        sandbox->createDatabase("GEN_b.db", 0);
        QVERIFY(QFile::rename(sandbox->path("SQL/GEN.db"), sandbox->path("SQL/my_GEN.db")));
        start();
        QCOMPARE(settings().dbGEN, QString("GEN_b.db"));
        QVERIFY(QSqlDatabase::contains("GEN_a.db"));
        QVERIFY(QSqlDatabase::contains("GEN_b.db"));
        QVERIFY(!QSqlDatabase::contains("my_GEN.db"));
    }

    void theFoldersOfTheSimulatorsIniAreTaken()
    {
        sandbox->writeFile("system/AeoZephan.ini",
                           "[SQL]\nGENDB=data/../SQL\nM3DDB=SQL\nOBJDB=SQL\nTXYDB=SQL\nRTEDB=SQL\nWPTDB=" +
                               sandbox->path("SQL").toUtf8() + "\n");
        start();
        QCOMPARE(settings().dirGEN.path(), sandbox->root() + "/SQL");
        QCOMPARE(settings().dirWPT.path(), sandbox->path("SQL"));
        QCOMPARE(settings().dirOSM.path(), sandbox->root() + "/../../SQL");
        QCOMPARE(settings().dbWPT, QString("WPT.db"));
        QCOMPARE(settings().dbOSM, QString());
    }

    void withoutTheSimulatorsIniTheWindowOpensWithoutDatabases()
    {
        sandbox->removeFile("system/AeoZephan.ini");
        start();
        QCOMPARE(settings().dirGEN.path(), sandbox->root() + "/../../SQL");
        QCOMPARE(settings().dbGEN, QString());
    }

private:
    void start()
    {
        window.reset(new MainWindow(nullptr));
    }

    /// Ends the run as closing the window does: the settings are written.
    void stop()
    {
        window.reset();
        QVERIFY(sandbox->hasFile(iniFile));
    }

    static CNavGlobalVar& settings()
    {
        return *CNavGlobalVar::instance();
    }

    QAction* toggle(const QString& name) const
    {
        return window->findChild<QAction*>(name);
    }

    QScopedPointer<BoxResponder> boxes;
    QScopedPointer<Sandbox> sandbox;
    QScopedPointer<MainWindow> window;
};

QTEST_MAIN(TestWindowFolders)
#include "tst_windowfolders.moc"
