// The settings of the program and the singleton that keeps them.

#include "cnavglobalvar.h"

#include "settingsfile.h"
#include "wideini.h"

#include <QDebug>
#include <QSettings>

namespace {

CNavGlobalVar* theInstance = nullptr;

QString settingsFile()
{
    return QStringLiteral("trajector.ini");
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
        this->*entry.field = settingsValue(settings, QLatin1String(entry.key), true).toBool();
    }
    zoom = settingsValue(settings, QStringLiteral("view/zoom"), 6).toDouble();
    mapCenter = settingsValue(settings, QStringLiteral("view/mapCenter"), QPointF(2.0, 49.0)).toPointF();
    route = settingsValue(settings, QStringLiteral("view/route"), QStringLiteral("FR")).toString();
    traceInterval = settingsValue(settings, QStringLiteral("trace/intervale"), 2).toInt();
    // A missing key gives the empty path, which does not exist: the first start asks for the folder.
    dirWork.setPath(settingsValue(settings, QStringLiteral("directory/dirWork"), QVariant()).toString());
}

void CNavGlobalVar::saveSettings()
{
    if (!canSaveSettings(settingsFile())) {
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
