#pragma once

#include <QString>

#include <array>

/// The simulator's QGT grid: 256 columns of equal longitude, 256 bands of latitude whose height shrinks with the
/// cosine of the latitude. Latitudes and longitudes are arc seconds unless a name says degrees.

/// One row of the band table: a band's edge nearer the equator. Rows count from the equator towards a pole.
struct BandRow
{
    double latDeg;
    double latSec;
    double heightSec; ///< not set in row 128
    double midSec;    ///< not set in row 128
    double widthNm;
    float widthFt;
    float reserved;
    short tilesAcross;        ///< tile columns that cover the reach of 140 NM
    unsigned short bandsUp;   ///< bands towards the pole that cover the reach
    unsigned short bandsDown; ///< the same towards the other pole
};

/// One row of the detail table, a grid of half bands.
struct DetailRow
{
    double latDeg;
    double latSec;
    double heightSec;
    double stepSec; ///< a 32nd of the height
    double widthNm;
    double cosLat;
    double invCosLat;
    double rangeFt;
    float widthFt;
    float rangeNm;
    short count;
    short cleared1;
    short cleared2;
};

class TileGrid
{
public:
    std::array<BandRow, 129> bands{};
    std::array<DetailRow, 257> details{};

    void buildBands();
    /// Needs the band table. The range is in nautical miles; the program uses 0.0.
    void buildDetails(double rangeNm);

    /// The band of a latitude: 0 to 255 counted from the south, 128 the first one north of the equator.
    /// A latitude exactly on a searched edge gives the bare row index, also in the south: the simulator's files have it
    /// so.
    int getVerticalBand(double latSec) const;
    /// The value of a `tile` column: the band, and from bit 16 upward the low 8 bits of the column.
    /// West longitudes give columns from the top of the range, and columns 0 east and west have the same number.
    int getTileKey(double latSec, double lonSec) const;
    /// The half band of a latitude, 0 to 511, 256 the first one north of the equator. The same holds on an edge.
    /// NaN is reported to the debug log and gives 127, where its search stands still.
    int getVerticalQgtNumber(double latSec) const;
    /// True when the latitude's half band, halved, is greater than `band`.
    bool isAboveBand(double latSec, int band) const;
    /// The counts of the table's last two fields for a row from 0 to 127, computed afresh; 0 for any other number.
    int countBandsUp(short band) const;
    int countBandsDown(short band) const;

    /// Columns of half a tile, truncated towards zero.
    static int getHalfColumn(double lonSec);
    /// The longitude divided by a column times 65536, truncated towards zero.
    static int getColumnHigh(double lonSec);
    /// "%1 %2": the high and the low 16 bits of a key given as decimal text.
    static QString tileKeyText(const QString& tile);
};
