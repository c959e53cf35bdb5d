// The page of the two ini files: the simulator's against what is read and rewritten, the program's against its
// settings.
#include "cnavglobalvar.h"
#include "databaselayout.h"
#include "formatpage.h"
#include "sandbox.h"
#include "startupsituation.h"

#include <QTextCodec>
#include <QtTest>

namespace {

const QString simulatorsIni = "system/AeoZephan.ini";
const QString settingsFile = "Tools/Trajector/trajector.ini";

CNavGlobalVar& variables()
{
    return *CNavGlobalVar::instance();
}

const QMap<QString, QDir CNavGlobalVar::*> folders{
    {"SQL/GENDB", &CNavGlobalVar::dirGEN}, {"SQL/M3DDB", &CNavGlobalVar::dirM3D}, {"SQL/OBJDB", &CNavGlobalVar::dirOBJ},
    {"SQL/TXYDB", &CNavGlobalVar::dirTXY}, {"SQL/WPTDB", &CNavGlobalVar::dirWPT}, {"SQL/RTEDB", &CNavGlobalVar::dirRTE},
    {"SQL/OSMDB", &CNavGlobalVar::dirOSM},
};

const QMap<QString, bool CNavGlobalVar::*> switches{
    {"showAirport", &CNavGlobalVar::showAirport},
    {"showVor", &CNavGlobalVar::showVor},
    {"showNdbRte", &CNavGlobalVar::showNdbRte},
    {"showNdbTerm", &CNavGlobalVar::showNdbTerm},
    {"showWaypointRte", &CNavGlobalVar::showWaypointRte},
    {"showWaypointTerm", &CNavGlobalVar::showWaypointTerm},
    {"showWaypointVfr", &CNavGlobalVar::showWaypointVfr},
    {"showATSH", &CNavGlobalVar::showATSH},
    {"showATSL", &CNavGlobalVar::showATSL},
    {"showATSB", &CNavGlobalVar::showATSB},
    {"showBoundary", &CNavGlobalVar::showBoundary},
    {"showDock", &CNavGlobalVar::showDock},
};

/// A setting as the page tells it; the field bears the name of its key's last part, three of them another.
QString setting(const QString& key)
{
    const QString name = key.section('/', 1);
    if (switches.contains(name))
        return variables().*switches[name] ? "true" : "false";
    const QMap<QString, QString> others{
        {"zoom", QString::number(variables().zoom)},
        {"mapCenter", QString("%1,%2").arg(variables().mapCenter.x()).arg(variables().mapCenter.y())},
        {"route", variables().route},
        {"intervale", QString::number(variables().traceInterval)},
        {"dirWork", variables().dirWork.path()},
    };
    return others.value(name, "no such setting");
}

} // namespace

class TestIniPage : public QObject
{
    Q_OBJECT

    const FormatPage page{"ini"};

private slots:
    void theFoldersBecomeThat_data()
    {
        const QByteArray example = page.example("Example of the simulator's", "ini");
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("one byte a character") << example;
        QTest::newRow("two bytes a character") << QTextCodec::codecForName("UTF-16")->fromUnicode(example);
    }

    void theFoldersBecomeThat()
    {
        QFETCH(QByteArray, bytes);
        const Sandbox sandbox(Sandbox::Databases::None);
        sandbox.writeFile(simulatorsIni, bytes);
        variables().dirZephan.setPath(sandbox.root());
        variables().initDBPath();
        const auto rows = page.table("What the folders become");
        for (const auto& row : rows) {
            if (folders.contains(row["Key"]))
                QCOMPARE((variables().*folders[row["Key"]]).path(),
                         QString(row["Folder"]).replace("ROOT", sandbox.root()));
        }
        QVERIFY(rows.size() >= folders.size());
        for (const QString& key : folders.keys())
            QVERIFY2(page.row("What the folders become", key).contains("Folder"), qPrintable(key));
    }

    void thePrefixesAndVersionsAreThose()
    {
        for (const DatabaseLayout& database : databaseLayouts())
            QCOMPARE(page.row("Databases", database.prefix)["user_version"], QString::number(database.version));
        QCOMPARE(page.table("Databases").size(), int(databaseLayouts().size()));
    }

    void theStartUpLineBecomesThat()
    {
        const Sandbox sandbox(Sandbox::Databases::None);
        sandbox.writeFile(simulatorsIni, page.example("Example of the simulator's", "ini"));
        QVERIFY(setStartupSituation(sandbox.path(simulatorsIni), "PARIS ORLY.SIT"));
        QByteArray told = page.example("What the start-up line becomes", "ini");
        told.chop(1); // the last line feed goes, as the page tells
        QCOMPARE(sandbox.readFile(simulatorsIni), told);
    }

    void withoutAFileTheSettingsHaveTheDefaults()
    {
        const Sandbox sandbox(Sandbox::Databases::None);
        sandbox.removeSettings();
        for (const auto& row : page.table("Keys"))
            QVERIFY2(setting(row["Key"]) == row["Default"], qPrintable(row["Key"]));
    }

    void theExamplesSettingsAreReadSo()
    {
        const Sandbox sandbox(Sandbox::Databases::None);
        sandbox.writeFile(settingsFile, page.example("Example of the program's", "ini"));
        for (const auto& row : page.table("Keys"))
            QVERIFY2(setting(row["Key"]) == row["In the example"], qPrintable(row["Key"]));
    }

    void eachKeyIsWrittenWithItsField()
    {
        for (const auto& row : page.table("Keys")) {
            const Sandbox sandbox(Sandbox::Databases::None);
            const QString field = row["Written with"];
            for (const auto& flag : switches)
                variables().*flag = true;
            if (switches.contains(field))
                variables().*switches[field] = false;
            CNavGlobalVar::deleteInstance();
            const QVariant written = sandbox.setting(row["Key"]);
            QVERIFY2(written.isValid() != (field == "(never)"), qPrintable(row["Key"]));
            if (switches.contains(field))
                QVERIFY2(!written.toBool(), qPrintable(row["Key"]));
        }
    }

    void aPointByHandIsNone()
    {
        const Sandbox sandbox(Sandbox::Databases::None);
        sandbox.writeFile(settingsFile, "[view]\nmapCenter=2,49\n");
        QCOMPARE(variables().mapCenter, QPointF(0.0, 0.0));
        CNavGlobalVar::deleteInstance();
        QVERIFY(sandbox.readFile(settingsFile).contains("mapCenter=@Variant("));
    }
};

QTEST_GUILESS_MAIN(TestIniPage)
#include "tst_inipage.moc"
