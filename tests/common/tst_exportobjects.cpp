// Writing 3D objects and projects into update files: their bytes, the questions and the boxes.
#include "updateworld.h"

#include <QDir>
#include <QtTest>

namespace {

QString existsText(const QString& path)
{
    return "Le fichier " + path + " existe déja.\nVoulez vous l'écraser ?";
}

void addModel(const UpdateWorld& world, const QString& name, const QString& texture, const QByteArray& vertices)
{
    world.sandbox.sql(dbfile::m3d,
                      "INSERT INTO MOD VALUES (?, 1, '0', ?, 90.5, -1.25, 0, 2, 3, ?, x'0a', x'0b', x'0c')",
                      {name, texture, vertices});
}

void addTexture(const UpdateWorld& world, const QString& name, const QByteArray& pixels)
{
    world.sandbox.sql(dbfile::m3d, "INSERT INTO TEXTURE VALUES (?, 1, 1, ?)", {name, pixels});
}

void addProject(const UpdateWorld& world, const QString& scene, int key, const QVariant& number)
{
    world.sandbox.insertRow(dbfile::obj, "FNM", {{"key", key}, {"file", "f.sce"}, {"scene", scene}, {"scnno", number}});
}

void addObject(const UpdateWorld& world, const QString& name, int scene)
{
    world.sandbox.insertRow(dbfile::obj, "OBJ", {{"qgt", 7}, {"name", name}, {"scn", QString::number(scene)}});
}

} // namespace

class TestExportObjects : public QObject
{
    Q_OBJECT

private slots:
    void anObjectWithItsTexture();
    void anObjectWithItsCompanion();
    void everyPointOfTheNameGetsAnN();
    void anObjectWithoutAPointIsWrittenTwice();
    void allRowsOfAnObjectAreWritten();
    void anObjectWithoutATexture();
    void anObjectThatIsNotThere();
    void anObjectsExistingFile();
    void anObjectsProtectedFileIsReplaced();
    void anObjectsExistingFileIsKeptOnNo();
    void anObjectsFileThatCannotBeOpenedIsASuccess();
    void aProjectWithItsObjects();
    void aProjectsFolderIsMade();
    void aProjectsFolderThatIsThereStays();
    void aProjectThatIsNotThere();
    void aProjectsExistingFile();
    void aProjectsExistingFileIsKeptOnNo();
    void aProjectsFileThatCannotBeOpenedIsASuccess();
};

void TestExportObjects::anObjectWithItsTexture()
{
    UpdateWorld world;
    addModel(world, "TOWER.SMF", "TOWER.TGA", QByteArray("\x01\xff"));
    addTexture(world, "TOWER.TGA", QByteArray("\x0a\x0b\x0c\x0d"));
    addModel(world, "OTHER.SMF", "OTHER.TGA", "x");
    addTexture(world, "OTHER.TGA", "x");
    const QString path = world.sandbox.path("tower.CSV");
    world.boxes.expectMessage("", "L'objet 3D TOWER.SMF a été enregistré dans " + path);
    QVERIFY(world.exchange.exportM3D(dbfile::m3d, "TOWER.SMF", path));
    QCOMPARE(world.sandbox.readFile("tower.CSV"),
             QByteArray("M3D;MOD;-;name;TOWER.SMF;\n"
                        "M3D;MOD;+;TOWER.SMF;1;0;TOWER.TGA;90.5;-1.25;0;2;3;01ff;0a;0b;0c\n"
                        "M3D;TEXTURE;-;xname;TOWER.TGA;\n"
                        "M3D;TEXTURE;+;TOWER.TGA;1;1;0a0b0c0d\n"));
    QCOMPARE(world.boxes.seen().value(0).icon, QMessageBox::Information);
}

void TestExportObjects::anObjectWithItsCompanion()
{
    UpdateWorld world;
    addModel(world, "TOWER.SMF", "DAY.TGA", "1");
    addModel(world, "TOWERN.SMF", "NIGHT.TGA", "2");
    addTexture(world, "DAY.TGA", "3");
    addTexture(world, "NIGHT.TGA", "4");
    const QString path = world.sandbox.path("tower.CSV");
    world.boxes.expectMessage("", "L'objet 3D TOWER.SMF a été enregistré dans " + path);
    QVERIFY(world.exchange.exportM3D(dbfile::m3d, "TOWER.SMF", path));
    QCOMPARE(world.sandbox.readFile("tower.CSV"),
             QByteArray("M3D;MOD;-;name;TOWER.SMF;\n"
                        "M3D;MOD;+;TOWER.SMF;1;0;DAY.TGA;90.5;-1.25;0;2;3;31;0a;0b;0c\n"
                        "M3D;TEXTURE;-;xname;DAY.TGA;\n"
                        "M3D;TEXTURE;+;DAY.TGA;1;1;33\n"
                        "M3D;MOD;-;name;TOWERN.SMF;\n"
                        "M3D;MOD;+;TOWERN.SMF;1;0;NIGHT.TGA;90.5;-1.25;0;2;3;32;0a;0b;0c\n"
                        "M3D;TEXTURE;-;xname;NIGHT.TGA;\n"
                        "M3D;TEXTURE;+;NIGHT.TGA;1;1;34\n"));
}

