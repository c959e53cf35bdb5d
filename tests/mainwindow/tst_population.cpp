// The feed of the page from the databases, stage by stage.
#include "boxresponder.h"
#include "messagelog.h"
#include "sandbox.h"
#include "windowsession.h"

#include "cnavglobalvar.h"
#include "mainwindow.h"

#include <QtTest>

namespace {

/// Names of the functions called, in order, without their arguments; runs of one function count once.
QStringList order(const QStringList& calls)
{
    QStringList names;
    for (const QString& call : calls) {
        const QString name = call.section('(', 0, 0);
        if (names.isEmpty() || names.last() != name)
            names << name;
    }
    return names;
}

} // namespace

class TestPopulation : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void airportMarkers();
    void vorMarkers();
    void ndbMarkers();
    void waypointMarkers();
    void stagesInOrder();
    void reportsInOrder();
    void smallLettersFrAreAnotherCountry();
    void countryIsFrWhateverTheRouteSetting();
    void types8And24AreNdbAllOthersVor();
    void airportMarkerAlwaysHasOne();
    void frequencyIsAShortNumber();
    void uncheckedVorAreOnThePageAndHiddenUntilChecked();
    void uncheckedLayersAreHiddenInTheirBatch();
    void uncheckedAirportsAreNotTold();
    void waypointsOfAnotherLocationNeverReachTheMap();
    void noRowOfTheCountryReportsZeroAndBuildsTheManagers();
    void emptyTablesSkipTheirStages();
    void airwaysNeverReachThePage();
    void doubleQuoteInANameLosesOnlyItsStage();
    void textInsteadOfANumberGivesZero();
    void failedStageLeavesTheOthers();
    void failedWaypointStageShowsNoBox();

private:
    void load()
    {
        session.reset(new WindowSession);
        QVERIFY(session->load());
    }
    QStringList calls(const QString& function)
    {
        return session->page().calls(function);
    }

    QScopedPointer<Sandbox> sandbox;
    QScopedPointer<WindowSession> session;
};

void TestPopulation::init()
{
    sandbox.reset(new Sandbox);
}

void TestPopulation::cleanup()
{
    session.reset();
    sandbox.reset();
}

void TestPopulation::airportMarkers()
{
    sandbox->addAirport({{"ukey", "KEY1"}, {"iden", "LFPO"}});
    sandbox->addAirport({{"ukey", "EGLL"}, {"ctry", "UK"}});
    sandbox->addAirport({{"ukey", "LFBZ"}, {"name", "BIARRITZ"}, {"alat", 43.5 * 3600}, {"alon", -1.5 * 3600}});
    load();
    QCOMPARE(
        calls("addAPTMarker"),
        (QStringList{"addAPTMarker(LatLng(48.72528,2.35944),\"LFPO\",1,\"<font color=blue><b>Airport LFPO</b><font "
                     "color=black><br/>PARIS ORLY<br/>48 43' 31.00 N - 002 21' 34.00 E\")",
                     "addAPTMarker(LatLng(43.5,-1.5),\"LFBZ\",1,\"<font color=blue><b>Airport LFBZ</b><font "
                     "color=black><br/>BIARRITZ<br/>43 30' 00.00 N - 001 30' 00.00 W\")"}));
    QCOMPARE(session->page().titles("listApt"), (QStringList{"LFPO", "LFBZ"}));
}

void TestPopulation::vorMarkers()
{
    sandbox->addNavaid({{"ukey", "RBT1"}, {"nuse", 3}, {"nlat", 48.5 * 3600}, {"nlon", 1.75 * 3600}});
    sandbox->addNavaid({{"ukey", "CPT"}, {"ctry", "UK"}});
    load();
    QCOMPARE(calls("addVORMarker"),
             QStringList{"addVORMarker(LatLng(48.5,1.75),\"RBT-RBT1\",6,\"<font color=blue><b>VOR RBT</b><font "
                         "color=black><br/>RAMBOUILLET<br/>114.7 Mhz<br/>48 30' 00.00 N - 001 45' 00.00 E\")"});
    QCOMPARE(session->page().titles("listVOR"), QStringList{"RBT-RBT1"});
}

