// OK in the navaid dialog: the frequency's band, the row, the update file, the script for the map page.
#include "boxresponder.h"
#include "cdialognav.h"
#include "ciodatabase.h"
#include "cnavglobalvar.h"
#include "editingworld.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QtTest>

namespace {

const QString title = QStringLiteral("Nouveau NAVAID");
const QString exportTitle = QStringLiteral("Nouveau NAVAID: export");

QString storedText(const QString& name)
{
    return name + QStringLiteral(" a été modifié/ajouté à la base GEN.db");
}

} // namespace

class TestNavSaving : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void aFrequencyInItsBandIsTaken_data();
    void aFrequencyInItsBandIsTaken();
    void aFrequencyOutsideItsBandIsRefused_data();
    void aFrequencyOutsideItsBandIsRefused();
    void aRefusedFrequencyCanBeMended();
    void moreDecimalsThanTheBoxHasAreRounded();
    void aNewNavaidIsStored();
    void aChosenTypeIsStored_data();
    void aChosenTypeIsStored();
    void withoutATypeTheRowHas0AndNoMarker();
    void aChosenUsageIsStored_data();
    void aChosenUsageIsStored();
    void anUntouchedRowStaysAsItWas_data();
    void anUntouchedRowStaysAsItWas();
    void anUntouchedTacanIsWrittenAs5();
    void aTacanThatWasWrittenBecomesAVor();
    void theHiddenNumbersKeepSixDigits();
    void anIdentifierTakenTwiceIsAnotherRow();
    void aRefusedRowIsReportedAndTheRestIsDone();
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

private:
    void openRow(const Row& row);
    /// A new navaid ABBEVILLE of France at 48 degrees north and 2 east, not yet with a frequency of its own.
    void openNew(const QString& typeButton = "rbVOR");
    void pressOk(const QString& name = "ABBEVILLE");

    QScopedPointer<BoxResponder> boxes;
    QScopedPointer<EditingWorld> world;
    QScopedPointer<DataFolder> data;
    QScopedPointer<CDialogNav> dialog;
};

void TestNavSaving::init()
{
    boxes.reset(new BoxResponder);
    world.reset(new EditingWorld);
    data.reset(new DataFolder({"NAVSAVING", "NAVBLOCKED", "ABBEVILLE", "NAVSAVING'"}));
}

void TestNavSaving::cleanup()
{
    dialog.reset();
    data.reset();
    world.reset();
    boxes.reset();
}

void TestNavSaving::openRow(const Row& row)
{
    world->sandbox.addNavaid(row);
    dialog.reset(new CDialogNav(world->navaid(row.value("ukey", "RBT").toString()), nullptr));
    present(*dialog);
}

void TestNavSaving::openNew(const QString& typeButton)
{
    dialog.reset(new CDialogNav(172800, 7200, nullptr));
    present(*dialog);
    choose(*dialog, "cbCtry", "FR");
    press(*dialog, typeButton);
    typeInto(*dialog, "leName", "ABBEVILLE");
    typeInto(*dialog, "leIden", "abb");
}

void TestNavSaving::pressOk(const QString& name)
{
    boxes->expectMessage(title, storedText(name));
    press(*dialog, "pbOK");
    QVERIFY(boxes->allUsed());
}

void TestNavSaving::aFrequencyInItsBandIsTaken_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("stored");
    QTest::newRow("VOR 108") << "rbVOR"
                             << "108"
                             << "108.0";
    QTest::newRow("VOR 117.99") << "rbVOR"
                                << "117,99"
                                << "117.99";
    QTest::newRow("VOR 117.999") << "rbVOR"
                                 << "117,999"
                                 << "117.999";
    QTest::newRow("VOR DME 108") << "rbVORDME"
                                 << "108"
                                 << "108.0";
    QTest::newRow("VOR DME 117.999") << "rbVORDME"
                                     << "117,999"
                                     << "117.999";
    QTest::newRow("TACAN 112") << "rbTACAN"
                               << "112"
                               << "112.0";
    QTest::newRow("NDB 180") << "rbNDB"
                             << "180"
                             << "180.0";
    QTest::newRow("NDB 1749.999") << "rbNDB"
                                  << "1749,999"
                                  << "1749.999";
    QTest::newRow("NDB DME 180") << "rbNDBDME"
                                 << "180"
                                 << "180.0";
    QTest::newRow("NDB DME 300") << "rbNDBDME"
                                 << "300"
                                 << "300.0";
    QTest::newRow("NDB DME 1749.999") << "rbNDBDME"
                                      << "1749,999"
                                      << "1749.999";
}

