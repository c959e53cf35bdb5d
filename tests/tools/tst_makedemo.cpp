// The whole root: what the program finds in it, what the options change, what is refused.
#include "caircraftdata.h"
#include "cnavglobalvar.h"
#include "cpodmgr.h"
#include "demodatabase.h"
#include "demoroot.h"

#include <QDirIterator>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

class TestMakeDemo : public QObject
{
    Q_OBJECT

private slots:
    void theRootHasTheSimulatorsFolders();
    void versionsAreTheOnesThatTheProgramExpects();
    void theIniFileIsReadableAndHasTheStartLine();
    void theSettingsNameAnExistingWorkFolder();
    void theProgramFindsItsDatabases();
    void aReplaceReplacesByKey();
    void archivesAreReadBack();
    void aFolderNamedFromTheCurrentOne();
    void tablesHaveAtLeastTheRowsAskedFor();
    void theFrenchShareCountsForInventedRows();
    void aSizeBelowTheDemonstrationChangesNothing();
    void twoRunsGiveTheSameRows();
    void aFolderThatIsNotEmptyIsRefused();
    void aFolderThatCannotBeMadeIsRefused();
    void theCommandLine_data();
    void theCommandLine();
};

namespace {

int count(const QString& root, const QString& file, const QString& rows)
{
    return DemoDatabase(root + "/SQL/" + file + ".db").value("SELECT COUNT(*) FROM " + rows).toInt();
}

QStringList filesBelow(const QString& root)
{
    QStringList files;
    QDirIterator walk(root, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (walk.hasNext())
        files << QDir(root).relativeFilePath(walk.next());
    files.sort();
    return files;
}

QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Every row of every table, in the order of the files.
QStringList allRows(const QString& root)
{
    QStringList lines;
    for (const char* file : {"GEN", "M3D", "OBJ", "TXY", "WPT", "ROUTE"}) {
        const DemoDatabase database(root + "/SQL/" + file + ".db");
        for (const QVariantList& table :
             database.rows("SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY name"))
            for (const QVariantList& row : database.rows("SELECT * FROM \"" + table.first().toString() + '"')) {
                QStringList values{table.first().toString()};
                for (const QVariant& value : row)
                    values << value.typeName() + (':' + value.toString());
                lines << values.join(';');
            }
    }
    return lines;
}

} // namespace

void TestMakeDemo::theRootHasTheSimulatorsFolders()
{
    const QTemporaryDir folder;
    const QString root = folder.filePath("new/AeoZephan");
    QCOMPARE(makeDemoRoot(root), QString());
    for (const char* path : {"Aircraft", "Flightplan", "Saved Simulations", "SQL", "Tools/Trajector/Data", "Work"})
        QVERIFY2(QFileInfo(root + '/' + path).isDir(), path);
    QCOMPARE(filesBelow(root),
             QStringList({"AeoZephan.exe", "Aircraft/Airliners/a320.pod", "Aircraft/Airliners/atr72.pod",
                          "Aircraft/TB20.POD", "Aircraft/ballon.pod", "Aircraft/cessna172.pod", "Aircraft/dr400.pod",
                          "SQL/GEN.db", "SQL/M3D.db", "SQL/OBJ.db", "SQL/ROUTE.db", "SQL/TXY.db", "SQL/WPT.db",
                          "Tools/Trajector/trajector.ini", "system/AeoZephan.ini"}));
}

void TestMakeDemo::versionsAreTheOnesThatTheProgramExpects()
{
    const QTemporaryDir folder;
    QCOMPARE(makeDemoRoot(folder.path()), QString());
    const QMap<QString, int> versions{{"GEN", 0}, {"M3D", 3}, {"OBJ", 4}, {"TXY", 1}, {"WPT", 0}, {"ROUTE", 0}};
    for (auto version = versions.begin(); version != versions.end(); ++version) {
        const DemoDatabase database(folder.filePath("SQL/" + version.key() + ".db"));
        QCOMPARE(database.value("PRAGMA user_version").toInt(), version.value());
        QCOMPARE(database.value("PRAGMA integrity_check").toString(), QString("ok"));
    }
}

void TestMakeDemo::theIniFileIsReadableAndHasTheStartLine()
{
    const QTemporaryDir folder;
    QCOMPARE(makeDemoRoot(folder.path()), QString());
    const QString path = folder.filePath("system/AeoZephan.ini");
    const QSettings settings(path, QSettings::IniFormat);
    for (const char* key : {"GENDB", "M3DDB", "OBJDB", "TXYDB", "WPTDB", "RTEDB", "OSMDB"})
        QCOMPARE(settings.value(QString("SQL/%1").arg(key)).toString(), QString("SQL"));
    const QList<QByteArray> lines = bytesOf(path).split('\n');
    QCOMPARE(int(std::count_if(lines.begin(), lines.end(),
                               [](const QByteArray& line) { return line.startsWith("startupSituation"); })),
             1);
    QVERIFY(std::any_of(lines.begin(), lines.end(), [](const QByteArray& line) { return line.startsWith(';'); }));
}

void TestMakeDemo::theSettingsNameAnExistingWorkFolder()
{
    const QTemporaryDir folder;
    QCOMPARE(makeDemoRoot(folder.path()), QString());
    const QSettings settings(folder.filePath("Tools/Trajector/trajector.ini"), QSettings::IniFormat);
    QCOMPARE(settings.value("directory/dirWork").toString(), folder.filePath("Work"));
}

void TestMakeDemo::theProgramFindsItsDatabases()
{
    const QTemporaryDir folder;
    QCOMPARE(makeDemoRoot(folder.path()), QString());
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(folder.filePath("Tools/Trajector")));
    CNavGlobalVar* program = CNavGlobalVar::instance();
    QCOMPARE(program->dirWork.path(), folder.filePath("Work"));
    program->dirZephan.setPath(folder.path());
    QVERIFY(program->init());
    QCOMPARE(program->dbGEN, QString("GEN.db"));
    QCOMPARE(program->dbRTE, QString("ROUTE.db"));
    {
        QSqlQuery general(QSqlDatabase::database(program->dbGEN));
        QVERIFY(program->sqlMgr->getAPT("LFPO", true, general));
        QCOMPARE(general.value(4).toString(), QString("PARIS ORLY"));
        QVERIFY(program->sqlMgr->getNAV("RBT", true, general));
        QVERIFY(program->sqlMgr->getRWY("LFBO", true, general));
        QSqlQuery waypoints(QSqlDatabase::database(program->dbWPT));
        QVERIFY(program->sqlMgr->getWPT("BALAN", true, waypoints));
        QSqlQuery routes(QSqlDatabase::database(program->dbRTE));
        QVERIFY(program->sqlMgr->getSIDSTAR("LFPO", true, routes));
    }
    CNavGlobalVar::deleteInstance();
    for (const QString& name : QSqlDatabase::connectionNames())
        QSqlDatabase::removeDatabase(name);
    QVERIFY(QDir::setCurrent(before));
}

