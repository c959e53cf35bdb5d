// Reading an update file: which lines do what, what a broken line does, and what the user is told.
#include "updateworld.h"

#include <QAbstractButton>
#include <QLoggingCategory>
#include <QtTest>

namespace {

const QString navKeys = QStringLiteral("SELECT ukey FROM NAV ORDER BY ukey");
const QString emptyDatabaseText = QStringLiteral("La base de données  est inconnue.\n");

/// The values 101, 102, ... of a row.
QByteArray numbers(int count)
{
    QByteArrayList values;
    for (int number = 101; number <= 100 + count; ++number)
        values << QByteArray::number(number);
    return values.join(';');
}

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
    void anEmptyLineEndsTheFileAsAnUnknownDatabase();
    void aBlankLastLineEndsTheFileAsAnUnknownDatabase();
    void semicolonsAtTheEndBindTheSame();
    void aLineEndsAtItsFirstZeroByte();
    void aByteIsACharacter();
    void missingFieldsGoInAsEmptyTexts();
    void aLineWithoutItsFirstFieldsIsHarmless_data();
    void aLineWithoutItsFirstFieldsIsHarmless();
    void anotherActionIsSkippedInSilence();
    void unknownDatabase_data();
    void unknownDatabase();
    void unknownTable_data();
    void unknownTable();
    void aLineOfTheProceduresExportIsRefused();
    void theWaypointsFirstLineIsRefusedAndTheRestNotRead();
    void theRouteTablesRefuseTheirOwnRows_data();
    void theRouteTablesRefuseTheirOwnRows();
    void aPercentSignInAValueIsHarmless();
    void aRowThatFailsIsToldAndTheNextOneFollows();
    void aDatabaseThatIsNotThereIsToldForEachLine();
    void theEndBoxFollowsAlsoWhereEveryRowFailed();
    void eachRowWritesItsStatementToTheLog();
    void errorsOfAnEarlierFileAreForgotten();
    void errorsGatheredInAFileAreShownAtItsEnd();
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
    QVERIFY(world.importToTheEnd(start + numbers(columns) + '\n'));
    const QVector<QStringList> rows = world.rows(file, "SELECT * FROM " + table);
    QCOMPARE(rows.size(), 1);
    QCOMPARE(rows.first().join(';'), QString::fromLatin1(numbers(columns)));
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
    QVERIFY(world.importToTheEnd("TXY;Pave;+;LFPO;1;2;1;0a\n" + navaidLine("ABB1") + "\nWPT;WPT;+;" + numbers(16) +
                                 "\nM3D;SCN;+;" + numbers(3) + "\nOBJ;FNM;+;" + numbers(4) + "\nRTE;BDRY;+;" +
                                 numbers(21) + "\nGEN;COM;+;" + numbers(12) + '\n'));
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

void TestImportLines::anEmptyLineEndsTheFileAsAnUnknownDatabase()
{
    UpdateWorld world;
    world.boxes.expectMessage("Erreur SQL", emptyDatabaseText);
    QVERIFY(!world.import(world.write(navaidLine("A1") + "\n\n" + navaidLine("B1") + '\n')));
    QCOMPARE(world.column(dbfile::gen, navKeys), QString("A1"));
}

void TestImportLines::aBlankLastLineEndsTheFileAsAnUnknownDatabase()
{
    UpdateWorld world;
    world.boxes.expectMessage("Erreur SQL", emptyDatabaseText);
    QVERIFY(!world.import(world.write(navaidLine("A1") + "\r\n \r\n")));
    QCOMPARE(world.column(dbfile::gen, navKeys), QString("A1"));
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

void TestImportLines::aLineWithoutItsFirstFieldsIsHarmless_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QStringList>("boxes");
    QTest::newRow("no table") << QByteArray("GEN") << QStringList{"Erreur SQL"};
    QTest::newRow("no action") << QByteArray("GEN;NAV") << QStringList{"Importation"};
    QTest::newRow("no values") << QByteArray("GEN;NAV;+") << QStringList{"Importation"};
    QTest::newRow("no key column") << QByteArray("GEN;NAV;-") << QStringList{"Attention", "Import", "Importation"};
    QTest::newRow("no key") << QByteArray("GEN;NAV;-;ukey") << QStringList{"Attention", "Import", "Importation"};
    QTest::newRow("a blob's field only") << QByteArray("TXY;Node;+") << QStringList{"Importation"};
}

void TestImportLines::aLineWithoutItsFirstFieldsIsHarmless()
{
    QFETCH(QByteArray, line);
    QFETCH(QStringList, boxes);
    UpdateWorld world;
    world.sandbox.addNavaid();
    for (const QString& title : boxes)
        world.boxes.expectAnyMessage(title == "Attention" ? QMessageBox::Cancel : QMessageBox::Ok);
    QCOMPARE(world.import(world.write(line)), boxes.last() == "Importation");
    QCOMPARE(world.titles(), boxes);
    QVERIFY(world.column(dbfile::gen, navKeys).contains("RBT"));
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

void TestImportLines::unknownDatabase_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("text");
    QTest::newRow("other name") << QByteArray("NAV;NAV;+;1;2") << "La base de données NAV est inconnue.\nNAV;NAV;+;1;2";
    QTest::newRow("small letters") << QByteArray("gen;NAV;+;1") << "La base de données gen est inconnue.\ngen;NAV;+;1";
    QTest::newRow("the file's prefix") << QByteArray("ROUTE;BDRY;+;1")
                                       << "La base de données ROUTE est inconnue.\nROUTE;BDRY;+;1";
    QTest::newRow("no semicolon") << QByteArray("hello") << "La base de données hello est inconnue.\nhello";
    QTest::newRow("places in it") << QByteArray("%2;%1;%3") << "La base de données %2 est inconnue.\n%2;%1;%3";
    QTest::newRow("byte order mark") << QByteArray("\xef\xbb\xbfGEN;NAV")
                                     << QString("La base de données \u00ef\u00bb\u00bfGEN est inconnue.\n"
                                                "\u00ef\u00bb\u00bfGEN;NAV");
}

void TestImportLines::unknownDatabase()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, text);
    UpdateWorld world;
    world.boxes.expectMessage("Erreur SQL", text);
    QVERIFY(!world.import(world.write(navaidLine("A1") + '\n' + line + "\r\n" + navaidLine("B1") + '\n')));
    QCOMPARE(world.boxes.seen().first().icon, QMessageBox::Warning);
    QCOMPARE(world.column(dbfile::gen, navKeys), QString("A1"));
    const QStringList warnings = world.logged(QtWarningMsg);
    QCOMPARE(warnings.size(), 1);
    QVERIFY2(warnings.first().startsWith("CIODataBase::importGEN \"La base de données "), qPrintable(warnings.first()));
}

