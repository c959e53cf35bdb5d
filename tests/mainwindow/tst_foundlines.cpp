// What a search result is good for: a double click puts it into the plan, its menu centres the map on it.
#include "sandbox.h"
#include "windowsession.h"

#include "cflightplan.h"
#include "cnavglobalvar.h"
#include "mainwindow.h"

#include <QDockWidget>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTreeWidget>
#include <QtTest>

class TestFoundLines : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void firstDoubleClickEnablesThePlanCommands();
    void doubleClickGoesBehindTheCurrentRow();
    void withoutACurrentRowTheLineGoesToPlaceOne();
    void doubleClickOnARunwayEnd();
    void doubleClickRedrawsTheRouteAndRaisesThePlan();
    void doubleClickFillsTheProceduresOfTheAirport();
    void doubleClickedTwiceIsTheSameLine();
    void secondSearchLeavesThePlanValid();
    void centreOnTheCurrentItem();
    void centreWithoutAnItemDoesNothing();

private:
    void search(const QString& text, bool exact)
    {
        session->find<QLineEdit>("searchData")->setText(text);
        session->find<QPushButton>(exact ? "btnSearchExact" : "btnSearchNear")->click();
    }
    QTreeWidget* tree() const
    {
        return session->find<QTreeWidget>("treeWFound");
    }
    QTableWidget* grid() const
    {
        return session->find<QTableWidget>("fltplnGrid");
    }
    QStringList keys() const
    {
        QStringList found;
        for (int i = 0; i < tree()->topLevelItemCount(); ++i)
            found << tree()->topLevelItem(i)->text(4);
        return found;
    }
    QStringList planNames() const
    {
        QStringList found;
        for (const CFpLinePtr& line : CNavGlobalVar::instance()->flightPlan->lines)
            found << line->name;
        return found;
    }
    void doubleClick(QTreeWidgetItem* item)
    {
        QMetaObject::invokeMethod(tree(), "itemDoubleClicked", Q_ARG(QTreeWidgetItem*, item), Q_ARG(int, 1));
    }

    QScopedPointer<Sandbox> sandbox;
    QScopedPointer<WindowSession> session;
};

void TestFoundLines::init()
{
    sandbox.reset(new Sandbox);
    sandbox->addAirport();
    sandbox->addRunway({{"rhmh", 240.0}, {"rlmh", 60.0}});
    sandbox->addNavaid();
    sandbox->addWaypoint();
    session.reset(new WindowSession);
}

void TestFoundLines::cleanup()
{
    session.reset();
    sandbox.reset();
}

void TestFoundLines::firstDoubleClickEnablesThePlanCommands()
{
    QVERIFY(!session->find<QPushButton>("btnSaveFlightPlan")->isEnabled());
    search("RBT", true);
    doubleClick(tree()->topLevelItem(0));
    QCOMPARE(planNames(), QStringList{"RAMBOUILLET"});
    QVERIFY(session->find<QPushButton>("btnSaveFlightPlan")->isEnabled());
    QVERIFY(session->find<QPushButton>("btnStartPos")->isEnabled());
    QVERIFY(session->action("menuSaveFlightPlan")->isEnabled());
}

void TestFoundLines::doubleClickGoesBehindTheCurrentRow()
{
    search("", false);
    doubleClick(tree()->topLevelItem(0));
    doubleClick(tree()->topLevelItem(1));
    QCOMPARE(planNames(), (QStringList{"PARIS ORLY", "RAMBOUILLET"}));
    grid()->setCurrentCell(0, 1);
    doubleClick(tree()->topLevelItem(2));
    QCOMPARE(planNames(), (QStringList{"PARIS ORLY", "BAMES", "RAMBOUILLET"}));
    QCOMPARE(grid()->rowCount(), 3);
    QCOMPARE(grid()->currentRow(), 2);
}

