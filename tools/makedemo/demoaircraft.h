#pragma once

#include <QDir>
#include <QString>

/// Writes the archives of the demonstration's aircraft below a folder, and invented ones until there are at least
/// `count`. An empty text on success, else what went wrong.
QString writeDemoAircraft(const QDir& folder, int count);
