// The simulator's folders and the search for its databases.
#include "cglobalvar.h"

#include "boxresponder.h"
#include "messagelog.h"
#include "sandbox.h"

#include <QTextCodec>
#include <QtTest>

#include <sys/stat.h>

namespace {

/// The base class alone, with no settings of a program.
class Global : public CGlobalVar
{
public:
    explicit Global(const Sandbox& sandbox)
    {
        dirZephan.setPath(sandbox.root());
    }
    Global() = default;
    void saveSettings() override {}
    void loadSettings() override {}
};

void writeIni(const Sandbox& sandbox, const QByteArray& sqlGroup)
{
    sandbox.writeFile("system/AeoZephan.ini", "[SQL]\n" + sqlGroup);
}

} // namespace

class TestCGlobalVar : public QObject
{
    Q_OBJECT

private slots:
    void startsEmpty()
    {
        Global global;
        for (const QString& name :
             {global.dbGEN, global.dbM3D, global.dbOBJ, global.dbTXY, global.dbWPT, global.dbRTE, global.dbOSM})
            QVERIFY(name.isEmpty());
        for (const QDir& folder : {global.dirZephan, global.dirWork, global.dirGEN, global.dirOSM})
            QCOMPARE(folder.path(), QString("."));
        QVERIFY(global.sqlMgr);
        QVERIFY(QSqlDatabase::connectionNames().isEmpty());
    }

