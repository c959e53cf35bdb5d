// The pop-ups: the HTML text of a marker shows on a click, and nothing of it but text and its own few elements.
#include "pagetest.h"

#include <QtTest>

class TestPagePopup : public PageTest
{
    Q_OBJECT

private slots:
    void aClickShowsTheText();
    void theColourOfTheTextShows();
    void anotherMarkerTakesThePopUp();
    void aClickOnTheMapClosesIt();
    void theCrossClosesIt();
    void aDeletedMarkerTakesItsPopUpAlong();
    void ofCoincidingMarkersTheUpperOneAnswers();
    void aPopUpNearTheEdgeComesIntoView();
    void aPopUpFollowsTheViewAcross180Degrees();
    void aPopUpOpensInTheCopyOfTheWorldThatIsClicked();
    void theWheelOverAPopUpZooms();
    void aLongPopUpKeepsTheWheel();
    void aHiddenLayerTakesThePopUpAlong();
    void aPlannedMarkerKeepsItsPopUpWithoutItsLayer();
    void aLongNameIsBroken();
    void hostileTextNeitherLoadsNorRuns_data();
    void hostileTextNeitherLoadsNorRuns();

private:
    void addAirport(double latitude, double longitude, const QString& title, const QString& html)
    {
        window->run(QString("addAPTMarker(new google.maps.LatLng(%1,%2),\"%3\",1,\"%4\");pushAPT();")
                        .arg(latitude, 3, 'f', 5)
                        .arg(longitude, 3, 'f', 5)
                        .arg(title, html));
        window->settle();
    }
};

void TestPagePopup::aClickShowsTheText()
{
    addAirport(46.5, 2.5, "LFPO",
               "<font color=blue><b>Airport LFPO</b><font color=black><br/>PARIS ORLY<br/>48 43' 31.00 N - 002 21' "
               "34.00 E");
    QCOMPARE(window->popupText(), "");
    window->click(46.5, 2.5);
    QCOMPARE(window->popupText().split('\n'),
             (QStringList{"Airport LFPO", "PARIS ORLY", "48 43' 31.00 N - 002 21' 34.00 E"}));
    QCOMPARE(window->run("theLast.getTitle()").toString(), "LFPO");
    QVERIFY(program->calls("sAddAptToFp").isEmpty());
}

void TestPagePopup::theColourOfTheTextShows()
{
    addAirport(46.5, 2.5, "LFPO", "<font color=blue><b>Airport LFPO</b><font color=black><br/>PARIS");
    window->click(46.5, 2.5);
    QCOMPARE(window->run("getComputedStyle(document.querySelector('.popup-text b')).color").toString(),
             "rgb(0, 0, 255)");
    QCOMPARE(window->run("getComputedStyle(document.querySelector('.popup-text b')).fontWeight").toString(), "bold");
}

void TestPagePopup::anotherMarkerTakesThePopUp()
{
    addAirport(46.5, 2.5, "LFAA", "<b>A</b>");
    addAirport(46.3, 2.2, "LFBB", "<b>B</b>");
    window->click(46.5, 2.5);
    QCOMPARE(window->popupText(), "A");
    window->click(46.3, 2.2);
    QCOMPARE(window->popupText(), "B");
    QCOMPARE(window->run("document.querySelectorAll('.popup-text').length").toInt(), 1);
}

void TestPagePopup::aClickOnTheMapClosesIt()
{
    addAirport(46.5, 2.5, "LFAA", "<b>A</b>");
    window->click(46.5, 2.5);
    QCOMPARE(window->popupText(), "A");
    window->mouse->click({100, 500});
    QCOMPARE(window->popupText(), "");
}

void TestPagePopup::theCrossClosesIt()
{
    addAirport(46.5, 2.5, "LFAA", "<b>A</b>");
    window->click(46.5, 2.5);
    const QVariantList cross =
        window
            ->run("var box = document.querySelector('.leaflet-popup-close-button').getBoundingClientRect();"
                  "[box.left + box.width / 2, box.top + box.height / 2]")
            .toList();
    const QUrl before = window->view->url();
    window->mouse->click(QPoint(cross.value(0).toInt(), cross.value(1).toInt()));
    QCOMPARE(window->popupText(), "");
    QCOMPARE(window->view->url(), before);
}

