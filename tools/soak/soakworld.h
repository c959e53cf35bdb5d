#pragma once

#include "blockpeer.h"
#include "boxresponder.h"
#include "dice.h"
#include "messagelog.h"
#include "windowsession.h"

#include <QMap>
#include <QObject>
#include <QSet>
#include <QStringList>
#include <QVariant>
#include <QVector>

class CFlightPlan;
class CNavGlobalVar;
class QTableWidget;
class QTreeWidget;

/// The points of a plan as its file tells them: for each the name, identity, place, elevation, key, usage, altitude,
/// runways and mark, as texts.
using PlanTexts = QVector<QStringList>;

/// What the commands have done that cannot be seen in the window: kept beside it, to be compared with it.
struct Deeds
{
    QMap<QString, PlanTexts> plans;   ///< what was saved last under each file name
    QSet<QString> navaids;            ///< keys of the rows
    QSet<QString> waypoints;          ///< keys of the rows
    QMap<QString, int> procedures;    ///< names of the stored procedures, and how many points each has
    QSet<QString> ownNavaids;         ///< those of the keys that a command has made
    QSet<QString> ownWaypoints;       ///< those of the keys that a command has made
    QSet<QString> ownProcedures;      ///< those of the names that a command has made
    QSet<QString> updates;            ///< labels of the update files that were written
    bool tracing = false;             ///< an aircraft is on the map and moves
    QSet<QPair<int, int>> typedCells; ///< row and column where an "x" was typed that stands until the next refresh
    QByteArray startupLine;           ///< of the simulator's ini file
};

/// The real window on a demonstration simulator, with hands for the commands and eyes for the checks.
class SoakWorld : public QObject
{
    Q_OBJECT

public:
    /// The current directory is the simulator's program folder.
    SoakWorld(const QString& simulatorRoot, unsigned seed);
    ~SoakWorld() override;

    /// Shows the window and waits for its page. False when it does not come.
    bool load();

    /// What must be true. The first thing that is not ends the soak.
    void require(bool fulfilled, const QString& what);
    const QString& failure() const
    {
        return firstFailure;
    }
    /// What a command does, for the log.
    void note(const QString& text)
    {
        details << text;
    }
    QString takeNotes();

    // What commands and checks look at.
    CNavGlobalVar& settings() const;
    CFlightPlan& plan() const;
    int planSize() const;
    QStringList planIdents() const;
    PlanTexts planTexts() const;
    QTableWidget* grid() const;
    QTreeWidget* tree(const QString& name) const;
    /// Rows of a statement on one of the program's own connections.
    QVector<QVariantList> rows(const QString& connection, const QString& statement) const;
    /// The first column of these rows.
    QStringList column(const QString& connection, const QString& statement) const;
    /// Absolute path of something below the simulator's root.
    QString path(const QString& relative) const;
    /// Absolute path of the update file of a label, beside the program.
    QString updatePath(const QString& label) const;
    bool docksAreShown() const;
    /// Whether the aircraft carries the map's middle along: a press on the map would miss its target.
    bool mapMoves() const;

    // Hands.
    /// Has the window take the keys, which no window manager does on a virtual display.
    void takeKeyboard();
    /// Types into what has the keyboard now.
    void typeOn(const QString& keys);
    void clickButton(const QString& name);
    /// Brings a dock to the front by its tab.
    void openDock(const QString& name);
    void clickCell(int row, int column);
    void clickItem(QTreeWidget* widget, class QTreeWidgetItem* item);
    /// Evaluates in the page what a user's command makes the page do: a call of the program.
    void callProgram(const QString& slot, const QStringList& texts, const QList<double>& numbers = {});
    QVariant evaluate(const QString& script);
    /// The map's middle and zoom, and nothing open on it.
    void clearView(double latitude, double longitude, double zoom);
    /// Opens the menu of a marker and chooses the entry that the page's words know under this name. False when the
    /// marker cannot be pressed where it lies, or the entry is not there or grey.
    bool chooseForMarker(const QString& title, const QString& word);
    /// The same for the empty map at the view's middle.
    bool chooseForPlace(double latitude, double longitude, const QString& word);
    /// Titles of the markers of a family that are shown: "airport", "navaid" or "waypoint".
    QStringList shownMarkers(const QString& family);

    // Answers to the boxes that a command will bring.
    void expectMessage(const QString& title, const QString& text, QMessageBox::StandardButton = QMessageBox::Ok);
    /// A message of which only the title is known beforehand.
    void expectTitled(const QString& title);

    /// What has come up since the last call, each as a sentence: boxes that were not expected, messages of Qt that are
    /// not allowed, faults of the page's scripts.
    QStringList takeComplaints();

    // In this order: the window ends before its answers and its log, the block's name last.
    NoBlock noBlock;
    Dice dice;
    MessageLog log;
    BoxResponder boxes;
    BlockPeer simulator;
    WindowSession session;
    Deeds deeds;
    QMap<QString, int> allowedMessages; ///< how often each of the allowed ones came, by its reason

private:
    bool chooseEntry(const QString& marker, const QString& word);

    QString root;
    QString firstFailure;
    QStringList details;
    QStringList pageFaults;
};
