// The tables of the tile grid and the numbers of bands, tiles and columns.
#include "tilegrid.h"

#include "messagelog.h"

#include <QtTest>

#include <cmath>
#include <limits>

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
const double notANumber = std::numeric_limits<double>::quiet_NaN();

bool near(double value, double expected)
{
    return std::fabs(value - expected) <= 1e-9 * std::fmax(1.0, std::fabs(expected));
}

} // namespace

class TestTileGrid : public QObject
{
    Q_OBJECT

    TileGrid grid;

private slots:
    void initTestCase()
    {
        grid.buildBands();
        grid.buildDetails(0.0);
    }

    void firstBandRow()
    {
        const BandRow& row = grid.bands[0];
        QCOMPARE(row.latDeg, 0.0);
        QCOMPARE(row.latSec, 0.0);
        QCOMPARE(row.heightSec, 5062.5);
        QCOMPARE(row.midSec, 2531.25);
        QCOMPARE(row.widthNm, 84.375);
        QCOMPARE(row.widthFt, 512672.25F);
        QCOMPARE(row.reserved, 1.6e-5F);
        QCOMPARE(row.tilesAcross, short(2));
        QCOMPARE(int(row.bandsUp), 2);
        QCOMPARE(int(row.bandsDown), 2);
    }

    void bandRows_data()
    {
        QTest::addColumn<int>("number");
        QTest::addColumn<double>("latDeg");
        QTest::addColumn<double>("latSec");
        QTest::addColumn<double>("heightSec");
        QTest::addColumn<double>("midSec");
        QTest::addColumn<double>("widthNm");
        QTest::addColumn<float>("widthFt");
        QTest::addColumn<int>("across");
        QTest::addColumn<int>("up");
        QTest::addColumn<int>("down");
        QTest::newRow("1") << 1 << 1.40625 << 5062.5 << 5060.9752696495325 << 7592.987634824766 << 84.34958782749223
                           << 512517.84375F << 2 << 2 << 2;
        QTest::newRow("2") << 2 << 2.812076463791537 << 10123.475269649532 << 5056.403833136219 << 12651.677186217643
                           << 84.27339721893696 << 512054.90625F << 2 << 2 << 2;
        QTest::newRow("32") << 32 << 41.1290006816712 << 148064.40245401632 << 3813.229712297063 << 149971.01731016487
                            << 63.55382853828458 << 386160.40625F << 3 << 3 << 3;
        QTest::newRow("63") << 63 << 66.20495507071047 << 238337.8382545577 << 2042.547470580379 << 239359.11198984788
                            << 34.0424578430062 << 206845.90625F << 5 << 5 << 4;
        QTest::newRow("64") << 64 << 66.7723293680939 << 240380.38572513807 << 1996.5778806025628 << 241378.67466543935
                            << 33.276298010043014 << 202190.625F << 5 << 5 << 5;
        QTest::newRow("100") << 100 << 80.39136591585859 << 289408.9172970909 << 845.0189715634333 << 289831.42678287264
                             << 14.08364952605776 << 85573.8828125F << 10 << 12 << 9;
        QTest::newRow("120") << 120 << 84.14558098119608 << 302924.0915323059 << 516.3809750467772 << 303182.28201982926
                             << 8.60634958411344 << 52293.171875F << 17 << 7 << 14;
        // The counts of the two top rows towards the pole are set by hand.
        QTest::newRow("126") << 126 << 84.95534091751256 << 305839.2273030452 << 445.15675333188847
                             << 306061.80567971116 << 7.419279222198352 << 45080.3984375F << 19 << 2 << 16;
        QTest::newRow("127") << 127 << 85.07899557121587 << 306284.3840563771 << 434.27225601597456 << 306501.5201843851
                             << 7.237870933599754 << 43978.140625F << 20 << 1 << 16;
    }

    void bandRows()
    {
        QFETCH(int, number);
        const BandRow& row = grid.bands[std::size_t(number)];
        QFETCH(double, latDeg);
        QVERIFY(near(row.latDeg, latDeg));
        QFETCH(double, latSec);
        QVERIFY(near(row.latSec, latSec));
        QFETCH(double, heightSec);
        QVERIFY(std::fabs(row.heightSec - heightSec) < 1e-6);
        QFETCH(double, midSec);
        QVERIFY(near(row.midSec, midSec));
        QFETCH(double, widthNm);
        QVERIFY(near(row.widthNm, widthNm));
        QTEST(row.widthFt, "widthFt");
        QCOMPARE(row.reserved, 0.0F);
        QTEST(int(row.tilesAcross), "across");
        QTEST(int(row.bandsUp), "up");
        QTEST(int(row.bandsDown), "down");
    }

