#pragma once

#include "cfpline.h"

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVector>

#include <memory>

class CAircraftData;
class CNavGlobalVar;
class QTableWidget;

/// The plan, the lines that the last search found, the aircraft record and the start position.
class CFlightPlan
{
    Q_DECLARE_TR_FUNCTIONS(CFlightPlan)

public:
    /// Takes the grid that shows the plan; the second argument is ignored.
    CFlightPlan(QTableWidget* gridWidget, int unused);
    ~CFlightPlan();
    CFlightPlan(const CFlightPlan&) = delete;
    CFlightPlan& operator=(const CFlightPlan&) = delete;

    /// A line with the record's cruise speed and altitude, in no list yet.
    CFpLinePtr newLine();
    /// Does nothing for a row that is not there.
    void removeLine(int row);
    void moveLineUp(int row);
    void moveLineDown(int row);
    /// Inserts at `position`; past the end appends, below 0 goes to the head.
    void insertLine(const CFpLinePtr& line, int position);
    void clearLines();
    /// Where an aircraft starts at an airport: the high end of its longest runway. Also kept in `startLine`.
    /// No runway: the error box, and a cleared start.
    CFpLine startOfAirport(const QString& key);

    void computeLegs();
    /// The script that redraws the route on the map page.
    QString mapScript() const;
    /// Legs, grid and file text anew; the current cell goes to the last line. Returns the map script.
    /// An empty plan empties the grid and the file text.
    QString refresh();

    /// Fills `textLines` with the plan file. An empty plan gives an empty text.
    void buildFplText();
    /// Writes the plan into the simulator's folder. False when the file cannot be written: the one before then stands,
    /// and the user knows of it only when the disk had no room for the whole plan.
    bool saveFpl(const QString& fileName);
    /// Asks for a plan file and reads it behind the present lines. Returns the map script, empty if nothing was read.
    QString loadFpl();
    /// Fills `textLines` with the start situation; looks the start position up when there is none.
    void buildSitText();
    bool saveSit(const QString& fileName);

    int fplVersion = 0; ///< count of saves; the file's <vers>
    CNavGlobalVar* navVar;
    std::unique_ptr<CAircraftData> aircraft;
    QVector<CFpLinePtr> foundLines;
    QList<CFpLinePtr> lines; ///< in flying order
    QTableWidget* grid;      ///< not owned
    QStringList textLines;   ///< text of the file last built, each piece with its own line feed
    int userWptCount = 0;
    CFpLinePtr currentLine; ///< the last line of the file loaded last; nothing looks at it
    CFpLine startLine;      ///< only latS, lonS, elev and heading matter
};
