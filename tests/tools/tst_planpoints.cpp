// The points that flysim takes from a flight plan: the planner's own files, files from other hands, and what is no
// plan.
#include "cfpline.h"
#include "planpoints.h"
#include "plantext.h"

#include <QTemporaryDir>
#include <QtTest>

#include <sstream>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

class TestPlanPoints : public QObject
{
    Q_OBJECT

private slots:
    void thePlannersOwnTextIsRead();
    void lineEndsAndIndentationDoNotMatter_data();
    void lineEndsAndIndentationDoNotMatter();
    void aValueThatLooksLikeATagIsAValue();
    void positions_data();
    void positions();
    void aWaypointWithoutAReadablePositionIsLeftOut();
    void whatStandsBeforeTheFirstWaypointIsLeft();
    void aPlanThatIsCutOffGivesItsFirstPoints();
    void foreignBytesGiveNoPoints_data();
    void foreignBytesGiveNoPoints();
    void damagedPlansAreSurvived();
    void aFileIsRead();
    void whatIsNoReadablePlanIsSaid();
    void aFileWithoutEndIsNotRead();
    void whatStandsBeyondTheGreatestSizeIsNotRead_data();
    void whatStandsBeyondTheGreatestSizeIsNotRead();
    void numbers_data();
    void numbers();

private:
    QTemporaryDir folder;
};

namespace {

CFpLinePtr madeLine(const char* iden, const char* usage, double latS, double lonS)
{
    CFpLinePtr line(new CFpLine);
    line->name = QString::fromUtf8("Aéroport <llps>");
    line->iden = iden;
    line->usage = usage;
    line->dbKey = iden;
    line->latS = latS;
    line->lonS = lonS;
    line->elev = 13;
    line->altd = 13;
    line->tkof = line->land = line->mark = "";
    return line;
}

PlanPoints read(const QByteArray& bytes)
{
    std::istringstream stream(bytes.toStdString());
    return readPlanPoints(stream);
}

const char* const smallPlan = "<bgno> == Generated with zephan Trajector ==\n"
                              "\t<form> ---- Format Type -----------------\n\twpno=1, format=FM01\n"
                              "\t<wpnt> --------- Waypoint ---------------\n\tairp\n"
                              "\t<bgno> ========== BEGIN OBJECT ==========\n"
                              "\t\t<iden> ---------- Waypoint identity -----\n\t\tKSFO\n"
                              "\t\t<llps> ---------- Lat/lon,alt position --\n\t\t135720.500,-440912.250,13\n"
                              "\t<endo> ========== END OBJECT ============\n"
                              "\t<wpnt> --------- Waypoint ---------------\n\tuswp\n"
                              "\t\t<iden> ---------- Waypoint identity -----\n\t\tWPT 001\n"
                              "\t\t<llps> ---------- Lat/lon,alt position --\n\t\t-3600.000,1292400.000,0\n"
                              "<endo> ========== END OBJECT ============\n";

void compareSmallPlan(const PlanPoints& plan)
{
    QCOMPARE(plan.waypoints, 2);
    QCOMPARE(plan.points.size(), std::size_t(2));
    QCOMPARE(plan.points[0].iden, std::string("KSFO"));
    QCOMPARE(plan.points[0].place.latitude, 37.700138888888889);
    QCOMPARE(plan.points[0].place.longitude, -122.475625);
    QCOMPARE(plan.points[1].iden, std::string("WPT 001"));
    QCOMPARE(plan.points[1].place.latitude, -1.0);
    QCOMPARE(plan.points[1].place.longitude, 359.0);
}

} // namespace

