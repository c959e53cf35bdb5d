// Lines of an update file that delete: rows with a key, and the whole table that stays.
#include "updateworld.h"

#include <QtTest>

namespace {

const QString navKeys = QStringLiteral("SELECT ukey FROM NAV ORDER BY ukey");
const QString wholeTable = QStringLiteral("Vous allez effacer la totalité des données de la table NAV.\n"
                                          "Voulez vous continuer ?");

} // namespace

class TestImportDeletes : public QObject
{
    Q_OBJECT

private slots:
    void deletesTheRowsWithAKey();
    void deletesInEachDatabase_data();
    void deletesInEachDatabase();
    void blanksAroundTheNamesAreTakenAway();
    void theStatementGoesToTheLog();
    void aKeyThatIsNotThereIsNoFailure();
    void aPercentSignInAKeyIsHarmless();
    void aDoubleQuoteInAKeyBreaksTheStatement();
    void aKeyThatGoesOnAsSqlIsRefused_data();
    void aKeyThatGoesOnAsSqlIsRefused();
    void aKeyNamedLikeAnotherColumnTakesNoOtherRow();
    void aKeyNamedLikeAColumnIsDeletedWhereOnlyItsRowGoes();
    void aColumnBehindItsTablesNameIsAColumn();
    void aColumnWithASqlWordForItsNameIsAColumn();
    void doubledQuotesInAKeyStandForOne();
    void aWrongColumnIsTold();
    void anAcceptedWholeTableMeetsTheStrayParenthesis();
    void aCancelledWholeTableGoesOnWithTheNextLine();
    void aKeyOfBlanksIsTheWholeTable();
    void aClosedQuestionIsACancelledOne();
};

void TestImportDeletes::deletesTheRowsWithAKey()
{
    UpdateWorld world;
    world.sandbox.addNavaid({{"ukey", "A1"}, {"iden", "X"}});
    world.sandbox.addNavaid({{"ukey", "B1"}, {"iden", "X"}});
    world.sandbox.addNavaid({{"ukey", "C1"}, {"iden", "Y"}});
    world.sandbox.addNavaid({{"ukey", "D1"}, {"iden", "Z"}});
    QVERIFY(world.importToTheEnd("GEN;NAV;-;ukey;C1\nGEN;NAV;-;iden;X;;\n"));
    QCOMPARE(world.column(dbfile::gen, navKeys), QString("D1"));
}

void TestImportDeletes::deletesInEachDatabase_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("table");
    QTest::addColumn<QString>("column");
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("GEN") << dbfile::gen << "RWY"
                         << "rapt" << QByteArray("GEN;RWY;-;rapt;GONE");
    QTest::newRow("WPT") << dbfile::wpt << "WPT"
                         << "ukey" << QByteArray("WPT;WPT;-;ukey;GONE");
    QTest::newRow("M3D") << dbfile::m3d << "TEXTURE"
                         << "xname" << QByteArray("M3D;TEXTURE;-;xname;GONE");
    QTest::newRow("OBJ") << dbfile::obj << "FNM"
                         << "scene" << QByteArray("OBJ;FNM;-;scene;GONE");
    QTest::newRow("TXY") << dbfile::txy << "Light"
                         << "akey" << QByteArray("TXY;Light;-;akey;GONE");
    // Rows of this table cannot be written by a line, but deleted they can be.
    QTest::newRow("RTE") << dbfile::route << "SIDSTAR"
                         << "strm" << QByteArray("RTE;SIDSTAR;-;strm;GONE");
}

void TestImportDeletes::deletesInEachDatabase()
{
    QFETCH(QString, file);
    QFETCH(QString, table);
    QFETCH(QString, column);
    QFETCH(QByteArray, line);
    UpdateWorld world;
    world.sandbox.insertRow(file, table, {{column, "GONE"}});
    world.sandbox.insertRow(file, table, {{column, "HERE"}});
    QVERIFY(world.importToTheEnd(line + '\n'));
    QCOMPARE(world.column(file, QString("SELECT %1 FROM %2").arg(column, table)), QString("HERE"));
}

void TestImportDeletes::blanksAroundTheNamesAreTakenAway()
{
    UpdateWorld world;
    world.sandbox.addNavaid({{"ukey", "A1"}});
    world.sandbox.addNavaid({{"ukey", "B1"}});
    QVERIFY(world.importToTheEnd("GEN;NAV;-; ukey\t; A1 ;\n"));
    QCOMPARE(world.column(dbfile::gen, navKeys), QString("B1"));
}

