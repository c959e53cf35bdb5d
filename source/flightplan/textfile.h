#pragma once

#include <QString>
#include <QStringList>

/// Writes the pieces one after the other as the simulator's own text file: nothing between them, no byte order mark.
/// The old file is replaced only by a complete new one. False when that failed; the old file then stands as it was.
/// `path` may hold backslashes.
bool writeTextFile(const QString& path, const QStringList& pieces);
