#pragma once

#include "pagetest.h"

/// The tests of labels, at zoom 9.
class LabelTest : public PageTest
{
    Q_OBJECT

protected:
    QString firstView() const override;
    void addAirport(const QString& ident, double latitude, double longitude);
    /// Waypoints in rows around a position, so many degrees apart.
    void addWaypoints(int rows, int columns, double step, double latitude, double longitude);
    /// The texts of the labels that the map shows.
    QStringList labels();
    /// The labels with the side on which they stand, of the points that lie well inside the view.
    QStringList labelsInView();
};
