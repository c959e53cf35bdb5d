#pragma once

#include "wholefile.h"

#include <QString>
#include <QStringList>

/// Writes the pieces one after the other as the simulator's own text file: nothing between them, no byte order mark.
/// The old file is replaced only by a complete new one. `path` may hold backslashes.
WriteEnd writeTextFile(const QString& path, const QStringList& pieces);
