// A measure on the map, and the steps with the chart alone: the map with all its layers and the plan, from the whole
// country down to an airport, by day and by night.
#include "tour.h"

#include "mainwindow.h"

#include <QDockWidget>
#include <QToolBar>
#include <QtTest>

namespace {

/// A picture of the chart: how near, and what is in its middle as the search finds it.
struct ChartView
{
    int zoom;
    FoundPoint middle;
};

// The whole plan as long as the view holds it, then its navaids, then the airport that it begins at.
const ChartView chartViews[] = {
    {5, {"AMB", "AMB4FR"}},  {6, {"AMB", "AMB4FR"}}, {8, {"AMB", "AMB4FR"}},
    {10, {"RBT", "RBT4FR"}}, {12, {"LFPO", "LFPO"}},
};

/// The corners of a measure, where nothing of the map lies.
const QVector<Place> measured{{47.75, 0.75}, {47.85, 1.55}, {47.25, 1.85}};

/// The middle of the button that goes from day to night and back.
const char* const paletteSwitchPlace = R"js(
    (function () {
        var box = document.getElementById('palette-switch').getBoundingClientRect();
        return [box.left + box.width / 2, box.top + box.height / 2];
    })())js";

} // namespace

void Tour::clickToolBar(const QString& action, bool checked)
{
    auto* bar = session->find<QToolBar>("mainToolBar");
    QTest::mouseClick(bar->widgetForAction(session->action(action)), Qt::LeftButton);
    require(session->action(action)->isChecked() == checked, action + " is not as it was clicked");
}

void Tour::measureLegs()
{
    openMenuAt(session->page().pointOf(measured.first().latitude, measured.first().longitude));
    chooseEntry("measureHere");
    for (const Place& corner : measured.mid(1)) {
        session->page().click(session->page().pointOf(corner.latitude, corner.longitude));
        settle();
    }
    QTest::keyClick(session->find<QWidget>("map"), Qt::Key_Escape);
    require(!session->page().evaluate("page.isMeasuring()").toBool(), "the measure has not ended");
}

void Tour::clearMeasure()
{
    QTest::keyClick(session->find<QWidget>("map"), Qt::Key_Escape);
    require(!session->page().evaluate("page.hasMeasure()").toBool(), "the measure is still there");
}

void Tour::openChart()
{
    clickToolBar("actWptTerm", true);
    clickToolBar("actDock", false);
    for (const QDockWidget* dock : session->window().findChildren<QDockWidget*>()) {
        require(dock->isHidden(), dock->objectName() + " is not hidden");
    }
}

void Tour::switchPalette(const QString& name)
{
    const QVariantList place = session->page().evaluate(paletteSwitchPlace).toList();
    session->page().click(QPoint(place.value(0).toInt(), place.value(1).toInt()));
    // Away from the button, whose word would stand on the picture.
    session->page().moveTo(QPoint(20, 20));
    require(session->page().evaluate("page.palette.name").toString() == name,
            "the map has not become that of the " + name);
}

void Tour::takeCharts(const QString& palette)
{
    for (const ChartView& view : chartViews) {
        centreOn(view.middle.ident, view.middle.key);
        zoomTo(view.zoom);
        centreOn(view.middle.ident, view.middle.key);
        // All points but the one of the pilot's own are markers of the chart.
        require(session->page().evaluate("page.plannedMarkers().length").toInt() == 6,
                QString("the points of the plan are not on the map at zoom %1").arg(view.zoom));
        require(session->page().evaluate("document.querySelectorAll('.leg-text, .leg-arrow').length").toInt() > 0,
                QString("no leg of the plan is told at zoom %1").arg(view.zoom));
        const QString name = QString("chart-zoom-%1-by-%2").arg(view.zoom, 2, 10, QLatin1Char('0')).arg(palette);
        picture(session->find<QWidget>("map"), qPrintable(name));
    }
}

void Tour::chartByDay()
{
    takeCharts("day");
}

void Tour::chartByNight()
{
    switchPalette("night");
    takeCharts("night");
}

void Tour::closeChart()
{
    switchPalette("day");
    clickToolBar("actDock", true);
    clickToolBar("actWptTerm", false);
}
