#include "updateline.h"

#include <QtTest>

class TestUpdateLine : public QObject
{
    Q_OBJECT

private slots:
    void splits_data();
    void splits();
    void aMissingFieldIsEmptyAndNotNull();
    void composesARow();
    void composesADeletion();
    void aComposedRowSplitsBack();
};

void TestUpdateLine::splits_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QStringList>("fields");
    QTest::newRow("LF") << QByteArray("GEN;NAV;+;1\n") << QStringList{"GEN", "NAV", "+", "1"};
    QTest::newRow("CR LF") << QByteArray("GEN;NAV;+;1\r\n") << QStringList{"GEN", "NAV", "+", "1"};
    QTest::newRow("blanks around the line") << QByteArray(" \tGEN;NAV \n") << QStringList{"GEN", "NAV"};
    QTest::newRow("blanks inside stay") << QByteArray("GEN; NAV ;x") << QStringList{"GEN", " NAV ", "x"};
    QTest::newRow("empty fields stay") << QByteArray("GEN;;;\n") << QStringList{"GEN", "", "", ""};
    QTest::newRow("empty line") << QByteArray("\n") << QStringList{""};
    QTest::newRow("nothing") << QByteArray() << QStringList{""};
    QTest::newRow("ends at a zero byte") << QByteArray("GEN;N\0V;+;1\n", 12) << QStringList{"GEN", "N"};
    QTest::newRow("zero byte first") << QByteArray("\0GEN;NAV", 8) << QStringList{""};
    QTest::newRow("a byte is a character") << QByteArray("GEN;\xc3\xa9") << QStringList{"GEN", QString("\u00c3\u00a9")};
    QTest::newRow("no quoting") << QByteArray("a;\"b;c\"") << QStringList{"a", "\"b", "c\""};
}

void TestUpdateLine::splits()
{
    QFETCH(QByteArray, line);
    QTEST(splitUpdateLine(line), "fields");
}

void TestUpdateLine::aMissingFieldIsEmptyAndNotNull()
{
    const QStringList fields{"GEN", QString()};
    for (const int number : {-1, 1, 2, 99}) {
        QVERIFY(updateField(fields, number).isEmpty());
        QVERIFY(!updateField(fields, number).isNull());
    }
    QCOMPARE(updateField(fields, 0), QString("GEN"));
}

void TestUpdateLine::composesARow()
{
    QCOMPARE(composeRowLine("WPT", "WPT", {"65703", "BAMES", "", "x"}), QString("WPT;WPT;+;65703;BAMES;;x"));
}

void TestUpdateLine::composesADeletion()
{
    QCOMPARE(composeDeleteLine("ROUTE", "SIDSTAR", "strm", "BAMES1A"), QString("ROUTE;SIDSTAR;-;strm;BAMES1A"));
    QCOMPARE(composeDeleteLine("GEN", "NAV", "ukey", ""), QString("GEN;NAV;-;ukey;"));
}

void TestUpdateLine::aComposedRowSplitsBack()
{
    const QStringList values{"1", "", " a", "%1", "z"};
    const QStringList fields = splitUpdateLine(composeRowLine("GEN", "NAV", values).toLatin1() + "\n");
    QCOMPARE(fields.mid(updatefield::firstValue), values);
}

QTEST_GUILESS_MAIN(TestUpdateLine)
#include "tst_updateline.moc"
