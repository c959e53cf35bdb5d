// Start and end of a run: folders, databases, order of the reports, the page's language, the settings file.
#include "boxresponder.h"
#include "childprocess.h"
#include "messagelog.h"
#include "sandbox.h"
#include "windowsession.h"

#include "cnavglobalvar.h"
#include "mainwindow.h"

#include <QDir>
#include <QDockWidget>
#include <QLineEdit>
#include <QPointF>
#include <QSqlDatabase>
#include <QTextEdit>
#include <QUrl>
#include <QWebView>
#include <QtTest>

namespace {

/// What a debug message begins with: its label, without the quoted values behind it.
QStringList labels(const QStringList& messages)
{
    QStringList found;
    for (const QString& message : messages)
        found << message.section(" \"", 0, 0).section(" QDir", 0, 0);
    return found;
}

} // namespace

class TestStart : public QObject
{
    Q_OBJECT

private slots:
    void reportsInOrder();
    void reportsTheFoldersInQuotes();
    void firstStartAsksForTheWorkFolderAndKeepsIt();
    void cancelledWorkFolderLeavesAnEmptyPath();
    void missingRootIsAskedFor();
    void debugTabIsInFront();
    void planRecordFillsTheAircraftDock();
    void missingDatabasesLeaveTheWindowWorking();
    void oneDamagedDatabaseLeavesTheOthers();
    void pageFollowsTheLanguage_data();
    void pageFollowsTheLanguage();
    void missingPageLeavesTheWindowWorking();
    void endWritesCentreAndZoom();
    void endWritesTheFlagOfTheTerminalNdbFromTheEnRouteState();
    void startCopiesTheStatesToTheFlags();
    void aFirstRunStartsWithTheDefaults();
    void onePositionSurvivesTheNextStart();
};

void TestStart::reportsInOrder()
{
    Sandbox sandbox;
    MessageLog log;
    WindowSession session;
    QStringList found = labels(log.messages(QtDebugMsg));
    QVERIFY(!found.isEmpty());
    QVERIFY2(found.first().startsWith("\n\n-------------------->\nStarting ZephanTrajector"),
             qPrintable(found.first()));
    found.removeFirst();
    // The aircraft list is read after the start has reported its end.
    QCOMPARE(found.mid(0, 18), (QStringList{"QDir::current", "dirZephan", "dirWork", "AeoZephan.ini settings", "GENDB",
                                            "M3DDB", "OBJDB", "TXYDB", "WPTDB", "RTEDB", "OSMDB", "is open", "is open",
                                            "is open", "is open", "is open", "is open", "Start ended"}));
    QCOMPARE(found.size(), 19);
}

void TestStart::reportsTheFoldersInQuotes()
{
    Sandbox sandbox;
    MessageLog log;
    WindowSession session;
    const QRegularExpression stamp("Starting ZephanTrajector \"\\d\\d-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d\"$");
    QVERIFY(stamp.match(log.messages().first()).hasMatch());
    const QString root = QFileInfo(sandbox.root()).canonicalFilePath();
    QCOMPARE(log.startingWith("dirZephan"), QStringList{QStringLiteral("dirZephan \"%1\"").arg(root)});
    QCOMPARE(log.startingWith("dirWork"), QStringList{QStringLiteral("dirWork \"%1\"").arg(sandbox.path("Work"))});
    QCOMPARE(log.startingWith("RTEDB"), QStringList{QStringLiteral("RTEDB \"%1/SQL\"").arg(root)});
    const QStringList open = log.startingWith("is open");
    QCOMPARE(open.size(), 6);
    QCOMPARE(open.first(), QStringLiteral("is open \"GEN.db\" \"%1/SQL\"").arg(root));
    QCOMPARE(open.last(), QStringLiteral("is open \"ROUTE.db\" \"%1/SQL\"").arg(root));
}