void TestImportLines::unknownTable_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("label");
    const auto refused = [](const QString& database, const QString& rest) {
        QTest::newRow(qPrintable(database))
            << (database + rest).toLatin1()
            << "La table " + database + " est inconnue dans la base de données " + database + rest + ".\n%3"
            << "CIODataBase::importDB " + database;
    };
    refused("GEN", ";nav;+;1");
    refused("WPT", ";NAV;-;ukey;A");
    refused("M3D", ";OBJ;+;%1%2");
    refused("OBJ", ";Pave;*");
    refused("TXY", ";;");
    refused("RTE", ";WPT;+;");
}

void TestImportLines::unknownTable()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, text);
    QFETCH(QString, label);
    UpdateWorld world;
    world.boxes.expectMessage("Erreur SQL", text);
    QVERIFY(!world.import(world.write(navaidLine("A1") + '\n' + line + '\n' + navaidLine("B1") + '\n')));
    QCOMPARE(world.boxes.seen().first().icon, QMessageBox::Warning);
    QCOMPARE(world.column(dbfile::gen, navKeys), QString("A1"));
    const QStringList warnings = world.logged(QtWarningMsg);
    QCOMPARE(warnings.size(), 1);
    QVERIFY2(warnings.first().startsWith(label + " \"La table "), qPrintable(warnings.first()));
}

void TestImportLines::aLineOfTheProceduresExportIsRefused()
{
    UpdateWorld world;
    world.sandbox.addProcedureLeg();
    world.boxes.expectMessage("Erreur SQL", "La base de données ROUTE est inconnue.\nROUTE;SIDSTAR;-;strm;BAMES1A");
    QVERIFY(!world.import(world.write("ROUTE;SIDSTAR;-;strm;BAMES1A\nRTE;SIDSTAR;-;strm;BAMES1A\n")));
    QCOMPARE(world.column(dbfile::route, "SELECT strm FROM SIDSTAR"), QString("BAMES1A"));
}

void TestImportLines::theWaypointsFirstLineIsRefusedAndTheRestNotRead()
{
    UpdateWorld world;
    // The first value of the sentence is the database, the second the line, and the third place stays.
    world.boxes.expectMessage("Erreur SQL", "La table GEN est inconnue dans la base de données GEN;WPT;-;ukey;;.\n%3");
    QVERIFY(!world.import(world.write("GEN;WPT;-;ukey;;\nWPT;WPT;+;" + numbers(16) + '\n')));
    QCOMPARE(world.column(dbfile::wpt, "SELECT ukey FROM WPT"), QString());
    // Under the reader's own name the row goes through.
    QVERIFY(world.importToTheEnd("WPT;WPT;+;" + numbers(16) + '\n'));
    QCOMPARE(world.column(dbfile::wpt, "SELECT ukey FROM WPT"), QString("103"));
}

