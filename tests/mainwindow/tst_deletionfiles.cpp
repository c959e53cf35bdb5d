// The update files of deleted navaids and waypoints, which delete them elsewhere too.
#include "childprocess.h"
#include "deletionwords.h"
#include "navdatatest.h"
#include "updateline.h"

#include "ciodatabase.h"
#include "cnavglobalvar.h"
#include "mainwindow.h"

#include <QDir>
#include <QtTest>

class TestDeletionFiles : public NavdataTest
{
    Q_OBJECT

public:
    TestDeletionFiles() : NavdataTest("BLETO", {"CGO", "BLETO", "CHATEAUROUX"}) {}

private slots:
    void aNavaidIsDeletedAndExported();
    void aWaypointIsDeletedAndExported();
    void theFilesLineHasNoEnd();
    void theFileReplacesAnOlderOne();
    void theFileReplacesThatOfASavedRow();
    void aDeletionAloneLeavesNoFile();
    void aNavaidsFileThatCannotBeWrittenIsTold();
    void aWaypointsFileThatCannotBeWrittenIsNotTold();
    void theFileDeletesTheRowWhereItIsImported();
    void theDataFolderIsNotMade();
    void deletingTwiceFindsNothingAndLeavesTheFile();
};

void TestDeletionFiles::aNavaidIsDeletedAndExported()
{
    load();
    boxes->expectMessage("", navaidDeletion, eraseAndExport);
    boxes->expectMessage(navaidExportTitle,
                         "Le navaid CGO a été effacé et enregistrer pour export \ndans " + data->shownName("CGO"));
    choose(46.25, 2.75, "Effacer le navaid…");
    QVERIFY(boxes->allUsed());
    QCOMPARE(rows("NAV"), 0);
    QCOMPARE(markers(), QStringList{"BLETO-BLETOFR"});
    QCOMPARE(session->page().calls(), QStringList{"delNavaid()"});
    QCOMPARE(data->bytes("CGO"), QByteArray("GEN;NAV;-;ukey;CGO4FR"));
}

void TestDeletionFiles::aWaypointIsDeletedAndExported()
{
    load();
    boxes->expectMessage("", navaidDeletion, eraseAndExport);
    boxes->expectMessage(navaidExportTitle, "Le waypoint BLETO a été effacé et enregistrer pour export \ndans " +
                                                data->shownName("BLETO"));
    choose(46.75, 2.25, "Effacer le waypoint…");
    QVERIFY(boxes->allUsed());
    QCOMPARE(rows("WPT"), 0);
    QCOMPARE(markers(), QStringList{"CGO-CGO4FR"});
    QCOMPARE(session->page().calls(), QStringList{"delWaypoint()"});
    QCOMPARE(data->bytes("BLETO"), QByteArray("WPT;WPT;-;ukey;BLETOFR"));
}

void TestDeletionFiles::theFilesLineHasNoEnd()
{
    for (const auto& button : {eraseAndExport, eraseAndExport}) {
        boxes->expectMessage("", navaidDeletion, button);
        boxes->expectAnyMessage();
    }
    session->window().sDelNavFromDB("CGO-CGO4FR");
    session->window().sDelWptFromDB("BLETO-BLETOFR");
    QCOMPARE(splitUpdateLine(data->bytes("CGO")), (QStringList{"GEN", "NAV", "-", "ukey", "CGO4FR"}));
    QCOMPARE(splitUpdateLine(data->bytes("BLETO")), (QStringList{"WPT", "WPT", "-", "ukey", "BLETOFR"}));
    QVERIFY(!data->bytes("CGO").endsWith('\n') && !data->bytes("BLETO").endsWith('\n'));
}

void TestDeletionFiles::theFileReplacesAnOlderOne()
{
    data->write("CGO", QByteArray(1000, 'x'));
    boxes->expectMessage("", navaidDeletion, eraseAndExport);
    boxes->expectAnyMessage();
    session->window().sDelNavFromDB("CGO-CGO4FR");
    QCOMPARE(data->bytes("CGO"), QByteArray("GEN;NAV;-;ukey;CGO4FR"));
}

void TestDeletionFiles::theFileReplacesThatOfASavedRow()
{
    boxes->expectDialog("CDialogWpt", [](QDialog* dialog) {
        press(*dialog, "cbSaveCSV");
        press(*dialog, "pbOK");
    });
    boxes->expectAnyMessage();
    boxes->expectAnyMessage();
    session->window().sAddWptToDB("BLETO-BLETOFR", 0, 0);
    QVERIFY(data->bytes("BLETO").startsWith("WPT;WPT;+;"));
    boxes->expectMessage("", navaidDeletion, eraseAndExport);
    boxes->expectAnyMessage();
    session->window().sDelWptFromDB("BLETO-BLETOFR");
    QCOMPARE(data->bytes("BLETO"), QByteArray("WPT;WPT;-;ukey;BLETOFR"));
}