void TestStart::firstStartAsksForTheWorkFolderAndKeepsIt()
{
    Sandbox sandbox;
    sandbox.removeSettings();
    BoxResponder boxes;
    MessageLog log;
    boxes.expectFiles("Sélectionner le répertoire de travail", {sandbox.path("Work")});
    WindowSession session;
    QVERIFY(boxes.allUsed());
    QCOMPARE(boxes.seen().value(0).value, QCoreApplication::applicationDirPath());
    QCOMPARE(labels(log.messages(QtDebugMsg)).mid(3, 2), (QStringList{"dirWork not found", "dirWork"}));
    QCOMPARE(CNavGlobalVar::instance()->dirWork.path(), sandbox.path("Work"));
    session.close();
    QCOMPARE(sandbox.setting("directory/dirWork").toString(), sandbox.path("Work"));

    WindowSession next; // the dialog does not come back: the responder expects nothing more
}

void TestStart::cancelledWorkFolderLeavesAnEmptyPath()
{
    Sandbox sandbox;
    sandbox.removeSettings();
    BoxResponder boxes;
    boxes.expectFilesRejected("Sélectionner le répertoire de travail");
    WindowSession session;
    QVERIFY(!CNavGlobalVar::instance()->dirWork.exists());
    session.close();
    QCOMPARE(sandbox.setting("directory/dirWork").toString(), QString());
}

void TestStart::missingRootIsAskedFor()
{
    Sandbox sandbox;
    sandbox.addAirport();
    QTemporaryDir elsewhere;
    QVERIFY(QDir(elsewhere.path()).mkpath("Tools/Trajector"));
    QVERIFY(QFile::copy(sandbox.path("Tools/Trajector/trajector.ini"),
                        elsewhere.filePath("Tools/Trajector/trajector.ini")));
    QVERIFY(QDir::setCurrent(elsewhere.filePath("Tools/Trajector")));
    BoxResponder boxes;
    MessageLog log;
    boxes.expectFiles("Sélectionner le répertoire de Aeo Zephan", {sandbox.root()});
    WindowSession session;
    QVERIFY(boxes.allUsed());
    QCOMPARE(boxes.seen().value(0).value, QCoreApplication::applicationDirPath());
    QCOMPARE(labels(log.messages(QtDebugMsg)).mid(2, 3),
             (QStringList{"dirZephan", "dirZephan not found", "dirZephan"}));
    QCOMPARE(CNavGlobalVar::instance()->dirZephan.path(), sandbox.root());
    QCOMPARE(CNavGlobalVar::instance()->dbGEN, QString("GEN.db"));
}

void TestStart::debugTabIsInFront()
{
    Sandbox sandbox;
    WindowSession session;
    session.window().show();
    QVERIFY(QTest::qWaitForWindowExposed(&session.window()));
    // Docks that are tabbed behind count as visible, but no part of them shows.
    for (const char* shown : {"debugText", "searchData", "treeWFound"})
        QVERIFY2(!session.find<QWidget>(shown)->visibleRegion().isEmpty(), shown);
    for (const char* behind : {"fltplnGrid", "treeWSid", "treeWStar", "cbAircraftType"})
        QVERIFY2(session.find<QWidget>(behind)->visibleRegion().isEmpty(), behind);
}

void TestStart::planRecordFillsTheAircraftDock()
{
    Sandbox sandbox;
    WindowSession session;
    for (const char* field :
         {"leSpeedMax", "leSpeedCruise", "leSpeedApp", "leSpeedVert", "leAircraftCeiling", "leAltCruise"})
        QCOMPARE(session.find<QLineEdit>(field)->text(), QString("0"));
    QCOMPARE(session.find<QLineEdit>("leAircraftNumber")->text(), QString());
}

