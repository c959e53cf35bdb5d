#pragma once

#include <QSharedPointer>
#include <QSqlQuery>
#include <QString>
#include <QTime>

/// One point of a plan: an airport, a navaid, a waypoint, a runway end or a point clicked on the map.
/// A leg belongs to the line at which it starts.
class CFpLine
{
public:
    CFpLine();

    /// The state of a new line; `ctry` keeps its value.
    void clear();

    /// Each fills the line from a query that stands on a row of SELECT *; what the row does not tell stays.
    void fromApt(const QSqlQuery& row);
    void fromRwyHigh(const QSqlQuery& row);
    void fromRwyLow(const QSqlQuery& row);
    void fromNav(const QSqlQuery& row);
    void fromWpt(const QSqlQuery& row);
    void fromSidStar(const QSqlQuery& row);

    QString fpType; ///< "airp", "snav", "wayp" or "uswp"; the file's word below <wpnt>
    QString name;
    QString iden;
    double latS; ///< arc seconds
    double lonS; ///< arc seconds, as stored or as clicked
    int elev;    ///< feet
    QString dbKey;
    QString usage; ///< "airp", "snav" or "uswp": decides how the line is drawn and handled
    int altd;      ///< feet
    QString tkof;
    QString land;
    QString mark;
    int navType;
    double heading; ///< degrees
    int speed;      ///< knots over the leg that starts here
    double route;   ///< true course of the leg, degrees, 0 up to but not including 360
    double dist;    ///< nautical miles
    int duration;   ///< minutes
    QTime timeAt;
    double freq;
    QString ctry;
};

/// A line can stand among the found lines and, more than once, in the plan: whoever holds it last frees it.
using CFpLinePtr = QSharedPointer<CFpLine>;
