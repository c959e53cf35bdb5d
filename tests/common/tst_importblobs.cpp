// Hexadecimal fields of an update file: which are decoded, and what the detour through the stream makes of them.
#include "updateworld.h"

#include <QtTest>

class TestImportBlobs : public QObject
{
    Q_OBJECT

private slots:
    void onlyTheLastTableOfArcsIsDecoded();
    void theSpotsOfATaxiwayLightStayText();
    void nodeAndPavementAreDecoded();
    void bothCasesOfDigits();
    void anOddNumberOfDigits();
    void whatIsNoDigitIsPassedOver();
    void modelTablesGoTwoWays_data();
    void modelTablesGoTwoWays();
    void aRowWithABlobThatFailsIsTold();
};

void TestImportBlobs::onlyTheLastTableOfArcsIsDecoded()
{
    UpdateWorld world;
    QVERIFY(world.importToTheEnd("TXY;Arcs;+;LFPO;1;0a0b;2;0c0d;3;0e0f;4;1a1b\n"));
    const QVariantList row = world.sandbox.sql(dbfile::txy, "SELECT * FROM Arcs").first();
    QCOMPARE(row, (QVariantList{"LFPO", "1", "0a0b", "2", "0c0d", "3", "0e0f", "4", QByteArray("\x1a\x1b")}));
}

void TestImportBlobs::theSpotsOfATaxiwayLightStayText()
{
    UpdateWorld world;
    QVERIFY(world.importToTheEnd("TXY;Light;+;LFPO;1;2;3;4;5;6;0a0b\n"));
    const QVariantList row = world.sandbox.sql(dbfile::txy, "SELECT vTab, typeof(vTab) FROM Light").first();
    QCOMPARE(row, (QVariantList{"0a0b", "text"}));
}

void TestImportBlobs::nodeAndPavementAreDecoded()
{
    UpdateWorld world;
    QVERIFY(world.importToTheEnd("TXY;Node;+;LFPO;N1;1.5;2.5;3;20;1;4;0a\nTXY;Pave;+;LFPO;1;2;3;0b0c\n"));
    QCOMPARE(world.sandbox.sql(dbfile::txy, "SELECT * FROM Node").first(),
             (QVariantList{"LFPO", "N1", "1.5", "2.5", "3", "20", "1", "4", QByteArray("\x0a")}));
    QCOMPARE(world.sandbox.sql(dbfile::txy, "SELECT * FROM Pave").first(),
             (QVariantList{"LFPO", 1LL, 2LL, 3LL, QByteArray("\x0b\x0c")}));
}

void TestImportBlobs::bothCasesOfDigits()
{
    UpdateWorld world;
    QVERIFY(world.importToTheEnd("M3D;TEXTURE;+;A;1;1;abCDeF09\n"));
    QCOMPARE(world.sandbox.sql(dbfile::m3d, "SELECT * FROM TEXTURE").first(),
             (QVariantList{"A", 1LL, 1LL, QByteArray("\xab\xcd\xef\x09")}));
}

void TestImportBlobs::anOddNumberOfDigits()
{
    UpdateWorld world;
    QVERIFY(world.importToTheEnd("TXY;Pave;+;LFPO;1;2;3;abc\nM3D;MOD;+;A;0;0;;0;0;0;0;0;abc;f12;1;\n"));
    QCOMPARE(world.sandbox.sqlValue(dbfile::txy, "SELECT vTab FROM Pave").toByteArray(), QByteArray("\x0a\xbc"));
    QCOMPARE(world.sandbox.sql(dbfile::m3d, "SELECT vtab, ntab, ttab, xtab FROM MOD").first(),
             (QVariantList{QByteArray("\x0a\xbc"), QByteArray("\x0f\x12"), QByteArray("\x01"), QByteArray("")}));
}

void TestImportBlobs::whatIsNoDigitIsPassedOver()
{
    UpdateWorld world;
    QVERIFY(world.importToTheEnd("TXY;Pave;+;LFPO;1;2;3;0x0a g-\xe9 0b\n"));
    QCOMPARE(world.sandbox.sqlValue(dbfile::txy, "SELECT hex(vTab) FROM Pave").toString(), QString("000A0B"));
}

