// The pop-ups: the HTML text of a marker shows on a click, and nothing of it but text and its own few elements.
#include "pagewindow.h"

#include <QtTest>

class TestPagePopup : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        program.reset(new FullProgramSide);
        window.reset(new PageWindow(program.data()));
        QVERIFY(window->load());
        window->run("map.setCenter(new google.maps.LatLng(46.50000, 2.50000));map.setZoom(8)");
    }

    void aClickShowsTheText();
    void theColourOfTheTextShows();
    void anotherMarkerTakesThePopUp();
    void aClickOnTheMapClosesIt();
    void theCrossClosesIt();
    void aDeletedMarkerTakesItsPopUpAlong();
    void ofCoincidingMarkersTheUpperOneAnswers();
    void aPopUpNearTheEdgeComesIntoView();
    void hostileTextNeitherLoadsNorRuns_data();
    void hostileTextNeitherLoadsNorRuns();

private:
    QScopedPointer<ProgramSide> program;
    QScopedPointer<PageWindow> window;

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
                "addNDBMarker2(new google.maps.LatLng(46.50000, 2.50000),\"N-N5FR\",1,\"N\")");
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
    QTRY_VERIFY(window->run("document.querySelector('.leaflet-popup').getBoundingClientRect().top").toDouble() >= 0);
    QVERIFY(!program->calls("doCenter").isEmpty());
}

void TestPagePopup::hostileTextNeitherLoadsNorRuns_data()
{
    QTest::addColumn<QString>("html");

    QTest::newRow("picture") << "<b>A</b><img src='http://127.0.0.1:9/a.png' onerror='mainWindow.doSomething(1)'>B";
    QTest::newRow("script") << "A<script>mainWindow.doSomething('x')</script>B";
    QTest::newRow("frame") << "A<iframe src='http://127.0.0.1:9/'></iframe>B";
    QTest::newRow("handler") << "<b onclick='mainWindow.doSomething(1)' onmouseover='mainWindow.doSomething(2)'>AB</b>";
    QTest::newRow("link") << "<a href='http://127.0.0.1:9/'>AB</a>";
    QTest::newRow("style")
        << "<style>body{background:url(http://127.0.0.1:9/b.png)}</style><b style='position:fixed'>AB</b>";
    QTest::newRow("colour") << "<font color='red; background: url(http://127.0.0.1:9/c.png)'>AB";
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
}

QTEST_MAIN(TestPagePopup)
#include "tst_pagepopup.moc"
