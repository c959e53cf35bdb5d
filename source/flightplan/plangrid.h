#pragma once

#include "cfpline.h"

#include <QList>

class QTableWidget;

/// Rebuilds every row of the plan's grid (10 columns) and makes (last row, 1) the current cell; the grid emits
/// `currentCellChanged` for that. An empty plan leaves no row and no current cell and emits nothing.
void fillPlanGrid(QTableWidget& grid, const QList<CFpLinePtr>& lines);

/// Takes all rows away without a signal: see the .cpp for what a signal in the middle of it would do.
void clearPlanGrid(QTableWidget& grid);
