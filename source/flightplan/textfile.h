#pragma once

#include "wholefile.h"

#include <QString>
#include <QStringList>

/// Writes the pieces one after the other as the simulator's own text file: nothing between them, no byte order mark.
/// The old file is replaced only by a complete new one. `path` may hold backslashes.
WriteEnd writeTextFile(const QString& path, const QStringList& pieces);

/// The same in a folder, under a name that holds identifiers of the databases. A name that would lead out of the folder
/// (one with a slash or a backslash, on Windows a colon too), or that no file can have (one with a zero byte), is
/// written nowhere, as if it could not be opened.
WriteEnd writeTextFileIn(const QString& folder, const QString& name, const QStringList& pieces);
