// The steps of the tour.
#include "tour.h"

#include "mainwindow.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QToolBar>
#include <QTreeWidget>
#include <QtTest>

#include <cstdio>

namespace {

struct Place
{
    double latitude; ///< degrees
    double longitude;
};

// Of the demonstration simulator's rows.
const Place orly{48.7295, 2.35896};
const Place runwayHead{48.7355, 2.36068}; // of its longest runway, where a flight starts
const Place rambouillet{48.6539, 1.99422};
const Place balan{46.51611, 1.03333};

/// The middle of a menu entry on the page; null without one.
const char* const entryPlace = R"js(
    (function (text) {
        var found = Array.from(document.querySelectorAll('#menu .menu-entry')).filter(function (entry) {
            return entry.textContent === text && entry.offsetWidth > 0;
        });
        if (found.length !== 1)
            return null;
        var box = found[0].getBoundingClientRect();
        return [box.left + box.width / 2, box.top + box.height / 2];
    })(pageWords['%1']))js";

/// Time for the page to draw and for the window to lay itself out.
void settle()
{
    constexpr int rest = 400; // milliseconds
    QTest::qWait(rest);
}

} // namespace

Tour::Tour(const QString& pictures) : album(pictures) {}

const QVector<Tour::Step>& Tour::steps()
{
    static const QVector<Step> all{
        {"loaded", &Tour::start},
        {"search-exact", &Tour::searchExact},
        {"search-near", &Tour::searchNear},
        {"layers", &Tour::hideLayers},
        {"airport-menu", &Tour::openMarkerMenu},
        {"departure", &Tour::addDeparture},
        {"runways", &Tour::showRunways},
        {"start-dragged", &Tour::dragStart},
        {"start-turned", &Tour::turnStart},
        {"navaid-from-map", &Tour::addNavaidFromMap},
        {"navaid-from-search", &Tour::addNavaidFromSearch},
        {"map-menu", &Tour::openMapMenu},
        {"own-point", &Tour::addOwnPoint},
        {"pop-up", &Tour::openPopup},
        {"waypoint-from-map", &Tour::addWaypointFromMap},
        {"destination", &Tour::addDestination},
        {"whole-plan", &Tour::seeWholePlan},
        {"altitude-typed", &Tour::typeAltitude},
        {"altitude-taken", &Tour::leaveAltitude},
        {"saved", &Tour::save},
        {"start-set", &Tour::setStart},
        {"new-plan", &Tour::startNew},
        {"plan-loaded", &Tour::load},
    };
    return all;
}

bool Tour::take()
{
    for (const Step& step : steps()) {
        (this->*step.work)();
        settle();
        for (const QString& complaint : boxes.takeComplaints()) {
            require(false, complaint);
        }
        picture(&session.window(), step.name);
        if (!failure.isEmpty()) {
            std::fprintf(stderr, "tour: %s: %s\n", step.name, qPrintable(failure));
            return false;
        }
    }
    return true;
}

void Tour::start()
{
    require(session.load(), "the map page did not load");
    // No window manager on a virtual display makes a window active, and keys go to the active one only.
    QApplication::setActiveWindow(&session.window());
}

void Tour::searchExact()
{
    // As on a pilot's screen: wide enough for the whole plan.
    session.window().resize(1320, 1080);
    search("lfpo", "btnSearchExact");
    pickFound("LFPO");
    session.find<QTreeWidget>("treeWFound")->expandAll();
}

void Tour::searchNear()
{
    search("AM", "btnSearchNear");
    pickFound("AMB4FR");
}

/// The terminal waypoints hide what lies below them around Paris.
void Tour::hideLayers()
{
    auto* bar = session.find<QToolBar>("mainToolBar");
    QAction* terminal = session.action("actWptTerm");
    QTest::mouseClick(bar->widgetForAction(terminal), Qt::LeftButton);
    require(!terminal->isChecked(), "the layer of the terminal waypoints is still on");
    zoomTo(9);
    centreOn("LFPO", "LFPO");
}

