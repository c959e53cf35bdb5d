// The values of a row as an update line holds them.
#include "updaterows.h"

#include "updateworld.h"

#include <QSqlQueryModel>
#include <QtTest>

namespace {

/// A query that stands on the first row of a statement's result.
QSqlQuery rowOf(const QString& statement)
{
    QSqlQuery query(QSqlDatabase::database(dbfile::m3d));
    if (!query.exec(statement) || !query.next())
        qFatal("no row: %s", qPrintable(statement));
    return query;
}

} // namespace

class TestUpdateRows : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        world.reset(new UpdateWorld);
    }
    void cleanupTestCase()
    {
        world.reset();
    }

    void anyRowEndsInAnEmptyValue()
    {
        QCOMPARE(rowAsText(rowOf("SELECT 1, 'two', 2.5")), QString("1;two;2.5;;"));
    }

    void aRowOfSeventeenColumnsHasEighteenValues()
    {
        const QString row = rowAsText(rowOf("SELECT 1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17"));
        QCOMPARE(row, QString("1;2;3;4;5;6;7;8;9;10;11;12;13;14;15;16;17;;"));
        QCOMPARE(row.count(';'), 18);
    }

    void anEmptyColumnIsAnEmptyField()
    {
        QCOMPARE(rowAsText(rowOf("SELECT NULL, '', NULL, 'x'")), QString(";;;x;;"));
    }

    void aSemicolonGoesOutUnquoted()
    {
        QCOMPARE(rowAsText(rowOf("SELECT 'a;b', 'c'")), QString("a;b;c;;"));
    }

    void realNumbersOfAnyRowKeepTheirDigits()
    {
        QCOMPARE(rowAsText(rowOf("SELECT 180485.123456, 1e300, -0.1")), QString("180485.123456;1e+300;-0.1;;"));
    }

    void aRecordEndsWithItsLastValue()
    {
        QCOMPARE(rowFromRecord(rowOf("SELECT 1, NULL, 'x'").record()), QString("1;;x;"));
    }

    void aModelsRowEndsWithItsLastValue()
    {
        QSqlQueryModel model;
        model.setQuery("SELECT 1, 'a' UNION SELECT 2, NULL ORDER BY 1", QSqlDatabase::database(dbfile::m3d));
        int row = 0;
        QCOMPARE(rowFromModel(&model, row), QString("1;a;"));
        QCOMPARE(rowFromModel(&model, 1), QString("2;;"));
    }

    void model()
    {
        QCOMPARE(rowMOD(rowOf("SELECT 'T.SMF', 1, '0', 'T.TGA', 90.25, -3, 2, 12, 36, x'0AfF', x'00', NULL, x'1b'")),
                 QString("T.SMF;1;0;T.TGA;90.25;-3;2;12;36;0aff;00;;1b"));
    }

    void realNumbersOfAModelHaveSixDigits()
    {
        QCOMPARE(rowMOD(rowOf("SELECT 'T', 1, 0, '', 123456.789, 0.000012345678, 0, 0, 0, '', '', '', ''")),
                 QString("T;1;0;;123457;1.23457e-05;0;0;0;;;;"));
        QCOMPARE(rowMOD(rowOf("SELECT 'T', 1, 0, '', 1234567.0, 2.5, 0, 0, 0, '', '', '', ''")),
                 QString("T;1;0;;1.23457e+06;2.5;0;0;0;;;;"));
    }

    void aModelsValuesOfOtherTypes()
    {
        QCOMPARE(rowMOD(rowOf("SELECT NULL, NULL, 'Y', NULL, 'high', NULL, NULL, 'x', 2.6, 'ab', NULL, NULL, NULL")),
                 QString(";0;0;;0;0;0;0;3;6162;;;"));
    }

    void placesInAValueStayWhatTheyAre()
    {
        QCOMPARE(rowMOD(rowOf("SELECT '%2.SMF', 1, 0, '%13%1', 1, 2, 3, 4, 5, x'', x'', x'', x'0a'")),
                 QString("%2.SMF;1;0;%13%1;1;2;3;4;5;;;;0a"));
        QCOMPARE(rowTEXTURE(rowOf("SELECT '%4%2', 1, 2, x'0b'")), QString("%4%2;1;2;0b"));
    }

    void texture()
    {
        QCOMPARE(rowTEXTURE(rowOf("SELECT 'T.TGA', 2, 1, x'0102030405060708'")), QString("T.TGA;2;1;0102030405060708"));
    }

    void taxiwayLight()
    {
        QCOMPARE(rowLight(rowOf("SELECT 'LFPO', 1, 2, 3, 4, 5, 6, x'0a0b'")), QString("LFPO;1;2;3;4;5;6;0a0b"));
    }

    void pavement()
    {
        QCOMPARE(rowPave(rowOf("SELECT 'LFPO', 1, 2, 3, x'0a0b'")), QString("LFPO;1;2;3;0a0b"));
    }

    void allTablesOfArcsAreTheLastOne()
    {
        QCOMPARE(rowArcs(rowOf("SELECT 'LFPO', 1, x'aa', 2, x'bb', 3, x'cc', 4, x'dd'")),
                 QString("LFPO;1;dd;2;dd;3;dd;4;dd"));
    }

private:
    std::unique_ptr<UpdateWorld> world;
};

QTEST_MAIN(TestUpdateRows)
#include "tst_updaterows.moc"
