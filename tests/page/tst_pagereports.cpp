// What the status bar is told of the pointer, what lies below it, and the view.
#include "pagetest.h"
#include "samplechart.h"

#include <QtTest>

using namespace samplechart;

class TestPageReports : public SampleChartTest
{
    Q_OBJECT

private slots:
    void theStatusTellsWhatLiesUnderThePointer();
    void aDeletedMarkerIsNoMoreUnderThePointer();
    void aReplacedMarkerIsNoMoreUnderThePointer();
    void aMarkerOfAHiddenLayerIsNoMoreUnderThePointer();
    void aStillPointerLosesWhatGoes_data();
    void aStillPointerLosesWhatGoes();
    void aStillPointerMeetsWhatComes_data();
    void aStillPointerMeetsWhatComes();
    void aFloodOfPointsIsOneReportAFrame();
    void aFloodOfMovesIsOneReportAFrame();
    void aFloodOfDragsIsOneReportAFrame();
    void leavingTheMapEmptiesTheReport();
    void theLastCentreOfADragIsReported();
    void aViewThatMovesBelowTheMouseIsReported_data();
    void aViewThatMovesBelowTheMouseIsReported();
    void aViewThatMovesWithoutTheMouseIsNot();
    void theViewsMovesAreOneReportAFrame();

private:
    bool isShown()
    {
        return !window->run("document.getElementById('tooltip').hidden").toBool();
    }
    void rest(const Place& place)
    {
        window->mouse->moveTo({5, 300});
        window->mouse->moveTo(pixel(*window, place));
    }
    /// Waits until the last report on the pointer ends so.
    bool isTold(const QString& end)
    {
        return QTest::qWaitFor([&] { return (QStringList("") + program->calls("doData")).last().endsWith(end); },
                               20000);
    }
    /// From now on frames come only by `nextFrame`.
    void holdFrames()
    {
        window->run("var frames = []; window.requestAnimationFrame = function (f) { frames.push(f); return 1; };");
    }
    void nextFrame()
    {
        window->run("frames.splice(0).forEach(function (f) { f(); })");
    }
};

void TestPageReports::theStatusTellsWhatLiesUnderThePointer()
{
    rest(vorAndWaypoint);
    const QString last = "doData \"46° 4\\d' \\d\\d\" N  002° 3\\d' \\d\\d\" E  VOR-DME CGO, Waypoint CGO\"";
    QTRY_VERIFY_WITH_TIMEOUT(program->calls("doData").last().contains(QRegularExpression(last)), 20000);
    window->mouse->moveTo({5, 300});
    QTRY_VERIFY_WITH_TIMEOUT(program->calls("doData").last().endsWith(" E\""), 20000);
}

void TestPageReports::aDeletedMarkerIsNoMoreUnderThePointer()
{
    rest(ndb);
    QTRY_VERIFY_WITH_TIMEOUT(isShown(), 20000);
    window->run("theLast = listNDBTerm[0]; delNavaid();");
    QVERIFY(!isShown());
    window->settle();
    program->clear();
    window->mouse->moveTo(pixel(*window, ndb) + QPoint(2, 2));
    QTRY_VERIFY_WITH_TIMEOUT(!program->calls("doData").isEmpty(), 20000);
    QVERIFY(program->calls("doData").last().endsWith(" E\""));
    QTest::qWait(600);
    QVERIFY(!isShown());
    QCOMPARE(window->page->messages, QStringList());
}

void TestPageReports::aReplacedMarkerIsNoMoreUnderThePointer()
{
    rest(ndb);
    QTRY_VERIFY_WITH_TIMEOUT(isShown(), 20000);
    // Its navaid has gone to another place.
    window->run(R"(addNDBMarker2(new google.maps.LatLng(46.60000, 1.70000),"MONTLUCON-MT5FR",4,"x"))");
    QVERIFY(!isShown());
    window->settle();
    program->clear();
    window->mouse->moveTo(pixel(*window, ndb) + QPoint(2, 2));
    QTRY_VERIFY_WITH_TIMEOUT(!program->calls("doData").isEmpty(), 20000);
    QVERIFY(program->calls("doData").last().endsWith(" E\""));
}

void TestPageReports::aMarkerOfAHiddenLayerIsNoMoreUnderThePointer()
{
    rest(ndb);
    QTRY_VERIFY_WITH_TIMEOUT(isShown(), 20000);
    window->run("NDBTermMgr.clearMarkers()");
    QVERIFY(!isShown());
    QVERIFY(!window->run("document.getElementById('chart').classList.contains('over-point')").toBool());
}

