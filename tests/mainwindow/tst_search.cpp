// The search dock: what is found, how it stands in the tree, and where a result goes.
#include "boxresponder.h"
#include "sandbox.h"
#include "windowsession.h"

#include "cflightplan.h"
#include "cnavglobalvar.h"
#include "mainwindow.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QtTest>

namespace {

QImage shown(const QIcon& icon)
{
    return icon.pixmap(16, 16).toImage();
}

/// Columns 1 to 5 of an item.
QStringList texts(const QTreeWidgetItem* item)
{
    QStringList found;
    for (int column = 1; column <= 5; ++column)
        found << item->text(column);
    return found;
}

} // namespace

class TestSearch : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void smallLettersStandInCapitalsAfterwards();
    void airportWithItsRunways();
    void theViewIsGivenWhatTheItemsSay();
    void navaidItem();
    void waypointItem();
    void navaidIcon_data();
    void navaidIcon();
    void otherIcons();
    void orderIsThatOfTheTables();
    void everyTableIsSearched();
    void noCountryFilter();
    void exactNeedsTheWholeKey();
    void nearTakesTheBeginningOfAKey();
    void nearTakesAnyPartOfAName();
    void emptyExactSearchFindsNothing();
    void emptyExactSearchFindsARowWithAnEmptyKey();
    void emptyNearSearchListsEverything();
    void nearSearchBringsTheRunwaysOfALongerKey();
    void exactSearchDoesNot();
    void returnIsTheExactSearch();
    void typedReturnSearches();
    void nothingFoundLeavesTheTreeEmptyWithNoMessage();
    void doubleQuoteShowsTheErrorAndGoesOn();
    void foundLinesTakeSpeedAndAltitudeFromTheDock();
    void runwayLinesDoNot();

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
    QStringList keys() const
    {
        QStringList found;
        for (int i = 0; i < tree()->topLevelItemCount(); ++i)
            found << tree()->topLevelItem(i)->text(4);
        return found;
    }

    QScopedPointer<Sandbox> sandbox;
    QScopedPointer<WindowSession> session;
};

void TestSearch::init()
{
    sandbox.reset(new Sandbox);
    sandbox->addAirport();
    sandbox->addRunway({{"rhmh", 240.0}, {"rlmh", 60.0}});
    sandbox->addNavaid();
    sandbox->addWaypoint();
    session.reset(new WindowSession);
}

void TestSearch::cleanup()
{
    session.reset();
    sandbox.reset();
}

void TestSearch::smallLettersStandInCapitalsAfterwards()
{
    search("lfpo", true);
    QCOMPARE(session->find<QLineEdit>("searchData")->text(), QString("LFPO"));
    QCOMPARE(keys(), QStringList{"LFPO"});
}

void TestSearch::airportWithItsRunways()
{
    sandbox->addRunway({{"nseq", 2}, {"rhid", "25"}, {"rlid", "07"}});
    search("LFPO", true);
    QCOMPARE(tree()->topLevelItemCount(), 1);
    const QTreeWidgetItem* airport = tree()->topLevelItem(0);
    QCOMPARE(texts(airport), (QStringList{"LFPO", "FR", "PARIS ORLY", "LFPO", "0"}));
    QCOMPARE(airport->childCount(), 4);
    QCOMPARE(texts(airport->child(0)), (QStringList{"24", "", "RWY 24", "NONE", "1"}));
    QCOMPARE(texts(airport->child(1)), (QStringList{"06", "", "RWY 06", "NONE", "2"}));
    QCOMPARE(texts(airport->child(2)), (QStringList{"25", "", "RWY 25", "NONE", "3"}));
    QCOMPARE(texts(airport->child(3)), (QStringList{"07", "", "RWY 07", "NONE", "4"}));
    QCOMPARE(airport->child(0)->childCount(), 0);
    QCOMPARE(airport->type(), 0);
    QCOMPARE(airport->child(0)->type(), 0);
}

void TestSearch::theViewIsGivenWhatTheItemsSay()
{
    search("LFPO", true);
    const QAbstractItemModel* model = tree()->model();
    const QModelIndex airport = model->index(0, 0);
    const auto shownTexts = [](const QModelIndex& first) {
        QStringList shown;
        for (int column = 0; column <= 4; ++column)
            shown << first.sibling(first.row(), column).data().toString();
        return shown;
    };
    QCOMPARE(shownTexts(airport), (QStringList{"", "LFPO", "FR", "PARIS ORLY", "LFPO"}));
    QCOMPARE(shownTexts(model->index(1, 0, airport)), (QStringList{"", "06", "", "RWY 06", "NONE"}));
    QVERIFY(!airport.data(Qt::DecorationRole).isNull());
    QVERIFY(!airport.sibling(0, 1).data(Qt::DecorationRole).isValid());
    QCOMPARE(airport.sibling(0, 1).data(Qt::EditRole).toString(), tree()->topLevelItem(0)->text(1));
    QCOMPARE(tree()->topLevelItem(0)->type(), 0);
}

