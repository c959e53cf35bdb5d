// The rows of the demonstration itself: complete, consistent, and fit for what the program does with them.
#include "databaselayout.h"
#include "demodatabase.h"
#include "demoroot.h"
#include "tilegrid.h"

#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

class TestDemoData : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void columnsAreThoseOfTheDataDictionary();
    void thereAreRowsOfAllKinds_data();
    void thereAreRowsOfAllKinds();
    void everyTileIsTheGrids_data();
    void everyTileIsTheGrids();
    void namesAndKeysHaveNoForbiddenCharacters_data();
    void namesAndKeysHaveNoForbiddenCharacters();
    void textsFitTheirColumns();
    void everyCountryIsListed();
    void everyRunwayBelongsToAnAirport();
    void airportsTellTheirRunways();
    void oneAirportHasNoRunwayAndOneTwoEquallyLongOnes();
    void frequenciesLieInTheirBands();
    void frequenciesAndLandingAidsBelongToAirports();
    void airwaysLeadThroughRealPoints();
    void proceduresAreCompleteSequences();
    void aWaypointOfABeaconNamesIt();
    void blobsAreBinary();

private:
    const DemoDatabase& open(const QString& file);

    QTemporaryDir folder;
    QMap<QString, std::shared_ptr<DemoDatabase>> databases;
};

const DemoDatabase& TestDemoData::open(const QString& file)
{
    if (!databases.contains(file))
        databases.insert(file, std::make_shared<DemoDatabase>(folder.filePath("SQL/" + file + ".db")));
    return *databases.value(file);
}

void TestDemoData::initTestCase()
{
    QCOMPARE(makeDemoRoot(folder.path()), QString());
}

void TestDemoData::columnsAreThoseOfTheDataDictionary()
{
    int tables = 0;
    for (const DatabaseLayout& layout : databaseLayouts())
        for (const TableLayout& table : layout.tables) {
            const auto columns = open(layout.prefix).rows("PRAGMA table_info(\"" + table.name + "\")");
            QCOMPARE(columns.size(), table.columnCount);
            for (int i = 0; i < table.columnCount; ++i)
                QCOMPARE(columns.at(i).at(1).toString(), table.columns[i].code);
            ++tables;
        }
    QCOMPARE(tables, 21);
}

void TestDemoData::thereAreRowsOfAllKinds_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("rows");
    QTest::addColumn<int>("least");
    QTest::newRow("French airports") << "GEN"
                                     << "APT WHERE ctry = 'FR'" << 80;
    QTest::newRow("airports of neighbours") << "GEN"
                                            << "APT WHERE ctry <> 'FR'" << 10;
    QTest::newRow("runways") << "GEN"
                             << "RWY" << 200;
    QTest::newRow("navaids") << "GEN"
                             << "NAV WHERE ctry = 'FR'" << 120;
    QTest::newRow("navaids of neighbours") << "GEN"
                                           << "NAV WHERE ctry <> 'FR'" << 10;
    for (const int type : {1, 4, 5, 8, 16, 17, 24})
        QTest::addRow("navaids of type %d", type) << "GEN" << QString("NAV WHERE ntyp = %1").arg(type) << 1;
    QTest::newRow("en route NDB") << "GEN"
                                  << "NAV WHERE ntyp = 8 AND nuse = 3" << 5;
    QTest::newRow("terminal NDB") << "GEN"
                                  << "NAV WHERE ntyp = 8 AND nuse = 4" << 5;
    QTest::newRow("waypoints on the map") << "WPT"
                                          << "WPT WHERE wloc = 78 AND ctry = 'FR'" << 250;
    QTest::newRow("waypoints of beacons") << "WPT"
                                          << "WPT WHERE wloc = 89" << 3;
    for (int usage = 1; usage <= 6; ++usage)
        QTest::addRow("waypoints of usage %d", usage) << "WPT" << QString("WPT WHERE wuse = %1").arg(usage) << 20;
    QTest::newRow("frequencies") << "GEN"
                                 << "COM" << 100;
    QTest::newRow("landing systems") << "GEN"
                                     << "ILS" << 50;
    QTest::newRow("countries") << "GEN"
                               << "CTY" << 240;
    for (const char level : {'H', 'L', 'B'})
        QTest::addRow("airways %c", level) << "ROUTE" << QString("ATSROUTE WHERE levl = %1").arg(int(level)) << 5;
    QTest::newRow("SID") << "ROUTE"
                         << "SIDSTAR WHERE styp = 2 AND sqnm = 10" << 3;
    QTest::newRow("STAR") << "ROUTE"
                          << "SIDSTAR WHERE styp = 1 AND sqnm = 10" << 3;
    QTest::newRow("boundaries") << "ROUTE"
                                << "BDRY" << 8;
}

