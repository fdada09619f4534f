#pragma once

#include <algorithm>
#include <vector>

#include <unistd.h>

/// Evicts the CPU's caches, as other programs do in the two seconds between two ticks.
class CacheEviction {
public:
    CacheEviction()
        : m_bytes(2 * std::max<size_t>(lastLevelCache(), 16 << 20)) {}

    void run() {
        for (size_t at = 0; at < m_bytes.size(); at += 64)
            ++m_bytes[at];
    }

private:
    static size_t lastLevelCache() {
        return static_cast<size_t>(std::max(0L, sysconf(_SC_LEVEL3_CACHE_SIZE)));
    }

    std::vector<char> m_bytes;
};