void TestStart::missingDatabasesLeaveTheWindowWorking()
{
    Sandbox sandbox(Sandbox::Databases::None);
    BoxResponder boxes;
    WindowSession session;
    QCOMPARE(CNavGlobalVar::instance()->dbGEN, QString());
    QVERIFY(QSqlDatabase::connectionNames().isEmpty());
    // The feed asks for the airports and the navaids; the waypoints' statement fails in silence.
    boxes.expectAnyMessage();
    boxes.expectAnyMessage();
    QVERIFY(session.load());
    QVERIFY(boxes.allUsed());
    for (const SeenBox& box : boxes.seen()) {
        QCOMPARE(box.title, QString("SQL Error"));
        QVERIFY(box.text.startsWith("One of the query failed to execute.Error detail: "));
    }
    QCOMPARE(session.debugLines(), (QStringList{"ATS: 0 élément chargés", "Chargement terminé"}));
}

void TestStart::oneDamagedDatabaseLeavesTheOthers()
{
    Sandbox sandbox;
    sandbox.addWaypoint();
    sandbox.removeFile("SQL/GEN.db");
    sandbox.writeFile("SQL/GEN.db", QByteArray(2000, 'x'));
    BoxResponder boxes;
    WindowSession session;
    QCOMPARE(CNavGlobalVar::instance()->dbGEN, QString());
    QCOMPARE(CNavGlobalVar::instance()->dbWPT, QString("WPT.db"));
    boxes.expectAnyMessage();
    boxes.expectAnyMessage();
    QVERIFY(session.load());
    QCOMPARE(session.debugLines(),
             (QStringList{"Waypoint: 1 élément chargés", "ATS: 0 élément chargés", "Chargement terminé"}));
}

void TestStart::pageFollowsTheLanguage_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("page");
    QTest::newRow("French of France") << "fr_FR.UTF-8"
                                      << "gm_trajector_fr.html";
    QTest::newRow("French of Canada") << "fr_CA.UTF-8"
                                      << "gm_trajector_fr.html";
    QTest::newRow("English") << "en_US.UTF-8"
                             << "gm_trajector_en.html";
    QTest::newRow("German") << "de_DE.UTF-8"
                            << "gm_trajector_en.html";
    QTest::newRow("C") << "C"
                       << "gm_trajector_en.html";
}

void TestStart::pageFollowsTheLanguage()
{
    QFETCH(QString, locale);
    QFETCH(QString, page);
    if (!inChildProcess()) {
        const QString function = QStringLiteral("pageFollowsTheLanguage:%1").arg(QTest::currentDataTag());
        const ChildRun run = runChildProcess({function}, {{"LC_ALL", locale}, {"LANGUAGE", QString()}});
        QVERIFY2(run.finished && run.exitCode == 0, qPrintable(run.output + run.log));
        return;
    }
    Sandbox sandbox;
    WindowSession session;
    QVERIFY(session.load());
    const QUrl url = session.find<QWebView>("map")->url();
    QCOMPARE(url.toLocalFile(), QCoreApplication::applicationDirPath() + '/' + page);
}

void TestStart::missingPageLeavesTheWindowWorking()
{
    if (!inChildProcess()) {
        QTemporaryDir folder;
        const ChildRun run = runChildProcess({QTest::currentTestFunction()}, {}, folder.path());
        QVERIFY2(run.finished && run.exitCode == 0, qPrintable(run.output + run.log));
        return;
    }
    QVERIFY(!QFile::exists(QCoreApplication::applicationDirPath() + "/gm_trajector_fr.html"));
    Sandbox sandbox;
    sandbox.addAirport();
    sandbox.addNavaid();
    sandbox.setSetting("view/zoom", 8);
    BoxResponder boxes; // none comes
    WindowSession session;
    QVERIFY(session.load());
    QCOMPARE(session.debugLines(), (QStringList{"Airport: 1 éléments chargés", "Navaid: 1 éléments chargés",
                                                "ATS: 0 élément chargés", "Chargement terminé"}));
    QVERIFY(!session.window().runMapScript("map.getZoom()").isValid());
    session.find<QLineEdit>("searchData")->setText("lfpo");
    session.window().searchInTable(true);
    QCOMPARE(session.find<QLineEdit>("searchData")->text(), QString("LFPO"));
    session.close();
    // Three scripts without a result: nothing is written as centre and zoom but 0.
    QCOMPARE(sandbox.setting("view/mapCenter").toPointF(), QPointF(0, 0));
    QCOMPARE(sandbox.setting("view/zoom").toDouble(), 0.0);
}

