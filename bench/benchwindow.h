#pragma once

#include <QString>

class MainWindow;

/// Makes the folder Tools/Trajector of a simulator's root the current directory, as the program is started.
/// Ends the process with a message when there is no such folder. The figures are from here on those of this root.
void enterSimulator(const QString& root);

/// Runs the event loop until the debug tab says that the load is over. Ends the process with a message after ten
/// minutes, or when the page is not there or does not work.
void waitUntilLoaded(MainWindow& window);
