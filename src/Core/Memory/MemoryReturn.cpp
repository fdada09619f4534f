#include "Core/Memory/MemoryReturn.h"

#include "Core/Memory/MemoryFigures.h"

#include <QHash>
#include <QSet>

namespace {

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

MemoryReturn returnOf(const ProcSample& process, bool withShared) {
    const ProcessMemoryUse use = process.memory ? process.memory->use : ProcessMemoryUse();
    const quint64 swap = use.proportionalSwapBytes.value_or(use.swapBytes.value_or(0));
    if (!use.proportionalBytes)
        return {
            .memoryBytes = use.anonymousBytes.value_or(process.rssBytes), .swapBytes = swap, .isRough = true};
    const auto share = withShared ? use.proportionalDirtyBytes : use.uniqueDirtyBytes;
    return {.memoryBytes = share.value_or(use.uniqueBytes.value_or(0)), .swapBytes = swap};
}

} // namespace

MemoryReturn& MemoryReturn::operator+=(const MemoryReturn& other) {
    memoryBytes += other.memoryBytes;
    swapBytes += other.swapBytes;
    isRough |= other.isRough;
    return *this;
}

MemoryReturn MemoryReturn::ofEnding(const ProcSample& process) {
    return returnOf(process, false);
}

MemoryReturn MemoryReturn::ofEnding(const QList<qint32>& pids, const QList<ProcSample>& all) {
    const QSet<qint32> ending(pids.begin(), pids.end());
    const Families families(all);
    QHash<QString, int> ends;
    QHash<QString, int> stays;
    for (const ProcSample& process : all)
        ++(ending.contains(process.pid) ? ends : stays)[families.of(process)];
    MemoryReturn sum;
    for (const ProcSample& process : all) {
        if (!ending.contains(process.pid))
            continue;
        const QString family = families.of(process);
        sum += returnOf(process, ends.value(family) > 1 && stays.value(family) == 0);
    }
    return sum;
}