void TestStart::endWritesCentreAndZoom()
{
    Sandbox sandbox;
    WindowSession session;
    QVERIFY(session.load());
    session.page().evaluate("map.setCenter(new google.maps.LatLng(43.625,-1.25));map.setZoom(9)");
    session.close();
    QCOMPARE(sandbox.setting("view/mapCenter").toPointF(), QPointF(-1.25, 43.625));
    QCOMPARE(sandbox.setting("view/zoom").toDouble(), 9.0);
}

void TestStart::endWritesTheFlagOfTheTerminalNdbFromTheEnRouteState()
{
    Sandbox sandbox;
    sandbox.setSetting("view/showNdbRte", false);
    sandbox.setSetting("view/showNdbTerm", true);
    WindowSession session;
    QVERIFY(!session.action("actNdbTerm")->isChecked());
    session.close();
    QCOMPARE(sandbox.setting("view/showNdbTerm").toString(), QString("false"));
}

void TestStart::startCopiesTheStatesToTheFlags()
{
    Sandbox sandbox;
    sandbox.setSetting("view/showNdbTerm", false);
    sandbox.setSetting("view/showVor", false);
    sandbox.setSetting("view/showDock", false);
    WindowSession session;
    QVERIFY2(CNavGlobalVar::instance()->showNdbTerm, "takes the state of the en route flag");
    QVERIFY(!CNavGlobalVar::instance()->showVor);
    QVERIFY2(!CNavGlobalVar::instance()->showDock, "the docks' slot is not called at start");
    QVERIFY(!session.find<QDockWidget>("dockWSearch")->isHidden());
    session.close();
    // The line of the airspace is written last with the docks' flag, as the design of the file has it.
    QCOMPARE(sandbox.setting("view/showBoundary").toString(), QString("false"));
    QVERIFY(!sandbox.setting("view/showATSB").isValid());
}

void TestStart::aFirstRunStartsWithTheDefaults()
{
    Sandbox sandbox;
    sandbox.removeSettings();
    BoxResponder boxes;
    boxes.expectFiles("Sélectionner le répertoire de travail", {sandbox.path("Work")});
    WindowSession session;
    QVERIFY(session.load());
    QCOMPARE(session.page().calls("map.setCenter").first(), QString("map.setCenter(LatLng(49,2))"));
    QCOMPARE(session.page().calls("map.setZoom").first(), QString("map.setZoom(6)"));
    session.close();
    QCOMPARE(sandbox.setting("view/route").toString(), QString("FR"));
    QCOMPARE(sandbox.setting("trace/intervale").toInt(), 2);
}

void TestStart::onePositionSurvivesTheNextStart()
{
    Sandbox sandbox;
    {
        WindowSession session;
        QVERIFY(session.load());
        session.page().evaluate("map.setCenter(new google.maps.LatLng(47.5,3.75));map.setZoom(8)");
    }
    WindowSession session;
    QVERIFY(session.load());
    QCOMPARE(session.page().calls("map.setCenter"), QStringList{"map.setCenter(LatLng(47.5,3.75))"});
    QCOMPARE(session.page().calls("map.setZoom"), QStringList{"map.setZoom(8)"});
    QCOMPARE(session.page().evaluate("map.getZoom()").toDouble(), 8.0);
}

QTEST_MAIN(TestStart)
#include "tst_start.moc"
