// The airways through a point: which points are looked up, what is offered, and what comes of the choice.
#include "boxresponder.h"
#include "messagelog.h"
#include "sandbox.h"
#include "windowsession.h"

#include "mainwindow.h"

#include <QApplication>
#include <QComboBox>
#include <QInputDialog>
#include <QtTest>

namespace {

const QString listTitle = QStringLiteral("Voie aérienne");
const QString noneTitle = QStringLiteral("Voies aériennes");
const QString entry = QStringLiteral("Voies aériennes passant par ce point…");

QString listLabel(const QString& point)
{
    return "Liste des voies passant par le point " + point;
}

QString noneText(const QString& point)
{
    return "Le point " + point + " n'appartient à aucune voie aérienne";
}

} // namespace

class TestAirways : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void theIdentityOfATitleIsLookedUp();
    void bothEndsOfASegmentCount();
    void anAirwayIsOfferedOnceForAllItsSegments();
    void theListKeepsTheOrderOfFirstAppearance();
    void theListIsAChoiceOverTheWindow();
    void theChoiceIsLoggedAndNothingIsDrawn();
    void aCancelledListEndsTheCommand();
    void anAirwayWithoutANameEndsTheCommand();
    void withoutAWaypointNothingHappens();
    void aWaypointOnNoAirwayAloneIsSilent();
    void theNavaidIsAskedOnlyWhereTheWaypointHasNone();
    void theNavaidStandsInForTheWaypoint();
    void neitherOnAnAirwayIsTold();
    void aTitleIsTrimmedBeforeItIsSplit_data();
    void aTitleIsTrimmedBeforeItIsSplit();
    void smallLettersAreAnotherPoint();
    void aQuoteInAPointReadsAsOnNoAirway();
    void aQuoteInAnAirwayReadsAsVanished();
    void anAirwayThatVanishedIsTold();
    void aFailedStatementIsNotReported();
    void thePageAsksForAWaypoint();
    void thePageAsksForANavaidAlone();
    void thePageAsksForBothTitlesOfOnePoint_data();
    void thePageAsksForBothTitlesOfOnePoint();
    void thePageIsThereAgainBehindTheList();

private:
    /// A segment of an airway between two points.
    void segment(const QString& name, const QString& from, const QString& to) const;
    void load();
    /// The mouse on the map: the entry of the menu of the marker at a position (degrees).
    void askOnMap(double latitude, double longitude);

    QScopedPointer<BoxResponder> boxes;
    QScopedPointer<Sandbox> sandbox;
    QScopedPointer<WindowSession> session;
};

void TestAirways::init()
{
    boxes.reset(new BoxResponder);
    sandbox.reset(new Sandbox);
    session.reset(new WindowSession);
}

void TestAirways::cleanup()
{
    session.reset();
    sandbox.reset();
    boxes.reset();
}

void TestAirways::segment(const QString& name, const QString& from, const QString& to) const
{
    sandbox->addAirway({{"aaid", name}, {"nvi1", from}, {"nvi2", to}});
}

void TestAirways::theIdentityOfATitleIsLookedUp()
{
    segment("UT1", "BALAN", "LMG");
    segment("UT2", "BALANFR", "LMG"); // of the key nobody asks
    boxes->expectInputRejected(listTitle, listLabel("BALAN"));
    session->window().sATS("BALAN-BALANFR", "");
    QVERIFY(boxes->allUsed());
    QCOMPARE(boxes->seen().first().choices, QStringList{"UT1"});
}

void TestAirways::bothEndsOfASegmentCount()
{
    segment("UT1", "BALAN", "LMG");
    segment("UT2", "AMB", "BALAN");
    segment("UT3", "AMB", "LMG");
    boxes->expectInputRejected(listTitle, listLabel("BALAN"));
    session->window().sATS("BALAN", "");
    QCOMPARE(boxes->seen().first().choices, (QStringList{"UT1", "UT2"}));
}

