// "makedemo FOLDER" writes a demonstration simulator into a new or empty folder.

#include "demoroot.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTextStream>

#include <array>

namespace {

struct SizeOption
{
    const char* name;
    const char* description;
    int DemoSize::*field;
    int most;
};

// The most is what the invented names and keys can tell apart.
const std::array<SizeOption, 5> sizeOptions = {{
    {"airports", "at least N airports", &DemoSize::airports, 1600000},
    {"navaids", "at least N navaids", &DemoSize::navaids, 470000},
    {"waypoints", "at least N waypoints", &DemoSize::waypoints, 5000000},
    {"aircraft", "at least N aircraft archives", &DemoSize::aircraft, 40000},
    {"french", "share of French rows among the invented ones, in percent (100)", &DemoSize::frenchPercent, 100},
}};

/// Takes the sizes from the command line. False when one is no whole number of its range.
bool readSizes(const QCommandLineParser& parser, DemoSize& size)
{
    for (const SizeOption& option : sizeOptions) {
        const QString name = QLatin1String(option.name);
        if (!parser.isSet(name))
            continue;
        bool number = false;
        const int value = parser.value(name).toInt(&number);
        if (!number || value < 0 || value > option.most)
            return false;
        size.*option.field = value;
    }
    return true;
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Writes a demonstration simulator into a new or empty folder."));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("folder"), QStringLiteral("the simulator's root"));
    for (const SizeOption& option : sizeOptions)
        parser.addOption({QLatin1String(option.name), QLatin1String(option.description), QStringLiteral("N")});
    parser.process(application);

    DemoSize size;
    if (parser.positionalArguments().size() != 1 || !readSizes(parser, size))
        parser.showHelp(2);
    const QString error = makeDemoRoot(parser.positionalArguments().first(), size);
    if (!error.isEmpty()) {
        QTextStream(stderr) << "makedemo: " << error << "\n";
        return 1;
    }
    return 0;
}
