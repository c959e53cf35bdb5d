// Building a plan: points from the map, the lines of the grid, a new and a loaded plan.

#include "mainwindow.h"
#include "ui_mainwindow.h"

#include "boxtext.h"
#include "cflightplan.h"
#include "cnavglobalvar.h"
#include "legs.h"
#include "mapscript.h"
#include "markertitle.h"
#include "plangrid.h"
#include "positions.h"

#include <QDebug>
#include <QMessageBox>
#include <QSqlDatabase>
#include <QSqlQuery>

namespace {

constexpr int altitudeColumn = 9;

// A title, here not trimmed, may have no key: the empty one is looked up like any other.
QString keyOfTitle(const QString& title)
{
    return splitMarkerTitle(title).key;
}

} // namespace

void MainWindow::setPlanActions(bool on)
{
    ui->menuSaveFlightPlan->setEnabled(on);
    ui->btnSaveFlightPlan->setEnabled(on);
    ui->btnStartPos->setEnabled(on);
    ui->btnCreateSID->setEnabled(on);
    ui->btnCreateSTAR->setEnabled(on);
}

CFpLinePtr MainWindow::planLine(int row) const
{
    return flightPlan->lines.value(row);
}

// A new point goes right behind the current line, which with no current row is the head of the plan.
void MainWindow::addToPlan(const CFpLinePtr& line)
{
    const int row = ui->fltplnGrid->currentRow();
    flightPlan->insertLine(line, row + 1);
    runMapScript(flightPlan->refresh());
    ui->fltplnGrid->setCurrentCell(row + 1, 1);
}

void MainWindow::sAddAptToFp(const QString& param)
{
    QSqlQuery query(QSqlDatabase::database(settings->dbGEN));
    if (!settings->sqlMgr->getAPT(param, true, query)) {
        return;
    }
    const CFpLinePtr line = flightPlan->newLine();
    line->fromApt(query);
    if (ui->fltplnGrid->currentRow() == -1) {
        // The departure: the aircraft stands at the high end of the longest runway.
        const CFpLine start = flightPlan->startOfAirport(line->dbKey);
        flightPlan->startLine = start;
        sAddSitToFp(start.latS / arcSecondsPerDegree, start.lonS / arcSecondsPerDegree);
    }
    addToPlan(line);
    // Of all points only an airport enables the plan's commands.
    setPlanActions(true);
    ui->dockWFlightPlan->raise();
}

void MainWindow::sAddNavToFp(const QString& param)
{
    const QString key = keyOfTitle(param);
    QSqlQuery query(QSqlDatabase::database(settings->dbGEN));
    if (!settings->sqlMgr->getNAV(key, true, query)) {
        return;
    }
    const CFpLinePtr line = flightPlan->newLine();
    line->fromNav(query);
    addToPlan(line);
    ui->dockWFlightPlan->raise();
}

void MainWindow::sAddWptToFp(const QString& param)
{
    const QString key = keyOfTitle(param);
    QSqlQuery query(QSqlDatabase::database(settings->dbWPT));
    if (!settings->sqlMgr->getWPT(key, true, query)) {
        return;
    }
    const CFpLinePtr line = flightPlan->newLine();
    line->fromWpt(query);
    addToPlan(line);
    ui->dockWFlightPlan->raise();
}

void MainWindow::sAddNewWptToFp(const QString& param, double latD, double lonD)
{
    const CFpLinePtr line = flightPlan->newLine();
    line->latS = latD * arcSecondsPerDegree;
    line->lonS = wrapClickArcSeconds(lonD * arcSecondsPerDegree);
    line->fpType = QStringLiteral("uswp");
    line->usage = line->fpType;
    line->dbKey = QStringLiteral("NONE");
    line->name = param + QStringLiteral("%1").arg(++flightPlan->userWptCount, 3, 10, QLatin1Char('0'));
    line->iden = line->name;
    addToPlan(line);
    ui->dockWFlightPlan->raise();
}

void MainWindow::sAddSitToFp(double latD, double lonD)
{
    runMapScript(mapscript::addSitMarker(mapscript::wrappedPlace(latD, lonD), ui->cbAircraftType->currentText(),
                                         flightPlan->startLine.heading));
}

