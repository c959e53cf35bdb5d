// Navaids and waypoints deleted from the map, with and without an update file that deletes them elsewhere too.
#include "boxresponder.h"
#include "childprocess.h"
#include "deletionwords.h"
#include "editingworld.h"
#include "sandbox.h"
#include "updateline.h"
#include "windowsession.h"

#include "ciodatabase.h"
#include "cnavglobalvar.h"
#include "mainwindow.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QMessageBox>
#include <QPushButton>
#include <QtTest>

namespace {

const QString heading = QStringLiteral("Suppression d'un navaid");
const QString exportTitle = QStringLiteral("Suppression/export d'un navaid");

} // namespace

class TestNavdataDeletions : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

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
    void aNavaidIsDeletedAndExported();
    void aWaypointIsDeletedAndExported();
    void theFilesLineHasNoEnd();
    void theFileReplacesAnOlderOne();
    void theFileReplacesThatOfASavedRow();
    void aDeletionAloneLeavesNoFile();
    void aNavaidsFileThatCannotBeWrittenIsTold();
    void aWaypointsFileThatCannotBeWrittenIsNotTold();
    void theFileDeletesTheRowWhereItIsImported();
    void theDataFolderIsNotMade();
    void deletingTwiceFindsNothingAndLeavesTheFile();
    void theKeyIsTheSecondPartOfTheTrimmedTitle();
    void aTitleOfNoRowIsTold_data();
    void aTitleOfNoRowIsTold();
    void aTitleWithoutAKeyHasNoRow();
    void theBoxesAreInformationWithoutAParent_data();
    void theBoxesAreInformationWithoutAParent();
    void aRefusedDeletionIsReportedAndTheRestIsDone_data();
    void aRefusedDeletionIsReportedAndTheRestIsDone();
    void withoutDatabasesTheLookUpIsReported();

private:
    void load();
    void choose(double latitude, double longitude, const QString& entry);
    QStringList markers();
    int rows(const QString& table);

    QScopedPointer<BoxResponder> boxes;
    QScopedPointer<Sandbox> sandbox;
    QScopedPointer<DataFolder> data;
    QScopedPointer<WindowSession> session;
};

void TestNavdataDeletions::init()
{
    boxes.reset(new BoxResponder);
    sandbox.reset(new Sandbox);
    data.reset(inChildProcess() ? nullptr : new DataFolder({"CGO", "BLETO", "CHATEAUROUX"}));
    sandbox->addCountry("FR", "France");
    sandbox->addWaypoint({{"ukey", "BLETOFR"},
                          {"iden", "BLET"},
                          {"name", "BLETO"},
                          {"wlat", arcSeconds(46, 45)},
                          {"wlon", arcSeconds(2, 15)}});
    sandbox->addNavaid({{"ukey", "CGO4FR"},
                        {"iden", "CGO"},
                        {"name", "CHATEAUROUX"},
                        {"nfrq", 110.2},
                        {"ntyp", 17},
                        {"nlat", arcSeconds(46, 15)},
                        {"nlon", arcSeconds(2, 45)}});
    session.reset(new WindowSession);
}

void TestNavdataDeletions::cleanup()
{
    session.reset();
    data.reset();
    sandbox.reset();
    boxes.reset();
}

void TestNavdataDeletions::load()
{
    QVERIFY(session->load());
    QApplication::setActiveWindow(&session->window());
    session->page().evaluate("map.setCenter(new google.maps.LatLng(46.5, 2.5));map.setZoom(8)");
    QCOMPARE(markers(), (QStringList{"CGO-CGO4FR", "BLETO-BLETOFR"}));
    session->page().clear();
}

void TestNavdataDeletions::choose(double latitude, double longitude, const QString& entry)
{
    session->page().contextMenu(session->page().pointOf(latitude, longitude));
    QVERIFY2(session->page().chooseEntry(entry), qPrintable(session->page().menuEntries().join(", ")));
}

QStringList TestNavdataDeletions::markers()
{
    return session->page().titles("listVOR") + session->page().titles("listWptRte");
}

int TestNavdataDeletions::rows(const QString& table)
{
    return sandbox->sqlValue(table == "NAV" ? dbfile::gen : dbfile::wpt, "SELECT COUNT(*) FROM " + table).toInt();
}

