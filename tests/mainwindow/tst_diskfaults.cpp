// The window where the disk is full or takes nothing: what the pilot is told, what is kept, and that it goes on.
#include "boxresponder.h"
#include "deletionwords.h"
#include "editingworld.h"
#include "planwindow.h"
#include "procedurekind.h"
#include "smalldisk.h"
#include "storedprocedures.h"
#include "windowsession.h"

#include "cnavglobalvar.h"
#include "mainwindow.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QtTest>

namespace {

const QString savedTitle = QStringLiteral("Enregistrement plan de vol");
const QString startTitle = QStringLiteral("Enregistrement position initiale");
const QString startQuestion = QStringLiteral("Voulez vous définir LFPO comme départ dans AeoZephan ?");
const QString planFile = QStringLiteral("Flightplan/LFPO_LFBO.FPL");
const QString situationFile = QStringLiteral("Saved Simulations/PARIS ORLY.SIT");
const QString iniFile = QStringLiteral("system/AeoZephan.ini");
const QStringList files = {planFile, situationFile, iniFile};

QString notWritten(const QString& path)
{
    return QString("Le fichier %1 n'a pas pu être écrit en entier : le disque est peut-être plein.\nCe qu'il contenait "
                   "avant est conservé.")
        .arg(path);
}

} // namespace

class TestDiskFaults : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        SKIP_WITHOUT_MOUNTS();
        boxes.reset(new BoxResponder);
        win.reset(new PlanWindow([this](const Sandbox& sandbox) {
            StoredProcedures(sandbox).addProcedure("OLD", 2, {"LFPO", "PGS"});
            databases.reset(new SmallDisk(sandbox.path("SQL"), 4 * 1024 * 1024));
        }));
    }
    void cleanupTestCase()
    {
        win.reset();
        databases.reset();
        boxes.reset();
    }
    void init()
    {
        boxes.reset(new BoxResponder);
    }
    void cleanup()
    {
        boxes->expectMessage("Nouveau plan de vol", "Voulez vous effacer le plan de vol en cours ?");
        win->add({"LFPO"});
        win->window->askResetPlan();
        boxes.reset();
    }

    void aSaveOntoAFullDisk_data()
    {
        addFolders();
    }
    void aSaveOntoAFullDisk()
    {
        QFETCH(QString, faulty);
        saveOnce();
        changePlan();
        SmallDisk disk(folderOf(faulty), 65536);
        disk.fill();
        const QMap<QString, QByteArray> before = contents();
        // In the order of the writing; the words of success stay away where there was none.
        if (faulty == planFile)
            boxes->expectMessage("Erreur d'écriture", notWritten(win->sandbox.root() + "\\Flightplan\\LFPO_LFBO.FPL"));
        else
            boxes->expectMessage(savedTitle, "Le plan de vol LFPO_LFBO.FPL a été enregistré");
        if (faulty == situationFile)
            boxes->expectMessage("Erreur d'écriture",
                                 notWritten(win->sandbox.root() + "\\Saved Simulations\\PARIS ORLY.SIT"));
        boxes->expectMessage(startTitle, startQuestion, QMessageBox::Ok);
        if (faulty == iniFile)
            boxes->expectMessage("Erreur d'écriture", notWritten(win->sandbox.path(iniFile)));
        win->click("btnSaveFlightPlan");
        QVERIFY(boxes->allUsed());
        for (const QString& file : files)
            QCOMPARE(win->sandbox.readFile(file) == before.value(file), file == faulty);
        disk.makeRoom();
        QCOMPARE(QDir(folderOf(faulty)).entryList(QDir::Files | QDir::Hidden), QStringList{faulty.section('/', 1)});
        saveOnce();
        QVERIFY(win->sandbox.readFile(faulty) != before.value(faulty));
    }

    void aSaveOntoAReadOnlyDisk_data()
    {
        addFolders();
    }
    void aSaveOntoAReadOnlyDisk()
    {
        QFETCH(QString, faulty);
        saveOnce();
        changePlan();
        SmallDisk disk(folderOf(faulty), 65536);
        disk.protect();
        const QMap<QString, QByteArray> before = contents();
        if (faulty != planFile)
            boxes->expectMessage(savedTitle, "Le plan de vol LFPO_LFBO.FPL a été enregistré");
        boxes->expectMessage(startTitle, startQuestion, QMessageBox::Ok);
        win->click("btnSaveFlightPlan");
        QVERIFY(boxes->allUsed());
        for (const QString& file : files)
            QCOMPARE(win->sandbox.readFile(file) == before.value(file), file == faulty);
        disk.unprotect();
        saveOnce();
        QVERIFY(win->sandbox.readFile(faulty) != before.value(faulty));
    }

    void aDeletedNavaidsFileOnAFullDisk()
    {
        const DataFolder data({"PGS"});
        data.write("PGS", "an older file");
        SmallDisk disk(QCoreApplication::applicationDirPath() + "/Data", 65536);
        disk.fill();
        boxes->expectMessage("", "Suppression d'un navaid", eraseAndExport);
        boxes->expectMessage("Erreur d'écriture", notWritten(data.shownName("PGS")));
        boxes->expectMessage("Suppression/export d'un navaid", "Le navaid PGS a été effacé mais l'export à échoué");
        win->window->sDelNavFromDB("PGS-N1");
        QVERIFY(boxes->allUsed());
        QCOMPARE(data.bytes("PGS"), QByteArray("an older file"));
        win->sandbox.addNavaid({{"ukey", "N1"}, {"iden", "PGS"}, {"name", "PARIS"}, {"ntyp", 1}});
    }

    void aSavedNavaidsFileOnAFullDisk()
    {
        const DataFolder data({"PARIS"});
        data.write("PARIS", "an older file");
        SmallDisk disk(QCoreApplication::applicationDirPath() + "/Data", 65536);
        disk.fill();
        boxes->expectDialog("CDialogNav", [](QDialog* dialog) {
            widgetOf<QCheckBox>(*dialog, "cbSaveCSV")->setChecked(true);
            press(*dialog, "pbOK");
        });
        boxes->expectMessage("Nouveau NAVAID", "PARIS a été modifié/ajouté à la base GEN.db");
        boxes->expectMessage("Erreur d'écriture", notWritten(data.shownName("PARIS"))); // and no word of success
        win->window->sAddNavToDB("PGS-N1", 0, 0);
        QVERIFY(boxes->allUsed());
        QCOMPARE(data.bytes("PARIS"), QByteArray("an older file"));
    }

    void anImportIntoADatabaseOnAFullDisk()
    {
        databases->fill();
        const QString path = win->sandbox.path("update.CSV");
        win->sandbox.writeFile("update.CSV", "WPT;WPT;+;1;NEW;WNEW;" + QByteArray(200000, 'n') +
                                                 ";FR;;78;6;1;175000;9000;0;0;0;0;\n"
                                                 "WPT;WPT;-;ukey;W2\n");
        boxes->expectFiles("Ouvrir un fichier d'import", {path});
        boxes->expectAnyMessage();
        boxes->expectMessage("Importation", "Importation terminée\n " + path);
        win->window->findChild<QAction*>("actImport")->trigger();
        QVERIFY(boxes->allUsed());
        QCOMPARE(boxes->seen().value(1).title, QString("SQL Error"));
        QVERIFY2(boxes->seen().value(1).text.contains("database or disk is full"), qPrintable(boxes->seen()[1].text));
        // The line behind it has been carried out, and the database is whole.
        QCOMPARE(keys(), QString("W1 W3"));
        QCOMPARE(win->sandbox.sqlValue(dbfile::wpt, "PRAGMA integrity_check").toString(), QString("ok"));
        databases->makeRoom();
    }

    void aProcedureStoredOnAFullDiskLeavesTheOthers()
    {
        databases->fill();
        QStringList points{"LFPO"};
        for (int i = 0; i < 120; ++i)
            points << "BAMES-W1";
        win->add(points);
        // The program takes no notice of what its statements do here: the box is the one of success.
        storePlan(*win, *boxes, sid, QString(2000, 'N'));
        const StoredProcedures stored(win->sandbox);
        QVERIFY(stored.stored().size() < 121);
        QVERIFY(stored.names().split(' ').contains("OLD"));
        QCOMPARE(win->sandbox.sqlValue(dbfile::route, "PRAGMA integrity_check").toString(), QString("ok"));
        databases->makeRoom();
        storePlan(*win, *boxes, sid, QString(2000, 'N'));
        QCOMPARE(stored.stored().size(), 2 + 121);
    }

