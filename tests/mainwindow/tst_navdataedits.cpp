// Navaids and waypoints created and changed from the map: the page's menu, the dialogs, the markers that come back.
#include "navdatatest.h"

#include "cdialognav.h"
#include "cdialogwpt.h"
#include "mainwindow.h"

#include <QApplication>
#include <QDialog>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QtTest>

namespace {

const QString newWaypoint = QStringLiteral("Nouveau waypoint ici…");
const QString newNavaid = QStringLiteral("Nouveau navaid ici…");
const QString editWaypoint = QStringLiteral("Modifier le waypoint…");
const QString editNavaid = QStringLiteral("Modifier le navaid…");
const QString waypointStored = QStringLiteral(" a été modifié/ajouté à la base WPT.db");
const QString navaidStored = QStringLiteral(" a été modifié/ajouté à la base GEN.db");

} // namespace

class TestNavdataEdits : public NavdataTest
{
    Q_OBJECT

public:
    TestNavdataEdits() : NavdataTest("ABLAN", {"CHATEAUROUX", "ABLAN"}) {}

private slots:
    void aNewWaypointShowsAtOnce();
    void aNewNavaidShowsAtOnce();
    void aCancelledDialogChangesNothing();
    void anEditedWaypointReplacesItsMarker();
    void anEditedWaypointMovesToItsPlace();
    void anEditedWaypointChangesItsLayer();
    void anEditedNavaidReplacesItsMarker();
    void aWaypointUnderAnotherKeyIsANewMarker();
    void anEditedMarkerCanBeEditedAgain();
    void aNavaidWithoutATypeGetsNoMarker();
    void aNewRowsLongitudeLiesInTheWholeCircle_data();
    void aNewRowsLongitudeLiesInTheWholeCircle();
    void theKeyIsTheSecondPartOfTheTrimmedTitle();
    void aTitleOfNoRowIsTold_data();
    void aTitleOfNoRowIsTold();
    void anEmptyKeyIsLookedUpToo();
    void aTitleWithoutAKeyHasNoRow();
    void theBoxesOfSavingAreInformation_data();
    void theBoxesOfSavingAreInformation();
    void theDialogStaysWithTheWindow();
    void onlyTheLastDialogStays();
    void theTableIsNotLockedWhileTheDialogIsOpen();
    void withoutDatabasesTheLookUpIsReported();
    void withoutDatabasesANewRowIsReported();

private:
    void expectWaypointDialog(const QString& name, const std::function<void(QDialog&)>& drive);
    void expectNavaidDialog(const QString& name, const std::function<void(QDialog&)>& drive);
    QString popupAt(double latitude, double longitude);
};

void TestNavdataEdits::expectWaypointDialog(const QString& name, const std::function<void(QDialog&)>& drive)
{
    boxes->expectDialog("CDialogWpt", [drive](QDialog* dialog) {
        QApplication::setActiveWindow(dialog);
        drive(*dialog);
        press(*dialog, "pbOK");
    });
    boxes->expectMessage("Nouveau WAYPOINT", name + waypointStored);
}

void TestNavdataEdits::expectNavaidDialog(const QString& name, const std::function<void(QDialog&)>& drive)
{
    boxes->expectDialog("CDialogNav", [drive](QDialog* dialog) {
        QApplication::setActiveWindow(dialog);
        drive(*dialog);
        press(*dialog, "pbOK");
    });
    boxes->expectMessage("Nouveau NAVAID", name + navaidStored);
}

QString TestNavdataEdits::popupAt(double latitude, double longitude)
{
    session->page().click(session->page().pointOf(latitude, longitude));
    return session->page().popupText();
}

