#include "markertext.h"

#include "filled.h"
#include "positions.h"

// The colour tags are never closed: the page shows each text in a window of its own.

namespace {

QString navaid(const QString& pattern, const QString& iden, const QString& name, double frequency, double latSec,
               double lonSec)
{
    return filled(pattern, {iden, name, QString::number(frequency, 'g', 6), latitudeText(latSec, false),
                            longitudeText(lonSec, false)});
}

} // namespace

namespace markertext {

QString airport(const QString& iden, const QString& name, double latSec, double lonSec)
{
    return filled(QStringLiteral("<font color=blue><b>Airport %1</b><font color=black><br/>%2<br/>%3 - %4"),
                  {iden, name, latitudeText(latSec, false), longitudeText(lonSec, false)});
}

QString vor(const QString& iden, const QString& name, double frequency, double latSec, double lonSec)
{
    return navaid(QStringLiteral("<font color=blue><b>VOR %1</b><font color=black><br/>%2<br/>%3 Mhz<br/>%4 - %5"),
                  iden, name, frequency, latSec, lonSec);
}

QString ndb(const QString& iden, const QString& name, double frequency, double latSec, double lonSec)
{
    return navaid(QStringLiteral("<font color=blue><b>NDB %1</b><font color=black><br/>%2<br/>%3 Khz<br/>%4 - %5"),
                  iden, name, frequency, latSec, lonSec);
}

QString waypoint(const QString& iden, const QString& name, const QString& usage, double latSec, double lonSec)
{
    return filled(QStringLiteral("<font color=blue><b>Waypoint %1</b><font color=black><br/>%2 (%3)<br/>%4 - %5"),
                  {iden, name, usage, latitudeText(latSec, false), longitudeText(lonSec, false)});
}

} // namespace markertext
