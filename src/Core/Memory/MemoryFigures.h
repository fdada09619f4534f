#pragma once

#include "Platform/ProcessMemory.h"

#include <chrono>

/// The memory of a process as the ledger last read it.
struct MemoryFigures {
    ProcessMemoryUse use;
    std::chrono::steady_clock::time_point readAt; ///< of the clock's uptime
    bool isRefused = false; ///< the system tells only the totals, as of another user's process

    /// Returns whether shared pages are divided among the processes that map them.
    bool isProportional() const { return use.proportionalBytes.has_value(); }
};