    void gridEndsBeforeThePole()
    {
        const BandRow& row = grid.bands[128];
        QVERIFY(near(row.latDeg, 85.19962675344253));
        QVERIFY(near(row.latSec, 306718.6563123931));
        QCOMPARE(row.widthNm, 0.0);
        QCOMPARE(row.widthFt, 42902.63671875F);
        QCOMPARE(int(row.tilesAcross), 0);
        QCOMPARE(int(row.bandsUp), 0);
        QCOMPARE(int(row.bandsDown), 0);
    }

    void countsComputedAfresh()
    {
        QCOMPARE(grid.countBandsUp(0), 2);
        QCOMPARE(grid.countBandsUp(100), 12);
        QCOMPARE(grid.countBandsUp(126), 1);
        QCOMPARE(grid.countBandsUp(127), 0);
        QCOMPARE(grid.countBandsDown(0), 2);
        QCOMPARE(grid.countBandsDown(63), 4);
        QCOMPARE(grid.countBandsDown(127), 16);
        for (const short outside : {short(-1), short(128), short(32767), short(-32768)}) {
            QCOMPARE(grid.countBandsUp(outside), 0);
            QCOMPARE(grid.countBandsDown(outside), 0);
        }
    }

    void firstDetailRow()
    {
        const DetailRow& row = grid.details[0];
        QCOMPARE(row.latDeg, 0.0);
        QCOMPARE(row.latSec, 0.0);
        QCOMPARE(row.heightSec, 2531.25);
        QCOMPARE(row.stepSec, 79.1015625);
        QCOMPARE(row.widthNm, 42.1875);
        QCOMPARE(row.cosLat, 1.0);
        QCOMPARE(row.invCosLat, 1.0);
        QVERIFY(near(row.rangeFt, -32042.01513671875));
        QCOMPARE(row.widthFt, 256336.125F);
        QCOMPARE(row.rangeNm, 0.0F);
        QCOMPARE(row.count, short(2));
        QCOMPARE(row.cleared1, short(0));
        QCOMPARE(row.cleared2, short(0));
    }

    void detailRows_data()
    {
        QTest::addColumn<int>("number");
        QTest::addColumn<double>("latDeg");
        QTest::addColumn<double>("latSec");
        QTest::addColumn<double>("widthNm");
        QTest::addColumn<double>("cosLat");
        QTest::addColumn<double>("invCosLat");
        QTest::addColumn<double>("rangeFt");
        QTest::addColumn<double>("widthFt");
        QTest::newRow("1") << 1 << 0.703125 << 2531.25 << 42.18432335883891 << 0.9999247018391445 << 1.0000753038310954
                           << -32039.60243190885 << 256316.8194552708;
        QTest::newRow("2") << 2 << 1.40625 << 5062.5 << 42.174793913746115 << 0.9996988186962042 << 1.000301272041302
                           << -32032.364680823626 << 256258.91744658904;
        QTest::newRow("3") << 3 << 2.1091632318957685 << 7592.987634824766 << 42.15891883877795 << 0.9993225206228847
                           << 1.0006779386665807 << -32020.307332262408 << 256162.45865809926;
        QTest::newRow("128") << 128 << 66.7723293680939 << 240380.38572513807 << 16.638149005021507
                             << 0.3943857541931024 << 2.5355885433690686 << -12636.914305561626 << 101095.31444449302;
        QTest::newRow("255") << 255 << 85.13931116232921 << 306501.5201843851 << 3.5746861526734186
                             << 0.08473330139670325 << 11.80173536869776 << -2715.0257259373175 << 21720.20580749854;
        QTest::newRow("256") << 256 << 85.19962675344253 << 306718.6563123931 << 3.5304328771187596
                             << 0.08368433486503726 << 11.949667779671785 << -2681.4147244517644 << 21451.317795614115;
    }

    void detailRows()
    {
        QFETCH(int, number);
        const DetailRow& row = grid.details[std::size_t(number)];
        QFETCH(double, latDeg);
        QVERIFY(near(row.latDeg, latDeg));
        QFETCH(double, latSec);
        QVERIFY(near(row.latSec, latSec));
        QFETCH(double, widthNm);
        QVERIFY(near(row.widthNm, widthNm));
        QFETCH(double, cosLat);
        QVERIFY(near(row.cosLat, cosLat));
        QFETCH(double, invCosLat);
        QVERIFY(near(row.invCosLat, invCosLat));
        QFETCH(double, rangeFt);
        QVERIFY(near(row.rangeFt, rangeFt));
        QFETCH(double, widthFt);
        QVERIFY(std::fabs(double(row.widthFt) - widthFt) < 0.02);
        QCOMPARE(row.rangeNm, 0.0F);
        QCOMPARE(row.count, short(0));
    }

