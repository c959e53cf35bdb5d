#include "aircraftarchives.h"

#include "cpodmgr.h"

#include <QDirIterator>

QStringList aircraftArchives(const QString& folder)
{
    QStringList paths;
    QDirIterator walk(folder, {QStringLiteral("*.pod")}, QDir::Files | QDir::NoSymLinks, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        paths += walk.next();
    }
    return paths;
}

CAircraftData readAircraftArchive(const QString& path)
{
    CAircraftData aircraft;
    CPodMgr pod(path);
    pod.findBySuffix(QStringLiteral("NFO"));
    aircraft.make = pod.lineAfter(QStringLiteral("<make>")).trimmed();
    // Without such an entry the NFO text stays, and the tags are looked for there.
    pod.findBySuffix(QStringLiteral("SVH"));
    aircraft.readSvh(&pod);
    return aircraft;
}
