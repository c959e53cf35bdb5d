// What a plan becomes when it is stored as a SID or a STAR.
#include "planlines.h"
#include "procedurerows.h"

#include <QtTest>

#include <limits>

class TestProcedureRows : public QObject
{
    Q_OBJECT

private slots:
    void aRowHasElevenValues()
    {
        QCOMPARE(
            procedureRow(*airportAndNavaid().first(), 10, {"ABC1", "US_KSFO", ProcedureType::Sid}),
            QStringList({"0", "ABC110", "US_KSFO", "ABC1", "10", "2", "KSFO", "0", "13", "135720.500", "-440912.250"}));
        QCOMPARE(
            procedureRow(*airportAndNavaid().last(), 20, {"ABC1", "US_KSFO", ProcedureType::Star}),
            QStringList({"0", "ABC120", "US_KSFO", "ABC1", "20", "1", "OAK", "8", "10", "135800.000", "-440000.000"}));
    }

    void theUsageGivesTheTypeOfThePoint_data()
    {
        QTest::addColumn<QString>("usage");
        QTest::addColumn<QString>("type");
        QTest::newRow("airport") << "airp"
                                 << "0";
        QTest::newRow("navaid") << "snav"
                                << "17";
        QTest::newRow("user's own point") << "uswp"
                                          << "4096";
        QTest::newRow("word of the file's type") << "wayp"
                                                 << "0";
        QTest::newRow("capitals") << "SNAV"
                                  << "0";
        QTest::newRow("none") << ""
                              << "0";
    }
    void theUsageGivesTheTypeOfThePoint()
    {
        QFETCH(QString, usage);
        const CFpLinePtr line = pointAt(0, 0);
        line->usage = usage;
        line->fpType = "wayp";
        line->navType = 17;
        QTEST(procedureRow(*line, 10, {"A", "K", ProcedureType::Sid}).at(7), "type");
    }

    void theAltitudeIsTheElevation()
    {
        const CFpLinePtr line = pointAt(0, 0);
        line->elev = -12;
        line->altd = 9500;
        QCOMPARE(procedureRow(*line, 10, {"A", "K", ProcedureType::Sid}).at(8), QString("-12"));
    }

    void positionsAreArcSecondsWithThreeDecimals_data()
    {
        QTest::addColumn<double>("arcSeconds");
        QTest::addColumn<QString>("text");
        QTest::newRow("zero") << 0.0 << "0.000";
        QTest::newRow("rounded") << 173244.44412 << "173244.444";
        QTest::newRow("rounded up") << 8494.5678 << "8494.568";
        QTest::newRow("west, counted eastwards") << 1290600.0 << "1290600.000";
        QTest::newRow("small") << -0.0004 << "-0.000";
        QTest::newRow("no exponent") << 1e7 << "10000000.000";
        QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN() << "nan";
    }
    void positionsAreArcSecondsWithThreeDecimals()
    {
        QFETCH(double, arcSeconds);
        const QStringList latitude = procedureRow(*pointAt(arcSeconds, 1.0), 10, {"A", "K", ProcedureType::Sid});
        QTEST(latitude.at(9), "text");
        QCOMPARE(latitude.at(10), QString("1.000"));
        const QStringList longitude = procedureRow(*pointAt(1.0, arcSeconds), 10, {"A", "K", ProcedureType::Sid});
        QTEST(longitude.at(10), "text");
        QCOMPARE(longitude.at(9), QString("1.000"));
    }

    void aSidIsRemovedAndInsertedPointByPoint()
    {
        QCOMPARE(procedureStatements(airportAndNavaid(), {"ABC1", "US_KSFO", ProcedureType::Sid}),
                 QStringList({"DELETE FROM SIDSTAR WHERE strm = 'ABC1';",
                              "INSERT OR REPLACE INTO SIDSTAR VALUES "
                              "('0','ABC110','US_KSFO','ABC1','10','2','KSFO','0','13','135720.500','-440912.250');",
                              "INSERT OR REPLACE INTO SIDSTAR VALUES "
                              "('0','ABC120','US_KSFO','ABC1','20','2','OAK','8','10','135800.000','-440000.000');"}));
    }

