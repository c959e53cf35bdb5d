// The grid as the window shows it: columns, words, pictures, legs, and what a click on a row does.
#include "boxresponder.h"
#include "caircraftdata.h"
#include "cflightplan.h"
#include "mainwindow.h"
#include "planwindow.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QTableWidget>
#include <QTreeWidget>
#include <QtTest>

namespace {

QImage picture(const QIcon& icon)
{
    return icon.pixmap(16, 16).toImage();
}

} // namespace

class TestPlanDisplay : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        boxes.reset(new BoxResponder);
        win.reset(new PlanWindow([](const Sandbox& sandbox) {
            sandbox.addProcedureLeg({{"skey", "A10"}, {"sapt", "FR001"}, {"strm", "ORLY1"}, {"sqnm", 10}, {"styp", 2}});
            sandbox.addProcedureLeg({{"skey", "B10"}, {"sapt", "FR001"}, {"strm", "ORLY2"}, {"sqnm", 10}, {"styp", 1}});
        }));
    }
    void cleanup()
    {
        win.reset();
        boxes.reset();
    }

    void theColumnsHaveTheirLabelsAndWidths()
    {
        const QStringList labels{"", "ID", "Nom", "Fréq.", "Vitesse", "Route", "Dist", "Durée", "Temps", "Altitude"};
        const QVector<int> widths{20, 60, 120, 80, 45, 40, 60, 50, 50, 60};
        QCOMPARE(win->grid()->columnCount(), 10);
        for (int column = 0; column < 10; ++column) {
            QCOMPARE(win->grid()->horizontalHeaderItem(column)->text(), labels[column]);
            QCOMPARE(win->grid()->columnWidth(column), widths[column]);
        }
    }

    void everyCellOfALegShowsItsText()
    {
        win->add({"LFPO", "PGS-N1", "LFBO"});
        QStringList departure;
        QStringList navaid;
        QStringList destination;
        for (int column = 0; column < 10; ++column) {
            departure << win->cell(0, column);
            navaid << win->cell(1, column);
            destination << win->cell(2, column);
        }
        QCOMPARE(departure,
                 (QStringList{"Airport", "LFPO", "PARIS ORLY", "0.000", "120", " 41°", "  8.5", "4", "00:00", "291"}));
        QCOMPARE(navaid,
                 (QStringList{"Navaid", "PGS", "PARIS", "117.050", "120", "189°", "315.4", "157", "00:00", "0"}));
        QCOMPARE(destination, (QStringList{"Airport", "LFBO", "TOULOUSE BLAGNAC", "0.000", "120", "  0°", "  0.0", "0",
                                           "00:00", "499"}));
    }

    void eachUsageHasItsPicture_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("word");
        QTest::addColumn<QString>("file");
        QTest::newRow("airport") << "LFPO"
                                 << "Airport"
                                 << ":/icon/images/Img08.bmp";
        QTest::newRow("navaid of type 8") << "CGN-N8"
                                          << "Navaid"
                                          << ":/icon/images/Img03.bmp";
        QTest::newRow("other navaid") << "PGS-N1"
                                      << "Navaid"
                                      << ":/icon/images/Img05.bmp";
        QTest::newRow("waypoint") << "BAMES-W1"
                                  << "Waypoint"
                                  << ":/icon/images/Img12.bmp";
    }
    void eachUsageHasItsPicture()
    {
        QFETCH(QString, title);
        QFETCH(QString, word);
        QFETCH(QString, file);
        win->add({title});
        QCOMPARE(win->cell(0, 0), word);
        const QImage shown = picture(win->grid()->item(0, 0)->icon());
        QVERIFY(!shown.isNull());
        QCOMPARE(shown, picture(QIcon(file)));
    }

    void anUnknownUsageHasNoItemInTheFirstColumn()
    {
        win->add({"LFPO", "PGS-N1"});
        // The points of the alignment pass lie on the first row, where there is no item now.
        for (int row : {1, 0}) {
            win->plan().lines[row]->usage = "snap";
            win->plan().refresh();
            QVERIFY(!win->grid()->item(row, 0));
        }
        QCOMPARE(win->cell(0, 1), QString("LFPO"));
        QCOMPARE(win->cell(1, 1), QString("PGS"));
    }

    void rowsAreTwentyPixelsHigh()
    {
        win->add({"LFPO", "PGS-N1", "LFBO"});
        for (int row = 0; row < 3; ++row)
            QCOMPARE(win->grid()->rowHeight(row), 20);
    }

    void theAlignmentPassLeavesTheNumberColumnsAlone()
    {
        win->add({"LFPO", "PGS-N1", "LFBO"});
        for (int column = 3; column < 10; ++column)
            QVERIFY(!win->grid()->item(0, column)->data(Qt::TextAlignmentRole).isValid());
        QCOMPARE(win->grid()->item(0, 0)->data(Qt::TextAlignmentRole), QVariant(2));
    }

    void everyRefreshMovesTheSelectionToTheLastLine()
    {
        win->add({"LFPO", "PGS-N1", "LFBO"});
        win->setCurrent(0, 4);
        win->plan().refresh();
        QCOMPARE(win->current(), qMakePair(2, 1));
    }

    void aRefreshOfAnEmptyPlanEmptiesTheGrid()
    {
        win->add({"LFPO"});
        win->plan().clearLines();
        win->plan().refresh();
        QCOMPARE(win->grid()->rowCount(), 0);
        QVERIFY(win->plan().textLines.isEmpty());
    }

    void aRepeatedPointGivesNoNumberAndStaysSafe()
    {
        // At this latitude the sum of the squares of sine and cosine passes 1.
        win->addClicked("WPT", 100000.0 / 3600.0, 2.0);
        win->addClicked("WPT", 100000.0 / 3600.0, 2.0);
        QVERIFY(qIsNaN(win->plan().lines[0]->dist));
        QCOMPARE(win->cell(0, 6), QString("  nan"));
        QCOMPARE(win->cell(0, 7), QString("-2147483648"));
        QCOMPARE(win->grid()->rowCount(), 2);
    }

    void aSpeedOfZeroShowsTheSmallestNumberAsDuration()
    {
        win->plan().aircraft->speedCruise = 0;
        win->add({"LFPO", "LFBO"});
        QCOMPARE(win->cell(0, 4), QString("  0"));
        QCOMPARE(win->cell(0, 7), QString("-2147483648"));
        QCOMPARE(win->cell(0, 6), QString("308.2"));
    }

    void aLegAcrossTheDateLineTakesTheShortWay()
    {
        win->addClicked("WPT", 0.0, 645000.0 / 3600.0);
        win->addClicked("WPT", 0.0, -645000.0 / 3600.0);
        QCOMPARE(win->cell(0, 6), QString("100.0"));
        QCOMPARE(win->cell(0, 5), QString(" 90°"));
    }

    void aClickedPointWestOfZeroGivesTheLegOfTheStoredOne()
    {
        win->sandbox.addWaypoint({{"ukey", "W9"}, {"wlat", 172800}, {"wlon", -3600}});
        win->sandbox.addWaypoint({{"ukey", "W8"}, {"wlat", 176400}, {"wlon", 3600}});
        win->add({"W9-W9", "W8-W8"});
        QCOMPARE(win->cell(0, 6), QString(" 99.6"));
        QCOMPARE(win->cell(0, 5), QString(" 52°"));
        win->setCurrent(-1, -1);
        win->addClicked("WPT", 48.0, -1.0);
        QCOMPARE(win->plan().lines[0]->lonS, 1292400.0);
        win->setCurrent(1);
        win->window->sFpLineDel();
        QCOMPARE(win->cell(0, 6), QString(" 99.6"));
        QCOMPARE(win->cell(0, 5), QString(" 52°"));
    }

    void aScrolledGridIsRefreshedSafely()
    {
        for (int i = 0; i < 60; ++i)
            win->addClicked("WPT", 40.0 + i * 0.1, 2.0);
        win->grid()->scrollToBottom();
        win->grid()->horizontalScrollBar()->setValue(win->grid()->horizontalScrollBar()->maximum());
        win->setCurrent(59);
        win->addClicked("WPT", 50.0, 2.0);
        QCOMPARE(win->grid()->rowCount(), 61);
        QCOMPARE(win->cell(60, 1), QString("WPT061"));
    }

    void aClickOnAnAirportFillsTheProcedureDocks()
    {
        win->add({"LFPO", "LFBO"});
        emit win->grid()->cellClicked(0, 5);
        QCOMPARE(win->title("dockWSid"), QString("SID : LFPO"));
        QCOMPARE(win->title("dockWStar"), QString("STAR : LFPO"));
        const auto* sids = win->window->findChild<QTreeWidget*>("treeWSid");
        const auto* stars = win->window->findChild<QTreeWidget*>("treeWStar");
        QCOMPARE(sids->topLevelItemCount(), 1);
        QCOMPARE(stars->topLevelItemCount(), 1);
        QCOMPARE(sids->topLevelItem(0)->text(0), QString("ORLY1"));
        QCOMPARE(stars->topLevelItem(0)->text(0), QString("ORLY2"));
        emit win->grid()->cellClicked(1, 0);
        QCOMPARE(win->title("dockWSid"), QString("SID : LFBO"));
        QCOMPARE(sids->topLevelItemCount(), 0);
        QCOMPARE(stars->topLevelItemCount(), 0);
    }

    void aClickOnAnotherPointLeavesTheProcedureDocks()
    {
        win->add({"LFPO", "PGS-N1", "BAMES-W1"});
        emit win->grid()->cellClicked(0, 0);
        for (int row : {1, 2, 3, -1}) {
            emit win->grid()->cellClicked(row, 0);
            QCOMPARE(win->title("dockWSid"), QString("SID : LFPO"));
            QCOMPARE(win->title("dockWStar"), QString("STAR : LFPO"));
            QCOMPARE(win->window->findChild<QTreeWidget*>("treeWSid")->topLevelItemCount(), 1);
        }
    }

    void theMouseClickOnARowReachesTheSlot()
    {
        win->add({"LFPO", "PGS-N1"});
        const QRect cell = win->grid()->visualItemRect(win->grid()->item(0, 1));
        QTest::mouseClick(win->grid()->viewport(), Qt::LeftButton, Qt::NoModifier, cell.center());
        QCOMPARE(win->title("dockWSid"), QString("SID : LFPO"));
        QCOMPARE(win->current(), qMakePair(0, 1));
    }

private:
    QScopedPointer<BoxResponder> boxes;
    QScopedPointer<PlanWindow> win;
};

QTEST_MAIN(TestPlanDisplay)
#include "tst_plandisplay.moc"