    void detailHeights()
    {
        QCOMPARE(grid.details[1].heightSec, 2531.25);
        QVERIFY(std::fabs(grid.details[255].heightSec - 217.13612800796227) < 1e-6);
        QVERIFY(std::fabs(grid.details[255].stepSec - 6.78550400024882) < 1e-7);
    }

    void detailCountsOfARange()
    {
        TileGrid other;
        other.buildBands();
        other.buildDetails(40.0);
        QCOMPARE(other.details[0].count, short(2));
        QCOMPARE(other.details[0].rangeNm, 40.0F);
        // 40 NM less an eighth of the tile.
        QVERIFY(near(other.details[0].rangeFt, 211002.6033818));
        // 40 / 42.18 rounds up to 1, which becomes 2; 40 / 16.6 rounds up to 3.
        QCOMPARE(other.details[1].count, short(2));
        QCOMPARE(other.details[128].count, short(3));
        QCOMPARE(other.details[256].count, short(0));
        // A range far below zero is the one that keeps its whole length.
        other.buildDetails(-100.0);
        QVERIFY(near(other.details[0].rangeFt, -607611.5462962963));
        QCOMPARE(other.details[1].count, short(-2));
    }

    void bandOfALatitude_data()
    {
        QTest::addColumn<double>("latSec");
        QTest::addColumn<int>("band");
        QTest::newRow("equator belongs to the south") << 0.0 << 127;
        QTest::newRow("one arc second north") << 1.0 << 128;
        QTest::newRow("one arc second south") << -1.0 << 127;
        QTest::newRow("86 degrees north") << 309600.0 << 255;
        QTest::newRow("86 degrees south") << -309600.0 << 0;
        QTest::newRow("pole") << 324000.0 << 255;
        QTest::newRow("48 degrees") << 172800.0 << 166;
        QTest::newRow("48 degrees south") << -172800.0 << 89;
        QTest::newRow("first edge, met after the last round") << 5062.5 << 129;
        QTest::newRow("first edge south") << -5062.5 << 126;
        QTest::newRow("under the edge of row 64") << 240379.5 << 191;
        QTest::newRow("under the edge of row 64, south") << -240379.5 << 64;
    }

    void bandOfALatitude()
    {
        QFETCH(double, latSec);
        QTEST(grid.getVerticalBand(latSec), "band");
    }

