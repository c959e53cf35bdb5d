// The window of the pilot's program, loaded on a simulator's root.
#include "benchwindow.h"

#include "mainwindow.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QTextEdit>

void enterSimulator(const QString& root)
{
    const QString folder = QDir(root).absoluteFilePath("Tools/Trajector");
    if (!QDir::setCurrent(folder)) {
        qFatal("no folder %s; tools/makedemo makes a simulator's root", qPrintable(folder));
    }
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
}
