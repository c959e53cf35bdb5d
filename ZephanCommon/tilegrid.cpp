// The tables of the QGT grid and the searches in them.

#include "tilegrid.h"

#include "positions.h"

#include <QDebug>

#include <cmath>

namespace {

constexpr double tileDegrees = 1.40625;              // 360 / 256: a column, and the height of a band at the equator
constexpr double halfTileDegrees = 0.703125;         // the same of a half band
constexpr double columnArcSeconds = 5062.5;          // 360 * 3600 / 256
constexpr double halfColumnArcSeconds = 2531.25;     // half of it
constexpr double columnHighArcSeconds = 331776000.0; // 5062.5 * 65536: the column's number in the high 16 bits
constexpr double earthNm = 21600.0;                  // around the earth
constexpr double earthFt = 131244094.0;              // around the earth
constexpr double feetPerNm = 6076.115462962963;
constexpr double tileNm = 84.375;      // width of a tile at the equator
constexpr double halfTileNm = 42.1875; // width of a half tile at the equator
constexpr double reachNm = 140.0;      // what the counts of the band table cover
constexpr int lastCountedBand = 127;

double cosineOfDegrees(double degrees)
{
    return std::cos(degrees * radiansPerDegree);
}

short shortCount(double value)
{
    return static_cast<short>(truncatedInt(value));
}

float remainingReach(float reach, double widthNm)
{
    return static_cast<float>(static_cast<double>(reach) - widthNm);
}

/// Halving search from the middle row. A value exactly on the row of a round ends it at once: `onEdge` is then set
/// and the row stands as it is. Otherwise the row is the last one whose edge is not above the value.
template <typename Rows, typename Edge>
int searchRow(const Rows& rows, Edge edge, double value, int middle, bool* onEdge)
{
    int row = middle;
    const auto edgeOf = [&](int index) { return rows[static_cast<std::size_t>(index)].*edge; };
    *onEdge = false;
    for (int step = middle / 2; step > 0; step /= 2) {
        if (value == edgeOf(row)) {
            *onEdge = true;
            return row;
        }
        if (value > edgeOf(row)) {
            row += step;
        }
        if (edgeOf(row) > value) {
            row -= step;
        }
    }
    return edgeOf(row) > value ? row - 1 : row;
}

BandRow firstBand()
{
    BandRow row{};
    row.widthNm = tileNm;
    row.widthFt = 512672.25F;
    row.reserved = 1.6e-5F;
    row.tilesAcross = 2;
    return row;
}

DetailRow firstDetail(double rangeNm)
{
    DetailRow row{};
    row.widthNm = halfTileNm;
    row.cosLat = 1.0;
    row.invCosLat = 1.0;
    row.rangeFt = rangeNm * feetPerNm;
    row.widthFt = 256336.125F;
    row.rangeNm = static_cast<float>(rangeNm);
    row.count = 2;
    return row;
}

} // namespace

void TileGrid::buildBands()
{
    bands.fill(BandRow{});
    bands[0] = firstBand();
    double latitude = 0.0;
    double cosine = 1.0;
    for (std::size_t k = 1; k < bands.size(); ++k) {
        latitude += cosine * tileDegrees;
        cosine = cosineOfDegrees(latitude);
        BandRow& row = bands[k];
        BandRow& previous = bands[k - 1];
        row.latDeg = latitude;
        row.latSec = latitude * arcSecondsPerDegree;
        previous.heightSec = row.latSec - previous.latSec;
        previous.midSec = (row.latSec + previous.latSec) / 2.0;
        row.widthNm = cosine * earthNm / 256.0;
        row.widthFt = static_cast<float>(cosine * earthFt / 256.0);
        row.tilesAcross = static_cast<short>(shortCount(reachNm / row.widthNm) + 1);
    }
    for (short k = 0; k <= lastCountedBand; ++k) {
        BandRow& row = bands[static_cast<std::size_t>(k)];
        row.bandsUp = static_cast<unsigned short>(countBandsUp(k));
        row.bandsDown = static_cast<unsigned short>(countBandsDown(k));
    }
    // The top rows are set by hand: the grid ends before the pole.
    bands[128].widthNm = 0.0;
    bands[128].tilesAcross = 0;
    bands[128].bandsUp = 0;
    bands[128].bandsDown = 0;
    bands[127].bandsUp = 1;
    bands[126].bandsUp = 2;
}

