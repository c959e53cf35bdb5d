// The bridge between the window and the page: scripts to the page, slots for the page, the alert channel.
#include "boxresponder.h"
#include "messagelog.h"
#include "sandbox.h"
#include "windowsession.h"

#include "mainwindow.h"
#include "mywebpage.h"

#include <QLabel>
#include <QTableWidget>
#include <QWebView>
#include <QtTest>

class TestBridge : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void scriptBeforeThePageIsParsedHasNoEffect();
    void emptyScriptNeverReachesThePage();
    void scriptGivesItsResult();
    void failedScriptGivesAnInvalidResult();
    void slotsAreOpenToThePage();
    void doSomethingWritesADebugMessage();
    void alertGoesToTheLogWithoutABox();
    void pageHasTheFixedUserAgent();
    void feedComesBeforeTheFirstView();
    void reloadRestoresTheObjectAndFeedsAgain();
    void longitude181IsWrittenAsMinus179();
    void longitude180StaysEast();
    void negativeLatitudeKeepsItsSign();
    void positionsHaveFiveDecimals();
    void startMarkerHasEightDecimals();
    void startMarkerCarriesAircraftAndHeading();
    void boxInsideASlotOfThePageBlocksItsScript();
    void titleOfNoRowIsToldByTheDialogSlots();
    void slotOfThePageMayCallThePageBack();

private:
    QVariant evaluate(const QString& script)
    {
        return session->page().evaluate(script);
    }

    QScopedPointer<Sandbox> sandbox;
    QScopedPointer<WindowSession> session;
};

void TestBridge::init()
{
    sandbox.reset(new Sandbox);
    session.reset(new WindowSession);
}

void TestBridge::cleanup()
{
    session.reset();
    sandbox.reset();
}

void TestBridge::scriptBeforeThePageIsParsedHasNoEffect()
{
    BoxResponder boxes;
    QVERIFY(!session->window().runMapScript("ArptMgr.addMarkers(listApt)").isValid());
    session->window().sViewVor();
    QVERIFY(session->load());
    QCOMPARE(evaluate("typeof map.getZoom()").toString(), QString("number"));
}

void TestBridge::emptyScriptNeverReachesThePage()
{
    QVERIFY(session->load());
    session->page().clear();
    QVERIFY(!session->window().runMapScript(QString()).isValid());
    QVERIFY(!session->window().runMapScript("").isValid());
    QCOMPARE(session->page().calls(), QStringList());
}

void TestBridge::scriptGivesItsResult()
{
    QVERIFY(session->load());
    QCOMPARE(session->window().runMapScript("20 + 1.5").toDouble(), 21.5);
    QCOMPARE(session->window().runMapScript("'Orly' + 4").toString(), QString("Orly4"));
    QCOMPARE(session->window().runMapScript("map.getZoom()").toDouble(), 6.0);
    QCOMPARE(session->window().runMapScript("map.getCenter().lat()").toDouble(), 49.0);
    QCOMPARE(session->window().runMapScript("map.getCenter().lng()").toDouble(), 2.0);
}

void TestBridge::failedScriptGivesAnInvalidResult()
{
    BoxResponder boxes;
    QVERIFY(session->load());
    QVERIFY(!session->window().runMapScript("noSuchFunction()").isValid());
    QVERIFY(!session->window().runMapScript("map.setZoom(").isValid());
    // A failure while running keeps the statements before it, the program goes on.
    session->window().runMapScript("map.setZoom(9);noSuchFunction();map.setZoom(3)");
    QCOMPARE(session->window().runMapScript("map.getZoom()").toDouble(), 9.0);
}

void TestBridge::slotsAreOpenToThePage()
{
    QVERIFY(session->load());
    for (const char* name : {"doSomething", "doCenter", "doZoom", "doData", "doViewRwy", "doMoveSIT", "sAddAptToFp",
                             "sAddNavToFp", "sAddWptToFp", "sAddNewWptToFp", "sAddSitToFp", "sAddWptToDB",
                             "sAddNavToDB", "sDelNavFromDB", "sDelWptFromDB", "sATS"})
        QVERIFY2(evaluate(QStringLiteral("typeof mainWindow.%1").arg(name)).toString() == "function", name);
}

void TestBridge::doSomethingWritesADebugMessage()
{
    QVERIFY(session->load());
    MessageLog log;
    evaluate("mainWindow.doSomething('un texte')");
    const QStringList written = log.startingWith("Message de la page HTML: ");
    QCOMPARE(written.size(), 1);
    QVERIFY(written.first().endsWith(" \"un texte\""));
}

void TestBridge::alertGoesToTheLogWithoutABox()
{
    BoxResponder boxes;
    QVERIFY(session->load());
    auto* page = qobject_cast<myWebPage*>(session->find<QWebView>("map")->page());
    QVERIFY(page);
    QSignalSpy sent(page, &myWebPage::sendData);
    MessageLog log;
    evaluate("alert('Bonjour')");
    QCOMPARE(sent.count(), 1);
    QCOMPARE(sent.first().first().toString(), QString("Bonjour"));
    QCOMPARE(log.messages(QtWarningMsg), QStringList{"MainWindow::receiveData \"Bonjour\""});
    QVERIFY(boxes.seen().isEmpty());
}

void TestBridge::pageHasTheFixedUserAgent()
{
    QVERIFY(session->load());
    QCOMPARE(evaluate("navigator.userAgent").toString(),
             QString("Mozilla/5.0 (Windows NT 6.1; WOW64) AppleWebKit/535.2 (KHTML, like Gecko) Chrome/15.0.874.121 "
                     "Safari/535.2"));
}

