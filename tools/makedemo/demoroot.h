#pragma once

#include "demosize.h"

#include <QString>

/// Writes a whole simulator into a folder: the stand-in of its program, its ini file, databases, aircraft, the folders
/// for plans and situations, and "Tools/Trajector" with settings that name an existing work folder.
///
/// The folder must be new or empty, so that nobody's simulator is overwritten; what it lacks is made. An empty text on
/// success, else what went wrong.
QString makeDemoRoot(const QString& folder, const DemoSize& size = {});
