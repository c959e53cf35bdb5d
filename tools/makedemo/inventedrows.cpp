// Airports, runways, navaids and waypoints for a simulator of any size.

#include "inventedrows.h"

#include "inventedplaces.h"
#include "positions.h"

#include <array>
#include <cmath>

namespace {

constexpr std::uint64_t airportSeeds = 0x1000000000ULL;
constexpr std::uint64_t navaidSeeds = 0x2000000000ULL;
constexpr std::uint64_t waypointSeeds = 0x3000000000ULL;
constexpr double feetPerArcSecond = 101.27; // of latitude

QString arcSeconds(double value)
{
    return QString::number(value, 'f', 3);
}

QString degrees(double value)
{
    return QString::number(wrapCourseDegrees(value), 'f', 1);
}

QString decimal(int value)
{
    return QString::number(value);
}

/// Columns of RWY that an invented runway fills, and how far its low end's columns lie behind the high end's.
namespace rwy {
constexpr int columns = 71;
constexpr int sequence = 0;
constexpr int airport = 1;
constexpr int length = 2;
constexpr int width = 3;
constexpr int surface = 4;
constexpr int ident = 13;
constexpr int latitude = 14;
constexpr int longitude = 15;
constexpr int elevation = 16;
constexpr int trueHeading = 17;
constexpr int magneticHeading = 18;
constexpr int threshold = 20;
constexpr int lowEnd = 29;
} // namespace rwy

struct Strip
{
    QString airport;
    Place place;
    int elevation;    // feet
    int length;       // feet
    double heading;   // true, of the high end
    double variation; // degrees east
};

void fillEnd(QStringList& values, const Strip& strip, bool high)
{
    const int shift = high ? 0 : rwy::lowEnd;
    const double heading = wrapCourseDegrees(high ? strip.heading : strip.heading + 180.0);
    // Each end lies half a length behind the airport's position, as seen when landing on it.
    const double reach = -0.5 * strip.length / feetPerArcSecond;
    const double latitude = strip.place.latSec / arcSecondsPerDegree * radiansPerDegree;
    const double north = reach * std::cos(heading * radiansPerDegree);
    const double east = reach * std::sin(heading * radiansPerDegree) / std::cos(latitude);
    const double magnetic = wrapCourseDegrees(heading - strip.variation);
    const int number = int(std::lround(magnetic / 10.0)) % 36;
    values[rwy::ident + shift] = decimal(number == 0 ? 36 : number).rightJustified(2, QLatin1Char('0'));
    values[rwy::latitude + shift] = arcSeconds(strip.place.latSec + north);
    values[rwy::longitude + shift] = arcSeconds(wrapClickArcSeconds(strip.place.lonSec + east));
    values[rwy::elevation + shift] = decimal(strip.elevation);
    values[rwy::trueHeading + shift] = degrees(heading);
    values[rwy::magneticHeading + shift] = degrees(magnetic);
    values[rwy::threshold + shift] = decimal(strip.elevation);
}

QStringList runway(const Strip& strip, int sequence)
{
    static const QStringList blank = [] {
        QStringList values;
        for (int column = 0; column < rwy::columns; ++column)
            values << QStringLiteral("0");
        return values;
    }();
    QStringList values = blank;
    values[rwy::sequence] = decimal(sequence);
    values[rwy::airport] = strip.airport;
    values[rwy::length] = decimal(strip.length);
    values[rwy::width] = decimal(strip.length > 5000 ? 148 : 98);
    values[rwy::surface] = decimal(strip.length > 3000 ? 1 : 2);
    fillEnd(values, strip, true);
    fillEnd(values, strip, false);
    return values;
}

/// The values of APT behind the elevation and before the number of runways: services that a small field has.
QStringList airportServices(double variation, int elevation)
{
    QStringList values{QStringLiteral("1"),
                       QStringLiteral("1"),
                       QString(),
                       QString(),
                       QString(),
                       QString::number(variation, 'f', 1),
                       decimal(elevation + 1000)};
    while (values.size() < 33)
        values << QStringLiteral("0");
    return values;
}

struct BeaconKind
{
    int type;       // column ntyp
    int keyDigit;   // in the unique key
    bool kilohertz; // 200 to 526 kHz, else 108 to 118 MHz
    int share;      // of a hundred
};

const std::array<BeaconKind, 6> beaconKinds = {{
    {8, 5, true, 45},   // NDB
    {17, 4, false, 30}, // VOR DME
    {1, 1, false, 12},  // VOR
    {4, 2, false, 6},   // TACAN
    {24, 7, true, 5},   // NDB DME
    {16, 3, false, 2},  // DME
}};

const BeaconKind& beaconKind(Dice& dice)
{
    int roll = dice.roll(100);
    for (const BeaconKind& kind : beaconKinds) {
        if (roll < kind.share)
            return kind;
        roll -= kind.share;
    }
    return beaconKinds.front();
}

/// Type (column wtyp) that goes with each usage (column wuse), 1 HIGH to 6 VFR.
constexpr std::array<int, 7> typeOfUsage = {0, 6, 6, 6, 6, 12, 10};

} // namespace

