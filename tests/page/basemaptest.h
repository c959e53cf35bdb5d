#pragma once

#include "pagetest.h"

#include <QColor>

/// The tests of what the base map shows, by day; each chooses its own view.
class BaseMapTest : public PageTest
{
    Q_OBJECT

protected:
    QString firstView() const override;
    void look(double latitude, double longitude, double zoom);

    const QColor land{"#f6f3ea"};
    const QColor sea{"#d3e4ee"};
};
