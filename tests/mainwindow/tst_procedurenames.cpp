// Unusual names of stored procedures. A name goes into the statements as it is, and what follows from that stays.
#include "procedurekind.h"
#include "proceduretest.h"

#include <QTableWidget>

class TestProcedureNames : public ProcedureTest
{
    Q_OBJECT

private slots:
    void blanksAreAName_data()
    {
        addBothKinds();
    }
    void blanksAreAName()
    {
        QFETCH(ProcedureKind, kind);
        storePlan(*win, *boxes, kind, "   ");
        QCOMPARE(rows->stored().size(), 1);
        QCOMPARE(rows->stored().value(0).section(';', 1, 4), QString("   10;FR001;   ;10"));
    }

    void aNameWithAnApostropheIsNotStoredAndSaidToBe_data()
    {
        addBothKinds();
    }
    void aNameWithAnApostropheIsNotStoredAndSaidToBe()
    {
        QFETCH(ProcedureKind, kind);
        rows->addProcedure("ABC1", 2, {"BAMES"});
        storePlan(*win, *boxes, kind, "L'Est");
        QCOMPARE(rows->names(), QString("ABC1"));
        QCOMPARE(boxes->seen().size(), 2);
    }

    void aNameWithAPlaceNumberStaysAsItIs()
    {
        storePlan(*win, *boxes, sid, "%2%1");
        QCOMPARE(rows->names(), QString("%2%1"));
        QVERIFY(rows->stored().value(0).startsWith("0;%2%110;"));
    }

    void aNameOfAColumnReplacesItsProcedureAlone()
    {
        rows->addProcedure("strm", 2, {"BAMES", "PGS"});
        rows->addProcedure("OTHER", 1, {"PGS"});
        storePlan(*win, *boxes, sid, "strm");
        QCOMPARE(rows->names(), QString("OTHER strm"));
        QCOMPARE(rows->stored().size(), 2);
    }

    void aDeletionTakesANameBetweenDoubleQuotes_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("isRefused");
        QTest::addColumn<QString>("left");
        // Between double quotes the name of a column is the column: the rows would not be those of the procedure.
        QTest::newRow("a column that holds something else") << "tile" << true << "OTHER tile";
        QTest::newRow("the column of the names") << "strm" << true << "OTHER strm";
        QTest::newRow("the column of the names in capitals") << "STRM" << true << "OTHER STRM";
        QTest::newRow("a double quote") << "a\"B" << true << "OTHER a\"B";
    }
    void aDeletionTakesANameBetweenDoubleQuotes()
    {
        QFETCH(QString, name);
        QFETCH(bool, isRefused);
        QFETCH(QString, left);
        rows->addProcedure(name, 2, {"LFPO", "BAMES"});
        rows->addProcedure("OTHER", 1, {"PGS"});
        emit win->grid()->cellClicked(0, 1);
        auto* tree = win->window->findChild<QTreeWidget*>("treeWSid");
        tree->setCurrentItem(tree->topLevelItem(0));
        boxes->expectMessage("", "Effacer un SID/STAR", "Effacer");
        if (isRefused)
            boxes->expectAnyMessage();
        boxes->expectMessage("Effacement STAR", "La STAR " + name + " a été effacé");
        win->click("pbDelSID");
        QVERIFY(boxes->allUsed());
        if (isRefused)
            QCOMPARE(boxes->seen().value(1).title, QString("SQL Error"));
        QCOMPARE(rows->names(), left);
        QCOMPARE(outline(*tree), QString());
    }

private:
    void startOfAll() override
    {
        win->add({"LFPO"});
    }
};

QTEST_MAIN(TestProcedureNames)
#include "tst_procedurenames.moc"
