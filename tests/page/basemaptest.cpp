// Views for the tests of the base map.
#include "basemaptest.h"

QString BaseMapTest::firstView() const
{
    return {};
}

void BaseMapTest::look(double latitude, double longitude, double zoom)
{
    window->run(QString("map.setCenter(new google.maps.LatLng(%1,%2));map.setZoom(%3)")
                    .arg(latitude, 3, 'f', 5)
                    .arg(longitude, 3, 'f', 5)
                    .arg(zoom));
}