void TestPageReports::aStillPointerLosesWhatGoes_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("left");
    QTest::newRow("both deleted") << "theLast = listVOR[0]; delNavaid(); theLast = listWptRte[0]; delWaypoint();"
                                  << " E\"";
    QTest::newRow("both hidden") << "VORMgr.clearMarkers();WPTRteMgr.clearMarkers()"
                                 << " E\"";
    QTest::newRow("the upper deleted") << "theLast = listVOR[0]; delNavaid();"
                                       << " E  Waypoint CGO\"";
    QTest::newRow("the upper hidden") << "VORMgr.clearMarkers()"
                                      << " E  Waypoint CGO\"";
    QTest::newRow("the lower deleted") << "theLast = listWptRte[0]; delWaypoint();"
                                       << " E  VOR-DME CGO\"";
    QTest::newRow("the lower hidden") << "WPTRteMgr.clearMarkers()"
                                      << " E  VOR-DME CGO\"";
}

void TestPageReports::aStillPointerLosesWhatGoes()
{
    QFETCH(QString, script);
    QFETCH(QString, left);
    rest(vorAndWaypoint);
    QVERIFY(isTold(" E  VOR-DME CGO, Waypoint CGO\""));
    window->run(script);
    QVERIFY2(isTold(left), qPrintable(program->calls("doData").last()));
}

void TestPageReports::aStillPointerMeetsWhatComes_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("script");
    QTest::newRow("shown") << "NDBTermMgr.clearMarkers()"
                           << "NDBTermMgr.addMarkers(listNDBTerm)";
    QTest::newRow("added")
        << "theLast = listNDBTerm[0]; delNavaid();"
        << "addNDBMarker2(new google.maps.LatLng(46.40000, 2.60000),\"MT-MT5FR\",4,\"<b>NDB MT</b>\")";
    QTest::newRow("planned") << "NDBTermMgr.clearMarkers()"
                             << "addPointToFp(new google.maps.LatLng(46.40000, 2.60000),\"MT\");pushFP();";
    QTest::newRow("big enough") << "ArptMgr.clearMarkers();VORMgr.clearMarkers();map.setZoom(5)"
                                << "map.setZoom(8)";
}

void TestPageReports::aStillPointerMeetsWhatComes()
{
    QFETCH(QString, before);
    QFETCH(QString, script);
    window->run("map.setCenter(new google.maps.LatLng(46.40000, 2.60000));" + before);
    window->settle();
    program->clear();
    rest(ndb);
    QVERIFY(isTold(" E\""));
    window->run(script);
    QVERIFY2(isTold(" E  NDB terminal MT\""), qPrintable(program->calls("doData").last()));
    QTRY_VERIFY_WITH_TIMEOUT(isShown(), 20000);
}

void TestPageReports::aFloodOfPointsIsOneReportAFrame()
{
    rest(ndb);
    QVERIFY(isTold(" E  NDB terminal MT\""));
    window->settle();
    holdFrames();
    program->clear();
    for (int i = 0; i < 50; ++i)
        window->run("NDBTermMgr.clearMarkers();NDBTermMgr.addMarkers(listNDBTerm)");
    QVERIFY(program->calls("doData").size() <= 1);
    for (int i = 0; i < 4; ++i) {
        program->clear();
        nextFrame();
        QVERIFY(program->calls("doData").size() <= 1);
    }
    QCOMPARE(program->calls("doData"), QStringList());
    window->mouse->moveTo(pixel(*window, ndb) + QPoint(1, 0));
    QVERIFY(program->calls("doData").last().endsWith(" E  NDB terminal MT\""));
}

void TestPageReports::aFloodOfMovesIsOneReportAFrame()
{
    window->mouse->moveTo({300, 500});
    window->settle();
    holdFrames();
    program->clear();
    for (int i = 0; i < 200; ++i)
        window->mouse->moveTo({300 + i % 100, 500});
    QCOMPARE(program->calls("doData").size(), 1);
    nextFrame();
    QCOMPARE(program->calls("doData").size(), 2);
    // The last place is the one that is told.
    const QString place = program->calls("doData").last();
    nextFrame();
    QCOMPARE(program->calls("doData").size(), 2);
    window->mouse->moveTo({399, 500});
    QCOMPARE(program->calls("doData").size(), 3);
    QCOMPARE(program->calls("doData").last(), place);
}

void TestPageReports::aFloodOfDragsIsOneReportAFrame()
{
    window->settle();
    holdFrames();
    program->clear();
    const auto send = [this](QEvent::Type type, const QPoint& point, Qt::MouseButton button, Qt::MouseButtons held) {
        QMouseEvent event(type, point, window->view->mapToGlobal(point), button, held, Qt::NoModifier);
        QApplication::sendEvent(window->view, &event);
    };
    send(QEvent::MouseButtonPress, {400, 500}, Qt::LeftButton, Qt::LeftButton);
    for (int i = 1; i <= 100; ++i)
        send(QEvent::MouseMove, {400 - i, 500}, Qt::NoButton, Qt::LeftButton);
    QCOMPARE(program->calls("doCenter").size(), 1);
    nextFrame();
    QCOMPARE(program->calls("doCenter").size(), 2);
    send(QEvent::MouseButtonRelease, {300, 500}, Qt::LeftButton, Qt::NoButton);
    // A script's move is told at once, whatever the frames do.
    program->clear();
    window->run("map.setCenter(new google.maps.LatLng(46.00000, 2.00000));");
    window->run("map.setCenter(new google.maps.LatLng(47.00000, 2.00000));");
    QCOMPARE(program->calls("doCenter"), (QStringList{"doCenter 46.00000 2.00000", "doCenter 47.00000 2.00000"}));
}

