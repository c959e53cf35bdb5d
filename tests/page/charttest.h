#pragma once

#include "pagetest.h"

/// The colours of the day in which the symbols are drawn.
inline const char airportColour[] = "#1d3f8f";
inline const char navaidColour[] = "#1f5fa8";
inline const char waypointColour[] = "#2f4a38";
inline const char routeColour[] = "#c2185b";

/// What shows and hides all markers of the feed.
inline const char allLayers[] =
    "pushAPT();addNavMgr();addWptMgr();VORMgr.addMarkers(listVOR);NDBRteMgr.addMarkers(listNDBRte);"
    "NDBTermMgr.addMarkers(listNDBTerm);WPTRteMgr.addMarkers(listWptRte);"
    "WPTTermMgr.addMarkers(listWptTerm);WPTVfrMgr.addMarkers(listWptVfr)";
inline const char noLayers[] = "ArptMgr.clearMarkers();VORMgr.clearMarkers();NDBRteMgr.clearMarkers();"
                               "NDBTermMgr.clearMarkers();WPTRteMgr.clearMarkers();WPTTermMgr.clearMarkers();"
                               "WPTVfrMgr.clearMarkers()";

/// The tests of what markers look like.
class ChartTest : public PageTest
{
    Q_OBJECT

protected:
    /// Whether a script changes what shows around a position.
    bool changes(const QString& script, double latitude, double longitude, int reach = 10);
    int ink(double latitude, double longitude, const char* colour, int reach = 10);
    void addVor(const char* ident, double latitude, double longitude, int type = 1);
    void showVors();
    void plan(const QString& name, double latitude, double longitude);
};
