#include "markerfeed.h"

#include "mapscript.h"
#include "markertext.h"

#include <QSqlQuery>
#include <QVariant>

namespace {

// The map shows one country, whatever the airways' setting says. The comparison is exact: "fr" is another country.
const QLatin1String countryShown("FR");

// The country is read first: of a world's rows few are shown, and nothing else is done for the rest.
template <typename Script>
QStringList scriptsOfCountry(QSqlQuery& rows, int countryColumn, Script script)
{
    QStringList scripts;
    do {
        if (rows.value(countryColumn).toString() == countryShown) {
            scripts.append(script(rows));
        }
    } while (rows.next());
    return scripts;
}

QString text(const QSqlQuery& row, int column)
{
    return row.value(column).toString();
}

double number(const QSqlQuery& row, int column)
{
    return row.value(column).toDouble();
}

QString airportScript(const QSqlQuery& row)
{
    const double lat = number(row, 9);
    const double lon = number(row, 10);
    const QString iden = text(row, 3);
    return mapscript::addAptMarker(
        {mapscript::storedPlace(lat, lon), iden, markertext::airport(iden, text(row, 4), lat, lon)});
}

QString navaidScript(const QSqlQuery& row)
{
    const double lat = number(row, 12);
    const double lon = number(row, 13);
    const QString iden = text(row, 2);
    const QString name = text(row, 3);
    const double frequency = number(row, 4);
    const int type = row.value(9).toInt();
    const mapscript::Place place = mapscript::storedPlace(lat, lon);
    // The page tells NDB apart by usage and VOR by type.
    const bool isNdb = (type & ~16) == 8;
    return isNdb ? mapscript::addNdbMarker({place, iden, text(row, 1), row.value(11).toInt(),
                                            markertext::ndb(iden, name, frequency, lat, lon)})
                 : mapscript::addVorMarker(
                       {place, iden, text(row, 1), type, markertext::vor(iden, name, frequency, lat, lon)});
}

QString waypointScript(const QSqlQuery& row)
{
    const double lat = number(row, 9);
    const double lon = number(row, 10);
    const QString name = text(row, 3);
    const int usage = row.value(8).toInt();
    return mapscript::addWptMarker({mapscript::storedPlace(lat, lon), name, text(row, 2), usage,
                                    markertext::waypoint(text(row, 1), name, QString::number(usage), lat, lon)});
}

} // namespace

namespace markerfeed {

QStringList airports(QSqlQuery& rows)
{
    return scriptsOfCountry(rows, 5, airportScript);
}

QStringList navaids(QSqlQuery& rows)
{
    return scriptsOfCountry(rows, 7, navaidScript);
}

QStringList waypoints(QSqlQuery& rows)
{
    return scriptsOfCountry(rows, 4, waypointScript);
}

} // namespace markerfeed
