#pragma once

#include <QString>

#include <condition_variable>
#include <mutex>
#include <thread>

/// Ends the program when it is not taken away in time: a window that hangs answers nobody, the soak included.
class Watchdog
{
public:
    /// What is told when it bites.
    explicit Watchdog(const QString& subject);
    ~Watchdog();
    Watchdog(const Watchdog&) = delete;
    Watchdog& operator=(const Watchdog&) = delete;

private:
    std::mutex mutex;
    std::condition_variable wake;
    bool takenAway = false;
    std::thread thread;
};
