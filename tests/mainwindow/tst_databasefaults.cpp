// Databases in other hands while the window is open: locked, replaced, deleted, overwritten. What the pilot is told,
// what is kept, and that the window goes on.
#include "boxresponder.h"
#include "databaselock.h"
#include "deletionwords.h"
#include "editingworld.h"
#include "planwindow.h"
#include "procedurekind.h"
#include "storedprocedures.h"

#include "cnavglobalvar.h"
#include "mainwindow.h"

#include <QAction>
#include <QLineEdit>
#include <QSqlDatabase>
#include <QTreeWidget>
#include <QtTest>

namespace {

const QString errorStart = QStringLiteral("One of the query failed to execute.Error detail: ");
const QString movedTitle = QStringLiteral("Base de données déplacée");

QString moved(const QString& database)
{
    return QString("Le fichier de la base %1 a été remplacé ou effacé depuis son ouverture.\nRien n'est modifié : "
                   "redémarrez Zephan Trajector.")
        .arg(database);
}

/// Runs a statement on a file by a connection of its own, as another program would.
QVariant elsewhere(const QString& path, const QString& statement)
{
    QVariant value;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE", "elsewhere");
        database.setDatabaseName(path);
        database.open();
        QSqlQuery query(database);
        if (query.exec(statement) && query.next())
            value = query.value(0);
    }
    QSqlDatabase::removeDatabase("elsewhere");
    return value;
}

} // namespace

