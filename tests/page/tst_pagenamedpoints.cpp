// What has a name on the map and is no marker of the feed: under the pointer, in the menu, in the measure.
#include "pagetest.h"
#include "samplechart.h"

#include <QtTest>

using namespace samplechart;

Q_DECLARE_METATYPE(samplechart::Place)

class TestPageNamedPoints : public SampleChartTest
{
    Q_OBJECT

private slots:
    void thePointerMeetsIt_data()
    {
        objects();
    }
    void thePointerMeetsIt();
    void theMenuOffersIt_data()
    {
        objects();
    }
    void theMenuOffersIt();
    void theMeasureEndsThereAndNamesIt_data()
    {
        objects();
    }
    void theMeasureEndsThereAndNamesIt();
    void aClickOnAPointOpensItsPopUp_data();
    void aClickOnAPointOpensItsPopUp();
    void thePopUpGoesWithItsPoint();
    void theStartAndTheAirportBelowAreTwoObjects();
    void aPointOfPlanAndProcedureIsOne();

private:
    void objects();
    QString lastTold() const
    {
        return (QStringList("") + program->calls("doData")).last();
    }
    QStringList names()
    {
        return texts(*window, "#measure td.measure-name");
    }
};

namespace {

const char planned[] = "addPointToFp(new google.maps.LatLng(46.60000, 1.70000),\"W-1 <b>&\");pushFP();";
const char inProcedure[] = "addPointToSS(new google.maps.LatLng(46.60000, 1.70000),\"RBT\")";
const char start[] = "addSitMarker(new google.maps.LatLng( 46.60000000,  1.70000000),\"Cessna 172\", 90);";

} // namespace

void TestPageNamedPoints::objects()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<samplechart::Place>("place");
    QTest::addColumn<QString>("head");
    QTest::newRow("plan") << planned << nothing << "Point du plan W-1 <b>&";
    QTest::newRow("procedure") << inProcedure << nothing << "Point de procédure RBT";
    QTest::newRow("procedure, marker not shown")
        << "NDBTermMgr.clearMarkers();addPointToSS(new google.maps.LatLng(46.40000, 2.60000),\"MT\")" << ndb
        << "NDB terminal MT";
    QTest::newRow("start") << start << nothing << "Départ Cessna 172";
    QTest::newRow("aircraft") << "addAcftMrkr(new google.maps.LatLng(46.60000, 1.70000),\"\",90);" << nothing
                              << "Avion";
}

void TestPageNamedPoints::thePointerMeetsIt()
{
    QFETCH(QString, script);
    QFETCH(samplechart::Place, place);
    QFETCH(QString, head);
    window->run(script);
    window->settle();
    window->mouse->moveTo({5, 300});
    window->mouse->moveTo(pixel(*window, place));
    QTRY_VERIFY2_WITH_TIMEOUT(lastTold().endsWith(" E  " + head + "\""), qPrintable(lastTold()), 20000);
    // The start and the aircraft have a box of their own.
    if (!head.startsWith("Départ") && head != "Avion")
        QTRY_COMPARE_WITH_TIMEOUT(texts(*window, "#tooltip:not([hidden]) div").value(0), head, 20000);
}

void TestPageNamedPoints::theMenuOffersIt()
{
    QFETCH(QString, script);
    QFETCH(samplechart::Place, place);
    QFETCH(QString, head);
    window->run(script);
    window->settle();
    const QStringList entries = menuAt(*window, place);
    QCOMPARE(texts(*window, "#menu .menu-head"), QStringList{head});
    QCOMPARE(entries.mid(entries.size() - 3), (QStringList{"Mesurer depuis ici", "Centrer ici", "Carte ici"}));
    // There is a row for the NDB alone.
    QCOMPARE(entries.contains("Ajouter au plan de vol"), head.startsWith("NDB"));
    QVERIFY(window->chooseEntry("Mesurer depuis ici"));
    window->mouse->click(pixel(*window, airport));
    QCOMPARE(names(), QStringList{"1  " + head + " – Aéroport LFLX"});
}

void TestPageNamedPoints::theMeasureEndsThereAndNamesIt()
{
    QFETCH(QString, script);
    QFETCH(samplechart::Place, place);
    QFETCH(QString, head);
    window->run(script);
    // From 0.3 degrees to the north; the pointer rests some pixels beside the object.
    window->run(
        QString("page.startMeasure(new google.maps.LatLng(%1,%2), '')").arg(place.latitude + 0.3).arg(place.longitude));
    window->settle();
    window->mouse->moveTo(pixel(*window, place) + QPoint(4, 3));
    QTRY_COMPARE_WITH_TIMEOUT(texts(*window, "#measure-readout:not([hidden]) div"),
                              (QStringList{"18.0 NM  ·  33.3 km", "180° / 360°"}), 20000);
    window->mouse->click(pixel(*window, place) + QPoint(4, 3));
    QCOMPARE(names(), QStringList{"1  … – " + head});
    QCOMPARE(window->popupText(), "");
}

void TestPageNamedPoints::aClickOnAPointOpensItsPopUp_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("head");
    QTest::newRow("plan") << planned << "Point du plan W-1 <b>&";
    QTest::newRow("procedure") << inProcedure << "Point de procédure RBT";
}

void TestPageNamedPoints::aClickOnAPointOpensItsPopUp()
{
    QFETCH(QString, script);
    QFETCH(QString, head);
    window->run("theLast = listNDBTerm[0];" + script);
    window->settle();
    window->mouse->click(pixel(*window, nothing));
    QVERIFY2(window->popupText().startsWith(head), qPrintable(window->popupText()));
    QVERIFY(window->popupText().contains("46° 36' 00\" N"));
    // The program's next deletion is none of this point.
    QVERIFY(window->run("theLast === listNDBTerm[0]").toBool());
}

void TestPageNamedPoints::thePopUpGoesWithItsPoint()
{
    window->run(planned);
    window->settle();
    window->mouse->click(pixel(*window, nothing));
    // The program draws a plan anew with each change.
    window->run("clearFP();" + QString(planned));
    window->settle();
    QVERIFY(window->popupText().startsWith("Point du plan"));
    window->run("clearFP()");
    QTRY_COMPARE_WITH_TIMEOUT(window->popupText(), QString(), 20000);
}

void TestPageNamedPoints::theStartAndTheAirportBelowAreTwoObjects()
{
    window->run("addSitMarker(new google.maps.LatLng( 46.90000000,  2.00000000),\"Cessna 172\", 90);");
    window->settle();
    const QStringList entries = menuAt(*window, airport);
    QCOMPARE(texts(*window, "#menu .menu-head"), QStringList{"2 objets ici"});
    QCOMPARE(entries.mid(0, 2), (QStringList{"Départ Cessna 172", "Aéroport LFLX"}));
    QVERIFY(window->chooseEntry("Départ Cessna 172"));
    QVERIFY(window->chooseEntry("Centrer ici"));
    QCOMPARE(program->calls("doCenter").last(), "doCenter 46.90000 2.00000");
}

void TestPageNamedPoints::aPointOfPlanAndProcedureIsOne()
{
    window->run(QString(planned).replace("W-1 <b>&", "RBT") + inProcedure);
    window->settle();
    menuAt(*window, nothing);
    QCOMPARE(texts(*window, "#menu .menu-head"), QStringList{"Point du plan RBT"});
}

QTEST_MAIN(TestPageNamedPoints)
#include "tst_pagenamedpoints.moc"