void TestBridge::feedComesBeforeTheFirstView()
{
    sandbox->addAirport();
    QVERIFY(session->load());
    const QStringList calls = session->page().calls();
    QCOMPARE(calls.mid(calls.indexOf("pushAPT()")),
             (QStringList{"pushAPT()", "map.setCenter(LatLng(49,2))", "map.setZoom(6)"}));
}

void TestBridge::reloadRestoresTheObjectAndFeedsAgain()
{
    sandbox->addAirport();
    QVERIFY(session->load());
    QSignalSpy finished(session->find<QWebView>("map"), &QWebView::loadFinished);
    for (int round = 2; round <= 3; ++round) {
        session->find<QWebView>("map")->reload();
        QVERIFY(finished.wait(30000));
        QCOMPARE(evaluate("typeof mainWindow.doZoom").toString(), QString("function"));
        QCOMPARE(session->debugLines().filter("Airport: 1 éléments chargés").size(), round);
        // The page starts with empty lists, so that nothing stands twice.
        QCOMPARE(evaluate("listApt.length").toInt(), 1);
    }
    evaluate("mainWindow.doZoom(7)");
    QCOMPARE(session->find<QLabel>("lblZoom")->text(), QString("Zoom: 7"));
}

void TestBridge::longitude181IsWrittenAsMinus179()
{
    sandbox->addAirport({{"alat", 0.0}, {"alon", arcSeconds(181)}});
    QVERIFY(session->load());
    const QString call = session->page().calls("addAPTMarker").value(0);
    QVERIFY2(call.startsWith("addAPTMarker(LatLng(0,-179),"), qPrintable(call));
}

void TestBridge::longitude180StaysEast()
{
    sandbox->addAirport({{"alat", 0.0}, {"alon", arcSeconds(180)}});
    QVERIFY(session->load());
    const QString call = session->page().calls("addAPTMarker").value(0);
    QVERIFY2(call.startsWith("addAPTMarker(LatLng(0,180),"), qPrintable(call));
}

void TestBridge::negativeLatitudeKeepsItsSign()
{
    sandbox->addNavaid({{"nlat", arcSeconds(-48, 30)}, {"nlon", arcSeconds(-1, 30)}});
    QVERIFY(session->load());
    const QString call = session->page().calls("addVORMarker").value(0);
    QVERIFY2(call.startsWith("addVORMarker(LatLng(-48.5,-1.5),"), qPrintable(call));
}

void TestBridge::positionsHaveFiveDecimals()
{
    sandbox->addWaypoint({{"wlat", 48.123456789 * 3600}, {"wlon", 2.987654321 * 3600}});
    QVERIFY(session->load());
    const QString call = session->page().calls("addWPTMarker").value(0);
    QVERIFY2(call.startsWith("addWPTMarker(LatLng(48.12346,2.98765),"), qPrintable(call));
}

void TestBridge::startMarkerHasEightDecimals()
{
    QVERIFY(session->load());
    session->page().clear();
    session->window().sAddSitToFp(48.123456789, 2.987654321);
    QCOMPARE(session->page().calls(), QStringList{"addSitMarker(LatLng(48.12345679,2.98765432),\"\",0)"});
}

void TestBridge::startMarkerCarriesAircraftAndHeading()
{
    sandbox->addAirport();
    sandbox->addRunway({{"rhla", arcSeconds(48, 45)}, {"rhlo", arcSeconds(2, 30)}, {"rhhd", 243.5}});
    QVERIFY(session->load());
    session->page().clear();
    evaluate("mainWindow.sAddAptToFp('LFPO')");
    QCOMPARE(session->page().calls("addSitMarker"), QStringList{"addSitMarker(LatLng(48.75,2.5),\"\",243.5)"});
    QCOMPARE(session->find<QTableWidget>("fltplnGrid")->rowCount(), 1);
}

void TestBridge::boxInsideASlotOfThePageBlocksItsScript()
{
    sandbox->addAirport(); // with no runway, which the departure's look-up reports
    BoxResponder boxes;
    QVERIFY(session->load());
    boxes.expectAnyMessage();
    evaluate("mainWindow.doData('before the box'); mainWindow.sAddAptToFp('LFPO'); mainWindow.doData('after the box')");
    QVERIFY(boxes.allUsed());
    QCOMPARE(boxes.seen().value(0).title, QString("SQL Error"));
    QCOMPARE(session->find<QLabel>("lblData")->text(), QString("after the box"));
    QCOMPARE(session->find<QTableWidget>("fltplnGrid")->rowCount(), 1);
}

void TestBridge::titleOfNoRowIsToldByTheDialogSlots()
{
    BoxResponder boxes;
    QVERIFY(session->load());
    boxes.expectMessage("Modification d'un waypoint", "Le waypoint X-NOKEY n'existe pas dans la base");
    boxes.expectMessage("Modification d'un navaid", "Le navaid  X-NOKEY  n'existe pas dans la base");
    evaluate("mainWindow.sAddWptToDB('X-NOKEY', 0, 0); mainWindow.sAddNavToDB(' X-NOKEY ', 0, 0)");
    QVERIFY(boxes.allUsed());
}

void TestBridge::slotOfThePageMayCallThePageBack()
{
    sandbox->addNavaid();
    QVERIFY(session->load());
    session->page().clear();
    const QVariant after = evaluate("mainWindow.sAddNavToFp('RBT-RBT'); 'after ' + zephanProbe.calls().length");
    QCOMPARE(session->page().calls("addPointToFp"), QStringList{"addPointToFp(LatLng(48.65,1.98333),\"RAMBOUILLET\")"});
    QVERIFY2(after.toString() != "after 0", "the slot has run when it returns to the page");
}

QTEST_MAIN(TestBridge)
#include "tst_bridge.moc"
