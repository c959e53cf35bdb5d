// The context menu under the mouse: submenus, greyed entries, roles, and its place in the window.
#include "pagetest.h"
#include "samplechart.h"

#include <QtTest>

using namespace samplechart;

class TestPageMenu : public SampleChartTest
{
    Q_OBJECT

private slots:
    void theMenuClosesWithoutACommand_data();
    void theMenuClosesWithoutACommand();
    void theMenuStaysInTheWindow();
    void aSmallWindowHoldsTheWholeMenu();
    void theTitleTellsTheObject();
    void twoObjectsHaveASubmenuEach();
    void theChosenObjectIsTheLastUsed();
    void aSubmenuOpensUnderTheRestingPointer();
    void aSubmenuAtTheEdgeOpensToTheOtherSide();
    void theMapOfASingleObjectIsASubmenu();
    void aCrowdIsCounted();
    void aHugeCrowdCanBeWalked();
    void aHiddenLayerIsNotOffered();
    void aPointOfThePlanIsOfferedWithoutItsLayer();
    void aGreyedEntryDoesNothing();
    void anEntryWithoutAKeyInItsTitleIsGreyed();
    void aRowWithoutAKeyIsGreyedForThat();
    void theRolesAreSet();
    void theMenuFollowsThePalette();

private:
    QPoint entryPixel(const QString& text)
    {
        const QVariantList place =
            window
                ->run("var entry = Array.from(document.querySelectorAll('.menu-entry')).filter(e => "
                      "e.querySelector('.menu-label').textContent === '" +
                      text +
                      "')[0].getBoundingClientRect(); [entry.left + entry.width / 2, entry.top + entry.height / 2]")
                .toList();
        return {place.value(0).toInt(), place.value(1).toInt()};
    }
};

void TestPageMenu::theMenuClosesWithoutACommand_data()
{
    QTest::addColumn<QString>("way");
    for (const char* way : {"a click beside it", "Escape", "the wheel", "the window's size", "another window"})
        QTest::newRow(way) << way;
}

void TestPageMenu::theMenuClosesWithoutACommand()
{
    QFETCH(QString, way);
    QVERIFY(!menuAt(*window, ndb).isEmpty());
    if (way == "a click beside it")
        window->mouse->click({50, 550});
    else if (way == "the wheel")
        window->mouse->wheel({50, 550}, 120);
    else if (way == "Escape")
        window->pressKey(Qt::Key_Escape);
    else if (way == "another window")
        window->run("window.dispatchEvent(new Event('blur'))");
    else
        window->view->resize(700, 500);
    QTRY_COMPARE_WITH_TIMEOUT(window->menuEntries(), QStringList(), 20000);
    QCOMPARE(commands(), QStringList());
}

void TestPageMenu::theMenuStaysInTheWindow()
{
    for (const QPoint& corner : {QPoint(798, 598), QPoint(2, 598), QPoint(798, 300), QPoint(798, 2)}) {
        window->mouse->contextMenu(corner);
        const QRectF menu = box(*window, "#menu");
        QVERIFY(QRectF(0, 0, 800, 600).contains(menu));
        QVERIFY(menu.height() > 50);
    }
}

void TestPageMenu::aSmallWindowHoldsTheWholeMenu()
{
    window->view->resize(300, 160);
    QTRY_COMPARE_WITH_TIMEOUT(window->run("innerHeight").toInt(), 160, 20000);
    window->settle();
    window->mouse->contextMenu({20, 140});
    QVERIFY(window->menuEntries().size() > 5);
    QVERIFY(QRectF(0, 0, 300, 160).contains(box(*window, "#menu")));
    // What does not fit is reached by rolling.
    QVERIFY(window->run("var menu = document.getElementById('menu'); menu.scrollHeight > menu.clientHeight").toBool());
    window->mouse->wheel({100, 80}, -120);
    QTRY_VERIFY_WITH_TIMEOUT(window->run("document.getElementById('menu').scrollTop").toInt() > 0, 20000);
    QVERIFY(!window->menuEntries().isEmpty());
    QCOMPARE(window->run("map.getZoom()").toDouble(), 8.0);
}

