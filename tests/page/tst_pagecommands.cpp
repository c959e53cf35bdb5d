// The context menus: which commands they offer, and which slots with which arguments they call.
#include "pagewindow.h"

#include <QtTest>

class TestPageCommands : public QObject
{
    Q_OBJECT

private slots:
    void aMarkerOffersItsCommands_data();
    void aMarkerOffersItsCommands();
    void anEntryCallsItsSlot_data();
    void anEntryCallsItsSlot();
    void theEnglishPageSpeaksEnglish();
    void absentSlotsAreNotOffered();
    void withoutAProgramNothingIsOfferedThatNeedsOne();
    void theAirwaysOfAWaypointAloneHaveNoNavaid();
    void theAirwaysOfOnePointGetBothTitles();
    void onePointMayLieOnBothSidesOf180Degrees();
    void theAirwaysOfANavaidAloneGoByItsOwnName();
    void theAirwaysOfAnEditedNavaidGoByItsIdentifier();
    void runwaysCanBeClearedWhileTheyShow();
    void theMapCanBeCentred();
    void theRightClickedMarkerIsTheLastUsed();
    void theMenuIsGoneBeforeTheCommandRuns();

private:
    QScopedPointer<ProgramSide> program;
    QScopedPointer<PageWindow> window;

    void open(ProgramSide* side, const QString& page = "gm_trajector_fr.html")
    {
        window.reset();
        program.reset(side);
        window.reset(new PageWindow(side));
        QVERIFY(window->load(page));
        window->run("map.setCenter(new google.maps.LatLng(46.70000, 2.30000));map.setZoom(8);"
                    "addAPTMarker(new google.maps.LatLng(46.70000, 2.30000),\"LFLX\",1,\"x\");pushAPT();"
                    "addVORMarker(new google.maps.LatLng(46.70000, 2.60000),\"CGO-CGO4FR\",17,\"x\");"
                    "addNDBMarker(new google.maps.LatLng(46.40000, 2.60000),\"MT-MT5FR\",4,\"x\");addNavMgr();"
                    "VORMgr.addMarkers(listVOR);NDBTermMgr.addMarkers(listNDBTerm);"
                    "addWPTMarker(new google.maps.LatLng(46.40000, 2.30000),\"ABLAN-ABLANFR\",1,\"x\");addWptMgr();"
                    "WPTRteMgr.addMarkers(listWptRte)");
        window->settle();
        if (side)
            side->clear();
    }
    /// The calls that are no reports of pointer and view.
    QStringList commands() const
    {
        return program->calls().filter(QRegularExpression("^(?!doData|doCenter|doZoom)"));
    }
};

namespace {

struct Place
{
    const char* name;
    double latitude;
    double longitude;
};

const Place airport{"airport", 46.7, 2.3};
const Place vor{"VOR", 46.7, 2.6};
const Place ndb{"NDB", 46.4, 2.6};
const Place waypoint{"waypoint", 46.4, 2.3};
const Place nothing{"empty map", 46.6, 2.0};

} // namespace

Q_DECLARE_METATYPE(Place)

void TestPageCommands::aMarkerOffersItsCommands_data()
{
    QTest::addColumn<Place>("place");
    QTest::addColumn<QStringList>("entries");

    // Below its own commands every marker has these.
    const QStringList common{"Mesurer depuis ici", "Centrer ici", "Carte ici"};
    const QStringList navaid = QStringList{"Ajouter au plan de vol", "Voies aériennes passant par ce point…",
                                           "Modifier le navaid…", "Effacer le navaid…"} +
                               common;
    QTest::newRow("airport") << airport << QStringList{"Ajouter au plan de vol", "Afficher les pistes"} + common;
    QTest::newRow("VOR") << vor << navaid;
    QTest::newRow("NDB") << ndb << navaid;
    QTest::newRow("waypoint") << waypoint
                              << QStringList{"Ajouter au plan de vol", "Voies aériennes passant par ce point…",
                                             "Modifier le waypoint…", "Effacer le waypoint…"} +
                                     common;
    QTest::newRow("empty map") << nothing
                               << QStringList{"Ajouter un point utilisateur ici",
                                              "Départ ici",
                                              "Nouveau waypoint ici…",
                                              "Nouveau navaid ici…",
                                              "Mesurer depuis ici",
                                              "Terminer la mesure",
                                              "Effacer la mesure",
                                              "Centrer ici",
                                              "Effacer les pistes"};
}