void TestNavdataEdits::aNewWaypointShowsAtOnce()
{
    load();
    expectWaypointDialog("NOUVEAU", [](QDialog& dialog) {
        ::choose(dialog, "cbCtry", "FR");
        typeInto(dialog, "leName", "nouveau");
        press(dialog, "rbLow");
        press(dialog, "rbNamed");
    });
    choose(46.5, 2.5, newWaypoint);
    QVERIFY(boxes->allUsed());
    QCOMPARE(session->page().titles("listWptRte"), (QStringList{"ABLAN-ABLANFR", "NOUVEAU-NOUVEFR"}));
    const QVector<QVariantList> rows =
        sandbox->sql(dbfile::wpt, "SELECT iden, ctry, wloc, wtyp, wuse, wlat, wlon FROM WPT WHERE ukey = 'NOUVEFR'");
    QCOMPARE(rows.size(), 1);
    QCOMPARE(rows.first().mid(0, 5), (QVariantList{"NOUV", "FR", "78", 6, 2}));
    // A point of the screen is about a quarter of a minute wide here.
    QVERIFY(qAbs(rows.first().value(5).toDouble() - 167400.0) < 30.0);
    QVERIFY(qAbs(rows.first().value(6).toDouble() - 9000.0) < 30.0);
    const QString popup = popupAt(46.5, 2.5);
    QVERIFY2(popup.startsWith("Waypoint NOUV\nNOUVEAU (Low)\n46 "), qPrintable(popup));
}

void TestNavdataEdits::aNewNavaidShowsAtOnce()
{
    load();
    expectNavaidDialog("NOUVEAU", [](QDialog& dialog) {
        ::choose(dialog, "cbCtry", "FR");
        press(dialog, "rbNDB");
        typeInto(dialog, "leName", "NOUVEAU");
        typeInto(dialog, "leIden", "nv");
        typeInto(dialog, "sbFreq", "392,5");
    });
    choose(46.5, 2.5, newNavaid);
    QVERIFY(boxes->allUsed());
    QCOMPARE(session->page().titles("listNDBRte"), QStringList{"NOUVEAU-NV5FR"});
    QCOMPARE(sandbox->sqlValue(dbfile::gen, "SELECT nfrq FROM NAV WHERE ukey = 'NV5FR'").toDouble(), 392.5);
    const QString popup = popupAt(46.5, 2.5);
    QVERIFY2(popup.startsWith("NDB NV\nNOUVEAU\n392.5 Khz\n46 "), qPrintable(popup));
}

void TestNavdataEdits::aCancelledDialogChangesNothing()
{
    load();
    for (const char* name : {"CDialogWpt", "CDialogNav"})
        boxes->expectDialog(name, [](QDialog* dialog) { press(*dialog, "pbCancel"); });
    session->page().clear();
    choose(46.5, 2.5, newWaypoint);
    choose(46.25, 2.75, editNavaid);
    QVERIFY(boxes->allUsed());
    QCOMPARE(markers(), (QStringList{"CGO-CGO4FR", "ABLAN-ABLANFR"}));
    QCOMPARE(session->page().calls(), QStringList());
}

void TestNavdataEdits::anEditedWaypointReplacesItsMarker()
{
    load();
    expectWaypointDialog("ABLANC", [](QDialog& dialog) {
        QTest::keyClicks(widgetOf<QWidget>(dialog, "leName"), "c");
        press(dialog, "rbBoth");
    });
    choose(46.75, 2.25, editWaypoint);
    QVERIFY(boxes->allUsed());
    // The key has five letters of the name and is the same as before.
    QCOMPARE(markers(), (QStringList{"CGO-CGO4FR", "ABLANC-ABLANFR"}));
    QCOMPARE(sandbox->sqlValue(dbfile::wpt, "SELECT COUNT(*) FROM WPT").toInt(), 1);
    QCOMPARE(popupAt(46.75, 2.25), QString("Waypoint ABLA\nABLANC (High/Low)\n46 45' 00.00 N - 002 15' 00.00 E"));
}