void TestPageMenu::theTitleTellsTheObject()
{
    menuAt(*window, ndb);
    QCOMPARE(texts(*window, "#menu .menu-head"), QStringList{"NDB terminal MT"});
    QCOMPARE(texts(*window, "#menu .menu-line"), (QStringList{"MONTLUCON", "398 Khz"}));
    menuAt(*window, nothing);
    QCOMPARE(texts(*window, "#menu .menu-head"), QStringList{"Carte ici"});
    QVERIFY(
        texts(*window, "#menu .menu-line").value(0).contains(QRegularExpression("^46° 3\\d' .* N  001° 4\\d' .* E$")));
}

void TestPageMenu::twoObjectsHaveASubmenuEach()
{
    const QStringList entries = menuAt(*window, vorAndWaypoint);
    QCOMPARE(texts(*window, "#menu .menu-head"), QStringList{"2 objets ici"});
    QCOMPARE(entries.mid(0, 3), (QStringList{"VOR-DME CGO", "Waypoint CGO", "Ajouter un point utilisateur ici"}));
    QVERIFY(!entries.contains("Effacer le navaid…"));

    QVERIFY(window->chooseEntry("VOR-DME CGO"));
    QCOMPARE(panels(), 2);
    QVERIFY(window->menuEntries().contains("Effacer le navaid…"));
    QCOMPARE(texts(*window, ".menu-head").last(), "VOR-DME CGO");
    QVERIFY(window->chooseEntry("Waypoint CGO"));
    QCOMPARE(panels(), 2);
    QVERIFY(window->menuEntries().contains("Effacer le waypoint…"));
    QVERIFY(!window->menuEntries().contains("Effacer le navaid…"));
    QVERIFY(window->chooseEntry("Effacer le waypoint…"));
    QCOMPARE(panels(), 0);
    QCOMPARE(commands(), QStringList{"sDelWptFromDB \"CGO-CGOFR\""});
}

void TestPageMenu::theChosenObjectIsTheLastUsed()
{
    QStringList last;
    // The program deletes while the page waits for the slot.
    connect(program.data(), &ProgramSide::called, this, [&](const QString& call) {
        if (call.startsWith("sDel"))
            last << window->run("theLast.getTitle()").toString();
        if (call.startsWith("sDelWpt"))
            window->run("delWaypoint();theLast == null;");
    });
    menuAt(*window, vorAndWaypoint);
    QVERIFY(window->chooseEntry("VOR-DME CGO"));
    QVERIFY(window->chooseEntry("Waypoint CGO"));
    QVERIFY(window->chooseEntry("Effacer le waypoint…"));
    QCOMPARE(window->run("listWptRte.length").toInt(), 0);
    QCOMPARE(window->run("listVOR.length").toInt(), 1);
    // One is left: its commands need no submenu.
    QVERIFY(menuAt(*window, vorAndWaypoint).contains("Effacer le navaid…"));
    QVERIFY(window->chooseEntry("Effacer le navaid…"));
    QCOMPARE(last, (QStringList{"CGO-CGOFR", "CGO-CGO4FR"}));
}

void TestPageMenu::aSubmenuOpensUnderTheRestingPointer()
{
    menuAt(*window, vorAndWaypoint);
    const QPoint entry = entryPixel("Waypoint CGO");
    window->mouse->moveTo(entry);
    QCOMPARE(chosen(), QStringList{"Waypoint CGO"});
    QTRY_COMPARE_WITH_TIMEOUT(panels(), 2, 20000);
    // Into it: the way there stays marked.
    window->mouse->moveTo(entryPixel("Modifier le waypoint…"));
    QCOMPARE(chosen(), (QStringList{"Waypoint CGO", "Modifier le waypoint…"}));
    // Over another entry it goes after a while.
    window->mouse->moveTo(entryPixel("Départ ici"));
    QTRY_COMPARE_WITH_TIMEOUT(panels(), 1, 20000);
    QCOMPARE(chosen(), QStringList{"Départ ici"});
    QCOMPARE(commands(), QStringList());
}