void TestPageCommands::aMarkerOffersItsCommands()
{
    QFETCH(Place, place);
    QFETCH(QStringList, entries);
    open(new FullProgramSide);
    QStringList offered = window->menuAt(place.latitude, place.longitude);
    // The trail comes with the aircraft's own tests.
    offered.removeAll("Effacer la trace");
    QCOMPARE(offered, entries);
    QCOMPARE(commands(), QStringList());
}

void TestPageCommands::anEntryCallsItsSlot_data()
{
    QTest::addColumn<Place>("place");
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QStringList>("calls");

    const auto row = [](const Place& place, const char* entry, const QStringList& calls) {
        QTest::addRow("%s: %s", place.name, entry) << place << QString(entry) << calls;
    };
    row(airport, "Ajouter au plan de vol", {"sAddAptToFp \"LFLX\""});
    row(airport, "Afficher les pistes", {"doViewRwy \"LFLX\""});
    row(vor, "Ajouter au plan de vol", {"sAddNavToFp \"CGO-CGO4FR\""});
    row(vor, "Modifier le navaid…", {"sAddNavToDB \"CGO-CGO4FR\" 46.70000 2.60000"});
    row(vor, "Effacer le navaid…", {"sDelNavFromDB \"CGO-CGO4FR\""});
    row(ndb, "Ajouter au plan de vol", {"sAddNavToFp \"MT-MT5FR\""});
    row(ndb, "Effacer le navaid…", {"sDelNavFromDB \"MT-MT5FR\""});
    row(waypoint, "Ajouter au plan de vol", {"sAddWptToFp \"ABLAN-ABLANFR\""});
    row(waypoint, "Modifier le waypoint…", {"sAddWptToDB \"ABLAN-ABLANFR\" 46.40000 2.30000"});
    row(waypoint, "Effacer le waypoint…", {"sDelWptFromDB \"ABLAN-ABLANFR\""});
    row(nothing, "Ajouter un point utilisateur ici", {"sAddNewWptToFp \"WPT\" %1"});
    row(nothing, "Départ ici", {"sAddSitToFp %1", "doMoveSIT %1"});
    row(nothing, "Nouveau waypoint ici…", {"sAddWptToDB \"\" %1"});
    row(nothing, "Nouveau navaid ici…", {"sAddNavToDB \"\" %1"});
}

void TestPageCommands::anEntryCallsItsSlot()
{
    QFETCH(Place, place);
    QFETCH(QString, entry);
    QFETCH(QStringList, calls);
    open(new FullProgramSide);
    window->menuAt(place.latitude, place.longitude);
    QVERIFY(window->chooseEntry(entry));
    QCOMPARE(window->menuEntries(), QStringList());

    // A click on the empty map is as good as its pixel: within a hundredth of a degree at this zoom.
    QStringList called = commands();
    const QRegularExpression numbers("(-?\\d+\\.\\d+) (-?\\d+\\.\\d+)$");
    for (int i = 0; i < calls.size(); ++i) {
        if (!calls[i].contains("%1"))
            continue;
        const QRegularExpressionMatch match = numbers.match(called.value(i));
        QVERIFY(match.hasMatch());
        QVERIFY(qAbs(match.captured(1).toDouble() - place.latitude) < 0.01);
        QVERIFY(qAbs(match.captured(2).toDouble() - place.longitude) < 0.01);
        called[i].replace(numbers, "%1");
    }
    QCOMPARE(called, calls);
}

void TestPageCommands::theEnglishPageSpeaksEnglish()
{
    open(new FullProgramSide, "gm_trajector_en.html");
    QCOMPARE(window->menuAt(airport.latitude, airport.longitude),
             (QStringList{"Add to flight plan", "Show runways", "Measure from here", "Centre here", "Map here"}));
    QCOMPARE(window->menuAt(vor.latitude, vor.longitude).mid(0, 4),
             (QStringList{"Add to flight plan", "Airways through this point…", "Edit navaid…", "Delete navaid…"}));
    QCOMPARE(window->menuAt(waypoint.latitude, waypoint.longitude).mid(0, 4),
             (QStringList{"Add to flight plan", "Airways through this point…", "Edit waypoint…", "Delete waypoint…"}));
    QCOMPARE(window->menuAt(nothing.latitude, nothing.longitude).mid(0, 9),
             (QStringList{"Add user point here", "Start here", "New waypoint here…", "New navaid here…",
                          "Measure from here", "End measuring", "Clear measure", "Centre here", "Clear runways"}));
    QVERIFY(window->chooseEntry("New navaid here…"));
    QCOMPARE(commands().size(), 1);
}

