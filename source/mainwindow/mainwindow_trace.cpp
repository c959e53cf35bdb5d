// The simulator's aircraft on the map: where the shared block and the page meet.

#include "mainwindow.h"
#include "ui_mainwindow.h"

#include "External.h"
#include "cnavglobalvar.h"
#include "mapscript.h"
#include "positions.h"

#include <QDebug>
#include <QMessageBox>
#include <QTimer>

namespace {

/// The aircraft's place: the longitude goes to the page as the simulator gives it, not wrapped. There is no lock, so
/// latitude and longitude may come from two writes of the simulator, which a marker on a map can bear.
mapscript::Place placeOf(const volatile AeoZephanNavRecord& record)
{
    return {record.latS / arcSecondsPerDegree, record.lonS / arcSecondsPerDegree};
}

} // namespace

void MainWindow::on_pbTraceAcft_clicked(bool checked)
{
    if (checked) {
        startTrace();
    } else {
        stopTrace();
    }
}

void MainWindow::startTrace()
{
    // The link of the trace before is not freed.
    navPlug = new CNavPlug(settings->traceInterval);
    if (navPlug->view == nullptr) {
        qDebug() << "Trace failed";
        QMessageBox::warning(this, tr("Trajectoire avion"),
                             tr("Impossible de se connecter à Aeo!Zephan.\nAssurez vous de l'avoir démarré."));
        // The button stays checked; the next click is the one that switches off.
        navPlug->Close();
        return;
    }
    qDebug() << "Trace is ON";
    const volatile AeoZephanNavRecord& record = *navPlug->record;
    runMapScript(mapscript::addAircraft(placeOf(record), record.heading));
    connect(navPlug->timer, SIGNAL(timeout()), SLOT(sTraceAircraft()));
}

void MainWindow::stopTrace()
{
    if (navPlug == nullptr) {
        return;
    }
    navPlug->Close();
    runMapScript(mapscript::eraseAircraft());
    qDebug() << "Trace is OFF";
}

void MainWindow::sTraceAircraft()
{
    if (navPlug == nullptr || !navPlug->connected) {
        return;
    }
    // While the block is cut short the marker stands still. What is left is a cut in the instant between this look and
    // the reading.
    if (!navPlug->mapping.holdsView()) {
        return;
    }
    const volatile AeoZephanNavRecord& record = *navPlug->record;
    const auto script = ui->pbCenterAcft->isChecked() ? mapscript::followAircraft : mapscript::moveAircraft;
    runMapScript(script(placeOf(record), record.heading));
}
