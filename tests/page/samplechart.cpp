#include "samplechart.h"

namespace {

QString at(const samplechart::Place& place)
{
    return QString("new google.maps.LatLng(%1,%2)").arg(place.latitude, 3, 'f', 5).arg(place.longitude, 3, 'f', 5);
}

} // namespace

namespace samplechart {

bool show(PageWindow& window, const QString& page)
{
    if (!window.load(page))
        return false;
    const QString blue = "<font color=blue><b>";
    const QString black = "</b><font color=black><br/>";
    window.run("map.setCenter(" + at(centre) + ");map.setZoom(8)");
    window.run("addAPTMarker(" + at(airport) + ",\"LFLX\",1,\"" + blue + "Airport LFLX" + black +
               "DEOLS<br/>46 54' 00 N - 002 00' 00 E\");pushAPT();");
    window.run("addVORMarker(" + at(vorAndWaypoint) + ",\"CGO-CGO4FR\",17,\"" + blue + "VOR CGO" + black +
               "CHATEAUROUX<br/>117.8 Mhz<br/>46 42' 00 N - 002 36' 00 E\");addNDBMarker(" + at(ndb) +
               ",\"MT-MT5FR\",4,\"" + blue + "NDB MT" + black +
               "MONTLUCON<br/>398 Khz<br/>46 24' 00 N - 002 36' 00 E\");addNavMgr();VORMgr.addMarkers(listVOR);"
               "NDBTermMgr.addMarkers(listNDBTerm)");
    window.run("addWPTMarker(" + at(vorAndWaypoint) + ",\"CGO-CGOFR\",1,\"" + blue + "Waypoint CGO" + black +
               "CGO (1)<br/>46 42' 00 N - 002 36' 00 E\");addWPTMarker(" + at(oddWaypoint) + ",\"W-X-WXFR\",6,\"" +
               blue + "Waypoint WX1" + black +
               "W-X (6)<br/>46 24' 00 N - 002 18' 00 E\");addWptMgr();WPTRteMgr.addMarkers(listWptRte);"
               "WPTVfrMgr.addMarkers(listWptVfr)");
    window.settle();
    return true;
}

QPoint pixel(PageWindow& window, const Place& place)
{
    return window.mouse->pointOf(place.latitude, place.longitude);
}

QStringList menuAt(PageWindow& window, const Place& place)
{
    return window.menuAt(place.latitude, place.longitude);
}

QStringList texts(PageWindow& window, const QString& selector)
{
    return window.run("Array.from(document.querySelectorAll('" + selector + "')).map(e => e.textContent)")
        .toStringList();
}

QRectF box(PageWindow& window, const QString& selector)
{
    const QVariantList edges =
        window
            .run("var found = document.querySelector('" + selector +
                 "').getBoundingClientRect(); [found.left, found.top, found.width, found.height]")
            .toList();
    return {edges.value(0).toDouble(), edges.value(1).toDouble(), edges.value(2).toDouble(), edges.value(3).toDouble()};
}

} // namespace samplechart
