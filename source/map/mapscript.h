#pragma once

#include <QLatin1String>
#include <QString>

/// Every script text that the map page is asked to evaluate, as plain functions from values to text.
///
/// The page parses what comes, so the texts are exact, stray brackets and doubled semicolons included. Names go
/// between double quotes as they are: a name that holds a double quote spoils its script, and its batch.
namespace mapscript {

/// A place on the map in degrees, north and east positive, as it goes into a script.
struct Place
{
    double lat;
    double lon;
};

/// The place of a stored position in arc seconds. The longitude comes out between -180 and 180.
Place storedPlace(double latSec, double lonSec);
/// The same for degrees whose longitude may lie on either side of the zero point. The latitude stays as it is.
Place wrappedPlace(double latDeg, double lonDeg);

/// The view. The three reading scripts give a number.
QString setCenter(const Place& place);
QString setZoom(double zoom);
QString centerLatitude();
QString centerLongitude();
QString zoomLevel();

struct AirportMarker
{
    Place place;
    QString iden;
    QString popup; ///< HTML, see markertext.h
};

/// `number` is what the page sorts by: the type of a VOR, the usage of an NDB.
struct NavaidMarker
{
    Place place;
    QString iden;
    QString key;
    int number;
    QString popup;
};

struct WaypointMarker
{
    Place place;
    QString name;
    QString key;
    int usage;
    QString popup;
};

/// Markers of the feed, each in a list of its own until the closing script builds the managers.
QString addAptMarker(const AirportMarker& marker);
QString addVorMarker(const NavaidMarker& marker);
QString addNdbMarker(const NavaidMarker& marker);
QString addWptMarker(const WaypointMarker& marker);
QString pushApt();
QString addNavMgr();
QString addWptMgr();

/// Single markers, shown at once: what an edit leaves on the map.
QString addVorMarker2(const NavaidMarker& marker);
QString addNdbMarker2(const NavaidMarker& marker);
QString addWptMarker2(const WaypointMarker& marker);
/// Remove the marker last used.
QString delNavaid();
QString delWaypoint();

/// Shows or hides the markers of one list through its manager.
QString markerLayer(QLatin1String manager, QLatin1String list, bool shown);
/// Shows or hides the airways of one level: 'L', 'H' or 'B'.
QString airwayLayer(char level, bool shown);
/// Opens a new airway of a level, and adds a point to it.
QString addAts(QChar level);
QString addToAts(const Place& place, const QString& text);

QString clearRunway();
QString drawRunway(const Place& highEnd, const Place& lowEnd);

/// The plan's track: cleared, filled point by point, drawn by pushFp.
QString clearFp();
/// The same with its own semicolon: a reset of the plan sends it so.
QString clearFpStatement();
QString addPointToFp(const Place& place, const QString& name);
QString pushFp();
/// The procedure that is shown beside the plan.
QString clearSs();
QString addPointToSs(const Place& place, const QString& name);
/// The aircraft at its start; the heading in degrees.
QString addSitMarker(const Place& place, const QString& aircraft, double heading);

/// The simulator's aircraft; headings in degrees.
QString eraseAircraft();
QString addAircraft(const Place& place, double heading);
QString moveAircraft(const Place& place, double heading);
/// The move with the map following.
QString followAircraft(const Place& place, double heading);

} // namespace mapscript
