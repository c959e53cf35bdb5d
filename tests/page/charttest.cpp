// Pages and pictures for the tests of what markers look like.
#include "charttest.h"

bool ChartTest::changes(const QString& script, double latitude, double longitude, int reach)
{
    const QImage before = pictureAround(latitude, longitude, reach);
    window->run(script);
    return pictureAround(latitude, longitude, reach) != before;
}

int ChartTest::ink(double latitude, double longitude, const char* colour, int reach)
{
    return window->pixelsAround(latitude, longitude, reach, QColor(colour));
}

void ChartTest::addVor(const char* ident, double latitude, double longitude, int type)
{
    window->run(QString("addVORMarker(new google.maps.LatLng(%1,%2),\"%3-%3KEY\",%4,"
                        "\"<font color=blue><b>VOR %3</b><font color=black><br/>NAME %3<br/>113.7 Mhz<br/>x\")")
                    .arg(latitude)
                    .arg(longitude)
                    .arg(ident)
                    .arg(type));
}

void ChartTest::showVors()
{
    window->run("addNavMgr();VORMgr.addMarkers(listVOR)");
}

void ChartTest::plan(const QString& name, double latitude, double longitude)
{
    window->run(QString("clearFP();addPointToFp(new google.maps.LatLng(%1,%2),\"%3\");pushFP();")
                    .arg(latitude)
                    .arg(longitude)
                    .arg(name));
}