void TestExportObjects::everyPointOfTheNameGetsAnN()
{
    UpdateWorld world;
    addModel(world, "A.B.SMF", "", "1");
    addModel(world, "AN.BN.SMF", "", "2");
    const QString path = world.sandbox.path("a.CSV");
    world.boxes.expectMessage("", "L'objet 3D A.B.SMF a été enregistré dans " + path);
    QVERIFY(world.exchange.exportM3D(dbfile::m3d, "A.B.SMF", path));
    QCOMPARE(world.sandbox.readFile("a.CSV"), QByteArray("M3D;MOD;-;name;A.B.SMF;\n"
                                                         "M3D;MOD;+;A.B.SMF;1;0;;90.5;-1.25;0;2;3;31;0a;0b;0c\n"
                                                         "M3D;MOD;-;name;AN.BN.SMF;\n"
                                                         "M3D;MOD;+;AN.BN.SMF;1;0;;90.5;-1.25;0;2;3;32;0a;0b;0c\n"));
}

void TestExportObjects::anObjectWithoutAPointIsWrittenTwice()
{
    UpdateWorld world;
    addModel(world, "TOWER", "T.TGA", "1");
    addTexture(world, "T.TGA", "2");
    const QString path = world.sandbox.path("tower.CSV");
    world.boxes.expectMessage("", "L'objet 3D TOWER a été enregistré dans " + path);
    QVERIFY(world.exchange.exportM3D(dbfile::m3d, "TOWER", path));
    const QByteArray once = "M3D;MOD;-;name;TOWER;\n"
                            "M3D;MOD;+;TOWER;1;0;T.TGA;90.5;-1.25;0;2;3;31;0a;0b;0c\n"
                            "M3D;TEXTURE;-;xname;T.TGA;\n"
                            "M3D;TEXTURE;+;T.TGA;1;1;32\n";
    QCOMPARE(world.sandbox.readFile("tower.CSV"), QByteArray(once + once));
}

void TestExportObjects::allRowsOfAnObjectAreWritten()
{
    UpdateWorld world;
    addModel(world, "T.SMF", "FIRST.TGA", "1");
    addModel(world, "T.SMF", "SECOND.TGA", "2");
    addTexture(world, "FIRST.TGA", "3");
    addTexture(world, "FIRST.TGA", "4");
    addTexture(world, "SECOND.TGA", "5");
    const QString path = world.sandbox.path("t.CSV");
    world.boxes.expectMessage("", "L'objet 3D T.SMF a été enregistré dans " + path);
    QVERIFY(world.exchange.exportM3D(dbfile::m3d, "T.SMF", path));
    // The first row names the texture.
    QCOMPARE(world.sandbox.readFile("t.CSV"), QByteArray("M3D;MOD;-;name;T.SMF;\n"
                                                         "M3D;MOD;+;T.SMF;1;0;FIRST.TGA;90.5;-1.25;0;2;3;31;0a;0b;0c\n"
                                                         "M3D;MOD;+;T.SMF;1;0;SECOND.TGA;90.5;-1.25;0;2;3;32;0a;0b;0c\n"
                                                         "M3D;TEXTURE;-;xname;FIRST.TGA;\n"
                                                         "M3D;TEXTURE;+;FIRST.TGA;1;1;33\n"
                                                         "M3D;TEXTURE;+;FIRST.TGA;1;1;34\n"));
}

void TestExportObjects::anObjectWithoutATexture()
{
    UpdateWorld world;
    addModel(world, "T.SMF", "GONE.TGA", "1");
    const QString path = world.sandbox.path("t.CSV");
    world.boxes.expectMessage("", "L'objet 3D T.SMF a été enregistré dans " + path);
    QVERIFY(world.exchange.exportM3D(dbfile::m3d, "T.SMF", path));
    QCOMPARE(world.sandbox.readFile("t.CSV"),
             QByteArray("M3D;MOD;-;name;T.SMF;\nM3D;MOD;+;T.SMF;1;0;GONE.TGA;90.5;-1.25;0;2;3;31;0a;0b;0c\n"));
}

