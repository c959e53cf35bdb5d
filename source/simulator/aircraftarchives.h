#pragma once

#include "caircraftdata.h"

#include <QString>
#include <QStringList>

/// The paths of all archives in a folder and below it, in the order that the file system gives.
QStringList aircraftArchives(const QString& folder);

/// The maker's name and the numbers of one archive. A file that is missing or no archive gives an empty name and zeros.
CAircraftData readAircraftArchive(const QString& path);