InventedAirport inventedAirport(int number, bool french)
{
    Dice dice(airportSeeds + std::uint64_t(number));
    const Place place = inventedPlace(dice, french);
    // Six characters where the real ones have four.
    const QString key = (french ? QStringLiteral("LF") : place.country) + inventedCode(number, 4);
    const int elevation = 20 + dice.roll(2200);
    const double variation = dice.roll(50) / 10.0 - 2.5;
    const int strips = number % 100 == 99 ? 0 : (number % 10 == 9 ? 2 : 1);

    InventedAirport result;
    int longest = 0;
    for (int strip = 1; strip <= strips; ++strip) {
        const int length = 1600 + dice.roll(110) * 100;
        const double heading = 180.0 + dice.roll(180); // a high end has a number above 18
        result.runways << runway({key, place, elevation, length, heading, variation}, strip);
        longest = qMax(longest, length);
    }
    result.airport =
        QStringList{decimal(tileOf(place.latSec, place.lonSec)),
                    key,
                    QString(),
                    key,
                    inventedTown(dice),
                    place.country,
                    QString(),
                    QString(),
                    QStringLiteral("1"),
                    arcSeconds(place.latSec),
                    arcSeconds(place.lonSec),
                    decimal(elevation)} +
        airportServices(variation, elevation) +
        QStringList{decimal(strips), decimal(longest), QStringLiteral("0"), QStringLiteral("0"), QStringLiteral("0")};
    return result;
}

QStringList inventedNavaid(int number, bool french)
{
    Dice dice(navaidSeeds + std::uint64_t(number));
    const Place place = inventedPlace(dice, french);
    const BeaconKind& kind = beaconKind(dice);
    const QString ident = inventedBeacon(number);
    const QString frequency =
        kind.kilohertz ? decimal(200 + dice.roll(327)) : QString::number(108.0 + 0.05 * dice.roll(199), 'f', 2);
    const int usage = 1 + dice.roll(4); // high, low, both, terminal
    const QString variation = QString::number(dice.roll(50) / 10.0 - 2.5, 'f', 1);
    return {decimal(tileOf(place.latSec, place.lonSec)),
            ident + decimal(kind.keyDigit) + place.country,
            ident,
            inventedTown(dice),
            frequency,
            variation,
            variation,
            place.country,
            QString(),
            decimal(kind.type),
            QStringLiteral("0"),
            decimal(usage),
            arcSeconds(place.latSec),
            arcSeconds(place.lonSec),
            decimal(20 + dice.roll(2200)),
            decimal(usage == 4 ? 25 : 100),
            decimal(usage == 4 ? 25 : 80)};
}

QStringList inventedWaypoint(int number, bool french)
{
    Dice dice(waypointSeeds + std::uint64_t(number));
    const Place place = inventedPlace(dice, french);
    const QString name = inventedFiveLetters(number);
    const int usage = 1 + dice.roll(6);
    // One in forty belongs to a beacon and stays off the map: 'Y' where the others have 'N'.
    const int location = number % 40 == 39 ? 89 : 78;
    return {decimal(tileOf(place.latSec, place.lonSec)),
            name,
            name + place.country,
            name,
            place.country,
            QString(),
            decimal(location),
            decimal(typeOfUsage.at(std::size_t(usage))),
            decimal(usage),
            arcSeconds(place.latSec),
            arcSeconds(place.lonSec),
            QStringLiteral("0"),
            QStringLiteral("0"),
            QStringLiteral("0"),
            QStringLiteral("0"),
            QString()};
}
