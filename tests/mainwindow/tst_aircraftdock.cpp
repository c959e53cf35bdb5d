// The aircraft dock: what the archives fill in, which of them it shows when, and what a search takes from it.
#include "boxresponder.h"
#include "caircraftdata.h"
#include "cflightplan.h"
#include "cnavglobalvar.h"
#include "mainwindow.h"
#include "pageprobe.h"
#include "podbytes.h"
#include "sandbox.h"

#include <QComboBox>
#include <QDockWidget>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

namespace {

QByteArray svh(const QByteArray& acid, int base)
{
    const auto line = [base](const char* tag, int offset) {
        return QByteArray(tag) + "\n" + QByteArray::number(base + offset) + "\n";
    };
    return "<acid>\n" + acid + "\n" + line("<048a>", 1) + line("<043a>", 2) + line("<045a>", 3) + line("<044a>", 4) +
           line("<CEIL>", 5);
}

} // namespace

class TestAircraftDock : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        boxes.reset(new BoxResponder);
        sandbox.reset(new Sandbox);
    }
    void cleanup()
    {
        window.reset();
        sandbox.reset();
        boxes.reset();
    }

    void everyArchiveGivesAnItemInTheFoldersOrder()
    {
        sandbox->writeFile("Aircraft/a.pod", podAircraft("ALPHA", svh("F-AAAA", 100)));
        sandbox->writeFile("Aircraft/deep/er/b.POD", podAircraft("BRAVO", svh("F-BBBB", 200)));
        sandbox->writeFile("Aircraft/readme.txt", podAircraft("CHARLIE", svh("F-CCCC", 300)));
        start();
        QStringList makes;
        for (int i = 0; i < combo()->count(); ++i)
            makes << combo()->itemText(i);
        QCOMPARE(makes.size(), 2);
        QVERIFY(makes.contains("ALPHA"));
        QVERIFY(makes.contains("BRAVO"));
        QCOMPARE(combo()->currentIndex(), 0);
    }

    void aLinkToAnArchiveIsPassedOver()
    {
        sandbox->writeFile("Aircraft/a.pod", podAircraft("ALPHA", svh("F-AAAA", 100)));
        QVERIFY(QFile::link(sandbox->path("Aircraft/a.pod"), sandbox->path("Aircraft/link.pod")));
        start();
        QCOMPARE(combo()->count(), 1);
    }

    void beforeTheWindowShowsTheFieldsHoldTheLastArchive()
    {
        writeTwo();
        start();
        QCOMPARE(fields(), numbersOf(combo()->itemText(1)));
        QCOMPARE(combo()->currentIndex(), 0);
    }

    void afterTheWindowShowsTheFieldsHoldTheFirstArchive()
    {
        writeTwo();
        start();
        show();
        QCOMPARE(fields(), numbersOf(combo()->itemText(0)));
    }

    void choosingAnAircraftShowsItsNumbers()
    {
        writeTwo();
        start();
        show();
        for (int index : {1, 0}) {
            combo()->setCurrentIndex(index);
            emit combo()->activated(index);
            QCOMPARE(fields(), numbersOf(combo()->itemText(index)));
        }
    }

    void choosingWithTheKeyboardReachesTheSlot()
    {
        writeTwo();
        start();
        show();
        QTest::keyClick(combo(), Qt::Key_Down);
        QCOMPARE(combo()->currentIndex(), 1);
        QCOMPARE(fields(), numbersOf(combo()->itemText(1)));
    }

    void verticalSpeedAndCruiseAltitudeComeFromNoArchive()
    {
        writeTwo();
        start();
        show();
        QCOMPARE(field("leSpeedVert")->text(), QString("0"));
        QCOMPARE(field("leAltCruise")->text(), QString("0"));
        field("leSpeedVert")->setText("700");
        field("leAltCruise")->setText("8500");
        emit combo()->activated(1);
        QCOMPARE(field("leSpeedVert")->text(), QString("700"));
        QCOMPARE(field("leAltCruise")->text(), QString("8500"));
    }

    void choosingAnAircraftLeavesThePlansRecord()
    {
        writeTwo();
        start();
        show();
        emit combo()->activated(1);
        const CAircraftData& record = *plan().aircraft;
        QCOMPARE(record.speedCruise, 0);
        QCOMPARE(record.ceiling, 0);
        QCOMPARE(record.acid, QString());
    }

    void showingOrHidingTheDockPutsTheNumbersBack()
    {
        writeTwo();
        start();
        show();
        auto* dock = window->findChild<QDockWidget*>("dockWAircraft");
        for (bool front : {true, false}) {
            for (const char* name :
                 {"leAircraftNumber", "leSpeedMax", "leSpeedCruise", "leSpeedApp", "leAircraftCeiling"})
                field(name)->setText("typed");
            field("leAltCruise")->setText("typed");
            if (front)
                dock->raise();
            else
                window->findChild<QDockWidget*>("dockWDebug")->raise();
            QCoreApplication::processEvents();
            QCOMPARE(fields(), numbersOf(combo()->itemText(0)));
            QCOMPARE(field("leAltCruise")->text(), QString("typed"));
        }
    }

    void aSpeedTypedByHandTakesEffectAtTheNextSearch()
    {
        writeTwo();
        sandbox->addAirport();
        start();
        show();
        field("leSpeedCruise")->setText("155");
        field("leAltCruise")->setText("9500");
        search("LFPO");
        QCOMPARE(plan().foundLines[0]->speed, 155);
        QCOMPARE(plan().foundLines[0]->altd, 9500);
        field("leSpeedCruise")->setText("fast");
        search("LFPO");
        QCOMPARE(plan().foundLines[0]->speed, 0);
    }

    void aSearchTakesTheSpeedOfTheAircraftShown()
    {
        writeTwo();
        sandbox->addAirport();
        start();
        show();
        search("LFPO");
        QCOMPARE(QString::number(plan().foundLines[0]->speed), numbersOf(combo()->itemText(0)).section(' ', 2, 2));
    }

    void theAddCommandsTakeNoNoticeOfTheDock()
    {
        writeTwo();
        sandbox->addNavaid();
        start();
        show();
        plan().aircraft->speedCruise = 99;
        field("leSpeedCruise")->setText("155");
        window->sAddNavToFp("RBT-RBT");
        QCOMPARE(plan().lines[0]->speed, 99);
    }

    void withoutArchivesNothingHappens()
    {
        start();
        show();
        QCOMPARE(combo()->count(), 0);
        QCOMPARE(fields(), QString(" 0 0 0 0"));
        field("leSpeedMax")->setText("77");
        window->findChild<QDockWidget*>("dockWAircraft")->raise();
        QCoreApplication::processEvents();
        for (int index : {-1, 0, 5})
            emit combo()->activated(index);
        emit window->findChild<QDockWidget*>("dockWAircraft")->visibilityChanged(true);
        QCOMPARE(field("leSpeedMax")->text(), QString("77"));
    }

    void withoutTheFolderNothingHappens()
    {
        QVERIFY(QDir(sandbox->path("Aircraft")).removeRecursively());
        start();
        show();
        QCOMPARE(combo()->count(), 0);
    }

    void anIndexBeyondTheArchivesIsSafe()
    {
        writeTwo();
        start();
        for (int index : {-1, 2, 1000})
            emit combo()->activated(index);
        QCOMPARE(combo()->count(), 2);
    }

    void anUnfitArchiveGivesItsItemAndItsNumbers_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("make");
        QTest::addColumn<QString>("numbers");
        QTest::newRow("no byte") << QByteArray() << ""
                                 << " 0 0 0 0";
        QTest::newRow("noise") << QByteArray(3000, '\xA5') << ""
                               << " 0 0 0 0";
        QTest::newRow("no entry") << podArchive({}) << ""
                                  << " 0 0 0 0";
        QTest::newRow("a header cut short") << podAircraft("CUT", svh("F-CUT", 1)).left(100) << ""
                                            << " 0 0 0 0";
        QTest::newRow("no SVH entry: the tags are looked for in the NFO")
            << podArchive({{"A.NFO", "<make>\nLONE\n<acid>\nF-LONE\n<048a>\n12\n"}}) << "LONE"
            << "F-LONE 12 0 0 0";
        QTest::newRow("no NFO entry") << podArchive({{"A.SVH", svh("F-SVH", 10)}}) << ""
                                      << "F-SVH 11 12 14 15";
        QTest::newRow("several SVH entries: the last counts")
            << podArchive({{"A.NFO", "<make>\nTWO\n"}, {"A.SVH", svh("F-ONE", 10)}, {"B.SVH", svh("F-TWO", 20)}})
            << "TWO"
            << "F-TWO 21 22 24 25";
        QTest::newRow("small letters in the suffix do not match")
            << podArchive({{"A.NFO", "<make>\nLOW\n"}, {"A.svh", svh("F-LOW", 10)}}) << "LOW"
            << " 0 0 0 0";
        QTest::newRow("words instead of numbers, blanks, text behind the tag, carriage returns")
            << podAircraft(" SPACED ", "<acid> call sign\r\n  F-SPCE \r\nx <048a> knots\r\n fast\r\n<043a>\r\n\t 110 "
                                       "\r\n<044a>\r\n65.5\r\n<CEIL>\r\n13000\r\n")
            << "SPACED"
            << "F-SPCE 0 110 0 13000";
        QTest::newRow("a tag in the last line")
            << podArchive({{"A.NFO", "<make>"}, {"A.SVH", "<acid>\nX\n<CEIL>"}}) << ""
            << "X 0 0 0 0";
        QTest::newRow("a maker without an end")
            << podAircraft(QByteArray(100000, 'M'), svh("F-LONG", 10)) << QString(2000, 'M') + "..."
            << "F-LONG 11 12 14 15";
    }
    void anUnfitArchiveGivesItsItemAndItsNumbers()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, make);
        QFETCH(QString, numbers);
        sandbox->writeFile("Aircraft/a.pod", bytes);
        start();
        QCOMPARE(combo()->count(), 1);
        QCOMPARE(combo()->itemText(0), make);
        QCOMPARE(fields(), numbers);
        show();
        QCOMPARE(fields(), numbers);
    }

    void theArchiveButtonIsHiddenAndStaysWired()
    {
        sandbox->writeFile("Aircraft/a.pod", podAircraft("ALPHA", svh("F-AAAA", 100)));
        start();
        show();
        auto* button = window->findChild<QPushButton*>("btnPod");
        QVERIFY(!button->isVisible());
        boxes->expectFiles("Ouvrir un POD", {sandbox->path("Aircraft/a.pod")});
        button->click();
        QVERIFY(boxes->allUsed());
        QCOMPARE(boxes->seen().value(0).choices, QStringList{"Fichier POD (*pod)"});
        boxes->expectFilesRejected("Ouvrir un POD");
        button->click();
        QVERIFY(boxes->allUsed());
    }

