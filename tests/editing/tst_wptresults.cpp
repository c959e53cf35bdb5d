// OK in the waypoint dialog: the update file and the script for the map page.
#include "ciodatabase.h"
#include "cnavglobalvar.h"
#include "dialogtests.h"

#include <QCheckBox>
#include <QtTest>

class TestWptResults : public WptDialogTest
{
    Q_OBJECT

public:
    TestWptResults() : WptDialogTest({"WPTSAVING", "WPTBLOCKED", "ABLAN"}) {}

private slots:
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
};

void TestWptResults::theUpdateFileHasOneLine()
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

void TestWptResults::theUpdateFileReplacesAnOlderOne()
{
    data->write("WPTSAVING", QByteArray(1000, 'x'));
    openAblan();
    typeInto(*dialog, "leName", "wptsaving");
    press(*dialog, "cbSaveCSV");
    boxes->expectMessage(title, storedText("WPTSAVING"));
    boxes->expectAnyMessage();
    press(*dialog, "pbOK");
    QCOMPARE(data->bytes("WPTSAVING"),
             QByteArray("WPT;WPT;+;65702;WPTS;WPTSAFR;WPTSAVING;FR;;78;0;1;172800.00;7200.00;0;0;0;0;"));
}

void TestWptResults::theUpdateFileIsWrittenOnWishOnly()
{
    openAblan();
    pressOk();
    QVERIFY(!data->has("ABLAN"));
}

void TestWptResults::anUpdateFileThatCannotBeWrittenIsToldAsWritten()
{
    data->block("WPTBLOCKED");
    openAblan();
    typeInto(*dialog, "leName", "wptblocked");
    press(*dialog, "cbSaveCSV");
    boxes->expectMessage(title, storedText("WPTBLOCKED"));
    boxes->expectMessage(exportTitle,
                         "Le fichier d'export pour WPTBLOCKED\na été enregistré dans " + data->shownName("WPTBLOCKED"));
    press(*dialog, "pbOK");
    QVERIFY(boxes->allUsed());
    QCOMPARE(dialog->result(), 1);
}

void TestWptResults::theUpdateFileWritesTheSameRowWhereItIsImported()
{
    openAblan();
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

void TestWptResults::theScriptOfANewWaypoint()
{
    openAblan();
    press(*dialog, "rbLow");
    QVERIFY(dialog->script.isEmpty());
    pressOk();
    QCOMPARE(dialog->script,
             QString("addWPTMarker2(new google.maps.LatLng(48.00000,2.00000),\"ABLAN-ABLANFR\",2,\"<font "
                     "color=blue><b>Waypoint ABLA</b><font color=black><br/>ABLAN (Low)<br/>48 00' 00.00 N - 002 00' "
                     "00.00 E\")"));
}

void TestWptResults::theScriptsLongitude_data()
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

void TestWptResults::theScriptsLongitude()
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

void TestWptResults::theUsageWordOfThePopup_data()
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

void TestWptResults::theUsageWordOfThePopup()
{
    QFETCH(int, type);
    QFETCH(int, usage);
    QFETCH(QString, word);
    openRow({{"wtyp", type}, {"wuse", usage}});
    pressOk("BAMES");
    QVERIFY2(dialog->script.contains(QStringLiteral("\"BAMES-BAMES\",%1,\"").arg(usage)), qPrintable(dialog->script));
    QVERIFY2(dialog->script.contains("<br/>BAMES " + word + "<br/>"), qPrintable(dialog->script));
}

void TestWptResults::aNameIsNoPatternToFill()
{
    openRow({{"ukey", "%1FR"}, {"iden", "%4"}, {"name", "%2 %5"}});
    pressOk("%2 %5");
    QVERIFY2(dialog->script.contains("\"%2 %5-%1FR\",1,"), qPrintable(dialog->script));
    QVERIFY2(dialog->script.contains("<b>Waypoint %4</b><font color=black><br/>%2 %5 (High)<br/>"),
             qPrintable(dialog->script));
}

QTEST_MAIN(TestWptResults)
#include "tst_wptresults.moc"
