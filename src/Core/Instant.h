#pragma once

#include <chrono>

/// A point in wall-clock time.
using Instant = std::chrono::system_clock::time_point;
