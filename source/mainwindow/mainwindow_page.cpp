// The bridge: scripts into the page, the page's own calls and its alerts.

#include "mainwindow.h"
#include "ui_mainwindow.h"

#include <QDebug>
#include <QWebFrame>

QVariant MainWindow::runMapScript(const QString& script)
{
    return script.isEmpty() ? QVariant() : ui->map->page()->mainFrame()->evaluateJavaScript(script);
}

void MainWindow::populateJavaScriptWindowObject()
{
    ui->map->page()->mainFrame()->addToJavaScriptWindowObject(QStringLiteral("mainWindow"), this,
                                                              QWebFrame::QtOwnership);
}

void MainWindow::receiveData(const QString& msg)
{
    qWarning() << "MainWindow::receiveData" << msg;
}

void MainWindow::doSomething(const QString& param)
{
    qDebug() << "Message de la page HTML: " << param;
}
