#include "stoprequest.h"

#include <algorithm>
#include <atomic>
#include <csignal>
#include <thread>

namespace {

std::atomic<bool> asked{false};
static_assert(std::atomic<bool>::is_always_lock_free, "a signal may come at any instruction");

void remember(int)
{
    asked = true;
}

} // namespace

void listenForStop()
{
    struct sigaction action = {};
    action.sa_handler = remember;
    sigemptyset(&action.sa_mask);
    sigaction(SIGINT, &action, nullptr);
    sigaction(SIGTERM, &action, nullptr);
}

bool stopAskedBefore(std::chrono::steady_clock::time_point moment)
{
    // A long sleep goes on after a signal, so it is taken in pieces that nobody notices.
    constexpr std::chrono::milliseconds piece(50);
    while (!asked) {
        const auto now = std::chrono::steady_clock::now();
        if (now >= moment) {
            return false;
        }
        std::this_thread::sleep_for(std::min<std::chrono::steady_clock::duration>(moment - now, piece));
    }
    return true;
}
