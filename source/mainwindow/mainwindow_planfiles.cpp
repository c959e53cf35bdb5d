// The plan's file and the start situation.

#include "mainwindow.h"

#include "cflightplan.h"
#include "cnavglobalvar.h"
#include "plantext.h"
#include "situationtext.h"
#include "startupsituation.h"

#include <QMessageBox>

void MainWindow::on_btnSaveFlightPlan_clicked()
{
    const QList<CFpLinePtr>& lines = flightPlan->lines;
    const QString title = tr("Enregistrement plan de vol");
    if (lines.size() < 2) {
        QMessageBox::warning(this, title, tr("Un plan de vol doit comporté au moins deux points"));
        return;
    }
    const QString fileName = planFileName(*lines.first(), *lines.last());
    if (flightPlan->saveFpl(fileName)) {
        QMessageBox::information(this, title, tr("Le plan de vol %1 a été enregistré").arg(fileName));
    }
    // Saving a plan always goes on to its start, also when the plan could not be written.
    on_btnStartPos_clicked();
}

void MainWindow::on_btnStartPos_clicked()
{
    const CFpLinePtr departure = planLine(0);
    if (!departure || departure->usage != QLatin1String("airp")) {
        QMessageBox::warning(this, tr("Enregistrement point de départ"),
                             tr("Vous devez choisir un aéroport en première ligne."));
        return;
    }
    const QString fileName = situationFileName(*departure);
    flightPlan->saveSit(fileName);
    const QString question = tr("Voulez vous définir %1 comme départ dans AeoZephan ?").arg(departure->iden);
    if (QMessageBox::question(this, tr("Enregistrement position initiale"), question,
                              QMessageBox::Ok | QMessageBox::Cancel) == QMessageBox::Ok) {
        setStartupSituation(QStringLiteral("%1\\system\\AeoZephan.ini").arg(settings->dirZephan.path()), fileName);
    }
}
