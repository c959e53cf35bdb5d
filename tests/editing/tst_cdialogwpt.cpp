// The waypoint dialog before OK: what it shows, and its position.
#include "dialogtests.h"

#include <QApplication>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QtTest>

class TestCDialogWpt : public WptDialogTest
{
    Q_OBJECT

private slots:
    void formHasItsTexts();
    void formHasItsLimits();
    void aNewWaypointShowsItsPlaceAndTile_data();
    void aNewWaypointShowsItsPlaceAndTile();
    void aNewWaypointIsHighLevelAndHasNoType();
    void aRowFillsTheForm();
    void aRowsPositionIsShownAsStored();
    void aStoredTypeChecksItsButton_data();
    void aStoredTypeChecksItsButton();
    void aStoredUsageChecksItsButton_data();
    void aStoredUsageChecksItsButton();
    void anUnknownTypeChecksNoButton();
    void anUnknownUsageChecksNoButton();
    void unknownValuesAfterKnownOnesCheckNoButton();
    void openingARowKeepsItsKey();
    void aTextThatIsTooLongForTypingIsShownWhole();
    void aRowOfNothingIsShown();
    void aPressOnThePositionOpensItsDialog_data();
    void aPressOnThePositionOpensItsDialog();
    void anotherPositionMovesTheTile();
    void aCancelledPositionChangesNothing();
    void aPressElsewhereOpensNothing();
    void theFilterLetsEveryEventPass();
    void cancelLeavesNoResult();
    void escapeLeavesNoResult();
};

void TestCDialogWpt::formHasItsTexts()
{
    openNew(0, 0);
    QCOMPARE(dialog->windowTitle(), QString("WAYPOINT"));
    const QVector<QPair<QString, QString>> texts = {
        {"cbUpdateDB", "Mise à jour DB"},
        {"cbSaveCSV", "Enregistrement CSV"},
        {"rbHigh", "1 HIGH LEVEL"},
        {"rbLow", "2 LOW LEVEL"},
        {"rbBoth", "3 BOTH"},
        {"rbRnav", "4 RNAV"},
        {"rbTerm", "5 TERMINAL"},
        {"rbVFR_2", "6 VFR"},
        {"rbUnNamed", " 1 UNAMED"},
        {"rbNDB", "4 NDB"},
        {"rbNamed", "6 NAMED"},
        {"rbOffRoute", "9 OFF ROUTE"},
        {"rbVFR", "10 VFR"},
        {"rbRNAV", "12 RNAV"},
        {"pbOK", "OK"},
        {"pbCancel", "Cancel"},
    };
    for (const auto& text : texts)
        QCOMPARE(textOf(*dialog, text.first), text.second);
    QCOMPARE(widgetOf<QGroupBox>(*dialog, "gbUsage")->title(), QString("Usage"));
    QCOMPARE(widgetOf<QGroupBox>(*dialog, "gbType")->title(), QString("Type"));
    const QVector<QPair<QString, QString>> labels = {
        {"sbLat", "Latitude"},     {"sbLon", "Longitude"},   {"cbCtry", "Pays"}, {"leName", "Nom"},
        {"leIden", "Identifiant"}, {"leUkey", "Clé unique"}, {"leTile", "0"},
    };
    QStringList found;
    for (const auto* label : dialog->findChildren<QLabel*>()) {
        if (label->buddy())
            found << label->buddy()->objectName() + '=' + label->text();
    }
    for (const auto& label : labels)
        QVERIFY2(found.contains(label.first + '=' + label.second), qPrintable(label.first));
}

void TestCDialogWpt::formHasItsLimits()
{
    openNew(0, 0);
    for (const char* name : {"sbLat", "sbLon"}) {
        QVERIFY(widgetOf<QLineEdit>(*dialog, name)->isReadOnly());
        QVERIFY(widgetOf<QLineEdit>(*dialog, name)->alignment() & Qt::AlignRight);
    }
    QCOMPARE(widgetOf<QLineEdit>(*dialog, "leName")->maxLength(), 26);
    QCOMPARE(widgetOf<QLineEdit>(*dialog, "leIden")->maxLength(), 5);
    QVERIFY(widgetOf<QCheckBox>(*dialog, "cbUpdateDB")->isChecked());
    QVERIFY(!widgetOf<QCheckBox>(*dialog, "cbUpdateDB")->isEnabled());
    QVERIFY(!widgetOf<QCheckBox>(*dialog, "cbSaveCSV")->isChecked());
    QVERIFY(widgetOf<QCheckBox>(*dialog, "cbSaveCSV")->isEnabled());
    QVERIFY(!widgetOf<QGroupBox>(*dialog, "gbType")->isCheckable());
}

