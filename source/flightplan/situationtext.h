#pragma once

#include "cfpline.h"

#include <QString>
#include <QStringList>

/// The text of a start situation as the simulator reads it, in pieces that each end in their own line feed: the
/// aircraft at rest at the position, elevation and heading of `start`. `iden` is the departure airport's.
QStringList situationText(const QString& iden, const CFpLine& start);

/// The name of the situation's file: the airport's long name in capitals, "PARIS ORLY.SIT". Nothing is filtered.
QString situationFileName(const CFpLine& airport);
