#pragma once

#include "caircraftdata.h"
#include "cflightplan.h"
#include "cnavglobalvar.h"
#include "sandbox.h"

#include <QTableWidget>

/// A plan with a grid of its own on a simulator in a temporary folder, its databases open.
struct PlanOnSandbox
{
    PlanOnSandbox() : grid(0, 10), plan(&grid, 0)
    {
        plan.navVar->dirZephan.setPath(sandbox.root());
        plan.navVar->init();
    }

    Sandbox sandbox;
    QTableWidget grid;
    CFlightPlan plan;
};
