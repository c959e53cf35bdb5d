// What every change of a plan costs: legs, map script, grid and file text anew.
#include "benchwindow.h"
#include "cflightplan.h"
#include "cnavglobalvar.h"
#include "mainwindow.h"
#include "measure.h"

#include <QApplication>

namespace {

/// A zigzag from the north of France to its south.
void fillPlan(CFlightPlan& plan, int lines)
{
    plan.clearLines();
    for (int i = 0; i < lines; ++i) {
        const CFpLinePtr line = plan.newLine();
        line->usage = line->fpType = "uswp";
        line->name = line->iden = QString("WPT%1").arg(i, 3, 10, QChar('0'));
        line->latS = 3600.0 * (50.0 - 7.0 * i / lines);
        line->lonS = 3600.0 * (i % 2 == 0 ? 2.0 : 2.5);
        line->speed = 110;
        plan.insertLine(line, i);
    }
}

double refreshMs(CFlightPlan& plan, int lines)
{
    fillPlan(plan, lines);
    const double time = medianMs(roundsOf(21), [&] { plan.refresh(); });
    printFigure({"refresh", QString("a plan of %1 lines").arg(lines), time, "ms", lines == 100 ? 20.0 : 0.0});
    return time;
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    enterSimulator(takeMeasureOptions(application.arguments()).value(0));
    MainWindow window;
    window.show();
    waitUntilLoaded(window);
    CFlightPlan& plan = *CNavGlobalVar::instance()->flightPlan;
    refreshMs(plan, 10);
    const double hundred = refreshMs(plan, 100);
    const double thousand = refreshMs(plan, 1000);
    printFigure({"refresh", "1000 lines to 100 lines, 10 being linear", thousand / hundred, ""});
}