void TestSearch::navaidItem()
{
    search("RBT", true);
    QCOMPARE(tree()->topLevelItemCount(), 1);
    QCOMPARE(texts(tree()->topLevelItem(0)), (QStringList{"RBT", "FR", "RAMBOUILLET", "RBT", "0"}));
}

void TestSearch::waypointItem()
{
    sandbox->addWaypoint({{"ukey", "K123"}, {"iden", "ABLAN"}, {"name", "ABLAN NORD"}, {"ctry", "SP"}});
    search("K123", true);
    QCOMPARE(tree()->topLevelItemCount(), 1);
    QCOMPARE(texts(tree()->topLevelItem(0)), (QStringList{"ABLAN", "SP", "ABLAN NORD", "K123", "0"}));
}

void TestSearch::navaidIcon_data()
{
    QTest::addColumn<QString>("icon");
    for (const char* type : {"1", "4", "16", "17"})
        QTest::newRow(type) << ":/icon/images/Img05.bmp";
    for (const char* type : {"8", "32"})
        QTest::newRow(type) << ":/icon/images/Img03.bmp";
    // 24 is an NDB on the map and has no icon here.
    for (const char* type : {"0", "2", "6", "24"})
        QTest::newRow(type) << "";
}

void TestSearch::navaidIcon()
{
    QFETCH(QString, icon);
    sandbox->addNavaid({{"ukey", "XYZ"}, {"ntyp", QString(QTest::currentDataTag()).toInt()}});
    search("XYZ", true);
    QCOMPARE(tree()->topLevelItemCount(), 1);
    const QImage found = shown(tree()->topLevelItem(0)->icon(0));
    QCOMPARE(found.isNull(), icon.isEmpty());
    QCOMPARE(found, icon.isEmpty() ? QImage() : shown(QIcon(icon)));
}

void TestSearch::otherIcons()
{
    search("", false);
    const QTreeWidgetItem* airport = tree()->topLevelItem(0);
    QCOMPARE(shown(airport->icon(0)), shown(QIcon(":/icon/images/Img08.bmp")));
    QCOMPARE(shown(airport->child(0)->icon(0)), shown(QIcon(":/icon/images/Img10.bmp")));
    QCOMPARE(shown(airport->child(1)->icon(0)), shown(QIcon(":/icon/images/Img10.bmp")));
    QCOMPARE(shown(tree()->topLevelItem(2)->icon(0)), shown(QIcon(":/icon/images/Img12.bmp")));
    for (const char* name : {"Img03", "Img05", "Img08", "Img10", "Img12"})
        QVERIFY2(!shown(QIcon(QStringLiteral(":/icon/images/%1.bmp").arg(name))).isNull(), name);
}

void TestSearch::orderIsThatOfTheTables()
{
    sandbox->addAirport({{"ukey", "AAAA"}});
    sandbox->addWaypoint({{"ukey", "AAA"}});
    search("", false);
    QCOMPARE(keys(), (QStringList{"LFPO", "AAAA", "RBT", "BAMES", "AAA"}));
    QVERIFY(!tree()->isSortingEnabled());
    // The index goes on over runways and tables.
    QCOMPARE(tree()->topLevelItem(1)->text(5), QString("3"));
    QCOMPARE(tree()->topLevelItem(4)->text(5), QString("6"));
    QCOMPARE(CNavGlobalVar::instance()->flightPlan->foundLines.size(), 7);
}

void TestSearch::everyTableIsSearched()
{
    sandbox->addAirport({{"ukey", "SAME"}});
    sandbox->addNavaid({{"ukey", "SAME"}});
    sandbox->addWaypoint({{"ukey", "SAME"}});
    search("same", true);
    QCOMPARE(keys(), (QStringList{"SAME", "SAME", "SAME"}));
}

void TestSearch::noCountryFilter()
{
    sandbox->addAirport({{"ukey", "EGLL"}, {"ctry", "UK"}});
    sandbox->addWaypoint({{"ukey", "KESAX"}, {"ctry", "UK"}, {"wloc", 86}});
    search("EGLL", true);
    QCOMPARE(keys(), QStringList{"EGLL"});
    search("KESAX", true);
    QCOMPARE(keys(), QStringList{"KESAX"});
}

void TestSearch::exactNeedsTheWholeKey()
{
    search("LFP", true);
    QCOMPARE(keys(), QStringList());
    search("PARIS ORLY", true);
    QCOMPARE(keys(), QStringList{"LFPO"});
}

void TestSearch::nearTakesTheBeginningOfAKey()
{
    search("LFP", false);
    QCOMPARE(keys(), QStringList{"LFPO"});
    search("FPO", false);
    QCOMPARE(keys(), QStringList());
}

void TestSearch::nearTakesAnyPartOfAName()
{
    search("bouil", false);
    QCOMPARE(keys(), QStringList{"RBT"});
}

