// Starts Zephan Trajector in the simulator's folder Tools/Trajector, where it has its settings and its update files:
// asks once where the simulator is, brings the program there up to date and gives way to it.
#include "launcher.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QTextStream>
#include <QTranslator>

#include <cerrno>
#include <cstring>
#include <memory>

#include <unistd.h>

namespace {

struct Launcher
{
    Q_DECLARE_TR_FUNCTIONS(Launcher)
};

struct Request
{
    bool ask = false;
    QString simulator; ///< named by the user, else empty
};

/// The package's program, pages, catalogue and manual, wherever the package is unpacked.
QString packagedFiles()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + QLatin1String("/../lib/zephan-trajector"));
}

bool hasDisplay()
{
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ||
           !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
}

void loadLanguage(QTranslator& ours, QTranslator& qts)
{
    if (qts.load(QLocale::system(), QStringLiteral("qtbase"), QStringLiteral("_"),
                 QLibraryInfo::location(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(&qts);
    }
    if (QLocale::system().name().section(QLatin1Char('_'), 0, 0) != QLatin1String("fr") &&
        ours.load(QStringLiteral("zephantrajector_en"), packagedFiles())) {
        QCoreApplication::installTranslator(&ours);
    }
}

Request readArguments()
{
    QCommandLineParser parser;
    parser.setApplicationDescription(Launcher::tr(
        "Lance Zephan Trajector dans le dossier Tools/Trajector du simulateur AeoZephan, après l'y avoir mis à jour."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption ask(QStringLiteral("ask"), Launcher::tr("Demander de nouveau le dossier du simulateur."));
    parser.addOption(ask);
    const QString folder = Launcher::tr("DOSSIER");
    parser.addPositionalArgument(folder, Launcher::tr("Le dossier du simulateur, désormais retenu."),
                                 QLatin1Char('[') + folder + QLatin1Char(']'));
    parser.process(*QCoreApplication::instance());
    if (parser.positionalArguments().size() > 1) {
        parser.showHelp(2);
    }
    const QString named = parser.positionalArguments().value(0);
    return {parser.isSet(ask), named.isEmpty() ? named : QDir(named).absolutePath()};
}

/// Comes back only when the program could not be started, with the system's word for it.
QString giveWayTo(const QString& folder)
{
    const QByteArray program = QFile::encodeName(QDir(folder).filePath(QStringLiteral("ZephanTrajector")));
    if (!QDir::setCurrent(folder)) {
        return QString::fromLocal8Bit(std::strerror(ENOENT));
    }
    execl(program.constData(), program.constData(), nullptr);
    return QString::fromLocal8Bit(std::strerror(errno));
}

int launch(const Request& request)
{
    const QString simulator = launcher::findSimulator(request.simulator, request.ask);
    if (simulator.isEmpty()) {
        return 1;
    }
    if (!QDir(simulator).exists()) {
        launcher::tellFailure(Launcher::tr("Ce dossier n'existe pas :\n%1").arg(simulator));
        return 1;
    }
    const QString folder = launcher::programFolder(simulator);
    const QString failure = launcher::bringUpToDate(packagedFiles(), folder);
    if (!failure.isEmpty()) {
        launcher::tellFailure(failure);
        return 1;
    }
    if (!launcher::rememberSimulator(simulator)) {
        launcher::tellFailure(Launcher::tr("Le dossier du simulateur ne peut pas être retenu, il sera redemandé."));
    }
    const QString refusal = giveWayTo(folder);
    launcher::tellFailure(
        Launcher::tr("Zephan Trajector ne peut pas être lancé dans ce dossier :\n%1\n%2").arg(folder, refusal));
    return 1;
}

} // namespace

int main(int argc, char** argv)
{
    std::unique_ptr<QCoreApplication> application;
    if (hasDisplay()) {
        application = std::make_unique<QApplication>(argc, argv);
    } else {
        application = std::make_unique<QCoreApplication>(argc, argv);
    }
    QCoreApplication::setApplicationName(QStringLiteral("zephan-trajector"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ZEPHAN_VERSION));
    QTranslator ours;
    QTranslator qts;
    loadLanguage(ours, qts);
    const Request request = readArguments();
    if (!hasDisplay()) {
        QTextStream(stderr) << Launcher::tr("Zephan Trajector a besoin d'un écran : ni DISPLAY ni WAYLAND_DISPLAY.")
                            << '\n';
        return 1;
    }
    return launch(request);
}