void TestNavdataDeletions::theQuestionHasThreeButtons_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<bool>("navaid");
    QTest::newRow("navaid") << "CGO-CGO4FR" << true;
    QTest::newRow("waypoint, under the navaid's heading") << " BLETO-BLETOFR" << false;
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
    QCOMPARE(text, heading);
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
    boxes->expectMessage("", heading, erase);
    boxes->expectMessage(heading, "Le navaid CGO-CGO4FR a été effacé");
    choose(46.25, 2.75, "Effacer le navaid…");
    QVERIFY(boxes->allUsed());
    QCOMPARE(rows("NAV"), 0);
    QCOMPARE(markers(), QStringList{"BLETO-BLETOFR"});
    QCOMPARE(session->page().calls(), QStringList{"delNavaid()"});
}

void TestNavdataDeletions::aWaypointIsDeleted()
{
    load();
    boxes->expectMessage("", heading, erase);
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
    boxes->expectMessage("", heading, erase);
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
    boxes->expectMessage("", heading, eraseAndExport);
    boxes->expectMessage(exportTitle, "Le navaid CHATEAUROUX a été effacé et enregistrer pour export \ndans " +
                                          data->shownName("CHATEAUROUX"));
    choose(46.25, 2.75, "Effacer le navaid…");
    QVERIFY(boxes->allUsed());
    QCOMPARE(markers(), QStringList{"BLETO-BLETOFR"});
    QCOMPARE(rows("NAV"), 0);
}

void TestNavdataDeletions::aNavaidIsKept()
{
    load();
    boxes->expectMessage("", heading, keep);
    choose(46.25, 2.75, "Effacer le navaid…");
    QVERIFY(boxes->allUsed());
    QCOMPARE(rows("NAV"), 1);
    QCOMPARE(session->page().calls(), QStringList());
    QVERIFY(!data->has("CGO"));
}

void TestNavdataDeletions::aWaypointIsKept()
{
    load();
    boxes->expectMessage("", heading, keep);
    choose(46.75, 2.25, "Effacer le waypoint…");
    QVERIFY(boxes->allUsed());
    QCOMPARE(rows("WPT"), 1);
    QCOMPARE(session->page().calls(), QStringList());
    QVERIFY(!data->has("BLETO"));
}

void TestNavdataDeletions::aNavaidIsDeletedAndExported()
{
    load();
    boxes->expectMessage("", heading, eraseAndExport);
    boxes->expectMessage(exportTitle,
                         "Le navaid CGO a été effacé et enregistrer pour export \ndans " + data->shownName("CGO"));
    choose(46.25, 2.75, "Effacer le navaid…");
    QVERIFY(boxes->allUsed());
    QCOMPARE(rows("NAV"), 0);
    QCOMPARE(markers(), QStringList{"BLETO-BLETOFR"});
    QCOMPARE(session->page().calls(), QStringList{"delNavaid()"});
    QCOMPARE(data->bytes("CGO"), QByteArray("GEN;NAV;-;ukey;CGO4FR"));
}

void TestNavdataDeletions::aWaypointIsDeletedAndExported()
{
    load();
    boxes->expectMessage("", heading, eraseAndExport);
    boxes->expectMessage(exportTitle, "Le waypoint BLETO a été effacé et enregistrer pour export \ndans " +
                                          data->shownName("BLETO"));
    choose(46.75, 2.25, "Effacer le waypoint…");
    QVERIFY(boxes->allUsed());
    QCOMPARE(rows("WPT"), 0);
    QCOMPARE(markers(), QStringList{"CGO-CGO4FR"});
    QCOMPARE(session->page().calls(), QStringList{"delWaypoint()"});
    QCOMPARE(data->bytes("BLETO"), QByteArray("WPT;WPT;-;ukey;BLETOFR"));
}

void TestNavdataDeletions::theFilesLineHasNoEnd()
{
    for (const auto& button : {eraseAndExport, eraseAndExport}) {
        boxes->expectMessage("", heading, button);
        boxes->expectAnyMessage();
    }
    session->window().sDelNavFromDB("CGO-CGO4FR");
    session->window().sDelWptFromDB("BLETO-BLETOFR");
    QCOMPARE(splitUpdateLine(data->bytes("CGO")), (QStringList{"GEN", "NAV", "-", "ukey", "CGO4FR"}));
    QCOMPARE(splitUpdateLine(data->bytes("BLETO")), (QStringList{"WPT", "WPT", "-", "ukey", "BLETOFR"}));
    QVERIFY(!data->bytes("CGO").endsWith('\n') && !data->bytes("BLETO").endsWith('\n'));
}

