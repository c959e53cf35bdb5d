// The whole job with the mouse: a plan of two airports that gets the departure's SID and the destination's STAR.
#include "boxresponder.h"
#include "mainwindow.h"
#include "planwindow.h"
#include "storedprocedures.h"

#include <QPushButton>
#include <QTabBar>
#include <QTableWidget>
#include <QtTest>

namespace {

/// What the page has drawn of a line (`page.route`, `page.procedure`): names and latitudes of its points.
QString drawn(PageProbe& page, const QString& line)
{
    const QString script = "page.%1.lines.length ? page.%1.points.slice(0, page.%1.drawn).map(function (point) {"
                           "return point.name + ' ' + point.position.lat(); }).join(', ') : ''";
    return page.evaluate(script.arg(line)).toString();
}

} // namespace

class TestPlanWithProcedures : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void aPlanComesTogetherWithSidAndStar();

private:
    void addProcedures();
    QTreeWidget* tree(const QString& name) const;
    void openTab(const QString& title) const;
    void clickRow(int row) const;
    void clickProcedure(const QString& treeName, const QString& procedure) const;
    void press(const QString& button) const;
    void addFromMap(double latitude, double longitude) const;

    QScopedPointer<PlanWindow> win;
};

void TestPlanWithProcedures::initTestCase()
{
    // On another place than LFPO, which is clicked on the map.
    win.reset(new PlanWindow(
        [](const Sandbox& sandbox) { sandbox.sql(dbfile::gen, "UPDATE APT SET alat = 60000 WHERE ukey = 'XX001'"); }));
    win->window->resize(1280, 960);
}

QTreeWidget* TestPlanWithProcedures::tree(const QString& name) const
{
    return win->window->findChild<QTreeWidget*>(name);
}

void TestPlanWithProcedures::openTab(const QString& title) const
{
    for (QTabBar* bar : win->window->findChildren<QTabBar*>()) {
        for (int tab = 0; tab < bar->count(); ++tab) {
            if (bar->tabText(tab) == title) {
                QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, bar->tabRect(tab).center());
                QCoreApplication::processEvents();
                return;
            }
        }
    }
    QFAIL(qPrintable("no tab " + title));
}

void TestPlanWithProcedures::clickRow(int row) const
{
    QTableWidget* grid = win->grid();
    const QPoint place = grid->visualItemRect(grid->item(row, 1)).center();
    QVERIFY(grid->viewport()->rect().contains(place));
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, Qt::NoModifier, place);
}

void TestPlanWithProcedures::clickProcedure(const QString& treeName, const QString& procedure) const
{
    const QList<QTreeWidgetItem*> found = tree(treeName)->findItems(procedure, Qt::MatchExactly);
    QCOMPARE(found.size(), 1);
    const QPoint place = tree(treeName)->visualItemRect(found.first()).center();
    QVERIFY(tree(treeName)->viewport()->rect().contains(place));
    QVERIFY(tree(treeName)->isVisible());
    QTest::mouseClick(tree(treeName)->viewport(), Qt::LeftButton, Qt::NoModifier, place);
}

void TestPlanWithProcedures::press(const QString& button) const
{
    auto* found = win->window->findChild<QPushButton*>(button);
    QVERIFY(found && found->isVisible() && found->isEnabled());
    QTest::mouseClick(found, Qt::LeftButton);
}

void TestPlanWithProcedures::addFromMap(double latitude, double longitude) const
{
    win->probe->contextMenu(win->probe->pointOf(latitude, longitude));
    QVERIFY(win->probe->chooseEntry("Ajouter au plan de vol"));
}

void TestPlanWithProcedures::addProcedures()
{
    StoredProcedures rows(win->sandbox);
    rows.add({{"strm", "OUT"}, {"sqnm", 10}, {"styp", 2}, {"swid", "LFPO"}, {"swpt", 0}});
    rows.add({{"strm", "OUT"}, {"sqnm", 20}, {"styp", 2}, {"swid", "PGS"}, {"swpt", 1}, {"slat", 172800}, {"slon", 0}});
    rows.add({{"strm", "OUT"}, {"sqnm", 30}, {"styp", 2}, {"swid", "TWO"}, {"swpt", 4096}, {"slat", 169200}});
    rows.addProcedure("OTHER", 2, {"THREE"});
    for (const Row& row : {Row{{"sqnm", 10}, {"swid", "FOUR"}, {"swpt", 8}, {"slat", 162000}},
                           Row{{"sqnm", 20}, {"swid", "FIVE"}, {"swpt", 17}, {"slat", 158400}},
                           Row{{"sqnm", 30}, {"swid", "LFBO"}, {"swpt", 0}}}) {
        Row whole = row;
        whole.insert("sapt", "FR002");
        whole.insert("strm", "IN");
        whole.insert("styp", 1);
        rows.add(whole);
    }
}

void TestPlanWithProcedures::aPlanComesTogetherWithSidAndStar()
{
    BoxResponder noBoxes;
    addProcedures();
    win->probe->evaluate("map.setCenter(new google.maps.LatLng(46.5, 2));map.setZoom(6)");
    addFromMap(48.72528, 2.35944);
    addFromMap(43.635, 1.36778);
    QCOMPARE(win->idents(), QString("LFPO LFBO"));

    clickRow(0);
    QCOMPARE(outline(*tree("treeWSid")), QString("OUT[LFPO PGS TWO] OTHER[THREE]"));
    QCOMPARE(outline(*tree("treeWStar")), QString());
    openTab("SID : LFPO");
    win->clearCalls();

    clickProcedure("treeWSid", "OUT");
    QCOMPARE(win->told(), QString("clearSS() addPointToSS(LatLng(48.7,3),\"LFPO\") addPointToSS(LatLng(48,0),\"PGS\") "
                                  "addPointToSS(LatLng(47,3),\"TWO\")"));
    QCOMPARE(drawn(*win->probe, "procedure"), QString("LFPO 48.7, PGS 48, TWO 47"));
    QCOMPARE(win->idents(), QString("LFPO LFBO"));
    QCOMPARE(win->current().first, 0);

    press("btnAddSid");
    QCOMPARE(win->idents(), QString("LFPO PGS TWO LFBO"));
    QCOMPARE(win->current(), qMakePair(3, 1));
    QVERIFY(win->isInFront("dockWFlightPlan"));
    QCOMPARE(drawn(*win->probe, "procedure"), QString());
    QCOMPARE(drawn(*win->probe, "route"), QString("PARIS ORLY 48.72528, PGS 48, TWO 47, TOULOUSE BLAGNAC 43.635"));

    clickRow(3);
    QCOMPARE(outline(*tree("treeWSid")), QString());
    QCOMPARE(outline(*tree("treeWStar")), QString("IN[FOUR FIVE LFBO]"));
    openTab("STAR : LFBO");
    clickProcedure("treeWStar", "IN");
    QCOMPARE(drawn(*win->probe, "procedure"), QString("FOUR 45, FIVE 44, LFBO 48.7"));
    press("btnAddStar");
    QCOMPARE(win->idents(), QString("LFPO PGS TWO FOUR FIVE LFBO"));
    QCOMPARE(win->current(), qMakePair(5, 1));
    QVERIFY(win->isInFront("dockWFlightPlan"));
    QCOMPARE(drawn(*win->probe, "procedure"), QString());
    QCOMPARE(drawn(*win->probe, "route"),
             QString("PARIS ORLY 48.72528, PGS 48, TWO 47, FOUR 45, FIVE 44, TOULOUSE BLAGNAC 43.635"));
}

QTEST_MAIN(TestPlanWithProcedures)
#include "tst_planwithprocedures.moc"
