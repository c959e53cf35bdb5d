#pragma once

class CNavGlobalVar;

/// Finds the simulator's root, two levels above the current directory, and the user's work folder, which the
/// settings have already given. Asks with a folder dialog for what is not there; the answer is not tested, and a
/// cancelled dialog leaves an empty path.
void locateFolders(CNavGlobalVar& navVar);
