#pragma once

#include <QList>

#include <chrono>
#include <optional>

/// What a process has in memory and in swap, in bytes, at one look. An empty figure is unknown. Huge pages
/// that were reserved beforehand (hugetlb) count nowhere.
struct ProcessMemoryUse {
    std::optional<quint64> proportionalBytes; ///< each page divided by the number of processes that map it
    std::optional<quint64> proportionalDirtyBytes; ///< of these, what cannot be dropped and read again
    std::optional<quint64> uniqueBytes;            ///< pages that no other process maps
    std::optional<quint64> uniqueDirtyBytes;       ///< of these, what cannot be dropped and read again
    std::optional<quint64> dirtyBytes;             ///< as the last, whoever else maps them
    std::optional<quint64> anonymousBytes;         ///< pages of no file, whoever else maps them
    std::optional<quint64> swapBytes;
    std::optional<quint64> proportionalSwapBytes; ///< divided as the pages in memory are

    bool operator==(const ProcessMemoryUse&) const = default;
};

/// A look at the memory of a process.
struct ProcessMemoryReading {
    std::optional<ProcessMemoryUse> use; ///< empty when the process is gone or refuses the look
    std::chrono::nanoseconds cost{};     ///< processor time of the look
};

/// What the kernel counts for a control group and all below it, in bytes.
struct ControlGroupMemory {
    QList<qint32> pids;      ///< of all its processes
    quint64 memoryBytes = 0; ///< in use, with what the kernel keeps for it
    quint64 cacheBytes = 0;  ///< of these, clean and dirty pages of files, which stay in memory when it ends
    quint64 swapBytes = 0;
};

/// Looks at the memory of single processes. Called on any thread.
class ProcessMemory {
public:
    virtual ~ProcessMemory() = default;

    /// Reads every figure. The cost grows with the size of the process.
    virtual ProcessMemoryReading readAll(qint32 pid) = 0;
    /// Reads `anonymousBytes` and `swapBytes`, at the same small cost for any process of any user.
    virtual ProcessMemoryReading readTotals(qint32 pid) = 0;
    /// Reads the control group of a process. Returns an empty optional where the kernel counts none.
    virtual std::optional<ControlGroupMemory> controlGroup(qint32 pid) = 0;
};