void TestPlanPoints::thePlannersOwnTextIsRead()
{
    const QByteArray text =
        planText({madeLine("LFPO", "airp", 175426.2, 8492.256), madeLine("AMB", "snav", 167400, -36),
                  madeLine("WPT001", "uswp", -0.5, 1295999.5)},
                 7, 12000)
            .join(QString())
            .toUtf8();
    const PlanPoints plan = read(text);
    QCOMPARE(plan.waypoints, 3);
    QCOMPARE(plan.points.size(), std::size_t(3));
    QCOMPARE(plan.points[0].iden, std::string("LFPO"));
    QCOMPARE(plan.points[0].place.latitude, 48.7295);
    QCOMPARE(plan.points[0].place.longitude, 2.35896);
    QCOMPARE(plan.points[1].place.latitude, 46.5);
    QCOMPARE(plan.points[1].place.longitude, -0.01);
    QCOMPARE(plan.points[2].iden, std::string("WPT001"));
    QCOMPARE(plan.points[2].place.longitude, 1295999.5 / 3600.0);
}

void TestPlanPoints::lineEndsAndIndentationDoNotMatter_data()
{
    QTest::addColumn<QByteArray>("text");
    const QByteArray text(smallPlan);
    QTest::newRow("line feeds") << text;
    QTest::newRow("carriage returns too") << QByteArray(text).replace('\n', "\r\n");
    QTest::newRow("no tabs") << QByteArray(text).replace('\t', "");
    QTest::newRow("blanks everywhere") << QByteArray(text).replace('\n', " \t \n   ");
    QTest::newRow("no line feed at the end") << text.trimmed();
}

void TestPlanPoints::lineEndsAndIndentationDoNotMatter()
{
    QFETCH(const QByteArray, text);
    compareSmallPlan(read(text));
}

void TestPlanPoints::aValueThatLooksLikeATagIsAValue()
{
    const PlanPoints plan = read("<desc> d\n<wpnt> of the sea\n<wpnt>\nairp\n<name>\n<wpnt>\n<iden>\n<llps>\n"
                                 "<llps>\n3600,7200,0\n<tkof>\n<llps>\n<land>\n<wpnt>\n");
    QCOMPARE(plan.waypoints, 1);
    QCOMPARE(plan.points.size(), std::size_t(1));
    QCOMPARE(plan.points[0].iden, std::string("<llps>"));
    QCOMPARE(plan.points[0].place.longitude, 2.0);
}

void TestPlanPoints::positions_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<bool>("taken");
    QTest::newRow("as written") << QByteArray("135720.500,-440912.250,13") << true;
    QTest::newRow("no altitude") << QByteArray("135720.500,-440912.250") << true;
    QTest::newRow("more parts") << QByteArray("135720.500,-440912.250,13,4,5") << true;
    QTest::newRow("blanks around") << QByteArray(" 135720.5 , -440912.25 , x") << true;
    QTest::newRow("the pole") << QByteArray("324000,0,0") << true;
    QTest::newRow("beyond the pole") << QByteArray("324000.001,0,0") << false;
    QTest::newRow("one number") << QByteArray("135720.500") << false;
    QTest::newRow("nothing") << QByteArray("") << false;
    QTest::newRow("commas") << QByteArray(",,") << false;
    QTest::newRow("a word") << QByteArray("north,east,0") << false;
    QTest::newRow("a number with a tail") << QByteArray("135720.5N,-440912.25,0") << false;
    QTest::newRow("no number") << QByteArray("nan,0,0") << false;
    QTest::newRow("infinity") << QByteArray("0,inf,0") << false;
    QTest::newRow("too great for a double") << QByteArray("0,1e999,0") << false;
}

void TestPlanPoints::positions()
{
    QFETCH(const QByteArray, value);
    QFETCH(const bool, taken);
    const PlanPoints plan = read("<wpnt>\nairp\n<llps>\n" + value + "\n");
    QCOMPARE(plan.waypoints, 1);
    QCOMPARE(plan.points.size(), std::size_t(taken ? 1 : 0));
}

void TestPlanPoints::aWaypointWithoutAReadablePositionIsLeftOut()
{
    const PlanPoints plan = read("<wpnt>\nairp\n<iden>\nONE\n<llps>\n0,0,0\n<wpnt>\nuswp\n<iden>\nTWO\n"
                                 "<wpnt>\nairp\n<iden>\nTHREE\n<llps>\n3600,0,0\n");
    QCOMPARE(plan.waypoints, 3);
    QCOMPARE(plan.points.size(), std::size_t(2));
    QCOMPARE(plan.points[0].iden, std::string("ONE"));
    QCOMPARE(plan.points[1].iden, std::string("THREE"));
}