void TestNavSaving::aFrequencyInItsBandIsTaken()
{
    QFETCH(QString, button);
    QFETCH(QString, keys);
    openNew(button);
    const QString key = textOf(*dialog, "leUkey");
    typeInto(*dialog, "sbFreq", keys);
    pressOk();
    QCOMPARE(dialog->result(), 1);
    QTEST(world->storedNavaid(key).value(4), "stored");
}

void TestNavSaving::aFrequencyOutsideItsBandIsRefused_data()
{
    const QString vorTitle = "Création VOR";
    const QString vorText = "La fréquence doit être comprise entre 108.000 et 117.95 Mhz.";
    const QString ndbTitle = "Création NDB";
    const QString ndbText = "La fréquence doit être comprise entre 180 et 1750 Khz.";
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("boxTitle");
    QTest::addColumn<QString>("boxText");
    QTest::newRow("VOR 118") << "rbVOR"
                             << "118" << vorTitle << vorText;
    QTest::newRow("VOR DME 150") << "rbVORDME"
                                 << "150" << vorTitle << vorText;
    QTest::newRow("VOR DME 118") << "rbVORDME"
                                 << "118" << vorTitle << vorText;
    QTest::newRow("TACAN 118") << "rbTACAN"
                               << "118" << vorTitle << vorText;
    QTest::newRow("TACAN 300") << "rbTACAN"
                               << "300" << vorTitle << vorText;
    QTest::newRow("NDB 179.999") << "rbNDB"
                                 << "179,999" << ndbTitle << ndbText;
    QTest::newRow("NDB 1750") << "rbNDB"
                              << "1750" << ndbTitle << ndbText;
    QTest::newRow("NDB DME 112") << "rbNDBDME"
                                 << "112" << ndbTitle << ndbText;
    QTest::newRow("NDB DME 1750") << "rbNDBDME"
                                  << "1750" << ndbTitle << ndbText;
}

void TestNavSaving::aFrequencyOutsideItsBandIsRefused()
{
    QFETCH(QString, button);
    QFETCH(QString, keys);
    QFETCH(QString, boxTitle);
    QFETCH(QString, boxText);
    openNew(button);
    typeInto(*dialog, "sbFreq", keys);
    boxes->expectMessage(boxTitle, boxText);
    press(*dialog, "pbOK");
    QVERIFY(boxes->allUsed());
    QVERIFY(dialog->isVisible());
    QCOMPARE(dialog->script, QString());
    QCOMPARE(world->count(dbfile::gen, "NAV"), 0);
}

void TestNavSaving::aRefusedFrequencyCanBeMended()
{
    openNew("rbNDB");
    // 107.999 cannot be typed: the box keeps what it had, which is no frequency of an NDB.
    typeInto(*dialog, "sbFreq", "107,999");
    boxes->expectMessage("Création NDB", "La fréquence doit être comprise entre 180 et 1750 Khz.");
    press(*dialog, "pbOK");
    QVERIFY(widgetOf<QDoubleSpinBox>(*dialog, "sbFreq")->value() >= 108.0);
    typeInto(*dialog, "sbFreq", "392,5");
    pressOk();
    QCOMPARE(world->storedNavaid("ABB5FR").value(4), QString("392.5"));
}

void TestNavSaving::moreDecimalsThanTheBoxHasAreRounded()
{
    openRow({{"ntyp", 1}, {"nfrq", 117.9999}});
    boxes->expectMessage("Création VOR", "La fréquence doit être comprise entre 108.000 et 117.95 Mhz.");
    press(*dialog, "pbOK");
    QVERIFY(dialog->isVisible());
}

void TestNavSaving::aNewNavaidIsStored()
{
    openNew("rbVORDME");
    typeInto(*dialog, "sbFreq", "108,45");
    press(*dialog, "rbLow");
    pressOk();
    QCOMPARE(world->storedNavaid("ABB4FR"),
             (QStringList{"65702", "'ABB4FR'", "'ABB'", "'ABBEVILLE'", "108.45", "0.0", "0.0", "'FR'", "''", "17", "0",
                          "2", "172800.0", "7200.0", "0", "0.0", "0.0"}));
    QCOMPARE(world->count(dbfile::gen, "NAV"), 1);
    QCOMPARE(dialog->result(), 1);
    QVERIFY(!dialog->isVisible());
}