void TestMakeDemo::aReplaceReplacesByKey()
{
    const QTemporaryDir folder;
    QCOMPARE(makeDemoRoot(folder.path()), QString());
    const int rows = count(folder.path(), "GEN", "NAV");
    {
        QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE", "replace");
        database.setDatabaseName(folder.filePath("SQL/GEN.db"));
        QVERIFY(database.open());
        QSqlQuery query(database);
        QVERIFY(query.exec("REPLACE INTO NAV (ukey, iden, name) VALUES ('RBT4FR', 'RBT', 'CHANGED')"));
        database.close();
    }
    QSqlDatabase::removeDatabase("replace");
    QCOMPARE(count(folder.path(), "GEN", "NAV"), rows);
    QCOMPARE(count(folder.path(), "GEN", "NAV WHERE name = 'CHANGED'"), 1);
}

void TestMakeDemo::archivesAreReadBack()
{
    const QTemporaryDir folder;
    QCOMPARE(makeDemoRoot(folder.path()), QString());
    CPodMgr cessna(folder.filePath("Aircraft/cessna172.pod"));
    QCOMPARE(cessna.entries.size(), 4);
    QVERIFY(cessna.findBySuffix("NFO"));
    QCOMPARE(cessna.lineAfter("<make>").trimmed(), QString("Cessna 172 Skyhawk"));
    QVERIFY(cessna.findBySuffix("SVH"));
    CAircraftData numbers;
    numbers.readSvh(&cessna);
    QCOMPARE(numbers.acid, QString("F-GZEP"));
    QCOMPARE(numbers.speedMax, 126);
    QCOMPARE(numbers.speedCruise, 122);
    QCOMPARE(numbers.speedVert, 730);
    QCOMPARE(numbers.speedApp, 65);
    QCOMPARE(numbers.ceiling, 13500);

    CPodMgr balloon(folder.filePath("Aircraft/ballon.pod"));
    QVERIFY(balloon.findBySuffix("NFO"));
    QVERIFY(!balloon.findBySuffix("SVH"));
    for (const char* archive : {"Airliners/a320.pod", "Airliners/atr72.pod", "TB20.POD", "dr400.pod"}) {
        CPodMgr pod(folder.filePath(QString("Aircraft/") + archive));
        QVERIFY2(pod.findBySuffix("NFO"), archive);
        QVERIFY2(!pod.lineAfter("<make>").trimmed().isEmpty(), archive);
        QVERIFY2(pod.findBySuffix("SVH"), archive);
        numbers.readSvh(&pod);
        QVERIFY2(numbers.speedCruise > 0 && numbers.speedCruise < numbers.speedMax, archive);
    }
}

