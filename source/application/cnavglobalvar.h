#pragma once

#include "cglobalvar.h"

#include <QPointF>
#include <QString>
#include <QStringList>

class CFlightPlan;

/// The one global state of the program: the simulator's folders and databases, and the settings of "trajector.ini".
class CNavGlobalVar : public CGlobalVar
{
public:
    /// The single object, made on the first call; making it reads the settings file.
    static CNavGlobalVar* instance();
    /// Destroys the object, which writes the settings file. Does nothing when there is none.
    static void deleteInstance();

    void saveSettings() override;
    void loadSettings() override;

    double zoom = 0.0;
    QPointF mapCenter; ///< degrees: x is the longitude, y the latitude
    QStringList atsTypeNames;
    bool showAirport = false;
    bool showVor = false;
    bool showNdbRte = false;
    bool showNdbTerm = false;
    bool showWaypointRte = false;
    bool showWaypointTerm = false;
    bool showWaypointVfr = false;
    bool showATSH = false;
    bool showATSL = false;
    bool showATSB = false;
    bool showBoundary = false;
    bool showDock = false; ///< false is the full screen mode
    QString route;         ///< country code of the airways to load
    int traceInterval = 0; ///< milliseconds

    CFlightPlan* flightPlan = nullptr; ///< the one plan, made and kept by the main window

private:
    CNavGlobalVar();
    ~CNavGlobalVar() override;
};
