#pragma once

#include "Core/Sampling/SystemSample.h"

#include <algorithm>

/// By how many bytes the machine's used memory and swap fell between two samples; 0 where they grew.
struct FreedMemory {
    quint64 memoryBytes = 0;
    quint64 swapBytes = 0;

    static FreedMemory between(const SystemSample& before, const SystemSample& after) {
        return {.memoryBytes = decrease(before.memUsedBytes, after.memUsedBytes),
                .swapBytes = decrease(before.swapUsedBytes, after.swapUsedBytes)};
    }

private:
    static quint64 decrease(quint64 before, quint64 after) { return before - std::min(before, after); }
};