    void theInsertionOfAStarHasNoSemicolon()
    {
        QCOMPARE(procedureStatements(airportAndNavaid(), {"ABC1", "US_KSFO", ProcedureType::Star}),
                 QStringList({"DELETE FROM SIDSTAR WHERE strm = 'ABC1';",
                              "INSERT OR REPLACE INTO SIDSTAR VALUES "
                              "('0','ABC110','US_KSFO','ABC1','10','1','KSFO','0','13','135720.500','-440912.250')",
                              "INSERT OR REPLACE INTO SIDSTAR VALUES "
                              "('0','ABC120','US_KSFO','ABC1','20','1','OAK','8','10','135800.000','-440000.000')"}));
    }

    void numbersGrowByTen()
    {
        QList<CFpLinePtr> lines;
        for (int i = 0; i < 12; ++i)
            lines << pointAt(0, 0);
        const QStringList statements = procedureStatements(lines, {"A", "K", ProcedureType::Sid});
        QCOMPARE(statements.size(), 13);
        QVERIFY(statements.at(1).contains("('0','A10','K','A','10',"));
        QVERIFY(statements.at(2).contains("('0','A20','K','A','20',"));
        QVERIFY(statements.at(10).contains("('0','A100','K','A','100',"));
        QVERIFY(statements.at(12).contains("('0','A120','K','A','120',"));
    }

    void nothingIsEscaped()
    {
        const QStringList statements = procedureStatements({pointAt(0, 0, "O'B")}, {"L'Est", "K", ProcedureType::Sid});
        QCOMPARE(statements.first(), QString("DELETE FROM SIDSTAR WHERE strm = 'L'Est';"));
        QVERIFY(statements.last().contains("'L'Est10','K','L'Est','10','2','O'B'"));
    }

    void aSpoiledStatementIsNotSound()
    {
        const QList<CFpLinePtr> lines{pointAt(0, 0, "A"), pointAt(0, 0, "'||'B"), pointAt(0, 0, "O''B")};
        const StoredProcedure sound{"NAME", "K", ProcedureType::Sid};
        QVERIFY(isSoundStatement(0, lines, sound));
        QVERIFY(isSoundStatement(1, lines, sound));
        QVERIFY(!isSoundStatement(2, lines, sound));
        QVERIFY(isSoundStatement(3, lines, sound));
        QVERIFY(isSoundStatement(0, lines, {"NAME", "K'", ProcedureType::Sid}));
        QVERIFY(!isSoundStatement(1, lines, {"NAME", "K'", ProcedureType::Sid}));
        QVERIFY(!isSoundStatement(0, lines, {"NAME' OR '1'='1", "K", ProcedureType::Sid}));
        QVERIFY(!isSoundStatement(1, lines, {"NAME' OR '1'='1", "K", ProcedureType::Sid}));
    }

    void whatLooksLikeAPlaceToFillStays()
    {
        const QStringList statements = procedureStatements({pointAt(0, 0, "%2")}, {"%1%3", "%4", ProcedureType::Sid});
        QCOMPARE(statements, QStringList({"DELETE FROM SIDSTAR WHERE strm = '%1%3';",
                                          "INSERT OR REPLACE INTO SIDSTAR VALUES "
                                          "('0','%1%310','%4','%1%3','10','2','%2','4096','0','0.000','0.000');"}));
    }

    void anEmptyPlanOnlyRemoves()
    {
        QCOMPARE(procedureStatements({}, {"A", "K", ProcedureType::Star}),
                 QStringList{"DELETE FROM SIDSTAR WHERE strm = 'A';"});
    }
};

QTEST_APPLESS_MAIN(TestProcedureRows)
#include "tst_procedurerows.moc"
