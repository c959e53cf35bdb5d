// Navaids and waypoints deleted from the map: the question, the rows, the markers.
#include "deletionwords.h"
#include "navdatatest.h"

#include "mainwindow.h"

#include <QAbstractButton>
#include <QMessageBox>
#include <QPushButton>
#include <QtTest>

class TestNavdataDeletions : public NavdataTest
{
    Q_OBJECT

public:
    TestNavdataDeletions() : NavdataTest("BLETO", {"CGO", "BLETO", "CHATEAUROUX"}) {}

private slots:
    void theQuestionHasThreeButtons_data();
    void theQuestionHasThreeButtons();
    void theQuestionGivesTheButton_data();
    void theQuestionGivesTheButton();
    void escapeKeepsTheRow();
    void anEmptyTitleDoesNothing();
    void aNavaidIsDeleted();
    void aWaypointIsDeleted();
    void theMarkerIsGoneBeforeTheMessage();
    void anEditedNavaidIsDeleted();
    void aNavaidIsKept();
    void aWaypointIsKept();
    void theKeyIsTheSecondPartOfTheTrimmedTitle();
    void aTitleOfNoRowIsTold_data();
    void aTitleOfNoRowIsTold();
    void aTitleWithoutAKeyHasNoRow();
    void theBoxesAreInformationWithoutAParent_data();
    void theBoxesAreInformationWithoutAParent();
    void aRefusedDeletionIsReportedAndTheRestIsDone_data();
    void aRefusedDeletionIsReportedAndTheRestIsDone();
    void aKeyNamedLikeItsColumnTakesNoOtherRow_data();
    void aKeyNamedLikeItsColumnTakesNoOtherRow();
    void withoutDatabasesTheLookUpIsReported();
};

void TestNavdataDeletions::theQuestionHasThreeButtons_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<bool>("navaid");
    QTest::newRow("navaid") << "CGO-CGO4FR" << true;
    QTest::newRow("waypoint, under the navaid's navaidDeletion") << " BLETO-BLETOFR" << false;
}

void TestNavdataDeletions::theQuestionHasThreeButtons()
{
    QFETCH(QString, title);
    QFETCH(bool, navaid);
    QString text;
    QString question;
    QStringList buttons;
    QString preset;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    boxes->expectDialog("QMessageBox", [&](QDialog* dialog) {
        auto* box = qobject_cast<QMessageBox*>(dialog);
        text = box->text();
        question = box->informativeText();
        icon = box->icon();
        for (const auto button : {QMessageBox::Ok, QMessageBox::Save, QMessageBox::Cancel})
            buttons << (box->button(button) ? box->button(button)->text() : "none");
        preset = box->defaultButton() ? box->defaultButton()->text() : QString();
        QVERIFY(box->isModal());
        QVERIFY(!box->parent());
        QCOMPARE(box->buttons().size(), 3);
        box->reject();
    });
    if (navaid)
        session->window().sDelNavFromDB(title);
    else
        session->window().sDelWptFromDB(title);
    QVERIFY(boxes->allUsed());
    QCOMPARE(text, navaidDeletion);
    QCOMPARE(question, "Voulez vous effacer définitivement " + title + " ?");
    QCOMPARE(icon, QMessageBox::Question);
    QCOMPARE(buttons, (QStringList{erase, eraseAndExport, keep}));
    QCOMPARE(preset, eraseAndExport);
}

void TestNavdataDeletions::theQuestionGivesTheButton_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("button");
    QTest::newRow("delete") << erase << int(QMessageBox::Ok);
    QTest::newRow("delete and export") << eraseAndExport << int(QMessageBox::Save);
    QTest::newRow("cancel") << keep << int(QMessageBox::Cancel);
}

void TestNavdataDeletions::theQuestionGivesTheButton()
{
    QFETCH(QString, text);
    boxes->expectMessage("", "Un titre", text);
    QTEST(session->window().askDeleteData("Un titre", "Un message"), "button");
}

void TestNavdataDeletions::escapeKeepsTheRow()
{
    boxes->expectDialog("QMessageBox", [](QDialog* dialog) { QTest::keyClick(dialog, Qt::Key_Escape); });
    session->window().sDelNavFromDB("CGO-CGO4FR");
    QVERIFY(boxes->allUsed());
    QCOMPARE(rows("NAV"), 1);
}

void TestNavdataDeletions::anEmptyTitleDoesNothing()
{
    session->window().sDelNavFromDB("");
    session->window().sDelWptFromDB("");
    QVERIFY(boxes->seen().isEmpty());
    QCOMPARE(rows("NAV") + rows("WPT"), 2);
}

void TestNavdataDeletions::aNavaidIsDeleted()
{
    load();
    boxes->expectMessage("", navaidDeletion, erase);
    boxes->expectMessage(navaidDeletion, "Le navaid CGO-CGO4FR a été effacé");
    choose(46.25, 2.75, "Effacer le navaid…");
    QVERIFY(boxes->allUsed());
    QCOMPARE(rows("NAV"), 0);
    QCOMPARE(markers(), QStringList{"BLETO-BLETOFR"});
    QCOMPARE(session->page().calls(), QStringList{"delNavaid()"});
}

