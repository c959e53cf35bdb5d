#pragma once

#include "cfpline.h"

#include <QMainWindow>
#include <QPointer>
#include <QVariant>
#include <QVector>

#include <initializer_list>
#include <memory>

class CAircraftData;
class CFlightPlan;
class CNavGlobalVar;
class CNavPlug;
class QDialog;
class QLabel;
class QTreeWidgetItem;
struct ViewLayer;

namespace Ui {
class MainWindow;
}

/// The one window: a switchboard between the widgets, the map page, the databases and the flight plan.
/// Public slots are open to the map page, which knows the window as "mainWindow".
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    /// Evaluates a text in the page's main frame. An empty text does nothing; a failed one gives an invalid result.
    QVariant runMapScript(const QString& script);
    /// Enables or disables the commands that need a plan.
    void setPlanActions(bool on);
    /// Asks whether the present plan may go, and empties it. True at once when there is none.
    bool askResetPlan();
    /// Adds the procedures of an airport, given by its key, to the two trees.
    void fillSidStarTrees(const QString& aptKey);
    /// Draws a procedure beside the plan.
    void showSidStar(const QString& name);
    void clearSidStarOnMap();

public slots:
    // Page: free text to the log.
    void doSomething(const QString& param);
    // View: layers of the tool bar, status bar, runways. Positions in degrees.
    void sViewApt();
    void sViewVor();
    void sViewNdbRte();
    void sViewNdbTerm();
    void sViewWptRte();
    void sViewWptTerm();
    void sViewWptVfr();
    void sViewAtsLo();
    void sViewAtsHi();
    void sViewAtsB();
    void sViewBdry();
    void sViewDock();
    void sInitGoogleMap();
    void doCenter(double latD, double lonD);
    void doZoom(int zoom);
    void doData(const QString& value);
    void doViewRwy(const QString& value);
    // Search.
    void searchInTable(bool exact);
    void sFndCenterAt();
    // Airways through a waypoint and the navaid (maybe empty) on the same point, by marker titles.
    void sATS(const QString& wptName, const QString& navName);
    // Plan: points from marker titles or from places in degrees, lines of the grid.
    void sAddAptToFp(const QString& param);
    void sAddNavToFp(const QString& param);
    void sAddWptToFp(const QString& param);
    void sAddNewWptToFp(const QString& param, double latD, double lonD);
    void sAddSitToFp(double latD, double lonD);
    void doMoveSIT(double latD, double lonD);
    void sFpCenterAt();
    void sFpLineDel();
    void sFpLineUp();
    void sFpLineDown();
    // Procedures: stored SID and STAR deleted, one by its item in a tree, or all of an airport by its key.
    void delSIDSTAR(QTreeWidgetItem* sidstar, bool sid);
    void delAllSIDSTAR(const QString& aptKey);
    // Navigation data: rows by marker titles, new ones (empty title) at places in degrees.
    void sAddNavToDB(const QString& title, double latD, double lonD);
    void sAddWptToDB(const QString& title, double latD, double lonD);
    /// Asks before a deletion. Ok deletes, Save deletes and exports; any other button leaves all as it is.
    int askDeleteData(const QString& boxTitle, const QString& boxMsg);
    void sDelNavFromDB(const QString& title);
    void sDelWptFromDB(const QString& title);