    void aMissingIniFileGivesTheDefaults()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        sandbox.removeFile("system/AeoZephan.ini");
        Global global(sandbox);
        MessageLog log;
        global.initDBPath();
        // The two ".." stay in the stored path.
        const QString path = sandbox.root() + "/../../SQL";
        for (const QDir& folder :
             {global.dirGEN, global.dirM3D, global.dirOBJ, global.dirTXY, global.dirWPT, global.dirRTE, global.dirOSM})
            QCOMPARE(folder.path(), path);
        QStringList expected{"AeoZephan.ini settings"};
        for (const char* label : {"GENDB", "M3DDB", "OBJDB", "TXYDB", "WPTDB", "RTEDB", "OSMDB"})
            expected << QString("%1 \"%2\"").arg(label, path);
        QCOMPARE(log.messages(), expected);
    }

    void eachKeyHasItsFolder()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        writeIni(sandbox, "GENDB=a\nM3DDB=b\nOBJDB=c\nTXYDB=d\nWPTDB=e\nRTEDB=f\nOSMDB=g\n");
        Global global(sandbox);
        global.initDBPath();
        QCOMPARE(global.dirGEN.path(), sandbox.path("a"));
        QCOMPARE(global.dirM3D.path(), sandbox.path("b"));
        QCOMPARE(global.dirOBJ.path(), sandbox.path("c"));
        QCOMPARE(global.dirTXY.path(), sandbox.path("d"));
        QCOMPARE(global.dirWPT.path(), sandbox.path("e"));
        QCOMPARE(global.dirRTE.path(), sandbox.path("f"));
        QCOMPARE(global.dirOSM.path(), sandbox.path("g"));
    }

    void aPackedValueAmongTheFoldersMakesTheFileCountAsMissing()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        writeIni(sandbox, "GENDB=a\nM3DDB=@Variant(\\0\\0\\0\\t\\xff\\xff\\xff\\xff)\n");
        Global global(sandbox);
        global.initDBPath();
        QCOMPARE(global.dirGEN.path(), sandbox.path("../../SQL"));
        QCOMPARE(global.dirM3D.path(), sandbox.path("../../SQL"));
    }

    void foldersOfAFileSavedAsUnicode()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        const QString text = QString::fromUtf8("[SQL]\r\nGENDB=/Données\r\nM3DDB=/Ł1\r\n");
        sandbox.writeFile("system/AeoZephan.ini", QTextCodec::codecForName("UTF-16")->fromUnicode(text));
        Global global(sandbox);
        global.initDBPath();
        QCOMPARE(global.dirGEN.path(), QString::fromUtf8("/Données"));
        QCOMPARE(global.dirM3D.path(), QString::fromUtf8("/Ł1"));
    }

    void aPackedValueInAFileSavedAsUnicodeMakesItCountAsMissing()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        const QString text("[SQL]\r\nGENDB=a\r\nM3DDB=@Variant(\\0\\0\\0\\t\\xff\\xff\\xff\\xff)\r\n");
        sandbox.writeFile("system/AeoZephan.ini", QTextCodec::codecForName("UTF-16")->fromUnicode(text));
        Global global(sandbox);
        global.initDBPath();
        QCOMPARE(global.dirGEN.path(), sandbox.path("../../SQL"));
    }

    void aPackedValueOfAnotherSectionDoesNoHarm()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        writeIni(sandbox, "GENDB=a\n[UI]\nsize=@Variant(\\0\\0\\0\\t\\xff\\xff\\xff\\xff)\n");
        Global global(sandbox);
        global.initDBPath();
        QCOMPARE(global.dirGEN.path(), sandbox.path("a"));
    }

    void aFileOfMoreThanSettingsCountsAsMissing()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        writeIni(sandbox, "GENDB=a\n");
        QVERIFY(QFile::resize(sandbox.path("system/AeoZephan.ini"), 1024LL * 1024 * 1024)); // of zeros, without a page
        Global global(sandbox);
        global.initDBPath();
        QCOMPARE(global.dirGEN.path(), sandbox.path("../../SQL"));
    }

    void whatIsNoFileCountsAsMissing()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        const QString path = sandbox.path("system/AeoZephan.ini");
        sandbox.removeFile("system/AeoZephan.ini");
        QCOMPARE(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
        Global global(sandbox);
        global.initDBPath(); // waits for nobody
        QCOMPARE(global.dirGEN.path(), sandbox.path("../../SQL"));
        QVERIFY(QFile::remove(path));
        QVERIFY(QFile::link("/dev/zero", path));
        global.initDBPath();
        QCOMPARE(global.dirGEN.path(), sandbox.path("../../SQL"));
    }

    void aFileThatWantsACopyCountsAsMissingWhereNoneCanBeMade()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        const QByteArray place = qgetenv("TMPDIR");
        qputenv("TMPDIR", "/proc"); // takes no file, of root neither
        const QString text("[SQL]\nGENDB=a\n");
        sandbox.writeFile("system/AeoZephan.ini", QTextCodec::codecForName("UTF-16")->fromUnicode(text));
        Global global(sandbox);
        global.initDBPath();
        place.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", place);
        QCOMPARE(global.dirGEN.path(), sandbox.path("../../SQL"));
    }

    void folderOfAKey_data()
    {
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<QString>("path");
        QTest::newRow("a drive letter is absolute") << QByteArray("D:/Data") << "D:/Data";
        QTest::newRow("a digit is no drive letter") << QByteArray("1:/Data") << "%1/1:/Data";
        QTest::newRow("absolute") << QByteArray("/srv/../data") << "/srv/../data";
        QTest::newRow("relative is cleaned") << QByteArray("data/../sql") << "%1/sql";
        QTest::newRow("relative upwards") << QByteArray("../SQL/") << "%1/../SQL";
        QTest::newRow("backslashes of the simulator's system") << QByteArray("data\\\\..\\\\sql") << "%1/sql";
        QTest::newRow("empty is the root") << QByteArray("") << "%1";
    }

    void folderOfAKey()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        QFETCH(QByteArray, value);
        QFETCH(QString, path);
        writeIni(sandbox, "GENDB=" + value + '\n');
        Global global(sandbox);
        global.initDBPath();
        QCOMPARE(global.dirGEN.path(), path.replace("%1", sandbox.root()));
    }

    void findsTheSixDatabases()
    {
        Sandbox sandbox;
        Global global(sandbox);
        QVERIFY(global.init());
        QCOMPARE(global.dbGEN, QString("GEN.db"));
        QCOMPARE(global.dbM3D, QString("M3D.db"));
        QCOMPARE(global.dbOBJ, QString("OBJ.db"));
        QCOMPARE(global.dbTXY, QString("TXY.db"));
        QCOMPARE(global.dbWPT, QString("WPT.db"));
        QCOMPARE(global.dbOSM, QString());
        for (const QString& name : {global.dbGEN, global.dbM3D, global.dbOBJ, global.dbTXY, global.dbWPT, global.dbRTE})
            QVERIFY(QSqlDatabase::database(name, false).isOpen());
    }

    void theRouteDatabaseGoesByRoute()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        writeIni(sandbox, "RTEDB=routes\n");
        sandbox.writeFile("routes/RTE_world.db", "");
        sandbox.writeFile("routes/Route_world.db", "");
        Global global(sandbox);
        QVERIFY(global.init());
        QCOMPARE(global.dbRTE, QString("Route_world.db"));
    }

    void theLastFileInNameOrderStays()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        sandbox.createDatabase("GEN_a.db", 0);
        sandbox.createDatabase("GEN_b.db", 0);
        Global global(sandbox);
        QVERIFY(global.init());
        QCOMPARE(global.dbGEN, QString("GEN_b.db"));
        QVERIFY(QSqlDatabase::database("GEN_a.db", false).isOpen());
        QVERIFY(QSqlDatabase::database("GEN_b.db", false).isOpen());
    }

    void aFileThatIsNotAdoptedLeavesTheOneBefore()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        sandbox.createDatabase("GEN_a.db", 0);
        sandbox.writeFile("SQL/GEN_b.db",
                          "this is a text and no database, and long enough to be told from an empty one");
        Global global(sandbox);
        QVERIFY(global.init());
        QCOMPARE(global.dbGEN, QString("GEN_a.db"));
    }

    void namesThatQualify_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<bool>("qualifies");
        QTest::newRow("prefix") << "GEN.db" << true;
        QTest::newRow("prefix in small letters") << "gen_c.db" << true;
        QTest::newRow("prefix in the middle") << "my_GEN.db" << false;
        QTest::newRow("suffix in capitals") << "gen.DB" << false;
        QTest::newRow("base name up to the first dot") << "GENERAL.backup.db" << true;
        QTest::newRow("prefix behind the first dot") << "backup.GEN.db" << false;
        QTest::newRow("another suffix") << "GEN.db.bak" << false;
    }

    void namesThatQualify()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        QFETCH(QString, file);
        QFETCH(bool, qualifies);
        sandbox.writeFile("SQL/" + file, "");
        Global global(sandbox);
        BoxResponder responder;
        QVERIFY(global.init());
        QCOMPARE(global.dbGEN, qualifies ? file : QString());
        QCOMPARE(QSqlDatabase::contains(file), qualifies);
    }

    void aFolderNamedLikeADatabaseIsNoFile()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        sandbox.writeFile("SQL/GEN.db/inside.txt", "");
        Global global(sandbox);
        QVERIFY(global.init());
        QCOMPARE(global.dbGEN, QString());
    }

    void nothingFoundIsNoFailure()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        writeIni(sandbox, "GENDB=nowhere\n");
        Global global(sandbox);
        global.dbGEN = "left from before";
        BoxResponder responder;
        QVERIFY(global.init());
        QCOMPARE(global.dbGEN, QString());
        QCOMPARE(global.dbRTE, QString());
    }

    void openStreetMapIsNotSearched()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        sandbox.writeFile("SQL/OSM.db", "");
        Global global(sandbox);
        QVERIFY(global.init());
        QCOMPARE(global.dbOSM, QString());
        QVERIFY(global.dirGEN.nameFilters() == QStringList{"*.db"});
        QVERIFY(global.dirOSM.nameFilters() != QStringList{"*.db"});
    }

    void initBuildsTheTileTables()
    {
        Sandbox sandbox(Sandbox::Databases::None);
        Global global(sandbox);
        QVERIFY(global.init());
        QCOMPARE(global.getTileKey(172800.0, 7200.0), 65702);
        QCOMPARE(global.getVerticalBand(0.0), 127);
        QCOMPARE(global.GetVerticalQgtNumber(172800.0), 333);
        QVERIFY(global.isAboveBand(172800.0, 166));
        QCOMPARE(global.getHalfColumn(7200.0), 2);
        QCOMPARE(global.getColumnHigh(331776000.0), 1);
        QCOMPARE(global.countBandsUp(100), 12);
        QCOMPARE(global.countBandsDown(63), 4);
        QCOMPARE(global.tileKeyText("65702"), QString("1 166"));
        QCOMPARE(global.latToText(175530.6, true), QString("48 45' 30.60\" N"));
        QCOMPARE(global.lonToText(-3600.0, true), QString("001 00' 00.00\" W"));
        // The detail table is built with no range.
        QCOMPARE(global.tileGrid.details[0].rangeNm, 0.0F);
        QCOMPARE(global.tileGrid.details[1].count, short(0));
    }
};

QTEST_MAIN(TestCGlobalVar)
#include "tst_cglobalvar.moc"
