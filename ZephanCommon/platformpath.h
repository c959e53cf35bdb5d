#pragma once

#include <QString>

/// The path of the platform for a path text of the simulator's world.
/// Texts keep their backslashes wherever they are shown; every QFile, QDir and file dialog goes through here.
/// On Windows the text comes back as it is, elsewhere each backslash becomes a slash.
QString platformPath(const QString& path);