void TestPageMenu::aSubmenuAtTheEdgeOpensToTheOtherSide()
{
    // The VOR at the right edge of the window.
    window->run("map.setCenter(new google.maps.LatLng(46.70000, 0.43000));");
    window->settle();
    const QPoint place = pixel(*window, vorAndWaypoint);
    QVERIFY(place.x() > 780 && place.x() < 798);
    window->mouse->contextMenu(place);
    QVERIFY(window->chooseEntry("Waypoint CGO"));
    const QRectF menu = box(*window, "#menu");
    const QRectF submenu = box(*window, ".menu:not(#menu)");
    QVERIFY(QRectF(0, 0, 800, 600).contains(submenu));
    QVERIFY(submenu.right() < menu.left() + 10);
}

void TestPageMenu::theMapOfASingleObjectIsASubmenu()
{
    menuAt(*window, airport);
    QVERIFY(window->chooseEntry("Carte ici"));
    QVERIFY(window->chooseEntry("Départ ici"));
    QCOMPARE(commands().size(), 2);
    QVERIFY(commands().value(0).startsWith("sAddSitToFp 46.9"));
    QVERIFY(commands().value(1).startsWith("doMoveSIT 46.9"));
}

void TestPageMenu::aCrowdIsCounted()
{
    for (int i = 0; i < 10; ++i)
        window->run(QString("addWPTMarker2(new google.maps.LatLng(46.60000, 1.70000),\"P%1-P%1FR\",1,\"x\")").arg(i));
    window->settle();
    const QStringList entries = menuAt(*window, nothing);
    QCOMPARE(texts(*window, "#menu .menu-head"), QStringList{"10 objets ici"});
    QCOMPARE(entries.filter("Waypoint P").size(), 8);
    QCOMPARE(entries.value(8), "et 2 autres");
    // None of them is out of reach.
    QVERIFY(window->chooseEntry("et 2 autres"));
    const QStringList rest = window->menuEntries().mid(entries.size());
    QCOMPARE(rest.size(), 2);
    for (const QString& entry : rest)
        QVERIFY(entry.startsWith("Waypoint P") && !entries.contains(entry));
    QVERIFY(window->chooseEntry(rest.value(1)));
    QVERIFY(window->chooseEntry("Ajouter au plan de vol"));
    QCOMPARE(commands(), QStringList{QString("sAddWptToFp \"%1-%1FR\"").arg(rest.value(1).section(' ', 1))});
}

void TestPageMenu::aHugeCrowdCanBeWalked()
{
    window->run("for (let i = 0; i < 300; ++i) addWPTMarker2(new google.maps.LatLng(46.60000, 1.70000), "
                "`P${i}-P${i}FR`, 1, 'x');");
    window->settle();
    menuAt(*window, nothing);
    QVERIFY(window->chooseEntry("et 292 autres"));
    const QRectF panel = box(*window, ".menu:not(#menu)");
    QVERIFY(QRectF(0, 0, 800, 600).contains(panel));
    // The last one comes into view.
    window->pressKey(Qt::Key_Right);
    window->pressKey(Qt::Key_End);
    const QRectF last = box(*window, ".menu:not(#menu) .menu-entry.chosen");
    QVERIFY(panel.contains(last.center()));
    window->pressKey(Qt::Key_Right);
    window->pressKey(Qt::Key_Return);
    QCOMPARE(commands().size(), 1);
    QVERIFY(commands().value(0).startsWith("sAddWptToFp \"P"));
}

void TestPageMenu::aHiddenLayerIsNotOffered()
{
    window->run("WPTRteMgr.clearMarkers()");
    QCOMPARE(menuAt(*window, vorAndWaypoint).value(0), "Ajouter au plan de vol");
    QCOMPARE(texts(*window, "#menu .menu-head"), QStringList{"VOR-DME CGO"});
}

void TestPageMenu::aPointOfThePlanIsOfferedWithoutItsLayer()
{
    window->run("NDBTermMgr.clearMarkers();clearFP();addPointToFp(new google.maps.LatLng(46.40000,2.60000),\"MT\");"
                "addPointToFp(new google.maps.LatLng(46.00000,2.60000),\"WPT001\");pushFP();");
    window->settle();
    QVERIFY(menuAt(*window, ndb).contains("Effacer le navaid…"));
    QCOMPARE(texts(*window, "#menu .menu-head"), QStringList{"NDB terminal MT"});
    window->closeMenu();
    window->run("clearFP();pushFP();");
    window->settle();
    QVERIFY(!menuAt(*window, ndb).contains("Effacer le navaid…"));
}

