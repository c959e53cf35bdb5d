// The commands that change the navigation data themselves.

#include "mainwindow.h"

#include "ciodatabase.h"
#include "cnavglobalvar.h"

void MainWindow::on_actImport_triggered()
{
    auto* exchange = new CIODataBase(this); // stays for the rest of the run
    exchange->importFiles(settings);
}
