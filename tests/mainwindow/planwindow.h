#pragma once

#include "pageprobe.h"
#include "sandbox.h"

#include <QStringList>
#include <QVector>

#include <functional>
#include <memory>

class CFlightPlan;
class MainWindow;
class QTableWidget;

/// The real window on a small world, loaded and shown, for the tests of the flight plan.
///
/// Airports (key, identity, name): FR001 LFPO "PARIS ORLY" with two equally long runways behind a shorter one, FR002
/// LFBO "TOULOUSE BLAGNAC", US001 KSFO "San Francisco Intl", BR001 SBGL "GALEAO" (south and west of the zero point),
/// XX001 LFXX "SANS PISTE" (no runway). Navaids: N1 PGS "PARIS" (type 1), N8 CGN "COGNAC" (type 8). Waypoints: W1
/// BAMES, W3 ETAMP, W2 QUOTE named `A"B`. One archive, whose aircraft is "CESSNA 172".
class PlanWindow
{
public:
    /// `prepare` changes the sandbox before the window starts.
    explicit PlanWindow(const std::function<void(const Sandbox&)>& prepare = {});
    ~PlanWindow();

    /// Adds points by their marker titles, each behind the one before: airports by identity, the others by title.
    void add(const QStringList& titles);
    /// Adds a point clicked on the map, in degrees.
    void addClicked(const QString& stem, double latitude, double longitude);
    /// Forgets what the page was told so far.
    void clearCalls();
    /// What the page was told, one call after the other, with a blank between them.
    QString told();

    CFlightPlan& plan() const;
    QTableWidget* grid() const;
    QString cell(int row, int column) const;
    /// Identities of the plan's lines in flying order, with a blank between them.
    QString idents() const;
    /// Row and column of the grid's current cell.
    QPair<int, int> current() const;
    void setCurrent(int row, int column = 1) const;
    /// Raises a dock, and lets the page be told of it.
    void bringToFront(const QString& dock) const;
    /// True when the dock lies in front of the ones that share its place.
    bool isInFront(const QString& dock) const;
    QString title(const QString& dock) const;
    /// How many of the five commands that need a plan are enabled.
    int enabledPlanCommands() const;
    void click(const QString& button) const;

    Sandbox sandbox;
    std::unique_ptr<MainWindow> window;
    std::unique_ptr<PageProbe> probe;
};