void TestAirways::anAirwayIsOfferedOnceForAllItsSegments()
{
    for (const char* neighbour : {"A", "B", "C", "D", "BALAN"})
        segment("UT1", "BALAN", neighbour);
    boxes->expectInputRejected(listTitle, listLabel("BALAN"));
    session->window().sATS("BALAN-BALANFR", "");
    QCOMPARE(boxes->seen().first().choices, QStringList{"UT1"});
}

void TestAirways::theListKeepsTheOrderOfFirstAppearance()
{
    for (const char* name : {"Z9", "A1", "Z9", "M5", "A1"})
        segment(name, "BALAN", "LMG");
    boxes->expectInputRejected(listTitle, listLabel("BALAN"));
    session->window().sATS("BALAN-BALANFR", "");
    QCOMPARE(boxes->seen().first().choices, (QStringList{"Z9", "A1", "M5"}));
}

void TestAirways::theListIsAChoiceOverTheWindow()
{
    segment("UT1", "BALAN", "LMG");
    segment("UT2", "BALAN", "LMG");
    bool editable = true;
    int preset = -1;
    boxes->expectDialog("QInputDialog", [&](QDialog* dialog) {
        const auto* choice = dialog->findChild<QComboBox*>();
        editable = qobject_cast<QInputDialog*>(dialog)->isComboBoxEditable();
        preset = choice ? choice->currentIndex() : -1;
        dialog->reject();
    });
    session->window().sATS("BALAN-BALANFR", "");
    QVERIFY(!editable);
    QCOMPARE(preset, 0);
    QCOMPARE(boxes->seen().first().parentClass, QString("MainWindow"));
}

void TestAirways::theChoiceIsLoggedAndNothingIsDrawn()
{
    segment("UT1", "BALAN", "LMG");
    segment("UT2", "BALAN", "LMG");
    load();
    boxes->expectInput(listTitle, listLabel("BALAN"), "UT2");
    MessageLog log;
    session->window().sATS("BALAN-BALANFR", "");
    QVERIFY(boxes->allUsed());
    QCOMPARE(log.messages(QtDebugMsg), QStringList{"selected \"UT2\""});
    QCOMPARE(boxes->seen().size(), 1);
    QCOMPARE(session->page().calls(), QStringList());
}

void TestAirways::aCancelledListEndsTheCommand()
{
    segment("UT1", "BALAN", "LMG");
    boxes->expectInputRejected(listTitle, listLabel("BALAN"));
    MessageLog log;
    session->window().sATS("BALAN-BALANFR", "LMG-LMG4FR");
    QVERIFY(boxes->allUsed());
    QCOMPARE(boxes->seen().size(), 1);
    QCOMPARE(log.messages(QtDebugMsg), QStringList());
}

void TestAirways::anAirwayWithoutANameEndsTheCommand()
{
    segment("", "BALAN", "LMG");
    sandbox->addAirway({{"aaid", QVariant()}, {"nvi1", "BALAN"}});
    boxes->expectInput(listTitle, listLabel("BALAN"), "");
    MessageLog log;
    session->window().sATS("BALAN-BALANFR", "");
    QVERIFY(boxes->allUsed());
    QCOMPARE(boxes->seen().size(), 1);
    QCOMPARE(boxes->seen().first().choices, QStringList{""});
    QCOMPARE(log.messages(QtDebugMsg), QStringList());
}

void TestAirways::withoutAWaypointNothingHappens()
{
    segment("UT1", "AMB", "LMG");
    segment("UT2", "", "LMG");
    session->window().sATS("", "AMB-AMB4FR");
    session->window().sATS("", "");
    QVERIFY(boxes->seen().isEmpty());
}

void TestAirways::aWaypointOnNoAirwayAloneIsSilent()
{
    segment("UT1", "AMB", "LMG");
    session->window().sATS("BALAN-BALANFR", "");
    QVERIFY(boxes->seen().isEmpty());
}

