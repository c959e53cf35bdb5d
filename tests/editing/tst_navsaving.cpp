// OK in the navaid dialog: the frequency's band, and the row.
#include "dialogtests.h"

#include <QDoubleSpinBox>
#include <QtTest>

class TestNavSaving : public NavDialogTest
{
    Q_OBJECT

public:
    TestNavSaving() : NavDialogTest({"NAVSAVING'"}) {}

private slots:
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
};

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
    openAbbeville(button);
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
    openAbbeville(button);
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
    openAbbeville("rbNDB");
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
    openAbbeville("rbVORDME");
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
    openAbbeville(button);
    typeInto(*dialog, "sbFreq", frequency);
    pressOk();
    QTEST(world->storedNavaid(key).value(9), "stored");
}

void TestNavSaving::withoutATypeTheRowHas0AndNoMarker()
{
    openAbbeville();
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
    openAbbeville();
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
    openAbbeville();
    pressOk();
    QCOMPARE(world->storedNavaid("ABB1FR").value(3), QString("'FIRST'"));
    QCOMPARE(world->storedNavaid("ABB1FR1").value(3), QString("'ABBEVILLE'"));
}

void TestNavSaving::aRefusedRowIsReportedAndTheRestIsDone()
{
    openAbbeville();
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

QTEST_MAIN(TestNavSaving)
#include "tst_navsaving.moc"
