#include "mapscript.h"

#include "filled.h"
#include "positions.h"

namespace {

// Five decimals are a metre. The patterns' field width of 3 never shows: the shortest texts, "nan" and "inf", fill it.
QString degrees(double value)
{
    return QString::number(value, 'f', 5);
}

QString fineDegrees(double value)
{
    return QString::number(value, 'f', 8);
}

QString shortNumber(double value)
{
    return QString::number(value, 'g', 6);
}

QString navaidMarker(const QString& pattern, const mapscript::NavaidMarker& marker)
{
    return filled(pattern, {degrees(marker.place.lat), degrees(marker.place.lon), marker.iden,
                            QString::number(marker.number), marker.popup, marker.key});
}

QString waypointMarker(const QString& pattern, const mapscript::WaypointMarker& marker)
{
    return filled(pattern, {degrees(marker.place.lat), degrees(marker.place.lon), marker.name, marker.key,
                            QString::number(marker.usage), marker.popup});
}

QString namedPoint(const QString& pattern, const mapscript::Place& place, const QString& name)
{
    return filled(pattern, {degrees(place.lat), degrees(place.lon), filled(QStringLiteral("\"%1\""), {name})});
}

} // namespace

namespace mapscript {

Place storedPlace(double latSec, double lonSec)
{
    return wrappedPlace(latSec / arcSecondsPerDegree, lonSec / arcSecondsPerDegree);
}

Place wrappedPlace(double latDeg, double lonDeg)
{
    return {latDeg, wrapScriptDegrees(lonDeg)};
}

QString setCenter(const Place& place)
{
    return filled(QStringLiteral("map.setCenter(new google.maps.LatLng(%1,%2));"),
                  {degrees(place.lat), degrees(place.lon)});
}

QString setZoom(double zoom)
{
    return filled(QStringLiteral("map.setZoom(%1)"), {shortNumber(zoom)});
}

QString centerLatitude()
{
    return QStringLiteral("map.getCenter().lat()");
}

QString centerLongitude()
{
    return QStringLiteral("map.getCenter().lng()");
}

QString zoomLevel()
{
    return QStringLiteral("map.getZoom()");
}

QString addAptMarker(const AirportMarker& marker)
{
    return filled(
        QStringLiteral("addAPTMarker(new google.maps.LatLng(%1,%2),\"%3\",%4,\"%5\")"),
        {degrees(marker.place.lat), degrees(marker.place.lon), marker.iden, QStringLiteral("1"), marker.popup});
}

QString addVorMarker(const NavaidMarker& marker)
{
    return navaidMarker(QStringLiteral("addVORMarker(new google.maps.LatLng(%1,%2),\"%3-%6\",%4,\"%5\")"), marker);
}

QString addNdbMarker(const NavaidMarker& marker)
{
    return navaidMarker(QStringLiteral("addNDBMarker(new google.maps.LatLng(%1,%2),\"%3-%6\",%4,\"%5\")"), marker);
}

QString addWptMarker(const WaypointMarker& marker)
{
    return waypointMarker(QStringLiteral("addWPTMarker(new google.maps.LatLng(%1,%2),\"%3-%4\",%5,\"%6\")"), marker);
}

QString pushApt()
{
    return QStringLiteral("pushAPT();");
}

QString addNavMgr()
{
    return QStringLiteral("addNavMgr();");
}

QString addWptMgr()
{
    return QStringLiteral("addWptMgr();");
}

QString addVorMarker2(const NavaidMarker& marker)
{
    return navaidMarker(QStringLiteral("addVORMarker2(new google.maps.LatLng(%1,%2),\"%3-%6\",%4,\"%5\")"), marker);
}

QString addNdbMarker2(const NavaidMarker& marker)
{
    return navaidMarker(QStringLiteral("addNDBMarker2(new google.maps.LatLng(%1,%2),\"%3-%6\",%4,\"%5\")"), marker);
}

QString addWptMarker2(const WaypointMarker& marker)
{
    return waypointMarker(QStringLiteral("addWPTMarker2(new google.maps.LatLng(%1,%2),\"%3-%4\",%5,\"%6\")"), marker);
}

// The second statement of both compares and changes nothing; the page expects it so.

QString delNavaid()
{
    return QStringLiteral("delNavaid();theLast == null;");
}

QString delWaypoint()
{
    return QStringLiteral("delWaypoint();theLast == null;");
}

QString markerLayer(QLatin1String manager, QLatin1String list, bool shown)
{
    return shown ? filled(QStringLiteral("%1.addMarkers(%2)"), {manager, list})
                 : filled(QStringLiteral("%1.clearMarkers()"), {manager});
}

QString airwayLayer(char level, bool shown)
{
    return filled(QStringLiteral("showATS('%1',%2)"), {QString(QLatin1Char(level)), QString::number(shown ? 1 : 0)});
}

QString addAts(QChar level)
{
    return filled(QStringLiteral("addATS('%1')"), {level});
}

QString addToAts(const Place& place, const QString& text)
{
    // The bracket stands before the comma, as the page has always been told.
    return filled(QStringLiteral("addToATS(new google.maps.LatLng(%1,%2)),'%3'"),
                  {degrees(place.lat), degrees(place.lon), text});
}

QString clearRunway()
{
    return QStringLiteral("clearRunway();");
}

QString drawRunway(const Place& highEnd, const Place& lowEnd)
{
    return filled(QStringLiteral("drawRwy(new google.maps.LatLng(%1,%2),new google.maps.LatLng(%3,%4));"),
                  {degrees(highEnd.lat), degrees(highEnd.lon), degrees(lowEnd.lat), degrees(lowEnd.lon)});
}

QString clearFp()
{
    return QStringLiteral("clearFP()");
}

QString clearFpStatement()
{
    return QStringLiteral("clearFP();");
}

QString addPointToFp(const Place& place, const QString& name)
{
    return namedPoint(QStringLiteral("addPointToFp(new google.maps.LatLng(%1,%2),%3)"), place, name);
}

QString pushFp()
{
    return QStringLiteral("pushFP();");
}

QString clearSs()
{
    return QStringLiteral("clearSS()");
}

QString addPointToSs(const Place& place, const QString& name)
{
    return namedPoint(QStringLiteral("addPointToSS(new google.maps.LatLng(%1,%2),%3)"), place, name);
}

QString addSitMarker(const Place& place, const QString& aircraft, double heading)
{
    return filled(QStringLiteral("addSitMarker(new google.maps.LatLng(%1,%2),\"%3\", %4);"),
                  {fineDegrees(place.lat), fineDegrees(place.lon), aircraft, shortNumber(heading)});
}

QString eraseAircraft()
{
    return QStringLiteral("eraseAcftMrkr();");
}

QString addAircraft(const Place& place, double heading)
{
    return filled(QStringLiteral("addAcftMrkr(new google.maps.LatLng(%1,%2),%3,%4);"),
                  {degrees(place.lat), degrees(place.lon), QStringLiteral("\"\""), shortNumber(heading)});
}

QString moveAircraft(const Place& place, double heading)
{
    return filled(QStringLiteral("setAcftMrkr(new google.maps.LatLng(%1,%2),%3);"),
                  {degrees(place.lat), degrees(place.lon), shortNumber(heading)});
}

QString followAircraft(const Place& place, double heading)
{
    // Two semicolons then stand in a row, which is harmless.
    return filled(QStringLiteral("%3;map.setCenter(new google.maps.LatLng(%1,%2));"),
                  {degrees(place.lat), degrees(place.lon), moveAircraft(place, heading)});
}

} // namespace mapscript
