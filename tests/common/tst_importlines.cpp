// Reading an update file: what its lines write, and how bytes become values.
#include "updateworld.h"

#include <QLoggingCategory>
#include <QtTest>

namespace {

const QString navKeys = QStringLiteral("SELECT ukey FROM NAV ORDER BY ukey");

} // namespace

class TestImportLines : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyTableTakesItsRow_data();
    void everyTableTakesItsRow();
    void aNavaidGoesInColumnByColumn();
    void aRowReplacesTheOneOfTheSameKey();
    void allSixDatabasesMayStandInOneFile();
    void lineEnds_data();
    void lineEnds();
    void anEmptyFileIsImported();
    void semicolonsAtTheEndBindTheSame();
    void aLineEndsAtItsFirstZeroByte();
    void aByteIsACharacter();
    void missingFieldsGoInAsEmptyTexts();
    void anotherActionIsSkippedInSilence();
    void aPercentSignInAValueIsHarmless();
    void eachRowWritesItsStatementToTheLog();
    void aFileOfAHundredThousandLines();
    void bindFieldsDoesNothingBelowTheFirstValue();
    void addAllBindsUpToItsLastFieldOnly();
};

void TestImportLines::initTestCase()
{
    // Thousands of lines of the log are not wanted on the screen; what the tests look at they switch on.
    QLoggingCategory::setFilterRules("*.debug=false");
}

void TestImportLines::everyTableTakesItsRow_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("start");
    QTest::addColumn<QString>("table");
    QTest::addColumn<int>("columns");
    const auto table = [](const QString& file, const char* database, const char* name, int columns) {
        const QByteArray start = QByteArray(database) + ';' + name + ";+;";
        QTest::newRow(start.constData()) << file << start << QString(name) << columns;
    };
    table(dbfile::gen, "GEN", "APT", 50);
    table(dbfile::gen, "GEN", "COM", 12);
    table(dbfile::gen, "GEN", "RWY", 71);
    table(dbfile::gen, "GEN", "ILS", 14);
    table(dbfile::gen, "GEN", "NAV", 17);
    table(dbfile::wpt, "WPT", "WPT", 16);
    table(dbfile::route, "RTE", "BDRY", 21);
    table(dbfile::m3d, "M3D", "SCN", 3);
    table(dbfile::obj, "OBJ", "FNM", 4);
    table(dbfile::obj, "OBJ", "OBJ", 21);
    table(dbfile::obj, "OBJ", "Light", 12);
    table(dbfile::txy, "TXY", "Light", 8);
}

void TestImportLines::everyTableTakesItsRow()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, start);
    QFETCH(QString, table);
    QFETCH(int, columns);
    UpdateWorld world;
    QVERIFY(world.importToTheEnd(start + numberedValues(columns) + '\n'));
    const QVector<QStringList> rows = world.rows(file, "SELECT * FROM " + table);
    QCOMPARE(rows.size(), 1);
    QCOMPARE(rows.first().join(';'), QString::fromLatin1(numberedValues(columns)));
}

void TestImportLines::aNavaidGoesInColumnByColumn()
{
    UpdateWorld world;
    QVERIFY(world.importToTheEnd(navaidLine("ABB1") + '\n'));
    const QVariantList row = world.sandbox.sql(dbfile::gen, "SELECT * FROM NAV").first();
    // The columns' own types decide what a text becomes.
    const QVariantList expected{65702LL, "ABB1", "ABB", "ABBEVILLE", 108.45,  -1.5,  0.0,   "FR", "",
                                6LL,     2LL,    1LL,   180485.5,    6667.25, 220LL, 100.0, 130.0};
    QCOMPARE(row, expected);
}

void TestImportLines::aRowReplacesTheOneOfTheSameKey()
{
    UpdateWorld world;
    world.sandbox.addNavaid({{"ukey", "ABB1"}, {"name", "OLD"}});
    world.sandbox.addNavaid({{"ukey", "CGN1"}, {"name", "OTHER"}});
    QVERIFY(world.importToTheEnd(navaidLine("ABB1") + '\n'));
    QCOMPARE(world.column(dbfile::gen, "SELECT name FROM NAV ORDER BY ukey"), QString("ABBEVILLE OTHER"));
}