void TestDemoData::thereAreRowsOfAllKinds()
{
    QFETCH(QString, file);
    QFETCH(QString, rows);
    QFETCH(int, least);
    const int count = open(file).value("SELECT COUNT(*) FROM " + rows).toInt();
    QVERIFY2(count >= least, qPrintable(QString::number(count)));
}

void TestDemoData::everyTileIsTheGrids_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("columns");
    QTest::newRow("APT") << "GEN"
                         << "tile, alat, alon, ukey FROM APT";
    QTest::newRow("NAV") << "GEN"
                         << "tile, nlat, nlon, ukey FROM NAV";
    QTest::newRow("COM") << "GEN"
                         << "tile, clat, clon, ckey FROM COM";
    QTest::newRow("ILS") << "GEN"
                         << "tile, ilat, ilon, ikey FROM ILS";
    QTest::newRow("WPT") << "WPT"
                         << "tile, wlat, wlon, ukey FROM WPT";
    QTest::newRow("ATSROUTE") << "ROUTE"
                              << "tile, lat1, lon1, akey FROM ATSROUTE";
    QTest::newRow("BDRY") << "ROUTE"
                          << "tile, blt1, bln1, bkey FROM BDRY";
}

void TestDemoData::everyTileIsTheGrids()
{
    QFETCH(QString, file);
    QFETCH(QString, columns);
    TileGrid grid;
    grid.buildBands();
    for (const QVariantList& row : open(file).rows("SELECT " + columns)) {
        const int expected = grid.getTileKey(row.at(1).toDouble(), row.at(2).toDouble());
        QVERIFY2(row.at(0).toInt() == expected, qPrintable(row.at(3).toString()));
        QVERIFY(row.at(2).toDouble() >= 0.0 && row.at(2).toDouble() < 1296000.0);
    }
}

void TestDemoData::namesAndKeysHaveNoForbiddenCharacters_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("columns");
    QTest::newRow("APT") << "GEN"
                         << "ukey, iden, name FROM APT";
    QTest::newRow("NAV") << "GEN"
                         << "ukey, iden, name FROM NAV";
    QTest::newRow("ILS") << "GEN"
                         << "ikey, iils, name FROM ILS";
    QTest::newRow("COM") << "GEN"
                         << "ckey, capt, cnam FROM COM";
    QTest::newRow("CTY") << "GEN"
                         << "cuid, cuid, cnam FROM CTY";
    QTest::newRow("WPT") << "WPT"
                         << "ukey, iden, name FROM WPT";
    QTest::newRow("ATSROUTE") << "ROUTE"
                              << "akey, aaid, nvi1 FROM ATSROUTE";
    QTest::newRow("SIDSTAR") << "ROUTE"
                             << "skey, swid, strm FROM SIDSTAR";
}

void TestDemoData::namesAndKeysHaveNoForbiddenCharacters()
{
    QFETCH(QString, file);
    QFETCH(QString, columns);
    // A hyphen would split a marker's title, a semicolon an update line, a quote a statement or a script.
    const QRegularExpression key("^[A-Z0-9]{1,10}$");
    const QRegularExpression name("^[A-Z0-9]+( [A-Z0-9]+)*$");
    QSet<QString> keys;
    for (const QVariantList& row : open(file).rows("SELECT " + columns)) {
        QVERIFY2(key.match(row.at(0).toString()).hasMatch(), qPrintable(row.at(0).toString()));
        QVERIFY2(key.match(row.at(1).toString()).hasMatch(), qPrintable(row.at(1).toString()));
        QVERIFY2(name.match(row.at(2).toString()).hasMatch(), qPrintable(row.at(2).toString()));
        QVERIFY2(!keys.contains(row.at(0).toString()), qPrintable(row.at(0).toString()));
        keys << row.at(0).toString();
    }
    QVERIFY(!keys.isEmpty());
}

void TestDemoData::textsFitTheirColumns()
{
    for (const DatabaseLayout& layout : databaseLayouts())
        for (const TableLayout& table : layout.tables)
            for (const QVariantList& row : open(layout.prefix).rows("SELECT * FROM \"" + table.name + '"'))
                for (int i = 0; i < table.columnCount; ++i) {
                    const ColumnDef& column = table.columns[i];
                    // `wloc` is one character wide and holds the character's code.
                    if (column.type != 'C' || column.width == 0 || column.code == "wloc")
                        continue;
                    QVERIFY2(row.at(i).toString().size() <= column.width,
                             qPrintable(table.name + '.' + column.code + ' ' + row.at(i).toString()));
                }
}

