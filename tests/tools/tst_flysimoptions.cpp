// The command line of flysim.
#include "options.h"

#include <QtTest>

class TestFlySimOptions : public QObject
{
    Q_OBJECT

private slots:
    void optionsHaveTheirDefaults();
    void optionsAreTaken();
    void theLastOfTwoEqualOptionsCounts();
    void aValueMayFollowAnEqualsSign();
    void aPlusSignIsAsMuchAsNone();
    void wrongCommandLines_data();
    void wrongCommandLines();
    void theHelpNamesEveryOption();
};

void TestFlySimOptions::optionsHaveTheirDefaults()
{
    Options options;
    std::string error;
    QVERIFY(readOptions({"--plan", "A.FPL"}, options, error));
    QCOMPARE(options.plan, std::string("A.FPL"));
    QCOMPARE(options.speed, 120.0);
    QCOMPARE(options.factor, 1.0);
    QCOMPARE(options.rate, 25.0);
    QCOMPARE(options.loop, false);
    QCOMPARE(options.help, false);
    QVERIFY(readOptions({"--start", "1,2"}, options, error));
    QCOMPARE(options.plan, std::string());
    QCOMPARE(options.course, 0.0);
}

void TestFlySimOptions::optionsAreTaken()
{
    Options options;
    std::string error;
    QVERIFY(readOptions({"--loop", "--speed", "250.5", "--plan", "A B.FPL", "--factor", "60", "--rate", "0.5"}, options,
                        error));
    QCOMPARE(options.plan, std::string("A B.FPL"));
    QCOMPARE(options.speed, 250.5);
    QCOMPARE(options.factor, 60.0);
    QCOMPARE(options.rate, 0.5);
    QCOMPARE(options.loop, true);
    QVERIFY(readOptions({"--heading", "271", "--start", "-48.5,-2.25"}, options, error));
    QCOMPARE(options.start.latitude, -48.5);
    QCOMPARE(options.start.longitude, -2.25);
    QCOMPARE(options.course, 271.0);
    QCOMPARE(options.loop, false);
    QVERIFY(readOptions({"--speed", "90", "--help", "--nonsense"}, options, error));
    QCOMPARE(options.help, true);
}

void TestFlySimOptions::theLastOfTwoEqualOptionsCounts()
{
    Options options;
    std::string error;
    QVERIFY(readOptions({"--start", "1,2", "--speed", "90", "--start", "3,4", "--speed", "95"}, options, error));
    QCOMPARE(options.start.latitude, 3.0);
    QCOMPARE(options.speed, 95.0);
}

void TestFlySimOptions::aValueMayFollowAnEqualsSign()
{
    Options options;
    std::string error;
    QVERIFY(readOptions({"--plan=A=B.FPL", "--speed=450", "--factor", "20"}, options, error));
    QCOMPARE(options.plan, std::string("A=B.FPL"));
    QCOMPARE(options.speed, 450.0);
    QCOMPARE(options.factor, 20.0);
    QVERIFY(readOptions({"--start=-48.5,2", "--heading=271"}, options, error));
    QCOMPARE(options.start.latitude, -48.5);
    QCOMPARE(options.start.longitude, 2.0);
    QCOMPARE(options.course, 271.0);
    // A file may have any name.
    QVERIFY(readOptions({"--plan", "--speed=450"}, options, error));
    QCOMPARE(options.plan, std::string("--speed=450"));
    QCOMPARE(options.speed, 120.0);
}

void TestFlySimOptions::aPlusSignIsAsMuchAsNone()
{
    Options options;
    std::string error;
    QVERIFY(readOptions({"--start", "+48.5,+2.25", "--speed", "+90"}, options, error));
    QCOMPARE(options.start.latitude, 48.5);
    QCOMPARE(options.start.longitude, 2.25);
    QCOMPARE(options.speed, 90.0);
}

