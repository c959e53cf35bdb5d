// What each column of the plan's grid shows.
#include "plangrid.h"
#include "planlines.h"

#include <QHeaderView>
#include <QSignalSpy>
#include <QTableWidget>
#include <QtTest>

class TestPlanGrid : public QObject
{
    Q_OBJECT

    static QStringList texts(const QTableWidget& grid, int row)
    {
        QStringList result;
        for (int column = 0; column < grid.columnCount(); ++column) {
            result << grid.item(row, column)->text();
        }
        return result;
    }

    static void prepare(QTableWidget& grid)
    {
        grid.setColumnCount(10);
        grid.setColumnWidth(0, 20);
        grid.resize(400, 300);
        grid.show();
    }

private slots:
    void initTestCase()
    {
        Q_INIT_RESOURCE(trajector);
    }

    void airportRow()
    {
        QTableWidget grid(0, 10);
        const QList<CFpLinePtr> lines = airportAndNavaid();
        lines.first()->speed = 5;
        lines.first()->route = 33.156;
        lines.first()->dist = 5.04;
        lines.first()->duration = 42;
        fillPlanGrid(grid, lines);
        QCOMPARE(texts(grid, 0), QStringList({"Airport", "KSFO", "San Francisco Intl", "0.000", "  5", " 33°", "  5.0",
                                              "42", "00:00", "13"}));
    }

    void navaidRow()
    {
        QTableWidget grid(0, 10);
        fillPlanGrid(grid, airportAndNavaid());
        QCOMPARE(texts(grid, 1),
                 QStringList({"Navaid", "OAK", "OAKLAND", "116.800", "  0", "  0°", "  0.0", "0", "00:00", "0"}));
    }

    void roundingCanPrint360()
    {
        QTableWidget grid(0, 10);
        const CFpLinePtr line = pointAt(0.0, 0.0);
        line->route = 359.6;
        fillPlanGrid(grid, {line});
        QCOMPARE(grid.item(0, 5)->text(), QString("360°"));
    }

    void halvesAreRoundedUp()
    {
        QTableWidget grid(0, 10);
        const CFpLinePtr line = pointAt(0.0, 0.0);
        line->route = 2.5;
        fillPlanGrid(grid, {line});
        QCOMPARE(grid.item(0, 5)->text(), QString("  3°"));
    }

    void numbersThatAreNoneShow()
    {
        QTableWidget grid(0, 10);
        const CFpLinePtr line = pointAt(0.0, 0.0);
        line->route = qQNaN();
        line->dist = qQNaN();
        line->duration = INT_MIN;
        fillPlanGrid(grid, {line});
        QCOMPARE(grid.item(0, 5)->text(), QString("nan°"));
        QCOMPARE(grid.item(0, 6)->text(), QString("  nan"));
        QCOMPARE(grid.item(0, 7)->text(), QString("-2147483648"));
    }

    void iconAndWord_data()
    {
        QTest::addColumn<QString>("usage");
        QTest::addColumn<int>("navType");
        QTest::addColumn<QString>("word");
        QTest::addColumn<QString>("icon");
        QTest::newRow("airport") << "airp" << 0 << "Airport"
                                 << ":/icon/images/Img08.bmp";
        QTest::newRow("airport with a type") << "airp" << 8 << "Airport"
                                             << ":/icon/images/Img08.bmp";
        QTest::newRow("navaid of type 8") << "snav" << 8 << "Navaid"
                                          << ":/icon/images/Img03.bmp";
        QTest::newRow("navaid of another type") << "snav" << 6 << "Navaid"
                                                << ":/icon/images/Img05.bmp";
        QTest::newRow("navaid out of a file") << "snav" << 0 << "Navaid"
                                              << ":/icon/images/Img05.bmp";
        QTest::newRow("waypoint") << "uswp" << 0 << "Waypoint"
                                  << ":/icon/images/Img12.bmp";
    }

    void iconAndWord()
    {
        QFETCH(QString, usage);
        QFETCH(int, navType);
        QFETCH(QString, word);
        QFETCH(QString, icon);
        QTableWidget grid(0, 10);
        const CFpLinePtr line = pointAt(0.0, 0.0);
        line->usage = usage;
        line->navType = navType;
        fillPlanGrid(grid, {line});
        QCOMPARE(grid.item(0, 0)->text(), word);
        const QPixmap expected(icon);
        QVERIFY(!expected.isNull());
        QCOMPARE(grid.item(0, 0)->icon().pixmap(expected.size()).toImage(),
                 QIcon(icon).pixmap(expected.size()).toImage());
    }

