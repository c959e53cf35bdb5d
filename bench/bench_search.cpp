// The widest search that a pilot makes: one letter, "Approx.". It runs a query for the runways of each airport found.
#include "benchwindow.h"
#include "mainwindow.h"
#include "measure.h"

#include <QApplication>
#include <QLineEdit>
#include <QTreeWidget>

namespace {

void searchLetter(MainWindow& window, const QString& letter)
{
    auto* tree = window.findChild<QTreeWidget*>("treeWFound");
    window.findChild<QLineEdit*>("searchData")->setText(letter);
    const double first = elapsedMs([&] { window.searchInTable(false); });
    // A search that takes long is not taken again.
    const double time = first > 20000.0 ? first : medianMs(roundsOf(5), [&] { window.searchInTable(false); });
    printFigure(
        {"search", QString("near search \"%1\", %2 found").arg(letter).arg(tree->topLevelItemCount()), time, "ms"});
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    enterSimulator(takeMeasureOptions(application.arguments()).value(0));
    MainWindow window;
    window.show();
    waitUntilLoaded(window);
    searchLetter(window, "A");
    searchLetter(window, "L");
}
