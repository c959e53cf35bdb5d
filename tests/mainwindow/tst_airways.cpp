// The airways through a point: which points are looked up, what is offered, and what comes of the choice.
#include "airwaywords.h"
#include "boxresponder.h"
#include "messagelog.h"
#include "sandbox.h"
#include "windowsession.h"

#include "mainwindow.h"

#include <QComboBox>
#include <QInputDialog>
#include <QtTest>

class TestAirways : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void theIdentityOfATitleIsLookedUp();
    void bothEndsOfASegmentCount();
    void anAirwayIsOfferedOnceForAllItsSegments();
    void theListKeepsTheOrderOfFirstAppearance();
    void theListIsAChoiceOverTheWindow();
    void theChoiceIsLoggedAndNothingIsDrawn();
    void aCancelledListEndsTheCommand();
    void anAirwayWithoutANameEndsTheCommand();
    void withoutAWaypointNothingHappens();
    void aWaypointOnNoAirwayAloneIsSilent();
    void theNavaidIsAskedOnlyWhereTheWaypointHasNone();
    void theNavaidStandsInForTheWaypoint();
    void neitherOnAnAirwayIsTold();
    void aTitleIsTrimmedBeforeItIsSplit_data();
    void aTitleIsTrimmedBeforeItIsSplit();
    void smallLettersAreAnotherPoint();
    void aQuoteInAPointReadsAsOnNoAirway();
    void aQuoteInAnAirwayReadsAsVanished();
    void anAirwayThatVanishedIsTold();
    void aFailedStatementIsNotReported();

private:
    /// A segment of an airway between two points.
    void segment(const QString& name, const QString& from, const QString& to) const;

    QScopedPointer<BoxResponder> boxes;
    QScopedPointer<Sandbox> sandbox;
    QScopedPointer<WindowSession> session;
};

void TestAirways::init()
{
    boxes.reset(new BoxResponder);
    sandbox.reset(new Sandbox);
    session.reset(new WindowSession);
}

void TestAirways::cleanup()
{
    session.reset();
    sandbox.reset();
    boxes.reset();
}

void TestAirways::segment(const QString& name, const QString& from, const QString& to) const
{
    sandbox->addAirway({{"aaid", name}, {"nvi1", from}, {"nvi2", to}});
}

void TestAirways::theIdentityOfATitleIsLookedUp()
{
    segment("UT1", "BALAN", "LMG");
    segment("UT2", "BALANFR", "LMG"); // of the key nobody asks
    boxes->expectInputRejected(listTitle, listLabel("BALAN"));
    session->window().sATS("BALAN-BALANFR", "");
    QVERIFY(boxes->allUsed());
    QCOMPARE(boxes->seen().value(0).choices, QStringList{"UT1"});
}

void TestAirways::bothEndsOfASegmentCount()
{
    segment("UT1", "BALAN", "LMG");
    segment("UT2", "AMB", "BALAN");
    segment("UT3", "AMB", "LMG");
    boxes->expectInputRejected(listTitle, listLabel("BALAN"));
    session->window().sATS("BALAN", "");
    QCOMPARE(boxes->seen().value(0).choices, (QStringList{"UT1", "UT2"}));
}

void TestAirways::anAirwayIsOfferedOnceForAllItsSegments()
{
    for (const char* neighbour : {"A", "B", "C", "D", "BALAN"})
        segment("UT1", "BALAN", neighbour);
    boxes->expectInputRejected(listTitle, listLabel("BALAN"));
    session->window().sATS("BALAN-BALANFR", "");
    QCOMPARE(boxes->seen().value(0).choices, QStringList{"UT1"});
}

void TestAirways::theListKeepsTheOrderOfFirstAppearance()
{
    for (const char* name : {"Z9", "A1", "Z9", "M5", "A1"})
        segment(name, "BALAN", "LMG");
    boxes->expectInputRejected(listTitle, listLabel("BALAN"));
    session->window().sATS("BALAN-BALANFR", "");
    QCOMPARE(boxes->seen().value(0).choices, (QStringList{"Z9", "A1", "M5"}));
}