void TestPageMenu::aGreyedEntryDoesNothing()
{
    menuAt(*window, nothing);
    const int before = window->menuEntries().size();
    QVERIFY(texts(*window, ".menu-reason").contains("Aucune piste affichée"));
    QVERIFY(window->chooseEntry("Effacer les pistes"));
    QCOMPARE(window->menuEntries().size(), before);
    QCOMPARE(commands(), QStringList());
}

void TestPageMenu::anEntryWithoutAKeyInItsTitleIsGreyed()
{
    menuAt(*window, oddWaypoint);
    QCOMPARE(texts(*window, "#menu .greyed .menu-label"),
             (QStringList{"Ajouter au plan de vol", "Modifier le waypoint…", "Effacer le waypoint…"}));
    QCOMPARE(texts(*window, "#menu .menu-reason").value(0), "Le titre ne désigne aucune ligne des données");
    QVERIFY(window->chooseEntry("Effacer le waypoint…"));
    QCOMPARE(commands(), QStringList());
    // What needs no key is there.
    QVERIFY(window->chooseEntry("Voies aériennes passant par ce point…"));
    QCOMPARE(commands(), QStringList{"sATS \"W-X-WXFR\" \"\""});
}

void TestPageMenu::aRowWithoutAKeyIsGreyedForThat()
{
    window->run("addVORMarker2(new google.maps.LatLng(46.60000, 1.70000),\"ABCDE-\",17,\"<b>VOR ABCDE</b>\")");
    window->settle();
    menuAt(*window, nothing);
    QCOMPARE(texts(*window, "#menu .menu-head"), QStringList{"VOR ABCDE"});
    QCOMPARE(texts(*window, "#menu .greyed .menu-label"),
             (QStringList{"Ajouter au plan de vol", "Modifier le navaid…", "Effacer le navaid…"}));
    QCOMPARE(texts(*window, "#menu .menu-reason").value(0), "La ligne des données n'a pas de clé");
}

void TestPageMenu::theRolesAreSet()
{
    menuAt(*window, vorAndWaypoint);
    QCOMPARE(window->run("document.getElementById('menu').getAttribute('role')").toString(), "menu");
    QCOMPARE(window->run("document.getElementById('menu').getAttribute('aria-label')").toString().left(12),
             "2 objets ici");
    QCOMPARE(window->run("document.querySelectorAll('#menu [role=menuitem]').length").toInt(),
             window->menuEntries().size());
    QCOMPARE(texts(*window, "#menu [aria-haspopup=true] .menu-label"), (QStringList{"VOR-DME CGO", "Waypoint CGO"}));
    QCOMPARE(texts(*window, "#menu [aria-disabled=true] .menu-label").last(), "Effacer la trace");
    QVERIFY(window->run("document.querySelectorAll('#menu [role=separator]').length").toInt() >= 2);
    QCOMPARE(window->run("document.querySelectorAll('[aria-expanded=true]').length").toInt(), 0);
    QVERIFY(window->chooseEntry("VOR-DME CGO"));
    QCOMPARE(texts(*window, "[aria-expanded=true] .menu-label"), QStringList{"VOR-DME CGO"});
    QCOMPARE(window->run("document.querySelector('.menu:not(#menu)').getAttribute('role')").toString(), "menu");
}

void TestPageMenu::theMenuFollowsThePalette()
{
    const QString look =
        "var look = getComputedStyle(document.getElementById('menu')); look.backgroundColor + look.color";
    menuAt(*window, ndb);
    QCOMPARE(window->run(look).toString(), "rgb(255, 255, 255)rgb(28, 39, 48)");
    window->run("page.setPalette('night')");
    QCOMPARE(window->run(look).toString(), "rgb(34, 45, 54)rgb(201, 212, 220)");
}

QTEST_MAIN(TestPageMenu)
#include "tst_pagemenu.moc"
