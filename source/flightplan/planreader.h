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
    int version = 0; ///< of the last version tag
    int skipped = 0; ///< fields that could not be used: before the first point, or a position with parts missing
    /// Larger than any plan: a line of more than 2^20 characters, more than 2^25 in all, or more than 20,000 points.
    /// The file was read up to there.
    bool tooLong = false;
};

/// Reads a plan file to its end, to the first read that fails or as far as plans go. `newLine` makes each line;
/// the file's fields then go over it. Any content is taken: what is no known tag is passed over.
PlanFile readPlan(QIODevice& device, const std::function<CFpLinePtr()>& newLine);
