// Writing whole tables into update files: their bytes, the questions and the boxes.
#include "updateworld.h"

#include <QTextCodec>
#include <QtTest>

namespace {

const QByteArray oneNavaid =
    "GEN;NAV;-;ukey;;\n"
    "GEN;NAV;+;65702;A1;ABB;ABBEVILLE;108.45;-1.5;0;FR;;6;2;1;180485.5;6667.25;220;100;130;;\n";

QString existsText(const QString& path)
{
    return "Le fichier " + path + " existe déja.\nVoulez vous l'écraser ?";
}

} // namespace

class TestExportTables : public QObject
{
    Q_OBJECT

private slots:
    void allNavaids();
    void allWaypoints();
    void theCountLeavesOutRowsWithoutAKey();
    void anEmptyTableGivesNothing();
    void aTableThatIsNotThereGivesNothing();
    void anExistingFileIsKeptOnNo();
    void anExistingFileIsWrittenOverOnYes();
    void aFileOfAllNavaidsThatCannotBeOpened();
    void aFileOfAllWaypointsThatCannotBeOpened();
    void aPercentSignInTheNameOfAFile();
    void aPathWithBackslashesIsShownAsItIs();
    void textGoesOutInTheStreamsOwnEncoding();
};

void TestExportTables::allNavaids()
{
    UpdateWorld world;
    QVERIFY(world.importToTheEnd(navaidLine("A1")));
    world.sandbox.insertRow(dbfile::gen, "NAV", {{"ukey", "B1"}, {"name", "a;b"}, {"nfrq", 110.123456789}});
    const QString path = world.sandbox.path("nav.CSV");
    world.boxes.expectMessage("Exportation", "2 NAVAID ont été exportés dans " + path);
    QVERIFY(world.exchange.exportAllNAV(dbfile::gen, path));
    QCOMPARE(world.sandbox.readFile("nav.CSV"),
             QByteArray(oneNavaid + "GEN;NAV;+;;B1;;a;b;110.123456789;;;;;;;;;;;;;;\n"));
    QCOMPARE(world.boxes.seen().value(1).icon, QMessageBox::Information);
}

void TestExportTables::allWaypoints()
{
    UpdateWorld world;
    world.sandbox.addWaypoint();
    const QString path = world.sandbox.path("wpt.CSV");
    world.boxes.expectMessage("Exportation", "1 WAYPOINT ont été exportés dans " + path);
    QVERIFY(world.exchange.exportAllWPT(dbfile::wpt, path));
    QCOMPARE(world.sandbox.readFile("wpt.CSV"),
             QByteArray("GEN;WPT;-;ukey;;\nWPT;WPT;+;0;BAMES;BAMES;BAMES;FR;;78;0;1;175320;10800;0;;;;;;\n"));
}

void TestExportTables::theCountLeavesOutRowsWithoutAKey()
{
    UpdateWorld world;
    world.sandbox.addNavaid();
    world.sandbox.addNavaid({{"ukey", QVariant()}});
    const QString path = world.sandbox.path("nav.CSV");
    world.boxes.expectMessage("Exportation", "1 NAVAID ont été exportés dans " + path);
    QVERIFY(world.exchange.exportAllNAV(dbfile::gen, path));
    QCOMPARE(world.sandbox.readFile("nav.CSV").count("GEN;NAV;+;"), 2);
}

void TestExportTables::anEmptyTableGivesNothing()
{
    UpdateWorld world;
    QVERIFY(!world.exchange.exportAllNAV(dbfile::gen, world.sandbox.path("nav.CSV")));
    QVERIFY(!world.exchange.exportAllWPT(dbfile::wpt, world.sandbox.path("wpt.CSV")));
    QVERIFY(!world.sandbox.hasFile("nav.CSV"));
    QVERIFY(!world.sandbox.hasFile("wpt.CSV"));
}

void TestExportTables::aTableThatIsNotThereGivesNothing()
{
    UpdateWorld world;
    world.sandbox.writeFile("nav.CSV", "old");
    QVERIFY(!world.exchange.exportAllNAV(dbfile::wpt, world.sandbox.path("nav.CSV")));
    QVERIFY(!world.exchange.exportAllNAV("no connection", world.sandbox.path("nav.CSV")));
    QCOMPARE(world.sandbox.readFile("nav.CSV"), QByteArray("old"));
}