void Tour::openMarkerMenu()
{
    openMenuAt(session.page().pointOf(orly.latitude, orly.longitude));
}

void Tour::addDeparture()
{
    chooseEntry("addToPlan");
    requireLines(1);
}

void Tour::showRunways()
{
    zoomTo(13);
    centreOn("LFPO", "LFPO");
    openMenuAt(session.page().pointOf(orly.latitude, orly.longitude));
    chooseEntry("showRunways");
}

void Tour::dragStart()
{
    const QPoint from = session.page().pointOf(runwayHead.latitude, runwayHead.longitude);
    session.page().drag(from, from + QPoint(40, 40));
}

void Tour::turnStart()
{
    auto* heading = session.find<QSpinBox>("spInertial");
    heading->setFocus();
    heading->selectAll();
    QTest::keyClicks(heading, "62");
    QTest::keyClick(heading, Qt::Key_Return);
    require(heading->value() == 62, "the heading was not taken");
}

void Tour::addNavaidFromMap()
{
    zoomTo(9);
    openMenuAt(session.page().pointOf(rambouillet.latitude, rambouillet.longitude));
    chooseEntry("addToPlan");
    requireLines(2);
}

void Tour::addNavaidFromSearch()
{
    search("AMB", "btnSearchExact");
    addFound("AMB4FR");
    requireLines(3);
}

void Tour::openMapMenu()
{
    centreOn("AMB", "AMB4FR");
    openMenuAt(session.page().pointOf(47.1, 1.35));
}

void Tour::addOwnPoint()
{
    chooseEntry("userPoint");
    requireLines(4);
}

void Tour::openPopup()
{
    centreOn("BALAN", "BALANFR");
    session.page().click(session.page().pointOf(balan.latitude, balan.longitude));
}

void Tour::addWaypointFromMap()
{
    openMenuAt(session.page().pointOf(balan.latitude, balan.longitude));
    chooseEntry("addToPlan");
    requireLines(5);
}

void Tour::addDestination()
{
    search("LMG", "btnSearchExact");
    addFound("LMG4FR");
    search("LFBO", "btnSearchExact");
    addFound("LFBO");
    requireLines(7);
}

void Tour::seeWholePlan()
{
    // A click on the empty map closes the pop-up.
    session.page().click(QPoint(20, 20));
    zoomTo(6);
    constexpr int middle = 3;
    QTest::mouseClick(grid()->viewport(), Qt::LeftButton, Qt::NoModifier,
                      grid()->visualItemRect(grid()->item(middle, 1)).center());
    grid()->actions().first()->trigger();
}

void Tour::typeAltitude()
{
    constexpr int altitude = 9;
    QTest::mouseClick(grid()->viewport(), Qt::LeftButton, Qt::NoModifier,
                      grid()->visualItemRect(grid()->item(1, altitude)).center());
    // The first key opens the cell's editor, which takes the others.
    QTest::keyClick(grid(), Qt::Key_7);
    QTest::keyClicks(QApplication::focusWidget(), "500");
}

void Tour::leaveAltitude()
{
    constexpr int altitude = 9;
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    // Not up: what is left by a jump from the first line is the first line's altitude, and it would go down the plan.
    QTest::keyClick(grid(), Qt::Key_Down);
    require(grid()->item(1, altitude)->text() == "7500", "the altitude was not taken");
    require(grid()->item(5, altitude)->text() == "7500", "the altitude did not go down the plan");
}

void Tour::save()
{
    expectMessage(QMessageBox::Ok, "box-saved");
    expectMessage(QMessageBox::Cancel, "box-start-question");
    clickButton("btnSaveFlightPlan");
}

void Tour::setStart()
{
    expectMessage(QMessageBox::Ok, "box-start-question-agreed");
    clickButton("btnStartPos");
}