void TestNavdataDeletions::theFileReplacesAnOlderOne()
{
    data->write("CGO", QByteArray(1000, 'x'));
    boxes->expectMessage("", heading, eraseAndExport);
    boxes->expectAnyMessage();
    session->window().sDelNavFromDB("CGO-CGO4FR");
    QCOMPARE(data->bytes("CGO"), QByteArray("GEN;NAV;-;ukey;CGO4FR"));
}

void TestNavdataDeletions::theFileReplacesThatOfASavedRow()
{
    boxes->expectDialog("CDialogWpt", [](QDialog* dialog) {
        press(*dialog, "cbSaveCSV");
        press(*dialog, "pbOK");
    });
    boxes->expectAnyMessage();
    boxes->expectAnyMessage();
    session->window().sAddWptToDB("BLETO-BLETOFR", 0, 0);
    QVERIFY(data->bytes("BLETO").startsWith("WPT;WPT;+;"));
    boxes->expectMessage("", heading, eraseAndExport);
    boxes->expectAnyMessage();
    session->window().sDelWptFromDB("BLETO-BLETOFR");
    QCOMPARE(data->bytes("BLETO"), QByteArray("WPT;WPT;-;ukey;BLETOFR"));
}

void TestNavdataDeletions::aDeletionAloneLeavesNoFile()
{
    boxes->expectMessage("", heading, erase);
    boxes->expectAnyMessage();
    session->window().sDelNavFromDB("CGO-CGO4FR");
    QCOMPARE(rows("NAV"), 0);
    QVERIFY(!data->has("CGO"));
}

void TestNavdataDeletions::aNavaidsFileThatCannotBeWrittenIsTold()
{
    data->block("CGO");
    boxes->expectMessage("", heading, eraseAndExport);
    boxes->expectMessage(exportTitle, "Le navaid CGO a été effacé mais l'export à échoué");
    session->window().sDelNavFromDB("CGO-CGO4FR");
    QVERIFY(boxes->allUsed());
    QCOMPARE(rows("NAV"), 0);
}

void TestNavdataDeletions::aWaypointsFileThatCannotBeWrittenIsNotTold()
{
    data->block("BLETO");
    boxes->expectMessage("", heading, eraseAndExport);
    session->window().sDelWptFromDB("BLETO-BLETOFR");
    QCOMPARE(boxes->seen().size(), 1);
    QCOMPARE(rows("WPT"), 0);
}

void TestNavdataDeletions::theFileDeletesTheRowWhereItIsImported()
{
    for (int kind = 0; kind < 2; ++kind) {
        boxes->expectMessage("", heading, eraseAndExport);
        boxes->expectAnyMessage();
    }
    session->window().sDelNavFromDB("CGO-CGO4FR");
    session->window().sDelWptFromDB("BLETO-BLETOFR");
    // Another installation, which still has the rows and others beside them.
    sandbox->addNavaid({{"ukey", "CGO4FR"}});
    sandbox->addNavaid({{"ukey", "CGO5FR"}, {"iden", "CGO4FR"}});
    sandbox->addWaypoint({{"ukey", "BLETOFR"}});
    sandbox->addWaypoint({{"ukey", "BLETOES"}});
    for (const char* label : {"CGO", "BLETO"}) {
        QFile file(QCoreApplication::applicationDirPath() + "/Data/" + label + ".CSV");
        QVERIFY(file.open(QIODevice::ReadOnly));
        boxes->expectMessage("Importation", "Importation terminée\n " + file.fileName());
        CIODataBase exchange;
        QVERIFY(exchange.importDB(file, CNavGlobalVar::instance()));
    }
    QVERIFY(boxes->allUsed());
    QCOMPARE(sandbox->sql(dbfile::gen, "SELECT ukey FROM NAV"), (QVector<QVariantList>{{"CGO5FR"}}));
    QCOMPARE(sandbox->sql(dbfile::wpt, "SELECT ukey FROM WPT"), (QVector<QVariantList>{{"BLETOES"}}));
}

