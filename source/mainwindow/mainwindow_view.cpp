// Layers, centre and zoom, the status bar's reports and the runways.

#include "mainwindow.h"
#include "ui_mainwindow.h"

#include "boxtext.h"
#include "mapscript.h"
#include "positions.h"
#include "viewlayer.h"

#include <QLabel>
#include <QSqlDatabase>
#include <QSqlQuery>

#include <algorithm>

namespace {

QString drawRunwayOf(const QSqlQuery& row)
{
    return mapscript::drawRunway(mapscript::storedPlace(row.value(14).toDouble(), row.value(15).toDouble()),
                                 mapscript::storedPlace(row.value(43).toDouble(), row.value(44).toDouble()));
}

} // namespace

void MainWindow::applyLayer(ActionMember action)
{
    for (const ViewLayer& layer : viewLayers()) {
        if (layer.action == action) {
            const bool shown = (this->*action)->isChecked();
            settings->*layer.flag = shown;
            runMapScript(layer.script(shown));
        }
    }
}

QStringList MainWindow::layerScripts(std::initializer_list<ActionMember> actions) const
{
    QStringList scripts;
    for (const ViewLayer& layer : viewLayers()) {
        if (std::find(actions.begin(), actions.end(), layer.action) != actions.end()) {
            scripts << layer.script((this->*layer.action)->isChecked());
        }
    }
    return scripts;
}

void MainWindow::sViewApt()
{
    applyLayer(&MainWindow::actApt);
}

void MainWindow::sViewVor()
{
    applyLayer(&MainWindow::actVor);
}

void MainWindow::sViewNdbRte()
{
    applyLayer(&MainWindow::actNdbRte);
}

void MainWindow::sViewNdbTerm()
{
    applyLayer(&MainWindow::actNdbTerm);
}

void MainWindow::sViewWptRte()
{
    applyLayer(&MainWindow::actWptRte);
}

void MainWindow::sViewWptTerm()
{
    applyLayer(&MainWindow::actWptTerm);
}

void MainWindow::sViewWptVfr()
{
    applyLayer(&MainWindow::actWptVfr);
}

void MainWindow::sViewAtsLo()
{
    applyLayer(&MainWindow::actAtsLo);
}

void MainWindow::sViewAtsHi()
{
    applyLayer(&MainWindow::actAtsHi);
}

void MainWindow::sViewAtsB()
{
    applyLayer(&MainWindow::actAtsB);
}

void MainWindow::sViewBdry()
{
    // The page gets no zones: the state is remembered and nothing else happens.
    applyLayer(&MainWindow::actBdry);
}

void MainWindow::sViewDock()
{
    applyLayer(&MainWindow::actDock);
    // Checked shows the docks, whatever the label "Plein écran" suggests.
    for (QDockWidget* dock :
         {ui->dockWSearch, ui->dockWFlightPlan, ui->dockWSid, ui->dockWStar, ui->dockWAircraft, ui->dockWDebug}) {
        dock->setVisible(settings->showDock);
    }
}

void MainWindow::sInitGoogleMap()
{
    runMapScript(mapscript::setCenter({settings->mapCenter.y(), settings->mapCenter.x()}));
    runMapScript(mapscript::setZoom(settings->zoom));
    ui->debugText->append(tr("Chargement terminé"));
}

void MainWindow::doCenter(double latD, double lonD)
{
    const double latS = latD * arcSecondsPerDegree;
    const double lonS = lonD * arcSecondsPerDegree;
    lblCenter->setText(tr("Centre: %1  %2\n %3 %4\n%5 %6")
                           .arg(latD, 3, 'f', 5)
                           .arg(lonD, 3, 'f', 5)
                           .arg(latS, 3, 'f', 2)
                           .arg(wrapPageArcSeconds(lonS), 3, 'f', 2)
                           .arg(settings->latToText(latS, true), settings->lonToText(lonS, true)));
}

void MainWindow::doZoom(int zoom)
{
    lblZoom->setText(QStringLiteral("Zoom: %1").arg(zoom));
}

void MainWindow::doData(const QString& value)
{
    lblData->setText(value);
}

void MainWindow::doViewRwy(const QString& value)
{
    QSqlQuery query(QSqlDatabase::database(settings->dbGEN));
    const QString key = settings->sqlMgr->getAPT(value, true, query) ? query.value(1).toString() : QString();
    const bool found = settings->sqlMgr->getRWY(key, true, query);
    statusBar()->showMessage(boxText(key), 0);
    if (!found) {
        return;
    }
    QString scripts = mapscript::clearRunway();
    do {
        scripts += drawRunwayOf(query);
    } while (query.next());
    runMapScript(scripts);
}
