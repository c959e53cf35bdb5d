// OK in the waypoint dialog: the row, the update file, the script for the map page.
#include "boxresponder.h"
#include "cdialogwpt.h"
#include "ciodatabase.h"
#include "cnavglobalvar.h"
#include "editingworld.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QSqlDatabase>
#include <QtTest>

namespace {

const QString title = QStringLiteral("Nouveau WAYPOINT");
const QString exportTitle = QStringLiteral("Nouveau WAYPOINT: export");

QString storedText(const QString& name)
{
    return name + QStringLiteral(" a été modifié/ajouté à la base WPT.db");
}

} // namespace

class TestWptSaving : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

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
    void theUpdateFileHasOneLine();
    void theUpdateFileReplacesAnOlderOne();
    void theUpdateFileIsWrittenOnWishOnly();
    void anUpdateFileThatCannotBeWrittenIsToldAsWritten();
    void theUpdateFileWritesTheSameRowWhereItIsImported();
    void theScriptOfANewWaypoint();
    void theScriptsLongitude_data();
    void theScriptsLongitude();
    void theUsageWordOfThePopup_data();
    void theUsageWordOfThePopup();
    void aNameIsNoPatternToFill();

private:
    void openRow(const Row& row);
    /// A new waypoint ABLAN of France at 48 degrees north and 2 east.
    void openNew();
    void pressOk(const QString& name = "ABLAN");

    QScopedPointer<BoxResponder> boxes;
    QScopedPointer<EditingWorld> world;
    QScopedPointer<DataFolder> data;
    QScopedPointer<CDialogWpt> dialog;
};

void TestWptSaving::init()
{
    boxes.reset(new BoxResponder);
    world.reset(new EditingWorld);
    data.reset(new DataFolder({"WPTSAVING", "WPTBLOCKED", "ABLAN", "WPTSAVING'"}));
}

void TestWptSaving::cleanup()
{
    dialog.reset();
    data.reset();
    world.reset();
    boxes.reset();
}

void TestWptSaving::openRow(const Row& row)
{
    world->sandbox.addWaypoint(row);
    dialog.reset(new CDialogWpt(world->waypoint(row.value("ukey", "BAMES").toString()), nullptr));
    present(*dialog);
}

void TestWptSaving::openNew()
{
    dialog.reset(new CDialogWpt(172800, 7200, nullptr));
    present(*dialog);
    choose(*dialog, "cbCtry", "FR");
    typeInto(*dialog, "leName", "ablan");
}

void TestWptSaving::pressOk(const QString& name)
{
    boxes->expectMessage(title, storedText(name));
    press(*dialog, "pbOK");
    QVERIFY(boxes->allUsed());
}

void TestWptSaving::aNewWaypointIsStored()
{
    openNew();
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
    openNew();
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
    openNew();
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
    openNew();
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
    openNew();
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
    openNew();
    world->sandbox.sql(dbfile::wpt, "DROP TABLE WPT");
    boxes->expectAnyMessage();
    press(*dialog, "pbOK");
    QCOMPARE(boxes->seen().value(0).title, QString("SQL Error"));
    QCOMPARE(dialog->result(), 1);
    QVERIFY(!dialog->script.isEmpty());
}

void TestWptSaving::okLeavesTheResult()
{
    openNew();
    pressOk();
    QCOMPARE(dialog->result(), 1);
    QVERIFY(!dialog->isVisible());
    QCOMPARE(dialog->lat, 172800.0);
    QCOMPARE(dialog->lon, 7200.0);
}

void TestWptSaving::theUpdateFileHasOneLine()
{
    openRow({{"ukey", "WPTSAFR"},
             {"iden", "WPTS"},
             {"name", "WPTSAVING"},
             {"tile", 16646310},
             {"stat", "QC"},
             {"wtyp", 12},
             {"wuse", 5},
             {"wlat", 170328.996},
             {"wlon", 1290875.004},
             {"walt", 5500},
             {"wmag", -2.1},
             {"wbrg", 123.456789},
             {"wdis", 12.5},
             {"wnav", "N1"}});
    press(*dialog, "cbSaveCSV");
    boxes->expectMessage(title, storedText("WPTSAVING"));
    boxes->expectMessage(exportTitle,
                         "Le fichier d'export pour WPTSAVING\na été enregistré dans " + data->shownName("WPTSAVING"));
    press(*dialog, "pbOK");
    QVERIFY(boxes->allUsed());
    QCOMPARE(data->bytes("WPTSAVING"), QByteArray("WPT;WPT;+;16646310;WPTS;WPTSAFR;WPTSAVING;FR;QC;78;12;5;170328.996;"
                                                  "1290875.004;5500;-2.1;123.457;12.5;N1"));
}

void TestWptSaving::theUpdateFileReplacesAnOlderOne()
{
    data->write("WPTSAVING", QByteArray(1000, 'x'));
    openNew();
    typeInto(*dialog, "leName", "wptsaving");
    press(*dialog, "cbSaveCSV");
    boxes->expectMessage(title, storedText("WPTSAVING"));
    boxes->expectAnyMessage();
    press(*dialog, "pbOK");
    QCOMPARE(data->bytes("WPTSAVING"),
             QByteArray("WPT;WPT;+;65702;WPTS;WPTSAFR;WPTSAVING;FR;;78;0;1;172800.00;7200.00;0;0;0;0;"));
}

void TestWptSaving::theUpdateFileIsWrittenOnWishOnly()
{
    openNew();
    pressOk();
    QVERIFY(!data->has("ABLAN"));
}

