// The tour, and its steps from the start to a plan that is saved and loaded again.
#include "tour.h"

#include "blockpeer.h"
#include "mainwindow.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QProcess>
#include <QSettings>
#include <QSpinBox>
#include <QTableWidget>
#include <QTreeWidget>
#include <QtTest>

#include <cstdio>

namespace {

// Of the demonstration simulator's rows.
const Place orly{48.7295, 2.35896};
const Place runwayHead{48.7355, 2.36068}; // of its longest runway, where a flight starts
const Place threshold06{48.72, 2.31692};  // the other end of that runway
const Place rambouillet{48.6539, 1.99422};
const Place balan{46.51611, 1.03333};

} // namespace

Tour::Tour(const TourOptions& options) : TourHands(options), blockWasThere(QFileInfo::exists(NoBlock::path()))
{
    forgetWorkFolder();
    answerWorkFolder();
    session = std::make_unique<WindowSession>();
}

Tour::~Tour()
{
    simulator.reset();
    session.reset();
    // The block outlives its users and lets in its maker alone: left here by root, the next tour would have none.
    if (!blockWasThere) {
        NoBlock::remove();
    }
}

void Tour::forgetWorkFolder()
{
    QSettings settings("trajector.ini", QSettings::IniFormat);
    settings.remove("directory/dirWork");
}

void Tour::answerWorkFolder()
{
    boxes.expectDialog("QFileDialog", [this](QDialog* dialog) {
        settle();
        dialog->findChild<QLineEdit*>("fileNameEdit")->setText(QDir::cleanPath(QDir().absoluteFilePath("../../Work")));
        picture(dialog, "box-work-folder");
        QMetaObject::invokeMethod(dialog, "accept");
    });
}

const QVector<Tour::Step>& Tour::steps()
{
    static const QVector<Step> all{
        {"loaded", &Tour::start},
        {"search-exact", &Tour::searchExact},
        {"search-near", &Tour::searchNear},
        {"layers", &Tour::hideLayers},
        {"airport-menu", &Tour::openMarkerMenu},
        {"departure", &Tour::addDeparture},
        {"saved-too-early", &Tour::saveTooEarly},
        {"runways", &Tour::showRunways},
        {"start-dragged", &Tour::dragStart},
        {"start-turned", &Tour::turnStart},
        {"navaid-from-map", &Tour::addNavaidFromMap},
        {"navaid-from-search", &Tour::addNavaidFromSearch},
        {"map-menu", &Tour::openMapMenu},
        {"own-point", &Tour::addOwnPoint},
        {"measure", &Tour::measureLegs},
        {"measure-cleared", &Tour::clearMeasure},
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
        {"map-alone", &Tour::openChart},
        {"map-by-day", &Tour::chartByDay},
        {"map-by-night", &Tour::chartByNight},
        {"docks-back", &Tour::closeChart},
        {"trace", &Tour::traceFlight},
        {"trace-followed", &Tour::followFlight},
        {"plan-left", &Tour::leavePlan},
        {"trace-ended", &Tour::endTrace},
        {"trail-cleared", &Tour::clearTrail},
        {"navaid-dialog", &Tour::openNewNavaid},
        {"empty-map-menu", &Tour::openEmptyMapMenu},
        {"waypoint-made", &Tour::makeWaypoint},
        {"waypoint-pop-up", &Tour::openNewPopup},
        {"waypoint-menu", &Tour::openWaypointMenu},
        {"waypoint-deleted", &Tour::deleteWaypoint},
        {"update-imported", &Tour::importUpdate},
        {"aircraft-chosen", &Tour::chooseAircraft},
        {"plan-searched", &Tour::planBySearch},
        {"departure-planned", &Tour::planDeparture},
        {"sid-stored", &Tour::storeSid},
        {"sid-shown", &Tour::showSid},
        {"sid-added", &Tour::addSid},
        {"star-shown", &Tour::showStar},
        {"star-added", &Tour::addStar},
        {"airways", &Tour::listAirways},
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
        picture(&session->window(), step.name);
        if (!failure.isEmpty()) {
            std::fprintf(stderr, "tour: %s: %s\n", step.name, qPrintable(failure));
            return false;
        }
    }
    for (const QString& name : manual.missing()) {
        std::fprintf(stderr, "tour: no step takes the manual's picture %s\n", qPrintable(name));
    }
    return manual.missing().isEmpty();
}

void Tour::start()
{
    require(session->load(), "the map page did not load");
    activate();
}

void Tour::searchExact()
{
    // As on a pilot's screen: wide enough for the whole plan.
    session->window().resize(1320, 1080);
    search("lfpo", "btnSearchExact");
    pickFound("LFPO");
    session->find<QTreeWidget>("treeWFound")->expandAll();
}

void Tour::searchNear()
{
    search("AM", "btnSearchNear");
    pickFound("AMB4FR");
}

/// The terminal waypoints hide what lies below them around Paris.
void Tour::hideLayers()
{
    clickToolBar("actWptTerm", false);
    zoomTo(9);
    centreOn("LFPO", "LFPO");
}

void Tour::openMarkerMenu()
{
    openMenuAt(session->page().pointOf(orly.latitude, orly.longitude));
}

void Tour::addDeparture()
{
    chooseEntry("addToPlan");
    requireLines(1);
}

void Tour::saveTooEarly()
{
    expectMessage(QMessageBox::Ok, "box-too-short");
    clickButton("btnSaveFlightPlan");
    activate();
}

void Tour::showRunways()
{
    zoomTo(13);
    centreOn("LFPO", "LFPO");
    openMenuAt(session->page().pointOf(orly.latitude, orly.longitude));
    chooseEntry("showRunways");
}

void Tour::dragStart()
{
    session->page().drag(session->page().pointOf(runwayHead.latitude, runwayHead.longitude),
                         session->page().pointOf(threshold06.latitude, threshold06.longitude));
}

void Tour::turnStart()
{
    auto* heading = session->find<QSpinBox>("spInertial");
    heading->setFocus();
    heading->selectAll();
    QTest::keyClicks(heading, "62");
    QTest::keyClick(heading, Qt::Key_Return);
    require(heading->value() == 62, "the heading was not taken");
}

void Tour::addNavaidFromMap()
{
    zoomTo(9);
    openMenuAt(session->page().pointOf(rambouillet.latitude, rambouillet.longitude));
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
    openMenuAt(session->page().pointOf(47.1, 1.35));
}

void Tour::addOwnPoint()
{
    chooseEntry("userPoint");
    requireLines(4);
}

void Tour::openPopup()
{
    centreOn("BALAN", "BALANFR");
    session->page().click(session->page().pointOf(balan.latitude, balan.longitude));
}

void Tour::addWaypointFromMap()
{
    openMenuAt(session->page().pointOf(balan.latitude, balan.longitude));
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
    session->page().click(QPoint(20, 20));
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
    expectFile("LFPO_LFBO.FPL", "box-load");
    clickButton("btnLoadFlightPlan");
    requireLines(7);
}