private:
    void writeTwo()
    {
        sandbox->writeFile("Aircraft/a.pod", podAircraft("ALPHA", svh("F-AAAA", 100)));
        sandbox->writeFile("Aircraft/b.pod", podAircraft("BRAVO", svh("F-BBBB", 200)));
    }

    static QString numbersOf(const QString& make)
    {
        return make == "ALPHA" ? "F-AAAA 101 102 104 105" : "F-BBBB 201 202 204 205";
    }

    void start()
    {
        window.reset(new MainWindow(nullptr));
    }

    void show()
    {
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.data()));
        QCoreApplication::processEvents();
    }

    void search(const QString& text)
    {
        window->findChild<QLineEdit*>("searchData")->setText(text);
        window->searchInTable(true);
        QCOMPARE(plan().foundLines.size(), 1);
    }

    QLineEdit* field(const char* name) const
    {
        return window->findChild<QLineEdit*>(name);
    }

    /// Registration, maximum, cruise and approach speed, ceiling.
    QString fields() const
    {
        QStringList texts;
        for (const char* name : {"leAircraftNumber", "leSpeedMax", "leSpeedCruise", "leSpeedApp", "leAircraftCeiling"})
            texts << field(name)->text();
        return texts.join(' ');
    }

    QComboBox* combo() const
    {
        return window->findChild<QComboBox*>("cbAircraftType");
    }

    static CFlightPlan& plan()
    {
        return *CNavGlobalVar::instance()->flightPlan;
    }

    QScopedPointer<BoxResponder> boxes;
    QScopedPointer<Sandbox> sandbox;
    QScopedPointer<MainWindow> window;
};

QTEST_MAIN(TestAircraftDock)
#include "tst_aircraftdock.moc"
