// From the start of the process to "Chargement terminé": databases, window, page, aircraft and the whole feed.
#include "benchwindow.h"
#include "mainwindow.h"
#include "measure.h"

#include <QApplication>
#include <QDir>
#include <QProcess>

#include <cstdio>

namespace {

const char* const onlyLoad = "--only-load";

/// The measured process: loads, says so and ends.
int loadOnce(const QString& root)
{
    enterSimulator(root);
    MainWindow window;
    window.show();
    waitUntilLoaded(window);
    std::puts("loaded");
    std::fflush(stdout);
    return 0;
}

double startMs(const QString& root)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    const double time = elapsedMs([&] {
        process.start(QCoreApplication::applicationFilePath(), {onlyLoad, root});
        while (!process.canReadLine() && process.waitForReadyRead(-1)) {
        }
    });
    process.waitForFinished(-1);
    if (process.exitCode() != 0) {
        qFatal("the measured process failed");
    }
    return time;
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    const QStringList arguments = takeMeasureOptions(application.arguments());
    if (arguments.value(0) == onlyLoad) {
        return loadOnce(arguments.value(1));
    }
    for (const QString& root : arguments) {
        const int rounds = roundsOf(5);
        std::vector<double> times;
        times.reserve(static_cast<std::size_t>(rounds));
        setFigurePlace(QDir(root).dirName());
        startMs(root); // the files' first reading is the disk's affair
        for (int round = 0; round < rounds; ++round) {
            times.push_back(startMs(root));
        }
        printFigure({"start", "start to \"Chargement terminé\"", median(times), "ms"});
    }
}
