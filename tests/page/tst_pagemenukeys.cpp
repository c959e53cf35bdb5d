// The map's menu by keys: how it is reached, walked and left.
#include "pagetest.h"
#include "samplechart.h"

#include <QtTest>

using namespace samplechart;

class TestPageMenuKeys : public SampleChartTest
{
    Q_OBJECT

private slots:
    void tabReachesTheMenu_data();
    void tabReachesTheMenu();
    void theArrowsWalkTheMenu();
    void tabWalksTheMenu();
    void theArrowsEnterAndLeaveASubmenu();
    void escapeClosesOnePanelAtATime();
    void enterOnAGreyedEntryDoesNothing();
    void theMapDoesNotMoveBelowTheMenu();
    void theMenuKeyOpensTheMenuInTheMiddle_data();
    void theMenuKeyOpensTheMenuInTheMiddle();
    void theMenuKeyOpensTheMenuOfThePopUp();
    void theSystemsOwnRequestDoesNotMoveTheMenu();
};

void TestPageMenuKeys::theArrowsWalkTheMenu()
{
    menuAt(*window, ndb);
    QCOMPARE(chosen(), QStringList());
    window->pressKey(Qt::Key_Down);
    QCOMPARE(chosen(), QStringList{"Ajouter au plan de vol"});
    QCOMPARE(window->run("document.activeElement.textContent").toString(), "Ajouter au plan de vol");
    window->pressKey(Qt::Key_Up);
    QCOMPARE(chosen(), QStringList{"Carte ici"});
    window->pressKey(Qt::Key_Down);
    window->pressKey(Qt::Key_Down);
    window->pressKey(Qt::Key_Down);
    QCOMPARE(chosen(), QStringList{"Modifier le navaid…"});
    window->pressKey(Qt::Key_End);
    QCOMPARE(chosen(), QStringList{"Carte ici"});
    window->pressKey(Qt::Key_Home);
    window->pressKey(Qt::Key_Return);
    QCOMPARE(commands(), QStringList{"sAddNavToFp \"MT-MT5FR\""});
    QCOMPARE(panels(), 0);
}

void TestPageMenuKeys::tabWalksTheMenu()
{
    menuAt(*window, ndb);
    window->pressKey(Qt::Key_Tab);
    QCOMPARE(chosen(), QStringList{"Ajouter au plan de vol"});
    QCOMPARE(window->run("document.activeElement.textContent").toString(), "Ajouter au plan de vol");
    window->pressKey(Qt::Key_Tab, Qt::ShiftModifier);
    QCOMPARE(chosen(), QStringList{"Carte ici"});
    window->pressKey(Qt::Key_Tab);
    window->pressKey(Qt::Key_Tab);
    window->pressKey(Qt::Key_Tab);
    QCOMPARE(chosen(), QStringList{"Modifier le navaid…"});
    QCOMPARE(panels(), 1);
}

void TestPageMenuKeys::theArrowsEnterAndLeaveASubmenu()
{
    menuAt(*window, vorAndWaypoint);
    window->pressKey(Qt::Key_Down);
    window->pressKey(Qt::Key_Down);
    window->pressKey(Qt::Key_Right);
    QCOMPARE(panels(), 2);
    QCOMPARE(chosen(), (QStringList{"Waypoint CGO", "Ajouter au plan de vol"}));
    window->pressKey(Qt::Key_Left);
    QCOMPARE(panels(), 1);
    QCOMPARE(chosen(), QStringList{"Waypoint CGO"});
    window->pressKey(Qt::Key_Left);
    QCOMPARE(panels(), 1);
    window->pressKey(Qt::Key_Return);
    QCOMPARE(panels(), 2);
    window->pressKey(Qt::Key_Return);
    QCOMPARE(commands(), QStringList{"sAddWptToFp \"CGO-CGOFR\""});
}

void TestPageMenuKeys::escapeClosesOnePanelAtATime()
{
    menuAt(*window, vorAndWaypoint);
    window->pressKey(Qt::Key_Down);
    window->pressKey(Qt::Key_Right);
    QCOMPARE(panels(), 2);
    window->pressKey(Qt::Key_Escape);
    QCOMPARE(panels(), 1);
    window->pressKey(Qt::Key_Escape);
    QCOMPARE(panels(), 0);
    QCOMPARE(window->run("document.activeElement.id").toString(), "chart");
}

void TestPageMenuKeys::enterOnAGreyedEntryDoesNothing()
{
    menuAt(*window, oddWaypoint);
    window->pressKey(Qt::Key_Down);
    QCOMPARE(chosen(), QStringList{"Ajouter au plan de vol"});
    window->pressKey(Qt::Key_Return);
    QCOMPARE(panels(), 1);
    QCOMPARE(commands(), QStringList());
}

