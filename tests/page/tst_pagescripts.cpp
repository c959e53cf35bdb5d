// The scripts that the program evaluates: every name stands, none gives more than a plain value, and a fault is told.
#include "pagewindow.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QtTest>

class TestPageScripts : public QObject
{
    Q_OBJECT

private slots:
    void everyNameOfTheInterfaceStands_data();
    void everyNameOfTheInterfaceStands();
    void theFirstScriptsRunInsideTheLoad();
    void everyScriptGivesNothingOrAPlainValue_data();
    void everyScriptGivesNothingOrAPlainValue();
    void aFaultOfAnEvaluatedScriptIsReported_data();
    void aFaultOfAnEvaluatedScriptIsReported();

private:
    QScopedPointer<ProgramSide> program;
    QScopedPointer<PageWindow> window;

    void open()
    {
        window.reset();
        program.reset(new FullProgramSide);
        window.reset(new PageWindow(program.data()));
        QVERIFY(window->load());
    }
};

namespace {

const char feed[] = R"(addAPTMarker(new google.maps.LatLng(48.72528,2.35944),"LFPO",1,"x");pushAPT();)"
                    R"(addVORMarker(new google.maps.LatLng(48.65000,1.99000),"RBT-RBT1FR",1,"x");)"
                    R"(addNDBMarker(new google.maps.LatLng(48.60000,1.90000),"MT-MT5FR",4,"x");addNavMgr();)"
                    R"(addWPTMarker(new google.maps.LatLng(48.50000,1.80000),"ABLAN-ABLANFR",6,"x");addWptMgr();)"
                    "addATS('L');clearFP();"
                    R"(addPointToFp(new google.maps.LatLng(48.00000,2.00000),"A");)"
                    R"(addAcftMrkr(new google.maps.LatLng(48.00000,2.00000),"",90);)";

/// The program's scripts, as it writes them, that give nothing.
const char* const silent[] = {
    "map.setCenter(new google.maps.LatLng(48.50000,-3.00000));",
    "map.setZoom(7)",
    R"(addAPTMarker(new google.maps.LatLng(48.72528,2.35944),"LFPG",1,"x"))",
    R"(addVORMarker(new google.maps.LatLng(48.65000,1.99000),"RBT-RBT2FR",1,"x"))",
    R"(addNDBMarker(new google.maps.LatLng(48.65000,1.99000),"MT-MT6FR",4,"x"))",
    R"(addWPTMarker(new google.maps.LatLng(48.65000,1.99000),"BALAN-BALANFR",6,"x"))",
    "pushAPT();",
    "addNavMgr();",
    "addWptMgr();",
    R"(addVORMarker2(new google.maps.LatLng(48.65000,1.99000),"RBT-RBT3FR",1,"x"))",
    R"(addNDBMarker2(new google.maps.LatLng(48.65000,1.99000),"MT-MT7FR",4,"x"))",
    R"(addWPTMarker2(new google.maps.LatLng(48.65000,1.99000),"CALAN-CALANFR",6,"x"))",
    "showATS('L',1)",
    "showATS('L',0)",
    "showATS('H',1)",
    "showATS('B',1)",
    "addATS('H')",
    "clearRunway();",
    "drawRwy(new google.maps.LatLng(48.70000,2.30000),new google.maps.LatLng(48.73000,2.35000));",
    "clearFP()",
    "clearFP();",
    R"(addPointToFp(new google.maps.LatLng(48.00000,2.00000),"B"))",
    "pushFP();",
    "clearSS()",
    R"(addPointToSS(new google.maps.LatLng(48.00000,2.00000),"C"))",
    R"(addSitMarker(new google.maps.LatLng(48.00000000,2.00000000),"", 90);)",
    "eraseAcftMrkr();",
    R"(addAcftMrkr(new google.maps.LatLng(48.00000,2.00000),"",90);)",
    "setAcftMrkr(new google.maps.LatLng(48.10000,2.10000),91);",
    "setAcftMrkr(new google.maps.LatLng(8.10000,2.10000),9);;map.setCenter(new google.maps.LatLng(8.10000,2.10000));",
};

} // namespace

void TestPageScripts::everyNameOfTheInterfaceStands_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("type");
    for (const char* name : {"addAPTMarker",  "addVORMarker",  "addNDBMarker",       "addWPTMarker",
                             "pushAPT",       "addNavMgr",     "addWptMgr",          "addVORMarker2",
                             "addNDBMarker2", "addWPTMarker2", "delNavaid",          "delWaypoint",
                             "showATS",       "addATS",        "addToATS",           "clearRunway",
                             "drawRwy",       "clearFP",       "addPointToFp",       "pushFP",
                             "clearSS",       "addPointToSS",  "addSitMarker",       "eraseAcftMrkr",
                             "addAcftMrkr",   "setAcftMrkr",   "map.setCenter",      "map.setZoom",
                             "map.getZoom",   "map.getCenter", "google.maps.LatLng", "google.maps.Map"})
        QTest::newRow(name) << name << "function";
    for (const char* name :
         {"listApt", "listVOR", "listNDBRte", "listNDBTerm", "listWptRte", "listWptTerm", "listWptVfr", "theLast"})
        QTest::newRow(name) << name << "object";
}