void TestImportLines::theRouteTablesRefuseTheirOwnRows_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("table");
    QTest::newRow("ATSROUTE, 26 values") << QByteArray("RTE;ATSROUTE;+;" + numbers(26)) << "ATSROUTE";
    QTest::newRow("ATSROUTE, 25 values") << QByteArray("RTE;ATSROUTE;+;" + numbers(25)) << "ATSROUTE";
    QTest::newRow("SIDSTAR, 11 values") << QByteArray("RTE;SIDSTAR;+;" + numbers(11)) << "SIDSTAR";
    QTest::newRow("SIDSTAR, 10 values") << QByteArray("RTE;SIDSTAR;+;" + numbers(10)) << "SIDSTAR";
}

void TestImportLines::theRouteTablesRefuseTheirOwnRows()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, table);
    UpdateWorld world;
    world.expectSqlError();
    QVERIFY(world.importToTheEnd(line + '\n' + navaidLine("B1") + '\n'));
    QVERIFY2(world.sqlErrors().value(0).startsWith("REPLACE INTO " + table + " ( "),
             qPrintable(world.titles().join('|')));
    QCOMPARE(world.column(dbfile::route, "SELECT count(*) FROM " + table), QString("0"));
    QCOMPARE(world.column(dbfile::gen, navKeys), QString("B1"));
}

void TestImportLines::aPercentSignInAValueIsHarmless()
{
    UpdateWorld world;
    QVERIFY(world.importToTheEnd("OBJ;FNM;+;%1;100%;%2 %L1;'\"\n"));
    QCOMPARE(world.rows(dbfile::obj, "SELECT * FROM FNM"), (QVector<QStringList>{{"%1", "100%", "%2 %L1", "'\""}}));
}

void TestImportLines::aRowThatFailsIsToldAndTheNextOneFollows()
{
    UpdateWorld world;
    world.sandbox.sql(dbfile::gen, "DROP TABLE COM");
    world.expectSqlError();
    QVERIFY(world.importToTheEnd(navaidLine("A1") + "\nGEN;COM;+;" + numbers(12) + '\n' + navaidLine("B1") + '\n'));
    QCOMPARE(world.titles(), (QStringList{"SQL Error", "Importation"}));
    QVERIFY(world.sqlErrors().value(0).startsWith(
        "REPLACE INTO COM ( tile, ckey, capt, cnam, ctyp, frq1, frq2, frq3, frq4, frq5, clat, clon)VALUES (:tile,:ckey,"
        ":capt,:cnam,:ctyp,:frq1,:frq2,:frq3,:frq4,:frq5,:clat,:clon)"));
    QCOMPARE(world.column(dbfile::gen, navKeys), QString("A1 B1"));
}

void TestImportLines::aDatabaseThatIsNotThereIsToldForEachLine()
{
    UpdateWorld world;
    world.variables->dbTXY.clear();
    world.expectSqlError();
    world.expectSqlError();
    world.expectSqlError();
    QVERIFY(world.importToTheEnd("TXY;Pave;+;LFPO;1;2;1;0a\nTXY;Light;+;LFPO\nTXY;Pave;-;aKey;LFPO\n" +
                                 navaidLine("B1") + '\n'));
    QCOMPARE(world.sqlErrors().size(), 3);
    QCOMPARE(world.column(dbfile::gen, navKeys), QString("B1"));
}

void TestImportLines::theEndBoxFollowsAlsoWhereEveryRowFailed()
{
    UpdateWorld world;
    world.sandbox.sql(dbfile::gen, "DROP TABLE NAV");
    world.expectSqlError();
    world.expectSqlError();
    QVERIFY(world.importToTheEnd(navaidLine("A1") + '\n' + navaidLine("B1") + '\n'));
    QCOMPARE(world.titles(), (QStringList{"SQL Error", "SQL Error", "Importation"}));
    QCOMPARE(world.boxes.seen().last().icon, QMessageBox::Information);
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

void TestImportLines::errorsOfAnEarlierFileAreForgotten()
{
    UpdateWorld world;
    world.exchange.errorList << "old";
    QVERIFY(world.importToTheEnd(navaidLine("A1")));
    QVERIFY(world.exchange.errorList.isEmpty());
}

void TestImportLines::errorsGatheredInAFileAreShownAtItsEnd()
{
    UpdateWorld world;
    // Nothing in the program gathers any; the box of the question is a moment to do it.
    world.boxes.expectDialog("QMessageBox", [&world](QDialog* dialog) {
        world.exchange.errorList << "one"
                                 << "two";
        qobject_cast<QMessageBox*>(dialog)->button(QMessageBox::Cancel)->click();
    });
    world.boxes.expectMessage("Import", "L'import a été annulé.");
    world.boxes.expectMessage("Erreur SQL", "Il y a eu des erreurs à l'importation\none\ntwo");
    QVERIFY(!world.import(world.write("GEN;NAV;-;ukey;\n" + navaidLine("A1"))));
    QCOMPARE(world.boxes.seen().last().icon, QMessageBox::Warning);
    QCOMPARE(world.logged(QtWarningMsg), QStringList{"\"Il y a eu des erreurs à l'importation\\none\\ntwo\""});
    QCOMPARE(world.column(dbfile::gen, navKeys), QString("A1"));
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
