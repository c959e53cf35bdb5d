// The window of the pilot's program, loaded on a simulator's root.
#include "benchwindow.h"

#include "mainwindow.h"
#include "measure.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QTextEdit>

void enterSimulator(const QString& root)
{
    const QString place = QDir(root).dirName();
    const QString folder = QDir(root).absoluteFilePath("Tools/Trajector");
    if (!QDir::setCurrent(folder)) {
        qFatal("no folder %s; tools/makedemo makes a simulator's root", qPrintable(folder));
    }
    setFigurePlace(place);
}

void waitUntilLoaded(MainWindow& window)
{
    constexpr qint64 patience = 600000; // milliseconds: ten minutes
    const auto* debugText = window.findChild<QTextEdit*>("debugText");
    QElapsedTimer timer;
    timer.start();
    while (!debugText->toPlainText().contains("Chargement terminé")) {
        if (timer.hasExpired(patience)) {
            qFatal("the map page did not load");
        }
        QApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
    }
    // The program ends its load in the same words when there is no page, and all would be measured without a map.
    if (!window.runMapScript("typeof map === 'object' && typeof addPointToFp === 'function'").toBool()) {
        qFatal("there is no map page beside the program, or it does not work; the target map_pages makes it");
    }
}
