#pragma once

#include <QString>

/// What the launcher does before it gives way to the program: the simulator's folder found or asked for, and the
/// program with its pages put into Tools/Trajector there. The program takes pages and update files from beside itself,
/// settings from the folder that it is started in, and both have to be that one: so it is copied, never linked.
namespace launcher {

/// The simulator's folder that was chosen last, empty when none was. Kept under XDG_CONFIG_HOME.
QString rememberedSimulator();
/// False when it could not be written.
bool rememberSimulator(const QString& folder);

/// True for a folder with the simulator's program in it.
bool holdsSimulator(const QString& folder);

/// The folder to start beside: the one `named`, else the one remembered, else the user's answer; with `ask` always his
/// answer. Empty when he gives up.
QString findSimulator(const QString& named, bool ask);
/// Asks for the simulator's folder in a folder dialog, beginning at `last`, until there is an answer that holds the
/// simulator or that is wanted all the same. Empty when the user gives up.
QString chooseSimulator(const QString& last);
void tellFailure(const QString& text);

/// Tools/Trajector of the simulator, written as it stands there already: a folder that came from a system that knows no
/// case may be called otherwise.
QString programFolder(const QString& simulator);
/// Brings all files under `from` into `to`, and makes the folder of update files there. Files that are the same already
/// are left alone. Gives what went wrong in the user's words, empty when nothing did.
QString bringUpToDate(const QString& from, const QString& to);

} // namespace launcher
