// The settings of the program and the singleton that keeps them.

#include "cnavglobalvar.h"

#include "inivalues.h"
#include "wholefile.h"
#include "wideini.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSettings>

namespace {

CNavGlobalVar* theInstance = nullptr;

QString settingsFile()
{
    return QStringLiteral("trajector.ini");
}

// Neither a file of two-byte characters, between whose bytes QSettings would put the new keys, nor one with values that
// it cannot unpack without harm is a file that it may write to. False where such a file cannot be replaced.
bool makeWritable()
{
    QFile file(settingsFile());
    if (!file.open(QIODevice::ReadOnly)) {
        return true; // there is none yet
    }
    const QByteArray bytes = file.readAll();
    const QByteArray understood = withHarmlessValues(settingsBytes(bytes));
    file.close();
    return understood == bytes || writeWholeFile(settingsFile(), understood) == WriteEnd::Whole;
}

// QSettings waits for its lock without end, and the window has gone by then: a second program that was stopped while it
// wrote, or a folder of that name, must not keep this one.
bool isLockFree()
{
    constexpr int patience = 3000; // milliseconds
    QLockFile lock(settingsFile() + QStringLiteral(".lock"));
    return lock.tryLock(patience);
}

// On a full disk QSettings leaves an empty file and takes it for written; the file from before is better.
bool canBeSaved()
{
    constexpr qint64 furtherKeys = 16384;
    const QFileInfo present(settingsFile());
    if (present.exists() && !isSettingsFile(settingsFile())) {
        return false;
    }
    return hasRoomBeside(settingsFile(), present.size() + furtherKeys) && isLockFree() && makeWritable();
}

QVariant valueOf(const QSettings& settings, const char* key, const QVariant& usual)
{
    const QVariant value = settings.value(QLatin1String(key), usual);
    return value.type() == QVariant::String && isHarmlessRest(value.toString()) ? usual : value;
}

struct Switch
{
    const char* key;
    bool CNavGlobalVar::*field;
};

const Switch switchesRead[] = {
    {"view/showAirport", &CNavGlobalVar::showAirport},
    {"view/showVor", &CNavGlobalVar::showVor},
    {"view/showNdbRte", &CNavGlobalVar::showNdbRte},
    {"view/showNdbTerm", &CNavGlobalVar::showNdbTerm},
    {"view/showWaypointRte", &CNavGlobalVar::showWaypointRte},
    {"view/showWaypointTerm", &CNavGlobalVar::showWaypointTerm},
    {"view/showWaypointVfr", &CNavGlobalVar::showWaypointVfr},
    {"view/showATSH", &CNavGlobalVar::showATSH},
    {"view/showATSL", &CNavGlobalVar::showATSL},
    {"view/showATSB", &CNavGlobalVar::showATSB},
    {"view/showBoundary", &CNavGlobalVar::showBoundary},
    {"view/showDock", &CNavGlobalVar::showDock},
};

// Two keys are written twice and two never: the second value stays, and pilots' files have it so.
const Switch switchesWritten[] = {
    {"view/showAirport", &CNavGlobalVar::showAirport},
    {"view/showVor", &CNavGlobalVar::showVor},
    {"view/showNdbRte", &CNavGlobalVar::showNdbRte},
    {"view/showNdbTerm", &CNavGlobalVar::showNdbTerm},
    {"view/showWaypointRte", &CNavGlobalVar::showWaypointRte},
    {"view/showWaypointTerm", &CNavGlobalVar::showWaypointTerm},
    {"view/showWaypointVfr", &CNavGlobalVar::showWaypointVfr},
    {"view/showATSL", &CNavGlobalVar::showATSL},
    {"view/showATSH", &CNavGlobalVar::showATSH},
    {"view/showATSH", &CNavGlobalVar::showATSB},
    {"view/showBoundary", &CNavGlobalVar::showBoundary},
    {"view/showBoundary", &CNavGlobalVar::showDock},
};

} // namespace

CNavGlobalVar* CNavGlobalVar::instance()
{
    if (!theInstance) {
        theInstance = new CNavGlobalVar;
    }
    return theInstance;
}

void CNavGlobalVar::deleteInstance()
{
    delete theInstance;
    theInstance = nullptr;
}

CNavGlobalVar::CNavGlobalVar()
{
    CNavGlobalVar::loadSettings();
    atsTypeNames = QStringList{
        QStringLiteral("ATLANTIC"),       QStringLiteral("BAHAMA"),  QStringLiteral("CORRIDOR"),
        QStringLiteral("ADVISORY"),       QStringLiteral("DIRECT"),  QStringLiteral("MILITARY"),
        QStringLiteral("NORTH AMERICAN"), QStringLiteral("OCEANIC"), QStringLiteral("RNAV"),
        QStringLiteral("SUBSTITUTE"),     QStringLiteral("TACAN"),   QStringLiteral("AIRWAY"),
    };
}

CNavGlobalVar::~CNavGlobalVar()
{
    CNavGlobalVar::saveSettings();
}

void CNavGlobalVar::loadSettings()
{
    const ReadableIni ini(settingsFile());
    const QSettings settings(ini.path(), QSettings::IniFormat);
    for (const Switch& entry : switchesRead) {
        this->*entry.field = valueOf(settings, entry.key, true).toBool();
    }
    zoom = valueOf(settings, "view/zoom", 6).toDouble();
    mapCenter = valueOf(settings, "view/mapCenter", QPointF(2.0, 49.0)).toPointF();
    route = valueOf(settings, "view/route", QStringLiteral("FR")).toString();
    traceInterval = valueOf(settings, "trace/intervale", 2).toInt();
    // A missing key gives the empty path, which does not exist: the first start asks for the folder.
    dirWork.setPath(valueOf(settings, "directory/dirWork", QVariant()).toString());
}

void CNavGlobalVar::saveSettings()
{
    if (!canBeSaved()) {
        qDebug() << "trajector.ini not saved";
        return;
    }
    QSettings settings(settingsFile(), QSettings::IniFormat);
    for (const Switch& entry : switchesWritten) {
        settings.setValue(QLatin1String(entry.key), this->*entry.field);
    }
    settings.setValue(QStringLiteral("view/zoom"), zoom);
    settings.setValue(QStringLiteral("view/mapCenter"), mapCenter);
    settings.setValue(QStringLiteral("directory/dirWork"), dirWork.path());
    settings.setValue(QStringLiteral("view/route"), route);
    settings.setValue(QStringLiteral("trace/intervale"), traceInterval);
}