void TestImportLines::allSixDatabasesMayStandInOneFile()
{
    UpdateWorld world;
    QVERIFY(world.importToTheEnd("TXY;Pave;+;LFPO;1;2;1;0a\n" + navaidLine("ABB1") + "\nWPT;WPT;+;" +
                                 numberedValues(16) + "\nM3D;SCN;+;" + numberedValues(3) + "\nOBJ;FNM;+;" +
                                 numberedValues(4) + "\nRTE;BDRY;+;" + numberedValues(21) + "\nGEN;COM;+;" +
                                 numberedValues(12) + '\n'));
    QCOMPARE(world.column(dbfile::txy, "SELECT aKey FROM Pave"), QString("LFPO"));
    QCOMPARE(world.column(dbfile::gen, navKeys), QString("ABB1"));
    QCOMPARE(world.column(dbfile::wpt, "SELECT ukey FROM WPT"), QString("103"));
    QCOMPARE(world.column(dbfile::m3d, "SELECT key FROM SCN"), QString("101"));
    QCOMPARE(world.column(dbfile::obj, "SELECT scnno FROM FNM"), QString("104"));
    QCOMPARE(world.column(dbfile::route, "SELECT bkey FROM BDRY"), QString("102"));
    QCOMPARE(world.column(dbfile::gen, "SELECT ckey FROM COM"), QString("102"));
}

void TestImportLines::lineEnds_data()
{
    QTest::addColumn<QByteArray>("lineEnd");
    QTest::addColumn<QByteArray>("lastLineEnd");
    QTest::newRow("LF") << QByteArray("\n") << QByteArray("\n");
    QTest::newRow("CR LF") << QByteArray("\r\n") << QByteArray("\r\n");
    QTest::newRow("none at the end") << QByteArray("\n") << QByteArray();
    QTest::newRow("CR LF and none at the end") << QByteArray("\r\n") << QByteArray();
    QTest::newRow("mixed, blanks around") << QByteArray(" \t\r\n ") << QByteArray(" \n");
}

void TestImportLines::lineEnds()
{
    QFETCH(QByteArray, lineEnd);
    QFETCH(QByteArray, lastLineEnd);
    UpdateWorld world;
    QVERIFY(world.importToTheEnd(navaidLine("A1") + lineEnd + navaidLine("B1") + lastLineEnd));
    QCOMPARE(world.rows(dbfile::gen, "SELECT ukey, nrgn FROM NAV ORDER BY ukey"),
             (QVector<QStringList>{{"A1", "130"}, {"B1", "130"}}));
}

void TestImportLines::anEmptyFileIsImported()
{
    UpdateWorld world;
    QVERIFY(world.importToTheEnd(""));
}

void TestImportLines::semicolonsAtTheEndBindTheSame()
{
    UpdateWorld world;
    QVERIFY(world.importToTheEnd(navaidLine("A1") + '\n' + navaidLine("B1") + ";\n" + navaidLine("C1") +
                                 ";;;more;than;asked\n"));
    QCOMPARE(world.rows(dbfile::gen, "SELECT DISTINCT tile, nalt, npow, nrgn FROM NAV"),
             (QVector<QStringList>{{"65702", "220", "100", "130"}}));
    QCOMPARE(world.column(dbfile::gen, navKeys), QString("A1 B1 C1"));
}

void TestImportLines::aLineEndsAtItsFirstZeroByte()
{
    UpdateWorld world;
    QVERIFY(world.importToTheEnd(QByteArray("OBJ;FNM;+;key;fi\0le;scene;5\n", 28) + navaidLine("B1") + '\n'));
    QCOMPARE(world.rows(dbfile::obj, "SELECT * FROM FNM"), (QVector<QStringList>{{"key", "fi", "", ""}}));
    QCOMPARE(world.column(dbfile::gen, navKeys), QString("B1"));
}

void TestImportLines::aByteIsACharacter()
{
    UpdateWorld world;
    QVERIFY(world.importToTheEnd("OBJ;FNM;+;1;\xc9;s;1\nOBJ;FNM;+;2;\xc3\x89;s;2\n"));
    // The Latin-1 letter arrives, the one in UTF-8 as its two bytes.
    QCOMPARE(world.sandbox.sqlValue(dbfile::obj, "SELECT file FROM FNM WHERE key = '1'").toString(),
             QString::fromUtf8("\xc3\x89"));
    QCOMPARE(world.sandbox.sqlValue(dbfile::obj, "SELECT hex(file) FROM FNM WHERE key = '2'").toString(),
             QString("C383C289"));
}

