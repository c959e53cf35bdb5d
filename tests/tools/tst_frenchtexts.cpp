// What the tour in English takes for French.
#include "frenchtexts.h"

#include <QBuffer>
#include <QtTest>

class TestFrenchTexts : public QObject
{
    Q_OBJECT

private slots:
    void tells_data();
    void tells();
    void dataAreFrenchByTheCatalogueAlone();
    void untranslatedTextIsFrench();
    void wordsOfTheFrenchPageAreFrench();
    void keptTextIsNot();
    void findsAllOfThemSorted();
    void whatIsNoCatalogueIsRefused();
};

namespace {

const char* const catalogueText = R"(<?xml version="1.0" encoding="utf-8"?>
<TS version="2.1" language="en"><context><name>MainWindow</name>
<message><source>Approx.</source><translation>Approx.</translation></message>
<message><source>SID : %1</source><translation>SID: %1</translation></message>
<message><source>Debut
%1</source><translation>Beginning
%1</translation></message>
<message><source>Effacer
&amp; Exporter</source><translation>Delete
&amp; Export</translation></message>
<message><source>Fin</source><translation></translation></message>
</context></TS>
)";

FrenchTexts judge(const QByteArray& keptTexts = {})
{
    FrenchTexts texts;
    QBuffer catalogue;
    catalogue.setData(catalogueText);
    catalogue.open(QIODevice::ReadOnly);
    if (!texts.readCatalogue(catalogue))
        qFatal("no catalogue");
    QBuffer kept;
    kept.setData(keptTexts);
    kept.open(QIODevice::ReadOnly);
    texts.readKept(kept);
    return texts;
}

} // namespace

void TestFrenchTexts::tells_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("french");
    QTest::newRow("nothing") << "" << false;
    QTest::newRow("the same in both languages") << "Approx." << false;
    QTest::newRow("French side of the catalogue, filled in") << "SID : LFPO" << true;
    QTest::newRow("English side of the catalogue, filled in") << "SID: LFPO" << false;
    QTest::newRow("French side on two lines") << "Debut\n12" << true;
    QTest::newRow("French side with the mark of a key") << "Effacer\n& Exporter" << true;
    QTest::newRow("an accent") << QString::fromUtf8("Terminé") << true;
    QTest::newRow("a French word") << "Open la porte" << true;
    QTest::newRow("a French word as a part of an English one") << "Nominal volume of a party" << false;
    QTest::newRow("an English question") << "Do you want AeoZephan to start at LFPO?" << false;
    QTest::newRow("degrees") << QString::fromUtf8("48° 43' 51\" N") << false;
}

void TestFrenchTexts::tells()
{
    QFETCH(QString, text);
    QTEST(judge().areFrench(text), "french");
}

void TestFrenchTexts::dataAreFrenchByTheCatalogueAlone()
{
    const FrenchTexts texts = judge();
    QVERIFY(!texts.isFrenchOfCatalogue("LA ROCHELLE"));
    QVERIFY(!texts.isFrenchOfCatalogue(QString::fromUtf8("Orléans")));
    QVERIFY(texts.isFrenchOfCatalogue("Debut 7"));
}

void TestFrenchTexts::untranslatedTextIsFrench()
{
    QVERIFY(judge().areFrench("Fin"));
}

void TestFrenchTexts::wordsOfTheFrenchPageAreFrench()
{
    FrenchTexts texts = judge();
    QVERIFY(!texts.areFrench("Point VFR"));
    QBuffer frenchPage;
    frenchPage.setData("  var pageWords = {\n    sum: 'Total',\n    kind: 'Point VFR',\n    gone: 'Rien d\\'autre',\n");
    QBuffer englishPage;
    englishPage.setData("    sum: 'Total',\n    kind: 'VFR point',\n");
    frenchPage.open(QIODevice::ReadOnly);
    englishPage.open(QIODevice::ReadOnly);
    QVERIFY(texts.readPageWords(frenchPage, englishPage));
    QVERIFY(texts.areFrench("Point VFR"));
    QVERIFY(texts.areFrench("Rien d'autre"));
    QVERIFY(!texts.areFrench("Total"));
    QVERIFY(!texts.areFrench("VFR point"));
}

void TestFrenchTexts::keptTextIsNot()
{
    const FrenchTexts texts = judge("# reasons\nDebut %1 # the simulator says so\n");
    QVERIFY(!texts.areFrench("Debut\n12"));
    QVERIFY(!texts.isFrenchOfCatalogue("Debut\n12"));
    QVERIFY(texts.areFrench("SID : LFPO"));
}

void TestFrenchTexts::findsAllOfThemSorted()
{
    const QStringList found = judge().find({"un vol", "Flight", "SID : LFPO"}, {"LES BAUX", "Fin"});
    QCOMPARE(found, QStringList({"Fin", "SID : LFPO", "un vol"}));
}

void TestFrenchTexts::whatIsNoCatalogueIsRefused()
{
    FrenchTexts texts;
    QBuffer nothing;
    nothing.setData("SID : %1");
    nothing.open(QIODevice::ReadOnly);
    QVERIFY(!texts.readCatalogue(nothing));
}

QTEST_GUILESS_MAIN(TestFrenchTexts)
#include "tst_frenchtexts.moc"
