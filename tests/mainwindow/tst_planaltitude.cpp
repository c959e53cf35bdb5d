// The altitude column: real keys in the cell, and what leaving the cell does to the plan.
#include "boxresponder.h"
#include "cflightplan.h"
#include "mainwindow.h"
#include "planwindow.h"

#include <QLineEdit>
#include <QTableWidget>
#include <QtTest>

class TestPlanAltitude : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        boxes.reset(new BoxResponder);
        win.reset(new PlanWindow);
        for (int i = 0; i < 5; ++i)
            win->addClicked("WPT", 40.0 + i, 2.0);
        win->clearCalls();
    }
    void cleanup()
    {
        win.reset();
        boxes.reset();
    }

    void anAltitudeHoldsForTheFollowingLinesButTheLast()
    {
        type(1, 9, "12000");
        leaveWithMouse(3, 1);
        QCOMPARE(altitudes(), QString("5500 12000 12000 12000 5500"));
        QCOMPARE(win->cell(1, 9), QString("12000"));
        QCOMPARE(win->cell(3, 9), QString("12000"));
        QCOMPARE(win->cell(4, 9), QString("5500"));
        QCOMPARE(win->current(), qMakePair(4, 1));
    }

    void leavingWithAKeyCopiesTheAltitudeToo()
    {
        type(2, 9, "7000");
        QTest::keyClick(win->grid(), Qt::Key_Left);
        QCOMPARE(altitudes(), QString("5500 5500 7000 7000 5500"));
        QCOMPARE(win->current(), qMakePair(4, 1));
    }

    void tabOutOfTheEditorCopiesTheAltitude()
    {
        edit(0, 9, "3000");
        QTest::keyClick(editor(), Qt::Key_Tab);
        QCoreApplication::processEvents();
        QCOMPARE(altitudes(), QString("3000 3000 3000 3000 5500"));
    }

    void theAltitudeActsOnlyWhenTheCellIsLeft()
    {
        type(1, 9, "12000");
        QCOMPARE(win->cell(1, 9), QString("12000"));
        QCOMPARE(altitudes(), QString("5500 5500 5500 5500 5500"));
    }

    void anAbandonedEditCopiesTheOldAltitude()
    {
        win->plan().lines[1]->altd = 900;
        win->plan().refresh();
        edit(1, 9, "12000");
        QTest::keyClick(editor(), Qt::Key_Escape);
        leaveWithMouse(0, 1);
        QCOMPARE(altitudes(), QString("5500 900 900 900 5500"));
    }

    void leavingAnUneditedCellCopiesItDown()
    {
        win->plan().lines[1]->altd = 900;
        win->plan().refresh();
        win->setCurrent(1, 9);
        win->setCurrent(1, 8);
        QCOMPARE(altitudes(), QString("5500 900 900 900 5500"));
    }

    void aTextThatIsNoNumberGivesZero()
    {
        type(1, 9, "abc");
        leaveWithMouse(3, 1);
        QCOMPARE(altitudes(), QString("5500 0 0 0 5500"));
        QCOMPARE(win->cell(1, 9), QString("0"));
    }

    void aNumberBeyondTheWholeNumbersGivesZero()
    {
        type(1, 9, "99999999999");
        leaveWithMouse(3, 1);
        QCOMPARE(altitudes(), QString("5500 0 0 0 5500"));
    }

    void anEditInTheLastRowIsTakenBack()
    {
        type(4, 9, "12000");
        leaveWithMouse(0, 1);
        QCOMPARE(altitudes(), QString("5500 5500 5500 5500 5500"));
        QCOMPARE(win->cell(4, 9), QString("5500"));
    }

    void goingFromAltitudeToAltitudeEndsInTheLastRow()
    {
        type(0, 9, "1000");
        leaveWithMouse(2, 9);
        QCOMPARE(altitudes(), QString("1000 1000 1000 1000 5500"));
        QCOMPARE(win->current(), qMakePair(4, 1));
    }

    void anEditInAnotherColumnHasNoEffect()
    {
        type(1, 4, "300");
        leaveWithMouse(1, 2);
        QCOMPARE(win->plan().lines[1]->speed, 120);
        QCOMPARE(win->cell(1, 4), QString("300"));
        win->plan().refresh();
        QCOMPARE(win->cell(1, 4), QString("120"));
    }

    void theMapIsNotToldOfAnAltitude()
    {
        type(1, 9, "12000");
        leaveWithMouse(3, 1);
        QCOMPARE(win->told(), QString());
    }

    void theFileTextCarriesTheNewAltitude()
    {
        type(1, 9, "12000");
        leaveWithMouse(3, 1);
        QCOMPARE(win->plan().textLines.filter("<altd>"),
                 (QStringList{altitudePiece("5500"), altitudePiece("12000"), altitudePiece("12000"),
                              altitudePiece("12000"), altitudePiece("5500")}));
    }

    void aMissingItemInTheCellThatIsLeftIsSafe()
    {
        win->setCurrent(1, 9);
        delete win->grid()->takeItem(1, 9);
        win->setCurrent(1, 1);
        QCOMPARE(win->grid()->rowCount(), 5);
        for (int row : {-1, 5, 100})
            emit win->grid()->currentCellChanged(0, 1, row, 9);
        QCOMPARE(win->plan().lines.size(), 5);
    }

    void leavingTheColumnOnAPlanThatWasShortenedIsSafe()
    {
        win->setCurrent(4, 9);
        win->plan().lines.clear();
        win->setCurrent(0, 1);
        QCOMPARE(win->plan().lines.size(), 0);
    }

private:
    QString altitudes() const
    {
        QStringList found;
        for (const CFpLinePtr& line : win->plan().lines)
            found << QString::number(line->altd);
        return found.join(' ');
    }

    static QString altitudePiece(const QString& feet)
    {
        return "\t\t<altd> --- Altitude (feet) at WPT -------\n\t\t" + feet + "\n";
    }

    QPoint middle(int row, int column) const
    {
        return win->grid()->visualItemRect(win->grid()->item(row, column)).center();
    }

    QLineEdit* editor() const
    {
        return win->grid()->findChild<QLineEdit*>();
    }

    /// Opens the cell's editor as a pilot does, by a double click, and types over what stands there.
    void edit(int row, int column, const QString& text)
    {
        win->grid()->scrollToItem(win->grid()->item(row, column));
        QTest::mouseClick(win->grid()->viewport(), Qt::LeftButton, Qt::NoModifier, middle(row, column));
        QTest::mouseDClick(win->grid()->viewport(), Qt::LeftButton, Qt::NoModifier, middle(row, column));
        QVERIFY(editor());
        QTest::keyClicks(editor(), text);
    }

    void type(int row, int column, const QString& text)
    {
        edit(row, column, text);
        if (editor())
            QTest::keyClick(editor(), Qt::Key_Return);
        QCoreApplication::processEvents();
    }

    void leaveWithMouse(int row, int column)
    {
        QTest::mouseClick(win->grid()->viewport(), Qt::LeftButton, Qt::NoModifier, middle(row, column));
        QCoreApplication::processEvents();
    }

    QScopedPointer<BoxResponder> boxes;
    QScopedPointer<PlanWindow> win;
};

QTEST_MAIN(TestPlanAltitude)
#include "tst_planaltitude.moc"