void TestNavSaving::aChosenTypeIsStored_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("frequency");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("stored");
    QTest::newRow("VOR") << "rbVOR"
                         << "112"
                         << "ABB1FR"
                         << "1";
    QTest::newRow("TACAN") << "rbTACAN"
                           << "112"
                           << "ABB2FR"
                           << "5";
    QTest::newRow("NDB") << "rbNDB"
                         << "300"
                         << "ABB5FR"
                         << "8";
    QTest::newRow("VOR DME") << "rbVORDME"
                             << "112"
                             << "ABB4FR"
                             << "17";
    QTest::newRow("NDB DME") << "rbNDBDME"
                             << "300"
                             << "ABB7FR"
                             << "24";
}

void TestNavSaving::aChosenTypeIsStored()
{
    QFETCH(QString, button);
    QFETCH(QString, frequency);
    QFETCH(QString, key);
    openNew(button);
    typeInto(*dialog, "sbFreq", frequency);
    pressOk();
    QTEST(world->storedNavaid(key).value(9), "stored");
}

void TestNavSaving::withoutATypeTheRowHas0AndNoMarker()
{
    openNew();
    uncheckAllIn(*dialog, "gbType");
    typeInto(*dialog, "sbFreq", "300");
    boxes->expectMessage("Création VOR", "La fréquence doit être comprise entre 108.000 et 117.95 Mhz.");
    press(*dialog, "pbOK");
    typeInto(*dialog, "sbFreq", "112");
    pressOk();
    QCOMPARE(world->storedNavaid("ABB1FR").value(9), QString("0"));
    QCOMPARE(dialog->script, QString());
    QCOMPARE(dialog->result(), 1);
}

void TestNavSaving::aChosenUsageIsStored_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("stored");
    QTest::newRow("High") << "rbHigh"
                          << "1";
    QTest::newRow("Low") << "rbLow"
                         << "2";
    QTest::newRow("Both") << "rbBoth"
                          << "3";
    QTest::newRow("Terminal") << "rbTerm"
                              << "4";
    QTest::newRow("RNAV") << "rbRnav"
                          << "5";
}

void TestNavSaving::aChosenUsageIsStored()
{
    QFETCH(QString, button);
    openNew();
    press(*dialog, button);
    pressOk();
    QTEST(world->storedNavaid("ABB1FR").value(11), "stored");
}

void TestNavSaving::anUntouchedRowStaysAsItWas_data()
{
    QTest::addColumn<Row>("row");
    const Row complete = {{"tile", 65705},     {"ukey", "ABB4FR"},  {"iden", "ABB"}, {"name", "ABBEVILLE"},
                          {"nfrq", 108.45},    {"nmdv", -1.2},      {"nsvr", -1.5},  {"ctry", "FR"},
                          {"stat", "QC"},      {"ntyp", 17},        {"ncls", 3},     {"nuse", 2},
                          {"nlat", 180486.36}, {"nlon", 6676.8842}, {"nalt", 223},   {"npow", 100.5},
                          {"nrgn", 130.25}};
    const auto with = [&complete](const Row& changes) {
        Row row = complete;
        for (auto change = changes.begin(); change != changes.end(); ++change)
            row.insert(change.key(), change.value());
        return row;
    };
    QTest::newRow("VOR DME") << complete;
    QTest::newRow("VOR") << with({{"ntyp", 1}, {"ukey", "ABB1FR"}});
    QTest::newRow("NDB") << with({{"ntyp", 8}, {"nfrq", 392.7}});
    QTest::newRow("NDB DME") << with({{"ntyp", 24}, {"nfrq", 1234.567}});
    QTest::newRow("a frequency of three decimals") << with({{"nfrq", 117.975}});
    QTest::newRow("a position of many decimals") << with({{"nlat", 180486.36012345679}, {"nlon", 1290875.0042345678}});
    QTest::newRow("south and west") << with({{"nlat", -0.1}, {"nlon", -648000.1 / 3}});
    QTest::newRow("usage 0") << with({{"nuse", 0}});
    QTest::newRow("below the sea") << with({{"nalt", -12}});
    QTest::newRow("letters of both cases") << with({{"name", "Abbeville"}, {"iden", "abb"}, {"ukey", "abb"}});
    QTest::newRow("a long identifier") << with({{"iden", "LFPO-NORD"}});
    QTest::newRow("a country that is not in the list") << with({{"ctry", "QQ"}});
    QTest::newRow("no country") << with({{"ctry", ""}});
    QTest::newRow("empty texts") << with({{"name", ""}, {"iden", ""}, {"stat", ""}});
    QTest::newRow("patterns in the texts") << with({{"name", "%1 %2"}, {"iden", "%L1"}, {"stat", "%"}});
}

