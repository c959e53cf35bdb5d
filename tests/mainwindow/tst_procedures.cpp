// Stored procedures in the two trees of an airport, and what a click on them draws.
#include "proceduretest.h"

#include <QTreeWidget>
#include <QtTest>

namespace {

QImage picture(const QIcon& icon)
{
    return icon.pixmap(16, 16).toImage();
}

} // namespace

class TestProcedures : public ProcedureTest
{
    Q_OBJECT

private slots:
    void everyProcedureHangsInItsTreeWithAPointForEveryRow()
    {
        rows->addProcedure("ORLY1", 2, {"LFPO", "BAMES", "ETAMP"});
        rows->addProcedure("ORLY2", 2, {"LFPO"});
        rows->addProcedure("ORLY3", 1, {"PGS", "LFPO"});
        win->window->fillSidStarTrees("FR001");
        QCOMPARE(outline("treeWSid"), QString("ORLY1[LFPO BAMES ETAMP] ORLY2[LFPO]"));
        QCOMPARE(outline("treeWStar"), QString("ORLY3[PGS LFPO]"));
    }

    void onlyTheAirportsOwnProceduresAreShown()
    {
        rows->addProcedure("ORLY1", 2, {"BAMES"});
        rows->add({{"sapt", "FR002"}, {"strm", "TOU1"}, {"sqnm", 10}, {"styp", 2}, {"swid", "CGN"}});
        // A key counts whole, and as it is written.
        for (const char* key : {"FR00", "FR0011", "fr001", ""})
            win->window->fillSidStarTrees(key);
        QCOMPARE(outline("treeWSid"), QString());
        win->window->fillSidStarTrees("FR002");
        QCOMPARE(outline("treeWSid"), QString("TOU1[CGN]"));
        QCOMPARE(outline("treeWStar"), QString());
    }

    void everyTypeOtherThanOneIsASid_data()
    {
        QTest::addColumn<QVariant>("type");
        QTest::addColumn<QString>("sids");
        QTest::addColumn<QString>("stars");
        QTest::newRow("1") << QVariant(1) << QString() << QString("A1[BAMES]");
        for (const QVariant& type : {QVariant(2), QVariant(0), QVariant(3), QVariant(-1), QVariant(11), QVariant("x")})
            QTest::newRow(qPrintable(type.toString())) << type << QString("A1[BAMES]") << QString();
        QTest::newRow("no value") << QVariant() << QString("A1[BAMES]") << QString();
    }
    void everyTypeOtherThanOneIsASid()
    {
        QFETCH(QVariant, type);
        rows->add({{"strm", "A1"}, {"sqnm", 10}, {"styp", type}, {"swid", "BAMES"}});
        win->window->fillSidStarTrees("FR001");
        QTEST(outline("treeWSid"), "sids");
        QTEST(outline("treeWStar"), "stars");
    }

    void theFirstRowChoosesTheTreeForAll()
    {
        rows->add({{"strm", "A1"}, {"sqnm", 10}, {"styp", 1}, {"swid", "BAMES"}});
        rows->add({{"strm", "A1"}, {"sqnm", 20}, {"styp", 2}, {"swid", "ETAMP"}});
        win->window->fillSidStarTrees("FR001");
        QCOMPARE(outline("treeWStar"), QString("A1[BAMES ETAMP]"));
        QCOMPARE(outline("treeWSid"), QString());
    }

    void eachTypeOfPointHasItsPicture_data()
    {
        QTest::addColumn<QVariant>("type");
        QTest::addColumn<QString>("file");
        QTest::newRow("8") << QVariant(8) << ":/icon/images/Img03.bmp";
        QTest::newRow("0, the airport") << QVariant(0) << ":/icon/images/Img08.bmp";
        QTest::newRow("no value") << QVariant() << ":/icon/images/Img08.bmp";
        QTest::newRow("1") << QVariant(1) << ":/icon/images/Img05.bmp";
        QTest::newRow("17") << QVariant(17) << ":/icon/images/Img05.bmp";
        QTest::newRow("4096, the user's own point") << QVariant(4096) << ":/icon/images/Img35.bmp";
        for (int type : {-1, 2, 6, 7, 9, 16, 18, 4095, 4097})
            QTest::newRow(qPrintable(QString::number(type))) << QVariant(type) << QString();
    }
    void eachTypeOfPointHasItsPicture()
    {
        QFETCH(QVariant, type);
        QFETCH(QString, file);
        rows->add({{"sqnm", 10}, {"swpt", type}});
        win->window->fillSidStarTrees("FR001");
        QCOMPARE(outline("treeWSid"), QString("BAMES1A[BAMES]"));
        const QImage shown = picture(point("treeWSid", 0)->icon(0));
        QCOMPARE(shown.isNull(), file.isEmpty());
        QCOMPARE(shown, picture(QIcon(file)));
        QVERIFY(picture(point("treeWSid", 0)->icon(1)).isNull());
        QVERIFY(picture(tree("treeWSid")->topLevelItem(0)->icon(0)).isNull());
    }

