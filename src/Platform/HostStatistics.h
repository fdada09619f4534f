#pragma once

#include <QtGlobal>

#include <optional>

/// Cumulative CPU ticks of the whole host since boot; each counter wraps at 2^32.
struct CpuTicks {
    quint32 user = 0;
    quint32 system = 0;
    quint32 idle = 0;
    quint32 nice = 0;

    bool operator==(const CpuTicks&) const = default;
};

/// Memory in use, in pages of HostStatistics::pageSize(). The three counts do not overlap.
struct MemoryPages {
    quint64 active = 0;
    quint64 wired = 0;      ///< cannot be paged out
    quint64 compressed = 0; ///< held by the compressor

    bool operator==(const MemoryPages&) const = default;
};

/// Size of one mounted volume, in blocks of `blockSize` bytes.
struct VolumeBlocks {
    quint64 blockSize = 0;
    quint64 blocks = 0;
    quint64 blocksAvailable = 0; ///< to an unprivileged user

    bool operator==(const VolumeBlocks&) const = default;
};

/// Whole-machine figures. An empty optional means that the system refused the figure this time.
class HostStatistics {
public:
    virtual ~HostStatistics() = default;

    virtual quint64 pageSize() const = 0; ///< bytes
    virtual std::optional<CpuTicks> cpuTicks() = 0;
    virtual std::optional<MemoryPages> memoryPages() = 0;
    virtual std::optional<quint64> swapUsedBytes() = 0;
    virtual std::optional<VolumeBlocks> rootVolume() = 0;
    virtual int thermalLevel() = 0; ///< 0 nominal, 1 fair, 2 serious, 3 critical
    virtual quint64 physicalMemoryBytes() = 0;
};