    // Each icon fills the program's cache of pictures with its own.
    void everyRefreshHasTheSameIcon()
    {
        QTableWidget grid(0, 10);
        const QList<CFpLinePtr> lines{pointAt(0.0, 0.0), pointAt(1.0, 1.0)};
        for (const CFpLinePtr& line : lines) {
            line->usage = "airp";
        }
        fillPlanGrid(grid, lines);
        const qint64 first = grid.item(0, 0)->icon().cacheKey();
        QVERIFY(!grid.item(0, 0)->icon().isNull());
        QCOMPARE(grid.item(1, 0)->icon().cacheKey(), first);
        fillPlanGrid(grid, lines);
        QCOMPARE(grid.item(1, 0)->icon().cacheKey(), first);
    }

    void unknownUsageHasNoItem()
    {
        QTableWidget grid;
        prepare(grid);
        const CFpLinePtr line = pointAt(0.0, 0.0);
        line->usage = "wayp";
        fillPlanGrid(grid, {line});
        QVERIFY(!grid.item(0, 0));
        QCOMPARE(grid.item(0, 1)->text(), QString("WPT001"));
    }

    void formerItemOfAnUnknownUsageGoes()
    {
        QTableWidget grid(0, 10);
        const CFpLinePtr line = pointAt(0.0, 0.0);
        fillPlanGrid(grid, {line});
        QVERIFY(grid.item(0, 0));
        line->usage.clear();
        fillPlanGrid(grid, {line});
        QVERIFY(!grid.item(0, 0));
    }

    void alignmentFallsOnTheFirstColumn()
    {
        QTableWidget grid;
        prepare(grid);
        fillPlanGrid(grid, airportAndNavaid());
        QCOMPARE(grid.item(0, 0)->data(Qt::TextAlignmentRole), QVariant(2));
        for (int column = 3; column < 10; ++column) {
            QVERIFY(!grid.item(0, column)->data(Qt::TextAlignmentRole).isValid());
            QVERIFY(!grid.item(1, column)->data(Qt::TextAlignmentRole).isValid());
        }
    }

    void scrolledGridIsRebuilt()
    {
        QTableWidget grid;
        prepare(grid);
        QList<CFpLinePtr> lines;
        for (int i = 0; i < 60; ++i) {
            lines << pointAt(i, i, QString::number(i));
        }
        fillPlanGrid(grid, lines);
        fillPlanGrid(grid, lines);
        fillPlanGrid(grid, lines.mid(0, 1));
        QCOMPARE(grid.rowCount(), 1);
        QCOMPARE(grid.item(0, 1)->text(), QString("0"));
    }

    void rowsAre20PixelsHigh()
    {
        QTableWidget grid(0, 10);
        fillPlanGrid(grid, airportAndNavaid());
        QCOMPARE(grid.rowHeight(0), 20);
        QCOMPARE(grid.rowHeight(1), 20);
    }

    void lastRowBecomesTheCurrentOne()
    {
        QTableWidget grid(0, 10);
        fillPlanGrid(grid, airportAndNavaid());
        grid.setCurrentCell(0, 4);
        fillPlanGrid(grid, airportAndNavaid());
        QCOMPARE(grid.currentRow(), 1);
        QCOMPARE(grid.currentColumn(), 1);
    }

    void shrinkingSendsNoSignalOfItsOwn()
    {
        QTableWidget grid(0, 10);
        QList<CFpLinePtr> lines{pointAt(0, 0, "A"), pointAt(1, 1, "B"), pointAt(2, 2, "C")};
        fillPlanGrid(grid, lines);
        grid.setCurrentCell(2, 9);
        QSignalSpy changes(&grid, &QTableWidget::currentCellChanged);
        lines.removeLast();
        fillPlanGrid(grid, lines);
        // Only the jump to the last row, once all rows stand.
        QCOMPARE(changes.size(), 1);
        QCOMPARE(changes.first().mid(0, 2), QVariantList({1, 1}));
    }

    void clearingSendsNoSignal()
    {
        QTableWidget grid(0, 10);
        fillPlanGrid(grid, airportAndNavaid());
        grid.setCurrentCell(1, 9);
        QSignalSpy changes(&grid, &QTableWidget::currentCellChanged);
        clearPlanGrid(grid);
        QCOMPARE(grid.rowCount(), 0);
        QCOMPARE(grid.currentRow(), -1);
        QVERIFY(changes.isEmpty());
        QVERIFY(!grid.signalsBlocked());
    }
};

QTEST_MAIN(TestPlanGrid)
#include "tst_plangrid.moc"
