// The procedure drawn beside the plan: one script of its points, and the docks that wipe it.
#include "proceduretest.h"

#include <QDockWidget>
#include <QtTest>

#include <limits>

namespace {

/// Makes the page keep the numbers that a position is made of: a position itself turns its longitude round.
const char keepPlaces[] = R"js(
    window.keptPlaces = [];
    window.plainLatLng = window.plainLatLng || google.maps.LatLng;
    google.maps.LatLng = function (latitude, longitude) {
        keptPlaces.push(latitude + ' ' + longitude);
        return new plainLatLng(latitude, longitude);
    };
)js";

} // namespace

class TestShownProcedure : public ProcedureTest
{
    Q_OBJECT

private slots:
    void aShownProcedureIsDrawnBehindAClearedLayer()
    {
        rows->add({{"strm", "ORLY1"}, {"sqnm", 10}, {"swid", "LFPO"}, {"slat", 175410}, {"slon", 8494.5}});
        rows->add({{"strm", "ORLY1"}, {"sqnm", 20}, {"swid", "BAMES"}, {"slat", -100000}, {"slon", -5000}});
        rows->add({{"strm", "ORLY2"}, {"sqnm", 10}, {"swid", "ETAMP"}});
        win->window->showSidStar("ORLY1");
        QCOMPARE(win->told(), QString("clearSS() addPointToSS(LatLng(48.725,2.35958),\"LFPO\") "
                                      "addPointToSS(LatLng(-27.77778,-1.38889),\"BAMES\")"));
    }

    void rowsAreDrawnWhateverTheirTypeAndNumber()
    {
        rows->add(
            {{"strm", "A1"}, {"sqnm", 30}, {"styp", 1}, {"swpt", 0}, {"swid", "ONE"}, {"slat", 3600}, {"slon", 0}});
        rows->add(
            {{"strm", "A1"}, {"sqnm", 20}, {"styp", 2}, {"swpt", 9}, {"swid", "TWO"}, {"slat", 0}, {"slon", 3600}});
        win->window->showSidStar("A1");
        QCOMPARE(win->told(), QString("clearSS() addPointToSS(LatLng(1,0),\"ONE\") addPointToSS(LatLng(0,1),\"TWO\")"));
    }

    void anAirportsKeyDrawsAllItsProcedures()
    {
        rows->add({{"strm", "A1"}, {"sqnm", 10}, {"swid", "ONE"}, {"slat", 3600}, {"slon", 3600}});
        rows->add({{"strm", "B1"}, {"sqnm", 10}, {"swid", "TWO"}, {"slat", 7200}, {"slon", 7200}});
        win->window->showSidStar("FR001");
        QCOMPARE(win->told(), QString("clearSS() addPointToSS(LatLng(1,1),\"ONE\") addPointToSS(LatLng(2,2),\"TWO\")"));
    }

    void aLongitudeIsWrappedToTheHalfCircle_data()
    {
        QTest::addColumn<double>("stored");
        QTest::addColumn<QString>("place");
        QTest::newRow("east") << 3600.0 << "48 1";
        QTest::newRow("west") << -3600.0 << "48 -1";
        QTest::newRow("west, counted eastwards") << 1292400.0 << "48 -1";
        QTest::newRow("a turn too far east") << 2595600.0 << "48 1";
        QTest::newRow("two turns too far east") << 3888000.0 + 3600.0 << "48 1";
        QTest::newRow("a turn too far west") << -1299600.0 << "48 -1";
        QTest::newRow("two turns too far west") << -2592000.0 - 3600.0 << "48 -1";
        QTest::newRow("180 degrees stay east") << 648000.0 << "48 180";
        QTest::newRow("past 180 degrees") << 651600.0 << "48 -179";
        QTest::newRow("180 degrees west") << -648000.0 << "48 180";
        QTest::newRow("exactly a full turn") << 1296000.0 << "48 0";
        QTest::newRow("five decimals") << 8494.567 << "48 2.3596";
        QTest::newRow("six decimals rounded") << 100000.0 << "48 27.77778";
    }
    void aLongitudeIsWrappedToTheHalfCircle()
    {
        QFETCH(double, stored);
        QFETCH(QString, place);
        rows->add({{"strm", "A1"}, {"sqnm", 10}, {"slat", 172800}, {"slon", stored}});
        win->probe->evaluate(keepPlaces);
        win->window->showSidStar("A1");
        const QStringList kept = win->probe->evaluate("keptPlaces").toStringList();
        win->probe->evaluate("google.maps.LatLng = plainLatLng");
        QCOMPARE(kept.value(0), place);
    }

