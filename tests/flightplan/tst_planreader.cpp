// The reader takes any bytes: what is a plan comes in, what is damaged is counted.
#include "planlines.h"
#include "planreader.h"
#include "shortdevice.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QtTest>

#include <cmath>

namespace {

CFpLinePtr cruisingLine()
{
    CFpLinePtr line(new CFpLine);
    line->speed = 110;
    line->altd = 6500;
    return line;
}

PlanFile read(QByteArray bytes)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return readPlan(buffer, cruisingLine);
}

struct Expected
{
    const char* file;
    int lines;
    int skipped;
};

// What each broken file still gives.
const Expected expectations[] = {
    {"byte_order_mark.fpl", 1, 0},
    {"comment_only_tags.fpl", 1, 0},
    {"cut_after_position_tag.fpl", 1, 1},
    {"cut_after_waypoint_tag.fpl", 2, 0},
    {"cut_in_a_tag.fpl", 1, 0},
    {"empty.fpl", 0, 0},
    {"fields_before_the_first_waypoint.fpl", 1, 3},
    {"fields_without_any_waypoint.fpl", 0, 4},
    {"no_plan_but_a_letter.fpl", 0, 0},
    {"numbers_out_of_range.fpl", 1, 0},
    {"position_not_a_number.fpl", 3, 0},
    {"position_of_one_part.fpl", 2, 1},
    {"position_of_two_parts.fpl", 1, 1},
    {"position_on_the_tag_line.fpl", 1, 1},
    {"random_bytes.fpl", 0, 0},
    {"tags_in_capitals.fpl", 0, 0},
    {"zero_bytes.fpl", 1, 0},
};

} // namespace

class TestPlanReader : public QObject
{
    Q_OBJECT

private slots:
    void everyWrittenFieldComesBack()
    {
        const PlanFile plan = read(airportAndNavaidText);
        QCOMPARE(plan.lines.size(), 2);
        QCOMPARE(plan.skipped, 0);
        const CFpLine& line = *plan.lines.first();
        QCOMPARE(line.fpType, QString("airp"));
        QCOMPARE(line.name, QString("San Francisco Intl"));
        QCOMPARE(line.iden, QString("KSFO"));
        QCOMPARE(line.latS, 135720.5);
        QCOMPARE(line.lonS, -440912.25);
        QCOMPARE(line.elev, 13);
        QCOMPARE(line.dbKey, QString("US_KSFO"));
        QCOMPARE(line.usage, QString("airp"));
        QCOMPARE(line.altd, 13);
    }

    void fieldsThatAreNotInTheFileAreThoseOfANewLine()
    {
        const CFpLine navaid = *read(airportAndNavaidText).lines.last();
        QCOMPARE(navaid.speed, 110);
        QCOMPARE(navaid.navType, 0);
        QCOMPARE(navaid.freq, 0.0);
        QCOMPARE(navaid.ctry, QString());
        QCOMPARE(navaid.heading, 0.0);
    }

    void emptyValueReadsBackEmptyAndNoneAsNone()
    {
        const PlanFile plan = read(airportAndNavaidText);
        QCOMPARE(plan.lines.first()->tkof, QString());
        QCOMPARE(plan.lines.first()->land, QString());
        QCOMPARE(plan.lines.first()->mark, QString());
        QCOMPARE(plan.lines.last()->tkof, QString("NONE"));
        QCOMPARE(plan.lines.last()->land, QString("NONE"));
    }

    void carriageReturnsReadTheSame()
    {
        QByteArray text = airportAndNavaidText;
        text.replace("\n", "\r\n");
        const PlanFile plan = read(text);
        QCOMPARE(plan.lines.size(), 2);
        QCOMPARE(plan.skipped, 0);
        QCOMPARE(plan.lines.first()->fpType, QString("airp"));
        QCOMPARE(plan.lines.first()->name, QString("San Francisco Intl"));
        QCOMPARE(plan.lines.first()->tkof, QString());
        QCOMPARE(plan.lines.last()->land, QString("NONE"));
        QCOMPARE(plan.lines.last()->elev, 10);
    }

    void indentationDoesNotMatter()
    {
        const PlanFile plan =
            read("   \t <wpnt>\n\t\t\t   snav\n<name>at the margin\nOAKLAND  \n\t\t\t\t<altd>\n 7 \n");
        QCOMPARE(plan.lines.size(), 1);
        QCOMPARE(plan.lines.first()->fpType, QString("snav"));
        QCOMPARE(plan.lines.first()->name, QString("OAKLAND"));
        QCOMPARE(plan.lines.first()->altd, 7);
    }

