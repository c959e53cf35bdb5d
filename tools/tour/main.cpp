// "tour SIMULATOR [PICTURES]" takes the tour on a demonstration simulator and prints the pictures that it took and the
// files that the program wrote: into the simulator, and an update file into the folder "Data" beside the program. The
// system's language decides the program's, as ever. It takes the user's manual's pictures too, and looks for French in
// an English interface, when it is told to.
#include "frenchtexts.h"
#include "interfacelanguage.h"
#include "tour.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTranslator>

#include <cstdio>

namespace {

void describe(QCommandLineParser& parser)
{
    parser.setApplicationDescription("Drives the program through its main job and takes pictures.");
    parser.addHelpOption();
    parser.addPositionalArgument("simulator", "root of a demonstration simulator");
    parser.addPositionalArgument("pictures", "folder for a picture of each step", "[pictures]");
    parser.addOptions({
        {"manual", "folder for the user's manual's pictures", "folder"},
        {"rest", "milliseconds of rest after each move (400)", "ms", "400"},
        {"english", "refuse French texts, by the English catalogue (.ts)", "catalogue"},
        {"kept", "list of the texts that stay French", "file"},
    });
}

void printFiles(const QString& folder, const char* pattern)
{
    const QDir dir(folder);
    for (const QString& file : dir.entryList({pattern}, QDir::Files, QDir::Name)) {
        std::printf("%s\n", qPrintable(dir.absoluteFilePath(file)));
    }
}

/// Reads what to refuse. False when it is not there.
bool readFrench(const QCommandLineParser& parser, FrenchTexts& french)
{
    QFile catalogue(parser.value("english"));
    if (!catalogue.open(QIODevice::ReadOnly) || !french.readCatalogue(catalogue)) {
        std::fprintf(stderr, "tour: %s is no catalogue\n", qPrintable(catalogue.fileName()));
        return false;
    }
    const QString pages = QCoreApplication::applicationDirPath() + "/gm_trajector_%1.html";
    QFile frenchPage(pages.arg("fr"));
    QFile englishPage(pages.arg("en"));
    if (!frenchPage.open(QIODevice::ReadOnly) || !englishPage.open(QIODevice::ReadOnly) ||
        !french.readPageWords(frenchPage, englishPage)) {
        std::fprintf(stderr, "tour: no words in %s and %s\n", qPrintable(frenchPage.fileName()),
                     qPrintable(englishPage.fileName()));
        return false;
    }
    QFile kept(parser.value("kept"));
    if (parser.isSet("kept") && !kept.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "tour: no list %s\n", qPrintable(kept.fileName()));
        return false;
    }
    if (kept.isOpen()) {
        french.readKept(kept);
    }
    return true;
}

/// Tells the French texts of an English tour. True when there are none.
bool isEnglish(const SeenTexts& seen, const FrenchTexts& french)
{
    const QStringList found = french.find(seen.words(), seen.data());
    for (const QString& text : found) {
        std::fprintf(stderr, "tour: French in the English interface: %s\n", qPrintable(text));
    }
    std::printf("%d texts read\n", seen.words().size() + seen.data().size());
    return found.isEmpty();
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QCommandLineParser parser;
    describe(parser);
    parser.process(application);
    const QStringList arguments = parser.positionalArguments();
    if (arguments.isEmpty() || arguments.size() > 2) {
        parser.showHelp(2);
    }
    const QString root = QDir(arguments.first()).absolutePath();
    const auto absolute = [](const QString& path) { return path.isEmpty() ? path : QDir(path).absolutePath(); };
    const TourOptions options{absolute(arguments.value(1)), absolute(parser.value("manual")),
                              parser.value("rest").toInt()};
    FrenchTexts french;
    if (parser.isSet("english") && !readFrench(parser, french)) {
        return 1;
    }
    if (!QDir::setCurrent(root + "/Tools/Trajector")) {
        std::fprintf(stderr, "tour: %s is no simulator\n", qPrintable(root));
        return 1;
    }
    QTranslator catalogue;
    if (!isFrench(systemLanguage()) && catalogue.load("zephantrajector_en")) {
        QCoreApplication::installTranslator(&catalogue);
    }

    Tour tour(options);
    const bool whole = tour.take();
    printFiles(root + "/Flightplan", "*.FPL");
    printFiles(root + "/Saved Simulations", "*.SIT");
    const QFileInfo update(Tour::updateFile());
    printFiles(update.path(), qPrintable(update.fileName()));
    return whole && (!parser.isSet("english") || isEnglish(tour.seenTexts(), french)) ? 0 : 1;
}