class TestDatabaseFaults : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        boxes.reset(new BoxResponder);
        win.reset(new PlanWindow([](const Sandbox& sandbox) {
            sandbox.addCountry("FR", "FRANCE");
            StoredProcedures(sandbox).addProcedure("OLD", 2, {"LFPO", "PGS"});
        }));
    }
    void cleanup()
    {
        win.reset();
        boxes.reset();
    }

    void aStatementWaitsASecondForALock()
    {
        const QStringList names = QSqlDatabase::connectionNames();
        QCOMPARE(names.size(), 6);
        for (const QString& file : names)
            QCOMPARE(win->sandbox.sqlValue(file, "PRAGMA busy_timeout").toInt(), 1000);
    }

    void aLockThatKeepsFromReadingIsToldAndTheWindowGoesOn()
    {
        {
            const DatabaseLock lock(path(dbfile::gen), DatabaseLock::Kind::Exclusive);
            // Airports and navaids by key, identity and name, then the runways: a box for each statement.
            boxes->closeOthers();
            search("PGS");
            QVERIFY(!boxes->seen().isEmpty());
            for (const SeenBox& box : boxes->seen()) {
                QCOMPARE(box.title, QString("SQL Error"));
                QVERIFY2(box.text.startsWith(errorStart + "SELECT * FROM "), qPrintable(box.text));
                QVERIFY2(box.text.contains("database is locked"), qPrintable(box.text));
            }
            QCOMPARE(found(), QString());
        }
        boxes.reset(new BoxResponder); // no further box
        search("PGS");
        QCOMPARE(found(), QString("PGS"));
        savePlan();
    }

    void aLockThatKeepsFromWritingKeepsTheRows()
    {
        const QString update = win->sandbox.path("update.CSV");
        {
            const DatabaseLock lock(path(dbfile::gen), DatabaseLock::Kind::Reserved);
            boxes->expectMessage("", "Suppression d'un navaid", erase);
            boxes->expectAnyMessage();
            boxes->expectAnyMessage(); // the words of success, which the deletion has always had
            win->window->sDelNavFromDB("PGS-N1");
            QVERIFY(boxes->allUsed());
            QVERIFY(boxes->seen().value(1).text.contains("database is locked"));

            win->sandbox.writeFile("update.CSV", "GEN;NAV;-;ukey;N8\n");
            boxes->expectFiles("Ouvrir un fichier d'import", {update});
            boxes->expectAnyMessage();
            boxes->expectMessage("Importation", "Importation terminée\n " + update);
            win->window->findChild<QAction*>("actImport")->trigger();
            QVERIFY(boxes->allUsed());
            QVERIFY(boxes->seen().value(4).text.contains("database is locked"));
            search("PGS"); // reading goes on
            QCOMPARE(found(), QString("PGS"));
        }
        QCOMPARE(navaids(), 2);
        boxes->expectMessage("", "Suppression d'un navaid", erase);
        boxes->expectMessage("Suppression d'un navaid", "Le navaid PGS-N1 a été effacé");
        win->window->sDelNavFromDB("PGS-N1");
        QCOMPARE(navaids(), 1);
    }

    void aProcedureThatCannotBeReplacedStays()
    {
        win->add({"LFPO", "PGS-N1", "BAMES-W1"});
        {
            const DatabaseLock lock(path(dbfile::route), DatabaseLock::Kind::Reserved);
            storePlan(*win, *boxes, sid, "OLD"); // the box is the one of success
        }
        QCOMPARE(StoredProcedures(win->sandbox).stored().size(), 2);
        storePlan(*win, *boxes, sid, "OLD");
        QCOMPARE(StoredProcedures(win->sandbox).stored().size(), 3);
    }

    void aReplacedFileIsNotWritten()
    {
        replace(dbfile::gen);
        replace(dbfile::route);
        refusesEveryChange();
        // What another program put there stands as it was, and is found at the next start.
        QCOMPARE(elsewhere(path(dbfile::gen), "SELECT count(*) FROM NAV WHERE name LIKE 'new%'").toInt(), 2);
        QCOMPARE(elsewhere(path(dbfile::route), "SELECT count(*) FROM SIDSTAR").toInt(), 2);
    }

    void aDeletedFileIsNotWrittenAndNotMadeAnew()
    {
        win->sandbox.removeFile("SQL/GEN.db");
        win->sandbox.removeFile("SQL/ROUTE.db");
        refusesEveryChange();
        QVERIFY(!win->sandbox.hasFile("SQL/GEN.db"));
        QVERIFY(!win->sandbox.hasFile("SQL/ROUTE.db"));
    }

    void aFileThatComesBackIsWrittenAgain()
    {
        QVERIFY(QFile::rename(path(dbfile::gen), path(dbfile::gen) + ".away"));
        boxes->expectMessage("", "Suppression d'un navaid", erase);
        boxes->expectMessage(movedTitle, moved("GEN.db"));
        win->window->sDelNavFromDB("PGS-N1");
        QVERIFY(QFile::rename(path(dbfile::gen) + ".away", path(dbfile::gen)));
        boxes->expectMessage("", "Suppression d'un navaid", erase);
        boxes->expectMessage("Suppression d'un navaid", "Le navaid PGS-N1 a été effacé");
        win->window->sDelNavFromDB("PGS-N1");
        QVERIFY(boxes->allUsed());
        QCOMPARE(navaids(), 1);
    }

    void aFileOverwrittenInItsPlaceIsToldAndTheWindowGoesOn_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("cut to nothing") << QByteArray();
        QTest::newRow("no database") << QByteArray(40960, 'x');
    }
    void aFileOverwrittenInItsPlaceIsToldAndTheWindowGoesOn()
    {
        QFETCH(QByteArray, bytes);
        win->sandbox.writeFile("SQL/GEN.db", bytes);
        boxes->closeOthers();
        search("PGS");
        search("LFPO");
        win->window->sDelNavFromDB("PGS-N1");
        QVERIFY(QMetaObject::invokeMethod(win->window.get(), "readDataFromDB"));
        QVERIFY(!boxes->seen().isEmpty());
        for (const SeenBox& box : boxes->seen())
            QVERIFY2(QStringList({"SQL Error", "Suppression d'un navaid"}).contains(box.title), qPrintable(box.title));
        boxes.reset(new BoxResponder);
        win->add({"BAMES-W1", "ETAMP-W3"}); // the other databases serve on
        QCOMPARE(win->idents(), QString("BAMES ETAMP"));
    }

