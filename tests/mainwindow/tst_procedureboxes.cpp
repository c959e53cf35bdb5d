// The page goes on while a box of the stored procedures is open: its timers call slots that change plan and trees.
#include "cflightplan.h"
#include "procedurekind.h"
#include "proceduretest.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>

class TestProcedureBoxes : public ProcedureTest
{
    Q_OBJECT

private slots:
    void theTreesAreFilledAnewWhileTheQuestionIsOpen_data()
    {
        bothTrees();
    }
    void theTreesAreFilledAnewWhileTheQuestionIsOpen()
    {
        QFETCH(QString, treeName);
        QFETCH(QString, button);
        prepareTrees(treeName);
        boxes->expectDialog("QMessageBox", [this](QDialog* box) {
            callFromPage("sFpLineDown");
            box->reject();
        });
        win->click(button);
        // What stands in the trees now is not what was selected, and stays.
        QCOMPARE(outline(*tree(treeName)), QString("A1[LFPO BAMES] B1[PGS]"));
        QCOMPARE(rows->names(), QString("A1 B1"));
    }

    void aProcedureIsDeletedByItsNameAfterItsItemIsGone_data()
    {
        bothTrees();
    }
    void aProcedureIsDeletedByItsNameAfterItsItemIsGone()
    {
        QFETCH(QString, treeName);
        QFETCH(QString, button);
        prepareTrees(treeName);
        boxes->expectDialog("QMessageBox", [this](QDialog* box) {
            callFromPage("sFpLineDown");
            qobject_cast<QMessageBox*>(box)->button(QMessageBox::Ok)->click();
        });
        boxes->expectMessage("Effacement STAR", "La STAR A1 a été effacé");
        win->click(button);
        QVERIFY(boxes->allUsed());
        QCOMPARE(rows->names(), QString("B1"));
        QCOMPARE(outline(*tree(treeName)), QString("A1[LFPO BAMES] B1[PGS]"));
    }

    void theTreesAreFilledAnewWhileTheMessageIsOpen_data()
    {
        bothTrees();
    }
    void theTreesAreFilledAnewWhileTheMessageIsOpen()
    {
        QFETCH(QString, treeName);
        QFETCH(QString, button);
        prepareTrees(treeName);
        boxes->expectMessage("", "Effacer un SID/STAR", "Effacer");
        boxes->expectDialog("QMessageBox", [this](QDialog* box) {
            callFromPage("sFpLineDown");
            box->accept();
        });
        win->click(button);
        QVERIFY(boxes->allUsed());
        QCOMPARE(outline(*tree(treeName)), QString("B1[PGS]"));
    }

    void withoutAnItemNothingIsAsked()
    {
        rows->addProcedure("A1", 2, {"BAMES"});
        win->clearCalls();
        win->window->delSIDSTAR(nullptr, true);
        win->window->delSIDSTAR(nullptr, false);
        QCOMPARE(boxes->seen().size(), 0);
        QCOMPARE(win->told(), QString());
        QCOMPARE(rows->names(), QString("A1"));
    }

    void aPlanEmptiedWhileTheNameIsAskedForIsNotStored_data()
    {
        addBothKinds();
    }
    void aPlanEmptiedWhileTheNameIsAskedForIsNotStored()
    {
        QFETCH(ProcedureKind, kind);
        rows->addProcedure("A1", 2, {"BAMES"});
        win->add({"LFPO"});
        deleteLineBeforeName(0);
        win->click(kind.button);
        QVERIFY(boxes->allUsed());
        QCOMPARE(boxes->seen().size(), 1);
        QVERIFY(win->plan().lines.isEmpty());
        // The older one of that name.
        QCOMPARE(rows->stored(), QStringList{"0;K001;FR001;A1;10;2;BAMES;1;5000;175320;10800"});
    }

