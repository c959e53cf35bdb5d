// The start marker: drawn by the page's wish and by the inertial spinner, moved by the mouse.
#include "boxresponder.h"
#include "cflightplan.h"
#include "mainwindow.h"
#include "planwindow.h"

#include <QComboBox>
#include <QSpinBox>
#include <QtTest>

class TestStartMarker : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        boxes.reset(new BoxResponder);
        win.reset(new PlanWindow);
    }
    void cleanup()
    {
        win.reset();
        boxes.reset();
    }

    void drawingChangesNoData()
    {
        win->add({"LFPO"});
        win->window->sAddSitToFp(10.0, 20.0);
        QCOMPARE(win->told(), QString("addSitMarker(LatLng(10,20),\"CESSNA 172\",243.5)"));
        QCOMPARE(win->plan().startLine.latS, 175440.0);
        QCOMPARE(win->plan().startLine.lonS, 8650.0);
    }

    void drawingTakesEightDecimalsAndWrapsTheLongitude_data()
    {
        QTest::addColumn<double>("latitude");
        QTest::addColumn<double>("longitude");
        QTest::addColumn<QString>("position");
        QTest::newRow("decimals") << 48.123456789 << 2.123456789 << "LatLng(48.12345679,2.12345679)";
        QTest::newRow("west as east") << 1.0 << 359.0 << "LatLng(1,-1)";
        QTest::newRow("west") << -1.5 << -0.25 << "LatLng(-1.5,-0.25)";
        QTest::newRow("a round more") << 1.0 << 725.0 << "LatLng(1,5)";
    }
    void drawingTakesEightDecimalsAndWrapsTheLongitude()
    {
        QFETCH(double, latitude);
        QFETCH(double, longitude);
        QFETCH(QString, position);
        win->window->sAddSitToFp(latitude, longitude);
        QCOMPARE(win->told(), "addSitMarker(" + position + ",\"CESSNA 172\",0)");
    }

    void theSpinnerSetsTheHeadingAndRedrawsTheMarker()
    {
        win->add({"LFPO"});
        auto* spinner = win->window->findChild<QSpinBox*>("spInertial");
        spinner->setValue(90);
        QCOMPARE(win->plan().startLine.heading, 90.0);
        QCOMPARE(win->told(), QString("addSitMarker(LatLng(48.73333333,2.40277778),\"CESSNA 172\",90)"));
        win->clearCalls();
        spinner->stepUp();
        QCOMPARE(win->told(), QString("addSitMarker(LatLng(48.73333333,2.40277778),\"CESSNA 172\",91)"));
    }

    void theSpinnerGoesFrom0To359Degrees()
    {
        auto* spinner = win->window->findChild<QSpinBox*>("spInertial");
        spinner->setValue(400);
        QCOMPARE(win->plan().startLine.heading, 359.0);
        QCOMPARE(spinner->text(), QString("359°"));
        spinner->setValue(-5);
        QCOMPARE(win->plan().startLine.heading, 0.0);
    }

    void theSpinnerKeepsPlaceAndElevation()
    {
        win->add({"LFPO"});
        win->window->findChild<QSpinBox*>("spInertial")->setValue(7);
        QCOMPARE(win->plan().startLine.latS, 175440.0);
        QCOMPARE(win->plan().startLine.lonS, 8650.0);
        QCOMPARE(win->plan().startLine.elev, 290);
    }

    void aDraggedMarkerMovesTheStartWithoutScript()
    {
        win->add({"LFPO"});
        win->window->doMoveSIT(48.75, 2.5);
        QCOMPARE(win->plan().startLine.latS, 175500.0);
        QCOMPARE(win->plan().startLine.lonS, 9000.0);
        QCOMPARE(win->plan().startLine.elev, 290);
        QCOMPARE(win->plan().startLine.heading, 243.5);
        QCOMPARE(win->told(), QString());
    }

    void aDraggedMarkerWrapsTheLongitude_data()
    {
        QTest::addColumn<double>("longitude");
        QTest::addColumn<double>("arcSeconds");
        QTest::newRow("west") << -1.0 << 1292400.0;
        QTest::newRow("east") << 1.0 << 3600.0;
        QTest::newRow("a full circle stays") << 360.0 << 1296000.0;
        QTest::newRow("past a full circle") << 361.0 << 3600.0;
        QTest::newRow("two rounds back") << -719.0 << 3600.0;
    }
    void aDraggedMarkerWrapsTheLongitude()
    {
        QFETCH(double, longitude);
        QFETCH(double, arcSeconds);
        win->window->doMoveSIT(-10.0, longitude);
        QCOMPARE(win->plan().startLine.latS, -36000.0);
        QCOMPARE(win->plan().startLine.lonS, arcSeconds);
    }

    void theMouseDragsTheMarkerAndMovesTheStart()
    {
        win->add({"LFPO"});
        win->probe->evaluate("map.setZoom(9);map.setCenter(new google.maps.LatLng(48.73333333,2.40277778))");
        const QPoint marker = win->probe->pointOf(48.73333333, 2.40277778);
        win->clearCalls();
        win->probe->drag(marker, marker + QPoint(60, -40));
        // 60 points east and 40 north at this zoom; the page knows the marker's place to a point or so.
        QTRY_VERIFY_WITH_TIMEOUT(qAbs(win->plan().startLine.lonS - (8650.0 + 593.0)) < 20.0, 20000);
        QVERIFY(qAbs(win->plan().startLine.latS - (175440.0 + 261.0)) < 20.0);
        QCOMPARE(win->told(), QString());
        QCOMPARE(win->plan().startLine.elev, 290);
        QCOMPARE(win->plan().startLine.heading, 243.5);
    }

    void thePageMovesTheStart()
    {
        win->probe->evaluate("mainWindow.doMoveSIT(48.5, 2.25)");
        QCOMPARE(win->plan().startLine.latS, 174600.0);
        QCOMPARE(win->plan().startLine.lonS, 8100.0);
    }

    void theMarkerCarriesTheAircraftThatTheDockShows()
    {
        win->window->findChild<QComboBox*>("cbAircraftType")->setItemText(0, "PIPER");
        win->window->sAddSitToFp(1.0, 2.0);
        QCOMPARE(win->told(), QString("addSitMarker(LatLng(1,2),\"PIPER\",0)"));
    }

private:
    QScopedPointer<BoxResponder> boxes;
    QScopedPointer<PlanWindow> win;
};

QTEST_MAIN(TestStartMarker)
#include "tst_startmarker.moc"
