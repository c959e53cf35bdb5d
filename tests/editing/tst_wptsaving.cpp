// OK in the waypoint dialog: the row.
#include "dialogtests.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QSqlDatabase>
#include <QtTest>

class TestWptSaving : public WptDialogTest
{
    Q_OBJECT

public:
    TestWptSaving() : WptDialogTest({"WPTSAVING'"}) {}

private slots:
    void aNewWaypointIsStored();
    void aNewWaypointWithoutATypeStores0();
    void aNamelessWaypointIsStored();
    void aChosenUsageIsStored_data();
    void aChosenUsageIsStored();
    void aChosenTypeIsStored_data();
    void aChosenTypeIsStored();
    void anUntouchedRowStaysAsItWas_data();
    void anUntouchedRowStaysAsItWas();
    void anUnknownTypeBecomes0();
    void anUnknownUsageBecomes0();
    void theHiddenNumbersKeepSixDigits();
    void anotherKeyIsAnotherRow();
    void anotherPositionIsStored();
    void aRefusedRowIsReportedAndTheRestIsDone();
    void aMissingTableIsReportedAndTheRestIsDone();
    void okLeavesTheResult();
};

void TestWptSaving::aNewWaypointIsStored()
{
    openAblan();
    press(*dialog, "rbNamed");
    press(*dialog, "rbLow");
    pressOk();
    QCOMPARE(world->storedWaypoint("ABLANFR"),
             (QStringList{"65702", "'ABLA'", "'ABLANFR'", "'ABLAN'", "'FR'", "''", "'78'", "6", "2", "172800.0",
                          "7200.0", "0", "0.0", "0.0", "0.0", "''"}));
    QCOMPARE(world->count(dbfile::wpt, "WPT"), 1);
}

void TestWptSaving::aNewWaypointWithoutATypeStores0()
{
    openAblan();
    pressOk();
    QCOMPARE(world->storedWaypoint("ABLANFR").mid(7, 2), (QStringList{"0", "1"}));
}

void TestWptSaving::aNamelessWaypointIsStored()
{
    dialog.reset(new CDialogWpt(172800, 7200, nullptr));
    present(*dialog);
    pressOk("");
    QCOMPARE(world->storedWaypoint("").mid(1, 4), (QStringList{"''", "''", "''", "'DE'"}));
}

void TestWptSaving::aChosenUsageIsStored_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("stored");
    QTest::newRow("1 HIGH LEVEL") << "rbHigh"
                                  << "1";
    QTest::newRow("2 LOW LEVEL") << "rbLow"
                                 << "2";
    QTest::newRow("3 BOTH") << "rbBoth"
                            << "3";
    QTest::newRow("4 RNAV") << "rbRnav"
                            << "5";
    QTest::newRow("5 TERMINAL") << "rbTerm"
                                << "4";
    QTest::newRow("6 VFR") << "rbVFR_2"
                           << "6";
}

void TestWptSaving::aChosenUsageIsStored()
{
    QFETCH(QString, button);
    openAblan();
    press(*dialog, button);
    pressOk();
    QTEST(world->storedWaypoint("ABLANFR").value(8), "stored");
}

void TestWptSaving::aChosenTypeIsStored_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("stored");
    QTest::newRow("1 UNAMED") << "rbUnNamed"
                              << "1";
    QTest::newRow("4 NDB") << "rbNDB"
                           << "4";
    QTest::newRow("6 NAMED") << "rbNamed"
                             << "6";
    QTest::newRow("9 OFF ROUTE") << "rbOffRoute"
                                 << "9";
    QTest::newRow("10 VFR") << "rbVFR"
                            << "10";
    QTest::newRow("12 RNAV") << "rbRNAV"
                             << "12";
}

void TestWptSaving::aChosenTypeIsStored()
{
    QFETCH(QString, button);
    openAblan();
    press(*dialog, button);
    pressOk();
    QTEST(world->storedWaypoint("ABLANFR").value(7), "stored");
}

void TestWptSaving::anUntouchedRowStaysAsItWas_data()
{
    QTest::addColumn<Row>("row");
    const Row complete = {{"tile", 16646310}, {"iden", "ABLAN"}, {"ukey", "ABLANFR"}, {"name", "ABLAN"},
                          {"stat", "QC"},     {"wtyp", 6},       {"wuse", 4},         {"wlat", 170328.996},
                          {"wlon", 1290875},  {"walt", 5500},    {"wmag", -2.1},      {"wbrg", 123.4},
                          {"wdis", 12.75},    {"wnav", "N1"}};
    const auto with = [&complete](const Row& changes) {
        Row row = complete;
        for (auto change = changes.begin(); change != changes.end(); ++change)
            row.insert(change.key(), change.value());
        return row;
    };
    QTest::newRow("complete") << complete;
    QTest::newRow("a position of many decimals") << with({{"wlat", 170328.99612345679}, {"wlon", 1290875.0042345678}});
    QTest::newRow("south and west") << with({{"wlat", -0.1}, {"wlon", -648000.1 / 3}});
    QTest::newRow("a small position") << with({{"wlat", 1.25e-7}, {"wlon", 0.0}});
    QTest::newRow("usage 0") << with({{"wuse", 0}});
    QTest::newRow("type 0") << with({{"wtyp", 0}});
    QTest::newRow("tied to a VOR") << with({{"wloc", 89}});
    QTest::newRow("another tile") << with({{"tile", -3}});
    QTest::newRow("letters of both cases") << with({{"name", "Ablan nord"}, {"iden", "abl"}, {"ukey", "ablanFR"}});
    QTest::newRow("long texts") << with({{"name", "A NAME OF MORE THAN TWENTY-SIX LETTERS"}, {"iden", "LFPO-NORD"}});
    QTest::newRow("a key that no name makes") << with({{"ukey", "X"}});
    QTest::newRow("a country that is not in the list") << with({{"ctry", "QQ"}});
    QTest::newRow("no country") << with({{"ctry", ""}});
    QTest::newRow("a country in small letters") << with({{"ctry", "fr"}});
    QTest::newRow("empty texts") << with({{"name", ""}, {"iden", ""}, {"stat", ""}, {"wnav", ""}});
    QTest::newRow("patterns in the texts") << with({{"name", "%1 %2"}, {"iden", "%L1"}, {"stat", "%"}});
}