    void aPositionThatIsNoneHangsNothing_data()
    {
        QTest::addColumn<QVariant>("stored");
        QTest::newRow("infinite") << QVariant(std::numeric_limits<double>::infinity());
        QTest::newRow("infinitely far west") << QVariant(-std::numeric_limits<double>::infinity());
        QTest::newRow("huge") << QVariant(1e300);
        QTest::newRow("a word") << QVariant("west");
        QTest::newRow("no value") << QVariant();
    }
    void aPositionThatIsNoneHangsNothing()
    {
        QFETCH(QVariant, stored);
        rows->add({{"strm", "A1"}, {"sqnm", 10}, {"swid", "ONE"}, {"slat", 3600}, {"slon", 3600}});
        rows->add({{"strm", "A1"}, {"sqnm", 20}, {"swid", "TWO"}, {"slat", 3600}, {"slon", stored}});
        win->window->showSidStar("A1");
        QVERIFY(win->told().startsWith("clearSS() addPointToSS(LatLng(1,1),\"ONE\")"));
    }

    void theWholeProcedureIsOneScriptBehindTheOneThatClears()
    {
        // The quote ends the name too early, and with it the script of all points.
        rows->add({{"strm", "A1"}, {"sqnm", 10}, {"swid", "ONE"}});
        rows->add({{"strm", "A1"}, {"sqnm", 20}, {"swid", "T\"WO"}});
        rows->add({{"strm", "A1"}, {"sqnm", 30}, {"swid", "THREE"}});
        win->window->showSidStar("A1");
        QCOMPARE(win->told(), QString("clearSS()"));
    }

    void aNameWithAPlaceNumberStaysAsItIs()
    {
        rows->add({{"strm", "A1"}, {"sqnm", 10}, {"swid", "%1"}, {"slat", 3600}, {"slon", 7200}});
        win->window->showSidStar("A1");
        QCOMPARE(win->told(), QString("clearSS() addPointToSS(LatLng(1,2),\"%1\")"));
    }

    void withoutARowTheLayerIsOnlyCleared()
    {
        rows->addProcedure("ORLY1", 2, {"BAMES"});
        for (const char* name : {"ORLY", "orly1", "ORLY1 ", ""}) {
            win->window->showSidStar(name);
            QCOMPARE(win->told(), QString("clearSS()"));
            win->clearCalls();
        }
    }

    void clearingTheLayerIsOneCall()
    {
        win->window->clearSidStarOnMap();
        QCOMPARE(win->told(), QString("clearSS()"));
    }

    void aDockThatComesToTheFrontWipesTheProcedure_data()
    {
        QTest::addColumn<QString>("dock");
        QTest::newRow("flight plan") << "dockWFlightPlan";
        QTest::newRow("SID") << "dockWSid";
        QTest::newRow("STAR") << "dockWStar";
    }
    void aDockThatComesToTheFrontWipesTheProcedure()
    {
        QFETCH(QString, dock);
        emit win->window->findChild<QDockWidget*>(dock)->visibilityChanged(true);
        QCOMPARE(win->told(), QString("clearSS()"));
        win->clearCalls();
        emit win->window->findChild<QDockWidget*>(dock)->visibilityChanged(false);
        QCOMPARE(win->told(), QString());
        win->bringToFront(dock);
        QVERIFY(win->isInFront(dock));
        QVERIFY(!win->probe->calls("clearSS").isEmpty());
        win->clearCalls();
        win->bringToFront("dockWDebug");
        QVERIFY(!win->isInFront(dock));
        QCOMPARE(win->told(), QString());
    }

    void anotherDockThatComesToTheFrontLeavesTheProcedure()
    {
        for (const char* dock : {"dockWAircraft", "dockWDebug"}) {
            win->bringToFront(dock);
            QVERIFY(win->isInFront(dock));
            QCOMPARE(win->told(), QString());
        }
    }

private:
    void startOfEach() override
    {
        win->bringToFront("dockWDebug");
        win->clearCalls();
    }
};

QTEST_MAIN(TestShownProcedure)
#include "tst_shownprocedure.moc"
