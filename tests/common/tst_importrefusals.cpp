// Lines of an update file that are refused, that fail or that are cut: what the user is told, and what goes on.
#include "updateworld.h"

#include <QAbstractButton>
#include <QtTest>

namespace {

const QString navKeys = QStringLiteral("SELECT ukey FROM NAV ORDER BY ukey");
const QString emptyDatabaseText = QStringLiteral("La base de données  est inconnue.\n");

} // namespace

class TestImportRefusals : public QObject
{
    Q_OBJECT

private slots:
    void anEmptyLineEndsTheFileAsAnUnknownDatabase();
    void aBlankLastLineEndsTheFileAsAnUnknownDatabase();
    void aLineWithoutItsFirstFieldsIsHarmless_data();
    void aLineWithoutItsFirstFieldsIsHarmless();
    void aLineCutAnywhereIsHarmless();
    void unknownDatabase_data();
    void unknownDatabase();
    void unknownTable_data();
    void unknownTable();
    void aLineOfTheProceduresExportIsRefused();
    void theWaypointsFirstLineIsRefusedAndTheRestNotRead();
    void theRouteTablesRefuseTheirOwnRows_data();
    void theRouteTablesRefuseTheirOwnRows();
    void aRowThatFailsIsToldAndTheNextOneFollows();
    void aDatabaseThatIsNotThereIsToldForEachLine();
    void theEndBoxFollowsAlsoWhereEveryRowFailed();
    void errorsOfAnEarlierFileAreForgotten();
    void errorsGatheredInAFileAreShownAtItsEnd();
};

void TestImportRefusals::anEmptyLineEndsTheFileAsAnUnknownDatabase()
{
    UpdateWorld world;
    world.boxes.expectMessage("Erreur SQL", emptyDatabaseText);
    QVERIFY(!world.import(world.write(navaidLine("A1") + "\n\n" + navaidLine("B1") + '\n')));
    QCOMPARE(world.column(dbfile::gen, navKeys), QString("A1"));
}

void TestImportRefusals::aBlankLastLineEndsTheFileAsAnUnknownDatabase()
{
    UpdateWorld world;
    world.boxes.expectMessage("Erreur SQL", emptyDatabaseText);
    QVERIFY(!world.import(world.write(navaidLine("A1") + "\r\n \r\n")));
    QCOMPARE(world.column(dbfile::gen, navKeys), QString("A1"));
}

void TestImportRefusals::aLineWithoutItsFirstFieldsIsHarmless_data()
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

void TestImportRefusals::aLineWithoutItsFirstFieldsIsHarmless()
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

void TestImportRefusals::aLineCutAnywhereIsHarmless()
{
    UpdateWorld world;
    const QByteArray line = "M3D;MOD;+;A.SMF;1;0;A.TGA;1.5;2.5;0;1;1;0a;0b;0c;0d";
    const int tableEnd = int(strlen("M3D;MOD"));
    for (int length = 0; length <= line.size(); ++length) {
        world.boxes.expectAnyMessage();
        // A line without its database or its table is refused; an empty file has no line.
        QCOMPARE(world.import(world.write(line.left(length))), length == 0 || length >= tableEnd);
    }
    // Each line from the "+" on has written a row; only the whole one has all its bytes.
    QCOMPARE(world.column(dbfile::m3d, "SELECT count(*) FROM MOD"), QString::number(line.size() - tableEnd - 1));
    QCOMPARE(world.column(dbfile::m3d, "SELECT count(*) FROM MOD WHERE hex(xtab) = '0D'"), QString("1"));
}

void TestImportRefusals::unknownDatabase_data()
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

void TestImportRefusals::unknownDatabase()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, text);
    UpdateWorld world;
    world.boxes.expectMessage("Erreur SQL", text);
    QVERIFY(!world.import(world.write(navaidLine("A1") + '\n' + line + "\r\n" + navaidLine("B1") + '\n')));
    QCOMPARE(world.boxes.seen().value(0).icon, QMessageBox::Warning);
    QCOMPARE(world.column(dbfile::gen, navKeys), QString("A1"));
    const QStringList warnings = world.logged(QtWarningMsg);
    QCOMPARE(warnings.size(), 1);
    QVERIFY2(warnings.first().startsWith("CIODataBase::importGEN \"La base de données "), qPrintable(warnings.first()));
}

void TestImportRefusals::unknownTable_data()
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

void TestImportRefusals::unknownTable()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, text);
    QFETCH(QString, label);
    UpdateWorld world;
    world.boxes.expectMessage("Erreur SQL", text);
    QVERIFY(!world.import(world.write(navaidLine("A1") + '\n' + line + '\n' + navaidLine("B1") + '\n')));
    QCOMPARE(world.boxes.seen().value(0).icon, QMessageBox::Warning);
    QCOMPARE(world.column(dbfile::gen, navKeys), QString("A1"));
    const QStringList warnings = world.logged(QtWarningMsg);
    QCOMPARE(warnings.size(), 1);
    QVERIFY2(warnings.first().startsWith(label + " \"La table "), qPrintable(warnings.first()));
}