void TestPlanPoints::whatStandsBeforeTheFirstWaypointIsLeft()
{
    const PlanPoints plan = read("<iden>\nEARLY\n<llps>\n3600,3600,0\n<wpnt>\nairp\n<llps>\n7200,7200,0\n");
    QCOMPARE(plan.waypoints, 1);
    QCOMPARE(plan.points.size(), std::size_t(1));
    QCOMPARE(plan.points[0].iden, std::string());
    QCOMPARE(plan.points[0].place.latitude, 2.0);
}

void TestPlanPoints::aPlanThatIsCutOffGivesItsFirstPoints()
{
    const QByteArray text(smallPlan);
    const PlanPoints plan = read(text.left(text.indexOf("-3600.000,1292400") + 5));
    QCOMPARE(plan.waypoints, 2);
    QCOMPARE(plan.points.size(), std::size_t(1));
}

void TestPlanPoints::foreignBytesGiveNoPoints_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QByteArray every;
    for (int i = 0; i < 1024; ++i) {
        every += static_cast<char>(i * 7);
    }
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("zeros") << QByteArray(100000, '\0');
    QTest::newRow("every byte") << every;
    QTest::newRow("one long line") << QByteArray(1000000, '<');
    QTest::newRow("a tag at the far end of a long line") << QByteArray(5000, ' ') + "<wpnt>\n";
    QTest::newRow("two bytes a character") << QByteArray("<\0w\0p\0n\0t\0>\0\n\0", 14);
    QTest::newRow("other letters") << QByteArray("<WPNT>\nairp\n<LLPS>\n0,0,0\n");
}

void TestPlanPoints::foreignBytesGiveNoPoints()
{
    QFETCH(const QByteArray, bytes);
    const PlanPoints plan = read(bytes);
    QCOMPARE(plan.waypoints, 0);
    QCOMPARE(plan.points.size(), std::size_t(0));
}

void TestPlanPoints::damagedPlansAreSurvived()
{
    // Every byte of a plan in turn becomes another; whatever is read, each position lies on the earth.
    const QByteArray text(smallPlan);
    for (int at = 0; at < text.size(); ++at) {
        for (const char byte : {'\0', '\n', '\r', ',', '9', '<', '\xff'}) {
            QByteArray damaged = text;
            damaged[at] = byte;
            const PlanPoints plan = read(damaged);
            QVERIFY(plan.waypoints <= 2);
            QVERIFY(plan.points.size() <= static_cast<std::size_t>(plan.waypoints));
            for (const PlanPoint& point : plan.points) {
                QVERIFY(point.place.latitude >= -90.0 && point.place.latitude <= 90.0);
                QVERIFY(qIsFinite(point.place.longitude));
            }
        }
    }
}

void TestPlanPoints::aFileIsRead()
{
    const QString path = folder.filePath("KSFO_WPT 001.FPL");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(smallPlan);
    file.close();
    std::string error;
    compareSmallPlan(readPlanFile(path.toStdString(), error));
    QCOMPARE(error, std::string());
}

void TestPlanPoints::whatIsNoReadablePlanIsSaid()
{
    std::string error;
    QCOMPARE(readPlanFile(folder.filePath("missing.FPL").toStdString(), error).waypoints, 0);
    QCOMPARE(QString::fromStdString(error), folder.filePath("missing.FPL") + ": no such file");
    QCOMPARE(readPlanFile(folder.path().toStdString(), error).waypoints, 0);
    QCOMPARE(QString::fromStdString(error), folder.path() + ": cannot be read");
    QFile empty(folder.filePath("empty.FPL"));
    QVERIFY(empty.open(QIODevice::WriteOnly));
    empty.close();
    QCOMPARE(readPlanFile(empty.fileName().toStdString(), error).waypoints, 0);
    QCOMPARE(QString::fromStdString(error), empty.fileName() + ": is no flight plan");
}

