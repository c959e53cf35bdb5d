// Commands of the shell as the user reaches them: menus, buttons, shortcuts and about boxes.
#include "boxresponder.h"
#include "sandbox.h"
#include "windowsession.h"

#include "mainwindow.h"

#include <QApplication>
#include <QPushButton>
#include <QTableWidget>
#include <QtTest>

class TestShellCommands : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void menuEntryAndButtonAreOneCommand();
    void quitClosesTheWindow();
    void setPlanActionsSwitchesFive();
    void aboutBox();
    void aboutQtBox();
    void ctrlNAsksForANewPlan();
    void ctrlLIsClaimedTwiceAndNeitherBindingIsRemoved();
    void btnPodKeepsItsWiringThoughHidden();

private:
    void makeAPlan();

    template <typename T>
    T* find(const char* name) const
    {
        return session->find<T>(name);
    }

    QScopedPointer<Sandbox> sandbox;
    QScopedPointer<WindowSession> session;
};

void TestShellCommands::init()
{
    sandbox.reset(new Sandbox);
    sandbox->addAirport();
    sandbox->addRunway();
    sandbox->addAirport({{"ukey", "LFBO"}, {"name", "TOULOUSE BLAGNAC"}, {"alat", arcSeconds(43, 38)}});
    session.reset(new WindowSession);
}

void TestShellCommands::cleanup()
{
    session.reset();
    sandbox.reset();
}

void TestShellCommands::makeAPlan()
{
    session->window().sAddAptToFp("LFPO");
    session->window().sAddAptToFp("LFBO");
    QCOMPARE(find<QTableWidget>("fltplnGrid")->rowCount(), 2);
}

void TestShellCommands::menuEntryAndButtonAreOneCommand()
{
    BoxResponder boxes;
    makeAPlan();
    for (int way = 0; way < 2; ++way) {
        boxes.expectMessage("Nouveau plan de vol", "Voulez vous effacer le plan de vol en cours ?",
                            QMessageBox::Cancel);
        way == 0 ? session->action("menuNewFlightPlan")->trigger() : find<QPushButton>("btnNewFlightPlan")->click();
        boxes.expectMessage("Nouveau plan de vol", "Voulez vous effacer le plan de vol en cours ?", QMessageBox::Ok);
        boxes.expectFilesRejected("Ouvrir un plan de vol existant");
        way == 0 ? session->action("menuLoadFlightPlan")->trigger() : find<QPushButton>("btnLoadFlightPlan")->click();
        QVERIFY(boxes.allUsed());
        QCOMPARE(find<QTableWidget>("fltplnGrid")->rowCount(), 0);

        session->window().sAddAptToFp("LFPO");
        boxes.expectMessage("Enregistrement plan de vol", "Un plan de vol doit comporté au moins deux points");
        way == 0 ? session->action("menuSaveFlightPlan")->trigger() : find<QPushButton>("btnSaveFlightPlan")->click();
        QVERIFY(boxes.allUsed());
    }
}

void TestShellCommands::quitClosesTheWindow()
{
    session->window().show();
    session->action("menuQuit")->trigger();
    QVERIFY(!session->window().isVisible());
}

void TestShellCommands::setPlanActionsSwitchesFive()
{
    for (bool on : {true, false}) {
        session->window().setPlanActions(on);
        QCOMPARE(session->action("menuSaveFlightPlan")->isEnabled(), on);
        for (const char* name : {"btnSaveFlightPlan", "btnStartPos", "btnCreateSID", "btnCreateSTAR"})
            QCOMPARE(find<QPushButton>(name)->isEnabled(), on);
        QVERIFY(find<QPushButton>("btnNewFlightPlan")->isEnabled());
        QVERIFY(find<QPushButton>("btnLoadFlightPlan")->isEnabled());
    }
}

void TestShellCommands::aboutBox()
{
    BoxResponder boxes;
    boxes.expectAnyMessage();
    session->action("actionAbout")->trigger();
    QCOMPARE(boxes.seen().size(), 1);
    QCOMPARE(boxes.seen().value(0).title, QString("A propos de Zephan Trajector"));
    const QStringList lines = boxes.seen().value(0).text.split(QRegularExpression("\n|<br */?>"));
    QVERIFY(lines.size() >= 2);
    QVERIFY(lines.first().contains("Zephan Trajector"));
    QVERIFY(lines.last().contains("version 0.22 novembre 2013"));
}

void TestShellCommands::aboutQtBox()
{
    BoxResponder boxes;
    boxes.expectAnyMessage();
    session->action("actionAboutQt")->trigger();
    QCOMPARE(boxes.seen().size(), 1);
    QVERIFY(boxes.seen().value(0).text.contains("Qt"));
}

void TestShellCommands::ctrlNAsksForANewPlan()
{
    BoxResponder boxes;
    session->window().show();
    QApplication::setActiveWindow(&session->window());
    makeAPlan();
    boxes.expectMessage("Nouveau plan de vol", "Voulez vous effacer le plan de vol en cours ?", QMessageBox::Ok);
    QTest::keyClick(&session->window(), Qt::Key_N, Qt::ControlModifier);
    QVERIFY(boxes.allUsed());
    QCOMPARE(find<QTableWidget>("fltplnGrid")->rowCount(), 0);
}

void TestShellCommands::ctrlLIsClaimedTwiceAndNeitherBindingIsRemoved()
{
    BoxResponder boxes; // either command would open a box
    session->window().show();
    QApplication::setActiveWindow(&session->window());
    find<QWidget>("dockWFlightPlan")->raise();
    makeAPlan();
    QSignalSpy load(session->action("menuLoadFlightPlan"), &QAction::triggered);
    QSignalSpy reset(find<QPushButton>("btnNewFlightPlan"), &QPushButton::clicked);
    QTest::keyClick(&session->window(), Qt::Key_L, Qt::ControlModifier);
    QCOMPARE(load.count() + reset.count(), 0);
    QCOMPARE(session->action("menuLoadFlightPlan")->shortcut(), QKeySequence("Ctrl+L"));
    QCOMPARE(find<QPushButton>("btnNewFlightPlan")->shortcut(), QKeySequence("Ctrl+L"));
    QCOMPARE(find<QTableWidget>("fltplnGrid")->rowCount(), 2);
}

void TestShellCommands::btnPodKeepsItsWiringThoughHidden()
{
    BoxResponder boxes;
    auto* button = find<QPushButton>("btnPod");
    QVERIFY(button->isHidden());
    boxes.expectFilesRejected("Ouvrir un POD");
    button->click();
    QVERIFY(boxes.allUsed());
}

QTEST_MAIN(TestShellCommands)
#include "tst_shellcommands.moc"