void TestAirways::theListIsAChoiceOverTheWindow()
{
    segment("UT1", "BALAN", "LMG");
    segment("UT2", "BALAN", "LMG");
    bool editable = true;
    int preset = -1;
    boxes->expectDialog("QInputDialog", [&](QDialog* dialog) {
        const auto* choice = dialog->findChild<QComboBox*>();
        editable = qobject_cast<QInputDialog*>(dialog)->isComboBoxEditable();
        preset = choice ? choice->currentIndex() : -1;
        dialog->reject();
    });
    session->window().sATS("BALAN-BALANFR", "");
    QVERIFY(!editable);
    QCOMPARE(preset, 0);
    QCOMPARE(boxes->seen().value(0).parentClass, QString("MainWindow"));
}

void TestAirways::theChoiceIsLoggedAndNothingIsDrawn()
{
    segment("UT1", "BALAN", "LMG");
    segment("UT2", "BALAN", "LMG");
    QVERIFY(session->load());
    session->page().clear();
    boxes->expectInput(listTitle, listLabel("BALAN"), "UT2");
    MessageLog log;
    session->window().sATS("BALAN-BALANFR", "");
    QVERIFY(boxes->allUsed());
    QCOMPARE(log.messages(QtDebugMsg), QStringList{"selected \"UT2\""});
    QCOMPARE(boxes->seen().size(), 1);
    QCOMPARE(session->page().calls(), QStringList());
}

void TestAirways::aCancelledListEndsTheCommand()
{
    segment("UT1", "BALAN", "LMG");
    boxes->expectInputRejected(listTitle, listLabel("BALAN"));
    MessageLog log;
    session->window().sATS("BALAN-BALANFR", "LMG-LMG4FR");
    QVERIFY(boxes->allUsed());
    QCOMPARE(boxes->seen().size(), 1);
    QCOMPARE(log.messages(QtDebugMsg), QStringList());
}

void TestAirways::anAirwayWithoutANameEndsTheCommand()
{
    segment("", "BALAN", "LMG");
    sandbox->addAirway({{"aaid", QVariant()}, {"nvi1", "BALAN"}});
    boxes->expectInput(listTitle, listLabel("BALAN"), "");
    MessageLog log;
    session->window().sATS("BALAN-BALANFR", "");
    QVERIFY(boxes->allUsed());
    QCOMPARE(boxes->seen().size(), 1);
    QCOMPARE(boxes->seen().value(0).choices, QStringList{""});
    QCOMPARE(log.messages(QtDebugMsg), QStringList());
}

void TestAirways::withoutAWaypointNothingHappens()
{
    segment("UT1", "AMB", "LMG");
    segment("UT2", "", "LMG");
    session->window().sATS("", "AMB-AMB4FR");
    session->window().sATS("", "");
    QVERIFY(boxes->seen().isEmpty());
}

void TestAirways::aWaypointOnNoAirwayAloneIsSilent()
{
    segment("UT1", "AMB", "LMG");
    session->window().sATS("BALAN-BALANFR", "");
    QVERIFY(boxes->seen().isEmpty());
}

void TestAirways::theNavaidIsAskedOnlyWhereTheWaypointHasNone()
{
    segment("UT1", "BALAN", "LMG");
    segment("UT2", "AMB", "LMG");
    boxes->expectInputRejected(listTitle, listLabel("BALAN"));
    session->window().sATS("BALAN-BALANFR", "AMB-AMB4FR");
    QVERIFY(boxes->allUsed());
    QCOMPARE(boxes->seen().value(0).choices, QStringList{"UT1"});
}

void TestAirways::theNavaidStandsInForTheWaypoint()
{
    segment("UT2", "LMG", "AMB");
    boxes->expectInput(listTitle, listLabel("AMB"), "UT2");
    session->window().sATS("BALAN-BALANFR", " AMB-AMB4FR ");
    QVERIFY(boxes->allUsed());
    QCOMPARE(boxes->seen().size(), 1);
}