void TestDeletionFiles::aDeletionAloneLeavesNoFile()
{
    boxes->expectMessage("", navaidDeletion, erase);
    boxes->expectAnyMessage();
    session->window().sDelNavFromDB("CGO-CGO4FR");
    QCOMPARE(rows("NAV"), 0);
    QVERIFY(!data->has("CGO"));
}

void TestDeletionFiles::aNavaidsFileThatCannotBeWrittenIsTold()
{
    data->block("CGO");
    boxes->expectMessage("", navaidDeletion, eraseAndExport);
    boxes->expectMessage(navaidExportTitle, "Le navaid CGO a été effacé mais l'export à échoué");
    session->window().sDelNavFromDB("CGO-CGO4FR");
    QVERIFY(boxes->allUsed());
    QCOMPARE(rows("NAV"), 0);
}

void TestDeletionFiles::aWaypointsFileThatCannotBeWrittenIsNotTold()
{
    data->block("BLETO");
    boxes->expectMessage("", navaidDeletion, eraseAndExport);
    session->window().sDelWptFromDB("BLETO-BLETOFR");
    QCOMPARE(boxes->seen().size(), 1);
    QCOMPARE(rows("WPT"), 0);
}

void TestDeletionFiles::theFileDeletesTheRowWhereItIsImported()
{
    for (int kind = 0; kind < 2; ++kind) {
        boxes->expectMessage("", navaidDeletion, eraseAndExport);
        boxes->expectAnyMessage();
    }
    session->window().sDelNavFromDB("CGO-CGO4FR");
    session->window().sDelWptFromDB("BLETO-BLETOFR");
    // Another installation, which still has the rows and others beside them.
    sandbox->addNavaid({{"ukey", "CGO4FR"}});
    sandbox->addNavaid({{"ukey", "CGO5FR"}, {"iden", "CGO4FR"}});
    sandbox->addWaypoint({{"ukey", "BLETOFR"}});
    sandbox->addWaypoint({{"ukey", "BLETOES"}});
    for (const char* label : {"CGO", "BLETO"}) {
        QFile file(QCoreApplication::applicationDirPath() + "/Data/" + label + ".CSV");
        QVERIFY(file.open(QIODevice::ReadOnly));
        boxes->expectMessage("Importation", "Importation terminée\n " + file.fileName());
        CIODataBase exchange;
        QVERIFY(exchange.importDB(file, CNavGlobalVar::instance()));
    }
    QVERIFY(boxes->allUsed());
    QCOMPARE(sandbox->sql(dbfile::gen, "SELECT ukey FROM NAV"), (QVector<QVariantList>{{"CGO5FR"}}));
    QCOMPARE(sandbox->sql(dbfile::wpt, "SELECT ukey FROM WPT"), (QVector<QVariantList>{{"BLETOES"}}));
}

void TestDeletionFiles::theDataFolderIsNotMade()
{
    if (!inChildProcess()) {
        // A copy of this program stands in a folder without "Data".
        QTemporaryDir folder;
        const ChildRun run = runChildProcess({QTest::currentTestFunction()}, {}, folder.path());
        QVERIFY2(run.finished && run.exitCode == 0, qPrintable(run.output + run.log));
        QVERIFY(!QDir(folder.path()).exists("Data"));
        return;
    }
    boxes->expectMessage("", navaidDeletion, eraseAndExport);
    boxes->expectMessage(navaidExportTitle, "Le navaid CGO a été effacé mais l'export à échoué");
    session->window().sDelNavFromDB("CGO-CGO4FR");
    QVERIFY(boxes->allUsed());
    QCOMPARE(rows("NAV"), 0);
}

void TestDeletionFiles::deletingTwiceFindsNothingAndLeavesTheFile()
{
    boxes->expectMessage("", navaidDeletion, eraseAndExport);
    boxes->expectAnyMessage();
    boxes->expectMessage("Suppression d'un waypoint", "Le waypoint sélectionné n'existe pas dans la base");
    session->window().sDelWptFromDB("BLETO-BLETOFR");
    session->window().sDelWptFromDB("BLETO-BLETOFR");
    boxes->expectMessage("", navaidDeletion, eraseAndExport);
    boxes->expectAnyMessage();
    boxes->expectMessage(navaidDeletion, "Le point sélectionné n'existe pas dans la base");
    session->window().sDelNavFromDB("CGO-CGO4FR");
    session->window().sDelNavFromDB("CGO-CGO4FR");
    QVERIFY(boxes->allUsed());
    QCOMPARE(data->bytes("BLETO"), QByteArray("WPT;WPT;-;ukey;BLETOFR"));
    QCOMPARE(data->bytes("CGO"), QByteArray("GEN;NAV;-;ukey;CGO4FR"));
}

QTEST_MAIN(TestDeletionFiles)
#include "tst_deletionfiles.moc"
