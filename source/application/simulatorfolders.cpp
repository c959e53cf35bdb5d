#include "simulatorfolders.h"

#include "cnavglobalvar.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFileDialog>

namespace {

QString askForFolder(const QString& title)
{
    return QFileDialog::getExistingDirectory(nullptr, title, QCoreApplication::applicationDirPath(),
                                             QFileDialog::ShowDirsOnly | QFileDialog::DontResolveSymlinks);
}

} // namespace

void locateFolders(CNavGlobalVar& navVar)
{
    qDebug() << "QDir::current" << QDir(QDir::currentPath());
    // The program lives two levels below the simulator's root.
    navVar.dirZephan.setPath(QDir::currentPath());
    navVar.dirZephan.cdUp();
    navVar.dirZephan.cdUp();
    qDebug() << "dirZephan" << navVar.dirZephan.path();
    if (!navVar.dirZephan.exists(QStringLiteral("AeoZephan.exe"))) {
        qDebug() << "dirZephan not found";
        navVar.dirZephan.setPath(
            askForFolder(QCoreApplication::translate("MainWindow", "Sélectionner le répertoire de Aeo Zephan")));
        qDebug() << "dirZephan" << navVar.dirZephan.path();
    }
    if (!navVar.dirWork.exists()) {
        qDebug() << "dirWork not found";
        navVar.dirWork.setPath(
            askForFolder(QCoreApplication::translate("MainWindow", "Sélectionner le répertoire de travail")));
    }
    qDebug() << "dirWork" << navVar.dirWork.path();
}
