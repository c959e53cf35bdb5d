#pragma once

#include "cfpline.h"

#include <QString>
#include <QVector>

class CFlightPlan;

/// One row that a search found, as a plan line that stands in no list yet.
struct FoundPoint
{
    CFpLinePtr line;
    QVector<CFpLinePtr> runways; ///< of an airport: the high and the low end of each runway
};

Q_DECLARE_TYPEINFO(FoundPoint, Q_MOVABLE_TYPE);

/// Rows whose key, identity or name fits the text, in the order of the database. A failed statement shows the error
/// box and finds nothing.
///
/// `exact` false takes what begins with the text; it then also gives an airport the runways of every airport whose key
/// begins with its own.
QVector<FoundPoint> findAirports(CFlightPlan& plan, const QString& text, bool exact);
QVector<FoundPoint> findNavaids(CFlightPlan& plan, const QString& text, bool exact);
QVector<FoundPoint> findWaypoints(CFlightPlan& plan, const QString& text, bool exact);