private:
    static void addFolders()
    {
        QTest::addColumn<QString>("faulty");
        QTest::newRow("the plan's folder") << planFile;
        QTest::newRow("the situations' folder") << situationFile;
        QTest::newRow("the ini's folder") << iniFile;
    }

    QString folderOf(const QString& file) const
    {
        return win->sandbox.path(file.section('/', 0, 0));
    }

    /// Saves the plan from Orly to Toulouse with its start.
    void saveOnce()
    {
        if (win->idents().isEmpty())
            win->add({"LFPO", "LFBO"});
        boxes->expectMessage(savedTitle, "Le plan de vol LFPO_LFBO.FPL a été enregistré");
        boxes->expectMessage(startTitle, startQuestion, QMessageBox::Ok);
        win->click("btnSaveFlightPlan");
        QVERIFY(boxes->allUsed());
    }

    /// Something new for each of the three files.
    void changePlan()
    {
        win->setCurrent(0);
        win->add({"BAMES-W1"});
        win->window->doMoveSIT(48.5, 2.5);
        win->sandbox.writeFile(iniFile, "[UI]\nstartupSituation=Default.sit\n[Z]\nlast=1\n");
    }

    QMap<QString, QByteArray> contents() const
    {
        QMap<QString, QByteArray> found;
        for (const QString& file : files)
            found.insert(file, win->sandbox.readFile(file));
        return found;
    }

    QString keys() const
    {
        QStringList found;
        for (const QVariantList& row : win->sandbox.sql(dbfile::wpt, "SELECT ukey FROM WPT ORDER BY ukey"))
            found << row.first().toString();
        return found.join(' ');
    }

    QScopedPointer<BoxResponder> boxes;
    QScopedPointer<PlanWindow> win;
    QScopedPointer<SmallDisk> databases;
};

TEST_MAIN_WITH_MOUNTS(TestDiskFaults)
#include "tst_diskfaults.moc"