void TestMakeDemo::tablesHaveAtLeastTheRowsAskedFor()
{
    const QTemporaryDir folder;
    DemoSize size;
    size.airports = 900;
    size.navaids = 1100;
    size.waypoints = 2300;
    size.aircraft = 9;
    QCOMPARE(makeDemoRoot(folder.path(), size), QString());
    QCOMPARE(count(folder.path(), "GEN", "APT"), 900);
    QCOMPARE(count(folder.path(), "GEN", "NAV"), 1100);
    QCOMPARE(count(folder.path(), "WPT", "WPT"), 2300);
    QVERIFY(count(folder.path(), "GEN", "RWY") > 900);
    QCOMPARE(count(folder.path(), "GEN", "APT WHERE ukey = 'LFPO'"), 1);
    QCOMPARE(filesBelow(folder.filePath("Aircraft")).size(), 9);
    CPodMgr invented(folder.filePath("Aircraft/inv0008.pod"));
    QVERIFY(invented.findBySuffix("SVH"));
    CAircraftData numbers;
    numbers.readSvh(&invented);
    QCOMPARE(numbers.acid, QString("F-X008"));
    QVERIFY(numbers.speedCruise > 0);
}

void TestMakeDemo::aFolderNamedFromTheCurrentOne()
{
    const QTemporaryDir folder;
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(folder.path()));
    const QString error = makeDemoRoot("own/root");
    QVERIFY(QDir::setCurrent(before));
    QCOMPARE(error, QString());
    const QDir root(folder.filePath("own/root"));
    QVERIFY(!QFileInfo::exists(root.filePath("Aircraft/own")));
    QVERIFY(QFileInfo::exists(root.filePath("Aircraft/Airliners/atr72.pod")));
    const QSettings settings(root.filePath("Tools/Trajector/trajector.ini"), QSettings::IniFormat);
    QCOMPARE(settings.value("directory/dirWork").toString(), root.filePath("Work"));
}