void TestPageReports::leavingTheMapEmptiesTheReport()
{
    window->run("page.startMeasure(new google.maps.LatLng(46, 2), '');");
    rest(airport);
    // Onto a box that lies on the map.
    window->mouse->moveTo(box(*window, "#measure").center().toPoint());
    QTRY_COMPARE_WITH_TIMEOUT(program->calls("doData").last(), QString("doData \"\""), 20000);
    QTest::qWait(600);
    QVERIFY(!isShown());
    QCOMPARE(program->calls("doData").last(), "doData \"\"");
}

void TestPageReports::theLastCentreOfADragIsReported()
{
    window->mouse->drag({400, 500}, {300, 450});
    const QString centreNow =
        window->run("'doCenter ' + map.getCenter().lat().toFixed(5) + ' ' + map.getCenter().lng().toFixed(5)")
            .toString();
    QCOMPARE(program->calls("doCenter").last(), centreNow);
    window->settle();
    QCOMPARE(program->calls("doCenter").last(), centreNow);
}

void TestPageReports::aViewThatMovesBelowTheMouseIsReported_data()
{
    QTest::addColumn<QString>("way");
    for (const char* way : {"key", "centre", "zoom", "following"})
        QTest::newRow(way) << way;
}

void TestPageReports::aViewThatMovesBelowTheMouseIsReported()
{
    QFETCH(QString, way);
    const auto isOver = [this] {
        return window->run("document.getElementById('chart').classList.contains('over-point')").toBool();
    };
    rest(airport);
    QTRY_VERIFY_WITH_TIMEOUT(program->calls("doData").last().endsWith("Aéroport LFLX\""), 20000);
    QVERIFY(isOver());
    program->clear();
    if (way == "key")
        window->pressKey(Qt::Key_Right);
    else if (way == "centre")
        window->run("map.setCenter(new google.maps.LatLng(46.50000, 2.30000));");
    else if (way == "zoom")
        window->run("map.setZoom(9)");
    else
        window->run(
            "addAcftMrkr(new google.maps.LatLng(46.70000, 2.30000),\"\",90);setAcftMrkr(new "
            "google.maps.LatLng(46.70000, 2.60000),90);;map.setCenter(new google.maps.LatLng(46.70000, 2.60000));");
    QTRY_VERIFY_WITH_TIMEOUT(!isOver(), 20000);
    QTRY_VERIFY_WITH_TIMEOUT(!program->calls("doData").isEmpty(), 20000);
    window->settle();
    // The place that is below the pointer now, and nothing on it.
    const QPoint place = pixel(*window, airport);
    QVERIFY(program->calls("doData").last().endsWith(" E\""));
    program->clear();
    // The marker goes back below it.
    if (way == "key")
        window->pressKey(Qt::Key_Left);
    else
        window->run("map.setZoom(8);map.setCenter(new google.maps.LatLng(46.70000, 2.30000));");
    QTRY_VERIFY_WITH_TIMEOUT(
        program->calls("doData").value(0) != "" && program->calls("doData").last().endsWith("Aéroport LFLX\""), 20000);
    QVERIFY(isOver());
    QVERIFY(pixel(*window, airport) != place);
}

void TestPageReports::aViewThatMovesWithoutTheMouseIsNot()
{
    rest(airport);
    // Out of the window.
    window->mouse->moveTo({-20, 300});
    QTRY_COMPARE_WITH_TIMEOUT(program->calls("doData").last(), QString("doData \"\""), 20000);
    program->clear();
    window->run("map.setCenter(new google.maps.LatLng(46.50000, 2.30000));");
    window->settle();
    QCOMPARE(program->calls("doData"), QStringList());
}

void TestPageReports::theViewsMovesAreOneReportAFrame()
{
    rest(airport);
    window->settle();
    holdFrames();
    program->clear();
    for (int i = 0; i < 50; ++i)
        window->run(QString("map.setCenter(new google.maps.LatLng(46.%1, 2.30000));").arg(50 + i));
    QCOMPARE(program->calls("doData").size(), 0);
    nextFrame();
    QCOMPARE(program->calls("doData").size(), 1);
}

QTEST_MAIN(TestPageReports)
#include "tst_pagereports.moc"