void TestNavdataDeletions::aWaypointIsDeleted()
{
    load();
    boxes->expectMessage("", navaidDeletion, erase);
    boxes->expectMessage("Suppression d'un waypoint", "Le waypoint BLETO-BLETOFR a été effacé");
    choose(46.75, 2.25, "Effacer le waypoint…");
    QVERIFY(boxes->allUsed());
    QCOMPARE(rows("WPT"), 0);
    QCOMPARE(markers(), QStringList{"CGO-CGO4FR"});
    QCOMPARE(session->page().calls(), QStringList{"delWaypoint()"});
}

void TestNavdataDeletions::theMarkerIsGoneBeforeTheMessage()
{
    load();
    QStringList left;
    boxes->expectMessage("", navaidDeletion, erase);
    boxes->expectDialog("QMessageBox", [this, &left](QDialog* dialog) {
        left = markers();
        dialog->accept();
    });
    choose(46.25, 2.75, "Effacer le navaid…");
    QCOMPARE(left, QStringList{"BLETO-BLETOFR"});
}

void TestNavdataDeletions::anEditedNavaidIsDeleted()
{
    load();
    boxes->expectDialog("CDialogNav", [](QDialog* dialog) { press(*dialog, "pbOK"); });
    boxes->expectAnyMessage();
    choose(46.25, 2.75, "Modifier le navaid…");
    QCOMPARE(markers(), (QStringList{"CHATEAUROUX-CGO4FR", "BLETO-BLETOFR"}));
    boxes->expectMessage("", navaidDeletion, eraseAndExport);
    boxes->expectMessage(navaidExportTitle, "Le navaid CHATEAUROUX a été effacé et enregistrer pour export \ndans " +
                                                data->shownName("CHATEAUROUX"));
    choose(46.25, 2.75, "Effacer le navaid…");
    QVERIFY(boxes->allUsed());
    QCOMPARE(markers(), QStringList{"BLETO-BLETOFR"});
    QCOMPARE(rows("NAV"), 0);
}

void TestNavdataDeletions::aNavaidIsKept()
{
    load();
    boxes->expectMessage("", navaidDeletion, keep);
    choose(46.25, 2.75, "Effacer le navaid…");
    QVERIFY(boxes->allUsed());
    QCOMPARE(rows("NAV"), 1);
    QCOMPARE(session->page().calls(), QStringList());
    QVERIFY(!data->has("CGO"));
}

void TestNavdataDeletions::aWaypointIsKept()
{
    load();
    boxes->expectMessage("", navaidDeletion, keep);
    choose(46.75, 2.25, "Effacer le waypoint…");
    QVERIFY(boxes->allUsed());
    QCOMPARE(rows("WPT"), 1);
    QCOMPARE(session->page().calls(), QStringList());
    QVERIFY(!data->has("BLETO"));
}

void TestNavdataDeletions::theKeyIsTheSecondPartOfTheTrimmedTitle()
{
    boxes->expectMessage("", navaidDeletion, erase);
    boxes->expectMessage(navaidDeletion, "Le navaid  anything-CGO4FR-more  a été effacé");
    session->window().sDelNavFromDB(" anything-CGO4FR-more ");
    QVERIFY(boxes->allUsed());
    QCOMPARE(rows("NAV"), 0);
}

void TestNavdataDeletions::aTitleOfNoRowIsTold_data()
{
    QTest::addColumn<QString>("title");
    QTest::newRow("an unknown key") << "X-NOKEY";
    QTest::newRow("a label with a dash") << "SAINT-DENIS-BLETOFR";
    QTest::newRow("no key") << "BLETOFR";
    QTest::newRow("an empty key") << "CGO4FR-";
    QTest::newRow("a blank") << " ";
}

void TestNavdataDeletions::aTitleOfNoRowIsTold()
{
    QFETCH(QString, title);
    boxes->expectMessage("Suppression d'un waypoint", "Le waypoint sélectionné n'existe pas dans la base");
    boxes->expectMessage(navaidDeletion, "Le point sélectionné n'existe pas dans la base");
    session->window().sDelWptFromDB(title);
    session->window().sDelNavFromDB(title);
    QVERIFY(boxes->allUsed());
    QCOMPARE(rows("NAV") + rows("WPT"), 2);
}

void TestNavdataDeletions::aTitleWithoutAKeyHasNoRow()
{
    sandbox->addWaypoint({{"ukey", ""}});
    sandbox->addNavaid({{"ukey", ""}});
    boxes->expectMessage("Suppression d'un waypoint", "Le waypoint sélectionné n'existe pas dans la base");
    boxes->expectMessage(navaidDeletion, "Le point sélectionné n'existe pas dans la base");
    session->window().sDelWptFromDB("BLETO");
    session->window().sDelNavFromDB("CGO");
    QVERIFY(boxes->allUsed());
    QCOMPARE(rows("WPT"), 2);
    QCOMPARE(rows("NAV"), 2);
}