void TestNavSaving::anUntouchedRowStaysAsItWas()
{
    QFETCH(Row, row);
    openRow(row);
    const QString key = row.value("ukey").toString();
    const QStringList before = world->storedNavaid(key);
    QCOMPARE(before.size(), 17);
    pressOk(row.value("name").toString());
    QCOMPARE(world->storedNavaid(key), before);
    QCOMPARE(world->count(dbfile::gen, "NAV"), 1);
}

void TestNavSaving::anUntouchedTacanIsWrittenAs5()
{
    openRow({{"ntyp", 4}, {"nfrq", 112.0}});
    pressOk("RAMBOUILLET");
    QCOMPARE(world->storedNavaid("RBT").value(9), QString("5"));
}

void TestNavSaving::aTacanThatWasWrittenBecomesAVor()
{
    openRow({{"ntyp", 5}, {"nfrq", 112.0}});
    pressOk("RAMBOUILLET");
    QCOMPARE(world->storedNavaid("RBT").value(9), QString("1"));
}

void TestNavSaving::theHiddenNumbersKeepSixDigits()
{
    openRow({{"ntyp", 1}, {"nmdv", -1.23456789}, {"nsvr", 1e-7}, {"npow", 12345678}, {"nrgn", 359.99999}});
    pressOk("RAMBOUILLET");
    const QStringList row = world->storedNavaid("RBT");
    QCOMPARE(row.mid(5, 2), (QStringList{"-1.23457", "1.0e-07"}));
    QCOMPARE(row.mid(15, 2), (QStringList{"12345700.0", "360.0"}));
}

void TestNavSaving::anIdentifierTakenTwiceIsAnotherRow()
{
    world->sandbox.addNavaid({{"ukey", "ABB1FR"}, {"name", "FIRST"}});
    boxes->expectMessage(title, "Le navaid ABB existe déja.\nVoulez vous continuer ?", QMessageBox::Yes);
    openNew();
    pressOk();
    QCOMPARE(world->storedNavaid("ABB1FR").value(3), QString("'FIRST'"));
    QCOMPARE(world->storedNavaid("ABB1FR1").value(3), QString("'ABBEVILLE'"));
}

void TestNavSaving::aRefusedRowIsReportedAndTheRestIsDone()
{
    openNew();
    typeInto(*dialog, "leName", "NAVSAVING'");
    press(*dialog, "cbSaveCSV");
    boxes->expectAnyMessage();
    boxes->expectMessage(exportTitle,
                         "Le fichier d'export pour NAVSAVING'\na été enregistré dans " + data->shownName("NAVSAVING'"));
    press(*dialog, "pbOK");
    QVERIFY(boxes->allUsed());
    QCOMPARE(boxes->seen().value(0).title, QString("SQL Error"));
    QVERIFY(boxes->seen().value(0).text.startsWith(
        "One of the query failed to execute.Error detail: REPLACE INTO NAV VALUES "
        "('65702','ABB1FR','ABB','NAVSAVING'','108','0','0','FR','','1','0','1','172800.00','7200.00','0','0','0') "));
    QCOMPARE(world->count(dbfile::gen, "NAV"), 0);
    QCOMPARE(dialog->result(), 1);
    QVERIFY(dialog->script.startsWith("addVORMarker2("));
}

void TestNavSaving::theUpdateFileHasOneLine()
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