void TestFlySimOptions::wrongCommandLines_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("message");
    QTest::newRow("none") << QStringList() << "--plan or --start is wanted";
    QTest::newRow("unknown") << QStringList{"--plan", "A", "--fast"} << "unknown option \"--fast\"";
    QTest::newRow("a bare word") << QStringList{"A.FPL"} << "unknown option \"A.FPL\"";
    QTest::newRow("no value") << QStringList{"--plan", "A", "--speed"} << "--speed wants a value";
    QTest::newRow("empty path") << QStringList{"--plan", ""} << "--plan wants the path of a flight plan";
    QTest::newRow("both") << QStringList{"--plan", "A", "--start", "1,2"} << "--plan and --start exclude each other";
    QTest::newRow("heading with a plan") << QStringList{"--plan", "A", "--heading", "90"}
                                         << "--heading goes with --start; a plan has its own";
    QTest::newRow("loop without a plan") << QStringList{"--start", "1,2", "--loop"} << "--loop goes with --plan";
    QTest::newRow("speed no number") << QStringList{"--start", "1,2", "--speed", "fast"}
                                     << "--speed wants a number from 0 to 10000, not \"fast\"";
    QTest::newRow("speed below 0") << QStringList{"--start", "1,2", "--speed", "-1"}
                                   << "--speed wants a number from 0 to 10000, not \"-1\"";
    QTest::newRow("speed beyond reason") << QStringList{"--start", "1,2", "--speed", "10001"}
                                         << "--speed wants a number from 0 to 10000, not \"10001\"";
    QTest::newRow("speed nan") << QStringList{"--start", "1,2", "--speed", "nan"}
                               << "--speed wants a number from 0 to 10000, not \"nan\"";
    QTest::newRow("factor 0") << QStringList{"--start", "1,2", "--factor", "0"}
                              << "--factor wants a number from 0.01 to 1000, not \"0\"";
    QTest::newRow("rate 0") << QStringList{"--start", "1,2", "--rate", "0"}
                            << "--rate wants a number from 0.1 to 1000, not \"0\"";
    QTest::newRow("heading 361") << QStringList{"--start", "1,2", "--heading", "361"}
                                 << "--heading wants a number from 0 to 360, not \"361\"";
    QTest::newRow("an equals sign behind a switch")
        << QStringList{"--plan", "A", "--loop=1"} << "unknown option \"--loop=1\"";
    QTest::newRow("an equals sign behind the unknown")
        << QStringList{"--plan", "A", "--fast=1"} << "unknown option \"--fast=1\"";
    QTest::newRow("nothing behind an equals sign")
        << QStringList{"--start", "1,2", "--speed="} << "--speed wants a number from 0 to 10000, not \"\"";
    QTest::newRow("no path behind an equals sign")
        << QStringList{"--plan="} << "--plan wants the path of a flight plan";
    for (const QString start :
         {"48.7",  "48.7;2.3", "91,0",    "-90.001,0",  "0,361",       "0,-361", "north,east", "",
          ",",     "1,",       ",2",      "48,73,2,36", "1,2,garbage", "1,2,",   "1,2,3",      "1,2garbage",
          "nan,0", "0,inf",    "1e999,0", "+-1,2",      "++1,2",       "+,2"}) {
        QTest::newRow(qPrintable("start " + start))
            << QStringList{"--start", start}
            << "--start wants LATITUDE,LONGITUDE, two numbers of degrees with decimal points, such as "
               "48.7295,2.359, not \"" +
                   start + "\"";
    }
}

void TestFlySimOptions::wrongCommandLines()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, message);
    std::vector<std::string> texts;
    for (const QString& argument : arguments) {
        texts.push_back(argument.toStdString());
    }
    Options options;
    std::string error;
    QVERIFY(!readOptions(texts, options, error));
    QCOMPARE(QString::fromStdString(error), message);
}

void TestFlySimOptions::theHelpNamesEveryOption()
{
    const QString help = QString::fromStdString(helpText());
    for (const char* option : {"--plan", "--start", "--heading", "--speed", "--factor", "--rate", "--loop", "--help"}) {
        QVERIFY2(help.contains(QString("\n  %1 ").arg(option)), option);
    }
}

QTEST_APPLESS_MAIN(TestFlySimOptions)
#include "tst_flysimoptions.moc"
