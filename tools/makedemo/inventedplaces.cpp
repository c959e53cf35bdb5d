// Places over land: a coarse outline of France, and boxes well inside other countries.

#include "inventedplaces.h"

#include "positions.h"
#include "tilegrid.h"

#include <cmath>
#include <cstddef>

namespace {

struct Corner
{
    double lat; // degrees
    double lon;
};

const Corner france[] = {{51.0, 2.5},  {50.1, 4.2},  {49.5, 5.8},  {48.9, 8.0},  {47.6, 7.5},  {46.3, 6.1},
                         {45.8, 6.9},  {44.1, 7.5},  {43.5, 6.9},  {43.1, 5.9},  {43.5, 4.0},  {42.5, 3.1},
                         {42.8, 0.7},  {43.4, -1.5}, {44.7, -1.2}, {46.0, -1.1}, {47.3, -2.4}, {48.0, -4.5},
                         {48.6, -3.9}, {48.6, -1.6}, {49.6, -1.7}, {49.4, 0.1},  {50.2, 1.6}};

struct Box
{
    const char* country;
    double south; // degrees
    double north;
    double west;
    double east;
};

const Box boxes[] = {
    {"US", 33.0, 47.0, -120.0, -78.0}, {"US", 33.0, 47.0, -112.0, -88.0},  {"CA", 50.0, 58.0, -120.0, -72.0},
    {"MX", 18.0, 26.0, -104.0, -98.0}, {"BR", -22.0, -5.0, -58.0, -42.0},  {"AR", -38.0, -26.0, -68.0, -60.0},
    {"CO", 2.0, 8.0, -76.0, -71.0},    {"GB", 51.5, 53.5, -2.5, 0.0},      {"IE", 52.2, 54.0, -9.0, -6.6},
    {"ES", 38.0, 42.5, -6.0, -1.0},    {"PT", 37.5, 41.5, -8.5, -7.3},     {"DE", 48.5, 53.0, 8.5, 12.0},
    {"IT", 43.5, 45.5, 9.0, 11.8},     {"CH", 46.6, 47.4, 7.2, 9.2},       {"BE", 50.3, 51.1, 3.8, 5.5},
    {"NL", 51.8, 52.8, 5.0, 6.7},      {"AT", 47.2, 48.2, 13.0, 16.0},     {"PL", 50.5, 53.5, 16.0, 22.5},
    {"CZ", 49.2, 50.3, 13.5, 17.0},    {"SE", 57.5, 65.0, 13.5, 16.5},     {"NO", 60.0, 62.5, 7.0, 11.0},
    {"FI", 61.5, 66.0, 24.0, 28.5},    {"RO", 44.2, 47.0, 23.0, 27.0},     {"GR", 39.0, 40.8, 21.2, 23.0},
    {"TR", 37.5, 40.5, 29.0, 40.0},    {"RU", 53.0, 60.0, 33.0, 110.0},    {"MA", 31.5, 34.0, -7.0, -3.0},
    {"DZ", 26.0, 35.5, 0.5, 7.0},      {"ZA", -31.0, -25.0, 21.0, 29.0},   {"KE", -2.0, 2.5, 35.5, 39.0},
    {"IN", 15.0, 26.0, 74.5, 80.0},    {"CN", 26.0, 38.0, 104.0, 117.0},   {"JP", 35.4, 36.8, 137.0, 140.0},
    {"ID", -3.5, 0.5, 102.0, 104.0},   {"AU", -33.0, -20.0, 120.0, 148.0}, {"NZ", -44.5, -43.0, 170.8, 172.2}};

bool insideFrance(double lat, double lon)
{
    // Counts the edges that a line to the east crosses.
    constexpr std::size_t corners = std::size(france);
    bool inside = false;
    for (std::size_t i = 0, previous = corners - 1; i < corners; previous = i++) {
        const Corner& a = france[i];
        const Corner& b = france[previous];
        if ((a.lat > lat) != (b.lat > lat) && lon < (b.lon - a.lon) * (lat - a.lat) / (b.lat - a.lat) + a.lon)
            inside = !inside;
    }
    return inside;
}

Place placeAt(double lat, double lon, const QString& country)
{
    // Whole thousandths of an arc second, as the update files tell them.
    const double lonSec = std::round(lon * arcSecondsPerDegree * 1000.0) / 1000.0;
    return {std::round(lat * arcSecondsPerDegree * 1000.0) / 1000.0, lonSec < 0.0 ? lonSec + circleArcSeconds : lonSec,
            country};
}

double between(Dice& dice, double low, double high)
{
    return low + dice.fraction() * (high - low);
}

} // namespace

Place inventedPlace(Dice& dice, bool french)
{
    if (!french) {
        const Box& box = boxes[dice.roll(int(std::size(boxes)))];
        const double lat = between(dice, box.south, box.north);
        return placeAt(lat, between(dice, box.west, box.east), QLatin1String(box.country));
    }
    double lat = 0.0;
    double lon = 0.0;
    do { // the country fills more than half of the box
        lat = between(dice, 42.5, 51.0);
        lon = between(dice, -4.5, 8.0);
    } while (!insideFrance(lat, lon));
    return placeAt(lat, lon, QStringLiteral("FR"));
}

bool isFrench(int number, int percent)
{
    return (qint64(number) * percent) % 100 < percent;
}

int tileOf(double latSec, double lonSec)
{
    static const TileGrid grid = [] {
        TileGrid tables;
        tables.buildBands();
        return tables;
    }();
    return grid.getTileKey(latSec, lonSec);
}
