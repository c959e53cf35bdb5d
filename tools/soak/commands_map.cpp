// Mouse and keys on the map itself, which change nothing of the plan.
#include "command.h"
#include "soakworld.h"

#include "mainwindow.h"

#include <QLabel>
#include <QRegularExpression>
#include <QWebView>
#include <QtTest>

namespace {

bool isStill(SoakWorld& world)
{
    return !world.mapMoves();
}

QPoint somewhere(SoakWorld& world)
{
    const QWidget* view = world.session.find<QWebView>("map");
    return {world.dice.below(view->width()), world.dice.below(view->height())};
}

/// Back to the country of the charts: a map that wandered off would show nothing for the rest.
void goHome(SoakWorld& world)
{
    const double latitude = world.dice.between(43, 50);
    world.clearView(latitude, world.dice.between(-4, 8), 5 + world.dice.below(7));
    // The page reports its middle once it has come to rest.
    const auto* label = world.session.find<QLabel>("lblCenter");
    const QString wanted = QString("Centre: %1").arg(latitude, 3, 'f', 5);
    const bool told = QTest::qWaitFor([&] { return label->text().startsWith(wanted.left(13)); }, 20000);
    world.require(told, "the status bar shows " + label->text());
}

void pan(SoakWorld& world)
{
    // From a corner of open water: a press on the start marker would drag it.
    world.clearView(46.5, -8, 7);
    const QWidget* view = world.session.find<QWebView>("map");
    const QPoint from(view->width() / 3, view->height() / 2);
    const double before = world.evaluate("map.getCenter().lng()").toDouble();
    world.session.page().drag(from, from + QPoint(60 + world.dice.below(100), world.dice.below(100) - 50));
    world.require(world.evaluate("map.getCenter().lng()").toDouble() < before, "the map was not dragged");
}

void wheel(SoakWorld& world)
{
    constexpr int notch = 120;
    const QPoint at = somewhere(world);
    for (int i = world.dice.below(3); i >= 0; --i) {
        world.session.page().wheel(at, world.dice.chance(50) ? notch : -notch);
    }
}

void hover(SoakWorld& world)
{
    for (int i = 0; i < 10; ++i) {
        world.session.page().moveTo(somewhere(world));
    }
}

/// The pop-up of a marker.
void openPopup(SoakWorld& world)
{
    const QStringList titles = world.shownMarkers(world.dice.pick(QStringList{"airport", "navaid", "waypoint"}));
    if (titles.isEmpty()) {
        return;
    }
    const QString title = world.dice.pick(titles);
    world.note(title);
    const QVariantList place = world
                                   .evaluate(QString("(function () { var found = null;"
                                                     "page.layers.forEach(layer => layer.list.forEach(marker => {"
                                                     "if (marker.title === \"%1\") found = marker; }));"
                                                     "return [found.position.lat(), found.position.lng()]; })()")
                                                 .arg(title))
                                   .toList();
    world.clearView(place.value(0).toDouble(), place.value(1).toDouble(), 13);
    world.session.page().click(world.session.page().pointOf(place.value(0).toDouble(), place.value(1).toDouble()));
    if (world.session.page().popupText().isEmpty()) {
        world.note("(covered)");
    }
}

/// Legs between places, ended by a double click.
void measure(SoakWorld& world)
{
    if (!world.chooseForPlace(world.dice.between(43, 50), world.dice.between(-4, 8), "measureHere")) {
        world.note("(not there)");
        return;
    }
    for (int i = world.dice.below(4); i >= 0; --i) {
        world.session.page().moveTo(somewhere(world));
        world.session.page().click(somewhere(world));
    }
    world.evaluate("page.endMeasure()");
    if (world.dice.chance(50)) {
        world.evaluate("page.clearMeasure()");
    }
}

void changePalette(SoakWorld& world)
{
    const QString before = world.evaluate("page.palette.name").toString();
    world.evaluate("document.getElementById('palette-switch').click()");
    world.require(world.evaluate("page.palette.name").toString() != before, "the colours stay");
}

/// A menu that is opened and left.
void openMenu(SoakWorld& world)
{
    world.clearView(world.dice.between(43, 50), world.dice.between(-4, 8), 8);
    world.session.page().contextMenu(somewhere(world));
    world.evaluate("page.closeMenu()");
}

} // namespace

QVector<Command> mapCommands()
{
    return {
        {"go home", 2, isStill, goHome},
        {"pan", 3, isStill, pan},
        {"wheel", 4, nullptr, wheel},
        {"hover", 4, nullptr, hover},
        {"open pop-up", 4, isStill, openPopup},
        {"measure", 2, isStill, measure},
        {"change palette", 1, nullptr, changePalette},
        {"open menu", 3, isStill, openMenu},
    };
}
