// The sandbox holds what a start needs, and leaves nothing behind for the next one.
#include "sandbox.h"

#include "cnavglobalvar.h"

#include <QDir>
#include <QSqlDatabase>
#include <QtTest>

class TestSandbox : public QObject
{
    Q_OBJECT

private slots:
    void holdsWhatAStartNeeds()
    {
        Sandbox sandbox;
        QDir root = QDir::current();
        QVERIFY(root.cdUp() && root.cdUp());
        QCOMPARE(root.canonicalPath(), QDir(sandbox.root()).canonicalPath());
        QVERIFY(root.exists("AeoZephan.exe"));
        QVERIFY(root.exists("system/AeoZephan.ini"));
        for (const char* folder : {"Flightplan", "Saved Simulations", "Aircraft", "Tools/Trajector/Data", "Work"})
            QVERIFY2(QDir(sandbox.path(folder)).exists(), folder);
        QCOMPARE(sandbox.setting("directory/dirWork").toString(), sandbox.path("Work"));
    }

    void databasesHaveTheirVersions()
    {
        Sandbox sandbox;
        QCOMPARE(sandbox.sqlValue(dbfile::gen, "PRAGMA user_version").toInt(), 0);
        QCOMPARE(sandbox.sqlValue(dbfile::m3d, "PRAGMA user_version").toInt(), 3);
        QCOMPARE(sandbox.sqlValue(dbfile::obj, "PRAGMA user_version").toInt(), 4);
        QCOMPARE(sandbox.sqlValue(dbfile::txy, "PRAGMA user_version").toInt(), 1);
        QCOMPARE(sandbox.sqlValue(dbfile::wpt, "PRAGMA user_version").toInt(), 0);
        QCOMPARE(sandbox.sqlValue(dbfile::route, "PRAGMA user_version").toInt(), 0);
    }

    void rowsStandInTheirColumns()
    {
        Sandbox sandbox;
        sandbox.addAirport({{"ukey", "LFBO"}, {"name", "TOULOUSE"}});
        sandbox.addRunway();
        sandbox.addNavaid({{"nfrq", 392}});
        sandbox.addWaypoint();
        sandbox.addProcedureLeg();
        sandbox.addAirway();
        sandbox.addCountry("FR", "France");
        const QVariantList airport = sandbox.sql(dbfile::gen, "SELECT * FROM APT").first();
        QCOMPARE(airport.size(), 50);
        QCOMPARE(airport.at(1).toString(), QString("LFBO"));
        QCOMPARE(airport.at(3).toString(), QString("LFBO"));
        QCOMPARE(airport.at(4).toString(), QString("TOULOUSE"));
        QCOMPARE(airport.at(9).toDouble(), 175411.0);
        QCOMPARE(sandbox.sql(dbfile::gen, "SELECT * FROM RWY").first().at(13).toString(), QString("24"));
        QCOMPARE(sandbox.sql(dbfile::gen, "SELECT * FROM NAV").first().at(4).toDouble(), 392.0);
        QCOMPARE(sandbox.sql(dbfile::wpt, "SELECT * FROM WPT WHERE wloc = 78").first().at(2).toString(),
                 QString("BAMES"));
        QCOMPARE(sandbox.sql(dbfile::route, "SELECT * FROM SIDSTAR").first().at(3).toString(), QString("BAMES1A"));
        QCOMPARE(sandbox.sql(dbfile::route, "SELECT * FROM ATSROUTE").first().at(2).toString(), QString("UT158"));
        QCOMPARE(sandbox.sqlValue(dbfile::gen, "SELECT cnam FROM CTY").toString(), QString("France"));
    }

    void usesTheProgramsConnectionOnceItIsOpen()
    {
        Sandbox sandbox;
        CNavGlobalVar* global = CNavGlobalVar::instance();
        global->sqlMgr->addDB(dbfile::gen, sandbox.path("SQL"));
        QVERIFY(QSqlDatabase::contains(dbfile::gen));
        // Standing on a row, the program's connection holds a lock that another one would meet.
        sandbox.addNavaid();
        QSqlQuery standing("SELECT * FROM NAV", QSqlDatabase::database(dbfile::gen));
        QVERIFY(standing.next());
        sandbox.addAirport();
        QCOMPARE(sandbox.sql(dbfile::gen, "SELECT * FROM APT").size(), 1);
    }

    void leavesNothingForTheNextOne()
    {
        const QString before = QDir::currentPath();
        for (int round = 0; round < 2; ++round) {
            Sandbox sandbox;
            QVERIFY(QDir::currentPath().endsWith("Tools/Trajector"));
            CNavGlobalVar::instance()->sqlMgr->addDB(dbfile::gen, sandbox.path("SQL"));
            QCOMPARE(sandbox.sql(dbfile::gen, "SELECT * FROM APT").size(), 0);
            sandbox.addAirport();
        }
        QCOMPARE(QDir::currentPath(), before);
        QVERIFY(QSqlDatabase::connectionNames().isEmpty());
    }
};

QTEST_MAIN(TestSandbox)
#include "tst_sandbox.moc"
