// The map's command for the airways of a point: which titles it passes on, and that the page outlives the list.
#include "airwaywords.h"
#include "boxresponder.h"
#include "sandbox.h"
#include "windowsession.h"

#include "mainwindow.h"

#include <QApplication>
#include <QtTest>

namespace {

const QString entry = QStringLiteral("Voies aériennes passant par ce point…");
/// What the menu calls the two markers of one point.
const QString waypointEntry = QStringLiteral("Waypoint BLET");
const QString navaidEntry = QStringLiteral("TACAN CGO");

} // namespace

class TestAirwayMenu : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void aWaypointIsAskedFor();
    void aNavaidAloneIsAskedFor();
    void aNavaidAloneOnNoAirwayIsTold();
    void aWaypointAloneOnNoAirwayIsSilent();
    void bothTitlesOfOnePointAreAskedFor_data();
    void bothTitlesOfOnePointAreAskedFor();
    void thePageIsThereAgainBehindTheList();

private:
    void addNavaid() const;
    /// At a position in arc seconds.
    void addWaypoint(double latitude, double longitude) const;
    /// A segment of an airway from a point.
    void segment(const QString& name, const QString& from) const;
    void load();
    /// The mouse on the map: the command in the menu of the markers at a position (degrees), or of one of them in its
    /// submenu.
    void askOnMap(double latitude, double longitude, const QString& marker = {});

    QScopedPointer<BoxResponder> boxes;
    QScopedPointer<Sandbox> sandbox;
    QScopedPointer<WindowSession> session;
};

void TestAirwayMenu::init()
{
    boxes.reset(new BoxResponder);
    sandbox.reset(new Sandbox);
    session.reset(new WindowSession);
}

void TestAirwayMenu::cleanup()
{
    session.reset();
    sandbox.reset();
    boxes.reset();
}

void TestAirwayMenu::addNavaid() const
{
    sandbox->addNavaid(
        {{"ukey", "CGO4FR"}, {"iden", "CGO"}, {"nlat", arcSeconds(46, 15)}, {"nlon", arcSeconds(2, 45)}});
}

void TestAirwayMenu::addWaypoint(double latitude, double longitude) const
{
    sandbox->addWaypoint(
        {{"ukey", "BLETOFR"}, {"iden", "BLET"}, {"name", "BLETO"}, {"wlat", latitude}, {"wlon", longitude}});
}

void TestAirwayMenu::segment(const QString& name, const QString& from) const
{
    sandbox->addAirway({{"aaid", name}, {"nvi1", from}, {"nvi2", "LMG"}});
}

void TestAirwayMenu::load()
{
    QVERIFY(session->load());
    QApplication::setActiveWindow(&session->window());
    session->page().evaluate("map.setCenter(new google.maps.LatLng(46.5, 2.5));map.setZoom(8)");
    session->page().clear();
}

void TestAirwayMenu::askOnMap(double latitude, double longitude, const QString& marker)
{
    PageProbe& page = session->page();
    page.contextMenu(page.pointOf(latitude, longitude));
    if (!marker.isEmpty())
        QVERIFY2(page.chooseEntry(marker), qPrintable(page.menuEntries().join(", ")));
    QVERIFY2(page.chooseEntry(entry), qPrintable(page.menuEntries().join(", ")));
}

void TestAirwayMenu::aWaypointIsAskedFor()
{
    addWaypoint(arcSeconds(46, 45), arcSeconds(2, 15));
    segment("UT1", "BLETO");
    load();
    boxes->expectInput(listTitle, listLabel("BLETO"), "UT1");
    askOnMap(46.75, 2.25);
    QVERIFY(boxes->allUsed());
}

void TestAirwayMenu::aNavaidAloneIsAskedFor()
{
    addNavaid();
    segment("UT1", "CGO");
    load();
    boxes->expectInput(listTitle, listLabel("CGO"), "UT1");
    askOnMap(46.25, 2.75);
    QVERIFY(boxes->allUsed());
}

void TestAirwayMenu::aNavaidAloneOnNoAirwayIsTold()
{
    addNavaid();
    segment("UT1", "AMB");
    load();
    boxes->expectMessage(noneTitle, noneText("CGO"));
    askOnMap(46.25, 2.75);
    QVERIFY(boxes->allUsed());
    QCOMPARE(boxes->seen().size(), 1);
}

void TestAirwayMenu::aWaypointAloneOnNoAirwayIsSilent()
{
    addWaypoint(arcSeconds(46, 45), arcSeconds(2, 15));
    segment("UT1", "AMB");
    load();
    askOnMap(46.75, 2.25);
    QVERIFY(boxes->seen().isEmpty());
}

void TestAirwayMenu::bothTitlesOfOnePointAreAskedFor_data()
{
    QTest::addColumn<QString>("marker");
    QTest::addColumn<QStringList>("onAirways");
    QTest::addColumn<QString>("shown");
    for (const QString& marker : {waypointEntry, navaidEntry}) {
        const auto newRow = [&](const char* state) -> QTestData& {
            return QTest::newRow(qPrintable(marker + ", " + state)) << marker;
        };
        newRow("the waypoint is on an airway") << QStringList{"BLETO"} << "BLETO";
        newRow("the navaid is on an airway") << QStringList{"CGO"} << "CGO";
        newRow("both are") << QStringList{"CGO", "BLETO"} << "BLETO";
        newRow("neither is") << QStringList{} << "";
    }
}

void TestAirwayMenu::bothTitlesOfOnePointAreAskedFor()
{
    QFETCH(QString, marker);
    QFETCH(QStringList, onAirways);
    QFETCH(QString, shown);
    addWaypoint(arcSeconds(46, 15), arcSeconds(2, 45));
    addNavaid();
    segment("UT0", "AMB");
    for (const QString& point : onAirways)
        segment("U" + point, point);
    load();
    // The waypoint goes first and the navaid is what a box tells of, whichever of them was meant.
    if (shown.isEmpty())
        boxes->expectMessage(noneTitle, noneText("CGO"));
    else
        boxes->expectInput(listTitle, listLabel(shown), "U" + shown);
    askOnMap(46.25, 2.75, marker);
    QVERIFY(boxes->allUsed());
    QCOMPARE(boxes->seen().size(), 1);
    QCOMPARE(session->page().calls(), QStringList());
}

void TestAirwayMenu::thePageIsThereAgainBehindTheList()
{
    addNavaid();
    segment("UT1", "CGO");
    load();
    double zoom = 0;
    boxes->expectDialog("QInputDialog", [&](QDialog* dialog) {
        zoom = session->page().evaluate("map.getZoom()").toDouble(); // while the page waits for its slot
        dialog->reject();
    });
    askOnMap(46.25, 2.75);
    QCOMPARE(zoom, 8.0);
    QCOMPARE(session->page().menuEntries(), QStringList());
    boxes->expectInputRejected(listTitle, listLabel("CGO"));
    askOnMap(46.25, 2.75);
    QVERIFY(boxes->allUsed());
}

QTEST_MAIN(TestAirwayMenu)
#include "tst_airwaymenu.moc"