    void edgeMetInARoundGivesTheBareRow_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("northOfIt");
        QTest::addColumn<int>("southOfIt");
        QTest::newRow("first round") << 64 << 192 << 63;
        QTest::newRow("second round") << 96 << 224 << 31;
        QTest::newRow("second round, towards the equator") << 32 << 160 << 95;
        QTest::newRow("last round") << 126 << 254 << 1;
        QTest::newRow("last round, towards the equator") << 2 << 130 << 125;
    }

    void edgeMetInARoundGivesTheBareRow()
    {
        QFETCH(int, row);
        const double edge = grid.bands[std::size_t(row)].latSec;
        QTEST(grid.getVerticalBand(edge), "row");
        QTEST(grid.getVerticalBand(-edge), "row");
        QTEST(grid.getVerticalBand(edge + 1.0), "northOfIt");
        QTEST(grid.getVerticalBand(-edge - 1.0), "southOfIt");
    }

    void tileKeys_data()
    {
        QTest::addColumn<double>("latSec");
        QTest::addColumn<double>("lonSec");
        QTest::addColumn<int>("key");
        QTest::newRow("2 degrees east") << 172800.0 << 7200.0 << 65702;
        QTest::newRow("2 degrees west is column 255") << 172800.0 << -7200.0 << 16711846;
        QTest::newRow("the same stored east is column 254") << 172800.0 << 1288800.0 << 16646310;
        QTest::newRow("1 degree east is column 0") << 172800.0 << 3600.0 << 166;
        QTest::newRow("1 degree west is column 0") << 172800.0 << -3600.0 << 166;
        QTest::newRow("equator and zero") << 0.0 << 0.0 << 127;
    }

    void tileKeys()
    {
        QFETCH(double, latSec);
        QFETCH(double, lonSec);
        QTEST(grid.getTileKey(latSec, lonSec), "key");
    }

    void columnOfLongitude_data()
    {
        QTest::addColumn<double>("lonSec");
        QTest::addColumn<int>("column");
        QTest::newRow("+1 degree") << 3600.0 << 0;
        QTest::newRow("-1 degree") << -3600.0 << 0;
        QTest::newRow("-2 degrees") << -7200.0 << 255;
        QTest::newRow("one column") << 5062.5 << 1;
        QTest::newRow("a full circle is column 0") << 1296000.0 << 0;
    }

    void columnOfLongitude()
    {
        QFETCH(double, lonSec);
        QTEST(grid.getTileKey(172800.0, lonSec) >> 16, "column");
    }

    void halfBandOfALatitude_data()
    {
        QTest::addColumn<double>("latSec");
        QTest::addColumn<int>("halfBand");
        QTest::newRow("equator") << 0.0 << 255;
        QTest::newRow("north") << 1.0 << 256;
        QTest::newRow("second half band") << 2531.5 << 257;
        QTest::newRow("second half band south") << -2531.5 << 254;
        QTest::newRow("48 degrees") << 172800.0 << 333;
        QTest::newRow("86 degrees") << 309600.0 << 511;
        QTest::newRow("86 degrees south") << -309600.0 << 0;
    }

    void halfBandOfALatitude()
    {
        QFETCH(double, latSec);
        QTEST(grid.getVerticalQgtNumber(latSec), "halfBand");
    }

    void detailEdgeMetInARoundGivesTheBareRow_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("northOfIt");
        QTest::addColumn<int>("southOfIt");
        QTest::newRow("first round") << 128 << 384 << 127;
        QTest::newRow("second round") << 192 << 448 << 63;
        QTest::newRow("second round, towards the equator") << 64 << 320 << 191;
        QTest::newRow("last round") << 254 << 510 << 1;
        QTest::newRow("last round, towards the equator") << 2 << 258 << 253;
    }

    void detailEdgeMetInARoundGivesTheBareRow()
    {
        QFETCH(int, row);
        const double edge = grid.details[std::size_t(row)].latSec;
        QTEST(grid.getVerticalQgtNumber(edge), "row");
        QTEST(grid.getVerticalQgtNumber(-edge), "row");
        QTEST(grid.getVerticalQgtNumber(edge + 1.0), "northOfIt");
        QTEST(grid.getVerticalQgtNumber(-edge - 1.0), "southOfIt");
    }

    void notANumberIsReportedOnceAndReturns()
    {
        MessageLog log;
        QCOMPARE(grid.getVerticalQgtNumber(notANumber), 127);
        QCOMPARE(log.messages(), QStringList{"QNAN detected"});
    }

    void unusualNumbersReturn()
    {
        QCOMPARE(grid.getVerticalBand(infinity), 255);
        QCOMPARE(grid.getVerticalBand(-infinity), 0);
        QCOMPARE(grid.getVerticalBand(1e300), 255);
        QCOMPARE(grid.getVerticalQgtNumber(1e300), 511);
        QCOMPARE(grid.getVerticalQgtNumber(-infinity), 0);
        // A column that no int holds has no low bits.
        for (const double longitude : {notANumber, infinity, -infinity, 1e300, -1e300}) {
            QCOMPARE(grid.getTileKey(172800.0, longitude), 166);
            QCOMPARE(TileGrid::getHalfColumn(longitude), std::numeric_limits<int>::min());
        }
        const int band = grid.getVerticalBand(notANumber);
        QVERIFY(band >= 0 && band <= 255);
    }

    void aboveABand()
    {
        // 48 degrees: half band 333, the upper half of band 166.
        QVERIFY(grid.isAboveBand(172800.0, 166));
        QVERIFY(!grid.isAboveBand(172800.0, 167));
        // Half band 257 is half a band above 128.
        QVERIFY(grid.isAboveBand(2531.5, 128));
        QVERIFY(!grid.isAboveBand(1.0, 128));
    }

    void columns()
    {
        QCOMPARE(TileGrid::getHalfColumn(2531.25), 1);
        QCOMPARE(TileGrid::getHalfColumn(-2531.0), 0);
        QCOMPARE(TileGrid::getHalfColumn(-5063.0), -2);
        QCOMPARE(TileGrid::getColumnHigh(331776000.0), 1);
        QCOMPARE(TileGrid::getColumnHigh(-700000000.0), -2);
        QCOMPARE(TileGrid::getColumnHigh(1296000.0), 0);
    }

    void tileKeyTexts()
    {
        QCOMPARE(TileGrid::tileKeyText("16711846"), QString("255 166"));
        QCOMPARE(TileGrid::tileKeyText("4294967295"), QString("65535 65535"));
        QCOMPARE(TileGrid::tileKeyText("166"), QString("0 166"));
        QCOMPARE(TileGrid::tileKeyText("no number"), QString("0 0"));
    }
};

QTEST_APPLESS_MAIN(TestTileGrid)
#include "tst_tilegrid.moc"
