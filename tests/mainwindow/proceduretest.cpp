// One window for the tests of stored procedures.
#include "proceduretest.h"

#include "cflightplan.h"

QTreeWidget* ProcedureTest::tree(const QString& name) const
{
    return win->window->findChild<QTreeWidget*>(name);
}

void ProcedureTest::emptyTrees() const
{
    tree("treeWSid")->clear();
    tree("treeWStar")->clear();
}

void ProcedureTest::dropPlan()
{
    if (!win->plan().lines.isEmpty())
        boxes->expectMessage("Nouveau plan de vol", "Voulez vous effacer le plan de vol en cours ?");
    win->window->askResetPlan();
}

void ProcedureTest::initTestCase()
{
    win.reset(new PlanWindow);
    rows.reset(new StoredProcedures(win->sandbox));
    startOfAll();
}

void ProcedureTest::cleanupTestCase()
{
    win.reset();
}

void ProcedureTest::init()
{
    boxes.reset(new BoxResponder);
    rows->clear();
    startOfEach();
}

void ProcedureTest::cleanup()
{
    endOfEach();
    boxes.reset();
}
