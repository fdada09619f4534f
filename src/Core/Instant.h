#pragma once

#include <chrono>

/// A point in civil time.
using Instant = std::chrono::system_clock::time_point;