void TestDemoData::everyCountryIsListed()
{
    QSet<QString> countries;
    for (const QVariantList& row : open("GEN").rows("SELECT cuid FROM CTY")) {
        QCOMPARE(row.first().toString().size(), 2);
        countries << row.first().toString();
    }
    for (const char* table : {"APT", "NAV"})
        for (const QVariantList& row : open("GEN").rows(QString("SELECT DISTINCT ctry FROM %1").arg(table)))
            QVERIFY2(countries.contains(row.first().toString()), qPrintable(row.first().toString()));
    for (const QVariantList& row : open("WPT").rows("SELECT DISTINCT ctry FROM WPT"))
        QVERIFY(countries.contains(row.first().toString()));
    QCOMPARE(open("GEN").value("SELECT cnam FROM CTY WHERE cuid = 'FR'").toString(), QString("FRANCE"));
}

void TestDemoData::everyRunwayBelongsToAnAirport()
{
    QCOMPARE(open("GEN").value("SELECT COUNT(*) FROM RWY WHERE rapt NOT IN (SELECT ukey FROM APT)").toInt(), 0);
    const auto runways = open("GEN").rows("SELECT rapt, rlen, rhid, rhla, rhlo, rhht, rhhd, rhmh, rlid, rlla, rllo, "
                                          "rlht, rlhd, rlmh, alat, alon FROM RWY JOIN APT ON ukey = rapt");
    for (const QVariantList& row : runways) {
        const QByteArray airport = row.at(0).toByteArray();
        QVERIFY2(row.at(1).toInt() > 400, airport.constData());
        for (const int end : {2, 8}) {
            QVERIFY2(!row.at(end).toString().isEmpty(), airport.constData());
            QVERIFY2(qAbs(row.at(end + 1).toDouble() - row.at(14).toDouble()) < 240.0, airport.constData());
            QVERIFY2(row.at(end + 3).toInt() > -50 && row.at(end + 3).toInt() < 7000, airport.constData());
            QVERIFY2(row.at(end + 4).toDouble() >= 0.0 && row.at(end + 4).toDouble() <= 360.0, airport.constData());
            QVERIFY2(row.at(end + 5).toDouble() >= 0.0 && row.at(end + 5).toDouble() <= 360.0, airport.constData());
        }
    }
}

void TestDemoData::airportsTellTheirRunways()
{
    for (const QVariantList& row : open("GEN").rows(
             "SELECT ukey, anrw, alrw, COUNT(rapt), COALESCE(MAX(rlen), 0) FROM APT LEFT JOIN RWY ON rapt = ukey "
             "GROUP BY ukey")) {
        QVERIFY2(row.at(1) == row.at(3), row.at(0).toByteArray().constData());
        QVERIFY2(row.at(2) == row.at(4), row.at(0).toByteArray().constData());
    }
}

void TestDemoData::oneAirportHasNoRunwayAndOneTwoEquallyLongOnes()
{
    QCOMPARE(open("GEN").value("SELECT COUNT(*) FROM RWY WHERE rapt = 'LFPI'").toInt(), 0);
    QCOMPARE(open("GEN").value("SELECT ctry FROM APT WHERE ukey = 'LFPI'").toString(), QString("FR"));
    const auto lengths = open("GEN").rows("SELECT rlen FROM RWY WHERE rapt = 'LFCJ'");
    QCOMPARE(lengths.size(), 2);
    QCOMPARE(lengths.at(0).first(), lengths.at(1).first());
}

void TestDemoData::frequenciesLieInTheirBands()
{
    for (const QVariantList& row : open("GEN").rows("SELECT ukey, ntyp, nfrq FROM NAV")) {
        const bool kilohertz = (row.at(1).toInt() & ~16) == 8;
        const double frequency = row.at(2).toDouble();
        QVERIFY2(kilohertz ? frequency >= 180.0 && frequency < 1750.0 : frequency >= 108.0 && frequency < 118.0,
                 row.at(0).toByteArray().constData());
    }
}

void TestDemoData::frequenciesAndLandingAidsBelongToAirports()
{
    QCOMPARE(open("GEN").value("SELECT COUNT(*) FROM COM WHERE capt NOT IN (SELECT ukey FROM APT)").toInt(), 0);
    QCOMPARE(open("GEN")
                 .value("SELECT COUNT(*) FROM ILS WHERE NOT EXISTS "
                        "(SELECT 1 FROM RWY WHERE rapt = iapt AND irwy IN (rhid, rlid))")
                 .toInt(),
             0);
    QCOMPARE(open("GEN").value("SELECT COUNT(*) FROM ILS WHERE freq < 108.1 OR freq > 111.95").toInt(), 0);
}