void MainWindow::doMoveSIT(double latD, double lonD)
{
    // The marker is already where the user dropped it.
    flightPlan->startLine.latS = latD * arcSecondsPerDegree;
    flightPlan->startLine.lonS = wrapPageArcSeconds(lonD * arcSecondsPerDegree);
}

void MainWindow::on_spInertial_valueChanged(int arg1)
{
    CFpLine& start = flightPlan->startLine;
    start.heading = arg1;
    sAddSitToFp(start.latS / arcSecondsPerDegree, start.lonS / arcSecondsPerDegree);
}

void MainWindow::sFpCenterAt()
{
    centerOnLine(planLine(ui->fltplnGrid->currentRow()));
}

void MainWindow::centerOnLine(const CFpLinePtr& line)
{
    if (line) {
        lastCenterScript = mapscript::setCenter(mapscript::storedPlace(line->latS, line->lonS));
        runMapScript(lastCenterScript);
    }
}

void MainWindow::sFpLineDel()
{
    flightPlan->removeLine(ui->fltplnGrid->currentRow());
    qDebug() << ui->fltplnGrid->currentRow();
    if (!flightPlan->lines.isEmpty()) {
        runMapScript(flightPlan->refresh());
    } else {
        clearPlanGrid(*ui->fltplnGrid);
        runMapScript(mapscript::clearFp());
    }
}

void MainWindow::sFpLineUp()
{
    const int row = ui->fltplnGrid->currentRow();
    flightPlan->moveLineUp(row);
    runMapScript(flightPlan->refresh());
    // The procedures are those of the line that came in exchange.
    on_fltplnGrid_cellClicked(row, 1);
}

void MainWindow::sFpLineDown()
{
    const int row = ui->fltplnGrid->currentRow();
    flightPlan->moveLineDown(row);
    runMapScript(flightPlan->refresh());
    on_fltplnGrid_cellClicked(row, 1);
}

void MainWindow::on_fltplnGrid_cellClicked(int row, int column)
{
    Q_UNUSED(column)
    const CFpLinePtr line = planLine(row);
    if (!line || line->usage != QLatin1String("airp")) {
        return;
    }
    ui->treeWSid->clear();
    ui->treeWStar->clear();
    fillSidStarTrees(line->dbKey);
    ui->dockWSid->setWindowTitle(tr("SID : %1").arg(boxText(line->iden)));
    ui->dockWStar->setWindowTitle(tr("STAR : %1").arg(boxText(line->iden)));
}

void MainWindow::on_fltplnGrid_currentCellChanged(int currentRow, int currentColumn, int previousRow,
                                                  int previousColumn)
{
    Q_UNUSED(currentRow)
    Q_UNUSED(currentColumn)
    const QTableWidgetItem* cell = ui->fltplnGrid->item(previousRow, altitudeColumn);
    if (previousColumn != altitudeColumn || cell == nullptr) {
        return;
    }
    // An altitude holds from its line on; the destination keeps its own. No point moves, so the map stays.
    copyAltitudeDown(flightPlan->lines, previousRow, cell->text().toInt());
    flightPlan->refresh();
}

bool MainWindow::askResetPlan()
{
    if (flightPlan->lines.isEmpty()) {
        return true;
    }
    if (QMessageBox::warning(this, tr("Nouveau plan de vol"), tr("Voulez vous effacer le plan de vol en cours ?"),
                             QMessageBox::Ok | QMessageBox::Cancel) != QMessageBox::Ok) {
        return false;
    }
    flightPlan->clearLines();
    clearPlanGrid(*ui->fltplnGrid);
    runMapScript(mapscript::clearFpStatement());
    clearSidStarOnMap();
    return true;
}

void MainWindow::resetProcedureTitles()
{
    ui->dockWSid->setWindowTitle(tr("SID : "));
    ui->dockWStar->setWindowTitle(tr("STAR : "));
}

void MainWindow::on_btnNewFlightPlan_clicked()
{
    if (!askResetPlan()) {
        return;
    }
    ui->dockWFlightPlan->raise();
    resetProcedureTitles();
    setPlanActions(false);
}

void MainWindow::on_btnLoadFlightPlan_clicked()
{
    if (!askResetPlan()) {
        return;
    }
    runMapScript(flightPlan->loadFpl());
    // Also after a cancelled dialog, with the plan then empty.
    ui->dockWFlightPlan->raise();
    resetProcedureTitles();
    setPlanActions(true);
}