void TestImportBlobs::modelTablesGoTwoWays_data()
{
    QTest::addColumn<int>("digits");
    QTest::addColumn<QByteArray>("firstTable");
    QTest::addColumn<QByteArray>("otherTables");
    // A length in the stream that is the code of a digit is one digit more: 24 digits are 48 bytes of a QString, and
    // 48 is the code of "0"; 48 digits one byte each give the same length.
    QTest::newRow("24 digits") << 24 << QByteArray("00") + QByteArray(24, 'a') << QByteArray(24, 'a');
    QTest::newRow("26 digits") << 26 << QByteArray("04") + QByteArray(26, 'a') << QByteArray(26, 'a');
    QTest::newRow("28 digits") << 28 << QByteArray("08") + QByteArray(28, 'a') << QByteArray(28, 'a');
    QTest::newRow("30 digits") << 30 << QByteArray(30, 'a') << QByteArray(30, 'a');
    QTest::newRow("34 digits") << 34 << QByteArray("0d") + QByteArray(34, 'a') << QByteArray(34, 'a');
    QTest::newRow("48 digits") << 48 << QByteArray(48, 'a') << QByteArray("00") + QByteArray(48, 'a');
    QTest::newRow("49 digits") << 49 << QByteArray("b") + QByteArray(49, 'a') << QByteArray("1") + QByteArray(49, 'a');
    QTest::newRow("50 digits") << 50 << QByteArray("0d") + QByteArray(50, 'a')
                               << QByteArray("02") + QByteArray(50, 'a');
    QTest::newRow("66 digits") << 66 << QByteArray(66, 'a') << QByteArray("0b") + QByteArray(66, 'a');
    QTest::newRow("102 digits") << 102 << QByteArray(102, 'a') << QByteArray("0f") + QByteArray(102, 'a');
    // Two bytes of the length are digits, "2" and "0": a whole byte 20 stands in front.
    QTest::newRow("12338 digits") << 12338 << QByteArray("0d") + QByteArray(12338, 'a')
                                  << QByteArray("20") + QByteArray(12338, 'a');
}

void TestImportBlobs::modelTablesGoTwoWays()
{
    QFETCH(int, digits);
    QFETCH(QByteArray, firstTable);
    QFETCH(QByteArray, otherTables);
    UpdateWorld world;
    const QByteArray table(digits, 'a');
    QVERIFY(world.importToTheEnd("M3D;MOD;+;TOWER.SMF;1;0;TOWER.TGA;90.5;0;0;3;3;" + table + ';' + table + ';' + table +
                                 ';' + table + '\n'));
    const QVector<QStringList> rows = world.rows(
        dbfile::m3d, "SELECT lower(hex(vtab)), lower(hex(ntab)), lower(hex(ttab)), lower(hex(xtab)) FROM MOD");
    QCOMPARE(rows.first().at(0), QString::fromLatin1(firstTable));
    for (int other : {1, 2, 3})
        QCOMPARE(rows.first().at(other), QString::fromLatin1(otherTables));
    QCOMPARE(world.rows(dbfile::m3d, "SELECT name, ntex, ftop, nind FROM MOD").first(),
             (QStringList{"TOWER.SMF", "TOWER.TGA", "90.5", "3"}));
}

void TestImportBlobs::aRowWithABlobThatFailsIsTold()
{
    UpdateWorld world;
    world.sandbox.sql(dbfile::txy, "DROP TABLE Pave");
    world.expectSqlError();
    QVERIFY(world.importToTheEnd("TXY;Pave;+;LFPO;1;2;3;0a\n" + navaidLine("B1") + '\n'));
    QVERIFY(world.sqlErrors().value(0).startsWith("REPLACE INTO Pave ( aKey, Type, aUse, Nbvt, vTab)VALUES "));
    QCOMPARE(world.column(dbfile::gen, "SELECT ukey FROM NAV"), QString("B1"));
}

QTEST_MAIN(TestImportBlobs)
#include "tst_importblobs.moc"
