// What one installation writes, another one reads.
#include "updateworld.h"

#include <QDir>
#include <QtTest>

namespace {

/// Bytes of every value, none of them in a pattern that a slip of one byte would leave alike.
QByteArray bytes(int length)
{
    QByteArray content;
    for (int i = 0; i < length; ++i)
        content += char(uchar(i * 37 + i / 256 + 11));
    return content;
}

} // namespace

class TestUpdateRoundTrip : public QObject
{
    Q_OBJECT

private slots:
    void navaids();
    void navaidsOnTopOfThemselves();
    void waypointsStopAtTheirFirstLine();
    void aSemicolonInAValueShiftsTheRow();
    void anObjectWithItsTextures_data();
    void anObjectWithItsTextures();
    void aProject();
};

void TestUpdateRoundTrip::navaids()
{
    UpdateWorld world;
    for (int number = 0; number < 300; ++number) {
        const QString name = QString("STATION %1").arg(number);
        world.sandbox.addNavaid({{"tile", 65536 * number + 102},
                                 {"ukey", QString("K%1").arg(number, 3, 10, QChar('0'))},
                                 {"iden", name.right(3)},
                                 {"name", name},
                                 {"nfrq", 108.05 + number / 7.0},
                                 {"nmdv", -1.5},
                                 {"nsvr", 0.1},
                                 {"stat", "%1"},
                                 {"ncls", number % 4},
                                 {"nlat", 180485.123456 - number},
                                 {"nlon", number / 3.0 - 50.0},
                                 {"npow", 100.0},
                                 {"nrgn", 130.0}});
    }
    const QString all = "SELECT * FROM NAV ORDER BY ukey";
    const QVector<QVariantList> before = world.sandbox.sql(dbfile::gen, all);
    const QString path = world.sandbox.path("nav.CSV");
    world.boxes.expectMessage("Exportation", "300 NAVAID ont été exportés dans " + path);
    QVERIFY(world.exchange.exportAllNAV(dbfile::gen, path));

    QByteArray deletions;
    for (const QVariantList& row : before)
        deletions += "GEN;NAV;-;ukey;" + row.at(1).toByteArray() + '\n';
    QVERIFY(world.importToTheEnd(deletions));
    QCOMPARE(world.column(dbfile::gen, "SELECT count(*) FROM NAV"), QString("0"));

    world.boxes.expectMessage("Attention",
                              "Vous allez effacer la totalité des données de la table NAV.\n"
                              "Voulez vous continuer ?",
                              QMessageBox::Cancel);
    world.boxes.expectMessage("Import", "L'import a été annulé.");
    world.expectImported(path);
    QVERIFY(world.import(path));
    const QVector<QVariantList> after = world.sandbox.sql(dbfile::gen, all);
    QCOMPARE(after.size(), 300);
    for (int row = 0; row < after.size(); ++row)
        QCOMPARE(after.at(row), before.at(row));
}

void TestUpdateRoundTrip::navaidsOnTopOfThemselves()
{
    UpdateWorld world;
    world.sandbox.addNavaid({{"ukey", "A1"}, {"name", "OLD NAME"}});
    world.sandbox.addNavaid({{"ukey", "B1"}});
    const QString path = world.sandbox.path("nav.CSV");
    world.boxes.expectMessage("Exportation", "2 NAVAID ont été exportés dans " + path);
    QVERIFY(world.exchange.exportAllNAV(dbfile::gen, path));
    world.sandbox.sql(dbfile::gen, "UPDATE NAV SET name = 'NEW NAME'");
    world.sandbox.addNavaid({{"ukey", "C1"}, {"name", "KEPT"}});
    world.boxes.expectMessage("Attention",
                              "Vous allez effacer la totalité des données de la table NAV.\n"
                              "Voulez vous continuer ?",
                              QMessageBox::Ok);
    world.expectSqlError();
    world.expectImported(path);
    QVERIFY(world.import(path));
    QCOMPARE(world.rows(dbfile::gen, "SELECT ukey, name FROM NAV ORDER BY ukey"),
             (QVector<QStringList>{{"A1", "OLD NAME"}, {"B1", "RAMBOUILLET"}, {"C1", "KEPT"}}));
}

