// "tour SIMULATOR PICTURES" takes the tour on a demonstration simulator and prints the pictures that it took and the
// files that the program wrote: into the simulator, and an update file into the folder "Data" beside the program. The
// system's language decides the program's, as ever.
#include "interfacelanguage.h"
#include "tour.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QTranslator>

#include <cstdio>

namespace {

void printFiles(const QString& folder, const char* pattern)
{
    const QDir dir(folder);
    for (const QString& file : dir.entryList({pattern}, QDir::Files, QDir::Name)) {
        std::printf("%s\n", qPrintable(dir.absoluteFilePath(file)));
    }
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription("Drives the program through its main job and takes pictures.");
    parser.addHelpOption();
    parser.addPositionalArgument("simulator", "root of a demonstration simulator");
    parser.addPositionalArgument("pictures", "folder for the pictures");
    parser.process(application);
    if (parser.positionalArguments().size() != 2) {
        parser.showHelp(2);
    }
    const QString root = QDir(parser.positionalArguments().at(0)).absolutePath();
    const QString pictures = QDir(parser.positionalArguments().at(1)).absolutePath();
    if (!QDir::setCurrent(root + "/Tools/Trajector")) {
        std::fprintf(stderr, "tour: %s is no simulator\n", qPrintable(root));
        return 1;
    }
    QTranslator catalogue;
    if (!isFrench(systemLanguage()) && catalogue.load("zephantrajector_en")) {
        QCoreApplication::installTranslator(&catalogue);
    }

    Tour tour(pictures);
    const bool whole = tour.take();
    printFiles(root + "/Flightplan", "*.FPL");
    printFiles(root + "/Saved Simulations", "*.SIT");
    const QFileInfo update(Tour::updateFile());
    printFiles(update.path(), qPrintable(update.fileName()));
    return whole ? 0 : 1;
}