void TestPagePopup::aDeletedMarkerTakesItsPopUpAlong()
{
    window->run("addVORMarker2(new google.maps.LatLng(46.50000, 2.50000),\"A-A4FR\",1,\"<b>A</b>\")");
    window->settle();
    window->click(46.5, 2.5);
    QCOMPARE(window->popupText(), "A");
    window->run("delNavaid();theLast == null;");
    QCOMPARE(window->popupText(), "");
}

void TestPagePopup::ofCoincidingMarkersTheUpperOneAnswers()
{
    window->run("addWPTMarker2(new google.maps.LatLng(46.50000, 2.50000),\"W-WFR\",1,\"W\");"
                "addVORMarker2(new google.maps.LatLng(46.50000, 2.50000),\"V-V4FR\",1,\"V\");"
                "addNDBMarker2(new google.maps.LatLng(46.50000, 2.50000),\"N-N5FR\",1,\"N\");"
                "page.chooseEdited(null)");
    window->settle();
    window->click(46.5, 2.5);
    QCOMPARE(window->popupText(), "V");
}

void TestPagePopup::aPopUpNearTheEdgeComesIntoView()
{
    const QString html = "<b>A</b><br/>second<br/>third<br/>fourth";
    window->run("map.setCenter(new google.maps.LatLng(46.50000, 2.50000))");
    // Some pixels below the upper edge.
    window->run("addAPTMarker(new google.maps.LatLng(47.57000, 2.50000),\"LFAA\",1,\"" + html + "\");pushAPT();");
    window->settle();
    const QPoint place = window->mouse->pointOf(47.57, 2.5);
    QVERIFY(place.y() > 0 && place.y() < 60);
    window->mouse->click(place);
    QTRY_VERIFY_WITH_TIMEOUT(
        window->run("document.querySelector('.leaflet-popup').getBoundingClientRect().top").toDouble() >= 0, 20000);
    QVERIFY(!program->calls("doCenter").isEmpty());
}

void TestPagePopup::hostileTextNeitherLoadsNorRuns_data()
{
    QTest::addColumn<QString>("html");

    QTest::newRow("picture") << "<b>A</b><img src='http://127.0.0.1:60001/a.png' onerror='mainWindow.doSomething(1)'>B";
    QTest::newRow("script") << "A<script>mainWindow.doSomething('x')</script>B";
    QTest::newRow("frame") << "A<iframe src='http://127.0.0.1:60001/'></iframe>B";
    QTest::newRow("handler") << "<b onclick='mainWindow.doSomething(1)' onmouseover='mainWindow.doSomething(2)'>AB</b>";
    QTest::newRow("link") << "<a href='http://127.0.0.1:60001/'>AB</a>";
    QTest::newRow("style")
        << "<style>body{background:url(http://127.0.0.1:60001/b.png)}</style><b style='position:fixed'>AB</b>";
    QTest::newRow("colour") << "<font color='red; background: url(http://127.0.0.1:60001/c.png)'>AB";
    QTest::newRow("elements of other texts") << "<i>A</i><u>B</u><h1></h1>";
    QTest::newRow("drawing") << "A<svg><script>mainWindow.doSomething('x')</script></svg>B";
    QTest::newRow("inside of a frame") << "A<iframe><img src=x></iframe><noscript><img src=x></noscript>B";
    // Fields of a form stand for its properties by their names.
    QTest::newRow("form") << "A<form><input name=childNodes><input name=nodeType><input name=nodeName>B</form>";
    QTest::newRow("form named as the body") << "A<form name=body><input name=firstChild>B</form>";
    QTest::newRow("bold with more") << "<b id=chart class=menu color=red onclick='mainWindow.doSomething(3)'>AB</b>";
    QTest::newRow("unfinished") << "<b><i>AB<img src=";
}

