#pragma once

#include <QList>
#include <QtGlobal>

#include <optional>

/// CPU ticks of all CPUs together. The counts never decrease.
struct CpuTicks {
    quint64 user = 0;
    quint64 system = 0;
    quint64 idle = 0;
    quint64 nice = 0;

    bool operator==(const CpuTicks&) const = default;
};

/// CPU ticks of one CPU. The counts never decrease, but for a step back by a few.
struct CoreTicks {
    quint64 busy = 0;
    quint64 idle = 0;

    bool operator==(const CoreTicks&) const = default;
};

/// Use of memory. The first three figures do not overlap. A figure that the system refuses is 0.
struct MemoryUse {
    quint64 activeBytes = 0;
    quint64 wiredBytes = 0;      ///< cannot be paged out
    quint64 compressedBytes = 0; ///< taken by the compressor
    quint64 swapUsedBytes = 0;
    quint64 swapTotalBytes = 0;
    quint64 totalBytes = 0; ///< physical memory
    /// Anonymous and shared memory of all programs; the rest of what is used is the kernel's.
    std::optional<quint64> programBytes = {};
    std::optional<quint64> cacheBytes = {}; ///< of files in memory, which can be given back

    bool operator==(const MemoryUse&) const = default;
};

/// Size of one mounted volume.
struct VolumeSize {
    quint64 totalBytes = 0;
    quint64 freeBytes = 0; ///< to an unprivileged user

    bool operator==(const VolumeSize&) const = default;
};

/// Figures of the whole machine. Each call returns an empty value when the system refuses the figure, and
/// where an implementation does not read it.
class HostStatistics {
public:
    virtual ~HostStatistics() = default;

    virtual std::optional<CpuTicks> cpuTicks() { return {}; }
    /// Returns the ticks of each CPU that is online, in order, as of the last call of `cpuTicks`.
    virtual QList<CoreTicks> coreTicks() { return {}; }
    virtual MemoryUse memoryUse() { return {}; }
    virtual std::optional<VolumeSize> rootVolume() { return {}; }
    /// Returns 0 nominal, 1 fair, 2 serious or 3 critical.
    virtual int thermalLevel() { return 0; }
};