void TestImportDeletes::theStatementGoesToTheLog()
{
    UpdateWorld world;
    QVERIFY(world.importToTheEnd("GEN;NAV;-;ukey;A1\n"));
    QCOMPARE(world.logged(QtDebugMsg), QStringList{R"("DELETE FROM NAV WHERE ukey=\"A1\"")"});
}

void TestImportDeletes::aKeyThatIsNotThereIsNoFailure()
{
    UpdateWorld world;
    world.sandbox.addNavaid();
    QVERIFY(world.importToTheEnd("GEN;NAV;-;ukey;A1\n"));
    QCOMPARE(world.column(dbfile::gen, navKeys), QString("RBT"));
}

void TestImportDeletes::aPercentSignInAKeyIsHarmless()
{
    UpdateWorld world;
    world.sandbox.addNavaid({{"ukey", "%1"}});
    world.sandbox.addNavaid({{"ukey", "%3%2"}});
    world.sandbox.addNavaid({{"ukey", "NAV"}});
    world.sandbox.addNavaid({{"ukey", "ukey%"}});
    QVERIFY(world.importToTheEnd("GEN;NAV;-;ukey;%1\nGEN;NAV;-;ukey;%3%2\nGEN;NAV;-;ukey;%\n"));
    QCOMPARE(world.column(dbfile::gen, navKeys), QString("NAV ukey%"));
}

void TestImportDeletes::aDoubleQuoteInAKeyBreaksTheStatement()
{
    UpdateWorld world;
    world.sandbox.addNavaid({{"ukey", "A\"1"}});
    world.expectSqlError();
    QVERIFY(world.importToTheEnd("GEN;NAV;-;ukey;A\"1\n" + navaidLine("B1") + '\n'));
    QVERIFY(world.sqlErrors().value(0).startsWith("DELETE FROM NAV WHERE ukey=\"A\"1\" "));
    QCOMPARE(world.column(dbfile::gen, navKeys), QString("A\"1 B1"));
}

void TestImportDeletes::aKeyThatGoesOnAsSqlIsRefused_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("every row") << QByteArray(R"(GEN;NAV;-;ukey;A1" OR "1"="1)");
    QTest::newRow("a condition for a column") << QByteArray("GEN;NAV;-;1=1 OR ukey;A1");
    QTest::newRow("a count without an end for a column") << QByteArray(
        "GEN;NAV;-;(WITH RECURSIVE c(x) AS (SELECT 1 UNION ALL SELECT x+1 FROM c) SELECT max(x) FROM c) OR "
        "ukey,A1");
    QTest::newRow("a quote left open for a column") << QByteArray(R"(GEN;NAV;-;";=1 OR 1 --)");
    QTest::newRow("a text for a column") << QByteArray(R"(GEN;NAV;-;"NONE";NONE)");
    QTest::newRow("a text with a blank for a column") << QByteArray(R"(GEN;NAV;-;"no ne";no ne)");
    QTest::newRow("the day for a column")
        << "GEN;NAV;-;current_date;" + QDateTime::currentDateTimeUtc().date().toString(Qt::ISODate).toLatin1();
    QTest::newRow("the column's name for a key") << QByteArray("GEN;NAV;-;ukey;ukey");
    QTest::newRow("the column's name in another case") << QByteArray("GEN;NAV;-;[ukey];UKEY");
    QTest::newRow("the column's name behind its table's") << QByteArray("GEN;NAV;-;NAV.ukey;ukey");
    QTest::newRow("the number of each row") << QByteArray("GEN;NAV;-;rowid;oid");
}

void TestImportDeletes::aKeyThatGoesOnAsSqlIsRefused()
{
    QFETCH(QByteArray, line);
    UpdateWorld world;
    world.sandbox.addNavaid();
    world.expectSqlError();
    QVERIFY(world.importToTheEnd(line.replace(',', ';') + '\n' + navaidLine("B1") + '\n'));
    QVERIFY(world.sqlErrors().value(0).startsWith("DELETE FROM NAV WHERE "));
    QCOMPARE(world.column(dbfile::gen, navKeys), QString("B1 RBT"));
}

// SQLite compares each row with the column of that name: those go that happen to agree.
void TestImportDeletes::aKeyNamedLikeAnotherColumnTakesNoOtherRow()
{
    UpdateWorld world;
    world.sandbox.addNavaid({{"ukey", "name"}, {"name", "A"}});
    world.sandbox.addNavaid({{"ukey", "B"}, {"name", "B"}});
    world.expectSqlError();
    QVERIFY(world.importToTheEnd("GEN;NAV;-;ukey;name\n"));
    QCOMPARE(world.column(dbfile::gen, navKeys), QString("B name"));
    QCOMPARE(world.sqlErrors(), QStringList{"DELETE FROM NAV WHERE ukey=\"name\" "});
}

void TestImportDeletes::aKeyNamedLikeAColumnIsDeletedWhereOnlyItsRowGoes()
{
    UpdateWorld world;
    world.sandbox.addNavaid({{"ukey", "ukey"}});
    QVERIFY(world.importToTheEnd("GEN;NAV;-;ukey;name\nGEN;NAV;-;ukey;ukey\n"));
    QCOMPARE(world.column(dbfile::gen, navKeys), QString());
}

