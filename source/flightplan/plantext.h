#pragma once

#include "cfpline.h"

#include <QList>
#include <QString>
#include <QStringList>

/// The text of a plan file as the simulator reads it, in pieces that each end in their own line feed.
/// `ceiling` is the aircraft's average ceiling in feet. An empty plan gives no piece.
QStringList planText(const QList<CFpLinePtr>& lines, int version, int ceiling);

/// The name of the plan's file, in capitals: "KSFO_KLAX.FPL".
QString planFileName(const CFpLine& first, const CFpLine& last);

/// The script that redraws the route on the map page. A name goes out as it is: a double quote in it breaks the script.
QString routeScript(const QList<CFpLinePtr>& lines);