void TestUpdateRoundTrip::waypointsStopAtTheirFirstLine()
{
    UpdateWorld world;
    world.sandbox.addWaypoint();
    const QString path = world.sandbox.path("wpt.CSV");
    world.boxes.expectMessage("Exportation", "1 WAYPOINT ont été exportés dans " + path);
    QVERIFY(world.exchange.exportAllWPT(dbfile::wpt, path));
    world.sandbox.sql(dbfile::wpt, "DELETE FROM WPT");
    world.boxes.expectMessage("Erreur SQL", "La table GEN est inconnue dans la base de données GEN;WPT;-;ukey;;.\n%3");
    QVERIFY(!world.import(path));
    QCOMPARE(world.column(dbfile::wpt, "SELECT count(*) FROM WPT"), QString("0"));

    // Without that line the rows go in.
    const QByteArray whole = world.sandbox.readFile("wpt.CSV");
    const QByteArray rows = whole.mid(whole.indexOf('\n') + 1);
    QVERIFY(world.importToTheEnd(rows));
    QCOMPARE(world.rows(dbfile::wpt, "SELECT iden, ukey, wlat, wlon FROM WPT"),
             (QVector<QStringList>{{"BAMES", "BAMES", "175320", "10800"}}));
}

void TestUpdateRoundTrip::aSemicolonInAValueShiftsTheRow()
{
    UpdateWorld world;
    world.sandbox.insertRow(dbfile::obj, "FNM", {{"key", "1"}, {"file", "a;b"}, {"scene", "Orly"}, {"scnno", "5"}});
    const QString path = world.sandbox.path("orly.CSV");
    world.boxes.expectMessage("", "Le projet 3D Orly a été enregistré dans " + path);
    QVERIFY(world.exchange.exportOBJ(dbfile::obj, QDir(world.sandbox.path("Work")), "Orly", path));
    world.expectImported(path);
    QVERIFY(world.import(path));
    QCOMPARE(world.rows(dbfile::obj, "SELECT * FROM FNM"), (QVector<QStringList>{{"1", "a", "b", "Orly"}}));
}

void TestUpdateRoundTrip::anObjectWithItsTextures_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<QByteArray>("asString");
    QTest::addColumn<QByteArray>("asBytes");
    // What stands in front of a blob afterwards. The length of its digits in the stream is four times its own as a
    // QString, twice as bytes; where a byte of that number is the code of a digit, one digit more is decoded.
    QTest::newRow("0") << 0 << QByteArray() << QByteArray();
    QTest::newRow("1") << 1 << QByteArray() << QByteArray();
    QTest::newRow("5") << 5 << QByteArray() << QByteArray();
    QTest::newRow("12: 48 is a 0") << 12 << QByteArray(1, '\x00') << QByteArray();
    QTest::newRow("24: 96 is none, 48 is a 0") << 24 << QByteArray() << QByteArray(1, '\x00');
    QTest::newRow("25: 100 is a d, 50 is a 2") << 25 << QByteArray(1, '\x0d') << QByteArray(1, '\x02');
    QTest::newRow("28: 112 is none, 56 is an 8") << 28 << QByteArray() << QByteArray(1, '\x08');
    QTest::newRow("48: 192 and 96 are none") << 48 << QByteArray() << QByteArray();
    QTest::newRow("50: 200 is none, 100 is a d") << 50 << QByteArray() << QByteArray(1, '\x0d');
    QTest::newRow("100: 400 and 200 are none") << 100 << QByteArray() << QByteArray();
    QTest::newRow("6169: 24676 has a d, 12338 a 2 and a 0") << 6169 << QByteArray(1, '\x0d') << QByteArray(1, '\x20');
}

