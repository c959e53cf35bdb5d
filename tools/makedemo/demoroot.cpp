// The folders and small files of a simulator.

#include "demoroot.h"

#include "demoaircraft.h"
#include "demodata.h"

#include <QFile>
#include <QSettings>

namespace {

const char* const folders[] = {"Aircraft", "Flightplan", "Saved Simulations", "SQL", "Tools/Trajector/Data",
                               "Work",     "system"};

QString fault(const QString& path)
{
    return QStringLiteral("cannot write %1").arg(path);
}

QString makeFolders(const QDir& root)
{
    if (!root.mkpath(QStringLiteral(".")))
        return fault(root.path());
    if (!root.isEmpty())
        return QStringLiteral("%1 is not empty").arg(root.path());
    for (const char* folder : folders)
        if (!root.mkpath(QLatin1String(folder)))
            return fault(root.filePath(QLatin1String(folder)));
    return {};
}

QString writeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush() ? QString()
                                                                                                : fault(path);
}

QString writeSimulatorIni(const QDir& root)
{
    QFile source(QStringLiteral(":/demo/system/AeoZephan.ini"));
    if (!source.open(QIODevice::ReadOnly))
        return source.errorString();
    return writeFile(root.filePath(QStringLiteral("system/AeoZephan.ini")), source.readAll());
}

QString writeSettings(const QDir& root)
{
    const QString path = root.filePath(QStringLiteral("Tools/Trajector/trajector.ini"));
    QSettings settings(path, QSettings::IniFormat);
    settings.setValue(QStringLiteral("directory/dirWork"), root.absoluteFilePath(QStringLiteral("Work")));
    settings.sync();
    return settings.status() == QSettings::NoError ? QString() : fault(path);
}

} // namespace

QString makeDemoRoot(const QString& folder, const DemoSize& size)
{
    Q_INIT_RESOURCE(demo);
    // Paths below the root are handed on and taken up again: one that leads from here would be followed twice.
    const QDir root(QDir(folder).absolutePath());
    QString error = makeFolders(root);
    if (error.isEmpty()) // found by its name alone, never run
        error = writeFile(root.filePath(QStringLiteral("AeoZephan.exe")), QByteArray());
    if (error.isEmpty())
        error = writeSimulatorIni(root);
    if (error.isEmpty())
        error = writeSettings(root);
    if (error.isEmpty())
        error = writeDemoDatabases(root.filePath(QStringLiteral("SQL")), size);
    if (error.isEmpty())
        error = writeDemoAircraft(root.filePath(QStringLiteral("Aircraft")), size.aircraft);
    return error;
}