void TestCDialogWpt::aNewWaypointShowsItsPlaceAndTile_data()
{
    QTest::addColumn<double>("latSec");
    QTest::addColumn<double>("lonSec");
    QTest::addColumn<QString>("latitude");
    QTest::addColumn<QString>("longitude");
    QTest::addColumn<QString>("tile");
    QTest::newRow("north and east") << 172800.0 << 7200.0 << "172800.00"
                                    << "7200.00"
                                    << "65702";
    QTest::newRow("west of the whole circle") << 172800.0 << 1288800.0 << "172800.00"
                                              << "1288800.00"
                                              << "16646310";
    QTest::newRow("west of zero") << 172800.0 << -7200.0 << "172800.00"
                                  << "-7200.00"
                                  << "16711846";
    QTest::newRow("rounded when shown") << 172800.016 << 7200.004 << "172800.02"
                                        << "7200.00"
                                        << "65702";
}

void TestCDialogWpt::aNewWaypointShowsItsPlaceAndTile()
{
    QFETCH(double, latSec);
    QFETCH(double, lonSec);
    openNew(latSec, lonSec);
    QTEST(textOf(*dialog, "sbLat"), "latitude");
    QTEST(textOf(*dialog, "sbLon"), "longitude");
    QTEST(textOf(*dialog, "leTile"), "tile");
    QCOMPARE(dialog->lat, latSec);
    QCOMPARE(dialog->lon, lonSec);
    for (const char* name : {"leName", "leIden", "leUkey"})
        QCOMPARE(textOf(*dialog, name), QString());
}

void TestCDialogWpt::aNewWaypointIsHighLevelAndHasNoType()
{
    openNew(172800, 7200);
    QCOMPARE(checkedIn(*dialog, "gbUsage"), QStringList{"rbHigh"});
    QCOMPARE(checkedIn(*dialog, "gbType"), QStringList());
}

void TestCDialogWpt::aRowFillsTheForm()
{
    openRow({{"ukey", "ABLANFR"},
             {"iden", "ABLAN"},
             {"name", "ABLAN NORD"},
             {"ctry", "FR"},
             {"tile", 16646310},
             {"wtyp", 6},
             {"wuse", 4}});
    QCOMPARE(textOf(*dialog, "leUkey"), QString("ABLANFR"));
    QCOMPARE(textOf(*dialog, "leIden"), QString("ABLAN"));
    QCOMPARE(textOf(*dialog, "leName"), QString("ABLAN NORD"));
    QCOMPARE(textOf(*dialog, "cbCtry"), QString("FR"));
    QCOMPARE(textOf(*dialog, "leTile"), QString("16646310"));
    QCOMPARE(checkedIn(*dialog, "gbType"), QStringList{"rbNamed"});
    QCOMPARE(checkedIn(*dialog, "gbUsage"), QStringList{"rbTerm"});
}

void TestCDialogWpt::aRowsPositionIsShownAsStored()
{
    openRow({{"wlat", 170328.996}, {"wlon", 1290875.0042}});
    QCOMPARE(textOf(*dialog, "sbLat"), QString("170328.996"));
    QCOMPARE(textOf(*dialog, "sbLon"), QString("1290875.0042"));
    QCOMPARE(dialog->lat, 170328.996);
    QCOMPARE(dialog->lon, 1290875.0042);
}

void TestCDialogWpt::aStoredTypeChecksItsButton_data()
{
    QTest::addColumn<int>("stored");
    QTest::addColumn<QString>("button");
    QTest::newRow("1") << 1 << "rbUnNamed";
    QTest::newRow("4") << 4 << "rbNDB";
    QTest::newRow("6") << 6 << "rbNamed";
    QTest::newRow("9") << 9 << "rbOffRoute";
    QTest::newRow("10") << 10 << "rbVFR";
    QTest::newRow("12") << 12 << "rbRNAV";
}

void TestCDialogWpt::aStoredTypeChecksItsButton()
{
    QFETCH(int, stored);
    QFETCH(QString, button);
    openRow({{"wtyp", stored}});
    QCOMPARE(checkedIn(*dialog, "gbType"), QStringList{button});
}