    void sixCharactersMakeTheTag()
    {
        const PlanFile plan = read("<wpnt>glued to its comment\nuswp\nx <name>\nnot a tag\n<nam>\nnot either\n");
        QCOMPARE(plan.lines.size(), 1);
        QCOMPARE(plan.lines.first()->name, QString());
    }

    void versionTagReadsItsOwnLine()
    {
        const PlanFile plan = read("<vers> ---------- Version number --------\n12\n<wpnt>\nuswp\n");
        QVERIFY(plan.versionSeen);
        QCOMPARE(plan.version, 0);
        QCOMPARE(plan.lines.size(), 1);
    }

    void withoutAVersionTagThereIsNoVersion()
    {
        QVERIFY(!read("<wpnt>\nuswp\n").versionSeen);
    }

    void valueThatLooksLikeATagIsAValue()
    {
        const PlanFile plan = read("<desc>\n<wpnt>\n<form>\n<wpnt>\n<ceil>\n<wpnt>\n<vers>\n<wpnt>\n"
                                   "<wpnt>\n<wpnt>\n<name>\n<iden>\n<iden>\n<wpnt>\n");
        QCOMPARE(plan.lines.size(), 1);
        QCOMPARE(plan.lines.first()->fpType, QString("<wpnt>"));
        QCOMPARE(plan.lines.first()->name, QString("<iden>"));
        QCOMPARE(plan.lines.first()->iden, QString("<wpnt>"));
    }

    void positionKeepsEmptyParts()
    {
        const CFpLine line = *read("<wpnt>\nuswp\n<llps>\n,,12\n").lines.first();
        QCOMPARE(line.latS, 0.0);
        QCOMPARE(line.lonS, 0.0);
        QCOMPARE(line.elev, 12);
    }

    void partsBehindTheThirdAreLeft()
    {
        const PlanFile plan = read("<wpnt>\nuswp\n<llps>\n1.5,2.5,3,4,5\n");
        QCOMPARE(plan.skipped, 0);
        QCOMPARE(plan.lines.first()->latS, 1.5);
        QCOMPARE(plan.lines.first()->lonS, 2.5);
        QCOMPARE(plan.lines.first()->elev, 3);
    }

    void shortPositionLeavesThePointWhereANewOneIs()
    {
        const CFpLine line = *read("<wpnt>\nuswp\n<llps>\n1.5,2.5\n").lines.first();
        QCOMPARE(line.latS, 0.0);
        QCOMPARE(line.lonS, 0.0);
        QCOMPARE(line.elev, 0);
    }

    void numbersThatAreNoneGiveZero()
    {
        const CFpLine line = *read("<wpnt>\nuswp\n<altd>\nabc\n<llps>\nx,y,z\n").lines.first();
        QCOMPARE(line.altd, 0);
        QCOMPARE(line.latS, 0.0);
        QCOMPARE(line.elev, 0);
    }

    void accentedNamesComeBack()
    {
        QCOMPARE(read("<wpnt>\nairp\n<name>\nOrl\xC3\xA9"
                      "ans\n")
                     .lines.first()
                     ->name,
                 QString::fromUtf8("Orléans"));
    }

    void deviceThatIsNotOpenGivesNothing()
    {
        QBuffer closed;
        QVERIFY(readPlan(closed, cruisingLine).lines.isEmpty());
    }

    void deviceThatGivesLessThanItsSizeEnds_data()
    {
        QTest::addColumn<bool>("fails");
        QTest::newRow("nothing behind the last byte") << false;
        QTest::newRow("reads fail behind the last byte") << true;
    }

    void deviceThatGivesLessThanItsSizeEnds()
    {
        QFETCH(bool, fails);
        const auto behind = fails ? ShortDevice::Behind::Failure : ShortDevice::Behind::Nothing;
        ShortDevice device("<wpnt>\nuswp\n<name>\nBAMES\n<llps>\n1.5,2.5,3\n<wpnt>\nsn", behind);
        const PlanFile plan = readPlan(device, cruisingLine);
        QCOMPARE(plan.lines.size(), 2);
        QCOMPARE(plan.skipped, 0);
        QCOMPARE(plan.lines.first()->name, QString("BAMES"));
        QCOMPARE(plan.lines.first()->elev, 3);
        QCOMPARE(plan.lines.last()->fpType, QString("sn"));
    }

    void deviceThatGivesNothingEnds()
    {
        ShortDevice empty("", ShortDevice::Behind::Nothing);
        QVERIFY(readPlan(empty, cruisingLine).lines.isEmpty());
        ShortDevice failing("", ShortDevice::Behind::Failure);
        QVERIFY(readPlan(failing, cruisingLine).lines.isEmpty());
    }

