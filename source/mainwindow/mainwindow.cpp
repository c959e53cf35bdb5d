// The start of the window, in the one order that works, and its tear-down.

#include "mainwindow.h"
#include "ui_mainwindow.h"

#include "caircraftdata.h"
#include "cflightplan.h"
#include "cnavglobalvar.h"
#include "datadictionary.h"
#include "interfacelanguage.h"
#include "keptobjects.h"
#include "mapscript.h"
#include "mywebpage.h"
#include "plainboxes.h"
#include "sealeddocument.h"
#include "shorttexts.h"
#include "simulatorfolders.h"
#include "viewlayer.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDebug>
#include <QWebFrame>

/// Icons in a static library are linked in by this call alone. Outside any namespace, as the macro wants it.
static void registerIcons()
{
    Q_INIT_RESOURCE(trajector);
}

namespace {

void writeStartMark()
{
    qDebug() << "\n\n-------------------->\nStarting ZephanTrajector"
             << QDateTime::currentDateTime().toString(QStringLiteral("yy-MM-dd hh:mm:ss"));
}

void showPlanAircraft(const Ui::MainWindow& ui, const CAircraftData& aircraft)
{
    ui.leAircraftCeiling->setText(QString::number(aircraft.ceiling));
    ui.leAircraftNumber->setText(aircraft.acid);
    ui.leAltCruise->setText(QString::number(aircraft.altCruise));
    ui.leSpeedApp->setText(QString::number(aircraft.speedApp));
    ui.leSpeedCruise->setText(QString::number(aircraft.speedCruise));
    ui.leSpeedMax->setText(QString::number(aircraft.speedMax));
    ui.leSpeedVert->setText(QString::number(aircraft.speedVert));
}

// A script of the map page can write its markup there.
void sealDebugText(QTextEdit& debugText)
{
    auto* document = new SealedDocument(&debugText);
    document->setDefaultFont(debugText.font());
    debugText.setDocument(document);
}

void arrangeDocks(QMainWindow& window, const Ui::MainWindow& ui)
{
    for (QDockWidget* dock : {ui.dockWSid, ui.dockWStar, ui.dockWAircraft, ui.dockWDebug}) {
        window.tabifyDockWidget(ui.dockWFlightPlan, dock);
    }
    // The debug tab is in front while the databases are read: it tells the progress.
    ui.dockWDebug->raise();
}

} // namespace

MainWindow::MainWindow(QWidget* parent) : QMainWindow(parent), ui(std::make_unique<Ui::MainWindow>())
{
    registerIcons();
    new PlainBoxes(this);
    writeStartMark();
    settings = CNavGlobalVar::instance();
    locateFolders(*settings);
    if (!settings->init() && parent != nullptr) {
        parent->close();
    }
    ui->setupUi(this);
    sealDebugText(*ui->debugText);
    shortenTexts({ui->treeWFound, ui->fltplnGrid, ui->treeWSid, ui->treeWStar});
    setWindowTitle(tr("Zephan Trajector - Version %1").arg(version));
    createViewActions();
    connectMenuActions();
    setupGridHeaders();
    setAttribute(Qt::WA_MouseTracking, true);
    loadMapPage();
    flightPlan = std::make_unique<CFlightPlan>(ui->fltplnGrid, 0);
    flightPlan->startLine.clear();
    settings->flightPlan = flightPlan.get();
    showPlanAircraft(*ui, *flightPlan->aircraft);
    arrangeDocks(*this, *ui);
    createContextMenus();
    createStatusLabels();
    qDebug() << "Start ended";
    for (const ViewLayer& layer : viewLayers()) {
        // The page is not parsed yet; what stays is each state in its flag. The zones and the docks are left alone.
        if (layer.action != &MainWindow::actBdry && layer.action != &MainWindow::actDock) {
            applyLayer(layer.action);
        }
    }
    loadAircraft();
    ui->btnPod->setVisible(false);
    new KeptObjects(this);
}

MainWindow::~MainWindow()
{
    const double latitude = runMapScript(mapscript::centerLatitude()).toDouble();
    const double longitude = runMapScript(mapscript::centerLongitude()).toDouble();
    settings->mapCenter = QPointF(longitude, latitude);
    settings->zoom = runMapScript(mapscript::zoomLevel()).toDouble();
    CNavGlobalVar::deleteInstance();
}

void MainWindow::loadMapPage()
{
    const QString page =
        isFrench(systemLanguage()) ? QStringLiteral("/gm_trajector_fr.html") : QStringLiteral("/gm_trajector_en.html");
    // Without a parent: the page outlives the view and ends with the process.
    auto* mapPage = new myWebPage;
    ui->map->setPage(mapPage);
    ui->map->load(QUrl::fromLocalFile(QCoreApplication::applicationDirPath() + page));

    // The view relays the page's signal and was connected first: the feed runs before the centre and zoom are set.
    // Connections by name are dropped once the destructor has run, when a dying view can still end a load.
    connect(mapPage, SIGNAL(sendData(QString)), SLOT(receiveData(QString)));
    connect(ui->map, SIGNAL(loadFinished(bool)), SLOT(readDataFromDB()));
    connect(mapPage->mainFrame(), SIGNAL(javaScriptWindowObjectCleared()), SLOT(populateJavaScriptWindowObject()));
    connect(mapPage, SIGNAL(loadFinished(bool)), SLOT(sInitGoogleMap()));
}