void TestNavdataEdits::anEditedWaypointMovesToItsPlace()
{
    load();
    boxes->expectDialog("CDialogWpt", [](QDialog* dialog) {
        QApplication::setActiveWindow(dialog);
        QTest::mouseClick(widgetOf<QWidget>(*dialog, "sbLat"), Qt::LeftButton);
        press(*dialog, "pbOK");
    });
    boxes->expectDialog("CDialogLatLon", [](QDialog* position) {
        QApplication::setActiveWindow(position);
        typeInto(*position, "sbLatMin", "30");
        typeInto(*position, "sbLonMin", "30");
        position->accept();
    });
    boxes->expectMessage("Nouveau WAYPOINT", "ABLAN" + waypointStored);
    choose(46.75, 2.25, editWaypoint);
    QVERIFY(boxes->allUsed());
    QCOMPARE(popupAt(46.75, 2.25), QString());
    QCOMPARE(popupAt(46.5, 2.5), QString("Waypoint ABLA\nABLAN (High)\n46 30' 00.00 N - 002 30' 00.00 E"));
}

void TestNavdataEdits::anEditedWaypointChangesItsLayer()
{
    load();
    expectWaypointDialog("ABLAN", [](QDialog& dialog) { press(dialog, "rbTerm"); });
    choose(46.75, 2.25, editWaypoint);
    QCOMPARE(session->page().titles("listWptRte"), QStringList());
    QCOMPARE(session->page().titles("listWptTerm"), QStringList{"ABLAN-ABLANFR"});
}

void TestNavdataEdits::anEditedNavaidReplacesItsMarker()
{
    load();
    expectNavaidDialog("CHATEAUROUX", [](QDialog& dialog) { typeInto(dialog, "sbFreq", "117,95"); });
    choose(46.25, 2.75, editNavaid);
    QVERIFY(boxes->allUsed());
    // After an edit a navaid's marker bears its name.
    QCOMPARE(markers(), (QStringList{"CHATEAUROUX-CGO4FR", "ABLAN-ABLANFR"}));
    QCOMPARE(sandbox->sqlValue(dbfile::gen, "SELECT COUNT(*) FROM NAV").toInt(), 1);
    QCOMPARE(popupAt(46.25, 2.75), QString("VOR CGO\nCHATEAUROUX\n117.95 Mhz\n46 15' 00.00 N - 002 45' 00.00 E"));
}

void TestNavdataEdits::aWaypointUnderAnotherKeyIsANewMarker()
{
    load();
    expectWaypointDialog("AUTRE", [](QDialog& dialog) { typeInto(dialog, "leName", "autre"); });
    choose(46.75, 2.25, editWaypoint);
    QCOMPARE(markers(), (QStringList{"CGO-CGO4FR", "ABLAN-ABLANFR", "AUTRE-AUTREFR"}));
    QCOMPARE(sandbox->sqlValue(dbfile::wpt, "SELECT COUNT(*) FROM WPT").toInt(), 2);
}

void TestNavdataEdits::anEditedMarkerCanBeEditedAgain()
{
    load();
    for (const char* frequency : {"111,1", "112,2"}) {
        expectNavaidDialog("CHATEAUROUX", [frequency](QDialog& dialog) { typeInto(dialog, "sbFreq", frequency); });
        choose(46.25, 2.75, editNavaid);
        QVERIFY(boxes->allUsed());
    }
    QCOMPARE(markers(), (QStringList{"CHATEAUROUX-CGO4FR", "ABLAN-ABLANFR"}));
    QCOMPARE(sandbox->sqlValue(dbfile::gen, "SELECT nfrq FROM NAV").toDouble(), 112.2);
}

void TestNavdataEdits::aNavaidWithoutATypeGetsNoMarker()
{
    load();
    session->page().clear();
    expectNavaidDialog("SANS", [](QDialog& dialog) {
        uncheckAllIn(dialog, "gbType");
        typeInto(dialog, "leName", "SANS");
    });
    choose(46.5, 2.5, newNavaid);
    QVERIFY(boxes->allUsed());
    QCOMPARE(session->page().calls(), QStringList());
    QCOMPARE(sandbox->sqlValue(dbfile::gen, "SELECT ntyp FROM NAV WHERE name = 'SANS'").toInt(), 0);
}

void TestNavdataEdits::aNewRowsLongitudeLiesInTheWholeCircle_data()
{
    QTest::addColumn<double>("longitude");
    QTest::addColumn<QString>("shown");
    QTest::newRow("east") << 2.5 << "9000.00";
    QTest::newRow("west") << -1.0 << "1292400.00";
    QTest::newRow("past a full circle") << 361.0 << "3600.00";
    QTest::newRow("a full circle stays") << 360.0 << "1296000.00";
    QTest::newRow("two rounds back") << -719.0 << "3600.00";
}

