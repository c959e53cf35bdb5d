// The simulator's folder: remembered, looked at, asked for.
#include "launcher.h"

#include "settingsfile.h"
#include "wideini.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QSettings>
#include <QStandardPaths>

namespace {

struct Launcher
{
    Q_DECLARE_TR_FUNCTIONS(Launcher)
};

const QString key = QStringLiteral("simulator");

QString settingsFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QLatin1String("/zephan-trajector/launcher.ini");
}

/// Folder names come from anywhere: never read as markup.
QMessageBox::StandardButton show(QMessageBox::Icon icon, const QString& text, QMessageBox::StandardButtons buttons)
{
    QMessageBox box(icon, Launcher::tr("Zephan Trajector"), text, buttons);
    box.setTextFormat(Qt::PlainText);
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

/// An empty folder is what stays of a disk that is not mounted. One that was taken without AeoZephan.exe holds at least
/// us.
bool isStillThere(const QString& folder)
{
    return launcher::holdsSimulator(folder) || QDir(launcher::programFolder(folder)).exists();
}

bool wantsAnother(const QString& goneFolder)
{
    const QString text = Launcher::tr("Le simulateur n'est plus dans ce dossier :\n%1\n\nChoisissez son dossier.");
    return show(QMessageBox::Information, text.arg(goneFolder), QMessageBox::Ok | QMessageBox::Cancel) ==
           QMessageBox::Ok;
}

} // namespace

QString launcher::rememberedSimulator()
{
    const ReadableIni ini(settingsFile());
    return settingsValue(QSettings(ini.path(), QSettings::IniFormat), key, QVariant()).toString();
}

bool launcher::rememberSimulator(const QString& folder)
{
    if (!QDir().mkpath(QFileInfo(settingsFile()).path()) || !canSaveSettings(settingsFile())) {
        return false;
    }
    QSettings settings(settingsFile(), QSettings::IniFormat);
    settings.setValue(key, folder);
    settings.sync();
    return settings.status() == QSettings::NoError;
}

bool launcher::holdsSimulator(const QString& folder)
{
    return !folder.isEmpty() && QDir(folder).exists(QStringLiteral("AeoZephan.exe"));
}

QString launcher::findSimulator(const QString& named, bool ask)
{
    if (!named.isEmpty()) {
        return named;
    }
    const QString remembered = rememberedSimulator();
    const bool gone = !remembered.isEmpty() && !isStillThere(remembered);
    if (!remembered.isEmpty() && !gone && !ask) {
        return remembered;
    }
    return gone && !wantsAnother(remembered) ? QString() : chooseSimulator(remembered);
}

QString launcher::chooseSimulator(const QString& last)
{
    for (QString start = last.isEmpty() ? QDir::homePath() : last;;) {
        const QString folder = QFileDialog::getExistingDirectory(
            nullptr, Launcher::tr("Choisir le dossier du simulateur, celui qui contient AeoZephan.exe"), start);
        if (folder.isEmpty() || holdsSimulator(folder)) {
            return folder;
        }
        const QString question = Launcher::tr("Il n'y a pas de AeoZephan.exe dans ce dossier :\n%1\n\n"
                                              "Le prendre quand même ?");
        const auto answer =
            show(QMessageBox::Warning, question.arg(folder), QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
        if (answer != QMessageBox::No) {
            return answer == QMessageBox::Yes ? folder : QString();
        }
        start = folder;
    }
}

void launcher::tellFailure(const QString& text)
{
    show(QMessageBox::Critical, text, QMessageBox::Ok);
}