void TestNavdataDeletions::theBoxesAreInformationWithoutAParent_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("button"); // none where no question comes
    QTest::addColumn<QString>("blocked");
    QTest::newRow("no such row") << "X-NOKEY"
                                 << "" << QString();
    QTest::newRow("deleted") << "CGO-CGO4FR" << erase << QString();
    QTest::newRow("deleted and exported") << "CGO-CGO4FR" << eraseAndExport << QString();
    QTest::newRow("deleted, no file") << "CGO-CGO4FR" << eraseAndExport << "CGO";
    QTest::newRow("waypoint: deleted") << "BLETO-BLETOFR" << erase << QString();
    QTest::newRow("waypoint: deleted and exported") << "BLETO-BLETOFR" << eraseAndExport << QString();
}

void TestNavdataDeletions::theBoxesAreInformationWithoutAParent()
{
    QFETCH(QString, title);
    QFETCH(QString, button);
    QFETCH(QString, blocked);
    if (!blocked.isEmpty())
        data->block(blocked);
    if (!button.isEmpty())
        boxes->expectMessage("", navaidDeletion, button);
    boxes->expectAnyMessage();
    if (title.startsWith("BLETO"))
        session->window().sDelWptFromDB(title);
    else
        session->window().sDelNavFromDB(title);
    QVERIFY(boxes->allUsed());
    const SeenBox told = boxes->seen().value(button.isEmpty() ? 0 : 1);
    QCOMPARE(told.icon, QMessageBox::Information);
    QCOMPARE(told.parentClass, QString());
}

void TestNavdataDeletions::aRefusedDeletionIsReportedAndTheRestIsDone_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("boxTitle");
    QTest::newRow("delete") << erase << navaidDeletion;
    QTest::newRow("delete and export") << eraseAndExport << navaidExportTitle;
}

void TestNavdataDeletions::aRefusedDeletionIsReportedAndTheRestIsDone()
{
    QFETCH(QString, button);
    load();
    sandbox->sql(dbfile::gen, "CREATE TRIGGER locked BEFORE DELETE ON NAV BEGIN SELECT RAISE(ABORT, 'locked'); END");
    boxes->expectMessage("", navaidDeletion, button);
    boxes->expectAnyMessage();
    boxes->expectAnyMessage();
    choose(46.25, 2.75, "Effacer le navaid…");
    QVERIFY(boxes->allUsed());
    QCOMPARE(boxes->seen().value(1).title, QString("SQL Error"));
    QTEST(boxes->seen().value(2).title, "boxTitle");
    QCOMPARE(session->page().calls(), QStringList{"delNavaid()"});
    QCOMPARE(rows("NAV"), 1);
}

void TestNavdataDeletions::aKeyNamedLikeItsColumnTakesNoOtherRow_data()
{
    QTest::addColumn<bool>("navaid");
    QTest::addColumn<QString>("statement");
    QTest::newRow("navaid") << true << "DELETE FROM NAV WHERE ukey = \"ukey\" ";
    QTest::newRow("waypoint") << false << "DELETE FROM WPT WHERE ukey = \"ukey\" ";
}

void TestNavdataDeletions::aKeyNamedLikeItsColumnTakesNoOtherRow()
{
    QFETCH(bool, navaid);
    QFETCH(QString, statement);
    sandbox->addNavaid({{"ukey", "ukey"}, {"iden", "EVIL"}});
    sandbox->addWaypoint({{"ukey", "ukey"}, {"name", "EVIL"}});
    boxes->expectMessage("", navaidDeletion, erase);
    boxes->expectMessage("SQL Error", "One of the query failed to execute.Error detail: " + statement);
    boxes->expectAnyMessage(); // the words of success, which the deletion has always had
    if (navaid)
        session->window().sDelNavFromDB("EVIL-ukey");
    else
        session->window().sDelWptFromDB("EVIL-ukey");
    QVERIFY(boxes->allUsed());
    QCOMPARE(rows("NAV"), 2);
    QCOMPARE(rows("WPT"), 2);
}

void TestNavdataDeletions::withoutDatabasesTheLookUpIsReported()
{
    startWithoutDatabases();
    for (int step = 0; step < 3; ++step)
        boxes->expectAnyMessage();
    boxes->expectMessage(navaidDeletion, "Le point sélectionné n'existe pas dans la base");
    session->window().sDelNavFromDB("CGO-CGO4FR");
    QVERIFY(boxes->allUsed());
    QCOMPARE(boxes->seen().value(0).title, QString("SQL Error"));
}

QTEST_MAIN(TestNavdataDeletions)
#include "tst_navdatadeletions.moc"
