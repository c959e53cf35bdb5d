// The aircraft of the simulator's archives and their numbers in the dock.

#include "mainwindow.h"
#include "ui_mainwindow.h"

#include "aircraftarchives.h"
#include "boxtext.h"
#include "cnavglobalvar.h"
#include "cpodmgr.h"
#include "platformpath.h"

#include <QDebug>
#include <QFileDialog>

void MainWindow::loadAircraft()
{
    const QStringList paths =
        aircraftArchives(platformPath(QStringLiteral("%1/Aircraft").arg(settings->dirZephan.path())));
    qDebug() << paths;
    for (const QString& path : paths) {
        // An archive that tells no maker gives an empty item: the indexes stay in step.
        aircraftList << QSharedPointer<CAircraftData>::create(readAircraftArchive(path));
        ui->cbAircraftType->addItem(boxText(aircraftList.last()->make));
        // So the last archive's numbers stay in the fields, until the dock is seen.
        showAircraft(*aircraftList.last());
    }
}

void MainWindow::showAircraft(const CAircraftData& aircraft)
{
    ui->leAircraftNumber->setText(aircraft.acid);
    ui->leSpeedMax->setText(QString::number(aircraft.speedMax));
    ui->leSpeedCruise->setText(QString::number(aircraft.speedCruise));
    ui->leSpeedApp->setText(QString::number(aircraft.speedApp));
    ui->leAircraftCeiling->setText(QString::number(aircraft.ceiling));
}

void MainWindow::on_cbAircraftType_activated(int index)
{
    if (const auto aircraft = aircraftList.value(index)) {
        showAircraft(*aircraft);
    }
}

void MainWindow::on_dockWAircraft_visibilityChanged(bool visible)
{
    Q_UNUSED(visible)
    on_cbAircraftType_activated(ui->cbAircraftType->currentIndex());
}

void MainWindow::on_btnPod_clicked()
{
    const QString path = QFileDialog::getOpenFileName(
        nullptr, tr("Ouvrir un POD"), platformPath(QStringLiteral("%1\\aircraft").arg(settings->dirZephan.path())),
        tr("Fichier POD (*pod)"));
    CPodMgr pod(path);
    pod.findBySuffix(QStringLiteral("SVH"));
    qDebug() << pod.content;
}