void TestWptSaving::anUpdateFileThatCannotBeWrittenIsToldAsWritten()
{
    data->block("WPTBLOCKED");
    openNew();
    typeInto(*dialog, "leName", "wptblocked");
    press(*dialog, "cbSaveCSV");
    boxes->expectMessage(title, storedText("WPTBLOCKED"));
    boxes->expectMessage(exportTitle,
                         "Le fichier d'export pour WPTBLOCKED\na été enregistré dans " + data->shownName("WPTBLOCKED"));
    press(*dialog, "pbOK");
    QVERIFY(boxes->allUsed());
    QCOMPARE(dialog->result(), 1);
}

void TestWptSaving::theUpdateFileWritesTheSameRowWhereItIsImported()
{
    openNew();
    typeInto(*dialog, "leName", "wptsaving");
    press(*dialog, "cbSaveCSV");
    boxes->expectAnyMessage();
    boxes->expectAnyMessage();
    press(*dialog, "pbOK");
    const QStringList row = world->storedWaypoint("WPTSAFR");
    QVERIFY(!row.isEmpty());
    world->sandbox.sql(dbfile::wpt, "DELETE FROM WPT");
    QFile file(QCoreApplication::applicationDirPath() + "/Data/WPTSAVING.CSV");
    QVERIFY(file.open(QIODevice::ReadOnly));
    boxes->expectAnyMessage();
    CIODataBase exchange;
    QVERIFY(exchange.importDB(file, &world->settings()));
    QCOMPARE(world->storedWaypoint("WPTSAFR"), row);
}

void TestWptSaving::theScriptOfANewWaypoint()
{
    openNew();
    press(*dialog, "rbLow");
    QVERIFY(dialog->script.isEmpty());
    pressOk();
    QCOMPARE(dialog->script,
             QString("addWPTMarker2(new google.maps.LatLng(48.00000,2.00000),\"ABLAN-ABLANFR\",2,\"<font "
                     "color=blue><b>Waypoint ABLA</b><font color=black><br/>ABLAN (Low)<br/>48 00' 00.00 N - 002 00' "
                     "00.00 E\")"));
}

void TestWptSaving::theScriptsLongitude_data()
{
    QTest::addColumn<double>("lonSec");
    QTest::addColumn<QString>("inScript");
    QTest::addColumn<QString>("inPopup");
    QTest::newRow("west of the whole circle") << 1288800.0 << "-2.00000"
                                              << "002 00' 00.00 W";
    QTest::newRow("west") << -7200.0 << "-2.00000"
                          << "002 00' 00.00 W";
    QTest::newRow("the half circle") << 648000.0 << "180.00000"
                                     << "180 00' 00.00 E";
    QTest::newRow("past the half circle") << 651600.0 << "-179.00000"
                                          << "179 00' 00.00 W";
    QTest::newRow("a full circle") << 1296000.0 << "0.00000"
                                   << "000 00' 00.00 E";
}

void TestWptSaving::theScriptsLongitude()
{
    QFETCH(double, lonSec);
    QFETCH(QString, inScript);
    QFETCH(QString, inPopup);
    openRow({{"wlat", -36000}, {"wlon", lonSec}});
    pressOk("BAMES");
    QCOMPARE(dialog->script,
             QString("addWPTMarker2(new google.maps.LatLng(-10.00000," + inScript +
                     "),\"BAMES-BAMES\",1,\"<font color=blue><b>Waypoint BAMES</b><font color=black><br/>BAMES "
                     "(High)<br/>10 00' 00.00 S - " +
                     inPopup + "\")"));
}

void TestWptSaving::theUsageWordOfThePopup_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("usage");
    QTest::addColumn<QString>("word");
    QTest::newRow("high") << 6 << 1 << "(High)";
    QTest::newRow("low") << 6 << 2 << "(Low)";
    QTest::newRow("both") << 6 << 3 << "(High/Low)";
    QTest::newRow("terminal") << 6 << 4 << "(Terminal)";
    QTest::newRow("RNAV") << 6 << 5 << "(RNAV)";
    QTest::newRow("the type VFR decides") << 10 << 1 << "(VFR)";
    QTest::newRow("the usage VFR has no word") << 6 << 6 << "()";
    QTest::newRow("both VFR") << 10 << 6 << "(VFR)";
    QTest::newRow("no usage") << 6 << 0 << "()";
}

void TestWptSaving::theUsageWordOfThePopup()
{
    QFETCH(int, type);
    QFETCH(int, usage);
    QFETCH(QString, word);
    openRow({{"wtyp", type}, {"wuse", usage}});
    pressOk("BAMES");
    QVERIFY2(dialog->script.contains(QStringLiteral("\"BAMES-BAMES\",%1,\"").arg(usage)), qPrintable(dialog->script));
    QVERIFY2(dialog->script.contains("<br/>BAMES " + word + "<br/>"), qPrintable(dialog->script));
}

void TestWptSaving::aNameIsNoPatternToFill()
{
    openRow({{"ukey", "%1FR"}, {"iden", "%4"}, {"name", "%2 %5"}});
    pressOk("%2 %5");
    QVERIFY2(dialog->script.contains("\"%2 %5-%1FR\",1,"), qPrintable(dialog->script));
    QVERIFY2(dialog->script.contains("<b>Waypoint %4</b><font color=black><br/>%2 %5 (High)<br/>"),
             qPrintable(dialog->script));
}

QTEST_MAIN(TestWptSaving)
#include "tst_wptsaving.moc"
