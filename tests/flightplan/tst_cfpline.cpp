// A line out of a row takes what the row tells and keeps the rest.
#include "cfpline.h"
#include "sandbox.h"

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QtTest>

namespace {

/// A line with something in every field, so that a field that a row must not touch shows.
CFpLine usedLine()
{
    CFpLine line;
    line.fpType = "old type";
    line.name = "old name";
    line.iden = "old iden";
    line.latS = 1.0;
    line.lonS = 2.0;
    line.elev = 3;
    line.dbKey = "old key";
    line.usage = "old usage";
    line.altd = 4;
    line.tkof = "old tkof";
    line.land = "old land";
    line.mark = "old mark";
    line.navType = 5;
    line.heading = 6.0;
    line.speed = 7;
    line.route = 8.0;
    line.dist = 9.0;
    line.duration = 10;
    line.timeAt = QTime(11, 12);
    line.freq = 13.0;
    line.ctry = "old ctry";
    return line;
}

} // namespace

class TestCFpLine : public QObject
{
    Q_OBJECT

    using Factory = void (CFpLine::*)(const QSqlQuery&);

    /// Fills `line` from the only row of a table.
    static void fill(const Sandbox& sandbox, const QString& file, const QString& table, CFpLine& line, Factory from)
    {
        const QString connection = "rows of " + table;
        {
            QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE", connection);
            database.setDatabaseName(sandbox.path("SQL/" + file));
            QVERIFY(database.open());
            QSqlQuery query(database);
            QVERIFY(query.exec("SELECT * FROM " + table));
            QVERIFY(query.first());
            (line.*from)(query);
        }
        QSqlDatabase::removeDatabase(connection);
    }

    static void compareTexts(const CFpLine& line, const QString& fpType, const QString& name, const QString& iden,
                             const QString& dbKey, const QString& usage)
    {
        QCOMPARE(line.fpType, fpType);
        QCOMPARE(line.name, name);
        QCOMPARE(line.iden, iden);
        QCOMPARE(line.dbKey, dbKey);
        QCOMPARE(line.usage, usage);
        QCOMPARE(line.tkof, QString());
        QCOMPARE(line.land, QString());
        QCOMPARE(line.mark, QString());
    }

    static void compareNumbers(const CFpLine& line, double latS, double lonS, int elev, int altd)
    {
        QCOMPARE(line.latS, latS);
        QCOMPARE(line.lonS, lonS);
        QCOMPARE(line.elev, elev);
        QCOMPARE(line.altd, altd);
    }

    /// What no row tells.
    static void compareUntouched(const CFpLine& line)
    {
        QCOMPARE(line.speed, 7);
        QCOMPARE(line.route, 8.0);
        QCOMPARE(line.dist, 9.0);
        QCOMPARE(line.duration, 10);
        QCOMPARE(line.timeAt, QTime(11, 12));
    }

private slots:
    void newLineIsEmpty()
    {
        const CFpLine line;
        QCOMPARE(line.fpType, QString());
        QCOMPARE(line.name, QString());
        QCOMPARE(line.iden, QString());
        QCOMPARE(line.dbKey, QString());
        QCOMPARE(line.usage, QString());
        QCOMPARE(line.tkof, QString("NONE"));
        QCOMPARE(line.land, QString("NONE"));
        QCOMPARE(line.mark, QString());
        QCOMPARE(line.ctry, QString());
        QCOMPARE(line.timeAt, QTime(0, 0, 0, 0));
        compareNumbers(line, 0.0, 0.0, 0, 0);
        QCOMPARE(line.navType, 0);
        QCOMPARE(line.heading, 0.0);
        QCOMPARE(line.speed, 0);
        QCOMPARE(line.route, 0.0);
        QCOMPARE(line.dist, 0.0);
        QCOMPARE(line.duration, 0);
        QCOMPARE(line.freq, 0.0);
    }

    void clearKeepsTheCountry()
    {
        CFpLine line = usedLine();
        line.clear();
        QCOMPARE(line.ctry, QString("old ctry"));
        QCOMPARE(line.fpType, QString());
        QCOMPARE(line.name, QString());
        QCOMPARE(line.iden, QString());
        QCOMPARE(line.dbKey, QString());
        QCOMPARE(line.usage, QString());
        QCOMPARE(line.tkof, QString("NONE"));
        QCOMPARE(line.land, QString("NONE"));
        QCOMPARE(line.mark, QString());
        QCOMPARE(line.timeAt, QTime(0, 0, 0, 0));
        compareNumbers(line, 0.0, 0.0, 0, 0);
        QCOMPARE(line.navType, 0);
        QCOMPARE(line.heading, 0.0);
        QCOMPARE(line.speed, 0);
        QCOMPARE(line.route, 0.0);
        QCOMPARE(line.dist, 0.0);
        QCOMPARE(line.duration, 0);
        QCOMPARE(line.freq, 0.0);
    }