void TestUpdateRoundTrip::anObjectWithItsTextures()
{
    QFETCH(int, length);
    QFETCH(QByteArray, asString);
    QFETCH(QByteArray, asBytes);
    UpdateWorld world;
    const QByteArray blob = bytes(length);
    const QString insertModel = "INSERT INTO MOD VALUES (?, 2, '1', ?, 90.5, -1.25, 3, 12, 36, ?, ?, ?, ?)";
    world.sandbox.sql(dbfile::m3d, insertModel, {"TOWER.SMF", "DAY.TGA", blob, blob, blob, blob});
    world.sandbox.sql(dbfile::m3d, insertModel, {"TOWERN.SMF", "NIGHT.TGA", blob, blob, blob, blob});
    world.sandbox.sql(dbfile::m3d, "INSERT INTO TEXTURE VALUES ('DAY.TGA', 4, 8, ?)", {blob});
    world.sandbox.sql(dbfile::m3d, "INSERT INTO TEXTURE VALUES ('NIGHT.TGA', 4, 8, ?)", {blob});
    const QString path = world.sandbox.path("tower.CSV");
    world.boxes.expectMessage("", "L'objet 3D TOWER.SMF a été enregistré dans " + path);
    QVERIFY(world.exchange.exportM3D(dbfile::m3d, "TOWER.SMF", path));
    world.sandbox.sql(dbfile::m3d, "DELETE FROM MOD");
    world.sandbox.sql(dbfile::m3d, "DELETE FROM TEXTURE");
    world.expectImported(path);
    QVERIFY(world.import(path));

    const QByteArray first = asString + blob;
    const QByteArray other = asBytes + blob;
    const auto model = [&](const QString& name, const QString& texture) {
        return QVariantList{name, 2LL, "1", texture, 90.5, -1.25, 3LL, 12LL, 36LL, first, other, other, other};
    };
    QCOMPARE(world.sandbox.sql(dbfile::m3d, "SELECT * FROM MOD ORDER BY name"),
             (QVector<QVariantList>{model("TOWER.SMF", "DAY.TGA"), model("TOWERN.SMF", "NIGHT.TGA")}));
    QCOMPARE(world.sandbox.sql(dbfile::m3d, "SELECT * FROM TEXTURE ORDER BY xname"),
             (QVector<QVariantList>{{"DAY.TGA", 4LL, 8LL, first}, {"NIGHT.TGA", 4LL, 8LL, first}}));
    QCOMPARE(world.column(dbfile::m3d, "SELECT DISTINCT typeof(vtab) || typeof(xtab) FROM MOD"), QString("blobblob"));
}

void TestUpdateRoundTrip::aProject()
{
    UpdateWorld world;
    world.sandbox.insertRow(dbfile::obj, "FNM", {{"key", "1"}, {"file", "f"}, {"scene", "Orly"}, {"scnno", "5"}});
    world.sandbox.insertRow(dbfile::obj, "OBJ", {{"qgt", "7"}, {"name", "OLD"}, {"scn", "5"}});
    const QString path = world.sandbox.path("orly.CSV");
    world.boxes.expectMessage("", "Le projet 3D Orly a été enregistré dans " + path);
    QVERIFY(world.exchange.exportOBJ(dbfile::obj, QDir(world.sandbox.path("Work")), "Orly", path));
    // Elsewhere the project has other rows, which the update takes away.
    world.sandbox.sql(dbfile::obj, "UPDATE OBJ SET name = 'OTHER'");
    world.sandbox.insertRow(dbfile::obj, "OBJ", {{"qgt", "7"}, {"name", "ANOTHER"}, {"scn", "5"}});
    world.sandbox.insertRow(dbfile::obj, "OBJ", {{"qgt", "7"}, {"name", "KEPT"}, {"scn", "6"}});
    world.expectImported(path);
    QVERIFY(world.import(path));
    QCOMPARE(world.column(dbfile::obj, "SELECT name FROM OBJ ORDER BY name"), QString("KEPT OLD"));
    QCOMPARE(world.rows(dbfile::obj, "SELECT * FROM FNM"), (QVector<QStringList>{{"1", "f", "Orly", "5"}}));
}

QTEST_MAIN(TestUpdateRoundTrip)
#include "tst_updateroundtrip.moc"