void TestWptSaving::anUntouchedRowStaysAsItWas()
{
    QFETCH(Row, row);
    openRow(row);
    const QString key = row.value("ukey").toString();
    const QStringList before = world->storedWaypoint(key);
    QCOMPARE(before.size(), 16);
    pressOk(row.value("name").toString());
    QCOMPARE(world->storedWaypoint(key), before);
    QCOMPARE(world->count(dbfile::wpt, "WPT"), 1);
}

void TestWptSaving::anUnknownTypeBecomes0()
{
    openRow({{"wtyp", 7}});
    pressOk("BAMES");
    QCOMPARE(world->storedWaypoint("BAMES").value(7), QString("0"));
}

void TestWptSaving::anUnknownUsageBecomes0()
{
    openRow({{"wuse", 7}});
    pressOk("BAMES");
    QCOMPARE(world->storedWaypoint("BAMES").value(8), QString("0"));
}

void TestWptSaving::theHiddenNumbersKeepSixDigits()
{
    openRow({{"walt", 12345678}, {"wmag", -1.23456789}, {"wbrg", 359.99999}, {"wdis", 1e-7}});
    pressOk("BAMES");
    QCOMPARE(world->storedWaypoint("BAMES").mid(11, 4), (QStringList{"12345700", "-1.23457", "360.0", "1.0e-07"}));
}

void TestWptSaving::anotherKeyIsAnotherRow()
{
    openRow({{"ukey", "ABLANFR"}, {"name", "ABLAN"}});
    choose(*dialog, "cbCtry", "ES");
    pressOk();
    QCOMPARE(world->count(dbfile::wpt, "WPT"), 2);
    QCOMPARE(world->storedWaypoint("ABLANFR").value(4), QString("'FR'"));
    QCOMPARE(world->storedWaypoint("ABLANES").value(4), QString("'ES'"));
}

void TestWptSaving::anotherPositionIsStored()
{
    openRow({{"wlat", 170328.996}, {"wlon", 1290875.004}});
    boxes->expectDialog("CDialogLatLon", [](QDialog* position) {
        QApplication::setActiveWindow(position);
        typeInto(*position, "sbLatDeg", "48");
        typeInto(*position, "sbLatMin", "0");
        typeInto(*position, "sbLatSec", "0");
        position->accept();
    });
    QTest::mouseClick(widgetOf<QLineEdit>(*dialog, "sbLat"), Qt::LeftButton);
    pressOk("BAMES");
    const QStringList row = world->storedWaypoint("BAMES");
    QCOMPARE(row.value(9), QString("172800.0"));
    QCOMPARE(row.value(10), QString("1290875.0"));
    QCOMPARE(row.value(0), QString("16646310"));
}

void TestWptSaving::aRefusedRowIsReportedAndTheRestIsDone()
{
    openAblan();
    typeInto(*dialog, "leName", "WPTSAVING'");
    press(*dialog, "cbSaveCSV");
    typeInto(*dialog, "leUkey", "KEY");
    boxes->expectAnyMessage();
    boxes->expectMessage(exportTitle,
                         "Le fichier d'export pour WPTSAVING'\na été enregistré dans " + data->shownName("WPTSAVING'"));
    press(*dialog, "pbOK");
    QVERIFY(boxes->allUsed());
    QCOMPARE(boxes->seen().value(0).title, QString("SQL Error"));
    QVERIFY(boxes->seen().value(0).text.startsWith(
        "One of the query failed to execute.Error detail: REPLACE INTO WPT VALUES "
        "('65702','WPTS','KEY','WPTSAVING'','FR','','78','0','1','172800.00','7200.00','0','0','0','0','') "));
    QCOMPARE(world->count(dbfile::wpt, "WPT"), 0);
    QCOMPARE(dialog->result(), 1);
    QVERIFY(dialog->script.startsWith("addWPTMarker2("));
}

void TestWptSaving::aMissingTableIsReportedAndTheRestIsDone()
{
    openAblan();
    world->sandbox.sql(dbfile::wpt, "DROP TABLE WPT");
    boxes->expectAnyMessage();
    press(*dialog, "pbOK");
    QCOMPARE(boxes->seen().value(0).title, QString("SQL Error"));
    QCOMPARE(dialog->result(), 1);
    QVERIFY(!dialog->script.isEmpty());
}

void TestWptSaving::okLeavesTheResult()
{
    openAblan();
    pressOk();
    QCOMPARE(dialog->result(), 1);
    QVERIFY(!dialog->isVisible());
    QCOMPARE(dialog->lat, 172800.0);
    QCOMPARE(dialog->lon, 7200.0);
}

QTEST_MAIN(TestWptSaving)
#include "tst_wptsaving.moc"