void TestPageMenuKeys::theMapDoesNotMoveBelowTheMenu()
{
    menuAt(*window, ndb);
    for (Qt::Key key : {Qt::Key_Down, Qt::Key_Right, Qt::Key_Plus, Qt::Key_Minus, Qt::Key_PageDown})
        window->pressKey(key);
    window->settle();
    QCOMPARE(window->run("map.getZoom()").toDouble(), 8.0);
    QCOMPARE(window->run("map.getCenter().lat()").toDouble(), 46.7);
    QCOMPARE(window->run("map.getCenter().lng()").toDouble(), 2.3);
    QCOMPARE(panels(), 1);
}

void TestPageMenuKeys::theMenuKeyOpensTheMenuInTheMiddle_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::newRow("Menu") << int(Qt::Key_Menu) << int(Qt::NoModifier);
    QTest::newRow("Shift+F10") << int(Qt::Key_F10) << int(Qt::ShiftModifier);
    QTest::newRow("Enter") << int(Qt::Key_Return) << int(Qt::NoModifier);
}

void TestPageMenuKeys::theMenuKeyOpensTheMenuInTheMiddle()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    window->run("map.setCenter(new google.maps.LatLng(46.40000, 2.60000));document.getElementById('chart').focus()");
    window->mouse->moveTo({20, 20});
    window->pressKey(Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    QCOMPARE(texts(*window, "#menu .menu-head"), QStringList{"NDB terminal MT"});
    QCOMPARE(chosen(), QStringList{"Ajouter au plan de vol"});
    const QRectF menu = box(*window, "#menu");
    QVERIFY((menu.topLeft() - QPointF(400, 300)).manhattanLength() < 10);
    window->pressKey(Qt::Key_Return);
    QCOMPARE(commands(), QStringList{"sAddNavToFp \"MT-MT5FR\""});
}

void TestPageMenuKeys::theMenuKeyOpensTheMenuOfThePopUp()
{
    window->click(airport.latitude, airport.longitude);
    QVERIFY(window->popupText().startsWith("Airport LFLX"));
    window->pressKey(Qt::Key_Menu);
    QCOMPARE(texts(*window, "#menu .menu-head"), QStringList{"Aéroport LFLX"});
    // Out of the view it is not what the user looks at.
    window->pressKey(Qt::Key_Escape);
    window->run("map.setCenter(new google.maps.LatLng(44.00000, 2.60000));");
    window->pressKey(Qt::Key_Menu);
    QCOMPARE(texts(*window, "#menu .menu-head"), QStringList{"Carte ici"});
}

void TestPageMenuKeys::theSystemsOwnRequestDoesNotMoveTheMenu()
{
    // Systems send a request for a menu beside the key, some before it and some after it, at any place.
    const QPoint anywhere(60, 500);
    QContextMenuEvent request(QContextMenuEvent::Keyboard, anywhere, window->view->mapToGlobal(anywhere));
    for (bool before : {true, false}) {
        window->closeMenu();
        window->mouse->moveTo({20, 20});
        if (before)
            QApplication::sendEvent(window->view, &request);
        window->pressKey(Qt::Key_Menu);
        if (!before)
            QApplication::sendEvent(window->view, &request);
        QCOMPARE(panels(), 1);
        QVERIFY(qAbs(box(*window, "#menu").left() - 400) < 10);
    }
    // The mouse's next one counts.
    window->mouse->contextMenu(anywhere);
    QVERIFY(qAbs(box(*window, "#menu").left() - anywhere.x()) < 10);
}

void TestPageMenuKeys::tabReachesTheMenu_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Enter") << int(Qt::Key_Return);
    QTest::newRow("Space") << int(Qt::Key_Space);
}

void TestPageMenuKeys::tabReachesTheMenu()
{
    QFETCH(int, key);
    window->run("map.setCenter(new google.maps.LatLng(46.40000, 2.60000));document.getElementById('chart').focus()");
    const auto focused = [this] { return window->run("document.activeElement.id").toString(); };
    for (int i = 0; i < 10 && focused() != "menu-button"; ++i)
        window->pressKey(Qt::Key_Tab);
    QCOMPARE(focused(), "menu-button");
    window->pressKey(Qt::Key(key));
    QCOMPARE(texts(*window, "#menu .menu-head"), QStringList{"NDB terminal MT"});
    QCOMPARE(chosen(), QStringList{"Ajouter au plan de vol"});
    window->pressKey(Qt::Key_Escape);
    // With a pop-up, its marker's.
    window->click(vorAndWaypoint.latitude, vorAndWaypoint.longitude);
    window->mouse->click(box(*window, "#menu-button").center().toPoint());
    QCOMPARE(texts(*window, "#menu .menu-head"), QStringList{"2 objets ici"});
}

QTEST_MAIN(TestPageMenuKeys)
#include "tst_pagemenukeys.moc"