void TestPagePopup::hostileTextNeitherLoadsNorRuns()
{
    QFETCH(QString, html);
    addAirport(46.5, 2.5, "LFAA", html);
    window->requests.clear();
    window->click(46.5, 2.5);
    QCOMPARE(window->popupText(), "AB");
    // Over it with the mouse, and time for a picture to load.
    const QVariantList box = window
                                 ->run("var box = document.querySelector('.popup-text').getBoundingClientRect();"
                                       "[box.left + 5, box.top + box.height / 2]")
                                 .toList();
    window->mouse->click(QPoint(box.value(0).toInt(), box.value(1).toInt()));
    QTest::qWait(50);
    QCOMPARE(window->requests, QList<QUrl>());
    QCOMPARE(program->calls("doSomething"), QStringList());
    QCOMPARE(
        window
            ->run("document.querySelectorAll('.popup-text img, .popup-text script, .popup-text iframe, .popup-text "
                  "a, .popup-text style, .popup-text [style], .popup-text [onclick]').length")
            .toInt(),
        0);
    // Of all elements, those of the program's own texts alone; of all attributes, the colour alone.
    QCOMPARE(window->run("document.querySelectorAll('.popup-text *:not(b):not(br):not(font)').length").toInt(), 0);
    QCOMPARE(window
                 ->run("Array.from(document.querySelectorAll('.popup-text *')).filter(element => "
                       "Array.from(element.attributes).some(attribute => element.nodeName !== 'FONT' || attribute.name "
                       "!== 'color')).length")
                 .toInt(),
             0);
}

void TestPagePopup::aPopUpFollowsTheViewAcross180Degrees()
{
    window->run("map.setCenter(new google.maps.LatLng(46.50000,179.50000));");
    addAirport(46.5, 179.8, "NFAA", "<b>A</b>");
    const auto left = [this] {
        return window
            ->run("var box = document.querySelector('.leaflet-popup').getBoundingClientRect(); (box.left + box.right) "
                  "/ 2")
            .toDouble();
    };
    window->click(46.5, 179.8);
    QCOMPARE(window->popupText(), "A");
    // 182 pixels a degree at this zoom.
    QVERIFY(qAbs(left() - (400 + 0.3 * 182)) < 3);
    window->run("map.setCenter(new google.maps.LatLng(46.50000,-179.50000));");
    QTRY_VERIFY_WITH_TIMEOUT(qAbs(left() - (400 - 0.7 * 182)) < 3, 20000);
    // Nobody else has moved the view.
    QCOMPARE(window->run("map.getCenter().lng()").toDouble(), -179.5);
    window->run("map.setCenter(new google.maps.LatLng(46.50000,179.50000));");
    QTRY_VERIFY_WITH_TIMEOUT(qAbs(left() - (400 + 0.3 * 182)) < 3, 20000);
    QCOMPARE(window->popupText(), "A");
}

void TestPagePopup::aPopUpOpensInTheCopyOfTheWorldThatIsClicked()
{
    window->resize(1500, 600);
    window->view->resize(1500, 600);
    QTRY_COMPARE_WITH_TIMEOUT(window->run("innerWidth").toInt(), 1500, 20000);
    // A world is 1024 pixels wide.
    window->run("map.setCenter(new google.maps.LatLng(20.00000, 0.00000));map.setZoom(2)");
    addAirport(20, 150, "LFAA", "<b>A</b>");
    // From so far away only points of the plan are drawn.
    window->run("addPointToFp(new google.maps.LatLng(20.00000,150.00000),\"LFAA\");pushFP();");
    window->settle();
    const int first = window->mouse->pointOf(20, 150).x();
    for (int place : {first, first - 1024, first}) {
        window->mouse->click({place, 300});
        QCOMPARE(window->popupText(), "A");
        const double middle = window
                                  ->run("var box = document.querySelector('.leaflet-popup').getBoundingClientRect(); "
                                        "(box.left + box.right) / 2")
                                  .toDouble();
        QVERIFY2(qAbs(middle - place) < 3, qPrintable(QString("%1 for %2").arg(middle).arg(place)));
        // A view that shows it still leaves it where it is.
        window->run("map.setCenter(new google.maps.LatLng(20.00000, 5.00000));"
                    "map.setCenter(new google.maps.LatLng(20.00000, 0.00000));");
        QCOMPARE(window
                     ->run("var box = document.querySelector('.leaflet-popup').getBoundingClientRect();"
                           "Math.round((box.left + box.right) / 2)")
                     .toInt(),
                 qRound(middle));
        window->mouse->click({750, 550});
    }
}

