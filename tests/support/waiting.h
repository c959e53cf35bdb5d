#pragma once

#include <functional>

/// Runs the event loop until the condition holds; false when it still does not after `timeout` ms. The condition is
/// asked again after every event: QTest::qWaitFor sleeps 10 ms between two turns, and a page takes dozens to load.
bool waitUntil(const std::function<bool()>& condition, int timeout = 20000);
