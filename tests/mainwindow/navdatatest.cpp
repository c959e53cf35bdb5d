// A window, a navaid and a waypoint for the tests of the commands that change them.
#include "navdatatest.h"

#include "childprocess.h"

#include "mainwindow.h"

#include <QApplication>
#include <QtTest>

NavdataTest::NavdataTest(const QString& waypoint, const QStringList& updateFiles)
    : waypointName(waypoint), fileLabels(updateFiles)
{
}

void NavdataTest::init()
{
    boxes.reset(new BoxResponder);
    sandbox.reset(new Sandbox);
    data.reset(inChildProcess() ? nullptr : new DataFolder(fileLabels));
    for (const char* code : {"DE", "ES", "FR"})
        sandbox->addCountry(code, code);
    sandbox->addWaypoint({{"ukey", waypointName + "FR"},
                          {"iden", waypointName.left(4)},
                          {"name", waypointName},
                          {"wtyp", 6},
                          {"wuse", 1},
                          {"wlat", arcSeconds(46, 45)},
                          {"wlon", arcSeconds(2, 15)}});
    sandbox->addNavaid({{"ukey", "CGO4FR"},
                        {"iden", "CGO"},
                        {"name", "CHATEAUROUX"},
                        {"nfrq", 110.2},
                        {"ntyp", 17},
                        {"nuse", 2},
                        {"nlat", arcSeconds(46, 15)},
                        {"nlon", arcSeconds(2, 45)}});
    session.reset(new WindowSession);
}

void NavdataTest::cleanup()
{
    session.reset();
    data.reset();
    sandbox.reset();
    boxes.reset();
}

void NavdataTest::load()
{
    QVERIFY(session->load());
    QApplication::setActiveWindow(&session->window());
    session->page().evaluate("map.setCenter(new google.maps.LatLng(46.5, 2.5));map.setZoom(8)");
    QCOMPARE(markers(), (QStringList{"CGO-CGO4FR", waypointName + '-' + waypointName + "FR"}));
    session->page().clear();
}

void NavdataTest::choose(double latitude, double longitude, const QString& entry)
{
    session->page().contextMenu(session->page().pointOf(latitude, longitude));
    QVERIFY2(session->page().chooseEntry(entry), qPrintable(session->page().menuEntries().join(", ")));
}

QStringList NavdataTest::markers()
{
    QStringList all;
    for (const char* list : {"listVOR", "listNDBRte", "listNDBTerm", "listWptRte", "listWptTerm", "listWptVfr"})
        all << session->page().titles(list);
    return all;
}

int NavdataTest::rows(const QString& table)
{
    return sandbox->sqlValue(table == "NAV" ? dbfile::gen : dbfile::wpt, "SELECT COUNT(*) FROM " + table).toInt();
}

void NavdataTest::startWithoutDatabases()
{
    session.reset();
    sandbox.reset(); // the new one has to find the folder that this one leaves
    sandbox.reset(new Sandbox(Sandbox::Databases::None));
    session.reset(new WindowSession);
}