    void fileOfTheSystemThatIsShorterThanItsSizeEnds()
    {
        // A page by its size, a few bytes by its content; the second cannot be read at all.
        for (const char* path : {"/sys/class/net/lo/mtu", "/sys/class/net/lo/speed"}) {
            QFile file(path);
            if (!file.open(QIODevice::ReadOnly)) {
                QSKIP("this machine has no such files");
            }
            QVERIFY(file.size() > 1000);
            QVERIFY(readPlan(file, cruisingLine).lines.isEmpty());
        }
    }

    void aLineLongerThanAnyOfAPlanEndsTheReading_data()
    {
        QTest::addColumn<QByteArray>("start");
        QTest::newRow("a tag") << QByteArray("<wpnt>\nuswp\n");
        QTest::newRow("a point's word") << QByteArray("<wpnt>\n");
        QTest::newRow("a value") << QByteArray("<wpnt>\nuswp\n<name>\n");
        QTest::newRow("a value that is left") << QByteArray("<wpnt>\nuswp\n<desc>\n");
    }

    void aLineLongerThanAnyOfAPlanEndsTheReading()
    {
        QFETCH(QByteArray, start);
        constexpr int longest = 1024 * 1024;
        const PlanFile longestPlan = read(start + QByteArray(longest, 'N') + "\n<wpnt>\nuswp\n");
        QVERIFY(!longestPlan.tooLong);
        QCOMPARE(longestPlan.lines.size(), 2);
        const PlanFile longer = read(start + QByteArray(longest + 1, 'N') + "\n<wpnt>\nuswp\n");
        QVERIFY(longer.tooLong);
        QCOMPARE(longer.lines.size(), 1); // nothing behind it is read
    }

    void moreLinesThanAnyPlanHasEndTheReading_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<int>("most");
        QTest::newRow("points") << QByteArray("<wpnt>\nuswp\n") << 20000;
        QTest::newRow("names of one point") << QByteArray("<name>\n" + QByteArray(1024 * 1024 - 8, 'N') + '\n') << 31;
        QTest::newRow("lines that are none of a plan") << QByteArray(1023, 'x') + '\n' << 32 * 1024 - 1;
    }

    void moreLinesThanAnyPlanHasEndTheReading()
    {
        QFETCH(QByteArray, line);
        QFETCH(int, most);
        const QByteArray start = line.startsWith("<wpnt>") ? "" : "<wpnt>\nuswp\n";
        const PlanFile largest = read(start + line.repeated(most));
        QVERIFY(!largest.tooLong);
        QCOMPARE(largest.lines.size(), start.isEmpty() ? most : 1);
        const PlanFile larger = read(start + line.repeated(most + 1) + "<wpnt>\nuswp\n");
        QVERIFY(larger.tooLong);
        QCOMPARE(larger.lines.size(), start.isEmpty() ? most : 1); // nothing behind it is read
    }

    void aDeviceThatNeverEndsALineIsRefused()
    {
        QFile zeros("/dev/zero");
        QVERIFY(zeros.open(QIODevice::ReadOnly));
        QVERIFY(readPlan(zeros, cruisingLine).tooLong);
    }

    void emptyLinesDoNotEndThePlan()
    {
        const PlanFile plan = read("\n\n<wpnt>\nuswp\n\n   \n\n<name>\n\n<iden>\nBAMES\n\n<wpnt>\nsnav\n");
        QCOMPARE(plan.lines.size(), 2);
        QCOMPARE(plan.lines.first()->name, QString());
        QCOMPARE(plan.lines.first()->iden, QString("BAMES"));
    }

    void brokenFiles_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<int>("lines");
        QTest::addColumn<int>("skipped");
        const QDir folder(QStringLiteral(FIXTURES));
        for (const QString& file : folder.entryList({"*.fpl"}, QDir::Files, QDir::Name)) {
            // A file that the table does not know fails on the impossible counts.
            Expected expected{"", -1, -1};
            for (const Expected& row : expectations) {
                expected = file == row.file ? row : expected;
            }
            QTest::newRow(qPrintable(file)) << folder.filePath(file) << expected.lines << expected.skipped;
        }
    }

    void brokenFiles()
    {
        QFETCH(QString, path);
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const PlanFile plan = readPlan(file, cruisingLine);
        QTEST(plan.lines.size(), "lines");
        QTEST(plan.skipped, "skipped");
    }

    void everyExpectationHasItsFile()
    {
        for (const Expected& row : expectations) {
            QVERIFY2(QFile::exists(QStringLiteral(FIXTURES "/") + row.file), row.file);
        }
    }
};

QTEST_APPLESS_MAIN(TestPlanReader)
#include "tst_planreader.moc"