void TestCDialogWpt::aStoredUsageChecksItsButton_data()
{
    QTest::addColumn<int>("stored");
    QTest::addColumn<QString>("button");
    QTest::newRow("1") << 1 << "rbHigh";
    QTest::newRow("2") << 2 << "rbLow";
    QTest::newRow("3") << 3 << "rbBoth";
    QTest::newRow("4 is the button called 5") << 4 << "rbTerm";
    QTest::newRow("5 is the button called 4") << 5 << "rbRnav";
    QTest::newRow("6") << 6 << "rbVFR_2";
}

void TestCDialogWpt::aStoredUsageChecksItsButton()
{
    QFETCH(int, stored);
    QFETCH(QString, button);
    openRow({{"wuse", stored}});
    QCOMPARE(checkedIn(*dialog, "gbUsage"), QStringList{button});
}

void TestCDialogWpt::anUnknownTypeChecksNoButton()
{
    openRow({{"wtyp", 7}});
    QCOMPARE(checkedIn(*dialog, "gbType"), QStringList());
}

void TestCDialogWpt::anUnknownUsageChecksNoButton()
{
    openRow({{"wuse", 0}});
    QCOMPARE(checkedIn(*dialog, "gbUsage"), QStringList());
}

void TestCDialogWpt::unknownValuesAfterKnownOnesCheckNoButton()
{
    openRow({{"wtyp", 6}, {"wuse", 3}});
    world->sandbox.addWaypoint({{"ukey", "OTHERKEY"}, {"wtyp", 7}, {"wuse", 0}});
    dialog->setData(world->waypoint("OTHERKEY"));
    QCOMPARE(checkedIn(*dialog, "gbType"), QStringList());
    QCOMPARE(checkedIn(*dialog, "gbUsage"), QStringList());
    // One button at a time, as before.
    for (const char* name : {"rbNDB", "rbOffRoute", "rbTerm", "rbLow"})
        press(*dialog, name);
    QCOMPARE(checkedIn(*dialog, "gbType"), QStringList{"rbOffRoute"});
    QCOMPARE(checkedIn(*dialog, "gbUsage"), QStringList{"rbLow"});
}

void TestCDialogWpt::openingARowKeepsItsKey()
{
    openRow({{"ukey", "SPECIALKEY"}, {"ctry", "ES"}});
    QCOMPARE(textOf(*dialog, "leUkey"), QString("SPECIALKEY"));
    QCOMPARE(textOf(*dialog, "cbCtry"), QString("ES"));
    // Also a second row in the same form.
    world->sandbox.addWaypoint({{"ukey", "OTHERKEY"}, {"ctry", "DE"}});
    dialog->setData(world->waypoint("OTHERKEY"));
    QCOMPARE(textOf(*dialog, "leUkey"), QString("OTHERKEY"));
    QCOMPARE(textOf(*dialog, "cbCtry"), QString("DE"));
}

void TestCDialogWpt::aTextThatIsTooLongForTypingIsShownWhole()
{
    openRow({{"iden", "LFPO-NORD"}, {"name", "A NAME OF MORE THAN TWENTY-SIX LETTERS"}});
    QCOMPARE(textOf(*dialog, "leIden"), QString("LFPO-NORD"));
    QCOMPARE(textOf(*dialog, "leName"), QString("A NAME OF MORE THAN TWENTY-SIX LETTERS"));
}

void TestCDialogWpt::aRowOfNothingIsShown()
{
    world->sandbox.insertRow(dbfile::wpt, "WPT", {{"ukey", "NULLS"}});
    dialog.reset(new CDialogWpt(world->waypoint("NULLS"), nullptr));
    present(*dialog);
    QCOMPARE(textOf(*dialog, "leUkey"), QString("NULLS"));
    QCOMPARE(textOf(*dialog, "sbLat"), QString());
    QCOMPARE(dialog->lat, 0.0);
}

void TestCDialogWpt::aPressOnThePositionOpensItsDialog_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<int>("button");
    QTest::newRow("latitude") << "sbLat" << int(Qt::LeftButton);
    QTest::newRow("longitude") << "sbLon" << int(Qt::LeftButton);
    QTest::newRow("any button") << "sbLon" << int(Qt::RightButton);
}

