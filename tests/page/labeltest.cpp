// Points for the tests of labels, and the labels that the map shows.
#include "labeltest.h"

QString LabelTest::firstView() const
{
    return "map.setCenter(new google.maps.LatLng(46.50000, 2.50000));map.setZoom(9)";
}

void LabelTest::addAirport(const QString& ident, double latitude, double longitude)
{
    window->run(QString("addAPTMarker(new google.maps.LatLng(%1,%2),\"%3\",1,"
                        "\"<font color=blue><b>Airport %3</b><font color=black><br/>FIELD<br/>x\")")
                    .arg(latitude)
                    .arg(longitude)
                    .arg(ident));
}

void LabelTest::addWaypoints(int rows, int columns, double step, double latitude, double longitude)
{
    QStringList batch;
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < columns; ++column)
            batch << QString("addWPTMarker(new google.maps.LatLng(%1,%2),\"W%3X%4-K\",1,\"x\")")
                         .arg(latitude + (row - (rows - 1) / 2.0) * step * 0.7)
                         .arg(longitude + (column - (columns - 1) / 2.0) * step)
                         .arg(row)
                         .arg(column);
    batch << "addWptMgr();WPTRteMgr.addMarkers(listWptRte)";
    window->run(batch.join(';'));
}

QStringList LabelTest::labels()
{
    window->settle();
    return window->run("Array.from(map.points.declutter.kept.keys()).map(point => point.look.label.text)")
        .toStringList();
}

QStringList LabelTest::labelsInView()
{
    window->settle();
    return window
        ->run("var labels = []; map.points.declutter.kept.forEach((side, point) => {"
              "const at = map.leaflet.latLngToContainerPoint([point.geometry.lat(), point.geometry.lng()]);"
              "if (at.x > 60 && at.x < 740 && at.y > 30 && at.y < 570) labels.push(point.look.label.text + ' ' + "
              "side);"
              "}); labels")
        .toStringList();
}