void TestAirways::theNavaidIsAskedOnlyWhereTheWaypointHasNone()
{
    segment("UT1", "BALAN", "LMG");
    segment("UT2", "AMB", "LMG");
    boxes->expectInputRejected(listTitle, listLabel("BALAN"));
    session->window().sATS("BALAN-BALANFR", "AMB-AMB4FR");
    QVERIFY(boxes->allUsed());
    QCOMPARE(boxes->seen().first().choices, QStringList{"UT1"});
}

void TestAirways::theNavaidStandsInForTheWaypoint()
{
    segment("UT2", "LMG", "AMB");
    boxes->expectInput(listTitle, listLabel("AMB"), "UT2");
    session->window().sATS("BALAN-BALANFR", " AMB-AMB4FR ");
    QVERIFY(boxes->allUsed());
    QCOMPARE(boxes->seen().size(), 1);
}

void TestAirways::neitherOnAnAirwayIsTold()
{
    segment("UT1", "PON", "LMG");
    boxes->expectMessage(noneTitle, noneText("AMB"));
    session->window().sATS("BALAN-BALANFR", "AMB-AMB4FR");
    QVERIFY(boxes->allUsed());
    QCOMPARE(boxes->seen().first().icon, QMessageBox::Information);
    QCOMPARE(boxes->seen().first().parentClass, QString("MainWindow"));
    QCOMPARE(boxes->seen().first().choices.size(), 1);
}

void TestAirways::aTitleIsTrimmedBeforeItIsSplit_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("point");
    QTest::newRow("blanks around") << " \tBALAN-BALANFR \n"
                                   << "BALAN";
    QTest::newRow("a blank ahead of the dash") << "BALAN -BALANFR"
                                               << "BALAN ";
    QTest::newRow("no key") << "BALAN"
                            << "BALAN";
    QTest::newRow("two dashes") << "SAINT-DENIS-KEY"
                                << "SAINT";
    QTest::newRow("a dash in front") << "-BALANFR"
                                     << "";
    QTest::newRow("a blank alone") << " "
                                   << "";
}

void TestAirways::aTitleIsTrimmedBeforeItIsSplit()
{
    QFETCH(QString, title);
    QFETCH(QString, point);
    segment("UT1", point, "LMG");
    segment("UT2", "OTHER", "LMG");
    boxes->expectInputRejected(listTitle, listLabel(point));
    session->window().sATS(title, "");
    QVERIFY(boxes->allUsed());
    QCOMPARE(boxes->seen().first().choices, QStringList{"UT1"});
}

void TestAirways::smallLettersAreAnotherPoint()
{
    segment("UT1", "balan", "LMG");
    session->window().sATS("BALAN-BALANFR", "");
    QVERIFY(boxes->seen().isEmpty());
}

void TestAirways::aQuoteInAPointReadsAsOnNoAirway()
{
    segment("UT1", "A\"B", "LMG");
    session->window().sATS("A\"B-KEY", "");
    QVERIFY(boxes->seen().isEmpty());
    boxes->expectMessage(noneTitle, noneText("C\"D"));
    session->window().sATS("A\"B-KEY", "C\"D-KEY");
    QVERIFY(boxes->allUsed());
}

void TestAirways::aQuoteInAnAirwayReadsAsVanished()
{
    segment("U\"T", "BALAN", "LMG");
    boxes->expectInput(listTitle, listLabel("BALAN"), "U\"T");
    boxes->expectMessage(noneTitle, noneText("BALAN"));
    session->window().sATS("BALAN-BALANFR", "");
    QVERIFY(boxes->allUsed());
}

void TestAirways::anAirwayThatVanishedIsTold()
{
    segment("UT1", "AMB", "LMG");
    boxes->expectDialog("QInputDialog", [this](QDialog* dialog) {
        sandbox->sql(dbfile::route, "DELETE FROM ATSROUTE");
        dialog->accept();
    });
    boxes->expectMessage(noneTitle, noneText("AMB"));
    session->window().sATS("BALAN-BALANFR", "AMB-AMB4FR");
    QVERIFY(boxes->allUsed());
}