void TestSearch::emptyExactSearchFindsNothing()
{
    search("", true);
    QCOMPARE(keys(), QStringList());
}

void TestSearch::emptyExactSearchFindsARowWithAnEmptyKey()
{
    sandbox->addNavaid({{"ukey", ""}, {"name", "WITHOUT A KEY"}});
    search("", true);
    QCOMPARE(tree()->topLevelItemCount(), 1);
    QCOMPARE(tree()->topLevelItem(0)->text(3), QString("WITHOUT A KEY"));
}

void TestSearch::emptyNearSearchListsEverything()
{
    sandbox->addAirport({{"ukey", "EGLL"}, {"ctry", "UK"}});
    search("", false);
    QCOMPARE(keys(), (QStringList{"LFPO", "EGLL", "RBT", "BAMES"}));
    QCOMPARE(tree()->topLevelItem(0)->childCount(), 2);
    QCOMPARE(tree()->topLevelItem(1)->childCount(), 0);
}

void TestSearch::nearSearchBringsTheRunwaysOfALongerKey()
{
    sandbox->addAirport({{"ukey", "LFPO2"}});
    sandbox->addRunway({{"rapt", "LFPO2"}, {"rhid", "18"}, {"rlid", "36"}});
    search("LFPO", false);
    QCOMPARE(keys(), (QStringList{"LFPO", "LFPO2"}));
    QCOMPARE(tree()->topLevelItem(0)->childCount(), 4);
    QCOMPARE(tree()->topLevelItem(1)->childCount(), 2);
    QCOMPARE(tree()->topLevelItem(0)->child(2)->text(1), QString("18"));
}

void TestSearch::exactSearchDoesNot()
{
    sandbox->addRunway({{"rapt", "LFPO2"}, {"rhid", "18"}, {"rlid", "36"}});
    search("LFPO", true);
    QCOMPARE(tree()->topLevelItem(0)->childCount(), 2);
}

void TestSearch::returnIsTheExactSearch()
{
    session->find<QLineEdit>("searchData")->setText("lfp");
    QMetaObject::invokeMethod(session->find<QLineEdit>("searchData"), "returnPressed");
    QCOMPARE(session->find<QLineEdit>("searchData")->text(), QString("LFP"));
    QCOMPARE(keys(), QStringList());
}

void TestSearch::typedReturnSearches()
{
    session->window().show();
    QTest::keyClicks(session->find<QLineEdit>("searchData"), "rbt");
    QTest::keyClick(session->find<QLineEdit>("searchData"), Qt::Key_Return);
    QCOMPARE(keys(), QStringList{"RBT"});
}

void TestSearch::nothingFoundLeavesTheTreeEmptyWithNoMessage()
{
    BoxResponder boxes;
    search("LFPO", true);
    search("ZZZZ", true);
    QCOMPARE(tree()->topLevelItemCount(), 0);
    QVERIFY(CNavGlobalVar::instance()->flightPlan->foundLines.isEmpty());
    QVERIFY(boxes.seen().isEmpty());
}

void TestSearch::doubleQuoteShowsTheErrorAndGoesOn()
{
    BoxResponder boxes;
    // Each of the three columns of each of the three tables fails.
    for (int i = 0; i < 9; ++i)
        boxes.expectAnyMessage();
    search("A\"B", true);
    QCOMPARE(boxes.seen().size(), 9);
    for (const SeenBox& box : boxes.seen())
        QCOMPARE(box.title, QString("SQL Error"));
    QVERIFY(boxes.seen().value(0).text.contains("SELECT * FROM APT WHERE ukey = \"A\"B\""));
    QVERIFY(boxes.seen().value(8).text.contains("SELECT * FROM WPT WHERE name = \"A\"B\""));
}

void TestSearch::foundLinesTakeSpeedAndAltitudeFromTheDock()
{
    session->find<QLineEdit>("leSpeedCruise")->setText("450");
    session->find<QLineEdit>("leAltCruise")->setText("33000");
    search("", false);
    for (const int index : {0, 3, 4}) {
        const CFpLinePtr line = CNavGlobalVar::instance()->flightPlan->foundLines.at(index);
        QCOMPARE(line->speed, 450);
        QCOMPARE(line->altd, 33000);
    }
    session->find<QLineEdit>("leSpeedCruise")->setText("fast");
    search("LFPO", true);
    QCOMPARE(CNavGlobalVar::instance()->flightPlan->foundLines.first()->speed, 0);
}

void TestSearch::runwayLinesDoNot()
{
    session->find<QLineEdit>("leSpeedCruise")->setText("450");
    session->find<QLineEdit>("leAltCruise")->setText("33000");
    search("LFPO", true);
    const CFpLinePtr high = CNavGlobalVar::instance()->flightPlan->foundLines.at(1);
    QCOMPARE(high->speed, 0);
    QCOMPARE(high->altd, 290);
    QCOMPARE(high->heading, 240.0);
}

QTEST_MAIN(TestSearch)
#include "tst_search.moc"
