// The simulator's aircraft on the map: where the shared block and the page meet.

#include "mainwindow.h"
#include "ui_mainwindow.h"

#include "External.h"
#include "cnavglobalvar.h"
#include "mapscript.h"
#include "tracescript.h"

#include <QDebug>
#include <QMessageBox>
#include <QTimer>

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
    runMapScript(tracescript::start(*navPlug->record));
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
    runMapScript(tracescript::move(*navPlug->record, ui->pbCenterAcft->isChecked()));
}