void TileGrid::buildDetails(double rangeNm)
{
    details.fill(DetailRow{});
    details[0] = firstDetail(rangeNm);
    for (std::size_t i = 1; i < details.size(); ++i) {
        DetailRow& row = details[i];
        DetailRow& previous = details[i - 1];
        row.latDeg = i % 2 == 0 ? bands[i / 2].latDeg : previous.latDeg + previous.cosLat * halfTileDegrees;
        row.latSec = row.latDeg * arcSecondsPerDegree;
        previous.heightSec = row.latSec - previous.latSec;
        previous.stepSec = previous.heightSec * 0.03125;
        row.cosLat = cosineOfDegrees(row.latDeg);
        row.invCosLat = 1.0 / row.cosLat;
        row.widthNm = row.cosLat * earthNm / 512.0;
        row.widthFt = static_cast<float>(row.cosLat * earthFt / 512.0);
        row.rangeNm = details[0].rangeNm;
        row.rangeFt = details[0].rangeFt;
        row.count = shortCount(std::ceil(rangeNm / row.widthNm));
        if (row.count == 1) {
            row.count = 2;
        }
    }
    for (DetailRow& row : details) {
        const double eighth = row.widthNm / 8.0;
        if (eighth > row.count * row.widthNm - rangeNm || eighth > -rangeNm) {
            row.rangeFt -= eighth * feetPerNm;
        }
    }
    details.back().count = 0;
}

int TileGrid::getVerticalBand(double latSec) const
{
    bool onEdge = false;
    const int row = searchRow(bands, &BandRow::latDeg, std::fabs(latSec) / arcSecondsPerDegree, 64, &onEdge);
    if (onEdge) {
        return row;
    }
    return latSec > 0.0 ? row + 128 : 127 - row;
}

int TileGrid::getTileKey(double latSec, double lonSec) const
{
    // The longitude is not normalised: both columns at the zero meridian are number 0.
    const int column = truncatedInt(lonSec / columnArcSeconds) & 0xFF;
    return getVerticalBand(latSec) + (column << 16);
}

int TileGrid::getVerticalQgtNumber(double latSec) const
{
    if (std::isnan(latSec)) {
        qDebug() << "QNAN detected";
    }
    bool onEdge = false;
    const int row = searchRow(details, &DetailRow::latSec, std::fabs(latSec), 128, &onEdge);
    if (onEdge) {
        return row;
    }
    return latSec > 0.0 ? row + 256 : 255 - row;
}

bool TileGrid::isAboveBand(double latSec, int band) const
{
    return getVerticalQgtNumber(latSec) * 0.5 > band;
}

int TileGrid::countBandsUp(short band) const
{
    if (band < 0 || band >= lastCountedBand) {
        return 0;
    }
    int count = 1;
    float reach = remainingReach(static_cast<float>(reachNm), bands[static_cast<std::size_t>(band)].widthNm);
    while (reach > 0.0F && count != lastCountedBand - band) {
        const int next = band + count;
        reach = remainingReach(reach, bands[static_cast<std::size_t>(next)].widthNm);
        ++count;
    }
    return count;
}

int TileGrid::countBandsDown(short band) const
{
    if (band < 0 || band > lastCountedBand) {
        return 0;
    }
    float reach = remainingReach(static_cast<float>(reachNm), bands[static_cast<std::size_t>(band)].widthNm);
    int count = 1;
    while (reach > 0.0F && count <= lastCountedBand) {
        // Below the equator the rows count upwards again: row 0 is on both sides of it.
        const int next = band - count;
        reach = remainingReach(reach, bands[static_cast<std::size_t>(next >= 0 ? next : -1 - next)].widthNm);
        ++count;
    }
    return count;
}

int TileGrid::getHalfColumn(double lonSec)
{
    return truncatedInt(lonSec / halfColumnArcSeconds);
}

int TileGrid::getColumnHigh(double lonSec)
{
    return truncatedInt(lonSec / columnHighArcSeconds);
}

QString TileGrid::tileKeyText(const QString& tile)
{
    const unsigned int key = tile.toUInt();
    return QStringLiteral("%1 %2").arg(key >> 16).arg(key & 0xFFFFU);
}