void TestPagePopup::theWheelOverAPopUpZooms()
{
    addAirport(46.5, 2.5, "LFAA", "<b>A</b><br/>second");
    window->click(46.5, 2.5);
    const QVariantList place = window
                                   ->run("var box = document.querySelector('.popup-text').getBoundingClientRect();"
                                         "[(box.left + box.right) / 2, (box.top + box.bottom) / 2]")
                                   .toList();
    window->mouse->wheel({place.value(0).toInt(), place.value(1).toInt()}, 120);
    QTRY_COMPARE_WITH_TIMEOUT(window->run("map.getZoom()").toDouble(), 9.0, 20000);
}

void TestPagePopup::aLongPopUpKeepsTheWheel()
{
    addAirport(46.5, 2.5, "LFAA", QString("line<br/>").repeated(100));
    window->click(46.5, 2.5);
    const QString content = "document.querySelector('.leaflet-popup-content')";
    QTRY_VERIFY_WITH_TIMEOUT(window->run(content + ".getBoundingClientRect().top").toDouble() >= 0, 20000);
    QVERIFY(window->run(content + ".scrollHeight > " + content + ".clientHeight").toBool());
    const QVariantList place =
        window->run("var box = " + content + ".getBoundingClientRect(); [box.left + 20, (box.top + box.bottom) / 2]")
            .toList();
    window->mouse->wheel({place.value(0).toInt(), place.value(1).toInt()}, -120);
    QTRY_VERIFY_WITH_TIMEOUT(window->run(content + ".scrollTop").toInt() > 0, 20000);
    QCOMPARE(window->run("map.getZoom()").toDouble(), 8.0);
}

void TestPagePopup::aHiddenLayerTakesThePopUpAlong()
{
    addAirport(46.5, 2.5, "LFAA", "<b>A</b>");
    window->click(46.5, 2.5);
    // Hidden and shown again in one batch: the marker has not gone.
    window->run("ArptMgr.clearMarkers();ArptMgr.addMarkers(listApt)");
    window->settle();
    QCOMPARE(window->popupText(), "A");
    window->run("ArptMgr.clearMarkers()");
    QTRY_COMPARE_WITH_TIMEOUT(window->popupText(), QString(), 20000);
    // The menu's key has no hidden marker to offer.
    window->pressKey(Qt::Key_Menu);
    QVERIFY(!window->menuEntries().contains("Afficher les pistes"));
}

void TestPagePopup::aPlannedMarkerKeepsItsPopUpWithoutItsLayer()
{
    addAirport(46.5, 2.5, "LFAA", "<b>Airport LFAA</b>");
    const QString plan = "clearFP();addPointToFp(new google.maps.LatLng(46.50000, 2.50000),\"LFAA\");pushFP();";
    window->run(plan);
    window->settle();
    window->click(46.5, 2.5);
    window->run("ArptMgr.clearMarkers()");
    window->run(plan);
    window->settle();
    QCOMPARE(window->popupText(), "Airport LFAA");
    window->run("clearFP()");
    QTRY_COMPARE_WITH_TIMEOUT(window->popupText(), QString(), 20000);
}

void TestPagePopup::aLongNameIsBroken()
{
    addAirport(46.5, 2.5, "LFAA", "<b>Airport " + QString(150, 'W') + "</b><br/>second");
    window->menuAt(46.5, 2.5);
    const QString isWhole = "var box = document.querySelector('%1'); box.scrollWidth <= box.clientWidth";
    QVERIFY(window->run(isWhole.arg("#menu")).toBool());
    QVERIFY(window->run(isWhole.arg("#menu .menu-head")).toBool());
    window->closeMenu();
    window->mouse->moveTo({5, 300});
    window->mouse->moveTo(window->mouse->pointOf(46.5, 2.5));
    QTRY_VERIFY_WITH_TIMEOUT(!window->run("document.getElementById('tooltip').hidden").toBool(), 20000);
    QVERIFY(window->run(isWhole.arg("#tooltip")).toBool());
}

QTEST_MAIN(TestPagePopup)
#include "tst_pagepopup.moc"
