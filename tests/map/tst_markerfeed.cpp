// Rows of the databases as marker scripts.
#include "markerfeed.h"
#include "sandbox.h"

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QtTest>

namespace {

/// All rows of a table, walked forward only, as the program does; the query stands on the first row.
QSqlQuery firstOf(const Sandbox& sandbox, const QString& file, const QString& table)
{
    QSqlDatabase database = QSqlDatabase::database(file);
    if (!database.isValid()) {
        database = QSqlDatabase::addDatabase("QSQLITE", file);
        database.setDatabaseName(sandbox.path("SQL/" + file));
        database.open();
    }
    QSqlQuery query(database);
    query.setForwardOnly(true);
    query.exec("SELECT * FROM " + table);
    if (!query.first())
        qFatal("no row");
    return query;
}

} // namespace

class TestMarkerFeed : public QObject
{
    Q_OBJECT

private slots:
    void airportRow()
    {
        Sandbox sandbox;
        sandbox.addAirport();
        QSqlQuery rows = firstOf(sandbox, dbfile::gen, "APT");
        QCOMPARE(markerfeed::airports(rows),
                 QStringList("addAPTMarker(new google.maps.LatLng(48.72528,2.35944),\"LFPO\",1,\"<font color=blue><b>"
                             "Airport LFPO</b><font color=black><br/>PARIS ORLY<br/>"
                             "48 43' 31.00 N - 002 21' 34.00 E\")"));
    }

    void vorRowBringsItsType()
    {
        Sandbox sandbox;
        sandbox.addNavaid({{"ukey", "K1"}, {"ntyp", 17}, {"nuse", 3}});
        QSqlQuery rows = firstOf(sandbox, dbfile::gen, "NAV");
        QCOMPARE(markerfeed::navaids(rows),
                 QStringList("addVORMarker(new google.maps.LatLng(48.65000,1.98333),\"RBT-K1\",17,\"<font color=blue>"
                             "<b>VOR RBT</b><font color=black><br/>RAMBOUILLET<br/>114.7 Mhz<br/>"
                             "48 38' 60.00 N - 001 59' 00.00 E\")"));
    }

    void ndbRowBringsItsUsage()
    {
        Sandbox sandbox;
        sandbox.addNavaid({{"ukey", "K1"}, {"nfrq", 362.0}, {"ntyp", 8}, {"nuse", 5}});
        QSqlQuery rows = firstOf(sandbox, dbfile::gen, "NAV");
        QCOMPARE(markerfeed::navaids(rows),
                 QStringList("addNDBMarker(new google.maps.LatLng(48.65000,1.98333),\"RBT-K1\",5,\"<font color=blue>"
                             "<b>NDB RBT</b><font color=black><br/>RAMBOUILLET<br/>362 Khz<br/>"
                             "48 38' 60.00 N - 001 59' 00.00 E\")"));
    }

    void typeDecidesBetweenVorAndNdb_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("start");
        QTest::addColumn<QString>("unit");
        QTest::newRow("0") << 0 << "addVORMarker("
                           << " Mhz";
        QTest::newRow("8") << 8 << "addNDBMarker("
                           << " Khz";
        QTest::newRow("16") << 16 << "addVORMarker("
                            << " Mhz";
        QTest::newRow("24") << 24 << "addNDBMarker("
                            << " Khz";
        QTest::newRow("9") << 9 << "addVORMarker("
                           << " Mhz";
        QTest::newRow("40") << 40 << "addVORMarker("
                            << " Mhz";
    }
    void typeDecidesBetweenVorAndNdb()
    {
        QFETCH(int, type);
        QFETCH(QString, start);
        QFETCH(QString, unit);
        Sandbox sandbox;
        sandbox.addNavaid({{"ntyp", type}});
        QSqlQuery rows = firstOf(sandbox, dbfile::gen, "NAV");
        const QStringList scripts = markerfeed::navaids(rows);
        QCOMPARE(scripts.size(), 1);
        QVERIFY2(scripts.first().startsWith(start) && scripts.first().contains(unit), qPrintable(scripts.first()));
    }

    void waypointRowJoinsNameAndKey()
    {
        Sandbox sandbox;
        sandbox.addWaypoint({{"ukey", "K1"}, {"iden", "BAM"}, {"name", "BAMES"}, {"wuse", 6}});
        QSqlQuery rows = firstOf(sandbox, dbfile::wpt, "WPT");
        QCOMPARE(markerfeed::waypoints(rows),
                 QStringList("addWPTMarker(new google.maps.LatLng(48.70000,3.00000),\"BAMES-K1\",6,\"<font color=blue>"
                             "<b>Waypoint BAM</b><font color=black><br/>BAMES (6)<br/>"
                             "48 42' 00.00 N - 003 00' 00.00 E\")"));
    }

    void onlyRowsOfTheCountryInCapitals()
    {
        Sandbox sandbox;
        for (const char* country : {"fr", "DE", "FR", "FRA", " FR", ""}) {
            const QString key = QString("K%1").arg(country);
            sandbox.addAirport({{"ukey", key}, {"ctry", country}});
            sandbox.addNavaid({{"ukey", key}, {"ctry", country}});
            sandbox.addWaypoint({{"ukey", key}, {"ctry", country}});
        }
        QSqlQuery airports = firstOf(sandbox, dbfile::gen, "APT");
        const QStringList airportScripts = markerfeed::airports(airports);
        QCOMPARE(airportScripts.size(), 1);
        QVERIFY(airportScripts.first().contains("\"KFR\""));
        QSqlQuery navaids = firstOf(sandbox, dbfile::gen, "NAV");
        const QStringList navaidScripts = markerfeed::navaids(navaids);
        QCOMPARE(navaidScripts.size(), 1);
        QVERIFY(navaidScripts.first().contains("\"RBT-KFR\""));
        QSqlQuery waypoints = firstOf(sandbox, dbfile::wpt, "WPT");
        const QStringList waypointScripts = markerfeed::waypoints(waypoints);
        QCOMPARE(waypointScripts.size(), 1);
        QVERIFY(waypointScripts.first().contains("\"KFR-KFR\""));
    }

    void rowsKeepTheirOrder()
    {
        Sandbox sandbox;
        for (const char* key : {"LFPO", "LFBO", "LFML"}) {
            sandbox.addAirport({{"ukey", key}});
        }
        QSqlQuery rows = firstOf(sandbox, dbfile::gen, "APT");
        const QStringList scripts = markerfeed::airports(rows);
        QCOMPARE(scripts.size(), 3);
        QVERIFY(scripts.at(0).contains("\"LFPO\""));
        QVERIFY(scripts.at(1).contains("\"LFBO\""));
        QVERIFY(scripts.at(2).contains("\"LFML\""));
    }

    void aTextInAPositionColumnPutsTheMarkerAtZero()
    {
        Sandbox sandbox;
        sandbox.addAirport({{"alat", "nord"}, {"alon", QVariant()}});
        QSqlQuery rows = firstOf(sandbox, dbfile::gen, "APT");
        QVERIFY(markerfeed::airports(rows).first().startsWith("addAPTMarker(new google.maps.LatLng(0.00000,0.00000),"));
    }
};

QTEST_MAIN(TestMarkerFeed)
#include "tst_markerfeed.moc"
