#pragma once

/// How large a demonstration simulator is. Rows of its own come first and are never left out; invented ones are added
/// until each table has at least the number asked for.
struct DemoSize
{
    int airports = 0;
    int navaids = 0;
    int waypoints = 0;
    int aircraft = 0;
    int frenchPercent = 100; ///< of the invented rows, 0 to 100; only French rows reach the map
};