void TestFoundLines::withoutACurrentRowTheLineGoesToPlaceOne()
{
    search("", false);
    doubleClick(tree()->topLevelItem(0));
    doubleClick(tree()->topLevelItem(1));
    grid()->setCurrentCell(-1, -1);
    session->window().setPlanActions(false);
    doubleClick(tree()->topLevelItem(2));
    QCOMPARE(planNames(), (QStringList{"PARIS ORLY", "BAMES", "RAMBOUILLET"}));
    QVERIFY(session->find<QPushButton>("btnSaveFlightPlan")->isEnabled());
}

void TestFoundLines::doubleClickOnARunwayEnd()
{
    search("LFPO", true);
    doubleClick(tree()->topLevelItem(0)->child(1));
    QCOMPARE(planNames(), QStringList{"RWY 06"});
    QCOMPARE(CNavGlobalVar::instance()->flightPlan->lines.first()->heading, 60.0);
}

void TestFoundLines::doubleClickRedrawsTheRouteAndRaisesThePlan()
{
    QVERIFY(session->load());
    search("", false);
    QVERIFY(grid()->visibleRegion().isEmpty());
    session->page().clear();
    doubleClick(tree()->topLevelItem(1));
    QVERIFY(!grid()->visibleRegion().isEmpty());
    QStringList calls = session->page().calls();
    calls.removeAll("clearSS()"); // sent by the dock that comes to the front
    QCOMPARE(calls, (QStringList{"clearFP()", "addPointToFp(LatLng(48.65,1.98333),\"RAMBOUILLET\")", "pushFP()"}));
}

void TestFoundLines::doubleClickFillsTheProceduresOfTheAirport()
{
    sandbox->addProcedureLeg({{"sqnm", 10}, {"styp", 2}});
    search("LFPO", true);
    doubleClick(tree()->topLevelItem(0));
    QCOMPARE(session->find<QDockWidget>("dockWSid")->windowTitle(), QString("SID : LFPO"));
    QCOMPARE(session->find<QDockWidget>("dockWStar")->windowTitle(), QString("STAR : LFPO"));
    QCOMPARE(session->find<QTreeWidget>("treeWSid")->topLevelItemCount(), 1);
}

void TestFoundLines::doubleClickedTwiceIsTheSameLine()
{
    search("RBT", true);
    doubleClick(tree()->topLevelItem(0));
    doubleClick(tree()->topLevelItem(0));
    const auto& lines = CNavGlobalVar::instance()->flightPlan->lines;
    QCOMPARE(lines.size(), 2);
    QCOMPARE(lines.at(0).data(), lines.at(1).data());
}

void TestFoundLines::secondSearchLeavesThePlanValid()
{
    search("RBT", true);
    doubleClick(tree()->topLevelItem(0));
    search("LFPO", true);
    QCOMPARE(keys(), QStringList{"LFPO"});
    QCOMPARE(planNames(), QStringList{"RAMBOUILLET"});
    QCOMPARE(grid()->item(0, 1)->text(), QString("RBT"));
    doubleClick(tree()->topLevelItem(0));
    QCOMPARE(planNames(), (QStringList{"RAMBOUILLET", "PARIS ORLY"}));
}

void TestFoundLines::centreOnTheCurrentItem()
{
    QVERIFY(session->load());
    sandbox->addWaypoint({{"ukey", "FIJI"}, {"wlat", arcSeconds(-17, 30)}, {"wlon", arcSeconds(181)}});
    search("FIJI", true);
    tree()->setCurrentItem(tree()->topLevelItem(0));
    session->page().clear();
    session->action("actFndCenter")->trigger();
    QCOMPARE(session->page().calls(), QStringList{"map.setCenter(LatLng(-17.5,-179))"});
}

void TestFoundLines::centreWithoutAnItemDoesNothing()
{
    QVERIFY(session->load());
    session->page().clear();
    session->action("actFndCenter")->trigger();
    QCOMPARE(session->page().calls(), QStringList());
}

QTEST_MAIN(TestFoundLines)
#include "tst_foundlines.moc"