void TestExportTables::anExistingFileIsKeptOnNo()
{
    UpdateWorld world;
    world.sandbox.addNavaid();
    world.sandbox.addWaypoint();
    world.sandbox.writeFile("old.CSV", "old");
    const QString path = world.sandbox.path("old.CSV");
    world.boxes.expectMessage("Attention", existsText(path), QMessageBox::No);
    QVERIFY(!world.exchange.exportAllNAV(dbfile::gen, path));
    world.boxes.expectMessage("Attention", existsText(path), QMessageBox::No);
    QVERIFY(!world.exchange.exportAllWPT(dbfile::wpt, path));
    QCOMPARE(world.sandbox.readFile("old.CSV"), QByteArray("old"));
    QCOMPARE(world.boxes.seen().value(0).icon, QMessageBox::Question);
    QCOMPARE(world.boxes.seen().value(0).choices.size(), 2);
}

void TestExportTables::anExistingFileIsWrittenOverOnYes()
{
    UpdateWorld world;
    QVERIFY(world.importToTheEnd(navaidLine("A1")));
    world.sandbox.writeFile("nav.CSV", QByteArray(5000, 'x'));
    const QString path = world.sandbox.path("nav.CSV");
    world.boxes.expectMessage("Attention", existsText(path), QMessageBox::Yes);
    world.boxes.expectMessage("Exportation", "1 NAVAID ont été exportés dans " + path);
    QVERIFY(world.exchange.exportAllNAV(dbfile::gen, path));
    QCOMPARE(world.sandbox.readFile("nav.CSV"), oneNavaid);
}

void TestExportTables::aFileOfAllNavaidsThatCannotBeOpened()
{
    UpdateWorld world;
    world.sandbox.addNavaid();
    const QString path = world.sandbox.path("nowhere/nav.CSV");
    const QString text = "exportNAV: Impossible d'ouvrir le fichier " + path;
    world.boxes.expectMessage("Erreur CSV", text);
    QVERIFY(!world.exchange.exportAllNAV(dbfile::gen, path));
    QCOMPARE(world.boxes.seen().value(0).icon, QMessageBox::Warning);
    QCOMPARE(world.logged(QtWarningMsg), QStringList{"CIODataBase::exportNAV \"" + text + '"'});
}

void TestExportTables::aFileOfAllWaypointsThatCannotBeOpened()
{
    UpdateWorld world;
    world.sandbox.addWaypoint();
    const QString path = world.sandbox.path("nowhere/wpt.CSV");
    const QString text = "exportWPT: Impossible d'ouvrir le fichier " + path;
    world.boxes.expectMessage("Erreur CSV", text);
    QVERIFY(!world.exchange.exportAllWPT(dbfile::wpt, path));
    QCOMPARE(world.logged(QtWarningMsg), QStringList{"CIODataBase::exportWPT \"" + text + '"'});
}

void TestExportTables::aPercentSignInTheNameOfAFile()
{
    UpdateWorld world;
    world.sandbox.addNavaid();
    const QString path = world.sandbox.path("%2 100%.CSV");
    world.boxes.expectMessage("Exportation", "1 NAVAID ont été exportés dans " + path);
    QVERIFY(world.exchange.exportAllNAV(dbfile::gen, path));
    QVERIFY(world.sandbox.hasFile("%2 100%.CSV"));
}

void TestExportTables::aPathWithBackslashesIsShownAsItIs()
{
    UpdateWorld world;
    world.sandbox.addNavaid();
    const QString path = world.sandbox.root() + "\\Work\\nav.CSV";
    world.boxes.expectMessage("Exportation", "1 NAVAID ont été exportés dans " + path);
    QVERIFY(world.exchange.exportAllNAV(dbfile::gen, path));
    QVERIFY(world.sandbox.hasFile("Work/nav.CSV"));
}

void TestExportTables::textGoesOutInTheStreamsOwnEncoding()
{
    UpdateWorld world;
    world.sandbox.insertRow(dbfile::gen, "NAV", {{"ukey", "A1"}, {"name", "CHÂTEAU"}});
    const QString path = world.sandbox.path("nav.CSV");
    world.boxes.expectMessage("Exportation", "1 NAVAID ont été exportés dans " + path);
    QVERIFY(world.exchange.exportAllNAV(dbfile::gen, path));
    QVERIFY(
        world.sandbox.readFile("nav.CSV").contains(";" + QTextCodec::codecForLocale()->fromUnicode("CHÂTEAU") + ";"));
}

QTEST_MAIN(TestExportTables)
#include "tst_exporttables.moc"