    void aPointStandsInBlueInTheSecondColumn()
    {
        rows->addProcedure("ORLY1", 2, {"LFPO", "BAMES"});
        win->window->fillSidStarTrees("FR001");
        QCOMPARE(outline("treeWSid"), QString("ORLY1[LFPO BAMES]"));
        for (int row : {0, 1}) {
            const QTreeWidgetItem* item = point("treeWSid", row);
            QCOMPARE(item->text(0), QString());
            QCOMPARE(item->text(1), QString(row == 0 ? "LFPO" : "BAMES"));
            QCOMPARE(item->foreground(1), QBrush(QColor(0, 0, 255)));
            QCOMPARE(item->foreground(0).style(), Qt::NoBrush);
        }
        const QTreeWidgetItem* top = tree("treeWSid")->topLevelItem(0);
        QCOMPARE(top->text(1), QString());
        QCOMPARE(top->foreground(0).style(), Qt::NoBrush);
    }

    void rowsThatNoFirstOneOpensHangUnderTheProcedureAhead()
    {
        rows->addProcedure("ORLY1", 2, {"BAMES", "ETAMP"});
        for (int number : {20, 30, 0, 100})
            rows->add({{"strm", "OTHER"}, {"sqnm", number}, {"styp", 1}, {"swid", QString("P%1").arg(number)}});
        win->window->fillSidStarTrees("FR001");
        QCOMPARE(outline("treeWSid"), QString("ORLY1[BAMES ETAMP P20 P30 P0 P100]"));
        QCOMPARE(outline("treeWStar"), QString());
    }

    void rowsAheadOfAnyFirstOneAreNotShown()
    {
        for (int number : {20, 30})
            rows->add({{"strm", "OTHER"}, {"sqnm", number}, {"swid", QString("P%1").arg(number)}});
        win->window->fillSidStarTrees("FR001");
        QCOMPARE(outline("treeWSid"), QString());
        rows->addProcedure("ORLY1", 2, {"BAMES"});
        win->window->fillSidStarTrees("FR001");
        QCOMPARE(outline("treeWSid"), QString("ORLY1[BAMES]"));
        QCOMPARE(outline("treeWStar"), QString());
    }

    void theProcedureAheadIsForgottenBetweenTwoAirports()
    {
        rows->addProcedure("ORLY1", 2, {"BAMES"});
        rows->add({{"sapt", "FR002"}, {"strm", "TOU1"}, {"sqnm", 20}, {"swid", "CGN"}});
        win->window->fillSidStarTrees("FR001");
        win->window->fillSidStarTrees("FR002");
        QCOMPARE(outline("treeWSid"), QString("ORLY1[BAMES]"));
    }

    void rowsStayInTheOrderOfTheDatabase()
    {
        rows->add({{"strm", "A1"}, {"sqnm", 10}, {"styp", 2}, {"swid", "ONE"}});
        rows->add({{"strm", "A1"}, {"sqnm", 30}, {"styp", 2}, {"swid", "THREE"}});
        rows->add({{"strm", "A1"}, {"sqnm", 20}, {"styp", 2}, {"swid", "TWO"}});
        rows->add({{"strm", "B1"}, {"sqnm", 10}, {"styp", 1}, {"swid", "FOUR"}});
        // A row goes to the procedure that was opened last, whatever its own name.
        rows->add({{"strm", "A1"}, {"sqnm", 40}, {"styp", 2}, {"swid", "FIVE"}});
        win->window->fillSidStarTrees("FR001");
        QCOMPARE(outline("treeWSid"), QString("A1[ONE THREE TWO]"));
        QCOMPARE(outline("treeWStar"), QString("B1[FOUR FIVE]"));
    }

    void twoProceduresOfOneNameAreTwoItems()
    {
        rows->addProcedure("A1", 2, {"BAMES"});
        rows->addProcedure("A1", 2, {"ETAMP"});
        win->window->fillSidStarTrees("FR001");
        QCOMPARE(outline("treeWSid"), QString("A1[BAMES] A1[ETAMP]"));
    }

    void fillingAddsToWhatTheTreesHold()
    {
        rows->addProcedure("ORLY1", 2, {"BAMES"});
        win->window->fillSidStarTrees("FR001");
        win->window->fillSidStarTrees("FR001");
        QCOMPARE(outline("treeWSid"), QString("ORLY1[BAMES] ORLY1[BAMES]"));
        win->window->fillSidStarTrees("FR999");
        QCOMPARE(outline("treeWSid"), QString("ORLY1[BAMES] ORLY1[BAMES]"));
        QCOMPARE(win->told(), QString());
    }

