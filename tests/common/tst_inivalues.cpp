// What is no text in a settings file is seen, however it is written.
#include "inivalues.h"

#include <QtTest>

class TestIniValues : public QObject
{
    Q_OBJECT

private slots:
    void aPackedValueIsSeen_data()
    {
        QTest::addColumn<QByteArray>("ini");
        QTest::newRow("plain") << QByteArray("[SQL]\nGENDB=@Variant(\\0\\0\\0\\t\\xff\\xff\\xff\\xff)\n");
        QTest::newRow("a time") << QByteArray("GENDB=@DateTime(\\0\\0\\0\\x10)");
        QTest::newRow("quoted") << QByteArray("GENDB=\"@Variant(x)\"");
        QTest::newRow("quoted in part") << QByteArray("GENDB=\"@Vari\"an\"t(x)\"");
        QTest::newRow("hexadecimal") << QByteArray("GENDB=\\x40\\x56\\x61riant(x)");
        QTest::newRow("hexadecimal and large") << QByteArray("GENDB=\\x7fff0040Variant(x)");
        QTest::newRow("octal") << QByteArray("GENDB=\\100Variant\\50x)");
        QTest::newRow("an escape that stands for nothing") << QByteArray("GENDB=@Var\\iiant(x)");
        QTest::newRow("a line that goes on") << QByteArray("GENDB=@Var\\\r\niant(x)\r\n");
        QTest::newRow("behind another section") << QByteArray("[UI]\r\na=1\r\n[SQL]\r\nGENDB=@Variant(x)\r\n");
        QTest::newRow("between carriage returns alone") << QByteArray("[UI]\na=1\r[SQL]\rGENDB=@Variant(x)\n");
        QTest::newRow("in a section of small letters") << QByteArray("[sql]\nGENDB=@Variant(x)\n");
        QTest::newRow("in a section with a number for a letter") << QByteArray("[UI]\n[%53QL]\nGENDB=@Variant(x)\n");
        QTest::newRow("in a text that looks like a section")
            << QByteArray("[SQL]\nGENDB=\"\n[UI]\n\"\nM3DDB=@Variant(x)\n");
        QTest::newRow("in a list") << QByteArray("GENDB=a, @Variant(x)");
    }

    void aPackedValueIsSeen()
    {
        QFETCH(QByteArray, ini);
        QVERIFY(holdsPackedValues(ini, "SQL"));
    }

    void textIsNone_data()
    {
        QTest::addColumn<QByteArray>("ini");
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("folders") << QByteArray("[SQL]\r\nGENDB=D:\\\\Data\r\nM3DDB=\"../a, b\"\r\nOBJDB=x\\");
        QTest::newRow("the words alone") << QByteArray("GENDB=Variant(1)\nM3DDB=@ Variant(\n; @variant(1)\n");
        QTest::newRow("values that read as text") << QByteArray("a=@Rect(0 0 1 1)\nb=@ByteArray(x)\nc=@@home\n");
        QTest::newRow("of another section") << QByteArray("[SQL]\nGENDB=a\n[UI]\nsize=@Variant(\\0\\0)\n");
        QTest::newRow("numbers without an end") << QByteArray("GENDB=\\x\nM3DDB=\\");
    }

    void textIsNone()
    {
        QFETCH(QByteArray, ini);
        QVERIFY(!holdsPackedValues(ini, "SQL"));
    }

    void whatCanDoHarmBecomesText_data()
    {
        QTest::addColumn<QByteArray>("ini");
        QTest::addColumn<QByteArray>("harmless");
        QTest::newRow("list without an end")
            << QByteArray("[view]\nmapCenter=@Variant(\\0\\0\\0\\xb\\x7f\\xff\\xff\\xff)\n")
            << QByteArray("[view]\nmapCenter=@@Variant(\\0\\0\\0\\xb\\x7f\\xff\\xff\\xff)\n");
        QTest::newRow("type cut off") << QByteArray("a=@Variant(\\0\\0\\0)") << QByteArray("a=@@Variant(\\0\\0\\0)");
        QTest::newRow("type of the user")
            << QByteArray("a=@Variant(\\0\\0\\x4\\x1a\\x7f)") << QByteArray("a=@@Variant(\\0\\0\\x4\\x1a\\x7f)");
        QTest::newRow("a time") << QByteArray("a=@DateTime(\\0\\0\\0\\x10)")
                                << QByteArray("a=@@DateTime(\\0\\0\\0\\x10)");
        QTest::newRow("two, in a list") << QByteArray("a=\"@Variant(\\0\\0\\0\\t\\x7f)\", @Variant(x)\nb=1\n")
                                        << QByteArray("a=\"@@Variant(\\0\\0\\0\\t\\x7f)\", @@Variant(x)\nb=1\n");
        QTest::newRow("escaped") << QByteArray("a=1\\x40Var\\iiant(\\0\\0\\0\\xb)")
                                 << QByteArray("a=1@\\x40Var\\iiant(\\0\\0\\0\\xb)");
    }

    void whatCanDoHarmBecomesText()
    {
        QFETCH(QByteArray, ini);
        QTEST(withHarmlessValues(ini), "harmless");
    }

    void whatDoesNoHarmStays_data()
    {
        QTest::addColumn<QByteArray>("ini");
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("a point") << QByteArray(
            "[view]\nmapCenter=@Variant(\\0\\0\\0\\x1a@\\0\\0\\0\\0\\0\\0\\0@H\\x80\\0\\0\\0\\0\\0)\n");
        QTest::newRow("a point of few bytes") << QByteArray("mapCenter=@Variant(\\0\\0\\0\\x1a@)");
        QTest::newRow("a rectangle") << QByteArray("a=@Variant(\\0\\0\\0\\x14\\0)");
        QTest::newRow("values that read as text") << QByteArray("a=@ByteArray(x)\nb=@@home\nc=Variant(\\0)\nd=x\\");
    }

    void whatDoesNoHarmStays()
    {
        QFETCH(QByteArray, ini);
        QCOMPARE(withHarmlessValues(ini), ini);
    }

    void whatIsLeftOfAHarmfulValueIsTold()
    {
        QVERIFY(isHarmlessRest("@Variant(\n)"));
        QVERIFY(isHarmlessRest("@DateTime(x)"));
        QVERIFY(!isHarmlessRest("Variant("));
        QVERIFY(!isHarmlessRest(""));
    }
};

QTEST_MAIN(TestIniValues)
#include "tst_inivalues.moc"
