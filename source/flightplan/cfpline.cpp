#include "cfpline.h"

#include <QVariant>

namespace {

// Positions of the columns in SELECT *.
namespace Apt {
enum Column
{
    ukey = 1,
    iden = 3,
    name = 4,
    ctry = 5,
    alat = 9,
    alon = 10,
    aele = 11
};
}
namespace Nav {
enum Column
{
    ukey = 1,
    iden = 2,
    name = 3,
    nfrq = 4,
    ctry = 7,
    ntyp = 9,
    nlat = 12,
    nlon = 13,
    nalt = 14
};
}
namespace Wpt {
enum Column
{
    iden = 1,
    ukey = 2,
    name = 3,
    ctry = 4,
    wlat = 9,
    wlon = 10
};
}
namespace SidStar {
enum Column
{
    swid = 6,
    slat = 9,
    slon = 10
};
}

/// The columns of one end of a runway.
struct RunwayEnd
{
    int id;
    int latitude;
    int longitude;
    int elevation;
    int magneticHeading;
};

constexpr RunwayEnd highEnd{13, 14, 15, 16, 18};
constexpr RunwayEnd lowEnd{42, 43, 44, 45, 47};

/// A line out of a row has no runways and no mark: the "NONE" of a new line goes.
void clearRunways(CFpLine& line)
{
    line.tkof = QStringLiteral("");
    line.land = QStringLiteral("");
    line.mark = QStringLiteral("");
}

void setPosition(CFpLine& line, const QSqlQuery& row, int latitude, int longitude)
{
    line.latS = row.value(latitude).toDouble();
    line.lonS = row.value(longitude).toDouble();
}

void fromRunwayEnd(CFpLine& line, const QSqlQuery& row, const RunwayEnd& end)
{
    line.fpType = QStringLiteral("uswp");
    line.iden = row.value(end.id).toString();
    line.name = QStringLiteral("RWY ") + line.iden;
    setPosition(line, row, end.latitude, end.longitude);
    line.elev = row.value(end.elevation).toInt();
    line.dbKey = QStringLiteral("NONE");
    line.usage = QStringLiteral("uswp");
    line.altd = line.elev;
    line.heading = row.value(end.magneticHeading).toDouble();
    clearRunways(line);
}

} // namespace

CFpLine::CFpLine()
{
    clear();
}

void CFpLine::clear()
{
    fpType = QStringLiteral("");
    name = QStringLiteral("");
    iden = QStringLiteral("");
    latS = 0.0;
    lonS = 0.0;
    elev = 0;
    dbKey = QStringLiteral("");
    usage = QStringLiteral("");
    altd = 0;
    tkof = QStringLiteral("NONE");
    land = QStringLiteral("NONE");
    mark = QStringLiteral("");
    navType = 0;
    heading = 0.0;
    speed = 0;
    route = 0.0;
    dist = 0.0;
    duration = 0;
    timeAt = QTime(0, 0, 0, 0);
    freq = 0.0;
}

void CFpLine::fromApt(const QSqlQuery& row)
{
    fpType = QStringLiteral("airp");
    name = row.value(Apt::name).toString();
    iden = row.value(Apt::iden).toString();
    setPosition(*this, row, Apt::alat, Apt::alon);
    elev = row.value(Apt::aele).toInt();
    dbKey = row.value(Apt::ukey).toString();
    usage = QStringLiteral("airp");
    altd = elev;
    ctry = row.value(Apt::ctry).toString();
    clearRunways(*this);
}

void CFpLine::fromRwyHigh(const QSqlQuery& row)
{
    fromRunwayEnd(*this, row, highEnd);
}

void CFpLine::fromRwyLow(const QSqlQuery& row)
{
    fromRunwayEnd(*this, row, lowEnd);
}

void CFpLine::fromNav(const QSqlQuery& row)
{
    fpType = QStringLiteral("snav");
    name = row.value(Nav::name).toString();
    iden = row.value(Nav::iden).toString();
    setPosition(*this, row, Nav::nlat, Nav::nlon);
    elev = row.value(Nav::nalt).toInt();
    dbKey = row.value(Nav::ukey).toString();
    usage = QStringLiteral("snav");
    // The cruise altitude of a new line is given up here, for the pilot to set.
    altd = 0;
    navType = row.value(Nav::ntyp).toInt();
    freq = row.value(Nav::nfrq).toDouble();
    ctry = row.value(Nav::ctry).toString();
    clearRunways(*this);
}

void CFpLine::fromWpt(const QSqlQuery& row)
{
    fpType = QStringLiteral("wayp");
    name = row.value(Wpt::name).toString();
    iden = row.value(Wpt::iden).toString();
    setPosition(*this, row, Wpt::wlat, Wpt::wlon);
    elev = 0;
    dbKey = row.value(Wpt::ukey).toString();
    // Drawn and stored like a user's own point, whatever the type word says.
    usage = QStringLiteral("uswp");
    altd = 0;
    ctry = row.value(Wpt::ctry).toString();
    clearRunways(*this);
}

void CFpLine::fromSidStar(const QSqlQuery& row)
{
    fpType = QStringLiteral("wayp");
    name = row.value(SidStar::swid).toString();
    iden = name;
    setPosition(*this, row, SidStar::slat, SidStar::slon);
    elev = 0;
    dbKey = QStringLiteral("NONE");
    usage = QStringLiteral("uswp");
    altd = 0;
    clearRunways(*this);
}
