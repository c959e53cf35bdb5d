// The simulator's folders and databases.

#include "cglobalvar.h"

#include "databaselayout.h"
#include "inivalues.h"
#include "platformpath.h"
#include "positions.h"
#include "wideini.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

namespace {

struct FolderKey
{
    const char* key;   ///< in the simulator's ini file
    const char* label; ///< in the debug log
    QDir CGlobalVar::*folder;
};

const FolderKey folderKeys[] = {
    {"SQL/GENDB", "GENDB", &CGlobalVar::dirGEN}, {"SQL/M3DDB", "M3DDB", &CGlobalVar::dirM3D},
    {"SQL/OBJDB", "OBJDB", &CGlobalVar::dirOBJ}, {"SQL/TXYDB", "TXYDB", &CGlobalVar::dirTXY},
    {"SQL/WPTDB", "WPTDB", &CGlobalVar::dirWPT}, {"SQL/RTEDB", "RTEDB", &CGlobalVar::dirRTE},
    {"SQL/OSMDB", "OSMDB", &CGlobalVar::dirOSM},
};

/// A drive letter makes a path of the simulator absolute, also where the platform has no drives.
bool hasDriveLetter(const QString& path)
{
    return path.size() > 1 && path.at(1) == QLatin1Char(':') && path.at(0).isLetter();
}

/// The path of a database folder: a relative one starts at the root, whose own part is not resolved.
QString folderPath(const QString& root, const QString& setting)
{
    QString path = platformPath(setting);
    if (QDir(path).isRelative() && !hasDriveLetter(path)) {
        return QStringLiteral("%1/%2").arg(root, QDir::cleanPath(path));
    }
    return path;
}

/// The folders are texts. A file that holds anything else among them is damaged, and counts as one that is missing.
bool isTextOnly(const QString& ini)
{
    QFile file(ini);
    return !file.open(QIODevice::ReadOnly) || !holdsPackedValues(file.readAll(), "SQL");
}

bool qualifies(const QString& fileName, const QString& prefix)
{
    const QFileInfo file(fileName);
    return file.baseName().startsWith(prefix, Qt::CaseInsensitive) && file.suffix() == QLatin1String("db");
}

} // namespace

CGlobalVar::CGlobalVar() : sqlMgr(new SqlMgr) {}

CGlobalVar::~CGlobalVar() = default;

bool CGlobalVar::init()
{
    initDBPath();
    const bool ready = initDB();
    if (ready) {
        tileGrid.buildBands();
        tileGrid.buildDetails(0.0);
    }
    return ready;
}

void CGlobalVar::initDBPath()
{
    const QString path = QStringLiteral("%1/system/AeoZephan.ini").arg(dirZephan.path());
    const ReadableIni ini(path);
    const QString usual = QStringLiteral("../../SQL");
    const bool readable = isTextOnly(ini.path());
    const QSettings settings(ini.path(), QSettings::IniFormat);
    for (const FolderKey& entry : folderKeys) {
        const QVariant setting = readable ? settings.value(QLatin1String(entry.key), usual) : usual;
        (this->*entry.folder).setPath(folderPath(dirZephan.path(), setting.toString()));
    }
    qDebug() << "AeoZephan.ini settings";
    for (const FolderKey& entry : folderKeys) {
        qDebug() << entry.label << (this->*entry.folder).path();
    }
}

bool CGlobalVar::initDB()
{
    for (const DatabaseLayout& database : databaseLayouts()) {
        (this->*database.folder).setNameFilters({QStringLiteral("*.db")});
    }
    for (const DatabaseLayout& database : databaseLayouts()) {
        const QDir folder = this->*database.folder;
        QString& dbName = this->*database.dbName;
        dbName.clear();
        const QStringList names =
            folder.entryList(QDir::Files, QDir::Name).filter(database.prefix, Qt::CaseInsensitive);
        // Every file that qualifies is opened and checked; the last one in name order stays.
        for (const QString& name : names) {
            if (qualifies(name, database.prefix) && sqlMgr->checkDBVersion(folder, name, database.version)) {
                dbName = name;
            }
        }
    }
    return true;
}

int CGlobalVar::getVerticalBand(double latSec) const
{
    return tileGrid.getVerticalBand(latSec);
}

int CGlobalVar::getTileKey(double latSec, double lonSec) const
{
    return tileGrid.getTileKey(latSec, lonSec);
}

int CGlobalVar::GetVerticalQgtNumber(double latSec) const
{
    return tileGrid.getVerticalQgtNumber(latSec);
}

int CGlobalVar::getHalfColumn(double lonSec) const
{
    return TileGrid::getHalfColumn(lonSec);
}

int CGlobalVar::getColumnHigh(double lonSec) const
{
    return TileGrid::getColumnHigh(lonSec);
}

bool CGlobalVar::isAboveBand(double latSec, int band) const
{
    return tileGrid.isAboveBand(latSec, band);
}

int CGlobalVar::countBandsUp(short band) const
{
    return tileGrid.countBandsUp(band);
}

int CGlobalVar::countBandsDown(short band) const
{
    return tileGrid.countBandsDown(band);
}

QString CGlobalVar::tileKeyText(const QString& tile) const
{
    return TileGrid::tileKeyText(tile);
}

QString CGlobalVar::latToText(double latSec, bool withSecondMark) const
{
    return latitudeText(latSec, withSecondMark);
}

QString CGlobalVar::lonToText(double lonSec, bool withSecondMark) const
{
    return longitudeText(lonSec, withSecondMark);
}