    void aClickDrawsTheProcedure_data()
    {
        bothTrees();
    }
    void aClickDrawsTheProcedure()
    {
        QFETCH(QString, treeName);
        QFETCH(int, type);
        storeTwoProcedures(type);
        QCOMPARE(outline(treeName), QString("A1[ONE TWO] B1[THREE]"));
        for (int column : {0, 1, -1}) {
            emit tree(treeName)->itemClicked(tree(treeName)->topLevelItem(1), column);
            QCOMPARE(win->told(), QString("clearSS() addPointToSS(LatLng(3,3),\"THREE\")"));
            win->clearCalls();
        }
    }

    void aClickOnAPointDrawsTheProcedureOfItsParent_data()
    {
        bothTrees();
    }
    void aClickOnAPointDrawsTheProcedureOfItsParent()
    {
        QFETCH(QString, treeName);
        QFETCH(int, type);
        storeTwoProcedures(type);
        QCOMPARE(outline(treeName), QString("A1[ONE TWO] B1[THREE]"));
        for (int row : {0, 1}) {
            for (int column : {0, 1}) {
                emit tree(treeName)->itemClicked(point(treeName, row), column);
                QCOMPARE(win->told(),
                         QString("clearSS() addPointToSS(LatLng(1,1),\"ONE\") addPointToSS(LatLng(2,2),\"TWO\")"));
                win->clearCalls();
            }
        }
    }

    void theMouseReachesTheTrees_data()
    {
        bothTrees();
    }
    void theMouseReachesTheTrees()
    {
        QFETCH(QString, treeName);
        QFETCH(int, type);
        storeTwoProcedures(type);
        QCOMPARE(outline(treeName), QString("A1[ONE TWO] B1[THREE]"));
        win->bringToFront(treeName == "treeWSid" ? "dockWSid" : "dockWStar");
        tree(treeName)->expandAll();
        win->clearCalls();
        click(treeName, tree(treeName)->topLevelItem(1));
        QCOMPARE(win->told(), QString("clearSS() addPointToSS(LatLng(3,3),\"THREE\")"));
        win->clearCalls();
        click(treeName, point(treeName, 1));
        QCOMPARE(win->told(), QString("clearSS() addPointToSS(LatLng(1,1),\"ONE\") addPointToSS(LatLng(2,2),\"TWO\")"));
    }

    void aShownProcedureLeavesThePlanAlone()
    {
        win->add({"LFPO", "LFBO"});
        win->setCurrent(0, 3);
        storeTwoProcedures(2);
        QCOMPARE(outline("treeWSid"), QString("A1[ONE TWO] B1[THREE]"));
        win->clearCalls();
        emit tree("treeWSid")->itemClicked(point("treeWSid", 0), 0);
        QCOMPARE(win->idents(), QString("LFPO LFBO"));
        QCOMPARE(win->current(), qMakePair(0, 3));
        QCOMPARE(win->told(), QString("clearSS() addPointToSS(LatLng(1,1),\"ONE\") addPointToSS(LatLng(2,2),\"TWO\")"));
    }

private:
    void startOfEach() override
    {
        emptyTrees();
        win->bringToFront("dockWDebug");
        win->clearCalls();
    }

    /// A point of the tree's first procedure.
    QTreeWidgetItem* point(const QString& treeName, int row) const
    {
        return tree(treeName)->topLevelItem(0)->child(row);
    }

    QString outline(const QString& treeName) const
    {
        return ::outline(*tree(treeName));
    }

    static void bothTrees()
    {
        QTest::addColumn<QString>("treeName");
        QTest::addColumn<int>("type");
        QTest::newRow("SID") << "treeWSid" << 2;
        QTest::newRow("STAR") << "treeWStar" << 1;
    }

    /// Fills the tree of the type with A1 of the points ONE and TWO, and B1 of the point THREE.
    void storeTwoProcedures(int type)
    {
        rows->add({{"strm", "A1"}, {"sqnm", 10}, {"styp", type}, {"swid", "ONE"}, {"slat", 3600}, {"slon", 3600}});
        rows->add({{"strm", "A1"}, {"sqnm", 20}, {"styp", type}, {"swid", "TWO"}, {"slat", 7200}, {"slon", 7200}});
        rows->add({{"strm", "B1"}, {"sqnm", 10}, {"styp", type}, {"swid", "THREE"}, {"slat", 10800}, {"slon", 10800}});
        win->window->fillSidStarTrees("FR001");
    }

    void click(const QString& treeName, const QTreeWidgetItem* item) const
    {
        const QTreeWidget* clicked = tree(treeName);
        const QRect cell = clicked->visualItemRect(item);
        QVERIFY(clicked->viewport()->rect().contains(cell.center()));
        QTest::mouseClick(clicked->viewport(), Qt::LeftButton, Qt::NoModifier, cell.center());
    }
};

QTEST_MAIN(TestProcedures)
#include "tst_procedures.moc"