void TestExportObjects::anObjectThatIsNotThere()
{
    UpdateWorld world;
    world.sandbox.writeFile("t.CSV", "old");
    world.boxes.expectMessage("Erreur SQL", "Impossible de trouver l'objet T.SMF dans la base de donnée M3D.db");
    QVERIFY(!world.exchange.exportM3D(dbfile::m3d, "T.SMF", world.sandbox.path("t.CSV")));
    QCOMPARE(world.boxes.seen().value(0).icon, QMessageBox::Warning);
    QCOMPARE(world.logged(QtWarningMsg),
             QStringList{"MainWindow::on_btn3DObjectExport_clicked Object \"T.SMF\" \"M3D.db\" not found"});
    QCOMPARE(world.sandbox.readFile("t.CSV"), QByteArray("old"));
}

void TestExportObjects::anObjectsExistingFile()
{
    UpdateWorld world;
    addModel(world, "T.SMF", "", "1");
    world.sandbox.writeFile("t.CSV", QByteArray(5000, 'x'));
    const QString path = world.sandbox.path("t.CSV");
    world.boxes.expectMessage("Attention", existsText(path), QMessageBox::Yes);
    world.boxes.expectMessage("", "L'objet 3D T.SMF a été enregistré dans " + path);
    QVERIFY(world.exchange.exportM3D(dbfile::m3d, "T.SMF", path));
    QCOMPARE(world.sandbox.readFile("t.CSV").count('\n'), 2);
}

// Root may write any file: it is all others whose file is taken away first.
void TestExportObjects::anObjectsProtectedFileIsReplaced()
{
    UpdateWorld world;
    addModel(world, "T.SMF", "", "1");
    world.sandbox.writeFile("t.CSV", "old");
    const QString path = world.sandbox.path("t.CSV");
    QVERIFY(QFile::setPermissions(path, QFile::ReadOwner));
    world.boxes.expectMessage("Attention", existsText(path), QMessageBox::Yes);
    world.boxes.expectMessage("", "L'objet 3D T.SMF a été enregistré dans " + path);
    QVERIFY(world.exchange.exportM3D(dbfile::m3d, "T.SMF", path));
    QCOMPARE(world.sandbox.readFile("t.CSV").count('\n'), 2);
}

void TestExportObjects::anObjectsExistingFileIsKeptOnNo()
{
    UpdateWorld world;
    addModel(world, "T.SMF", "", "1");
    world.sandbox.writeFile("t.CSV", "old");
    const QString path = world.sandbox.path("t.CSV");
    world.boxes.expectMessage("Attention", existsText(path), QMessageBox::No);
    QVERIFY(!world.exchange.exportM3D(dbfile::m3d, "T.SMF", path));
    QCOMPARE(world.sandbox.readFile("t.CSV"), QByteArray("old"));
    QCOMPARE(world.boxes.seen().value(0).icon, QMessageBox::Question);
}

void TestExportObjects::anObjectsFileThatCannotBeOpenedIsASuccess()
{
    UpdateWorld world;
    addModel(world, "T.SMF", "", "1");
    const QString path = world.sandbox.path("nowhere/t.CSV");
    world.boxes.expectMessage("", "L'objet 3D T.SMF a été enregistré dans " + path);
    QVERIFY(world.exchange.exportM3D(dbfile::m3d, "T.SMF", path));
    QVERIFY(!world.sandbox.hasFile("nowhere/t.CSV"));
}

void TestExportObjects::aProjectWithItsObjects()
{
    UpdateWorld world;
    addProject(world, "Orly", 1, "5");
    addProject(world, "Roissy", 2, "6");
    addProject(world, "Orly", 3, "7");
    addProject(world, "Orly", 4, "8");
    addObject(world, "HANGAR", 5);
    addObject(world, "MAST", 5);
    addObject(world, "TOWER", 7);
    addObject(world, "ELSEWHERE", 6);
    const QString path = world.sandbox.path("orly.CSV");
    world.boxes.expectMessage("", "Le projet 3D Orly a été enregistré dans " + path);
    QVERIFY(world.exchange.exportOBJ(dbfile::obj, QDir(world.sandbox.path("Work")), "Orly", path));
    QCOMPARE(world.sandbox.readFile("orly.CSV"), QByteArray("OBJ;FNM;-;scene;Orly;\n"
                                                            "OBJ;FNM;+;1;f.sce;Orly;5;;\n"
                                                            "OBJ;FNM;+;3;f.sce;Orly;7;;\n"
                                                            "OBJ;FNM;+;4;f.sce;Orly;8;;\n"
                                                            "OBJ;OBJ;-;scn;5;\n"
                                                            "OBJ;OBJ;+;7;;;;;;;;;;;;;;;;;;HANGAR;;5;;\n"
                                                            "OBJ;OBJ;+;7;;;;;;;;;;;;;;;;;;MAST;;5;;\n"
                                                            "OBJ;OBJ;-;scn;7;\n"
                                                            "OBJ;OBJ;+;7;;;;;;;;;;;;;;;;;;TOWER;;7;;\n"));
    QCOMPARE(world.boxes.seen().value(0).icon, QMessageBox::Information);
}