void TestNavdataEdits::aNewRowsLongitudeLiesInTheWholeCircle()
{
    QFETCH(double, longitude);
    QFETCH(QString, shown);
    QStringList found;
    for (const char* name : {"CDialogWpt", "CDialogNav"}) {
        boxes->expectDialog(name, [&found](QDialog* dialog) {
            found << textOf(*dialog, "sbLat") + ' ' + textOf(*dialog, "sbLon");
            dialog->reject();
        });
    }
    session->window().sAddWptToDB("", -10.5, longitude);
    session->window().sAddNavToDB("", -10.5, longitude);
    QCOMPARE(found, (QStringList{"-37800.00 " + shown, "-37800.00 " + shown}));
}

void TestNavdataEdits::theKeyIsTheSecondPartOfTheTrimmedTitle()
{
    QStringList keys;
    for (const char* name : {"CDialogWpt", "CDialogNav"}) {
        boxes->expectDialog(name, [&keys](QDialog* dialog) {
            keys << textOf(*dialog, "leUkey");
            dialog->reject();
        });
    }
    session->window().sAddWptToDB("  anything-ABLANFR-more ", 0, 0);
    session->window().sAddNavToDB("-CGO4FR\n", 0, 0);
    QCOMPARE(keys, (QStringList{"ABLANFR", "CGO4FR"}));
}

void TestNavdataEdits::aTitleOfNoRowIsTold_data()
{
    QTest::addColumn<QString>("title");
    QTest::newRow("an unknown key") << "X-NOKEY";
    QTest::newRow("told as it came") << " X-NOKEY ";
    QTest::newRow("a label with a dash") << "SAINT-DENIS-ABLANFR";
    QTest::newRow("no key") << "ABLANFR";
    QTest::newRow("an empty key") << "CGO4FR-";
    QTest::newRow("a blank") << " ";
}

void TestNavdataEdits::aTitleOfNoRowIsTold()
{
    QFETCH(QString, title);
    boxes->expectMessage("Modification d'un waypoint", "Le waypoint " + title + " n'existe pas dans la base");
    boxes->expectMessage("Modification d'un navaid", "Le navaid " + title + " n'existe pas dans la base");
    session->window().sAddWptToDB(title, 0, 0);
    session->window().sAddNavToDB(title, 0, 0);
    QVERIFY(boxes->allUsed());
}

void TestNavdataEdits::anEmptyKeyIsLookedUpToo()
{
    sandbox->addWaypoint({{"ukey", ""}, {"tile", 77}});
    QString tile;
    boxes->expectDialog("CDialogWpt", [&tile](QDialog* dialog) {
        tile = textOf(*dialog, "leTile");
        dialog->reject();
    });
    session->window().sAddWptToDB("-", 0, 0);
    QCOMPARE(tile, QString("77"));
}

void TestNavdataEdits::aTitleWithoutAKeyHasNoRow()
{
    sandbox->addWaypoint({{"ukey", ""}});
    boxes->expectMessage("Modification d'un waypoint", "Le waypoint ABLAN n'existe pas dans la base");
    session->window().sAddWptToDB("ABLAN", 0, 0);
    QVERIFY(boxes->allUsed());
}

void TestNavdataEdits::theBoxesOfSavingAreInformation_data()
{
    QTest::addColumn<QString>("dialogClass");
    QTest::newRow("navaid") << "CDialogNav";
    QTest::newRow("waypoint") << "CDialogWpt";
}