void TestMakeDemo::theFrenchShareCountsForInventedRows()
{
    const QTemporaryDir own;
    const QTemporaryDir none;
    const QTemporaryDir half;
    QCOMPARE(makeDemoRoot(own.path()), QString());
    DemoSize size;
    size.airports = count(own.path(), "GEN", "APT") + 400;
    size.frenchPercent = 0;
    QCOMPARE(makeDemoRoot(none.path(), size), QString());
    size.frenchPercent = 50;
    QCOMPARE(makeDemoRoot(half.path(), size), QString());
    const int french = count(own.path(), "GEN", "APT WHERE ctry = 'FR'");
    QCOMPARE(count(none.path(), "GEN", "APT WHERE ctry = 'FR'"), french);
    QCOMPARE(count(half.path(), "GEN", "APT WHERE ctry = 'FR'"), french + 200);
}

void TestMakeDemo::aSizeBelowTheDemonstrationChangesNothing()
{
    const QTemporaryDir own;
    const QTemporaryDir small;
    DemoSize size;
    size.airports = size.navaids = size.waypoints = size.aircraft = 1;
    QCOMPARE(makeDemoRoot(own.path()), QString());
    QCOMPARE(makeDemoRoot(small.path(), size), QString());
    QCOMPARE(allRows(small.path()), allRows(own.path()));
}

void TestMakeDemo::twoRunsGiveTheSameRows()
{
    const QTemporaryDir first;
    const QTemporaryDir second;
    DemoSize size;
    size.airports = 400;
    size.navaids = 600;
    size.waypoints = 900;
    size.aircraft = 8;
    size.frenchPercent = 30;
    QCOMPARE(makeDemoRoot(first.path(), size), QString());
    QCOMPARE(makeDemoRoot(second.path(), size), QString());
    QCOMPARE(allRows(first.path()), allRows(second.path()));
    const QStringList files = filesBelow(first.filePath("Aircraft"));
    QCOMPARE(files, filesBelow(second.filePath("Aircraft")));
    for (const QString& file : files)
        QCOMPARE(bytesOf(first.filePath("Aircraft/" + file)), bytesOf(second.filePath("Aircraft/" + file)));
}

void TestMakeDemo::aFolderThatIsNotEmptyIsRefused()
{
    const QTemporaryDir folder;
    QFile other(folder.filePath("AeoZephan.exe"));
    QVERIFY(other.open(QIODevice::WriteOnly));
    other.write("somebody's");
    other.close();
    QCOMPARE(makeDemoRoot(folder.path()), folder.path() + " is not empty");
    QCOMPARE(filesBelow(folder.path()), QStringList{"AeoZephan.exe"});
    QCOMPARE(bytesOf(folder.filePath("AeoZephan.exe")), QByteArray("somebody's"));
}

void TestMakeDemo::aFolderThatCannotBeMadeIsRefused()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath("file"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    QVERIFY(!makeDemoRoot(folder.filePath("file/root")).isEmpty());
}

void TestMakeDemo::theCommandLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("result");
    QTest::newRow("a folder") << QStringList{"ROOT"} << 0;
    QTest::newRow("sizes") << QStringList{"ROOT", "--airports", "200", "--french", "0"} << 0;
    QTest::newRow("nothing") << QStringList{} << 2;
    QTest::newRow("two folders") << QStringList{"ROOT", "other"} << 2;
    QTest::newRow("no number") << QStringList{"ROOT", "--navaids", "many"} << 2;
    QTest::newRow("negative") << QStringList{"ROOT", "--waypoints=-1"} << 2;
    QTest::newRow("more than all") << QStringList{"ROOT", "--french", "101"} << 2;
    QTest::newRow("unknown option") << QStringList{"ROOT", "--speed", "9"} << 1;
}

void TestMakeDemo::theCommandLine()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, result);
    const QTemporaryDir folder;
    arguments.replaceInStrings("ROOT", folder.filePath("root"));
    QProcess process;
    process.setWorkingDirectory(folder.path());
    process.start(QCoreApplication::applicationDirPath() + "/makedemo", arguments);
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), result);
    QCOMPARE(QFileInfo::exists(folder.filePath("root/SQL/GEN.db")), result == 0);
}

QTEST_MAIN(TestMakeDemo)
#include "tst_makedemo.moc"
