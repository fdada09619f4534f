#pragma once

#include <chrono>

/// A point in wall-clock time.
using Instant = std::chrono::system_clock::time_point;

/// Returns the instant in seconds since the epoch.
inline double secondsOf(Instant instant) {
    return std::chrono::duration<double>(instant.time_since_epoch()).count();
}