void Tour::startNew()
{
    expectMessage(QMessageBox::Ok, "box-new-plan");
    clickButton("btnNewFlightPlan");
    requireLines(0);
}

void Tour::load()
{
    boxes.expectDialog("QFileDialog", [this](QDialog* dialog) {
        settle();
        dialog->findChild<QLineEdit*>("fileNameEdit")->setText("LFPO_LFBO.FPL");
        picture(dialog, "box-load");
        QMetaObject::invokeMethod(dialog, "accept");
    });
    clickButton("btnLoadFlightPlan");
    requireLines(7);
}

void Tour::require(bool fulfilled, const QString& what)
{
    if (!fulfilled && failure.isEmpty()) {
        failure = what;
    }
}

void Tour::requireLines(int count)
{
    settle();
    require(grid()->rowCount() == count,
            QString("%1 lines in the plan instead of %2").arg(grid()->rowCount()).arg(count));
}

void Tour::picture(QWidget* widget, const char* name)
{
    require(album.take(widget, name), "the picture cannot be written");
}

void Tour::search(const QString& text, const QString& button)
{
    auto* edit = session.find<QLineEdit>("searchData");
    edit->setFocus();
    edit->clear();
    QTest::keyClicks(edit, text);
    clickButton(button);
}

void Tour::pickFound(const QString& key)
{
    constexpr int keyColumn = 4;
    auto* tree = session.find<QTreeWidget>("treeWFound");
    const QList<QTreeWidgetItem*> items = tree->findItems(key, Qt::MatchExactly, keyColumn);
    require(items.size() == 1, QString("%1 found %2 times").arg(key).arg(items.size()));
    if (!items.isEmpty()) {
        tree->setCurrentItem(items.first());
        tree->scrollToItem(items.first());
    }
}

void Tour::addFound(const QString& key)
{
    pickFound(key);
    auto* tree = session.find<QTreeWidget>("treeWFound");
    const QPoint place = tree->visualItemRect(tree->currentItem()).center();
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::mouseDClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, place);
}

void Tour::centreOn(const QString& ident, const QString& key)
{
    search(ident, "btnSearchExact");
    pickFound(key);
    session.find<QTreeWidget>("treeWFound")->actions().first()->trigger();
    settle();
}

void Tour::zoomTo(double zoom)
{
    constexpr int notch = 120;
    constexpr int most = 20;
    auto* view = session.find<QWidget>("map");
    for (int i = 0; i < most; ++i) {
        const double now = session.page().evaluate("map.getZoom()").toDouble();
        if (qFuzzyCompare(now, zoom)) {
            return;
        }
        session.page().wheel(view->rect().center(), now < zoom ? notch : -notch);
        settle();
    }
    require(false, QString("the wheel did not bring the map to zoom %1").arg(zoom));
}

void Tour::openMenuAt(const QPoint& place)
{
    session.page().contextMenu(place);
    settle();
    require(session.page().evaluate("!document.getElementById('menu').hidden").toBool(), "no menu opened on the page");
}

void Tour::chooseEntry(const QString& word)
{
    const QVariantList place = session.page().evaluate(QString(entryPlace).arg(word)).toList();
    require(place.size() == 2, QString("the menu has no entry \"%1\"").arg(word));
    if (place.size() == 2) {
        session.page().click(QPoint(place.at(0).toInt(), place.at(1).toInt()));
    }
}

void Tour::expectMessage(QMessageBox::StandardButton button, const char* pictureName)
{
    boxes.expectDialog("QMessageBox", [this, button, pictureName](QDialog* dialog) {
        settle();
        picture(dialog, pictureName);
        qobject_cast<QMessageBox*>(dialog)->button(button)->click();
    });
}

void Tour::clickButton(const QString& name)
{
    QTest::mouseClick(session.find<QPushButton>(name), Qt::LeftButton);
}

QTableWidget* Tour::grid() const
{
    return session.find<QTableWidget>("fltplnGrid");
}