void TestDemoData::airwaysLeadThroughRealPoints()
{
    QMap<QString, QPair<double, double>> points;
    for (const QVariantList& row : open("GEN").rows("SELECT ukey, nlat, nlon FROM NAV"))
        points.insert(row.at(0).toString(), {row.at(1).toDouble(), row.at(2).toDouble()});
    for (const QVariantList& row : open("WPT").rows("SELECT ukey, wlat, wlon FROM WPT"))
        points.insert(row.at(0).toString(), {row.at(1).toDouble(), row.at(2).toDouble()});
    QString airway;
    QString end;
    for (const QVariantList& row : open("ROUTE").rows(
             "SELECT aaid, nvk1, lat1, lon1, nvk2, lat2, lon2, dist FROM ATSROUTE ORDER BY aaid, seqn")) {
        for (const int side : {1, 4}) {
            const auto point = points.value(row.at(side).toString());
            QCOMPARE(row.at(side + 1).toDouble(), point.first);
            QCOMPARE(row.at(side + 2).toDouble(), point.second);
        }
        if (row.at(0).toString() == airway) // each segment starts where the one before ended
            QCOMPARE(row.at(1).toString(), end);
        airway = row.at(0).toString();
        end = row.at(4).toString();
        QVERIFY2(row.at(7).toDouble() > 5.0 && row.at(7).toDouble() < 250.0, row.at(0).toByteArray().constData());
    }
}

void TestDemoData::proceduresAreCompleteSequences()
{
    for (const QVariantList& procedure :
         open("ROUTE").rows("SELECT strm, sapt, styp, COUNT(*) FROM SIDSTAR GROUP BY strm, sapt, styp")) {
        const QString name = procedure.at(0).toString();
        const bool sid = procedure.at(2).toInt() == 2;
        QVERIFY2(sid || procedure.at(2).toInt() == 1, qPrintable(name));
        // As the lookup gives them: no order is asked for.
        const auto rows = open("ROUTE").rows("SELECT sqnm, skey, swpt, swid FROM SIDSTAR WHERE strm = '" + name + "'");
        QCOMPARE(rows.size(), procedure.at(3).toInt()); // no two airports share a name
        QVERIFY2(rows.size() >= 2, qPrintable(name));
        for (int i = 0; i < rows.size(); ++i) {
            QCOMPARE(rows.at(i).at(0).toInt(), (i + 1) * 10);
            QCOMPARE(rows.at(i).at(1).toString(), name + QString::number((i + 1) * 10));
            const bool airport = i == (sid ? 0 : rows.size() - 1);
            QCOMPARE(rows.at(i).at(2).toInt() == 0, airport);
            if (airport)
                QCOMPARE(rows.at(i).at(3), procedure.at(1));
        }
        QVERIFY(open("GEN").value("SELECT ukey FROM APT WHERE ukey = '" + procedure.at(1).toString() + "'").isValid());
    }
}

void TestDemoData::aWaypointOfABeaconNamesIt()
{
    for (const QVariantList& row : open("WPT").rows("SELECT wnav, wdis, wbrg FROM WPT WHERE wloc = 89")) {
        QVERIFY(open("GEN").value("SELECT ukey FROM NAV WHERE ukey = '" + row.at(0).toString() + "'").isValid());
        QVERIFY(row.at(1).toDouble() > 0.0 && row.at(1).toDouble() < 20.0);
        QVERIFY(row.at(2).toDouble() >= 0.0 && row.at(2).toDouble() < 360.0);
    }
    QCOMPARE(open("WPT").value("SELECT COUNT(*) FROM WPT WHERE wloc = 78 AND wnav <> ''").toInt(), 0);
}

void TestDemoData::blobsAreBinary()
{
    QCOMPARE(open("M3D").value("SELECT LENGTH(vtab) FROM MOD WHERE name = 'TOWER.SMF'").toInt(), 48);
    QCOMPARE(open("M3D").value("SELECT TYPEOF(xtab) FROM MOD WHERE name = 'TOWER.SMF'").toString(), QString("blob"));
    QCOMPARE(open("M3D").value("SELECT LENGTH(tex) FROM TEXTURE").toInt(), 64);
}

QTEST_GUILESS_MAIN(TestDemoData)
#include "tst_demodata.moc"