void TestNavSaving::theUpdateFileReplacesAnOlderOne()
{
    data->write("NAVSAVING", QByteArray(1000, 'x'));
    openNew();
    typeInto(*dialog, "leName", "NAVSAVING");
    press(*dialog, "cbSaveCSV");
    boxes->expectMessage(title, storedText("NAVSAVING"));
    boxes->expectAnyMessage();
    press(*dialog, "pbOK");
    QCOMPARE(data->bytes("NAVSAVING"),
             QByteArray("GEN;NAV;+;65702;ABB1FR;ABB;NAVSAVING;108;0;0;FR;;1;0;1;172800.00;7200.00;0;0;0"));
}

void TestNavSaving::theUpdateFileIsWrittenOnWishOnly()
{
    openNew();
    pressOk();
    QVERIFY(!data->has("ABBEVILLE"));
}

void TestNavSaving::anUpdateFileThatCannotBeWrittenIsToldAsWritten()
{
    data->block("NAVBLOCKED");
    openNew();
    typeInto(*dialog, "leName", "NAVBLOCKED");
    press(*dialog, "cbSaveCSV");
    boxes->expectMessage(title, storedText("NAVBLOCKED"));
    boxes->expectMessage(exportTitle,
                         "Le fichier d'export pour NAVBLOCKED\na été enregistré dans " + data->shownName("NAVBLOCKED"));
    press(*dialog, "pbOK");
    QVERIFY(boxes->allUsed());
    QCOMPARE(dialog->result(), 1);
}

void TestNavSaving::theUpdateFileWritesTheSameRowWhereItIsImported()
{
    openNew();
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

void TestNavSaving::theScriptOfANewVor()
{
    openNew();
    typeInto(*dialog, "sbFreq", "114,7");
    press(*dialog, "rbBoth");
    QVERIFY(dialog->script.isEmpty());
    pressOk();
    QCOMPARE(dialog->script,
             QString("addVORMarker2(new google.maps.LatLng(48.00000,2.00000),\"ABBEVILLE-ABB1FR\",3,\"<font "
                     "color=blue><b>VOR ABB</b><font color=black><br/>ABBEVILLE<br/>114.7 Mhz<br/>48 00' 00.00 N - 002 "
                     "00' 00.00 E\")"));
}

void TestNavSaving::theScriptOfANewNdb()
{
    openNew("rbNDB");
    typeInto(*dialog, "sbFreq", "392,5");
    press(*dialog, "rbTerm");
    pressOk();
    QCOMPARE(dialog->script,
             QString("addNDBMarker2(new google.maps.LatLng(48.00000,2.00000),\"ABBEVILLE-ABB5FR\",4,\"<font "
                     "color=blue><b>NDB ABB</b><font color=black><br/>ABBEVILLE<br/>392.5 Khz<br/>48 00' 00.00 N - 002 "
                     "00' 00.00 E\")"));
}

void TestNavSaving::aTypesMarker_data()
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

void TestNavSaving::aTypesMarker()
{
    QFETCH(QString, button);
    QFETCH(QString, frequency);
    QFETCH(QString, function);
    QFETCH(QString, kind);
    openNew(button);
    typeInto(*dialog, "sbFreq", frequency);
    pressOk();
    QVERIFY2(dialog->script.startsWith(function), qPrintable(dialog->script));
    QVERIFY2(dialog->script.contains(kind), qPrintable(dialog->script));
}

void TestNavSaving::theScriptsLongitude()
{
    openRow({{"ntyp", 1}, {"nlat", -36000}, {"nlon", 1288800}});
    pressOk("RAMBOUILLET");
    QVERIFY2(dialog->script.startsWith("addVORMarker2(new google.maps.LatLng(-10.00000,-2.00000),\"RAMBOUILLET-RBT\","),
             qPrintable(dialog->script));
    QVERIFY2(dialog->script.contains("10 00' 00.00 S - 002 00' 00.00 W"), qPrintable(dialog->script));
}

void TestNavSaving::aNameIsNoPatternToFill()
{
    openRow({{"ntyp", 1}, {"ukey", "%6"}, {"iden", "%4"}, {"name", "%2 %5"}});
    pressOk("%2 %5");
    QVERIFY2(dialog->script.contains("\"%2 %5-%6\",1,"), qPrintable(dialog->script));
    QVERIFY2(dialog->script.contains("<b>VOR %4</b><font color=black><br/>%2 %5<br/>"), qPrintable(dialog->script));
}

QTEST_MAIN(TestNavSaving)
#include "tst_navsaving.moc"
