// Exports of databases onto a disk that is full or takes nothing: the file that stood there stays.
#include "smalldisk.h"
#include "updateworld.h"

#include <QApplication>
#include <QtTest>

#include <functional>

using Export = std::function<bool(UpdateWorld&, const QString& path)>;
Q_DECLARE_METATYPE(Export)

namespace {

const QByteArray before = "an older export\n";

/// Rows for each export, more than a disk of some pages takes.
void fillDatabases(const UpdateWorld& world)
{
    const QString many =
        QStringLiteral("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 900) ");
    world.sandbox.sql(dbfile::gen, many + "INSERT INTO NAV (ukey, iden, name) SELECT i, i, 'a navaid' FROM n");
    world.sandbox.sql(dbfile::wpt, many + "INSERT INTO WPT (ukey, iden, name) SELECT i, i, 'a waypoint' FROM n");
    world.sandbox.sql(dbfile::m3d, "INSERT INTO MOD (name, vtab) VALUES ('hangar.x', zeroblob(40000))");
    world.sandbox.sql(dbfile::obj, "INSERT INTO FNM (\"key\", file, scene, scnno) VALUES (1, 'f', 'LFPO', 7)");
    world.sandbox.sql(dbfile::obj, many + "INSERT INTO OBJ (qgt, name, scn) SELECT i, 'an object', '7' FROM n");
}

void addExports()
{
    QTest::addColumn<Export>("run");
    QTest::newRow("navaids") << Export(
        [](UpdateWorld& world, const QString& path) { return world.exchange.exportAllNAV(dbfile::gen, path); });
    QTest::newRow("waypoints") << Export(
        [](UpdateWorld& world, const QString& path) { return world.exchange.exportAllWPT(dbfile::wpt, path); });
    QTest::newRow("3D object") << Export([](UpdateWorld& world, const QString& path) {
        return world.exchange.exportM3D(dbfile::m3d, "hangar.x", path);
    });
    QTest::newRow("3D project") << Export([](UpdateWorld& world, const QString& path) {
        return world.exchange.exportOBJ(dbfile::obj, QDir(world.sandbox.root()), "LFPO", path);
    });
}

} // namespace

class TestExportFaults : public QObject
{
    Q_OBJECT

private slots:
    void aFullDiskIsToldAndKeepsTheFile_data()
    {
        addExports();
    }
    void aFullDiskIsToldAndKeepsTheFile()
    {
        SKIP_WITHOUT_MOUNTS();
        QFETCH(Export, run);
        UpdateWorld world;
        fillDatabases(world);
        world.sandbox.writeFile("Export/A.CSV", before);
        const QString path = world.sandbox.path("Export/A.CSV");
        SmallDisk disk(world.sandbox.path("Export"), 3 * 4096);
        world.boxes.expectMessage("Attention", "Le fichier " + path + " existe déja.\nVoulez vous l'écraser ?",
                                  QMessageBox::Yes);
        world.boxes.expectMessage("Erreur d'écriture", "Le fichier " + path +
                                                           " n'a pas pu être écrit en entier : le disque est peut-être "
                                                           "plein.\nCe qu'il contenait avant est conservé.");
        QVERIFY(!run(world, path));
        QVERIFY(world.boxes.allUsed());
        QCOMPARE(world.sandbox.readFile("Export/A.CSV"), before);
        QCOMPARE(world.sandbox.filesIn("Export"), QStringList{"A.CSV"});
    }

    void aReadOnlyDiskKeepsTheFile_data()
    {
        addExports();
    }
    void aReadOnlyDiskKeepsTheFile()
    {
        SKIP_WITHOUT_MOUNTS();
        QFETCH(Export, run);
        UpdateWorld world;
        fillDatabases(world);
        world.sandbox.writeFile("Export/A.CSV", before);
        SmallDisk disk(world.sandbox.path("Export"), 65536);
        disk.protect();
        world.boxes.expectAnyMessage(QMessageBox::Yes);
        world.boxes.expectAnyMessage();
        const bool told = run(world, world.sandbox.path("Export/A.CSV"));
        // The exports of objects have always shown the box of success here.
        const QString title = world.boxes.seen().value(1).title;
        QCOMPARE(title, told ? QString() : QString("Erreur CSV"));
        QCOMPARE(told, QByteArray(QTest::currentDataTag()).startsWith("3D"));
        QCOMPARE(world.sandbox.readFile("Export/A.CSV"), before);
    }
};

TEST_MAIN_WITH_MOUNTS(TestExportFaults)
#include "tst_exportfaults.moc"
