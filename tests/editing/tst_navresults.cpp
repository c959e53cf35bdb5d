// OK in the navaid dialog: the update file and the script for the map page.
#include "ciodatabase.h"
#include "cnavglobalvar.h"
#include "dialogtests.h"

#include <QCheckBox>
#include <QtTest>

class TestNavResults : public NavDialogTest
{
    Q_OBJECT

public:
    TestNavResults() : NavDialogTest({"NAVSAVING", "NAVBLOCKED", "ABBEVILLE"}) {}

private slots:
    void theUpdateFileHasOneLine();
    void theUpdateFileReplacesAnOlderOne();
    void theUpdateFileIsWrittenOnWishOnly();
    void anUpdateFileThatCannotBeWrittenIsToldAsWritten();
    void theUpdateFileWritesTheSameRowWhereItIsImported();
    void theScriptOfANewVor();
    void theScriptOfANewNdb();
    void aTypesMarker_data();
    void aTypesMarker();
    void theScriptsLongitude();
    void aNameIsNoPatternToFill();
};

void TestNavResults::theUpdateFileHasOneLine()
{
    openRow({{"ukey", "NAV4FR"},
             {"iden", "NAV"},
             {"name", "NAVSAVING"},
             {"tile", 65705},
             {"nfrq", 108.45},
             {"nmdv", -1.2},
             {"nsvr", -1.23456789},
             {"stat", "QC"},
             {"ntyp", 4},
             {"ncls", 3},
             {"nuse", 2},
             {"nlat", 180486.36},
             {"nlon", 6676.8842},
             {"nalt", 223},
             {"npow", 100.0},
             {"nrgn", 80.5}});
    press(*dialog, "cbSaveCSV");
    boxes->expectMessage(title, storedText("NAVSAVING"));
    boxes->expectMessage(exportTitle,
                         "Le fichier d'export pour NAVSAVING\na été enregistré dans " + data->shownName("NAVSAVING"));
    press(*dialog, "pbOK");
    QVERIFY(boxes->allUsed());
    QCOMPARE(data->bytes("NAVSAVING"),
             QByteArray("GEN;NAV;+;65705;NAV4FR;NAV;NAVSAVING;108.45;-1.2;-1.23457;FR;QC;5;3;2;"
                        "180486.36;6676.8842;223;100;80.5"));
}

void TestNavResults::theUpdateFileReplacesAnOlderOne()
{
    data->write("NAVSAVING", QByteArray(1000, 'x'));
    openAbbeville();
    typeInto(*dialog, "leName", "NAVSAVING");
    press(*dialog, "cbSaveCSV");
    boxes->expectMessage(title, storedText("NAVSAVING"));
    boxes->expectAnyMessage();
    press(*dialog, "pbOK");
    QCOMPARE(data->bytes("NAVSAVING"),
             QByteArray("GEN;NAV;+;65702;ABB1FR;ABB;NAVSAVING;108;0;0;FR;;1;0;1;172800.00;7200.00;0;0;0"));
}

void TestNavResults::theUpdateFileIsWrittenOnWishOnly()
{
    openAbbeville();
    pressOk();
    QVERIFY(!data->has("ABBEVILLE"));
}

void TestNavResults::anUpdateFileThatCannotBeWrittenIsToldAsWritten()
{
    data->block("NAVBLOCKED");
    openAbbeville();
    typeInto(*dialog, "leName", "NAVBLOCKED");
    press(*dialog, "cbSaveCSV");
    boxes->expectMessage(title, storedText("NAVBLOCKED"));
    boxes->expectMessage(exportTitle,
                         "Le fichier d'export pour NAVBLOCKED\na été enregistré dans " + data->shownName("NAVBLOCKED"));
    press(*dialog, "pbOK");
    QVERIFY(boxes->allUsed());
    QCOMPARE(dialog->result(), 1);
}