private slots:
    // Shell.
    void on_actionAbout_triggered();
    void on_actionAboutQt_triggered();
    // Page.
    void populateJavaScriptWindowObject();
    void receiveData(const QString& msg);
    // Population.
    void readDataFromDB();
    // Search.
    void on_searchData_returnPressed();
    void on_btnSearchExact_clicked();
    void on_btnSearchNear_clicked();
    void on_treeWFound_itemDoubleClicked(QTreeWidgetItem* item, int column);
    // Plan.
    void on_fltplnGrid_cellClicked(int row, int column);
    void on_fltplnGrid_currentCellChanged(int currentRow, int currentColumn, int previousRow, int previousColumn);
    void on_spInertial_valueChanged(int arg1);
    void on_btnNewFlightPlan_clicked();
    void on_btnLoadFlightPlan_clicked();
    // Plan files.
    void on_btnSaveFlightPlan_clicked();
    void on_btnStartPos_clicked();
    // Procedures.
    void on_btnCreateSID_clicked();
    void on_btnCreateSTAR_clicked();
    void on_btnAddSid_clicked();
    void on_btnAddStar_clicked();
    void on_pbDelSID_clicked();
    void on_pbDelSTAR_clicked();
    void on_pbDelAllSID_clicked();
    void on_pbDelAllSTAR_clicked();
    void on_treeWSid_itemClicked(QTreeWidgetItem* item, int column);
    void on_treeWStar_itemClicked(QTreeWidgetItem* item, int column);
    void on_dockWFlightPlan_visibilityChanged(bool visible);
    void on_dockWSid_visibilityChanged(bool visible);
    void on_dockWStar_visibilityChanged(bool visible);
    // Navigation data.
    void on_actImport_triggered();
    // Aircraft.
    void on_cbAircraftType_activated(int index);
    void on_dockWAircraft_visibilityChanged(bool visible);
    void on_btnPod_clicked();
    // Trace of the simulator's aircraft.
    void on_pbTraceAcft_clicked(bool checked);
    void sTraceAircraft();

private:
    void createViewActions();
    void connectMenuActions();
    void setupGridHeaders();
    void loadMapPage();
    void createContextMenus();
    void createStatusLabels();
    void loadAircraft();

    using ActionMember = QAction* MainWindow::*;
    static const QVector<ViewLayer>& viewLayers();
    void applyLayer(ActionMember action);
    QStringList layerScripts(std::initializer_list<ActionMember> actions) const;
    CFpLinePtr foundLine(const QTreeWidgetItem* item) const;
    CFpLinePtr planLine(int row) const; ///< null for a row that is not there
    void addToPlan(const CFpLinePtr& line);
    void centerOnLine(const CFpLinePtr& line);
    void resetProcedureTitles();

    struct ProcedureKind;
    static const ProcedureKind sidKind, starKind;
    int airportRow(const ProcedureKind& kind) const;
    void createProcedure(const ProcedureKind& kind);
    void deleteProcedure(const ProcedureKind& kind);
    void addProcedureToPlan(const ProcedureKind& kind);
    void takeProcedureOffTree(const ProcedureKind& kind);
    /// A procedure or a point of one. Null unless one item alone is selected.
    QTreeWidgetItem* selectedTreeItem(const ProcedureKind& kind) const;

    void showAircraft(const CAircraftData& aircraft);
    void startTrace();
    void stopTrace();

    std::unique_ptr<Ui::MainWindow> ui;
    CNavGlobalVar* settings = nullptr; ///< the singleton, not owned; gone once the tear-down has begun
    std::unique_ptr<CFlightPlan> flightPlan;
    QList<QSharedPointer<CAircraftData>> aircraftList; ///< runs parallel to the items of cbAircraftType
    CNavPlug* navPlug = nullptr;                       ///< of the latest trace, null until the first; never freed
    QPointer<QDialog> lastClosedDialog;                ///< of a navaid or a waypoint; the next one takes its place
    QString lastCenterScript;
    QString searchKey; ///< upper-cased text of the last search
    QLabel *lblData = nullptr, *lblCenter = nullptr, *lblZoom = nullptr;
    QAction *actApt = nullptr, *actVor = nullptr, *actNdbRte = nullptr, *actNdbTerm = nullptr;
    QAction *actWptRte = nullptr, *actWptTerm = nullptr, *actWptVfr = nullptr;
    QAction *actAtsLo = nullptr, *actAtsHi = nullptr, *actAtsB = nullptr, *actBdry = nullptr, *actDock = nullptr;
    QAction* actFndCenter = nullptr;
    QAction *actFpCenter = nullptr, *actFpDel = nullptr, *actFpUp = nullptr, *actFpDown = nullptr;
};
