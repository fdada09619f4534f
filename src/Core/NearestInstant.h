#pragma once

#include "Core/Instant.h"

#include <algorithm>

/// Returns the nearest time that an Instant can be: it counts nanoseconds, from the year 1677 to 2262.
inline Instant nearestInstant(std::chrono::sys_seconds time) {
    using std::chrono::seconds;
    return std::clamp(time, std::chrono::ceil<seconds>(Instant::min()),
                      std::chrono::floor<seconds>(Instant::max()));
}
