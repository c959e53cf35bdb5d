#include "watchdog.h"

#include <cstdio>
#include <cstdlib>

namespace {

constexpr std::chrono::minutes patience(2);

} // namespace

Watchdog::Watchdog(const QString& subject)
    : thread([this, text = subject.toStdString()] {
          std::unique_lock<std::mutex> lock(mutex);
          if (!wake.wait_for(lock, patience, [this] { return takenAway; })) {
              std::fprintf(stderr, "soak: %s does not come to an end\n", text.c_str());
              std::abort();
          }
      })
{
}

Watchdog::~Watchdog()
{
    {
        const std::lock_guard<std::mutex> lock(mutex);
        takenAway = true;
    }
    wake.notify_one();
    thread.join();
}