void TestAirways::aFailedStatementIsNotReported()
{
    sandbox->sql(dbfile::route, "DROP TABLE ATSROUTE");
    session->window().sATS("BALAN-BALANFR", "");
    QVERIFY(boxes->seen().isEmpty());
    boxes->expectMessage(noneTitle, noneText("AMB"));
    session->window().sATS("BALAN-BALANFR", "AMB-AMB4FR");
    QVERIFY(boxes->allUsed());
}

void TestAirways::load()
{
    QVERIFY(session->load());
    QApplication::setActiveWindow(&session->window());
    session->page().evaluate("map.setCenter(new google.maps.LatLng(46.5, 2.5));map.setZoom(8)");
    session->page().clear();
}

void TestAirways::askOnMap(double latitude, double longitude)
{
    session->page().contextMenu(session->page().pointOf(latitude, longitude));
    QVERIFY2(session->page().chooseEntry(entry), qPrintable(session->page().menuEntries().join(", ")));
}

void TestAirways::thePageAsksForAWaypoint()
{
    sandbox->addWaypoint({{"ukey", "BLETOFR"},
                          {"iden", "BLET"},
                          {"name", "BLETO"},
                          {"wlat", arcSeconds(46, 45)},
                          {"wlon", arcSeconds(2, 15)}});
    segment("UT1", "BLETO", "LMG");
    load();
    boxes->expectInput(listTitle, listLabel("BLETO"), "UT1");
    askOnMap(46.75, 2.25);
    QVERIFY(boxes->allUsed());
}

void TestAirways::thePageAsksForANavaidAlone()
{
    sandbox->addNavaid(
        {{"ukey", "CGO4FR"}, {"iden", "CGO"}, {"nlat", arcSeconds(46, 15)}, {"nlon", arcSeconds(2, 45)}});
    segment("UT1", "CGO", "LMG");
    load();
    boxes->expectInput(listTitle, listLabel("CGO"), "UT1");
    askOnMap(46.25, 2.75);
    QVERIFY(boxes->allUsed());
}

void TestAirways::thePageAsksForBothTitlesOfOnePoint_data()
{
    QTest::addColumn<QString>("onAirway");
    QTest::newRow("the waypoint is on an airway") << "BLETO";
    QTest::newRow("the navaid is on an airway") << "CGO";
    QTest::newRow("both are") << "BLETO CGO";
    QTest::newRow("neither is") << "";
}

void TestAirways::thePageAsksForBothTitlesOfOnePoint()
{
    QFETCH(QString, onAirway);
    sandbox->addWaypoint({{"ukey", "BLETOFR"},
                          {"iden", "BLET"},
                          {"name", "BLETO"},
                          {"wlat", arcSeconds(46, 15)},
                          {"wlon", arcSeconds(2, 45)}});
    sandbox->addNavaid(
        {{"ukey", "CGO4FR"}, {"iden", "CGO"}, {"nlat", arcSeconds(46, 15)}, {"nlon", arcSeconds(2, 45)}});
    segment("UT0", "AMB", "LMG");
    for (const QString& point : onAirway.split(' '))
        segment("U" + point, point.isEmpty() ? "PON" : point, "LMG");
    load();
    const QString shown = onAirway.section(' ', 0, 0);
    if (shown.isEmpty())
        boxes->expectMessage(noneTitle, noneText("CGO"));
    else
        boxes->expectInput(listTitle, listLabel(shown), "U" + shown);
    askOnMap(46.25, 2.75);
    QVERIFY(boxes->allUsed());
    QCOMPARE(boxes->seen().size(), 1);
    QCOMPARE(session->page().calls(), QStringList());
}

void TestAirways::thePageIsThereAgainBehindTheList()
{
    sandbox->addNavaid(
        {{"ukey", "CGO4FR"}, {"iden", "CGO"}, {"nlat", arcSeconds(46, 15)}, {"nlon", arcSeconds(2, 45)}});
    segment("UT1", "CGO", "LMG");
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

QTEST_MAIN(TestAirways)
#include "tst_airways.moc"
