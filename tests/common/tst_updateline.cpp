#include "updateline.h"

#include <QtTest>

class TestUpdateLine : public QObject
{
    Q_OBJECT

private slots:
    void splits_data();
    void splits();
    void aMissingFieldIsEmptyAndNotNull();
    void joinsWhatWasSplit();
    void decodesHexadecimal_data();
    void decodesHexadecimal();
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

void TestUpdateLine::joinsWhatWasSplit()
{
    for (const char* line : {"", ";", "GEN;NAV;+;1;;", "a b", "%1;%3"})
        QCOMPARE(joinUpdateLine(splitUpdateLine(line)), QString(line));
}

void TestUpdateLine::decodesHexadecimal_data()
{
    QTest::addColumn<QString>("digits");
    QTest::addColumn<QByteArray>("fromString");
    QTest::addColumn<QByteArray>("fromBytes");
    QTest::newRow("none") << "" << QByteArray() << QByteArray();
    QTest::newRow("null") << QString() << QByteArray() << QByteArray();
    QTest::newRow("both cases") << "0aBcFF" << QByteArray("\x0a\xbc\xff") << QByteArray("\x0a\xbc\xff");
    QTest::newRow("odd") << "abc" << QByteArray("\x0a\xbc") << QByteArray("\x0a\xbc");
    QTest::newRow("no digits") << "xyz" << QByteArray() << QByteArray();
    // The length in the stream is 48, the code of "0": as a QString with 24 digits, as bytes with 48.
    QTest::newRow("24 digits") << QString(24, 'f') << QByteArray(1, '\0') + QByteArray(12, '\xff')
                               << QByteArray(12, '\xff');
    QTest::newRow("48 digits") << QString(48, 'f') << QByteArray(24, '\xff')
                               << QByteArray(1, '\0') + QByteArray(24, '\xff');
    // Letters beyond Latin-1: their two bytes as a QString, a question mark as bytes.
    QTest::newRow("other letters") << QString("1\u3041"
                                              "2")
                                   << QByteArray::fromHex("1a02") << QByteArray("\x12");
}

void TestUpdateLine::decodesHexadecimal()
{
    QFETCH(QString, digits);
    QTEST(decodeHexadecimal(digits, false), "fromString");
    QTEST(decodeHexadecimal(digits, true), "fromBytes");
    QVERIFY(!decodeHexadecimal(digits, false).isNull());
    QVERIFY(!decodeHexadecimal(digits, true).isNull());
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