void TestPopulation::ndbMarkers()
{
    sandbox->addNavaid({{"ukey", "ORW1"},
                        {"iden", "ORW"},
                        {"name", "ORLY W"},
                        {"ntyp", 8},
                        {"nuse", 4},
                        {"nfrq", 402},
                        {"nlat", 48.5 * 3600},
                        {"nlon", 1.75 * 3600}});
    sandbox->addNavaid({{"ukey", "EN"}, {"ntyp", 8}, {"nuse", 1}});
    load();
    QCOMPARE(calls("addVORMarker"), QStringList());
    QCOMPARE(calls("addNDBMarker").size(), 2);
    QCOMPARE(calls("addNDBMarker").first(),
             QString("addNDBMarker(LatLng(48.5,1.75),\"ORW-ORW1\",4,\"<font color=blue><b>NDB ORW</b><font "
                     "color=black><br/>ORLY W<br/>402 Khz<br/>48 30' 00.00 N - 001 45' 00.00 E\")"));
    QCOMPARE(session->page().titles("listNDBTerm"), QStringList{"ORW-ORW1"});
    QCOMPARE(session->page().titles("listNDBRte"), QStringList{"RBT-EN"});
}

void TestPopulation::waypointMarkers()
{
    sandbox->addWaypoint({{"ukey", "BAMES1"}, {"iden", "BAM"}, {"name", "BAMES"}, {"wuse", 6}});
    sandbox->addWaypoint({{"ukey", "KESAX"}, {"ctry", "UK"}});
    load();
    QCOMPARE(calls("addWPTMarker"),
             QStringList{"addWPTMarker(LatLng(48.7,3),\"BAMES-BAMES1\",6,\"<font color=blue><b>Waypoint BAM</b><font "
                         "color=black><br/>BAMES (6)<br/>48 42' 00.00 N - 003 00' 00.00 E\")"});
    QCOMPARE(session->page().titles("listWptVfr"), QStringList{"BAMES-BAMES1"});
}

void TestPopulation::stagesInOrder()
{
    sandbox->addAirport();
    sandbox->addNavaid();
    sandbox->addNavaid({{"ukey", "ORW"}, {"ntyp", 8}});
    sandbox->addWaypoint();
    load();
    QCOMPARE(order(session->page().calls()),
             (QStringList{"addAPTMarker", "pushAPT", "addVORMarker", "addNDBMarker", "addNavMgr", "VORMgr.addMarkers",
                          "NDBRteMgr.addMarkers", "NDBTermMgr.addMarkers", "addWPTMarker", "addWptMgr",
                          "WPTRteMgr.addMarkers", "WPTTermMgr.addMarkers", "WPTVfrMgr.addMarkers", "map.setCenter",
                          "map.setZoom"}));
    QCOMPARE(calls("VORMgr.addMarkers"), QStringList{"VORMgr.addMarkers(listVOR)"});
    QCOMPARE(calls("NDBRteMgr.addMarkers"), QStringList{"NDBRteMgr.addMarkers(listNDBRte)"});
    QCOMPARE(calls("NDBTermMgr.addMarkers"), QStringList{"NDBTermMgr.addMarkers(listNDBTerm)"});
    QCOMPARE(calls("WPTRteMgr.addMarkers"), QStringList{"WPTRteMgr.addMarkers(listWptRte)"});
    QCOMPARE(calls("WPTTermMgr.addMarkers"), QStringList{"WPTTermMgr.addMarkers(listWptTerm)"});
    QCOMPARE(calls("WPTVfrMgr.addMarkers"), QStringList{"WPTVfrMgr.addMarkers(listWptVfr)"});
}

void TestPopulation::reportsInOrder()
{
    for (const char* key : {"LFPO", "LFPG", "LFBO"})
        sandbox->addAirport({{"ukey", key}});
    sandbox->addNavaid();
    sandbox->addNavaid({{"ukey", "ORW"}, {"ntyp", 8}});
    sandbox->addWaypoint();
    session.reset(new WindowSession);
    MessageLog log;
    QVERIFY(session->load());
    QCOMPARE(session->debugLines(),
             (QStringList{"Airport: 3 éléments chargés", "Navaid: 2 éléments chargés", "Waypoint: 1 élément chargés",
                          "ATS: 0 élément chargés", "Chargement terminé"}));
    // The log has its own words for them, in quotes.
    QStringList reports;
    for (const QString& message : log.messages(QtDebugMsg)) {
        if (message.startsWith('"'))
            reports << message;
    }
    QCOMPARE(reports, (QStringList{"\"Airport 3\"", "\"Navaid 2\"", "\"Waypoint: 1 éléments chargés\"",
                                   "\"ATS: 0 élément chargés\""}));
}

void TestPopulation::smallLettersFrAreAnotherCountry()
{
    sandbox->addAirport({{"ctry", "fr"}});
    sandbox->addNavaid({{"ctry", "fr"}});
    sandbox->addWaypoint({{"ctry", "fr"}});
    load();
    QCOMPARE(calls("addAPTMarker") + calls("addVORMarker") + calls("addWPTMarker"), QStringList());
    QVERIFY(session->debugLines().contains("Airport: 0 éléments chargés"));
}

