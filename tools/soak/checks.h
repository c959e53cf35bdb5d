#pragma once

#include "soakworld.h"

/// Requires what must be true of the window after each command, and after each load.
void checkAll(SoakWorld& world);

/// The points that a plan file holds, read without the program's reader. Empty with a complaint when the file is not
/// whole.
PlanTexts readPlanFile(SoakWorld& world, const QString& path);

/// Requires the plan file that was just saved to hold the plan, and keeps the plan under the file's name.
void checkSavedPlan(SoakWorld& world, const QString& fileName);

/// Requires the situation file to be whole and to start where the plan starts.
void checkSituation(SoakWorld& world, const QString& fileName);

/// The states that tell two runs apart, as a short text.
QString digest(const SoakWorld& world);
