#pragma once

#include <chrono>

/// From here on Ctrl+C and a request to terminate do not end the process; they are told by stopAskedBefore.
void listenForStop();

/// Waits until a moment, or until somebody has asked the program to stop, whichever comes first. True when it shall
/// stop.
bool stopAskedBefore(std::chrono::steady_clock::time_point moment);