void TestNavdataDeletions::theDataFolderIsNotMade()
{
    if (!inChildProcess()) {
        // A copy of this program stands in a folder without "Data".
        QTemporaryDir folder;
        const ChildRun run = runChildProcess({QTest::currentTestFunction()}, {}, folder.path());
        QVERIFY2(run.finished && run.exitCode == 0, qPrintable(run.output + run.log));
        QVERIFY(!QDir(folder.path()).exists("Data"));
        return;
    }
    boxes->expectMessage("", heading, eraseAndExport);
    boxes->expectMessage(exportTitle, "Le navaid CGO a été effacé mais l'export à échoué");
    session->window().sDelNavFromDB("CGO-CGO4FR");
    QVERIFY(boxes->allUsed());
    QCOMPARE(rows("NAV"), 0);
}

void TestNavdataDeletions::deletingTwiceFindsNothingAndLeavesTheFile()
{
    boxes->expectMessage("", heading, eraseAndExport);
    boxes->expectAnyMessage();
    boxes->expectMessage("Suppression d'un waypoint", "Le waypoint sélectionné n'existe pas dans la base");
    session->window().sDelWptFromDB("BLETO-BLETOFR");
    session->window().sDelWptFromDB("BLETO-BLETOFR");
    boxes->expectMessage("", heading, eraseAndExport);
    boxes->expectAnyMessage();
    boxes->expectMessage(heading, "Le point sélectionné n'existe pas dans la base");
    session->window().sDelNavFromDB("CGO-CGO4FR");
    session->window().sDelNavFromDB("CGO-CGO4FR");
    QVERIFY(boxes->allUsed());
    QCOMPARE(data->bytes("BLETO"), QByteArray("WPT;WPT;-;ukey;BLETOFR"));
    QCOMPARE(data->bytes("CGO"), QByteArray("GEN;NAV;-;ukey;CGO4FR"));
}

void TestNavdataDeletions::theKeyIsTheSecondPartOfTheTrimmedTitle()
{
    boxes->expectMessage("", heading, erase);
    boxes->expectMessage(heading, "Le navaid  anything-CGO4FR-more  a été effacé");
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
    boxes->expectMessage(heading, "Le point sélectionné n'existe pas dans la base");
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
    boxes->expectMessage(heading, "Le point sélectionné n'existe pas dans la base");
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
        boxes->expectMessage("", heading, button);
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
    QTest::newRow("delete") << erase << heading;
    QTest::newRow("delete and export") << eraseAndExport << exportTitle;
}

void TestNavdataDeletions::aRefusedDeletionIsReportedAndTheRestIsDone()
{
    QFETCH(QString, button);
    load();
    sandbox->sql(dbfile::gen, "CREATE TRIGGER locked BEFORE DELETE ON NAV BEGIN SELECT RAISE(ABORT, 'locked'); END");
    boxes->expectMessage("", heading, button);
    boxes->expectAnyMessage();
    boxes->expectAnyMessage();
    choose(46.25, 2.75, "Effacer le navaid…");
    QVERIFY(boxes->allUsed());
    QCOMPARE(boxes->seen().value(1).title, QString("SQL Error"));
    QTEST(boxes->seen().value(2).title, "boxTitle");
    QCOMPARE(session->page().calls(), QStringList{"delNavaid()"});
    QCOMPARE(rows("NAV"), 1);
}

void TestNavdataDeletions::withoutDatabasesTheLookUpIsReported()
{
    session.reset();
    sandbox.reset(); // the new one has to find the folder that this one leaves
    sandbox.reset(new Sandbox(Sandbox::Databases::None));
    session.reset(new WindowSession);
    for (int step = 0; step < 3; ++step)
        boxes->expectAnyMessage();
    boxes->expectMessage(heading, "Le point sélectionné n'existe pas dans la base");
    session->window().sDelNavFromDB("CGO-CGO4FR");
    QVERIFY(boxes->allUsed());
    QCOMPARE(boxes->seen().value(0).title, QString("SQL Error"));
}

QTEST_MAIN(TestNavdataDeletions)
#include "tst_navdatadeletions.moc"
