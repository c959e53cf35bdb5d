#pragma once

#include "aeozephannavrecord.h"
#include "sharedblock.h"

class QTimer;

/// The link to the running simulator: attaches to the block in which it publishes its aircraft, and ticks. Reading the
/// record at each tick is the caller's. The simulator is told nothing, and need not run: the block is then made, and
/// holds zeros until the simulator comes.
///
/// A new object for each trace. There is no reconnection; a link that failed stays so.
class CNavPlug
{
public:
    /// Attaches and calls `Init`. On failure a debug line tells it, `view` is null, and there is no timer.
    explicit CNavPlug(int interval);
    /// Calls `Close`.
    ~CNavPlug();
    CNavPlug(const CNavPlug&) = delete;
    CNavPlug& operator=(const CNavPlug&) = delete;

    /// Starts the timer (interval in milliseconds, as QTimer takes it) and maps the view. On failure a debug line tells
    /// it and `view` is null; the timer runs all the same.
    void Init(int interval);
    /// Stops the timer and leaves the block. May be called any number of times, also on a link that failed.
    void Close();

    bool connected = false; ///< between a successful `Init` and `Close`
    /// The mapped bytes; null when the mapping failed. Keeps its value in `Close`, as `record` does, and is then stale.
    void* view = nullptr;
    /// The same, typed. Volatile because another process writes it: each access is a load of its own.
    const volatile AeoZephanNavRecord* record = nullptr;
    QTimer* timer = nullptr; ///< made by `Init`, never deleted; the caller connects it
    SharedBlock mapping;
};