private:
    QString path(const QString& file) const
    {
        return win->sandbox.path("SQL/" + file);
    }

    void search(const QString& text)
    {
        win->window->findChild<QLineEdit*>("searchData")->setText(text);
        win->window->searchInTable(true);
    }

    /// The identities that the search lists, with a blank between them.
    QString found() const
    {
        const auto* tree = win->window->findChild<QTreeWidget*>("treeWFound");
        QStringList idents;
        for (int i = 0; i < tree->topLevelItemCount(); ++i)
            idents << tree->topLevelItem(i)->text(1);
        return idents.join(' ');
    }

    int navaids() const
    {
        return win->sandbox.sqlValue(dbfile::gen, "SELECT count(*) FROM NAV").toInt();
    }

    void savePlan()
    {
        win->add({"LFPO", "LFBO"});
        boxes->expectMessage("Enregistrement plan de vol", "Le plan de vol LFPO_LFBO.FPL a été enregistré");
        boxes->expectMessage("Enregistrement position initiale",
                             "Voulez vous définir LFPO comme départ dans AeoZephan ?", QMessageBox::Cancel);
        win->click("btnSaveFlightPlan");
        QVERIFY(boxes->allUsed());
    }

    /// Puts another file into a database's place, as an installer would.
    void replace(const QString& file)
    {
        const QString fresh = path(file) + ".new";
        QVERIFY(QFile::copy(path(file), fresh));
        elsewhere(fresh, "UPDATE NAV SET name = 'new ' || name");
        QCOMPARE(rename(QFile::encodeName(fresh).constData(), QFile::encodeName(path(file)).constData()), 0);
    }

    /// Tries each command that changes a database: told, and no word of success. Reading and saving go on.
    void refusesEveryChange()
    {
        boxes->expectMessage("", "Suppression d'un navaid", eraseAndExport);
        boxes->expectMessage(movedTitle, moved("GEN.db"));
        win->window->sDelNavFromDB("PGS-N1");
        QVERIFY(boxes->allUsed());
        QCOMPARE(boxes->seen().value(1).icon, QMessageBox::Warning);

        boxes->expectDialog("CDialogNav", [](QDialog* dialog) { press(*dialog, "pbOK"); });
        boxes->expectMessage(movedTitle, moved("GEN.db"));
        win->window->sAddNavToDB("PGS-N1", 0, 0);
        QVERIFY(boxes->allUsed());

        const QString update = win->sandbox.path("update.CSV");
        win->sandbox.writeFile("update.CSV", "GEN;NAV;-;ukey;N1\nGEN;NAV;-;ukey;N8\n");
        boxes->expectFiles("Ouvrir un fichier d'import", {update});
        boxes->expectMessage(movedTitle, moved("GEN.db")); // once, and the file is not read on
        win->window->findChild<QAction*>("actImport")->trigger();
        QVERIFY(boxes->allUsed());

        win->add({"LFPO", "PGS-N1"});
        boxes->expectInput("Nouveau SID", "Nom du SID", "OLD");
        boxes->expectMessage(movedTitle, moved("ROUTE.db"));
        win->click("btnCreateSID");
        QVERIFY(boxes->allUsed());
        boxes->expectMessage("", "Effacer un SID/STAR", erase);
        boxes->expectMessage(movedTitle, moved("ROUTE.db"));
        QTreeWidgetItem procedure(QStringList{"OLD"});
        win->window->delSIDSTAR(&procedure, true);
        QVERIFY(boxes->allUsed());

        // The rows that the program has open are all there.
        QCOMPARE(navaids(), 2);
        QCOMPARE(StoredProcedures(win->sandbox).stored().size(), 2);
        search("PGS");
        QCOMPARE(found(), QString("PGS"));
        savePlan();
    }

    QScopedPointer<BoxResponder> boxes;
    QScopedPointer<PlanWindow> win;
};

QTEST_MAIN(TestDatabaseFaults)
#include "tst_databasefaults.moc"
