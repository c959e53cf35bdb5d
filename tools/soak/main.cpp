// "soak [--seconds N] [--seed N]" gives the real window random commands on a fresh demonstration simulator and checks
// it after each of them. A seed gives the same commands each time: "--until K" goes again to a command that went wrong.
#include "demoroot.h"
#include "soak.h"
#include "watchdog.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QLoggingCategory>
#include <QTemporaryDir>

#include <cstdio>
#include <memory>

namespace {

int complain(const QString& what)
{
    std::fprintf(stderr, "soak: %s\n", qPrintable(what));
    return 1;
}

/// The messages are the log's; whatever ends the program is told.
void passOver(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    if (type == QtFatalMsg) {
        complain(message);
    }
}

/// A simulator that nobody has used, and the update files' folder, which the program does not make.
QString prepare(const QString& root)
{
    const QString error = makeDemoRoot(root);
    if (!error.isEmpty()) {
        return error;
    }
    const QString programFolder = root + "/Tools/Trajector";
    const QString updates = QCoreApplication::applicationDirPath() + "/Data";
    return QDir::setCurrent(programFolder) && QDir().mkpath(updates) ? QString() : "no folder " + updates;
}

} // namespace

int main(int argc, char* argv[])
{
    qInstallMessageHandler(passOver);
    QApplication application(argc, argv);
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QLoggingCategory::setFilterRules("*.debug=false");
    QCommandLineParser parser;
    parser.setApplicationDescription("Gives the window random commands and checks it after each.");
    parser.addHelpOption();
    parser.addOptions({{"seconds", "how long (120)", "N", "120"},
                       {"seed", "which commands (1)", "N", "1"},
                       {"until", "end with command N, whatever the time", "N", "0"},
                       {"only", "run these commands alone, to find which of them does something", "NAME,NAME..."},
                       {"growth", "fail when the memory grows by more than N kB in a thousand commands", "N", "0"},
                       {"quiet", "tell the commands only when something goes wrong"}});
    parser.process(application);
    SoakOptions options;
    options.seconds = parser.value("seconds").toInt();
    options.seed = parser.value("seed").toUInt();
    options.until = parser.value("until").toInt();
    options.mostGrowth = parser.value("growth").toDouble();
    options.only = parser.value("only").split(',', Qt::SkipEmptyParts);
    options.quiet = parser.isSet("quiet");

    QTemporaryDir folder;
    const QString root = folder.filePath("simulator");
    const QString error = prepare(root);
    if (!error.isEmpty()) {
        return complain(error);
    }
    auto dog = std::make_unique<Watchdog>("the start");
    SoakWorld world(root, options.seed);
    if (!world.load() || !world.failure().isEmpty()) {
        return complain("the map page did not load. " + world.failure());
    }
    dog.reset();
    const bool whole = Soak(world, options).run();
    return whole ? 0 : 1;
}