void TestPopulation::countryIsFrWhateverTheRouteSetting()
{
    sandbox->setSetting("view/route", "UK");
    sandbox->addAirport();
    sandbox->addAirport({{"ukey", "EGLL"}, {"ctry", "UK"}});
    load();
    QCOMPARE(session->page().titles("listApt"), QStringList{"LFPO"});
}

void TestPopulation::types8And24AreNdbAllOthersVor()
{
    const QVector<int> types{0, 1, 4, 6, 8, 9, 16, 17, 24, 32, 40};
    for (int type : types)
        sandbox->addNavaid({{"ukey", QString::number(type)}, {"ntyp", type}, {"nuse", 5}});
    load();
    QStringList ndb;
    for (const QString& call : calls("addNDBMarker")) {
        ndb << call.section('"', 1, 1);
        QVERIFY2(call.contains("<br/>114.7 Khz<br/>"), qPrintable(call));
        // The page tells NDBs apart by usage, VORs by type.
        QVERIFY2(call.section('"', 2, 2) == ",5,", qPrintable(call));
    }
    QCOMPARE(ndb, (QStringList{"RBT-8", "RBT-24"}));
    QStringList vor;
    for (const QString& call : calls("addVORMarker")) {
        vor << call.section('"', 1, 1) + call.section('"', 2, 2);
        QVERIFY2(call.contains("<br/>114.7 Mhz<br/>"), qPrintable(call));
    }
    QCOMPARE(vor, (QStringList{"RBT-0,0,", "RBT-1,1,", "RBT-4,4,", "RBT-6,6,", "RBT-9,9,", "RBT-16,16,", "RBT-17,17,",
                               "RBT-32,32,", "RBT-40,40,"}));
}

void TestPopulation::airportMarkerAlwaysHasOne()
{
    sandbox->addAirport({{"atyp", 4}, {"ause", 7}, {"aicn", 9}});
    load();
    QVERIFY(calls("addAPTMarker").first().contains(",\"LFPO\",1,"));
}

void TestPopulation::frequencyIsAShortNumber()
{
    sandbox->addNavaid({{"nfrq", 113.0}});
    sandbox->addNavaid({{"ukey", "ORW"}, {"ntyp", 8}, {"nfrq", 1234567.0}});
    load();
    QVERIFY(calls("addVORMarker").first().contains("<br/>113 Mhz<br/>"));
    QVERIFY(calls("addNDBMarker").first().contains("<br/>1.23457e+06 Khz<br/>"));
}

void TestPopulation::uncheckedVorAreOnThePageAndHiddenUntilChecked()
{
    sandbox->setSetting("view/showVor", false);
    sandbox->addNavaid();
    load();
    QCOMPARE(session->page().titles("listVOR"), QStringList{"RBT-RBT"});
    QCOMPARE(calls("VORMgr.clearMarkers"), QStringList{"VORMgr.clearMarkers()"});
    QCOMPARE(calls("VORMgr.addMarkers"), QStringList());
    session->action("actVor")->trigger();
    QCOMPARE(calls("VORMgr.addMarkers"), QStringList{"VORMgr.addMarkers(listVOR)"});
}

void TestPopulation::uncheckedLayersAreHiddenInTheirBatch()
{
    for (const char* key :
         {"view/showVor", "view/showNdbRte", "view/showWaypointRte", "view/showWaypointTerm", "view/showWaypointVfr"})
        sandbox->setSetting(key, false);
    sandbox->addNavaid();
    sandbox->addWaypoint();
    load();
    QCOMPARE(order(session->page().calls()),
             (QStringList{"addVORMarker", "addNavMgr", "VORMgr.clearMarkers", "NDBRteMgr.clearMarkers",
                          "NDBTermMgr.clearMarkers", "addWPTMarker", "addWptMgr", "WPTRteMgr.clearMarkers",
                          "WPTTermMgr.clearMarkers", "WPTVfrMgr.clearMarkers", "map.setCenter", "map.setZoom"}));
}

void TestPopulation::uncheckedAirportsAreNotTold()
{
    sandbox->setSetting("view/showAirport", false);
    sandbox->addAirport();
    load();
    QCOMPARE(order(session->page().calls()), (QStringList{"addAPTMarker", "pushAPT", "map.setCenter", "map.setZoom"}));
}

void TestPopulation::waypointsOfAnotherLocationNeverReachTheMap()
{
    sandbox->addWaypoint({{"ukey", "ABLAN"}, {"wloc", 86}});
    sandbox->addWaypoint();
    load();
    QCOMPARE(session->page().titles("listWptRte"), QStringList{"BAMES-BAMES"});
    QVERIFY(session->debugLines().contains("Waypoint: 1 élément chargés"));
}