void TestPageCommands::absentSlotsAreNotOffered()
{
    open(new ProgramSide);
    const QStringList left{"Ajouter au plan de vol", "Mesurer depuis ici", "Centrer ici", "Carte ici"};
    QCOMPARE(window->menuAt(vor.latitude, vor.longitude), left);
    QCOMPARE(window->menuAt(waypoint.latitude, waypoint.longitude), left);
    QCOMPARE(
        window->menuAt(nothing.latitude, nothing.longitude).mid(0, 4),
        (QStringList{"Ajouter un point utilisateur ici", "Départ ici", "Mesurer depuis ici", "Terminer la mesure"}));
}

void TestPageCommands::withoutAProgramNothingIsOfferedThatNeedsOne()
{
    open(nullptr);
    QCOMPARE(window->menuAt(airport.latitude, airport.longitude),
             (QStringList{"Mesurer depuis ici", "Centrer ici", "Carte ici"}));
    QCOMPARE(window->menuAt(nothing.latitude, nothing.longitude).mid(0, 2),
             (QStringList{"Mesurer depuis ici", "Terminer la mesure"}));
    window->closeMenu();
    window->click(airport.latitude, airport.longitude);
    QCOMPARE(window->popupText(), "x");
    QCOMPARE(window->page->messages, QStringList());
}

void TestPageCommands::theAirwaysOfAWaypointAloneHaveNoNavaid()
{
    open(new FullProgramSide);
    window->menuAt(waypoint.latitude, waypoint.longitude);
    QVERIFY(window->chooseEntry("Voies aériennes passant par ce point…"));
    QCOMPARE(commands(), QStringList{"sATS \"ABLAN-ABLANFR\" \"\""});
}

void TestPageCommands::theAirwaysOfOnePointGetBothTitles()
{
    open(new FullProgramSide);
    // A waypoint on the VOR, whose marker lies on top.
    window->run("addWPTMarker2(new google.maps.LatLng(46.70000, 2.60000),\"CGO-CGOFR\",1,\"x\")");
    window->settle();
    for (const char* object : {"VOR-DME CGO", "Waypoint CGO"}) {
        window->menuAt(vor.latitude, vor.longitude);
        QVERIFY(window->chooseEntry(object));
        QVERIFY(window->chooseEntry("Voies aériennes passant par ce point…"));
    }
    // A hidden one still tells its name.
    window->run("VORMgr.clearMarkers()");
    window->settle();
    window->menuAt(vor.latitude, vor.longitude);
    QVERIFY(window->chooseEntry("Voies aériennes passant par ce point…"));
    const QString asked = "sATS \"CGO-CGOFR\" \"CGO-CGO4FR\"";
    QCOMPARE(commands(), (QStringList{asked, asked, asked}));
}

void TestPageCommands::onePointMayLieOnBothSidesOf180Degrees()
{
    open(new FullProgramSide);
    window->run("map.setCenter(new google.maps.LatLng(-17.00000, 179.99990));"
                "addVORMarker2(new google.maps.LatLng(-17.00000, 179.99990),\"TVU-TVU4FJ\",17,\"x\");"
                "addWPTMarker2(new google.maps.LatLng(-17.00000, -179.99990),\"TVU-TVUFJ\",1,\"x\")");
    window->settle();
    for (const char* object : {"VOR-DME TVU", "Waypoint TVU"}) {
        window->menuAt(-17, 179.9999);
        QVERIFY(window->chooseEntry(object));
        QVERIFY(window->chooseEntry("Voies aériennes passant par ce point…"));
    }
    const QString asked = "sATS \"TVU-TVUFJ\" \"TVU-TVU4FJ\"";
    QCOMPARE(commands(), (QStringList{asked, asked}));
}

void TestPageCommands::theAirwaysOfANavaidAloneGoByItsOwnName()
{
    open(new FullProgramSide);
    window->menuAt(vor.latitude, vor.longitude);
    QVERIFY(window->chooseEntry("Voies aériennes passant par ce point…"));
    // With the second title alone the program would do nothing.
    QCOMPARE(commands(), QStringList{"sATS \"CGO-CGO4FR\" \"CGO-CGO4FR\""});
}