void TestImportRefusals::aLineOfTheProceduresExportIsRefused()
{
    UpdateWorld world;
    world.sandbox.addProcedureLeg();
    world.boxes.expectMessage("Erreur SQL", "La base de données ROUTE est inconnue.\nROUTE;SIDSTAR;-;strm;BAMES1A");
    QVERIFY(!world.import(world.write("ROUTE;SIDSTAR;-;strm;BAMES1A\nRTE;SIDSTAR;-;strm;BAMES1A\n")));
    QCOMPARE(world.column(dbfile::route, "SELECT strm FROM SIDSTAR"), QString("BAMES1A"));
}

void TestImportRefusals::theWaypointsFirstLineIsRefusedAndTheRestNotRead()
{
    UpdateWorld world;
    // The first value of the sentence is the database, the second the line, and the third place stays.
    world.boxes.expectMessage("Erreur SQL", "La table GEN est inconnue dans la base de données GEN;WPT;-;ukey;;.\n%3");
    QVERIFY(!world.import(world.write("GEN;WPT;-;ukey;;\nWPT;WPT;+;" + numberedValues(16) + '\n')));
    QCOMPARE(world.column(dbfile::wpt, "SELECT ukey FROM WPT"), QString());
    // Under the reader's own name the row goes through.
    QVERIFY(world.importToTheEnd("WPT;WPT;+;" + numberedValues(16) + '\n'));
    QCOMPARE(world.column(dbfile::wpt, "SELECT ukey FROM WPT"), QString("103"));
}

void TestImportRefusals::theRouteTablesRefuseTheirOwnRows_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("table");
    QTest::newRow("ATSROUTE, 26 values") << QByteArray("RTE;ATSROUTE;+;" + numberedValues(26)) << "ATSROUTE";
    QTest::newRow("ATSROUTE, 25 values") << QByteArray("RTE;ATSROUTE;+;" + numberedValues(25)) << "ATSROUTE";
    QTest::newRow("SIDSTAR, 11 values") << QByteArray("RTE;SIDSTAR;+;" + numberedValues(11)) << "SIDSTAR";
    QTest::newRow("SIDSTAR, 10 values") << QByteArray("RTE;SIDSTAR;+;" + numberedValues(10)) << "SIDSTAR";
}

void TestImportRefusals::theRouteTablesRefuseTheirOwnRows()
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

void TestImportRefusals::aRowThatFailsIsToldAndTheNextOneFollows()
{
    UpdateWorld world;
    world.sandbox.sql(dbfile::gen, "DROP TABLE COM");
    world.expectSqlError();
    QVERIFY(
        world.importToTheEnd(navaidLine("A1") + "\nGEN;COM;+;" + numberedValues(12) + '\n' + navaidLine("B1") + '\n'));
    QCOMPARE(world.titles(), (QStringList{"SQL Error", "Importation"}));
    QVERIFY(world.sqlErrors().value(0).startsWith(
        "REPLACE INTO COM ( tile, ckey, capt, cnam, ctyp, frq1, frq2, frq3, frq4, frq5, clat, clon)VALUES (:tile,:ckey,"
        ":capt,:cnam,:ctyp,:frq1,:frq2,:frq3,:frq4,:frq5,:clat,:clon)"));
    QCOMPARE(world.column(dbfile::gen, navKeys), QString("A1 B1"));
}

void TestImportRefusals::aDatabaseThatIsNotThereIsToldForEachLine()
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

void TestImportRefusals::theEndBoxFollowsAlsoWhereEveryRowFailed()
{
    UpdateWorld world;
    world.sandbox.sql(dbfile::gen, "DROP TABLE NAV");
    world.expectSqlError();
    world.expectSqlError();
    QVERIFY(world.importToTheEnd(navaidLine("A1") + '\n' + navaidLine("B1") + '\n'));
    QCOMPARE(world.titles(), (QStringList{"SQL Error", "SQL Error", "Importation"}));
    QCOMPARE(world.boxes.seen().value(2).icon, QMessageBox::Information);
}

void TestImportRefusals::errorsOfAnEarlierFileAreForgotten()
{
    UpdateWorld world;
    world.exchange.errorList << "old";
    QVERIFY(world.importToTheEnd(navaidLine("A1")));
    QVERIFY(world.exchange.errorList.isEmpty());
}

void TestImportRefusals::errorsGatheredInAFileAreShownAtItsEnd()
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
    QCOMPARE(world.boxes.seen().value(2).icon, QMessageBox::Warning);
    QCOMPARE(world.logged(QtWarningMsg), QStringList{"\"Il y a eu des erreurs à l'importation\\none\\ntwo\""});
    QCOMPARE(world.column(dbfile::gen, navKeys), QString("A1"));
}

QTEST_MAIN(TestImportRefusals)
#include "tst_importrefusals.moc"