void TestImportLines::missingFieldsGoInAsEmptyTexts()
{
    UpdateWorld world;
    QVERIFY(world.importToTheEnd("OBJ;FNM;+;key\nOBJ;FNM;+\nM3D;MOD;+;TOWER.SMF\n"));
    QCOMPARE(world.rows(dbfile::obj, "SELECT typeof(key), key, typeof(file), file, typeof(scnno) FROM FNM"),
             (QVector<QStringList>{{"text", "key", "text", "", "text"}, {"text", "", "text", "", "text"}}));
    QCOMPARE(world.rows(dbfile::m3d, "SELECT typeof(name), typeof(ntex), typeof(vtab), length(vtab), typeof(xtab), "
                                     "length(xtab) FROM MOD"),
             (QVector<QStringList>{{"text", "text", "blob", "0", "blob", "0"}}));
}

void TestImportLines::anotherActionIsSkippedInSilence()
{
    UpdateWorld world;
    QByteArray lines;
    for (const char* action : {"*", "", " +", "+ ", "++", "--", "plus"})
        lines += navaidLine("A1").replace("NAV;+;", QByteArray("NAV;") + action + ';') + '\n';
    QVERIFY(world.importToTheEnd(lines + navaidLine("B1")));
    QCOMPARE(world.column(dbfile::gen, navKeys), QString("B1"));
}

void TestImportLines::aPercentSignInAValueIsHarmless()
{
    UpdateWorld world;
    QVERIFY(world.importToTheEnd("OBJ;FNM;+;%1;100%;%2 %L1;'\"\n"));
    QCOMPARE(world.rows(dbfile::obj, "SELECT * FROM FNM"), (QVector<QStringList>{{"%1", "100%", "%2 %L1", "'\""}}));
}

void TestImportLines::eachRowWritesItsStatementToTheLog()
{
    UpdateWorld world;
    QLoggingCategory::setFilterRules(QString());
    const bool done = world.importToTheEnd("M3D;SCN;+;k;1;2\nTXY;Pave;+;LFPO;1;2;1;0a\n");
    QLoggingCategory::setFilterRules("*.debug=false");
    QVERIFY(done);
    QCOMPARE(world.logged(QtDebugMsg),
             (QStringList{"\"REPLACE INTO SCN ( key, Type, sType)VALUES (:key,:Type,:sType);\"",
                          "\"REPLACE INTO Pave ( aKey, Type, aUse, Nbvt, vTab)VALUES "
                          "(:aKey,:Type,:aUse,:Nbvt,:vTab)\""}));
}

void TestImportLines::aFileOfAHundredThousandLines()
{
    UpdateWorld world;
    QByteArray lines;
    // Every tenth line writes a row; the others have an action that is passed over.
    for (int number = 0; number < 100000; ++number)
        lines += number % 10 == 9 ? navaidLine("K" + QByteArray::number(number)) + '\n' : "GEN;NAV;=;ukey;x\n";
    QVERIFY(world.importToTheEnd(lines));
    QCOMPARE(world.rows(dbfile::gen, "SELECT count(*), count(DISTINCT ukey) FROM NAV"),
             (QVector<QStringList>{{"10000", "10000"}}));
    QCOMPARE(world.column(dbfile::gen, "SELECT nrgn FROM NAV WHERE ukey = 'K99999'"), QString("130"));
}

void TestImportLines::bindFieldsDoesNothingBelowTheFirstValue()
{
    UpdateWorld world;
    QSqlQuery query(QSqlDatabase::database(dbfile::obj));
    query.prepare("SELECT ?");
    const QStringList fields{"a", "b", "c", "d"};
    world.exchange.bindFields(query, fields, 2);
    QVERIFY(query.boundValues().isEmpty());
    world.exchange.bindFields(query, fields, 3);
    QCOMPARE(query.boundValues().values(), QVariantList{"d"});
}

void TestImportLines::addAllBindsUpToItsLastFieldOnly()
{
    UpdateWorld world;
    QSqlQuery query(QSqlDatabase::database(dbfile::obj));
    query.prepare("INSERT INTO FNM (key, file) VALUES (?, ?)");
    world.exchange.addAll(query, {"OBJ", "FNM", "+", "k", "f", "s", "n"}, 4);
    QCOMPARE(world.rows(dbfile::obj, "SELECT * FROM FNM"), (QVector<QStringList>{{"k", "f", "", ""}}));
    query.prepare("DELETE FROM FNM");
    world.exchange.addAll(query, {"OBJ", "FNM", "+", "k"}, 2);
    QCOMPARE(world.column(dbfile::obj, "SELECT count(*) FROM FNM"), QString("0"));
}

QTEST_MAIN(TestImportLines)
#include "tst_importlines.moc"