    void airportTakesItsElevationAsAltitude()
    {
        const Sandbox sandbox;
        sandbox.addAirport({{"ukey", "FRLFPO"}, {"iden", "LFPO"}, {"alat", 175411.5}, {"alon", -8494.25}});
        CFpLine line = usedLine();
        fill(sandbox, dbfile::gen, "APT", line, &CFpLine::fromApt);
        compareTexts(line, "airp", "PARIS ORLY", "LFPO", "FRLFPO", "airp");
        compareNumbers(line, 175411.5, -8494.25, 291, 291);
        QCOMPARE(line.ctry, QString("FR"));
        QCOMPARE(line.navType, 5);
        QCOMPARE(line.heading, 6.0);
        QCOMPARE(line.freq, 13.0);
        compareUntouched(line);
    }

    void runwayHighEndTakesItsMagneticHeading()
    {
        const Sandbox sandbox;
        sandbox.addRunway({{"rhla", 1000.5}, {"rhlo", 2000.5}, {"rhmh", 241.25}});
        CFpLine line = usedLine();
        fill(sandbox, dbfile::gen, "RWY", line, &CFpLine::fromRwyHigh);
        compareTexts(line, "uswp", "RWY 24", "24", "NONE", "uswp");
        compareNumbers(line, 1000.5, 2000.5, 290, 290);
        QCOMPARE(line.heading, 241.25);
        QCOMPARE(line.ctry, QString("old ctry"));
        QCOMPARE(line.navType, 5);
        QCOMPARE(line.freq, 13.0);
        compareUntouched(line);
    }

    void runwayLowEndTakesItsMagneticHeading()
    {
        const Sandbox sandbox;
        sandbox.addRunway({{"rlla", 3000.5}, {"rllo", 4000.5}, {"rlmh", 61.25}});
        CFpLine line = usedLine();
        fill(sandbox, dbfile::gen, "RWY", line, &CFpLine::fromRwyLow);
        compareTexts(line, "uswp", "RWY 06", "06", "NONE", "uswp");
        compareNumbers(line, 3000.5, 4000.5, 285, 285);
        QCOMPARE(line.heading, 61.25);
        compareUntouched(line);
    }

    void navaidGivesUpTheCruiseAltitude()
    {
        const Sandbox sandbox;
        sandbox.addNavaid({{"ukey", "FRRBT"}, {"ntyp", 8}, {"nfrq", 114.75}, {"nlat", 175140.5}, {"nlon", 7140.5}});
        CFpLine line = usedLine();
        fill(sandbox, dbfile::gen, "NAV", line, &CFpLine::fromNav);
        compareTexts(line, "snav", "RAMBOUILLET", "RBT", "FRRBT", "snav");
        compareNumbers(line, 175140.5, 7140.5, 552, 0);
        QCOMPARE(line.navType, 8);
        QCOMPARE(line.freq, 114.75);
        QCOMPARE(line.ctry, QString("FR"));
        QCOMPARE(line.heading, 6.0);
        compareUntouched(line);
    }

    void waypointHasTheUsageOfAUserPoint()
    {
        const Sandbox sandbox;
        sandbox.addWaypoint({{"ukey", "FRBAMES"}, {"iden", "BAMES"}, {"name", "Bames point"}, {"walt", 900}});
        CFpLine line = usedLine();
        fill(sandbox, dbfile::wpt, "WPT", line, &CFpLine::fromWpt);
        compareTexts(line, "wayp", "Bames point", "BAMES", "FRBAMES", "uswp");
        compareNumbers(line, 175320.0, 10800.0, 0, 0);
        QCOMPARE(line.ctry, QString("FR"));
        QCOMPARE(line.navType, 5);
        QCOMPARE(line.heading, 6.0);
        QCOMPARE(line.freq, 13.0);
        compareUntouched(line);
    }

    void procedurePointHasNoKeyAndNoAltitude()
    {
        const Sandbox sandbox;
        sandbox.addProcedureLeg({{"slat", 175320.5}, {"slon", -10800.5}});
        CFpLine line = usedLine();
        fill(sandbox, dbfile::route, "SIDSTAR", line, &CFpLine::fromSidStar);
        compareTexts(line, "wayp", "BAMES", "BAMES", "NONE", "uswp");
        compareNumbers(line, 175320.5, -10800.5, 0, 0);
        QCOMPARE(line.ctry, QString("old ctry"));
        QCOMPARE(line.navType, 5);
        compareUntouched(line);
    }

    void nullColumnsGiveZeroAndEmptyTexts()
    {
        const Sandbox sandbox;
        sandbox.insertRow(dbfile::gen, "NAV", {{"ukey", QVariant(QVariant::String)}});
        CFpLine line = usedLine();
        fill(sandbox, dbfile::gen, "NAV", line, &CFpLine::fromNav);
        compareTexts(line, "snav", "", "", "", "snav");
        compareNumbers(line, 0.0, 0.0, 0, 0);
        QCOMPARE(line.navType, 0);
        QCOMPARE(line.freq, 0.0);
        QCOMPARE(line.ctry, QString());
    }
};

QTEST_MAIN(TestCFpLine)
#include "tst_cfpline.moc"
