#include "Core/Memory/MemoryReturn.h"

#include "Core/Memory/MemoryFigures.h"

#include <QHash>
#include <QSet>

#include <algorithm>

namespace {

constexpr quint64 bytesPerPageTableByte = 512; // an entry of 8 bytes for a page of 4 KiB

/// Finds the families of processes that forked from each other and run the same program.
class Families {
public:
    explicit Families(const QList<ProcSample>& all) {
        for (const ProcSample& process : all)
            m_processes.insert(process.pid, &process);
    }

    /// Returns the eldest of the family: the first ancestor with the same program. Orphans of one program
    /// count as children of one parent that has ended.
    QString of(const ProcSample& process) const {
        const ProcSample* eldest = &process;
        for (int step = 0; step < maxGenerations; ++step) {
            const ProcSample* parent = m_processes.value(eldest->parentPid);
            if (!parent || parent->executablePath != process.executablePath)
                break;
            eldest = parent;
        }
        const bool isOrphan = eldest->parentPid <= 1 && !eldest->executablePath.isEmpty();
        return isOrphan ? eldest->executablePath : QString::number(eldest->pid);
    }

private:
    static constexpr int maxGenerations = 64;

    QHash<qint32, const ProcSample*> m_processes;
};

ProcessMemoryUse useOf(const ProcSample& process) {
    return process.memory ? process.memory->use : ProcessMemoryUse();
}

quint64 pageTablesOf(const ProcSample& process) {
    return process.rssBytes / bytesPerPageTableByte;
}

/// What a family holds together, and what those of it that stay go on holding.
struct Family {
    quint64 dirtyBytes = 0;
    quint64 keptBytes = 0; ///< at most
    quint64 uniqueBytes = 0;
    int members = 0;
    bool isKnown = true;

    void add(const ProcSample& process, bool ends) {
        const ProcessMemoryUse use = useOf(process);
        ++members;
        dirtyBytes += use.proportionalDirtyBytes.value_or(0);
        uniqueBytes += ends ? use.uniqueDirtyBytes.value_or(0) : 0;
        keptBytes += ends ? 0 : use.dirtyBytes.value_or(0);
        isKnown &= use.proportionalDirtyBytes && use.dirtyBytes;
    }
    /// Returns what comes back beyond the pages that each has alone. A single process shares with strangers.
    quint64 sharedReturn() const {
        const quint64 back = dirtyBytes - std::min(dirtyBytes, keptBytes);
        return isKnown && members > 1 ? back - std::min(back, uniqueBytes) : 0;
    }
};

} // namespace

MemoryReturn& MemoryReturn::operator+=(const MemoryReturn& other) {
    memoryBytes += other.memoryBytes;
    swapBytes += other.swapBytes;
    isRough |= other.isRough;
    return *this;
}

MemoryReturn MemoryReturn::ofEnding(const ProcSample& process) {
    const ProcessMemoryUse use = useOf(process);
    const quint64 swap = use.proportionalSwapBytes.value_or(use.swapBytes.value_or(0));
    if (!use.proportionalBytes)
        return {.memoryBytes = use.anonymousBytes.value_or(process.anonymousBytes.value_or(process.rssBytes)),
                .swapBytes = swap,
                .isRough = true};
    return {.memoryBytes = use.uniqueDirtyBytes.value_or(0) + pageTablesOf(process), .swapBytes = swap};
}

MemoryReturn MemoryReturn::ofEnding(const QList<qint32>& pids, const QList<ProcSample>& all) {
    const QSet<qint32> ending(pids.begin(), pids.end());
    const Families families(all);
    QHash<QString, Family> found;
    MemoryReturn sum;
    for (const ProcSample& process : all) {
        const bool ends = ending.contains(process.pid);
        found[families.of(process)].add(process, ends);
        if (ends)
            sum += ofEnding(process);
    }
    for (const ProcSample& process : all) {
        if (ending.contains(process.pid))
            sum.memoryBytes += found.take(families.of(process)).sharedReturn();
    }
    return sum;
}
