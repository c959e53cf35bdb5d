#pragma once

#include <QString>

/// Rewrites every line of the simulator's ini file that starts with "startupSituation" so that the simulator starts
/// with `situationFile` out of its saved situations. Without such a line none is added. All other lines stay in their
/// order, byte for byte, with single line feeds between them and none behind the last.
/// A file that cannot be read or written stays as it is: false. `iniPath` may hold backslashes.
bool setStartupSituation(const QString& iniPath, const QString& situationFile);