void TestNavdataEdits::theBoxesOfSavingAreInformation()
{
    QFETCH(QString, dialogClass);
    boxes->expectDialog(dialogClass, [](QDialog* dialog) {
        press(*dialog, "cbSaveCSV");
        press(*dialog, "pbOK");
    });
    boxes->expectAnyMessage();
    boxes->expectAnyMessage();
    if (dialogClass == "CDialogNav")
        session->window().sAddNavToDB("CGO-CGO4FR", 0, 0);
    else
        session->window().sAddWptToDB("ABLAN-ABLANFR", 0, 0);
    QVERIFY(boxes->allUsed());
    QCOMPARE(boxes->seen().size(), 3);
    for (const SeenBox& box : boxes->seen().mid(1)) {
        QCOMPARE(box.icon, QMessageBox::Information);
        // Over the dialog, which is still open.
        QCOMPARE(box.parentClass, dialogClass);
    }
}

void TestNavdataEdits::theDialogStaysWithTheWindow()
{
    QPointer<QDialog> opened;
    boxes->expectDialog("CDialogWpt", [&opened](QDialog* dialog) {
        opened = dialog;
        dialog->reject();
    });
    session->window().sAddWptToDB("ABLAN-ABLANFR", 0, 0);
    QVERIFY(opened);
    QCOMPARE(opened->parent(), &session->window());
    session.reset();
    QVERIFY(!opened);
}

void TestNavdataEdits::onlyTheLastDialogStays()
{
    QVector<QPointer<QDialog>> opened;
    for (const char* name : {"CDialogWpt", "CDialogNav", "CDialogNav", "CDialogWpt"}) {
        boxes->expectDialog(name, [&opened](QDialog* dialog) {
            opened << dialog;
            dialog->reject();
        });
        if (opened.size() % 3 == 0)
            session->window().sAddWptToDB("ABLAN-ABLANFR", 0, 0);
        else
            session->window().sAddNavToDB("CGO-CGO4FR", 0, 0);
        QVERIFY(opened.last());
    }
    QCOMPARE(opened.size(), 4);
    QCOMPARE(session->window().findChildren<QDialog*>(), QList<QDialog*>{opened.last()});
}

void TestNavdataEdits::theTableIsNotLockedWhileTheDialogIsOpen()
{
    // The simulator writes at any time.
    bool written = false;
    boxes->expectDialog("CDialogWpt", [this, &written](QDialog* dialog) {
        {
            QSqlDatabase other = QSqlDatabase::addDatabase("QSQLITE", "simulator");
            other.setDatabaseName(sandbox->path("SQL/WPT.db"));
            other.setConnectOptions("QSQLITE_BUSY_TIMEOUT=0");
            QSqlQuery query(other.open() ? other : QSqlDatabase());
            written = query.exec("UPDATE WPT SET walt = 5");
        }
        QSqlDatabase::removeDatabase("simulator");
        dialog->reject();
    });
    session->window().sAddWptToDB("ABLAN-ABLANFR", 0, 0);
    QVERIFY(written);
}

void TestNavdataEdits::withoutDatabasesTheLookUpIsReported()
{
    startWithoutDatabases();
    for (int step = 0; step < 3; ++step)
        boxes->expectAnyMessage();
    boxes->expectMessage("Modification d'un waypoint", "Le waypoint ABLAN-ABLANFR n'existe pas dans la base");
    session->window().sAddWptToDB("ABLAN-ABLANFR", 0, 0);
    QVERIFY(boxes->allUsed());
    for (int step = 0; step < 3; ++step)
        QCOMPARE(boxes->seen().value(step).title, QString("SQL Error"));
}

void TestNavdataEdits::withoutDatabasesANewRowIsReported()
{
    startWithoutDatabases();
    boxes->expectDialog("CDialogNav", [this](QDialog* dialog) {
        QApplication::setActiveWindow(dialog);
        // The look for the key fails, and so does the row.
        boxes->expectAnyMessage();
        boxes->expectAnyMessage();
        typeInto(*dialog, "leIden", "a");
        press(*dialog, "pbOK");
    });
    session->window().sAddNavToDB("", 46.5, 2.5);
    QVERIFY(boxes->allUsed());
    QCOMPARE(boxes->seen().value(1).title, QString("SQL Error"));
    QCOMPARE(boxes->seen().value(2).title, QString("SQL Error"));
}

QTEST_MAIN(TestNavdataEdits)
#include "tst_navdataedits.moc"