void TestAirways::neitherOnAnAirwayIsTold()
{
    segment("UT1", "PON", "LMG");
    boxes->expectMessage(noneTitle, noneText("AMB"));
    session->window().sATS("BALAN-BALANFR", "AMB-AMB4FR");
    QVERIFY(boxes->allUsed());
    QCOMPARE(boxes->seen().value(0).icon, QMessageBox::Information);
    QCOMPARE(boxes->seen().value(0).parentClass, QString("MainWindow"));
    QCOMPARE(boxes->seen().value(0).choices.size(), 1);
}

void TestAirways::aTitleIsTrimmedBeforeItIsSplit_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("point");
    QTest::newRow("blanks around") << " \tBALAN-BALANFR \n"
                                   << "BALAN";
    QTest::newRow("a blank ahead of the dash") << "BALAN -BALANFR"
                                               << "BALAN ";
    QTest::newRow("no key") << "BALAN"
                            << "BALAN";
    QTest::newRow("two dashes") << "SAINT-DENIS-KEY"
                                << "SAINT";
    QTest::newRow("a dash in front") << "-BALANFR"
                                     << "";
    QTest::newRow("a blank alone") << " "
                                   << "";
}

void TestAirways::aTitleIsTrimmedBeforeItIsSplit()
{
    QFETCH(QString, title);
    QFETCH(QString, point);
    segment("UT1", point, "LMG");
    segment("UT2", "OTHER", "LMG");
    boxes->expectInputRejected(listTitle, listLabel(point));
    session->window().sATS(title, "");
    QVERIFY(boxes->allUsed());
    QCOMPARE(boxes->seen().value(0).choices, QStringList{"UT1"});
}

void TestAirways::smallLettersAreAnotherPoint()
{
    segment("UT1", "balan", "LMG");
    session->window().sATS("BALAN-BALANFR", "");
    QVERIFY(boxes->seen().isEmpty());
}

void TestAirways::aQuoteInAPointReadsAsOnNoAirway()
{
    segment("UT1", "A\"B", "LMG");
    session->window().sATS("A\"B-KEY", "");
    QVERIFY(boxes->seen().isEmpty());
    boxes->expectMessage(noneTitle, noneText("C\"D"));
    session->window().sATS("A\"B-KEY", "C\"D-KEY");
    QVERIFY(boxes->allUsed());
}

void TestAirways::aQuoteInAnAirwayReadsAsVanished()
{
    segment("U\"T", "BALAN", "LMG");
    boxes->expectInput(listTitle, listLabel("BALAN"), "U\"T");
    boxes->expectMessage(noneTitle, noneText("BALAN"));
    session->window().sATS("BALAN-BALANFR", "");
    QVERIFY(boxes->allUsed());
}

void TestAirways::anAirwayThatVanishedIsTold()
{
    segment("UT1", "AMB", "LMG");
    boxes->expectDialog("QInputDialog", [this](QDialog* dialog) {
        sandbox->sql(dbfile::route, "DELETE FROM ATSROUTE");
        dialog->accept();
    });
    boxes->expectMessage(noneTitle, noneText("AMB"));
    session->window().sATS("BALAN-BALANFR", "AMB-AMB4FR");
    QVERIFY(boxes->allUsed());
}

void TestAirways::aFailedStatementIsNotReported()
{
    sandbox->sql(dbfile::route, "DROP TABLE ATSROUTE");
    session->window().sATS("BALAN-BALANFR", "");
    QVERIFY(boxes->seen().isEmpty());
    boxes->expectMessage(noneTitle, noneText("AMB"));
    session->window().sATS("BALAN-BALANFR", "AMB-AMB4FR");
    QVERIFY(boxes->allUsed());
}

QTEST_MAIN(TestAirways)
#include "tst_airways.moc"