void TestPageScripts::everyNameOfTheInterfaceStands()
{
    QFETCH(QString, name);
    QFETCH(QString, type);
    if (!window)
        open();
    QCOMPARE(window->run("typeof " + name).toString(), type);
    QVERIFY(window->run("map instanceof google.maps.Map").toBool());
}

void TestPageScripts::theFirstScriptsRunInsideTheLoad()
{
    program.reset(new FullProgramSide);
    window.reset(new PageWindow(program.data()));
    // As the program does it: the feed and the first view at once when the load is finished.
    QStringList results;
    connect(window->view, &QWebView::loadFinished, this, [&] {
        results << window
                       ->run("addVORMarker(new google.maps.LatLng(46.70000, 2.30000),\"A-A\",1,\"x\");addNavMgr();"
                             "VORMgr.addMarkers(listVOR);listVOR.length")
                       .toString();
        results
            << window->run("map.setCenter(new google.maps.LatLng(48.50000,-3.00000));map.getCenter().lat()").toString();
        results << window->run("map.setZoom(6.5);map.getZoom()").toString();
    });
    QVERIFY(window->load());
    QCOMPARE(results, (QStringList{"1", "48.5", "6.5"}));
    // The pointer may lie on the map and be reported too.
    QCOMPARE(program->calls().filter(QRegularExpression("^(?!doData)")),
             (QStringList{"doCenter 48.50000 -3.00000", "doZoom 7"}));
}

void TestPageScripts::everyScriptGivesNothingOrAPlainValue_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("type");
    for (const char* script : silent)
        QTest::newRow(script) << script << "undefined";
    const QPair<const char*, const char*> layers[] = {{"ArptMgr", "listApt"},      {"VORMgr", "listVOR"},
                                                      {"NDBRteMgr", "listNDBRte"}, {"NDBTermMgr", "listNDBTerm"},
                                                      {"WPTRteMgr", "listWptRte"}, {"WPTTermMgr", "listWptTerm"},
                                                      {"WPTVfrMgr", "listWptVfr"}};
    for (const auto& layer : layers) {
        QTest::addRow("%s shown", layer.first)
            << QString("%1.addMarkers(%2)").arg(layer.first, layer.second) << "undefined";
        QTest::addRow("%s hidden", layer.first) << QString("%1.clearMarkers()").arg(layer.first) << "undefined";
    }
    for (const char* script : {"map.getCenter().lat()", "map.getCenter().lng()", "map.getZoom()"})
        QTest::newRow(script) << script << "number";
    // What stands behind the comma, and the comparison.
    QTest::newRow("addToATS") << "addToATS(new google.maps.LatLng(48.00000,2.00000)),'A'"
                              << "string";
    for (const char* script : {"delNavaid();theLast == null;", "delWaypoint();theLast == null;"})
        QTest::newRow(script) << script << "boolean";
}

/// An object of the map as a script's last value costs a long time, for all that hangs on it is translated for the
/// program.
void TestPageScripts::everyScriptGivesNothingOrAPlainValue()
{
    QFETCH(QString, script);
    QFETCH(QString, type);
    open();
    window->run(QString(feed) + "undefined");
    const QString quoted = QString::fromUtf8(QJsonDocument(QJsonArray{script}).toJson(QJsonDocument::Compact));
    QCOMPARE(window->run(QString("typeof (0, eval)(%1[0])").arg(quoted)).toString(), type);
}

void TestPageScripts::aFaultOfAnEvaluatedScriptIsReported_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("fault");
    QTest::newRow("a name that stands nowhere") << "nowhere()"
                                                << "nowhere";
    QTest::newRow("a method that no object has") << "map.nothing()"
                                                 << "map.nothing is not a function";
    QTest::newRow("a thrown number") << "throw 5"
                                     << "5";
    QTest::newRow("an unfinished text") << "map.getZoom("
                                        << "SyntaxError";
}

/// Every page test leans on it: a script that fails gives what reads as 0, false or empty.
void TestPageScripts::aFaultOfAnEvaluatedScriptIsReported()
{
    QFETCH(QString, script);
    QFETCH(QString, fault);
    open();
    window->page->expectFault(fault);
    QVERIFY(!window->run(script).isValid());
    QCOMPARE(window->page->messages.size(), 1);
    QVERIFY2(window->page->messages.first().contains(fault), qPrintable(window->page->messages.first()));
}

QTEST_MAIN(TestPageScripts)
#include "tst_pagescripts.moc"
