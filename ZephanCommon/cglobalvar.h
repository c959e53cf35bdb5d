#pragma once

#include "sqlmgr.h"
#include "tilegrid.h"

#include <QDir>
#include <QString>

/// Knows where the simulator is, which database files are in use and how the earth is cut into tiles.
/// It serves every tool of the suite; a program derives from it for its own settings.
class CGlobalVar
{
public:
    CGlobalVar();
    virtual ~CGlobalVar();
    CGlobalVar(const CGlobalVar&) = delete;
    CGlobalVar& operator=(const CGlobalVar&) = delete;

    virtual void saveSettings() = 0;
    virtual void loadSettings() = 0;

    /// The whole database set-up, once, after `dirZephan` is known. Always true: a missing database is no failure.
    bool init();
    /// Reads the simulator's ini file and fills the seven folders.
    void initDBPath();
    /// Finds the six database files, opens them and fills the file names. Always true.
    bool initDB();

    int getVerticalBand(double latSec) const;
    int getTileKey(double latSec, double lonSec) const;
    int GetVerticalQgtNumber(double latSec) const;
    int getHalfColumn(double lonSec) const;
    int getColumnHigh(double lonSec) const;
    bool isAboveBand(double latSec, int band) const;
    int countBandsUp(short band) const;
    int countBandsDown(short band) const;
    QString tileKeyText(const QString& tile) const;
    /// Arc seconds as text, see positions.h.
    QString latToText(double latSec, bool withSecondMark) const;
    QString lonToText(double lonSec, bool withSecondMark) const;

    SqlMgr* sqlMgr; ///< alive until the process ends, not deleted here

    /// File names of the databases, which are the names of their connections. Empty when none was found.
    QString dbGEN;
    QString dbM3D;
    QString dbOBJ;
    QString dbTXY;
    QString dbWPT;
    QString dbRTE;
    QString dbOSM; ///< filled by an update file only

    QDir dirZephan; ///< the simulator's root
    QDir dirWork;   ///< the user's work folder
    QDir dirGEN;
    QDir dirM3D;
    QDir dirOBJ;
    QDir dirTXY;
    QDir dirWPT;
    QDir dirRTE;
    QDir dirOSM;

    TileGrid tileGrid;
};
