#pragma once

#include "cfpline.h"

#include <QIODevice>
#include <QList>

#include <functional>

/// What a plan file holds.
struct PlanFile
{
    QList<CFpLinePtr> lines; ///< in the file's order; empty: the file is no plan
    bool versionSeen = false;
    int version = 0;      ///< of the last version tag
    int skipped = 0;      ///< fields that could not be used: before the first point, or a position with parts missing
    bool tooLong = false; ///< a line is longer than any of a plan (2^20 characters): the file was read up to it
};

/// Reads a plan file to its end, to the first read that fails or to a line that is too long. `newLine` makes each line;
/// the file's fields then go over it. Any content is taken: what is no known tag is passed over.
PlanFile readPlan(QIODevice& device, const std::function<CFpLinePtr()>& newLine);