    void thePlanIsStoredAsItIsAfterTheName_data()
    {
        planColumns();
        QTest::addColumn<QString>("stored");
        QTest::newRow("SID") << sid << "LFPO LFBO" << 0 << "0;A110;FR002;A1;10;2;LFBO;0;499;157086;4924";
        QTest::newRow("STAR") << star << "LFPO LFBO" << 1 << "0;A110;FR001;A1;10;1;LFPO;0;291;175411;8494";
        // Whether it is still an airport is not asked again.
        QTest::newRow("SID, no airport") << sid << "LFPO PGS-N1" << 0 << "0;A110;N1;A1;10;2;PGS;1;300;175800;9000";
        QTest::newRow("STAR, no airport") << star << "PGS-N1 LFPO" << 1 << "0;A110;N1;A1;10;1;PGS;1;300;175800;9000";
    }
    void thePlanIsStoredAsItIsAfterTheName()
    {
        QFETCH(ProcedureKind, kind);
        QFETCH(QString, points);
        QFETCH(int, deleted);
        QFETCH(QString, stored);
        win->add(points.split(' '));
        deleteLineBeforeName(deleted);
        boxes->expectMessage(kind.storedTitle, QString(kind.storedText).replace("%1", "A1"));
        win->click(kind.button);
        QVERIFY(boxes->allUsed());
        QCOMPARE(rows->stored(), QStringList{stored});
    }

    void theTreesAreThoseOfTheAirportAfterTheName_data()
    {
        planColumns();
        QTest::newRow("SID") << sid << "LFPO LFBO" << 0;
        QTest::newRow("STAR") << star << "LFPO LFBO" << 1;
    }
    void theTreesAreThoseOfTheAirportAfterTheName()
    {
        QFETCH(ProcedureKind, kind);
        QFETCH(QString, points);
        QFETCH(int, deleted);
        win->add(points.split(' '));
        deleteLineBeforeName(deleted);
        boxes->expectAnyMessage();
        win->click(kind.button);
        const QString airport = points.split(' ').value(1 - deleted);
        QCOMPARE(win->title("dockWSid"), "SID : " + airport);
        QCOMPARE(outline(*tree(deleted == 0 ? "treeWSid" : "treeWStar")), "A1[" + airport + "]");
    }

private:
    void endOfEach() override
    {
        dropPlan();
    }

    static void bothTrees()
    {
        QTest::addColumn<QString>("treeName");
        QTest::addColumn<QString>("button");
        QTest::newRow("SID") << "treeWSid"
                             << "pbDelSID";
        QTest::newRow("STAR") << "treeWStar"
                              << "pbDelSTAR";
    }

    /// How it is stored, a plan of two points, and the row that goes while the name is asked for.
    static void planColumns()
    {
        QTest::addColumn<ProcedureKind>("kind");
        QTest::addColumn<QString>("points");
        QTest::addColumn<int>("deleted");
    }

    /// LFPO in the plan; A1, which is selected, and B1 in the tree.
    void prepareTrees(const QString& treeName)
    {
        const int type = treeName == "treeWSid" ? 2 : 1;
        rows->addProcedure("A1", type, {"LFPO", "BAMES"});
        rows->addProcedure("B1", type, {"PGS"});
        win->add({"LFPO"});
        win->setCurrent(0);
        emit win->grid()->cellClicked(0, 1);
        tree(treeName)->setCurrentItem(tree(treeName)->topLevelItem(0));
    }

    /// A slot of the window, called by a timer of the page.
    void callFromPage(const QString& slot)
    {
        win->probe->evaluate(QString("window.called = false;"
                                     "setTimeout(function () { mainWindow.%1(); window.called = true; }, 0);")
                                 .arg(slot));
        QTRY_VERIFY_WITH_TIMEOUT(win->probe->evaluate("window.called").toBool(), 20000);
    }

    /// The name A1 is given after the page has taken a line out of the plan.
    void deleteLineBeforeName(int row)
    {
        win->setCurrent(row);
        boxes->expectDialog("QInputDialog", [this](QDialog* dialog) {
            callFromPage("sFpLineDel");
            dialog->findChild<QLineEdit*>()->setText("A1");
            dialog->accept();
        });
    }
};

QTEST_MAIN(TestProcedureBoxes)
#include "tst_procedureboxes.moc"
