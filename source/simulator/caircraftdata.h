#pragma once

#include <QString>

class CPodMgr;

/// The performance numbers of one aircraft; one for each POD, and one that the flight plan owns.
class CAircraftData
{
public:
    /// Fills `acid` and the five numbers from the entry in the archive's `content`. What is missing gives 0.
    void readSvh(CPodMgr* pod);

    QString make;
    QString acid;        ///< registration
    int speedMax = 0;    ///< knots
    int speedCruise = 0; ///< knots
    int speedVert = 0;   ///< feet a minute
    int speedApp = 0;    ///< knots
    int ceiling = 0;     ///< feet
    int altCruise = 0;   ///< feet; no archive tells it
    double unused = 0.0;
};