void TestImportDeletes::aColumnBehindItsTablesNameIsAColumn()
{
    UpdateWorld world;
    world.sandbox.addNavaid({{"ukey", "A1"}});
    world.sandbox.addNavaid({{"ukey", "B1"}});
    QVERIFY(world.importToTheEnd("GEN;NAV;-;NAV.ukey;A1\n"));
    QCOMPARE(world.column(dbfile::gen, navKeys), QString("B1"));
}

void TestImportDeletes::aColumnWithASqlWordForItsNameIsAColumn()
{
    UpdateWorld world;
    world.sandbox.insertRow(dbfile::m3d, "SCN", {{"key", "1"}});
    world.sandbox.insertRow(dbfile::obj, "OBJ", {{"desc", "x"}});
    QVERIFY(world.importToTheEnd("M3D;SCN;-;key;1\nOBJ;OBJ;-;desc;x\n"));
    QCOMPARE(world.column(dbfile::m3d, "SELECT key FROM SCN"), QString());
    QCOMPARE(world.column(dbfile::obj, "SELECT desc FROM OBJ"), QString());
}

void TestImportDeletes::doubledQuotesInAKeyStandForOne()
{
    UpdateWorld world;
    world.sandbox.addNavaid({{"ukey", "A\"1"}});
    QVERIFY(world.importToTheEnd("GEN;NAV;-;\"ukey\";A\"\"1\n"));
    QCOMPARE(world.column(dbfile::gen, navKeys), QString());
}

void TestImportDeletes::aWrongColumnIsTold()
{
    UpdateWorld world;
    world.sandbox.addNavaid();
    world.expectSqlError();
    QVERIFY(world.importToTheEnd("GEN;NAV;-;nothing;RBT\n"));
    QVERIFY(world.sqlErrors().value(0).startsWith("DELETE FROM NAV WHERE nothing=\"RBT\" "));
    QCOMPARE(world.column(dbfile::gen, navKeys), QString("RBT"));
}

void TestImportDeletes::anAcceptedWholeTableMeetsTheStrayParenthesis()
{
    UpdateWorld world;
    world.sandbox.addNavaid();
    world.boxes.expectMessage("Attention", wholeTable, QMessageBox::Ok);
    world.expectSqlError();
    QVERIFY(world.importToTheEnd("GEN;NAV;-;ukey;;\n" + navaidLine("B1") + '\n'));
    QCOMPARE(world.titles(), (QStringList{"Attention", "SQL Error", "Importation"}));
    QVERIFY(world.sqlErrors().value(0).startsWith("DELETE FROM NAV ) "));
    QCOMPARE(world.boxes.seen().value(0).icon, QMessageBox::Warning);
    QCOMPARE(world.boxes.seen().value(0).choices.size(), 2);
    QCOMPARE(world.column(dbfile::gen, navKeys), QString("B1 RBT"));
}

void TestImportDeletes::aCancelledWholeTableGoesOnWithTheNextLine()
{
    UpdateWorld world;
    world.sandbox.addNavaid();
    world.boxes.expectMessage("Attention", wholeTable, QMessageBox::Cancel);
    world.boxes.expectMessage("Import", "L'import a été annulé.");
    QVERIFY(world.importToTheEnd("GEN;NAV;-;ukey;\n" + navaidLine("B1") + '\n'));
    QCOMPARE(world.boxes.seen().value(1).icon, QMessageBox::Information);
    QCOMPARE(world.column(dbfile::gen, navKeys), QString("B1 RBT"));
}

void TestImportDeletes::aKeyOfBlanksIsTheWholeTable()
{
    UpdateWorld world;
    world.sandbox.addNavaid();
    world.boxes.expectMessage("Attention", wholeTable, QMessageBox::Cancel);
    world.boxes.expectMessage("Import", "L'import a été annulé.");
    QVERIFY(world.importToTheEnd("GEN;NAV;-;ukey;  ;x\n"));
    QCOMPARE(world.column(dbfile::gen, navKeys), QString("RBT"));
}

void TestImportDeletes::aClosedQuestionIsACancelledOne()
{
    UpdateWorld world;
    world.sandbox.addNavaid();
    world.boxes.expectDialog("QMessageBox", [](QDialog* dialog) { dialog->close(); });
    world.boxes.expectMessage("Import", "L'import a été annulé.");
    QVERIFY(world.importToTheEnd("GEN;NAV;-;ukey;\n"));
    QCOMPARE(world.column(dbfile::gen, navKeys), QString("RBT"));
}

QTEST_MAIN(TestImportDeletes)
#include "tst_importdeletes.moc"