void TestNavResults::theUpdateFileWritesTheSameRowWhereItIsImported()
{
    openAbbeville();
    typeInto(*dialog, "leName", "NAVSAVING");
    press(*dialog, "cbSaveCSV");
    boxes->expectAnyMessage();
    boxes->expectAnyMessage();
    press(*dialog, "pbOK");
    const QStringList row = world->storedNavaid("ABB1FR");
    QVERIFY(!row.isEmpty());
    world->sandbox.sql(dbfile::gen, "DELETE FROM NAV");
    QFile file(QCoreApplication::applicationDirPath() + "/Data/NAVSAVING.CSV");
    QVERIFY(file.open(QIODevice::ReadOnly));
    boxes->expectAnyMessage();
    CIODataBase exchange;
    QVERIFY(exchange.importDB(file, &world->settings()));
    QCOMPARE(world->storedNavaid("ABB1FR"), row);
}

void TestNavResults::theScriptOfANewVor()
{
    openAbbeville();
    typeInto(*dialog, "sbFreq", "114,7");
    press(*dialog, "rbBoth");
    QVERIFY(dialog->script.isEmpty());
    pressOk();
    QCOMPARE(dialog->script,
             QString("addVORMarker2(new google.maps.LatLng(48.00000,2.00000),\"ABBEVILLE-ABB1FR\",3,\"<font "
                     "color=blue><b>VOR ABB</b><font color=black><br/>ABBEVILLE<br/>114.7 Mhz<br/>48 00' 00.00 N - 002 "
                     "00' 00.00 E\")"));
}

void TestNavResults::theScriptOfANewNdb()
{
    openAbbeville("rbNDB");
    typeInto(*dialog, "sbFreq", "392,5");
    press(*dialog, "rbTerm");
    pressOk();
    QCOMPARE(dialog->script,
             QString("addNDBMarker2(new google.maps.LatLng(48.00000,2.00000),\"ABBEVILLE-ABB5FR\",4,\"<font "
                     "color=blue><b>NDB ABB</b><font color=black><br/>ABBEVILLE<br/>392.5 Khz<br/>48 00' 00.00 N - 002 "
                     "00' 00.00 E\")"));
}

void TestNavResults::aTypesMarker_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("frequency");
    QTest::addColumn<QString>("function");
    QTest::addColumn<QString>("kind");
    QTest::newRow("VOR") << "rbVOR"
                         << "112"
                         << "addVORMarker2("
                         << "<b>VOR ABB</b>";
    QTest::newRow("TACAN") << "rbTACAN"
                           << "112"
                           << "addVORMarker2("
                           << "<b>VOR ABB</b>";
    QTest::newRow("VOR DME") << "rbVORDME"
                             << "112"
                             << "addVORMarker2("
                             << "<b>VOR ABB</b>";
    QTest::newRow("NDB") << "rbNDB"
                         << "300"
                         << "addNDBMarker2("
                         << "<b>NDB ABB</b>";
    QTest::newRow("NDB DME") << "rbNDBDME"
                             << "300"
                             << "addNDBMarker2("
                             << "<b>NDB ABB</b>";
}

void TestNavResults::aTypesMarker()
{
    QFETCH(QString, button);
    QFETCH(QString, frequency);
    QFETCH(QString, function);
    QFETCH(QString, kind);
    openAbbeville(button);
    typeInto(*dialog, "sbFreq", frequency);
    pressOk();
    QVERIFY2(dialog->script.startsWith(function), qPrintable(dialog->script));
    QVERIFY2(dialog->script.contains(kind), qPrintable(dialog->script));
}

void TestNavResults::theScriptsLongitude()
{
    openRow({{"ntyp", 1}, {"nlat", -36000}, {"nlon", 1288800}});
    pressOk("RAMBOUILLET");
    QVERIFY2(dialog->script.startsWith("addVORMarker2(new google.maps.LatLng(-10.00000,-2.00000),\"RAMBOUILLET-RBT\","),
             qPrintable(dialog->script));
    QVERIFY2(dialog->script.contains("10 00' 00.00 S - 002 00' 00.00 W"), qPrintable(dialog->script));
}

void TestNavResults::aNameIsNoPatternToFill()
{
    openRow({{"ntyp", 1}, {"ukey", "%6"}, {"iden", "%4"}, {"name", "%2 %5"}});
    pressOk("%2 %5");
    QVERIFY2(dialog->script.contains("\"%2 %5-%6\",1,"), qPrintable(dialog->script));
    QVERIFY2(dialog->script.contains("<b>VOR %4</b><font color=black><br/>%2 %5<br/>"), qPrintable(dialog->script));
}

QTEST_MAIN(TestNavResults)
#include "tst_navresults.moc"