void TestPlanPoints::aFileWithoutEndIsNotRead()
{
#ifdef Q_OS_UNIX
    std::string error;
    const QByteArray pipe = folder.filePath("pipe").toLocal8Bit();
    QCOMPARE(mkfifo(pipe.constData(), 0600), 0);
    QCOMPARE(readPlanFile(pipe.toStdString(), error).waypoints, 0);
    QCOMPARE(QByteArray::fromStdString(error), pipe + ": cannot be read");
    QCOMPARE(readPlanFile("/dev/zero", error).waypoints, 0);
    QCOMPARE(error, std::string("/dev/zero: cannot be read"));
#else
    QSKIP("no named pipes in this file system");
#endif
}

void TestPlanPoints::whatStandsBeyondTheGreatestSizeIsNotRead_data()
{
    QTest::addColumn<int>("offset");
    QTest::addColumn<int>("waypoints");
    QTest::addColumn<int>("points");
    // 64 MB and the 23 bytes of a waypoint.
    QTest::newRow("the last bytes") << -23 << 2 << 2;
    QTest::newRow("the last byte too late") << -22 << 2 << 1;
    QTest::newRow("beyond them") << 0 << 1 << 1;
}

void TestPlanPoints::whatStandsBeyondTheGreatestSizeIsNotRead()
{
    QFETCH(const int, offset);
    QFETCH(const int, waypoints);
    QFETCH(const int, points);
    const QByteArray waypoint("\n<wpnt>\nairp\n<llps>\n0,0");
    QCOMPARE(waypoint.size(), 23);
    QFile file(folder.filePath("great.FPL"));
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(waypoint + "\n");
    // Zeros that take no room on the disk.
    QVERIFY(file.seek(67108864 + offset));
    file.write(waypoint);
    file.close();
    std::string error;
    const PlanPoints plan = readPlanFile(file.fileName().toStdString(), error);
    QCOMPARE(plan.waypoints, waypoints);
    QCOMPARE(plan.points.size(), std::size_t(points));
    QCOMPARE(error, std::string());
}

void TestPlanPoints::numbers_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("isNumber");
    QTest::addColumn<double>("number");
    QTest::newRow("whole") << QByteArray("120") << true << 120.0;
    QTest::newRow("decimals") << QByteArray("-0.25") << true << -0.25;
    QTest::newRow("blanks around") << QByteArray(" 1.5\r") << true << 1.5;
    QTest::newRow("power") << QByteArray("1e3") << true << 1000.0;
    QTest::newRow("a plus sign") << QByteArray("+1.5") << true << 1.5;
    QTest::newRow("two signs") << QByteArray("+-1.5") << false << 0.0;
    QTest::newRow("two plus signs") << QByteArray("++1.5") << false << 0.0;
    QTest::newRow("a plus sign alone") << QByteArray("+") << false << 0.0;
    QTest::newRow("nothing") << QByteArray("") << false << 0.0;
    QTest::newRow("comma for the decimals") << QByteArray("1,5") << false << 0.0;
    QTest::newRow("a unit") << QByteArray("120kt") << false << 0.0;
    QTest::newRow("two numbers") << QByteArray("1 2") << false << 0.0;
    QTest::newRow("infinity") << QByteArray("inf") << false << 0.0;
    QTest::newRow("no number") << QByteArray("nan") << false << 0.0;
    QTest::newRow("too great") << QByteArray("1e400") << false << 0.0;
}

void TestPlanPoints::numbers()
{
    QFETCH(const QByteArray, text);
    QFETCH(const bool, isNumber);
    QFETCH(const double, number);
    double read = 0.0;
    QCOMPARE(readNumber(text.toStdString(), read), isNumber);
    if (isNumber) {
        QCOMPARE(read, number);
    }
}

QTEST_APPLESS_MAIN(TestPlanPoints)
#include "tst_planpoints.moc"
