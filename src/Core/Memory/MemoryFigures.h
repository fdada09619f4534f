#pragma once

#include "Platform/ProcessMemory.h"

#include <chrono>

/// The memory of a process as the ledger last read it, or found it to be unchanged.
struct MemoryFigures {
    ProcessMemoryUse use;
    std::chrono::steady_clock::time_point readAt; ///< as Clock::uptime; when they were last known to be true
    bool isRefused = false; ///< the system tells only the totals, as of another user's process

    /// Returns whether shared pages are divided among the processes that map them.
    bool isProportional() const { return use.proportionalBytes.has_value(); }
};