void TestPopulation::noRowOfTheCountryReportsZeroAndBuildsTheManagers()
{
    sandbox->addAirport({{"ctry", "UK"}});
    sandbox->addNavaid({{"ctry", "UK"}});
    sandbox->addWaypoint({{"ctry", "UK"}});
    load();
    QCOMPARE(session->debugLines(),
             (QStringList{"Airport: 0 éléments chargés", "Navaid: 0 éléments chargés", "Waypoint: 0 élément chargés",
                          "ATS: 0 élément chargés", "Chargement terminé"}));
    QCOMPARE(calls("pushAPT") + calls("addNavMgr") + calls("addWptMgr"),
             (QStringList{"pushAPT()", "addNavMgr()", "addWptMgr()"}));
    QCOMPARE(session->page().evaluate("listApt.length + listVOR.length + listWptRte.length").toInt(), 0);
    for (const char* manager : {"ArptMgr", "VORMgr", "NDBRteMgr", "NDBTermMgr", "WPTRteMgr", "WPTTermMgr", "WPTVfrMgr"})
        QCOMPARE(session->page().evaluate(QStringLiteral("typeof %1.addMarkers").arg(manager)).toString(),
                 QString("function"));
}

void TestPopulation::emptyTablesSkipTheirStages()
{
    load();
    QCOMPARE(session->debugLines(), (QStringList{"ATS: 0 élément chargés", "Chargement terminé"}));
    QCOMPARE(order(session->page().calls()), (QStringList{"map.setCenter", "map.setZoom"}));
}

void TestPopulation::airwaysNeverReachThePage()
{
    sandbox->addAirway();
    sandbox->addAirway({{"seqn", 2}});
    load();
    QCOMPARE(calls("addATS") + calls("addToATS"), QStringList());
    QVERIFY(session->debugLines().contains("ATS: 0 élément chargés"));
}

void TestPopulation::doubleQuoteInANameLosesOnlyItsStage()
{
    sandbox->addAirport();
    sandbox->addNavaid();
    sandbox->addNavaid({{"ukey", "BAD"}, {"name", "RAM\"BOUILLET"}});
    sandbox->addWaypoint();
    BoxResponder boxes;
    load();
    QCOMPARE(order(session->page().calls()),
             (QStringList{"addAPTMarker", "pushAPT", "addWPTMarker", "addWptMgr", "WPTRteMgr.addMarkers",
                          "WPTTermMgr.addMarkers", "WPTVfrMgr.addMarkers", "map.setCenter", "map.setZoom"}));
    QVERIFY2(session->debugLines().contains("Navaid: 2 éléments chargés"), "the report knows nothing of the loss");
}

void TestPopulation::textInsteadOfANumberGivesZero()
{
    sandbox->addAirport({{"alat", "nord"}, {"alon", arcSeconds(2)}});
    sandbox->addWaypoint({{"wlat", arcSeconds(48)}, {"wlon", "est"}});
    load();
    QVERIFY(calls("addAPTMarker").first().startsWith("addAPTMarker(LatLng(0,2),"));
    QVERIFY(calls("addWPTMarker").first().startsWith("addWPTMarker(LatLng(48,0),"));
}

void TestPopulation::failedStageLeavesTheOthers()
{
    sandbox->addNavaid();
    sandbox->addWaypoint();
    sandbox->sql(dbfile::gen, "DROP TABLE APT");
    BoxResponder boxes;
    boxes.expectAnyMessage();
    load();
    QCOMPARE(boxes.seen().size(), 1);
    QCOMPARE(boxes.seen().value(0).title, QString("SQL Error"));
    QVERIFY(
        boxes.seen().value(0).text.startsWith("One of the query failed to execute.Error detail: SELECT * from APT; "));
    QCOMPARE(session->debugLines(), (QStringList{"Navaid: 1 éléments chargés", "Waypoint: 1 élément chargés",
                                                 "ATS: 0 élément chargés", "Chargement terminé"}));
}

void TestPopulation::failedWaypointStageShowsNoBox()
{
    sandbox->addAirport();
    sandbox->addWaypoint();
    sandbox->sql(dbfile::wpt, "DROP TABLE WPT");
    BoxResponder boxes;
    load();
    QVERIFY(boxes.seen().isEmpty());
    QCOMPARE(session->debugLines(),
             (QStringList{"Airport: 1 éléments chargés", "ATS: 0 élément chargés", "Chargement terminé"}));
}

QTEST_MAIN(TestPopulation)
#include "tst_population.moc"