void TestExportObjects::aProjectsFolderIsMade()
{
    UpdateWorld world;
    addProject(world, "Orly", 1, "5");
    const QString path = world.sandbox.path("orly.CSV");
    world.boxes.expectMessage("", "Le projet 3D Orly a été enregistré dans " + path);
    QVERIFY(world.exchange.exportOBJ(dbfile::obj, QDir(world.sandbox.path("Work")), "Orly", path));
    const QDir made(world.sandbox.path("Work/Orly"));
    QVERIFY(made.exists());
    QVERIFY(made.isEmpty());
}

void TestExportObjects::aProjectsFolderThatIsThereStays()
{
    UpdateWorld world;
    addProject(world, "Orly", 1, "5");
    world.sandbox.writeFile("Work/Orly/plan.txt", "kept");
    const QString path = world.sandbox.path("orly.CSV");
    world.boxes.expectMessage("", "Le projet 3D Orly a été enregistré dans " + path);
    QVERIFY(world.exchange.exportOBJ(dbfile::obj, QDir(world.sandbox.path("Work")), "Orly", path));
    QCOMPARE(world.sandbox.readFile("Work/Orly/plan.txt"), QByteArray("kept"));
}

void TestExportObjects::aProjectThatIsNotThere()
{
    UpdateWorld world;
    world.boxes.expectMessage("Erreur SQL", "Impossible de trouver le projet Orly dans la base de donnée OBJ.db");
    QVERIFY(!world.exchange.exportOBJ(dbfile::obj, QDir(world.sandbox.path("Work")), "Orly",
                                      world.sandbox.path("orly.CSV")));
    QCOMPARE(world.boxes.seen().value(0).icon, QMessageBox::Warning);
    QCOMPARE(world.logged(QtWarningMsg), QStringList{"CIODataBase::exportOBJ Project \"Orly\" \"OBJ.db\" not found"});
    QVERIFY(!QDir(world.sandbox.path("Work/Orly")).exists());
    QVERIFY(!world.sandbox.hasFile("orly.CSV"));
}

void TestExportObjects::aProjectsExistingFile()
{
    UpdateWorld world;
    addProject(world, "Orly", 1, "5");
    world.sandbox.writeFile("orly.CSV", QByteArray(5000, 'x'));
    const QString path = world.sandbox.path("orly.CSV");
    world.boxes.expectMessage("Attention", existsText(path), QMessageBox::Yes);
    world.boxes.expectMessage("", "Le projet 3D Orly a été enregistré dans " + path);
    QVERIFY(world.exchange.exportOBJ(dbfile::obj, QDir(world.sandbox.path("Work")), "Orly", path));
    QCOMPARE(world.sandbox.readFile("orly.CSV"), QByteArray("OBJ;FNM;-;scene;Orly;\nOBJ;FNM;+;1;f.sce;Orly;5;;\n"));
}

void TestExportObjects::aProjectsExistingFileIsKeptOnNo()
{
    UpdateWorld world;
    addProject(world, "Orly", 1, "5");
    world.sandbox.writeFile("orly.CSV", "old");
    const QString path = world.sandbox.path("orly.CSV");
    world.boxes.expectMessage("Attention", existsText(path), QMessageBox::No);
    QVERIFY(!world.exchange.exportOBJ(dbfile::obj, QDir(world.sandbox.path("Work")), "Orly", path));
    QCOMPARE(world.sandbox.readFile("orly.CSV"), QByteArray("old"));
    // The folder comes before the question.
    QVERIFY(QDir(world.sandbox.path("Work/Orly")).exists());
}

void TestExportObjects::aProjectsFileThatCannotBeOpenedIsASuccess()
{
    UpdateWorld world;
    addProject(world, "Orly", 1, "5");
    const QString path = world.sandbox.path("nowhere/orly.CSV");
    world.boxes.expectMessage("", "Le projet 3D Orly a été enregistré dans " + path);
    QVERIFY(world.exchange.exportOBJ(dbfile::obj, QDir(world.sandbox.path("Work")), "Orly", path));
    QVERIFY(!world.sandbox.hasFile("nowhere/orly.CSV"));
    QVERIFY(QDir(world.sandbox.path("Work/Orly")).exists());
}

QTEST_MAIN(TestExportObjects)
#include "tst_exportobjects.moc"