void TestCDialogWpt::aPressOnThePositionOpensItsDialog()
{
    QFETCH(QString, field);
    QFETCH(int, button);
    openRow({{"wlat", 175530.64}, {"wlon", -7200.0}});
    QString shown;
    boxes->expectDialog("CDialogLatLon", [&shown](QDialog* position) {
        shown = textOf(*position, "edLat") + ' ' + textOf(*position, "cbNS") + ", " + textOf(*position, "edLon") + ' ' +
                textOf(*position, "cbEW");
        position->reject();
    });
    QTest::mousePress(widgetOf<QLineEdit>(*dialog, field), Qt::MouseButton(button));
    QCOMPARE(shown, QString("175530.64 N, -7200.00 W"));
}

void TestCDialogWpt::anotherPositionMovesTheTile()
{
    openNew(172800, 7200);
    boxes->expectDialog("CDialogLatLon", [](QDialog* position) {
        QApplication::setActiveWindow(position);
        choose(*position, "cbEW", "W");
        typeInto(*position, "sbLatSec", "30,5");
        position->accept();
    });
    QTest::mouseClick(widgetOf<QLineEdit>(*dialog, "sbLat"), Qt::LeftButton);
    QCOMPARE(textOf(*dialog, "sbLat"), QString("172830.50"));
    QCOMPARE(textOf(*dialog, "sbLon"), QString("1288800.00"));
    QCOMPARE(textOf(*dialog, "leTile"), QString("16646310"));
}

void TestCDialogWpt::aCancelledPositionChangesNothing()
{
    openRow({{"wlat", 170328.996}, {"wlon", 1290875.004}, {"tile", 7}});
    boxes->expectDialog("CDialogLatLon", [](QDialog* position) {
        QApplication::setActiveWindow(position);
        typeInto(*position, "sbLatDeg", "10");
        typeInto(*position, "sbLonDeg", "10");
        position->reject();
    });
    QTest::mouseClick(widgetOf<QLineEdit>(*dialog, "sbLon"), Qt::LeftButton);
    QCOMPARE(textOf(*dialog, "sbLat"), QString("170328.996"));
    QCOMPARE(textOf(*dialog, "sbLon"), QString("1290875.004"));
    QCOMPARE(textOf(*dialog, "leTile"), QString("7"));
}

void TestCDialogWpt::aPressElsewhereOpensNothing()
{
    openNew(172800, 7200);
    QTest::mouseClick(widgetOf<QLineEdit>(*dialog, "leTile"), Qt::LeftButton);
    QTest::mouseMove(widgetOf<QLineEdit>(*dialog, "sbLat"));
    QTest::keyClick(widgetOf<QLineEdit>(*dialog, "sbLat"), Qt::Key_Right);
    QVERIFY(boxes->seen().isEmpty());
}

void TestCDialogWpt::theFilterLetsEveryEventPass()
{
    openNew(172800, 7200);
    boxes->expectDialog("CDialogLatLon", [](QDialog* position) { position->reject(); });
    QMouseEvent pressed(QEvent::MouseButtonPress, QPointF(1, 1), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QVERIFY(!dialog->eventFilter(widgetOf<QLineEdit>(*dialog, "sbLat"), &pressed));
    QVERIFY(boxes->allUsed());
    QMouseEvent released(QEvent::MouseButtonRelease, QPointF(1, 1), Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
    QVERIFY(!dialog->eventFilter(widgetOf<QLineEdit>(*dialog, "sbLat"), &released));
    QVERIFY(!dialog->eventFilter(widgetOf<QLineEdit>(*dialog, "leName"), &pressed));
}

void TestCDialogWpt::cancelLeavesNoResult()
{
    openNew(172800, 7200);
    typeInto(*dialog, "leName", "ABLAN");
    press(*dialog, "pbCancel");
    QVERIFY(!dialog->isVisible());
    QCOMPARE(dialog->result(), 0);
    QCOMPARE(dialog->script, QString());
    QCOMPARE(world->count(dbfile::wpt, "WPT"), 0);
}

void TestCDialogWpt::escapeLeavesNoResult()
{
    openNew(172800, 7200);
    QTest::keyClick(dialog.data(), Qt::Key_Escape);
    QVERIFY(!dialog->isVisible());
    QCOMPARE(dialog->result(), 0);
    QCOMPARE(world->count(dbfile::wpt, "WPT"), 0);
}

QTEST_MAIN(TestCDialogWpt)
#include "tst_cdialogwpt.moc"
