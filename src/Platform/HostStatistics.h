#pragma once

#include <QtGlobal>

#include <optional>

/// CPU ticks of the whole host, of all its CPUs together. No count ever steps back.
struct CpuTicks {
    quint64 user = 0;
    quint64 system = 0;
    quint64 idle = 0;
    quint64 nice = 0;

    bool operator==(const CpuTicks&) const = default;
};

/// What memory is used for. The first three do not overlap. A figure that the system refuses is 0.
struct MemoryUse {
    quint64 activeBytes = 0;
    quint64 wiredBytes = 0;      ///< cannot be paged out
    quint64 compressedBytes = 0; ///< held by the compressor
    quint64 swapUsedBytes = 0;
    quint64 totalBytes = 0; ///< physical memory

    bool operator==(const MemoryUse&) const = default;
};

/// Size of one mounted volume.
struct VolumeSize {
    quint64 totalBytes = 0;
    quint64 freeBytes = 0; ///< to an unprivileged user

    bool operator==(const VolumeSize&) const = default;
};

/// Whole-machine figures. An empty optional means that the system refused the figure this time.
class HostStatistics {
public:
    virtual ~HostStatistics() = default;

    virtual std::optional<CpuTicks> cpuTicks() = 0;
    virtual MemoryUse memoryUse() = 0;
    virtual std::optional<VolumeSize> rootVolume() = 0;
    virtual int thermalLevel() = 0; ///< 0 nominal, 1 fair, 2 serious, 3 critical
};
