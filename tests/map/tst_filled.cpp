// Patterns filled in one pass.
#include "filled.h"

#include <QtTest>

class TestFilled : public QObject
{
    Q_OBJECT

private slots:
    void patterns_data()
    {
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QString>("text");
        QTest::newRow("in order") << "%1-%2"
                                  << "A-B";
        QTest::newRow("out of order, twice") << "%2%1%2"
                                             << "BAB";
        QTest::newRow("alone") << "%1"
                               << "A";
        QTest::newRow("none") << "clearFP()"
                              << "clearFP()";
        QTest::newRow("empty") << ""
                               << "";
        QTest::newRow("no such value") << "%3 %1"
                                       << "%3 A";
        QTest::newRow("zero") << "%0%1"
                              << "%0A";
        QTest::newRow("percent at the end") << "%1%"
                                            << "A%";
        QTest::newRow("two percents") << "%%1%"
                                      << "%A%";
        QTest::newRow("one digit only") << "%12"
                                        << "A2";
    }
    void patterns()
    {
        QFETCH(QString, pattern);
        QTEST(filled(pattern, {"A", "B"}), "text");
    }

    void aPlaceholderInAValueStays()
    {
        QCOMPARE(filled("<%1|%2>", {"%2", "%1"}), QString("<%2|%1>"));
    }

    void charactersBeyondAsciiPass()
    {
        QCOMPARE(filled("é%1ü", {"à"}), QString("éàü"));
    }
};

QTEST_GUILESS_MAIN(TestFilled)
#include "tst_filled.moc"