void TestPageCommands::runwaysCanBeClearedWhileTheyShow()
{
    open(new FullProgramSide);
    window->run("clearRunway();drawRwy(new google.maps.LatLng(46.60000, 2.10000),new google.maps.LatLng(46.60000, "
                "2.20000));");
    const QColor asphalt("#39424a");
    QVERIFY(window->pixelsAround(46.6, 2.15, 8, asphalt) > 0);
    const QString reasons = "Array.from(document.querySelectorAll('.menu-reason')).map(e => e.textContent)";
    window->menuAt(nothing.latitude, nothing.longitude);
    QVERIFY(!window->run(reasons).toStringList().contains("Aucune piste affichée"));
    QVERIFY(window->chooseEntry("Effacer les pistes"));
    QCOMPARE(window->pixelsAround(46.6, 2.15, 8, asphalt), 0);
    window->menuAt(nothing.latitude, nothing.longitude);
    QVERIFY(window->run(reasons).toStringList().contains("Aucune piste affichée"));
    QCOMPARE(commands(), QStringList());
}

void TestPageCommands::theMapCanBeCentred()
{
    open(new FullProgramSide);
    window->menuAt(nothing.latitude, nothing.longitude);
    QVERIFY(window->chooseEntry("Centrer ici"));
    QVERIFY(qAbs(window->run("map.getCenter().lat()").toDouble() - nothing.latitude) < 0.01);
    QVERIFY(qAbs(window->run("map.getCenter().lng()").toDouble() - nothing.longitude) < 0.01);
    QCOMPARE(program->calls("doCenter").size(), 1);
}

void TestPageCommands::theRightClickedMarkerIsTheLastUsed()
{
    open(new FullProgramSide);
    window->menuAt(ndb.latitude, ndb.longitude);
    QCOMPARE(window->run("theLast.getTitle()").toString(), "MT-MT5FR");
    window->menuAt(nothing.latitude, nothing.longitude);
    QCOMPARE(window->run("theLast.getTitle()").toString(), "MT-MT5FR");
}

void TestPageCommands::theMenuIsGoneBeforeTheCommandRuns()
{
    open(new FullProgramSide);
    QStringList during{"not called"};
    // As with a box that the slot opens: the page is asked while it waits for the slot.
    connect(program.data(), &ProgramSide::called, this, [&](const QString& call) {
        if (call.startsWith("sDelNavFromDB")) {
            during = window->menuEntries();
            window->run("delNavaid();theLast == null;");
        }
    });
    window->menuAt(vor.latitude, vor.longitude);
    QVERIFY(window->chooseEntry("Effacer le navaid…"));
    QCOMPARE(during, QStringList());
    QCOMPARE(window->run("listVOR.length").toInt(), 0);
    QVERIFY(!window->menuAt(vor.latitude, vor.longitude).contains("Effacer le navaid…"));
}

void TestPageCommands::theAirwaysOfAnEditedNavaidGoByItsIdentifier()
{
    open(new FullProgramSide);
    // After an edit the title has the name in front of the key.
    window->run("addVORMarker2(new google.maps.LatLng(46.70000, 2.60000),\"CHATEAUROUX-CGO4FR\",3,"
                "\"<font color=blue><b>VOR CGO</b><font color=black><br/>CHATEAUROUX<br/>117.8 Mhz<br/>x\")");
    window->settle();
    window->menuAt(vor.latitude, vor.longitude);
    QVERIFY(window->chooseEntry("Voies aériennes passant par ce point…"));
    QCOMPARE(commands(), QStringList{"sATS \"CGO-CGO4FR\" \"CGO-CGO4FR\""});
    // A waypoint at its place leads, the navaid follows.
    window->run("addWPTMarker2(new google.maps.LatLng(46.70000, 2.60000),\"CGO-CGOFR\",1,\"x\")");
    window->settle();
    program->clear();
    window->menuAt(vor.latitude, vor.longitude);
    QVERIFY(window->chooseEntry("VOR-DME CGO"));
    QVERIFY(window->chooseEntry("Voies aériennes passant par ce point…"));
    QCOMPARE(commands(), QStringList{"sATS \"CGO-CGOFR\" \"CGO-CGO4FR\""});
}

QTEST_MAIN(TestPageCommands)
#include "tst_pagecommands.moc"
