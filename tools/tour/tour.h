#pragma once

#include "tourhands.h"

#include <QString>
#include <QStringList>
#include <QVector>

#include <memory>

class QDialog;
class QProcess;

/// The program's main job as a pilot does it, from the start to a plan that is saved, loaded again and flown, then a
/// waypoint that is made, deleted and exported, then a plan with a SID and a STAR: real events on the real window, and
/// a picture after each step. It flies from Paris Orly to Toulouse Blagnac on the demonstration simulator's data.
class Tour : public TourHands
{
public:
    /// Starts the program as at its first start.
    explicit Tour(const TourOptions& options);
    ~Tour();

    /// Takes the steps in their order, up to the first that does not go as it should; that one is told on the standard
    /// error. True when all of them did.
    bool take();

    /// Absolute path of the update file that the deletion of the waypoint leaves beside the program.
    static QString updateFile();

private:
    struct Step
    {
        const char* name; ///< of its picture
        void (Tour::*work)();
    };
    static const QVector<Step>& steps();

    /// As at a first start: the program does not know its work folder and asks for it.
    void forgetWorkFolder();
    void answerWorkFolder();

    void start();
    void searchExact();
    void searchNear();
    void hideLayers();
    void openMarkerMenu();
    void addDeparture();
    void saveTooEarly();
    void showRunways();
    void dragStart();
    void turnStart();
    void addNavaidFromMap();
    void addNavaidFromSearch();
    void openMapMenu();
    void measureLegs();
    void clearMeasure();
    void addOwnPoint();
    void openPopup();
    void addWaypointFromMap();
    void addDestination();
    void seeWholePlan();
    void typeAltitude();
    void leaveAltitude();
    void save();
    void setStart();
    void startNew();
    void load();

    void openChart();
    void chartByDay();
    void chartByNight();
    void closeChart();

    void traceFlight();
    void followFlight();
    void leavePlan();
    void endTrace();

    void clearTrail();
    void openNewNavaid();
    void openEmptyMapMenu();
    void makeWaypoint();
    void openNewPopup();
    void openWaypointMenu();
    void deleteWaypoint();
    void importUpdate();

    void chooseAircraft();
    void planBySearch();
    void planDeparture();
    void storeSid();
    void showSid();
    void addSid();
    void showStar();
    void addStar();
    void listAirways();

    /// A picture of the map alone from each of the chart's views; the palette names the pictures.
    void takeCharts(const QString& palette);
    /// Clicks the button of the map that goes from day to night and back; the name is that of the palette to come.
    void switchPalette(const QString& name);
    /// Clicks a switch of the tool bar, which is then to be as told.
    void clickToolBar(const QString& action, bool checked);

    /// Starts the simulator's stand-in with the options that tell its way, `factor` times faster than in reality, and
    /// returns once it publishes.
    void startFlight(const QStringList& way, int factor);
    void endFlight();
    /// Fills the open dialog of the new waypoint, and ends it by its OK.
    void fillWaypoint(QDialog* dialog);
    /// Fills the position dialog that the waypoint's opened, and accepts it.
    void fillPosition(QDialog* dialog);

    /// Begins a new plan of these points.
    void planOf(const QList<FoundPoint>& points);
    void openDock(const QString& name);
    void clickRow(int row);
    void clickProcedure(const QString& tree, const QString& name);

    const bool blockWasThere;            ///< the shared block, before the tour
    std::unique_ptr<QProcess> simulator; ///< while the plan is flown; killed when the tour ends before the flight
};
